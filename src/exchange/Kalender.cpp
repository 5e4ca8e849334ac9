// The plan as calendar files.
#include "exchange/Kalender.h"

#include "assignment/Gründe.h"
#include "exchange/Kalenderschreiber.h"
#include "exchange/Planauszug.h"
#include "overview/Gruppenplatz.h"
#include "overview/Platz.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"
#include "printing/PlanZeilen.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace altardienst {
namespace {

constexpr const char *Endung = ".ics";

Ortszeit Jetzt()
{
    return {Uhr.Heute(), Uhr.Sekunden()};
}

/// The same for the same texts on every machine.
std::uint64_t Prüfzahl(std::initializer_list<std::string_view> texte)
{
    std::uint64_t zahl = 0xcbf29ce484222325;
    const auto byte = [&](unsigned char eines) { zahl = (zahl ^ eines) * 0x100000001b3; };
    for (const std::string_view text : texte) {
        for (const char zeichen : text)
            byte(static_cast<unsigned char>(zeichen));
        byte(0);
    }
    return zahl;
}

/// "20261128T183000-0123456789abcdef-1@altardienst": no names in clear, since it is passed on.
Text Kennung(const Plantabellen &tabellen, const Auszugsmesse &eine, const Empfänger *person)
{
    const MesseTabelle &messen = tabellen.Messen;
    const Text &gemeinde = tabellen.Einstellungen.Gemeinde;
    const Text &art = messen.Messeart[eine.Messe];
    const std::uint64_t woran = person
                                    ? Prüfzahl({gemeinde, art, person->Vorname, person->Nachname})
                                    : Prüfzahl({gemeinde, art});
    const Kalendertag tag = KalendertagVon(messen.Datum[eine.Messe]);
    const int sekunden = SekundenVon(messen.Uhrzeit[eine.Messe]);
    Text kennung;
    kennung.reserve(64);
    const auto zweiStellen = [&](int zahl) {
        kennung += static_cast<char>('0' + zahl / 10 % 10);
        kennung += static_cast<char>('0' + zahl % 10);
    };
    zweiStellen(tag.Jahr / 100);
    zweiStellen(tag.Jahr);
    zweiStellen(tag.Monat);
    zweiStellen(tag.Tag);
    kennung += 'T';
    zweiStellen(sekunden / 3600);
    zweiStellen(sekunden / 60 % 60);
    zweiStellen(sekunden % 60);
    kennung += '-';
    for (int bit = 60; bit >= 0; bit -= 4)
        kennung += "0123456789abcdef"[woran >> bit & 15];
    kennung += '-';
    return kennung.append(std::to_string(eine.Gleiche + 1)).append("@altardienst");
}

/// "Leuchter: Anna A., Ben B.", one line a service, without the services of one person.
Text Dienstzeilen(const Auszugsmesse &messe, const Namengeber &namen, const Empfänger *ohne)
{
    Text zeilen;
    zeilen.reserve(messe.Dienste.size() * 20);
    const Auszugsdienst *zuvor = nullptr;
    for (const Auszugsdienst &einer : messe.Dienste) {
        if (ohne && einer.Hat(ohne->Vorname, ohne->Nachname))
            continue;
        if (!zuvor || !zuvor->IstSelberDienst(einer)) {
            zeilen += zeilen.empty() ? "" : "\n";
            zeilen.append(einer.Dienst).append(": ");
        } else {
            zeilen += ", ";
        }
        zuvor = &einer;
        zeilen += namen.Von(*einer.Vorname, *einer.Nachname);
    }
    return zeilen;
}

/// "Leuchter, Lektor": what a person does in a mass.
Text EigeneDienste(const Auszugsmesse &messe, const Empfänger &person)
{
    Text dienste;
    std::string_view zuvor;
    for (const Auszugsdienst &einer : messe.Dienste)
        if (person.Hat(einer) && einer.Dienst != zuvor) {
            dienste += dienste.empty() ? "" : ", ";
            zuvor = einer.Dienst;
            dienste += zuvor;
        }
    return dienste;
}

Kalendereintrag Eintrag(const Plantabellen &tabellen, const Auszugsmesse &eine,
                        const Empfänger *person, const Namengeber &namen)
{
    const MesseTabelle &messen = tabellen.Messen;
    const Text &art = messen.Messeart[eine.Messe];
    Kalendereintrag eintrag{.Kennung = Kennung(tabellen, eine, person),
                            .Tag = messen.Datum[eine.Messe],
                            .Sekunden = SekundenVon(messen.Uhrzeit[eine.Messe]),
                            .GanzeWoche = IstWochendienst(messen, eine.Messe),
                            .Titel = art.empty() ? Text("Messe") : art,
                            .Beschreibung = Dienstzeilen(eine, namen, person)};
    if (person) {
        const Text dienste = EigeneDienste(eine, *person);
        eintrag.Titel += " (" + dienste + ")";
        eintrag.Beschreibung =
            "Dienst: " + dienste +
            (eintrag.Beschreibung.empty() ? "" : "\nMit dabei:\n" + eintrag.Beschreibung);
    }
    return eintrag;
}

/// Where each name stands: masses of the excerpt in its order.
using Vorkommen = std::map<std::pair<std::string_view, std::string_view>, std::vector<std::size_t>>;

Vorkommen VorkommenIn(const std::vector<Auszugsmesse> &auszug)
{
    Vorkommen vorkommen;
    for (std::size_t i = 0; i < auszug.size(); ++i)
        for (const Auszugsdienst &dienst : auszug[i].Dienste)
            vorkommen[{*dienst.Vorname, *dienst.Nachname}].push_back(i);
    return vorkommen;
}

std::set<std::size_t> MessenVon(const Empfänger &person, const Vorkommen &vorkommen)
{
    std::set<std::size_t> messen;
    const auto dazu = [&](std::string_view vorname, std::string_view nachname) {
        if (const auto ort = vorkommen.find({vorname, nachname}); ort != vorkommen.end())
            messen.insert(ort->second.begin(), ort->second.end());
    };
    dazu(person.Vorname, person.Nachname);
    for (const Text &gruppe : person.Gruppen)
        dazu("Gruppe", gruppe);
    return messen;
}

/// Those of the tables, then who stands in the plan only, which belongs to no group.
std::vector<Empfänger> AlleEmpfänger(const Plantabellen &tabellen, const Personenkreis &kreis,
                                     const std::vector<Auszugsmesse> &auszug)
{
    std::vector<Empfänger> alle = EmpfängerAus(tabellen, kreis);
    if (!kreis.Gruppe.empty())
        return alle;
    std::set<std::pair<Text, Text>> bekannte;
    for (const Empfänger &person : alle)
        bekannte.emplace(person.Vorname, person.Nachname);
    for (const Auszugsmesse &messe : auszug)
        for (const Auszugsdienst &dienst : messe.Dienste)
            if ((dienst.VonHelfer ? kreis.Helfer : kreis.Diener) &&
                !IstGruppe(tabellen.Gruppen, {*dienst.Vorname, *dienst.Nachname}) &&
                bekannte.emplace(*dienst.Vorname, *dienst.Nachname).second)
                alle.push_back({*dienst.Vorname, *dienst.Nachname, {}});
    return alle;
}

/// A name that no other file has, on no platform.
Text Dateiname(const Empfänger &person, std::set<Text> &vergeben)
{
    Text stamm = AlsDateiname(VollerName(person.Vorname, person.Nachname));
    if (stamm.empty())
        stamm = "Person";
    Text name = stamm;
    for (int nr = 2; !vergeben.insert(Klein(name)).second; ++nr)
        name = stamm + " " + std::to_string(nr);
    return name + Endung;
}

int OhneTermin(const std::vector<Auszugsmesse> &auszug)
{
    return static_cast<int>(std::ranges::count(auszug, false, &Auszugsmesse::HatTermin));
}

} // namespace

Kalenderausgabe MessenAlsKalender(const Plantabellen &tabellen, Namenform form)
{
    const std::vector<Auszugsmesse> auszug = PlanAusziehen(tabellen);
    const Namengeber namen(form, tabellen);
    Kalenderschreiber schreiber(Messentitel(tabellen.Einstellungen), Jetzt());
    int einträge = 0;
    for (const Auszugsmesse &eine : auszug)
        if (eine.HatTermin) {
            schreiber.Anfügen(Eintrag(tabellen, eine, nullptr, namen));
            ++einträge;
        }
    Kalenderausgabe ausgabe{.Dateien = {}, .OhneTermin = OhneTermin(auszug)};
    if (einträge > 0)
        ausgabe.Dateien.push_back(
            {PlanDateiname() + Endung, std::move(schreiber).Fertig(), einträge});
    return ausgabe;
}

Kalenderausgabe KalenderJePerson(const Plantabellen &tabellen, const Personenkreis &kreis,
                                 Namenform form)
{
    const std::vector<Auszugsmesse> auszug = PlanAusziehen(tabellen);
    const Vorkommen vorkommen = VorkommenIn(auszug);
    const Namengeber namen(form, tabellen);
    const Ortszeit jetzt = Jetzt();
    Kalenderausgabe ausgabe{.Dateien = {}, .OhneTermin = OhneTermin(auszug)};
    std::set<Text> vergeben;
    for (const Empfänger &person : AlleEmpfänger(tabellen, kreis, auszug)) {
        std::set<std::size_t> messen = MessenVon(person, vorkommen);
        const bool dient = !messen.empty();
        std::erase_if(messen, [&](std::size_t i) { return !auszug[i].HatTermin; });
        if (messen.empty()) {
            ++(dient ? ausgabe.NurOhneTermin : ausgabe.OhneDienst);
            continue;
        }
        Kalenderschreiber schreiber("Altardienst " + namen.Von(person.Vorname, person.Nachname),
                                    jetzt);
        for (const std::size_t i : messen)
            schreiber.Anfügen(Eintrag(tabellen, auszug[i], &person, namen));
        ausgabe.Dateien.push_back({Dateiname(person, vergeben), std::move(schreiber).Fertig(),
                                   static_cast<int>(messen.size())});
    }
    return ausgabe;
}

} // namespace altardienst
