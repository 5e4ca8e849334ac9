// "Tabellen": servers, helpers or the plan as a file for a spreadsheet.
#pragma once

#include "application/Dialogfenster.h"
#include "exchange/Tabellen.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace altardienst {

class TabellenForm : public Dialogfenster {
  public:
    TabellenForm();

    QComboBox *Welche;    // list
    QListWidget *Spalten; // to tick; remembered for each list
    QPushButton *Alle;
    QPushButton *Übliche;
    QLabel *Lage; // how much would be written, what was
    QPushButton *Speichern;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    Tabellenart Art() const;
    void ListeZeigen();
    void Ankreuzen(const QStringList &namen);
    std::vector<int> Gewählte() const;
    void Merken();
    void LageZeigen();
    void TabelleSpeichern();
};

} // namespace altardienst
