// When a mass is.
#include "exchange/Messtermin.h"

#include "core/Umwandlung.h"
#include "overview/Platz.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace altardienst {
namespace {

constexpr const char *GanzeWoche = "Wochendienst"; // its date is the first day, its time nothing

Text DatumOderFragezeichen(Datum tag)
{
    try {
        return KurzesDatum(tag);
    } catch (const Laufzeitfehler &) {
        return "?";
    }
}

} // namespace

Messtermin TerminDer(const MesseTabelle &messen, int messe)
{
    const Datum tag = messen.Datum[messe];
    const bool woche = messen.Messeart[messe] == GanzeWoche;
    const Text datum = DatumOderFragezeichen(tag);
    Text davor = woche ? "ab " : "";
    if (datum != "?")
        davor += Links(WochentagName(tag), 2) + " ";
    return {davor + TagImSatz(tag), davor + datum,
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
    std::stable_sort(folge.begin(), folge.end(), [&](int a, int b) {
        return std::tie(messen.Datum[a], messen.Uhrzeit[a]) <
               std::tie(messen.Datum[b], messen.Uhrzeit[b]);
    });
    return folge;
}

Text ZeitraumDer(const MesseTabelle &messen, const std::vector<int> &nachZeit)
{
    if (nachZeit.empty())
        return "";
    const Text von = DatumOderFragezeichen(messen.Datum[nachZeit.front()]);
    const Text bis = DatumOderFragezeichen(messen.Datum[nachZeit.back()]);
    return von == bis ? von : von + " bis " + bis;
}

} // namespace altardienst
