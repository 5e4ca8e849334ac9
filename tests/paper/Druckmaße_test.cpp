// What a report can measure before it prints, and the lines it draws.
#include "paper/Druckziel.h"

#include <QFile>

namespace altardienst {
namespace {

class DruckmaßeTest : public DruckzielTest {
  protected:
    void Beginnen()
    {
        drucker.Dialog({});
        drucker.FontName("Liberation Sans");
        drucker.FontSizeFein(12);
    }
};

TEST_F(DruckmaßeTest, EinTextIstAufDemPapierSoBreitWieGemessen)
{
    Beginnen();
    const double breite = static_cast<double>(drucker.TextWidth("Überlänge")) / 20; // points
    const double höhe = static_cast<double>(drucker.TextHeight()) / 20;
    drucker.CurrentX(1000);
    drucker.CurrentY(1000);
    drucker.Print("Überlänge");
    EXPECT_NEAR(static_cast<double>(drucker.CurrentY()), 1000 + höhe * 20, 1);
    drucker.EndDoc();
    const PdfWort wort = PdfLesen(datei).Wort("Überlänge");
    EXPECT_NEAR(wort.Rechts - wort.Links, breite, 0.3);
    EXPECT_GT(breite, 40);
}

TEST_F(DruckmaßeTest, BruchteileEinesPunktes)
{
    Beginnen();
    drucker.FontSizeFein(7.5F);
    const Single klein = drucker.TextWidth("Wort");
    drucker.FontSizeFein(15);
    EXPECT_NEAR(static_cast<double>(drucker.TextWidth("Wort") / klein), 2, 0.05);
    drucker.FontSize(15);
    const Single ganz = drucker.TextWidth("Wort");
    drucker.FontSizeFein(15);
    EXPECT_EQ(drucker.TextWidth("Wort"), ganz);
    for (const Single punkte : {0.9F, 2161.0F})
        EXPECT_EQ(NummerDesFehlers([&] { drucker.FontSizeFein(punkte); }), 482) << punkte;
}

TEST_F(DruckmaßeTest, MessenDrucktNichts)
{
    Beginnen();
    drucker.TextWidth("Wort");
    drucker.TextHeight();
    drucker.EndDoc();
    EXPECT_FALSE(QFile::exists(datei));
}

TEST_F(DruckmaßeTest, OhneDruckerLässtSichNichtMessen)
{
    EXPECT_EQ(NummerDesFehlers([&] { drucker.TextWidth("Wort"); }), 482);
    EXPECT_EQ(NummerDesFehlers([&] { drucker.TextHeight(); }), 482);
    EXPECT_EQ(NummerDesFehlers([&] { drucker.Line({0, 0, 9, 9, 1}); }), 482);
}

TEST_F(DruckmaßeTest, BreiteUndHöheFolgenDerRichtung)
{
    const Single breite = drucker.Width();
    const Single höhe = drucker.Height();
    EXPECT_LT(breite, höhe);
    drucker.Orientation(DruckerDienst::Querformat);
    EXPECT_EQ(drucker.Width(), höhe);
    EXPECT_EQ(drucker.Height(), breite);
}

TEST_F(DruckmaßeTest, EinStrichLiegtWoErSoll)
{
    constexpr Single Mm = 1440 / 25.4F;
    Beginnen();
    drucker.Line({50 * Mm, 100 * Mm, 150 * Mm, 100 * Mm, 2 * Mm});
    drucker.Line({50 * Mm, 120 * Mm, 150 * Mm, 120 * Mm, 2 * Mm, true});
    drucker.EndDoc();
    const QImage bild = PdfBild(datei); // 4 pixels per millimetre
    const auto dunkel = [&](int x, int y) { return qGray(bild.pixel(x * 4, y * 4)) < 100; };
    EXPECT_TRUE(dunkel(52, 100) && dunkel(100, 100) && dunkel(148, 100));
    EXPECT_FALSE(dunkel(48, 100) || dunkel(152, 100) || dunkel(100, 104));
    int helle = 0;
    int dunkle = 0;
    for (int x = 51; x < 149; ++x)
        ++(dunkel(x, 120) ? dunkle : helle);
    EXPECT_GT(helle, 10) << "dashed";
    EXPECT_GT(dunkle, 10);
}

} // namespace
} // namespace altardienst
