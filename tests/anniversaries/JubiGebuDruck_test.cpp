// The lists of birthdays and jubilees on paper and on labels, operation by operation.
#include "anniversaries/JubiGebuDruck.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

/// Today is 21.11.2026.
class JubiGebuDruckTest : public Druckstand {
  protected:
    static void Diener(const Text &vorname, Kalendertag geboren, Kalendertag eingetreten)
    {
        const int i = MeßdienerAnlegen(vorname, "Berg");
        Meßdiener.Geburtstag[i] = DatumAus(geboren);
        Meßdiener.Eintrittsdatum[i] = DatumAus(eingetreten);
        Meßdiener.Telefon[i] = "02541/7";
        Meßdiener.Straße[i] = "Am Bach 1";
        Meßdiener.PLZ[i] = 43217;
        Meßdiener.Ort[i] = "Oberquell";
    }

    /// The opening of both lists: the printer keeps the font it has.
    static Ablauf Eröffnung(const Text &titel)
    {
        Ablauf ablauf;
        for (const char *operation : {"Dialog", "FontSize 14", "FontBold an", "FontItalic aus",
                                      "FontStrikethru aus", "FontUnderline an", "CurrentY 600"})
            ablauf.Tut(operation);
        ablauf.Zeile(titel).Zeile("");
        return ablauf.Tut("FontSize 10").Tut("FontBold aus").Tut("FontUnderline aus");
    }
    static const std::vector<Text> &Ende(Ablauf &ablauf)
    {
        return ablauf.Tut("NewPage").Tut("EndDoc").Zeilen;
    }

    /// The first line printed.
    Text Titel() const
    {
        for (const Text &zeile : Papier.Zeilen)
            if (zeile.starts_with("Print \""))
                return zeile.substr(7, zeile.size() - 8);
        return "";
    }
};

TEST_F(JubiGebuDruckTest, GeburtstageZeileFürZeile)
{
    Diener("Anna", {2010, 3, 9}, {2020, 1, 1});
    Diener("Ben", {2013, 3, 2}, {2020, 1, 1});
    GeburtstageSuchen(Gruppende::Alle, 3);
    GeburtstageDrucken(Gruppende::Alle, 3);
    Ablauf ablauf = Eröffnung("Geburtstage der Meßdiener und Meßhelfer im März");
    ablauf.Zeile("Ben Berg, Geburtstag: 02.03.2013 , Alter:  13  Jahre, Telefon: 02541/7")
        .Leerzeile()
        .Zeile("Anna Berg, Geburtstag: 09.03.2010 , Alter:  16  Jahre, Telefon: 02541/7")
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, Ende(ablauf));
    EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
}

TEST_F(JubiGebuDruckTest, EinMonatOhneGeburtstageDrucktEineLeereZeile)
{
    GeburtstageSuchen(Gruppende::Messdien, 2);
    GeburtstageDrucken(Gruppende::Messdien, 2);
    Ablauf ablauf = Eröffnung("Geburtstage der Meßdiener im Februar");
    ablauf.Zeile(" , Geburtstag: 21.11.2026 , Alter:  0  Jahre, Telefon: ").Leerzeile();
    EXPECT_EQ(Papier.Zeilen, Ende(ablauf));
}

TEST_F(JubiGebuDruckTest, JederMonatUndJedeGruppeHatIhrenTitel)
{
    const char *monate[] = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                            "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    const std::pair<Gruppende, Text> gruppen[] = {
        {Gruppende::Alle, "Geburtstage der Meßdiener und Meßhelfer im "},
        {Gruppende::Messdien, "Geburtstage der Meßdiener im "},
        {Gruppende::Meßhelfer, "Geburtstage der Meßhelfer im "}};
    for (const auto &[gruppe, anfang] : gruppen)
        for (int monat = 1; monat <= 12; ++monat) {
            Papier.Leeren();
            GeburtstageSuchen(gruppe, monat);
            GeburtstageDrucken(gruppe, monat);
            EXPECT_EQ(Titel(), anfang + monate[monat - 1]);
        }
}

TEST_F(JubiGebuDruckTest, JubiläenZeileFürZeile)
{
    Diener("Anna", {2010, 3, 9}, {2019, 8, 31});
    Diener("Ben", {2013, 3, 2}, {2019, 5, 17});
    JubiläenSuchen(7);
    JubiläenDrucken(7);
    Ablauf ablauf = Eröffnung("Jubiläum von  7  Jahren der Meßdiener");
    ablauf.Zeile("Ben Berg, Eintrittsdatum: 17.05.2019 , Telefon: 02541/7")
        .Leerzeile()
        .Zeile("Anna Berg, Eintrittsdatum: 31.08.2019 , Telefon: 02541/7")
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, Ende(ablauf));
    EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
}

TEST_F(JubiGebuDruckTest, FünfzehnHeißtUndMehr)
{
    for (const auto &[jahre, titel] : {std::pair{0, "Jubiläum von  0  Jahren der Meßdiener"},
                                       {14, "Jubiläum von  14  Jahren der Meßdiener"},
                                       {15, "Jubiläum von  15  und mehr  Jahren der Meßdiener"}}) {
        Papier.Leeren();
        JubiläenSuchen(jahre);
        JubiläenDrucken(jahre);
        EXPECT_EQ(Titel(), titel);
    }
}

TEST_F(JubiGebuDruckTest, EinJubiläumOhneLeuteDrucktEineLeereZeile)
{
    JubiläenSuchen(3);
    JubiläenDrucken(3);
    Ablauf ablauf = Eröffnung("Jubiläum von  3  Jahren der Meßdiener");
    ablauf.Zeile(" , Eintrittsdatum: 21.11.2026 , Telefon: ").Leerzeile();
    EXPECT_EQ(Papier.Zeilen, Ende(ablauf));
}

// The opening ends at y = 600 + 2 * 240 = 1080 with `Zeilen` = 2; a row takes 480 and counts 2.
// After row 1 the estimate is 1560 * 6 / 4 = 2340, after row 2 it is 2040 * 8 / 6 = 2720. The next
// page begins at 600 with `Zeilen` = 0: 1080 * 4 / 2 = 2160, 2340, 2720.
TEST_F(JubiGebuDruckTest, DieSeiteWendetNachDerSchätzungMitZweiZeilen)
{
    for (int i = 0; i < 5; ++i)
        Diener("V" + std::to_string(i), {2010, 3, 1 + i}, {2019, 5, 1 + i});
    const auto zeilenJeSeite = [&] {
        std::vector<int> zahlen = {0};
        for (const Text &zeile : Papier.Zeilen) {
            zahlen.back() += zeile.starts_with("Print \"V");
            if (zeile == "NewPage")
                zahlen.push_back(0);
        }
        return zahlen;
    };
    GeburtstageSuchen(Gruppende::Alle, 3);
    JubiläenSuchen(7);
    const std::pair<int, std::vector<int>> fälle[] = {{2300, {1, 2, 2, 0, 0}},
                                                      {2400, {2, 3, 0, 0}}};
    for (const auto &[untereGrenze, jeSeite] : fälle) {
        Papier.Seitenhöhe = static_cast<Single>(untereGrenze + 600);
        Papier.Leeren();
        GeburtstageDrucken(Gruppende::Alle, 3);
        EXPECT_EQ(zeilenJeSeite(), jeSeite) << untereGrenze;
        Papier.Leeren();
        JubiläenDrucken(7);
        EXPECT_EQ(zeilenJeSeite(), jeSeite) << untereGrenze;
    }
}

/// Two rows of two labels.
class JubiGebuEtikettenTest : public JubiGebuDruckTest {
  protected:
    JubiGebuEtikettenTest()
    {
        Etikett.Reihen[0] = 2;
        Etikett.Spalten[0] = 2;
        Etikett.Höhe[0] = 30;
        Etikett.Breite[0] = 60;
    }

    std::vector<Text> Gedruckt(const Etikettenleute &leute)
    {
        Papier.Leeren();
        if (const auto weiter = EtikettenDrucken(leute, [this] { return platz; }))
            platz = *weiter;
        std::vector<Text> zeilen;
        for (const Text &zeile : Papier.Zeilen)
            if (zeile.starts_with("Print \""))
                zeilen.push_back(zeile.substr(7, zeile.size() - 8));
        return zeilen;
    }

    using Liste = std::vector<Text>;
    Etikettenplatz platz = {1, 1};
};

TEST_F(JubiGebuEtikettenTest, JedeZeileDerListeGibtEinEtikett)
{
    Diener("Anna", {2010, 3, 9}, {2019, 8, 31});
    Diener("Ben", {2013, 3, 2}, {2018, 5, 17});
    Diener("Cara", {2013, 4, 2}, {2019, 5, 17});
    GeburtstageSuchen(Gruppende::Alle, 3);
    EXPECT_EQ(Gedruckt(EtikettenDerGeburtstage()),
              (Liste{"Ben Berg", "Am Bach 1", "43217 Oberquell", "Anna Berg", "Am Bach 1",
                     "43217 Oberquell"}));
    JubiläenSuchen(7);
    EXPECT_EQ(Gedruckt(EtikettenDerJubiläen()),
              (Liste{"Cara Berg", "Am Bach 1", "43217 Oberquell", "Anna Berg", "Am Bach 1",
                     "43217 Oberquell"}));
}

TEST_F(JubiGebuEtikettenTest, VomGewähltenPlatzAnUndWeiterAufDemNächstenBogen)
{
    for (int i = 0; i < 3; ++i)
        Diener("V" + std::to_string(i), {2010, 3, 1 + i}, {2019, 8, 31});
    GeburtstageSuchen(Gruppende::Alle, 3);
    platz = {2, 1};
    Gedruckt(EtikettenDerGeburtstage());
    EXPECT_EQ(Papier.WieOft("NewPage"), 1);
    EXPECT_EQ(platz.Reihe, 1);
    EXPECT_EQ(platz.Spalte, 2);
}

TEST_F(JubiGebuEtikettenTest, OhneLeuteIstEsEinLeeresEtikett)
{
    GeburtstageSuchen(Gruppende::Alle, 3);
    EXPECT_EQ(Gedruckt(EtikettenDerGeburtstage()), (Liste{" ", "", ""}));
    JubiläenSuchen(3);
    EXPECT_EQ(Gedruckt(EtikettenDerJubiläen()), (Liste{" ", "", ""}));
}

} // namespace
} // namespace altardienst
