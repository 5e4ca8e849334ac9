// The program killed at random moments of a save, and while a state is written: nothing is lost.
// ALTARDIENST_ABSCHUESSE sets how many kills there are of each kind, and prints what was found.
#include "history/Marke.h"
#include "history/Netzstand.h"

#ifndef _WIN32

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono;

class AbschußTest : public Netzstand {
  protected:
    AbschußTest()
    {
        if (const char *zahl = std::getenv("ALTARDIENST_ABSCHUESSE"))
            abschüsse = std::atoi(zahl);
    }

    /// Every slot of the large tables holds names that differ from issue to issue.
    static void VolleTabellen(int ausgabe)
    {
        Gemeinde(ausgabe);
        const Text zahl = std::to_string(ausgabe);
        Meßdiener.Anzahl = MeßdienerTabelle::HöchsterInDatei + 1;
        for (int j = 0; j < Meßdiener.Anzahl; ++j) {
            Meßdiener.Vorname[j] = "Vorname" + zahl;
            Meßdiener.Nachname[j] = "Nachname" + std::to_string(j);
            Meßdiener.Straße[j] = "Straße " + zahl;
        }
        Messe.Anzahl = MesseTabelle::HöchsterInDatei;
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int n = 1; n <= MesseTabelle::HöchsterSlot; ++n) {
                Messe.DienerVor[i][n] = "Vorname" + zahl;
                Messe.DienerNach[i][n] = "Nachname" + std::to_string(n);
            }
        MesseDienerFest.Anzahl = MesseDienerFestTabelle::HöchsterInDatei;
        for (int i = 0; i < MesseDienerFest.Anzahl; ++i)
            for (int n = 1; n <= MesseDienerFestTabelle::HöchsterSlot; ++n)
                MesseDienerFest.Nachname[i][n] = "Nachname" + zahl;
    }

    /// Runs `schritt` in a process of its own and kills that after so long.
    static void Abschießen(const std::function<void()> &schritt, microseconds nach)
    {
        int bereit[2];
        ASSERT_EQ(pipe(bereit), 0);
        const pid_t kind = fork();
        if (kind == 0) {
            [[maybe_unused]] const auto geschrieben = write(bereit[1], "x", 1);
            schritt();
            _exit(0);
        }
        char zeichen = 0;
        EXPECT_EQ(read(bereit[0], &zeichen, 1), 1);
        close(bereit[0]);
        close(bereit[1]);
        std::this_thread::sleep_for(nach);
        kill(kind, SIGKILL);
        waitpid(kind, nullptr, 0);
    }

    static microseconds Dauer(const std::function<void()> &schritt)
    {
        const auto beginn = steady_clock::now();
        schritt();
        return duration_cast<microseconds>(steady_clock::now() - beginn);
    }

    microseconds Zufällig(microseconds bis)
    {
        return microseconds(std::uniform_int_distribution<long>(0, bis.count())(würfel));
    }

    int abschüsse = 12;
    std::mt19937 würfel{std::random_device()()};
};

TEST_F(AbschußTest, EinSpeichernVerliertNichtsWannImmerEsAbbricht)
{
    VolleTabellen(1);
    AufFestplatteSpeichern();
    VolleTabellen(2);
    const Standinhalt neu = InhaltDerTabellen();
    VolleTabellen(1);
    const Standinhalt alt = InhaltDerTabellen();
    NetzSpannen();
    const auto dauer = Dauer([] { AufFestplatteSpeichern(); });
    int zerrissen = 0;
    int fertig = 0;
    int verloren = 0;
    for (int lauf = 0; lauf < abschüsse; ++lauf) {
        VolleTabellen(2);
        Abschießen([] { AufFestplatteSpeichern(); }, Zufällig(dauer * 5 / 4));
        const Standinhalt dort = AufDerPlatte();
        const bool marke = FremdeMarkeLiegt();
        Neustart();
        EXPECT_EQ(Netz().SpeichernAbgebrochen, marke);
        if (dort == neu && !marke) {
            ++fertig;
            EXPECT_TRUE(ImNeuesten() == neu);
        } else {
            zerrissen += dort == alt ? 0 : 1;
            const bool da = ImNeuesten() == alt;
            verloren += da ? 0 : 1;
            EXPECT_TRUE(da) << "kill " << lauf;
            EXPECT_TRUE(dort == alt || Netz().SpeichernAbgebrochen);
        }
        EXPECT_EQ(Namen().size(), AlleStände().size()) << "no leftovers";
        VolleTabellen(1);
        AufFestplatteSpeichern();
        EXPECT_TRUE(AufDerPlatte() == alt);
        for (const Stand &stand : AlleStände())
            fs::remove_all(stand.Ort);
    }
    if (std::getenv("ALTARDIENST_ABSCHUESSE"))
        std::printf("%d kills of a save: %d left files that are not those before, %d came after "
                    "its end, %d lost anything\n",
                    abschüsse, zerrissen, fertig, verloren);
}

TEST_F(AbschußTest, EinZurückholenVerliertNichtsWannImmerEsAbbricht)
{
    VolleTabellen(1);
    AufFestplatteSpeichern();
    const Standinhalt alt = InhaltDerTabellen();
    VolleTabellen(2);
    const Standinhalt jetzt = InhaltDerTabellen();
    NetzSpannen(); // keeps what is to be brought back
    const Stand stand = AlleStände().back();
    AufFestplatteSpeichern();
    const auto dauer = Dauer([&] { StandZurückholen(stand); });
    int gemischt = 0;
    int verloren = 0;
    for (int lauf = 0; lauf < abschüsse; ++lauf) {
        VolleTabellen(2);
        AufFestplatteSpeichern();
        for (const Stand &anderer : AlleStände())
            if (anderer.Ort != stand.Ort)
                fs::remove_all(anderer.Ort);
        Abschießen([&] { StandZurückholen(stand); }, Zufällig(dauer * 5 / 4));
        const Standinhalt dort = AufDerPlatte();
        Neustart();
        const bool mischung = !(dort == alt) && !(dort == jetzt);
        gemischt += mischung ? 1 : 0;
        const auto stände = AlleStände();
        const auto da = [&](const Standinhalt &inhalt) {
            return std::ranges::any_of(stände,
                                       [&](const Stand &s) { return InhaltVon(s.Ort) == inhalt; });
        };
        verloren += da(alt) && da(jetzt) ? 0 : 1;
        EXPECT_TRUE(da(alt) && da(jetzt)) << "kill " << lauf;
        if (mischung) {
            EXPECT_TRUE(Netz().SpeichernAbgebrochen);
            EXPECT_TRUE(ImNeuesten() == jetzt);
        }
    }
    if (std::getenv("ALTARDIENST_ABSCHUESSE"))
        std::printf("%d kills while a state is brought back: %d left files of both, %d lost "
                    "anything\n",
                    abschüsse, gemischt, verloren);
}

TEST_F(AbschußTest, EinStandIstGanzDaOderGarNicht)
{
    VolleTabellen(1);
    AufFestplatteSpeichern();
    const auto dauer = Dauer([this] { StandSichern(AufDerPlatte()); });
    fs::remove_all(Stände());
    int da = 0;
    int falsch = 0;
    for (int lauf = 0; lauf < abschüsse; ++lauf) {
        Abschießen([] { NetzSpannen(); }, Zufällig(dauer * 5 / 4));
        const Standinhalt dort = AufDerPlatte();
        for (const Stand &stand : AlleStände()) {
            ++da;
            falsch += InhaltVon(stand.Ort) == dort ? 0 : 1;
        }
        EXPECT_EQ(falsch, 0) << "kill " << lauf;
        Neustart();
        EXPECT_TRUE(ImNeuesten() == dort);
        EXPECT_EQ(Namen().size(), 1U) << "no leftovers";
        NetzEinholen();
        fs::remove_all(Stände());
    }
    if (std::getenv("ALTARDIENST_ABSCHUESSE"))
        std::printf("%d kills while a state is written: %d were complete, %d were not whole\n",
                    abschüsse, da, falsch);
}

} // namespace
} // namespace altardienst

#endif
