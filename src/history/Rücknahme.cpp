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
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

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

/// A form that blocks the main window, and which steps are its own.
struct Einzelform {
    QPointer<QWidget> Form;
    Schrittform Handler;
    std::size_t Beginn = 0; // there were so many before
    std::size_t Ende = 0;   // and so many at most since

    // What was on the screen when the record was shown, before anything was typed.
    QString Satz;
    std::size_t Stelle = 0;
    QStringList Schirm;
};

std::vector<Einzelform> einzelformen;

Einzelform *EinzelformIn(const QWidget *fenster)
{
    const auto eine = std::ranges::find(einzelformen, fenster, &Einzelform::Form);
    return eine == einzelformen.end() || !fenster ? nullptr : &*eine;
}

void Merken(Einzelform &eine)
{
    eine.Satz = eine.Handler.Satz();
    eine.Stelle = Schrittstelle();
    eine.Ende = std::max(eine.Ende, eine.Stelle);
    eine.Schirm = Gezeigt::Texte(eine.Form);
}

/// A record is shown anew when another one is chosen and when the tables have changed.
void ObNeuGezeigt(Einzelform &eine)
{
    if (eine.Form->isVisible() && (eine.Schirm.isEmpty() || eine.Satz != eine.Handler.Satz() ||
                                   eine.Stelle != Schrittstelle()))
        Merken(eine);
}

void GehenIn(Einzelform &eine, bool zurück)
{
    if (Gezeigt::Texte(eine.Form) != eine.Schirm)
        eine.Handler.Ablegen();
    TabellenBeobachten();
    eine.Ende = std::max(eine.Ende, Schrittstelle());
    const bool eigener = zurück ? Schrittstelle() > eine.Beginn : Schrittstelle() < eine.Ende;
    if (!eigener)
        return;
    (zurück ? SchrittZurücknehmen : SchrittWiederholen)();
    eine.Handler.Erneuern();
    Merken(eine);
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
        if (Einzelform *eine = EinzelformIn(QApplication::activeWindow()))
            ObNeuGezeigt(*eine);
    }

    bool Taste(const QObject *empfänger, const QKeyEvent &taste) const
    {
        const bool zurück = taste.keyCombination() == Zurück;
        if ((!zurück && taste.keyCombination() != Vor) || HatEigenes(empfänger, zurück) ||
            QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return false;
        const QWidget *fenster = QApplication::activeWindow();
        if (IstNebenfenster(fenster))
            (zurück ? RückgängigMachen : Wiederholen)();
        else if (Einzelform *eine = EinzelformIn(fenster))
            Offen([&] { GehenIn(*eine, zurück); })();
        else
            return false;
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

void SchritteZurückIn(QWidget *form, const Schrittform &handler)
{
    std::erase_if(einzelformen, [](const Einzelform &eine) { return !eine.Form; });
    TabellenBeobachten();
    Einzelform eine;
    eine.Form = form;
    eine.Handler = {handler.Satz, handler.Ablegen, Abgefangen(handler.Erneuern)};
    eine.Beginn = eine.Ende = Schrittstelle();
    einzelformen.push_back(std::move(eine));
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
