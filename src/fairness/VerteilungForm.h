// "Verteilung": who serves how often, as a table and as a chart.
#pragma once

#include "application/Dialogfenster.h"
#include "fairness/Verteilung.h"
#include "statistics/Diagrammbild.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace altardienst {

class VerteilungForm : public Dialogfenster {
  public:
    VerteilungForm();

    QComboBox *Wer;      // servers or helpers
    QComboBox *Zeitraum; // how far back the archive is counted
    QTableWidget *Tafel;
    Diagrammbild *Bild; // how many people serve how often
    QLabel *Hinweis;
    QPushButton *Kopieren;
    QPushButton *Drucken;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void Zählen();
    void Sagen(const Text &text);
    void TafelFüllen();
    void BildZeichnen();

    Planplatz::Art Art() const;

    std::vector<Dienstverteilung> verteilung;
};

} // namespace altardienst
