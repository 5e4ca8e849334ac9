// Opening each window until it is on the screen, with full tables, against an ordinary window of
// forty text boxes. No window may take more than one and a half times of what it took before lists,
// marks, calendars and hints came into the windows; those without a former value no more than six
// of the ordinary ones.
#include "Bestand.h"
#include "Messung.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "application/Anwendung.h"
#include "core/tables.h"
#include "history/StändeForm.h"
#include "paper/Druckdialog.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"
#include "search/SuchenForm.h"
#include "settings/KopierForm.h"
#include "settings/SkalierungForm.h"
#include "settings/ZusatzKonfigForm.h"
#include "shell/HauptForm.h"
#include "shell/StartForm.h"

#include <QAction>
#include <QFormLayout>
#include <QLineEdit>
#include <QPointer>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace altardienst {
namespace {

/// How a window is reached: by an entry of the menu, and by a button of what that opens.
struct Weg {
    const char *Fenster;
    const char *Eintrag;
    const char *Knopf; // null: the entry alone
    double Zuvor;      // the ratio of the windows as they were; 0: not known
};

HauptForm *haupt = nullptr;

QWidget *Offenes(const QString &name)
{
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (fenster->objectName() == name && fenster->isVisible())
            return fenster;
    return nullptr;
}

void AlleSchließen()
{
    QCoreApplication::processEvents();
    const QWidgetList fenster = QApplication::topLevelWidgets();
    const std::vector<QPointer<QWidget>> alle(fenster.begin(), fenster.end());
    for (const auto &eines : alle) // a window may take another with it
        if (eines && eines != haupt && !eines->parent())
            delete eines;
    HauptfensterZurück();
    QCoreApplication::processEvents();
}

void Auslösen(const char *eintrag)
{
    haupt->findChild<QAction *>(QString::fromUtf8(eintrag))->trigger();
}

void Drücken(const char *knopf)
{
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (auto *gefunden = fenster->findChild<QPushButton *>(QString::fromUtf8(knopf));
            gefunden && fenster != haupt && fenster->isVisible())
            return gefunden->click();
    throw std::runtime_error(std::string("no button ") + knopf);
}

/// As full as the windows take it: they leave the last record blank.
void Bereitmachen()
{
    AlleSchließen();
    VollerBestand();
    Meßdiener.Anzahl = 399;
    Messe.Anzahl = 602;
    Helfer.Anzahl = 199;
    Gruppe.Anzahl = 101;
}

/// Only the last step of the way is timed.
Arbeit Gehen(const Weg &weg)
{
    return {[weg] {
                Bereitmachen();
                if (weg.Knopf)
                    Auslösen(weg.Eintrag);
                QCoreApplication::processEvents();
            },
            [weg] {
                if (weg.Knopf)
                    Drücken(weg.Knopf);
                else
                    Auslösen(weg.Eintrag);
                QCoreApplication::processEvents();
                if (!Offenes(QString::fromUtf8(weg.Fenster)))
                    throw std::runtime_error(std::string("did not open: ") + weg.Fenster);
            }};
}

/// A window that no entry of the menu opens, or only in the place of another.
template <class Form, class... Angaben> Arbeit Bauen(Angaben... angaben)
{
    return {Bereitmachen, [=] {
                auto *form = new Form(angaben...);
                form->show();
                QCoreApplication::processEvents();
            }};
}

void GewöhnlichesFenster()
{
    auto *fenster = new QWidget;
    auto *felder = new QFormLayout(fenster);
    for (int i = 0; i < 40; ++i)
        felder->addRow(QStringLiteral("Feld"), new QLineEdit);
    fenster->show();
    QCoreApplication::processEvents();
}

/// For windows that there were not, or that nobody measured.
constexpr double OhneVorher = 6;

/// It lays out a page with its pictures.
constexpr double SeiteMitBildern = 20;

void Anmelden(const char *fenster, const Arbeit &arbeit, double zuvor,
              double ohneVorher = OhneVorher)
{
    MessungAnmelden({.Name = fenster,
                     .Maßstabname = "Fenster mit vierzig Feldern",
                     .Gemessen = arbeit,
                     .Maßstab = {AlleSchließen, GewöhnlichesFenster},
                     .Ziel = zuvor > 0 ? 1.5 * zuvor : ohneVorher,
                     .Durchläufe = 15});
}

constexpr Weg Wege[] = {
    {"Druck", "mnuFilePrint", nullptr, 2.51},
    {"Konfiguration", "mnuKonfiguration", nullptr, 2.09},
    {"Hintergrundsuche", "mnuHintergrund", nullptr, 2.74},
    {"Etiketten", "mnuEtiketten", nullptr, 0.919},
    {"Gruppe", "mnuGruppe", nullptr, 0.635},
    {"NeuGruppe", "mnuGruppe", "NEWGroup", 0.183},
    {"Standardmessen", "mnuStandardmessen", nullptr, 1.44},
    {"Helfer", "mnuHelfer", nullptr, 2.75},
    {"NeuerHelfer", "mnuHelfer", "NeuHelfer", 1.04},
    {"Meßdiener", "mnuMeßdiener", nullptr, 4.36},
    {"NeuMeßdiener", "mnuMeßdiener", "NeuDiener", 1.4},
    {"MesseDienerFest", "MnuMESSDIENZUMESS", nullptr, 6.74},
    {"NeuMesseDienerFest", "MnuMESSDIENZUMESS", "Hinzu", 4.82},
    {"Messenliste", "mnuMessen", nullptr, 2.6},
    {"NeuMesse", "mnuMessen", "NeuMeß", 1.11},
    {"Lektorrenusw", "mnuMessen", "Lektoren", 4.73},
    {"JubiGebu", "mnuJubGeb", nullptr, 1.82},
    {"Statistik", "mnuStatistik", nullptr, 1.64},
    {"Diagramme", "mnuStatistik", "Diagramm", 3.85},
    {"Statistik2", "mnuStatistikGröße", nullptr, 0.941},
    {"Diagramm2", "mnuStatistikGröße", "Diagramm", 1.43},
    {"StatMeßdienst", "mnuMessendienst", nullptr, 0.985},
    {"StatDienst", "mnuStatDienst", nullptr, 0.813},
    {"StatistikAllg", "mnuStatistikHilfA", nullptr, 0.661},
    {"StatistikHelfer", "mnuHelferMessendienst", nullptr, 1.02},
    {"StatHelfer", "mnuStatHDienst", nullptr, 0.698},
    {"Dialog", "mnuMessenlisteText", nullptr, 1.14},
    {"frmAbout", "mnuHelpAbout", nullptr, 2.25},
};

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_fenster";
    static char *argv[] = {name, nullptr};
    // Never deleted: at exit Qt has already torn down things that a shown window still refers to.
    AnwendungEinrichten(*new QApplication(argc, argv));
    // No message waits for anybody.
    Meldungen.Zeigen = [](const Text &meldung) { std::fprintf(stderr, "%s\n", meldung.c_str()); };
    Laufwerke.Programmverzeichnis = [] { return std::filesystem::path(BEISPIELDATEN); };
    VollerBestand();
    haupt = new HauptForm;
    HauptfensterSetzen(haupt);
    haupt->showMaximized();
    Anmelden("Start", Bauen<StartForm>([] {}), 1.3);
    Anmelden("Haupt", Bauen<HauptForm>(), 2.16);
    for (const Weg &weg : Wege)
        Anmelden(weg.Fenster, Gehen(weg), weg.Zuvor);
    Anmelden("Handbuch", Gehen({"Handbuch", "mnuHandbuch", nullptr, 0}), 0, SeiteMitBildern);
    // Not by the menu, which would save first.
    Anmelden("Datensicherung", Bauen<DatensicherungForm>(), 0);
    Anmelden("Dateikopie", Bauen<DateikopieForm>(), 0);
    Anmelden("Stände", Bauen<StändeForm>(), 0);
    const std::function<void(bool)> danach = [](bool) {};
    Anmelden("DateienKopieren", Bauen<DateienKopierenForm>(danach), 0);
    Anmelden("ZusatzKonfig", Bauen<ZusatzKonfigForm>(), 0);
    Anmelden("Skalierung", Bauen<SkalierungForm>(), 0);
    Anmelden("CommonDialog1", Bauen<DruckdialogForm>(Druckanfrage::Für("Helferliste")), 0);
    Anmelden("Suchen", Bauen<SuchenForm>(nullptr), 0);
    Anmelden("Geburtstagsansicht", Bauen<GeburtstagsansichtForm>(), 0.387);
    Anmelden("Jubiläumsanzeige", Bauen<JubiläumsanzeigeForm>(), 0.381);
}

} // namespace altardienst
