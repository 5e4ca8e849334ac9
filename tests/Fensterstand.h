// The fixture of the tests that drive real windows.
#pragma once

#include "Prüfstand.h"
#include "controls/Bausteine.h"

#include <QColor>
#include <QMessageBox>
#include <QTest>

#include <functional>
#include <stdexcept>

namespace altardienst {

/// The names of all controls, menus and entries below a window, for the message of a finder.
Text NamenIn(const QObject *fenster);

/// The control, menu or entry of that name; a test that asks for one that is missing, or is of
/// another kind, fails with the names that exist.
template <class Control = QWidget> Control *Finden(const QObject *fenster, const char *name)
{
    if (auto *control = fenster->findChild<Control *>(QString::fromUtf8(name)))
        return control;
    throw std::runtime_error("no \"" + Text(name) +
                             "\" of this kind; there are: " + NamenIn(fenster));
}

/// What a label, a button, a check box or a text box shows.
Text Aufschrift(const QWidget *control);

/// What the user does: a click of the first mouse button, typing over the content of a box, moving
/// the focus to a control of the active window.
void Klick(QWidget *control);
void Tippen(QWidget *feld, const char *text);
void FokusAuf(QWidget *control);

/// The background of a button, beside its caption.
QColor Grundfarbe(QWidget *knopf);

/// The controls that Tab reaches, in order, from the one that has the focus on, once round.
std::vector<Text> Tabfolge(QWidget *fenster);

/// The room for a window on the smallest screen, 1024 x 768 at 150 %, less frame and title bar.
constexpr QSize KleinsterBildschirm(680, 484);

/// Names of the controls that take the focus but have no spoken name.
std::vector<Text> Stumme(QWidget *fenster);

/// Windows that are left over are deleted after each test. A failure that nobody reckoned with
/// fails it, unless it clears the message about it.
class Fensterstand : public Prüfstand {
  protected:
    ~Fensterstand() override;

    /// Shows a window and waits until it is active.
    static void Zeigen(QWidget *fenster);

    /// The visible window of that name; fails if there is none.
    static QWidget *Fenster(const char *name);
    static bool IstOffen(const char *name);

    /// Waits (up to 5 s) until this holds.
    static bool Warten(const std::function<bool()> &bedingung);

    /// Runs the event loop of the program with this as its first event, until the program ends;
    /// returns its result. Fails if it doesn't end.
    static int Programmlauf(const std::function<void()> &beginn);

    /// From here on messages and questions are the real message boxes.
    static void EchteMeldungen();

    /// The same, and each message is written down and confirmed once it has taken the focus; then
    /// the window in front of which it stood has it again.
    void MeldungenBestätigen();

    /// Called before a message box opens: looks at it and closes it, as soon as it is there.
    static void Beantworten(const std::function<void(QMessageBox *)> &antwort);
};

} // namespace altardienst
