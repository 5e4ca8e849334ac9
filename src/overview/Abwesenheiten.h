// The periods in which somebody does not serve.
#pragma once

#include "core/tables.h"

#include <array>

namespace altardienst {

struct Fehlzeit {
    Datum Von; // 0: not set
    Datum Bis;

    bool IstEingetragen() const { return Von != 0 || Bis != 0; }
};

inline std::array<Fehlzeit, 5> Abwesenheiten(const MeßdienerTabelle &t, int j)
{
    return {{{t.Von1[j], t.Bis1[j]},
             {t.Von2[j], t.Bis2[j]},
             {t.Von3[j], t.Bis3[j]},
             {t.Von4[j], t.Bis4[j]},
             {t.Von5[j], t.Bis5[j]}}};
}

inline std::array<Fehlzeit, 3> Abwesenheiten(const HelferTabelle &t, int j)
{
    return {{{t.Von1[j], t.Bis1[j]}, {t.Von2[j], t.Bis2[j]}, {t.Von3[j], t.Bis3[j]}}};
}

} // namespace altardienst
