// The spin button: one control with a down and an up event.
#include "controls/SpinButton.h"

#include "controls/Bausteine.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace altardienst {
namespace {

class Pfeiltasten : public QObject {
  public:
    Pfeiltasten(QLineEdit *feld, Qt::KeyboardModifier mit, std::function<void(int)> schritt)
        : QObject(feld), feld(feld), mit(mit), schritt(std::move(schritt))
    {
        feld->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress || feld->isReadOnly())
            return false;
        const auto *taste = static_cast<QKeyEvent *>(ereignis);
        const bool auf = taste->key() == Qt::Key_Up;
        if ((!auf && taste->key() != Qt::Key_Down) ||
            (taste->modifiers() & ~Qt::KeypadModifier) != Qt::KeyboardModifiers(mit))
            return false;
        schritt(auf ? +1 : -1);
        return true;
    }

  private:
    QLineEdit *feld;
    Qt::KeyboardModifier mit;
    std::function<void(int)> schritt;
};

} // namespace

SpinButton::SpinButton(const char *name, const char *gesprochen)
{
    Benannt(this, name);
    setAccessibleName(QString::fromUtf8(gesprochen));
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_StyledBackground); // the style marks its focus
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    constexpr int Rand = 1;
    constexpr int Knopfbreite = 19;
    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(Rand, Rand, Rand, Rand);
    spalte->setSpacing(0);
    const int zeile = fontMetrics().height() + 10; // as high as a text box
    auto pfeil = [&](const char *kind, Qt::ArrowType richtung, std::function<void()> &handler) {
        auto *knopf = Benannt(new QToolButton, kind);
        knopf->setAccessibleName(kind);
        knopf->setArrowType(richtung);
        knopf->setAutoRepeat(true);
        knopf->setFixedSize(Knopfbreite, zeile / 2 - Rand);
        // The arrows are part of the control, which takes the focus itself when one is pressed.
        knopf->setFocusPolicy(Qt::NoFocus);
        connect(knopf, &QToolButton::clicked, this, [&handler] { handler(); });
        spalte->insertWidget(0, knopf);
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

void PfeiltastenVerbinden(QLineEdit *feld, SpinButton *spin, Qt::KeyboardModifier mit)
{
    PfeiltastenVerbinden(feld, mit, [spin](int richtung) { spin->Drehen(richtung); });
}

void PfeiltastenVerbinden(QLineEdit *feld, Qt::KeyboardModifier mit,
                          std::function<void(int)> schritt)
{
    new Pfeiltasten(feld, mit, std::move(schritt));
}

} // namespace altardienst
