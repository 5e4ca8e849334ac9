// The spin button: one control with a down and an up event.
#pragma once

#include <QLineEdit>
#include <QWidget>

#include <functional>

namespace altardienst {

/// Two arrow buttons, named `ab` and `auf`, each of which runs its event on every press (and every
/// repeat while held). By keyboard: Down and Up while the control has the focus, which it takes
/// when it is clicked; Tab passes it over, since the arrow keys do the same in its box.
class SpinButton : public QWidget {
  public:
    SpinButton(const char *name, const char *gesprochen);

    void BeiAb(std::function<void()> handler) { ab = std::move(handler); }
    void BeiAuf(std::function<void()> handler) { auf = std::move(handler); }

    /// Runs the up event for +1, the down event for -1.
    void Drehen(int richtung) { richtung > 0 ? auf() : ab(); }

  protected:
    void keyPressEvent(QKeyEvent *taste) override;

  private:
    std::function<void()> ab = [] {};
    std::function<void()> auf = [] {};
};

/// The arrow keys Up and Down in the box do what the arrows of its spin button do; with `mit`, only
/// while that key is held. The box keeps the focus unless the event itself moves it.
void PfeiltastenVerbinden(QLineEdit *feld, SpinButton *spin,
                          Qt::KeyboardModifier mit = Qt::NoModifier);

/// The same for any step, which is 1 for Up and -1 for Down.
void PfeiltastenVerbinden(QLineEdit *feld, Qt::KeyboardModifier mit,
                          std::function<void(int richtung)> schritt);

/// What is held down in a box with several spin buttons: nothing for the first, Umschalt for the
/// second, Strg for the third.
inline constexpr Qt::KeyboardModifier Pfeilstufen[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                       Qt::ControlModifier};

} // namespace altardienst
