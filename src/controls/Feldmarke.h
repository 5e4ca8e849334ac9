// A box is marked as long as the program could not read what stands in it, or a file would not
// survive it.
#pragma once

#include "values/Text.h"

#include <QLineEdit>

#include <functional>

namespace altardienst {

/// What is wrong with a text, as one sentence; empty if nothing is.
using Feldprüfung = std::function<Text(const Text &text)>;

/// Marks the box as long as the check has something to say about its text: a red frame and a sign,
/// both drawn by the style, and the sentence as tooltip and for screen readers. Its own tooltip and
/// description come back with the first text that is in order. Text, focus and events stay as they
/// are, and nothing is prevented. The text box of a list to choose from passes the sentence on to
/// that list, which has the focus in its place.
void FeldPrüfen(QLineEdit *feld, Feldprüfung prüfung);

bool IstMarkiert(const QWidget *feld);

/// The tooltip that a control has while no mark covers it.
QString EigenerHinweis(const QWidget *control);

// The checks: each asks the routine by which the program reads such a box.

Text KeinDatum(const Text &text);
Text KeineUhrzeit(const Text &text);
Text KeineZahl(const Text &text);         // a whole number of 16 bits, also for a fraction
Text KeinePostleitzahl(const Text &text); // a whole number of 32 bits
Text KeinMaß(const Text &text);           // a fraction

/// A text that the reader of delimited values does not give back in one piece: everything after it
/// in the file moves down. `folge` says what is missing after the next start, without the full
/// stop.
Feldprüfung ZerreißtDieDatei(const char *folge);

} // namespace altardienst
