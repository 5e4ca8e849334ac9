// Why a rule is still broken, and what would help.
#include "fairness/Engpass.h"

#include "core/Umwandlung.h"

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

/// What is against somebody: the gravest thing, of which no other place can relieve him.
enum class Hindernis { Keins, Dienst, Abwesend, Wunsch, Termin, Nachbar };
constexpr std::size_t Hindernisse = 6;

Hindernis HindernisAus(Regel regel)
{
    switch (regel) {
    case Regel::Qualifikation:
    case Regel::Helferdienst:
        return Hindernis::Dienst;
    case Regel::Abwesend:
        return Hindernis::Abwesend;
    case Regel::Wochendienst:
    case Regel::Wochentag:
        return Hindernis::Wunsch;
    case Regel::Doppelt:
    case Regel::SelberTag:
    case Regel::Nachbartag:
        return Hindernis::Termin;
    default:
        return Hindernis::Nachbar;
    }
}

/// The first of the list above that stands against a person.
Hindernis HindernisFür(const std::vector<Befund> &gründe)
{
    Hindernis erstes = Hindernis::Keins;
    for (const Befund &grund : gründe)
        if (grund.Grad == Stufe::Verstoß) {
            const Hindernis dieses = HindernisAus(grund.Gegen);
            if (erstes == Hindernis::Keins || dieses < erstes)
                erstes = dieses;
        }
    return erstes;
}

int Personenzahl(const Plantabellen &tabellen, Planplatz::Art art)
{
    return art == Planplatz::Art::Diener
               ? std::clamp<int>(tabellen.Diener.Anzahl, 0, MeßdienerTabelle::HöchsterIndex + 1)
               : std::clamp<int>(tabellen.Helferinnen.Anzahl, 0, HelferTabelle::HöchsterIndex + 1);
}

bool HatNamen(const Plantabellen &tabellen, Planplatz::Art art, int nr)
{
    return art == Planplatz::Art::Diener
               ? !tabellen.Diener.Vorname[nr].empty() && !tabellen.Diener.Nachname[nr].empty()
               : !tabellen.Helferinnen.Vorname[nr].empty() &&
                     !tabellen.Helferinnen.Nachname[nr].empty();
}

using Zählung = std::array<int, Hindernisse>;

Zählung AlleVersuchen(const Planprüfung &prüfung, Planplatz platz)
{
    Zählung zählung{};
    const Plantabellen &tabellen = prüfung.Tabellen();
    for (int nr = 0; nr < Personenzahl(tabellen, platz.Was); ++nr)
        if (HatNamen(tabellen, platz.Was, nr))
            ++zählung.at(static_cast<std::size_t>(HindernisFür(prüfung.GegenPerson(platz, nr))));
    return zählung;
}

Text WarumNiemand(const Zählung &zählung, const Text &dienst)
{
    const std::array<Text, Hindernisse> worte = {"",
                                                 "nicht für " + dienst,
                                                 "nicht dienstbereit",
                                                 "mit anderem Wunsch",
                                                 "schon am selben oder am Nachbartag",
                                                 "nicht zum Nebenmann passend"};
    Text satz;
    for (std::size_t k = 1; k < Hindernisse; ++k)
        if (zählung.at(k) > 0)
            satz += (satz.empty() ? "Niemand paßt: " : ", ") + ZahlText(zählung.at(k)) + " " +
                    worte.at(k);
    return satz.empty() ? "Es gibt niemanden." : satz + ".";
}

} // namespace

Engpass EngpassErklären(const Planprüfung &prüfung, const Befund &befund, bool bleibt)
{
    const Plantabellen &tabellen = prüfung.Tabellen();
    Engpass engpass{befund, Satz(tabellen, befund), bleibt, "", ""};
    if (bleibt)
        return engpass;
    const Zählung zählung = AlleVersuchen(prüfung, befund.Wo);
    if (zählung.at(static_cast<std::size_t>(Hindernis::Keins)) > 0)
        return engpass;
    const Text dienst = DienstAm(tabellen.Messen, befund.Wo);
    engpass.Warum = WarumNiemand(zählung, dienst);
    const Text fehlt = dienst == Allgemein.Name ? Text("Meßdiener") : dienst;
    engpass.Abhilfe = "Es hülfe: einmal mehr " + fehlt + " am " +
                      TagImSatz(tabellen.Messen.Datum[befund.Wo.Messe]);
    return engpass;
}

} // namespace altardienst
