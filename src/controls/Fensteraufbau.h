// What is the same in every window: the margins, the record row at the top, the buttons at the
// bottom.
#pragma once

#include "controls/Datensatzwahl.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace altardienst {

/// How much space a window leaves at its edges and between its parts: the fuller it is, the less.
enum class Luft { Viel, Mittel, Wenig };

/// The column that holds everything in a window, whose controls get their tooltips, apart from what
/// stands at its left.
QVBoxLayout *Fensterspalte(QWidget *fenster, Luft luft, QWidget *links = nullptr);

/// The record mover, with the number of records next to it where a form shows it. Stands at the
/// top of every editor.
QLayout *Datensatzkopf(Datensatzwahl *wahl, QLabel *beschriftung = nullptr,
                       QLabel *anzahl = nullptr);

/// Buttons that work on the record go on the left, those that leave the form on the far right.
QLayout *Knopfreihe(std::initializer_list<QPushButton *> rechts,
                    std::initializer_list<QWidget *> links = {});

} // namespace altardienst
