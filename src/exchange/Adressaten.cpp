// Who gets a mail.
#include "exchange/Adressaten.h"

#include "core/Gruppen.h"
#include "core/Messenname.h"
#include "overview/Gruppenplatz.h"
#include "overview/Platz.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace altardienst {
namespace {

std::vector<Text> Teile(const Text &feld)
{
    constexpr std::string_view Trenner = ",; \t";
    std::vector<Text> teile;
    std::size_t anfang = feld.find_first_not_of(Trenner);
    while (anfang != Text::npos) {
        const std::size_t ende = feld.find_first_of(Trenner, anfang);
        teile.push_back(feld.substr(anfang, ende - anfang));
        anfang = feld.find_first_not_of(Trenner, ende);
    }
    return teile;
}

class Suche {
  public:
    Suche(const Plantabellen &tabellen, const Adressatenwahl &wahl) : tabellen(tabellen), wahl(wahl)
    {
    }

    Adressaten Finden()
    {
        if (wahl.Kreis == Adressatenkreis::Messe)
            AusMesse();
        else
            AusTabellen();
        return gefunden;
    }

  private:
    template <class Tabelle> static int Anzahl(const Tabelle &tabelle)
    {
        return std::clamp<int>(tabelle.Anzahl, 0, Tabelle::HöchsterIndex + 1);
    }

    void AusTabellen()
    {
        const bool gruppe = wahl.Kreis == Adressatenkreis::Gruppe;
        for (int j = 0; wahl.Diener && j < Anzahl(tabellen.Diener); ++j)
            if (!gruppe || IstInGruppe(tabellen.Diener, j, wahl.Gruppe))
                Aufnehmen(tabellen.Diener, j);
        for (int j = 0; !gruppe && wahl.Helfer && j < Anzahl(tabellen.Helferinnen); ++j)
            Aufnehmen(tabellen.Helferinnen, j);
    }

    void AusMesse()
    {
        for (int slot = 1; wahl.Diener && slot <= MesseTabelle::HöchsterSlot; ++slot)
            AmPlatz(tabellen.Diener, Dienerplatznr(wahl.Messe, slot));
        for (int nr = 0; wahl.Helfer && nr < static_cast<int>(Helferplätze.size()); ++nr)
            AmPlatz(tabellen.Helferinnen, Helferplatznr(wahl.Messe, nr));
    }

    template <class Tabelle> void AmPlatz(const Tabelle &tabelle, Planplatz platz)
    {
        if (!IstGewünscht(tabellen.Messen, platz))
            return;
        const Platzname name = NameAm(tabellen.Messen, platz);
        if (name.IstFrei())
            return;
        if (IstGruppe(tabellen.Gruppen, name)) {
            for (int j = 0; j < Anzahl(tabellen.Diener); ++j)
                if (IstInGruppe(tabellen.Diener, j, name.Nachname))
                    Aufnehmen(tabellen.Diener, j);
            return;
        }
        bool bekannt = false;
        for (int j = 0; j < Anzahl(tabelle); ++j)
            if (tabelle.Nachname[j] == name.Nachname && tabelle.Vorname[j] == name.Vorname) {
                Aufnehmen(tabelle, j);
                bekannt = true;
            }
        if (!bekannt)
            Einmal(gefunden.Ohne, Personenzeile(name.Vorname, name.Nachname));
    }

    template <class Tabelle> void Aufnehmen(const Tabelle &tabelle, int j)
    {
        if (tabelle.Vorname[j].empty() && tabelle.Nachname[j].empty())
            return;
        const Text name = Personenzeile(tabelle.Vorname[j], tabelle.Nachname[j]);
        const Text davor = name + ": ";
        const std::vector<Text> teile = Teile(tabelle.EMail[j]);
        if (teile.empty())
            Einmal(gefunden.Ohne, name);
        for (const Text &teil : teile)
            if (!IstAdresse(teil))
                Einmal(gefunden.Unlesbar, davor + teil);
            else if (bekannte.insert(Klein(teil)).second)
                gefunden.Adressen.push_back(teil);
    }

    static void Einmal(std::vector<Text> &liste, const Text &zeile)
    {
        if (std::ranges::find(liste, zeile) == liste.end())
            liste.push_back(zeile);
    }

    const Plantabellen &tabellen;
    const Adressatenwahl &wahl;
    Adressaten gefunden;
    std::set<Text> bekannte; // in small letters
};

} // namespace

Adressaten AdressatenSuchen(const Plantabellen &tabellen, const Adressatenwahl &wahl)
{
    return Suche(tabellen, wahl).Finden();
}

bool IstAdresse(const Text &text)
{
    const std::size_t at = text.find('@');
    if (at == Text::npos || at == 0 || text.find('@', at + 1) != Text::npos)
        return false;
    if (text.find_first_of(" \t()<>[]:;,\\\"") != Text::npos)
        return false;
    const auto istGegliedert = [](std::string_view teil) {
        return !teil.empty() && teil.front() != '.' && teil.back() != '.' &&
               teil.find("..") == std::string_view::npos;
    };
    const std::string_view ganz = text;
    const std::string_view domäne = ganz.substr(at + 1);
    return istGegliedert(ganz.substr(0, at)) && istGegliedert(domäne) &&
           domäne.find('.') != std::string_view::npos;
}

} // namespace altardienst
