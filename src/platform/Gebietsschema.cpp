// The locale in use.
#include "platform/Gebietsschema.h"

namespace altardienst {

GebietsschemaDienst Gebietsschema;

} // namespace altardienst
