// How far the plan is, in figures.
#include "core/Überblick.h"

#include "core/Plätze.h"
#include "core/Umwandlung.h"

#include <algorithm>

namespace altardienst {
namespace {

/// A file may claim more masses than there can be.
int LetzteMesse()
{
    return std::min<int>(Messe.Anzahl, MesseTabelle::HöchsterIndex + 1) - 1;
}

void Zählen(Platzzahl &plätze, const Text &vorname, const Text &nachname)
{
    ++(vorname.empty() && nachname.empty() ? plätze.Offen : plätze.Besetzt);
}

/// "1 Messe", "2 Messen".
Text Zahlwort(int zahl, const char *eines, const char *mehrere)
{
    return ZahlText(zahl) + " " + (zahl == 1 ? eines : mehrere);
}

Text VonBis(Datum von, Datum bis)
{
    return KurzesDatum(von) + " bis " + KurzesDatum(bis);
}

Abschnitt Zeitraum()
{
    if (Konfig.StartDatum == 0)
        return {"Zeitraum", "", ""};
    return {"Zeitraum", VonBis(Konfig.StartDatum, Konfig.StartDatum + Konfig.Tage),
            "Für diesen Zeitraum bestimmt (1) die Messen."};
}

Abschnitt Messenzahl(const Überblick &stand)
{
    if (stand.Messen == 0)
        return {"Messen", "keine Messen", "Die Messen des Zeitraums bestimmt (1)."};
    Text inhalt = Zahlwort(stand.Messen, "Messe", "Messen");
    const int außerhalb = stand.Messen - stand.ImZeitraum;
    if (stand.ImZeitraum == 0)
        inhalt += ", nicht im Zeitraum";
    else if (außerhalb > 0)
        inhalt += ", " + ZahlText(außerhalb) + " nicht im Zeitraum";
    Datum erste = Messe.Datum[0];
    Datum letzte = erste;
    for (int i = 1; i <= LetzteMesse(); ++i) {
        erste = std::min(erste, Messe.Datum[i]);
        letzte = std::max(letzte, Messe.Datum[i]);
    }
    return {"Messen", inhalt, "vom " + VonBis(erste, letzte)};
}

Text Platzsatz(const Platzzahl &plätze)
{
    if (plätze.Offen == 0)
        return plätze.Alle() == 1 ? "1 Platz, besetzt"
                                  : "alle " + ZahlText(plätze.Alle()) + " Plätze besetzt";
    return Zahlwort(plätze.Besetzt, "Platz", "Plätze") + " besetzt, " + ZahlText(plätze.Offen) +
           " offen";
}

Text BesetztUndOffen(const Platzzahl &plätze)
{
    return ZahlText(plätze.Besetzt) + " besetzt, " + ZahlText(plätze.Offen) + " offen";
}

Abschnitt Platzstand(const Überblick &stand)
{
    const Platzzahl alle = {stand.Dienerplätze.Besetzt + stand.Helferplätze.Besetzt,
                            stand.Dienerplätze.Offen + stand.Helferplätze.Offen};
    if (alle.Alle() == 0)
        return {"Plätze", "", ""};
    return {"Plätze", Platzsatz(alle),
            "Meßdiener: " + BesetztUndOffen(stand.Dienerplätze) +
                "; Helfer: " + BesetztUndOffen(stand.Helferplätze)};
}

Abschnitt Leute()
{
    return {"Leute",
            ZahlText(std::max<int>(Meßdiener.Anzahl, 0)) + " Meßdiener, " +
                ZahlText(std::max<int>(Helfer.Anzahl, 0)) + " Helfer",
            ""};
}

} // namespace

bool LiegtImZeitraum(const KonfigDatensatz &einstellungen, Datum tag)
{
    return tag >= einstellungen.StartDatum && tag <= einstellungen.StartDatum + einstellungen.Tage;
}

Überblick ÜberblickZählen()
{
    Überblick stand;
    for (int i = 0; i <= LetzteMesse(); ++i) {
        ++stand.Messen;
        stand.ImZeitraum += LiegtImZeitraum(Konfig, Messe.Datum[i]) ? 1 : 0;
        const int slots = std::min<int>(Messe.Dienerzahl[i], MesseTabelle::HöchsterSlot);
        for (int n = 1; n <= slots; ++n)
            Zählen(stand.Dienerplätze, Messe.DienerVor[i][n], Messe.DienerNach[i][n]);
        for (const Helferplatz &platz : Helferplätze)
            if (platz.Nötig(Messe, i))
                Zählen(stand.Helferplätze, (Messe.*platz.Vor)[i], (Messe.*platz.Nach)[i]);
    }
    return stand;
}

std::vector<Abschnitt> ÜberblickAbschnitte()
{
    const Überblick stand = ÜberblickZählen();
    return {Zeitraum(), Messenzahl(stand), Platzstand(stand), Leute()};
}

} // namespace altardienst
