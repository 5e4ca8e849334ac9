// The directory picker that several dialogs share: a list of drives, of directories, of files.
#pragma once

#include "platform/Laufwerke.h"
#include "values/Text.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <filesystem>
#include <functional>

namespace altardienst {

/// A label for a path, which can be selected and is shortened in the middle: a long one must not
/// widen the window beyond the screen.
QLabel *Pfadanzeige(const char *name);

/// A box for the name of a directory to be created.
QLineEdit *Verzeichnisname(const char *name);

/// The three lists of a dialog, which lays them out itself. The file list follows the directory
/// list. Choosing a drive goes to its root; if it cannot be read, the lists stay as they are and
/// the previous drive stays chosen. A double click or Enter on a directory opens it.
class Verzeichniswahl {
  public:
    /// The names of the three controls; a dialog without one of the lists still has the control but
    /// doesn't lay it out.
    Verzeichniswahl(const char *laufwerkName, const char *verzeichnisName, const char *dateienName);

    Verzeichniswahl(const Verzeichniswahl &) = delete; // its handlers refer to it
    Verzeichniswahl &operator=(const Verzeichniswahl &) = delete;

    QComboBox *Laufwerk;
    QListWidget *Verzeichnis;
    QListWidget *Dateien;

    const std::filesystem::path &Pfad() const { return pfad; }

    /// Opens a directory: fills both lists, then runs `BeiWechsel`. Failure 75 or 76 if it cannot
    /// be read; the lists then stay as they are.
    void Öffnen(const std::filesystem::path &neu);

    /// Opens the first drive that can be read; if none can, the lists stay empty.
    void Beginnen();

    /// Makes a directory in the open one, without showing it. Makes one level only: in a name with
    /// separators, everything before the last one must exist. The directory itself may exist.
    /// Failure 75 or 76, also if no directory is open or the open one is gone.
    void Anlegen(const Text &name) const;

    /// Reads the directory again, without `BeiWechsel`. The selection and the visible part stay.
    void Auffrischen();

    /// Runs after each change of the directory.
    std::function<void()> BeiWechsel = [] {};

    /// Runs after the choice of a drive that cannot be read.
    std::function<void()> BeiUnlesbaremLaufwerk = [] {};

    /// The name of a file in the list, even if the screen cannot show it.
    static Text Name(const QListWidgetItem *eintrag);

  private:
    void LaufwerkGewählt();
    void LaufwerkÖffnen();
    void EintragÖffnen(const QListWidgetItem *eintrag);
    void Zeigen(const Verzeichnisinhalt &inhalt) const;

    std::filesystem::path pfad;
    int offenesLaufwerk = 0;
};

} // namespace altardienst
