// "Webseite": the plan as one file for the browser.
#pragma once

#include "exchange/Ausgabefenster.h"
#include "exchange/Webseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace altardienst {

class WebseiteForm : public Ausgabefenster {
  public:
    WebseiteForm();

    QLineEdit *Titel;
    QComboBox *Namen; // how much of them
    QCheckBox *MitHelfern;
    QCheckBox *DanachÖffnen;

  private:
    void Anordnen();
    void Verbinden();

    void InhaltZeigen();
    void Schreiben();

    Webseite Seite() const;
};

} // namespace altardienst
