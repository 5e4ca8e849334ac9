// "Verteilung": who serves how often.
#include "fairness/Verteilung.h"

#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "fairness/Besetzungsaufgabe.h"
#include "printing/Druckrahmen.h"

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

/// The name of the person in the table of the group.
Text PersonVon(const Plantabellen &tabellen, Planplatz::Art art, int nr)
{
    if (art == Planplatz::Art::Diener)
        return Personenzeile(tabellen.Diener.Vorname[nr], tabellen.Diener.Nachname[nr]);
    return Personenzeile(tabellen.Helferinnen.Vorname[nr], tabellen.Helferinnen.Nachname[nr]);
}

bool HatNamen(const Plantabellen &tabellen, Planplatz::Art art, int nr)
{
    if (art == Planplatz::Art::Diener)
        return !tabellen.Diener.Vorname[nr].empty() && !tabellen.Diener.Nachname[nr].empty();
    return !tabellen.Helferinnen.Vorname[nr].empty() && !tabellen.Helferinnen.Nachname[nr].empty();
}

/// One more service, the dates in their order.
void Dazu(Dienstverteilung &person, int art, Datum tag, Datum heute)
{
    ++person.Arten.at(Nr(art));
    if (person.Dienste > 0)
        person.LängsterAbstand =
            std::max(person.LängsterAbstand, static_cast<int>(tag - person.Letzter));
    else
        person.Erster = tag;
    ++person.Dienste;
    person.Letzter = tag;
    if (person.Nächster == 0 && tag >= heute)
        person.Nächster = tag;
}

Text Tagestext(Datum tag)
{
    return tag == 0 ? Text() : KurzesDatum(tag);
}

Text Leersonst(int zahl)
{
    return zahl == 0 ? Text() : ZahlText(zahl);
}

std::vector<Text> Artnamen(Planplatz::Art art)
{
    std::vector<Text> namen;
    if (art == Planplatz::Art::Diener)
        for (const Dienstart &dienst : Dienstarten)
            namen.emplace_back(dienst.Name);
    else
        for (const Helferart &dienst : Helferarten)
            namen.emplace_back(dienst.Name);
    return namen;
}

Text Druckzeile(const Plantabellen &tabellen, Planplatz::Art art, const Dienstverteilung &person)
{
    Text zeile = PersonVon(tabellen, art, person.Nr) + ": " + ZahlText(person.Dienste) +
                 (person.Dienste == 1 ? " Dienst" : " Dienste") + " (Anteil " +
                 FesteStellen(person.Anteil, 1, 1) + ")";
    const std::vector<Text> namen = Artnamen(art);
    for (std::size_t k = 0; k < namen.size(); ++k)
        if (person.Arten.at(k) > 0)
            zeile += ", " + ZahlText(person.Arten.at(k)) + " " + namen[k];
    return zeile;
}

} // namespace

std::vector<Dienstverteilung> DiensteVerteilt(const Plantabellen &tabellen, Planplatz::Art art,
                                              const std::vector<double> &archiv, Datum heute)
{
    const Besetzungsaufgabe aufgabe = AufgabeLesen(tabellen, art, 0, archiv);
    std::vector<Dienstverteilung> alle(aufgabe.Personen.size());
    for (std::size_t j = 0; j < alle.size(); ++j) {
        alle[j].Nr = static_cast<int>(j);
        alle[j].Anteil = static_cast<double>(aufgabe.Personen[j].Soll) / 1000;
        alle[j].Archiv = static_cast<int>(aufgabe.Personen[j].Bisher);
    }
    for (const auto &platz : aufgabe.Plätze)
        if (platz.Anfangs >= 0)
            Dazu(alle[Nr(platz.Anfangs)], platz.Dienst, aufgabe.Termine[Nr(platz.Termin)].Tag,
                 heute);
    std::erase_if(
        alle, [&](const Dienstverteilung &person) { return !HatNamen(tabellen, art, person.Nr); });
    return alle;
}

std::vector<Text> Verteilungsköpfe(Planplatz::Art art)
{
    std::vector<Text> köpfe = {"Name", "Dienste", "Anteil", "Abweichung", "Archiv"};
    for (const Text &name : Artnamen(art))
        köpfe.push_back(name);
    for (const char *kopf : {"erster", "letzter", "nächster", "längster Abstand"})
        köpfe.emplace_back(kopf);
    return köpfe;
}

std::vector<Text> Verteilungszeile(const Plantabellen &tabellen, Planplatz::Art art,
                                   const Dienstverteilung &person)
{
    const double abweichung = person.Abweichung();
    std::vector<Text> zeile = {PersonVon(tabellen, art, person.Nr), ZahlText(person.Dienste),
                               FesteStellen(person.Anteil, 1, 1),
                               (abweichung < 0 ? "-" : "+") +
                                   FesteStellen(std::abs(abweichung), 1, 1),
                               Leersonst(person.Archiv)};
    for (std::size_t k = 0; k < Artnamen(art).size(); ++k)
        zeile.push_back(Leersonst(person.Arten.at(k)));
    zeile.push_back(Tagestext(person.Erster));
    zeile.push_back(Tagestext(person.Letzter));
    zeile.push_back(Tagestext(person.Nächster));
    zeile.push_back(person.LängsterAbstand == 0 ? Text()
                                                : ZahlText(person.LängsterAbstand) + " Tage");
    return zeile;
}

std::vector<double> Verteilungswerte(Planplatz::Art art, const Dienstverteilung &person)
{
    std::vector<double> werte = {static_cast<double>(person.Nr),
                                 static_cast<double>(person.Dienste), person.Anteil,
                                 person.Abweichung(), static_cast<double>(person.Archiv)};
    for (std::size_t k = 0; k < Artnamen(art).size(); ++k)
        werte.push_back(person.Arten.at(k));
    for (const Datum tag : {person.Erster, person.Letzter, person.Nächster})
        werte.push_back(tag);
    werte.push_back(person.LängsterAbstand);
    return werte;
}

Text VerteilungAlsTabelle(const Plantabellen &tabellen, Planplatz::Art art,
                          const std::vector<Dienstverteilung> &verteilung)
{
    Text tabelle;
    const auto anfügen = [&](const std::vector<Text> &zeile) {
        for (std::size_t k = 0; k < zeile.size(); ++k)
            tabelle += (k == 0 ? "" : "\t") + zeile[k];
        tabelle += '\n';
    };
    anfügen(Verteilungsköpfe(art));
    for (const Dienstverteilung &person : verteilung)
        anfügen(Verteilungszeile(tabellen, art, person));
    return tabelle;
}

void VerteilungDrucken(const Plantabellen &tabellen, Planplatz::Art art,
                       const std::vector<Dienstverteilung> &verteilung)
{
    const Text titel = art == Planplatz::Art::Diener ? "Verteilung der Dienste, Meßdiener"
                                                     : "Verteilung der Dienste, Helfer";
    BerichtDrucken(Druckanfrage::Für(titel), [&](int) {
        BerichtEröffnen({titel, tabellen.Einstellungen.Gemeinde});
        Int16 Zeilen = 4;
        for (const Dienstverteilung &person : verteilung) {
            ZeileDrucken(Druckzeile(tabellen, art, person));
            ++Zeilen;
            SeitePrüfen(Zeilen, 2);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

} // namespace altardienst
