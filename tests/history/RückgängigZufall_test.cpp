// Long random sequences of steps, changes by hand, undo and redo, against a list of full copies.
#include "history/Schrittstand.h"
#include "people/Personen.h"
#include "planning/MessenBestimmen.h"
#include "planning/Messenbearbeitung.h"

#include <random>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace altardienst {
namespace {

/// The tables before and after a step; those of the same record join in.
struct Modellschritt {
    Tabellenbild Vorher, Nachher;
    Text Ziel;
};

class Zufallsgang : public Schrittstand {
  protected:
    /// What was done, and for a change by hand the record it was made in.
    Text Handeln()
    {
        switch (Wurf(16)) {
        case 0:
            MessenBesetzen();
            break;
        case 1:
            Schritt("(4)", [] { WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen); });
            break;
        case 2:
            Schritt("(5)", MessenMitMessehelferBesetzen);
            break;
        case 3:
            Schritt("(1)", MessenNeuBestimmen);
            break;
        case 4:
            MeßdienerSortieren();
            break;
        case 5:
            Schritt("Vorname", MeßdienerNachVornameSortieren);
            break;
        case 6:
            Schritt("Messen", MessenSortieren);
            break;
        case 7:
            Schritt("laden", VonFestplatteLaden);
            break;
        case 8:
            Schritt("Helfer", HelferNachVornameSortieren);
            break;
        case 9:
            if (Meßdiener.Anzahl > Diener - 3)
                MeßdienerLöschen(Wurf(Meßdiener.Anzahl));
            break;
        case 10:
            if (Messe.Anzahl > 3) {
                MesseVorziehen(Wurf(Messe.Anzahl));
                --Messe.Anzahl;
            }
            break;
        case 11:
            MeßdienerAnlegen("Neu" + std::to_string(++neue), "Neu");
            break;
        case 12: {
            const int i = Wurf(Meßdiener.Anzahl);
            const Text name = "Um" + std::to_string(++neue);
            MeßdienerUmbenennen(i, {name, name});
            Meßdiener.Vorname[i] = Meßdiener.Nachname[i] = name;
            break;
        }
        case 13:
            AufFestplatteSpeichern();
            break;
        case 14: {
            const int i = Wurf(3);
            Meßdiener.Telefon[i] = std::to_string(++neue);
            return "Meßdiener" + std::to_string(i);
        }
        case 15:
            Konfig.Tage = 14 + Wurf(10);
            return "Einstellungen";
        default:
            break;
        }
        return "";
    }

    /// One more event of the program, and the same in the model.
    void Ereignis()
    {
        const Tabellenbild vorher = Bild();
        const Text ziel = Handeln();
        Warten();
        const Tabellenbild nachher = Bild();
        if (vorher.Tabellen == nachher.Tabellen)
            return;
        modell.resize(stelle);
        if (!ziel.empty() && !modell.empty() && modell.back().Ziel == ziel)
            modell.back().Nachher = nachher;
        else
            modell.push_back({vorher, nachher, ziel});
        if (modell.size() > MeisteSchritte)
            modell.erase(modell.begin());
        stelle = modell.size();
    }

    void Zurück()
    {
        ASSERT_EQ(SchrittZurücknehmen().empty(), stelle == 0);
        if (stelle == 0)
            return;
        ASSERT_TRUE(Bild() == modell[--stelle].Vorher);
    }

    void Vor()
    {
        ASSERT_EQ(SchrittWiederholen().empty(), stelle == modell.size());
        if (stelle == modell.size())
            return;
        ASSERT_TRUE(Bild() == modell[stelle++].Nachher);
    }

    int Wurf(int seiten) { return static_cast<int>(zufall() % static_cast<unsigned>(seiten)); }

    std::mt19937 zufall;
    std::vector<Modellschritt> modell;
    std::size_t stelle = 0;
    int neue = 0;
};

TEST_F(Zufallsgang, EndetInDenTabellenDesModells)
{
    for (unsigned saat = 1; saat <= 5; ++saat) {
        SCOPED_TRACE(saat);
        zufall.seed(saat);
        SchritteBeginnen();
        modell.clear();
        stelle = 0;
        for (int k = 0; k < 200; ++k) {
            const int art = Wurf(10);
            if (art < 5)
                Ereignis();
            else
                for (int n = Wurf(4); n >= 0; --n)
                    art < 8 ? Zurück() : Vor();
            ASSERT_FALSE(HasFatalFailure());
        }
        while (stelle > 0)
            ASSERT_NO_FATAL_FAILURE(Zurück());
        while (stelle < modell.size())
            ASSERT_NO_FATAL_FAILURE(Vor());
    }
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)

std::size_t BelegterSpeicher()
{
    const auto stand = mallinfo2();
    return stand.uordblks + stand.hblkhd;
}

/// Every place of every record that a file can hold.
template <class Tabelle> void Füllen(Tabelle &tabelle)
{
    for (int i = 0; i <= Tabelle::HöchsterInDatei; ++i)
        FürJedesFeld(tabelle.Felder(), i, [i](auto &&feld) {
            using Feld = std::decay_t<decltype(feld)>;
            if constexpr (std::is_same_v<Feld, Flagfeld>)
                feld.Wert = "jnjnjnjn";
            else if constexpr (std::is_same_v<Feld, Text>)
                feld = "Maximiliane " + std::to_string(1000 + i);
            else
                feld = Feld(i);
        });
}

/// Renaming is what changes most of the tables: each step changes every server, mass and entry.
TEST_F(Zufallsgang, ZwanzigSchritteVollerTabellenBrauchenWenigerAls60Megabyte)
{
    Füllen(Standardmesse);
    Füllen(Meßdiener);
    Füllen(Messe);
    Füllen(Gruppe);
    Füllen(Helfer);
    Füllen(Etikett);
    Füllen(MesseDienerFest);
    SchritteBeenden();
    const std::size_t zuvor = BelegterSpeicher();
    SchritteBeginnen();
    for (int k = 0; k < 20; ++k) {
        Schritt("alles anders", [k] {
            const Text name = "Maximilian" + std::to_string(1000 + k);
            for (int i = 0; i <= MeßdienerTabelle::HöchsterInDatei; ++i)
                Meßdiener.Vorname[i] = name;
            for (int i = 0; i <= MesseTabelle::HöchsterInDatei; ++i)
                Messe.DienerVor[i][1] = Messe.DienerDienst[i][1] = name;
            for (int i = 0; i <= MesseDienerFestTabelle::HöchsterInDatei; ++i)
                MesseDienerFest.Vorname[i][1] = name;
            Helfer.Vorname[0] = Gruppe.Bezeichnung[0] = Konfig.Gemeinde = Etikett.Name[0] =
                Standardmesse.Messeart[0] = name;
            Meßdiener.Belegt[0] = k + 1;
        });
        Warten();
    }
    const std::size_t mehr = BelegterSpeicher() - zuvor;
    RecordProperty("Bytes", std::to_string(mehr));
    EXPECT_GT(mehr, std::size_t{1} << 20); // that it was measured at all
    EXPECT_LT(mehr, std::size_t{60} << 20);
    for (int k = 0; k < 20; ++k)
        EXPECT_EQ(SchrittZurücknehmen(), "alles anders");
    EXPECT_EQ(Messe.DienerVor[3][1], "Maximiliane 1003");
}

#endif

} // namespace
} // namespace altardienst
