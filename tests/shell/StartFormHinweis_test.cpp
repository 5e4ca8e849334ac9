// The line of the start dialog that tells what was not loaded, and the way from it to what was.
#include "shell/Startstand.h"

#include "history/Netz.h"
#include "history/StändeForm.h"
#include "shell/Programm.h"

namespace altardienst {
namespace {

class StartHinweisTest : public Startstand {
  protected:
    StartHinweisTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        MeßdienerAnlegen("Jan", "Busch");
        Konfig.Tage = 28;
        AufFestplatteSpeichern();
        TabellenLeeren();
    }
    ~StartHinweisTest() override { NetzEinholen(); }

    /// The street of the first server gets a comma, in a run that ends well.
    void KommaSpeichern()
    {
        NetzSpannen();
        VonFestplatteLaden();
        Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
        AufFestplatteSpeichern();
        NetzEinholen();
        TabellenLeeren();
        Sekunden += 60;
    }
};

TEST_F(StartHinweisTest, OhneBefundSindZeileUndKnopfNichtDa)
{
    NetzSpannen();
    Öffnen();
    EXPECT_FALSE(form->Hinweis->isVisible());
    EXPECT_FALSE(form->FrühereStände->isVisible());
}

TEST_F(StartHinweisTest, DasKommaIstGenanntUndInZweiKlicksIstAllesWiederDa)
{
    KommaSpeichern();
    NetzSpannen();
    ProgrammStarten();
    QWidget *start = Fenster("Start");
    EXPECT_TRUE(Zeigt(Finden(start, "Hinweis"))
                    .starts_with("Meßdiener.dat ist nur bis Zeile 5 gelesen; dort steht „Am Markt "
                                 "3, Hinterhaus“."));
    EXPECT_EQ(Meßdiener.Nachname[1], "");
    Klick(Finden(start, "FrühereStände"));
    auto *stände = dynamic_cast<StändeForm *>(Fenster("Stände"));
    ASSERT_TRUE(stände);
    EXPECT_TRUE(Warten([&] { return stände->Liste->currentRow() == 0; }));
    Antworten = {true};
    Klick(stände->Zurückholen);
    EXPECT_EQ(Meßdiener.Straße[0], "Am Markt 3; Hinterhaus");
    EXPECT_EQ(Meßdiener.Nachname[1], "Busch");
    EXPECT_FALSE(Finden(Fenster("Start"), "Hinweis")->isVisible());
    EXPECT_EQ(Zeigt(Finden(Fenster("Start"), "Tagilein")), "28");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(GestellteFragen.size(), 1U);
}

TEST_F(StartHinweisTest, DasHauptfensterSagtEsBisZumNächstenVollständigenLaden)
{
    KommaSpeichern();
    NetzSpannen();
    ProgrammStarten();
    Klick(Finden(Fenster("Start"), "Starten"));
    QWidget *haupt = Fenster("Haupt");
    auto *hinweis = Finden<QLabel>(haupt, "StatusNetz");
    EXPECT_TRUE(Warten([&] { return hinweis->isVisible(); }));
    EXPECT_EQ(Zeigt(hinweis), "Nicht alles geladen: Meßdiener.dat");
    MenüWählen(haupt, "mnuDatenspeichern");
    EXPECT_TRUE(hinweis->isVisible());
    MenüWählen(haupt, "mnuDatenladen"); // what was saved without the rest
    EXPECT_FALSE(hinweis->isVisible());
}

TEST_F(StartHinweisTest, EinStandDerSichNichtSchreibenLäßtStehtNurInDerStatuszeile)
{
    DateiSchreiben(Festplatte / PfadAus("Stände"), "im Weg");
    NetzSpannen();
    ProgrammStarten();
    EXPECT_FALSE(Finden(Fenster("Start"), "Hinweis")->isVisible());
    Klick(Finden(Fenster("Start"), "Starten"));
    EXPECT_TRUE(Zeigt(Finden<QLabel>(Fenster("Haupt"), "StatusNetz"))
                    .starts_with("Kein Stand aufgehoben: "));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartHinweisTest, OhneEtwasZuSagenIstNichtsInDerStatuszeile)
{
    NetzSpannen();
    ProgrammStarten();
    Klick(Finden(Fenster("Start"), "Starten"));
    EXPECT_FALSE(Fenster("Haupt")->findChild<QLabel *>("StatusNetz"));
}

TEST_F(StartHinweisTest, DerHinweisÄndertNichtsAmStarten)
{
    KommaSpeichern();
    NetzSpannen();
    Öffnen();
    EXPECT_TRUE(form->Hinweis->isVisible());
    EXPECT_TRUE(form->FrühereStände->isVisible());
    EXPECT_TRUE(form->Starten->hasFocus());
    Klick("Starten");
    EXPECT_EQ(gestartet, 1);
}

} // namespace
} // namespace altardienst
