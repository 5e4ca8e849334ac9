// "Dienstzettel": a slip for each person, to print, to paste and as a file.
#pragma once

#include "application/Dialogfenster.h"
#include "exchange/Dienstzettel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace altardienst {

class DienstzettelForm : public Dialogfenster {
  public:
    DienstzettelForm();

    QCheckBox *Diener;
    QCheckBox *Helferinnen; // and Helfer
    QCheckBox *AuchOhneDienst;
    QComboBox *Ordnung;
    QPlainTextEdit *Vorschau; // the slips as text
    QLabel *Hinweis;
    QPushButton *Kopieren;
    QPushButton *Speichern;
    QPushButton *Drucken;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void Zeigen();
    void InDieAblage();
    void InDatei();
    Zettelwahl Wahl() const;
    Text Zahlsatz() const;

    std::vector<Dienstzettel> zettel;
};

} // namespace altardienst
