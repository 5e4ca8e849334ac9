// What the wall sheet shows.
#include "exchange/Aushangtafel.h"

#include "exchange/Messtermin.h"
#include "overview/Planwoche.h"
#include "overview/Platz.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace altardienst {
namespace {

constexpr std::size_t AlleArten = Dienstarten.size() + Helferarten.size();

constexpr std::array<Festtext, Helferarten.size()> KurzeHelferköpfe = {"Lektor", "Kommunion",
                                                                       "Kantor", "Kollekte"};

/// The number of a place's service: those of servers first.
std::size_t Art(const MesseTabelle &messen, Planplatz platz)
{
    const Text dienst = DienstAm(messen, platz);
    const auto stelle = [&](const auto &arten) {
        std::size_t art = 0;
        while (art + 1 < arten.size() && arten[art].Name != dienst)
            ++art;
        return art;
    };
    if (platz.Was == Planplatz::Art::Diener)
        return stelle(Dienstarten);
    return Dienstarten.size() + stelle(Helferarten);
}

Aushangspalte SpalteDer(std::size_t art)
{
    if (art < Dienstarten.size())
        return {Text(Dienstarten[art].Name), Text(Dienstarten[art].Kurz)};
    art -= Dienstarten.size();
    return {Text(Helferarten[art].Aufschrift), Text(KurzeHelferköpfe[art])};
}

Aushangreihe Reihe(const Plantabellen &tabellen, int messe, const Namengeber &namen)
{
    const MesseTabelle &messen = tabellen.Messen;
    const Messtermin termin = TerminDer(messen, messe);
    Aushangreihe reihe{termin.Tag, termin.Uhrzeit, messen.Messeart[messe],
                       Planwoche(tabellen.Einstellungen, messen.Datum[messe]),
                       std::vector<std::vector<Text>>(AlleArten)};
    const auto aufnehmen = [&](Planplatz platz) {
        if (!IstGewünscht(messen, platz))
            return;
        const auto &[vorname, nachname] = NameAm(messen, platz);
        reihe.Namen[Art(messen, platz)].push_back(namen.Von(vorname, nachname));
    };
    for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
        aufnehmen(Dienerplatznr(messe, slot));
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
        aufnehmen(Helferplatznr(messe, nr));
    return reihe;
}

/// How many places each column has in its masses.
void Zählen(Aushangtafel &tafel)
{
    for (std::size_t k = 0; k < tafel.Spalten.size(); ++k) {
        std::vector<int> mengen;
        mengen.reserve(tafel.Reihen.size());
        for (const Aushangreihe &reihe : tafel.Reihen)
            mengen.push_back(static_cast<int>(reihe.Namen[k].size()));
        if (mengen.empty())
            continue;
        std::ranges::sort(mengen);
        tafel.Spalten[k].Meiste = mengen.back();
        tafel.Spalten[k].Übliche = mengen[(mengen.size() - 1) * 4 / 5];
    }
}

void SpaltenEntfernen(Aushangtafel &tafel, const std::function<bool(std::size_t)> &welche)
{
    for (std::size_t k = tafel.Spalten.size(); k-- > 0;) {
        if (!welche(k))
            continue;
        tafel.Spalten.erase(tafel.Spalten.begin() + static_cast<std::ptrdiff_t>(k));
        for (Aushangreihe &reihe : tafel.Reihen)
            reihe.Namen.erase(reihe.Namen.begin() + static_cast<std::ptrdiff_t>(k));
    }
}

} // namespace

Aushangtafel AushangtafelVon(const Plantabellen &tabellen, Namenform form)
{
    const Namengeber namen(form, tabellen);
    const std::vector<int> folge = MessenNachZeit(tabellen.Messen, tabellen.Messenzahl());
    Aushangtafel tafel;
    const Text &gemeinde = tabellen.Einstellungen.Gemeinde;
    tafel.Titel = "Altardienst" + (gemeinde.empty() ? "" : " der Pfarrei " + gemeinde);
    tafel.Zeitraum = ZeitraumDer(tabellen.Messen, folge);
    tafel.Spalten.reserve(AlleArten);
    for (std::size_t art = 0; art < AlleArten; ++art)
        tafel.Spalten.push_back(SpalteDer(art));
    tafel.Reihen.reserve(folge.size());
    for (const int messe : folge)
        tafel.Reihen.push_back(Reihe(tabellen, messe, namen));
    Zählen(tafel);
    SpaltenEntfernen(tafel, [&](std::size_t k) { return tafel.Spalten[k].Meiste == 0; });
    return tafel;
}

std::optional<Aushangtafel> Zusammengelegt(const Aushangtafel &tafel)
{
    constexpr std::size_t Anteil = 3; // of all masses
    std::vector<bool> selten(tafel.Spalten.size());
    for (std::size_t k = 0; k < selten.size(); ++k) {
        const auto messen = std::ranges::count_if(
            tafel.Reihen, [&](const Aushangreihe &reihe) { return !reihe.Namen[k].empty(); });
        selten[k] = static_cast<std::size_t>(messen) * Anteil < tafel.Reihen.size();
    }
    if (std::ranges::count(selten, true) < 2)
        return std::nullopt;
    Aushangtafel neue = tafel;
    for (Aushangreihe &reihe : neue.Reihen) {
        std::vector<Text> namen;
        for (std::size_t k = 0; k < selten.size(); ++k)
            for (const Text &name : reihe.Namen[k])
                if (selten[k])
                    namen.push_back((name.empty() ? "_______" : name) + " (" +
                                    neue.Spalten[k].Kurzkopf + ")");
        reihe.Namen.push_back(std::move(namen));
    }
    neue.Spalten.push_back({"weitere Dienste", "weitere"});
    selten.push_back(false);
    SpaltenEntfernen(neue, [&](std::size_t k) { return selten[k]; });
    Zählen(neue);
    return neue;
}

} // namespace altardienst
