// The dialog that adds an altar server.
#include "people/NeuMeßdienerForm.h"

#include "core/tables.h"
#include "fenster/Bausteine.h"
#include "fenster/Handler.h"
#include "people/MeßdienerForm.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteMeßdiener = 200; // fewer than the editor's browsing reaches
constexpr int ÜblicheGröße = 150;    // cm

} // namespace

NeuMeßdienerForm::NeuMeßdienerForm(std::function<void(bool)> danach)
    : Person({"Vornamen", "Nachnamen", "Straßen", "Postleit", "Gemeinde", "Teflon", "Emeil"}),
      Gebutag("Gebutag", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Geschl(Geschlechtwahl()), Groß(ZahlboxAnlegen("Groß", "Änderung7", "Größe:")),
      Eintritttdatum("Eintritttdatum", {"Änderung4", "Änderung5", "Änderung6"}, "Eintrittsdatum"),
      Dieenst(Gruppenwahl()), OKButton(Knopf("OKButton", "OK")),
      CancelButton(Knopf("CancelButton", "Abbrechen")), danach(std::move(danach))
{
    Benannt(this, "NeuMeßdiener");
    setWindowTitle("Neuer Meßdiener");
    Anordnen();
    Verbinden();
    PlzOrtErgänzen();
    HeuteZeigen(Gebutag.Feld);
    HeuteZeigen(Eintritttdatum.Feld);
    Person.OrtVorschlagen();
    ZahlSetzen(Groß.Feld, ÜblicheGröße);
    GruppenlisteFüllen(Dieenst);
}

void NeuMeßdienerForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(5);
    Person.Anordnen(raster, 0, 2);
    Gebutag.Anordnen(raster, 7, "Geburtstag:");
    raster->addWidget(Beschriftung("", "Geschlecht:", Geschl), 10, 0);
    raster->addWidget(Geschl, 10, 1, 1, 2, Qt::AlignLeft);
    auto *größe = new QHBoxLayout;
    größe->setSpacing(6);
    größe->addWidget(Groß.Feld);
    größe->addWidget(Beschriftung("", "cm"));
    größe->addWidget(Groß.Spin);
    größe->addStretch();
    raster->addWidget(Beschriftung("", "Größe:", Groß.Feld), 11, 0);
    raster->addLayout(größe, 11, 1, 1, 2);
    Eintritttdatum.Anordnen(raster, 12, "Eintrittsdatum:");
    raster->addWidget(Beschriftung("", "Gruppe:", Dieenst), 15, 0);
    raster->addWidget(Dieenst, 15, 1, 1, 2);
    raster->setColumnStretch(2, 1);
    raster->setRowStretch(16, 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(20, 20, 20, 20);
    spalte->setSpacing(18);
    spalte->addWidget(Rollbar(raster), 1);
    spalte->addLayout(Schlußknöpfe(OKButton, CancelButton));
    setMinimumWidth(460);
    GrößeAnpassen(this);
    Person.Vorname->setFocus();
}

void NeuMeßdienerForm::Verbinden()
{
    Person.Verbinden();
    for (const Datumsfeld *datum : {&Gebutag, &Eintritttdatum}) {
        datum->SchritteVerbinden();
        datum->BeiKlickUmschreiben();
    }
    GrößeVerbinden(Groß);
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Anlegen(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

/// Qualification, wishes, absences, partner and frequency of the new server are what the slot
/// holds.
void NeuMeßdienerForm::Anlegen()
{
    if (Meßdiener.Anzahl >= MeisteMeßdiener)
        return Meldungen.Zeigen("Maximale Anzahl Datensätze für Meßdiener erreicht!");
    if (Person.DoppeltEingegeben(Meßdiener))
        return Meldungen.Zeigen("Doppelt eingeben! Nicht mit mir!!!!!");
    const int i = Meßdiener.Anzahl;
    Person.Schreiben(Meßdiener, i);
    Meßdiener.Geburtstag[i] = Gebutag.Wert();
    Meßdiener.Geschlecht[i] = TextVon(Geschl);
    Meßdiener.Größe[i] = Gelesen(Groß.Feld, Int16Lesen);
    Meßdiener.Eintrittsdatum[i] = Eintritttdatum.Wert();
    Meßdiener.Gruppe[i] = TextVon(Dieenst);
    ++Meßdiener.Anzahl;
    angelegt = true;
    close();
}

void NeuMeßdienerForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    danach(angelegt);
}

} // namespace altardienst
