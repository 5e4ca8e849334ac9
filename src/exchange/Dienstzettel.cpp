// A slip for each person.
#include "exchange/Dienstzettel.h"

#include "core/Gruppen.h"
#include "exchange/Planauszug.h"
#include "overview/Gruppenplatz.h"
#include "overview/Platz.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace altardienst {
namespace {

/// What a name is ordered by.
Text Ordnungsform(const Text &name)
{
    constexpr std::pair<std::string_view, std::string_view> Grundbuchstaben[] = {
        {"ä", "a"}, {"ö", "o"}, {"ü", "u"}, {"ß", "ss"}, {"é", "e"}, {"è", "e"},
        {"ê", "e"}, {"á", "a"}, {"à", "a"}, {"ç", "c"},  {"ó", "o"}, {"ñ", "n"}};
    Text form = Klein(name);
    for (const auto &[buchstabe, grund] : Grundbuchstaben)
        for (std::size_t wo = form.find(buchstabe); wo != Text::npos; wo = form.find(buchstabe, wo))
            form.replace(wo, buchstabe.size(), grund);
    return form;
}

struct Person {
    Dienstzettel Zettel;
    int Gruppe;                                         // its rank
    std::set<std::pair<int, std::string_view>> Dienste; // masses and what is done there
};

/// People by surname and first name.
class Sammlung {
  public:
    Sammlung(const Plantabellen &tabellen, const Zettelwahl &wahl) : tabellen(tabellen), wahl(wahl)
    {
    }

    std::vector<Person> Alle()
    {
        if (wahl.Diener)
            AusTabelle(tabellen.Diener,
                       [&](Person &person, int j) { InGruppe(person, tabellen.Diener.Gruppe[j]); });
        if (wahl.Helfer)
            AusTabelle(tabellen.Helferinnen, [](Person &, int) {});
        for (const Auszugsmesse &messe : PlanAusziehen(tabellen))
            for (const Auszugsdienst &dienst : messe.Dienste)
                if (dienst.VonHelfer ? wahl.Helfer : wahl.Diener)
                    AusPlan(messe.Messe, dienst);
        std::vector<Person> alle;
        alle.reserve(personen.size());
        for (auto &[_, person] : personen)
            alle.push_back(std::move(person));
        return alle;
    }

  private:
    // Ranks after those of the groups.
    int OhneGruppe() const { return tabellen.Gruppen.Anzahl; }
    int NurHelfer() const { return tabellen.Gruppen.Anzahl + 1; }

    Person &Diese(const Text &vorname, const Text &nachname, bool helfer)
    {
        const auto schlüssel =
            std::tuple(Ordnungsform(nachname), Ordnungsform(vorname), nachname, vorname);
        const auto [stelle, neu] = personen.try_emplace(schlüssel);
        Person &person = stelle->second;
        if (neu)
            person = {{VollerName(vorname, nachname), helfer ? "Helfer" : "", {}},
                      helfer ? NurHelfer() : OhneGruppe(),
                      {}};
        return person;
    }

    template <class Tabelle, class F> void AusTabelle(const Tabelle &tabelle, F ergänzen)
    {
        constexpr bool Helfer = std::is_same_v<Tabelle, HelferTabelle>;
        for (int j = 0; j < tabelle.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
            if (!tabelle.Vorname[j].empty() || !tabelle.Nachname[j].empty())
                ergänzen(Diese(tabelle.Vorname[j], tabelle.Nachname[j], Helfer), j);
    }

    void InGruppe(Person &person, const Text &gruppe) const
    {
        if (gruppe.empty())
            return;
        person.Zettel.Gruppe = gruppe;
        for (int g = 0; g < tabellen.Gruppen.Anzahl && g <= GruppeTabelle::HöchsterIndex; ++g)
            if (tabellen.Gruppen.Bezeichnung[g] == gruppe)
                person.Gruppe = g;
    }

    /// A place that is kept for a group is a service of all its members, several such places in one
    /// mass are one.
    void AusPlan(int messe, const Auszugsdienst &dienst)
    {
        const auto eintragen = [&](const Text &vorname, const Text &nachname) {
            Person &person = Diese(vorname, nachname, dienst.VonHelfer);
            if (person.Dienste.emplace(messe, dienst.Dienst).second)
                person.Zettel.Dienste.push_back({TerminDer(tabellen.Messen, messe),
                                                 tabellen.Messen.Messeart[messe],
                                                 Text(dienst.Dienst)});
        };
        bool mitglieder = false;
        if (IstGruppe(tabellen.Gruppen, {*dienst.Vorname, *dienst.Nachname}))
            for (int j = 0; j < tabellen.Diener.Anzahl && j <= MeßdienerTabelle::HöchsterIndex; ++j)
                if (IstInGruppe(tabellen.Diener, j, *dienst.Nachname)) {
                    eintragen(tabellen.Diener.Vorname[j], tabellen.Diener.Nachname[j]);
                    mitglieder = true;
                }
        if (!mitglieder)
            eintragen(*dienst.Vorname, *dienst.Nachname);
    }

    const Plantabellen &tabellen;
    const Zettelwahl &wahl;
    std::map<std::tuple<Text, Text, Text, Text>, Person> personen;
};

} // namespace

std::vector<Dienstzettel> DienstzettelVon(const Plantabellen &tabellen, const Zettelwahl &wahl)
{
    std::vector<Person> personen = Sammlung(tabellen, wahl).Alle();
    if (!wahl.AuchOhneDienst)
        std::erase_if(personen, [](const Person &p) { return p.Zettel.Dienste.empty(); });
    if (wahl.Ordnung == Zettelordnung::NachGruppe)
        std::stable_sort(personen.begin(), personen.end(),
                         [](const Person &a, const Person &b) { return a.Gruppe < b.Gruppe; });
    std::vector<Dienstzettel> zettel;
    zettel.reserve(personen.size());
    for (Person &person : personen)
        zettel.push_back(std::move(person.Zettel));
    return zettel;
}

Text Zettelzeile(const Plantabellen &tabellen)
{
    const Text zeitraum =
        ZeitraumDer(tabellen.Messen, MessenNachZeit(tabellen.Messen, tabellen.Messenzahl()));
    return "Altardienst" + (zeitraum.empty() ? "" : ", " + zeitraum);
}

Text ZettelAlsText(const std::vector<Dienstzettel> &zettel, const Text &kopfzeile)
{
    Text text;
    for (const Dienstzettel &einer : zettel) {
        if (!text.empty())
            text += "\n";
        text += einer.Name + (einer.Gruppe.empty() ? "" : " (" + einer.Gruppe + ")") + "\n" +
                kopfzeile + "\n";
        for (const Zetteldienst &dienst : einer.Dienste)
            text += dienst.Termin.Datum +
                    (dienst.Termin.Uhrzeit.empty() ? "" : ", " + dienst.Termin.Uhrzeit + " Uhr") +
                    (dienst.Messeart.empty() ? "" : ", " + dienst.Messeart) + ": " + dienst.Dienst +
                    "\n";
        if (einer.Dienste.empty())
            text += "kein Dienst in diesem Plan\n";
    }
    return text;
}

} // namespace altardienst
