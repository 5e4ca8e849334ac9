// The due shares: what each person would have if places could be divided into fractions.
#include "fairness/Besetzungsaufgabe.h"

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

/// Divides the places of each circle over its persons so that all of them reach one level, which is
/// the number of services by weight; again and again, since persons are in several circles, until
/// no level moves any more. Somebody who can't do more services than he has already counts as if a
/// further one weighed a thousand times as much.
class Teilung {
  public:
    explicit Teilung(const Besetzungsaufgabe &aufgabe)
        : aufgabe(aufgabe), summe(aufgabe.Personen.size()), plätze(aufgabe.Kreise.size()),
          pegel(aufgabe.Kreise.size()), teile(aufgabe.Kreise.size())
    {
        for (std::size_t k = 0; k < aufgabe.Kreise.size(); ++k)
            teile[k].resize(aufgabe.Kreise[k].Personen.size());
        for (const auto &platz : aufgabe.Plätze)
            if (platz.Frei || platz.Anfangs >= 0)
                ++plätze[Nr(platz.Kreis)];
    }

    void Rechnen()
    {
        constexpr int MeisteDurchgänge = 200;
        constexpr double Genau = 1e-5;
        for (int durchgang = 0; durchgang < MeisteDurchgänge; ++durchgang) {
            double bewegt = 0;
            for (std::size_t k = 0; k < teile.size(); ++k)
                if (!teile[k].empty() && plätze[k] > 0)
                    bewegt = std::max(bewegt, KreisTeilen(k));
            if (bewegt < Genau)
                return;
        }
    }

    double Summe(std::size_t person) const { return summe[person]; }

  private:
    static constexpr double Nachgiebigkeit = 1e-3; // beyond what somebody can do

    const Besetzungsaufgabe::Person &PersonAus(std::size_t kreis, std::size_t n) const
    {
        return aufgabe.Personen[Nr(aufgabe.Kreise[kreis].Personen[n])];
    }

    /// What a person has at a level, and how fast that grows with it.
    static std::pair<double, double> Bei(const Besetzungsaufgabe::Person &person, double höhe)
    {
        const double gedeckelt = person.Bisher + person.Höchstens;
        const double voll = höhe * person.Gewicht;
        if (voll <= gedeckelt)
            return {voll, person.Gewicht};
        return {gedeckelt + (voll - gedeckelt) * Nachgiebigkeit, person.Gewicht * Nachgiebigkeit};
    }

    /// Places shared out at a level beyond those that there are, and how fast they grow.
    std::pair<double, double> Überschuß(std::size_t kreis, double höhe) const
    {
        double verteilt = -plätze[kreis];
        double wachstum = 0;
        for (std::size_t n = 0; n < teile[kreis].size(); ++n) {
            const auto &person = PersonAus(kreis, n);
            const auto [hat, je] = Bei(person, höhe);
            const double andere = Andere(kreis, n);
            if (hat > andere) {
                verteilt += hat - andere;
                wachstum += je;
            }
        }
        return {verteilt, wachstum};
    }

    /// What a person has from the other circles and from before.
    double Andere(std::size_t kreis, std::size_t n) const
    {
        const auto j = Nr(aufgabe.Kreise[kreis].Personen[n]);
        return aufgabe.Personen[j].Bisher + summe[j] - teile[kreis][n];
    }

    /// Newton's steps on a rising line with kinks, kept between two levels of which one is too low
    /// and one too high.
    double PegelSuchen(std::size_t kreis) const
    {
        constexpr int MeisteSchritte = 100;
        double unten = 0;
        double oben = 1;
        while (Überschuß(kreis, oben).first < 0)
            oben *= 2;
        double höhe = std::clamp(pegel[kreis], unten, oben);
        for (int schritt = 0; schritt < MeisteSchritte; ++schritt) {
            const auto [verteilt, wachstum] = Überschuß(kreis, höhe);
            if (std::abs(verteilt) < 1e-9)
                break;
            (verteilt < 0 ? unten : oben) = höhe;
            const double nächste = wachstum > 0 ? höhe - verteilt / wachstum : unten;
            höhe = nächste > unten && nächste < oben ? nächste : (unten + oben) / 2;
        }
        return höhe;
    }

    /// Returns by how much a share has moved at most.
    double KreisTeilen(std::size_t kreis)
    {
        pegel[kreis] = PegelSuchen(kreis);
        double bewegt = 0;
        for (std::size_t n = 0; n < teile[kreis].size(); ++n) {
            const double teil =
                std::max(0.0, Bei(PersonAus(kreis, n), pegel[kreis]).first - Andere(kreis, n));
            const double um = teil - teile[kreis][n];
            bewegt = std::max(bewegt, std::abs(um));
            teile[kreis][n] = teil;
            summe[Nr(aufgabe.Kreise[kreis].Personen[n])] += um;
        }
        return bewegt;
    }

    const Besetzungsaufgabe &aufgabe;
    std::vector<double> summe;              // of the shares of a person
    std::vector<double> plätze;             // of a circle
    std::vector<double> pegel;              // level of a circle
    std::vector<std::vector<double>> teile; // of a circle, in the order of its persons
};

} // namespace

void AnteileRechnen(Besetzungsaufgabe &aufgabe)
{
    Teilung teilung(aufgabe);
    teilung.Rechnen();
    for (std::size_t j = 0; j < aufgabe.Personen.size(); ++j)
        aufgabe.Personen[j].Soll = std::llround(teilung.Summe(j) * 1000);
}

} // namespace altardienst
