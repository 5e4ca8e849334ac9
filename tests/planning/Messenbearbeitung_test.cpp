// What the mass list does to the tables, and the labels of its slots.
#include "planning/Messenbearbeitung.h"

#include "Prüfstand.h"
#include "planning/Messenbild.h"

#include <algorithm>

namespace altardienst {
namespace {

class MessenbearbeitungTest : public Prüfstand {};

const Datum Sonntag = DatumAus({2026, 11, 22});
const Datum Zehn = ZeitAus(10 * 3600);
const Datum Elf = ZeitAus(11 * 3600);

void Fest(int k, Datum datum, Datum uhrzeit)
{
    MesseDienerFest.Datum[k] = datum;
    MesseDienerFest.Uhrzeit[k] = uhrzeit;
    MesseDienerFest.Vorname[k][1] = "Vor" + ZahlText(k);
}

TEST_F(MessenbearbeitungTest, FesteEintraegeMitziehenNurBeiGleichemTagUndGleicherZeit)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    Fest(0, Sonntag, Zehn);
    Fest(1, Sonntag, Elf);
    Fest(2, Sonntag + 1, Zehn);
    Fest(3, Sonntag, Zehn);
    MesseDienerFest.Anzahl = 4;
    FesteEintraegeMitziehen(0, KurzesDatum(Sonntag + 7), LangeZeit(Elf));
    const std::array erwartet = {std::pair(Sonntag + 7, Elf), std::pair(Sonntag, Elf),
                                 std::pair(Sonntag + 1, Zehn), std::pair(Sonntag + 7, Elf)};
    for (int k = 0; k < 4; ++k) {
        const auto &[datum, uhrzeit] = erwartet[static_cast<std::size_t>(k)];
        EXPECT_EQ(MesseDienerFest.Datum[k], datum) << k;
        EXPECT_EQ(MesseDienerFest.Uhrzeit[k], uhrzeit) << k;
        EXPECT_EQ(MesseDienerFest.Vorname[k][1], "Vor" + ZahlText(k));
    }
    EXPECT_EQ(Messe.Datum[0], Sonntag); // the mass is written by its dialog
    EXPECT_EQ(Messe.Uhrzeit[0], Zehn);
}

TEST_F(MessenbearbeitungTest, FesteEintraegeMitziehenGehtBisZumFreienDatensatz)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    for (int k = 0; k < 4; ++k)
        Fest(k, Sonntag, Zehn);
    MesseDienerFest.Anzahl = 2;
    FesteEintraegeMitziehen(0, KurzesDatum(Sonntag), LangeZeit(Elf));
    EXPECT_EQ(MesseDienerFest.Uhrzeit[2], Elf);
    EXPECT_EQ(MesseDienerFest.Uhrzeit[3], Zehn);
}

TEST_F(MessenbearbeitungTest, FesteEintraegeMitziehenNimmtDieMesseAufDemSchirm)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    MesseMitDienern(Sonntag, 4, Elf);
    Fest(0, Sonntag, Zehn);
    Fest(1, Sonntag, Elf);
    MesseDienerFest.Anzahl = 2;
    FesteEintraegeMitziehen(1, KurzesDatum(Sonntag + 3), LangeZeit(Zehn));
    EXPECT_EQ(MesseDienerFest.Datum[0], Sonntag);
    EXPECT_EQ(MesseDienerFest.Datum[1], Sonntag + 3);
    EXPECT_EQ(MesseDienerFest.Uhrzeit[1], Zehn);
}

TEST_F(MessenbearbeitungTest, MesseVorziehenSchiebtJedesFeldAußerDenDiensten)
{
    for (int von : {0, 3, 6}) {
        TabellenLeeren();
        MessenFüllen(9); // two more records after the seven of the table
        Messe.Anzahl = 7;
        Messenbild modell = MessenJetzt();
        const Messenbild vorher = modell;
        for (std::size_t n = static_cast<std::size_t>(von); n <= 7; ++n) {
            modell[n] = vorher[n + 1];
            for (std::size_t k = ErsterDienst; k < ErsterDienst + 63; k += 3)
                modell[n][k] = vorher[n][k];
        }
        MesseVorziehen(von);
        EXPECT_EQ(MessenJetzt(), modell) << von;
        EXPECT_EQ(Messe.Anzahl, 7);
    }
}

TEST_F(MessenbearbeitungTest, SlotBeschriftungenOhneDiensteSindDieNummern)
{
    const auto texte = SlotBeschriftungen({});
    for (int k = 0; k < 20; ++k)
        EXPECT_EQ(texte[static_cast<std::size_t>(k)], "Meßdiener " + ZahlText(k + 1) + " :");
}

TEST_F(MessenbearbeitungTest, SlotBeschriftungenNennenDieDiensteInFesterFolge)
{
    const auto texte = SlotBeschriftungen({1, 2, 3, 1, 2});
    const std::array<Text, 20> erwartet = {
        "Gabenber. :",    "Leuchter :",     "Leuchter :",     "Flambeau :",     "Flambeau :",
        "Flambeau :",     "Weihrauch :",    "Kreuztr. :",     "Kreuztr. :",     "Meßdiener 10 :",
        "Meßdiener 11 :", "Meßdiener 12 :", "Meßdiener 13 :", "Meßdiener 14 :", "Meßdiener 15 :",
        "Meßdiener 16 :", "Meßdiener 17 :", "Meßdiener 18 :", "Meßdiener 19 :", "Meßdiener 20 :"};
    EXPECT_EQ(texte, erwartet);
}

TEST_F(MessenbearbeitungTest, SlotBeschriftungenLassenZweiLeuchterUndWeihrauchVorNummer4Stehen)
{
    const auto texte = SlotBeschriftungen({0, 2, 0, 1, 0});
    EXPECT_EQ(texte[0], "Leuchter :");
    EXPECT_EQ(texte[1], "Leuchter :");
    EXPECT_EQ(texte[2], "Weihrauch :");
    EXPECT_EQ(texte[3], "Meßdiener 4 :");
}

TEST_F(MessenbearbeitungTest, SlotBeschriftungenNehmenHöchstens2_2_8_2_2)
{
    const auto texte = SlotBeschriftungen({9, 9, 99, 9, 9});
    const auto zahl = [&](const char *text) { return std::ranges::count(texte, Text(text)); };
    EXPECT_EQ(zahl("Gabenber. :"), 2);
    EXPECT_EQ(zahl("Leuchter :"), 2);
    EXPECT_EQ(zahl("Flambeau :"), 8);
    EXPECT_EQ(zahl("Weihrauch :"), 2);
    EXPECT_EQ(zahl("Kreuztr. :"), 2);
    EXPECT_EQ(texte[16], "Meßdiener 17 :");
}

TEST_F(MessenbearbeitungTest, SlotBeschriftungenNehmenEineZahlUnter0WieKeine)
{
    EXPECT_EQ(SlotBeschriftungen({-1, -5, -9, -1, -1}), SlotBeschriftungen({}));
}

} // namespace
} // namespace altardienst
