// One person in the plan.
#include "overview/Personenblick.h"

#include "core/Umwandlung.h"

#include <algorithm>
#include <tuple>

namespace altardienst {
namespace {

std::vector<Personendienst> Finden(const Plantabellen &t, const Text &vorname, const Text &nachname)
{
    std::vector<Personendienst> dienste;
    const auto prüfen = [&](Planplatz platz) {
        const Platzname name = NameAm(t.Messen, platz);
        if (IstGewünscht(t.Messen, platz) && name.Nachname == nachname && name.Vorname == vorname)
            dienste.push_back({platz, t.Messen.Datum[platz.Messe], DienstAm(t.Messen, platz), {}});
    };
    for (int messe = 0; messe < t.Messenzahl(); ++messe) {
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
            prüfen(Dienerplatznr(messe, slot));
        for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
            prüfen(Helferplatznr(messe, nr));
    }
    std::stable_sort(dienste.begin(), dienste.end(), [&](const auto &a, const auto &b) {
        return std::tie(a.Tag, t.Messen.Uhrzeit[a.Wo.Messe]) <
               std::tie(b.Tag, t.Messen.Uhrzeit[b.Wo.Messe]);
    });
    return dienste;
}

void PausenRechnen(std::vector<Personendienst> &dienste)
{
    for (std::size_t i = 1; i < dienste.size(); ++i)
        dienste[i].Pause = static_cast<int>(dienste[i].Tag - dienste[i - 1].Tag);
}

std::vector<Dienstmenge> Mengen(const std::vector<Personendienst> &dienste)
{
    std::vector<Dienstmenge> mengen;
    const auto zählen = [&](std::string_view dienst) {
        const auto zahl = std::ranges::count(dienste, dienst, &Personendienst::Dienst);
        if (zahl > 0)
            mengen.push_back({Text(dienst), static_cast<int>(zahl)});
    };
    for (const Dienstart &art : Dienstarten)
        zählen(art.Name);
    for (const Helferart &art : Helferarten)
        zählen(art.Name);
    return mengen;
}

Text Pausensatz(const std::vector<Personendienst> &dienste)
{
    const auto [kürzeste, längste] =
        std::minmax_element(dienste.begin() + 1, dienste.end(),
                            [](const auto &a, const auto &b) { return a.Pause < b.Pause; });
    const auto tage = [](int zahl) { return ZahlText(zahl) + (zahl == 1 ? " Tag" : " Tage"); };
    if (*kürzeste->Pause == *längste->Pause)
        return "Abstand " + tage(*kürzeste->Pause);
    return "Abstände " + ZahlText(*kürzeste->Pause) + " bis " + tage(*längste->Pause);
}

/// "Anna Adler: 5 Dienste (3 Leuchter, 2 Allgemein), 28.11. bis 23.12., Abstände 3 bis 8 Tage".
Text Zusammenfassen(const Personenblick &blick)
{
    if (blick.Dienste.empty())
        return blick.Name + ": kein Dienst in diesem Plan";
    Text zeile = blick.Name + ": " + ZahlText(static_cast<int>(blick.Dienste.size())) +
                 (blick.Dienste.size() == 1 ? " Dienst (" : " Dienste (");
    for (const Dienstmenge &menge : blick.NachArt)
        zeile += (&menge == &blick.NachArt.front() ? "" : ", ") + ZahlText(menge.Zahl) + " " +
                 menge.Dienst;
    zeile += "), " + TagImSatz(blick.Dienste.front().Tag);
    if (blick.Dienste.size() > 1)
        zeile += " bis " + TagImSatz(blick.Dienste.back().Tag) + ", " + Pausensatz(blick.Dienste);
    return zeile;
}

} // namespace

Personenblick PersonImPlan(const Plantabellen &tabellen, const Text &vorname, const Text &nachname)
{
    Personenblick blick{.Name = VollerName(vorname, nachname),
                        .Dienste = Finden(tabellen, vorname, nachname),
                        .NachArt = {},
                        .Zusammenfassung = {}};
    PausenRechnen(blick.Dienste);
    blick.NachArt = Mengen(blick.Dienste);
    blick.Zusammenfassung = Zusammenfassen(blick);
    return blick;
}

} // namespace altardienst
