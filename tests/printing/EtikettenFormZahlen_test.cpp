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
    Tippen("Ind", "10");
    EXPECT_EQ(Zeigt("Ind"), "9");
    EXPECT_EQ(Zeigt("N"), "Format 9");
    Tippen("Ind", "-1");
    EXPECT_EQ(Zeigt("Ind"), "0");
    EXPECT_EQ(Etikett.Anzahl, 0);
    Tippen("Ind", "x");
    EXPECT_EQ(Zeigt("Ind"), "x");
    EXPECT_EQ(Zeigt("N"), "Format 0");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormZahlenTest, AnDenEndenGehtEsNichtWeiter)
{
    Etikett.Anzahl = 9;
    Öffnen();
    Tippen("N", "letztes");
    Klick("Plus");
    EXPECT_EQ(Zeigt("Ind"), "9");
    EXPECT_EQ(Zeigt("N"), "letztes");
    Tippen("Ind", "0");
    Klick("Minus");
    EXPECT_EQ(Zeigt("Ind"), "0");
}

TEST_F(EtikettenFormZahlenTest, LängenLiegenBeimVerlassenInIhrenGrenzen)
{
    Öffnen();
    for (const char *feld : Längenfelder) {
        EXPECT_EQ(NachTippen(feld, "0,05"), "0,1") << feld;
        EXPECT_EQ(NachTippen(feld, "0,1"), "0,1") << feld;
        EXPECT_EQ(NachTippen(feld, "-7"), "0,1") << feld;
        EXPECT_EQ(NachTippen(feld, "330,1"), "330,1") << feld;
        EXPECT_EQ(NachTippen(feld, "330,2"), "330,1") << feld;
        EXPECT_EQ(NachTippen(feld, "63,55"), "63,55") << feld;
        EXPECT_EQ(NachTippen(feld, "breit"), "breit")
            << feld; // what is not a number stays as it is
        Tippen(feld, "1");
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Etikett.RandOU[2], 3); // nothing is stored yet
}

TEST_F(EtikettenFormZahlenTest, ReihenUndSpaltenLiegenZwischenEinsUndZwanzig)
{
    Öffnen();
    for (const char *feld : {"R", "S"}) {
        EXPECT_EQ(NachTippen(feld, "0"), "1") << feld;
        EXPECT_EQ(NachTippen(feld, "1"), "1") << feld;
        EXPECT_EQ(NachTippen(feld, "20"), "20") << feld;
        EXPECT_EQ(NachTippen(feld, "21"), "20") << feld;
        EXPECT_EQ(NachTippen(feld, "2,5"), "2") << feld;
        EXPECT_EQ(NachTippen(feld, ""), "") << feld;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettenFormZahlenTest, DieSiebenDrehknöpfeUndIhreGrenzen)
{
    Öffnen();
    for (std::size_t k = 0; k < Längenfelder.size(); ++k) {
        const char *feld = Längenfelder[k];
        const Text spin = "Ä" + std::to_string(k + 1);
        Tippen(feld, "69,8");
        Drehen(spin.c_str(), "auf");
        EXPECT_EQ(Zeigt(feld), "69,9") << feld;
        Drehen(spin.c_str(), "ab");
        Drehen(spin.c_str(), "ab");
        EXPECT_EQ(Zeigt(feld), "69,7") << feld;
        Tippen(feld, "0,1");
        Drehen(spin.c_str(), "ab");
        EXPECT_EQ(Zeigt(feld), "0,1") << feld;
        Tippen(feld, "330,1");
        Drehen(spin.c_str(), "auf");
        EXPECT_EQ(Zeigt(feld), "330,1") << feld;
    }
    for (const auto &[feld, spin] : {std::pair{"R", "Ä6"}, {"S", "Ä7"}}) {
        Tippen(feld, "19");
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(feld), "20") << feld;
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(feld), "20") << feld;
        Tippen(feld, "2");
        Drehen(spin, "ab");
        Drehen(spin, "ab");
        EXPECT_EQ(Zeigt(feld), "1") << feld;
    }
}

TEST_F(EtikettenFormZahlenTest, SchließenUndSeitentastenHaltenDieGrenzenAuchOhneVerlassen)
{
    Öffnen();
    Tippen("H", "0,05");
    QTest::keyClick(Finden("H"), Qt::Key_PageUp);
    EXPECT_EQ(Etikett.Höhe[2], 0.1F);
    EXPECT_TRUE(Finden("H")->hasFocus());
    Tippen("R", "99");
    form->close();
    EXPECT_EQ(Etikett.Reihen[3], 20);
}

// Another program has the keyboard when the window is closed from the task bar.
TEST_F(EtikettenFormZahlenTest, DieGrenzenGeltenAuchWennEinAnderesProgrammDieTastenHat)
{
    Öffnen();
    Tippen("R", "99");
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
    QTest::keyClick(Finden("N"), Qt::Key_PageUp);
    for (auto *länge : Längen)
        EXPECT_EQ((*länge)[2], 0);
    EXPECT_EQ(Etikett.Reihen[2], 0);
    EXPECT_EQ(Etikett.Spalten[2], 0);
}

TEST_F(EtikettenFormZahlenTest, EinFeldOhneZahlHältDasFensterOffen)
{
    Öffnen();
    Tippen("N", "neu");
    Tippen("B", "breit");
    Klick("Ende");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Etikett.Name[2], "neu"); // the boxes before it are written
    EXPECT_EQ(Etikett.Breite[2], 6);
    Klick("Plus");
    EXPECT_EQ(Zeigt("Ind"), "2");
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
}

TEST_F(EtikettenFormZahlenTest, AuchSehrGroßeZahlenWerdenStillBegrenzt)
{
    Öffnen();
    for (const char *zahl : {"32767", "32768", "99999", "1234567890"}) {
        const Text negativ = Text("-") + zahl;
        for (const auto &[feld, spin] : {std::pair{"R", "Ä6"}, {"S", "Ä7"}}) {
            EXPECT_EQ(NachTippen(feld, zahl), "20") << feld << zahl;
            EXPECT_EQ(NachTippen(feld, negativ.c_str()), "1") << feld << zahl;
            Tippen(feld, zahl);
            Drehen(spin, "auf");
            EXPECT_EQ(Zeigt(feld), "20") << feld << zahl;
            Einsetzen(feld, zahl);
            Drehen(spin, "ab");
            EXPECT_EQ(Zeigt(feld), "20") << feld << zahl;
        }
        EXPECT_EQ(NachTippen("OU", zahl), "330,1") << zahl;
        auto *nummer = Finden<QLineEdit>("Ind");
        Einsetzen(nummer, zahl); // pasted, not typed digit by digit
        EXPECT_EQ(Zeigt("Ind"), "9") << zahl;
        EXPECT_EQ(Etikett.Anzahl, 9);
        EXPECT_EQ(Zeigt("N"), "Format 9");
        Einsetzen(nummer, negativ);
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
        Tippen("N", knopf);
        Tippen("S", "11");
        Klick(knopf);
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
        Tippen("Ind", nummer);
        Tippen("N", Text("neu") + nummer);
        Klick("Ende");
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
    Tippen("N", "neu");
    Tippen("Ind", "");
    Klick("Plus");
    EXPECT_EQ(Etikett.Name[2], "neu");
    EXPECT_EQ(Zeigt("Ind"), "3");
    EXPECT_EQ(Zeigt("N"), "Format 3");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
