// Every window of the program, each opened on a parish in which it has something to show.
#pragma once

#include "Fensterstand.h"

#include <QPointer>

#include <functional>
#include <map>

namespace altardienst {

class JedesFenster : public Fensterstand {
  protected:
    JedesFenster();

    /// What opens each window, by its name; the window is made anew and not shown yet.
    const std::map<Text, std::function<QWidget *()>> &Öffner() const { return öffner; }

    /// Shows one window after the other and runs `prüfen` on each.
    void InJedemFenster(const std::function<void(const Text &name, QWidget *fenster)> &prüfen);

    /// The same, with all that a window shows only at times, such as the offer to put names right.
    void
    InJedemVollenFenster(const std::function<void(const Text &name, QWidget *fenster)> &prüfen);

  private:
    std::map<Text, std::function<QWidget *()>> öffner;
};

} // namespace altardienst
