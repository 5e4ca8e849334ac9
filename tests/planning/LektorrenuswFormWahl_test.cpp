// The helpers of a mass: choosing a person.
#include "application/Nebenfenster.h"
#include "controls/Verlassen.h"
#include "planning/Lektorenstand.h"

namespace altardienst {
namespace {

class LektorrenuswFormWahlTest : public Lektorenstand {};

TEST_F(LektorrenuswFormWahlTest, EinBekannterNameKommtBeimVerlassenInDieFelder)
{
    Öffnen();
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        FokusAuf(LH(p));
        Einsetzen(LH(p), "Zoller,Zita");
        EXPECT_EQ(Name(p).find("Zita"), Text::npos) << "only on leaving";
        FokusAuf("Ende");
        EXPECT_EQ(Name(p), "Zita|Zoller") << p;
        Wählen(p, "Yilmaz,Yvonne");
        EXPECT_EQ(Name(p), "Yvonne|Yilmaz") << p;
        const int h = static_cast<int>(p);
        Wählen(p, Helfer.Nachname[h] + "," + Helfer.Vorname[h]);
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    EXPECT_EQ(MessenJetzt(), vorher); // not before the dialog closes
}

TEST_F(LektorrenuswFormWahlTest, AuswahlAusDerListeMitDerTastatur)
{
    Öffnen();
    FokusAuf(LH(0));
    Einsetzen(LH(0), "Höß,Hanna");
    LH(0)->setCurrentIndex(7);
    QTest::keyClick(LH(0), Qt::Key_Down);
    EXPECT_EQ(Gewählt(0), "Yilmaz,Yvonne");
    QTest::keyClick(LH(0), Qt::Key_Tab);
    EXPECT_EQ(Name(0), "Yvonne|Yilmaz");
}

TEST_F(LektorrenuswFormWahlTest, NiemandStehtZweimalInEinerMesse)
{
    Öffnen();
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        for (std::size_t q = 0; q < Plätze.size(); ++q) {
            if (p == q)
                continue;
            GezeigteMeldungen.clear();
            const Text zuvor = Gewählt(p);
            Wählen(p, Gewählt(q));
            EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Schon}) << p << q;
            EXPECT_EQ(Gewählt(p), zuvor);
        }
    }
    EXPECT_TRUE(form->close());
    EXPECT_EQ(MessenJetzt(), vorher);
}

TEST_F(LektorrenuswFormWahlTest, AuchEinAbgeschalteterPlatzZähltMit)
{
    Öffnen();
    Einsetzen("Kolt", "0");
    Wählen(0, "Höß,Hanna");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Schon});
}

TEST_F(LektorrenuswFormWahlTest, EinUnbekannterNameGehtZurück)
{
    Öffnen();
    for (const char *text : {"Niemand,Nina", "Abel", "abel,anna", "Abel,Anna ", "Zoller, Zita",
                             "Zoller,Zita\n", ",", "Zoll", "🎉"}) {
        GezeigteMeldungen.clear();
        Wählen(2, text);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Unbekannt}) << text;
        EXPECT_EQ(Gewählt(2), "Conrad,Clara");
        EXPECT_EQ(Name(2), "Clara|Conrad");
    }
}

// Reported in a real message box, which takes the focus from the place entered next.
TEST_F(LektorrenuswFormWahlTest, EinUnbekannterGehtAuchAufDemWegZumNächstenPlatzZurück)
{
    for (const char *text : {"Niemand,Nina", "Bauer,Bernd"}) {
        Öffnen();
        EchteMeldungen();
        int meldungen = 0;
        Beantworten([&](QMessageBox *box) {
            ++meldungen;
            box->accept();
        });
        LH(0)->setFocus();
        LH(0)->setCurrentText(text);
        LH(2)->setFocus();
        EXPECT_EQ(meldungen, 1) << text;
        EXPECT_EQ(LH(0)->currentText(), "Abel,Anna");
        EXPECT_EQ(Zeigt("Lecki1Vor"), "Anna");
        EXPECT_EQ(Zeigt("Lecki1nach"), "Abel");
        delete form;
    }
}

TEST_F(LektorrenuswFormWahlTest, WasDasHauptfensterAbschaltetWirdNichtVerlassen)
{
    Öffnen();
    FokusAuf(LH(0));
    HauptfensterHandelt([] {
        Messe.LektorZahl[2] = 0;
        Helfer.Nachname[0] = "Ahorn";
    });
    EXPECT_FALSE(IstAktiv(0));
    EXPECT_FALSE(LH(0)->hasFocus());
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

// What was typed counts as left and is written before each of its actions, whenever that comes.
TEST_F(LektorrenuswFormWahlTest, WährendDerMeldungBringtDasHauptfensterKeineZweite)
{
    Öffnen();
    FokusAuf(LH(0));
    Einsetzen(LH(0), "Niemand,Nina");
    Meldungen.Zeigen = [this](const Text &text) {
        GezeigteMeldungen.push_back(text);
        const OhneVerlassen offen; // as the real one
        if (GezeigteMeldungen.size() == 1)
            HauptfensterHandelt([] {});
    };
    HauptfensterHandelt([] {});
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Unbekannt});
    EXPECT_EQ(Gewählt(0), "Abel,Anna");
}

TEST_F(LektorrenuswFormWahlTest, DoppeltGiltVorUnbekannt)
{
    Helfer.Anzahl = 0;
    Öffnen();
    Wählen(0, "Bauer,Bernd");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Schon});
}

TEST_F(LektorrenuswFormWahlTest, NurEinKommaAlleinWirdLeer)
{
    (*Vor[3])[2].clear();
    Öffnen();
    Wählen(3, "Niemand,Nina");
    EXPECT_EQ(LH(3)->currentText(), "Dahl,");
}

TEST_F(LektorrenuswFormWahlTest, OhneNamenGehtDasFeldAufLeerZurück)
{
    Öffnen();
    Wählen(2, "");
    EXPECT_EQ(Name(2), "|");
    for (const char *text : {"Niemand,Nina", "Abel,Anna"}) {
        Wählen(2, text);
        EXPECT_EQ(Gewählt(2), "");
        EXPECT_EQ(Name(2), "|");
    }
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{Unbekannt, Schon}));
}

TEST_F(LektorrenuswFormWahlTest, OhneHelferIstJederNameUnbekannt)
{
    Helfer.Anzahl = 0;
    Öffnen();
    EXPECT_EQ(LH(0)->count(), 0);
    EXPECT_EQ(Gewählt(0), "Abel,Anna");
    FokusAuf(LH(0)); // even the one already there, once it is left
    FokusAuf("Ende");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Unbekannt});
    EXPECT_EQ(Gewählt(0), "Abel,Anna");
    Wählen(0, "");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(LektorrenuswFormWahlTest, EinLeeresFeldNebenEinemBesetztenGeht)
{
    Öffnen();
    Wählen(1, "");
    Klick("Ende");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    EXPECT_EQ(geschlossen, 1);
    EXPECT_EQ(Messe.LektorZahl[2], 2);
    EXPECT_EQ(Gespeichert(0), "Anna|Abel");
    EXPECT_EQ(Gespeichert(1), "|");
}

TEST_F(LektorrenuswFormWahlTest, MehrereLeereFelderSindNichtDoppelt)
{
    Öffnen();
    Wählen(1, "");
    Wählen(4, "");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(LektorrenuswFormWahlTest, EinNameMitKommaWirdAmErstenGetrennt)
{
    HelferAnlegen("Karl, jun.", "Klein", "Lektor");
    HelferAnlegen("Ida", "Imhof, geb. Iven", "Lektor");
    Öffnen();
    Wählen(0, "Klein,Karl, jun.");
    EXPECT_EQ(Name(0), "Karl, jun.|Klein");
    Wählen(0, "Imhof, geb. Iven,Ida");
    EXPECT_EQ(Name(0), " geb. Iven,Ida|Imhof");
}

TEST_F(LektorrenuswFormWahlTest, EinHelferOhneNachnamenLässtDenNachnamenStehen)
{
    HelferAnlegen("Bruder Konrad", "", "Lektor");
    Öffnen();
    Wählen(0, ",Bruder Konrad");
    EXPECT_EQ(Name(0), "Bruder Konrad|Abel");
}

TEST_F(LektorrenuswFormWahlTest, VerlassenTeiltAlleAchtPlätze)
{
    Öffnen();
    for (const Lektorenplatz &platz : Plätze) {
        Einsetzen(platz.Vor, "von Hand");
        Einsetzen(platz.Nach, "von Hand");
    }
    Einsetzen(LH(5), "");
    Einsetzen(LH(6), "Zoller,Zita"); // in no list box when it is left
    Wählen(0, "Abel,Anna");
    for (const std::size_t p : {0U, 1U, 2U, 3U, 4U, 7U})
        EXPECT_EQ(Name(p),
                  Helfer.Vorname[static_cast<int>(p)] + "|" + Helfer.Nachname[static_cast<int>(p)]);
    EXPECT_EQ(Name(5), "|");
    EXPECT_EQ(Name(6), "Zita|Zoller");
}

} // namespace
} // namespace altardienst
