// What is the same in every window: the room at its edges, the row of the records above, the
// buttons below.
#pragma once

#include "controls/Datensatzwahl.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace altardienst {

/// How much room a window leaves at its edges and between its parts: the fuller it is, the less.
enum class Luft { Viel, Mittel, Wenig };

/// The column in which everything in a window stands.
QVBoxLayout *Fensterspalte(QWidget *fenster, Luft luft);

/// The record mover, and beside it the number of records.
QLayout *Datensatzkopf(Datensatzwahl *wahl, QLabel *beschriftung, QLabel *anzahl);

/// Those that work on the record at the left, those that leave the form at the right end.
QLayout *Knopfreihe(std::initializer_list<QPushButton *> rechts,
                    std::initializer_list<QWidget *> links = {});

} // namespace altardienst
