// The birthdays of a month, one by one.
#pragma once

#include "anniversaries/Listenansicht.h"

namespace altardienst {

class GeburtstagsansichtForm : public Listenansicht {
  public:
    GeburtstagsansichtForm();
};

} // namespace altardienst
