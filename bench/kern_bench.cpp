// The measurements of the part without windows.
#include "kern_bench.h"

#include "Messung.h"

namespace altardienst {

void MessungenAnmelden()
{
    DateienMessungen();
    SortierenMessungen();
    PlanprüfungMessungen();
    StatistikMessungen();
    TabellenMessungen();
    ZuweisungMessungen();
    WeitergebenMessungen();
    RückgängigMessungen(); // last, since its messages are to be answered
}

} // namespace altardienst
