// The dialog that adds a helper.
#include "people/NeuerHelferForm.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/tables.h"
#include "people/HelferForm.h"
#include "people/Personen.h"
#include "platform/Meldungen.h"

namespace altardienst {
NeuerHelferForm::NeuerHelferForm(std::function<void(bool)> danach)
    : Anlegefenster(std::move(danach)),
      Person({"Vorne", "Hinten", "Weg", "PLZetus", "Wohort", "Anruf", "Mailen"}),
      Tagen("Tagen", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Dient(Dienstwahl("Dient", "Dienst 1")), Dient2(Dienstwahl("Dient2", "Dienst 2"))
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
    raster->addWidget(Beschriftung("", "Dienst 1:", Dient), 8, 0);
    raster->addWidget(Dient, 8, 1, 1, 2);
    raster->addWidget(Beschriftung("", "Dienst 2:", Dient2), 9, 0);
    raster->addWidget(Dient2, 9, 1, 1, 2);
    raster->setColumnStretch(2, 1);
    raster->setRowStretch(10, 1);
    RahmenAnordnen(raster);
    Person.Vorname->setFocus();
}

void NeuerHelferForm::Verbinden()
{
    Person.Verbinden();
    Tagen.SchritteVerbinden();
    Tagen.BeiKlickUmschreiben();
    connect(Tagen.Feld, &QLineEdit::textChanged, this,
            Abgefangen([this] { GeburtstagPrüfen(Tagen.Feld); }));
    KnöpfeVerbinden([this] { Anlegen(); });
}

/// The absences of the new helper are those that the slot already holds.
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
    Fertig();
}

} // namespace altardienst
