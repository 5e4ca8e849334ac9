// The fixture of the tests of the mass list beside or above the main window.
#pragma once

#include "application/Anwendung.h"
#include "planning/Messenlistenstand.h"
#include "shell/HauptForm.h"

namespace altardienst {

class MessenlisteImProgramm : public Messenlistenstand {
  protected:
    MessenlisteImProgramm()
    {
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
    }

    void ListeZurück()
    {
        Drücken("Ende");
        EXPECT_TRUE(Warten([&] { return !form; })); // unloaded
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMaximized());
    }

    /// The list beside the main window in use, as behind (1).
    void ListeDaneben(int cursor = 0)
    {
        Messe.Cursor = cursor;
        DialogDanebenÖffnen(MessenlisteForm::Offene());
        form = Fenster("Messenliste");
    }

    void Wählen(const char *eintrag) const { Finden<QAction>(haupt, eintrag)->trigger(); }

    HauptForm *haupt;
};

} // namespace altardienst
