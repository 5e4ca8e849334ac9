// A model of the rules of the editor of the servers, for its random walk.
#pragma once

#include "people/Modellschirm.h"

namespace altardienst {

inline constexpr int Sätze = 30; // of the table, as far as the walk reaches
inline constexpr int Felder = 27;
inline constexpr const char *Arten = "TTTLTTTDTNDTTTDDDDDDDDDDTTN";
inline const std::array<const char *, Felder> Boxen = {
    "Vornamen", "Nachnamen", "Straßen", "Postleit",       "Gemeinde", "Teflon",       "Emeil",
    "Gebutag",  "Geschl",    "Groß",    "Eintritttdatum", "Dieenst",  "Dienstmittig", "Abgewählt",
    "Start",    "Schluß",    "Start2",  "Schluß2",        "Start3",   "Schluß3",      "Start4",
    "Schluß4",  "Start5",    "Schluß5", "VName",          "NName",    "Haufigk"};

struct Slotname {
    Text Vor;
    Text Nach;
    bool operator==(const Slotname &) const = default;
};

struct MeßdienerModell : Modellschirm {
    std::vector<std::vector<Text>> Satz;
    int Anzahl = 0;
    int Cursor = 0;
    std::vector<Slotname> Messen; // all slots of all masses and fixed entries
    bool Oft = false;

    void Beginnen()
    {
        for (int i = 0; i < Sätze; ++i)
            Satz.push_back(Datensatz(Meßdiener, i));
        Anzahl = Meßdiener.Anzahl;
        Cursor = Meßdiener.Cursor;
        Messen = Plätze();
        for (const char *box : {"Gebutag", "Eintritttdatum"})
            Datumsregel(box);
        for (int n = 1; n <= 5; ++n)
            Zeitraumregel(n);
        Regeln["Groß"] = [this] { Klemmen("Groß", 5, 250); };
        Regeln["Haufigk"] = [this] {
            Klemmen("Haufigk", 0, 20);
            Versuch([&] { Oft = Int16Lesen(Texte["Haufigk"]) > 0; });
        };
        Regeln["Datensätze"] = [this] { NummerGeändert(); };
        Öffnen();
    }

    static std::vector<Slotname> Plätze()
    {
        std::vector<Slotname> plätze;
        for (int m = 0; m <= Messe.Anzahl; ++m)
            for (int s = 0; s <= 20; ++s)
                plätze.push_back({Messe.DienerVor[m][s], Messe.DienerNach[m][s]});
        for (int m = 0; m <= MesseDienerFest.Anzahl; ++m)
            for (int s = 0; s <= 20; ++s)
                plätze.push_back({MesseDienerFest.Vorname[m][s], MesseDienerFest.Nachname[m][s]});
        return plätze;
    }

    std::vector<Text> &S(int i) { return Satz.at(static_cast<std::size_t>(i)); }
    int Nummer() { return Int16Lesen(Texte["Datensätze"]); }

    void Öffnen()
    {
        Texte.clear();
        Setzen("Datensätze", ZahlText(Cursor));
        Partner();
    }

    void NummerGeändert()
    {
        NummerBegrenzen("Datensätze", 399, Anzahl);
        Versuch([&] {
            Cursor = Nummer();
            Zeigen(Nummer());
            Anzahl = std::max(Anzahl, Nummer());
        });
        Partner();
    }

    void Zeigen(int i)
    {
        for (std::size_t k = 0; k < Felder; ++k)
            Setzen(Boxen[k], S(i)[k]);
    }

    void Speichern(int i)
    {
        for (std::size_t k = 0; k < Felder; ++k)
            S(i)[k] = Gespeichert(Arten[k], Texte[Boxen[k]]);
    }

    void Partner()
    {
        const bool beide = !Texte["VName"].empty() && !Texte["NName"].empty();
        Texte["Partner"] = beide ? Texte["NName"] + "," + Texte["VName"] : "";
        Texte["MaxIndex"] = ZahlText(Anzahl);
    }

    void Wächter()
    {
        const int i = Nummer();
        const Text altVor = S(i)[0];
        const Text altNach = S(i)[1];
        const auto heißt = [&](int n) {
            return S(n)[0] == Texte["Vornamen"] && S(n)[1] == Texte["Nachnamen"];
        };
        for (int n = 0; n <= Anzahl; ++n)
            if (n != i && heißt(n)) {
                Texte["Vornamen"] = altVor;
                Texte["Nachnamen"] = altNach;
            }
        if (altVor.empty() && altNach.empty())
            return;
        for (int n = 0; n <= Anzahl; ++n)
            if (S(n)[24] == altVor && S(n)[25] == altNach) {
                S(n)[24] = Texte["Vornamen"];
                S(n)[25] = Texte["Nachnamen"];
            }
        for (Slotname &platz : Messen)
            if (platz == Slotname{altVor, altNach})
                platz = {Texte["Vornamen"], Texte["Nachnamen"]};
    }

    void Blättern(int richtung, bool drehen)
    {
        Offen([&] {
            if (!drehen && Texte["Datensätze"].empty())
                Setzen("Datensätze", "0");
            Wächter();
            const int i = Nummer();
            Speichern(i);
            const bool geht =
                richtung < 0 ? i > 0 : !S(i)[0].empty() && !S(i)[1].empty() && i < 399;
            if (geht) {
                Setzen("Datensätze", ZahlText(i + richtung));
                if (richtung > 0 ? Cursor < 399 : Cursor >= 1)
                    Cursor += richtung;
            }
            Partner();
        });
    }

    bool Schließen(bool mitWächter)
    {
        bool zu = false;
        Offen([&] {
            if (mitWächter)
                Wächter();
            Speichern(Nummer());
            if (Nummer() == Anzahl && !Texte["Vornamen"].empty() && !Texte["Nachnamen"].empty())
                ++Anzahl;
            if (Nummer() >= Anzahl)
                Setzen("Datensätze", ZahlText(Anzahl - 1));
            Cursor = Nummer();
            zu = true;
        });
        return zu;
    }

    void Löschen(bool ja)
    {
        Offen([&] {
            if (!ja || Anzahl <= 2)
                return;
            if (Nummer() == Anzahl)
                Setzen("Datensätze", ZahlText(Anzahl - 1));
            const int i = Nummer();
            const auto weg = S(i);
            for (int n = 0; n <= Anzahl; ++n)
                if (S(n)[24] == weg[0] && S(n)[25] == weg[1])
                    S(n)[24] = S(n)[25] = "";
            for (int n = i + 1; n <= Anzahl; ++n)
                S(n - 1) = S(n);
            S(Anzahl)[0] = S(Anzahl)[1] = "";
            --Anzahl;
            Zeigen(i);
            Partner();
        });
    }

    void PartnerPrüfen(bool auswahl)
    {
        const Text text = Texte["Partner"];
        bool bekannt = text.empty();
        for (int i = 0; i <= Anzahl; ++i)
            bekannt = bekannt || S(i)[1] + "," + S(i)[0] == text;
        if (!bekannt) {
            Meldungen.push_back("Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!");
            return Partner();
        }
        const std::size_t komma = text.find(',');
        if (text.empty())
            Texte["NName"] = Texte["VName"] = "";
        else if (komma > 0) {
            Texte["NName"] = text.substr(0, komma);
            Texte["VName"] = text.substr(komma + 1);
        }
        const auto leeren = [&] { Texte["VName"] = Texte["NName"] = Texte["Partner"] = ""; };
        if (Texte["VName"] == Texte["Vornamen"] && Texte["NName"] == Texte["Nachnamen"]) {
            leeren();
            if (auswahl)
                Meldungen.push_back("Ein und dieselbe Person!!!");
        }
        Versuch([&] {
            const int nummer = Nummer();
            for (int i = 0; i <= Anzahl; ++i)
                if (i != nummer && S(i)[24] == Texte["VName"] && S(i)[25] == Texte["NName"]) {
                    if (auswahl && !Texte["Partner"].empty())
                        Meldungen.push_back("Schon mal zugeordnet!!!!!");
                    leeren();
                }
        });
    }

    void GruppeVerlassen()
    {
        const Text text = Texte["Dieenst"];
        if (text.empty() || text == "Rot" || text == "Blau")
            return;
        Versuch([&] {
            Texte["Dieenst"] = S(Nummer())[11];
            Meldungen.push_back("Die Gruppe ist unbekannt!!");
        });
    }

    void Neu(const Text &vor, const Text &nach)
    {
        const int i = Anzahl;
        const std::array<Text, 12> neu = {vor, nach,       "", "48999", "Beispielort", "",
                                          "",  Heutiges(), "", "150",   Heutiges(),    ""};
        for (std::size_t k = 0; k < neu.size(); ++k)
            S(i)[k] = neu[k];
        ++Anzahl;
        Versuch([&] { Zeigen(Nummer()); });
        Partner();
    }

    bool IstDoppelt(const Text &vor, const Text &nach)
    {
        for (int i = 0; i < Anzahl; ++i)
            if (S(i)[0] == vor && S(i)[1] == nach)
                return true;
        return false;
    }
};

} // namespace altardienst
