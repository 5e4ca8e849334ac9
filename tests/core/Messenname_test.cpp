// How a mass or a person is called where the user looks for one.
#include "Prüfstand.h"
#include "core/Messenname.h"

namespace altardienst {
namespace {

class Messenname : public Prüfstand {};

TEST_F(Messenname, NenntWochentagDatumStundeUndArt)
{
    const int i = MesseMitDienern(DatumAus({2026, 11, 28}), 4, ZeitAus(18 * 3600 + 30 * 60));
    Messe.Messeart[i] = "Vorabendmesse";
    Messe.Wochentag[i] = "Heiligabend"; // the calendar counts
    EXPECT_EQ(Messenzeile(i), "Sa 28.11.2026 18:30 Vorabendmesse");
    EXPECT_EQ(Messenüberschrift(i), "Samstag, 28.11.2026, 18:30 Uhr, Vorabendmesse");
    Messe.Messeart[i].clear();
    EXPECT_EQ(Messenzeile(i), "Sa 28.11.2026 18:30");
    EXPECT_EQ(Messenüberschrift(i), "Samstag, 28.11.2026, 18:30 Uhr");
}

TEST_F(Messenname, EinLeererDatensatzHeißtLeer)
{
    EXPECT_EQ(Messenzeile(0), "(leer)");
    Messe.Messeart[0] = "Andacht";
    EXPECT_EQ(Messenzeile(0), "Sa 30.12.1899 00:00 Andacht");
}

TEST_F(Messenname, EinUnmöglichesDatumScheitertNicht)
{
    Messe.Datum[0] = 9e9;
    Messe.Messeart[0] = "Messe";
    EXPECT_EQ(Messenzeile(0), "? Messe");
    EXPECT_EQ(Messenüberschrift(0), "?, Messe");
}

TEST_F(Messenname, EinePersonHeißtNachIhremNachnamen)
{
    EXPECT_EQ(Personenzeile("Anna", "Adler"), "Adler, Anna");
    EXPECT_EQ(Personenzeile("Anna", ""), "Anna");
    EXPECT_EQ(Personenzeile("", "Adler"), "Adler");
    EXPECT_EQ(Personenzeile("", ""), "(ohne Namen)");
}

} // namespace
} // namespace altardienst
