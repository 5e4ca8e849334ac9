// The fixture of the tests of birthdays and jubilees: a small parish and a printer that keeps a
// log.
#pragma once

#include "anniversaries/JubiGebuForm.h"
#include "printing/Papierfenster.h"

namespace altardienst {

/// Today is 21.11.2026. Born in January: Anna on the 20th, Lea (a helper) on the 9th; in March: Ben
/// and Max (a helper). Members for 0 years: Anna since 01.05.2026, Ben since 01.01.2026; for 17:
/// Cara. The sheets 0 to 9 have four rows and three columns.
class JubiGebustand : public Papierfenster<JubiGebuForm> {
  protected:
    JubiGebustand()
    {
        Diener("Anna", {2010, 1, 20}, {2026, 5, 1});
        Diener("Ben", {2012, 3, 31}, {2026, 1, 1});
        Diener("Cara", {1999, 12, 24}, {2009, 5, 17});
        NeuerHelfer("Lea", {1980, 1, 9});
        NeuerHelfer("Max", {1970, 3, 1});
        BögenAnlegen();
    }
    static void Diener(const Text &vorname, Kalendertag geboren, Kalendertag eingetreten)
    {
        const int i = MeßdienerAnlegen(vorname, "Berg");
        Meßdiener.Geburtstag[i] = DatumAus(geboren);
        Meßdiener.Eintrittsdatum[i] = DatumAus(eingetreten);
        Meßdiener.Telefon[i] = "0254/" + std::to_string(i);
        Meßdiener.Straße[i] = "Weg " + std::to_string(i);
        Meßdiener.PLZ[i] = 43217;
        Meßdiener.Ort[i] = "Oberquell";
    }
    static void NeuerHelfer(const Text &vorname, Kalendertag geboren)
    {
        Helfer.Geburtstag[HelferAnlegen(vorname, "Lang", "Lektor")] = DatumAus(geboren);
    }

    /// The first names of a list.
    template <class Liste> static Text Namen(Liste &liste)
    {
        Text namen;
        for (int i = 0; i < liste.Anzahl; ++i)
            namen += (i > 0 ? " " : "") + liste.Vorname[i];
        return namen;
    }
};

} // namespace altardienst
