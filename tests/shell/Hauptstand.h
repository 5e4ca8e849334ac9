// The fixture of the tests of the main window.
#pragma once

#include "Fensterstand.h"
#include "application/Anwendung.h"
#include "shell/HauptForm.h"

#include <QAction>
#include <QPointer>

namespace altardienst {

class Hauptstand : public Fensterstand {
  protected:
    /// Shows the main window as the start dialog does.
    HauptForm &Öffnen()
    {
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
        return *haupt;
    }

    QAction *Eintrag(const char *name) const { return Finden<QAction>(haupt, name); }
    void Wählen(const char *name) const { Eintrag(name)->trigger(); }

    QPointer<HauptForm> haupt;
};

} // namespace altardienst
