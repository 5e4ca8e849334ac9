// The signs of the findings hold for everyone.
#include "overview/Zeichen.h"

#include "Fensterstand.h"

#include <QImage>

#include <cmath>

namespace altardienst {
namespace {

using PlanzeichenFormTest = Fensterstand;

QPalette Palette(const QColor &grund, const QColor &schrift)
{
    QPalette palette;
    palette.setColor(QPalette::Base, grund);
    palette.setColor(QPalette::Text, schrift);
    return palette;
}

std::array<QPalette, 2> HellUndDunkel()
{
    return {Palette(Qt::white, Qt::black), Palette(QColor(30, 30, 32), QColor(230, 230, 230))};
}

/// By how many times one of two colours is brighter than the other, as the guidelines for readable
/// pages count it.
double Kontrast(const QColor &a, const QColor &b)
{
    const auto helligkeit = [](const QColor &farbe) {
        const auto linear = [](double wert) {
            return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) +
               0.0722 * linear(farbe.blueF());
    };
    const auto [dunkel, hell] = std::minmax({helligkeit(a), helligkeit(b)});
    return (hell + 0.05) / (dunkel + 0.05);
}

/// Where a sign covers its ground, whatever its colour.
QImage Umriß(const QPixmap &bild)
{
    return bild.toImage().convertToFormat(QImage::Format_Alpha8);
}

TEST_F(PlanzeichenFormTest, JedesZeichenHebtSichVomHellenUndVomDunklenGrundAb)
{
    for (const QPalette &palette : HellUndDunkel())
        for (const Stufe stufe : {Stufe::Verstoß, Stufe::Hinweis})
            EXPECT_GE(Kontrast(Stufenfarbe(stufe, palette), palette.color(QPalette::Base)), 4.5);
}

TEST_F(PlanzeichenFormTest, WasZurücktrittIstNochZuLesen)
{
    for (const QPalette &palette : HellUndDunkel()) {
        const QColor grund = palette.color(QPalette::Base);
        EXPECT_GE(Kontrast(Nebenfarbe(palette), grund), 4.5);
        EXPECT_LT(Kontrast(Nebenfarbe(palette), grund),
                  Kontrast(palette.color(QPalette::Text), grund));
    }
}

TEST_F(PlanzeichenFormTest, DieZeichenUnterscheidenSichAuchOhneFarbe)
{
    for (const QPalette &palette : HellUndDunkel())
        for (const int maß : {9, 12, 20}) {
            const QImage verstoß = Umriß(Stufenzeichen(Stufe::Verstoß, palette, maß, 1));
            const QImage hinweis = Umriß(Stufenzeichen(Stufe::Hinweis, palette, maß, 1));
            int verschieden = 0;
            for (int y = 0; y < maß; ++y)
                for (int x = 0; x < maß; ++x)
                    verschieden += std::abs(verstoß.pixelColor(x, y).alpha() -
                                            hinweis.pixelColor(x, y).alpha()) > 128;
            EXPECT_GT(verschieden, maß * maß / 6) << maß;
        }
}

TEST_F(PlanzeichenFormTest, AufFeinenBildschirmenIstEinZeichenFeiner)
{
    const QPixmap bild = Stufenzeichen(Stufe::Verstoß, QPalette(), 12, 2);
    EXPECT_EQ(bild.size(), QSize(24, 24));
    EXPECT_EQ(bild.deviceIndependentSize(), QSizeF(12, 12));
}

} // namespace
} // namespace altardienst
