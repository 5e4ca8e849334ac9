// Who has a birthday in a month, and who has served for a number of years.
#include "anniversaries/JubiGebu.h"

#include "core/Jahre.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"

namespace altardienst {

GeburtstagslisteTabelle Geburtstagsliste;
JubiläumslisteTabelle Jubiläumsliste;

namespace {

template <class Liste, class Datumsspalte> void Leeren(Liste &liste, Datumsspalte Liste::*tag)
{
    liste = {};
    for (int i = 0; i <= Liste::HöchsterIndex; ++i)
        (liste.*tag)[i] = Uhr.Heute();
}

/// Appends a row with what both lists say about a person; returns its index.
template <class Liste, class Tabelle> int Anhängen(Liste &liste, Tabelle &leute, int person)
{
    const int i = liste.Anzahl;
    liste.Vorname[i] = leute.Vorname[person];
    liste.Nachname[i] = leute.Nachname[person];
    liste.Telefon[i] = leute.Telefon[person];
    liste.Straße[i] = leute.Straße[person];
    liste.Ort[i] = ZahlText(leute.PLZ[person]) + " " + leute.Ort[person];
    ++liste.Anzahl;
    return i;
}

template <class Tabelle> void GeburtstageAnhängen(Tabelle &leute, int GeburtsMonat)
{
    for (int j = 0; j < leute.Anzahl; ++j) {
        const Datum geburtstag = leute.Geburtstag[j];
        if (KalendertagVon(geburtstag).Monat != GeburtsMonat)
            continue;
        const int i = Anhängen(Geburtstagsliste, leute, j);
        Geburtstagsliste.Geburtstag[i] = geburtstag;
        Geburtstagsliste.Alter[i] = GanzeJahre(geburtstag, Uhr.Heute());
    }
}

/// Exchanges neighbours that are out of order, in one full pass fewer than there are rows.
template <class Liste, class Falsch> void NachbarnTauschen(Liste &liste, Falsch falsch)
{
    for (int durchgang = 1; durchgang < liste.Anzahl; ++durchgang)
        for (int j = 0; j < liste.Anzahl - 1; ++j)
            if (falsch(j, j + 1))
                FelderTauschen(liste.Felder(), j, j + 1);
}

} // namespace

void GeburtstageSuchen(Gruppende gruppe, Int16 GeburtsMonat)
{
    GeburtstagslisteTabelle &liste = Geburtstagsliste;
    Leeren(liste, &GeburtstagslisteTabelle::Geburtstag);
    if (gruppe != Gruppende::Meßhelfer)
        GeburtstageAnhängen(Meßdiener, GeburtsMonat);
    if (gruppe != Gruppende::Messdien)
        GeburtstageAnhängen(Helfer, GeburtsMonat);
    const auto tag = [&](int i) { return KalendertagVon(liste.Geburtstag[i]).Tag; };
    NachbarnTauschen(liste, [&](int a, int b) { return tag(a) > tag(b); });
    if (liste.Anzahl == 0)
        liste.Anzahl = 1;
}

void JubiläenSuchen(Int16 JubiläumsJahre)
{
    JubiläumslisteTabelle &liste = Jubiläumsliste;
    Leeren(liste, &JubiläumslisteTabelle::Eintrittsdatum);
    for (int j = 0; j < Meßdiener.Anzahl; ++j) {
        const int y = GanzeJahre(Meßdiener.Eintrittsdatum[j], Uhr.Heute());
        const bool länger = JubiläumsJahre >= MeisteJubiläumsJahre && y > JubiläumsJahre;
        if (y != JubiläumsJahre && !länger)
            continue;
        const int i = Anhängen(liste, Meßdiener, j);
        liste.Eintrittsdatum[i] = Meßdiener.Eintrittsdatum[j];
        liste.Jahre[i] = y;
    }
    NachbarnTauschen(liste, [&](int a, int b) {
        return !(liste.Eintrittsdatum[a] < liste.Eintrittsdatum[b]); // equal ones too
    });
    if (liste.Anzahl == 0)
        liste.Anzahl = 1;
}

} // namespace altardienst
