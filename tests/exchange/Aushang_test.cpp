// The wall sheet, operation by operation.
#include "exchange/Aushang.h"

#include "exchange/Aushangstand.h"
#include "platform/Lebenszeichen.h"

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

class AushangTest : public Druckstand {
  protected:
    AushangTest()
    {
        Papier.Seitenhöhe = 11906;
        Papier.Seitenbreite = 16838;
    }

    bool Gedruckt(const Text &text) const { return Papier.WieOft("Print \"" + text + "\"") > 0; }
    /// Of the table.
    double Schriftgröße() const
    {
        double größe = 0;
        for (const Text &zeile : Papier.Zeilen) {
            if (zeile.starts_with("FontSizeFein "))
                größe = std::stod(zeile.substr(13));
            if (zeile == "Print \"Hochamt\"")
                return größe;
        }
        return 0;
    }
    int Striche() const
    {
        return static_cast<int>(std::ranges::count_if(
            Papier.Zeilen, [](const Text &zeile) { return zeile.starts_with("Line "); }));
    }
};

TEST_F(AushangTest, EinBlattQuerUndDanachWiederHoch)
{
    VolleMesse(2);
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_EQ(Papier.Zeilen.at(0), "Dialog");
    EXPECT_EQ(Papier.Zeilen.at(1), "Orientation 2");
    EXPECT_EQ(Papier.Zeilen.at(2), "FontName Liberation Sans");
    EXPECT_EQ(Papier.Zeilen.back(), "Orientation 1");
    EXPECT_EQ(Papier.Zeilen.at(Papier.Zeilen.size() - 2), "EndDoc");
    EXPECT_EQ(Papier.WieOft("NewPage"), 0);
    EXPECT_EQ(Papier.Anfrage.Name, "Aushang");
    EXPECT_EQ(Papier.Anfrage.ErsteForm, "ganze Namen");
    EXPECT_EQ(Papier.Anfrage.ZweiteForm, "Vorname und erster Buchstabe");
}

/// To the last stroke.
TEST_F(AushangTest, DasGanzeBlatt)
{
    VolleMesse(2);
    Messe.Leuchter[VolleMesse(3, "Andacht mit Prozession")] = 2;
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_EQ(Blatt(Papier),
              (std::vector<Text>{"567 567, 16 Bold: \"Altardienst der Pfarrei St. Ägid\"",
                                 "13271 639, 12: \"22.11.2026 bis 23.11.2026\"",
                                 "6695.7998 1367, 20 Bold: \"Leuchter\"",
                                 "11553.4004 1367, 20 Bold: \"Allgemein\"",
                                 "Line 567 2107 16271 2107",
                                 "707 2367, 20 Bold: \"So 22.11.\"",
                                 "2787 2367, 20: \"10:00\"",
                                 "4067 2367, 20: \"Hochamt\"",
                                 "11553.4004 2367, 20: \"Vor1 Nach1\"",
                                 "13982.2002 2367, 20: \"Vor2 Nach2\"",
                                 "Line 567 3107 16271 3107",
                                 "707 3367, 20 Bold: \"Mo 23.11.\"",
                                 "2787 3367, 20: \"10:00\"",
                                 "4067 3367, 20: \"Andacht mit\"",
                                 "4067 3847, 20: \"Prozession\"",
                                 "6695.7998 3367, 20: \"Vor1 Nach1\"",
                                 "9124.59961 3367, 20: \"Vor2 Nach2\"",
                                 "11553.4004 3367, 20: \"Vor3 Nach3\"",
                                 "Line 567 1107 16271 1107",
                                 "Line 567 4587 16271 4587",
                                 "Line 567 1107 567 4587",
                                 "Line 16271 1107 16271 4587",
                                 "Line 6555.7998 1107 6555.7998 4587",
                                 "Line 11413.4004 1107 11413.4004 4587"}));
}

TEST_F(AushangTest, DieSucheNachDerSchriftKommtNachDerFrageUnterDemWartezeiger)
{
    VolleMesse(2);
    std::vector<std::size_t> zuvor; // how much was said to the printer
    VorLangemSchritt = [&] { zuvor.push_back(Papier.Zeilen.size()); };
    AushangDrucken();
    VorLangemSchritt = [] {};
    ASSERT_EQ(zuvor.size(), 1U);
    EXPECT_GT(zuvor[0], 0U);
    EXPECT_EQ(Papier.Zeilen.at(0), "Dialog");
    EXPECT_EQ(std::ranges::count(Papier.Zeilen.begin(),
                                 Papier.Zeilen.begin() + static_cast<std::ptrdiff_t>(zuvor[0]),
                                 Text("Print \"Hochamt\"")),
              0);
}

TEST_F(AushangTest, TitelKöpfeMessenUndNamen)
{
    VolleMesse(2);
    AushangDrucken();
    for (const char *text : {"Altardienst der Pfarrei St. Ägid", "22.11.2026", "Allgemein",
                             "So 22.11.", "10:00", "Hochamt", "Vor1 Nach1", "Vor2 Nach2"})
        EXPECT_TRUE(Gedruckt(text)) << text;
}

TEST_F(AushangTest, DieZweiteAusführungKürztDieNachnamen)
{
    Papier.Antwort = DruckerDienst::ZweiteForm;
    VolleMesse(1);
    EXPECT_EQ(AushangDrucken(), "") << "that was wanted";
    EXPECT_TRUE(Gedruckt("Vor1 N."));
    EXPECT_FALSE(Gedruckt("Vor1 Nach1"));
}

TEST_F(AushangTest, EinFreierPlatzHatEineLinie)
{
    VolleMesse(1);
    AushangDrucken();
    const int voll = Striche();
    Leeren(Messe, Dienerplatznr(0, 1));
    Papier.Leeren();
    AushangDrucken();
    EXPECT_EQ(Striche(), voll + 1);
}

TEST_F(AushangTest, ReichtDasBlattNichtWerdenNamenGekürzt)
{
    for (int i = 0; i < 40; ++i) {
        VolleMesse(4);
        for (int slot = 1; slot <= 4; ++slot)
            Besetzen(Messe, Dienerplatznr(i, slot), "Anna" + std::to_string(slot),
                     "Freifrau von und zu Sehrlangenhausen-Obermettenbach");
    }
    EXPECT_EQ(AushangDrucken(),
              "Aushang: Nachnamen gekürzt, sonst wäre die Schrift kleiner als 7 Punkt");
    EXPECT_TRUE(Gedruckt("Anna4 F."));
    EXPECT_EQ(Papier.WieOft("NewPage"), 0);
}

TEST_F(AushangTest, ReichtAuchDasNichtKommenBlätterUndNichtsFehlt)
{
    for (int i = 0; i < 300; ++i)
        VolleMesse(6);
    const Text satz = AushangDrucken();
    const int blätter = Papier.WieOft("NewPage") + 1;
    EXPECT_GT(blätter, 1);
    EXPECT_EQ(satz, "Aushang auf " + std::to_string(blätter) +
                        " Blättern, sonst wäre die Schrift kleiner als 7 Punkt");
    for (int slot = 1; slot <= 6; ++slot)
        EXPECT_EQ(Papier.WieOft("Print \"Vor" + std::to_string(slot) + " Nach" +
                                std::to_string(slot) + "\""),
                  300);
    EXPECT_TRUE(Gedruckt("22.11.2026 bis 17.09.2027, Blatt 1 von " + std::to_string(blätter)));
}

TEST_F(AushangTest, KurzeNamenUndMehrereBlätterWoEsAndersNichtGeht)
{
    for (int i = 0; i < 300; ++i) {
        VolleMesse(6);
        Besetzen(Messe, Dienerplatznr(i, 1), "Anna", Text(250, 'x'));
    }
    const Text satz = AushangDrucken();
    const int blätter = Papier.WieOft("NewPage") + 1;
    EXPECT_GT(blätter, 1);
    EXPECT_EQ(satz, "Aushang mit gekürzten Nachnamen auf " + std::to_string(blätter) +
                        " Blättern, sonst wäre die Schrift kleiner als 7 Punkt");
    EXPECT_EQ(Papier.WieOft("Print \"Anna x.\""), 300);
}

/// Where a column for each rare service has no room, one for all of them may.
TEST_F(AushangTest, GanzeNamenInDerSpalteDerSeltenenDienste)
{
    const std::array dienste = {&Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau,
                                &Messe.Weihrauch, &Messe.Kreuzträger};
    const Text name = "Freifrau von und zu Sehrlangenhausen-Obermettenbach an der Niederen Ache";
    for (int i = 0; i < 20; ++i) {
        VolleMesse(1);
        Besetzen(Messe, Dienerplatznr(i, 1), "Anna", name);
        if (i < 5)
            (*dienste.at(static_cast<std::size_t>(i)))[i] = 1;
        else
            Messe.Allgemein[i] = 1;
    }
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_TRUE(Gedruckt("Anna " + name));
    EXPECT_TRUE(Gedruckt("Anna " + name + " (Flambeau)"));
}

TEST_F(AushangTest, EinEndloserTextMachtDieSchriftKleinUndSagtEs)
{
    VolleMesse(1);
    Messe.Messeart[0] = Text(300, 'x');
    EXPECT_EQ(AushangDrucken(),
              "Aushang: Schrift kleiner als 7 Punkt, weil ein Text sehr lang ist");
    EXPECT_TRUE(Gedruckt(Text(300, 'x')));
}

TEST_F(AushangTest, EinFestUnterVielenMessenMachtDieSchriftNichtKlein)
{
    for (int i = 0; i < 26; ++i)
        Messe.Leuchter[VolleMesse(4)] = 2;
    AushangDrucken();
    const double gewöhnlich = Schriftgröße();
    Papier.Leeren();
    const int fest = VolleMesse(17);
    Messe.Gabenbereitung[fest] = 2;
    Messe.Leuchter[fest] = 2;
    Messe.Flambeau[fest] = 8;
    Messe.Weihrauch[fest] = 2;
    Messe.Kreuzträger[fest] = 1;
    Messe.LektorZahl[fest] = 2;
    Messe.KommZahl[fest] = 2;
    Messe.KantorZahl[fest] = 1;
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_TRUE(Gedruckt("weitere Dienste"));
    EXPECT_TRUE(Gedruckt("Vor5 Nach5 (Flambeau)"));
    EXPECT_GT(Schriftgröße(), 0.7 * gewöhnlich);
}

TEST_F(AushangTest, OhneMessenKeinDialog)
{
    EXPECT_EQ(AushangDrucken(), "kein Aushang: es gibt keine Messen");
    EXPECT_TRUE(Papier.Zeilen.empty());
}

TEST_F(AushangTest, AbgebrochenUndGescheitertSagtNichts)
{
    VolleMesse(1);
    Papier.Antwort.reset();
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_EQ(Papier.Zeilen, std::vector<Text>{"Dialog"});
    Papier.Antwort = 0;
    Papier.Leeren();
    Papier.FehlerBei = 30;
    EXPECT_EQ(AushangDrucken(), "");
    EXPECT_EQ(Papier.Zeilen.back(), "Verwerfen");
}

} // namespace
} // namespace altardienst
