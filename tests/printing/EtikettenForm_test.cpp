// The editor of the label formats.
#include "printing/Etikettenfenster.h"

#include "application/Anwendung.h"
#include "shell/HauptForm.h"

#include <map>

namespace altardienst {
namespace {

class EtikettenFormTest : public Etikettenfenster {};

TEST_F(EtikettenFormTest, JedesFeldHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Etiketten");
    EXPECT_EQ(form->windowTitle(), "Etikettengrößen");
    const std::map<Text, QWidget *> felder = {{"Etikettenname :", Finden("N")},
                                              {"Rand oben/ unten :", Finden("OU")},
                                              {"Rand links / rechts :", Finden("LR")},
                                              {"Höhe :", Finden("H")},
                                              {"Breite :", Finden("B")},
                                              {"Steg :", Finden("ST")},
                                              {"Reihen :", Finden("R")},
                                              {"Spalten :", Finden("S")}};
    std::map<Text, QWidget *> gesehen;
    int millimeter = 0;
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        if (label->text() == "mm")
            ++millimeter;
        else
            gesehen[Zeigt(label)] = label->buddy();
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
    Tippen("N", "anders");
    Tippen("OU", "99");
    Tippen("Ind", "5");
    EXPECT_EQ(Zeigt("N"), "Format 5");
    EXPECT_EQ(Zeigt("S"), "7");
    EXPECT_EQ(Etikett.Anzahl, 5);
    EXPECT_EQ(Etikett.Name[2], "Format 2");
    EXPECT_EQ(Etikett.RandOU[2], 3);
    EXPECT_EQ(Etikett.Name[5], "Format 5");
}

TEST_F(EtikettenFormTest, WeiterUndZurückSchreibenErstUndZeigenDann)
{
    Öffnen();
    Tippen("N", "neu");
    Tippen("S", "9");
    Klick("Plus");
    EXPECT_EQ(Etikett.Name[2], "neu");
    EXPECT_EQ(Etikett.Spalten[2], 9);
    EXPECT_EQ(Zeigt("Ind"), "3");
    EXPECT_EQ(Zeigt("N"), "Format 3");
    EXPECT_EQ(Etikett.Name[3], "Format 3");
    Klick("Minus");
    EXPECT_EQ(Zeigt("N"), "neu");
    EXPECT_EQ(Etikett.Anzahl, 2);
}

TEST_F(EtikettenFormTest, AlleWegeZumNächstenUndVorigenFormat)
{
    Öffnen();
    const auto taste = [&](const char *name, Qt::Key taste) {
        FokusAuf(name);
        QTest::keyClick(Finden(name), taste);
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

TEST_F(EtikettenFormTest, EndeSchreibtUndGibtDasHauptfensterZurück)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    haupt.setEnabled(false);
    Öffnen();
    Tippen("N", "Bogen 4 & 5");
    const std::array längen = {"1,5", "2,5", "3,5", "4,5", "5,5"};
    for (std::size_t k = 0; k < längen.size(); ++k)
        Tippen(Längenfelder[k], längen[k]);
    Tippen("R", "13");
    Tippen("S", "5");
    Klick("Ende");
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

// The selected number stays, so it stands for whatever the sort has moved there.
TEST_F(EtikettenFormTest, SortierenÄndertDieGewählteNummerNicht)
{
    auto *haupt = new HauptForm;
    MenüWählen(haupt, "mnuEtiAB");
    EXPECT_EQ(Etikett.Anzahl, 2);
    Öffnen();
    EXPECT_EQ(Zeigt("Ind"), "2");
    EXPECT_EQ(Zeigt("N"), "Format 7");
    EXPECT_EQ(Zeigt("R"), "8");
    MenüWählen(haupt, "mnuEtiAUF");
    EXPECT_EQ(Etikett.Anzahl, 2);
    EXPECT_EQ(Etikett.Name[2], "Format 2");
}

TEST_F(EtikettenFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    Öffnen();
    FokusAuf("N");
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{"N", "OU", "LR", "H", "B", "ST", "R", "S", "Ende", "Ind"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(EtikettenFormTest, PasstAufDenKleinstenBildschirm)
{
    const QSize platz = Öffnen().size();
    EXPECT_LE(platz.width(), KleinsterBildschirm.width());
    EXPECT_LE(platz.height(), KleinsterBildschirm.height());
}

TEST_F(EtikettenFormTest, DieNummerStehtObenLinks)
{
    Öffnen();
    const auto ort = [this](const char *name) { return Finden(name)->mapTo(form, QPoint(0, 0)); };
    EXPECT_LT(ort("Ind").y(), ort("N").y());
    EXPECT_LT(ort("Ind").x(), ort("N").x());
}

} // namespace
} // namespace altardienst
