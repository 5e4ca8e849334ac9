// The fixture of the tests of undo and redo: a small parish with a plan, steps that are kept, and
// pictures of all tables to compare with.
#pragma once

#include "Prüfstand.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Allgemein.h"
#include "core/SchleifenZähler.h"
#include "core/Sortierbefehle.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "history/Rückgängig.h"

#include <string>
#include <tuple>
#include <utility>

namespace altardienst {

/// Everything that the tables hold, up to the last record of the last column, but for where the
/// user is in them; and the loop counter.
struct Tabellenbild {
    std::string Tabellen;
    int Schleife = 0;

    bool operator==(const Tabellenbild &) const = default;
};

struct Tabellenmaler {
    std::string Gemaltes;

    void operator()(const Text &text) { Gemaltes += text + '\n'; }
    void operator()(double zahl) { Gemaltes += std::to_string(zahl) + '\n'; }
    void operator()(Flagfeld feld) { (*this)(feld.Wert); }
    template <class T, int höchster> void operator()(const Spalte<T, höchster> &spalte)
    {
        for (int i = 0; i <= höchster; ++i)
            (*this)(spalte[i]);
    }
};

inline Tabellenbild Bild()
{
    Tabellenmaler malen;
    const auto spalten = [&](auto &tabelle) {
        FürJedeSpalte(tabelle.Felder(), [&](auto &spalte) { malen(spalte); });
    };
    std::apply([&](auto &&...felder) { (malen(felder), ...); }, Konfig.Felder());
    malen(Konfig.StartDatum);
    for (const double anzahl : {Meßdiener.Anzahl + 0.0, Messe.Anzahl + 0.0, Gruppe.Anzahl + 0.0,
                                Helfer.Anzahl + 0.0, MesseDienerFest.Anzahl + 0.0})
        malen(anzahl);
    spalten(Standardmesse);
    spalten(Meßdiener);
    spalten(Messe);
    malen(Gruppe.Bezeichnung);
    spalten(Helfer);
    spalten(Etikett);
    spalten(MesseDienerFest);
    malen(Meßdiener.Belegt);
    malen(Meßdiener.LetzterDienst);
    malen(Meßdiener.DienstZähler);
    malen(Helfer.Belegt);
    malen(Helfer.LetzterDienst);
    return {std::move(malen.Gemaltes), SchleifenZähler};
}

class Schrittstand : public Prüfstand {
  protected:
    Schrittstand()
    {
        Meldungen.Zeigen = [](const Text &) {};
        Meldungen.Fragen = [](const Text &, const Text &) { return true; };
        Uhr.Sekunden = [this] { return ++Ablesungen / 200; }; // no search is endless
        Gemeinde();
        SchritteBeginnen();
    }
    ~Schrittstand() override { SchritteBeenden(); }

    static constexpr int Diener = 24;

    int Ablesungen = 0; // of the clock

    static void Gemeinde()
    {
        for (int i = 0; i < Diener; ++i) {
            MeßdienerAnlegen("Vor" + std::to_string(i * 7 % Diener),
                             "Nach" + std::to_string(i * 5 % Diener), 140 + i,
                             i % 2 == 0 ? "männlich" : "weiblich");
            Meßdiener.Gruppe[i] = i % 3 == 0 ? "Große" : "Kleine";
        }
        Gruppe.Anzahl = 3;
        Gruppe.Bezeichnung[0] = "Große";
        Gruppe.Bezeichnung[1] = "Kleine";
        Gruppe.Bezeichnung[2] = "Alte";
        for (int i = 0; i < 8; ++i)
            HelferAnlegen("Maria" + std::to_string(i), "Linde" + std::to_string(i * 3 % 8),
                          i % 2 == 0 ? "Lektor" : "Kantor");
        for (int i = 0; i < 3; ++i) {
            Standardmesse.Wochentag[i] = i == 0 ? "Sonntag" : i == 1 ? "Samstag" : "Mittwoch";
            Standardmesse.Uhrzeit[i] = ZeitAus((9 + i) * 3600);
            Standardmesse.Messeart[i] = "Hochamt " + std::to_string(i);
            Standardmesse.Dienerzahl[i] = 4;
            Standardmesse.Allgemein[i] = 4;
            Standardmesse.Lektor[i] = 1;
        }
        Konfig.Gemeinde = "St. Ägid";
        Konfig.StartDatum = DatumAus({2026, 11, 22});
        Konfig.Tage = 20;
        Konfig.DiffGröße = 40;
        for (int i = 0; i < 6; ++i)
            MesseMitDienern(DatumAus({2026, 12, 20 - i}), 3);
        AufFestplatteSpeichern();
    }

    /// What the program does while it waits for the user.
    static void Warten() { TabellenBeobachten(); }

    static void MessenBesetzen()
    {
        Schritt("(3) Messen mit Meßdiener besetzen",
                [] { MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen); });
    }

    static void MeßdienerSortieren()
    {
        Schritt("Meßdiener nach Nachname sortieren", MeßdienerNachNachnameSortieren);
    }
};

} // namespace altardienst
