// What stands at the same place in every dialog: the row of the records above, the buttons below.
#pragma once

#include "controls/Datensatzwahl.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <initializer_list>

namespace altardienst {

/// The record mover, and beside it the number of records.
QLayout *Datensatzkopf(Datensatzwahl *wahl, QLabel *beschriftung, QLabel *anzahl);

/// Those that work on the record at the left, those that leave the form at the right end.
QLayout *Knopfreihe(std::initializer_list<QPushButton *> rechts,
                    std::initializer_list<QWidget *> links = {});

} // namespace altardienst
