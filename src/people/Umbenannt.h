// Who wants to know of a new name besides the tables.
#pragma once

#include "people/Personen.h"

#include <functional>

namespace altardienst {

/// Runs after a form has passed on a new name of a server or helper; by default nothing.
extern std::function<void(const Personenname &alt, const Personenname &neu, bool helfer)>
    PersonUmbenannt;

/// Calls it if the name is another one; whoever had none was nobody, and nobody loses his.
void UmbenennungMelden(const Personenname &alt, const Personenname &neu, bool helfer);

/// To be called before a step is taken back or repeated. What it returns, if anything, is to run
/// afterwards: it calls `PersonUmbenannt` for everybody whose new name was taken back or given
/// again, and for nobody else, however many names the step has moved.
std::function<void()> UmbenennungenVerfolgen();

} // namespace altardienst
