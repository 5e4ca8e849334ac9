// The tables survive a bad end of the program.
#include "history/Notwehr.h"

#include "history/Aufräumen.h"
#include "history/Stände.h"
#include "history/Tabellenstand.h"
#include "platform/Absturz.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace altardienst {
namespace {

using std::filesystem::path;
using Pfadtext = path::string_type;

/// All paths of one place to which the tables can go.
struct Zuflucht {
    std::vector<Pfadtext> Wege; // the directories that lead there, from the root on
    Pfadtext Verzeichnis;
    Pfadtext InArbeit;
    std::array<Pfadtext, 8> Dateien;
    Pfadtext Ziel; // its last characters are the name of the state, whose time is put in then
};

std::vector<Zuflucht> zufluchten;
std::string puffer;
std::time_t ortszeit = 0;     // what local time is ahead of the system's
std::time_t spätesteZeit = 0; // of the newest state, in local time
Pfadtext reserve;

// What runs in the end: no memory is taken.

void Ziffern(Pfadtext &ziel, std::size_t stelle, int zahl, std::size_t stellen)
{
    for (; stellen > 0; --stellen, zahl /= 10)
        ziel[stelle + stellen - 1] = static_cast<Pfadtext::value_type>('0' + zahl % 10);
}

void ZeitEinsetzen(Pfadtext &ziel, std::size_t namenslänge)
{
    const std::time_t jetzt = std::max(std::time(nullptr) + ortszeit, spätesteZeit + 1);
    const std::time_t tage = jetzt / SekundenProTag;
    const Kalendertag tag = KalendertagVon(static_cast<Datum>(tage));
    const int sekunde = static_cast<int>(jetzt % SekundenProTag);
    const std::size_t anfang = ziel.size() - namenslänge; // "2026-11-21 12-00-05 Notfall"
    Ziffern(ziel, anfang, tag.Jahr, 4);
    Ziffern(ziel, anfang + 5, tag.Monat, 2);
    Ziffern(ziel, anfang + 8, tag.Tag, 2);
    Ziffern(ziel, anfang + 11, sekunde / 3600, 2);
    Ziffern(ziel, anfang + 14, sekunde / 60 % 60, 2);
    Ziffern(ziel, anfang + 17, sekunde % 60, 2);
}

const Text &Musterzeit()
{
    static const Text name = Standname({DatumAus({2000, 1, 1}), 0, 1}, Standart::Notfall);
    return name;
}

/// Puts a file into the buffer. One that holds a value which cannot be written is left out.
bool Schreibbar(const Datei &datei)
{
    puffer.clear();
    try {
        datei.Schreiben(puffer);
        return true;
    } catch (...) {
        return false;
    }
}

bool GelangtNach(Zuflucht &zuflucht)
{
    for (const Pfadtext &weg : zuflucht.Wege)
        notschrift::VerzeichnisAnlegen(weg.c_str());
    if (!notschrift::VerzeichnisAnlegen(zuflucht.InArbeit.c_str()))
        return false;
    for (std::size_t i = 0; i < Dateien.size(); ++i)
        if (Schreibbar(Dateien[i]) && !notschrift::Schreiben(zuflucht.Dateien[i].c_str(), puffer))
            return false;
    notschrift::Durchschreiben(zuflucht.InArbeit.c_str());
    ZeitEinsetzen(zuflucht.Ziel, Musterzeit().size());
    if (!notschrift::Umbenennen(zuflucht.InArbeit.c_str(), zuflucht.Ziel.c_str()))
        return false;
    notschrift::Durchschreiben(zuflucht.Verzeichnis.c_str());
    return true;
}

void TabellenRetten()
{
    TabellenBeiseite::AlleZurück();
    notschrift::Entfernen(reserve.c_str());
    for (Zuflucht &zuflucht : zufluchten)
        if (GelangtNach(zuflucht))
            return;
}

// What is prepared.

Zuflucht ZufluchtIn(const path &verzeichnis, bool mitDenenDarüber)
{
    Zuflucht zuflucht;
    for (path weg = verzeichnis; !weg.empty() && weg != weg.parent_path();
         weg = weg.parent_path()) {
        zuflucht.Wege.push_back(weg.native());
        if (!mitDenenDarüber)
            break;
    }
    std::ranges::reverse(zuflucht.Wege);
    zuflucht.Verzeichnis = verzeichnis.native();
    const path inArbeit = verzeichnis / PfadAus(Restname(Rest::NotfallInArbeit));
    zuflucht.InArbeit = inArbeit.native();
    std::ranges::transform(Dateien, zuflucht.Dateien.begin(), [&](const Datei &datei) {
        return (inArbeit / PfadAus(datei.Name)).native();
    });
    zuflucht.Ziel = (verzeichnis / PfadAus(Musterzeit())).native();
    return zuflucht;
}

} // namespace

void NotwehrBereitstellen()
{
    constexpr std::size_t Reichlich = std::size_t(16) << 20; // for the largest file; untouched
    try {
        puffer.reserve(Reichlich);
        PlatzReservieren();
        reserve = Platzreserve().native();
        zufluchten.clear();
        zufluchten.push_back(ZufluchtIn(Ständeverzeichnis(), false));
        for (const path &ausweg : Laufwerke.Ausweichverzeichnisse())
            zufluchten.push_back(ZufluchtIn(ausweg, true));
        const auto tage = static_cast<std::time_t>(Uhr.Heute());
        ortszeit = tage * SekundenProTag + Uhr.Sekunden() - std::time(nullptr);
        if (const auto stände = AlleStände(); !stände.empty())
            spätesteZeit = static_cast<std::time_t>(stände.back().Zeit.Tag) * SekundenProTag +
                           stände.back().Zeit.Sekunde;
        BeiAbsturz(TabellenRetten);
    } catch (...) {
        // Then there is none.
    }
}

void NotwehrBeenden()
{
    BeiAbsturz(nullptr);
    PlatzFreigeben();
}

} // namespace altardienst
