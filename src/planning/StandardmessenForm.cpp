// The editor of the week pattern: one regular mass at a time.
#include "planning/StandardmessenForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Terminbox.h"
#include "controls/Textwahl.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>
#include <QListView>
#include <QStandardItemModel>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 10;

} // namespace

StandardmessenForm::StandardmessenForm()
    : Wahl(new Datensatzwahl({"Datensatznummer", "Plus", "Minus", "DPM"})),
      Tage(Benannt(new QComboBox, "Tage")), Zeitig(Zeitbox("Zeitig")),
      Stundenändern(new SpinButton("Stundenändern", "Stunde ändern")),
      mh(Minusknopf("mh", "eine Stunde früher")), ph(Plusknopf("ph", "eine Stunde später")),
      Minutenänderung(new SpinButton("Minutenänderung", "Minuten ändern")),
      mMin(Minusknopf("mMin", "fünf Minuten früher")),
      pMini(Plusknopf("pMini", "fünf Minuten später")), Messearten(Textfeld("Messearten")),
      Dienste({{"ZahlMeßdiener", "DienstA", "DienstB", "DienstC", "DienstD", "Dienste", "DienstF"},
               {"Änderung1", "Änderung2", "Änderung3", "Änderung4", "Änderung5", "Änderung6",
                "Änderung7"},
               "Anzahl Meßdiener",
               ""}),
      Helferzahlen({{"Leck", "Komu", "Kanto", "Kolle"},
                    {"Änderung8", "Änderung9", "Änderung10", "Änderung11"},
                    ""}),
      Löschig(Knopf("Löschig", "Löschen")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Standardmessen");
    setWindowTitle("Standardmessen");
    for (const Festtext &tag : Wochentagsnamen)
        Tage->addItem(tag.c_str());
    RadSperren(Tage);
    Anordnen();
    Verbinden();
    Offen([this] {
        ZahlSetzen(Wahl->Nummer, Standardmesse.Anzahl);
        Zeigen(Standardmesse.Anzahl);
    })();
}

void StandardmessenForm::Anordnen()
{
    auto *zeit = new QHBoxLayout;
    zeit->setSpacing(Schrittabstand);
    zeit->addWidget(Zeitig);
    SchrittAnfügen(zeit, "Stunde", Stundenändern, mh, ph);
    SchrittAnfügen(zeit, "Minuten", Minutenänderung, mMin, pMini);
    zeit->addStretch();

    auto *oben = new QGridLayout;
    oben->setHorizontalSpacing(12);
    oben->addWidget(Beschriftung("", "Wochentag", Tage), 0, 0);
    Tage->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    Tage->setMaximumWidth(2 * Tage->sizeHint().width()); // a file may hold any text
    oben->addWidget(Tage, 0, 1, Qt::AlignLeft);
    oben->addWidget(Beschriftung("", "Uhrzeit", Zeitig), 1, 0);
    oben->addLayout(zeit, 1, 1);
    oben->addWidget(Beschriftung("", "Art", Messearten), 2, 0);
    oben->addWidget(Messearten, 2, 1);

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(Datensatzkopf(Wahl));
    spalte->addLayout(oben);
    spalte->addLayout(Nebeneinander(Dienste, Helferzahlen));
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Ende}, {Löschig}));
    Tage->setFocus();
}

void StandardmessenForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Offen([&] { Schritt(richtung); })(); });
    connect(Zeitig, &QLineEdit::textChanged, this, Abgefangen([this] { AlsLangeZeit(Zeitig); }));
    const auto zeit = [this](QPushButton *minus, QPushButton *plus, SpinButton *spin,
                             void (*weiter)(QLineEdit *, int), int schritt) {
        SchritteVerbinden(minus, plus, spin, [this, weiter, schritt](int richtung) {
            Abgefangen([&] { weiter(Zeitig, richtung * schritt); })();
        });
    };
    zeit(mh, ph, Stundenändern, StundenWeiter, 1);
    zeit(mMin, pMini, Minutenänderung, MinutenWeiter, 5);
    PfeiltastenVerbinden(Zeitig, Stundenändern, Pfeilstufen[0]);
    PfeiltastenVerbinden(Zeitig, Minutenänderung, Pfeilstufen[1]);
    Dienste.Verbinden([this] { DienerzahlGeändert(); });
    Helferzahlen.Verbinden();
    connect(Löschig, &QPushButton::clicked, this, Offen([this] { Löschen(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

/// Typing a number jumps to that record without saving what is on the screen.
void StandardmessenForm::NummerGeändert()
{
    const int nummer = Begrenzen(Wahl->Nummer, 0, LetzterDatensatz);
    Standardmesse.Anzahl = nummer;
    Zeigen(nummer);
}

/// At either end nothing is written; the number box still moves and is clipped by its own rule.
void StandardmessenForm::Schritt(int richtung)
{
    const int i = Standardmesse.Anzahl;
    const bool geht = richtung > 0 ? i < LetzterDatensatz : i > 0;
    if (geht) {
        Schreiben(i);
        Zeigen(i + richtung);
    }
    ZahlSetzen(Wahl->Nummer, LesenOderFokus(Wahl->Nummer, Int16Lesen) + richtung);
}

void StandardmessenForm::DienerzahlGeändert()
{
    QLineEdit *zahl = Dienste.Dienerzahl.Feld;
    if (!zahl->text().isEmpty())
        Dienste.DienerzahlBegrenzen();
    for (QLineEdit *feld : Dienste.Felder())
        if (feld != zahl && feld->text().isEmpty())
            ZahlSetzen(feld, 0);
    if (zahl->text().isEmpty())
        ZahlSetzen(zahl, 1);
}

/// Changes the screen only; the weekday stays.
void StandardmessenForm::Löschen()
{
    if (!Meldungen.FragenVorVerlust("Wirklich?", "Löschen einer Standardmesse"))
        return;
    Zeitig->setText("00:00:00");
    Messearten->clear();
    for (QLineEdit *feld : Dienste.Felder())
        ZahlSetzen(feld, 0);
    for (QLineEdit *feld : Helferzahlen.Felder())
        ZahlSetzen(feld, 0);
}

/// A text from the file that is none of the seven is shown in the box like a weekday, so that it is
/// written back unchanged; it cannot be chosen.
void StandardmessenForm::TagZeigen(const Text &tag)
{
    constexpr int keiner = Wochentagsnamen.size(); // the place after them
    Tage->removeItem(keiner);
    if (!tag.empty() && Tage->findText(Anzeige(tag)) < 0) {
        Tage->addItem(Anzeige(tag));
        static_cast<QStandardItemModel *>(Tage->model())->item(keiner)->setEnabled(false);
        static_cast<QListView *>(Tage->view())->setRowHidden(keiner, true);
    }
    Tage->setCurrentIndex(Tage->findText(Anzeige(tag)));
}

void StandardmessenForm::Zeigen(int i)
{
    TagZeigen(Standardmesse.Wochentag[i]);
    Setzen(Zeitig, LangeZeit(Standardmesse.Uhrzeit[i]));
    Setzen(Messearten, Standardmesse.Messeart[i]);
    Dienste.Zeigen(Standardmesse, i);
    Helferzahlen.Zeigen(Standardmesse, i);
}

void StandardmessenForm::Schreiben(int i)
{
    Standardmesse.Wochentag[i] = Tage->currentText().toStdString();
    Standardmesse.Uhrzeit[i] = LesenOderFokus(Zeitig, DatumLesen);
    Standardmesse.Messeart[i] = TextVon(Messearten);
    Dienste.Schreiben(Standardmesse, i);
    Helferzahlen.Schreiben(Standardmesse, i);
}

/// A box that cannot be converted keeps the form open, with the failure shown.
void StandardmessenForm::VorDemSchließen()
{
    Schreiben(Standardmesse.Anzahl);
}

} // namespace altardienst
