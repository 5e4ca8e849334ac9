// The picture behind the main window.
#include "settings/Hintergrundbild.h"

#include "controls/Bausteine.h"

#include <QEvent>
#include <QFileInfo>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace altardienst {
namespace {

constexpr QSize EingebauteGröße(720, 520);

void KerzeZeichnen(QPainter &stift, int x, int fuß)
{
    stift.drawRect(x - 6, fuß - 70, 12, 70);
    stift.drawRect(x - 16, fuß, 32, 6);
    QPainterPath flamme(QPointF(x, fuß - 100));
    flamme.cubicTo(x + 12, fuß - 84, x + 8, fuß - 74, x, fuß - 72);
    flamme.cubicTo(x - 8, fuß - 74, x - 12, fuß - 84, x, fuß - 100);
    stift.drawPath(flamme);
}

/// A village church on a hill between two candles, drawn in one ink, at its own size.
void KircheZeichnen(QPainter &stift, const QColor &tinte)
{
    stift.setPen(QPen(tinte, 3));

    QPainterPath hügel(QPointF(0, 470));
    hügel.cubicTo(180, 400, 540, 400, 720, 470);
    stift.drawPath(hügel);

    const QPolygon helm({{200, 190}, {245, 70}, {290, 190}});
    stift.drawPolygon(helm);
    stift.drawLine(245, 70, 245, 28); // the cross on the spire
    stift.drawLine(230, 42, 260, 42);
    stift.drawRect(205, 190, 80, 235);
    stift.drawEllipse(QPoint(245, 232), 22, 22);
    stift.drawLine(245, 232, 245, 216);
    stift.drawLine(245, 232, 256, 238);
    stift.drawRect(285, 290, 250, 128);
    stift.drawPolygon(QPolygon({{285, 290}, {315, 210}, {505, 210}, {535, 290}}));
    stift.setPen(QPen(tinte, 1));
    for (int y = 218; y < 290; y += 8) { // rows of slates, as wide as the roof is there
        const int einzug = (290 - y) * 30 / 80;
        stift.drawLine(285 + einzug, y, 535 - einzug, y);
    }
    stift.setPen(QPen(tinte, 3));
    stift.setBrush(tinte);
    for (int x : {310, 368, 426, 484}) {
        QPainterPath fenster(QPointF(x, 392));
        fenster.lineTo(x, 340);
        fenster.arcTo(QRectF(x, 324, 30, 32), 180, -180);
        fenster.lineTo(x + 30, 392);
        fenster.closeSubpath();
        stift.drawPath(fenster);
    }
    QPainterPath tür(QPointF(228, 424));
    tür.lineTo(228, 372);
    tür.arcTo(QRectF(228, 352, 34, 40), 180, -180);
    tür.lineTo(262, 424);
    tür.closeSubpath();
    stift.drawPath(tür);

    stift.setBrush(Qt::NoBrush);
    KerzeZeichnen(stift, 110, 400);
    KerzeZeichnen(stift, 620, 400);
}

/// The built-in picture in the colours of the theme, of that many screen pixels. At its own size it
/// needs no shades between the two colours.
QPixmap EingebautesBild(const QSize &punkte, const QPalette &farben)
{
    QPixmap bild(punkte);
    bild.fill(farben.color(QPalette::Base));
    QPainter stift(&bild);
    stift.setRenderHint(QPainter::Antialiasing, punkte != EingebauteGröße);
    stift.scale(punkte.width() / qreal(EingebauteGröße.width()),
                punkte.height() / qreal(EingebauteGröße.height()));
    KircheZeichnen(stift, farben.color(QPalette::Text));
    return bild;
}

} // namespace

Hintergrundbild::Hintergrundbild(const char *name)
{
    Benannt(this, name);
    setAccessibleName("Hintergrundbild");
    setMinimumSize(200, 150);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Hintergrundbild::Zeigen(const Text &pfad)
{
    if (pfad.empty()) {
        if (!gezeigterPfad.empty())
            BildSetzen(QPixmap());
        gezeigterPfad.clear();
        return;
    }
    const QFileInfo datei(Anzeige(pfad));
    if (!datei.isFile() || (pfad == gezeigterPfad && datei.lastModified() == gezeigterStand &&
                            datei.size() == gezeigteGröße))
        return;
    gezeigterPfad = pfad;
    gezeigterStand = datei.lastModified();
    gezeigteGröße = datei.size();
    ++dekodiert;
    QPixmap neu(Anzeige(pfad));
    if (!neu.isNull())
        BildSetzen(neu);
}

void Hintergrundbild::BildSetzen(const QPixmap &neu)
{
    bild = neu;
    passend = QPixmap();
    update();
}

void Hintergrundbild::changeEvent(QEvent *ereignis)
{
    if (ereignis->type() == QEvent::PaletteChange)
        passend = QPixmap(); // drawn again in the colours of the theme
    QWidget::changeEvent(ereignis);
}

void Hintergrundbild::paintEvent(QPaintEvent *)
{
    const QSize größe = bild.isNull() ? EingebauteGröße : bild.size();
    const QSize platz = größe.scaled(size(), Qt::KeepAspectRatio);
    const QSize punkte = platz * devicePixelRatioF();
    if (passend.size() != punkte) {
        passend = bild.isNull()
                      ? EingebautesBild(punkte, palette())
                      : bild.scaled(punkte, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        passend.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter stift(this);
    stift.drawPixmap((width() - platz.width()) / 2, (height() - platz.height()) / 2, passend);
}

} // namespace altardienst
