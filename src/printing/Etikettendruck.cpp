// Address labels on a sheet of the chosen format.
#include "printing/Etikettendruck.h"

#include "core/Gruppen.h"
#include "core/tables.h"
#include "printing/Druckrahmen.h"
#include "printing/Druckwerte.h"

namespace altardienst {
namespace {

template <class Tabelle> Anschrift AnschriftAus(Tabelle &t, int i)
{
    return {t.Vorname[i] + " " + t.Nachname[i], t.Straße[i], Druckzahl(t.PLZ[i]) + " " + t.Ort[i]};
}

void EtikettDrucken(const Anschrift &anschrift, int r, int c)
{
    const int format = Etikett.Anzahl;
    Drucker->CurrentY((r * Etikett.Höhe[format] + Etikett.RandOU[format]) * Konfig.YSkala);
    const Single x = ((Etikett.Steg[format] + Etikett.Breite[format]) * static_cast<Single>(c) +
                      Etikett.RandLR[format]) *
                     Konfig.XSkala;
    for (const Text &zeile : anschrift) {
        Drucker->CurrentX(x);
        Drucker->Print(zeile);
    }
}

/// Walks the sheets cell by cell until no people are left, and leaves in `r` and `c` the cell at
/// which it stopped.
void BögenFüllen(const Etikettenleute &leute, Etikettenplatz anfang, int &r, int &c)
{
    const int reihen = Etikett.Reihen[Etikett.Anzahl];
    const int spalten = Etikett.Spalten[Etikett.Anzahl];
    int person = 0;
    while (true) {
        for (r = 0; r < reihen; ++r) {
            for (c = 0; c < spalten; ++c) {
                // The start position only applies to the first label.
                if (anfang.Reihe - 1 > 0) {
                    r = anfang.Reihe - 1;
                    anfang.Reihe = 1;
                }
                if (anfang.Spalte - 1 > 0) {
                    c = anfang.Spalte - 1;
                    anfang.Spalte = 1;
                }
                if (leute.Gehört)
                    while (person < leute.Anzahl && !leute.Gehört(person))
                        ++person;
                if (person >= leute.Anzahl)
                    return;
                EtikettDrucken(leute.Anschrift(person), r, c);
                if (person == leute.Anzahl - 1)
                    return;
                ++person;
            }
        }
        Drucker->NewPage();
    }
}

} // namespace

Etikettenleute EtikettenAllerMeßdiener()
{
    return {Meßdiener.Anzahl, nullptr, [](int i) { return AnschriftAus(Meßdiener, i); },
            "Etiketten Meßdiener"};
}

Etikettenleute EtikettenDerGruppe(const Text &gruppe)
{
    Etikettenleute leute = EtikettenAllerMeßdiener();
    leute.Name = "Etiketten " + gruppe;
    leute.Gehört = [gruppe](int i) { return IstInGruppe(i, gruppe); };
    return leute;
}

Etikettenleute EtikettenAllerHelfer()
{
    return {Helfer.Anzahl, nullptr, [](int i) { return AnschriftAus(Helfer, i); },
            "Etiketten Helfer"};
}

std::optional<Etikettenplatz> EtikettenDrucken(const Etikettenleute &leute,
                                               const std::function<Etikettenplatz()> &anfang)
{
    std::optional<Etikettenplatz> weiter;
    BerichtDrucken(Druckanfrage::Für(leute.Name), [&](int) {
        if (Etikett.Reihen[Etikett.Anzahl] < 1 || Etikett.Spalten[Etikett.Anzahl] < 1)
            throw Laufzeitfehler(Laufzeitfehler::Druckerfehler); // would turn pages for ever
        Grundschrift();
        int r = 0;
        int c = 0;
        BögenFüllen(leute, anfang(), r, c);
        Drucker->EndDoc();
        weiter = Etikettenplatz{r + 1, c + 2};
    });
    return weiter;
}

} // namespace altardienst
