// The fixture of the tests of the editor of the week pattern.
#pragma once

#include "Formstand.h"
#include "planning/Messenbild.h"
#include "planning/StandardmessenForm.h"

namespace altardienst {

/// Eleven rows that differ in every field, with a number of servers that is not the sum of the
/// services; rows 11 to 20 hold something too.
class Standardmessenstand : public Formstand<> {
  protected:
    Standardmessenstand()
    {
        for (int i = 0; i <= 20; ++i)
            Füllen(i);
        vorher = StandardmessenJetzt();
    }

    static void Füllen(int i)
    {
        Standardmesse.Wochentag[i] = WochentagName(DatumAus({2026, 11, 22}) + i);
        Standardmesse.Uhrzeit[i] = ZeitAus(3600 * i);
        Standardmesse.Messeart[i] = "Art" + ZahlText(i);
        Standardmesse.Dienerzahl[i] = 10 + i % 5;
        Standardmesse.Gabenbereitung[i] = i % 3;
        Standardmesse.Leuchter[i] = (i + 1) % 3;
        Standardmesse.Flambeau[i] = i % 4;
        Standardmesse.Weihrauch[i] = i % 2;
        Standardmesse.Kreuzträger[i] = (i + 1) % 2;
        Standardmesse.Allgemein[i] = i % 2;
        Standardmesse.Lektor[i] = i % 3;
        Standardmesse.Kommunion[i] = (i + 1) % 3;
        Standardmesse.Kantor[i] = (i + 2) % 3;
        Standardmesse.Kollektant[i] = i % 2;
    }

    void Öffnen(int datensatz = 3)
    {
        Standardmesse.Anzahl = datensatz;
        form = new StandardmessenForm;
        Zeigen(form);
    }

    QComboBox *Tage() const { return Finden<QComboBox>("Tage"); }

    /// What is on the screen, in the order of the table's fields.
    Satz Schirm() const
    {
        Satz satz{Tage()->currentText().toStdString()};
        for (const char *name : Boxen)
            satz.push_back(Zeigt(name));
        if (satz[1] == "00:00:00" || satz[1].size() != 8)
            return satz;
        satz[1] = DatumText(DatumLesen(satz[1]));
        return satz;
    }

    /// Changes every field on the screen to something that no row holds.
    void AllesÄndern() const
    {
        Tage()->setCurrentText("Donnerstag");
        Einsetzen("Zeitig", "23:45:00");
        Einsetzen("Messearten", "Hochamt");
        for (const auto &[name, zahl] : {std::pair("DienstA", "2"),
                                         {"DienstB", "2"},
                                         {"DienstC", "8"},
                                         {"DienstD", "2"},
                                         {"Dienste", "2"},
                                         {"DienstF", "3"},
                                         {"Leck", "2"},
                                         {"Komu", "1"},
                                         {"Kanto", "0"},
                                         {"Kolle", "2"}})
            Einsetzen(name, zahl);
        Einsetzen("ZahlMeßdiener", "20");
    }
    const Satz Geändert = {"Donnerstag", "23:45:00", "Hochamt", "20", "2", "2", "8",
                           "2",          "2",        "3",       "2",  "1", "0", "2"};

    static constexpr std::array Boxen = {
        "Zeitig",  "Messearten", "ZahlMeßdiener", "DienstA", "DienstB", "DienstC", "DienstD",
        "Dienste", "DienstF",    "Leck",          "Komu",    "Kanto",   "Kolle"};

    Messenbild vorher;
};

} // namespace altardienst
