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

    void MenüWählen(const char *name) const { altardienst::MenüWählen(haupt, name); }

    QPointer<HauptForm> haupt;
};

} // namespace altardienst
