// The fixture of the tests of the dialog for a new mass.
#pragma once

#include "planning/Messenlistenstand.h"
#include "planning/NeuMesseForm.h"

namespace altardienst {

/// Today is Saturday, 21.11.2026; the masses of the list begin on the day after. `form` is the
/// dialog, opened from the list.
class Neumessenstand : public Messenlistenstand {
  protected:
    void Öffnen(int cursor = 2, int anzahl = 5)
    {
        Messenlistenstand::Öffnen(cursor, anzahl);
        ÜberDieListe();
    }

    void ÜberDieListe()
    {
        if (!liste)
            liste = form;
        Klick(Finden<QPushButton>(liste, "NeuMeß"));
        form = Fenster("NeuMesse");
        Zeigen(form);
    }

    void Termin(const char *datum, const char *uhrzeit, const char *tag) const
    {
        Einsetzen("datendaten", datum);
        Einsetzen("Uhrwerk", uhrzeit);
        Einsetzen("tagelang", tag);
    }

    Text InDerListe(const char *name) const { return Zeigt(Finden(liste, name)); }

    bool IstZurück()
    {
        return Warten([&] { return !form; }) && liste->isVisible();
    }

    static constexpr std::array Zahlen = {"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3",
                                          "Dienster4",    "Dienster5", "Dienster6", "Lecki",
                                          "Kommi",        "Kanto",     "Kolt"};

    QPointer<QWidget> liste;
};

} // namespace altardienst
