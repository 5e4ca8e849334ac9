// What a control is for, where its caption alone does not say so.
#pragma once

#include "values/Text.h"

#include <QWidget>

#include <span>

namespace altardienst {

/// One line of the table of tooltips. The words are also in the handbook, on the page about the
/// fields.
struct Hinweis {
    const char *Fenster; // names of the forms, separated by blanks
    const char *Control; // "MDiener#" stands for MDiener1, MDiener2 and so on
    const char *Text;
};

std::span<const Hinweis> AlleHinweise();

/// What the table says about a control of a form; empty if nothing.
Text HinweisFür(const QString &fenster, const QString &control);

/// Gives the controls of a window their tooltips before it is shown for the first time. A tooltip
/// that a control already has, such as that of its key, stays below that of the table.
void HinweiseAnbringen(QWidget *fenster);

} // namespace altardienst
