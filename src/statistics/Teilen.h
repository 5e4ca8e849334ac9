// The division that all figures use.
#pragma once

#include "values/Laufzeitfehler.h"

#include <concepts>

namespace altardienst {

/// Failure 11 if `nenner` is 0: figures about an empty table are not protected against it.
template <std::floating_point F> F Geteilt(F zähler, F nenner)
{
    if (nenner == 0)
        throw Laufzeitfehler(Laufzeitfehler::DivisionDurchNull);
    return zähler / nenner;
}

inline double Geteilt(int zähler, int nenner)
{
    return Geteilt<double>(zähler, nenner);
}

} // namespace altardienst
