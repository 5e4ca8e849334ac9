// Full tables, as the measurements need them.
#pragma once

namespace altardienst {

/// Every slot in the eight files holds a plausible record, every count equals the number of its
/// slots.
void VollerBestand();

/// 200 servers who differ in height, sex, qualification, absences and wishes, and 300 masses of 12
/// slots with their services: enough servers for the assignment with all rules.
void BestandFürZuweisung();

} // namespace altardienst
