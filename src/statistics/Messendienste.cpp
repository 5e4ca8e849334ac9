// How many services the masses of the plan call for, and which ones the helpers offer.
#include "statistics/Messendienste.h"

#include "statistics/Teilen.h"

#include <numeric>

namespace altardienst {
namespace {

/// Sums of one count each over the masses of the plan.
template <class Art, std::size_t n> std::array<int, n> Summen(const std::array<Art, n> &arten)
{
    std::array<int, n> summen{};
    for (int i = 0; i < Messe.Anzahl; ++i)
        for (std::size_t k = 0; k < n; ++k)
            summen[k] += arten[k].Zahl.In(Messe)[i];
    return summen;
}

template <std::size_t n> int Summe(const std::array<int, n> &zahlen)
{
    return std::accumulate(zahlen.begin(), zahlen.end(), 0);
}

double Je(int summe, int anzahl)
{
    return summe > 0 ? Geteilt(summe, anzahl) : 0;
}

} // namespace

Messendienste MessendiensteAuswerten()
{
    Messendienste d;
    d.Gesamt = Summen(Dienstarten);
    d.Dienste = Summe(d.Gesamt);
    for (std::size_t k = 0; k < d.Gesamt.size(); ++k)
        d.JeMesse[k] = Je(d.Gesamt[k], Messe.Anzahl);
    d.DiensteJeMesse = Je(d.Dienste, Messe.Anzahl);
    d.DiensteJeMeßdiener = Je(d.Dienste, Meßdiener.Anzahl);
    return d;
}

Helferdienste HelferdiensteAuswerten()
{
    Helferdienste d;
    d.Gesamt = Summen(Helferarten);
    d.Dienste = Summe(d.Gesamt);
    if (d.Dienste > 0)
        for (std::size_t k = 0; k < d.Gesamt.size(); ++k)
            d.Anteil[k] = Geteilt(d.Gesamt[k], d.Dienste);
    d.DiensteJeMesse = Je(d.Dienste, Messe.Anzahl);
    d.DiensteJeHelfer = Je(d.Dienste, Helfer.Anzahl);
    return d;
}

Helferangebot HelferangebotAuswerten()
{
    Helferangebot a;
    for (int i = 0; i <= Helfer.Anzahl; ++i)
        for (std::size_t k = 0; k < Helferarten.size(); ++k)
            a.Anzahl[k] += (Helfer.Dienst1[i] == Helferarten[k].Name) +
                           (Helfer.Dienst2[i] == Helferarten[k].Name);
    a.Insgesamt = Summe(a.Anzahl);
    for (std::size_t k = 0; k < Helferarten.size(); ++k)
        a.Anteil[k] = Je(a.Anzahl[k], a.Insgesamt);
    a.AnteilInsgesamt = Je(a.Insgesamt, a.Insgesamt);
    return a;
}

} // namespace altardienst
