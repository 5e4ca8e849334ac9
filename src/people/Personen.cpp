// What the forms for people do to the tables.
#include "people/Personen.h"

#include "core/Plätze.h"

#include <limits>

namespace altardienst {
namespace {

template <class Tabelle> Personenname NameVon(Tabelle &t, int i)
{
    return {t.Vorname[i], t.Nachname[i]};
}

template <class Tabelle> bool IstAnderer(Tabelle &t, int i, const Personenname &name)
{
    for (int n = 0; n <= t.Anzahl; ++n)
        if (n != i && NameVon(t, n) == name)
            return true;
    return false;
}

void Ersetzen(Text &vorname, Text &nachname, const Personenname &alt, const Personenname &neu)
{
    if (vorname != alt.Vorname || nachname != alt.Nachname)
        return;
    vorname = neu.Vorname;
    nachname = neu.Nachname;
}

/// Renames in all slots, slot 0 included, of the masses or fixed entries 0 to `anzahl`.
template <class Spalte>
void InSlotsErsetzen(Spalte &vornamen, Spalte &nachnamen, int anzahl, const Personenname &alt,
                     const Personenname &neu)
{
    for (int m = 0; m <= anzahl; ++m)
        for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot)
            Ersetzen(vornamen[m][slot], nachnamen[m][slot], alt, neu);
}

} // namespace

bool IstAndererMeßdiener(int i, const Personenname &name)
{
    return IstAnderer(Meßdiener, i, name);
}

bool IstAndererHelfer(int i, const Personenname &name)
{
    return IstAnderer(Helfer, i, name);
}

bool IstAndereGruppe(int i, const Text &bezeichnung)
{
    for (int n = 0; n <= Gruppe.Anzahl; ++n)
        if (n != i && Gruppe.Bezeichnung[n] == bezeichnung)
            return true;
    return false;
}

bool GibtEsGruppe(const Text &bezeichnung)
{
    for (int i = 0; i < Gruppe.Anzahl; ++i)
        if (Gruppe.Bezeichnung[i] == bezeichnung)
            return true;
    return false;
}

void MeßdienerUmbenennen(int i, const Personenname &neu)
{
    const Personenname alt = NameVon(Meßdiener, i);
    if (alt.Leer())
        return;
    for (int n = 0; n <= Meßdiener.Anzahl; ++n)
        Ersetzen(Meßdiener.WunschVorname[n], Meßdiener.WunschNachname[n], alt, neu);
    InSlotsErsetzen(Messe.DienerVor, Messe.DienerNach, Messe.Anzahl, alt, neu);
    InSlotsErsetzen(MesseDienerFest.Vorname, MesseDienerFest.Nachname, MesseDienerFest.Anzahl, alt,
                    neu);
}

void HelferUmbenennen(int i, const Personenname &neu)
{
    const Personenname alt = NameVon(Helfer, i);
    if (alt.Leer())
        return;
    for (int m = 0; m <= Messe.Anzahl; ++m)
        for (const Helferplatz &platz : Helferplätze)
            Ersetzen((Messe.*platz.Vor)[m], (Messe.*platz.Nach)[m], alt, neu);
}

void GruppeUmbenennen(int i, const Text &neu)
{
    const Text alt = Gruppe.Bezeichnung[i];
    for (int n = 0; n <= Meßdiener.Anzahl; ++n)
        if (Meßdiener.Gruppe[n] == alt)
            Meßdiener.Gruppe[n] = neu;
}

void MeßdienerLöschen(int i)
{
    const Personenname name = NameVon(Meßdiener, i);
    for (int n = 0; n <= Meßdiener.Anzahl; ++n)
        Ersetzen(Meßdiener.WunschVorname[n], Meßdiener.WunschNachname[n], name, {});
    for (int n = i; n < Meßdiener.Anzahl; ++n)
        FelderÜbernehmen(Meßdiener.Felder(), n, n + 1);
    Meßdiener.Vorname[Meßdiener.Anzahl].clear();
    Meßdiener.Nachname[Meßdiener.Anzahl].clear();
    if (Meßdiener.Anzahl > 1)
        --Meßdiener.Anzahl;
}

void HelferLöschen(int i)
{
    for (int n = i; n <= Helfer.Anzahl; ++n)
        FelderÜbernehmen(Helfer.Felder(), n, n + 1);
    --Helfer.Anzahl;
}

void GruppeLöschen(int i)
{
    const Text bezeichnung = Gruppe.Bezeichnung[i];
    for (int n = 0; n <= Meßdiener.Anzahl; ++n)
        if (Meßdiener.Gruppe[n] == bezeichnung)
            Meßdiener.Gruppe[n].clear();
    if (Gruppe.Anzahl <= 2)
        return;
    for (int n = i; n <= Gruppe.Anzahl; ++n)
        Gruppe.Bezeichnung[n] = Gruppe.Bezeichnung[n + 1];
    --Gruppe.Anzahl;
}

void GruppeAnlegen(const Text &bezeichnung)
{
    if (!Gruppe.Bezeichnung[Gruppe.Anzahl].empty())
        ++Gruppe.Anzahl;
    Gruppe.Bezeichnung[Gruppe.Anzahl] = bezeichnung;
    ++Gruppe.Anzahl;
}

void PlzOrtErgänzen()
{
    if (Länge(Konfig.PlzOrt) < 8)
        Konfig.PlzOrt = "48999 Beispielort";
}

Text PlzDerGemeinde()
{
    return Links(Konfig.PlzOrt, 5);
}

Text OrtDerGemeinde()
{
    return Mitte(Konfig.PlzOrt, 7, std::numeric_limits<int>::max());
}

} // namespace altardienst
