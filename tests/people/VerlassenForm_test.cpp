// Messages and failed saves in the editors of the people: neither counts as leaving a box that the
// user has not left.
#include "people/Personenfenster.h"

namespace altardienst {
namespace {

const Text Stop = "Laufzeitfehler '13': Typen unverträglich";
const Text UnbekannteGruppe = "Die Gruppe ist unbekannt!!";
const Text UnbekannterPartner = "Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!";

class VerlassenForm : public Personenfenster {
  protected:
    VerlassenForm()
    {
        Konfig.PlzOrt = "48999 Beispielort";
        Meßdiener.WunschVorname[0] = "Bea";
        Meßdiener.WunschNachname[0] = "Berg";
    }

    /// Puts a text into a box that has the focus, and stays in it.
    void MitFokusEinsetzen(const char *box, const Text &text)
    {
        FokusAuf(box);
        Einsetzen(box, text);
    }
};

TEST_F(VerlassenForm, NachEinemUnbekanntenPartnerIstDieGruppeNurBetreten)
{
    Öffnen("Meßdiener");
    MeldungenBestätigen();
    Einsetzen("Dieenst", "Grau");
    MitFokusEinsetzen("Partner", "Niemand");
    Finden("Dieenst")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{UnbekannterPartner});
    EXPECT_EQ(Zeigt("Partner"), "Berg,Bea");
    EXPECT_EQ(Zeigt("Dieenst"), "Grau");
    EXPECT_TRUE(Finden("Dieenst")->hasFocus());
    FokusAuf("Vornamen");
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{UnbekannterPartner, UnbekannteGruppe}));
    EXPECT_EQ(Zeigt("Dieenst"), "Rot");
}

TEST_F(VerlassenForm, NachEinerUnbekanntenGruppeIstDerPartnerNurBetreten)
{
    Öffnen("Meßdiener");
    MeldungenBestätigen();
    Einsetzen("Partner", "Niemand");
    MitFokusEinsetzen("Dieenst", "Grau");
    Finden("Partner")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{UnbekannteGruppe});
    EXPECT_EQ(Zeigt("Dieenst"), "Rot");
    EXPECT_EQ(Zeigt("Partner"), "Niemand");
    EXPECT_TRUE(Finden("Partner")->hasFocus());
    FokusAuf("Vornamen");
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{UnbekannteGruppe, UnbekannterPartner}));
}

TEST_F(VerlassenForm, EinGescheitertesSpeichernMeldetNurSich)
{
    for (const auto &[box, getippt, fehler] :
         std::vector<std::array<const char *, 3>>{{"Partner", "Niemand", "Postleit"},
                                                  {"Dieenst", "Grau", "Postleit"},
                                                  {"Postleit", "123456", "Gebutag"}}) {
        SCOPED_TRACE(box);
        Öffnen("Meßdiener");
        MeldungenBestätigen();
        GezeigteMeldungen.clear();
        Einsetzen(fehler, "abc");
        MitFokusEinsetzen(box, getippt);
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Stop});
        EXPECT_EQ(Zeigt(box), getippt);
        EXPECT_EQ(Zeigt("VName") + Zeigt("NName"), "BeaBerg");
        EXPECT_TRUE(Finden(fehler)->hasFocus());
    }
}

TEST_F(VerlassenForm, DiePostleitzahlEinesHelfersBleibtBeimGescheitertenSpeichernWieGetippt)
{
    for (const auto &[getippt, fehler, meldung] : std::vector<std::array<Text, 3>>{
             {"123456", "Tagen", Stop},
             {"-7", "Schluß3", Stop},
             {"3000000000", "PLZetus", "Laufzeitfehler '6': Überlauf"}}) {
        SCOPED_TRACE(getippt);
        Öffnen("Helfer");
        MeldungenBestätigen();
        GezeigteMeldungen.clear();
        if (fehler != "PLZetus")
            Einsetzen(fehler, "abc");
        MitFokusEinsetzen("PLZetus", getippt);
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{meldung});
        EXPECT_EQ(Zeigt("PLZetus"), getippt);
        EXPECT_TRUE(Finden(fehler)->hasFocus());
        FokusAuf("PLZetus");
        FokusAuf("Wohort");
        EXPECT_EQ(Zeigt("PLZetus"), getippt == "-7" ? "0" : "48999") << "left by the user";
    }
}

// This is what the boxes show while the user reads the message.
TEST_F(VerlassenForm, ErstDieMeldungDannGehtDerPartnerZurück)
{
    Meßdiener.WunschVorname[1] = "Cem";
    Meßdiener.WunschNachname[1] = "Cohn";
    Öffnen("Meßdiener");
    std::vector<Text> dabei;
    Meldungen.Zeigen = [&](const Text &) { dabei.push_back(Zeigt("Partner")); };
    const auto auswählen = [&](const char *name) {
        auto *partner = Finden<QComboBox>("Partner");
        partner->setCurrentIndex(partner->findText(name));
        Q_EMIT partner->activated(partner->currentIndex());
        EXPECT_EQ(Zeigt("Partner"), "");
    };
    Einsetzen("Partner", "Niemand");
    FokusWeg("Partner");
    EXPECT_EQ(Zeigt("Partner"), "Berg,Bea");
    auswählen("Cohn,Cem");   // who is already someone else's partner
    auswählen("Adler,Anna"); // herself
    EXPECT_EQ(dabei, (std::vector<Text>{"Niemand", "Cohn,Cem", ""}));
}

TEST_F(VerlassenForm, EineFrageVerläßtDieBoxNicht)
{
    Öffnen("Meßdiener");
    MeldungenBestätigen();
    MitFokusEinsetzen("Partner", "Niemand");
    for (const bool ja : {false, true}) {
        Beantworten([ja](QMessageBox *box) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(box));
            box->done(ja ? QMessageBox::Yes : QMessageBox::No);
        });
        Auslösen("Lösch"); // as a screen reader presses it, which leaves the focus where it is
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
        Zeigen(form);
    }
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

} // namespace
} // namespace altardienst
