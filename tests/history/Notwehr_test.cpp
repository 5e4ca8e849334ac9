// The program dies, and the tables are there at the next start.
#include "history/Aufräumen.h"
#include "history/Netzstand.h"
#include "platform/Absturz.h"

#ifndef _WIN32

#include <array>
#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr std::array Tödliche = {SIGSEGV, SIGBUS,  SIGFPE,  SIGILL, SIGABRT,
                                 SIGSYS,  SIGTRAP, SIGQUIT, SIGXCPU};

class NotwehrTest : public Netzstand {
  protected:
    NotwehrTest() { GemeindeSpeichern(1); }

    /// The end of a run in a process of its own that has changed the tables; the signal that ended
    /// it, or its result as a negative number.
    static int Enden(const std::function<void()> &wie)
    {
        const pid_t kind = fork();
        if (kind == 0) {
            rlimit ohneAbbild{0, 0};
            setrlimit(RLIMIT_CORE, &ohneAbbild);
            std::freopen("/dev/null", "w", stderr);
            for (const int signal : Tödliche)
                std::signal(signal, SIG_DFL); // whatever watches the test
            NetzSpannen();
            ArbeitBeginnt();
            Gemeinde(2);
            alarm(20);
            try {
                wie();
            } catch (const std::exception &) {
                _exit(2);
            }
            _exit(0);
        }
        int ausgang = 0;
        waitpid(kind, &ausgang, 0);
        return WIFSIGNALED(ausgang) ? WTERMSIG(ausgang) : -WEXITSTATUS(ausgang);
    }

    void GerettetIstDieZweite()
    {
        Neustart();
        ASSERT_TRUE(Netz().Notfall);
        EXPECT_TRUE(InhaltVon(Netz().Notfall->Ort) == InhaltDerGemeinde(2));
        EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1)) << "the eight files are not touched";
        EXPECT_EQ(Namen().size(), AlleStände().size()) << "no leftovers";
    }
};

TEST_F(NotwehrTest, JedesTödlicheSignalLäßtDieTabellenZurückUndTötetDannDoch)
{
    for (const int signal : Tödliche) {
        SCOPED_TRACE(signal);
        EXPECT_EQ(Enden([signal] { raise(signal); }), signal);
        GerettetIstDieZweite();
        fs::remove_all(Stände());
    }
}

TEST_F(NotwehrTest, EinFehlerDenNiemandFängt)
{
    EXPECT_EQ(Enden([] { std::terminate(); }), SIGABRT);
    GerettetIstDieZweite();
}

TEST_F(NotwehrTest, EinEndeMittenInDerArbeit)
{
    EXPECT_EQ(Enden([] { std::exit(1); }), -1);
    GerettetIstDieZweite();
}

TEST_F(NotwehrTest, EinGutesEndeLäßtNichtsZurück)
{
    EXPECT_EQ(Enden([] {
                  NetzEinholen();
                  std::exit(0);
              }),
              0);
    EXPECT_EQ(AlleStände().size(), 1U) << "that of the start";
}

TEST_F(NotwehrTest, VorDerArbeitIstNichtsZuRetten)
{
    EXPECT_EQ(Enden([] {
                  NetzEinholen();
                  NetzSpannen();
                  raise(SIGABRT);
              }),
              SIGABRT);
    EXPECT_EQ(AlleStände().size(), 1U);
}

TEST_F(NotwehrTest, NimmtDasVerzeichnisIhnNichtKommtErInsEigeneDesBenutzers)
{
    DateiSchreiben(Stände(), "im Weg");
    EXPECT_EQ(Enden([] { raise(SIGSEGV); }), SIGSEGV);
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 1U);
    EXPECT_EQ(stände[0].Ort.parent_path(), Laufwerke.Ausweichverzeichnisse()[0]);
    EXPECT_TRUE(InhaltVon(stände[0].Ort) == InhaltDerGemeinde(2));
}

// A limit of the size of files is a failed save, not the end of the process.
TEST_F(NotwehrTest, EineDateiDieZuGroßWirdTötetNicht)
{
    EXPECT_EQ(Enden([] {
                  rlimit klein{1000, 1000};
                  setrlimit(RLIMIT_FSIZE, &klein);
                  _exit(NummerDesFehlers([] { AufFestplatteSpeichern(); }) == 61 ? 0 : 1);
              }),
              0);
}

// Only the file with a value that nothing can write is missing.
TEST_F(NotwehrTest, EinWertDenKeineDateiFaßtKostetNurDiese)
{
    EXPECT_EQ(Enden([] {
                  Meßdiener.Geburtstag[0] = 1e300;
                  raise(SIGSEGV);
              }),
              SIGSEGV);
    Neustart();
    ASSERT_TRUE(Netz().Notfall);
    const Standinhalt gerettet = InhaltVon(Netz().Notfall->Ort);
    const Standinhalt ganz = InhaltDerGemeinde(2);
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(gerettet.Dateien[i].Bytes,
                  i == DateiMeßdiener ? std::nullopt : ganz.Dateien[i].Bytes);
}

// A second fault while the tables are written must not keep the process alive.
TEST_F(NotwehrTest, ScheitertAuchDasRettenEndetDasProgramm)
{
    EXPECT_EQ(Enden([] {
                  BeiAbsturz([] { std::abort(); });
                  raise(SIGSEGV);
              }),
              SIGABRT);
    EXPECT_EQ(AlleStände().size(), 1U);
}

// What the fault has left locked is never released.
TEST_F(NotwehrTest, WartetDasRettenOhneEndeEndetDasProgrammTrotzdem)
{
    EXPECT_EQ(Enden([] {
                  BeiAbsturz([] {
                      while (true)
                          pause();
                  });
                  alarm(0);
                  std::signal(SIGALRM, SIG_IGN);
                  raise(SIGSEGV);
              }),
              SIGALRM);
}

// While the tables are aside, others stand in their place: those of an old state, or none.
TEST_F(NotwehrTest, WährendAndereTabellenGelesenWerdenSindDieEigenenGerettet)
{
    EXPECT_EQ(Enden([] {
                  const TabellenBeiseite beiseite;
                  Gemeinde(3);
                  const TabellenBeiseite nochmals;
                  Gemeinde(4);
                  raise(SIGSEGV);
              }),
              SIGSEGV);
    GerettetIstDieZweite();
}

TEST_F(NotwehrTest, StehtEinStandDerZukunftDaIstDerNotfallDochDerNeueste)
{
    NetzSpannen();
    NetzEinholen();
    const Stand heute = AlleStände().back();
    fs::rename(heute.Ort, Stände() / "2096-01-01 10-00-00");
    EXPECT_EQ(Enden([] { raise(SIGSEGV); }), SIGSEGV);
    EXPECT_EQ(AlleStände().back().Art, Standart::Notfall);
    GerettetIstDieZweite();
}

/// What is left on the disk when it is full is room that can be given back.
TEST_F(NotwehrTest, DerPlatzFürDenNotfallIstBelegtBisZumGutenEnde)
{
    EXPECT_EQ(Enden([] {
                  if (fs::file_size(Platzreserve()) < 1000000)
                      _exit(1);
                  raise(SIGSEGV);
              }),
              SIGSEGV);
    for (const auto &eintrag : fs::directory_iterator(Stände()))
        EXPECT_TRUE(eintrag.is_directory()) << eintrag.path();
    fs::remove_all(Stände());
    EXPECT_EQ(Enden([] { NetzEinholen(); }), 0);
    EXPECT_EQ(Namen().size(), 1U) << "the state of the start";
}

TEST_F(NotwehrTest, NiemandSonstLiestDenNotfall)
{
    Enden([] { raise(SIGSEGV); });
    const fs::path ort = AlleStände().back().Ort;
    EXPECT_EQ(fs::status(ort).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(ort / "Konfig.cfg").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(NotwehrTest, DerNameNenntDieZeitDesEndes)
{
    Uhr = Systemuhr();
    Enden([] { raise(SIGSEGV); });
    const Stand stand = AlleStände().back();
    EXPECT_EQ(stand.Zeit.Tag, Uhr.Heute());
    EXPECT_NEAR(stand.Zeit.Sekunde, Uhr.Sekunden(), 30);
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(NotwehrTest, AuchOhnePlatzAufDemStapel)
{
    EXPECT_EQ(Enden([] {
                  std::function<int(int)> tiefer = [&](int tiefe) {
                      volatile char platz[4096] = {};
                      return tiefe < 0 ? 0 : tiefer(tiefe + 1) + platz[0];
                  };
                  tiefer(0);
              }),
              SIGSEGV);
    GerettetIstDieZweite();
}
#endif

} // namespace
} // namespace altardienst

#endif
