// Carrying the fixed entries over into the masses.
#include "fixed/FesteMeßdienerÜbertragen.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class FesteMeßdienerÜbertragenTest : public Prüfstand {
  protected:
    const Datum Sonntag = DatumAus({2026, 11, 22});

    static void Fest(int zeile, Datum datum, int slot, const Text &vor, const Text &nach,
                     Datum uhrzeit = ZeitAus(36000))
    {
        MesseDienerFest.Datum[zeile] = datum;
        MesseDienerFest.Uhrzeit[zeile] = uhrzeit;
        MesseDienerFest.Vorname[zeile][slot] = vor;
        MesseDienerFest.Nachname[zeile][slot] = nach;
        MesseDienerFest.Dienst[zeile][slot] = "Leuchter";
    }

    static Text Slot(int messe, int slot)
    {
        return Messe.DienerVor[messe][slot] + " " + Messe.DienerNach[messe][slot];
    }
};

TEST_F(FesteMeßdienerÜbertragenTest, ÜberschreibtDenSlotUndLässtLeereSlotsUndDiensteStehen)
{
    int m = MesseMitDienern(Sonntag, 4);
    for (int s = 0; s <= 20; ++s) {
        Messe.DienerVor[m][s] = "Alt";
        Messe.DienerNach[m][s] = std::to_string(s);
        Messe.DienerDienst[m][s] = "Allgemein";
    }
    Fest(0, Sonntag, 0, "Nicht", "Benutzt");
    Fest(0, Sonntag, 1, "Anna", "Berg");
    Fest(0, Sonntag, 2, "Nur", "");
    Fest(0, Sonntag, 3, "", "Nur");
    Fest(0, Sonntag, 20, "Zita", "Zahn");
    FesteMeßdienerÜbertragen();
    EXPECT_EQ(Slot(m, 0), "Alt 0");
    EXPECT_EQ(Slot(m, 1), "Anna Berg");
    EXPECT_EQ(Slot(m, 2), "Alt 2");
    EXPECT_EQ(Slot(m, 3), "Alt 3");
    EXPECT_EQ(Slot(m, 19), "Alt 19");
    EXPECT_EQ(Slot(m, 20), "Zita Zahn"); // far beyond the count of the mass
    for (int k = 0; k <= 20; ++k)
        EXPECT_EQ(Messe.DienerDienst[m][k], "Allgemein");
    EXPECT_EQ(MesseDienerFest.Vorname[0][1], "Anna");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(FesteMeßdienerÜbertragenTest, DatumUndUhrzeitMüssenBeideStimmen)
{
    int früh = MesseMitDienern(Sonntag, 2, ZeitAus(8 * 3600));
    int spät = MesseMitDienern(Sonntag, 2, ZeitAus(18 * 3600));
    int montag = MesseMitDienern(Sonntag + 1, 2, ZeitAus(8 * 3600));
    int zwilling = MesseMitDienern(Sonntag, 2, ZeitAus(8 * 3600));
    Fest(0, Sonntag, 1, "Anna", "Berg", ZeitAus(8 * 3600));
    FesteMeßdienerÜbertragen();
    EXPECT_EQ(Slot(früh, 1), "Anna Berg");
    EXPECT_EQ(Slot(spät, 1), " ");
    EXPECT_EQ(Slot(montag, 1), " ");
    EXPECT_EQ(Slot(zwilling, 1), "Anna Berg"); // date and time are the only link
}

TEST_F(FesteMeßdienerÜbertragenTest, SpätereZeileGewinntSlotFürSlot)
{
    int m = MesseMitDienern(Sonntag, 4);
    Fest(3, Sonntag, 1, "Erste", "Zeile");
    Fest(3, Sonntag, 2, "Erste", "Zeile");
    Fest(9, Sonntag, 2, "Zweite", "Zeile");
    FesteMeßdienerÜbertragen();
    EXPECT_EQ(Slot(m, 1), "Erste Zeile");
    EXPECT_EQ(Slot(m, 2), "Zweite Zeile");
}

TEST_F(FesteMeßdienerÜbertragenTest, Zeile200WirdÜbertragenZeile201Nicht)
{
    int m = MesseMitDienern(Sonntag, 4);
    Fest(200, Sonntag, 1, "Letzte", "Zeile");
    Fest(201, Sonntag, 2, "Zu", "Spät");
    FesteMeßdienerÜbertragen(); // the count of the entries does not matter
    EXPECT_EQ(Slot(m, 1), "Letzte Zeile");
    EXPECT_EQ(Slot(m, 2), " ");
}

TEST_F(FesteMeßdienerÜbertragenTest, GruppeWirdWieEinePersonGeschrieben)
{
    int m = MesseMitDienern(Sonntag, 4);
    Fest(0, Sonntag, 1, "Gruppe", "Tarzisius");
    FesteMeßdienerÜbertragen();
    EXPECT_EQ(Slot(m, 1), "Gruppe Tarzisius");
}

TEST_F(FesteMeßdienerÜbertragenTest, DieLeereMesseHinterDerLetztenGehörtDazu)
{
    MesseMitDienern(Sonntag, 4);
    Fest(0, 0, 1, "Ohne", "Datum", 0);
    FesteMeßdienerÜbertragen();
    EXPECT_EQ(Slot(1, 1), "Ohne Datum");
    EXPECT_EQ(Slot(2, 1), " ");
}

} // namespace
} // namespace altardienst
