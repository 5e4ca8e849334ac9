// Proposals in the windows: choosing one does there what picking from the list does.
#include "AlleFenster.h"
#include "controls/Ergänzung.h"
#include "controls/Textwahl.h"

#include <QApplication>

#include <utility>

namespace altardienst {
namespace {

class NamenErgänzen : public AlleFenster {
  protected:
    /// Types, waits for the proposals, and takes the first.
    static void ErstenNehmen(QWidget *box, const Text &text)
    {
        Tippen(box, text);
        auto *wahl = qobject_cast<QComboBox *>(box);
        QLineEdit *feld = wahl ? wahl->lineEdit() : static_cast<QLineEdit *>(box);
        if (!Warten([&] { return OffeneErgänzung(feld) != nullptr; }))
            throw std::runtime_error(text + ": no proposals");
        QTest::keyClick(OffeneErgänzung(feld), Qt::Key_Down);
        QTest::keyClick(OffeneErgänzung(feld), Qt::Key_Return);
    }
};

TEST_F(NamenErgänzen, DerWunschpartner)
{
    QWidget *form = Öffnen("Meßdiener");
    ErstenNehmen(Finden(form, "Partner"), "bea");
    EXPECT_EQ(Zeigt(Finden(form, "Partner")), "Berg,Bea");
    EXPECT_EQ(Zeigt(Finden(form, "VName")), "Bea");
    EXPECT_EQ(Zeigt(Finden(form, "NName")), "Berg");
    ErstenNehmen(Finden(form, "Partner"), "anna"); // as picked from the list, with its message
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Ein und dieselbe Person!!!"});
    EXPECT_EQ(Zeigt(Finden(form, "VName")), "");
}

TEST_F(NamenErgänzen, DieGruppe)
{
    QWidget *form = Öffnen("Meßdiener");
    ErstenNehmen(Finden(form, "Dieenst"), "blA");
    EXPECT_EQ(Zeigt(Finden(form, "Dieenst")), "Blau");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(NamenErgänzen, DerPlatzEinesHelfers)
{
    Messe.LektorZahl[0] = 1;
    QWidget *form = Öffnen("Lektorrenusw");
    ErstenNehmen(Finden(form, "LH1"), "cem");
    EXPECT_EQ(Zeigt(Finden(form, "LH1")), "Cohn,Cem");
    EXPECT_EQ(Zeigt(Finden(form, "Lecki1nach")), ""); // the names follow when the box is left
    FokusAuf(Finden(form, "Lecki"));
    EXPECT_EQ(Zeigt(Finden(form, "Lecki1nach")), "Cohn");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(NamenErgänzen, DerPlatzEinerFestenZuordnung)
{
    QWidget *form = Öffnen("NeuMesseDienerFest");
    ErstenNehmen(Finden(form, "MDiener2"), "rot");
    EXPECT_EQ(Zeigt(Finden(form, "MDiener2")), "Rot,Gruppe");
    FokusAuf(Finden(form, "MDiener1"));
    EXPECT_EQ(Zeigt(Finden(form, "MDN2")), "Rot");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(NamenErgänzen, InDerMessenlisteBeideNamenDesMeßdieners)
{
    for (const char *feld : {"nach2", "vor1"}) {
        QWidget *form = Öffnen("Messenliste");
        ErstenNehmen(Finden(form, feld), "ber");
        const Text zeile(1, Text(feld).back());
        EXPECT_EQ(Zeigt(Finden(form, "vor" + zeile)), "Bea");
        EXPECT_EQ(Zeigt(Finden(form, "nach" + zeile)), "Berg");
        QTest::qWait(250);
        EXPECT_FALSE(QApplication::activePopupWidget());
        form->hide();
    }
}

TEST_F(NamenErgänzen, WerKeinenNamenHatWirdNichtVorgeschlagen)
{
    Meßdiener.Vorname[0].clear();
    Meßdiener.Nachname[0].clear();
    QWidget *form = Öffnen("Messenliste");
    ErstenNehmen(Finden(form, "vor1"), ","); // which every proposal has
    EXPECT_EQ(Zeigt(Finden(form, "vor1")), "Bea");
    EXPECT_EQ(Zeigt(Finden(form, "nach1")), "Berg");
}

TEST_F(NamenErgänzen, DanachGehtDieTabtasteInsNächsteFeld)
{
    for (const auto &[feld, nächstes] : {std::pair{"vor3", "nach3"}, {"nach1", "vor2"}}) {
        QWidget *form = Öffnen("Messenliste");
        ErstenNehmen(Finden(form, feld), "ber");
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), feld);
        QTest::keyClick(form->windowHandle(), Qt::Key_Tab);
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), nächstes);
        form->hide();
    }
}

TEST_F(NamenErgänzen, DieMessenlisteKenntDieNamenVonJetzt)
{
    QWidget *form = Öffnen("Messenliste");
    Meßdiener.Nachname[1] = "Burg"; // renamed while the list is open
    ErstenNehmen(Finden(form, "vor1"), "burg");
    EXPECT_EQ(Zeigt(Finden(form, "nach1")), "Burg");
}

TEST_F(NamenErgänzen, EineMeldungBeimTippenHatVorrang)
{
    Messe.Dienerzahl[0] = 20; // slot 20 reacts to every key
    QWidget *form = Öffnen("NeuMesseDienerFest");
    Tippen(Finden(form, "MDiener20"), "a");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"FEHLEINGABE!!!"});
    EXPECT_EQ(Zeigt(Finden(form, "MDiener20")), "");
    QTest::qWait(250);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

} // namespace
} // namespace altardienst
