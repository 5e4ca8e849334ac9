// Birthdays by month and jubilees by years: to look at, as lists and as labels.
#include "anniversaries/JubiGebuForm.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiGebuDruck.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "fenster/Anwendung.h"
#include "fenster/Bausteine.h"
#include "fenster/Handler.h"

#include <QCloseEvent>
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

/// Options with the numbers from `erste` on; the first of them is chosen.
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
    raster->setVerticalSpacing(2);
    int n = 0;
    for (QAbstractButton *option : wahl->buttons()) {
        raster->addWidget(option, n / jeZeile, n % jeZeile);
        ++n;
    }
    return rahmen;
}

QHBoxLayout *Nebeneinander(std::initializer_list<QWidget *> controls)
{
    auto *reihe = new QHBoxLayout;
    for (QWidget *control : controls)
        reihe->addWidget(control);
    return reihe;
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
}

void JubiGebuForm::Anordnen()
{
    auto *links = new QVBoxLayout;
    links->setSpacing(10);
    links->addWidget(Geburtstagsteil());
    links->addWidget(Jubiläumsteil());
    links->addStretch();
    auto *oben = new QHBoxLayout;
    oben->setSpacing(14);
    oben->addLayout(links);
    oben->addWidget(Etikettenteil(), 1);

    auto *unten = new QHBoxLayout;
    unten->addStretch();
    Ende->setMinimumWidth(110);
    unten->addWidget(Ende);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(14, 14, 14, 14);
    spalte->setSpacing(10);
    spalte->addWidget(Rollbar(oben), 1);
    spalte->addLayout(unten);
    GrößeAnpassen(this);
    Monat->checkedButton()->setFocus();
}

QWidget *JubiGebuForm::Geburtstagsteil()
{
    auto *teil = Benannt(new QGroupBox("Geburtstage"), "Geburtstagsteil");
    auto *spalte = new QVBoxLayout(teil);
    spalte->addWidget(Rahmen("Gruppende", "Gruppe", Gruppe, 3));
    spalte->addWidget(Rahmen("Geburtstagsmonat", "Geburtsmonat", Monat, 4));
    spalte->addLayout(Nebeneinander({AnsichtGeb, DruckGebu}));
    return teil;
}

QWidget *JubiGebuForm::Jubiläumsteil()
{
    auto *teil = Benannt(new QGroupBox("Jubiläen"), "Jubiläumsteil");
    auto *spalte = new QVBoxLayout(teil);
    spalte->addWidget(Rahmen("Jahreszahl", "Anzahl Jahre", Jahre, 8));
    spalte->addLayout(Nebeneinander({AnsichtJubiMeß, JubiläumMeßdiener}));
    return teil;
}

QWidget *JubiGebuForm::Etikettenteil()
{
    auto *teil = Benannt(new QGroupBox("Etiketten"), "Etikettenteil");
    // Without a group of their own they would take in the options of the frame below.
    auto *wahl = new QButtonGroup(teil);
    wahl->addButton(Geburtstage);
    wahl->addButton(Jubiläum);
    auto *spalte = new QVBoxLayout(teil);
    QHBoxLayout *leute = Nebeneinander({Geburtstage, Jubiläum});
    leute->addStretch();
    spalte->addLayout(leute);
    spalte->addWidget(Etikettenrahmen);
    spalte->addStretch();
    return teil;
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
    klick(AnsichtGeb, [] { DialogDanebenÖffnen(new GeburtstagsansichtForm); });
    klick(DruckGebu, [this] { GeburtstageDrucken(GewählteGruppe(), GeburtsMonat()); });
    klick(AnsichtJubiMeß, [] { DialogDanebenÖffnen(new JubiläumsanzeigeForm); });
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

void JubiGebuForm::EtikettenDrucken()
{
    Etikettenrahmen->Drucken(Jubiläum->isChecked() ? EtikettenDerJubiläen()
                                                   : EtikettenDerGeburtstage());
}

void JubiGebuForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    HauptfensterZurück();
}

} // namespace altardienst
