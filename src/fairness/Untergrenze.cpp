// What no plan can be better than.
#include "fairness/Besetzungssuche.h"

#include <queue>
#include <tuple>

namespace altardienst {

Plankosten Untergrenze(const Besetzungsaufgabe &aufgabe)
{
    Plankosten grenze;
    int zuVerteilen = 0;
    std::vector<int> dienste(aufgabe.Personen.size());
    std::vector<int> höchstens(aufgabe.Personen.size());
    for (std::size_t p = 0; p < aufgabe.Plätze.size(); ++p) {
        const auto &platz = aufgabe.Plätze[p];
        const bool besetzbar = !aufgabe.KreisVon(static_cast<int>(p)).Personen.empty();
        if (platz.Frei && besetzbar) {
            ++zuVerteilen;
            continue;
        }
        // Who stands there stays.
        if (platz.Anfangs >= 0)
            ++dienste[static_cast<std::size_t>(platz.Anfangs)];
        if (platz.Frei || (platz.Anfangs >= 0 && !aufgabe.Kann(static_cast<int>(p), platz.Anfangs)))
            ++grenze.Verstöße;
    }
    // Ignoring everything else, each further service goes to whom it brings nearest to his share.
    const auto weiter = [&](std::size_t j) {
        const std::int64_t über = dienste[j] * 1000LL - aufgabe.Personen[j].Soll;
        return (über + 1000) * (über + 1000) - über * über;
    };
    std::priority_queue<std::pair<std::int64_t, std::size_t>,
                        std::vector<std::pair<std::int64_t, std::size_t>>, std::greater<>>
        nächste;
    for (std::size_t j = 0; j < dienste.size(); ++j) {
        höchstens[j] = aufgabe.Personen[j].Höchstens;
        if (höchstens[j] > 0)
            nächste.emplace(weiter(j), j);
    }
    for (; zuVerteilen > 0 && !nächste.empty(); --zuVerteilen) {
        const std::size_t j = nächste.top().second;
        nächste.pop();
        ++dienste[j];
        if (--höchstens[j] > 0)
            nächste.emplace(weiter(j), j);
    }
    for (std::size_t j = 0; j < dienste.size(); ++j) {
        const std::int64_t über = dienste[j] * 1000LL - aufgabe.Personen[j].Soll;
        grenze.Ungleich += über * über;
    }
    return grenze;
}

} // namespace altardienst
