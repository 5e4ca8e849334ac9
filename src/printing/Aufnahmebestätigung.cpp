// The admission confirmation: one page for a new altar server to take home.
#include "printing/Aufnahmebestätigung.h"

#include "core/tables.h"
#include "printing/Druckrahmen.h"

namespace altardienst {

void AufnahmebestätigungDrucken(const Aufnahme &a)
{
    const Text name = "Aufnahmebestätigung " + a.Vorname + " " + a.Nachname;
    BerichtDrucken(Druckanfrage::Für(name), [&](int) {
        // True millimetres: the scales that correct a printer do not apply to this page.
        constexpr Single ProMillimeter = KonfigDatensatz::SkalaVorgabe;
        Grundschrift();
        Drucker->CurrentY(Konfig.RandOben * ProMillimeter);
        const std::initializer_list<Text> zeilen = {Konfig.Gemeinde,
                                                    Konfig.Straße,
                                                    Konfig.PlzOrt,
                                                    "",
                                                    "",
                                                    a.Vorname + " " + a.Nachname,
                                                    a.Straße,
                                                    a.PLZ + " " + a.Ort,
                                                    "",
                                                    "Aufgenommen am: " + a.Eintrittsdatum,
                                                    "In Gruppe: " + a.Gruppe,
                                                    "",
                                                    "",
                                                    "",
                                                    "_________________________________",
                                                    "  Datum         Unterschrift"};
        for (const Text &zeile : zeilen) {
            Drucker->CurrentX(Konfig.RandLinks * ProMillimeter);
            Drucker->Print(zeile);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

} // namespace altardienst
