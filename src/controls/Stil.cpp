// How the controls of all windows are drawn.
#include "controls/Stil.h"

#include "controls/Feldmarke.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QStyleOptionButton>
#include <QToolButton>

#include <algorithm>
#include <cstdlib>

namespace altardienst {
namespace {

// Colours 10 and 7 of the standard palette of 16.
constexpr QColor Hellgrün(0x00, 0xff, 0x00);
constexpr QColor Hellgrau(0xc0, 0xc0, 0xc0);

/// The colours of a command button and the width of its border in pixels.
struct Knopffarben {
    QColor Fläche;
    QColor Rand;
    QColor Schrift;
    int Randbreite = 1;
};

Knopffarben FarbenFür(QStyle::State zustand)
{
    if (!(zustand & QStyle::State_Enabled))
        return {QColor(0xd8, 0xd8, 0xd8), QColor(0xb0, 0xb0, 0xb0), QColor(0x7a, 0x7a, 0x7a)};
    const QColor fläche = zustand & QStyle::State_HasFocus ? Hellgrün : Hellgrau;
    if (zustand & QStyle::State_Sunken)
        return {fläche, QColor(0x60, 0x60, 0x60), Qt::black, 2};
    return {fläche, QColor(0x80, 0x80, 0x80), Qt::black};
}

void FlächeZeichnen(QPainter &stift, const QRect &platz, const Knopffarben &farben)
{
    constexpr qreal Rundung = 3.5;
    const qreal rand = farben.Randbreite;
    stift.save();
    stift.setRenderHint(QPainter::Antialiasing);
    stift.setPen(Qt::NoPen); // two areas are drawn much faster than an area and a line around it
    stift.setBrush(farben.Rand);
    stift.drawRoundedRect(platz, Rundung, Rundung);
    stift.setBrush(farben.Fläche);
    stift.drawRoundedRect(QRectF(platz).adjusted(rand, rand, -rand, -rand), Rundung - rand,
                          Rundung - rand);
    stift.restore();
}

bool IstDunkel(const QColor &grund)
{
    return grund.lightness() < 128;
}

/// How a colour that lets the ground shine through looks on it.
QColor Deckend(const QColor &farbe, const QColor &grund)
{
    const auto teil = [a = farbe.alpha()](int oben, int unten) {
        return (oben * a + unten * (255 - a)) / 255;
    };
    return {teil(farbe.red(), grund.red()), teil(farbe.green(), grund.green()),
            teil(farbe.blue(), grund.blue())};
}

/// Where the text of a box ends: before the button inside it, if it has one.
int Textende(const QWidget *feld, const QRect &platz)
{
    const auto *knopf = feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    return knopf && knopf->isVisible() ? knopf->x() : platz.right() - 1;
}

/// A frame within that of the focus, and an exclamation mark in a circle: colour alone does not
/// tell everyone, and the red must hold on a light and on a dark ground.
void MarkeZeichnen(QPainter &stift, const QStyleOption &option, const QWidget *feld)
{
    const QColor grund = option.palette.color(QPalette::Base);
    const QColor rot = IstDunkel(grund) ? QColor(0xff, 0x8a, 0x80) : QColor(0xc6, 0x18, 0x18);
    const QRect rahmen = option.rect.adjusted(2, 2, -3, -3);
    const qreal maß = std::min(13, rahmen.height() - 3);
    QRectF kreis(0, 0, maß, maß);
    kreis.moveCenter(
        QPointF(Textende(feld, rahmen) - maß / 2 - 1, QRectF(option.rect).center().y()));
    stift.save();
    stift.setPen(rot);
    stift.setBrush(Qt::NoBrush);
    stift.drawRect(rahmen);
    stift.setRenderHint(QPainter::Antialiasing);
    stift.setPen(Qt::NoPen);
    stift.setBrush(rot);
    stift.drawEllipse(kreis);
    stift.setBrush(grund);
    const qreal breite = maß / 6;
    const qreal x = kreis.center().x() - breite / 2;
    stift.drawRect(QRectF(x, kreis.top() + maß * 0.18, breite, maß * 0.4));
    stift.drawRect(QRectF(x, kreis.top() + maß * 0.68, breite, breite));
    stift.restore();
}

/// An empty list has no line that could show the focus, and a page to read has no cursor.
bool IstRollbar(const QWidget *control)
{
    return qobject_cast<const QAbstractScrollArea *>(control) != nullptr;
}

/// Green that holds on a light and on a dark ground.
void RahmenZeichnen(QPainter &stift, const QStyleOption &option)
{
    const bool dunkel = IstDunkel(option.palette.color(QPalette::Window));
    stift.setPen(dunkel ? QColor(0x40, 0xd0, 0x40) : QColor(0x00, 0x80, 0x00));
    stift.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

} // namespace

void Stil::polish(QWidget *control)
{
    QProxyStyle::polish(control);
    if (IstRollbar(control))
        control->installEventFilter(this);
}

/// What is chosen is seen while the keyboard is elsewhere, too; what is grey can be read.
void Stil::polish(QPalette &farben)
{
    QProxyStyle::polish(farben);
    for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
        farben.setBrush(QPalette::Inactive, rolle, farben.brush(QPalette::Active, rolle));
    constexpr int Deutlich = 55; // of 255
    for (const auto gruppe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor grund = farben.color(gruppe, QPalette::Base);
        const QColor grau = Deckend(farben.color(gruppe, QPalette::PlaceholderText), grund);
        if (std::abs(qGray(grau.rgb()) - qGray(grund.rgb())) >= Deutlich)
            continue;
        QColor halb = farben.color(gruppe, QPalette::Text);
        halb.setAlpha(0x80);
        farben.setColor(gruppe, QPalette::PlaceholderText, halb);
    }
}

void Stil::unpolish(QWidget *control)
{
    if (IstRollbar(control))
        control->removeEventFilter(this);
    QProxyStyle::unpolish(control);
}

bool Stil::eventFilter(QObject *control, QEvent *ereignis)
{
    if (ereignis->type() == QEvent::FocusIn || ereignis->type() == QEvent::FocusOut)
        static_cast<QWidget *>(control)->update(); // its frame, too
    return QProxyStyle::eventFilter(control, ereignis);
}

void Stil::drawControl(ControlElement element, const QStyleOption *option, QPainter *stift,
                       const QWidget *control) const
{
    const auto *knopf = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element != CE_PushButton || !knopf) {
        QProxyStyle::drawControl(element, option, stift, control);
        if (element == CE_ShapedFrame && option->state & State_HasFocus && IstRollbar(control))
            RahmenZeichnen(*stift, *option);
        return;
    }
    const Knopffarben farben = FarbenFür(knopf->state);
    FlächeZeichnen(*stift, knopf->rect, farben);
    QStyleOptionButton beschriftung = *knopf;
    beschriftung.palette.setColor(QPalette::ButtonText, farben.Schrift);
    QProxyStyle::drawControl(CE_PushButtonLabel, &beschriftung, stift, control);
}

void Stil::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *stift,
                         const QWidget *control) const
{
    QProxyStyle::drawPrimitive(element, option, stift, control);
    if (element == PE_PanelLineEdit && control && IstMarkiert(control))
        MarkeZeichnen(*stift, *option, control);
    // Controls made up of others, which have no look of their own.
    if (element == PE_Widget && option->state & State_HasFocus)
        RahmenZeichnen(*stift, *option);
}

QSize Stil::sizeFromContents(ContentsType art, const QStyleOption *option, const QSize &inhalt,
                             const QWidget *control) const
{
    constexpr QSize Rand(26, 10); // left and right, above and below together
    return art == CT_PushButton ? inhalt + Rand
                                : QProxyStyle::sizeFromContents(art, option, inhalt, control);
}

int Stil::styleHint(StyleHint was, const QStyleOption *option, const QWidget *control,
                    QStyleHintReturn *mehr) const
{
    return was == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(was, option, control, mehr);
}

} // namespace altardienst
