// The printed plan.
#include "printing/Plandruck.h"

#include "assignment/Dienste.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "printing/Druckrahmen.h"
#include "printing/PlanZeilen.h"

namespace altardienst {

std::function<void()> VorDemPlandruck = [] {};

namespace {

constexpr int TitelZeilen = 5;  // lines that the title counts as
constexpr int MesseNachher = 6; // lines that a mass needs besides its servers

void VollerPlan(int i, const PlanZeilen &plan, Int16 &Zeilen)
{
    Drucker->FontBold(false);
    // Two people per line, an odd one alone.
    const int diener = Messe.Dienerzahl[i];
    Zeilen = GerundetInt16(diener / 2.0 + Zeilen + diener % 2 + 3);
    for (const Text &zeile : plan.Diener)
        ZeileDrucken(zeile);
    for (const Text &zeile : plan.Helfer)
        ZeileDrucken(zeile);
    for (const Helferart &art : Helferarten)
        if (art.Zahl.In(Messe)[i] > 0)
            ++Zeilen;
    Leerzeile();
    SeitePrüfen(Zeilen, Messe.Dienerzahl[i + 1] / 2.0 + MesseNachher);
}

void Helferformular(int i, Int16 &Zeilen)
{
    Leerzeile();
    Drucker->FontBold(false);
    Zeilen += 2;
    if (Messe.Messeart[i] != "Wochendienst" && IstJa(Konfig.Flags11, 2)) {
        // This is not the order of the plan.
        for (const Helferart *art : {&Lektor, &Kommunionhelfer, &Kollektant, &Kantor})
            ZeileDrucken(art->Name.c_str() + Text(": __________________________________"));
        Leerzeile();
        Zeilen += 4;
    }
    SeitePrüfen(Zeilen, MesseNachher);
}

} // namespace

void PlanDrucken()
{
    DiensteVerteilen();
    const Druckanfrage anfrage = {"Plan mit Namen", "Formular für die Helfer", "Altardienst",
                                  PlanDateiname()};
    BerichtDrucken(anfrage, [](int modus) {
        Int16 Zeilen;
        for (int i = 0; i < Messe.Anzahl; ++i) {
            if (i == 0) {
                BerichtEröffnen({PlanTitel(), "", PlanZeitraum()});
                Zeilen = TitelZeilen;
            }
            Drucker->FontBold(true);
            const PlanZeilen plan = PlanZeilenDer(i);
            ZeileDrucken(plan.Überschrift);
            if (modus == DruckerDienst::ZweiteForm)
                Helferformular(i, Zeilen);
            else
                VollerPlan(i, plan, Zeilen);
        }
        if (modus != DruckerDienst::ZweiteForm && Messe.Anzahl > 0)
            Drucker->NewPage();
        Drucker->EndDoc();
    });
}

} // namespace altardienst
