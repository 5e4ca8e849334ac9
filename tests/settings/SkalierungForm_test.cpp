// Print scales and table sizes.
#include "settings/SkalierungForm.h"

#include "statistics/Statistikstand.h"

namespace altardienst {
namespace {

struct Größe {
    const char *Box;
    const char *Spin;
    const char *Text;
    Int16 KonfigDatensatz::*Feld;
    int Vorgabe;
};

const Größe Größen[] = {
    {"MDS", "MDSS", "maximale Meßdienerzahl", &KonfigDatensatz::Skal2, 302},
    {"MHS", "MHSS", "maximale Meßhelferzahl", &KonfigDatensatz::Skal1, 302},
    {"MS", "MSS", "maximale Messenzahl", &KonfigDatensatz::Skal3, 602},
    {"MGS", "MGSS", "maximale Gruppen", &KonfigDatensatz::Skal4, 102},
    {"MJS", "MJSS", "maximale Jubiläen", &KonfigDatensatz::Skal5, 300}, // 100 + 200
    {"MVS", "MVSS", "maximale Vorbelegung Messen mit Meßdiener", &KonfigDatensatz::Skal6, 202},
};

class SkalierungFormTest : public Statistikstand {
  protected:
    SkalierungFormTest()
    {
        Konfig.Skal1 = 100;
        Konfig.Skal2 = 200;
        Konfig.Skal3 = 300;
        Konfig.Skal4 = 400;
        Konfig.Skal5 = 500;
        Konfig.Skal6 = 600;
        Konfig.XSkala = 55.5F;
        Konfig.YSkala = 57.25F;
        Öffnen<SkalierungForm>();
    }

    /// Sets the text in one change, as pasting does, and returns what the box then shows.
    Text NachEinsetzen(const char *name, const char *text) const
    {
        Einsetzen(name, text);
        return Zeigt(name);
    }
};

TEST_F(SkalierungFormTest, ZeigtDieFelder)
{
    EXPECT_EQ(Zeigt("XSKALA"), "55,5");
    EXPECT_EQ(Zeigt("YSKALA"), "57,25");
    for (const auto &[box, text] : std::vector<std::pair<const char *, Text>>{{"MHS", "100"},
                                                                              {"MDS", "200"},
                                                                              {"MS", "300"},
                                                                              {"MGS", "400"},
                                                                              {"MJS", "500"},
                                                                              {"MVS", "600"}})
        EXPECT_EQ(Zeigt(box), text) << box;
}

TEST_F(SkalierungFormTest, SchonBeimÖffnenFälltWasAußerhalbLiegtAufDieVorgabe)
{
    SchließtMit([&] { form->close(); });
    Konfig.XSkala = 49;
    Konfig.YSkala = 61;
    Konfig.Skal1 = 40;
    Konfig.Skal2 = 50;
    Konfig.Skal4 = 5;
    Konfig.Skal5 = 20000;
    Öffnen<SkalierungForm>();
    EXPECT_EQ(Zeigt("XSKALA"), "56,6857");
    EXPECT_EQ(Konfig.XSkala, 56.6857F);
    EXPECT_EQ(Zeigt("YSKALA"), "56,6857");
    EXPECT_EQ(Konfig.YSkala, 56.6857F);
    EXPECT_EQ(Zeigt("MGS"), "102");
    EXPECT_EQ(Konfig.Skal4, 102);
    EXPECT_EQ(Zeigt("MJS"), "90"); // 40 + 50
    EXPECT_EQ(Konfig.Skal5, 90);
}

TEST_F(SkalierungFormTest, BeschriftungenUndRahmen)
{
    std::vector<Text> rahmen;
    for (const auto *gruppe : form->findChildren<QGroupBox *>())
        rahmen.push_back(gruppe->title().toStdString());
    EXPECT_EQ(rahmen, (std::vector<Text>{"Druckskalierung für beide Achsen (Punkte zu mm)",
                                         "Weitere Skalierungen"}));
    const auto beschriftung = [&](const char *box) {
        for (const auto *label : form->findChildren<QLabel *>())
            if (label->buddy() == Finden(box))
                return Zeigt(label);
        return Text();
    };
    EXPECT_EQ(beschriftung("XSKALA"), "X-Achse");
    EXPECT_EQ(beschriftung("YSKALA"), "Y-Achse");
    for (const Größe &g : Größen)
        EXPECT_EQ(beschriftung(g.Box), g.Text);
}

TEST_F(SkalierungFormTest, JedeGrößeSchreibtIhrFeldSofort)
{
    for (const Größe &g : Größen) {
        EXPECT_EQ(NachEinsetzen(g.Box, "777"), "777");
        EXPECT_EQ(Konfig.*g.Feld, 777) << g.Box;
        Konfig.*g.Feld = 0;
        for (const Größe &andere : Größen)
            EXPECT_NE(Konfig.*andere.Feld, 777) << g.Box;
    }
}

TEST_F(SkalierungFormTest, AußerhalbGiltDieVorgabeNichtDasNächsteEnde)
{
    for (const Größe &g : Größen) {
        for (const char *innen : {"10", "10000"}) {
            EXPECT_EQ(NachEinsetzen(g.Box, innen), innen) << g.Box;
            EXPECT_EQ(Konfig.*g.Feld, std::stoi(innen)) << g.Box;
        }
        Konfig.Skal1 = 100;
        Konfig.Skal2 = 200;
        for (const char *außen : {"9", "10001", "0", "-5", "99999", "1E30", "1E39", "-1E39"}) {
            EXPECT_EQ(NachEinsetzen(g.Box, außen), std::to_string(g.Vorgabe)) << g.Box << außen;
            EXPECT_EQ(Konfig.*g.Feld, g.Vorgabe) << g.Box;
            Konfig.Skal1 = 100;
            Konfig.Skal2 = 200;
        }
    }
}

TEST_F(SkalierungFormTest, DieRegelGiltBeiJedemTastendruck)
{
    Tippen("MDS", "9");
    EXPECT_EQ(Zeigt("MDS"), "302");
    EXPECT_EQ(Konfig.Skal2, 302);
}

TEST_F(SkalierungFormTest, DieJubiläenNehmenDieSummeDieJetztGilt)
{
    NachEinsetzen("MHS", "40");
    NachEinsetzen("MDS", "50");
    EXPECT_EQ(NachEinsetzen("MJS", "5"), "90");
    EXPECT_EQ(Konfig.Skal5, 90);
    NachEinsetzen("MHS", "10000");
    NachEinsetzen("MDS", "10000");
    EXPECT_EQ(NachEinsetzen("MJS", "5"), "20000"); // outside its own range too
    EXPECT_EQ(Konfig.Skal5, 20000);
}

TEST_F(SkalierungFormTest, SkalenAnIhrenEnden)
{
    for (const auto &[box, feld] :
         {std::pair("XSKALA", &KonfigDatensatz::XSkala), {"YSKALA", &KonfigDatensatz::YSkala}}) {
        for (const auto &[getippt, danach, wert] :
             std::vector<std::tuple<const char *, Text, Single>>{{"60,0001", "60,0001", 60.0001F},
                                                                 {"60,0002", "56,6857", 56.6857F},
                                                                 {"49,9999", "49,9999", 49.9999F},
                                                                 {"49,9998", "56,6857", 56.6857F},
                                                                 {"50", "50", 50.0F},
                                                                 {"1E39", "56,6857", 56.6857F},
                                                                 {"6", "56,6857", 56.6857F}}) {
            EXPECT_EQ(NachEinsetzen(box, getippt), danach) << box << getippt;
            EXPECT_EQ(Konfig.*feld, wert) << box << getippt;
        }
    }
}

TEST_F(SkalierungFormTest, WasKeineZahlIstLäßtDasFeldStehen)
{
    EXPECT_EQ(NachEinsetzen("MDS", "x"), "x");
    EXPECT_EQ(NachEinsetzen("MDS", ""), "");
    EXPECT_EQ(Konfig.Skal2, 200);
    EXPECT_EQ(NachEinsetzen("XSKALA", "5x"), "5x");
    EXPECT_EQ(Konfig.XSkala, 55.5F);
    Drehen("MDSS", "auf");
    EXPECT_EQ(Zeigt("MDS"), "");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(SkalierungFormTest, DrehenGehtUmEinsUndGibtDerBoxDenFokus)
{
    for (const Größe &g : Größen) {
        NachEinsetzen(g.Box, "500");
        Drehen(g.Spin, "auf");
        EXPECT_EQ(Zeigt(g.Box), "501");
        EXPECT_EQ(Konfig.*g.Feld, 501);
        EXPECT_TRUE(Finden(g.Box)->hasFocus()) << g.Box;
        Drehen(g.Spin, "ab");
        Drehen(g.Spin, "ab");
        EXPECT_EQ(Zeigt(g.Box), "499");
    }
}

TEST_F(SkalierungFormTest, DrehenÜberDasEndeFälltAufDieVorgabe)
{
    for (const Größe &g : Größen)
        for (const auto &[ende, richtung] : {std::pair("10000", "auf"), {"10", "ab"}}) {
            NachEinsetzen(g.Box, ende);
            Drehen(g.Spin, richtung);
            EXPECT_EQ(Zeigt(g.Box), std::to_string(g.Vorgabe)) << g.Box << richtung;
            EXPECT_EQ(Konfig.*g.Feld, g.Vorgabe) << g.Box << richtung;
            Konfig.Skal1 = 100;
            Konfig.Skal2 = 200;
        }
}

TEST_F(SkalierungFormTest, SkalenDrehenUmEinZehntausendstel)
{
    for (const auto &[box, spin] : {std::pair("XSKALA", "XX"), {"YSKALA", "YY"}}) {
        NachEinsetzen(box, "56,6857");
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(box), "56,6858");
        EXPECT_TRUE(Finden(box)->hasFocus());
        Drehen(spin, "ab");
        Drehen(spin, "ab");
        EXPECT_EQ(Zeigt(box), "56,6856");
        for (const auto &[ende, richtung] : {std::pair("60,0001", "auf"), {"49,9999", "ab"}}) {
            NachEinsetzen(box, ende);
            Drehen(spin, richtung);
            EXPECT_EQ(Zeigt(box), "56,6857") << box << richtung;
        }
    }
    EXPECT_EQ(Konfig.XSkala, 56.6857F);
    EXPECT_EQ(Konfig.YSkala, 56.6857F);
}

TEST_F(SkalierungFormTest, Ordnung)
{
    EXPECT_EQ(form->objectName(), "Skalierung");
    EXPECT_EQ(form->windowTitle(), "Skalierung");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    IstOrdentlich({"XSKALA", "YSKALA", "MDS", "MHS", "MS", "MGS", "MJS", "MVS", "Ende"});
    Einsetzen("MVS", "777");
    SchließtMit([&] { Klick("Ende"); });
    EXPECT_EQ(Konfig.Skal6, 777);
    Öffnen<SkalierungForm>();
    SchließtMit([&] { form->close(); });
}

} // namespace
} // namespace altardienst
