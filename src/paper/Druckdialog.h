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

/// The printers to choose from, and the one that is preselected.
struct Druckerliste {
    QStringList Namen;
    QString Vorgabe;
};

/// The printers set up on the system.
Druckerliste EingerichteteDrucker();

/// The PDF file chosen last, which the next dialog proposes again; none when the program starts.
QString &LetztePdfDatei();

/// Works without a printer: then only the PDF file can be chosen.
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
    QLabel *Hinweis;       // why no PDF file can be written there
    QGroupBox *Ausführung; // hidden if the report has only one layout
    QRadioButton *ErsteForm;
    QRadioButton *ZweiteForm;
    QPushButton *OKButton;
    QPushButton *CancelButton;

    /// The choice made; its printer has the settings made so far.
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

/// Shows the dialog and returns the choice; nothing if it was cancelled.
std::optional<Druckauswahl> DruckdialogZeigen(const Druckanfrage &anfrage);

} // namespace altardienst
