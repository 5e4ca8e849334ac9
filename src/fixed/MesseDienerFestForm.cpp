// Servers and groups fixed to particular masses, one entry at a time.
#include "fixed/MesseDienerFestForm.h"

#include "application/Anwendung.h"
#include "assignment/Dienste.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Vordergrund.h"
#include "controls/Zahlbox.h"
#include "core/Umwandlung.h"
#include "fixed/FesteEinträge.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int HöchsteNummer = 200; // as many entries as the dialog for new ones accepts
constexpr int PlusBis = 600;       // above it `Plus` shows no next entry

/// The blank entry after the last one can be reached too.
int HöchsterEintrag()
{
    return std::clamp<int>(MesseDienerFest.Anzahl, 0, HöchsteNummer);
}

} // namespace

MesseDienerFestForm::MesseDienerFestForm()
    : Wahl(new Datensatzwahl({"Index", "Plus", "Minus", "DatensatzWechsel"})),
      MaxIndex(Beschriftung("MaxIndex", "")), Felder(Unterschiede()),
      Hinzu(Knopf("Hinzu", "Datensatz hinzufügen")), Löschen(Knopf("Löschen", "Datensatz löschen")),
      OKbutton(Knopf("OKbutton", "OK"))
{
    Benannt(this, "MesseDienerFest");
    setWindowTitle("Meßdiener fest zu einer Messe zuordnen");
    FesteZuordnungOffen = true;
    Anordnen();
    Verbinden();
    Abgefangen([this] {
        DiensteVerteilen();
        Felder.ListenFüllen();
        Aufschlagen();
    })();
}

/// What the fields show and set belongs partly to the entry at the cursor, partly to the number
/// typed.
Zuordnungsfelder::Unterschiede MesseDienerFestForm::Unterschiede()
{
    Zuordnungsfelder::Unterschiede unterschiede;
    unterschiede.Leereintrag = true;
    unterschiede.Dienerzahl = [] { return MesseDienerFest.Index[MesseDienerFest.Cursor]; };
    unterschiede.DienerzahlAblegen = [this](Int16 zahl) {
        MesseDienerFest.Index[ZahlIn(Wahl->Nummer)] = zahl;
    };
    unterschiede.Dienste = []() -> Zuordnungsfelder::Dienstnamen & {
        return MesseDienerFest.Dienst[MesseDienerFest.Cursor];
    };
    return unterschiede;
}

void MesseDienerFestForm::Zurück()
{
    auto *liste = OffeneForm<MesseDienerFestForm>();
    if (!FesteZuordnungOffen || !liste)
        return;
    liste->showMaximized();
    DialogDanebenÖffnen(liste);
}

void MesseDienerFestForm::Anordnen()
{
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(Datensatzkopf(Wahl, Beschriftung("", "Anzahl Datensätze:"), MaxIndex));
    spalte->addLayout(Felder.Messenzeile());
    spalte->addWidget(Rollbar(Felder.SlotsAnordnen()), 1);
    spalte->addLayout(Knopfreihe({OKbutton}, {Hinzu, Löschen}));
    GrößeAnpassen(this); // to show all the rows of slots
    Wahl->Nummer->setFocus();
}

void MesseDienerFestForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Abgefangen([&] { Schritt(richtung); })(); });
    Wahl->DPM->BeiAb(Abgefangen([this] { Wechseln(-1); }));
    Wahl->DPM->BeiAuf(Abgefangen([this] { Wechseln(+1); }));
    Felder.Verbinden();
    connect(Hinzu, &QPushButton::clicked, this, Abgefangen([this] { Hinzufügen(); }));
    connect(Löschen, &QPushButton::clicked, this, Abgefangen([this] { EintragLöschen(); }));
    connect(OKbutton, &QPushButton::clicked, this, Abgefangen([this] {
                Speichern();
                close();
            }));
    BeiRückkehr(this, Abgefangen([this] { Aufschlagen(); }));
}

/// Opens the entry shown last, with the counts of the masses as they are now.
void MesseDienerFestForm::Aufschlagen()
{
    FesteZuordnungOffen = true;
    DienerzahlenBestimmen();
    MesseDienerFest.Cursor = std::clamp<int>(MesseDienerFest.Cursor, 0, HöchsterEintrag());
    ZahlSetzen(Wahl->Nummer, MesseDienerFest.Cursor);
    Felder.Zeigen(MesseDienerFest.Cursor);
    Felder.DatumUhrzeitAngleichen();
    Zeigen();
}

/// `Messen` takes the date and time of the entry being left, and keeps them: only the buttons and
/// keys update it to the new one.
void MesseDienerFestForm::NummerGeändert()
{
    Felder.DatumUhrzeitAngleichen();
    MesseDienerFest.Cursor = Begrenzen(Wahl->Nummer, 0, HöchsterEintrag());
    Felder.Zeigen(MesseDienerFest.Cursor);
    Zeigen();
}

/// The focus moves for a key too, so that the box being filled in is left before the entry is
/// written. On being left, date and time go back to those of the mass; what was typed must win, so
/// it is put there first.
void MesseDienerFestForm::Schritt(int richtung)
{
    if (Felder.DatumD->hasFocus() || Felder.Zeitd->hasFocus())
        Felder.DatumUhrzeitAngleichen();
    if (!Wahl->isAncestorOf(focusWidget()))
        Wahl->Nummer->setFocus();
    Felder.DatumUhrzeitAngleichen();
    Felder.Schreiben(MesseDienerFest.Cursor);
    const bool leer = Wahl->Nummer->text().isEmpty();
    const int nummer = leer ? 0 : ZahlIn(Wahl->Nummer);
    if (richtung > 0 ? nummer < PlusBis : nummer > 0)
        Felder.Zeigen(MesseDienerFest.Cursor + richtung);
    if (leer)
        ZahlSetzen(Wahl->Nummer, 0);
    Felder.DatumUhrzeitAngleichen();
    ZahlSetzen(Wahl->Nummer, Int16(ZahlIn(Wahl->Nummer)) + richtung);
    Felder.DatumUhrzeitAngleichen();
    Felder.DienstBeschriftungSetzen();
    Felder.MeßdienerZeilenEinblenden();
}

void MesseDienerFestForm::Springen(int eintrag)
{
    Abgefangen([&] {
        if (const int weite = eintrag - ZahlIn(Wahl->Nummer))
            Schritt(weite);
    })();
}

/// The spin button leaves everything else to the change of the number.
void MesseDienerFestForm::Wechseln(int richtung)
{
    Felder.DatumUhrzeitAngleichen();
    Felder.Schreiben(MesseDienerFest.Cursor);
    ZahlSetzen(Wahl->Nummer, Int16(ZahlIn(Wahl->Nummer)) + richtung);
}

void MesseDienerFestForm::Hinzufügen()
{
    QWidget *dialog = OffenerOderNeuer<NeuMesseDienerFestForm>();
    setEnabled(false); // not before: where the dialog fails, this one stays in use
    showMinimized();
    DialogDanebenÖffnen(dialog);
}

void MesseDienerFestForm::EintragLöschen()
{
    if (MesseDienerFest.Anzahl < 2 ||
        !Meldungen.FragenVorVerlust("Wirklich?", "Löschen der Zuordnung Meßdiener Messe"))
        return;
    FestenEintragLöschen(ZahlIn(Wahl->Nummer));
    if (ZahlIn(Wahl->Nummer) > MesseDienerFest.Anzahl)
        ZahlSetzen(Wahl->Nummer, MesseDienerFest.Anzahl);
    MesseDienerFest.Cursor = ZahlIn(Wahl->Nummer);
    Felder.Zeigen(MesseDienerFest.Cursor);
    Zeigen();
}

void MesseDienerFestForm::Speichern()
{
    Felder.Übernehmen();
    Felder.DatumUhrzeitAngleichen();
    Felder.Schreiben(MesseDienerFest.Cursor);
    gespeichert = true;
}

/// What follows from the date, the time and the names on the screen.
void MesseDienerFestForm::Zeigen()
{
    Felder.NamenZeigen();
    Felder.DienstBeschriftungSetzen();
    Felder.MeßdienerZeilenEinblenden();
    Setzen(MaxIndex, ZahlText(MesseDienerFest.Anzahl));
}

/// Closing by the close box presses `OKbutton`; an entry that cannot be stored does not stop it.
void MesseDienerFestForm::VorDemSchließen()
{
    if (!gespeichert) {
        OKbutton->setFocus(); // the box being filled in is left
        Abgefangen([this] { Speichern(); })();
    }
    Felder.Stilllegen();
    hide();
    FesteZuordnungOffen = false;
    Abgefangen(ÜbertragenAufWunsch)();
}

} // namespace altardienst
