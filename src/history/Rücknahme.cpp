// Undo and redo at the screen.
#include "history/Rücknahme.h"

#include "application/Fangnetz.h"
#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "controls/Handler.h"
#include "history/Rückgängig.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <cstdint>
#include <utility>

namespace altardienst {
namespace {

constexpr auto Zurück = Qt::CTRL | Qt::Key_Z;
constexpr auto Vor = Qt::CTRL | Qt::Key_Y;

bool IstEingabe(QEvent::Type art)
{
    return art == QEvent::KeyPress || art == QEvent::MouseButtonPress ||
           art == QEvent::MouseButtonRelease || art == QEvent::Wheel || art == QEvent::Shortcut;
}

/// Typing has an undo of its own.
bool HatEigenes(const QObject *empfänger, bool zurück)
{
    const auto *feld = qobject_cast<const QLineEdit *>(empfänger);
    return feld && (zurück ? feld->isUndoAvailable() : feld->isRedoAvailable());
}

class Mitschreiber : public QObject {
  public:
    Mitschreiber(QObject *eigner, const std::function<void()> &zeigen) : QObject(eigner)
    {
        jetziger = this;
        SchritteGeändert = zeigen;
        TabellenUnberührt = [this] { return gesehen == Fangnetz::Ereignisse() && !Daneben(); };
        qApp->installEventFilter(this);
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                Nebenbei([this] { Hinsehen(); }));
        gesehen = Fangnetz::Ereignisse();
        SchritteBeginnen();
    }

    ~Mitschreiber() override
    {
        if (std::exchange(jetziger, jetziger == this ? nullptr : jetziger) != this)
            return;
        SchritteGeändert = [] {};
        TabellenUnberührt = [] { return false; };
        SchritteBeenden();
    }

    bool eventFilter(QObject *empfänger, QEvent *ereignis) override
    {
        if (IstEingabe(ereignis->type()))
            Nebenbei([this] { Hinsehen(); })();
        return ereignis->type() == QEvent::KeyPress &&
               Taste(empfänger, *static_cast<QKeyEvent *>(ereignis));
    }

  private:
    /// What a form has open may be written before an action of the main window, in the same event.
    static bool Daneben() { return SindMehrereOffen(); }

    void Hinsehen()
    {
        const auto ereignisse = Fangnetz::Ereignisse();
        if (gesehen == ereignisse && !SchrittAusstehend())
            return;
        TabellenBeobachten();
        gesehen = ereignisse;
    }

    bool Taste(const QObject *empfänger, const QKeyEvent &taste) const
    {
        const bool zurück = taste.keyCombination() == Zurück;
        if ((!zurück && taste.keyCombination() != Vor) || HatEigenes(empfänger, zurück) ||
            QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
            !IstNebenfenster(QApplication::activeWindow()))
            return false;
        (zurück ? RückgängigMachen : Wiederholen)();
        return true;
    }

    static Mitschreiber *jetziger; // the program has one main window, tests one after the other

    std::uint64_t gesehen = 0; // events that had ended when the tables were last looked at
};

Mitschreiber *Mitschreiber::jetziger = nullptr;

void Gehen(Text (*schritt)(), const char *was)
{
    HauptfensterHandelt([=] {
        if (const Text name = schritt(); !name.empty())
            Mitteilen(was + name);
    });
}

} // namespace

void SchritteMitschreiben(QObject *eigner, const std::function<void()> &zeigen)
{
    new Mitschreiber(eigner, zeigen);
}

void RückgängigMachen()
{
    Gehen(SchrittZurücknehmen, "rückgängig gemacht: ");
}

void Wiederholen()
{
    Gehen(SchrittWiederholen, "wiederholt: ");
}

} // namespace altardienst
