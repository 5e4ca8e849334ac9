// The fixture of the tests of the mass list.
#pragma once

#include "Formstand.h"
#include "planning/Messenbild.h"
#include "planning/MessenlisteForm.h"

namespace altardienst {

class Messenlistenstand : public Formstand<> {
  protected:
    /// Opens the list on that many masses.
    void Öffnen(int cursor = 0, int anzahl = 30)
    {
        MessenFüllen(anzahl);
        vorher = MessenJetzt();
        ListeZeigen(cursor);
    }

    /// Opens the list on the masses as they are.
    void ListeZeigen(int cursor)
    {
        Messe.Cursor = cursor;
        form = new MessenlisteForm;
        Zeigen(form);
    }

    /// What is on the screen: weekday, date, time, kind, the seven numbers, then the names of the
    /// slots, in the order of writing.
    Satz Schirm() const
    {
        Satz satz;
        for (const Text &name : Boxen())
            satz.push_back(Zeigt(name));
        return satz;
    }

    /// The names of all boxes, in the order of writing.
    static std::vector<Text> Boxen()
    {
        std::vector<Text> namen = {"tagelang",     "datendaten", "Uhrwerk",   "Messewesen",
                                   "Dienerzahlen", "Dienster1",  "Dienster2", "Dienster3",
                                   "Dienster4",    "Dienster5",  "Dienster6"};
        for (int k = 1; k <= 20; ++k) {
            namen.push_back("vor" + ZahlText(k));
            namen.push_back("nach" + ZahlText(k));
        }
        return namen;
    }

    /// The part of a record that the screen shows, and the record with that part replaced.
    static Satz Sichtbar(const Satz &satz)
    {
        Satz teil;
        for (std::size_t b = 0; b < Boxzahl; ++b)
            teil.push_back(satz[Stelle(b)]);
        return teil;
    }
    static Satz Mit(Satz satz, const Satz &schirm, std::size_t boxen = Boxzahl)
    {
        for (std::size_t b = 0; b < boxen; ++b)
            satz[Stelle(b)] = schirm[b];
        return satz;
    }

    /// Changes every box of the screen.
    void AllesÄndern() const
    {
        Einsetzen("datendaten", "24.12.2026");
        Einsetzen("tagelang", "Heiligabend");
        Einsetzen("Uhrwerk", "23:45:00");
        Einsetzen("Messewesen", "Christmette");
        for (const auto &[name, zahl] : {std::pair("Dienster1", "2"),
                                         {"Dienster2", "1"},
                                         {"Dienster3", "7"},
                                         {"Dienster4", "2"},
                                         {"Dienster5", "2"},
                                         {"Dienster6", "3"},
                                         {"Dienerzahlen", "20"}})
            Einsetzen(name, zahl);
        for (int k = 1; k <= 20; ++k) {
            Einsetzen("vor" + ZahlText(k), "Anna" + ZahlText(k));
            Einsetzen("nach" + ZahlText(k), "Groß" + ZahlText(k));
        }
    }

    Text Slot(int k) const { return Zeigt("MDR[" + ZahlText(k - 1) + "]"); }

    /// Makes a mass with this service and no other, and as many servers.
    static void NurLeuchter(int i, int zahl)
    {
        for (auto *spalte : {&Messe.Gabenbereitung, &Messe.Flambeau, &Messe.Weihrauch,
                             &Messe.Kreuzträger, &Messe.Allgemein})
            (*spalte)[i] = 0;
        Messe.Leuchter[i] = zahl;
        Messe.Dienerzahl[i] = zahl;
    }

    static void Fest(int k, int messe)
    {
        MesseDienerFest.Datum[k] = Messe.Datum[messe];
        MesseDienerFest.Uhrzeit[k] = Messe.Uhrzeit[messe];
        MesseDienerFest.Anzahl = k + 1;
    }

    /// What the screen shows of a mass that was there before.
    Satz Gezeigter(int i) const { return Sichtbar(vorher[static_cast<std::size_t>(i)]); }

    static constexpr std::size_t Boxzahl = 51;
    Messenbild vorher;

  private:
    /// Where a box is in a record: the names of slot k at index k, with a service in between.
    static std::size_t Stelle(std::size_t box)
    {
        if (box < 11)
            return box;
        const std::size_t slot = (box - 11) / 2 + 1;
        return 11 + 3 * slot + (box - 11) % 2;
    }
};

} // namespace altardienst
