// The columns of the lists of people.
#include "exchange/Spalten.h"

#include "core/Plätze.h"
#include "core/Suchwörter.h"
#include "core/Umwandlung.h"
#include "exchange/Feldlesen.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>

namespace altardienst {
namespace {

/// The names by which a column is known, as one text.
std::vector<Text> Namen(std::string_view namen)
{
    return Suchwörter(namen);
}

template <auto &tabelle, auto feld> struct Textfeld {
    static Text Wert(int i) { return (tabelle.*feld)[i]; }
    static void Setzen(int i, const Text &wert) { (tabelle.*feld)[i] = wert; }
};

template <auto &tabelle, auto feld> struct Datumsfeld {
    static Text Wert(int i)
    {
        const Datum datum = (tabelle.*feld)[i];
        try {
            return datum == 0 ? Text() : KurzesDatum(datum);
        } catch (const Laufzeitfehler &) {
            return "?"; // a date that no calendar has
        }
    }
    static void Setzen(int i, const Text &wert)
    {
        (tabelle.*feld)[i] = wert.empty() ? Datum(0) : DatumLesen(wert);
    }
};

template <auto &tabelle, auto feld> struct Zahlfeld {
    static Text Wert(int i) { return ZahlText(static_cast<int>((tabelle.*feld)[i])); }
    static void Setzen(int i, const Text &wert)
    {
        (tabelle.*feld)[i] = wert.empty() ? Int16(0) : Int16Lesen(wert);
    }
};

template <auto &tabelle> struct Plzfeld {
    static Text Wert(int i)
    {
        constexpr std::size_t Stellen = 5;
        const Int32 zahl = tabelle.PLZ[i];
        if (zahl == 0)
            return "";
        Text plz = ZahlText(static_cast<int>(zahl));
        if (zahl > 0 && plz.size() < Stellen)
            plz.insert(0, Stellen - plz.size(), '0');
        return plz;
    }
    static void Setzen(int i, const Text &wert)
    {
        tabelle.PLZ[i] = wert.empty() ? 0 : Int32Lesen(wert);
    }
};

template <auto feld, int stelle> struct Flagge {
    static Text Wert(int i) { return IstJa((Meßdiener.*feld)[i], stelle) ? "ja" : "nein"; }
    static void Setzen(int i, const Text &wert)
    {
        Text &flaggen = (Meßdiener.*feld)[i];
        const bool ja = wert == "ja";
        if (IstJa(flaggen, stelle) != ja) // one that is too short is not filled up for nothing
            flaggen = MitFlag(flaggen, stelle, ja);
    }
};

template <class Feld>
Listenspalte Spalte(const Text &name, std::string_view auch, Feldlesung (*lesen)(const Text &))
{
    return {.Name = name,
            .Auch = Namen(auch),
            .Wert = Feld::Wert,
            .Lesen = lesen,
            .Setzen = Feld::Setzen};
}

template <class Feld>
Listenspalte Textspalte(const Text &name, std::string_view auch, Feldlesung (*lesen)(const Text &))
{
    Listenspalte spalte = Spalte<Feld>(name, auch, lesen);
    spalte.IstText = true;
    return spalte;
}

template <class Feld> Listenspalte Jaspalte(const Text &name, std::string_view auch)
{
    Listenspalte spalte = Spalte<Feld>(name, auch, JaNeinAusFeld);
    spalte.LeerHeißtNein = true;
    return spalte;
}

/// Name and address, which servers and helpers have alike.
template <class T, auto &t>
std::vector<Listenspalte> Adressspalten(Feldlesung (*text)(const Text &))
{
    return {
        Textspalte<Textfeld<t, &T::Vorname>>("Vorname", "vornamen rufname firstname givenname",
                                             text),
        Textspalte<Textfeld<t, &T::Nachname>>(
            "Nachname", "name nachnamen familienname zuname surname lastname familyname", text),
        Textspalte<Textfeld<t, &T::Straße>>("Straße",
                                            "str anschrift adresse strassehausnr "
                                            "strasseundhausnummer strassehausnummer strassenr "
                                            "wohnadresse strasseundhausnr",
                                            text),
        Textspalte<Plzfeld<t>>("PLZ", "postleitzahl zip postalcode", PlzAusFeld),
        Textspalte<Textfeld<t, &T::Ort>>("Ort", "wohnort stadt gemeinde city", text),
        Textspalte<Textfeld<t, &T::Telefon>>(
            "Telefon",
            "tel fon telefonnummer telnr telefonnr phone handy mobil mobiltelefon festnetz "
            "handynummer rufnummer",
            text),
        Textspalte<Textfeld<t, &T::EMail>>("E-Mail", "mail emailadresse mailadresse", text),
        Spalte<Datumsfeld<t, &T::Geburtstag>>(
            "Geburtstag",
            "geburtsdatum geb gebdatum gebtag geborenam geboren gebam gebdat birthday dateofbirth",
            GeburtstagAusFeld)};
}

template <class T, auto &t, auto von, auto bis>
void AbwesenheitAnfügen(std::vector<Listenspalte> &spalten, int nummer)
{
    const Text name = "Abwesend " + ZahlText(nummer);
    spalten.push_back(Spalte<Datumsfeld<t, von>>(
        name + " von", nummer == 1 ? "abwesendvon nichtdienstbereitvom abwesendab" : "",
        DatumAusFeld));
    spalten.push_back(Spalte<Datumsfeld<t, bis>>(
        name + " bis", nummer == 1 ? "abwesendbis nichtdienstbereitbis" : "", DatumAusFeld));
}

std::vector<Listenspalte> Dienerspalten()
{
    using M = MeßdienerTabelle;
    constexpr auto q = &M::Qualifikation;
    constexpr auto w = &M::Wochendienst;
    std::vector<Listenspalte> spalten = Adressspalten<M, Meßdiener>(DienertextAusFeld);
    const auto dazu = [&spalten](Listenspalte spalte) { spalten.push_back(std::move(spalte)); };
    dazu(Textspalte<Textfeld<Meßdiener, &M::Geschlecht>>("Geschlecht", "sex gender mw wm",
                                                         GeschlechtAusFeld));
    dazu(Spalte<Zahlfeld<Meßdiener, &M::Größe>>("Größe", "koerpergroesse groessecm groesseincm",
                                                GrößeAusFeld));
    dazu(Spalte<Datumsfeld<Meßdiener, &M::Eintrittsdatum>>(
        "Eintrittsdatum",
        "eintritt eingetreten dabeiseit seit messdienerseit aufnahme aufnahmedatum beginn",
        DatumAusFeld));
    dazu(Textspalte<Textfeld<Meßdiener, &M::Gruppe>>("Gruppe", "gruppenname messdienergruppe team",
                                                     DienertextAusFeld));
    dazu(Jaspalte<Flagge<q, 1>>("Gabenbereitung", "gaben gabenber"));
    dazu(Jaspalte<Flagge<q, 2>>("Leuchter", "kerzen kerze"));
    dazu(Jaspalte<Flagge<q, 3>>("Flambeau", "flambeaus"));
    dazu(Jaspalte<Flagge<q, 4>>("Weihrauch", "weihrauchdienst"));
    dazu(Jaspalte<Flagge<q, 5>>("Kreuzträger", "kreuz"));
    dazu(Jaspalte<Flagge<q, 6>>("Anführer", "leiter"));
    dazu(Jaspalte<Flagge<w, 1>>("Möchte nicht: Wochendienst", "nichtwochendienst"));
    dazu(Jaspalte<Flagge<w, 2>>("Möchte nicht: Mo", "nichtmo nichtmontag"));
    dazu(Jaspalte<Flagge<w, 3>>("Möchte nicht: Di", "nichtdi nichtdienstag"));
    dazu(Jaspalte<Flagge<w, 4>>("Möchte nicht: Mi", "nichtmi nichtmittwoch"));
    dazu(Jaspalte<Flagge<w, 5>>("Möchte nicht: Do", "nichtdo nichtdonnerstag"));
    dazu(Jaspalte<Flagge<w, 6>>("Möchte nicht: Fr", "nichtfr nichtfreitag"));
    AbwesenheitAnfügen<M, Meßdiener, &M::Von1, &M::Bis1>(spalten, 1);
    AbwesenheitAnfügen<M, Meßdiener, &M::Von2, &M::Bis2>(spalten, 2);
    AbwesenheitAnfügen<M, Meßdiener, &M::Von3, &M::Bis3>(spalten, 3);
    AbwesenheitAnfügen<M, Meßdiener, &M::Von4, &M::Bis4>(spalten, 4);
    AbwesenheitAnfügen<M, Meßdiener, &M::Von5, &M::Bis5>(spalten, 5);
    dazu(Textspalte<Textfeld<Meßdiener, &M::WunschVorname>>(
        "Wunschpartner Vorname", "wunschvorname partnervorname vornamewunschpartner",
        DienertextAusFeld));
    dazu(Textspalte<Textfeld<Meßdiener, &M::WunschNachname>>(
        "Wunschpartner Nachname", "wunschnachname partnernachname nachnamewunschpartner",
        DienertextAusFeld));
    dazu(Spalte<Zahlfeld<Meßdiener, &M::Häufigkeit>>("Häufigkeit", "diensthaeufigkeit",
                                                     HäufigkeitAusFeld));
    return spalten;
}

std::vector<Listenspalte> Helferspalten()
{
    using H = HelferTabelle;
    std::vector<Listenspalte> spalten = Adressspalten<H, Helfer>(HelfertextAusFeld);
    spalten.push_back(Textspalte<Textfeld<Helfer, &H::Dienst1>>(
        "Dienst 1", "dienst dienste aufgabe", HelferdienstAusFeld));
    spalten.push_back(Textspalte<Textfeld<Helfer, &H::Dienst2>>("Dienst 2", "zweiterdienst",
                                                                HelferdienstAusFeld));
    AbwesenheitAnfügen<H, Helfer, &H::Von1, &H::Bis1>(spalten, 1);
    AbwesenheitAnfügen<H, Helfer, &H::Von2, &H::Bis2>(spalten, 2);
    AbwesenheitAnfügen<H, Helfer, &H::Von3, &H::Bis3>(spalten, 3);
    return spalten;
}

} // namespace

const std::vector<Listenspalte> &SpaltenFür(Personenart art)
{
    static const std::vector<Listenspalte> diener = Dienerspalten();
    static const std::vector<Listenspalte> helfer = Helferspalten();
    return art == Personenart::Diener ? diener : helfer;
}

int Vorhandene(Personenart art)
{
    if (art == Personenart::Diener)
        return std::clamp<int>(Meßdiener.Anzahl, 0, MeßdienerTabelle::HöchsterInDatei + 1);
    return std::clamp<int>(Helfer.Anzahl, 0, HelferTabelle::HöchsterInDatei + 1);
}

int SpalteNamens(Personenart art, std::string_view name)
{
    const auto &spalten = SpaltenFür(art);
    const auto stelle = std::ranges::find(spalten, name, &Listenspalte::Name);
    return static_cast<int>(stelle - spalten.begin());
}

} // namespace altardienst
