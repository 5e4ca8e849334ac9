// "Frühere Stände": the list of earlier states, what differs from now, and bringing one back.
#pragma once

#include "application/Dialogfenster.h"
#include "history/Stände.h"
#include "history/Tabellenstand.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include <functional>
#include <vector>

namespace altardienst {

/// It changes nothing but by "Zurückholen", which asks once. The rows fill one after the other, the
/// newest first, so that the window is there at once however many states there are.
class StändeForm : public Dialogfenster {
  public:
    /// `zurückgeholt` runs after a state was brought back and the window has closed.
    explicit StändeForm(std::function<void()> zurückgeholt = [] {});

    QTableWidget *Liste;
    QPlainTextEdit *Ansicht; // hidden until "Ansehen"
    QLabel *Hinweis;
    QPushButton *Ansehen;
    QPushButton *Zurückholen;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void NächsteZeile();
    void Beurteilen(int zeile, bool ganz, bool leer);
    void Vorwählen(int zeile);
    void Gewählt();
    void AnsichtZeigen();
    void StandHolen();
    bool Geholt(const Stand &stand);

    int Zeile() const;
    Text SeitherIn(int zeile) const;
    Text Satz(const Gelesenes &gelesenes) const;

    std::function<void()> zurückgeholt;
    std::vector<Stand> stände; // newest first
    Tabellenstand jetzt;
    int gefüllt = 0;
    int ersatz = -1;         // the row to choose if no other is worth it
    bool vorgewählt = false; // by the window or by the user
};

/// When a state was taken, as the screen shows it: "21.11.2026, 12:00:05".
Text StandText(const Stand &stand);

} // namespace altardienst
