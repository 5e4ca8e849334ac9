// "Kalender": the plan for phones and calendar programs.
#pragma once

#include "exchange/Ausgabefenster.h"
#include "exchange/Kalender.h"

#include <QComboBox>
#include <QRadioButton>

namespace altardienst {

class KalenderForm : public Ausgabefenster {
  public:
    KalenderForm();

    QRadioButton *AlleMessen;
    QRadioButton *JePerson;
    QComboBox *FürWen; // all, servers, helpers, or one group
    QComboBox *Namen;  // how much of them

  private:
    void Anordnen();
    void Verbinden();

    void InhaltZeigen();
    void Schreiben();
    void EineSchreiben(const Kalenderdatei &datei);
    void AlleSchreiben(const std::vector<Kalenderdatei> &dateien);

    Kalenderausgabe Ausgabe() const;
    Personenkreis Kreis() const;
};

} // namespace altardienst
