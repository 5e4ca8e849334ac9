// The people that something is made for.
#include "exchange/Empfänger.h"

#include "core/Gruppen.h"

#include <algorithm>
#include <map>
#include <utility>

namespace altardienst {
namespace {

class Liste {
  public:
    template <class Tabelle> void Aufnehmen(const Tabelle &tabelle, int j)
    {
        const Text &vorname = tabelle.Vorname[j];
        const Text &nachname = tabelle.Nachname[j];
        if (vorname.empty() && nachname.empty())
            return;
        const auto [ort, neu] = nummern.try_emplace({vorname, nachname}, Alle.size());
        if (neu)
            Alle.push_back({vorname, nachname, {}});
        if constexpr (requires { tabelle.Gruppe[j]; })
            if (!tabelle.Gruppe[j].empty())
                Alle[ort->second].Gruppen.push_back(tabelle.Gruppe[j]);
    }

    std::vector<Empfänger> Alle;

  private:
    std::map<std::pair<Text, Text>, std::size_t> nummern;
};

/// A file may claim more records than there can be.
template <class Tabelle> int Anzahl(const Tabelle &tabelle)
{
    return std::min<int>(tabelle.Anzahl, Tabelle::HöchsterIndex + 1);
}

} // namespace

bool Empfänger::Hat(const Auszugsdienst &dienst) const
{
    return dienst.Hat(Vorname, Nachname) ||
           (*dienst.Vorname == "Gruppe" &&
            std::ranges::find(Gruppen, *dienst.Nachname) != Gruppen.end());
}

std::vector<Empfänger> EmpfängerAus(const Plantabellen &tabellen, const Personenkreis &kreis)
{
    Liste liste;
    if (kreis.Diener)
        for (int j = 0; j < Anzahl(tabellen.Diener); ++j)
            if (kreis.Gruppe.empty() || IstInGruppe(tabellen.Diener, j, kreis.Gruppe))
                liste.Aufnehmen(tabellen.Diener, j);
    if (kreis.Helfer)
        for (int j = 0; j < Anzahl(tabellen.Helferinnen); ++j)
            liste.Aufnehmen(tabellen.Helferinnen, j);
    return std::move(liste.Alle);
}

} // namespace altardienst
