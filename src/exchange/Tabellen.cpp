// Lists as files for a spreadsheet.
#include "exchange/Tabellen.h"

#include "core/Tabellentext.h"
#include "exchange/Plantabelle.h"
#include "exchange/Spalten.h"

namespace altardienst {
namespace {

struct Beschreibung {
    const char *Name;
    const char *Dateiname;
    std::vector<Text> Üblich;
};

const Beschreibung &Von(Tabellenart art)
{
    static const std::array<Beschreibung, 4> beschreibungen = {{
        {"Meßdiener", "Meßdiener.csv", {"Vorname", "Nachname", "Gruppe"}},
        {"Helfer", "Helfer.csv", {"Vorname", "Nachname", "Dienst 1", "Dienst 2"}},
        {"Plan, eine Zeile je Dienst",
         "Plan nach Diensten.csv",
         {"Datum", "Uhrzeit", "Messe", "Vorname", "Nachname", "Dienst"}},
        {"Plan, eine Zeile je Messe", "Plan nach Messen.csv", Plantabelle::JeMesse()},
    }};
    return beschreibungen.at(static_cast<std::size_t>(art));
}

bool IstPlan(Tabellenart art)
{
    return art == Tabellenart::Dienste || art == Tabellenart::Messen;
}

Personenart Personen(Tabellenart art)
{
    return art == Tabellenart::Diener ? Personenart::Diener : Personenart::Helfer;
}

void PersonenAnhängen(std::string &bytes, Personenart art, const std::vector<int> &spalten)
{
    for (int i = 0; i < Vorhandene(art); ++i) {
        for (std::size_t k = 0; k < spalten.size(); ++k) {
            const Listenspalte &spalte = SpalteMit(art, spalten[k]);
            if (k > 0)
                bytes += Feldtrenner;
            (spalte.IstText ? TextfeldAnhängen : FeldAnhängen)(bytes, spalte.Wert(i));
        }
        bytes += Zeilenende;
    }
}

} // namespace

Text Tabellenname(Tabellenart art)
{
    return Von(art).Name;
}

Text Tabellendateiname(Tabellenart art)
{
    return Von(art).Dateiname;
}

std::vector<Text> ÜblicheTabellenspalten(Tabellenart art)
{
    return Von(art).Üblich;
}

std::vector<Text> Tabellenspalten(Tabellenart art)
{
    if (art == Tabellenart::Dienste)
        return Plantabelle::JeDienst();
    if (art == Tabellenart::Messen)
        return Plantabelle::JeMesse();
    std::vector<Text> namen;
    namen.reserve(SpaltenFür(Personen(art)).size());
    for (const Listenspalte &spalte : SpaltenFür(Personen(art)))
        namen.push_back(spalte.Name);
    return namen;
}

int Tabellenzeilen(Tabellenart art)
{
    return IstPlan(art) ? Plantabelle::Zeilen(art == Tabellenart::Dienste)
                        : Vorhandene(Personen(art));
}

std::string Tabellendatei(Tabellenart art, const std::vector<int> &spalten)
{
    const std::vector<Text> namen = Tabellenspalten(art);
    constexpr std::size_t Feldgröße = 12; // what is usual
    std::string bytes(Utf8Marke);
    bytes.reserve(spalten.size() * static_cast<std::size_t>(Tabellenzeilen(art) + 1) * Feldgröße);
    for (std::size_t k = 0; k < spalten.size(); ++k) {
        if (k > 0)
            bytes += Feldtrenner;
        FeldAnhängen(bytes, namen.at(static_cast<std::size_t>(spalten[k])));
    }
    bytes += Zeilenende;
    if (IstPlan(art))
        Plantabelle::Anhängen(bytes, art == Tabellenart::Dienste, spalten);
    else
        PersonenAnhängen(bytes, Personen(art), spalten);
    return bytes;
}

} // namespace altardienst
