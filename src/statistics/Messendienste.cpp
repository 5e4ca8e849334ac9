// How many services the masses of the plan call for, and which the helpers offer.
#include "statistics/Messendienste.h"

#include "core/tables.h"
#include "statistics/Teilen.h"

#include <numeric>

namespace altardienst {
namespace {

/// Sums of one column each over the masses of the plan.
template <std::size_t n>
std::array<int, n> Summen(const std::array<MesseTabelle::Spalte<Int16> *, n> &spalten)
{
    std::array<int, n> summen{};
    for (int i = 0; i < Messe.Anzahl; ++i)
        for (std::size_t k = 0; k < n; ++k)
            summen[k] += (*spalten[k])[i];
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
    d.Gesamt = Summen<6>({&Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau, &Messe.Weihrauch,
                          &Messe.Kreuzträger, &Messe.Allgemein});
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
    d.Gesamt =
        Summen<4>({&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl});
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
    constexpr std::array<const char *, 4> Dienste = {"Lektor", "Kommunionhelfer", "Kantor",
                                                     "Kollektant"};
    Helferangebot a;
    for (int i = 0; i <= Helfer.Anzahl; ++i)
        for (std::size_t k = 0; k < Dienste.size(); ++k)
            a.Anzahl[k] += (Helfer.Dienst1[i] == Dienste[k]) + (Helfer.Dienst2[i] == Dienste[k]);
    a.Insgesamt = Summe(a.Anzahl);
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        a.Anteil[k] = Je(a.Anzahl[k], a.Insgesamt);
    a.AnteilInsgesamt = Je(a.Insgesamt, a.Insgesamt);
    return a;
}

} // namespace altardienst
