// How a field of a file becomes a value: dates, numbers and answers in the forms that people write.
#pragma once

#include "exchange/Spalten.h"
#include "values/Datum.h"

namespace altardienst {

/// "6.1.2012", "06.01.12", "2012-01-06", "6. Januar 2012", "Fr, 6.1.2012", "28/2/2012" (the month
/// may also come first), most also with a time of day, which is dropped. Failure 13 otherwise.
Datum TagDesFelds(const Text &feld);

// Each gives the value in its one spelling; for an empty field that of a value that is not set.
Feldlesung DatumAusFeld(const Text &feld);
Feldlesung GeburtstagAusFeld(const Text &feld); // hardly after today
Feldlesung GrößeAusFeld(const Text &feld);      // "165", "165 cm", "1,65 m"
Feldlesung PlzAusFeld(const Text &feld);        // "48999", "D-48999"
Feldlesung HäufigkeitAusFeld(const Text &feld); // 0 to 20, "normal", "oft"
Feldlesung JaNeinAusFeld(const Text &feld);     // "ja", "x", "1", "nein", "-"; empty: "nein"
// As in the editor any text will do, but of others than these somebody has to look at it.
Feldlesung GeschlechtAusFeld(const Text &feld); // "m", "w", "männlich", "Junge"
Feldlesung HelferdienstAusFeld(const Text &feld);

/// A text of the helpers, whose file has one value a line; of the servers, whose file ends a value
/// at a comma too.
Feldlesung HelfertextAusFeld(const Text &feld);
Feldlesung DienertextAusFeld(const Text &feld);

constexpr int LängsterText = 250; // characters

} // namespace altardienst
