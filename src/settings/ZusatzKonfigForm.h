// The settings for the proposed start date and for the services that are set by hand.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Zahlbox.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace altardienst {

/// Every control writes its field at once; closing the form checks nothing.
class ZusatzKonfigForm : public Dialogfenster {
  public:
    ZusatzKonfigForm();

    QCheckBox *Wer;
    QCheckBox *Kr;
    std::array<QRadioButton *, 7> OO; // OO1 to OO7
    Zahlbox WOBO;                     // UI1
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();
};

} // namespace altardienst
