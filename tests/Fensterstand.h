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

/// The names of all controls, menus and entries below a window, for the failure message of
/// `Finden`.
Text NamenIn(const QObject *fenster);

/// The control, menu or entry with that name; if it is missing or of another kind, the test fails
/// and lists the names that exist.
template <class Control = QWidget> Control *Finden(const QObject *fenster, const char *name)
{
    if (auto *control = fenster->findChild<Control *>(QString::fromUtf8(name)))
        return control;
    throw std::runtime_error("no \"" + Text(name) +
                             "\" of this kind; there are: " + NamenIn(fenster));
}

/// What a label, a button, a check box or a text box shows.
Text Aufschrift(const QWidget *control);

/// What the user does: clicking the first mouse button, typing over the content of a box, moving
/// the focus to a control of the active window.
void Klick(QWidget *control);
void Tippen(QWidget *feld, const char *text);
void FokusAuf(QWidget *control);

/// The background of a button, next to its caption.
QColor Grundfarbe(QWidget *knopf);

/// The controls that Tab reaches, in order, once round, starting at the one with the focus.
std::vector<Text> Tabfolge(QWidget *fenster);

/// The space for a window on the smallest screen, 1024 x 768 at 150 %, less frame and title bar.
constexpr QSize KleinsterBildschirm(680, 484);

/// Names of the controls that take the focus but have no spoken name.
std::vector<Text> Stumme(QWidget *fenster);

/// Windows left over are deleted after each test. An unexpected failure fails the test, unless it
/// clears the message about it.
class Fensterstand : public Prüfstand {
  protected:
    ~Fensterstand() override;

    /// Shows a window and waits until it is active.
    static void Zeigen(QWidget *fenster);

    /// The visible window with that name; fails if there is none.
    static QWidget *Fenster(const char *name);
    static bool IstOffen(const char *name);

    /// Waits (up to 5 s) until the condition holds.
    static bool Warten(const std::function<bool()> &bedingung);

    /// Runs the event loop of the program with `beginn` as its first event until the program ends;
    /// returns its result. Fails if it doesn't end.
    static int Programmlauf(const std::function<void()> &beginn);

    /// From now on, messages and questions are real message boxes.
    static void EchteMeldungen();

    /// The same, and each message is recorded and confirmed once it has taken the focus; the window
    /// it was in front of then gets the focus back.
    void MeldungenBestätigen();

    /// Called before a message box opens: inspects and closes it as soon as it appears.
    static void Beantworten(const std::function<void(QMessageBox *)> &antwort);
};

} // namespace altardienst
