// The program dies, and the tables are there at the next start.
#include "history/Netzstand.h"

#ifndef _WIN32

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class NotwehrTest : public Netzstand {
  protected:
    NotwehrTest() { GemeindeSpeichern(1); }

    /// The end of a run in a process of its own that has changed the tables; the signal that ended
    /// it, or 0.
    static int Enden(const std::function<void()> &wie)
    {
        const pid_t kind = fork();
        if (kind == 0) {
            rlimit ohneAbbild{0, 0};
            setrlimit(RLIMIT_CORE, &ohneAbbild);
            std::freopen("/dev/null", "w", stderr);
            for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
                std::signal(signal, SIG_DFL); // whatever watches the test
            NetzSpannen();
            ArbeitBeginnt();
            Gemeinde(2);
            alarm(20);
            wie();
            _exit(0);
        }
        int ausgang = 0;
        waitpid(kind, &ausgang, 0);
        return WIFSIGNALED(ausgang) ? WTERMSIG(ausgang) : 0;
    }

    void GerettetIstDieZweite()
    {
        Neustart();
        ASSERT_TRUE(Netz().Notfall);
        EXPECT_TRUE(InhaltVon(Netz().Notfall->Ort) == InhaltDerGemeinde(2));
        EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1)) << "the eight files are not touched";
        EXPECT_FALSE(fs::exists(Stände() / NotfallInArbeit));
    }
};

TEST_F(NotwehrTest, JedesTödlicheSignalLäßtDieTabellenZurückUndTötetDannDoch)
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
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
    EXPECT_EQ(Enden([] { std::exit(1); }), 0);
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

// A second fault while the tables are written must not keep the process alive.
TEST_F(NotwehrTest, ScheitertAuchDasRettenEndetDasProgramm)
{
    EXPECT_EQ(Enden([] {
                  Meßdiener.Geburtstag[0] = 1e300; // no date; nothing can write it
                  raise(SIGSEGV);
              }),
              SIGSEGV);
    EXPECT_EQ(AlleStände().size(), 1U);
    Neustart();
    EXPECT_FALSE(fs::exists(Stände() / NotfallInArbeit));
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
