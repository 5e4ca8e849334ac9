// The table of masses as texts, record by record, for comparing it with a model.
#pragma once

#include "core/Felderlisten.h"
#include "core/Umwandlung.h"

#include <vector>

namespace altardienst {

using Satz = std::vector<Text>; // every field of a record, in file order
using Messenbild = std::vector<Satz>;

/// The index in a `Satz` of the service of slot 1; that of each further slot is three higher.
constexpr std::size_t ErsterDienst = 13;

/// Visits the fields of a record.
struct Satzleser {
    Satz &Werte;

    void operator()(const Text &wert) const { Werte.push_back(wert); }
    void operator()(Int16 wert) const { Werte.push_back(ZahlText(int(wert))); }
    void operator()(Datum wert) const { Werte.push_back(DatumText(wert)); }
    void Zeit(Datum wert) const { Werte.push_back(DatumText(wert)); }
};

inline Satz MesseSatz(int i)
{
    Satz satz;
    MesseFelder(i, Satzleser{satz});
    return satz;
}

inline Satz StandardmesseSatz(int i)
{
    Satz satz;
    StandardmesseFelder(i, Satzleser{satz});
    return satz;
}

/// All records of the table, including unused ones.
inline Messenbild MessenJetzt()
{
    Messenbild bild;
    for (int i = 0; i <= MesseTabelle::HöchsterIndex; ++i)
        bild.push_back(MesseSatz(i));
    return bild;
}

inline Messenbild StandardmessenJetzt()
{
    Messenbild bild;
    for (int i = 0; i <= StandardmesseTabelle::HöchsterIndex; ++i)
        bild.push_back(StandardmesseSatz(i));
    return bild;
}

/// A mass that differs from every other in all its texts, and whose number of servers is not the
/// sum of its services. Record 0 is on Sunday, 22.11.2026, the others on the days after it.
inline void MesseFüllen(int i)
{
    const Text n = ZahlText(i);
    const Datum tag = DatumAus({2026, 11, 22}) + i;
    Messe.Wochentag[i] = WochentagName(tag);
    Messe.Datum[i] = tag;
    Messe.Uhrzeit[i] = ZeitAus(8 * 3600 + 60 * (i % 600));
    Messe.Messeart[i] = "Art" + n;
    Messe.Kennung[i] = "s" + n;
    Messe.Dienerzahl[i] = 11 + i % 4;
    Messe.Gabenbereitung[i] = i % 3;
    Messe.Leuchter[i] = 2 - i % 3;
    Messe.Flambeau[i] = i % 5;
    Messe.Weihrauch[i] = 1;
    Messe.Kreuzträger[i] = i % 2;
    Messe.Allgemein[i] = 1;
    for (int k = 0; k <= 20; ++k) {
        const Text slot = ZahlText(k) + "/" + n;
        Messe.DienerVor[i][k] = "Vor" + slot;
        Messe.DienerNach[i][k] = "Nach" + slot;
        Messe.DienerDienst[i][k] = "Dienst" + slot;
    }
    int nummer = 0;
    const auto helfer = [&](auto &zahl, auto &...namen) {
        zahl[i] = (i + ++nummer) % 3;
        ((namen[i] = "Helfer" + ZahlText(++nummer) + "/" + n), ...);
    };
    helfer(Messe.LektorZahl, Messe.Lektor1Vor, Messe.Lektor1Nach, Messe.Lektor2Vor,
           Messe.Lektor2Nach);
    helfer(Messe.KommZahl, Messe.Komm1Vor, Messe.Komm1Nach, Messe.Komm2Vor, Messe.Komm2Nach);
    helfer(Messe.KantorZahl, Messe.Kantor1Vor, Messe.Kantor1Nach, Messe.Kantor2Vor,
           Messe.Kantor2Nach);
    helfer(Messe.KollektZahl, Messe.Kollekt1Vor, Messe.Kollekt1Nach, Messe.Kollekt2Vor,
           Messe.Kollekt2Nach);
}

inline void MessenFüllen(int anzahl)
{
    for (int i = 0; i < anzahl; ++i)
        MesseFüllen(i);
    Messe.Anzahl = anzahl;
}

} // namespace altardienst
