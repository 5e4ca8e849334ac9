// Writes random parishes as the program would, for comparing two builds of it.
#include "Gemeinde.h"

#include "core/Allgemein.h"

#include <cstdlib>

namespace altardienst {
namespace {

class GemeindenTest : public Gemeindestand {};

/// `ALTARDIENST_GEMEINDEN` names a directory, which gets a parish each in 1, 2, 3 and so on up to
/// 100; otherwise a few go to the hard disk of the test. What was written loads and is written the
/// same again.
TEST_F(GemeindenTest, Schreiben)
{
    const char *gewünscht = std::getenv("ALTARDIENST_GEMEINDEN");
    const std::filesystem::path ziel = gewünscht ? PfadAus(gewünscht) : Festplatte;
    const unsigned anzahl = gewünscht ? 100 : 5;
    for (unsigned nummer = 1; nummer <= anzahl; ++nummer) {
        const std::filesystem::path gemeinde = ziel / std::to_string(nummer);
        std::filesystem::create_directories(gemeinde);
        Laufwerke.Programmverzeichnis = [gemeinde] { return gemeinde; };
        GemeindeErwürfeln(nummer);
        Konfig.Schriftart = "Arial";
        AufFestplatteSpeichern();
        const std::string messen = DateiLesen(gemeinde / "Messen.dat");
        const std::string diener = DateiLesen(gemeinde / PfadAus("Meßdiener.dat"));
        EXPECT_GT(messen.size(), 100U);
        TabellenLeeren();
        VonFestplatteLaden();
        EXPECT_GT(Messe.Anzahl, 0);
        AufFestplatteSpeichern();
        EXPECT_TRUE(DateiLesen(gemeinde / "Messen.dat") == messen) << nummer;
        EXPECT_TRUE(DateiLesen(gemeinde / PfadAus("Meßdiener.dat")) == diener) << nummer;
    }
}

} // namespace
} // namespace altardienst
