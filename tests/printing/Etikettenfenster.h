// The fixture of the tests of the label formats' editor.
#pragma once

#include "Formstand.h"
#include "printing/EtikettenForm.h"

namespace altardienst {

/// Ten formats; record k is called "Format k" and has the measures k + 1 to k + 5 mm with k + 1
/// rows and k + 2 columns.
class Etikettenfenster : public Formstand<> {
  protected:
    Etikettenfenster()
    {
        for (int k = 0; k < 10; ++k) {
            Etikett.Name[k] = "Format " + std::to_string(k);
            auto mm = static_cast<Single>(k);
            for (auto *länge : Längen)
                (*länge)[k] = mm += 1;
            Etikett.Reihen[k] = k + 1;
            Etikett.Spalten[k] = k + 2;
        }
        Etikett.Anzahl = 2;
    }

    QWidget &Öffnen()
    {
        form = new EtikettenForm;
        form->setAttribute(Qt::WA_DeleteOnClose);
        Fensterstand::Zeigen(form);
        return *form;
    }

    /// Types into a box, leaves it and returns what it then shows.
    Text NachTippen(const char *name, const char *text) const
    {
        Tippen(name, text);
        FokusAuf("N");
        return Zeigt(name);
    }

    static constexpr std::array Längen = {&Etikett.RandOU, &Etikett.RandLR, &Etikett.Höhe,
                                          &Etikett.Breite, &Etikett.Steg};
    static constexpr std::array Längenfelder = {"OU", "LR", "H", "B", "ST"};
};

} // namespace altardienst
