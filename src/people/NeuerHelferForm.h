// The dialog that adds a helper.
#pragma once

#include "controls/Datumsfeld.h"
#include "controls/Textwahl.h"
#include "people/Anlegefenster.h"
#include "people/Personenboxen.h"

namespace altardienst {

class NeuerHelferForm : public Anlegefenster {
  public:
    explicit NeuerHelferForm(std::function<void(bool angelegt)> danach);

    Personenboxen Person; // Vorne, Hinten, Weg, PLZetus, Wohort, Anruf, Mailen
    Datumsfeld Tagen;     // Änderung1 to 3
    QComboBox *Dient;
    QComboBox *Dient2;

  private:
    void Anordnen();
    void Verbinden();
    void Anlegen();
};

} // namespace altardienst
