// The boxes of the editor of the servers: dates, absences, group, postal code, wish partner.
#include "people/MeßdienerForm.h"

#include "people/Personenstand.h"

namespace altardienst {
namespace {

class MeßdienerRegelnTest : public Personenstand {
  protected:
    MeßdienerRegelnTest()
    {
        Gruppe.Bezeichnung[0] = "Rot";
        Gruppe.Anzahl = 1;
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Bea", "Berg");
        MeßdienerAnlegen("Cem", "Cohn");
        Meßdiener.Gruppe[0] = "Rot";
        form = new MeßdienerForm;
        Zeigen(form);
    }

    void Auswählen(const char *name)
    {
        auto *partner = Finden<QComboBox>("Partner");
        const int index = partner->findText(name);
        ASSERT_GE(index, 0);
        partner->setCurrentIndex(index);
        Q_EMIT partner->activated(index);
    }
    Text Wunsch() { return Zeigt("VName") + "/" + Zeigt("NName") + "/" + Zeigt("Partner"); }
};

// On a small screen it may be outside the visible part.
TEST_F(MeßdienerRegelnTest, DasFeldDasEinSpeichernAnhältRolltInsBild)
{
    form->resize(400, 300);
    Einsetzen("Schluß5", "kein Datum");
    ASSERT_TRUE(Finden("Schluß5")->visibleRegion().isEmpty());
    Auslösen("PLUS");
    EXPECT_TRUE(Finden("Schluß5")->hasFocus());
    EXPECT_FALSE(Finden("Schluß5")->visibleRegion().isEmpty());
}

TEST_F(MeßdienerRegelnTest, DatumsschritteNachDemKalender)
{
    Einsetzen("Gebutag", "31.1.2026");
    EXPECT_EQ(Zeigt("Gebutag"), "31.01.2026");
    Auslösen("PMonat");
    EXPECT_EQ(Zeigt("Gebutag"), "28.02.2026");
    Auslösen("pTag");
    EXPECT_EQ(Zeigt("Gebutag"), "01.03.2026");
    Auslösen("mTag");
    Auslösen("mMonat");
    EXPECT_EQ(Zeigt("Gebutag"), "28.01.2026");
    Einsetzen("Eintritttdatum", "29.02.2024");
    Auslösen("ppJahr");
    EXPECT_EQ(Zeigt("Eintritttdatum"), "28.02.2025");
    Auslösen("mmJahr");
    Auslösen("mmMonat");
    Auslösen("mmTag");
    EXPECT_EQ(Zeigt("Eintritttdatum"), "27.01.2024");
    Auslösen("pptag");
    Auslösen("ppMonat");
    EXPECT_EQ(Zeigt("Eintritttdatum"), "28.02.2024");
    DrehungAuslösen("Änderung4", +1);
    EXPECT_EQ(Zeigt("Eintritttdatum"), "29.02.2024");
    EXPECT_TRUE(Finden("Eintritttdatum")->hasFocus());
    DrehungAuslösen("Änderung2", -1);
    EXPECT_EQ(Zeigt("Gebutag"), "28.12.2025");
    EXPECT_TRUE(Finden("Gebutag")->hasFocus());
    Einsetzen("Gebutag", "kein Datum");
    DrehungAuslösen("Änderung1", +1);
    EXPECT_EQ(Zeigt("Gebutag"), "kein Datum");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, TastenPlusUndMinusAufIhrenKnöpfen)
{
    Einsetzen("Gebutag", "15.05.2010");
    FokusAuf("mJahr");
    QTest::keyClick(Finden("mJahr"), Qt::Key_Minus);
    EXPECT_EQ(Zeigt("Gebutag"), "15.05.2009");
    FokusAuf("pTag");
    QTest::keyClick(Finden("pTag"), Qt::Key_Plus);
    EXPECT_EQ(Zeigt("Gebutag"), "16.05.2009");
}

TEST_F(MeßdienerRegelnTest, BeginnVorDreiKalenderjahrenWirdHeute)
{
    for (const char *box : {"Start", "Start3", "Start5"}) {
        Einsetzen(box, "01.01.2024");
        EXPECT_EQ(Zeigt(box), "01.01.2024");
        Einsetzen(box, "31.12.2023");
        EXPECT_EQ(Zeigt(box), "21.11.2026");
    }
}

TEST_F(MeßdienerRegelnTest, DasEndeFolgtDemBeginn)
{
    Einsetzen("Start2", "01.12.2026");
    EXPECT_EQ(Zeigt("Schluß2"), "01.12.2026");
    Einsetzen("Schluß2", "10.12.2026");
    Einsetzen("Schluß2", "30.11.2026");
    EXPECT_EQ(Zeigt("Schluß2"), "01.12.2026");
    DrehungAuslösen("ä8", +1); // the start's month
    EXPECT_EQ(Zeigt("Start2"), "01.01.2027");
    EXPECT_EQ(Zeigt("Schluß2"), "01.01.2027");
    EXPECT_TRUE(Finden("Schluß2")->hasFocus());
    DrehungAuslösen("ä12", +1);
    EXPECT_EQ(Zeigt("Schluß2"), "01.01.2028");
}

TEST_F(MeßdienerRegelnTest, NurDieErsteZeitDarfLeerBleiben)
{
    for (const char *box : {"Start", "Schluß"}) {
        Einsetzen(box, "");
        EXPECT_EQ(Zeigt(box), "");
    }
    for (const char *box : {"Start2", "Schluß2", "Start5", "Schluß5"}) {
        Einsetzen(box, "");
        EXPECT_EQ(Zeigt(box), "21.11.2026") << box;
    }
}

TEST_F(MeßdienerRegelnTest, AlteZeitenWerdenBeimBlätternHeute)
{
    Meßdiener.Von4[1] = DatumAus({2020, 1, 1});
    Meßdiener.Bis4[1] = DatumAus({2020, 2, 1});
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Start4"), "21.11.2026");
    EXPECT_EQ(Zeigt("Start"), "21.11.2026") << "not set counts as a date of 1899";
    Auslösen("MINUS");
    EXPECT_EQ(Meßdiener.Von4[1], Heute);
    EXPECT_EQ(Meßdiener.Bis4[1], Heute);
}

TEST_F(MeßdienerRegelnTest, JederDerDreißigKnöpfeDrehtSeinFeld)
{
    const std::array<const char *, 10> felder = {"Start",  "Schluß",  "Start2", "Schluß2",
                                                 "Start3", "Schluß3", "Start4", "Schluß4",
                                                 "Start5", "Schluß5"};
    const std::array<const char *, 3> nachher = {"21.12.2027", "20.01.2028", "20.12.2028"};
    for (std::size_t k = 0; k < 30; ++k) {
        const char *feld = felder[k / 3];
        const bool start = (k / 3) % 2 == 0;
        Einsetzen(felder[k / 3 - (start ? 0 : 1)], "20.12.2027");
        Einsetzen(felder[k / 3 + (start ? 1 : 0)], "20.12.2030");
        Einsetzen(feld, "20.12.2027");
        DrehungAuslösen(("ä" + std::to_string(k + 1)).c_str(), +1);
        EXPECT_EQ(Zeigt(feld), nachher[k % 3]) << k + 1;
        EXPECT_TRUE(Finden(felder[k / 3 + (start ? 1 : 0)])->hasFocus()) << k + 1;
    }
}

TEST_F(MeßdienerRegelnTest, GrößeWirdBegrenzt)
{
    Einsetzen("Groß", "300");
    EXPECT_EQ(Zeigt("Groß"), "250");
    DrehungAuslösen("Änderung7", +1);
    EXPECT_EQ(Zeigt("Groß"), "250");
    Einsetzen("Groß", "4");
    EXPECT_EQ(Zeigt("Groß"), "5");
    DrehungAuslösen("Änderung7", +1);
    EXPECT_EQ(Zeigt("Groß"), "6");
    EXPECT_TRUE(Finden("Groß")->hasFocus());
}

TEST_F(MeßdienerRegelnTest, PostleitzahlWirdBeimVerlassenBegrenzt)
{
    for (const auto &[getippt, danach] :
         std::vector<std::pair<Text, Text>>{{"-1", "0"},
                                            {"99999", "99999"},
                                            {"100000", "48999"},
                                            {"123456789012", "48999"},
                                            {"abc", "abc"}}) {
        FokusAuf("Postleit");
        Einsetzen("Postleit", getippt);
        FokusAuf("Gemeinde");
        EXPECT_EQ(Zeigt("Postleit"), danach);
    }
}

TEST_F(MeßdienerRegelnTest, UnbekannteGruppeWirdZurückgenommen)
{
    FokusAuf("Dieenst");
    Einsetzen("Dieenst", "rot");
    FokusAuf("Vornamen");
    EXPECT_EQ(Zeigt("Dieenst"), "Rot");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Die Gruppe ist unbekannt!!"});
    Einsetzen("Dieenst", "");
    FokusWeg("Dieenst");
    EXPECT_EQ(Zeigt("Dieenst"), "");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(MeßdienerRegelnTest, DieGruppeImLeerenPlatzGiltAuch)
{
    Gruppe.Bezeichnung[1] = "Getippt"; // Gruppe.Anzahl is 1
    Gruppe.Bezeichnung[2] = "Dahinter";
    delete form;
    form = new MeßdienerForm;
    Zeigen(form);
    EXPECT_EQ(Liste("Dieenst"), (std::vector<Text>{"Rot", "Getippt"}));
    FokusAuf("Dieenst");
    Einsetzen("Dieenst", "Getippt");
    FokusAuf("Vornamen");
    EXPECT_EQ(Zeigt("Dieenst"), "Getippt");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    FokusAuf("Dieenst");
    Einsetzen("Dieenst", "Dahinter");
    FokusAuf("Vornamen");
    EXPECT_EQ(Zeigt("Dieenst"), "Rot");
}

TEST_F(MeßdienerRegelnTest, EinGewählterPartnerStehtInBeidenNamen)
{
    EXPECT_EQ(Finden<QComboBox>("Partner")->count(), 3);
    Auswählen("Berg,Bea");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.WunschVorname[0], "Bea");
    EXPECT_EQ(Meßdiener.WunschNachname[0], "Berg");
    EXPECT_EQ(Wunsch(), "//");
    Auslösen("MINUS");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    Einsetzen("Partner", "");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "//");
}

TEST_F(MeßdienerRegelnTest, UnbekannterPartnerGehtZurück)
{
    Auswählen("Berg,Bea");
    Einsetzen("Partner", "Niemand");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!"});
}

TEST_F(MeßdienerRegelnTest, DerEigeneNameIstKeinPartner)
{
    Auswählen("Adler,Anna");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Ein und dieselbe Person!!!"});
    Einsetzen("Partner", "Adler,Anna");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "leaving the box is silent";
}

TEST_F(MeßdienerRegelnTest, EinPartnerGehörtNurEinem)
{
    Meßdiener.WunschVorname[2] = "Bea";
    Meßdiener.WunschNachname[2] = "Berg";
    Auswählen("Berg,Bea");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Schon mal zugeordnet!!!!!"});
    Einsetzen("Partner", "Berg,Bea");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(MeßdienerRegelnTest, DerLeerePlatzIstAuchEinPartnerDahinterKeinerMehr)
{
    Meßdiener.Vorname[3] = "Dora";
    Meßdiener.Nachname[3] = "Dorn";
    Meßdiener.Vorname[4] = "Emil";
    Meßdiener.Nachname[4] = "Ernst";
    Einsetzen("Partner", "Dorn,Dora");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "Dora/Dorn/Dorn,Dora");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Einsetzen("Partner", "Ernst,Emil");
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "Dora/Dorn/Dorn,Dora");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(MeßdienerRegelnTest, AuchDerLeerePlatzVergibtSeinenPartner)
{
    Meßdiener.WunschVorname[3] = "Bea";
    Meßdiener.WunschNachname[3] = "Berg";
    Meßdiener.WunschVorname[4] = "Cem";
    Meßdiener.WunschNachname[4] = "Cohn";
    Auswählen("Berg,Bea");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Schon mal zugeordnet!!!!!"});
    Auswählen("Cohn,Cem");
    EXPECT_EQ(Wunsch(), "Cem/Cohn/Cohn,Cem");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(MeßdienerRegelnTest, EinKommaAmAnfangTrenntNichts)
{
    Auswählen("Berg,Bea");
    Einsetzen("Partner", ","); // what the blank slot looks like
    FokusWeg("Partner");
    EXPECT_EQ(Wunsch(), "Bea/Berg/,");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, EinKommaImNachnamenTrenntFalsch)
{
    Einsetzen("Nachnamen", "Ad,ler");
    Auslösen("PLUS");
    Auslösen("MINUS");
    Auswählen("Ad,ler,Anna");
    EXPECT_EQ(Wunsch(), "ler,Anna/Ad/Ad,ler,Anna");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, SchlechteEingabenBleibenText)
{
    const Text lang(300, 'x');
    Einsetzen("Straßen", "Weg, \"Hof\" 3");
    Einsetzen("Gemeinde", lang);
    Einsetzen("Teflon", "日本");
    EXPECT_EQ(Zeigt("Teflon"), "??");
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Straße[0], "Weg, \"Hof\" 3");
    EXPECT_EQ(Meßdiener.Ort[0], lang);
    EXPECT_EQ(Meßdiener.Telefon[0], "??");
}

} // namespace
} // namespace altardienst
