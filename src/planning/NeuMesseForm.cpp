// The dialog that adds a mass by hand.
#include "planning/NeuMesseForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Terminbox.h"
#include "core/Sortierbefehle.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "planning/MessenlisteForm.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteMessen = 300;

} // namespace

NeuMesseForm::NeuMesseForm(MessenlisteForm &liste)
    : Messewesen(Textfeld("Messewesen")),
      Dienste({{"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3", "Dienster4", "Dienster5",
                "Dienster6"},
               {"Ä1", "Ä2", "Ä3", "Ä4", "Ä5", "Ä6", "Ä7"},
               "Meßdienerzahl",
               ":"}),
      Helferzahlen({{"Lecki", "Kommi", "Kanto", "Kolt"}, {"Ä8", "Ä9", "Ä10", "Ä11"}, ":"}),
      OKButton(Knopf("OKButton", "OK")), CancelButton(Knopf("CancelButton", "Abbrechen"))
{
    Benannt(this, "NeuMesse");
    setWindowTitle("Neue Messe");
    Anordnen();
    Verbinden();
    Termin.tagelang->setText(liste.Termin.tagelang->text());
    Termin.datendaten->setText(liste.Termin.datendaten->text());
    Termin.Uhrwerk->setText(liste.Termin.Uhrwerk->text());
    Messewesen->setText("Messe");
    for (QLineEdit *feld : Dienste.Felder())
        ZahlSetzen(feld, 0);
    for (QLineEdit *feld : Helferzahlen.Felder())
        ZahlSetzen(feld, 0);
}

void NeuMesseForm::Anordnen()
{
    auto *termin = new QGridLayout;
    Termin.Anordnen(termin, 0, {});
    termin->addWidget(Beschriftung("", "Art:", Messewesen), 3, 0);
    termin->addWidget(Messewesen, 3, 1, 1, 2);

    auto *oben = new QVBoxLayout;
    oben->setSpacing(18);
    oben->addLayout(termin);
    oben->addLayout(Nebeneinander(Dienste, Helferzahlen));
    oben->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addWidget(Rollbar(oben), 1);
    spalte->addLayout(Knopfreihe({OKButton, CancelButton}));
    GrößeAnpassen(this);
    Termin.datendaten->setFocus();
}

void NeuMesseForm::Verbinden()
{
    Termin.Verbinden({}, [this] { Neuberechnen(); });
    for (QLineEdit *feld : {Termin.datendaten, Termin.Uhrwerk})
        BeiEingabetaste(feld, Abgefangen([this] { Neuberechnen(); }));
    Dienste.Verbinden([this] { Dienste.DienerzahlBegrenzen(); });
    Helferzahlen.Verbinden();
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Anlegen(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

/// A date in the past becomes today.
void NeuMesseForm::Neuberechnen()
{
    const Datum datum = LesenOderFokus(Termin.datendaten, DatumLesen);
    AlsKurzesDatum(Termin.datendaten);
    const Datum heute = Uhr.Heute();
    if (heute - datum > 0)
        Setzen(Termin.datendaten, KurzesDatum(heute));
    Termin.WochentagBestimmen();
}

void NeuMesseForm::Anlegen()
{
    if (Messe.Anzahl >= MeisteMessen)
        return Meldungen.Zeigen("Maximale Anzahl von Datensätze für Messen erreicht!");
    if (DoppeltEingegeben())
        return Meldungen.Zeigen("Doppelt eingeben! Nicht mit mir!!!!!");
    Neuberechnen();
    Schreiben(Messe.Anzahl);
    ++Messe.Anzahl;
    MessenSortieren();
    angelegt = true;
    close();
}

/// The weekday counts as text: a mass of the week pattern with "Montag" does not count as a
/// duplicate of an entry with the padded "Montag ".
bool NeuMesseForm::DoppeltEingegeben() const
{
    const Datum datum = LesenOderFokus(Termin.datendaten, DatumLesen);
    const Datum uhrzeit = LesenOderFokus(Termin.Uhrwerk, DatumLesen);
    const Text wochentag = TextVon(Termin.tagelang);
    for (int i = 0; i < Messe.Anzahl; ++i)
        if (Messe.Datum[i] == datum && Messe.Uhrzeit[i] == uhrzeit &&
            Messe.Wochentag[i] == wochentag)
            return true;
    return false;
}

void NeuMesseForm::Schreiben(int i)
{
    Messe.Wochentag[i] = TextVon(Termin.tagelang);
    Messe.Datum[i] = LesenOderFokus(Termin.datendaten, DatumLesen);
    Messe.Uhrzeit[i] = LesenOderFokus(Termin.Uhrwerk, DatumLesen);
    Messe.Messeart[i] = TextVon(Messewesen);
    Dienste.Schreiben(Messe, i);
    Helferzahlen.Schreiben(Messe, i);
}

void NeuMesseForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    Offen([this] { MessenlisteForm::NachNeuerMesse(angelegt); })();
}

} // namespace altardienst
