// The fixture of the tests that drive real windows, and the words they have in common: one for each
// thing that is done to a control or read from it. Formstand.h has the same words for the controls
// of one form by their names.
#pragma once

#include "Prüfstand.h"
#include "application/Dateiwahl.h"
#include "controls/Bausteine.h"

#include <QAbstractButton>
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
template <class Control = QWidget> Control *Finden(const QObject *fenster, const Text &name)
{
    if (auto *control = fenster->findChild<Control *>(QString::fromStdString(name)))
        return control;
    throw std::runtime_error("no \"" + name + "\" of this kind; there are: " + NamenIn(fenster));
}

/// What a label, a button, a check box, a text box or a combo box shows.
Text Zeigt(const QWidget *control);

/// Whether a check box or an option is marked.
bool Angekreuzt(const QWidget *control);

// What the user does, with mouse and keyboard.

/// A click of the first mouse button into the middle.
void Klick(QWidget *control);
/// The same on the circle or the square of an option, whose middle may be empty.
void Ankreuzen(QWidget *option);
/// The arrow of a spin button: "auf" or "ab".
void Drehen(QWidget *spin, const Text &richtung);
/// Moves the focus to a control of the active window.
void FokusAuf(QWidget *control);
/// Types over the content of a box, key by key: each is a change of its own.
void Tippen(QWidget *feld, const Text &text);
/// Pastes over the content of a box with the keyboard, which is one change.
void Einfügen(QWidget *feld, const Text &text);
/// One key, where the focus is or on this control, which then has it.
void Taste(Qt::Key taste);
void Taste(QWidget *control, Qt::Key taste);

// What the test does itself, without mouse, keyboard and focus.

/// Puts a text into a text box or a combo box at once: one change.
void Einsetzen(QWidget *feld, const Text &text);
/// Presses a button.
void Auslösen(QAbstractButton *knopf);
/// One step of a spin button, up from 1 on, down otherwise.
void DrehungAuslösen(QWidget *spin, int richtung);
/// Lets a box handle that it is left, whatever has the focus.
void FokusWeg(QWidget *feld);
/// Picks the entry of that name from the menu of a window.
void MenüWählen(const QObject *fenster, const Text &eintrag);

/// The background of a button, next to its caption.
QColor Grundfarbe(QWidget *knopf);

/// The controls that Tab reaches, in order, once round, starting at the one with the focus.
std::vector<Text> Tabfolge(QWidget *fenster);

/// The space for a window on the smallest screen, 1024 x 768 at 150 %, less frame and title bar.
constexpr QSize KleinsterBildschirm(680, 484);

/// Names of the controls that take the focus but have no spoken name.
std::vector<Text> Stumme(QWidget *fenster);

/// Nothing is remembered of earlier windows; those left over are deleted after each test. An
/// unexpected failure fails the test, unless it clears the message about it.
class Fensterstand : public Prüfstand {
  protected:
    Fensterstand();
    ~Fensterstand() override;

    /// The answer to the next choice of a file or directory; none: the user cancels.
    std::optional<std::filesystem::path> GewählteDatei;
    std::vector<Dateiwunsch> Dateiwünsche; // what was asked for

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
