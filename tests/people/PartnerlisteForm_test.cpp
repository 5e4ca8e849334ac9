// The list of wish partners of the editor of the servers, and choosing from it by keyboard.
#include "people/MeßdienerForm.h"

#include "people/Personenstand.h"

#include <QAbstractItemView>

namespace altardienst {
namespace {

class PartnerlisteForm : public Personenstand {
  protected:
    PartnerlisteForm()
    {
        MeßdienerAnlegen("Cem", "Cohn"); // not in alphabetical order
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("", "Namenlos");
        MeßdienerAnlegen("Bea", "Berg");
        MeßdienerAnlegen("Ohne", "");
        Meßdiener.Vorname[5] = "Leerer"; // the blank slot
        Meßdiener.Nachname[5] = "Platz";
        form = new MeßdienerForm;
        Zeigen(form);
    }
    using Namen = std::vector<Text>;
};

TEST_F(PartnerlisteForm, StehtInDerReihenfolgeDerDatensätzeMitBeidenNamen)
{
    EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", "Adler,Anna", "Berg,Bea"}));
}

TEST_F(PartnerlisteForm, FolgtDemBlättern)
{
    for (const char *weg : {"PLUS", "MINUS"}) {
        SCOPED_TRACE(weg);
        Einsetzen("Datensätze", "1");
        Einsetzen("Vornamen", weg);
        Auslösen(weg);
        EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", Text("Adler,") + weg, "Berg,Bea"}));
        Einsetzen("Datensätze", "1");
        Einsetzen("Vornamen", "Anna");
        DrehungAuslösen("DPM", *weg == 'P' ? +1 : -1);
        EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", "Adler,Anna", "Berg,Bea"}));
    }
    Einsetzen("Datensätze", "2");
    Einsetzen("Vornamen", "Nora");
    Auslösen("PLUS");
    EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", "Adler,Anna", "Namenlos,Nora", "Berg,Bea"}));
}

TEST_F(PartnerlisteForm, VerliertDenGelöschten)
{
    Einsetzen("Datensätze", "1");
    Antworten = {true};
    Auslösen("Lösch");
    EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", "Berg,Bea"}));
}

TEST_F(PartnerlisteForm, BekommtDenNeuenAnsEnde)
{
    Meßdiener.Vorname[5] = Meßdiener.Nachname[5] = "";
    Auslösen("NeuDiener");
    QWidget *neu = Fenster("NeuMeßdiener");
    Einsetzen(Finden(neu, "Vornamen"), "Aaron");
    Einsetzen(Finden(neu, "Nachnamen"), "Aal");
    Klick(Finden(neu, "OKButton"));
    EXPECT_EQ(Liste("Partner"), (Namen{"Cohn,Cem", "Adler,Anna", "Berg,Bea", "Aal,Aaron"}));
}

TEST_F(PartnerlisteForm, TastenWählenAusDerListe)
{
    FokusAuf("Partner");
    QTest::keyClick(Finden("Partner"), Qt::Key_Down);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Ein und dieselbe Person!!!"})
        << "the first of the list is the server himself";
    EXPECT_EQ(Zeigt("Partner"), "");
    FokusAuf("Datensätze");
    Einsetzen("Datensätze", "3");
    FokusAuf("Partner");
    GezeigteMeldungen.clear();
    QTest::keyClick(Finden("Partner"), Qt::Key_Down);
    EXPECT_EQ(Zeigt("Partner"), "Cohn,Cem");
    EXPECT_EQ(Zeigt("NName"), "Cohn");
    EXPECT_EQ(Zeigt("VName"), "Cem");
    QTest::keyClick(Finden("Partner"), Qt::Key_Down);
    EXPECT_EQ(Zeigt("NName") + "/" + Zeigt("VName"), "Adler/Anna");
    QTest::keyClick(Finden("Partner"), Qt::Key_Up);
    EXPECT_EQ(Zeigt("NName") + "/" + Zeigt("VName"), "Cohn/Cem");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Auslösen("MINUS");
    EXPECT_EQ(Meßdiener.WunschVorname[3], "Cem");
    EXPECT_EQ(Meßdiener.WunschNachname[3], "Cohn");
}

TEST_F(PartnerlisteForm, DieTastenGehenÜberAbgelehnteHinweg)
{
    const Text selbst = "Ein und dieselbe Person!!!";
    const Text schon = "Schon mal zugeordnet!!!!!";
    Meßdiener.WunschVorname[3] = "Anna";
    Meßdiener.WunschNachname[3] = "Adler";
    FokusAuf("Partner");
    for (const Namen &erwartet : {Namen{selbst}, Namen{schon}, Namen{}}) {
        EXPECT_EQ(Zeigt("Partner"), "");
        QTest::keyClick(Finden("Partner"), Qt::Key_Down);
        EXPECT_EQ(GezeigteMeldungen, erwartet);
        GezeigteMeldungen.clear();
    }
    EXPECT_EQ(Zeigt("Partner"), "Berg,Bea");
    for (const Namen &erwartet : {Namen{schon}, Namen{selbst}, Namen{}}) {
        QTest::keyClick(Finden("Partner"),
                        Qt::Key_Up); // the third time it is already at the first entry
        EXPECT_EQ(GezeigteMeldungen, erwartet);
        EXPECT_EQ(Zeigt("Partner"), "");
        GezeigteMeldungen.clear();
    }
}

TEST_F(PartnerlisteForm, DieMeldungHältDieTastenNichtAuf)
{
    const auto gemerkte = Meldungen;
    EchteMeldungen();
    FokusAuf("Partner");
    Beantworten([&](QMessageBox *box) {
        EXPECT_TRUE(Warten([&] { return !Finden("Partner")->hasFocus(); }));
        box->accept();
    });
    QTest::keyClick(Finden("Partner"), Qt::Key_Down);
    Zeigen(form);
    EXPECT_TRUE(Finden("Partner")->hasFocus());
    Meldungen = gemerkte;
    QTest::keyClick(Finden("Partner"), Qt::Key_Down);
    EXPECT_EQ(Zeigt("Partner"), "Adler,Anna");
}

TEST_F(PartnerlisteForm, InEinerNeuenListeOderNachDemTippenBeginnenDieTastenVorn)
{
    Einsetzen("Datensätze", "1");
    Meßdiener.WunschVorname[3] = "Cem";
    Meßdiener.WunschNachname[3] = "Cohn";
    FokusAuf("Partner");
    const auto bisAnna = [&] {
        GezeigteMeldungen.clear();
        for (int mal = 0; mal < 2; ++mal)
            QTest::keyClick(Finden("Partner"), Qt::Key_Down);
        EXPECT_EQ(GezeigteMeldungen,
                  (Namen{"Schon mal zugeordnet!!!!!", "Ein und dieselbe Person!!!"}));
    };
    bisAnna();
    QTest::keyClick(Finden("Partner"), 'x');
    QTest::keyClick(Finden("Partner"), Qt::Key_Backspace);
    bisAnna();
    QTest::keyClick(form, Qt::Key_PageUp); // to the next record, with its names as they are by then
    QTest::keyClick(form, Qt::Key_PageDown);
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    bisAnna();
}

TEST_F(PartnerlisteForm, AuchAusDerAufgeklapptenListe)
{
    auto *partner = Finden<QComboBox>("Partner");
    FokusAuf(partner);
    partner->showPopup();
    QWidget *liste = QApplication::activePopupWidget();
    ASSERT_NE(liste, nullptr);
    auto *ansicht = liste->findChild<QAbstractItemView *>();
    ASSERT_NE(ansicht, nullptr);
    QTest::keyClick(ansicht, Qt::Key_End);
    QTest::keyClick(ansicht, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Partner"), "Berg,Bea");
    EXPECT_EQ(Zeigt("NName") + "/" + Zeigt("VName"), "Berg/Bea");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
