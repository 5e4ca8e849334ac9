// The main window: the seven steps of making a plan, the menu, the clock and the picture.
#include "shell/HauptForm.h"

#include "anniversaries/JubiGebuForm.h"
#include "application/Anwendung.h"
#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "application/Wartezeiger.h"
#include "assignment/Dienste.h"
#include "assignment/Zuweisungsrahmen.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Kurztasten.h"
#include "core/Allgemein.h"
#include "core/Ladebericht.h"
#include "core/Sortierbefehle.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "exchange/Aushang.h"
#include "exchange/DienstzettelForm.h"
#include "exchange/EMailForm.h"
#include "exchange/EinlesenForm.h"
#include "exchange/KalenderForm.h"
#include "exchange/TabellenForm.h"
#include "exchange/WebseiteForm.h"
#include "fairness/Archiv.h"
#include "fairness/ArchivForm.h"
#include "fairness/AusgleichForm.h"
#include "fairness/VerteilungForm.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "fixed/MesseDienerFestForm.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "help/Hilfetaste.h"
#include "history/Netz.h"
#include "history/Rückgängig.h"
#include "history/Rücknahme.h"
#include "history/StändeForm.h"
#include "overview/Planansicht.h"
#include "people/GruppeForm.h"
#include "people/HelferForm.h"
#include "people/ImPlan.h"
#include "people/MeßdienerForm.h"
#include "people/Umbenannt.h"
#include "planning/MessenBestimmen.h"
#include "planning/MessenlisteForm.h"
#include "planning/StandardmessenForm.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "printing/DialogForm.h"
#include "printing/DruckForm.h"
#include "printing/EtikettenForm.h"
#include "printing/Plandruck.h"
#include "search/SuchenForm.h"
#include "settings/HintergrundsucheForm.h"
#include "settings/KonfigurationForm.h"
#include "settings/KopierForm.h"
#include "settings/SkalierungForm.h"
#include "settings/ZusatzKonfigForm.h"
#include "settings/frmAboutForm.h"
#include "shell/Hauptfenstertasten.h"
#include "statistics/StatDienstForm.h"
#include "statistics/StatHelferForm.h"
#include "statistics/StatMeßdienstForm.h"
#include "statistics/Statistik2Form.h"
#include "statistics/StatistikAllgForm.h"
#include "statistics/StatistikForm.h"
#include "statistics/StatistikHelferForm.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QVBoxLayout>

namespace altardienst {
namespace {

QMenu *Menü(QWidget *in, const char *name, const char *beschriftung)
{
    auto *menü = Benannt(new QMenu(QString::fromUtf8(beschriftung), in), name);
    if (auto *leiste = qobject_cast<QMenuBar *>(in))
        leiste->addMenu(menü);
    else
        static_cast<QMenu *>(in)->addMenu(menü);
    return menü;
}

QAction *NeuerEintrag(QMenu *menü, const char *name, const char *beschriftung)
{
    return Benannt(menü->addAction(QString::fromUtf8(beschriftung)), name);
}

QAction *Eintrag(QMenu *menü, const char *name, const char *beschriftung,
                 const std::function<void()> &aktion)
{
    QAction *eintrag = NeuerEintrag(menü, name, beschriftung);
    QObject::connect(eintrag, &QAction::triggered, menü, [aktion] { HauptfensterHandelt(aktion); });
    return eintrag;
}

/// Sorting gives no message: the status bar tells what is sorted.
void Sortiereintrag(QMenu *menü, const char *name, const char *beschriftung,
                    const std::function<void()> &sortieren, const char *was)
{
    Eintrag(menü, name, beschriftung, [sortieren, was] {
        Schritt(was + Text(" sortieren"), sortieren);
        Mitteilen(was + Text(" sortiert"));
    });
}

/// A load replaces the tables and does not touch the windows that are open: what was typed there is
/// not written before it, and stays on the screen.
void Ladeeintrag(QMenu *menü, const char *name, const char *beschriftung,
                 const std::function<void()> &aktion)
{
    QObject::connect(NeuerEintrag(menü, name, beschriftung), &QAction::triggered, menü,
                     Offen(aktion));
}

constexpr const char *Planschlüssel = "Plan/Angezeigt";

void Trennstrich(QMenu *menü, const char *name)
{
    Benannt(menü->addSeparator(), name);
}

void Enden(int ergebnis)
{
    AlleFormenEntladen();
    QApplication::exit(ergebnis);
}

/// A save that fails ends the program, with the failure shown; false in that case.
bool SpeichernOderEnden()
{
    try {
        AufFestplatteSpeichern();
    } catch (const Laufzeitfehler &fehler) {
        SpeichernIstGescheitert();
        Meldungen.Zeigen(fehler.Meldung());
        Enden(fehler.Nummer());
        return false;
    }
    Mitteilen("gespeichert");
    return true;
}

/// The exit routine: saves everything and unloads every window.
void Beenden()
{
    if (SpeichernOderEnden())
        Enden(0);
}

/// A load says nothing of itself, even if it has stopped in the middle.
void FestplatteLaden()
{
    Schritt("Daten von der Festplatte laden",
            [] { Mitteilen(Festplattenbericht(LadenMitBericht(VonFestplatteLaden))); });
}

/// While it stands, `vorher` runs as soon as a question whose Ja overwrites something is answered
/// by it.
class BeiJa {
  public:
    explicit BeiJa(const std::function<void()> &vorher) : fragen(Meldungen.FragenVorVerlust)
    {
        Meldungen.FragenVorVerlust = [this, vorher](const Text &text, const Text &titel) {
            const bool ja = fragen(text, titel);
            if (ja)
                vorher();
            return ja;
        };
    }
    ~BeiJa() { Meldungen.FragenVorVerlust = fragen; }
    BeiJa(const BeiJa &) = delete;
    BeiJa &operator=(const BeiJa &) = delete;

  private:
    decltype(Meldungen.FragenVorVerlust) fragen;
};

/// Nothing is kept for a load that the answer to its question prevents.
void DisketteLaden()
{
    const BeiJa sichern(VorWechselSichern);
    Schritt("Daten von der Diskette laden", [] {
        const Text bericht = Diskettenbericht(LadenMitBericht(VonDisketteLaden));
        if (!bericht.empty())
            Mitteilen(bericht);
    });
}

/// Keeps the services of the plan before it goes or is given away. Never fails: what could not be
/// kept is told.
void PlanAufheben()
{
    try {
        PlanArchivieren();
    } catch (const Laufzeitfehler &fehler) {
        Mitteilen(Text("Plan nicht im Archiv: ") + fehler.what());
    }
}

void ImArchivNachziehen(const Personenname &alt, const Personenname &neu, bool helfer)
{
    if (const int dateien = ImArchivUmbenennen(alt, neu, helfer); dateien > 0)
        Mitteilen("alter Name noch im Archiv: " + ZahlText(dateien) +
                  (dateien == 1 ? " Datei ist" : " Dateien sind") + " nicht zu ändern");
}

/// What had to be done to get everything onto the sheet is told.
void AushangAbgeben()
{
    VorDemPlandruck();
    if (const Text was = AushangDrucken(); !was.empty())
        Mitteilen(was);
}

/// A save to the diskette fails silently: nothing is said of one that does not hold all eight
/// files.
void DisketteSpeichern()
{
    Abgefangen([] {
        AufDisketteSpeichern();
        Mitteilen("auf Diskette gespeichert");
    })();
}

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

void HauptForm::MenüDatei()
{
    QMenu *datei = Menü(menuBar(), "mnufile", "&Datei");
    Eintrag(datei, "mnuFilePrint", "&Drucken...", DialogÖffnen<DruckForm>);
    Trennstrich(datei, "mnuFileBar5");
    Eintrag(datei, "mnuFileExit", "&Beenden", Beenden)->setShortcut(Qt::CTRL | Qt::Key_Q);
}

void HauptForm::MenüDaten()
{
    QMenu *daten = Menü(menuBar(), "mnuDaten", "D&aten");
    Eintrag(daten, "mnuKonfiguration", "&Konfiguration", DialogÖffnen<KonfigurationForm>);
    Eintrag(daten, "mnuHintergrund", "Hi&ntergrund", DialogÖffnen<HintergrundsucheForm>);
    Eintrag(daten, "mnuEtiketten", "Et&ikettengröße", DialogÖffnen<EtikettenForm>);
    Trennstrich(daten, "mnufilebar7");
    Eintrag(daten, "mnuGruppe", "&Gruppe", DialogÖffnen<GruppeForm>);
    Eintrag(daten, "mnuStandardmessen", "&Standardmessen", DialogÖffnen<StandardmessenForm>);
    Eintrag(daten, "mnuHelfer", "&Helfer", DialogÖffnen<HelferForm>);
    Eintrag(daten, "mnuMeßdiener", "&Meßdiener", DialogÖffnen<MeßdienerForm>);
    Eintrag(daten, "MnuMESSDIENZUMESS", "Meßdiener &zu Messen", DialogÖffnen<MesseDienerFestForm>);
    Eintrag(daten, "mnuMessen", "M&essen", DialogÖffnen<MessenlisteForm>);
    Trennstrich(daten, "mnuFileBar6");
    Eintrag(daten, "mnuJubGeb", "&Jubiläen und Geburtstage", DialogÖffnen<JubiGebuForm>);

    QMenu *diener = Menü(daten, "mnuStatistiken", "S&tatistik Meßdiener");
    Eintrag(diener, "mnuStatistik", "Meßdiener &allgemein", DialogÖffnen<StatistikForm>);
    Eintrag(diener, "mnuStatistikGröße", "Meßdiener &Größe", DialogÖffnen<Statistik2Form>);
    Eintrag(diener, "mnuMessendienst", "Messendiens&t", DialogÖffnen<StatMeßdienstForm>);
    Eintrag(diener, "mnuStatDienst", "Anzahl Die&nste Meßdiener im Plan",
            DialogÖffnen<StatDienstForm>);

    QMenu *helfer = Menü(daten, "mnuStatistikHilf", "Statistik He&lfer");
    Eintrag(helfer, "mnuStatistikHilfA", "Helfer &allgemein", DialogÖffnen<StatistikAllgForm>);
    Eintrag(helfer, "mnuHelferMessendienst", "Messendiens&t Helfer",
            DialogÖffnen<StatistikHelferForm>);
    Eintrag(helfer, "mnuStatHDienst", "Anzahl Die&nste Helfer im Plan",
            DialogÖffnen<StatHelferForm>);
}

void HauptForm::MenüSortieren()
{
    QMenu *sortieren = Menü(menuBar(), "mnuSortieren", "S&ortieren");
    QMenu *etiketten = Menü(sortieren, "mnuEtik", "&Etiketten");
    Sortiereintrag(etiketten, "mnuEtiAUF", "a&ufsteigend sortieren", EtikettenAufsteigendSortieren,
                   "Etikettengrößen aufsteigend");
    Sortiereintrag(etiketten, "mnuEtiAB", "a&bsteigend sortieren", EtikettenAbsteigendSortieren,
                   "Etikettengrößen absteigend");
    Trennstrich(sortieren, "mnufilebar8");
    Sortiereintrag(sortieren, "mnuVorbMessen", "&Vorbesetzte Messen", VorbesetzteMessenSortieren,
                   "vorbesetzte Messen");
    Sortiereintrag(sortieren, "mnuGruppensort", "&Gruppen", GruppenSortieren, "Gruppen");

    QMenu *messen = Menü(sortieren, "mnuMess", "&Messen");
    Sortiereintrag(messen, "mnuSortmessen", "&nach Datum sortieren", MessenNachDatumSortieren,
                   "Messen nach Datum");
    Sortiereintrag(messen, "mnuSortmessenUhr", "nach Datum und &Uhrzeit sortieren", MessenSortieren,
                   "Messen nach Datum und Uhrzeit");
    QMenu *standard = Menü(sortieren, "mnuStandardmess", "&Standardmessen");
    Sortiereintrag(standard, "mnuWochentag", "nach &Wochentag sortieren",
                   StandardmessenNachWochentagSortieren, "Standardmessen nach Wochentag");
    Trennstrich(sortieren, "mnuFileBar1");

    QMenu *diener = Menü(sortieren, "mnuMeßdienersortierung", "M&eßdiener");
    Sortiereintrag(diener, "mnuMeßdienersort", "nach &Nachname sortieren",
                   MeßdienerNachNachnameSortieren, "Meßdiener nach Nachname");
    Sortiereintrag(diener, "mnuMeßdienersort2", "nach &Vorname sortieren",
                   MeßdienerNachVornameSortieren, "Meßdiener nach Vorname");
    Sortiereintrag(diener, "mnuMeßdienerGruppe", "nach &Gruppe sortieren",
                   MeßdienerNachGruppeSortieren, "Meßdiener nach Gruppe");
    Sortiereintrag(diener, "mnuMeßdienerGebuSort", "nach G&eburtstag sortieren",
                   MeßdienerNachGeburtstagSortieren, "Meßdiener nach Geburtstag");
    Sortiereintrag(diener, "mnuMeßdienerStraßSort", "nach Str&aße sortieren",
                   MeßdienerNachStraßeSortieren, "Meßdiener nach Straße");

    QMenu *helfer = Menü(sortieren, "mnuMeßhelfer", "Meß&helfer");
    Sortiereintrag(helfer, "mnuMeßhelferNachsort", "nach &Nachnamen sortieren",
                   HelferNachNachnameSortieren, "Helfer nach Nachname");
    Sortiereintrag(helfer, "mnuMeßhelferNachsort2", "nach &Vorname sortieren",
                   HelferNachVornameSortieren, "Helfer nach Vorname");
    Sortiereintrag(helfer, "mnuHelfSortDienst", "nach D&ienst sortieren", HelferNachDienstSortieren,
                   "Helfer nach Dienst");
    Sortiereintrag(helfer, "mnuHelfsortGebu", "nach G&eburtstag sortieren",
                   HelferNachGeburtstagSortieren, "Helfer nach Geburtstag");
    Sortiereintrag(helfer, "mnuHelferSortStraße", "nach Str&aße sortieren",
                   HelferNachStraßeSortieren, "Helfer nach Straße");
}

void HauptForm::MenüZusatz()
{
    QMenu *zusatz = Menü(menuBar(), "mnuZusatz", "&Zusatz");
    Eintrag(zusatz, "mnuMessenlisteText", "Messenliste als &Textdatei speichern",
            DialogÖffnen<DialogForm>);

    QMenu *festplatte = Menü(zusatz, "mnuDatend", "Date&n auf Festplatte");
    QAction *speichern =
        Eintrag(festplatte, "mnuDatenspeichern", "&speichern", [] { SpeichernOderEnden(); });
    speichern->setShortcut(QKeySequence::Save);
    TasteAuchDaneben(this, speichern->shortcut(), [speichern] { speichern->trigger(); });
    Ladeeintrag(festplatte, "mnuDatenladen", "&laden", FestplatteLaden);

    QMenu *diskette = Menü(zusatz, "mnuDatene", "D&aten auf Diskette");
    Eintrag(diskette, "mnuDatenspeichernD", "&speichern", DisketteSpeichern);
    Ladeeintrag(diskette, "mnuDatenladenD", "&laden", DisketteLaden);

    QMenu *daten = Menü(zusatz, "mnuDatamenu", "Dat&en");
    Eintrag(daten, "mnuDatenHolen", "Daten &holen", [] {
        if (SpeichernOderEnden())
            DialogÖffnen<DateikopieForm>();
    });
    Eintrag(daten, "mnuDatenSichern", "Daten &sichern", [] {
        if (SpeichernOderEnden())
            DialogÖffnen<DatensicherungForm>();
    });
    Eintrag(zusatz, "DruckML", "Dienste &richtig setzen für Messenlistausdruck", [] {
        Schritt("Dienste richtig setzen", DiensteVerteilen);
        Mitteilen("Dienste richtig gesetzt");
    });
}

void HauptForm::MenüÜberblick()
{
    QMenu *überblick = Menü(menuBar(), "mnuÜberblick", "Ü&berblick");
    const auto schritt = [überblick](const char *name, Qt::Key taste, void (*gehen)()) {
        QAction *eintrag = NeuerEintrag(überblick, name, "");
        eintrag->setShortcut(Qt::CTRL | taste);
        connect(eintrag, &QAction::triggered, überblick, Offen(gehen));
        return eintrag;
    };
    mnuRückgängig = schritt("mnuRückgängig", Qt::Key_Z, RückgängigMachen);
    mnuWiederholen = schritt("mnuWiederholen", Qt::Key_Y, Wiederholen);
    Trennstrich(überblick, "mnuÜberblickBar1");
    planEintrag = NeuerEintrag(überblick, "mnuPlanAnzeigen", "&Plan anzeigen");
    planEintrag->setCheckable(true);
    planEintrag->setShortcut(Qt::Key_F5);
    connect(planEintrag, &QAction::toggled, this, Offen([this](bool plan) { PlanAnzeigen(plan); }));
    Eintrag(überblick, "mnuAusgleich", "Plan &ausgleichen", DialogÖffnen<AusgleichForm>);
    Eintrag(überblick, "mnuVerteilung", "&Verteilung", DialogÖffnen<VerteilungForm>);
    Eintrag(überblick, "mnuArchiv", "Ar&chiv", DialogÖffnen<ArchivForm>);
    MenüWeitergeben(überblick);
    Eintrag(überblick, "mnuEinlesen", "&Einlesen", DialogÖffnen<EinlesenForm>);
    Eintrag(überblick, "mnuStände", "&Frühere Stände", DialogÖffnen<StändeForm>);
}

void HauptForm::MenüWeitergeben(QMenu *überblick)
{
    QMenu *weitergeben = Menü(überblick, "mnuWeitergeben", "&Weitergeben");
    Eintrag(weitergeben, "mnuAushang", "A&ushang", AushangAbgeben);
    Eintrag(weitergeben, "mnuDienstzettel", "&Dienstzettel", DialogÖffnen<DienstzettelForm>);
    Eintrag(weitergeben, "mnuKalender", "&Kalender", DialogÖffnen<KalenderForm>);
    Eintrag(weitergeben, "mnuWebseite", "Web&seite", DialogÖffnen<WebseiteForm>);
    Eintrag(weitergeben, "mnuEMail", "&E-Mail", DialogÖffnen<EMailForm>);
    Eintrag(weitergeben, "mnuTabellen", "&Tabellen", DialogÖffnen<TabellenForm>);
}

void HauptForm::MenüHilfe()
{
    QMenu *hilfe = Menü(menuBar(), "mnuHelp", "&?");
    QAction *handbuch = NeuerEintrag(hilfe, "mnuHandbuch", "&Handbuch");
    handbuch->setShortcut(Qt::Key_F1);
    connect(handbuch, &QAction::triggered, this, Offen(HandbuchÖffnen));
    Eintrag(hilfe, "mnuHelpAbout", "&Info zur Anwendung",
            [] { DialogDanebenÖffnen<frmAboutForm>(); });
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
