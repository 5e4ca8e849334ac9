// The subjects of the part without windows, each of which registers its measurements.
#pragma once

namespace altardienst {

void DateienMessungen();
void RückgängigMessungen();
void SortierenMessungen();
void PlanprüfungMessungen();
void StatistikMessungen();
void TabellenMessungen();
void WeitergebenMessungen();
void ZuweisungMessungen();

} // namespace altardienst
