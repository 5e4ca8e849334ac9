// What the editors of the groups, the servers and the helpers have in common: how a new record is
// added, and how the window is left.
#pragma once

#include "application/Anwendung.h"
#include "application/Dialogfenster.h"
#include "controls/Datensatzwahl.h"

#include <QPushButton>

#include <functional>

namespace altardienst {

class Editorfenster : public Dialogfenster {
  public:
    explicit Editorfenster(Datensatzwahl *wahl);

    Datensatzwahl *Wahl;
    QPushButton *Ende;

  protected:
    /// Before each save but that of the window's own close.
    virtual void Umbenennen() = 0;

    /// The last save, which writes the screen.
    virtual void Abschließen() = 0;

    /// `Ende` renames, writes and closes. A failure is shown and keeps the window open.
    void EndeVerbinden();

    /// Opens the dialog that adds a record in place of this window, which then comes back; if a
    /// record was added, after `angelegt`.
    template <class Dialog> void NeuAnlegen(const std::function<void()> &angelegt)
    {
        auto *dialog = new Dialog([this, angelegt](bool neu) {
            if (neu)
                angelegt();
            show();
            activateWindow();
        });
        hide(); // not before: where the dialog fails, this window stays
        DialogDanebenÖffnen(dialog);
    }

    /// Failure 13 if the number box holds none.
    int Nummer() const;

    /// What still comes of the focus then is of no concern.
    bool IstAbgeschlossen() const { return abgeschlossen; }

  private:
    void VorDemSchließen() override;
    void Speichern();

    bool abgeschlossen = false;
};

} // namespace altardienst
