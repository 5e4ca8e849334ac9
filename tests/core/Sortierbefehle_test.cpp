// Each sort command against a written-out adjacent exchange: its table, key, range, scratch record
// and the fields that move.
#include "core/SchleifenZähler.h"
#include "core/Sortierbefehle.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

#include <functional>
#include <random>
#include <tuple>

namespace altardienst {
namespace {

/// Collects or writes all fields of a record as texts and numbers.
struct Abbild {
    std::vector<Text> Texte;
    std::vector<double> Zahlen;

    void operator()(Text &wert) { Texte.push_back(wert); }
    void operator()(Int16 &wert) { Zahlen.push_back(wert); }
    void operator()(Int32 &wert) { Zahlen.push_back(wert); }
    void operator()(Single &wert) { Zahlen.push_back(wert); }
    void operator()(Datum &wert) { Zahlen.push_back(wert); }
    void Zeit(Datum &wert) { Zahlen.push_back(wert); }

    bool operator==(const Abbild &) const = default;
};

/// Gives every field one of a few random values, so that keys are often equal.
struct Würfeln {
    std::mt19937 &Zufall;

    int Bis(unsigned höchster) { return static_cast<int>(Zufall() % (höchster + 1)); }
    void operator()(Text &wert)
    {
        static const char *const texte[] = {"",    "Abel",  "Zorn", "abel", "Ähre",    "ßa",
                                            "Abe", "Abel ", "zorn", "Öhm",  "Dienstag"};
        wert = texte[Bis(std::size(texte) - 1)];
    }
    void operator()(Int16 &wert) { wert = Bis(1000); }
    void operator()(Int32 &wert) { wert = Bis(99999); }
    void operator()(Single &wert) { wert = static_cast<Single>(Bis(100)) / 4; }
    void operator()(Datum &wert) { wert = Bis(9) == 0 ? 0 : 46000 + Bis(20); }
    void Zeit(Datum &wert) { wert = ZeitAus(Bis(5) * 3600); }
};

using Schlüssel = std::tuple<Text, double, double>;

struct Befehl {
    const char *Name;
    void (*Sortieren)();
    int Datei;
    int Höchster; // index of the table
    int Hilfssatz;
    int Nachfüllung;
    bool Schrumpfend;
    std::function<Schlüssel(int)> Von;
    bool Absteigend = false;
};

Schlüssel AusText(const Text &text)
{
    return {text, 0, 0};
}

Schlüssel AusDatum(Datum datum, Datum uhrzeit = 0)
{
    return {"", datum, uhrzeit};
}

const std::vector<Befehl> &Befehle()
{
    auto &m = Meßdiener;
    auto &h = Helfer;
    static const std::vector<Befehl> befehle = {
        {"mnuMeßdienersort", MeßdienerNachNachnameSortieren, DateiMeßdiener, 402, 402, -1, true,
         [&](int i) { return AusText(m.Nachname[i]); }},
        {"mnuMeßdienersort2", MeßdienerNachVornameSortieren, DateiMeßdiener, 402, 402, -1, true,
         [&](int i) { return AusText(m.Vorname[i]); }},
        {"mnuMeßdienerGruppe", MeßdienerNachGruppeSortieren, DateiMeßdiener, 402, 402, -1, true,
         [&](int i) { return AusText(m.Gruppe[i]); }},
        {"mnuMeßdienerGebuSort", MeßdienerNachGeburtstagSortieren, DateiMeßdiener, 402, 402, -1,
         true, [&](int i) { return AusDatum(m.Geburtstag[i]); }},
        {"mnuMeßdienerStraßSort", MeßdienerNachStraßeSortieren, DateiMeßdiener, 402, 402, -1, true,
         [&](int i) { return AusText(m.Straße[i]); }},
        {"mnuMeßhelferNachsort", HelferNachNachnameSortieren, DateiHelfer, 202, 202, -1, true,
         [&](int i) { return AusText(h.Nachname[i]); }},
        {"mnuMeßhelferNachsort2", HelferNachVornameSortieren, DateiHelfer, 202, 202, -1, true,
         [&](int i) { return AusText(h.Vorname[i]); }},
        {"mnuHelfSortDienst", HelferNachDienstSortieren, DateiHelfer, 202, 202, -1, true,
         [&](int i) { return AusText(h.Dienst1[i]); }},
        {"mnuHelfsortGebu", HelferNachGeburtstagSortieren, DateiHelfer, 202, 202, -1, true,
         [&](int i) { return AusDatum(h.Geburtstag[i]); }},
        {"mnuHelferSortStraße", HelferNachStraßeSortieren, DateiHelfer, 202, 202, -1, true,
         [&](int i) { return AusText(h.Straße[i]); }},
        {"mnuGruppensort", GruppenSortieren, DateiGruppe, 102, 102, -1, true,
         [](int i) { return AusText(Gruppe.Bezeichnung[i]); }},
        {"mnuSortmessen", MessenNachDatumSortieren, DateiMesse, 602, 602, -1, true,
         [](int i) { return AusDatum(Messe.Datum[i]); }},
        {"mnuSortmessenUhr", MessenSortieren, DateiMesse, 602, 602, -1, true,
         [](int i) { return AusDatum(Messe.Datum[i], Messe.Uhrzeit[i]); }},
        {"mnuVorbMessen", VorbesetzteMessenSortieren, DateiMesseDienerFest, 602, 202, 201, true,
         [](int i) { return AusDatum(MesseDienerFest.Datum[i], MesseDienerFest.Uhrzeit[i]); }},
        {"mnuWochentag", StandardmessenNachWochentagSortieren, DateiStandardmesse, 22, 22, -1, true,
         [](int i) { return AusText(Standardmesse.Wochentag[i]); }},
        {"mnuEtiAUF", EtikettenAufsteigendSortieren, DateiEtikett, 22, 22, 21, false,
         [](int i) { return AusText(Etikett.Name[i]); }},
        {"mnuEtiAB", EtikettenAbsteigendSortieren, DateiEtikett, 22, 22, 21, false,
         [](int i) { return AusText(Etikett.Name[i]); }, true},
    };
    return befehle;
}

/// The highest index up to which the passes of a command run, `n`.
int NVon(const Befehl &befehl)
{
    switch (befehl.Datei) {
    case DateiMeßdiener:
        return Meßdiener.Anzahl - 2;
    case DateiHelfer:
        return Helfer.Anzahl - 2;
    case DateiGruppe:
        return Gruppe.Anzahl - 2;
    case DateiMesse:
        return Messe.Anzahl - 2;
    case DateiMesseDienerFest:
        return MesseDienerFest.Anzahl - 2;
    case DateiStandardmesse:
        return 9;
    default:
        return 8;
    }
}

Abbild AbbildVon(const Befehl &befehl, int i)
{
    Abbild abbild;
    SatzFelder(befehl.Datei, i, abbild);
    if (befehl.Datei == DateiMesseDienerFest)
        abbild(MesseDienerFest.Index[i]); // moves, though it isn't in the file
    return abbild;
}

class SortierbefehleTest : public Prüfstand {
  protected:
    /// All tables full of random values, with `anzahl` records each.
    static void Würfle(std::mt19937 &zufall, int anzahl)
    {
        Würfeln würfeln{zufall};
        for (const Befehl &befehl : Befehle())
            for (int i = 0; i <= befehl.Höchster; ++i)
                SatzFelder(befehl.Datei, i, würfeln);
        for (int i = 0; i <= 602; ++i)
            MesseDienerFest.Index[i] = i;
        for (int i = 0; i <= 402; ++i) {
            Meßdiener.Belegt[i] = Meßdiener.DienstZähler[i] = i;
            Meßdiener.LetzterDienst[i] = i;
        }
        for (int i = 0; i <= 300; ++i) {
            Helfer.Belegt[i] = i;
            Helfer.LetzterDienst[i] = i;
        }
        Meßdiener.Anzahl = std::min(anzahl, 403);
        Messe.Anzahl = MesseDienerFest.Anzahl = std::min(anzahl, 603);
        Helfer.Anzahl = std::min(anzahl, 203);
        Gruppe.Anzahl = std::min(anzahl, 103);
        Standardmesse.Anzahl = 5;
        Etikett.Anzahl = 5;
    }

    /// Runs the command and expects what exchanging record by record gives.
    static void PrüfeBefehl(const Befehl &befehl)
    {
        SCOPED_TRACE(befehl.Name);
        struct Satz {
            Schlüssel Key;
            int Quelle;
        };
        std::vector<Satz> soll;
        std::vector<Abbild> zuvor;
        for (int i = 0; i <= befehl.Höchster; ++i) {
            soll.push_back({befehl.Von(i), i});
            zuvor.push_back(AbbildVon(befehl, i));
        }
        auto satz = [&](int i) -> Satz & { return soll[static_cast<std::size_t>(i)]; };
        int n = NVon(befehl);
        for (int i = 0; i <= n; ++i)
            for (int j = 0; j <= n - (befehl.Schrumpfend ? i : 0); ++j) {
                bool tauschen = befehl.Absteigend ? satz(j).Key < satz(j + 1).Key
                                                  : satz(j).Key > satz(j + 1).Key;
                if (!tauschen)
                    continue;
                satz(befehl.Hilfssatz) = Satz(satz(j));
                satz(j) = Satz(satz(j + 1));
                satz(j + 1) = Satz(satz(befehl.Hilfssatz));
                if (befehl.Nachfüllung >= 0)
                    satz(befehl.Hilfssatz) = Satz(satz(befehl.Nachfüllung));
            }
        befehl.Sortieren();
        for (int i = 0; i <= befehl.Höchster; ++i)
            ASSERT_EQ(AbbildVon(befehl, i), zuvor[static_cast<std::size_t>(satz(i).Quelle)])
                << "record " << i << " of n " << n;
    }
};

TEST_F(SortierbefehleTest, JederBefehlWieSatzFürSatzGetauscht)
{
    std::mt19937 zufall(7);
    for (int anzahl : {0, 1, 2, 3, 5, 20, 60, 101, 150}) {
        Würfle(zufall, anzahl);
        for (const Befehl &befehl : Befehle())
            ASSERT_NO_FATAL_FAILURE(PrüfeBefehl(befehl)) << anzahl;
    }
}

TEST_F(SortierbefehleTest, VolleTabellenBisInDenHilfssatz)
{
    std::mt19937 zufall(8);
    for (int anzahl : {203, 402, 403, 603}) {
        Würfle(zufall, anzahl);
        for (const Befehl &befehl : Befehle())
            ASSERT_NO_FATAL_FAILURE(PrüfeBefehl(befehl)) << anzahl;
    }
}

TEST_F(SortierbefehleTest, VorbesetzteMessenMitMehrAls202Einträgen)
{
    std::mt19937 zufall(9);
    const Befehl &befehl = Befehle()[13];
    ASSERT_STREQ(befehl.Name, "mnuVorbMessen");
    for (int anzahl = 198; anzahl <= 215; ++anzahl) {
        Würfle(zufall, anzahl);
        ASSERT_NO_FATAL_FAILURE(PrüfeBefehl(befehl)) << anzahl;
    }
}

TEST_F(SortierbefehleTest, SpaltenEinesLaufesBewegenSichNicht)
{
    std::mt19937 zufall(10);
    Würfle(zufall, 50);
    MeßdienerNachNachnameSortieren();
    HelferNachNachnameSortieren();
    for (int i = 0; i <= 402; ++i) {
        EXPECT_EQ(Meßdiener.Belegt[i], i);
        EXPECT_EQ(Meßdiener.DienstZähler[i], i);
        EXPECT_EQ(Meßdiener.LetzterDienst[i], i);
    }
    for (int i = 0; i <= 300; ++i) {
        EXPECT_EQ(Helfer.Belegt[i], i);
        EXPECT_EQ(Helfer.LetzterDienst[i], i);
    }
}

TEST_F(SortierbefehleTest, SortierenÄndertWederAnzahlNochCursorNochAndereTabellen)
{
    std::mt19937 zufall(11);
    Würfle(zufall, 30);
    Abbild köpfe;
    for (int datei = 0; datei < 8; ++datei)
        KopfFelder(datei, köpfe);
    std::vector<std::string> zuvor;
    for (int datei = 0; datei < 8; ++datei)
        zuvor.push_back(InhaltVon(datei));
    for (const Befehl &befehl : Befehle()) {
        befehl.Sortieren();
        for (int datei = 0; datei < 8; ++datei) {
            auto stelle = static_cast<std::size_t>(datei);
            std::string danach = InhaltVon(datei);
            EXPECT_TRUE(danach == zuvor[stelle] || datei == befehl.Datei) << befehl.Name;
            zuvor[stelle] = danach;
        }
    }
    Abbild danach;
    for (int datei = 0; datei < 8; ++datei)
        KopfFelder(datei, danach);
    EXPECT_EQ(danach, köpfe);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(std::filesystem::is_empty(Festplatte)) << "only memory changes";
}

TEST_F(SortierbefehleTest, AnzahlÜberDerTabelleIstFehler9)
{
    Meßdiener.Anzahl = 404;
    Messe.Anzahl = MesseDienerFest.Anzahl = 604;
    Helfer.Anzahl = 204;
    Gruppe.Anzahl = 104;
    for (const Befehl &befehl : Befehle()) {
        const bool hinaus = NVon(befehl) > befehl.Höchster - 1;
        EXPECT_EQ(NummerDesFehlers(befehl.Sortieren), hinaus ? 9 : 0) << befehl.Name;
        EXPECT_EQ(SchleifenZähler == 0, hinaus) << befehl.Name; // fails in its first pass
    }
    Meßdiener.Anzahl = -32768;
    EXPECT_EQ(NummerDesFehlers(MeßdienerNachNachnameSortieren), 6);
}

} // namespace
} // namespace altardienst
