// The tables that make up a plan, as arguments: the shared ones, or copies to work on separately.
#pragma once

#include "core/tables.h"

namespace altardienst {

struct Plantabellen {
    const MesseTabelle &Messen;
    const MeßdienerTabelle &Diener;
    const HelferTabelle &Helferinnen; // and Helfer
    const GruppeTabelle &Gruppen;
    const MesseDienerFestTabelle &Feste;
    const KonfigDatensatz &Einstellungen;

    /// A file may claim more masses than there can be.
    int Messenzahl() const;
};

inline Plantabellen GemeinsameTabellen()
{
    return {Messe, Meßdiener, Helfer, Gruppe, MesseDienerFest, Konfig};
}

} // namespace altardienst
