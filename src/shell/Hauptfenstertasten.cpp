// Keys of the main window that also work in the windows that stand beside it.
#include "shell/Hauptfenstertasten.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace altardienst {
namespace {

class Nebentaste : public QObject {
  public:
    Nebentaste(QWidget *haupt, const QKeySequence &taste, std::function<void()> aktion)
        : QObject(haupt), haupt(haupt), taste(taste), aktion(std::move(aktion))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress ||
            QKeySequence(static_cast<QKeyEvent *>(ereignis)->keyCombination()) != taste)
            return false;
        const QWidget *vorn = QApplication::activeWindow();
        if (!vorn || vorn == haupt || !haupt->isEnabled() || QApplication::activeModalWidget() ||
            QApplication::activePopupWidget())
            return false;
        aktion();
        return true;
    }

  private:
    QWidget *haupt;
    QKeySequence taste;
    std::function<void()> aktion;
};

} // namespace

void TasteAuchDaneben(QWidget *haupt, const QKeySequence &taste, std::function<void()> aktion)
{
    new Nebentaste(haupt, taste, std::move(aktion));
}

} // namespace altardienst
