// The print dialog: printer or PDF file, copies, and the layout where a report has two.
#pragma once

#include "fenster/DruckerQt.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace altardienst {

/// Works without any printer: then only the PDF file can be chosen.
class DruckdialogForm : public QDialog {
  public:
    explicit DruckdialogForm(const Druckanfrage &anfrage);

    QRadioButton *Papier;
    QComboBox *Druckername;
    QPushButton *Einstellungen;
    QSpinBox *Kopien;
    QRadioButton *Pdf;
    QLineEdit *PdfDatei;
    QPushButton *Durchsuchen;
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

    std::shared_ptr<QPrinter> papier;
};

/// Shows the dialog; nothing if it was cancelled.
std::optional<Druckauswahl> DruckdialogZeigen(const Druckanfrage &anfrage);

} // namespace altardienst
