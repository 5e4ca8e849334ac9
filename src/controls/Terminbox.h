// Boxes for a date or a time of day: stepping and rewriting them.
#pragma once

#include <QLineEdit>

namespace altardienst {

/// A text box for a date or a time of day, wide enough for one and marked while none stands in it;
/// a date box has a calendar.
QLineEdit *Datumsbox(const char *name);
QLineEdit *Zeitbox(const char *name);

// Each reads the box and rewrites it; failure 13 if it holds no date or time.
void TageWeiter(QLineEdit *feld, int tage);
void MonateWeiter(QLineEdit *feld, int monate);
void JahreWeiter(QLineEdit *feld, int jahre);
void StundenWeiter(QLineEdit *feld, int stunden);
void MinutenWeiter(QLineEdit *feld, int minuten);

/// Rewrites it in the short date format or the long time format of the locale.
void AlsKurzesDatum(QLineEdit *feld);
void AlsLangeZeit(QLineEdit *feld);

} // namespace altardienst
