// The first window: loads the data, proposes the plan period, hands over to the main window.
#include "shell/StartForm.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "controls/Vordergrund.h"
#include "controls/Zahlbox.h"
#include "core/Allgemein.h"
#include "core/Dateien.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "fixed/FesteEinträge.h"
#include "history/Netz.h"
#include "history/Rückgängig.h"
#include "history/Schreibhindernis.h"
#include "history/StändeForm.h"
#include "planning/MessenBestimmen.h"
#include "platform/Uhr.h"
#include "shell/Programm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>
#include <cmath>

namespace altardienst {

StartForm::StartForm(std::function<void()> starten)
    : Datumsen(Datumsbox("Datumsen")), Tagchen(Beschriftung("Tagchen", "")),
      SpinButton1(new SpinButton("SpinButton1", "Startdatum um einen Tag ändern")),
      Plus(Knopf("Plus", "+")), Minus(Knopf("Minus", "-")), Tagilein(Zahleneingabe("Tagilein")),
      Änderung1(new SpinButton("Änderung1", "Anzahl Tage ändern")),
      Endet(Beschriftung("Endet", "")), Dayig(Beschriftung("Dayig", "")),
      UHRZEIT(Beschriftung("UHRZEIT", "")), Starten(Knopf("Starten", "Starten")),
      Hinweis(Beschriftung("Hinweis", "")),
      FrühereStände(Knopf("FrühereStände", "&Frühere Stände")),
      Timer1(Benannt(new QTimer(this), "Timer1")), starten(std::move(starten))
{
    Benannt(this, "Start");
    setWindowTitle("Altardienst");
    Anordnen();
    Verbinden();
    Offen([this] { Schritt("Daten laden", [this] { Laden(); }); })();
    HinweisZeigen();
}

void StartForm::Anordnen()
{
    Plus->setAccessibleName("einen Tag vor");
    Minus->setAccessibleName("einen Tag zurück");
    for (QPushButton *knopf : {Plus, Minus}) {
        knopf->setFixedWidth(Schrittknopfbreite);
        knopf->setFocusPolicy(Qt::ClickFocus); // the arrow keys do the same in the box
    }
    Tagilein->setFixedWidth(Datumsen->maximumWidth());
    QFont groß = UHRZEIT->font();
    groß.setPointSizeF(groß.pointSizeF() * 1.6);
    UHRZEIT->setFont(groß);
    UHRZEIT->setAlignment(Qt::AlignCenter);

    auto *schritte = new QHBoxLayout;
    schritte->setSpacing(6);
    for (QWidget *control : std::initializer_list<QWidget *>{SpinButton1, Plus, Minus})
        schritte->addWidget(control);

    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(12);
    raster->addWidget(
        Beschriftung("berechnend", "Startberechnungsdatum für den Meßdienerplan:", Datumsen), 0, 0);
    raster->addWidget(Datumsen, 0, 1);
    raster->addWidget(Tagchen, 0, 2);
    raster->addLayout(schritte, 0, 3);
    raster->addWidget(Beschriftung("Tagezahl", "Anzahl Tage: ", Tagilein), 1, 0);
    raster->addWidget(Tagilein, 1, 1);
    raster->addWidget(Änderung1, 1, 2, Qt::AlignLeft);
    raster->addWidget(Beschriftung("bissig", "bis zum:"), 2, 0);
    raster->addWidget(Endet, 2, 1);
    raster->addWidget(Dayig, 2, 2);
    raster->setColumnMinimumWidth(2, Tagchen->fontMetrics().horizontalAdvance("Donnerstag"));

    auto *unten = new QHBoxLayout;
    unten->addStretch();
    Starten->setMinimumWidth(160);
    unten->addWidget(Starten);
    unten->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(raster);
    spalte->addWidget(UHRZEIT);
    spalte->addLayout(unten);
    Hinweis->setWordWrap(true);
    spalte->addWidget(Hinweis);
    spalte->addWidget(FrühereStände, 0, Qt::AlignRight);
    spalte->addStretch();
    Starten->setFocus();
}

void StartForm::Verbinden()
{
    connect(Tagilein, &QLineEdit::textChanged, this, Abgefangen([this] { TagileinGeändert(); }));
    BeiEingabetaste(Datumsen, Abgefangen([this] { Neuberechnen(); }));
    BeiFokusVerlust(Datumsen,
                    Schrittweise([this] { Neuberechnen(); }, [this] { WochentageSetzen(); }));
    SpinButton1->BeiAb(Abgefangen([this] { DatumGedreht(-1); }));
    SpinButton1->BeiAuf(Abgefangen([this] { DatumGedreht(+1); }));
    auto schrittknopf = [this](QPushButton *knopf, int tage) {
        BeiMausdruck(knopf, Abgefangen([this, tage] { DatumVerschieben(tage); }));
        BeiTastendruck(knopf, Abgefangen([this, tage] {
                           Neuberechnen();
                           DatumVerschieben(tage);
                       }));
        connect(knopf, &QPushButton::clicked, this, Abgefangen([this] { Neuberechnen(); }));
    };
    schrittknopf(Plus, +1);
    schrittknopf(Minus, -1);
    PfeiltastenVerbinden(Datumsen, SpinButton1);
    PfeiltastenVerbinden(Tagilein, Änderung1);
    Änderung1->BeiAb(Abgefangen([this] { TageGedreht(-1); }));
    Änderung1->BeiAuf(Abgefangen([this] { TageGedreht(+1); }));
    connect(Starten, &QPushButton::clicked, this, Offen([this] {
                Neuberechnen();
                starten();
                hide();
            }));
    connect(FrühereStände, &QPushButton::clicked, this,
            Offen([] { DialogDanebenÖffnen<StändeForm>(StartNeuZeigen); }));
    auto uhrStellen = Nebenbei(
        [this] { UHRZEIT->setText(Anzeige(LangeZeit(ZeitAus(Uhr.Sekunden())) + " Uhr")); });
    connect(Timer1, &QTimer::timeout, this, uhrStellen);
    Timer1->start(50);
    uhrStellen();
}

void StartForm::HinweisZeigen()
{
    const Text hindernis = Schreibhindernis();
    const Text netz = Starthinweis();
    Setzen(Hinweis, hindernis + (hindernis.empty() || netz.empty() ? "" : "\n") + netz);
    Hinweis->setVisible(!Hinweis->text().isEmpty());
    if (!hindernis.empty())
        Hinweis->setTextInteractionFlags(Qt::TextSelectableByMouse); // to enter it elsewhere
    FrühereStände->setVisible(!netz.empty());
}

void StartForm::Laden()
{
    // First the defaults, so that a load that fails leaves these eight values set.
    SkalenBegrenzen();
    VonFestplatteLaden();
    const Datum vorschlag = StartDatumVorschlagen();
    Datumsen->setText(Anzeige(KurzesDatum(vorschlag)));
    Tagchen->setText(Anzeige(WochentagName(vorschlag)));
    Konfig.StartDatum = vorschlag;
    Tagilein->setText(Anzeige(ZahlText(Konfig.Tage)));
    FesteZuordnungOffen = false;
    if (Konfig.GrenzeAuslöse < 0 || Konfig.GrenzeAuslöse > 99)
        Konfig.GrenzeAuslöse = 60;
}

/// Trapped: an invalid date stays in the box, and the last good one in `Konfig.StartDatum`.
void StartForm::Neuberechnen()
{
    Abgefangen([this] {
        Datum datum = std::trunc(DatumLesen(TextVon(Datumsen)));
        Datumsen->setText(Anzeige(KurzesDatum(datum)));
        if (Uhr.Heute() - datum > 0) {
            datum = Uhr.Heute();
            Datumsen->setText(Anzeige(KurzesDatum(datum)));
        }
        Konfig.StartDatum = datum;
        WochentageSetzen();
    })();
}

void StartForm::WochentageSetzen()
{
    Tagchen->setText(Anzeige(WochentagName(Konfig.StartDatum)));
    const Datum letzter = LetzterTag();
    Endet->setText(Anzeige(KurzesDatum(letzter)));
    Dayig->setText(Anzeige(WochentagName(letzter)));
}

/// `Tage` days after the start date; the period includes both ends.
Datum StartForm::LetzterTag() const
{
    return Konfig.StartDatum + Int16Lesen(TextVon(Tagilein));
}

void StartForm::DatumVerschieben(int tage)
{
    Datumsen->setText(Anzeige(KurzesDatum(DatumLesen(TextVon(Datumsen)) + tage)));
}

void StartForm::DatumGedreht(int tage)
{
    Neuberechnen();
    DatumVerschieben(tage);
    Datumsen->repaint();
    Tagchen->repaint();
    Neuberechnen();
    WochentageSetzen();
}

void StartForm::TageGedreht(int tage)
{
    Neuberechnen();
    Weiterzählen(Tagilein, tage);
    for (QWidget *control : std::initializer_list<QWidget *>{Tagilein, Endet, Dayig})
        control->repaint();
}

void StartForm::TagileinGeändert()
{
    Neuberechnen();
    const Single tage = SingleLesen(TextVon(Tagilein)); // any number, however large
    if (tage < WenigsteTage)
        Tagilein->setText(Anzeige(ZahlText(WenigsteTage)));
    else if (tage > MeisteTage)
        Tagilein->setText(Anzeige(ZahlText(MeisteTage)));
    Konfig.Tage = Int16Lesen(TextVon(Tagilein));
    WochentageSetzen();
    Endet->repaint();
    Dayig->repaint();
}

void StartForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    const QWidgetList fenster = QApplication::topLevelWidgets();
    const bool letztes = std::ranges::none_of(fenster, [this](const QWidget *eines) {
        return eines != this && eines->isVisible() && !IstZumNachlesen(eines);
    });
    // Nothing was planned yet, so nothing is saved.
    if (letztes)
        QApplication::exit();
}

} // namespace altardienst
