// Small pieces of every form: controls with their names, and the events that Qt has no signal for.
#pragma once

#include "controls/SpinButton.h"
#include "values/Text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

#include <functional>

namespace altardienst {

QString Anzeige(const Text &text); // UTF-8 text of the tables for the screen
Text TextVon(const QLineEdit *feld);

/// Gives a control its bare name, by which tests find it, and a spoken name for screen readers if
/// its caption is not a word.
template <class Control> Control *Benannt(Control *control, const char *name)
{
    control->setObjectName(QString::fromUtf8(name));
    return control;
}

/// A command button, with the key of its caption (controls/Kurztasten.h).
QPushButton *Knopf(const char *name, const char *beschriftung);

/// A label; with a control it is that control's buddy and gives it its spoken name.
QLabel *Beschriftung(const char *name, const char *text, QWidget *zu = nullptr);

/// A heading above some controls, in bold; with a control it is that control's buddy.
QLabel *Überschrift(const char *text, QWidget *zu = nullptr);

/// A text box. A character that the files cannot hold turns into "?" at once, and a line break into
/// a blank, so that what is seen is what will be stored.
QLineEdit *Textfeld(const char *name);

// Events. The handlers come wrapped in their kind (controls/Handler.h).

/// Runs when the user leaves the control for another one or for another window of the program;
/// controls/Verlassen.h says what does not count as leaving.
void BeiFokusVerlust(QWidget *control, std::function<void()> handler);
void BeiEingabetaste(QLineEdit *feld, std::function<void()> handler);
void BeiKlick(QWidget *control,
              std::function<void()> handler); // for controls that have no such signal of their own
void BeiMausdruck(QPushButton *knopf, std::function<void()> handler);   // the first mouse button
void BeiTastendruck(QPushButton *knopf, std::function<void()> handler); // a key with a character

/// A row of steps: `minus` and the spin button's down event run `schritt` with -1, `plus` and its
/// up event with +1; pressing "-" on `minus` or "+" on `plus` counts as a click. Any of the three
/// may be missing.
void SchritteVerbinden(QPushButton *minus, QPushButton *plus, SpinButton *spin,
                       const std::function<void(int richtung)> &schritt);

/// A pair of small buttons "−" and "+" with spoken names. Tab passes them over, since the arrow
/// keys do the same in their box.
QPushButton *Minusknopf(const char *name, const char *gesprochen);
QPushButton *Plusknopf(const char *name, const char *gesprochen);

/// Appends the steps of one unit to the row of its box: the name of the unit, its spin button and
/// its buttons, which may be missing.
void SchrittAnfügen(QHBoxLayout *reihe, const char *einheit, SpinButton *spin, QPushButton *minus,
                    QPushButton *plus);

/// The room between the controls in such a row, and the width of its buttons.
constexpr int Schrittabstand = 3;
constexpr int Schrittknopfbreite = 20;

/// Sets the text of a label or box from a value of the tables.
void Setzen(QLineEdit *feld, const Text &text);
void Setzen(QLabel *label, const Text &text);

/// A part of a window that scrolls where the screen is small or strongly enlarged. The parts of a
/// horizontal box stand one below the other where they do not fit side by side.
QWidget *Rollbar(QLayout *inhalt);

/// Scrolls a control into view, where it lies in a part of a window that scrolls.
void InSicht(QWidget *control);

/// Roughly what the frame and the title bar of a window take.
constexpr QSize Fensterrahmen(2, 28);

/// The property of a window that says that the user chose its size.
constexpr const char *EigeneGröße = "eigeneGröße";

/// As large as its content wants, or as the screen allows, unless the user chose its size.
void GrößeAnpassen(QWidget *fenster);

} // namespace altardienst
