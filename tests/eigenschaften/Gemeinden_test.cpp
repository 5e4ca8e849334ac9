// Writes random parishes as the program would, for comparing two builds of it.
#include "Gemeinde.h"

#include "core/Allgemein.h"

#include <cstdlib>

namespace altardienst {
namespace {

class GemeindenTest : public Gemeindestand {};

/// `ALTARDIENST_GEMEINDEN` names a directory, which gets a parish each in 1, 2, 3 and so on up to
/// 100.
TEST_F(GemeindenTest, Schreiben)
{
    const char *ziel = std::getenv("ALTARDIENST_GEMEINDEN");
    if (!ziel)
        GTEST_SKIP() << "only when asked for";
    for (unsigned nummer = 1; nummer <= 100; ++nummer) {
        const std::filesystem::path gemeinde = PfadAus(ziel) / std::to_string(nummer);
        std::filesystem::create_directories(gemeinde);
        Laufwerke.Programmverzeichnis = [gemeinde] { return gemeinde; };
        GemeindeErwürfeln(nummer);
        Konfig.Schriftart = "Arial";
        AufFestplatteSpeichern();
    }
}

} // namespace
} // namespace altardienst
