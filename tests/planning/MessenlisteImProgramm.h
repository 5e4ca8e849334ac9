// The fixture of the tests of the mass list next to the main window or in place of it.
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
        Klick("Ende");
        EXPECT_TRUE(Warten([&] { return !form; })); // unloaded
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMaximized());
    }

    /// Opens the list next to the main window, which stays in use, as after (1).
    void ListeDaneben(int cursor = 0)
    {
        Messe.Cursor = cursor;
        DialogDanebenÖffnen<MessenlisteForm>();
        form = Fenster("Messenliste");
    }

    void MenüWählen(const char *eintrag) const { altardienst::MenüWählen(haupt, eintrag); }

    HauptForm *haupt;
};

} // namespace altardienst
