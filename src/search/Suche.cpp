// Looking for a person or a mass in all tables.
#include "search/Suche.h"

#include "core/Messenname.h"
#include "core/Plätze.h"
#include "core/Suchwörter.h"
#include "core/Umwandlung.h"
#include "planning/Messenbearbeitung.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace altardienst {
namespace {

using Wörter = std::vector<Text>;

constexpr int WenigsteZeichen = 2;
constexpr std::string_view Dazwischen = " · ";

constexpr std::array<Festtext, 12> Monatsnamen = {"Januar",    "Februar", "März",     "April",
                                                  "Mai",       "Juni",    "Juli",     "August",
                                                  "September", "Oktober", "November", "Dezember"};

/// The parts of a date that a word names; 0 for those it leaves open. The year may be half typed.
struct Datumswort {
    int Tag = 0;
    int Monat = 0;
    Text Jahr;

    bool Meint(const Kalendertag &tag) const
    {
        const Text jahr = std::to_string(tag.Jahr);
        return tag.Tag == Tag && (Monat == 0 || tag.Monat == Monat) &&
               (jahr.starts_with(Jahr) || (Jahr.size() == 2 && jahr.ends_with(Jahr)));
    }
};

/// The parts between the separators, if these are all the same and the parts digits.
std::optional<Wörter> Ziffernteile(const Text &wort)
{
    const std::size_t erster = wort.find_first_not_of("0123456789");
    if (erster == 0 || erster == Text::npos ||
        std::string_view("./-").find(wort[erster]) == std::string_view::npos)
        return std::nullopt;
    Wörter teile(1);
    for (const char c : wort) {
        if (c == wort[erster])
            teile.emplace_back();
        else if (c >= '0' && c <= '9')
            teile.back() += c;
        else
            return std::nullopt;
    }
    return teile;
}

int Zahl(const Text &ziffern)
{
    int zahl = 0;
    std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl);
    return zahl;
}

/// "8.", "8.12", "8.12.", "8.12.26", "8.12.2026", "2026-12-08".
std::optional<Datumswort> AlsDatum(const Text &wort)
{
    constexpr std::size_t Jahresstellen = 4;
    auto teile = Ziffernteile(wort);
    if (!teile || teile->size() > 3)
        return std::nullopt;
    if (teile->front().size() == Jahresstellen) // the year comes first
        std::ranges::reverse(*teile);
    teile->resize(3);
    const auto &[tag, monat, jahr] = std::tie((*teile)[0], (*teile)[1], (*teile)[2]);
    const Datumswort datum{Zahl(tag), Zahl(monat), jahr};
    const bool möglich = datum.Tag >= 1 && datum.Tag <= 31 && datum.Monat <= 12 &&
                         (datum.Monat >= 1 || monat.empty()) && jahr.size() <= Jahresstellen;
    return möglich ? std::optional(datum) : std::nullopt;
}

/// A word as it is compared with masses: a date, a time typed with a point, or a text.
struct Messenwort {
    Text Wort;
    Text AlsZeit;
    std::optional<Datumswort> Datum;

    explicit Messenwort(const Text &wort) : Wort(wort), AlsZeit(wort), Datum(AlsDatum(wort))
    {
        const auto teile = Ziffernteile(wort);
        if (teile && teile->size() == 2 && teile->back().size() == 2)
            std::ranges::replace(AlsZeit, '.', ':');
    }

    bool Meint(const Kalendertag &tag, const Text &beschreibung) const
    {
        return (Datum && Datum->Meint(tag)) || Wort == std::to_string(tag.Jahr) ||
               beschreibung.find(Wort) != Text::npos || beschreibung.find(AlsZeit) != Text::npos;
    }
};

/// In small letters; without the date in figures, in which "8.12." would find the 28th too.
Text Messenbeschreibung(int i, const Kalendertag &tag)
{
    return Klein(WochentagName(Messe.Datum[i]) + " " + StundenUndMinuten(Messe.Uhrzeit[i]) +
                 " Uhr " + Messe.Messeart[i] + " " +
                 Text(Monatsnamen[static_cast<std::size_t>(tag.Monat - 1)]));
}

/// A date that no calendar has is not found.
bool IstGesuchteMesse(int i, const std::vector<Messenwort> &wörter)
{
    try {
        const Kalendertag tag = KalendertagVon(Messe.Datum[i]);
        const Text beschreibung = Messenbeschreibung(i, tag);
        return std::ranges::all_of(
            wörter, [&](const Messenwort &wort) { return wort.Meint(tag, beschreibung); });
    } catch (const Laufzeitfehler &) {
        return false;
    }
}

/// A file may claim more records than there can be.
template <class Tabelle> int Anzahl(const Tabelle &t)
{
    return std::min<int>(t.Anzahl, Tabelle::HöchsterIndex + 1);
}

bool IstGesucht(const Text &vorname, const Text &nachname, const Wörter &wörter)
{
    return EnthältAlle(vorname + " " + nachname, wörter);
}

/// Whether a word begins one of the names, and does not just stand within it.
bool BeginntName(const Text &vorname, const Text &nachname, const Wörter &wörter)
{
    const Text vor = Klein(vorname);
    const Text nach = Klein(nachname);
    return std::ranges::any_of(
        wörter, [&](const Text &wort) { return vor.starts_with(wort) || nach.starts_with(wort); });
}

class Sammlung {
  public:
    explicit Sammlung(const std::set<Text> &ganze) : ganze(ganze) {}

    void Beginnen(const char *titel) { gruppen.push_back({titel, {}, 0}); }

    void Aufnehmen(Fund treffer)
    {
        Treffergruppe &gruppe = gruppen.back();
        if (gruppe.Zeilen.size() < MeisteTreffer || ganze.contains(gruppe.Titel))
            gruppe.Zeilen.push_back(std::move(treffer));
        else
            ++gruppe.Weitere;
    }

    std::vector<Treffergruppe> Fertig()
    {
        std::erase_if(gruppen, [](const Treffergruppe &g) { return g.Zeilen.empty(); });
        return std::move(gruppen);
    }

  private:
    const std::set<Text> &ganze;
    std::vector<Treffergruppe> gruppen;
};

/// Records whose names begin with what was typed come first. `dabei` is told next to the name.
template <class Tabelle, class Spalte>
void PersonenSuchen(Sammlung &sammlung, Fundort wo, Tabelle &t, const Spalte &dabei,
                    const Wörter &wörter)
{
    std::vector<int> gefunden;
    for (int i = 0; i < Anzahl(t); ++i)
        if (IstGesucht(t.Vorname[i], t.Nachname[i], wörter))
            gefunden.push_back(i);
    std::stable_partition(gefunden.begin(), gefunden.end(),
                          [&](int i) { return BeginntName(t.Vorname[i], t.Nachname[i], wörter); });
    for (const int i : gefunden)
        sammlung.Aufnehmen({wo, i, 0,
                            Personenzeile(t.Vorname[i], t.Nachname[i]) +
                                (dabei[i].empty() ? "" : Text(Dazwischen) + dabei[i])});
}

void WünscheSuchen(Sammlung &sammlung, const Wörter &wörter)
{
    for (int i = 0; i < Anzahl(Meßdiener); ++i) {
        const Text &vor = Meßdiener.WunschVorname[i];
        const Text &nach = Meßdiener.WunschNachname[i];
        if (IstGesucht(vor, nach, wörter))
            sammlung.Aufnehmen({Fundort::Wunschpartner, i, 0,
                                Personenzeile(Meßdiener.Vorname[i], Meßdiener.Nachname[i]) +
                                    " wünscht sich " + Personenzeile(vor, nach)});
    }
}

void MessenSuchen(Sammlung &sammlung, const Wörter &wörter)
{
    const std::vector<Messenwort> messenwörter(wörter.begin(), wörter.end());
    for (int i = 0; i < Anzahl(Messe); ++i)
        if (IstGesuchteMesse(i, messenwörter))
            sammlung.Aufnehmen({Fundort::Messe, i, 0, Messenzeile(i)});
}

/// "Leuchter", or "Meßdiener 7" for a slot without a service of its own.
Text Slotname(int messe, int slot)
{
    Dienstwünsche wünsche{};
    for (std::size_t art = 0; art < wünsche.size(); ++art)
        wünsche[art] = BesondereDienste[art].Zahl.In(Messe)[messe];
    const Text beschriftung = SlotBeschriftungen(wünsche)[static_cast<std::size_t>(slot - 1)];
    return beschriftung.substr(0, beschriftung.find(" :"));
}

/// Names left in places that a mass no longer wants are neither shown nor printed, nor found here.
void PlätzeSuchen(Sammlung &sammlung, const Wörter &wörter)
{
    const auto zeile = [](int i, const Text &platz, const Text &vor, const Text &nach) {
        return Messenzeile(i) + Text(Dazwischen) + platz + Text(Dazwischen) +
               Personenzeile(vor, nach);
    };
    for (int i = 0; i < Anzahl(Messe); ++i) {
        const int slots = std::min<int>(Messe.Dienerzahl[i], MesseTabelle::HöchsterSlot);
        for (int n = 1; n <= slots; ++n) {
            const Text &vor = Messe.DienerVor[i][n];
            const Text &nach = Messe.DienerNach[i][n];
            if (IstGesucht(vor, nach, wörter))
                sammlung.Aufnehmen(
                    {Fundort::Meßdienerplatz, i, n, zeile(i, Slotname(i, n), vor, nach)});
        }
        for (std::size_t p = 0; p < Helferplätze.size(); ++p) {
            const Helferplatz &platz = Helferplätze[p];
            const Text &vor = (Messe.*platz.Vor)[i];
            const Text &nach = (Messe.*platz.Nach)[i];
            if (platz.Nötig(Messe, i) && IstGesucht(vor, nach, wörter))
                sammlung.Aufnehmen({Fundort::Helferplatz, i, static_cast<int>(p),
                                    zeile(i, platz.Aufschrift(), vor, nach)});
        }
    }
}

/// The places that the mass of a fixed entry has, which are those that its window shows.
int Festplätze(int k)
{
    int plätze = 0;
    for (int i = 0; i < Anzahl(Messe); ++i)
        if (Messe.Datum[i] == MesseDienerFest.Datum[k] &&
            Messe.Uhrzeit[i] == MesseDienerFest.Uhrzeit[k])
            plätze = std::min<int>(Messe.Dienerzahl[i], MesseDienerFestTabelle::HöchsterSlot);
    return plätze;
}

void FesteSuchen(Sammlung &sammlung, const Wörter &wörter)
{
    for (int k = 0; k < Anzahl(MesseDienerFest); ++k) {
        const int plätze = Festplätze(k);
        for (int n = 1; n <= plätze; ++n) {
            const Text &vor = MesseDienerFest.Vorname[k][n];
            const Text &nach = MesseDienerFest.Nachname[k][n];
            if (IstGesucht(vor, nach, wörter))
                sammlung.Aufnehmen(
                    {Fundort::FesterEintrag, k, n,
                     Terminzeile(MesseDienerFest.Datum[k], MesseDienerFest.Uhrzeit[k]) +
                         Text(Dazwischen) + Personenzeile(vor, nach)});
        }
    }
}

} // namespace

std::vector<Treffergruppe> Suchen(std::string_view getippt, const std::set<Text> &ganze)
{
    const Wörter wörter = Suchwörter(getippt);
    int zeichen = 0;
    for (const Text &wort : wörter)
        zeichen += Länge(wort);
    if (zeichen < WenigsteZeichen)
        return {};
    Sammlung sammlung(ganze);
    sammlung.Beginnen("Meßdiener");
    PersonenSuchen(sammlung, Fundort::Meßdiener, Meßdiener, Meßdiener.Gruppe, wörter);
    sammlung.Beginnen("Helfer");
    PersonenSuchen(sammlung, Fundort::Helfer, Helfer, Helfer.Dienst1, wörter);
    sammlung.Beginnen("Messen");
    MessenSuchen(sammlung, wörter);
    sammlung.Beginnen("Dienste in Messen");
    PlätzeSuchen(sammlung, wörter);
    sammlung.Beginnen("Feste Zuordnungen");
    FesteSuchen(sammlung, wörter);
    sammlung.Beginnen("Wunschpartner");
    WünscheSuchen(sammlung, wörter);
    return sammlung.Fertig();
}

} // namespace altardienst
