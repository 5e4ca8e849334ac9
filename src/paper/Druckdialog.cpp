// The print dialog.
#include "paper/Druckdialog.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace altardienst {
namespace {

/// Where files named without a directory go: nobody would find them in the directory of the
/// process.
QDir Ablage()
{
    const QDir dokumente = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return dokumente.exists() ? dokumente : QDir::home();
}

bool IstBeschreibbar(const QString &datei)
{
    const QFileInfo ziel(datei);
    const QFileInfo verzeichnis(ziel.path());
    return verzeichnis.isDir() && verzeichnis.isWritable() && !ziel.isDir();
}

/// The name of a PDF file of this report, without extension; a report without a name has none.
QString EigenerName(const Druckanfrage &anfrage)
{
    return Anzeige(AlsDateiname(anfrage.Dateiname.empty() ? anfrage.Name : anfrage.Dateiname));
}

/// In the directory used last, under the name given to this report last, or else its own. Where
/// that directory has disappeared in the meantime: its own name, with the documents.
QString PdfVorschlag(const QString &name)
{
    const QString eigene = (name.isEmpty() ? "Altardienst" : name) + ".pdf";
    const auto gegeben = GegebenePdfNamen().find(name);
    const QString datei = gegeben == GegebenePdfNamen().end() ? eigene : gegeben->second;
    const QString verzeichnis = Druckgewohnheiten.Lesen().Verzeichnis;
    const QString dort = QDir(verzeichnis).filePath(datei);
    return !verzeichnis.isEmpty() && IstBeschreibbar(dort) ? dort : Ablage().filePath(eigene);
}

DruckgewohnheitDienst NurInDiesemLauf()
{
    auto gewohnheit = std::make_shared<Druckgewohnheit>();
    return {[gewohnheit] { return *gewohnheit; },
            [gewohnheit](const Druckgewohnheit &neu) { *gewohnheit = neu; }};
}

template <class Control> Control *Option(const char *name, const QString &text)
{
    return Benannt(new Control(text), name);
}

} // namespace

DruckgewohnheitDienst Druckgewohnheiten = NurInDiesemLauf();

std::map<QString, QString> &GegebenePdfNamen()
{
    static std::map<QString, QString> namen;
    return namen;
}

Druckerliste EingerichteteDrucker()
{
    return {QPrinterInfo::availablePrinterNames(), QPrinterInfo::defaultPrinterName()};
}

DruckdialogForm::DruckdialogForm(const Druckanfrage &anfrage, const Druckerliste &liste)
    : Papier(Option<QRadioButton>("Papier", "Drucker:")),
      Druckername(Benannt(new QComboBox, "Druckername")),
      Einstellungen(Knopf("Einstellungen", "Einstellungen...")),
      Kopien(Benannt(new QSpinBox, "Kopien")), Pdf(Option<QRadioButton>("Pdf", "PDF-Datei:")),
      PdfDatei(Benannt(new QLineEdit, "PdfDatei")),
      Durchsuchen(Knopf("Durchsuchen", "Durchsuchen...")), Hinweis(Beschriftung("Hinweis", "")),
      DanachÖffnen(Option<QCheckBox>("DanachÖffnen", "danach öffnen")),
      Ausführung(Benannt(new QGroupBox("Ausführung"), "Ausführung")),
      ErsteForm(Option<QRadioButton>("ErsteForm", Anzeige(anfrage.ErsteForm))),
      ZweiteForm(Option<QRadioButton>("ZweiteForm", Anzeige(anfrage.ZweiteForm))),
      OKButton(Knopf("OKButton", "OK")), CancelButton(Knopf("CancelButton", "Abbrechen")),
      papier(std::make_shared<QPrinter>(QPrinter::HighResolution)), vorschlag(EigenerName(anfrage))
{
    Benannt(this, "CommonDialog1");
    setWindowTitle(anfrage.Name.empty() ? "Drucken" : "Drucken: " + Anzeige(anfrage.Name));
    PdfDatei->setText(QDir::toNativeSeparators(PdfVorschlag(vorschlag)));
    DanachÖffnen->setChecked(Druckgewohnheiten.Lesen().DanachÖffnen);
    Druckername->setAccessibleName("Drucker");
    PdfDatei->setAccessibleName("PDF-Datei");
    Kopien->setRange(1, 99);
    Druckername->addItems(liste.Namen);
    Druckername->setCurrentText(liste.Vorgabe);
    const bool hatDrucker = Druckername->count() > 0;
    if (!hatDrucker)
        Druckername->setPlaceholderText("kein Drucker eingerichtet");
    Papier->setEnabled(hatDrucker);
    (hatDrucker ? Papier : Pdf)->setChecked(true);
    Ausführung->setVisible(anfrage.HatZweiFormen());
    ErsteForm->setChecked(true);
    Anordnen();
    Verbinden();
    ZielGewählt();
}

void DruckdialogForm::Anordnen()
{
    // Without a group of their own they would form one group with the options of the frame below.
    auto *ziele = new QButtonGroup(this);
    for (QRadioButton *ziel : {Papier, Pdf})
        ziele->addButton(ziel);

    PdfDatei->setMinimumWidth(320);
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(10);
    raster->addWidget(Papier, 0, 0);
    raster->addWidget(Druckername, 0, 1);
    raster->addWidget(Einstellungen, 0, 2);
    raster->addWidget(Beschriftung("KopienText", "Kopien:", Kopien), 1, 0);
    raster->addWidget(Kopien, 1, 1, Qt::AlignLeft);
    raster->addWidget(Pdf, 2, 0);
    raster->addWidget(PdfDatei, 2, 1);
    raster->addWidget(Durchsuchen, 2, 2);
    raster->addWidget(DanachÖffnen, 3, 1, 1, 2, Qt::AlignLeft);
    raster->addWidget(Hinweis, 4, 1, 1, 2);

    auto *formen = new QHBoxLayout(Ausführung);
    formen->addWidget(ErsteForm);
    formen->addWidget(ZweiteForm);
    formen->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(raster);
    spalte->addWidget(Ausführung);
    spalte->addLayout(Knopfreihe({OKButton, CancelButton}));
    OKButton->setDefault(true);
    OKButton->setFocus();
}

void DruckdialogForm::Verbinden()
{
    connect(Papier, &QRadioButton::toggled, this, Abgefangen([this] { ZielGewählt(); }));
    connect(PdfDatei, &QLineEdit::textChanged, this, Abgefangen([this] { ZielGewählt(); }));
    connect(Einstellungen, &QPushButton::clicked, this, Offen([this] { EinstellungenZeigen(); }));
    connect(Durchsuchen, &QPushButton::clicked, this, Offen([this] { PdfSuchen(); }));
    BeiFokusVerlust(PdfDatei, Abgefangen([this] {
                        if (const QString pfad = PdfPfad(); !pfad.isEmpty())
                            PdfDatei->setText(QDir::toNativeSeparators(pfad));
                    }));
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Bestätigen(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { reject(); });
}

void DruckdialogForm::ZielGewählt()
{
    const bool aufPapier = Papier->isChecked();
    for (QWidget *control : std::initializer_list<QWidget *>{Druckername, Einstellungen, Kopien})
        control->setEnabled(aufPapier);
    for (QWidget *control : std::initializer_list<QWidget *>{PdfDatei, Durchsuchen, DanachÖffnen})
        control->setEnabled(!aufPapier);
    const QString pfad = PdfPfad();
    const bool beschreibbar = !pfad.isEmpty() && IstBeschreibbar(pfad);
    OKButton->setEnabled(aufPapier || beschreibbar);
    Hinweis->setText(aufPapier || pfad.isEmpty() || beschreibbar
                         ? ""
                         : "In dieses Verzeichnis lässt sich nichts schreiben.");
}

/// The file as it will be written; empty without a name.
QString DruckdialogForm::PdfPfad() const
{
    QString name = PdfDatei->text().trimmed();
    if (name.isEmpty() || name.endsWith('/') || name.endsWith('\\'))
        return {}; // a directory
    if (!name.endsWith(".pdf", Qt::CaseInsensitive))
        name += ".pdf";
    return QDir::cleanPath(Ablage().absoluteFilePath(name));
}

void DruckdialogForm::Bestätigen()
{
    const QString pfad = PdfPfad();
    if (Pdf->isChecked() && pfad != ersetzbar && QFileInfo::exists(pfad) &&
        !Meldungen.FragenVorVerlust("Die Datei " + QDir::toNativeSeparators(pfad).toStdString() +
                                        " gibt es schon. Soll sie ersetzt werden?",
                                    "Drucken"))
        return;
    accept();
}

/// The platform's own dialog, for what this one leaves out (tray, two-sided printing, colour).
void DruckdialogForm::EinstellungenZeigen()
{
    papier->setPrinterName(Druckername->currentText());
    papier->setCopyCount(Kopien->value());
    QPrintDialog einstellungen(papier.get(), this);
    if (einstellungen.exec() != QDialog::Accepted)
        return;
    Druckername->setCurrentText(papier->printerName());
    Kopien->setValue(papier->copyCount());
}

void DruckdialogForm::PdfSuchen()
{
    const QString datei =
        QFileDialog::getSaveFileName(this, "PDF-Datei", PdfPfad(), "PDF-Dateien (*.pdf)");
    if (datei.isEmpty())
        return;
    ersetzbar = datei; // the system's dialog has already asked
    PdfDatei->setText(QDir::toNativeSeparators(datei));
}

Druckauswahl DruckdialogForm::Auswahl() const
{
    Druckauswahl auswahl;
    auswahl.Modus = ZweiteForm->isChecked() ? DruckerDienst::ZweiteForm : 0;
    if (Pdf->isChecked()) {
        const QFileInfo datei(PdfPfad());
        GegebenePdfNamen()[vorschlag] = datei.fileName();
        Druckgewohnheiten.Merken({datei.path(), DanachÖffnen->isChecked()});
        auswahl.Ziel = PdfDrucker(PdfPfad());
        auswahl.DanachÖffnen = DanachÖffnen->isChecked();
    } else {
        papier->setPrinterName(Druckername->currentText());
        papier->setCopyCount(Kopien->value());
        auswahl.Ziel = papier;
    }
    return auswahl;
}

std::optional<Druckauswahl> DruckdialogZeigen(const Druckanfrage &anfrage)
{
    DruckdialogForm dialog(anfrage);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Auswahl();
}

} // namespace altardienst
