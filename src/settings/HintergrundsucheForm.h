// The dialog that chooses the picture behind the main window.
#pragma once

#include "controls/Verzeichniswahl.h"
#include "settings/Hintergrundbild.h"

#include <QPushButton>
#include <QWidget>

namespace altardienst {

/// A choice in the file list is `Konfig.Hintergrund` at once, a picture or not; the main window
/// takes it up by itself.
class HintergrundsucheForm : public QWidget {
  public:
    HintergrundsucheForm();

    Verzeichniswahl Wahl; // Laufw, Verz, Dateie
    Hintergrundbild *Bild;
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void DateiGewählt();
};

} // namespace altardienst
