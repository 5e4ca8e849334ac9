// The fixture of the tests of windows that print: their printer keeps a log.
#pragma once

#include "Fensterstand.h"
#include "printing/Druckprotokoll.h"

#include <QPointer>

#include <utility>

namespace altardienst {

template <class Form> class Papierfenster : public Fensterstand {
  protected:
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
        Zeigen(form);
    }

    QWidget *Control(const char *name) const { return Finden(form, name); }
    Text Zeigt(const char *name) const { return Aufschrift(Control(name)); }
    void Drücken(const char *name) const { Klick(Control(name)); }
    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Control(spin), richtung));
    }

    /// Presses a button that prints and returns the printed lines.
    std::vector<Text> Gedruckt(const char *knopf)
    {
        Papier.Leeren();
        Drücken(knopf);
        std::vector<Text> zeilen;
        for (const Text &zeile : Papier.Zeilen)
            if (zeile.starts_with("Print \"") && zeile != "Print \"\"")
                zeilen.push_back(zeile.substr(7, zeile.size() - 8));
        return zeilen;
    }

    Druckprotokoll Papier;
    QPointer<Form> form;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
