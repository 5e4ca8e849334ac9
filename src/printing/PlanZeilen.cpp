// The lines of the full plan for one mass.
#include "printing/PlanZeilen.h"

#include "core/Umwandlung.h"
#include "core/tables.h"
#include "printing/Druckwerte.h"

#include <array>

namespace altardienst {
namespace {

constexpr int Positionen = 20; // position p of the services belongs to the person in slot p + 1

Text Person(int i, int p)
{
    return Messe.DienerVor[i][p + 1] + " " + Messe.DienerNach[i][p + 1];
}

/// One line: the first two of the service. An empty slot is not passed over, it leaves a blank.
Text ZweierZeile(int i, const char *dienst, const char *beschriftung)
{
    Text zeile;
    int c = 0;
    for (int p = 0; p < Positionen; ++p) {
        if (Messe.DienerDienst[i][p] != dienst)
            continue;
        if (c == 0)
            zeile = beschriftung + Person(i, p);
        else if (c == 1)
            zeile += ", " + Person(i, p);
        ++c;
    }
    return zeile;
}

/// Up to four lines of two.
std::array<Text, 4> FlambeauZeilen(int i)
{
    std::array<Text, 4> zeilen;
    std::size_t c = 0;
    for (int p = 0; p < Positionen; ++p) {
        if (Messe.DienerDienst[i][p] != "Flambeau")
            continue;
        if (c / 2 < zeilen.size())
            zeilen[c / 2] += (c % 2 == 0 ? "Flambeau: " : ", ") + Person(i, p);
        ++c;
    }
    return zeilen;
}

/// Up to ten lines of two without a label. An empty slot is passed over but counted, so its partner
/// may stand alone behind a leading comma.
std::array<Text, 10> AllgemeinZeilen(int i)
{
    std::array<Text, 10> zeilen;
    std::size_t c = 0;
    for (int p = 0; p < Positionen; ++p) {
        if (Messe.DienerDienst[i][p] != "Allgemein")
            continue;
        if (!Messe.DienerVor[i][p + 1].empty())
            zeilen[c / 2] += (c % 2 == 0 ? "" : ", ") + Person(i, p);
        ++c;
    }
    return zeilen;
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

PlanZeilen PlanZeilenDer(int i)
{
    PlanZeilen plan;
    plan.Überschrift = Überschrift(i);
    auto diener = [&](Text zeile) {
        if (!zeile.empty())
            plan.Diener.push_back(std::move(zeile));
    };
    diener(ZweierZeile(i, "Gabenbereitung", "Gabenbereitung: "));
    diener(ZweierZeile(i, "Leuchter", "Leuchter: "));
    for (Text &zeile : FlambeauZeilen(i))
        diener(std::move(zeile));
    diener(ZweierZeile(i, "Weihrauch", "Weihrauch: "));
    diener(ZweierZeile(i, "Kreuzträger", "Kreuzträger: "));
    for (Text &zeile : AllgemeinZeilen(i))
        diener(std::move(zeile));

    auto helfer = [&](const char *beschriftung, int zahl, const Text &vor1, const Text &nach1,
                      const Text &vor2, const Text &nach2) {
        if (zahl == 1)
            plan.Helfer.push_back(beschriftung + vor1 + " " + nach1);
        else if (zahl >= 2)
            plan.Helfer.push_back(beschriftung + vor1 + " " + nach1 + ", " + vor2 + " " + nach2);
    };
    helfer("Lektor: ", Messe.LektorZahl[i], Messe.Lektor1Vor[i], Messe.Lektor1Nach[i],
           Messe.Lektor2Vor[i], Messe.Lektor2Nach[i]);
    helfer("Kommunionhelfer: ", Messe.KommZahl[i], Messe.Komm1Vor[i], Messe.Komm1Nach[i],
           Messe.Komm2Vor[i], Messe.Komm2Nach[i]);
    helfer("Kantor/in: ", Messe.KantorZahl[i], Messe.Kantor1Vor[i], Messe.Kantor1Nach[i],
           Messe.Kantor2Vor[i], Messe.Kantor2Nach[i]);
    helfer("Kollektant: ", Messe.KollektZahl[i], Messe.Kollekt1Vor[i], Messe.Kollekt1Nach[i],
           Messe.Kollekt2Vor[i], Messe.Kollekt2Nach[i]);
    return plan;
}

} // namespace altardienst
