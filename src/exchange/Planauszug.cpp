// The plan as the outputs give it away.
#include "exchange/Planauszug.h"

#include "assignment/Dienste.h"
#include "overview/Platz.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace altardienst {
namespace {

std::vector<Auszugsdienst> DiensteDer(const MesseTabelle &messen, int messe)
{
    std::vector<Auszugsdienst> dienste;
    const auto aufnehmen = [&](Planplatz platz, std::string_view dienst) {
        const Platzname name = NameAm(messen, platz);
        if (!name.IstFrei())
            dienste.push_back(
                {dienst, &name.Vorname, &name.Nachname, platz.Was == Planplatz::Art::Helfer});
    };
    const Slotdienste arten = DiensteNachZahl(messen, messe);
    const int plätze = Dienerplätze(messen, messe);
    dienste.reserve(static_cast<std::size_t>(plätze) + Helferplätze.size());
    for (int slot = 1; slot <= plätze; ++slot)
        aufnehmen(Dienerplatznr(messe, slot), arten.at(static_cast<std::size_t>(slot - 1))->Name);
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
        if (const Helferplatz &platz = Helferplätze.at(static_cast<std::size_t>(nr));
            platz.Nötig(messen, messe))
            aufnehmen(Helferplatznr(messe, nr), platz.Art.Name);
    return dienste;
}

} // namespace

bool HatTermin(const MesseTabelle &messen, int messe)
{
    const Datum tag = messen.Datum[messe];
    const Datum uhrzeit = messen.Uhrzeit[messe];
    return tag > 0 && tag < DatumAus({9999, 12, 31}) && tag == std::floor(tag) && uhrzeit >= 0 &&
           uhrzeit < 1;
}

std::vector<Auszugsmesse> PlanAusziehen(const Plantabellen &tabellen)
{
    const MesseTabelle &messen = tabellen.Messen;
    std::vector<Auszugsmesse> auszug;
    std::map<std::tuple<Datum, Datum, std::string_view>, int> gleiche;
    auszug.reserve(static_cast<std::size_t>(tabellen.Messenzahl()));
    for (int i = 0; i < tabellen.Messenzahl(); ++i) {
        const bool hatTermin = HatTermin(messen, i);
        const int davor =
            hatTermin ? gleiche[{messen.Datum[i], messen.Uhrzeit[i], messen.Messeart[i]}]++ : 0;
        auszug.push_back({i, davor, hatTermin, DiensteDer(messen, i)});
    }
    std::ranges::stable_sort(auszug, {}, [&](const Auszugsmesse &eine) {
        return eine.HatTermin ? std::tuple(0, messen.Datum[eine.Messe], messen.Uhrzeit[eine.Messe])
                              : std::tuple(1, Datum(0), Datum(0));
    });
    return auszug;
}

Text Messentitel(const KonfigDatensatz &einstellungen)
{
    return einstellungen.Gemeinde.empty() ? Text("Messen")
                                          : "Messen der Pfarrei " + einstellungen.Gemeinde;
}

} // namespace altardienst
