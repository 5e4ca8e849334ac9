// The check of the largest plan, whole and after one change, against loading the eight files.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "core/Allgemein.h"
#include "core/Plätze.h"
#include "core/tables.h"
#include "overview/Planprüfung.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace altardienst {
namespace {

constexpr double ZielGanz = 0.2;               // of loading the eight files
constexpr double ZielÄnderung = ZielGanz / 50; // of the same

/// 400 servers and 602 masses of 20 servers and eight helpers as a draw would leave them that
/// knows no absences: some four thousand things to find. Two masses a day, so that everybody rests
/// for days.
void GuterPlan()
{
    VollerBestand();
    Meßdiener.Anzahl = 400;
    Messe.Anzahl = 602;
    for (int j = 0; j < Meßdiener.Anzahl; ++j) {
        Meßdiener.Qualifikation[j] = "jjjjjj";
        Meßdiener.Wochendienst[j] = "nnnnnnnn";
        Meßdiener.Geschlecht[j] = j / 2 % 2 == 0 ? "weiblich" : "männlich";
        Meßdiener.Größe[j] = 150 + j % 7;
        const int partner = j % 2 == 0 ? j + 1 : j - 1;
        Meßdiener.WunschVorname[j] = Meßdiener.Vorname[partner];
        Meßdiener.WunschNachname[j] = Meßdiener.Nachname[partner];
    }
    for (int h = 0; h < Helfer.Anzahl; ++h)
        Helfer.Dienst1[h] = Text(Helferarten[static_cast<std::size_t>(h / 2 % 4)].Name);
    int diener = 0;
    int helfer = 0;
    for (int i = 0; i < Messe.Anzahl; ++i) {
        Messe.Messeart[i] = "Hochamt";
        Messe.Allgemein[i] = 10; // with the ten other services
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            Messe.DienerVor[i][slot] = Meßdiener.Vorname[diener];
            Messe.DienerNach[i][slot] = Meßdiener.Nachname[diener];
            diener = (diener + 1) % Meßdiener.Anzahl;
        }
        for (const Helferplatz &platz : Helferplätze) {
            (Messe.*platz.Vor)[i] = Helfer.Vorname[helfer];
            (Messe.*platz.Nach)[i] = Helfer.Nachname[helfer];
            helfer = (helfer + 1) % 200;
        }
    }
}

Planprüfung &Laufende()
{
    static Planprüfung prüfung;
    return prüfung;
}

/// Another server in a place in the middle of the plan, in turns.
void EinenPlatzÄndern()
{
    static int wer = 0;
    wer = (wer + 1) % Meßdiener.Anzahl;
    Messe.DienerVor[300][3] = Meßdiener.Vorname[wer];
    Messe.DienerNach[300][3] = Meßdiener.Nachname[wer];
}

} // namespace

void PlanprüfungMessungen()
{
    GuterPlan();
    AufFestplatteSpeichern();
    Laufende().Neu();
    std::printf("The plan that is checked: %s\n",
                Befundzahl(Laufende().Verstöße(), Laufende().Hinweise()).c_str());
    const Arbeit laden = {TabellenLeeren, VonFestplatteLaden};
    MessungAnmelden({.Name = "Plan prüfen",
                     .Maßstabname = "Laden der acht Dateien",
                     .Gemessen = {GuterPlan, [] { Laufende().Neu(); }},
                     .Maßstab = laden,
                     .Ziel = ZielGanz,
                     .Durchläufe = 200});
    MessungAnmelden({.Name = "Einer Änderung folgen",
                     .Maßstabname = "Laden der acht Dateien",
                     .Gemessen = {EinenPlatzÄndern, [] { Laufende().MesseGeändert(300); }},
                     .Maßstab = laden,
                     .Ziel = ZielÄnderung,
                     .Durchläufe = 200});
}

} // namespace altardienst
