// What the editors of the groups, the servers and the helpers have in common: how any record is
// reached, how a new one is added, and how the window is left.
#pragma once

#include "application/Anwendung.h"
#include "application/Datensatzliste.h"
#include "application/Dialogfenster.h"
#include "controls/Datensatzwahl.h"

#include <QPushButton>

#include <functional>

namespace altardienst {

class Editorfenster : public Dialogfenster {
  public:
    /// `quelle` says what the list shows; choosing from it is up to this class.
    Editorfenster(Datensatzwahl *wahl, Datensatzliste::Quelle quelle);

    Datensatzwahl *Wahl;
    Datensatzliste *Liste;
    QPushButton *Ende;

  protected:
    /// Runs before each save, except when the window is closed by its close box.
    virtual void Umbenennen() = 0;

    /// What every step does first: renames and writes the screen. Returns the number of the record.
    virtual int Sichern() = 0;

    /// A record without its names cannot be left forwards.
    virtual bool IstBenannt(int i) const = 0;

    virtual void Zeigen(int i) = 0;

    /// The box that is still empty although part of the name stands in record `i`; null if there is
    /// none.
    virtual QWidget *Fehlendes(int i) const = 0;

    /// A step to any record.
    virtual void Aufschlagen(int satz);

    /// The last save, which writes the screen.
    virtual void Abschließen() = 0;

    /// Shows the record again, after the tables have changed under it.
    virtual void Erneuern();

    /// `Ende` renames, writes and closes. A failure is shown and the window stays open.
    void EndeVerbinden();

    /// Replaces this window with the dialog that adds a record; the window then comes back, after
    /// `angelegt` if a record was added.
    template <class Dialog> void NeuAnlegen(const std::function<void()> &angelegt)
    {
        DialogAnStelleÖffnen<Dialog>(this, [this, angelegt](bool neu) {
            if (neu)
                angelegt();
            DialogDanebenÖffnen(this);
        });
    }

    /// Failure 13 if the number box does not hold a number.
    int Nummer() const;

    /// An empty number box counts as 0, and shows that record.
    void NullStattLeer() const;

    /// Focus events that still arrive after that are ignored.
    bool IstAbgeschlossen() const { return abgeschlossen; }

  private:
    void VorDemSchließen() override;
    void Speichern();
    bool LeerenPlatzVerlassen(int i) const;

    std::function<int()> anzahl; // of the records in use
    bool abgeschlossen = false;
};

} // namespace altardienst
