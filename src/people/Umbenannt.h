// Who wants to know of a new name besides the tables.
#pragma once

#include "people/Personen.h"

#include <functional>

namespace altardienst {

/// Runs after a form has passed on a new name of a server or helper; by default nothing.
extern std::function<void(const Personenname &alt, const Personenname &neu, bool helfer)>
    PersonUmbenannt;

/// Calls it if the name is another one; whoever had none was nobody.
void UmbenennungMelden(const Personenname &alt, const Personenname &neu, bool helfer);

} // namespace altardienst
