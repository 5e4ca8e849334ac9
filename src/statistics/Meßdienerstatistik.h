// The figures about the servers: age, membership, composition, height.
#pragma once

#include "core/Plätze.h"
#include "values/Datum.h"
#include "values/Int16.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <array>

namespace altardienst {

struct Meßdienerstatistik {
    std::array<int, 12> Alter{};         // years: up to 9, 10 to 19 one each, 20 or more
    std::array<int, 16> Zugehörigkeit{}; // years: 0 to 14 one each, 15 or more

    // male, female, the qualifications for the services that have slots of their own, all servers.
    // A server whose sex is not given is in neither of the first two; leaders are not counted
    // separately.
    std::array<int, 3 + BesondereDienste.size()> Zusammensetzung{};

    Single Durchschnittsalter = 0;         // years, from the months
    Single Durchschnittszugehörigkeit = 0; // years, from the months
};

/// All records, as of `heute`. A membership that begins 12 or more months in the future is in no
/// class, but counts in the average. Failure 11 without servers.
Meßdienerstatistik MeßdienerAuswerten(Datum heute);

struct Größenstatistik {
    static constexpr int Klassen = 13;

    std::array<int, Klassen> Anzahl{};
    Single Mittel = 0;     // cm
    Single Abweichung = 0; // cm; the parish's own measure, smaller than the usual deviation
};

/// All records. The last class ends at 220 cm: taller servers are in none, but count in the mean.
/// Failure 11 without servers.
Größenstatistik GrößenAuswerten();

/// "bis 100", "101 bis 110" to "201 bis 210", "ab 211"; `klasse` from 0 to 12.
Text Größenklasse(int klasse);

/// Years of membership 0 to 15 (row) against age (columns 1 to 16 for 9 to 24 years). Both are
/// open-ended: under 9 counts as 9. Row 16 and column 0 stay empty.
using Kreuztabelle = Spalte<Spalte<int, 16>, 16>;

/// Failure 9 for a membership of -1 years or less, which has no row.
Kreuztabelle AlterGegenZugehörigkeit(Datum heute);

} // namespace altardienst
