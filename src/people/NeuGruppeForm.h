// The dialog that adds a group.
#pragma once

#include "people/Anlegefenster.h"

#include <QLineEdit>

namespace altardienst {

class NeuGruppeForm : public Anlegefenster {
  public:
    explicit NeuGruppeForm(std::function<void(bool angelegt)> danach);

    QLineEdit *GBezeichnung;

  private:
    void Anordnen();
    void Anlegen();
};

} // namespace altardienst
