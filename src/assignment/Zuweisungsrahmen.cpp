// What surrounds the ways of assignment: buttons (3), (4) and (5) of the main window.
#include "assignment/Zuweisungsrahmen.h"

#include "assignment/Dienste.h"
#include "assignment/Helferzuweisung.h"
#include "assignment/MEßdienerzuweiseung.h"
#include "assignment/ZweiMeßdienerzuweisen.h"
#include "core/Sortierbefehle.h"
#include "platform/Meldungen.h"

#include <algorithm>

namespace altardienst {

Int16 GrößteMesse;
Int16 GrößterTag;
Int16 DienstProDiener;

namespace {

/// The ways by number with more rules are used only if there are enough servers for two full days:
/// the block by date keeps the same day and the day before apart.
void WegNachAnzahl()
{
    const Int16 anzahl = Meßdiener.Anzahl;
    if (anzahl <= GrößteMesse)
        Meldungen.Zeigen("Zuwenig Meßdiener !!!!");
    else if (anzahl <= 2 * GrößterTag) // may overflow, so it is not computed earlier
        MeßdienerKnappZuweisen();
    else if (anzahl <= 2 * GrößterTag + 10)
        MeßdienerFreiZuweisen();
    else
        MeßdienerVollZuweisen();
}

} // namespace

void DienstProDienerRechnen()
{
    DienstProDiener = Dienstanteil(Messe, Meßdiener.Anzahl);
}

Int16 Dienstanteil(const MesseTabelle &messen, Int16 diener)
{
    Int16 plätze;
    for (int i = 0; i <= messen.Anzahl; ++i)
        plätze += messen.Dienerzahl[i];
    if (diener == 0)
        throw Laufzeitfehler(Laufzeitfehler::DivisionDurchNull);
    return plätze / diener + 1;
}

Int16 GrößteTagessumme(MesseTabelle::Spalte<Int16> &zahl)
{
    Int16 größte;
    Int16 TagesSumme = zahl[0];
    for (int i = 1; i <= Messe.Anzahl; ++i) {
        bool gleicherTag = Messe.Datum[i] == Messe.Datum[i - 1];
        if (gleicherTag)
            TagesSumme += zahl[i];
        if (TagesSumme > größte)
            größte = TagesSumme;
        if (!gleicherTag)
            TagesSumme = zahl[i];
    }
    return größte;
}

void GrößenRechnen()
{
    GrößteMesse = 0;
    for (int i = 0; i <= Messe.Anzahl; ++i)
        GrößteMesse = std::max<int>(GrößteMesse, Messe.Dienerzahl[i]);
    GrößterTag = GrößteTagessumme(Messe.Dienerzahl);
}

void MessenMitMeßdienerBesetzen(Übertragung übertragen)
{
    if (!Meldungen.Fragen("Sicherer ist ~(4)Meßdiener-Wunschpartner berücksichtigen~ und ohne "
                          "Probleme. Wollen Sie Wirklich diese Funktion ausführen?",
                          "Wirklich?"))
        return;
    MessenSortieren();
    DienstProDienerRechnen();
    GrößenRechnen();
    LaufDiensteVerteilen();
    WegNachAnzahl();
    übertragen();
    Meldungen.Zeigen("Fertig mit Meßdiener Messen zuweisen");
}

void WunschpartnerBerücksichtigen(Übertragung übertragen)
{
    MessenSortieren();
    DienstProDienerRechnen();
    DiensteVerteilen();
    WunschpartnerZuweisen();
    übertragen();
    if (Konfig.ManuellKreuzträger == 1)
        Meldungen.Zeigen("Meßdiener Kreuzträger sind noch nachzutragen!!");
    if (Konfig.ManuellWeihrauch == 1)
        Meldungen.Zeigen("Meßdiener Weihrauch sind noch nachzutragen!!");
    Meldungen.Zeigen("Fertig mit Meßdiener Messen zuweisen unter Berücksichtigung des "
                     "Wunschpartners");
}

void MessenMitMessehelferBesetzen()
{
    HelferZuweisen();
    Meldungen.Zeigen("Fertig mit Helfer Messen zuordnen");
}

} // namespace altardienst
