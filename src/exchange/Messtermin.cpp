// When a mass is.
#include "exchange/Messtermin.h"

#include "assignment/Gründe.h"
#include "core/Umwandlung.h"
#include "exchange/Planauszug.h"
#include "overview/Platz.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <tuple>

namespace altardienst {

Messtermin TerminDer(const MesseTabelle &messen, int messe)
{
    if (!HatTermin(messen, messe))
        return {"?", "?", ""};
    const Datum tag = messen.Datum[messe];
    const bool woche = IstWochendienst(messen, messe);
    const Text davor = (woche ? "ab " : "") + Links(WochentagName(tag), 2) + " ";
    return {davor + TagImSatz(tag), davor + KurzesDatum(tag),
            woche ? Text() : StundenUndMinuten(messen.Uhrzeit[messe])};
}

Text MesseMitJahr(const MesseTabelle &messen, int messe)
{
    const Messtermin termin = TerminDer(messen, messe);
    const Text &art = messen.Messeart[messe];
    return termin.Datum + (termin.Uhrzeit.empty() ? "" : ", " + termin.Uhrzeit + " Uhr") +
           (art.empty() ? "" : ", " + art);
}

std::vector<int> MessenNachZeit(const MesseTabelle &messen, int anzahl)
{
    std::vector<int> folge(static_cast<std::size_t>(anzahl));
    std::iota(folge.begin(), folge.end(), 0);
    const auto zeit = [&messen](int i) {
        return HatTermin(messen, i) ? std::tuple(0, messen.Datum[i], messen.Uhrzeit[i])
                                    : std::tuple(1, Datum(0), Datum(0));
    };
    std::stable_sort(folge.begin(), folge.end(),
                     [&zeit](int a, int b) { return zeit(a) < zeit(b); });
    return folge;
}

Text ZeitraumDer(const MesseTabelle &messen, const std::vector<int> &nachZeit)
{
    const auto ende = std::find_if(nachZeit.begin(), nachZeit.end(),
                                   [&messen](int i) { return !HatTermin(messen, i); });
    if (ende == nachZeit.begin())
        return "";
    const Text von = KurzesDatum(messen.Datum[nachZeit.front()]);
    const Text bis = KurzesDatum(messen.Datum[*std::prev(ende)]);
    return von == bis ? von : von + " bis " + bis;
}

} // namespace altardienst
