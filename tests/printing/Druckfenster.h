// The fixture of the tests of the form Druck: a small parish and a printer that keeps a log.
#pragma once

#include "fenster/Fensterstand.h"
#include "printing/DruckForm.h"
#include "printing/Druckprotokoll.h"

#include <QPointer>

#include <utility>

namespace altardienst {

/// Three servers, two of them in the group "Die Großen", and one helper; the sheets 0 to 9 have
/// four rows and three columns.
class Druckfenster : public Fensterstand {
  protected:
    Druckfenster() : zuvor(std::exchange(Drucker, &Papier))
    {
        Konfig.Tage = 28;
        Konfig.DiffJahr = 1;
        Konfig.Gemeinde = "St. Ägid";
        for (const char *vorname : {"Anna", "Ben", "Cara"})
            MeßdienerAnlegen(vorname, "Berg");
        HelferAnlegen("Lea", "Lang", "Lektor");
        Gruppe.Anzahl = 2;
        Gruppe.Bezeichnung[0] = "Die Kleinen";
        Gruppe.Bezeichnung[1] = "Die Großen";
        Meßdiener.Gruppe[1] = Meßdiener.Gruppe[2] = "Die Großen";
        for (int k = 0; k < 10; ++k) {
            Etikett.Name[k] = "Format " + std::to_string(k);
            Etikett.Reihen[k] = 4;
            Etikett.Spalten[k] = 3;
        }
    }
    ~Druckfenster() override { Drucker = zuvor; }

    void Öffnen()
    {
        form = new DruckForm;
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

    /// Types into a box and leaves it.
    Text Verlassen(const char *name, const char *text) const
    {
        Tippen(Control(name), text);
        FokusAuf(Control("Ende"));
        return Zeigt(name);
    }

    /// Presses a button that prints and returns the lines that come onto the paper.
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
    QPointer<DruckForm> form;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
