// The boxes for the periods in which a server or helper is away.
#pragma once

#include "controls/Datumsfeld.h"

#include <QGridLayout>
#include <QLabel>

#include <array>
#include <vector>

namespace altardienst {

/// One period: `Start` and `Schluß` (from the second period on followed by its number), each with
/// three of the six spin buttons `ä1` to `ä6`, `ä7` to `ä12` and so on.
class Abwesenheit {
  public:
    explicit Abwesenheit(int nummer); // from 1

    Datumsfeld Start;
    Datumsfeld Schluß;

    QLabel *Keine; // says so while both dates are today's, as in a period that is not set

    void Anordnen(QGridLayout *raster, int zeile) const;
    void Verbinden() const;

  private:
    int nummer;
};

/// All periods of a person. A period cannot end before it starts, and one that started more than
/// two calendar years ago starts today, even if it is only shown. From the second period on, an
/// empty box takes today's date.
class Abwesenheitsboxen {
  public:
    explicit Abwesenheitsboxen(int anzahl);

    std::vector<Abwesenheit> Zeiten;

    QLayout *Anordnen() const;
    void Verbinden() const;

    /// Shows or writes record `i`; `spalten` are Von1, Bis1, Von2 and so on.
    template <class Spalten> void Zeigen(const Spalten &spalten, int i) const
    {
        for (std::size_t k = 0; k < Zeiten.size(); ++k) {
            Zeiten[k].Start.Zeigen((*spalten[2 * k])[i]);
            Zeiten[k].Schluß.Zeigen((*spalten[2 * k + 1])[i]);
        }
    }
    template <class Spalten> void Schreiben(const Spalten &spalten, int i) const
    {
        for (std::size_t k = 0; k < Zeiten.size(); ++k) {
            (*spalten[2 * k])[i] = Zeiten[k].Start.Wert();
            (*spalten[2 * k + 1])[i] = Zeiten[k].Schluß.Wert();
        }
    }
};

} // namespace altardienst
