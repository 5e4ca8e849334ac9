// The sort commands: the key, the range and the scratch record of each.
#include "core/Sortierbefehle.h"

#include "core/Sortieren.h"
#include "core/tables.h"

#include <utility>

namespace altardienst {
namespace {

/// A text key that does not copy the text; binary order.
struct Textschlüssel {
    const Text *Wert;
    bool operator>(const Textschlüssel &b) const { return *Wert > *b.Wert; }
};

/// The same in reverse order.
struct TextschlüsselAbsteigend {
    const Text *Wert;
    bool operator>(const TextschlüsselAbsteigend &b) const { return *Wert < *b.Wert; }
};

template <class Tabelle> Sortierbereich AlleDatensätze(Tabelle &tabelle)
{
    return Sortierbereich::Bis(tabelle.Anzahl - 2, Tabelle::HöchsterIndex);
}

template <class Tabelle, class Spalte> void NachTextSortieren(Tabelle &tabelle, Spalte &spalte)
{
    TabelleSortieren(tabelle, AlleDatensätze(tabelle),
                     [&](int i) { return Textschlüssel{&spalte[i]}; });
}

template <class Tabelle, class Spalte> void NachDatumSortieren(Tabelle &tabelle, Spalte &spalte)
{
    TabelleSortieren(tabelle, AlleDatensätze(tabelle), [&](int i) { return spalte[i]; });
}

template <class Tabelle>
void NachDatumUndUhrzeitSortieren(Tabelle &tabelle, const Sortierbereich &bereich)
{
    TabelleSortieren(tabelle, bereich,
                     [&](int i) { return std::pair(tabelle.Datum[i], tabelle.Uhrzeit[i]); });
}

/// The ten labels of the dialog: full passes without a shrinking bound, and the scratch record is
/// refilled from record 21.
constexpr Sortierbereich Etiketten = {9, 9, false, EtikettTabelle::HöchsterIndex, 21};

} // namespace

void MeßdienerNachNachnameSortieren()
{
    NachTextSortieren(Meßdiener, Meßdiener.Nachname);
}

void MeßdienerNachVornameSortieren()
{
    NachTextSortieren(Meßdiener, Meßdiener.Vorname);
}

void MeßdienerNachGruppeSortieren()
{
    NachTextSortieren(Meßdiener, Meßdiener.Gruppe);
}

void MeßdienerNachGeburtstagSortieren()
{
    NachDatumSortieren(Meßdiener, Meßdiener.Geburtstag);
}

void MeßdienerNachStraßeSortieren()
{
    NachTextSortieren(Meßdiener, Meßdiener.Straße);
}

void HelferNachNachnameSortieren()
{
    NachTextSortieren(Helfer, Helfer.Nachname);
}

void HelferNachVornameSortieren()
{
    NachTextSortieren(Helfer, Helfer.Vorname);
}

void HelferNachDienstSortieren()
{
    NachTextSortieren(Helfer, Helfer.Dienst1);
}

void HelferNachGeburtstagSortieren()
{
    NachDatumSortieren(Helfer, Helfer.Geburtstag);
}

void HelferNachStraßeSortieren()
{
    NachTextSortieren(Helfer, Helfer.Straße);
}

void GruppenSortieren()
{
    NachTextSortieren(Gruppe, Gruppe.Bezeichnung);
}

void MessenNachDatumSortieren()
{
    NachDatumSortieren(Messe, Messe.Datum);
}

void MessenSortieren()
{
    NachDatumUndUhrzeitSortieren(Messe, AlleDatensätze(Messe));
}

void VorbesetzteMessenSortieren()
{
    // Here the scratch record lies inside the table: with more than 202 entries a swap overwrites
    // entry 202.
    NachDatumUndUhrzeitSortieren(MesseDienerFest,
                                 Sortierbereich::Bis(MesseDienerFest.Anzahl - 2, 202, 201));
}

void StandardmessenNachWochentagSortieren()
{
    TabelleSortieren(Standardmesse, Sortierbereich::Bis(9, StandardmesseTabelle::HöchsterIndex),
                     [](int i) { return Textschlüssel{&Standardmesse.Wochentag[i]}; });
}

void EtikettenAufsteigendSortieren()
{
    TabelleSortieren(Etikett, Etiketten, [](int i) { return Textschlüssel{&Etikett.Name[i]}; });
}

void EtikettenAbsteigendSortieren()
{
    TabelleSortieren(Etikett, Etiketten,
                     [](int i) { return TextschlüsselAbsteigend{&Etikett.Name[i]}; });
}

} // namespace altardienst
