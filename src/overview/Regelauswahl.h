// Which rules the plan is looked at by.
#pragma once

#include "overview/Prüfliste.h"

#include <QMenu>

#include <functional>

namespace altardienst {

/// One entry a rule, with the number of its findings. It stays open while rules are marked; the
/// choice is remembered from run to run.
class Regelauswahl : public QMenu {
  public:
    /// `beiWahl` comes wrapped in its kind.
    Regelauswahl(QWidget *über, const Planprüfung &prüfung,
                 std::function<void(const Regelwahl &)> beiWahl);

    static Regelwahl Gemerkte();

  protected:
    void keyPressEvent(QKeyEvent *taste) override;
    void mouseReleaseEvent(QMouseEvent *maus) override;

  private:
    void Anbieten();
    void Wählen();

    const Planprüfung &prüfung;
    std::function<void(const Regelwahl &)> beiWahl;
    QAction *alle;
};

} // namespace altardienst
