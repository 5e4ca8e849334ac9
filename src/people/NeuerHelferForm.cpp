// The dialog that adds a helper.
#include "people/NeuerHelferForm.h"

#include "core/tables.h"
#include "fenster/Bausteine.h"
#include "fenster/Handler.h"
#include "people/HelferForm.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteHelfer = 200;

} // namespace

NeuerHelferForm::NeuerHelferForm(std::function<void(bool)> danach)
    : Person({"Vorne", "Hinten", "Weg", "PLZetus", "Wohort", "Anruf", "Mailen"}),
      Tagen("Tagen", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Dient(Dienstwahl("Dient", "Dienst 1")), Dient2(Dienstwahl("Dient2", "Dienst 2")),
      OKButton(Knopf("OKButton", "OK")), CancelButton(Knopf("CancelButton", "Abbrechen")),
      danach(std::move(danach))
{
    Benannt(this, "NeuerHelfer");
    setWindowTitle("Neuer Helfer");
    Anordnen();
    Verbinden();
    PlzOrtErgänzen();
    Person.OrtVorschlagen();
    HeuteZeigen(Tagen.Feld);
}

void NeuerHelferForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(6);
    Person.Anordnen(raster, 0, 2);
    Tagen.Anordnen(raster, 7, "Geburtstag:");
    raster->addWidget(Beschriftung("", "Dienst 1:", Dient), 10, 0);
    raster->addWidget(Dient, 10, 1, 1, 2);
    raster->addWidget(Beschriftung("", "Dienst 2:", Dient2), 11, 0);
    raster->addWidget(Dient2, 11, 1, 1, 2);
    raster->setColumnStretch(2, 1);
    raster->setRowStretch(12, 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(20, 20, 20, 20);
    spalte->setSpacing(18);
    spalte->addWidget(Rollbar(raster), 1);
    spalte->addLayout(Schlußknöpfe(OKButton, CancelButton));
    setMinimumWidth(460);
    GrößeAnpassen(this);
    Person.Vorname->setFocus();
}

void NeuerHelferForm::Verbinden()
{
    Person.Verbinden();
    Tagen.SchritteVerbinden();
    Tagen.BeiKlickUmschreiben();
    connect(Tagen.Feld, &QLineEdit::textChanged, this, [this] { GeburtstagPrüfen(Tagen.Feld); });
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Anlegen(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

/// The absences of the new helper are what the slot holds.
void NeuerHelferForm::Anlegen()
{
    if (Helfer.Anzahl >= MeisteHelfer)
        return Meldungen.Zeigen("Maximale Anzahl von Datensätzen für Helfer erreicht!");
    if (Person.DoppeltEingegeben(Helfer))
        return Meldungen.Zeigen("Doppelt eingeben! Nicht mit mir!!!!!");
    const int i = Helfer.Anzahl;
    Person.Schreiben(Helfer, i);
    Helfer.Geburtstag[i] = Tagen.Wert();
    Helfer.Dienst1[i] = TextVon(Dient);
    Helfer.Dienst2[i] = TextVon(Dient2);
    ++Helfer.Anzahl;
    angelegt = true;
    close();
}

void NeuerHelferForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    danach(angelegt);
}

} // namespace altardienst
