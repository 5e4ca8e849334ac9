// The status bar of the main window: how far the plan is, and for some seconds what was done last.
#pragma once

#include "controls/Kurztext.h"
#include "core/Überblick.h"

#include <QStatusBar>
#include <QTimer>

#include <chrono>
#include <map>
#include <vector>

namespace altardienst {

/// Sections stand side by side; what was done last takes their place as long as it is shown, so
/// that both have room on the smallest screen. What lasts (`DauerndMitteilen`) stays beside them.
class Statuszeile : public QStatusBar {
  public:
    Statuszeile();

    /// Shows these sections; one without content is left out.
    void Zeigen(const std::vector<Abschnitt> &abschnitte);

    /// How long what was done last is shown, counted while the window is in front.
    std::chrono::milliseconds Dauer = std::chrono::seconds(12);

    /// Takes over what was told; run whenever that has changed.
    void MitteilungZeigen();
    void DauerndesZeigen();

  protected:
    bool event(QEvent *ereignis) override;

  private:
    void Verbinden();
    void MitteilungAblaufen();
    void Wechseln(bool mitteilung);
    void Vorlesen();

    Kurztext *mitteilung;
    std::map<Text, Kurztext *> abschnitte;
    std::map<Text, Kurztext *> dauernde;
    QTimer *ablauf;
};

} // namespace altardienst
