// The lines of the full plan for one mass.
#include "printing/PlanZeilen.h"

#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"
#include "printing/Druckwerte.h"

#include <optional>

namespace altardienst {
namespace {

/// "2026-11-28".
Text JahrMonatTag(Datum tag)
{
    const Kalendertag k = KalendertagVon(tag);
    return FesteStellen(k.Jahr, 4, 0) + "-" + FesteStellen(k.Monat, 2, 0) + "-" +
           FesteStellen(k.Tag, 2, 0);
}

/// A file may hold any number; the plan is printed nevertheless.
bool IstImKalender(Datum tag)
{
    return tag > 0 && tag <= DatumAus({9999, 12, 31});
}

Text Person(int i, int n)
{
    return Messe.DienerVor[i][n] + " " + Messe.DienerNach[i][n];
}

/// Lines of two, as many as the service has places for. An empty slot is not skipped, it leaves a
/// blank.
std::vector<Text> DienstZeilen(int i, const Dienstart &art)
{
    std::vector<Text> zeilen(static_cast<std::size_t>(art.Höchstens) / 2);
    std::size_t c = 0;
    for (int n = 1; n <= MesseTabelle::HöchsterSlot; ++n) {
        if (DienstDesSlots(i, n) != art.Name)
            continue;
        if (c / 2 < zeilen.size())
            zeilen[c / 2] += (c % 2 == 0 ? art.Name.c_str() + Text(": ") : ", ") + Person(i, n);
        ++c;
    }
    return zeilen;
}

/// Lines of two without a label. An empty slot is skipped but counted, so its partner may be alone
/// after a leading comma.
std::vector<Text> AllgemeinZeilen(int i)
{
    std::vector<Text> zeilen(static_cast<std::size_t>(Allgemein.Höchstens) / 2);
    std::size_t c = 0;
    for (int n = 1; n <= MesseTabelle::HöchsterSlot; ++n) {
        if (DienstDesSlots(i, n) != Allgemein.Name)
            continue;
        if (!Messe.DienerVor[i][n].empty())
            zeilen[c / 2] += (c % 2 == 0 ? "" : ", ") + Person(i, n);
        ++c;
    }
    return zeilen;
}

/// The helpers of a kind, as many as are wanted; empty if none are.
Text HelferZeile(int i, const Helferart &art)
{
    Text zeile;
    for (const Helferplatz &platz : Helferplätze)
        if (&platz.Art == &art && platz.Nötig(Messe, i))
            zeile += (platz.Nummer == 1 ? art.Aufschrift.c_str() + Text(": ") : ", ") +
                     (Messe.*platz.Vor)[i] + " " + (Messe.*platz.Nach)[i];
    return zeile;
}

Text Überschrift(int i)
{
    if (Messe.Messeart[i] == "Wochendienst")
        return "Ab " + Messe.Wochentag[i] + " dem " + Druckdatum(Messe.Datum[i]) + ", " +
               Messe.Messeart[i];
    return Messe.Wochentag[i] + ", " + Druckdatum(Messe.Datum[i]) + ", " +
           StundenUndMinuten(Messe.Uhrzeit[i]) + "Uhr, " + Messe.Messeart[i];
}

} // namespace

Text PlanTitel()
{
    return "Messen der Pfarrei " + Konfig.Gemeinde;
}

Text PlanZeitraum()
{
    return "vom " + Druckdatum(Messe.Datum[0]) + "bis " + Druckdatum(Messe.Datum[Messe.Anzahl - 1]);
}

Text PlanDateiname()
{
    std::optional<Datum> erster;
    for (int i = 0; i < Messe.Anzahl && i <= MesseTabelle::HöchsterIndex; ++i)
        if (IstImKalender(Messe.Datum[i]) && (!erster || Messe.Datum[i] < *erster))
            erster = Messe.Datum[i];
    return "Altardienst " + JahrMonatTag(erster.value_or(Uhr.Heute()));
}

PlanZeilen PlanZeilenDer(int i)
{
    PlanZeilen plan;
    plan.Überschrift = Überschrift(i);
    const auto aufnehmen = [](std::vector<Text> &zeilen, Text zeile) {
        if (!zeile.empty())
            zeilen.push_back(std::move(zeile));
    };
    for (const Dienstart &art : BesondereDienste)
        for (Text &zeile : DienstZeilen(i, art))
            aufnehmen(plan.Diener, std::move(zeile));
    for (Text &zeile : AllgemeinZeilen(i))
        aufnehmen(plan.Diener, std::move(zeile));
    for (const Helferart &art : Helferarten)
        aufnehmen(plan.Helfer, HelferZeile(i, art));
    return plan;
}

} // namespace altardienst
