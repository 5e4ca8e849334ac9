// The lists on paper: people, wish partners, standard masses, label formats.
#include "printing/Listen.h"

#include "core/Gruppen.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "printing/Druckrahmen.h"
#include "printing/Druckwerte.h"

#include <functional>

namespace altardienst {
namespace {

/// What an address line says about a server or a helper.
template <class Tabelle> Text Adresszeile(Tabelle &t, int i)
{
    return t.Vorname[i] + " " + t.Nachname[i] + " , " + t.Straße[i] + " , " + Druckzahl(t.PLZ[i]) +
           t.Ort[i] + " , Tel:" + t.Telefon[i] + " , " + t.EMail[i];
}

template <class Tabelle> Text Kompaktzeile(Tabelle &t, int i)
{
    const Text &flags = Konfig.Flags6;
    Text zeile;
    if (IstJa(flags, 4))
        zeile = Druckzahl(i) + ": ";
    zeile += t.Vorname[i] + " " + t.Nachname[i];
    if (IstJa(flags, 1))
        zeile += " , " + t.Straße[i] + " , " + Druckzahl(t.PLZ[i]) + " " + t.Ort[i];
    if (IstJa(flags, 2))
        zeile += " , Tel:" + t.Telefon[i];
    if (IstJa(flags, 3))
        zeile += " , Geb.-tag:" + Druckdatum(t.Geburtstag[i]);
    return zeile;
}

Text GeburtstagZeile(int i)
{
    return "Geb.-tag:" + Druckdatum(Meßdiener.Geburtstag[i]);
}

Text DatenZeile(int i)
{
    return GeburtstagZeile(i) + " , " + Meßdiener.Geschlecht[i] + " , " +
           Druckzahl(Meßdiener.Größe[i]) +
           "cm , Aufnahme:" + Druckdatum(Meßdiener.Eintrittsdatum[i]) +
           " , Gruppe:" + Meßdiener.Gruppe[i];
}

Text QualifikationenZeile(int i)
{
    Text zeile = "Qualifikationen: ";
    for (const Dienstart &art : BesondereDienste)
        if (IstJa(Meßdiener.Qualifikation[i], art.Stelle))
            zeile += Text(art.Stelle == 1 ? "" : ", ") + art.Name.c_str();
    return zeile;
}

Text HelferdiensteZeile(int i)
{
    return "Geb.-tag:" + Druckdatum(Helfer.Geburtstag[i]) + " , Dienst 1:" + Helfer.Dienst1[i] +
           " , Dienst 2:" + Helfer.Dienst2[i];
}

/// How many lines one person adds to `Zeilen`, and how many the next one is assumed to need.
struct Zählung {
    int Zeilen;
    int Nächster;
};

/// One of the people lists.
struct Personenliste {
    Text Name;
    std::vector<Text> Titel;
    int TitelZeilen;
    int Anzahl;
    std::function<bool(int)> Gehört; // whether a record belongs to the list
    std::function<std::vector<Text>(int)> Breit;
    Zählung Breitzählung;
    std::function<Text(int)> Kompakt;
};

constexpr Zählung Kompaktzählung = {2, 2};

void PersonenlisteDrucken(const Personenliste &liste)
{
    BerichtDrucken({"ausführlich", "eine Zeile je Person", liste.Name}, [&](int modus) {
        const bool kompakt = modus == DruckerDienst::ZweiteForm;
        const Zählung zählung = kompakt ? Kompaktzählung : liste.Breitzählung;
        Int16 Zeilen;
        Drucker->Orientation(Konfig.DiffJahr);
        for (int i = 0; i < liste.Anzahl; ++i) {
            if (i == 0) {
                BerichtEröffnen(liste.Titel);
                Zeilen = liste.TitelZeilen;
            }
            if (!liste.Gehört(i))
                continue;
            if (kompakt)
                ZeileDrucken(liste.Kompakt(i));
            else
                for (const Text &zeile : liste.Breit(i))
                    ZeileDrucken(zeile);
            Leerzeile();
            Zeilen += zählung.Zeilen;
            SeitePrüfen(Zeilen, zählung.Nächster);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
        Drucker->Orientation(DruckerDienst::Hochformat);
    });
}

} // namespace

void AlleMeßdienerDrucken()
{
    PersonenlisteDrucken({
        .Name = "Meßdienerliste",
        .Titel = {"Meßdiener der Pfarrei " + Konfig.Gemeinde},
        .TitelZeilen = 3,
        .Anzahl = Meßdiener.Anzahl,
        .Gehört = [](int) { return true; },
        .Breit =
            [](int i) {
                return std::vector{Adresszeile(Meßdiener, i), DatenZeile(i),
                                   QualifikationenZeile(i)};
            },
        .Breitzählung = {4, 3},
        .Kompakt = [](int i) { return Kompaktzeile(Meßdiener, i); },
    });
}

void MeßdienergruppeDrucken(const Text &gruppe)
{
    PersonenlisteDrucken({
        .Name = "Meßdienerliste " + gruppe,
        // Of the two blank lines after the group, the second belongs to the opening of every
        // report.
        .Titel = {"Meßdiener der Pfarrei " + Konfig.Gemeinde, "", "der Gruppe " + gruppe, ""},
        .TitelZeilen = 5,
        .Anzahl = Meßdiener.Anzahl,
        .Gehört = [&](int i) { return IstInGruppe(i, gruppe); },
        .Breit =
            [](int i) {
                return std::vector{Adresszeile(Meßdiener, i), GeburtstagZeile(i)};
            },
        .Breitzählung = {3, 3},
        .Kompakt = [](int i) { return Kompaktzeile(Meßdiener, i); },
    });
}

void AlleHelferDrucken()
{
    PersonenlisteDrucken({
        .Name = "Helferliste",
        .Titel = {"Meßhelfer der Pfarrei " + Konfig.Gemeinde},
        .TitelZeilen = 3,
        .Anzahl = Helfer.Anzahl,
        .Gehört = [](int) { return true; },
        .Breit =
            [](int i) {
                return std::vector{Adresszeile(Helfer, i), HelferdiensteZeile(i)};
            },
        .Breitzählung = {3, 2},
        .Kompakt = [](int i) { return Kompaktzeile(Helfer, i); },
    });
}

void WunschpartnerlisteDrucken()
{
    BerichtDrucken(Druckanfrage::Für("Wunschpartnerliste"), [](int) {
        Int16 Zeilen;
        for (int i = 0; i < Meßdiener.Anzahl; ++i) {
            if (i == 0) {
                BerichtEröffnen(
                    {"Wunschpartnerliste", "Nachname, Vorname; Wunschpartner: Nachname, Vorname"});
                Zeilen = 8;
            }
            ZeileDrucken(Meßdiener.Nachname[i] + "," + Meßdiener.Vorname[i] + ";" +
                         Meßdiener.WunschNachname[i] + "," + Meßdiener.WunschVorname[i]);
            Drucker->Print(" ");
            Zeilen += 2;
            SeitePrüfen(Zeilen, 2);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

void StandardmessenDrucken()
{
    constexpr int LetzteZeile = 10; // the last row that their dialog shows
    BerichtDrucken(Druckanfrage::Für("Standardmessen"), [](int) {
        BerichtEröffnen({"Standardmessen der Pfarrei " + Konfig.Gemeinde});
        ZeileDrucken("");
        ZeileDrucken("a=Meßdienerzahl, b=Gabenbereitung, c=Leuchter, d=Flambeaus");
        ZeileDrucken("e=Weihrauch, f=Kreuzträger, g=Allgemein");
        ZeileDrucken("");
        for (int i = 0; i <= LetzteZeile; ++i) {
            ZeileDrucken(Standardmesse.Wochentag[i] + ", " + Druckdatum(Standardmesse.Uhrzeit[i]) +
                         "Uhr, " + Standardmesse.Messeart[i]);
            Text dienste = "a:" + Druckzahl(Standardmesse.Dienerzahl[i]);
            char buchstabe = 'a';
            for (const Dienstart &art : Dienstarten) {
                ++buchstabe;
                dienste += Text(", ") + buchstabe + ":" + Druckzahl(art.Zahl.In(Standardmesse)[i]);
            }
            ZeileDrucken(dienste);
            ZeileDrucken("Lektor:" + Druckzahl(Standardmesse.Lektor[i]) +
                         ", Kom.-Helfer:" + Druckzahl(Standardmesse.Kommunion[i]) +
                         ", Kantor/in:" + Druckzahl(Standardmesse.Kantor[i]) +
                         ", Kollektant:" + Druckzahl(Standardmesse.Kollektant[i]));
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

void EtikettengrößenDrucken()
{
    BerichtDrucken(Druckanfrage::Für("Etikettengrößen"), [](int) {
        BerichtEröffnen({"Etikettengrößen"});
        ZeileDrucken("Etikettenname, Rand O/U, Rand R/L, Höhe, Breite, Steg, Reihen, Spalten");
        ZeileDrucken("");
        for (int i = 0; i <= EtikettTabelle::HöchsterInDatei; ++i)
            ZeileDrucken(Etikett.Name[i] + ", " + Druckmaß(Etikett.RandOU[i]) + " mm, " +
                         Druckmaß(Etikett.RandLR[i]) + " mm, " + Druckmaß(Etikett.Höhe[i]) +
                         " mm, " + Druckmaß(Etikett.Breite[i]) + " mm, " +
                         Druckmaß(Etikett.Steg[i]) + " mm," + Druckzahl(Etikett.Reihen[i]) + "," +
                         Druckzahl(Etikett.Spalten[i]));
        Drucker->EndDoc();
    });
}

} // namespace altardienst
