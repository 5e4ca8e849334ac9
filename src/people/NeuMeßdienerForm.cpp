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
    const auto datum = [&](const char *text, const Datumsfeld &feld, int zeile) {
        raster->addWidget(Beschriftung("", text, feld.Feld), zeile, 0, Qt::AlignTop);
        raster->addWidget(feld.Feld, zeile, 1, Qt::AlignTop);
        raster->addLayout(feld.SchritteUntereinander(), zeile, 2, Qt::AlignLeft);
    };
    datum("Geburtstag:", Gebutag, 7);
    raster->addWidget(Beschriftung("", "Geschlecht:", Geschl), 8, 0);
    raster->addWidget(Geschl, 8, 1, 1, 2, Qt::AlignLeft);
    auto *größe = new QHBoxLayout;
    größe->addWidget(Groß.Feld);
    größe->addWidget(Beschriftung("", "cm"));
    größe->addWidget(Groß.Spin);
    größe->addStretch();
    raster->addWidget(Beschriftung("", "Größe:", Groß.Feld), 9, 0);
    raster->addLayout(größe, 9, 1, 1, 2);
    datum("Eintrittsdatum:", Eintritttdatum, 10);
    raster->addWidget(Beschriftung("", "Gruppe:", Dieenst), 11, 0);
    raster->addWidget(Dieenst, 11, 1, 1, 2);
    raster->setColumnStretch(2, 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(20, 20, 20, 20);
    spalte->setSpacing(18);
    spalte->addLayout(raster);
    spalte->addStretch();
    spalte->addLayout(Schlußknöpfe(OKButton, CancelButton));
    setMinimumWidth(460);
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
    Meßdiener.Größe[i] = ZahlIn(Groß.Feld);
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
