// What is wrong with a plan.
#include "fairness/Plankosten.h"

namespace altardienst {

Plankosten &Plankosten::operator+=(const Plankosten &b)
{
    Verstöße += b.Verstöße;
    Schwere += b.Schwere;
    Hinweise += b.Hinweise;
    Ungleich += b.Ungleich;
    Getrennt += b.Getrennt;
    Unruhe += b.Unruhe;
    Wechsel += b.Wechsel;
    return *this;
}

Plankosten &Plankosten::operator-=(const Plankosten &b)
{
    Verstöße -= b.Verstöße;
    Schwere -= b.Schwere;
    Hinweise -= b.Hinweise;
    Ungleich -= b.Ungleich;
    Getrennt -= b.Getrennt;
    Unruhe -= b.Unruhe;
    Wechsel -= b.Wechsel;
    return *this;
}

} // namespace altardienst
