// The label part of the form Druck: formats, the first place, whom the labels are for.
#include "printing/Druckfenster.h"

#include "shell/HauptForm.h"

#include <QApplication>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class DruckFormEtikettenTest : public Druckfenster {
  protected:
    /// "Reihe/Spalte" as the form shows them.
    Text Platz() const { return Zeigt("Reih") + "/" + Zeigt("Spal"); }

    void PlatzEingeben(const char *reihe, const char *spalte) const
    {
        Tippen("Reih", reihe);
        Tippen("Spal", spalte);
    }

    /// The first lines of all labels.
    Liste Namen()
    {
        Liste namen;
        for (const Text &zeile : Gedruckt("Etiketten"))
            if (zeile.ends_with("Berg") || zeile.ends_with("Lang"))
                namen.push_back(zeile.substr(0, zeile.find(' ')));
        return namen;
    }
};

TEST_F(DruckFormEtikettenTest, ÖffnetMitDemGewähltenFormatUndDemErstenPlatz)
{
    Etikett.Anzahl = 4;
    Etikett.Name[9] = "Groß & klein";
    Öffnen();
    for (int n = 1; n <= 10; ++n) {
        const Text name = "O" + std::to_string(n);
        EXPECT_EQ(Angekreuzt(name.c_str()), n == 5) << name;
        EXPECT_EQ(Zeigt(name), n == 10 ? "Groß && klein" : "Format " + std::to_string(n - 1));
    }
    EXPECT_EQ(Platz(), "1/1");
    EXPECT_TRUE(Angekreuzt("Alles"));
}

TEST_F(DruckFormEtikettenTest, JedeOptionWähltIhrFormat)
{
    Öffnen();
    for (int n = 10; n >= 1; --n) {
        Ankreuzen("O" + std::to_string(n));
        EXPECT_EQ(Etikett.Anzahl, n - 1);
    }
    FokusAuf("O1");
    QTest::keyClick(Finden("O1"), Qt::Key_Down);
    EXPECT_EQ(Etikett.Anzahl, 1);
}

TEST_F(DruckFormEtikettenTest, EineNummerOhneFormatWähltKeines)
{
    for (const int anzahl : {15, -1, 400}) {
        Etikett.Anzahl = anzahl;
        Öffnen();
        EXPECT_EQ(Etikett.Anzahl, anzahl);
        EXPECT_EQ(Gedruckt("Etiketten"), Liste{});
        delete form;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, NachDerWahlLiegtDerPlatzAufDemBogen)
{
    Etikett.Reihen[1] = 2;
    Etikett.Spalten[1] = 2;
    Öffnen();
    PlatzEingeben("4", "3");
    Ankreuzen("O2");
    EXPECT_EQ(Platz(), "2/2");
    Ankreuzen("O1");
    EXPECT_EQ(Platz(), "2/2"); // a larger sheet changes nothing
    PlatzEingeben("", "");
    Ankreuzen("O3");
    EXPECT_EQ(Platz(), "1/1");
    PlatzEingeben("99", "0");
    Ankreuzen("O3");
    EXPECT_EQ(Platz(), "4/1");
    PlatzEingeben("3,5", "99");
    Ankreuzen("O4");
    EXPECT_EQ(Platz(), "3,5/3");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, DieDrehknöpfeZählenUmEinsErstDieWahlHoltAufDenBogen)
{
    Öffnen();
    Drehen("ÄReih", "ab");
    EXPECT_EQ(Platz(), "0/1");
    for (int mal = 0; mal < 5; ++mal) {
        Drehen("ÄReih", "auf");
        Drehen("ÄSpal", "auf");
    }
    EXPECT_EQ(Platz(), "5/6");
    Drehen("ÄSpal", "ab");
    EXPECT_EQ(Platz(), "5/5");
    Ankreuzen("O2");
    EXPECT_EQ(Platz(), "4/3");
    for (const char *keine : {"x", ""}) {
        PlatzEingeben(keine, keine);
        Drehen("ÄReih", "auf");
        Drehen("ÄSpal", "ab");
        EXPECT_EQ(Platz(), keine + Text("/") + keine);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, VerlassenLässtDenPlatzWieGetippt)
{
    Öffnen();
    for (const char *text : {"99", "5", "0", "-1", "2,5", "", "x"}) {
        PlatzEingeben(text, text);
        FokusAuf("Reih");
        FokusAuf("Ende");
        EXPECT_EQ(Platz(), text + Text("/") + text);
    }
}

TEST_F(DruckFormEtikettenTest, EineOptionGruppeEntscheidetÜberDieLeute)
{
    Öffnen();
    Finden<QComboBox>("Gruppend")->setCurrentIndex(1);
    EXPECT_EQ(Namen(), (Liste{"Anna", "Ben", "Cara"}));
    Ankreuzen("GRP");
    EXPECT_FALSE(Angekreuzt("Alles"));
    EXPECT_EQ(Namen(), (Liste{"Ben", "Cara"}));
    Ankreuzen("Messhelfer");
    EXPECT_FALSE(Angekreuzt("GRP"));
    EXPECT_EQ(Namen(), Liste{"Lea"});
    Ankreuzen("Alles");
    EXPECT_FALSE(Angekreuzt("Messhelfer"));
    EXPECT_EQ(Namen(), (Liste{"Anna", "Ben", "Cara"}));
    EXPECT_TRUE(Angekreuzt("O1")); // a group of its own
}

TEST_F(DruckFormEtikettenTest, DiePfeiltastenBleibenInIhrerOptionsgruppe)
{
    Öffnen();
    FokusAuf("Alles");
    const std::vector<std::pair<const char *, Qt::Key>> schritte = {{"GRP", Qt::Key_Right},
                                                                    {"Messhelfer", Qt::Key_Right},
                                                                    {"GRP", Qt::Key_Left},
                                                                    {"Alles", Qt::Key_Left},
                                                                    {"Alles", Qt::Key_Down}};
    for (const auto &[option, taste] : schritte) {
        QTest::keyClick(QApplication::focusWidget(), taste);
        EXPECT_TRUE(Angekreuzt(option)) << option;
        EXPECT_EQ(Etikett.Anzahl, 0);
        EXPECT_TRUE(Angekreuzt("O1"));
    }
}

TEST_F(DruckFormEtikettenTest, EineGruppeOhneMitgliedDrucktNichts)
{
    Öffnen();
    Ankreuzen("GRP"); // "Die Kleinen" has none
    EXPECT_EQ(Namen(), Liste{});
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

TEST_F(DruckFormEtikettenTest, DanachIstDerNächstePlatzVorgeschlagen)
{
    Öffnen();
    PlatzEingeben("2", "2");
    EXPECT_EQ(Namen().size(), 3U); // 2/2, 2/3, 3/1
    EXPECT_EQ(Platz(), "3/2");
    EXPECT_EQ(Namen().size(), 3U); // 3/2, 3/3, 4/1
    EXPECT_EQ(Platz(), "4/2");
}

TEST_F(DruckFormEtikettenTest, EinVorschlagHinterDerLetztenSpalteWirdZurückgeholt)
{
    Öffnen();
    EXPECT_EQ(Namen().size(), 3U); // fills the first row
    EXPECT_EQ(Platz(), "1/3");
}

TEST_F(DruckFormEtikettenTest, AbgebrochenBleibtDerPlatzWieGetippt)
{
    Papier.Antwort = std::nullopt;
    Öffnen();
    for (const auto &[reihe, spalte] :
         {std::pair("2", "3"), {"99", "0"}, {"5", "4"}, {"2,5", "-1"}, {"", ""}, {"x", "99999"}}) {
        PlatzEingeben(reihe, spalte);
        Gedruckt("Etiketten");
        EXPECT_EQ(Papier.Zeilen, Liste{"Dialog"});
        EXPECT_EQ(Platz(), reihe + Text("/") + spalte);
    }
}

TEST_F(DruckFormEtikettenTest, DerDruckBeginntWoEsGetipptIstAuchNebenDemBogen)
{
    Etikett.Höhe[0] = 30;
    Konfig.YSkala = 1;
    Öffnen();
    PlatzEingeben("7", "1");
    Gedruckt("Etiketten");
    EXPECT_EQ(Papier.WieOft("CurrentY 180"), 3) << "the seventh row of four";
    EXPECT_EQ(Platz(), "4/3") << "brought back onto the sheet";
}

TEST_F(DruckFormEtikettenTest, NachEinemDruckerfehlerStehtDerPlatzWieZuvor)
{
    Öffnen();
    PlatzEingeben("2", "2");
    for (const int fehler : {2, 10, 15}) { // the font, the first label, the second one
        Papier.FehlerBei = fehler;
        Gedruckt("Etiketten");
        EXPECT_EQ(Papier.Zeilen.back(), "Verwerfen");
        EXPECT_EQ(Platz(), "2/2") << fehler;
    }
    Papier.FehlerBei = 0;
    EXPECT_EQ(Namen().size(), 3U);
    EXPECT_EQ(Platz(), "3/2");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, EineZahlJenseitsAllerBögenWirdZurückgeholt)
{
    Öffnen();
    for (const char *zahl : {"32767", "32768", "99999", "1234567890"}) {
        const Text negativ = Text("-") + zahl;
        PlatzEingeben(negativ.c_str(), negativ.c_str());
        Ankreuzen("O3");
        EXPECT_EQ(Platz(), "1/1") << zahl;
        PlatzEingeben(zahl, zahl);
        Drehen("ÄReih", "auf");
        Ankreuzen("O2");
        EXPECT_EQ(Platz(), "4/3") << zahl;
        PlatzEingeben(zahl, "1");
        EXPECT_EQ(Gedruckt("Etiketten").size(), 6U) << zahl; // no street
        EXPECT_EQ(Platz(), "4/3") << zahl;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, EinPlatzDerKeineZahlIstDrucktStillNichts)
{
    Öffnen();
    for (const char *keine : {"x", ""}) {
        PlatzEingeben(keine, "2");
        EXPECT_EQ(Gedruckt("Etiketten"), Liste{});
        EXPECT_EQ(Papier.WieOft("Dialog"), 1) << "before the place is looked at";
        EXPECT_EQ(Papier.WieOft("Verwerfen"), 1);
        EXPECT_EQ(Platz(), keine + Text("/2"));
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormEtikettenTest, EinLeeresFormatDrucktNichts)
{
    Etikett.Reihen[3] = 0;
    Etikett.Spalten[3] = 0;
    Öffnen();
    Ankreuzen("O4");
    EXPECT_EQ(Gedruckt("Etiketten"), Liste{});
    Ankreuzen("O1");
    EXPECT_EQ(Platz(), "1/1");
    EXPECT_EQ(Namen().size(), 3U);
}

// The number of the format stays, so the option now shows the name that was moved there.
TEST_F(DruckFormEtikettenTest, NachDemSortierenIstDieselbeNummerGewählt)
{
    Etikett.Anzahl = 1;
    auto *haupt = new HauptForm;
    MenüWählen(haupt, "mnuEtiAB");
    Öffnen();
    EXPECT_TRUE(Angekreuzt("O2"));
    EXPECT_EQ(Zeigt("O2"), "Format 8");
    MenüWählen(haupt, "mnuEtiAUF");
    EXPECT_EQ(Etikett.Anzahl, 1);
}

} // namespace
} // namespace altardienst
