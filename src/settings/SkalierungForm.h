// Print scales and table sizes.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Zahlbox.h"

#include <QPushButton>

#include <functional>

namespace altardienst {

/// Every change is stored at once; there is no cancel.
class SkalierungForm : public Dialogfenster {
  public:
    SkalierungForm();

    Zahlbox XSKALA; // XX
    Zahlbox YSKALA; // YY
    Zahlbox MDS;    // MDSS
    Zahlbox MHS;    // MHSS
    Zahlbox MS;     // MSS
    Zahlbox MGS;    // MGSS
    Zahlbox MJS;    // MJSS
    Zahlbox MVS;    // MVSS
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
};

} // namespace altardienst
