// A plan while it is being balanced. A move costs no more than looking again at the masses and
// persons that it touches.
#include "fairness/Besetzung.h"

#include <algorithm>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

} // namespace

bool Besetzung::Zug::Dazu(int platz, int person)
{
    for (std::size_t k = 0; k < Anzahl; ++k)
        if (Setzungen[k].Platz == platz)
            return false;
    if (Anzahl == Meiste)
        return false;
    Setzungen[Anzahl++] = {platz, person};
    return true;
}

Besetzung::Besetzung(const Besetzungsaufgabe &aufgabe)
    : aufgabe(aufgabe), dienste(aufgabe.Personen.size()), terminkosten(aufgabe.Termine.size()),
      personenkosten(aufgabe.Personen.size())
{
    wer.reserve(aufgabe.Plätze.size());
    termine.reserve(aufgabe.Plätze.size());
    tage.reserve(aufgabe.Plätze.size());
    for (const Aufgabe::Platz &platz : aufgabe.Plätze) {
        wer.push_back(platz.Anfangs);
        termine.push_back(platz.Termin);
        tage.push_back(aufgabe.Termine[Nr(platz.Termin)].Tag);
    }
    Stellen(wer);
}

void Besetzung::Stellen(const std::vector<int> &neue)
{
    wer = neue;
    for (auto &plätze : dienste)
        plätze.clear();
    for (std::size_t p = 0; p < wer.size(); ++p)
        if (wer[p] >= 0)
            dienste[Nr(wer[p])].push_back(static_cast<int>(p));
    gesamt = {};
    for (std::size_t t = 0; t < terminkosten.size(); ++t)
        gesamt += terminkosten[t] = TerminRechnen(static_cast<int>(t));
    for (std::size_t j = 0; j < personenkosten.size(); ++j)
        gesamt += personenkosten[j] = PersonRechnen(static_cast<int>(j));
}

void Besetzung::Umsetzen(int platz, int person)
{
    int &wer_ = wer[Nr(platz)];
    if (wer_ >= 0) {
        auto &plätze = dienste[Nr(wer_)];
        plätze.erase(std::ranges::lower_bound(plätze, platz));
    }
    wer_ = person;
    if (person >= 0) {
        auto &plätze = dienste[Nr(person)];
        plätze.insert(std::ranges::lower_bound(plätze, platz), platz);
    }
}

/// Notes the masses and persons that a move touches, with their costs.
void Besetzung::Betroffen(const Zug &zug)
{
    alteTerminzahl = altePersonenzahl = 0;
    const auto vormerken = [](auto &liste, std::size_t &zahl, int nr, const auto &kosten) {
        for (std::size_t k = 0; k < zahl; ++k)
            if (liste[k].Nr == nr)
                return;
        liste[zahl++] = {nr, kosten[Nr(nr)]};
    };
    for (std::size_t k = 0; k < zug.Anzahl; ++k) {
        const auto &[platz, person] = zug.Setzungen[k];
        vormerken(alteTermine, alteTerminzahl, termine[Nr(platz)], terminkosten);
        for (const int wen : {Wer(platz), person})
            if (wen >= 0)
                vormerken(altePersonen, altePersonenzahl, wen, personenkosten);
    }
}

/// The energy of a breach that a person is sure to have then: two places of one mass, or a server's
/// services on days next to each other.
double Besetzung::VerstoßMindestens(const Zug &zug, int platz, int person, double strenge) const
{
    const auto einer = [&](int schwere) { return strenge * (1 + 0.01 * schwere); };
    if (!aufgabe.Kann(platz, person))
        return einer(Plankosten::Schwerer);
    for (const int anderer : Dienste(person)) {
        const bool gesperrt =
            anderer < platz ? IstGesperrtNach(anderer, platz) : IstGesperrtNach(platz, anderer);
        if (termine[Nr(anderer)] != termine[Nr(platz)] && !(gesperrt && aufgabe.FürDiener()))
            continue;
        const bool bleibt = std::none_of(
            zug.Setzungen.begin(), zug.Setzungen.begin() + static_cast<std::ptrdiff_t>(zug.Anzahl),
            [&](const Zug::Setzung &setzung) { return setzung.Platz == anderer; });
        if (bleibt)
            return einer(Plankosten::Leichter);
    }
    return 0;
}

/// Nothing that is touched could become better than to cost nothing. What a service more or less
/// adds to the unevenness is exact.
double Besetzung::MehrMindestens(const Zug &zug, double strenge) const
{
    struct Wen {
        int Person;
        int Mehr;
    };
    std::array<Wen, 2 * Zug::Meiste> personen;
    std::size_t personenzahl = 0;
    const auto zählen = [&](int person, int mehr) {
        for (std::size_t k = 0; k < personenzahl; ++k)
            if (personen.at(k).Person == person) {
                personen.at(k).Mehr += mehr;
                return;
            }
        personen.at(personenzahl++) = {person, mehr};
    };
    double summe = 0;
    double verstoß = 0;
    for (std::size_t k = 0; k < zug.Anzahl; ++k) {
        const auto &[platz, person] = zug.Setzungen.at(k);
        const int termin = termine[Nr(platz)];
        bool neu = true;
        for (std::size_t vor = 0; vor < k; ++vor)
            neu = neu && termine[Nr(zug.Setzungen.at(vor).Platz)] != termin;
        if (neu)
            summe -= Energie(terminkosten[Nr(termin)], strenge);
        if (Wer(platz) >= 0)
            zählen(Wer(platz), -1);
        if (person < 0)
            continue;
        zählen(person, 1);
        if (verstoß == 0) // of several only one, since two could be the same
            verstoß = VerstoßMindestens(zug, platz, person, strenge);
    }
    for (std::size_t k = 0; k < personenzahl; ++k) {
        const auto &[person, mehr] = personen.at(k);
        const std::int64_t vorher = Über(person);
        const std::int64_t nachher = vorher + mehr * std::int64_t{1000};
        summe += 1e-6 * static_cast<double>(nachher * nachher) -
                 Energie(personenkosten[Nr(person)], strenge);
    }
    return summe + verstoß;
}

Plankosten Besetzung::Ziehen(const Zug &zug)
{
    altesGesamt = gesamt;
    Betroffen(zug);
    vorher.Anzahl = zug.Anzahl;
    for (std::size_t k = 0; k < zug.Anzahl; ++k)
        vorher.Setzungen[k] = {zug.Setzungen[k].Platz, Wer(zug.Setzungen[k].Platz)};
    for (std::size_t k = 0; k < zug.Anzahl; ++k)
        Umsetzen(zug.Setzungen[k].Platz, zug.Setzungen[k].Person);
    for (std::size_t k = 0; k < alteTerminzahl; ++k) {
        const int t = alteTermine[k].Nr;
        gesamt -= alteTermine[k].Kosten;
        gesamt += terminkosten[Nr(t)] = TerminRechnen(t);
    }
    for (std::size_t k = 0; k < altePersonenzahl; ++k) {
        const int j = altePersonen[k].Nr;
        gesamt -= altePersonen[k].Kosten;
        gesamt += personenkosten[Nr(j)] = PersonRechnen(j);
    }
    return altesGesamt;
}

void Besetzung::Zurück()
{
    for (std::size_t k = 0; k < vorher.Anzahl; ++k)
        Umsetzen(vorher.Setzungen[k].Platz, vorher.Setzungen[k].Person);
    for (std::size_t k = 0; k < alteTerminzahl; ++k)
        terminkosten[Nr(alteTermine[k].Nr)] = alteTermine[k].Kosten;
    for (std::size_t k = 0; k < altePersonenzahl; ++k)
        personenkosten[Nr(altePersonen[k].Nr)] = altePersonen[k].Kosten;
    gesamt = altesGesamt;
}

} // namespace altardienst
