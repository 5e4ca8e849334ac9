// How the table of the wall sheet is set: the type as large as the paper allows.
#pragma once

#include "exchange/Aushangtafel.h"

#include <functional>
#include <optional>
#include <vector>

namespace altardienst {

/// How texts measure in one point of type size, in the unit of the paper.
struct Satzmaße {
    std::function<double(const Text &, bool fett)> Breite;
    double Zeile;   // from one line to the next
    double Geviert; // the type size itself
};

struct Satzplatz {
    double Breite;
    double Höhe;
};

/// A way to set the table.
struct Satzform {
    double Größe = 0;              // points
    int Blöcke = 1;                // parts of the table side by side on a sheet
    int Untereinander = 1;         // names of one service in a usual mass, at most
    int ImFest = 1;                // the same in a mass that needs more of them than usual
    bool ArtGeteilt = false;       // kinds of mass may stand in two lines
    std::vector<int> Anfänge = {}; // the first row of each block, through all sheets

    int Blätter() const { return (static_cast<int>(Anfänge.size()) + Blöcke - 1) / Blöcke; }
};

/// The widths in a block of a form, in the unit of the measures.
struct Satzbreiten {
    double Tag = 0;
    double Uhrzeit = 0;
    double Art = 0;
    std::vector<double> Spalten; // of one name in each column of the table; room at its sides too
    std::vector<int> Nebeneinander;

    double Gesamt() const;
};

constexpr double GrößterAushang = 20;  // points: larger type helps nobody
constexpr double KleinsterAushang = 7; // what can be read on a wall

/// The kind of a mass in one line, or in two as equal as its blanks allow.
std::vector<Text> Artzeilen(const Text &art, bool geteilt, const Satzmaße &maße);

Satzbreiten BreitenDer(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße);

/// Lines of a row.
int ZeilenDer(const Aushangreihe &reihe, const Satzform &form,
              const std::vector<int> &nebeneinander, const Satzmaße &maße);

/// Room in a row beside its lines, and between two blocks, in parts of the type size.
constexpr double Zeilenluft = 0.1; // more, where the sheet has it
constexpr double Zellenluft = 0.7;
constexpr double Blockabstand = 1.5;

/// Looks for the form of a table with the largest type.
class Satzsuche {
  public:
    /// Measures all texts.
    Satzsuche(const Aushangtafel &tafel, const Satzmaße &maße);
    ~Satzsuche();
    Satzsuche(const Satzsuche &) = delete;
    Satzsuche &operator=(const Satzsuche &) = delete;

    /// The form with the largest type with which the table fits on so many sheets, in steps of a
    /// quarter of a point, no larger than `GrößterAushang`; of forms of nearly the same size the
    /// simplest. Nothing if it would be smaller than `kleinste`.
    std::optional<Satzform> Größter(const Satzplatz &platz, int blätter,
                                    double kleinste = KleinsterAushang);

  private:
    struct Entwurf;
    static int GrößteStufe(const Entwurf &entwurf, const Satzplatz &platz, int blätter,
                           double kleinste);

    std::vector<Entwurf> entwürfe; // all that differ in more than the number of blocks
};

} // namespace altardienst
