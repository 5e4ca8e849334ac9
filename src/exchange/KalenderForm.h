// "Kalender": the plan for phones and calendar programs.
#pragma once

#include "application/Dialogfenster.h"
#include "exchange/Kalender.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <filesystem>

namespace altardienst {

class KalenderForm : public Dialogfenster {
  public:
    KalenderForm();

    QRadioButton *AlleMessen;
    QRadioButton *JePerson;
    QComboBox *FürWen; // all, servers, helpers, or one group
    QComboBox *Namen;  // how much of them
    QLabel *Inhalt;    // what would be written
    QLabel *Hinweis;   // what was written, or why not
    QPushButton *Speichern;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void InhaltZeigen();
    void Schreiben();
    void DateiSchreiben(const Kalenderdatei &datei);
    void DateienSchreiben(const std::vector<Kalenderdatei> &dateien);
    void Gelungen(const Text &was);

    Kalenderausgabe Ausgabe() const;
    Personenkreis Kreis() const;
};

} // namespace altardienst
