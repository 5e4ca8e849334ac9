// The spin button: one control with a down and an up event.
#include "controls/SpinButton.h"

#include "controls/Bausteine.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

namespace altardienst {

SpinButton::SpinButton(const char *name, const char *gesprochen)
{
    Benannt(this, name);
    setAccessibleName(QString::fromUtf8(gesprochen));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_StyledBackground); // the style marks its focus
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(2, 2, 2, 2);
    reihe->setSpacing(1);
    auto pfeil = [&](const char *kind, Qt::ArrowType richtung, std::function<void()> &handler) {
        auto *knopf = Benannt(new QToolButton, kind);
        knopf->setAccessibleName(kind);
        knopf->setArrowType(richtung);
        knopf->setAutoRepeat(true);
        // The arrows are part of the control, which takes the focus itself when one is pressed.
        knopf->setFocusPolicy(Qt::NoFocus);
        connect(knopf, &QToolButton::clicked, this, [&handler] { handler(); });
        reihe->addWidget(knopf);
    };
    pfeil("ab", Qt::DownArrow, ab);
    pfeil("auf", Qt::UpArrow, auf);
}

void SpinButton::keyPressEvent(QKeyEvent *taste)
{
    if (taste->key() == Qt::Key_Down)
        ab();
    else if (taste->key() == Qt::Key_Up)
        auf();
    else
        QWidget::keyPressEvent(taste);
}

} // namespace altardienst
