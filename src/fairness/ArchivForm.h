// "Archiv": the periods whose services are kept.
#pragma once

#include "application/Dialogfenster.h"
#include "fairness/Archiv.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace altardienst {

class ArchivForm : public Dialogfenster {
  public:
    ArchivForm();

    QTableWidget *Zeiträume; // the newest first
    QTableWidget *Dienste;   // of the one that is chosen
    QLabel *Hinweis;
    QPushButton *Löschen; // asks
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void Auflisten();
    void InhaltZeigen();
    void ZeitraumLöschen();
    int Zeile() const;

    std::vector<Archivzeitraum> zeiträume;
};

} // namespace altardienst
