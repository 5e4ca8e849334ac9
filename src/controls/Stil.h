// How the controls of all windows are drawn.
#pragma once

#include <QProxyStyle>

namespace altardienst {

/// The platform's own style, but for command buttons, which are light green with the focus and
/// light grey without, and a frame around a spin button with the focus. A style sheet would say the
/// same, and every window would take twice as long to open.
class Stil : public QProxyStyle {
  public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *stift,
                     const QWidget *control) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *stift,
                       const QWidget *control) const override;
    QSize sizeFromContents(ContentsType art, const QStyleOption *option, const QSize &inhalt,
                           const QWidget *control) const override;
};

} // namespace altardienst
