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
        auto *partner = Finden<QComboBox>(form, "Partner");
        const int index = partner->findText(name);
        ASSERT_GE(index, 0);
        partner->setCurrentIndex(index);
        Q_EMIT partner->activated(index);
    }
    Text Wunsch() { return Gezeigt("VName") + "/" + Gezeigt("NName") + "/" + Gezeigt("Partner"); }
};

// On a small screen it may be outside the visible part.
TEST_F(MeßdienerRegelnTest, DasFeldDasEinSpeichernAnhältRolltInsBild)
{
    form->resize(400, 300);
    Schreiben("Schluß5", "kein Datum");
    ASSERT_TRUE(C("Schluß5")->visibleRegion().isEmpty());
    Drücken("PLUS");
    EXPECT_TRUE(C("Schluß5")->hasFocus());
    EXPECT_FALSE(C("Schluß5")->visibleRegion().isEmpty());
}

TEST_F(MeßdienerRegelnTest, DatumsschritteNachDemKalender)
{
    Schreiben("Gebutag", "31.1.2026");
    EXPECT_EQ(Gezeigt("Gebutag"), "31.01.2026");
    Drücken("PMonat");
    EXPECT_EQ(Gezeigt("Gebutag"), "28.02.2026");
    Drücken("pTag");
    EXPECT_EQ(Gezeigt("Gebutag"), "01.03.2026");
    Drücken("mTag");
    Drücken("mMonat");
    EXPECT_EQ(Gezeigt("Gebutag"), "28.01.2026");
    Schreiben("Eintritttdatum", "29.02.2024");
    Drücken("ppJahr");
    EXPECT_EQ(Gezeigt("Eintritttdatum"), "28.02.2025");
    Drücken("mmJahr");
    Drücken("mmMonat");
    Drücken("mmTag");
    EXPECT_EQ(Gezeigt("Eintritttdatum"), "27.01.2024");
    Drücken("pptag");
    Drücken("ppMonat");
    EXPECT_EQ(Gezeigt("Eintritttdatum"), "28.02.2024");
    Drehen("Änderung4", +1);
    EXPECT_EQ(Gezeigt("Eintritttdatum"), "29.02.2024");
    EXPECT_TRUE(C("Eintritttdatum")->hasFocus());
    Drehen("Änderung2", -1);
    EXPECT_EQ(Gezeigt("Gebutag"), "28.12.2025");
    EXPECT_TRUE(C("Gebutag")->hasFocus());
    Schreiben("Gebutag", "kein Datum");
    Drehen("Änderung1", +1);
    EXPECT_EQ(Gezeigt("Gebutag"), "kein Datum");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, TastenPlusUndMinusAufIhrenKnöpfen)
{
    Schreiben("Gebutag", "15.05.2010");
    FokusAuf(C("mJahr"));
    QTest::keyClick(C("mJahr"), Qt::Key_Minus);
    EXPECT_EQ(Gezeigt("Gebutag"), "15.05.2009");
    FokusAuf(C("pTag"));
    QTest::keyClick(C("pTag"), Qt::Key_Plus);
    EXPECT_EQ(Gezeigt("Gebutag"), "16.05.2009");
}

TEST_F(MeßdienerRegelnTest, BeginnVorDreiKalenderjahrenWirdHeute)
{
    for (const char *box : {"Start", "Start3", "Start5"}) {
        Schreiben(box, "01.01.2024");
        EXPECT_EQ(Gezeigt(box), "01.01.2024");
        Schreiben(box, "31.12.2023");
        EXPECT_EQ(Gezeigt(box), "21.11.2026");
    }
}

TEST_F(MeßdienerRegelnTest, DasEndeFolgtDemBeginn)
{
    Schreiben("Start2", "01.12.2026");
    EXPECT_EQ(Gezeigt("Schluß2"), "01.12.2026");
    Schreiben("Schluß2", "10.12.2026");
    Schreiben("Schluß2", "30.11.2026");
    EXPECT_EQ(Gezeigt("Schluß2"), "01.12.2026");
    Drehen("ä8", +1); // the start's month
    EXPECT_EQ(Gezeigt("Start2"), "01.01.2027");
    EXPECT_EQ(Gezeigt("Schluß2"), "01.01.2027");
    EXPECT_TRUE(C("Schluß2")->hasFocus());
    Drehen("ä12", +1);
    EXPECT_EQ(Gezeigt("Schluß2"), "01.01.2028");
}

TEST_F(MeßdienerRegelnTest, NurDieErsteZeitDarfLeerBleiben)
{
    for (const char *box : {"Start", "Schluß"}) {
        Schreiben(box, "");
        EXPECT_EQ(Gezeigt(box), "");
    }
    for (const char *box : {"Start2", "Schluß2", "Start5", "Schluß5"}) {
        Schreiben(box, "");
        EXPECT_EQ(Gezeigt(box), "21.11.2026") << box;
    }
}

TEST_F(MeßdienerRegelnTest, AlteZeitenWerdenBeimBlätternHeute)
{
    Meßdiener.Von4[1] = DatumAus({2020, 1, 1});
    Meßdiener.Bis4[1] = DatumAus({2020, 2, 1});
    Drücken("PLUS");
    EXPECT_EQ(Gezeigt("Start4"), "21.11.2026");
    EXPECT_EQ(Gezeigt("Start"), "21.11.2026") << "not set counts as a date of 1899";
    Drücken("MINUS");
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
        Schreiben(felder[k / 3 - (start ? 0 : 1)], "20.12.2027");
        Schreiben(felder[k / 3 + (start ? 1 : 0)], "20.12.2030");
        Schreiben(feld, "20.12.2027");
        Drehen(("ä" + std::to_string(k + 1)).c_str(), +1);
        EXPECT_EQ(Gezeigt(feld), nachher[k % 3]) << k + 1;
        EXPECT_TRUE(C(felder[k / 3 + (start ? 1 : 0)])->hasFocus()) << k + 1;
    }
}

TEST_F(MeßdienerRegelnTest, GrößeWirdBegrenzt)
{
    Schreiben("Groß", "300");
    EXPECT_EQ(Gezeigt("Groß"), "250");
    Drehen("Änderung7", +1);
    EXPECT_EQ(Gezeigt("Groß"), "250");
    Schreiben("Groß", "4");
    EXPECT_EQ(Gezeigt("Groß"), "5");
    Drehen("Änderung7", +1);
    EXPECT_EQ(Gezeigt("Groß"), "6");
    EXPECT_TRUE(C("Groß")->hasFocus());
}

TEST_F(MeßdienerRegelnTest, PostleitzahlWirdBeimVerlassenBegrenzt)
{
    for (const auto &[getippt, danach] :
         std::vector<std::pair<Text, Text>>{{"-1", "0"},
                                            {"99999", "99999"},
                                            {"100000", "48999"},
                                            {"123456789012", "48999"},
                                            {"abc", "abc"}}) {
        FokusAuf(C("Postleit"));
        Schreiben("Postleit", getippt);
        FokusAuf(C("Gemeinde"));
        EXPECT_EQ(Gezeigt("Postleit"), danach);
    }
}

TEST_F(MeßdienerRegelnTest, UnbekannteGruppeWirdZurückgenommen)
{
    FokusAuf(C("Dieenst"));
    Schreiben("Dieenst", "rot");
    FokusAuf(C("Vornamen"));
    EXPECT_EQ(Gezeigt("Dieenst"), "Rot");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Die Gruppe ist unbekannt!!"});
    Schreiben("Dieenst", "");
    Verlassen("Dieenst");
    EXPECT_EQ(Gezeigt("Dieenst"), "");
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
    FokusAuf(C("Dieenst"));
    Schreiben("Dieenst", "Getippt");
    FokusAuf(C("Vornamen"));
    EXPECT_EQ(Gezeigt("Dieenst"), "Getippt");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    FokusAuf(C("Dieenst"));
    Schreiben("Dieenst", "Dahinter");
    FokusAuf(C("Vornamen"));
    EXPECT_EQ(Gezeigt("Dieenst"), "Rot");
}

TEST_F(MeßdienerRegelnTest, EinGewählterPartnerStehtInBeidenNamen)
{
    EXPECT_EQ(Finden<QComboBox>(form, "Partner")->count(), 3);
    Auswählen("Berg,Bea");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    Drücken("PLUS");
    EXPECT_EQ(Meßdiener.WunschVorname[0], "Bea");
    EXPECT_EQ(Meßdiener.WunschNachname[0], "Berg");
    EXPECT_EQ(Wunsch(), "//");
    Drücken("MINUS");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    Schreiben("Partner", "");
    Verlassen("Partner");
    EXPECT_EQ(Wunsch(), "//");
}

TEST_F(MeßdienerRegelnTest, UnbekannterPartnerGehtZurück)
{
    Auswählen("Berg,Bea");
    Schreiben("Partner", "Niemand");
    Verlassen("Partner");
    EXPECT_EQ(Wunsch(), "Bea/Berg/Berg,Bea");
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!"});
}

TEST_F(MeßdienerRegelnTest, DerEigeneNameIstKeinPartner)
{
    Auswählen("Adler,Anna");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Ein und dieselbe Person!!!"});
    Schreiben("Partner", "Adler,Anna");
    Verlassen("Partner");
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
    Schreiben("Partner", "Berg,Bea");
    Verlassen("Partner");
    EXPECT_EQ(Wunsch(), "//");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(MeßdienerRegelnTest, DerLeerePlatzIstAuchEinPartnerDahinterKeinerMehr)
{
    Meßdiener.Vorname[3] = "Dora";
    Meßdiener.Nachname[3] = "Dorn";
    Meßdiener.Vorname[4] = "Emil";
    Meßdiener.Nachname[4] = "Ernst";
    Schreiben("Partner", "Dorn,Dora");
    Verlassen("Partner");
    EXPECT_EQ(Wunsch(), "Dora/Dorn/Dorn,Dora");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Schreiben("Partner", "Ernst,Emil");
    Verlassen("Partner");
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
    Schreiben("Partner", ","); // what the blank slot looks like
    Verlassen("Partner");
    EXPECT_EQ(Wunsch(), "Bea/Berg/,");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, EinKommaImNachnamenTrenntFalsch)
{
    Schreiben("Nachnamen", "Ad,ler");
    Drücken("PLUS");
    Drücken("MINUS");
    Auswählen("Ad,ler,Anna");
    EXPECT_EQ(Wunsch(), "ler,Anna/Ad/Ad,ler,Anna");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MeßdienerRegelnTest, SchlechteEingabenBleibenText)
{
    const Text lang(300, 'x');
    Schreiben("Straßen", "Weg, \"Hof\" 3");
    Schreiben("Gemeinde", lang);
    Schreiben("Teflon", "日本");
    EXPECT_EQ(Gezeigt("Teflon"), "??");
    Drücken("PLUS");
    EXPECT_EQ(Meßdiener.Straße[0], "Weg, \"Hof\" 3");
    EXPECT_EQ(Meßdiener.Ort[0], lang);
    EXPECT_EQ(Meßdiener.Telefon[0], "??");
}

} // namespace
} // namespace altardienst
