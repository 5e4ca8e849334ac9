// The dialog that chooses the picture behind the main window.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Verzeichniswahl.h"
#include "settings/Hintergrundbild.h"

#include <QPushButton>

namespace altardienst {

/// A choice in the file list goes to `Konfig.Hintergrund` at once, whether it is a picture or not;
/// the main window picks it up by itself.
class HintergrundsucheForm : public Dialogfenster {
  public:
    HintergrundsucheForm();

    Verzeichniswahl Wahl; // Laufw, Verz, Dateie
    Hintergrundbild *Bild;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void DateiGewählt();
};

} // namespace altardienst
