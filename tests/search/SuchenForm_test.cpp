// "Suchen": what it shows while one types, and the way to a hit from every window.
#include "search/SuchenForm.h"

#include "core/Plätze.h"
#include "planning/MessenlisteForm.h"
#include "search/Hingehen.h"
#include "shell/Hauptstand.h"

#include <QComboBox>
#include <QListWidget>

namespace altardienst {
namespace {

class SuchenFormTest : public Hauptstand {
  protected:
    SuchenFormTest()
    {
        for (const auto &[vor, nach] :
             {std::pair("Anna", "Adler"), {"Bea", "Berg"}, {"Cem", "Cohn"}})
            MeßdienerAnlegen(vor, nach);
        HelferAnlegen("Zita", "Zoller", "Lektor");
        HelferAnlegen("Bert", "Bauer", "Kantor");
        for (int tag = 1; tag <= 5; ++tag)
            MesseMitDienern(DatumAus({2026, 12, tag}), 4);
        Messe.DienerVor[3][3] = "Cem";
        Messe.DienerNach[3][3] = "Cohn";
        Messe.Kantor1Vor[2] = "Bert";
        Messe.Kantor1Nach[2] = "Bauer";
        Messe.KantorZahl[2] = 1;
        Öffnen();
    }

    static void StrgF()
    {
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_F, Qt::ControlModifier);
    }

    /// Opens "Suchen" in the window that is in front, and types.
    SuchenForm *Suchen(const Text &getippt)
    {
        StrgF();
        auto *suchen = static_cast<SuchenForm *>(Fenster("Suchen"));
        EXPECT_TRUE(Warten([&] { return QApplication::activeWindow() == suchen; }));
        Tippen(suchen->Suchtext, getippt);
        return suchen;
    }

    static std::vector<Text> Zeilen(const SuchenForm *suchen)
    {
        std::vector<Text> zeilen;
        for (int zeile = 0; zeile < suchen->Fundstellen->count(); ++zeile)
            zeilen.push_back(suchen->Fundstellen->item(zeile)->text().trimmed().toStdString());
        return zeilen;
    }

    static Text Markiert(const SuchenForm *suchen)
    {
        const auto *zeile = suchen->Fundstellen->currentItem();
        return zeile ? zeile->text().trimmed().toStdString() : "";
    }

    /// Types, moves to the hit in row `zeile` of those that can be reached, and presses Enter.
    void Hin(const Text &getippt, int zeile = 0)
    {
        Suchen(getippt);
        for (int n = 0; n < zeile; ++n)
            Taste(Qt::Key_Down);
        Taste(Qt::Key_Return);
        EXPECT_TRUE(Warten([] { return !IstOffen("Suchen"); }));
        QCoreApplication::processEvents();
    }

    /// The window of this name, in front.
    QWidget *Vorn(const char *name)
    {
        QWidget *fenster = Fenster(name);
        EXPECT_TRUE(QTest::qWaitForWindowActive(fenster)) << name;
        return fenster;
    }

    static Text Im(const QWidget *fenster, const char *feld)
    {
        return altardienst::Zeigt(Finden(fenster, feld));
    }
};

TEST_F(SuchenFormTest, ZeigtWährendDesTippensGruppiertWasGefundenIst)
{
    SuchenForm *suchen = Suchen("c");
    EXPECT_EQ(Zeilen(suchen), std::vector<Text>{});
    Tippen(suchen->Suchtext, "cohn");
    EXPECT_EQ(Zeilen(suchen),
              (std::vector<Text>{"Meßdiener", "Cohn, Cem", "Dienste in Messen",
                                 "Fr 04.12.2026 10:00 Messe · Meßdiener 3 · Cohn, Cem"}));
    EXPECT_EQ(Markiert(suchen), "Cohn, Cem") << "the first hit, not the heading";
    EXPECT_EQ(Zeigt(suchen->Hinweis), "Eingabe geht hin, Esc zurück.");
    Tippen(suchen->Suchtext, "niemand");
    EXPECT_EQ(Zeilen(suchen), std::vector<Text>{});
    EXPECT_EQ(Zeigt(suchen->Hinweis), "Nichts gefunden. Esc geht zurück.");
    EXPECT_EQ(Stumme(suchen), std::vector<Text>{});
}

TEST_F(SuchenFormTest, DiePfeileGehenÜberDieTrefferUndLassenÜberschriftenAus)
{
    SuchenForm *suchen = Suchen("cohn");
    Taste(Qt::Key_Down);
    EXPECT_EQ(Markiert(suchen), "Fr 04.12.2026 10:00 Messe · Meßdiener 3 · Cohn, Cem");
    Taste(Qt::Key_Down);
    EXPECT_EQ(Markiert(suchen), "Fr 04.12.2026 10:00 Messe · Meßdiener 3 · Cohn, Cem");
    Taste(Qt::Key_Up);
    EXPECT_EQ(Markiert(suchen), "Cohn, Cem");
    Taste(Qt::Key_Up);
    EXPECT_EQ(Markiert(suchen), "Cohn, Cem");
    Taste(Qt::Key_PageDown);
    EXPECT_EQ(Markiert(suchen), "Fr 04.12.2026 10:00 Messe · Meßdiener 3 · Cohn, Cem");
    EXPECT_TRUE(suchen->Suchtext->hasFocus()) << "typing goes on";
}

TEST_F(SuchenFormTest, VonVielenSindAuchDieÜbrigenZuErreichen)
{
    for (int tag = 0; tag < 60; ++tag) {
        const int i = MesseMitDienern(DatumAus({2027, 1, 1}) + tag, 4);
        Messe.DienerVor[i][1] = "Cem";
        Messe.DienerNach[i][1] = "Cohn";
    }
    SuchenForm *suchen = Suchen("cohn");
    EXPECT_EQ(Zeilen(suchen)[2], "Dienste in Messen (die ersten 50 von 61)");
    EXPECT_EQ(Zeilen(suchen).back(), "11 weitere zeigen");
    for (int n = 0; n < 6; ++n)
        Taste(Qt::Key_PageDown);
    EXPECT_EQ(Markiert(suchen), "11 weitere zeigen");
    EXPECT_EQ(Zeigt(suchen->Hinweis), "Eingabe zeigt auch die übrigen, Esc geht zurück.");
    const Text letzte = Zeilen(suchen)[52];
    Taste(Qt::Key_Return);
    EXPECT_TRUE(suchen->isVisible());
    EXPECT_EQ(Zeilen(suchen).size(), 64U);
    EXPECT_EQ(Zeilen(suchen)[2], "Dienste in Messen");
    EXPECT_EQ(Zeilen(suchen)[52], letzte);
    EXPECT_EQ(Markiert(suchen), Zeilen(suchen)[53]) << "the first of the others";
    Tippen(suchen->Suchtext, "cohn,");
    EXPECT_EQ(Zeilen(suchen).back(), "11 weitere zeigen") << "what is typed anew begins anew";
    for (int n = 0; n < 6; ++n)
        Taste(Qt::Key_PageDown);
    Taste(Qt::Key_Return);
    for (int n = 0; n < 2; ++n)
        Taste(Qt::Key_PageDown);
    Taste(Qt::Key_Return);
    EXPECT_EQ(Im(Vorn("Messenliste"), "datendaten"), "01.03.2027") << "the last of all";
}

TEST_F(SuchenFormTest, EscGehtZurückUndÄndertNichts)
{
    SuchenForm *suchen = Suchen("cohn");
    QTest::keyClick(suchen->Suchtext, Qt::Key_Escape);
    EXPECT_TRUE(Warten([] { return !IstOffen("Suchen"); }));
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_FALSE(IstOffen("Meßdiener"));
    EXPECT_EQ(Meßdiener.Cursor, 0);
}

TEST_F(SuchenFormTest, EinKlickGehtHinAufEinerÜberschriftNicht)
{
    SuchenForm *suchen = Suchen("cohn");
    const auto klick = [&](int zeile) {
        QTest::mouseClick(
            suchen->Fundstellen->viewport(), Qt::LeftButton, {},
            suchen->Fundstellen->visualItemRect(suchen->Fundstellen->item(zeile)).center());
    };
    klick(0);
    EXPECT_TRUE(suchen->isVisible());
    klick(1);
    EXPECT_EQ(Im(Vorn("Meßdiener"), "Nachnamen"), "Cohn");
}

TEST_F(SuchenFormTest, VomHauptfensterÖffnetSichDerDialogWieAusDemMenü)
{
    Hin("cohn");
    QWidget *form = Vorn("Meßdiener");
    EXPECT_EQ(Im(form, "Datensätze"), "2");
    EXPECT_EQ(Im(form, "Nachnamen"), "Cohn");
    EXPECT_TRUE(Finden(form, "Vornamen")->hasFocus());
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    EXPECT_TRUE(form->close());
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
}

TEST_F(SuchenFormTest, EinDienstFührtZumPlatzInDerMessenliste)
{
    Hin("cohn", 1);
    QWidget *form = Vorn("Messenliste");
    EXPECT_EQ(Im(form, "Datensatzus"), "3");
    EXPECT_TRUE(Finden(form, "vor3")->hasFocus());
}

TEST_F(SuchenFormTest, EinHelferdienstFührtInLektorenUsw)
{
    Hin("bauer", 1);
    QWidget *form = Vorn("Lektorrenusw");
    EXPECT_EQ(Messe.Cursor, 2);
    EXPECT_EQ(Im(form, "LH5"), "Bauer,Bert");
    EXPECT_TRUE(Finden(form, "LH5")->hasFocus());
    EXPECT_TRUE(form->close());
    EXPECT_EQ(Im(Vorn("Messenliste"), "Datensatzus"), "2");
}

TEST_F(SuchenFormTest, EineMesseFührtInDieMessenliste)
{
    Hin("5.12.");
    EXPECT_EQ(Im(Vorn("Messenliste"), "datendaten"), "05.12.2026");
}

TEST_F(SuchenFormTest, EinWunschFührtZumWunschpartner)
{
    Meßdiener.WunschVorname[1] = "Cem";
    Meßdiener.WunschNachname[1] = "Cohn";
    Hin("cohn", 2);
    QWidget *form = Vorn("Meßdiener");
    EXPECT_EQ(Im(form, "Datensätze"), "1");
    EXPECT_TRUE(Finden(form, "Partner")->hasFocus());
}

TEST_F(SuchenFormTest, EineFesteZuordnungFührtZuIhremPlatz)
{
    MesseDienerFest.Anzahl = 2;
    for (const int k : {0, 1}) {
        MesseDienerFest.Datum[k] = Messe.Datum[k];
        MesseDienerFest.Uhrzeit[k] = Messe.Uhrzeit[k];
    }
    MesseDienerFest.Vorname[1][2] = "Zita";
    MesseDienerFest.Nachname[1][2] = "Zobel";
    Hin("zobel");
    QWidget *form = Vorn("MesseDienerFest");
    EXPECT_EQ(Im(form, "Index"), "1");
    EXPECT_EQ(Im(form, "MDN2"), "Zobel");
    EXPECT_TRUE(Finden(form, "MDiener2")->hasFocus());
}

TEST_F(SuchenFormTest, ImSelbenFensterGehtEsWieMitPlus)
{
    MenüWählen("mnuMeßdiener");
    QWidget *form = Vorn("Meßdiener");
    Einsetzen(Finden(form, "Straßen"), "Gasse 1");
    Einsetzen(Finden(form, "Vornamen"), "Anne");
    Meßdiener.WunschVorname[1] = "Anna";
    Meßdiener.WunschNachname[1] = "Adler";
    Hin("cohn");
    EXPECT_EQ(Vorn("Meßdiener"), form);
    EXPECT_EQ(Meßdiener.Straße[0], "Gasse 1");
    EXPECT_EQ(Meßdiener.WunschVorname[1], "Anne") << "the new name was passed on";
    EXPECT_EQ(Im(form, "Datensätze"), "2");
    EXPECT_TRUE(Finden(form, "Vornamen")->hasFocus());
    EXPECT_FALSE(haupt->isEnabled());
}

TEST_F(SuchenFormTest, ScheitertDasSpeichernBleibtManWoManIst)
{
    MenüWählen("mnuMeßdiener");
    QWidget *form = Vorn("Meßdiener");
    Einsetzen(Finden(form, "Groß"), "viel");
    Hin("cohn");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_EQ(Im(form, "Datensätze"), "0");
    EXPECT_TRUE(Finden(form, "Groß")->hasFocus());
    GezeigteMeldungen.clear();
    Hin("bauer");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "nor is the window left for another one";
    EXPECT_FALSE(IstOffen("Helfer"));
    EXPECT_TRUE(form->isVisible());
    Einsetzen(Finden(form, "Groß"), "150");
}

TEST_F(SuchenFormTest, InEinAnderesFensterGehtEsÜberEnde)
{
    MenüWählen("mnuMeßdiener");
    QWidget *form = Vorn("Meßdiener");
    Einsetzen(Finden(form, "Vornamen"), "Anne");
    Messe.DienerVor[0][1] = "Anna";
    Messe.DienerNach[0][1] = "Adler";
    SuchenForm *suchen = Suchen("bauer");
    EXPECT_EQ(Zeigt(suchen->Hinweis),
              "Eingabe geht hin; „Meßdiener“ wird dabei wie mit „Ende“ verlassen.");
    Taste(Qt::Key_Return);
    QWidget *helfer = Vorn("Helfer");
    EXPECT_EQ(Im(helfer, "Indexen"), "1");
    EXPECT_FALSE(IstOffen("Meßdiener"));
    EXPECT_EQ(Messe.DienerVor[0][1], "Anne") << "like by the button";
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(helfer->close());
    EXPECT_TRUE(haupt->isEnabled());
}

TEST_F(SuchenFormTest, AusLektorenUswGehtEsDurchDieMessenlisteHinaus)
{
    Hin("bauer", 1);
    Vorn("Lektorrenusw");
    Hin("adler");
    EXPECT_EQ(Im(Vorn("Meßdiener"), "Nachnamen"), "Adler");
    EXPECT_FALSE(IstOffen("Lektorrenusw"));
    EXPECT_FALSE(IstOffen("Messenliste"));
}

TEST_F(SuchenFormTest, AusEinemDialogMitAbbrechenGehtEsNichtHinaus)
{
    MenüWählen("mnuMeßdiener");
    Auslösen(Finden<QAbstractButton>(Vorn("Meßdiener"), "NeuDiener"));
    QWidget *neu = Vorn("NeuMeßdiener");
    Einsetzen(Finden(neu, "Vornamen"), "Dora");
    SuchenForm *suchen = Suchen("cohn");
    EXPECT_EQ(Zeilen(suchen)[1], "Cohn, Cem – erst nach Beenden von „Neuer Meßdiener“");
    EXPECT_EQ(Markiert(suchen), "");
    EXPECT_EQ(Zeigt(suchen->Hinweis), "Von hier aus ist nichts davon zu erreichen.");
    Taste(Qt::Key_Return);
    EXPECT_TRUE(suchen->isVisible());
    QTest::keyClick(suchen->Suchtext, Qt::Key_Escape);
    EXPECT_TRUE(Warten([] { return !IstOffen("Suchen"); }));
    EXPECT_EQ(Im(neu, "Vornamen"), "Dora") << "nothing is lost";
    EXPECT_TRUE(neu->close());
}

TEST_F(SuchenFormTest, AusDenFestenZuordnungenGehtEsÜberOk)
{
    MesseDienerFest.Anzahl = 1;
    MesseDienerFest.Datum[0] = Messe.Datum[0];
    MesseDienerFest.Uhrzeit[0] = Messe.Uhrzeit[0];
    MenüWählen("MnuMESSDIENZUMESS");
    QWidget *form = Vorn("MesseDienerFest");
    Einsetzen(Finden(form, "MDiener1"), "Berg,Bea");
    SuchenForm *suchen = Suchen("cohn");
    EXPECT_EQ(Zeilen(suchen)[1], "Cohn, Cem");
    EXPECT_EQ(Zeigt(suchen->Hinweis), "Eingabe geht hin; „Meßdiener fest zu einer Messe zuordnen“ "
                                      "wird dabei wie mit „OK“ verlassen.");
    Taste(Qt::Key_Return);
    EXPECT_EQ(Im(Vorn("Meßdiener"), "Nachnamen"), "Cohn");
    EXPECT_FALSE(IstOffen("MesseDienerFest"));
    EXPECT_EQ(MesseDienerFest.Nachname[0][1], "Berg") << "what was chosen is stored";
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Übertragen in die Messenliste?");
}

TEST_F(SuchenFormTest, DieMessenlisteNebenDemHauptfensterNimmtDenTreffer)
{
    auto *liste = new MessenlisteForm; // as (1) leaves it
    Zeigen(liste);
    Einsetzen(liste->Messewesen, "Andacht");
    Zeigen(haupt);
    Hin("5.12.");
    EXPECT_EQ(Vorn("Messenliste"), liste);
    EXPECT_EQ(Im(liste, "Datensatzus"), "4");
    EXPECT_EQ(Messe.Messeart[0], "Andacht");
    EXPECT_TRUE(haupt->isEnabled()) << "it stands beside the list as before";
}

TEST_F(SuchenFormTest, VorEinerMeldungUndOhneHauptfensterGibtEsKeineSuche)
{
    EchteMeldungen();
    Beantworten([](QMessageBox *box) {
        QTest::keyClick(box, Qt::Key_F, Qt::ControlModifier);
        EXPECT_FALSE(IstOffen("Suchen"));
        box->accept();
    });
    Meldungen.Zeigen("Eine Meldung");
    Zeigen(haupt);
    Suchen("cohn");
    StrgF();
    QCoreApplication::processEvents();
    int offen = 0;
    for (const QWidget *fenster : QApplication::topLevelWidgets())
        offen += fenster->isVisible() && fenster->objectName() == "Suchen";
    EXPECT_EQ(offen, 1);
    delete haupt;
    QWidget allein;
    Zeigen(&allein);
    StrgF();
    EXPECT_FALSE(IstOffen("Suchen"));
}

TEST_F(SuchenFormTest, EinFeldWirdFürDieSucheVerlassenWieFürEinAnderesFenster)
{
    MenüWählen("mnuMeßdiener");
    QWidget *form = Vorn("Meßdiener");
    FokusAuf(Finden(form, "Postleit"));
    Einsetzen(Finden(form, "Postleit"), "123456");
    SuchenForm *suchen = Suchen("cohn");
    EXPECT_EQ(Im(form, "Postleit"), "48999");
    QTest::keyClick(suchen->Suchtext, Qt::Key_Escape);
}

TEST_F(SuchenFormTest, PasstAufDenKleinstenBildschirm)
{
    SuchenForm *suchen = Suchen("cohn");
    EXPECT_LE(suchen->width(), KleinsterBildschirm.width());
    EXPECT_LE(suchen->height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
