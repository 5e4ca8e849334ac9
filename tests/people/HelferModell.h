// A model of the rules of the editor of the helpers, for its random walk.
#pragma once

#include "people/Modellschirm.h"

namespace altardienst {

struct HelferModell : Modellschirm {
    static constexpr int Sätze = 30; // of the table, as far as the walk reaches
    static constexpr int Felder = 16;
    static constexpr const char *Arten = "TTTLTTTDTTDDDDDD";
    static constexpr std::array<const char *, Felder> Boxen = {
        "Vorne", "Hinten", "Weg",   "PLZetus", "Wohort", "Anruf",   "Mailen", "Tagen",
        "Dient", "Dient2", "Start", "Schluß",  "Start2", "Schluß2", "Start3", "Schluß3"};

    std::vector<std::vector<Text>> Satz;
    int Anzahl = 0;
    int Cursor = 0;
    std::vector<Text> Plätze; // first name and surname alternating

    static std::vector<Text> AllePlätze()
    {
        std::vector<Text> plätze;
        for (int m = 0; m <= Messe.Anzahl; ++m)
            for (auto *spalte :
                 {&Messe.Lektor1Vor, &Messe.Lektor1Nach, &Messe.Lektor2Vor, &Messe.Lektor2Nach,
                  &Messe.Komm1Vor, &Messe.Komm1Nach, &Messe.Komm2Vor, &Messe.Komm2Nach,
                  &Messe.Kantor1Vor, &Messe.Kantor1Nach, &Messe.Kantor2Vor, &Messe.Kantor2Nach,
                  &Messe.Kollekt1Vor, &Messe.Kollekt1Nach, &Messe.Kollekt2Vor, &Messe.Kollekt2Nach})
                plätze.push_back((*spalte)[m]);
        return plätze;
    }

    void Beginnen()
    {
        for (int i = 0; i < Sätze; ++i)
            Satz.push_back(Datensatz(Helfer, i));
        Anzahl = Helfer.Anzahl;
        Plätze = AllePlätze();
        Regeln["Tagen"] = [this] {
            Umschreiben("Tagen");
            JahresregelAnwenden("Tagen", 90);
        };
        for (int n = 1; n <= 3; ++n)
            Zeitraumregel(n);
        Regeln["Indexen"] = [this] { NummerGeändert(); };
        Öffnen();
    }

    std::vector<Text> &S(int i) { return Satz.at(static_cast<std::size_t>(i)); }
    int Nummer() { return Int16Lesen(Texte["Indexen"]); }
    void Zählen() { Texte["Datensätzig"] = ZahlText(Anzahl); }

    void Öffnen()
    {
        Texte.clear();
        Setzen("Indexen", ZahlText(Cursor));
        Zählen();
    }

    void NummerGeändert()
    {
        NummerBegrenzen("Indexen", 200, Anzahl);
        Versuch([&] {
            Cursor = Nummer();
            Anzahl = std::max(Anzahl, Nummer());
            Zeigen(Nummer());
        });
        Zählen();
    }

    void Zeigen(int i)
    {
        for (std::size_t k = 0; k < Felder; ++k)
            Setzen(Boxen[k], S(i)[k]);
    }

    void Speichern()
    {
        for (std::size_t k = 0; k < Felder; ++k)
            S(Cursor)[k] = Gespeichert(Arten[k], Texte[Boxen[k]]);
    }

    void Wächter()
    {
        const int nummer = Nummer();
        const Text vor = S(Cursor)[0];
        const Text nach = S(Cursor)[1];
        for (int n = 0; n <= Anzahl; ++n)
            if (n != nummer && S(n)[0] == Texte["Vorne"] && S(n)[1] == Texte["Hinten"]) {
                Texte["Vorne"] = vor;
                Texte["Hinten"] = nach;
            }
        if (vor.empty() && nach.empty())
            return;
        for (std::size_t p = 0; p < Plätze.size(); p += 2)
            if (Plätze[p] == vor && Plätze[p + 1] == nach) {
                Plätze[p] = Texte["Vorne"];
                Plätze[p + 1] = Texte["Hinten"];
            }
    }

    void Blättern(int richtung, bool drehen)
    {
        Offen([&] {
            if (!drehen && Texte["Indexen"].empty())
                Setzen("Indexen", "0");
            Wächter();
            Speichern();
            const int i = Nummer();
            if (richtung > 0 && i < 200) {
                Zeigen(i + 1);
                if (!S(Cursor)[0].empty())
                    Setzen("Indexen", ZahlText(i + 1));
            }
            if (richtung < 0) {
                if (i > 0)
                    Zeigen(i - 1);
                Setzen("Indexen", ZahlText(i - 1));
            }
        });
    }

    bool Schließen(bool mitWächter)
    {
        bool zu = false;
        Offen([&] {
            if (mitWächter)
                Wächter();
            Speichern();
            if (Cursor == Anzahl && !(Texte["Vorne"].empty() && Texte["Hinten"].empty()))
                ++Anzahl;
            zu = true;
        });
        return zu;
    }

    void Löschen(bool ja)
    {
        if (!ja || Anzahl < 3)
            return;
        Offen([&] {
            for (int n = Cursor; n <= Anzahl; ++n)
                S(n) = S(n + 1);
            --Anzahl;
            Zeigen(Cursor);
            if (Nummer() > Anzahl)
                Setzen("Indexen", ZahlText(Anzahl));
            Zählen();
        });
        Zählen();
    }

    void Neu(const Text &vor, const Text &nach)
    {
        for (int i = 0; i < Anzahl; ++i)
            if (S(i)[0] == vor && S(i)[1] == nach)
                return Meldungen.push_back("Doppelt eingeben! Nicht mit mir!!!!!");
        const std::array<Text, 10> neu = {vor, nach, "",         "48999", "Beispielort",
                                          "",  "",   Heutiges(), "",      ""};
        for (std::size_t k = 0; k < neu.size(); ++k)
            S(Anzahl)[k] = neu[k];
        ++Anzahl;
        Versuch([&] { Zeigen(Nummer()); });
        Zählen();
    }
};

} // namespace altardienst
