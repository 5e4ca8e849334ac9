// The editor of the label formats.
#include "printing/EtikettenForm.h"

#include "fenster/Anwendung.h"
#include "fenster/Fensterstand.h"
#include "shell/HauptForm.h"

#include <QAction>
#include <QPointer>

#include <map>

namespace altardienst {
namespace {

/// Ten formats; the one of record k is called "Format k" and has the measures k + 1 to k + 5 mm
/// with k + 1 rows and k + 2 columns.
class EtikettenFormTest : public Fensterstand {
  protected:
    EtikettenFormTest()
    {
        for (int k = 0; k < 10; ++k) {
            Etikett.Name[k] = "Format " + std::to_string(k);
            auto mm = static_cast<Single>(k);
            for (auto *länge : Längen)
                (*länge)[k] = mm += 1;
            Etikett.Reihen[k] = k + 1;
            Etikett.Spalten[k] = k + 2;
        }
        Etikett.Anzahl = 2;
    }

    QWidget &Öffnen()
    {
        form = new EtikettenForm;
        form->setAttribute(Qt::WA_DeleteOnClose);
        Fensterstand::Zeigen(form);
        return *form;
    }

    QWidget *Control(const char *name) const { return Finden(form, name); }
    Text Zeigt(const char *name) const { return Aufschrift(Control(name)); }
    void Eingeben(const char *name, const char *text) const { Tippen(Control(name), text); }
    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Control(spin), richtung));
    }
    /// Types into a box and leaves it.
    Text Verlassen(const char *name, const char *text) const
    {
        Eingeben(name, text);
        FokusAuf(Control("N"));
        return Zeigt(name);
    }

    static constexpr std::array Längen = {&Etikett.RandOU, &Etikett.RandLR, &Etikett.Höhe,
                                          &Etikett.Breite, &Etikett.Steg};
    static constexpr std::array Längenfelder = {"OU", "LR", "H", "B", "ST"};
    QPointer<QWidget> form;
};

TEST_F(EtikettenFormTest, JedesFeldHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Etiketten");
    EXPECT_EQ(form->windowTitle(), "Etikettengrößen");
    const std::map<Text, QWidget *> felder = {{"Etikettenname :", Control("N")},
                                              {"Rand oben/ unten :", Control("OU")},
                                              {"Rand links / rechts :", Control("LR")},
                                              {"Höhe :", Control("H")},
                                              {"Breite :", Control("B")},
                                              {"Steg :", Control("ST")},
                                              {"Reihen :", Control("R")},
                                              {"Spalten :", Control("S")}};
    std::map<Text, QWidget *> gesehen;
    int millimeter = 0;
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        if (label->text() == "mm")
            ++millimeter;
        else
            gesehen[Aufschrift(label)] = label->buddy();
    }
    EXPECT_EQ(gesehen, felder);
    EXPECT_EQ(millimeter, 5);
    EXPECT_EQ(Zeigt("Ende"), "Ende");
}

TEST_F(EtikettenFormTest, ÖffnetMitDemGewähltenFormat)
{
    Öffnen();
    const std::map<const char *, const char *> inhalte = {
        {"Ind", "2"}, {"N", "Format 2"}, {"OU", "3"}, {"LR", "4"}, {"H", "5"},
        {"B", "6"},   {"ST", "7"},       {"R", "3"},  {"S", "4"}};
    for (const auto &[name, text] : inhalte)
        EXPECT_EQ(Zeigt(name), text) << name;
}

TEST_F(EtikettenFormTest, EineNummerAußerhalbWirdBeimÖffnenGeholt)
{
    for (const auto &[anzahl, erlaubt] : {std::pair{15, 9}, {-3, 0}, {30000, 9}}) {
        Etikett.Anzahl = anzahl;
        Öffnen();
        EXPECT_EQ(Zeigt("Ind"), std::to_string(erlaubt));
        EXPECT_EQ(Etikett.Anzahl, erlaubt);
        delete form;
    }
}

TEST_F(EtikettenFormTest, EineGetippteNummerZeigtDasFormatUndSpeichertNichts)
{
    Öffnen();
    Eingeben("N", "anders");
    Eingeben("OU", "99");
    Eingeben("Ind", "5");
    EXPECT_EQ(Zeigt("N"), "Format 5");
    EXPECT_EQ(Zeigt("S"), "7");
    EXPECT_EQ(Etikett.Anzahl, 5);
    EXPECT_EQ(Etikett.Name[2], "Format 2");
    EXPECT_EQ(Etikett.RandOU[2], 3);
    EXPECT_EQ(Etikett.Name[5], "Format 5");
}

TEST_F(EtikettenFormTest, DieNummerWirdBeimTippenBegrenzt)
{
    Öffnen();
    Eingeben("Ind", "10");
    EXPECT_EQ(Zeigt("Ind"), "9");
    EXPECT_EQ(Zeigt("N"), "Format 9");
    Eingeben("Ind", "-1");
    EXPECT_EQ(Zeigt("Ind"), "0");
    EXPECT_EQ(Etikett.Anzahl, 0);
    Eingeben("Ind", "x");
    EXPECT_EQ(Zeigt("Ind"), "x");
    EXPECT_EQ(Zeigt("N"), "Format 0");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormTest, WeiterUndZurückSchreibenErstUndZeigenDann)
{
    Öffnen();
    Eingeben("N", "neu");
    Eingeben("S", "9");
    Klick(Control("Plus"));
    EXPECT_EQ(Etikett.Name[2], "neu");
    EXPECT_EQ(Etikett.Spalten[2], 9);
    EXPECT_EQ(Zeigt("Ind"), "3");
    EXPECT_EQ(Zeigt("N"), "Format 3");
    EXPECT_EQ(Etikett.Name[3], "Format 3");
    Klick(Control("Minus"));
    EXPECT_EQ(Zeigt("N"), "neu");
    EXPECT_EQ(Etikett.Anzahl, 2);
}

TEST_F(EtikettenFormTest, AlleWegeZumNächstenUndVorigenFormat)
{
    Öffnen();
    const auto taste = [&](const char *name, Qt::Key taste) {
        FokusAuf(Control(name));
        QTest::keyClick(Control(name), taste);
    };
    Drehen("DPM", "auf");
    EXPECT_EQ(Zeigt("Ind"), "3");
    taste("N", Qt::Key_PageUp);
    EXPECT_EQ(Zeigt("Ind"), "4");
    taste("Plus", Qt::Key_Plus);
    EXPECT_EQ(Zeigt("Ind"), "5");
    Drehen("DPM", "ab");
    EXPECT_EQ(Zeigt("Ind"), "4");
    taste("N", Qt::Key_PageDown);
    EXPECT_EQ(Zeigt("Ind"), "3");
    taste("Minus", Qt::Key_Minus);
    EXPECT_EQ(Zeigt("Ind"), "2");
}

TEST_F(EtikettenFormTest, AnDenEndenGehtEsNichtWeiter)
{
    Etikett.Anzahl = 9;
    Öffnen();
    Eingeben("N", "letztes");
    Klick(Control("Plus"));
    EXPECT_EQ(Zeigt("Ind"), "9");
    EXPECT_EQ(Zeigt("N"), "letztes");
    Eingeben("Ind", "0");
    Klick(Control("Minus"));
    EXPECT_EQ(Zeigt("Ind"), "0");
}

TEST_F(EtikettenFormTest, LängenLiegenBeimVerlassenInIhrenGrenzen)
{
    Öffnen();
    for (const char *feld : Längenfelder) {
        EXPECT_EQ(Verlassen(feld, "0,05"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "0,1"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "-7"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "330,1"), "330,1") << feld;
        EXPECT_EQ(Verlassen(feld, "330,2"), "330,1") << feld;
        EXPECT_EQ(Verlassen(feld, "63,55"), "63,55") << feld;
        EXPECT_EQ(Verlassen(feld, "breit"), "breit") << feld; // no number stays as it is
        Eingeben(feld, "1");
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Etikett.RandOU[2], 3); // nothing is stored yet
}

TEST_F(EtikettenFormTest, ReihenUndSpaltenLiegenZwischenEinsUndZwanzig)
{
    Öffnen();
    for (const char *feld : {"R", "S"}) {
        EXPECT_EQ(Verlassen(feld, "0"), "1") << feld;
        EXPECT_EQ(Verlassen(feld, "1"), "1") << feld;
        EXPECT_EQ(Verlassen(feld, "20"), "20") << feld;
        EXPECT_EQ(Verlassen(feld, "21"), "20") << feld;
        EXPECT_EQ(Verlassen(feld, "2,5"), "2") << feld;
        EXPECT_EQ(Verlassen(feld, ""), "") << feld;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormTest, DieSiebenDrehknöpfeUndIhreGrenzen)
{
    Öffnen();
    for (std::size_t k = 0; k < Längenfelder.size(); ++k) {
        const char *feld = Längenfelder[k];
        const Text spin = "Ä" + std::to_string(k + 1);
        Eingeben(feld, "69,8");
        Drehen(spin.c_str(), "auf");
        EXPECT_EQ(Zeigt(feld), "69,9") << feld;
        Drehen(spin.c_str(), "ab");
        Drehen(spin.c_str(), "ab");
        EXPECT_EQ(Zeigt(feld), "69,7") << feld;
        Eingeben(feld, "0,1");
        Drehen(spin.c_str(), "ab");
        EXPECT_EQ(Zeigt(feld), "0,1") << feld;
        Eingeben(feld, "330,1");
        Drehen(spin.c_str(), "auf");
        EXPECT_EQ(Zeigt(feld), "330,1") << feld;
    }
    for (const auto &[feld, spin] : {std::pair{"R", "Ä6"}, {"S", "Ä7"}}) {
        Eingeben(feld, "19");
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(feld), "20") << feld;
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(feld), "20") << feld;
        Eingeben(feld, "2");
        Drehen(spin, "ab");
        Drehen(spin, "ab");
        EXPECT_EQ(Zeigt(feld), "1") << feld;
    }
}

TEST_F(EtikettenFormTest, EndeSchreibtUndGibtDasHauptfensterZurück)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    haupt.setEnabled(false);
    Öffnen();
    Eingeben("N", "Bogen 4 & 5");
    const std::array längen = {"1,5", "2,5", "3,5", "4,5", "5,5"};
    for (std::size_t k = 0; k < längen.size(); ++k)
        Eingeben(Längenfelder[k], längen[k]);
    Eingeben("R", "13");
    Eingeben("S", "5");
    Klick(Control("Ende"));
    EXPECT_EQ(Etikett.Name[2], "Bogen 4 & 5");
    Single mm = 0.5F;
    for (auto *länge : Längen)
        EXPECT_EQ((*länge)[2], mm += 1);
    EXPECT_EQ(Etikett.Reihen[2], 13);
    EXPECT_EQ(Etikett.Spalten[2], 5);
    EXPECT_TRUE(haupt.isEnabled());
    EXPECT_TRUE(haupt.isMaximized());
    EXPECT_TRUE(Warten([&] { return form.isNull(); }));
}

TEST_F(EtikettenFormTest, SchließenUndSeitentastenHaltenDieGrenzenAuchOhneVerlassen)
{
    Öffnen();
    Eingeben("H", "0,05");
    QTest::keyClick(Control("H"), Qt::Key_PageUp);
    EXPECT_EQ(Etikett.Höhe[2], 0.1F);
    EXPECT_TRUE(Control("H")->hasFocus());
    Eingeben("R", "99");
    form->close();
    EXPECT_EQ(Etikett.Reihen[3], 20);
}

TEST_F(EtikettenFormTest, EinFeldOhneZahlHältDasFensterOffen)
{
    Öffnen();
    Eingeben("N", "neu");
    Eingeben("B", "breit");
    Klick(Control("Ende"));
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Etikett.Name[2], "neu"); // the boxes before it are written
    EXPECT_EQ(Etikett.Breite[2], 6);
    Klick(Control("Plus"));
    EXPECT_EQ(Zeigt("Ind"), "2");
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
}

// The selected number stays, and so stands for whatever the sort has moved there.
TEST_F(EtikettenFormTest, SortierenÄndertDieGewählteNummerNicht)
{
    auto *haupt = new HauptForm;
    Finden<QAction>(haupt, "mnuEtiAB")->trigger();
    EXPECT_EQ(Etikett.Anzahl, 2);
    Öffnen();
    EXPECT_EQ(Zeigt("Ind"), "2");
    EXPECT_EQ(Zeigt("N"), "Format 7");
    EXPECT_EQ(Zeigt("R"), "8");
    Finden<QAction>(haupt, "mnuEtiAUF")->trigger();
    EXPECT_EQ(Etikett.Anzahl, 2);
    EXPECT_EQ(Etikett.Name[2], "Format 2");
}

TEST_F(EtikettenFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    Öffnen();
    FokusAuf(Control("N"));
    EXPECT_EQ(Tabfolge(form), (std::vector<Text>{"N",  "OU",  "Ä1",  "LR",    "Ä2",   "H",   "Ä3",
                                                 "B",  "Ä4",  "ST",  "Ä5",    "R",    "Ä6",  "S",
                                                 "Ä7", "Ind", "DPM", "Minus", "Plus", "Ende"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(EtikettenFormTest, PasstAufDenKleinstenBildschirm)
{
    const QSize platz = Öffnen().size();
    EXPECT_LE(platz.width(), KleinsterBildschirm.width());
    EXPECT_LE(platz.height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
