// The fixture of the tests of the label formats' editor.
#pragma once

#include "Fensterstand.h"
#include "printing/EtikettenForm.h"

#include <QPointer>

namespace altardienst {

/// Ten formats; record k is called "Format k" and has the measures k + 1 to k + 5 mm with k + 1
/// rows and k + 2 columns.
class Etikettenfenster : public Fensterstand {
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

    QWidget *Control(const char *name) const { return Finden(form, name); }
    Text Zeigt(const char *name) const { return Aufschrift(Control(name)); }
    void Eingeben(const char *name, const char *text) const { Tippen(Control(name), text); }
    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Control(spin), richtung));
    }
    /// Types into a box, leaves it and returns what it then shows.
    Text Verlassen(const char *name, const char *text) const
    {
        Eingeben(name, text);
        FokusAuf(Control("N"));
        return Zeigt(name);
    }

    static constexpr std::array Längen = {&Etikett.RandOU, &Etikett.RandLR, &Etikett.Höhe,
                                          &Etikett.Breite, &Etikett.Steg};
    static constexpr std::array Längenfelder = {"OU", "LR", "H", "B", "ST"};
    QPointer<QWidget> form;
};

} // namespace altardienst
