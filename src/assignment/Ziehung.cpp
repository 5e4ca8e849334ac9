// The draw, the placement in a slot, the block by date, and the tests of a drawn server.
#include "assignment/Ziehung.h"

#include "core/Umwandlung.h"
#include "core/tables.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <array>
#include <utility>

namespace altardienst {

Int16 MesseNr;
Int16 Kandidat;
Int16 MittelGröße;
Text LetztesGeschlecht;
int SucheStart = 0;
Int16 Neustarts;
Int16 BelegtProzent;

Int16 Ziehen(Int16 anzahl)
{
    return GerundetInt16(static_cast<Single>(anzahl) * Zufall.Nächste());
}

void KandidatZiehen()
{
    Kandidat = Ziehen(Meßdiener.Anzahl);
}

void MeßdienerEintragen(int n)
{
    Messe.DienerVor[MesseNr][n] = Meßdiener.Vorname[Kandidat];
    Messe.DienerNach[MesseNr][n] = Meßdiener.Nachname[Kandidat];
    Meßdiener.Belegt[Kandidat] = 1;
    // The first three servers set the height of a mass; the others are held against it.
    double größe = Meßdiener.Größe[Kandidat];
    double mittel = MittelGröße;
    if (n == 1)
        MittelGröße = Meßdiener.Größe[Kandidat];
    else if (n == 2)
        MittelGröße = GerundetInt16(größe / 2 + mittel / 2);
    else if (n == 3)
        MittelGröße = GerundetInt16((größe + 2 * mittel) / 3);
    Meßdiener.LetzterDienst[Kandidat] = Messe.Datum[MesseNr];
    LetztesGeschlecht = Meßdiener.Geschlecht[Kandidat];
}

void SperreLösen(int i)
{
    for (int s = 0; s <= Meßdiener.Anzahl; ++s) {
        Datum letzter = Meßdiener.LetzterDienst[s];
        if (letzter != Messe.Datum[i] && letzter + 1 != Messe.Datum[i])
            Meßdiener.Belegt[s] = 0;
    }
}

void MesseAbschließen()
{
    int belegt = 0;
    for (int s = 0; s <= Meßdiener.Anzahl; ++s)
        belegt += Meßdiener.Belegt[s] > 0;
    BelegtProzent = GerundetInt16(static_cast<double>(belegt) / Meßdiener.Anzahl * 100);
    if (BelegtProzent >= Konfig.GrenzeAuslöse)
        SperreLösen(MesseNr);
}

int Suchdauer()
{
    return Uhr.Sekunden() - SucheStart;
}

bool HatNamen()
{
    return !Meßdiener.Nachname[Kandidat].empty() && !Meßdiener.Vorname[Kandidat].empty();
}

bool IstFrei()
{
    return Meßdiener.Belegt[Kandidat] < 1;
}

bool IstQualifiziert(const Text &dienst)
{
    static constexpr std::array<std::pair<std::string_view, int>, 5> Positionen = {{
        {"Gabenbereitung", 1},
        {"Leuchter", 2},
        {"Flambeau", 3},
        {"Weihrauch", 4},
        {"Kreuzträger", 5},
    }};
    for (const auto &[name, position] : Positionen)
        if (dienst == name)
            return IstJa(Meßdiener.Qualifikation[Kandidat], position);
    return true;
}

bool IstAnwesend()
{
    const int j = Kandidat;
    const Datum tag = Messe.Datum[MesseNr];
    return !LiegtIn(tag, Meßdiener.Von1[j], Meßdiener.Bis1[j]) &&
           !LiegtIn(tag, Meßdiener.Von2[j], Meßdiener.Bis2[j]) &&
           !LiegtIn(tag, Meßdiener.Von3[j], Meßdiener.Bis3[j]) &&
           !LiegtIn(tag, Meßdiener.Von4[j], Meßdiener.Bis4[j]) &&
           !LiegtIn(tag, Meßdiener.Von5[j], Meßdiener.Bis5[j]);
}

bool WochenwunschErlaubt()
{
    // A "j" is the wish to be left out.
    const Text &wunsch = Meßdiener.Wochendienst[Kandidat];
    if (IstJa(wunsch, 1) && Messe.Messeart[MesseNr] == "Wochendienst")
        return false;
    // The wishes by weekday hold only for masses that come from the week pattern.
    if (Messe.Kennung[MesseNr] != "s")
        return true;
    static constexpr std::array<std::string_view, 5> Tage = {"Montag", "Dienstag", "Mittwoch",
                                                             "Donnerstag", "Freitag"};
    for (int tag = 0; tag < 5; ++tag)
        if (IstJa(wunsch, tag + 2) &&
            Messe.Wochentag[MesseNr] == Tage[static_cast<std::size_t>(tag)])
            return false;
    return true;
}

} // namespace altardienst
