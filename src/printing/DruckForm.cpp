// All printing that is not a chart: the plan, lists, blank forms and labels.
#include "printing/DruckForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "planning/MessenBestimmen.h"
#include "platform/Uhr.h"
#include "printing/Erfassungsbogen.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cmath>

namespace altardienst {
namespace {

constexpr QMargins Rahmenrand(8, 4, 8, 6);

/// The column within a frame, so tight that all commands fit the smallest screen.
QVBoxLayout *Rahmenspalte(QGroupBox *rahmen)
{
    auto *spalte = new QVBoxLayout(rahmen);
    spalte->setContentsMargins(Rahmenrand);
    spalte->setSpacing(3);
    return spalte;
}

/// A day and its weekday.
void TagZeigen(QLineEdit *feld, QLabel *wochentag, Datum datum)
{
    Setzen(feld, KurzesDatum(datum));
    Setzen(wochentag, WochentagNameGefüllt(datum));
}

} // namespace

DruckForm::DruckForm()
    : Messendruck(Knopf("Messendruck", "Druck des Altardienstes")),
      Standarddruck(Knopf("Standarddruck", "Drucken der Standardmessen")),
      Meßdienerdruck(Knopf("Meßdienerdruck", "Druck der Meßdienerdaten (alle)")),
      DruckiMeßdieneri(Knopf("DruckiMeßdieneri", "Druck Meßdienerdaten (Gruppe)")),
      Gruppend(Benannt(new QComboBox, "Gruppend")),
      Wunschpartner(Knopf("Wunschpartner", "Druck der Wunschpartner")),
      DruckHelfer(Knopf("DruckHelfer", "Druck der Helfer")),
      Erfassungsbogen(Knopf("Erfassungsbogen", "Drucken des Erfassungsbogens für Meßdiener")),
      Erfaßung(Knopf("Erfaßung", "Druck des Erfassungsbogens für Meßhelfer")),
      Rückgebend(Datumsbox("Rückgebend")),
      Änderung1(new SpinButton("Änderung1", "Rückgabe um einen Tag ändern")),
      Minus1(Minusknopf("Minus1", "Rückgabe einen Tag früher")),
      Plus1(Plusknopf("Plus1", "Rückgabe einen Tag später")), RückTag(Beschriftung("RückTag", "")),
      Dauernde(Datumsbox("Dauernde")),
      Änderung2(new SpinButton("Änderung2", "Dauer um einen Tag ändern")),
      Minus2(Minusknopf("Minus2", "Dauer einen Tag kürzer")),
      Plus2(Plusknopf("Plus2", "Dauer einen Tag länger")), DauerTag(Beschriftung("DauerTag", "")),
      EtikGross(Knopf("EtikGross", "Druck der Etikettengröße")),
      Etikettenrahmen(new Etikettenwahl("Druck von Adressetiketten", EtikGross)),
      Alles(Benannt(new QRadioButton("Alle"), "Alles")),
      GRP(Benannt(new QRadioButton("Meßdienergruppe"), "GRP")),
      Messhelfer(Benannt(new QRadioButton("Meßhelfer"), "Messhelfer")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Druck");
    setWindowTitle("Druck");
    Anordnen();
    Verbinden();
    Offen([this] { Öffnen(); })();
    GrößeAnpassen(this); // now that the names of the groups and formats are filled in
}

void DruckForm::Anordnen()
{
    auto *oben = new QHBoxLayout;
    oben->setObjectName("Teile"); // one below the other where there is no room
    oben->setSpacing(10);
    oben->addWidget(Listen(), 1);
    oben->addWidget(Erfassung(), 1);
    auto *inhalt = new QVBoxLayout;
    inhalt->setSpacing(8);
    inhalt->addLayout(oben);
    inhalt->addWidget(Adressetiketten());
    inhalt->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(Rollbar(inhalt), 1);
    spalte->addLayout(Knopfreihe({Ende}));
    Messendruck->setFocus();
}

QWidget *DruckForm::Listen()
{
    auto *rahmen = Benannt(new QGroupBox("Plan und Listen"), "Listen");
    auto *spalte = Rahmenspalte(rahmen);
    for (QPushButton *knopf : {Messendruck, Standarddruck, Meßdienerdruck, DruckiMeßdieneri})
        spalte->addWidget(knopf);
    auto *gruppe = new QHBoxLayout;
    gruppe->addWidget(Beschriftung("GruppendText", "Gruppe:", Gruppend));
    gruppe->addWidget(Gruppend, 1);
    spalte->addLayout(gruppe);
    for (QPushButton *knopf : {Wunschpartner, DruckHelfer})
        spalte->addWidget(knopf);
    spalte->addStretch();
    return rahmen;
}

QWidget *DruckForm::Erfassung()
{
    auto *rahmen = Benannt(new QGroupBox("Erfassungsbögen"), "Erfassung");
    auto *raster = new QGridLayout(rahmen);
    raster->setContentsMargins(Rahmenrand);
    raster->setRowStretch(6, 1);
    raster->addWidget(Erfassungsbogen, 0, 0, 1, 2);
    raster->addWidget(Erfaßung, 1, 0, 1, 2);
    int zeile = 2;
    const auto datum = [&](const char *name, const char *text, QLineEdit *feld, SpinButton *spin,
                           QPushButton *minus, QPushButton *plus, QLabel *tag) {
        raster->addWidget(Beschriftung(name, text, feld), zeile++, 0, 1, 2);
        auto *reihe = new QHBoxLayout;
        for (QWidget *control : std::initializer_list<QWidget *>{feld, spin, minus, plus, tag})
            reihe->addWidget(control);
        reihe->addStretch();
        raster->addLayout(reihe, zeile++, 0, 1, 2);
    };
    datum("RückgebendText", "Rückgabe des Erfassungsbogen bis zum:", Rückgebend, Änderung1, Minus1,
          Plus1, RückTag);
    datum("DauerndeText", "Dauer des Plans (ca.):", Dauernde, Änderung2, Minus2, Plus2, DauerTag);
    return rahmen;
}

QWidget *DruckForm::Adressetiketten()
{
    auto *rahmen = Benannt(new QGroupBox("Etiketten"), "Adressetiketten");
    auto *leute = new QHBoxLayout;
    // Without a group of their own they would form one group with the options of the frame below.
    auto *wahl = new QButtonGroup(rahmen);
    for (QRadioButton *option : {Alles, GRP, Messhelfer}) {
        wahl->addButton(option);
        leute->addWidget(option);
    }
    leute->addStretch();
    GRP->setToolTip("die Gruppe, die unter \"Plan und Listen\" gewählt ist");
    auto *spalte = Rahmenspalte(rahmen);
    spalte->addLayout(leute);
    spalte->addWidget(Etikettenrahmen);
    return rahmen;
}

void DruckForm::Verbinden()
{
    const auto drucken = [this](QPushButton *knopf, const std::function<void()> &bericht) {
        connect(knopf, &QPushButton::clicked, this, Offen(bericht));
    };
    drucken(Messendruck, [] {
        VorDemPlandruck();
        PlanDrucken();
    });
    drucken(Standarddruck, StandardmessenDrucken);
    drucken(Meßdienerdruck, AlleMeßdienerDrucken);
    drucken(DruckiMeßdieneri, [this] { MeßdienergruppeDrucken(GewählteGruppe()); });
    drucken(Wunschpartner, WunschpartnerlisteDrucken);
    drucken(DruckHelfer, AlleHelferDrucken);
    drucken(Erfassungsbogen,
            [this] { ErfassungsbogenMeßdienerDrucken(TextVon(Rückgebend), TextVon(Dauernde)); });
    drucken(Erfaßung,
            [this] { ErfassungsbogenHelferDrucken(TextVon(Rückgebend), TextVon(Dauernde)); });
    drucken(Etikettenrahmen->Etiketten, [this] { EtikettenDrucken(); });
    drucken(EtikGross, EtikettengrößenDrucken);

    SchritteVerbinden(Minus1, Plus1, Änderung1, [this](int tage) {
        Abgefangen([&] {
            TagZeigen(Rückgebend, RückTag, DatumLesen(TextVon(Rückgebend)) + tage);
            RückgabeFassen();
        })();
    });
    SchritteVerbinden(Minus2, Plus2, Änderung2, [this](int tage) {
        Abgefangen([&] {
            TagZeigen(Dauernde, DauerTag, DatumLesen(TextVon(Dauernde)) + tage);
            DauerFassen();
        })();
    });
    PfeiltastenVerbinden(Rückgebend, Änderung1);
    PfeiltastenVerbinden(Dauernde, Änderung2);
    BeiFokusVerlust(Rückgebend, Abgefangen([this] { RückgabeFassen(); }));
    BeiFokusVerlust(Dauernde, Abgefangen([this] { DauerFassen(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void DruckForm::Öffnen()
{
    const Datum rückgabe = StartDatumRechnen();
    TagZeigen(Rückgebend, RückTag, rückgabe);
    TagZeigen(Dauernde, DauerTag, rückgabe + Konfig.Tage);
    for (int i = 0; i < Gruppe.Anzahl; ++i)
        Gruppend->addItem(Anzeige(Gruppe.Bezeichnung[i]));
    Alles->setChecked(true);
    Etikettenrahmen->Füllen();
}

/// A return date that lies in the past becomes today.
void DruckForm::RückgabeFassen()
{
    Datum datum = std::trunc(DatumLesen(TextVon(Rückgebend)));
    if (datum < Uhr.Heute())
        datum = Uhr.Heute();
    TagZeigen(Rückgebend, RückTag, datum);
}

void DruckForm::DauerFassen()
{
    Datum datum = std::trunc(DatumLesen(TextVon(Dauernde)));
    if (datum < Uhr.Heute())
        datum = DatumLesen(TextVon(Rückgebend)) + Konfig.Tage;
    TagZeigen(Dauernde, DauerTag, datum);
}

void DruckForm::EtikettenDrucken()
{
    if (Messhelfer->isChecked())
        Etikettenrahmen->Drucken(EtikettenAllerHelfer());
    else if (GRP->isChecked())
        Etikettenrahmen->Drucken(EtikettenDerGruppe(GewählteGruppe()));
    else
        Etikettenrahmen->Drucken(EtikettenAllerMeßdiener());
}

Text DruckForm::GewählteGruppe() const
{
    return Gruppend->currentText().toStdString();
}

} // namespace altardienst
