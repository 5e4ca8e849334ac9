// The ends of the program that come from outside, in its own windows.
#include "shell/Abschied.h"

#include "Fensterstand.h"
#include "core/Allgemein.h"
#include "shell/Programm.h"

#include <QSessionManager>

#include <csignal>

namespace altardienst {
namespace {

class AbschiedTest : public Fensterstand {
  protected:
    AbschiedTest()
    {
        Gruppe.Anzahl = 1;
        Gruppe.Bezeichnung[0] = "Rot";
        AufFestplatteSpeichern();
    }

    bool Gespeichert(const char *datei, const Text &wort) const
    {
        return DateiLesen(Festplatte / PfadAus(datei)).find(wort) != std::string::npos;
    }
};

TEST_F(AbschiedTest, WasInEinemOffenenDialogStehtIstGeschrieben)
{
    EXPECT_EQ(Programmlauf([] {
                  ProgrammStarten();
                  Klick(Finden(Fenster("Start"), "Starten"));
                  MenüWählen(Fenster("Haupt"), "mnuGruppe");
                  Einsetzen(Finden(Fenster("Gruppe"), "GBezeichnung"), "Blau");
                  ProgrammVerlassen();
              }),
              0);
    EXPECT_TRUE(Gespeichert("Gruppen.dat", "Blau"));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

/// Whoever ends the desktop session asks every program first to save what it has.
TEST_F(AbschiedTest, DasEndeDerSitzungIstEinBeenden)
{
    auto *sitzung = qApp->findChild<QSessionManager *>();
    ASSERT_TRUE(sitzung);
    EXPECT_EQ(Programmlauf([sitzung] {
                  ProgrammStarten();
                  BeiEndeVonAußen(ProgrammVerlassen);
                  Klick(Finden(Fenster("Start"), "Starten"));
                  MenüWählen(Fenster("Haupt"), "mnuGruppe");
                  Einsetzen(Finden(Fenster("Gruppe"), "GBezeichnung"), "Blau");
                  Q_EMIT qApp->commitDataRequest(*sitzung);
              }),
              0);
    EXPECT_TRUE(Gespeichert("Gruppen.dat", "Blau"));
    EXPECT_EQ(sitzung->restartHint(), QSessionManager::RestartNever);
    EXPECT_TRUE(EndeVonAußen());
    EXPECT_TRUE(GezeigteMeldungen.empty());
    QObject::disconnect(qApp, &QGuiApplication::commitDataRequest, nullptr, nullptr);
    for (const int signal : {SIGTERM, SIGINT})
        std::signal(signal, SIG_DFL);
#ifndef _WIN32
    std::signal(SIGHUP, SIG_DFL);
#endif
}

TEST_F(AbschiedTest, EinDialogDerSichNichtSchließenLäßtHältDasEndeNichtAuf)
{
    HelferAnlegen("Maria", "Linde", "Lektor");
    AufFestplatteSpeichern();
    EXPECT_EQ(Programmlauf([] {
                  ProgrammStarten();
                  Klick(Finden(Fenster("Start"), "Starten"));
                  MenüWählen(Fenster("Haupt"), "mnuHelfer");
                  Einsetzen(Finden(Fenster("Helfer"), "PLZetus"), "keine Zahl");
                  Konfig.Gemeinde = "St. Martin";
                  ProgrammVerlassen();
              }),
              0);
    EXPECT_TRUE(Gespeichert("Konfig.cfg", "St. Martin"));
}

TEST_F(AbschiedTest, VorDemHauptfensterWirdNichtsGespeichert)
{
    EXPECT_EQ(Programmlauf([] {
                  ProgrammStarten();
                  Konfig.Gemeinde = "St. Martin";
                  ProgrammVerlassen();
              }),
              0);
    EXPECT_FALSE(Gespeichert("Konfig.cfg", "St. Martin"));
}

} // namespace
} // namespace altardienst
