// The editor of the helpers, one at a time.
#include "people/HelferForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "controls/Zahlbox.h"
#include "core/Messenname.h"
#include "core/Plätze.h"
#include "people/ImPlan.h"
#include "people/NeuerHelferForm.h"
#include "people/Umbenannt.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 200;
constexpr int MeisteLebensjahre = 90;

Datensatzliste::Quelle Listenquelle()
{
    return {"Helfer",
            "Mustermann, Maximiliane",
            [] { return std::min<int>(Helfer.Anzahl, LetzterDatensatz + 1); },
            [](int i) { return Personenzeile(Helfer.Vorname[i], Helfer.Nachname[i]); },
            {}};
}

auto Zeitspalten()
{
    return std::array{&Helfer.Von1, &Helfer.Bis1, &Helfer.Von2,
                      &Helfer.Bis2, &Helfer.Von3, &Helfer.Bis3};
}

} // namespace

QComboBox *Dienstwahl(const char *name, const char *gesprochen)
{
    QComboBox *wahl = Textwahl(name, gesprochen);
    QStringList dienste;
    for (const Helferart &art : Helferarten)
        dienste << art.Name.c_str();
    ListeSetzen(wahl, dienste);
    return wahl;
}

void GeburtstagPrüfen(QLineEdit *feld)
{
    Schrittweise([feld] { AlsKurzesDatum(feld); },
                 [feld] {
                     if (JahreBisHeute(feld) > MeisteLebensjahre)
                         HeuteZeigen(feld);
                 })();
}

HelferForm::HelferForm()
    : Editorfenster(new Datensatzwahl({"Indexen", "PLUS", "MINUS", "DPM"}), Listenquelle()),
      Datensätzig(Beschriftung("Datensätzig", "")),
      Person({"Vorne", "Hinten", "Weg", "PLZetus", "Wohort", "Anruf", "Mailen"}),
      Tagen("Tagen", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Dient(Dienstwahl("Dient", "Dienst 1")), Dient2(Dienstwahl("Dient2", "Dienst 2")),
      Abwesenheiten(3), NeuHelfer(Knopf("NeuHelfer", "neuer Helfer")),
      Datensatzlösch(Knopf("Datensatzlösch", "Datensatz löschen"))
{
    Benannt(this, "Helfer");
    setWindowTitle("Helfer");
    Tagen.KnöpfeAnlegen({{{"MTag", "Ptag"}, {"MMon", "PMon"}, {"MJahr", "PJahr"}}});
    PlzOrtErgänzen();
    Anordnen();
    Verbinden();
    Offen([this] {
        ZahlSetzen(Wahl->Nummer, Helfer.Cursor);
        Zeigen(Helfer.Cursor);
        AnzahlZeigen();
    })();
}

void HelferForm::Anordnen()
{
    KnöpfeBeschriften(Wahl);
    auto *person = new QGridLayout;
    person->setHorizontalSpacing(10);
    person->setVerticalSpacing(6);
    Person.Anordnen(person, 0, 2);
    Tagen.Anordnen(person, 7, "Geburtstag:");
    person->setColumnStretch(2, 1);
    person->setRowStretch(8, 1);

    auto *dienste = new QGridLayout;
    dienste->setHorizontalSpacing(10);
    dienste->setVerticalSpacing(6);
    dienste->addWidget(Beschriftung("", "Dienst 1:", Dient), 0, 0);
    dienste->addWidget(Dient, 0, 1);
    dienste->addWidget(Beschriftung("", "Dienst 2:", Dient2), 1, 0);
    dienste->addWidget(Dient2, 1, 1);
    dienste->setColumnStretch(2, 1);
    for (QComboBox *wahl : {Dient, Dient2})
        wahl->setMinimumContentsLength(18);

    auto *rechts = new QVBoxLayout;
    rechts->setSpacing(24);
    rechts->addLayout(dienste);
    rechts->addLayout(Abwesenheiten.Anordnen());
    rechts->addStretch();

    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(28);
    mitte->addLayout(person, 1);
    mitte->addLayout(rechts);

    auto *spalte = Liste->Fensterspalte(this, Luft::Viel);
    QLayout *kopf = Datensatzkopf(Wahl, Beschriftung("", "Datensatzanzahl:"), Datensätzig);
    kopf->addWidget(ImPlanKnopf(this, Ende, [this] { return Person.Name(); }));
    spalte->addLayout(kopf);
    spalte->addWidget(Rollbar(mitte), 1);
    spalte->addLayout(Knopfreihe({Ende}, {NeuHelfer, Datensatzlösch}));
    GrößeAnpassen(this);
    Person.Vorname->setFocus();
}

void HelferForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) {
        Offen([&] {
            NullStattLeer();
            Schritt(richtung);
        })();
    });
    // The spin button does not fill an empty number box, and gives it the focus.
    const auto drehen = [this](int richtung) {
        Schritt(richtung);
        Wahl->Nummer->setFocus();
    };
    Wahl->DPM->BeiAb(Offen([drehen] { drehen(-1); }));
    Wahl->DPM->BeiAuf(Offen([drehen] { drehen(+1); }));
    Person.Verbinden();
    Tagen.SchritteVerbinden();
    connect(Tagen.Feld, &QLineEdit::textChanged, this,
            Abgefangen([this] { GeburtstagPrüfen(Tagen.Feld); }));
    Abwesenheiten.Verbinden();
    connect(NeuHelfer, &QPushButton::clicked, this, Offen([this] { NeuerHelfer(); }));
    connect(Datensatzlösch, &QPushButton::clicked, this, Offen([this] { Löschen(); }));
    EndeVerbinden();
}

/// Typing a number jumps to that helper without saving what is on the screen; the number one past
/// the blank slot adds an empty record.
void HelferForm::NummerGeändert()
{
    Schrittweise([&] { NummerBegrenzen(Wahl->Nummer, LetzterDatensatz, Helfer.Anzahl); },
                 [&] { Helfer.Cursor = Nummer(); },
                 [&] {
                     if (Nummer() > Helfer.Anzahl)
                         Helfer.Anzahl = Nummer();
                 },
                 [&] { AnzahlZeigen(); }, [&] { Zeigen(Nummer()); })();
}

/// A helper without a first name cannot be left forwards, although the next one is shown. At 0 the
/// number box is lowered all the same and clipped by its own rule.
void HelferForm::Schritt(int richtung)
{
    const int i = Sichern();
    const int gespeichert = Helfer.Cursor;
    Liste->Folgen();
    if (richtung > 0) {
        if (i >= LetzterDatensatz)
            return;
        Zeigen(i + 1);
        if (IstBenannt(gespeichert))
            ZahlSetzen(Wahl->Nummer, i + 1);
    } else {
        if (i > 0)
            Zeigen(i - 1);
        ZahlSetzen(Wahl->Nummer, i - 1);
    }
}

int HelferForm::Sichern()
{
    Umbenennen();
    const int i = Nummer();
    Schreiben(Helfer.Cursor);
    return i;
}

bool HelferForm::IstBenannt(int i) const
{
    return !Helfer.Vorname[i].empty();
}

QWidget *HelferForm::Fehlendes(int i) const
{
    return Helfer.Nachname[i].empty() ? nullptr : Person.Vorname;
}

void HelferForm::Aufschlagen(int satz)
{
    NullStattLeer();
    Editorfenster::Aufschlagen(satz);
}

/// Before each save, except when closing by the close box: a name that another helper has is
/// silently undone, a new one is passed on to the masses.
void HelferForm::Umbenennen()
{
    if (IstAndererHelfer(LesenOderFokus(Wahl->Nummer, Int16Lesen), Person.Name()))
        Person.NameZeigen(Helfer, Helfer.Cursor);
    const Personenname alt{Helfer.Vorname[Helfer.Cursor], Helfer.Nachname[Helfer.Cursor]};
    HelferUmbenennen(Helfer.Cursor, Person.Name());
    UmbenennungMelden(alt, Person.Name(), true);
}

void HelferForm::Löschen()
{
    if (!Meldungen.FragenVorVerlust("Wirklich?", "Löschen eines Helfers") || Helfer.Anzahl < 3)
        return;
    HelferLöschen(Helfer.Cursor);
    Zeigen(Helfer.Cursor);
    AnzahlZeigen();
    if (Nummer() > Helfer.Anzahl)
        ZahlSetzen(Wahl->Nummer, Helfer.Anzahl);
    Liste->Folgen();
}

void HelferForm::NeuerHelfer()
{
    NeuAnlegen<NeuerHelferForm>(
        Schrittweise([this] { Zeigen(Nummer()); }, [this] { AnzahlZeigen(); }));
}

/// Writes the screen. For a record in the blank slot one name is enough to become a helper; a
/// server needs both.
void HelferForm::Abschließen()
{
    Schreiben(Helfer.Cursor);
    if (Helfer.Cursor == Helfer.Anzahl && !Person.Name().Leer())
        ++Helfer.Anzahl;
}

void HelferForm::Zeigen(int i)
{
    Person.Zeigen(Helfer, i);
    Tagen.Zeigen(Helfer.Geburtstag[i]);
    Setzen(Dient, Helfer.Dienst1[i]);
    Setzen(Dient2, Helfer.Dienst2[i]);
    Abwesenheiten.Zeigen(Zeitspalten(), i);
}

void HelferForm::Schreiben(int i)
{
    Person.Schreiben(Helfer, i);
    Helfer.Geburtstag[i] = Tagen.Wert();
    Helfer.Dienst1[i] = TextVon(Dient);
    Helfer.Dienst2[i] = TextVon(Dient2);
    Abwesenheiten.Schreiben(Zeitspalten(), i);
}

void HelferForm::AnzahlZeigen()
{
    Setzen(Datensätzig, ZahlText(Helfer.Anzahl));
}

} // namespace altardienst
