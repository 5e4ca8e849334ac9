// Continuing to type in a box that has rewritten the text so far.
#pragma once

#include "values/Text.h"

#include <QLineEdit>
#include <QPointer>

namespace altardienst {

/// Boxes rewrite their text at every change: "24.12.2" is a date and becomes "24.12.2002", "1" is
/// too small for a height and becomes "5". This remembers what was typed, so that the next key at
/// the end continues from there: "24.12.20", "17". Belongs to the box and is deleted with it.
class Tippgedächtnis : public QObject {
  public:
    explicit Tippgedächtnis(QLineEdit *feld);

    bool eventFilter(QObject *, QEvent *ereignis) override;

  private:
    bool AmEnde() const;

    QPointer<QLineEdit> feld;
    QString getippt;
    QString gezeigt; // what the box made of it; empty if there is nothing to remember
    bool läuft = false;
};

/// Puts a text in the place of what stands in a box, as pasting it does: one change, which counts
/// as typed by the user.
void Eintippen(QLineEdit *feld, const Text &text);

} // namespace altardienst
