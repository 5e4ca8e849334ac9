// Undo and redo at the screen.
#include "history/Rücknahme.h"

#include "application/Anwendung.h"
#include "application/Fangnetz.h"
#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "controls/Handler.h"
#include "history/Rückgängig.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QComboBox>
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

/// While a form blocks the main window, only what was done since is in sight.
struct Blickfeld {
    std::size_t Beginn = 0; // there were so many steps before
    std::size_t Ende = 0;   // and so many at most since

    void Folgen()
    {
        Ende = HauptfensterBereit() ? Schrittstelle() : std::max(Ende, Schrittstelle());
        if (HauptfensterBereit())
            Beginn = Ende;
    }
    bool Erlaubt(bool zurück) const
    {
        return HauptfensterBereit() || (zurück ? Schrittstelle() > Beginn : Schrittstelle() < Ende);
    }
};

Blickfeld blickfeld;

/// The step that was taken back or repeated.
struct Gang {
    Text Name;                      // empty: there was none in sight
    std::function<void()> Abschluß; // empty: nothing is left to do
};

Gang Gegangen(bool zurück)
{
    TabellenBeobachten();
    blickfeld.Folgen();
    Gang gang;
    if (blickfeld.Erlaubt(zurück)) {
        if (BeimGehen)
            gang.Abschluß = BeimGehen();
        gang.Name = zurück ? SchrittZurücknehmen() : SchrittWiederholen();
    }
    blickfeld.Folgen();
    return gang;
}

void Abschließen(const Gang &gang)
{
    if (gang.Abschluß && !gang.Name.empty())
        gang.Abschluß();
}

/// A form that blocks the main window.
struct Einzelform {
    QPointer<QWidget> Form;
    Schrittform Handler;

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
    const Gang gang = Gegangen(zurück);
    if (gang.Name.empty())
        return;
    eine.Handler.Erneuern();
    Merken(eine);
    Abschließen(gang);
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

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (IstEingabe(ereignis->type()))
            Nebenbei([this] { Hinsehen(); })();
        return ereignis->type() == QEvent::KeyPress && Taste(*static_cast<QKeyEvent *>(ereignis));
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
        blickfeld.Folgen();
        if (Einzelform *eine = EinzelformIn(QApplication::activeWindow()))
            ObNeuGezeigt(*eine);
    }

    static bool Taste(const QKeyEvent &taste)
    {
        const bool zurück = taste.keyCombination() == Zurück;
        if ((!zurück && taste.keyCombination() != Vor) || QApplication::activeModalWidget() ||
            QApplication::activePopupWidget())
            return false;
        return ImFeld(FeldMitFokus(), zurück) || ImFenster(QApplication::activeWindow(), zurück);
    }

    static QLineEdit *FeldMitFokus()
    {
        QWidget *fokus = QApplication::focusWidget();
        const auto *liste = qobject_cast<QComboBox *>(fokus);
        return liste ? liste->lineEdit() : qobject_cast<QLineEdit *>(fokus);
    }

    /// Typing has an undo of its own, whose keys differ from desktop to desktop.
    static bool ImFeld(QLineEdit *feld, bool zurück)
    {
        if (!feld || !(zurück ? feld->isUndoAvailable() : feld->isRedoAvailable()))
            return false;
        if (zurück)
            feld->undo();
        else
            feld->redo();
        return true;
    }

    static bool ImFenster(const QWidget *fenster, bool zurück)
    {
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

void Gehen(bool zurück)
{
    HauptfensterHandelt([zurück] {
        const Gang gang = Gegangen(zurück);
        if (gang.Name.empty())
            return;
        Mitteilen((zurück ? "rückgängig gemacht: " : "wiederholt: ") + gang.Name);
        Abschließen(gang);
    });
}

} // namespace

std::function<std::function<void()>()> BeimGehen;

void SchritteMitschreiben(QObject *eigner, const std::function<void()> &zeigen)
{
    new Mitschreiber(eigner, zeigen);
}

void SchritteZurückIn(QWidget *form, const Schrittform &handler)
{
    std::erase_if(einzelformen, [](const Einzelform &eine) { return !eine.Form; });
    Einzelform eine;
    eine.Form = form;
    eine.Handler = {handler.Satz, handler.Ablegen, Abgefangen(handler.Erneuern)};
    einzelformen.push_back(std::move(eine));
}

void RückgängigMachen()
{
    Gehen(true);
}

void Wiederholen()
{
    Gehen(false);
}

} // namespace altardienst
