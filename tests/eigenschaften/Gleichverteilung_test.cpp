// The draws follow their uneven weights.
#include "Prüfstand.h"

#include "assignment/Ziehung.h"

namespace altardienst {
namespace {

class GleichverteilungTest : public Prüfstand {
  protected:
    /// Chi-square of a million draws against the weights: half an interval for the first record and
    /// for the blank row, a whole one for every other record.
    static double ChiQuadrat(int anzahl, std::uint32_t saat)
    {
        constexpr int Ziehungen = 1000000;
        Zufall = ZufallMitSaat(saat);
        std::vector<int> häufigkeit(static_cast<std::size_t>(anzahl) + 1);
        for (int k = 0; k < Ziehungen; ++k)
            ++häufigkeit.at(static_cast<std::size_t>(Ziehen(anzahl)));
        double chi = 0;
        for (std::size_t j = 0; j < häufigkeit.size(); ++j) {
            const bool rand = j == 0 || j + 1 == häufigkeit.size();
            const double erwartet = (rand ? 0.5 : 1.0) / anzahl * Ziehungen;
            const double fehler = häufigkeit[j] - erwartet;
            chi += fehler * fehler / erwartet;
        }
        return chi;
    }
};

TEST_F(GleichverteilungTest, ZiehungenFolgenDenUngleichenGewichten)
{
    // These values are exceeded one time in a thousand, with as many degrees of freedom as records.
    EXPECT_LT(ChiQuadrat(1, 4711), 10.83);
    EXPECT_LT(ChiQuadrat(20, 4711), 45.31);
    EXPECT_LT(ChiQuadrat(100, 4711), 149.45);
}

} // namespace
} // namespace altardienst
