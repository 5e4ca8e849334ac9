// The three dialogs that copy the eight data files, which are the same except for a few words.
#pragma once

#include "controls/Kurztext.h"
#include "controls/Verzeichniswahl.h"
#include "settings/Dateikopie.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>
#include <functional>

namespace altardienst {

/// What tells the dialogs apart.
struct Kopierdialog {
    const char *Name;
    const char *Titel;
    bool Hinaus;         // from the program's directory to the one picked, or the reverse
    void (*NachKopie)(); // after the copy, before the form goes
    Text (*Anleitung)() = nullptr; // for who sees the dialog before any other
};

/// OK is visible only while the source directory holds all eight files; if not, a line beside the
/// source says what is missing, and where only the names are wrong a button renames the files. A
/// copy that fails is shown and leaves the dialog open.
class KopierForm : public QWidget {
  public:
    /// `danach` runs once the form is gone and is passed whether it has copied.
    KopierForm(const Kopierdialog &dialog, std::function<void(bool kopiert)> danach);

    Verzeichniswahl Wahl;    // Drive1, Dir1, Dateien
    QLineEdit *VZ = nullptr; // only in the dialog that copies out, like the button
    QPushButton *Verzeichnis = nullptr;
    QGroupBox *EoA;
    QRadioButton *Alle;
    QRadioButton *Einzel;
    QGroupBox *Welche;
    std::array<QRadioButton *, 8> O; // O1 to O8
    QLabel *Datei;
    Kurztext *Gegenort; // the program's directory, which is the other end of the copy
    Kurztext *Hinweis;  // why there is no OK, or what was renamed
    QPushButton *Berichtigen;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void UmfangGewählt();
    void VerzeichnisGewechselt();
    void VerzeichnisErstellen();
    void NamenÄndern();
    QLayout *Wege();
    void Kopieren();
    std::filesystem::path Quelle() const;

    const Kopierdialog &dialog;
    std::function<void(bool)> danach;
    bool kopiert = false;
};

/// "Daten sichern": out of the program's directory.
class DatensicherungForm : public KopierForm {
  public:
    DatensicherungForm();
};

/// "Datendateien kopieren" from the menu: into the program's directory, which is then loaded.
class DateikopieForm : public KopierForm {
  public:
    DateikopieForm();
};

/// "Datendateien kopieren" on the first start: the same, in place of the start dialog.
class DateienKopierenForm : public KopierForm {
  public:
    explicit DateienKopierenForm(std::function<void(bool kopiert)> danach);
};

} // namespace altardienst
