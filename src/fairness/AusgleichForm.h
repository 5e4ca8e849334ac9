// "Plan ausgleichen": the search for a fair plan, and what it would change.
#pragma once

#include "application/Dialogfenster.h"
#include "fairness/Ausgleichslauf.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

#include <memory>

namespace altardienst {

/// Nothing is written before "Übernehmen"; leaving it in any other way leaves the plan as it was.
class AusgleichForm : public Dialogfenster {
  public:
    AusgleichForm();

    QCheckBox *Diener;
    QCheckBox *Helferinnen; // and Helfer
    QLineEdit *AbTag;       // masses before this day stay as they are
    QComboBox *Zeitraum;    // how far back services count
    QPushButton *Ausgleichen;
    QPushButton *Anhalten;
    QLabel *Lage; // what happens at the moment
    QTableWidget *Zahlen;
    QTabWidget *Blätter;
    QTableWidget *Anteile;    // a bar per person, before and after
    QTableWidget *Änderungen; // places that get another name
    QPlainTextEdit *Offenes;  // where a rule is still broken, why, and what would help
    QPushButton *Übernehmen;
    QPushButton *Verwerfen;
    QTimer *Takt;

  protected:
    void VorDemSchließen() override;

  private:
    void Anordnen();
    void Verbinden();

    void Beginnen();
    void Nachsehen();
    void FertigZeigen();
    void PlanÜbernehmen();
    void KnöpfeStellen();

    Text Lagetext() const;

    std::unique_ptr<Ausgleichslauf> lauf;
    Ausgleichsergebnis ergebnis;
    bool hatErgebnis = false;
    int unlesbare = 0; // files of the archive
    std::uint32_t saat = 0;
};

} // namespace altardienst
