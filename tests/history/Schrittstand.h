// The fixture of the tests of undo and redo: a small parish with a plan, and steps that are kept.
#pragma once

#include "Prüfstand.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Allgemein.h"
#include "core/Sortierbefehle.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "history/Rückgängig.h"
#include "history/Tabellenbild.h"

#include <string>

namespace altardienst {

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
