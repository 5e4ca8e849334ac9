// The dialog that adds an altar server.
#pragma once

#include "people/Anlegefenster.h"
#include "people/Meßdienerangaben.h"

namespace altardienst {

class NeuMeßdienerForm : public Anlegefenster {
  public:
    explicit NeuMeßdienerForm(std::function<void(bool angelegt)> danach);

    Meßdienerangaben Angaben;

  private:
    void Anordnen();
    void Verbinden();
    void Anlegen();
};

} // namespace altardienst
