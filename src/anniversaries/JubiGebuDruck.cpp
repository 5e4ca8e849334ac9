// The lists of birthdays and jubilees on paper and on labels.
#include "anniversaries/JubiGebuDruck.h"

#include "core/Umwandlung.h"
#include "printing/Druckrahmen.h"
#include "printing/Druckwerte.h"

#include <array>
#include <functional>

namespace altardienst {
namespace {

Text Monatsname(int monat)
{
    constexpr std::array<const char *, 12> Namen = {"Januar",    "Februar", "März",     "April",
                                                    "Mai",       "Juni",    "Juli",     "August",
                                                    "September", "Oktober", "November", "Dezember"};
    return Namen[static_cast<std::size_t>(monat - 1)];
}

Text Geburtstagstitel(Gruppende gruppe)
{
    switch (gruppe) {
    case Gruppende::Messdien:
        return "Geburtstage der Meßdiener im ";
    case Gruppende::Meßhelfer:
        return "Geburtstage der Meßhelfer im ";
    default:
        return "Geburtstage der Meßdiener und Meßhelfer im ";
    }
}

/// One line for each row, followed by an empty one.
template <class Liste>
void ListeDrucken(const Text &name, Liste &liste, const Text &titel,
                  const std::function<Text(int)> &angaben)
{
    BerichtDrucken(Druckanfrage::Für(name), [&](int) {
        BerichtEröffnen({titel}, Titelschrift::Vorige);
        Int16 Zeilen = 2;
        for (int i = 0; i < liste.Anzahl; ++i) {
            ZeileDrucken(liste.Vorname[i] + " " + liste.Nachname[i] + angaben(i) +
                         ", Telefon: " + liste.Telefon[i]);
            Leerzeile();
            Zeilen += 2;
            SeitePrüfen(Zeilen, 2);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

template <class Liste> Etikettenleute EtikettenAus(const Text &name, Liste &liste)
{
    return {liste.Anzahl, nullptr,
            [&liste](int i) {
                return Anschrift{liste.Vorname[i] + " " + liste.Nachname[i], liste.Straße[i],
                                 liste.Ort[i]};
            },
            name};
}

} // namespace

void GeburtstageDrucken(Gruppende gruppe, Int16 GeburtsMonat)
{
    const Text name = "Geburtstage " + Monatsname(GeburtsMonat);
    ListeDrucken(name, Geburtstagsliste, Geburtstagstitel(gruppe) + Monatsname(GeburtsMonat),
                 [](int i) {
                     return ", Geburtstag: " + Druckdatum(Geburtstagsliste.Geburtstag[i]) +
                            ", Alter: " + Druckzahl(Geburtstagsliste.Alter[i]) + " Jahre";
                 });
}

void JubiläenDrucken(Int16 JubiläumsJahre)
{
    const Text JahreZusatz = JubiläumsJahre >= MeisteJubiläumsJahre ? " und mehr " : "";
    ListeDrucken(
        "Jubiläen " + ZahlText(JubiläumsJahre) + " Jahre", Jubiläumsliste,
        "Jubiläum von " + Druckzahl(JubiläumsJahre) + JahreZusatz + " Jahren der Meßdiener",
        [](int i) { return ", Eintrittsdatum: " + Druckdatum(Jubiläumsliste.Eintrittsdatum[i]); });
}

Etikettenleute EtikettenDerGeburtstage()
{
    return EtikettenAus("Etiketten Geburtstage", Geburtstagsliste);
}

Etikettenleute EtikettenDerJubiläen()
{
    return EtikettenAus("Etiketten Jubiläen", Jubiläumsliste);
}

} // namespace altardienst
