// The print dialog: printer or PDF file, copies, and the layout where a report has two.
#pragma once

#include "paper/DruckerQt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <functional>
#include <map>

namespace altardienst {

/// The printers to choose from, and the one that is preselected.
struct Druckerliste {
    QStringList Namen;
    QString Vorgabe;
};

/// The printers set up on the system.
Druckerliste EingerichteteDrucker();

/// What is remembered of the dialog from one run of the program to the next.
struct Druckgewohnheit {
    QString Verzeichnis;      // of the last PDF file; empty: none yet
    bool DanachÖffnen = true; // whether it is looked at once it is written
};

/// Where that is kept; until there are windows it lasts as long as the program.
struct DruckgewohnheitDienst {
    std::function<Druckgewohnheit()> Lesen;
    std::function<void(const Druckgewohnheit &)> Merken;
};
extern DruckgewohnheitDienst Druckgewohnheiten;

/// The names given to PDF files in this run, by the name that their report has of its own: the next
/// dialog of the same report proposes the same name again.
std::map<QString, QString> &GegebenePdfNamen();

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
    QLabel *Hinweis; // why no PDF file can be written there
    QCheckBox *DanachÖffnen;
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
    QString vorschlag; // the name of a PDF file of this report, without extension
    QString ersetzbar; // the file that may be replaced without a question
};

/// Shows the dialog and returns the choice; nothing if it was cancelled.
std::optional<Druckauswahl> DruckdialogZeigen(const Druckanfrage &anfrage);

} // namespace altardienst
