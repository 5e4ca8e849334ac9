// The numbers in the editor of the label formats: their bounds, and boxes that do not hold a
// number.
#include "printing/Etikettenfenster.h"

#include "application/Anwendung.h"

#include <QApplication>

namespace altardienst {
namespace {

class EtikettenFormZahlenTest : public Etikettenfenster {};

TEST_F(EtikettenFormZahlenTest, DieNummerWirdBeimTippenBegrenzt)
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

TEST_F(EtikettenFormZahlenTest, AnDenEndenGehtEsNichtWeiter)
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

TEST_F(EtikettenFormZahlenTest, LängenLiegenBeimVerlassenInIhrenGrenzen)
{
    Öffnen();
    for (const char *feld : Längenfelder) {
        EXPECT_EQ(Verlassen(feld, "0,05"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "0,1"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "-7"), "0,1") << feld;
        EXPECT_EQ(Verlassen(feld, "330,1"), "330,1") << feld;
        EXPECT_EQ(Verlassen(feld, "330,2"), "330,1") << feld;
        EXPECT_EQ(Verlassen(feld, "63,55"), "63,55") << feld;
        EXPECT_EQ(Verlassen(feld, "breit"), "breit") << feld; // what is not a number stays as it is
        Eingeben(feld, "1");
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Etikett.RandOU[2], 3); // nothing is stored yet
}

TEST_F(EtikettenFormZahlenTest, ReihenUndSpaltenLiegenZwischenEinsUndZwanzig)
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

TEST_F(EtikettenFormZahlenTest, DieSiebenDrehknöpfeUndIhreGrenzen)
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

TEST_F(EtikettenFormZahlenTest, SchließenUndSeitentastenHaltenDieGrenzenAuchOhneVerlassen)
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

// Another program has the keyboard when the window is closed from the task bar.
TEST_F(EtikettenFormZahlenTest, DieGrenzenGeltenAuchWennEinAnderesProgrammDieTastenHat)
{
    Öffnen();
    Eingeben("R", "99");
    QApplication::setActiveWindow(nullptr);
    ASSERT_FALSE(form->isActiveWindow());
    form->close();
    EXPECT_EQ(Etikett.Reihen[2], 20);
}

TEST_F(EtikettenFormZahlenTest, EinLeeresFormatDasNurAngesehenWirdBleibtLeer)
{
    for (auto *länge : Längen)
        (*länge)[2] = 0;
    Etikett.Reihen[2] = Etikett.Spalten[2] = 0;
    Öffnen();
    QTest::keyClick(Control("N"), Qt::Key_PageUp);
    for (auto *länge : Längen)
        EXPECT_EQ((*länge)[2], 0);
    EXPECT_EQ(Etikett.Reihen[2], 0);
    EXPECT_EQ(Etikett.Spalten[2], 0);
}

TEST_F(EtikettenFormZahlenTest, EinFeldOhneZahlHältDasFensterOffen)
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

TEST_F(EtikettenFormZahlenTest, AuchSehrGroßeZahlenWerdenStillBegrenzt)
{
    Öffnen();
    for (const char *zahl : {"32767", "32768", "99999", "1234567890"}) {
        const Text negativ = Text("-") + zahl;
        for (const auto &[feld, spin] : {std::pair{"R", "Ä6"}, {"S", "Ä7"}}) {
            EXPECT_EQ(Verlassen(feld, zahl), "20") << feld << zahl;
            EXPECT_EQ(Verlassen(feld, negativ.c_str()), "1") << feld << zahl;
            Eingeben(feld, zahl);
            Drehen(spin, "auf");
            EXPECT_EQ(Zeigt(feld), "20") << feld << zahl;
            Finden<QLineEdit>(form, feld)->setText(zahl);
            Drehen(spin, "ab");
            EXPECT_EQ(Zeigt(feld), "20") << feld << zahl;
        }
        EXPECT_EQ(Verlassen("OU", zahl), "330,1") << zahl;
        auto *nummer = Finden<QLineEdit>(form, "Ind");
        nummer->setText(zahl); // pasted, not typed digit by digit
        EXPECT_EQ(Zeigt("Ind"), "9") << zahl;
        EXPECT_EQ(Etikett.Anzahl, 9);
        EXPECT_EQ(Zeigt("N"), "Format 9");
        nummer->setText(Anzeige(negativ));
        EXPECT_EQ(Zeigt("Ind"), "0") << zahl;
        EXPECT_EQ(Etikett.Anzahl, 0);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormZahlenTest, AuchAnDenEndenWirdGeschrieben)
{
    for (const auto &[knopf, format] : {std::pair{"Plus", 9}, {"Minus", 0}}) {
        Etikett.Anzahl = format;
        Öffnen();
        Eingeben("N", knopf);
        Eingeben("S", "11");
        Klick(Control(knopf));
        EXPECT_EQ(Etikett.Name[format], knopf);
        EXPECT_EQ(Etikett.Spalten[format], 11);
        EXPECT_EQ(Etikett.Anzahl, format);
        delete form;
    }
}

TEST_F(EtikettenFormZahlenTest, EineHalbGetippteNummerHältNiemandenFest)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    for (const char *nummer : {"", "x", "-"}) {
        Etikett.Anzahl = 2;
        haupt.setEnabled(false);
        Öffnen();
        Eingeben("Ind", nummer);
        Eingeben("N", (Text("neu") + nummer).c_str());
        Klick(Control("Ende"));
        EXPECT_TRUE(Warten([&] { return form.isNull(); }));
        EXPECT_EQ(Etikett.Name[2], Text("neu") + nummer);
        EXPECT_EQ(Etikett.Anzahl, 2);
        EXPECT_TRUE(haupt.isEnabled());
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormZahlenTest, VonEinerHalbGetipptenNummerGehtEsWeiterWoManWar)
{
    Öffnen();
    Eingeben("N", "neu");
    Eingeben("Ind", "");
    Klick(Control("Plus"));
    EXPECT_EQ(Etikett.Name[2], "neu");
    EXPECT_EQ(Zeigt("Ind"), "3");
    EXPECT_EQ(Zeigt("N"), "Format 3");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
