// The number box of the record editors: a text box with a spin button next to it, clipped on
// change.
#pragma once

#include "controls/Feldmarke.h"
#include "controls/LesenOderFokus.h"
#include "controls/SpinButton.h"
#include "core/Umwandlung.h"

#include <QGridLayout>
#include <QLineEdit>

#include <array>

namespace altardienst {

struct Zahlbox {
    QLineEdit *Feld;
    SpinButton *Spin;
};

/// A text box for a number, marked while `prüfung` has something to say about its text.
QLineEdit *Zahleneingabe(const char *name, Text (*prüfung)(const Text &) = KeineZahl);

/// A number box, marked while no number stands in it, whose arrow keys do what its spin button
/// does. `text` is what the spin button changes, for screen readers.
Zahlbox ZahlboxAnlegen(const char *name, const char *spinName, const char *text);

/// Puts label, box and spin button in one row of a grid, starting at `spalte`.
void ZahlboxAnordnen(QGridLayout *raster, int zeile, int spalte, const char *text,
                     const Zahlbox &box);

/// The spin button adds or subtracts one. Trapped: a box without a number stays as it is.
void DrehenVerbinden(const Zahlbox &box);

/// The same, but it also gives the box the focus.
void DrehenMitFokus(const Zahlbox &box);

/// On every change the box is clipped, then the field takes its number. If the box holds no number,
/// both stay as they are.
void BegrenztVerbinden(QLineEdit *feld, Int16 &wert, int von, int bis);

/// Failure 13 if the box holds no number.
int ZahlIn(const QLineEdit *feld);
void ZahlSetzen(QLineEdit *feld, int zahl);

/// Adds to the number in a box, however large; a fraction is kept. Failure 13 as above.
void Weiterzählen(QLineEdit *feld, int um);

/// Shows the numbers of record `i` in boxes, or writes the boxes to it, one after the other; a box
/// that holds no number takes the focus.
template <std::size_t n, class Spalte>
void ZahlenZeigen(const std::array<QLineEdit *, n> &felder, const std::array<Spalte *, n> &spalten,
                  int i)
{
    for (std::size_t k = 0; k < n; ++k)
        ZahlSetzen(felder[k], (*spalten[k])[i]);
}

template <std::size_t n, class Spalte>
void ZahlenSchreiben(const std::array<QLineEdit *, n> &felder,
                     const std::array<Spalte *, n> &spalten, int i)
{
    for (std::size_t k = 0; k < n; ++k)
        (*spalten[k])[i] = LesenOderFokus(felder[k], Int16Lesen);
}

/// Brings the number in a box, however large, within its limits; returns what the box then holds.
/// Failure 13 as above.
int Begrenzen(QLineEdit *feld, int von, int bis);

} // namespace altardienst
