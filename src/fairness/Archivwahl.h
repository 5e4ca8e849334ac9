// How far back services count: the choice, and what the archive has to say to it.
#pragma once

#include "fairness/Archiv.h"

#include <QComboBox>

namespace altardienst {

/// "nur dieser Plan", or with the last 3, 6 or 12 months.
QComboBox *Archivwahl(const char *name);

/// What is chosen there, counted before the first day of the plan.
Archivzählung ArchivVorDemPlan(const QComboBox *wahl);

/// The sentence about files that cannot be read; empty if there is none.
Text UnlesbaresText(int dateien);

} // namespace altardienst
