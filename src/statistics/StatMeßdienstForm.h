// The services of servers that the masses of the plan call for.
#pragma once

#include "application/Dialogfenster.h"
#include "core/Plätze.h"

#include <QLabel>
#include <QPushButton>

namespace altardienst {

/// Failure 11 if services are wanted and there are no servers: the window is then not created.
class StatMeßdienstForm : public Dialogfenster {
  public:
    StatMeßdienstForm();

    QLabel *MGges, *MGMes; // total and per mass: Gabenbereitung
    QLabel *MLges, *MLMes; // Leuchter
    QLabel *MFges, *MFMes; // Flambeau
    QLabel *MWges, *MWMes; // Weihrauch
    QLabel *MKges, *MKMes; // Kreuzträger
    QLabel *MAges, *MAMes; // Allgemein
    QLabel *DMges;         // all services
    QLabel *DMm;           // per mass
    QLabel *DjM;           // per server
    QPushButton *Druck;
    QPushButton *Ende;

  private:
    using Labels = std::array<QLabel *, Dienstarten.size()>;
    Labels Gesamt() const;
    Labels JeMesse() const;

    void Anordnen();
    void Füllen();
};

} // namespace altardienst
