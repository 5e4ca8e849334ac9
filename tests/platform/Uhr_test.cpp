// The system's clock, and the stand-in of the tests.
#include "platform/Uhr.h"

#include "Prüfstand.h"

#include <ctime>

namespace altardienst {
namespace {

class UhrTest : public Prüfstand {};

TEST_F(UhrTest, DieSystemuhrGehtNachOrtszeit)
{
    UhrDienst uhr = Systemuhr();
    for (int versuch = 0; versuch < 3; ++versuch) {
        std::time_t jetzt = std::time(nullptr);
        std::tm ort = *std::localtime(&jetzt);
        Datum heute = uhr.Heute();
        int sekunden = uhr.Sekunden();
        // Midnight may fall between the readings; then they are repeated.
        int erwartet = ort.tm_hour * 3600 + ort.tm_min * 60 + ort.tm_sec;
        if (sekunden < erwartet - 1)
            continue;
        EXPECT_EQ(heute, DatumAus({ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday}));
        EXPECT_GE(sekunden, erwartet - 1);
        EXPECT_LE(sekunden, erwartet + 5);
        return;
    }
    FAIL() << "the time of day goes backwards";
}

TEST_F(UhrTest, HeuteIstEinGanzerTagUndSekundenLiegenImTag)
{
    UhrDienst uhr = Systemuhr();
    Datum heute = uhr.Heute();
    EXPECT_EQ(heute, static_cast<int>(heute));
    for (int i = 0; i < 1000; ++i) {
        int sekunden = uhr.Sekunden();
        ASSERT_GE(sekunden, 0);
        ASSERT_LT(sekunden, SekundenProTag);
    }
}

TEST_F(UhrTest, DieGestellteUhrStehtStill)
{
    EXPECT_EQ(Uhr.Heute(), DatumAus({2026, 11, 21}));
    EXPECT_EQ(Uhr.Sekunden(), 43200);
    EXPECT_EQ(Uhr.Sekunden(), 43200);
    Heute += 1;
    Sekunden = 5;
    EXPECT_EQ(Uhr.Heute(), DatumAus({2026, 11, 22}));
    EXPECT_EQ(Uhr.Sekunden(), 5);
}

TEST_F(UhrTest, DieGestellteUhrGehtBeiJederAblesungWeiter)
{
    SekundenProAblesung = 2;
    EXPECT_EQ(Uhr.Sekunden(), 43200);
    EXPECT_EQ(Uhr.Sekunden(), 43202);
    EXPECT_EQ(Uhr.Sekunden(), 43204);
}

} // namespace
} // namespace altardienst
