// The settings: the limited numbers, and postal code and town.
#include "settings/Konfigurationsstand.h"

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

struct Grenzen {
    const char *Box;
    const char *Spin;
    Int16 *Feld;
    int Von;
    int Bis;
};

const Grenzen Begrenzte[] = {
    {"GrenzAuslos", "ÄLF", &Konfig.GrenzeAuslöse, 1, 99},
    {"Linker", "Änderung3", &Konfig.RandLinks, 1, 55},
    {"OB", "Änderung7", &Konfig.RandOben, 1, 55},
    {"Unt", "Änderung5", &Konfig.RandUnten, 5, 50},
    {"Über", "Änderung4", &Konfig.Überschriftgröße, 1, 50},
    {"Schriftg", "Änderung2", &Konfig.Schriftgröße, 1, 30},
};

class KonfigurationZahlenFormTest : public Konfigurationsstand {};

TEST_F(KonfigurationZahlenFormTest, JedeZahlLiegtBeiJederÄnderungInIhrenGrenzen)
{
    Öffnen();
    for (const Grenzen &g : Begrenzte) {
        const std::pair<int, int> fälle[] = {{g.Von - 1, g.Von},
                                             {g.Von, g.Von},
                                             {g.Von + 1, g.Von + 1},
                                             {g.Bis - 1, g.Bis - 1},
                                             {g.Bis, g.Bis},
                                             {g.Bis + 1, g.Bis},
                                             {-1, g.Von},
                                             {40000, g.Bis}};
        for (const auto &[eingabe, wert] : fälle) {
            Einfügen(g.Box, std::to_string(eingabe).c_str());
            EXPECT_EQ(Zeigt(g.Box), std::to_string(wert)) << g.Box << " " << eingabe;
            EXPECT_EQ(*g.Feld, wert) << g.Box << " " << eingabe;
        }
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationZahlenFormTest, WasKeineZahlIstBleibtStehenUndDasFeldBehältSeinenWert)
{
    Öffnen();
    for (const char *box :
         {"GrenzAuslos", "Linker", "OB", "Unt", "Über", "Schriftg", "DiffG", "tagilein"}) {
        Einfügen(box, "8");
        Taste(box, Qt::Key_Return);
        for (const auto &[eingabe, zeigt] : {std::pair{"x", "x"}, {"😀", "?"}, {"1\n2", "1 2"}}) {
            Einfügen(box, eingabe);
            EXPECT_EQ(Zeigt(box), zeigt) << box;
        }
        Leeren(box);
        EXPECT_EQ(Zeigt(box), "") << box;
        Verlassen();
        EXPECT_EQ(Zeigt(box), "") << box;
    }
    for (const Grenzen &g : Begrenzte)
        EXPECT_EQ(*g.Feld, 8) << g.Box;
    EXPECT_EQ(Konfig.DiffGröße, 4);
    EXPECT_EQ(Konfig.Tage, 8);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationZahlenFormTest, JederDrehknopfBewegtSeineBoxUndGibtIhrDenFokus)
{
    Öffnen();
    for (const Grenzen &g : Begrenzte) {
        Einfügen(g.Box, std::to_string(g.Bis - 1).c_str());
        for (const auto &[richtung, wert] : {std::pair{"auf", g.Bis},
                                             {"auf", g.Bis}, // clipped by its own rule
                                             {"ab", g.Bis - 1}}) {
            Verlassen();
            Drehen(g.Spin, richtung);
            EXPECT_EQ(Zeigt(g.Box), std::to_string(wert)) << g.Box;
            EXPECT_EQ(*g.Feld, wert) << g.Box;
            EXPECT_TRUE(Finden(g.Box)->hasFocus()) << g.Box;
        }
        Einfügen(g.Box, std::to_string(g.Von).c_str());
        Drehen(g.Spin, "ab");
        EXPECT_EQ(*g.Feld, g.Von) << g.Box;
        Leeren(g.Box);
        Drehen(g.Spin, "auf");
        EXPECT_EQ(Zeigt(g.Box), "") << g.Box;
        EXPECT_EQ(*g.Feld, g.Von) << g.Box;
        EXPECT_TRUE(Finden(g.Box)->hasFocus()) << g.Box;
    }
}

// The setting is rounded, a half to the even neighbour, but the box is not.
TEST_F(KonfigurationZahlenFormTest, EinBruchBleibtBeimDrehenEinBruch)
{
    Öffnen();
    for (const Grenzen &g : Begrenzte) {
        Einfügen(g.Box, "7,5");
        EXPECT_EQ(*g.Feld, 8) << g.Box;
        Drehen(g.Spin, "auf");
        EXPECT_EQ(Zeigt(g.Box), "8,5") << g.Box;
        EXPECT_EQ(*g.Feld, 8) << g.Box;
        Drehen(g.Spin, "auf");
        EXPECT_EQ(Zeigt(g.Box), "9,5") << g.Box;
        EXPECT_EQ(*g.Feld, 10) << g.Box;
        Einfügen(g.Box, (std::to_string(g.Bis - 1) + ",5").c_str());
        Drehen(g.Spin, "auf");
        EXPECT_EQ(Zeigt(g.Box), std::to_string(g.Bis)) << g.Box;
    }
    Einfügen("DiffG", "4,5");
    Drehen("Änderung6", "auf");
    EXPECT_EQ(Zeigt("DiffG"), "5,5");
    EXPECT_EQ(Konfig.DiffGröße, 3);
}

TEST_F(KonfigurationZahlenFormTest, SchonBeimÖffnenWirdBegrenzt)
{
    for (const Grenzen &g : Begrenzte)
        *g.Feld = 0;
    Konfig.DiffGröße = 0;
    Konfig.Tage = 0;
    Öffnen();
    for (const Grenzen &g : Begrenzte) {
        EXPECT_EQ(*g.Feld, g.Von) << g.Box;
        *g.Feld = 30000;
    }
    EXPECT_EQ(Zeigt("DiffG"), "2");
    EXPECT_EQ(Konfig.DiffGröße, 1);
    EXPECT_EQ(Zeigt("tagilein"), "0"); // has no rule for changes
    EXPECT_EQ(Konfig.Tage, 0);
    Konfig.DiffGröße = 30000;
    Öffnen();
    for (const Grenzen &g : Begrenzte)
        EXPECT_EQ(*g.Feld, g.Bis) << g.Box;
    EXPECT_EQ(Zeigt("DiffG"), "50");
    EXPECT_EQ(Konfig.DiffGröße, 25);
}

TEST_F(KonfigurationZahlenFormTest, DieGrößendifferenzZeigtDasGanzeBand)
{
    const std::tuple<const char *, const char *, int> fälle[] = {
        {"1", "2", 1},    {"2", "2", 1},      {"-1", "2", 1},    {"50", "50", 25},
        {"51", "51", 26}, {"100", "100", 50}, {"101", "50", 25}, {"40000", "50", 25},
        {"7", "7", 4},    {"5", "5", 2}};
    Öffnen();
    for (const auto &[eingabe, zeigt, feld] : fälle) {
        Einfügen("DiffG", eingabe);
        EXPECT_EQ(Zeigt("DiffG"), zeigt) << eingabe;
        EXPECT_EQ(Konfig.DiffGröße, feld) << eingabe;
    }
    for (const auto &[eingabe, wieder] : {std::pair{"7", "8"}, {"5", "4"}, {"100", "100"}}) {
        Einfügen("DiffG", eingabe);
        Öffnen();
        EXPECT_EQ(Zeigt("DiffG"), wieder);
    }
}

TEST_F(KonfigurationZahlenFormTest, DieGrößendifferenzBeimDrehenUndVerlassen)
{
    Öffnen();
    Einfügen("DiffG", "99");
    Drehen("Änderung6", "auf");
    EXPECT_EQ(Zeigt("DiffG"), "100");
    Drehen("Änderung6", "auf");
    EXPECT_EQ(Zeigt("DiffG"), "50"); // falls back
    EXPECT_TRUE(Finden("DiffG")->hasFocus());
    Einfügen("DiffG", "2");
    Drehen("Änderung6", "ab");
    EXPECT_EQ(Zeigt("DiffG"), "2");
    Konfig.DiffGröße = 77;
    Verlassen();
    EXPECT_EQ(Konfig.DiffGröße, 1);
}

/// What the box of postal code and town does when it is left.
class KonfigurationOrtFormTest : public Konfigurationsstand {
  protected:
    static constexpr auto ZuKurz = "Keine korrekte Angabe von PLZ und Ort";
    static constexpr auto KeineLeerstelle =
        "Es ist die PLZ, Leerstelle und dann der Ort anzugeben!!!!";

    Text NachVerlassen(const char *eingabe)
    {
        GezeigteMeldungen.clear();
        Einfügen("Örtchus", eingabe);
        if (!*eingabe)
            Leeren("Örtchus");
        Verlassen();
        EXPECT_EQ(Konfig.PlzOrt, Zeigt("Örtchus"));
        return Zeigt("Örtchus");
    }
};

TEST_F(KonfigurationOrtFormTest, ErstBeimVerlassenGilt)
{
    Öffnen();
    Einfügen("Örtchus", "48653 Coesfeld");
    EXPECT_EQ(Konfig.PlzOrt, "43217 Quellersheim");
    Verlassen();
    EXPECT_EQ(Konfig.PlzOrt, "48653 Coesfeld");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationOrtFormTest, DieRegelnMitIhrenMeldungen)
{
    Öffnen();
    const std::tuple<const char *, const char *, Liste> fälle[] = {
        {"48653 Coesfeld", "48653 Coesfeld", {}},
        {"4865", "48653 Coesfeld", {ZuKurz}},
        {"48653", "48653 Coesfeld", {KeineLeerstelle}},
        {"486530 Ort", "48653 Coesfeld", {KeineLeerstelle}},
        {"abcde f", "abcde f", {}},
        {"40000", "abcde f", {KeineLeerstelle}},
        {"-1", "abcde f", {ZuKurz}},
        {"😀", "abcde f", {ZuKurz}},
        {"48653\nCoesfeld", "48653 Coesfeld", {}}, // a line break becomes a blank
        {"", "49999 Musterstadt", {ZuKurz}}};
    for (const auto &[eingabe, zeigt, meldungen] : fälle) {
        EXPECT_EQ(NachVerlassen(eingabe), zeigt) << eingabe;
        EXPECT_EQ(GezeigteMeldungen, meldungen) << eingabe;
    }
}

TEST_F(KonfigurationOrtFormTest, EinZuKurzerGespeicherterTextBringtBeideMeldungen)
{
    Konfig.PlzOrt = "432";
    Öffnen();
    EXPECT_EQ(NachVerlassen("12"), "432");
    EXPECT_EQ(GezeigteMeldungen, (Liste{ZuKurz, KeineLeerstelle}));
}

TEST_F(KonfigurationOrtFormTest, DieMeldungIstEinFensterUndDanachGehtEsWeiter)
{
    EchteMeldungen();
    Öffnen();
    Einfügen("Örtchus", "4");
    Text gelesen;
    Beantworten([&](QMessageBox *box) {
        gelesen = box->text().toStdString();
        box->accept();
    });
    QTest::keyClick(Finden("Örtchus"), Qt::Key_Tab);
    EXPECT_EQ(gelesen, ZuKurz);
    EXPECT_EQ(Zeigt("Örtchus"), "43217 Quellersheim");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(KonfigurationOrtFormTest, DieMeldungVerläßtNichtDieTageDieNurBetretenSind)
{
    Öffnen();
    MeldungenBestätigen();
    Einfügen("Örtchus", "4");
    Einsetzen("tagilein", "150"); // allowed until the box is left
    Finden("tagilein")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(GezeigteMeldungen, (Liste{ZuKurz}));
    EXPECT_EQ(Zeigt("tagilein"), "150");
    EXPECT_TRUE(Finden("tagilein")->hasFocus());
    FokusAuf("Ende");
    EXPECT_EQ(Zeigt("tagilein"), "120");
}

TEST_F(KonfigurationOrtFormTest, BeimSchließenWirdNichtsGeprüft)
{
    Öffnen();
    Einfügen("Örtchus", "4");
    form->close();
    EXPECT_TRUE(Warten([&] { return form.isNull(); }));
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Konfig.PlzOrt, "43217 Quellersheim");
}

} // namespace
} // namespace altardienst
