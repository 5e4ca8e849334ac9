// A window that writes the plan to files: its foot, and what it says of writing.
#pragma once

#include "application/Dialogfenster.h"
#include "values/Text.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <filesystem>
#include <functional>

namespace altardienst {

class Ausgabefenster : public Dialogfenster {
  public:
    QLabel *Inhalt;  // what would be written
    QLabel *Hinweis; // what was written, or why not
    QPushButton *Speichern;
    QPushButton *Ende;

  protected:
    Ausgabefenster(const char *name, const char *titel);

    /// Below what is chosen for the output.
    void FußAnordnen(QLayout *wahl);

    /// What "Speichern" does comes wrapped in its kind.
    void FußVerbinden(std::function<void()> handler);

    /// What would be written now; nothing was, yet.
    void InhaltSagen(const Text &satz, bool istEtwas);

    /// Writes the file whole or not at all; says it if not.
    bool DateiSchreiben(const std::filesystem::path &ziel, const Text &bytes);

    void Gelungen(const Text &was);
};

} // namespace altardienst
