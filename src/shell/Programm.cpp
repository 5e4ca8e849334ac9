// The way from the start dialog to the main window.
#include "shell/Programm.h"

#include "fenster/Anwendung.h"
#include "shell/HauptForm.h"
#include "shell/StartForm.h"

namespace altardienst {

void ProgrammStarten()
{
    auto *start = new StartForm([] {
        auto *haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
    });
    start->show();
}

} // namespace altardienst
