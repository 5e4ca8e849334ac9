// The mass list: any mass corrected by hand, one at a time.
#include "planning/MessenlisteForm.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Terminbox.h"
#include "core/Messenname.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "planning/LektorrenuswForm.h"
#include "planning/NeuMesseForm.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 600;

/// Who helps, the services of the slots and where the mass comes from are not shown.
Auslassung NichtGezeigt()
{
    Auslassung spalten = {&Messe.DienerDienst, &Messe.Kennung};
    for (const Helferart &art : Helferarten)
        spalten.push_back(&art.Zahl.In(Messe));
    for (const Helferplatz &platz : Helferplätze)
        spalten.insert(spalten.end(), {&(Messe.*platz.Vor), &(Messe.*platz.Nach)});
    return spalten;
}

/// What the list shows of a mass, to be compared later.
struct Messenbild {
    std::vector<Text> Texte;
    std::vector<double> Zahlen;

    void operator()(const Text &text) { Texte.push_back(text); }
    void operator()(double zahl) { Zahlen.push_back(zahl); }
    void operator()(const MesseTabelle::JeSlot &namen)
    {
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
            Texte.push_back(namen[slot]);
    }
    bool operator==(const Messenbild &) const = default;
};

Messenbild Gezeigtes(int i)
{
    Messenbild bild;
    bild(Messe.Anzahl);
    FürJedeSpalteAußer(Messe.Felder(), NichtGezeigt(), [&](auto &spalte) { bild(spalte[i]); });
    return bild;
}

} // namespace

MessenlisteForm::MessenlisteForm()
    : Wahl(new Datensatzwahl({"Datensatzus", "Plus", "Minus", "DPM"})),
      Liste(new Datensatzliste(Wahl,
                               {"Messen", "Sa 28.11.2026 18:30 Vorabendmesse",
                                [] { return std::min<int>(Messe.Anzahl, LetzterDatensatz + 1); },
                                [](int messe) { return Messenzeile(messe); },
                                Abgefangen([this](int satz) { Aufschlagen(satz); })})),
      maxi(Beschriftung("maxi", "")), mt(Minusknopf("mt", "einen Tag früher")),
      pt(Plusknopf("pt", "einen Tag später")), mm(Minusknopf("mm", "einen Monat früher")),
      pm(Plusknopf("pm", "einen Monat später")), mj(Minusknopf("mj", "ein Jahr früher")),
      pj(Plusknopf("pj", "ein Jahr später")), mhh(Minusknopf("mhh", "eine Stunde früher")),
      phh(Plusknopf("phh", "eine Stunde später")), mmin(Minusknopf("mmin", "fünf Minuten früher")),
      pmin(Plusknopf("pmin", "fünf Minuten später")), Messewesen(Textfeld("Messewesen")),
      Dienste({{"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3", "Dienster4", "Dienster5",
                "Dienster6"},
               {"Ä1", "Ä2", "Ä3", "Ä4", "Ä5", "Ä6", "Ä7"},
               "Meßdienerzahl",
               ":"}),
      Löscher(Knopf("Löscher", "Datensatz löschen")), NeuMeß(Knopf("NeuMeß", "neue Messe")),
      Lektoren(Knopf("Lektoren", "Lektoren und ...")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Messenliste");
    setWindowTitle("Messenliste");
    Anordnen();
    Verbinden();
    Laden();
}

void MessenlisteForm::NeuenPlanZeigen()
{
    if (auto *liste = OffeneForm<MessenlisteForm>())
        liste->Laden();
    Wiederkommen();
}

/// The number counts as changed, even if it is the same as before.
void MessenlisteForm::Laden()
{
    {
        const QSignalBlocker still(Wahl->Nummer);
        Wahl->Nummer->clear();
    }
    Abgefangen([this] {
        ZahlSetzen(Wahl->Nummer, Messe.Cursor);
        AnzahlZeigen();
        Zeigen(Messe.Cursor);
        Beschriften();
    })();
    cursor = Messe.Cursor;
}

void MessenlisteForm::Anordnen()
{
    auto *termin = new QGridLayout;
    Termin.Anordnen(termin, 0, Terminknöpfe());
    termin->addWidget(Beschriftung("", "Art:", Messewesen), 3, 0);
    termin->addWidget(Messewesen, 3, 1, 1, 2);
    termin->setColumnStretch(termin->columnCount(), 1);
    auto *dienste = new QGridLayout;
    Dienste.Anordnen(dienste, 0, 4);
    dienste->setColumnStretch(dienste->columnCount(), 1);

    auto *mitte = new QVBoxLayout;
    mitte->setSpacing(14);
    mitte->addLayout(termin);
    mitte->addLayout(dienste);
    mitte->addLayout(Slots.Anordnen(), 1);

    auto *spalte = Liste->Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(Datensatzkopf(Wahl, Beschriftung("NBe", "Anzahl Datensätze:"), maxi));
    spalte->addWidget(Rollbar(mitte), 1);
    spalte->addLayout(Knopfreihe({Ende}, {Löscher, NeuMeß, Lektoren}));
    GrößeAnpassen(this); // to show all the rows of slots
    Wahl->Nummer->setFocus();
}

Terminfelder::Knöpfe MessenlisteForm::Terminknöpfe() const
{
    return {{mt, pt}, {mm, pm}, {mj, pj}, {mhh, phh}, {mmin, pmin}};
}

void MessenlisteForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Abgefangen([&] { Schritt(richtung); })(); });
    // The change of the box itself presses `Taga`.
    Termin.Verbinden(Terminknöpfe(), [] {});
    connect(Termin.datendaten, &QLineEdit::textChanged, this,
            Abgefangen([this] { DatumGeändert(); }));
    // A service may change while the number of servers stays.
    Dienste.Verbinden([this] { DienerzahlGeändert(); },
                      [this] {
                          if (!füllt)
                              Beschriften();
                      });
    Slots.Ergänzen();
    connect(Löscher, &QPushButton::clicked, this, Abgefangen([this] { Löschen(); }));
    connect(NeuMeß, &QPushButton::clicked, this, Abgefangen([this] { NeueMesse(); }));
    connect(Lektoren, &QPushButton::clicked, this, Abgefangen([this] { HelferDerMesse(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
    NebenDemHauptfenster(
        this,
        [this] {
            if (gezeigt.Getippt() && !gezeigt.Überholt())
                Ablegen();
        },
        [this] {
            Liste->Folgen();
            if (gezeigt.Überholt() || cursor != Messe.Cursor)
                Laden();
        },
        [this] {
            Liste->Folgen();
            cursor = Messe.Cursor;
            gezeigt.Belassen();
        });
}

/// Stepping one past the end adds an empty mass to the table without asking.
void MessenlisteForm::NummerGeändert()
{
    int nummer = Begrenzen(Wahl->Nummer, 0, LetzterDatensatz);
    AnzahlZeigen();
    if (nummer > Messe.Anzahl + 1) {
        nummer = Messe.Anzahl;
        ZahlSetzen(Wahl->Nummer, nummer);
    }
    if (nummer > Messe.Anzahl)
        Messe.Anzahl = nummer;
    Zeigen(nummer);
    Messe.Cursor = cursor = nummer;
    Beschriften();
}

void MessenlisteForm::Schritt(int richtung)
{
    const int i = Sichern();
    if (richtung > 0 ? i < LetzterDatensatz : i > 0) {
        Zeigen(i + richtung);
        ZahlSetzen(Wahl->Nummer, i + richtung);
    }
}

/// What every step does first.
int MessenlisteForm::Sichern()
{
    if (Wahl->Nummer->text().isEmpty())
        ZahlSetzen(Wahl->Nummer, 0); // shows mass 0, so no entries could follow a mass
    else
        Mitziehen();
    const int i = Nummer();
    Schreiben(i);
    Liste->Folgen();
    return i;
}

/// A step to any mass.
void MessenlisteForm::Aufschlagen(int satz)
{
    Sichern();
    Zeigen(satz);
    ZahlSetzen(Wahl->Nummer, satz);
}

void MessenlisteForm::DatumGeändert()
{
    AlsKurzesDatum(Termin.datendaten);
    Termin.WochentagBestimmen();
}

void MessenlisteForm::DienerzahlGeändert()
{
    ZeilenZeigen(Dienste.DienerzahlBegrenzen());
    Beschriften();
}

/// While a mass is being filled in, its services take the number of servers through many values;
/// the rows follow only the last one, since each row shown or hidden moves everything else.
void MessenlisteForm::ZeilenZeigen(int diener)
{
    if (!füllt)
        Slots.Sichtbar(diener);
}

/// If a service is not a number, its slots and all after them are labelled with their numbers.
void MessenlisteForm::Beschriften()
{
    Dienstwünsche wünsche{}; // what cannot be read counts as none
    const auto beschriften = [&] { Slots.Beschriften(SlotBeschriftungen(wünsche)); };
    try {
        Dienste.Lesen(wünsche);
    } catch (const Laufzeitfehler &) {
        beschriften();
        throw;
    }
    beschriften();
}

void MessenlisteForm::Löschen()
{
    if (!Meldungen.Fragen("Wirklich?", "Löschen einer Messe") || Messe.Anzahl <= 2)
        return;
    const auto zurückInDieTabelle = [this] {
        if (Nummer() >= Messe.Anzahl)
            ZahlSetzen(Wahl->Nummer, Messe.Anzahl - 1);
    };
    zurückInDieTabelle();
    MesseVorziehen(Nummer());
    Zeigen(Nummer());
    Messe.Wochentag[Messe.Anzahl].clear();
    zurückInDieTabelle();
    if (Messe.Anzahl >= 2)
        --Messe.Anzahl;
    Merken(Nummer());
    Liste->Folgen();
    AnzahlZeigen();
    Beschriften();
}

void MessenlisteForm::NeueMesse()
{
    DialogAnStelleÖffnen<NeuMesseForm>(this, *this);
    Zeigen(gezeigteMesse); // what was typed is dropped
    Beschriften();
}

void MessenlisteForm::NachNeuerMesse(bool angelegt)
{
    MessenlisteForm *liste = Wiederkommen();
    if (!angelegt)
        return;
    Abgefangen([liste] {
        liste->AnzahlZeigen();
        liste->Zeigen(liste->Nummer());
        liste->Beschriften();
    })();
}

void MessenlisteForm::HelferDerMesse()
{
    DialogAnStelleÖffnen<LektorrenuswForm>(this, Wiederkommen);
}

/// Not the dialog for which it is hidden, but the list itself; a new one if it has been closed
/// beside that dialog.
MessenlisteForm *MessenlisteForm::Wiederkommen()
{
    auto *liste = OffeneForm<MessenlisteForm>();
    if (!liste)
        liste = new MessenlisteForm;
    DialogDanebenÖffnen(liste);
    return liste;
}

int MessenlisteForm::Nummer() const
{
    return LesenOderFokus(Wahl->Nummer, Int16Lesen);
}

void MessenlisteForm::Ablegen()
{
    Mitziehen();
    Schreiben(Nummer());
    Liste->Folgen();
}

/// A fixed entry follows its mass when the mass is moved.
void MessenlisteForm::Mitziehen()
{
    const int i = Nummer();
    try {
        FesteEintraegeMitziehen(i, TextVon(Termin.datendaten), TextVon(Termin.Uhrwerk));
    } catch (const Laufzeitfehler &) {
        for (QLineEdit *feld : {Termin.datendaten, Termin.Uhrwerk})
            LesenOderFokus(feld, DatumLesen); // shows which of the two is wrong
        throw;
    }
}

void MessenlisteForm::Zeigen(int i)
{
    Setzen(Termin.tagelang, Messe.Wochentag[i]);
    Setzen(Termin.datendaten, KurzesDatum(Messe.Datum[i]));
    Setzen(Termin.Uhrwerk, LangeZeit(Messe.Uhrzeit[i]));
    Setzen(Messewesen, Messe.Messeart[i]);
    füllt = true;
    Dienste.Zeigen(Messe, i);
    füllt = false;
    ZeilenZeigen(ZahlIn(Dienste.Dienerzahl.Feld));
    Slots.Zeigen(i);
    Merken(i);
}

void MessenlisteForm::Schreiben(int i)
{
    const auto amEnde = qScopeGuard(Abgefangen([this, i] { Merken(i); })); // even a part counts
    Messe.Wochentag[i] = TextVon(Termin.tagelang);
    Messe.Datum[i] = LesenOderFokus(Termin.datendaten, DatumLesen);
    Messe.Uhrzeit[i] = LesenOderFokus(Termin.Uhrwerk, DatumLesen);
    Messe.Messeart[i] = TextVon(Messewesen);
    Dienste.Schreiben(Messe, i);
    Slots.Schreiben(i);
}

void MessenlisteForm::Merken(int i)
{
    gezeigteMesse = i;
    gezeigt.Merken(this, [i] { return Gezeigtes(i); });
}

void MessenlisteForm::AnzahlZeigen()
{
    Setzen(maxi, ZahlText(Messe.Anzahl));
}

void MessenlisteForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    Abgefangen([&] {
        Ablegen();
        ereignis->accept();
        HauptfensterZurück();
    })();
}

} // namespace altardienst
