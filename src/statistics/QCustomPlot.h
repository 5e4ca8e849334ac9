// The chart library. It is written with Qt's short keywords, which are disabled in this program.
#pragma once

#include <QtGlobal>

#define signals Q_SIGNALS
#define slots Q_SLOTS
#define emit
#define foreach Q_FOREACH
#include <qcustomplot.h>
#undef signals
#undef slots
#undef emit
#undef foreach
