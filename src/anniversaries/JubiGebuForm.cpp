// Birthdays by month and jubilees by years: on the screen, as printed lists and as labels.
#include "anniversaries/JubiGebuForm.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiGebuDruck.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <vector>

namespace altardienst {
namespace {

struct Option {
    const char *Name;
    const char *Text;
};

/// Options numbered from `erste`; the first one is chosen.
QButtonGroup *Optionen(QObject *form, int erste, const std::vector<Option> &optionen)
{
    auto *wahl = new QButtonGroup(form);
    for (const auto &[name, text] : optionen)
        wahl->addButton(Benannt(new QRadioButton(QString::fromUtf8(text)), name), erste++);
    wahl->buttons().front()->setChecked(true);
    return wahl;
}

/// Options in a frame, `jeZeile` side by side.
QGroupBox *Rahmen(const char *name, const char *titel, const QButtonGroup *wahl, int jeZeile)
{
    auto *rahmen = Benannt(new QGroupBox(QString::fromUtf8(titel)), name);
    auto *raster = new QGridLayout(rahmen);
    raster->setContentsMargins(8, 4, 8, 4);
    raster->setVerticalSpacing(2);
    int n = 0;
    for (QAbstractButton *option : wahl->buttons()) {
        raster->addWidget(option, n / jeZeile, n % jeZeile);
        ++n;
    }
    return rahmen;
}

} // namespace

JubiGebuForm::JubiGebuForm()
    : Gruppe(Optionen(this, static_cast<int>(Gruppende::Alle),
                      {{"Alle", "Alle"}, {"Messdien", "Meßdiener"}, {"Meßhelfer", "Meßhelfer"}})),
      Monat(Optionen(this, 1,
                     {{"Januar", "Januar"},
                      {"Februar", "Februar"},
                      {"März", "März"},
                      {"April", "April"},
                      {"Mai", "Mai"},
                      {"Juni", "Juni"},
                      {"Juli", "Juli"},
                      {"August", "August"},
                      {"September", "September"},
                      {"Oktober", "Oktober"},
                      {"November", "November"},
                      {"Dezember", "Dezember"}})),
      AnsichtGeb(Knopf("AnsichtGeb", "Ansicht Geburtstage")),
      DruckGebu(Knopf("DruckGebu", "Druck der Geburtstage")),
      Jahre(Optionen(this, 0,
                     {{"NullE", "0"},
                      {"Einse", "1"},
                      {"Zweie", "2"},
                      {"Dreie", "3"},
                      {"Viere", "4"},
                      {"fünfE", "5"},
                      {"Sechse", "6"},
                      {"Siebene", "7"},
                      {"Achte", "8"},
                      {"Neune", "9"},
                      {"Zehene", "10"},
                      {"Elfe", "11"},
                      {"Zwölfe", "12"},
                      {"Dreizehne", "13"},
                      {"Vierzehne", "14"},
                      {"Fünfzehne", "15..."}})),
      AnsichtJubiMeß(Knopf("AnsichtJubiMeß", "Ansicht Jubiläum Meßdiener")),
      JubiläumMeßdiener(Knopf("JubiläumMeßdiener", "Druck Jubiläum Meßdiener")),
      Geburtstage(Benannt(new QRadioButton("Geburtstage"), "Geburtstage")),
      Jubiläum(Benannt(new QRadioButton("Jubiläum"), "Jubiläum")),
      Etikettenrahmen(new Etikettenwahl("Adressetiketten drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "JubiGebu");
    setWindowTitle("Jubiläen und Geburtstage");
    Geburtstage->setChecked(true);
    Anordnen();
    Verbinden();
    Offen([this] { GeburtstageFüllen(); })();
    Offen([this] { JubiläenFüllen(); })();
    Etikettenrahmen->Füllen();
    GrößeAnpassen(this);
}

void JubiGebuForm::Anordnen()
{
    auto *geburtstage = new QVBoxLayout;
    geburtstage->setSpacing(6);
    geburtstage->addWidget(Rahmen("Gruppende", "Gruppe", Gruppe, 2));
    geburtstage->addWidget(Rahmen("Geburtstagsmonat", "Geburtsmonat", Monat, 2));
    for (QPushButton *knopf : {AnsichtGeb, DruckGebu})
        geburtstage->addWidget(knopf);
    geburtstage->addStretch();

    // Without a group of their own they would form one group with the options of the frame below.
    auto *liste = new QButtonGroup(this);
    auto *leute = new QHBoxLayout;
    leute->setSpacing(12);
    leute->addWidget(Beschriftung("", "Etiketten für:"));
    for (QRadioButton *option : {Geburtstage, Jubiläum}) {
        liste->addButton(option);
        leute->addWidget(option);
    }
    leute->addStretch();
    auto *etiketten = new QVBoxLayout;
    etiketten->setSpacing(6);
    etiketten->addLayout(leute);
    etiketten->addWidget(Etikettenrahmen);
    etiketten->addStretch();

    auto *jubiläen = new QGridLayout;
    jubiläen->setHorizontalSpacing(14);
    jubiläen->setVerticalSpacing(6);
    jubiläen->addWidget(Rahmen("Jahreszahl", "Anzahl Jahre", Jahre, 8), 0, 0, 2, 1);
    jubiläen->addWidget(AnsichtJubiMeß, 0, 1, Qt::AlignBottom);
    jubiläen->addWidget(JubiläumMeßdiener, 1, 1, Qt::AlignBottom);
    jubiläen->setColumnStretch(0, 1);

    auto *teile = new QGridLayout;
    teile->setHorizontalSpacing(14);
    teile->setVerticalSpacing(6);
    teile->addLayout(geburtstage, 0, 0);
    teile->addLayout(etiketten, 0, 1);
    teile->addLayout(jubiläen, 1, 0, 1, 2);
    teile->setColumnStretch(1, 1);
    teile->setRowStretch(2, 1);

    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(Rollbar(teile), 1);
    spalte->addLayout(Knopfreihe({Ende}));
    Monat->checkedButton()->setFocus();
}

void JubiGebuForm::Verbinden()
{
    const auto bei = [this](const QButtonGroup *wahl, const std::function<void()> &handler) {
        connect(wahl, &QButtonGroup::idToggled, this, [handler](int, bool an) {
            if (an)
                Offen(handler)();
        });
    };
    bei(Gruppe, [this] { GeburtstageFüllen(); });
    bei(Monat, [this] { GeburtstageFüllen(); });
    bei(Jahre, [this] { JubiläenFüllen(); });

    const auto klick = [this](QPushButton *knopf, const std::function<void()> &handler) {
        connect(knopf, &QPushButton::clicked, this, Offen(handler));
    };
    klick(AnsichtGeb, [this] { AnsichtÖffnen(new GeburtstagsansichtForm); });
    klick(DruckGebu, [this] { GeburtstageDrucken(GewählteGruppe(), GeburtsMonat()); });
    klick(AnsichtJubiMeß, [this] { AnsichtÖffnen(new JubiläumsanzeigeForm); });
    klick(JubiläumMeßdiener, [this] { JubiläenDrucken(JubiläumsJahre()); });
    klick(Etikettenrahmen->Etiketten, [this] { EtikettenDrucken(); });
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void JubiGebuForm::GeburtstageFüllen()
{
    GeburtstageSuchen(GewählteGruppe(), GeburtsMonat());
}

void JubiGebuForm::JubiläenFüllen()
{
    JubiläenSuchen(JubiläumsJahre());
}

/// Once the view has closed, this form gets the keyboard back.
void JubiGebuForm::AnsichtÖffnen(QWidget *ansicht)
{
    connect(ansicht, &QObject::destroyed, this, &QWidget::activateWindow);
    DialogDanebenÖffnen(ansicht);
}

void JubiGebuForm::EtikettenDrucken()
{
    Etikettenrahmen->Drucken(Jubiläum->isChecked() ? EtikettenDerJubiläen()
                                                   : EtikettenDerGeburtstage());
}

} // namespace altardienst
