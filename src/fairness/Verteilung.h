// "Verteilung": who serves how often, in the plan and in the archive.
#pragma once

#include "overview/Platz.h"

#include <array>
#include <vector>

namespace altardienst {

/// Services of one person.
struct Dienstverteilung {
    int Nr = 0;                                  // record
    std::array<int, Dienstarten.size()> Arten{}; // by kind: `Dienstarten` or `Helferarten`
    int Dienste = 0;                             // in the plan
    int Archiv = 0;                              // in the months before it
    double Anteil = 0;                           // due share of the plan
    Datum Erster = 0;                            // date of the first service in the plan, 0 none
    Datum Letzter = 0;
    Datum Nächster = 0;      // from today on
    int LängsterAbstand = 0; // days between two services in the plan, 0 with fewer than two

    double Abweichung() const { return Dienste - Anteil; }
};

/// Of everybody with a name, in the order of the table. `archiv` by record, empty for none.
std::vector<Dienstverteilung> DiensteVerteilt(const Plantabellen &tabellen, Planplatz::Art art,
                                              const std::vector<double> &archiv, Datum heute);

/// The same as a table to copy: a heading, then a line a person, by tabs.
Text VerteilungAlsTabelle(const Plantabellen &tabellen, Planplatz::Art art,
                          const std::vector<Dienstverteilung> &verteilung);

/// The columns of the table, as headings.
std::vector<Text> Verteilungsköpfe(Planplatz::Art art);

/// The texts of a person's row.
std::vector<Text> Verteilungszeile(const Plantabellen &tabellen, Planplatz::Art art,
                                   const Dienstverteilung &person);

/// What the columns sort by.
std::vector<double> Verteilungswerte(Planplatz::Art art, const Dienstverteilung &person);

/// Prints the table as the report "Verteilung".
void VerteilungDrucken(const Plantabellen &tabellen, Planplatz::Art art,
                       const std::vector<Dienstverteilung> &verteilung);

} // namespace altardienst
