// The mark of one change of the eight files.
#include "history/Marke.h"

#include "history/Aufräumen.h"
#include "history/Stände.h"
#include "platform/Laufwerke.h"

#include <algorithm>

namespace altardienst {
namespace {

using std::filesystem::path;

std::vector<path> Marken()
{
    std::vector<path> marken;
    try {
        for (const Text &name : Laufwerke.Auflisten(Ständeverzeichnis()).Verzeichnisse)
            if (IstRest(name, Rest::Marke))
                marken.push_back(Ständeverzeichnis() / PfadAus(name));
    } catch (const Laufzeitfehler &) {
        // There is no place of states yet.
    }
    return marken;
}

bool Unlesbar(const Standdatei &datei)
{
    return !datei.Name.empty() && !datei.Bytes;
}

void Beiseitelegen(const Text &name)
{
    Laufwerke.Umbenennen(Laufwerke.Programmverzeichnis() / PfadAus(name), Marke() / PfadAus(name));
    Laufwerke.Durchschreiben(Marke());
}

/// What it holds is nowhere else.
bool HatEinziges(const Standinhalt &inhalt)
{
    return std::ranges::any_of(inhalt.Dateien, Unlesbar);
}

} // namespace

path Marke()
{
    return Ständeverzeichnis() / PfadAus(Restname(Rest::Marke));
}

bool MarkeLiegt()
{
    return std::ranges::count(Marken(), Marke()) > 0;
}

bool FremdeMarkeLiegt()
{
    const auto marken = Marken();
    return std::ranges::any_of(marken, [](const path &marke) { return marke != Marke(); });
}

void MarkeSetzen()
{
    const path verzeichnis = StändeverzeichnisAnlegen();
    const Standinhalt inhalt = InhaltVon(Laufwerke.Programmverzeichnis());
    if (MarkeLiegt())
        MarkeAbnehmen(true);
    MitPlatz([&] { VerzeichnisSchreiben(verzeichnis, Restname(Rest::Marke), inhalt); });
}

void UnlesbareBeiseitelegen()
{
    const Standinhalt inhalt = InhaltVon(Laufwerke.Programmverzeichnis());
    for (std::size_t i = 0; i < inhalt.Dateien.size(); ++i)
        if (Unlesbar(inhalt.Dateien[i]) && inhalt.Dateien[i].Name == Dateien[i].Name)
            Beiseitelegen(inhalt.Dateien[i].Name);
}

void UnlesbareBeiseitelegen(const path &datei)
{
    const Text name = TextVon(datei.filename());
    if (Laufwerke.Suchen(Laufwerke.Programmverzeichnis(), name) != name)
        return;
    try {
        Laufwerke.Lesen(datei);
    } catch (const Laufzeitfehler &) {
        Beiseitelegen(name);
    }
}

void UnlesbareZurücklegen(const path &marke)
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    for (const Standdatei &datei : InhaltVon(marke).Dateien)
        if (Unlesbar(datei) && !Laufwerke.Suchen(verzeichnis, datei.Name))
            Laufwerke.Umbenennen(marke / PfadAus(datei.Name), verzeichnis / PfadAus(datei.Name));
}

void MarkeAbnehmen(bool aufheben)
{
    const Standinhalt inhalt = InhaltVon(Marke());
    if (HatEinziges(inhalt) || (aufheben && !inhalt.Leer() && !SchonAufgehoben(inhalt)))
        AlsNeuestenStand(Marke(), Standart::Gewöhnlich);
    else
        VerzeichnisEntfernen(Marke());
}

void MarkenAufheben()
{
    for (const path &marke : Marken()) {
        UnlesbareZurücklegen(marke);
        if (!Laufwerke.Auflisten(marke).Dateien.empty())
            AlsNeuestenStand(marke, Standart::VorAbbruch);
    }
}

void LeereMarkenEntfernen()
{
    for (const path &marke : Marken())
        if (Laufwerke.Auflisten(marke).Dateien.empty())
            VerzeichnisEntfernen(marke);
}

} // namespace altardienst
