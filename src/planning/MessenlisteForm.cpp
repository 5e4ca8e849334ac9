// The mass list: any mass corrected by hand, one at a time.
#include "planning/MessenlisteForm.h"

#include "core/Umwandlung.h"
#include "core/tables.h"
#include "fenster/Anwendung.h"
#include "fenster/Bausteine.h"
#include "fenster/Fensteraufbau.h"
#include "fenster/Gelesen.h"
#include "fenster/Handler.h"
#include "fenster/Nebenfenster.h"
#include "fenster/Terminbox.h"
#include "people/LektorrenuswForm.h"
#include "planning/NeuMesseForm.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 600;

QPointer<MessenlisteForm> offene;

QString Nummeriert(const char *stamm, std::size_t k)
{
    return QString::fromUtf8(stamm) + QString::number(k + 1);
}

/// All that the list shows of a mass.
auto Gezeigtes(int i)
{
    std::vector<Text> namen;
    for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
        namen.insert(namen.end(), {Messe.DienerVor[i][slot], Messe.DienerNach[i][slot]});
    std::vector<int> zahlen{Messe.Anzahl};
    for (auto *spalte : {&Messe.Dienerzahl, &Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau,
                         &Messe.Weihrauch, &Messe.Kreuzträger, &Messe.Allgemein})
        zahlen.push_back((*spalte)[i]);
    return std::tuple(Messe.Wochentag[i], Messe.Datum[i], Messe.Uhrzeit[i], Messe.Messeart[i],
                      zahlen, namen);
}

} // namespace

MessenlisteForm::MessenlisteForm()
    : Wahl(new Datensatzwahl({"Datensatzus", "Plus", "Minus", "DPM"})),
      maxi(Beschriftung("maxi", "")), mt(Minusknopf("mt", "einen Tag früher")),
      pt(Plusknopf("pt", "einen Tag später")), mm(Minusknopf("mm", "einen Monat früher")),
      pm(Plusknopf("pm", "einen Monat später")), mj(Minusknopf("mj", "ein Jahr früher")),
      pj(Plusknopf("pj", "ein Jahr später")), mhh(Minusknopf("mhh", "eine Stunde früher")),
      phh(Plusknopf("phh", "eine Stunde später")), mmin(Minusknopf("mmin", "fünf Minuten früher")),
      pmin(Plusknopf("pmin", "fünf Minuten später")), Messewesen(Textfeld("Messewesen")),
      Dienste({{"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3", "Dienster4", "Dienster5",
                "Dienster6"},
               {"Ä1", "Ä2", "Ä3", "Ä4", "Ä5", "Ä6", "Ä7"},
               {"Meßdienerzahl:", "Gabenbereitung:", "Leuchter:", "Flambeaus:", "Weihrauch:",
                "Kreuzträger:", "Allgemein:"}}),
      Löscher(Knopf("Löscher", "Datensatz löschen")), NeuMeß(Knopf("NeuMeß", "neue Messe")),
      Lektoren(Knopf("Lektoren", "Lektoren und ...")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Messenliste");
    setWindowTitle("Messenliste");
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        vor[k] = Textfeld(Nummeriert("vor", k).toUtf8().constData());
        nach[k] = Textfeld(Nummeriert("nach", k).toUtf8().constData());
        MDR[k] = Beschriftung(("MDR[" + std::to_string(k) + "]").c_str(),
                              (Nummeriert("Meßdiener ", k) + ":").toUtf8().constData(), vor[k]);
        vor[k]->setAccessibleName(Nummeriert("Vorname Meßdiener ", k));
        nach[k]->setAccessibleName(Nummeriert("Nachname Meßdiener ", k));
    }
    Anordnen();
    Verbinden();
    Laden();
    offene = this;
}

QWidget *MessenlisteForm::Offene()
{
    if (!offene)
        return new MessenlisteForm;
    offene->Erneuern();
    QWidget *vorn = offene->dialog ? offene->dialog.data() : offene.data();
    vorn->setWindowState(vorn->windowState() & ~Qt::WindowMinimized);
    return vorn;
}

/// The number counts as changed, also where it is the one that stood there.
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
}

void MessenlisteForm::Anordnen()
{
    auto *termin = new QGridLayout;
    Termin.Anordnen(termin, 0, Terminknöpfe());
    termin->addWidget(Beschriftung("", "Art:", Messewesen), 6, 0);
    termin->addWidget(Messewesen, 6, 1, 1, 2);
    auto *dienste = new QGridLayout;
    Dienste.Anordnen(dienste, 0);
    dienste->setColumnStretch(3, 1);

    auto *links = new QVBoxLayout;
    links->setSpacing(14);
    links->addLayout(termin);
    links->addLayout(dienste);
    links->addStretch();

    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(20);
    mitte->addLayout(links);
    mitte->addLayout(Slots(), 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(16, 16, 16, 16);
    spalte->setSpacing(12);
    spalte->addLayout(Datensatzkopf(Wahl, Beschriftung("NBe", "Anzahl Datensätze:"), maxi));
    spalte->addWidget(Rollbar(mitte), 1);
    spalte->addLayout(Knopfreihe({Ende}, {Löscher, NeuMeß, Lektoren}));
    GrößeAnpassen(this); // with all rows of slots
    Wahl->Nummer->setFocus();
}

/// Rows that a mass does not use are hidden from the bottom up, so they leave no hole.
QLayout *MessenlisteForm::Slots()
{
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(3);
    raster->setHorizontalSpacing(6);
    for (int k = 0; k < static_cast<int>(MDR.size()); ++k) {
        const auto zeile = static_cast<std::size_t>(k);
        raster->addWidget(MDR[zeile], k, 0);
        raster->addWidget(vor[zeile], k, 1);
        raster->addWidget(nach[zeile], k, 2);
    }
    raster->setColumnMinimumWidth(0, MDR[0]->fontMetrics().horizontalAdvance("Meßdiener 20 :"));
    raster->setColumnMinimumWidth(1, 90);
    raster->setColumnMinimumWidth(2, 90);
    raster->setRowStretch(static_cast<int>(MDR.size()), 1);
    return raster;
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
    Dienste.Verbinden([this] { DienerzahlGeändert(); });
    // A service may change while the number of servers stays.
    for (const Zahlbox &dienst : Dienste.Dienste)
        connect(dienst.Feld, &QLineEdit::textChanged, this, Abgefangen([this] {
                    if (!füllt)
                        Beschriften();
                }));
    connect(Löscher, &QPushButton::clicked, this, Abgefangen([this] { Löschen(); }));
    connect(NeuMeß, &QPushButton::clicked, this, Abgefangen([this] { NeueMesse(); }));
    connect(Lektoren, &QPushButton::clicked, this, Abgefangen([this] { HelferDerMesse(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
    NebenDemHauptfenster(
        this,
        [this] {
            if (offene == this && getippt() && !überholt())
                Ablegen();
        },
        [this] {
            if (offene == this)
                Erneuern();
        });
}

/// Stepping one past the end adds an empty mass to the table, without a question.
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
    Messe.Cursor = nummer;
    Beschriften();
}

void MessenlisteForm::Schritt(int richtung)
{
    if (Wahl->Nummer->text().isEmpty())
        ZahlSetzen(Wahl->Nummer, 0); // shows mass 0, so there is nothing that entries could follow
    else
        Mitziehen();
    const int i = Nummer();
    Schreiben(i);
    if (richtung > 0 ? i < LetzterDatensatz : i > 0) {
        Zeigen(i + richtung);
        ZahlSetzen(Wahl->Nummer, i + richtung);
    }
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

/// While a mass is filled in, its services lead the number of servers through many values; the rows
/// follow the last one, since each that comes or goes moves everything else.
void MessenlisteForm::ZeilenZeigen(int diener)
{
    if (füllt)
        return;
    QLayout *ordnung = MDR[0]->parentWidget()->layout();
    ordnung->setEnabled(false); // once for all rows
    for (std::size_t k = 0; k < MDR.size(); ++k)
        for (QWidget *control : std::initializer_list<QWidget *>{MDR[k], vor[k], nach[k]})
            control->setVisible(diener > static_cast<int>(k));
    ordnung->setEnabled(true);
    ordnung->invalidate();
}

/// A service that is no number leaves its slots and all behind them numbered.
void MessenlisteForm::Beschriften()
{
    Dienstwünsche wünsche;
    const auto beschriften = [&] {
        const auto texte = SlotBeschriftungen(wünsche);
        for (std::size_t k = 0; k < MDR.size(); ++k)
            Setzen(MDR[k], texte[k]);
    };
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
    AnzahlZeigen();
    Beschriften();
}

void MessenlisteForm::NeueMesse()
{
    DialogZeigen(new NeuMesseForm(*this));
    Zeigen(Messe.Cursor);
    Beschriften();
}

void MessenlisteForm::NachNeuerMesse(bool angelegt)
{
    Wiederkommen();
    if (!angelegt)
        return;
    Abgefangen([this] {
        AnzahlZeigen();
        Zeigen(Nummer());
        Beschriften();
    })();
}

void MessenlisteForm::DialogZeigen(QWidget *neuer)
{
    hide();
    dialog = neuer;
    DialogDanebenÖffnen(dialog);
}

void MessenlisteForm::Wiederkommen()
{
    dialog.clear();
    show();
    activateWindow();
}

void MessenlisteForm::HelferDerMesse()
{
    DialogZeigen(new LektorrenuswForm([liste = QPointer(this)] {
        if (liste)
            liste->Wiederkommen();
    }));
}

int MessenlisteForm::Nummer() const
{
    return Gelesen(Wahl->Nummer, Int16Lesen);
}

/// The list shows the mass of the cursor, as it is now.
void MessenlisteForm::Erneuern()
{
    if (überholt() || gezeigt != Messe.Cursor)
        Laden();
}

void MessenlisteForm::Ablegen()
{
    Mitziehen();
    Schreiben(Nummer());
}

/// A fixed entry follows its mass when the mass is moved.
void MessenlisteForm::Mitziehen()
{
    const int i = Nummer();
    try {
        FesteEintraegeMitziehen(i, TextVon(Termin.datendaten), TextVon(Termin.Uhrwerk));
    } catch (const Laufzeitfehler &) {
        for (QLineEdit *feld : {Termin.datendaten, Termin.Uhrwerk})
            Gelesen(feld, DatumLesen); // shows which of the two it is
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
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        const int slot = static_cast<int>(k) + 1;
        Setzen(vor[k], Messe.DienerVor[i][slot]);
        Setzen(nach[k], Messe.DienerNach[i][slot]);
    }
    Merken(i);
}

void MessenlisteForm::Schreiben(int i)
{
    const auto amEnde = qScopeGuard(Abgefangen([this, i] { Merken(i); })); // a part counts too
    Messe.Wochentag[i] = TextVon(Termin.tagelang);
    Messe.Datum[i] = Gelesen(Termin.datendaten, DatumLesen);
    Messe.Uhrzeit[i] = Gelesen(Termin.Uhrwerk, DatumLesen);
    Messe.Messeart[i] = TextVon(Messewesen);
    Dienste.Schreiben(Messe, i);
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        const int slot = static_cast<int>(k) + 1;
        Messe.DienerVor[i][slot] = TextVon(vor[k]);
        Messe.DienerNach[i][slot] = TextVon(nach[k]);
    }
}

void MessenlisteForm::Merken(int i)
{
    gezeigt = i;
    überholt = Verändert([i] { return Gezeigtes(i); });
    getippt = Verändert([this] { return Schirm(this); });
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
        offene.clear();
        HauptfensterZurück();
    })();
}

} // namespace altardienst
