// The dialog that adds an altar server.
#include "people/NeuMeßdienerForm.h"

#include "controls/Bausteine.h"
#include "core/tables.h"
#include "people/Personen.h"
#include "platform/Meldungen.h"

namespace altardienst {
namespace {

constexpr int ÜblicheGröße = 150; // cm

} // namespace

NeuMeßdienerForm::NeuMeßdienerForm(std::function<void(bool)> danach)
    : Anlegefenster(std::move(danach))
{
    Benannt(this, "NeuMeßdiener");
    setWindowTitle("Neuer Meßdiener");
    Anordnen();
    Verbinden();
    PlzOrtErgänzen();
    HeuteZeigen(Angaben.Gebutag.Feld);
    HeuteZeigen(Angaben.Eintritttdatum.Feld);
    Angaben.Person.OrtVorschlagen();
    ZahlSetzen(Angaben.Groß.Feld, ÜblicheGröße);
    Angaben.GruppenlisteFüllen();
}

void NeuMeßdienerForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(5);
    Angaben.Anordnen(raster, 2);
    RahmenAnordnen(raster);
    Angaben.Person.Vorname->setFocus();
}

void NeuMeßdienerForm::Verbinden()
{
    Angaben.Verbinden();
    Angaben.Gebutag.BeiKlickUmschreiben();
    Angaben.Eintritttdatum.BeiKlickUmschreiben();
    KnöpfeVerbinden([this] { Anlegen(); });
}

/// Qualification, wishes, absences, partner and frequency of the new server are those that the slot
/// already holds.
void NeuMeßdienerForm::Anlegen()
{
    if (Meßdiener.Anzahl >= MeisteMeßdiener)
        return Meldungen.Zeigen("Maximale Anzahl Datensätze für Meßdiener erreicht!");
    if (Angaben.Person.DoppeltEingegeben(Meßdiener))
        return Meldungen.Zeigen("Doppelt eingeben! Nicht mit mir!!!!!");
    Angaben.Schreiben(Meßdiener.Anzahl);
    ++Meßdiener.Anzahl;
    Fertig();
}

} // namespace altardienst
