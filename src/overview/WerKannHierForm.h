// "Wer kann hier?": everybody who could stand in a place, and what is against the others.
#pragma once

#include "controls/Kurztext.h"
#include "overview/Kandidatenmodell.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace altardienst {

/// The arrow keys move through the rows while one types in the filter; Enter puts in whoever is
/// marked. Nothing is asked: somebody against whom something stands can be put in all the same.
/// Deletes itself when closed.
class WerKannHierForm : public QDialog {
  public:
    WerKannHierForm(QWidget *über, Planplatz platz);

    Kurztext *Platzname; // which place it is
    Kurztext *Jetzt;     // who stands there
    QLineEdit *Namenfilter;
    QTableView *Kandidaten;
    QLabel *Gründe; // what is against the one who is marked
    QPushButton *Einsetzen;
    QPushButton *MitPartner;
    QPushButton *Leeren;
    QPushButton *Schließen;

  protected:
    bool eventFilter(QObject *wer, QEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void NeuLesen();
    void Filtern();
    void Markiert();
    void Besetzen(bool mitPartner);
    void PlatzLeeren();
    void ZeileWählen(int zeile);
    int Zeile() const;

    Planplatz platz;
    Planprüfung prüfung;
    Kandidatenmodell *modell;
};

} // namespace altardienst
