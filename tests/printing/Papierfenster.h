// The fixture of the tests of windows that print: their printer keeps a log.
#pragma once

#include "Formstand.h"
#include "printing/Druckprotokoll.h"

#include <utility>

namespace altardienst {

template <class Form> class Papierfenster : public Formstand<Form> {
  protected:
    using Formstand<Form>::form;

    Papierfenster() : zuvor(std::exchange(Drucker, &Papier)) {}
    ~Papierfenster() override { Drucker = zuvor; }

    /// The sheets 0 to 9 have four rows and three columns.
    static void BögenAnlegen()
    {
        for (int k = 0; k < 10; ++k) {
            Etikett.Name[k] = "Format " + std::to_string(k);
            Etikett.Reihen[k] = 4;
            Etikett.Spalten[k] = 3;
        }
    }

    /// Replaces a window that may be open.
    void Öffnen()
    {
        delete form;
        form = new Form;
        form->setAttribute(Qt::WA_DeleteOnClose);
        this->Zeigen(form);
    }

    /// Presses a button that prints and returns the printed lines.
    std::vector<Text> Gedruckt(const char *knopf)
    {
        Papier.Leeren();
        this->Klick(knopf);
        std::vector<Text> zeilen;
        for (const Text &zeile : Papier.Zeilen)
            if (zeile.starts_with("Print \"") && zeile != "Print \"\"")
                zeilen.push_back(zeile.substr(7, zeile.size() - 8));
        return zeilen;
    }

    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
