// Tables filled to the brim, as the measures need them.
#pragma once

namespace altardienst {

/// Every slot that stands in the eight files holds a believable record, every count is at the
/// number of its slots.
void VollerBestand();

/// 200 servers who differ in height, sex, qualification, absences and wishes, and 300 masses of 12
/// slots with their services: enough servers for the way of assignment with all rules.
void BestandFürZuweisung();

} // namespace altardienst
