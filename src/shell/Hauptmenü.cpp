// The menus of the main window.
#include "shell/HauptForm.h"

#include "anniversaries/JubiGebuForm.h"
#include "application/Anwendung.h"
#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "assignment/Dienste.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Sortierbefehle.h"
#include "exchange/DienstzettelForm.h"
#include "exchange/EMailForm.h"
#include "exchange/EinlesenForm.h"
#include "exchange/KalenderForm.h"
#include "exchange/TabellenForm.h"
#include "exchange/WebseiteForm.h"
#include "fairness/ArchivForm.h"
#include "fairness/AusgleichForm.h"
#include "fairness/VerteilungForm.h"
#include "fixed/MesseDienerFestForm.h"
#include "help/Hilfetaste.h"
#include "history/Rückgängig.h"
#include "history/Rücknahme.h"
#include "history/StändeForm.h"
#include "people/GruppeForm.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "planning/MessenlisteForm.h"
#include "planning/StandardmessenForm.h"
#include "printing/DialogForm.h"
#include "printing/DruckForm.h"
#include "printing/EtikettenForm.h"
#include "settings/HintergrundsucheForm.h"
#include "settings/KonfigurationForm.h"
#include "settings/KopierForm.h"
#include "settings/frmAboutForm.h"
#include "shell/Hauptbefehle.h"
#include "shell/Hauptfenstertasten.h"
#include "statistics/StatDienstForm.h"
#include "statistics/StatHelferForm.h"
#include "statistics/StatMeßdienstForm.h"
#include "statistics/Statistik2Form.h"
#include "statistics/StatistikAllgForm.h"
#include "statistics/StatistikForm.h"
#include "statistics/StatistikHelferForm.h"

#include <QAction>
#include <QMenuBar>

#include <functional>

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

void Trennstrich(QMenu *menü, const char *name)
{
    Benannt(menü->addSeparator(), name);
}

} // namespace

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

} // namespace altardienst
