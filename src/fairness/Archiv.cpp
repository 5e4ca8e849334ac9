// The services of past plans.
#include "fairness/Archiv.h"

#include "assignment/Dienste.h"
#include "core/Umwandlung.h"
#include "fairness/Archivzeilen.h"
#include "overview/Namensregister.h"
#include "overview/Platz.h"
#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>

namespace altardienst {
namespace {

using std::filesystem::path;

path Ort(const Archivzeitraum &zeitraum)
{
    return Archivverzeichnis() / PfadAus(Archivname(zeitraum));
}

std::optional<Archivzeitraum> ZeitraumAus(const Text &name)
{
    Kalendertag von{};
    Kalendertag bis{};
    if (std::sscanf(name.c_str(), "Plan %4d-%2d-%2d bis %4d-%2d-%2d", &von.Jahr, &von.Monat,
                    &von.Tag, &bis.Jahr, &bis.Monat, &bis.Tag) != 6)
        return std::nullopt;
    try {
        const Archivzeitraum zeitraum{DatumAus(von), DatumAus(bis)};
        if (Archivname(zeitraum) == name) // nothing more and nothing less
            return zeitraum;
    } catch (const Laufzeitfehler &) {
        // There is no such day.
    }
    return std::nullopt;
}

/// The directory of the archive is made with its first file; the program's own is not ours to make.
void Ablegen(const Archivzeitraum &zeitraum, std::string_view bytes)
{
    Laufwerke.Auflisten(Laufwerke.Programmverzeichnis());
    Laufwerke.VerzeichnisAnlegen(Archivverzeichnis());
    GanzSchreiben(Ort(zeitraum), bytes);
}

Text JahrMonatTag(Datum datum)
{
    const Kalendertag tag = KalendertagVon(datum);
    char puffer[16];
    std::snprintf(puffer, sizeof puffer, "%04d-%02d-%02d", tag.Jahr % 10000, tag.Monat % 100,
                  tag.Tag % 100);
    return puffer;
}

} // namespace

bool Archivdienst::VonHelfer() const
{
    return std::ranges::any_of(Helferarten,
                               [&](const Helferart &art) { return Dienst == art.Name; });
}

Text Archivname(const Archivzeitraum &zeitraum)
{
    return "Plan " + JahrMonatTag(zeitraum.Von) + " bis " + JahrMonatTag(zeitraum.Bis) + ".csv";
}

path Archivverzeichnis()
{
    return Laufwerke.Programmverzeichnis() / "Archiv";
}

std::vector<Archivzeitraum> ArchivierteZeiträume()
{
    std::vector<Archivzeitraum> zeiträume;
    try {
        for (const Text &name : Laufwerke.Auflisten(Archivverzeichnis()).Dateien)
            if (const auto zeitraum = ZeitraumAus(name))
                zeiträume.push_back(*zeitraum);
    } catch (const Laufzeitfehler &) {
        // There are none yet.
    }
    std::ranges::sort(zeiträume);
    return zeiträume;
}

Archivinhalt ArchivLesen(const Archivzeitraum &zeitraum)
{
    Archivinhalt inhalt;
    for (auto &[zeile, dienst] : ArchivzeilenLesen(Laufwerke.Lesen(Ort(zeitraum))))
        if (dienst)
            inhalt.Dienste.push_back(std::move(*dienst));
        else
            ++inhalt.Unlesbar;
    return inhalt;
}

std::vector<Archivdienst> DiensteDesPlans(const Plantabellen &tabellen)
{
    const MesseTabelle &messen = tabellen.Messen;
    std::vector<Archivdienst> dienste;
    const auto aufnehmen = [&](Planplatz platz) {
        const Platzname name = NameAm(messen, platz);
        if (IstGewünscht(messen, platz) && !name.Vorname.empty() && !name.Nachname.empty())
            dienste.push_back({messen.Datum[platz.Messe], messen.Uhrzeit[platz.Messe],
                               messen.Messeart[platz.Messe], name.Vorname, name.Nachname,
                               DienstAm(messen, platz)});
    };
    for (int i = 0; i < tabellen.Messenzahl(); ++i) {
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
            aufnehmen(Dienerplatznr(i, slot));
        for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
            aufnehmen(Helferplatznr(i, nr));
    }
    return dienste;
}

bool PlanArchivieren(const Plantabellen &tabellen)
{
    const std::vector<Archivdienst> dienste = DiensteDesPlans(tabellen);
    if (dienste.empty())
        return false;
    Archivzeitraum zeitraum{tabellen.Messen.Datum[0], tabellen.Messen.Datum[0]};
    for (int i = 0; i < tabellen.Messenzahl(); ++i) {
        zeitraum.Von = std::min(zeitraum.Von, tabellen.Messen.Datum[i]);
        zeitraum.Bis = std::max(zeitraum.Bis, tabellen.Messen.Datum[i]);
    }
    Ablegen(zeitraum, Archivdatei(dienste));
    return true;
}

void ArchivLöschen(const Archivzeitraum &zeitraum)
{
    const auto verzeichnisse = Laufwerke.Auflisten(Archivverzeichnis()).Verzeichnisse;
    if (std::ranges::find(verzeichnisse, Archivname(zeitraum)) != verzeichnisse.end())
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    Laufwerke.Löschen(Ort(zeitraum));
}

int ImArchivUmbenennen(const Personenname &alt, const Personenname &neu, bool helfer)
{
    int gescheitert = 0;
    for (const Archivzeitraum &zeitraum : ArchivierteZeiträume()) {
        try {
            std::string datei = Archivdatei({});
            bool geändert = false;
            for (auto &[zeile, dienst] : ArchivzeilenLesen(Laufwerke.Lesen(Ort(zeitraum)))) {
                if (dienst && dienst->VonHelfer() == helfer && dienst->Vorname == alt.Vorname &&
                    dienst->Nachname == alt.Nachname) {
                    dienst->Vorname = neu.Vorname;
                    dienst->Nachname = neu.Nachname;
                    geändert = true;
                }
                datei += (dienst ? AlsArchivzeile(*dienst) : zeile) + "\r\n";
            }
            if (geändert)
                Ablegen(zeitraum, datei);
        } catch (const Laufzeitfehler &) {
            ++gescheitert;
        }
    }
    return gescheitert;
}

Archivzählung ArchivZählen(const Plantabellen &tabellen, Datum vor, int monate)
{
    Namensregister diener;
    Namensregister helfer;
    diener.Neu(tabellen.Diener);
    helfer.Neu(tabellen.Helferinnen);
    Archivzählung zählung{
        std::vector<double>(static_cast<std::size_t>(std::max<int>(0, tabellen.Diener.Anzahl))),
        std::vector<double>(
            static_cast<std::size_t>(std::max<int>(0, tabellen.Helferinnen.Anzahl))),
        0};
    const Datum ab = MonateWeiter(vor, -monate);
    std::map<Datum, std::vector<Archivdienst>> tage; // a later file takes the place of the days
    for (const Archivzeitraum &zeitraum : ArchivierteZeiträume()) {
        try {
            const Archivinhalt inhalt = ArchivLesen(zeitraum);
            tage.erase(tage.lower_bound(zeitraum.Von), tage.upper_bound(zeitraum.Bis));
            for (const Archivdienst &dienst : inhalt.Dienste)
                if (dienst.Tag >= ab && dienst.Tag < vor)
                    tage[dienst.Tag].push_back(dienst);
        } catch (const Laufzeitfehler &) {
            ++zählung.UnlesbareDateien;
        }
    }
    for (const auto &[tag, dienste] : tage)
        for (const Archivdienst &dienst : dienste) {
            const int nr =
                (dienst.VonHelfer() ? helfer : diener).Finden(dienst.Vorname, dienst.Nachname);
            std::vector<double> &zahlen = dienst.VonHelfer() ? zählung.Helfer : zählung.Diener;
            if (nr >= 0 && nr < static_cast<int>(zahlen.size()))
                ++zahlen[static_cast<std::size_t>(nr)];
        }
    return zählung;
}

} // namespace altardienst
