// The spin button: one control with a down and an up event.
#pragma once

#include <QWidget>

#include <functional>

namespace altardienst {

/// Two arrow buttons, named `ab` and `auf`, each of which runs its event on every press (and every
/// repeat while held). By keyboard: Down and Up while the control has the focus.
class SpinButton : public QWidget {
  public:
    SpinButton(const char *name, const char *gesprochen);

    void BeiAb(std::function<void()> handler) { ab = std::move(handler); }
    void BeiAuf(std::function<void()> handler) { auf = std::move(handler); }

  protected:
    void keyPressEvent(QKeyEvent *taste) override;

  private:
    std::function<void()> ab = [] {};
    std::function<void()> auf = [] {};
};

} // namespace altardienst
