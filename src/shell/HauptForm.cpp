// The main window: the seven steps of making a plan, the clock and the picture. Its menus are in
// Hauptmenü.cpp.
#include "shell/HauptForm.h"

#include "application/Anwendung.h"
#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "application/Wartezeiger.h"
#include "assignment/Zuweisungsrahmen.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Kurztasten.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "exchange/EMailForm.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "history/Rückgängig.h"
#include "history/Rücknahme.h"
#include "overview/Planansicht.h"
#include "people/ImPlan.h"
#include "people/Umbenannt.h"
#include "planning/MessenBestimmen.h"
#include "planning/MessenlisteForm.h"
#include "platform/Uhr.h"
#include "printing/Plandruck.h"
#include "search/SuchenForm.h"
#include "settings/SkalierungForm.h"
#include "settings/ZusatzKonfigForm.h"
#include "shell/Hauptbefehle.h"
#include "shell/Hauptfenstertasten.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr const char *Planschlüssel = "Plan/Angezeigt";

/// The number of a key in the main keyboard's row of digits, whatever Shift or Caps Lock makes of
/// it; any other key gives none of these numbers.
int NummerDerTaste(const QKeyEvent &taste)
{
    if ((taste.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) != 0)
        return 0;
    if (taste.key() >= Qt::Key_0 && taste.key() <= Qt::Key_9)
        return taste.key() - Qt::Key_0;
#ifdef Q_OS_WIN
    return static_cast<int>(taste.nativeVirtualKey()) - '0';
#else
    return static_cast<int>(taste.nativeScanCode()) - 9; // key 1 has scan code 10
#endif
}

/// The window "E-Mail" with this mass.
void AnMesseSchreiben(int messe)
{
    EMailForm *offen = OffeneForm<EMailForm>();
    EMailForm *form = offen ? offen : new EMailForm;
    form->AnMesse(messe);
    DialogÖffnen(form);
}

} // namespace

HauptForm::HauptForm()
    : Messenorgani(Knopf("Messenorgani", "(1) Messen bestimmen")),
      Meßdienernern(Knopf("Meßdienernern", "(2) Meßdiener für bestimmte Messen")),
      Dienstus(Knopf("Dienstus", "(3) Messen mit Meßdiener besetzen")),
      MeßdienerMessen(Knopf("MeßdienerMessen", "(4) Meßdiener - Wunschpartner berücksichtigen")),
      Helfend(Knopf("Helfend", "(5) Messen mit Messehelfer besetzen")),
      AnzMesse(Knopf("AnzMesse", "(6) Messenliste anzeigen")),
      Messendruck(Knopf("Messendruck", "(7) Druck des Altardienstes")),
      ODER1(Beschriftung("ODER1", "ODER")), Uhriger(Beschriftung("Uhriger", "Uhr")),
      UHRZEITIGES(Beschriftung("UHRZEITIGES", "")), Image1(new Hintergrundbild("Image1")),
      Timer1(Benannt(new QTimer(this), "Timer1")), Leiste(new Statuszeile), seiten(new QHBoxLayout)
{
    Benannt(this, "Haupt");
    setWindowTitle("Altardienst ");
    Anordnen();
    MenüDatei();
    MenüDaten();
    MenüSortieren();
    MenüZusatz();
    MenüÜberblick();
    MenüHilfe();
    setStatusBar(Leiste);
    Verbinden();
    Takt();
    ÜberblickZeigen();
    planEintrag->setChecked(Gemerktes().value(Planschlüssel).toBool());
}

HauptForm::~HauptForm()
{
    ImPlanZeigen = nullptr;
    PersonUmbenannt = nullptr;
    BeimGehen = nullptr;
    VorDemPlandruck = [] {};
}

std::array<QPushButton *, 7> HauptForm::Schritte() const
{
    return {Messenorgani, Meßdienernern, Dienstus, MeßdienerMessen, Helfend, AnzMesse, Messendruck};
}

void HauptForm::Anordnen()
{
    auto *links = new QVBoxLayout;
    links->setSpacing(8);
    for (QPushButton *knopf : Schritte()) {
        knopf->setMinimumHeight(38);
        if (knopf == MeßdienerMessen)
            links->addWidget(ODER1);
        links->addWidget(knopf);
    }
    for (QPushButton *knopf : Schritte()) // its number stands at the beginning of its caption
        TasteNennen(knopf,
                    knopf == Messendruck ? QString("7 oder Strg+P") : knopf->text().mid(1, 1));
    TasteDrückt(Qt::CTRL | Qt::Key_P, Messendruck);
    TasteAuchDaneben(this, Qt::CTRL | Qt::Key_P, [this] { Messendruck->click(); });
    ODER1->setAlignment(Qt::AlignCenter);
    links->addStretch();
    auto *uhr = new QHBoxLayout;
    QFont groß = UHRZEITIGES->font();
    groß.setPointSizeF(groß.pointSizeF() * 1.4);
    UHRZEITIGES->setFont(groß);
    Uhriger->setFont(groß);
    uhr->addStretch();
    uhr->addWidget(UHRZEITIGES);
    uhr->addWidget(Uhriger);
    uhr->addStretch();
    links->addLayout(uhr);

    auto *mitte = new QWidget;
    Fensterspalte(mitte, Luft::Mittel)->addLayout(seiten);
    seiten->setSpacing(16);
    seiten->addLayout(links);
    seiten->addWidget(Image1, 1);
    setCentralWidget(mitte);
    Messenorgani->setFocus();
}

void HauptForm::Verbinden()
{
    const auto knopf = [this](QPushButton *einer, const std::function<void()> &aktion) {
        connect(einer, &QPushButton::clicked, this, [aktion] { HauptfensterHandelt(aktion); });
    };
    const auto schritt = [knopf](
                             QPushButton *einer, const std::function<void()> &rechnen,
                             const std::function<void()> &danach = [] {}) {
        knopf(einer, [=, name = einer->text().toStdString()] {
            Schritt(name, [&] { UnterWartezeiger(rechnen); });
            danach();
        });
    };
    // The one case in which the main window stays enabled beside a dialog.
    schritt(
        Messenorgani,
        [] {
            PlanAufheben();
            MessenNeuBestimmen();
        },
        MessenlisteForm::NeuenPlanZeigen);
    knopf(Meßdienernern, DialogÖffnen<NeuMesseDienerFestForm>);
    schritt(Dienstus, [] { MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen); });
    schritt(MeßdienerMessen, [] { WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen); });
    schritt(Helfend, MessenMitMessehelferBesetzen);
    knopf(AnzMesse, DialogÖffnen<MessenlisteForm>);
    knopf(Messendruck, [] {
        VorDemPlandruck();
        PlanDrucken();
    });

    SuchenBeiStrgF(this);
    SchritteMitschreiben(this, Nebenbei([this] { SchritteZeigen(); }));
    VorDemPlandruck = PlanAufheben;
    PersonUmbenannt = ImArchivNachziehen;
    BeimGehen = UmbenennungenVerfolgen;
    ImPlanZeigen = [this](const Text &vorname, const Text &nachname) {
        planEintrag->setChecked(true);
        Plan->PersonZeigen(vorname, nachname);
    };

    connect(Timer1, &QTimer::timeout, this, Nebenbei([this] { Takt(); }));
    Timer1->start(50);

    // Whatever the window's own actions, a load or another window have changed shows in its bar.
    const auto zeigen = [this] { ÜberblickZeigen(); };
    NebenDemHauptfenster(
        this, [] {}, zeigen, zeigen);
}

void HauptForm::Takt()
{
    UHRZEITIGES->setText(Anzeige(LangeZeit(ZeitAus(Uhr.Sekunden()))));
    Image1->Zeigen(Konfig.Hintergrund);
}

/// Trapped: a bad value of the tables must not keep the window from opening.
void HauptForm::ÜberblickZeigen()
{
    Abgefangen([this] { Leiste->Zeigen(ÜberblickAbschnitte()); })();
    if (Plan && Plan->isVisible())
        Abgefangen([this] { Plan->Nachziehen(); })();
}

/// The picture stays as it is below the plan, which is made only now: whoever does not want it
/// waits for nothing.
void HauptForm::PlanAnzeigen(bool plan)
{
    Gemerktes().setValue(Planschlüssel, plan);
    if (plan && !Plan) {
        Plan = new Planansicht;
        Plan->AnMesseSchreiben = AnMesseSchreiben;
        seiten->addWidget(Plan, 1);
    }
    if (!Plan)
        return;
    const bool warImPlan = focusWidget() && Plan->isAncestorOf(focusWidget());
    Image1->setVisible(!plan);
    Plan->setVisible(plan);
    if (plan)
        Plan->Tafel->setFocus();
    else if (warImPlan)
        Messenorgani->setFocus();
}

/// What is taken back or repeated stands in the menu by its name.
void HauptForm::SchritteZeigen()
{
    const auto zeigen = [](QAction *eintrag, const char *wort, const Text &name) {
        const QString was = Anzeige(name).replace("&", "&&");
        eintrag->setText(QString::fromUtf8(wort) + (name.empty() ? "" : ": " + was));
        eintrag->setEnabled(!name.empty());
    };
    zeigen(mnuRückgängig, "&Rückgängig", LetzterSchritt());
    zeigen(mnuWiederholen, "&Wiederholen", NächsterSchritt());
}

/// A dialog that leaves has written its screen to the tables; what is typed in the next one is a
/// step of its own.
void HauptForm::changeEvent(QEvent *ereignis)
{
    QMainWindow::changeEvent(ereignis);
    if (ereignis->type() != QEvent::EnabledChange || !isEnabled())
        return;
    ÜberblickZeigen();
    Nebenbei(ÄnderungAbschließen)();
}

void HauptForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    HauptfensterHandelt([ereignis] {
        Beenden();
        ereignis->accept();
    });
}

/// The keys 1 to 7 of the main keyboard press the button of that number, whichever control has the
/// focus: buttons don't take digits, so these arrive here.
void HauptForm::keyPressEvent(QKeyEvent *taste)
{
    const int nummer = NummerDerTaste(*taste);
    const auto schritte = Schritte();
    if (nummer >= 1 && nummer <= static_cast<int>(schritte.size()))
        schritte[static_cast<std::size_t>(nummer - 1)]->click();
    else if (taste->key() == Qt::Key_F11)
        HauptfensterHandelt(DialogÖffnen<ZusatzKonfigForm>);
    else if (taste->key() == Qt::Key_F12)
        HauptfensterHandelt(DialogÖffnen<SkalierungForm>);
    else
        QMainWindow::keyPressEvent(taste);
}

} // namespace altardienst
