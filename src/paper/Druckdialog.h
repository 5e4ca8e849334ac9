// The print dialog: printer or PDF file, copies, and the layout where a report has two.
#pragma once

#include "paper/DruckerQt.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace altardienst {

/// The printers that can be chosen, and the one preselected.
struct Druckerliste {
    QStringList Namen;
    QString Vorgabe;
};

/// Those that the system has.
Druckerliste EingerichteteDrucker();

/// The PDF file chosen last, which the next dialog proposes again; none at the program's start.
QString &LetztePdfDatei();

/// Works without any printer: then only the PDF file can be chosen.
class DruckdialogForm : public QDialog {
  public:
    explicit DruckdialogForm(const Druckanfrage &anfrage,
                             const Druckerliste &liste = EingerichteteDrucker());

    QRadioButton *Papier;
    QComboBox *Druckername;
    QPushButton *Einstellungen;
    QSpinBox *Kopien;
    QRadioButton *Pdf;
    QLineEdit *PdfDatei;
    QPushButton *Durchsuchen;
    QLabel *Hinweis;       // why a PDF file cannot be written there
    QGroupBox *Ausführung; // hidden where a report has one layout
    QRadioButton *ErsteForm;
    QRadioButton *ZweiteForm;
    QPushButton *OKButton;
    QPushButton *CancelButton;

    /// What is chosen; the printer carries the settings made so far.
    Druckauswahl Auswahl() const;

  private:
    void Anordnen();
    void Verbinden();
    void ZielGewählt();
    void EinstellungenZeigen();
    void PdfSuchen();
    QString PdfPfad() const;
    void Bestätigen();
    std::shared_ptr<QPrinter> papier;
    QString ersetzbar; // the file that may be replaced without a question
};

/// Shows the dialog; nothing if it was cancelled.
std::optional<Druckauswahl> DruckdialogZeigen(const Druckanfrage &anfrage);

} // namespace altardienst
