// The dialog that adds an altar server.
#pragma once

#include "fenster/Datumsfeld.h"
#include "fenster/Textwahl.h"
#include "fenster/Zahlbox.h"
#include "people/Personenboxen.h"

#include <functional>

namespace altardienst {

class NeuMeßdienerForm : public QWidget {
  public:
    /// `danach` runs when the dialog has closed, with whether a server was added.
    explicit NeuMeßdienerForm(std::function<void(bool angelegt)> danach);

    Personenboxen Person; // Vornamen, Nachnamen, Straßen, Postleit, Gemeinde, Teflon, Emeil
    Datumsfeld Gebutag;   // Änderung1 to 3
    QComboBox *Geschl;
    Zahlbox Groß;              // Änderung7
    Datumsfeld Eintritttdatum; // Änderung4 to 6
    QComboBox *Dieenst;
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
