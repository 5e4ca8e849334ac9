// The signs of the findings.
#include "overview/Zeichen.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

#include <functional>

namespace altardienst {
namespace {

constexpr QColor OrangeAufHell(0xb4, 0x53, 0x09);
constexpr QColor OrangeAufDunkel(0xff, 0xb3, 0x66);
constexpr QColor BlauAufHell(0x1d, 0x5f, 0xa8);
constexpr QColor BlauAufDunkel(0x8a, 0xc4, 0xff);

bool IstDunkel(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor Gemischt(const QColor &a, const QColor &b, qreal anteil)
{
    return QColor::fromRgbF(static_cast<float>(a.redF() * anteil + b.redF() * (1 - anteil)),
                            static_cast<float>(a.greenF() * anteil + b.greenF() * (1 - anteil)),
                            static_cast<float>(a.blueF() * anteil + b.blueF() * (1 - anteil)));
}

/// Draws on a square of 12 units; each picture is drawn once.
QPixmap Bild(const QString &name, const QColor &farbe, int maß, qreal punktdichte,
             const std::function<void(QPainter &)> &zeichnen)
{
    const QString schlüssel =
        QString("%1 %2 %3 %4").arg(name, farbe.name()).arg(maß).arg(punktdichte);
    QPixmap bild;
    if (QPixmapCache::find(schlüssel, &bild))
        return bild;
    bild = QPixmap(QSizeF(maß * punktdichte, maß * punktdichte).toSize());
    bild.setDevicePixelRatio(punktdichte);
    bild.fill(Qt::transparent);
    QPainter stift(&bild);
    stift.setRenderHint(QPainter::Antialiasing);
    constexpr qreal Einheiten = 12;
    stift.scale(maß / Einheiten, maß / Einheiten);
    zeichnen(stift);
    stift.end();
    QPixmapCache::insert(schlüssel, bild);
    return bild;
}

void Dreieck(QPainter &stift, const QColor &farbe)
{
    QPainterPath form;
    form.moveTo(6, 1.4);
    form.lineTo(11.2, 10.6);
    form.lineTo(0.8, 10.6);
    form.closeSubpath();
    QPainterPath ausruf;
    ausruf.addRect(QRectF(5.4, 4.4, 1.2, 3.2));
    ausruf.addRect(QRectF(5.4, 8.3, 1.2, 1.2));
    stift.setPen(QPen(farbe, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    stift.setBrush(farbe);
    stift.drawPath(form);
    stift.setPen(Qt::NoPen);
    stift.setCompositionMode(QPainter::CompositionMode_Clear); // whatever ground it stands on
    stift.drawPath(ausruf);
}

void Ring(QPainter &stift, const QColor &farbe)
{
    stift.setPen(QPen(farbe, 1.3));
    stift.setBrush(Qt::NoBrush);
    stift.drawEllipse(QPointF(6, 6), 4.3, 4.3);
    stift.setPen(Qt::NoPen);
    stift.setBrush(farbe);
    stift.drawEllipse(QPointF(6, 6), 1.5, 1.5);
}

void Nadel(QPainter &stift, const QColor &farbe)
{
    stift.setPen(Qt::NoPen);
    stift.setBrush(farbe);
    stift.drawEllipse(QPointF(6, 4), 2.6, 2.6);
    stift.setPen(QPen(farbe, 1.3, Qt::SolidLine, Qt::RoundCap));
    stift.drawLine(QPointF(6, 6), QPointF(6, 11));
}

} // namespace

QColor Stufenfarbe(Stufe stufe, const QPalette &palette)
{
    if (stufe == Stufe::Verstoß)
        return IstDunkel(palette) ? OrangeAufDunkel : OrangeAufHell;
    return IstDunkel(palette) ? BlauAufDunkel : BlauAufHell;
}

QPixmap Stufenzeichen(Stufe stufe, const QPalette &palette, int maß, qreal punktdichte)
{
    const QColor farbe = Stufenfarbe(stufe, palette);
    if (stufe == Stufe::Verstoß)
        return Bild("Verstoß", farbe, maß, punktdichte,
                    [&](QPainter &stift) { Dreieck(stift, farbe); });
    return Bild("Hinweis", farbe, maß, punktdichte, [&](QPainter &stift) { Ring(stift, farbe); });
}

QPixmap Nadelzeichen(const QPalette &palette, int maß, qreal punktdichte)
{
    const QColor farbe = Nebenfarbe(palette);
    return Bild("Nadel", farbe, maß, punktdichte, [&](QPainter &stift) { Nadel(stift, farbe); });
}

QColor Nebenfarbe(const QPalette &palette)
{
    return Gemischt(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.62);
}

QColor Linienfarbe(const QPalette &palette)
{
    return Gemischt(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.12);
}

} // namespace altardienst
