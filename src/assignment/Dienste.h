// From the counts of a mass to the services of its slots.
#pragma once

namespace altardienst {

/// Rewrites `Messe.DienerDienst` of all masses, the blank one behind the last included: each wanted
/// service in its fixed order from index 0 on, everything else "Allgemein".
void DiensteVerteilen();

/// The expansion of the plain way. It leaves what it does not reach, and writes "Weihrauch" and
/// "Kreuzträger" twice as soon as one is wanted.
void LaufDiensteVerteilen();

} // namespace altardienst
