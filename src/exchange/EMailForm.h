// "E-Mail": to all, to a group or to those of a mass, with the plan as text. The mail program of
// the desktop writes and sends it.
#pragma once

#include "application/Dialogfenster.h"
#include "exchange/Adressaten.h"
#include "exchange/Rundbrief.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace altardienst {

class EMailForm : public Dialogfenster {
  public:
    EMailForm();

    /// Chooses those who serve in this mass.
    void AnMesse(int messe);

    QComboBox *An;     // all, a group, a mass
    QComboBox *Gruppe; // in its place nothing or the next
    QComboBox *EineMesse;
    QCheckBox *Diener;
    QCheckBox *Helferinnen; // and Helfer
    QLineEdit *Betreff;
    QPlainTextEdit *Nachricht; // stands above the plan
    QCheckBox *MitPlan;
    QComboBox *Namen; // how much of them the plan shows
    QPlainTextEdit *Plantext;
    QLabel *Zahl;             // of the addresses
    QPlainTextEdit *Fehlende; // who has no address
    QLabel *Hinweis;
    QPushButton *Öffnen; // the mail program
    QPushButton *AdressenKopieren;
    QPushButton *TextKopieren;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void KreisGewählt();
    void AdressatenZeigen();
    void PlanZeigen();
    void BetreffVorschlagen();
    void MailÖffnen();
    void InDieAblage(const Text &text, const Text &hinweis);

    Adressatenwahl Wahl() const;
    Rundbrief Brief() const;

    Adressaten adressaten;
    QString vorschlag; // of the subject; one that was typed stays
};

} // namespace altardienst
