// Forms that stand open beside the main window, whose actions may change what they show.
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace altardienst {

/// Until the form is deleted, an action of the main window runs `ablegen` before it, which writes
/// what was typed to the tables, and `erneuern` behind it, which shows what the tables hold by now.
/// So neither does what was typed get lost, nor does an old screen overwrite a new plan. They run
/// too when the user goes to another form and when he comes back. A record that was only looked at
/// stays as it is; where it has changed meanwhile the table counts: `ablegen` is to leave it alone
/// then, and only then is `erneuern` to fill the screen. Both are trapped.
void NebenDemHauptfenster(QWidget *form, std::function<void()> ablegen,
                          std::function<void()> erneuern);

/// Runs an action of the main window. Open.
void HauptfensterHandelt(const std::function<void()> &aktion);

/// The texts of all boxes of a form.
QStringList Schirm(const QWidget *form);

/// Tells later whether what `lesen` returns has become another than it is now.
template <class F> std::function<bool()> Verändert(F lesen)
{
    return [lesen, jetzt = lesen()] { return lesen() != jetzt; };
}

} // namespace altardienst
