// The dialog that adds a helper.
#pragma once

#include "fenster/Datumsfeld.h"
#include "fenster/Textwahl.h"
#include "people/Personenboxen.h"

#include <functional>

namespace altardienst {

class NeuerHelferForm : public QWidget {
  public:
    /// `danach` runs when the dialog has closed, with whether a helper was added.
    explicit NeuerHelferForm(std::function<void(bool angelegt)> danach);

    Personenboxen Person; // Vorne, Hinten, Weg, PLZetus, Wohort, Anruf, Mailen
    Datumsfeld Tagen;     // Änderung1 to 3
    QComboBox *Dient;
    QComboBox *Dient2;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Anlegen();

    std::function<void(bool angelegt)> danach;
    bool angelegt = false;
};

} // namespace altardienst
