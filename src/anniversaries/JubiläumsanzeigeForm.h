// The servers of a jubilee, one by one.
#pragma once

#include "anniversaries/Listenansicht.h"

namespace altardienst {

class JubiläumsanzeigeForm : public Listenansicht {
  public:
    JubiläumsanzeigeForm();
};

} // namespace altardienst
