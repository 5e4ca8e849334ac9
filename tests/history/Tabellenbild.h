// Pictures of all tables, to be compared.
#pragma once

#include "core/SchleifenZähler.h"
#include "core/tables.h"

#include <string>
#include <tuple>
#include <utility>

namespace altardienst {

/// Everything that the tables hold, up to the last record of the last column, but for where the
/// user is in them; and the loop counter.
struct Tabellenbild {
    std::string Tabellen;
    int Schleife = 0;

    bool operator==(const Tabellenbild &) const = default;
};

struct Tabellenmaler {
    std::string Gemaltes;

    void operator()(const Text &text) { Gemaltes += text + '\n'; }
    void operator()(double zahl) { Gemaltes += std::to_string(zahl) + '\n'; }
    void operator()(Flagfeld feld) { (*this)(feld.Wert); }
    template <class T, int höchster> void operator()(const Spalte<T, höchster> &spalte)
    {
        for (int i = 0; i <= höchster; ++i)
            (*this)(spalte[i]);
    }
};

inline Tabellenbild Bild()
{
    Tabellenmaler malen;
    const auto spalten = [&](auto &tabelle) {
        FürJedeSpalte(tabelle.Felder(), [&](auto &spalte) { malen(spalte); });
    };
    std::apply([&](auto &&...felder) { (malen(felder), ...); }, Konfig.Felder());
    malen(Konfig.StartDatum);
    for (const double anzahl : {Meßdiener.Anzahl + 0.0, Messe.Anzahl + 0.0, Gruppe.Anzahl + 0.0,
                                Helfer.Anzahl + 0.0, MesseDienerFest.Anzahl + 0.0})
        malen(anzahl);
    spalten(Standardmesse);
    spalten(Meßdiener);
    spalten(Messe);
    malen(Gruppe.Bezeichnung);
    spalten(Helfer);
    spalten(Etikett);
    spalten(MesseDienerFest);
    malen(Meßdiener.Belegt);
    malen(Meßdiener.LetzterDienst);
    malen(Meßdiener.DienstZähler);
    malen(Helfer.Belegt);
    malen(Helfer.LetzterDienst);
    return {std::move(malen.Gemaltes), SchleifenZähler};
}

} // namespace altardienst
