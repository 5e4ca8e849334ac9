// The sort commands of the main menu. They only change memory and show no message.
#pragma once

namespace altardienst {

void MeßdienerNachNachnameSortieren();
void MeßdienerNachVornameSortieren();
void MeßdienerNachGruppeSortieren();
void MeßdienerNachGeburtstagSortieren();
void MeßdienerNachStraßeSortieren();

void HelferNachNachnameSortieren();
void HelferNachVornameSortieren();
void HelferNachDienstSortieren(); // by the first service
void HelferNachGeburtstagSortieren();
void HelferNachStraßeSortieren();

void GruppenSortieren();
void MessenNachDatumSortieren();

/// By date, then time of day. Both ways of assigning servers start with it.
void MessenSortieren();

void VorbesetzteMessenSortieren();

/// Alphabetical by weekday name, empty rows first, records 0 to 10.
void StandardmessenNachWochentagSortieren();

void EtikettenAufsteigendSortieren(); // records 0 to 9
void EtikettenAbsteigendSortieren();

} // namespace altardienst
