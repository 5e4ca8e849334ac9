// The events of a form that leaves the foreground and comes back to it.
#pragma once

#include <QWidget>

#include <functional>

namespace altardienst {

/// Runs when the user comes back to the form from another form of the program. Message boxes and
/// other programs do not count: after them, what was begun on the screen continues. `beimVerlassen`
/// runs when the user goes to another form while this one stays on the screen.
void BeiRückkehr(
    QWidget *form, std::function<void()> handler, std::function<void()> beimVerlassen = [] {});

/// From now on this is a window to read in beside the forms: who goes there has left no form and no
/// box, as if he went to another program.
void ZumNachlesen(QWidget *fenster);

bool IstZumNachlesen(const QWindow *fenster);
bool IstZumNachlesen(const QWidget *fenster);

} // namespace altardienst
