// Undo and redo at the screen.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include <functional>

namespace altardienst {

/// From now on, as long as `eigner` lives, the steps of the program are kept: the tables are looked
/// at while the program waits for the user, or else before his next key or click. `zeigen` runs
/// whenever another step is the one to be taken back or repeated.
///
/// Ctrl+Z and Ctrl+Y work in the forms that stand beside the main window as they do there, but a
/// box that has something to take back itself comes first. While a form blocks the main window,
/// they take back only what was done since.
void SchritteMitschreiben(QObject *eigner, const std::function<void()> &zeigen);

/// Runs before a step is taken back or repeated; what it returns, if anything, runs once that is
/// done and told. By default nothing.
extern std::function<std::function<void()>()> BeimGehen;

/// A form that blocks the main window.
struct Schrittform {
    std::function<QString()> Satz;  // which record it shows
    std::function<void()> Ablegen;  // writes what is typed; its failure is shown
    std::function<void()> Erneuern; // shows what the tables hold; trapped
};

/// From now on the two keys take back and repeat in this form too, but only what was done since.
/// What is typed is written first, and so is the first thing to be taken back.
void SchritteZurückIn(QWidget *form, const Schrittform &handler);

/// Take back or repeat a step. The forms that are open show what the tables then hold, and the
/// status bar tells what was done.
void RückgängigMachen();
void Wiederholen();

} // namespace altardienst
