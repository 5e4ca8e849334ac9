// The entries of the menu that sort a table.
#include "shell/Hauptstand.h"

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

/// Which command sorts which column of which table: three records, 0 to 2, whose keys are in the
/// order `Folge`, so that each command alone produces its own order.
class HauptSortierenTest : public Hauptstand {
  protected:
    HauptSortierenTest() { Öffnen(); }

    using Folge = std::array<int, 3>;
    static constexpr Folge A = {1, 2, 0}, B = {2, 0, 1}, C = {2, 1, 0}, D = {1, 0, 2},
                           E = {0, 2, 1};

    template <class Spalte> static void Schlüssel(Spalte &spalte, const Folge &folge)
    {
        for (int platz = 0; platz < 3; ++platz) {
            auto &feld = spalte[folge[static_cast<std::size_t>(platz)]];
            if constexpr (std::is_same_v<std::remove_reference_t<decltype(feld)>, Text>)
                feld = std::to_string(platz);
            else
                feld = 40000 + platz;
        }
    }

    static void Füllen()
    {
        TabellenLeeren();
        Meßdiener.Anzahl = Helfer.Anzahl = Gruppe.Anzahl = Messe.Anzahl = MesseDienerFest.Anzahl =
            3;
        Schlüssel(Meßdiener.Nachname, A);
        Schlüssel(Meßdiener.Vorname, B);
        Schlüssel(Meßdiener.Gruppe, C);
        Schlüssel(Meßdiener.Geburtstag, D);
        Schlüssel(Meßdiener.Straße, E);
        Schlüssel(Helfer.Nachname, A);
        Schlüssel(Helfer.Vorname, B);
        Schlüssel(Helfer.Dienst1, C);
        Schlüssel(Helfer.Dienst2, E);
        Schlüssel(Helfer.Geburtstag, D);
        Schlüssel(Helfer.Straße, E);
        Schlüssel(Gruppe.Bezeichnung, A); // the text itself tells the order
        // Records 0 and 1 share a day, 1 is the earlier of them; 2 comes the day before.
        for (int i = 0; i < 3; ++i) {
            Meßdiener.Telefon[i] = Helfer.Telefon[i] = std::to_string(i);
            Standardmesse.Messeart[i] = std::to_string(i);
            Messe.Messeart[i] = MesseDienerFest.Nachname[i][1] = std::to_string(i);
            Messe.Datum[i] = MesseDienerFest.Datum[i] = i == 2 ? 40000 : 40001;
            Messe.Uhrzeit[i] = MesseDienerFest.Uhrzeit[i] = ZeitAus(i == 0 ? 36000 : 18000);
        }
        Standardmesse.Wochentag[0] = "Montag";
        Standardmesse.Wochentag[1] = "Dienstag";
        Standardmesse.Wochentag[2] = "Donnerstag";
        for (int i = 3; i <= 10; ++i)
            Standardmesse.Wochentag[i] = "Sonntag";
        for (int i = 0; i <= 9; ++i)
            Etikett.Name[i] = Text(1, static_cast<char>('a' + (i + 5) % 10));
    }

    /// The records of every table in their present order.
    static std::map<Text, Text> Stand()
    {
        std::map<Text, Text> stand;
        for (int i = 0; i < 3; ++i) {
            stand["Meßdiener"] += Meßdiener.Telefon[i];
            stand["Helfer"] += Helfer.Telefon[i];
            stand["Gruppe"] += Gruppe.Bezeichnung[i];
            stand["Messe"] += Messe.Messeart[i];
            stand["Fest"] += MesseDienerFest.Nachname[i][1];
            stand["Standard"] += Standardmesse.Messeart[i];
        }
        for (int i = 0; i <= 9; ++i)
            stand["Etikett"] += Etikett.Name[i];
        return stand;
    }
};

TEST_F(HauptSortierenTest, JederEintragSortiertSeineTabelleNachSeinemSchlüssel)
{
    struct Fall {
        const char *Eintrag, *Tabelle, *Folge;
    };
    const Fall fälle[] = {
        {"mnuMeßdienersort", "Meßdiener", "120"},
        {"mnuMeßdienersort2", "Meßdiener", "201"},
        {"mnuMeßdienerGruppe", "Meßdiener", "210"},
        {"mnuMeßdienerGebuSort", "Meßdiener", "102"},
        {"mnuMeßdienerStraßSort", "Meßdiener", "021"},
        {"mnuMeßhelferNachsort", "Helfer", "120"},
        {"mnuMeßhelferNachsort2", "Helfer", "201"},
        {"mnuHelfSortDienst", "Helfer", "210"},
        {"mnuHelfsortGebu", "Helfer", "102"},
        {"mnuHelferSortStraße", "Helfer", "021"},
        {"mnuGruppensort", "Gruppe", "012"},
        {"mnuSortmessen", "Messe", "201"}, // masses of one day keep their order
        {"mnuSortmessenUhr", "Messe", "210"},
        {"mnuVorbMessen", "Fest", "210"},
        {"mnuWochentag", "Standard", "120"},
        {"mnuEtiAUF", "Etikett", "abcdefghij"},
        {"mnuEtiAB", "Etikett", "jihgfedcba"},
    };
    for (const Fall &fall : fälle) {
        SCOPED_TRACE(fall.Eintrag);
        Füllen();
        auto erwartet = Stand();
        ASSERT_NE(erwartet[fall.Tabelle], fall.Folge);
        erwartet[fall.Tabelle] = fall.Folge;
        MenüWählen(fall.Eintrag);
        EXPECT_EQ(Stand(), erwartet);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(fs::is_empty(Festplatte)); // only memory changed
}

TEST_F(HauptSortierenTest, UmlauteUndKleineBuchstabenStehenHinterDenGroßen)
{
    for (const char *name : {"Ähre", "von Stein", "Zander", "", "Adler"})
        MeßdienerAnlegen("Kim", name);
    MenüWählen("mnuMeßdienersort");
    Liste namen;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        namen.push_back(Meßdiener.Nachname[i]);
    EXPECT_EQ(namen, (Liste{"", "Adler", "Zander", "von Stein", "Ähre"}));
}

TEST_F(HauptSortierenTest, KeinerOderEinerBleibtWieErIst)
{
    for (int anzahl : {0, 1}) {
        TabellenLeeren();
        Meßdiener.Nachname[0] = "Zander";
        Meßdiener.Nachname[1] = "Adler";
        Meßdiener.Anzahl = anzahl;
        MenüWählen("mnuMeßdienersort");
        EXPECT_EQ(Meßdiener.Nachname[0], "Zander");
        EXPECT_EQ(Meßdiener.Nachname[1], "Adler");
    }
}

} // namespace
} // namespace altardienst
