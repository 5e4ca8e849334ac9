// The dialog that adds a fixed entry.
#include "fixed/NeuMesseDienerFestForm.h"

#include "application/Anwendung.h"
#include "assignment/Dienste.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "fixed/FesteEinträge.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "fixed/MesseDienerFestForm.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteEinträge = 200;

} // namespace

NeuMesseDienerFestForm::NeuMesseDienerFestForm()
    : Felder(Unterschiede()), Anfügen(Knopf("Anfügen", "Anfügen")),
      Abrechen(Knopf("Abrechen", "Abbrechen"))
{
    Benannt(this, "NeuMesseDienerFest");
    setWindowTitle("Meßdiener Messe zuordnen");
    Anordnen();
    Verbinden();
    Abgefangen([this] {
        DiensteVerteilen();
        Felder.MeßdienerZeilenEinblenden();
        Felder.ListenFüllen();
        Vorschlagen();
    })();
}

/// There is no entry yet, so the form itself keeps what belongs to one.
Zuordnungsfelder::Unterschiede NeuMesseDienerFestForm::Unterschiede()
{
    Zuordnungsfelder::Unterschiede unterschiede;
    unterschiede.Leereintrag = false;
    unterschiede.Dienerzahl = [this] { return DienerAnzahl; };
    unterschiede.DienerzahlAblegen = [this](Int16 zahl) { DienerAnzahl = zahl; };
    unterschiede.Dienste = [this]() -> Zuordnungsfelder::Dienstnamen & { return Dienste; };
    return unterschiede;
}

void NeuMesseDienerFestForm::Anordnen()
{
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(Felder.Messenzeile());
    spalte->addWidget(Rollbar(Felder.SlotsAnordnen()), 1);
    spalte->addLayout(Knopfreihe({Anfügen, Abrechen}));
    GrößeAnpassen(this); // to show all the rows of slots
    Felder.Messen->setFocus();
}

void NeuMesseDienerFestForm::Verbinden()
{
    Felder.Verbinden();
    connect(Anfügen, &QPushButton::clicked, this, Abgefangen([this] { EintragAnfügen(); }));
    connect(Abrechen, &QPushButton::clicked, this, [this] { close(); });
}

/// The first mass; without masses its empty date shows as "00:00:00".
void NeuMesseDienerFestForm::Vorschlagen()
{
    DienerAnzahl = Messe.Dienerzahl[0];
    Setzen(Felder.DatumD, DatumText(Messe.Datum[0]));
    Setzen(Felder.Zeitd, DatumText(Messe.Uhrzeit[0]));
    Felder.MesseZeigen();
    Felder.MesseDiensteHolen();
    Felder.MeßdienerZeilenEinblenden();
}

void NeuMesseDienerFestForm::EintragAnfügen()
{
    if (Felder.Messen->currentText().isEmpty())
        return Meldungen.Zeigen("Kein korrekter Datensatz!!");
    const int i = MesseDienerFest.Anzahl;
    // While there are no entries, date and time are not even read.
    if (i >= 1 &&
        HatFestenEintrag(DatumLesen(TextVon(Felder.DatumD)), DatumLesen(TextVon(Felder.Zeitd))))
        return Meldungen.Zeigen("Lege keinen doppelten Datensatz an");
    if (i >= MeisteEinträge)
        return;
    Felder.DatumUhrzeitAngleichen();
    Felder.Schreiben(i);
    for (int slot = 1; slot <= MesseDienerFestTabelle::HöchsterSlot; ++slot)
        MesseDienerFest.Dienst[i][slot] = Dienste[slot];
    Felder.ZeilenLeeren(0);
    DienerAnzahl = 0;
    Felder.MeßdienerZeilenEinblenden();
    ++MesseDienerFest.Anzahl;
    Vorschlagen();
}

void NeuMesseDienerFestForm::closeEvent(QCloseEvent *ereignis)
{
    Felder.Stilllegen();
    Abgefangen(ÜbertragenAufWunsch)();
    ereignis->accept();
    HauptfensterZurück();
    MesseDienerFestForm::Zurück();
}

} // namespace altardienst
