// "Webseite": the plan as one file for the browser.
#pragma once

#include "application/Dialogfenster.h"
#include "exchange/Webseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace altardienst {

class WebseiteForm : public Dialogfenster {
  public:
    WebseiteForm();

    QLineEdit *Titel;
    QComboBox *Namen; // how much of them
    QCheckBox *MitHelfern;
    QCheckBox *DanachÖffnen;
    QLabel *Inhalt;  // what would be written
    QLabel *Hinweis; // what was written, or why not
    QPushButton *Speichern;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void InhaltZeigen();
    void Schreiben();

    Webseite Seite() const;
};

} // namespace altardienst
