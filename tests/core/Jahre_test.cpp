// Whole years of age and membership around the ends of months.
#include "core/Jahre.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

Datum Tag(int jahr, int monat, int tag)
{
    return DatumAus({jahr, monat, tag});
}

TEST(Jahre, EinMonatVergehtAmErsten)
{
    EXPECT_EQ(Monatsgrenzen(Tag(2025, 12, 31), Tag(2026, 1, 1)), 1);
    EXPECT_EQ(Monatsgrenzen(Tag(2026, 1, 1), Tag(2026, 1, 31)), 0);
    EXPECT_EQ(Monatsgrenzen(Tag(2026, 1, 31), Tag(2026, 2, 28)), 1);
    EXPECT_EQ(Monatsgrenzen(Tag(2026, 2, 1), Tag(2026, 1, 31)), -1);
    EXPECT_EQ(Monatsgrenzen(Tag(2000, 2, 29), Tag(2026, 11, 21)), 26 * 12 + 9);
}

TEST(Jahre, DerRestFälltWeg)
{
    const Datum heute = Tag(2026, 11, 21);
    EXPECT_EQ(GanzeJahre(Tag(2016, 11, 30), heute), 10); // the month counts, not the day
    EXPECT_EQ(GanzeJahre(Tag(2016, 12, 1), heute), 9);   // 119 months
    EXPECT_EQ(GanzeJahre(Tag(2015, 12, 31), heute), 10); // 10 years and 11 months
    EXPECT_EQ(GanzeJahre(Tag(2015, 11, 30), heute), 11);
    EXPECT_EQ(GanzeJahre(heute, heute), 0);
}

TEST(Jahre, InDerZukunftErstAbZwölfMonatenNegativ)
{
    const Datum heute = Tag(2026, 11, 21);
    EXPECT_EQ(GanzeJahre(Tag(2026, 12, 1), heute), 0);
    EXPECT_EQ(GanzeJahre(Tag(2027, 10, 31), heute), 0);
    EXPECT_EQ(GanzeJahre(Tag(2027, 11, 1), heute), -1);
    EXPECT_EQ(GanzeJahre(Tag(2028, 10, 31), heute), -1);
    EXPECT_EQ(GanzeJahre(Tag(2028, 11, 1), heute), -2);
}

TEST(Jahre, OhneDatumZähltVomTagNull)
{
    // 30.12.1899 to 21.11.2026: (2026 - 1899) * 12 + 11 - 12 = 1523 months
    EXPECT_EQ(Monatsgrenzen(0, Tag(2026, 11, 21)), 1523);
    EXPECT_EQ(GanzeJahre(0, Tag(2026, 11, 21)), 126);
}

} // namespace
} // namespace altardienst
