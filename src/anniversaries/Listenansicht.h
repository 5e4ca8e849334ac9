// A window that shows the rows of a list one by one; nothing in it can be changed.
#pragma once

#include "controls/Datensatzwahl.h"
#include "core/tables.h"

#include <functional>

namespace altardienst {

/// What a row shows.
struct Listenzeile {
    Text Name;
    Datum Tag;
    Int16 Jahre;
    Text Telefon;
};

/// The texts of a window.
struct Listenworte {
    const char *Fenster; // its object name
    const char *Titel;
    const char *Tag;
    const char *Jahre;
};

/// Stays in front of the form that opened it, which is blocked until this window closes.
class Listenansicht : public QWidget {
  public:
    /// The number box goes from 0 to `anzahl`, which shows the blank row after the last one.
    Listenansicht(const Listenworte &worte, int anzahl,
                  std::function<Listenzeile(int)> zeileDerListe);

    Datensatzwahl *Wahl; // Nu, Plus, Minus
    QLabel *Letzter;     // of the index
    QLabel *Datensätze;  // their number
    QLineEdit *Name;
    QLineEdit *Tag;
    QLineEdit *Jahre;
    QLineEdit *Telefon;
    QPushButton *Ende;

  private:
    void Anordnen(const Listenworte &worte);
    void Verbinden();
    void NummerGeändert();
    void Zeigen(const Listenzeile &zeile);

    int anzahl;
    std::function<Listenzeile(int)> zeileDerListe;
};

} // namespace altardienst
