// How the controls of all windows are drawn.
#pragma once

#include <QProxyStyle>

namespace altardienst {

/// One look on every system, which is that of the handbook and the one that the windows are
/// measured in: the toolkit's own style, except that command buttons are light green with the focus
/// and light grey without it, that a spin button, a list or a page with the focus has a frame, and
/// that a marked box has a red one and a sign; that what is chosen keeps its colour while the
/// keyboard is elsewhere, for which Windows has a grey that is hardly seen; that the buttons of
/// messages have no pictures, which would not read well on the green. A style sheet could do the
/// same, but every window would take twice as long to open.
class Stil : public QProxyStyle {
  public:
    Stil() : QProxyStyle("fusion") {}

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    /// Some desktops hand over a dark palette without a colour for what is grey.
    void polish(QPalette &farben) override;
    void polish(QWidget *control) override;
    void unpolish(QWidget *control) override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *stift,
                     const QWidget *control) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *stift,
                       const QWidget *control) const override;
    QSize sizeFromContents(ContentsType art, const QStyleOption *option, const QSize &inhalt,
                           const QWidget *control) const override;
    int styleHint(StyleHint was, const QStyleOption *option, const QWidget *control,
                  QStyleHintReturn *mehr) const override;

  protected:
    bool eventFilter(QObject *control, QEvent *ereignis) override;
};

} // namespace altardienst
