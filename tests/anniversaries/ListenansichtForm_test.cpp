// The two windows that show the rows of a list one by one.
#include "anniversaries/JubiGebustand.h"
#include "application/Anwendung.h"

#include <QApplication>

#include <map>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class ListenansichtFormTest : public JubiGebustand {
  protected:
    /// Opens the form and, with its button, a view.
    void AnsichtÖffnen(const char *knopf, const char *fenster)
    {
        Öffnen();
        Klick(knopf);
        ansicht = Fenster(fenster);
        Zeigen(ansicht);
    }
    void GeburtstageÖffnen() { AnsichtÖffnen("AnsichtGeb", "Geburtstagsansicht"); }
    void JubiläenÖffnen() { AnsichtÖffnen("AnsichtJubiMeß", "Jubiläumsanzeige"); }

    Text InDerAnsicht(const char *name) const { return Zeigt(Finden(ansicht, name)); }

    /// "number: name, date, years, telephone" as the view shows them.
    Text Zeile() const
    {
        return InDerAnsicht("Nu") + ": " + InDerAnsicht("Name") + ", " + InDerAnsicht("Tag") +
               ", " + InDerAnsicht("Jahre") + ", " + InDerAnsicht("Telefon");
    }

    /// The labels and what they name.
    std::map<Text, Text> Beschriftungen() const
    {
        std::map<Text, Text> felder;
        for (const QLabel *label : ansicht->findChildren<QLabel *>())
            if (label->buddy())
                felder[Zeigt(label)] = label->buddy()->objectName().toStdString();
        return felder;
    }

    QPointer<QWidget> ansicht;

    static constexpr auto Leer = "2:  , 21.11.2026, 0, ";
};

TEST_F(ListenansichtFormTest, GeburtstageMitIhrenWorten)
{
    GeburtstageÖffnen();
    EXPECT_EQ(ansicht->windowTitle(), "Geburtstage");
    EXPECT_EQ(Beschriftungen(), (std::map<Text, Text>{{"Name:", "Name"},
                                                      {"Geburtstag:", "Tag"},
                                                      {"Alter:", "Jahre"},
                                                      {"Telefon:", "Telefon"}}));
    EXPECT_EQ(Zeile(), "0: Lea Lang, 09.01.1980, 46, ");
    EXPECT_EQ(InDerAnsicht("Letzter"), "2");
    EXPECT_EQ(InDerAnsicht("Datensätze"), "2");
    Text worte;
    for (const QLabel *label : ansicht->findChildren<QLabel *>())
        worte += Zeigt(label) + "|";
    EXPECT_NE(worte.find("Index von 0 bis|"), Text::npos);
    EXPECT_NE(worte.find("Anzahl Datensätze:|"), Text::npos);
}

TEST_F(ListenansichtFormTest, JubiläenMitIhrenWorten)
{
    JubiläenÖffnen();
    EXPECT_EQ(ansicht->windowTitle(), "Jubiläum Meßdiener");
    EXPECT_EQ(Beschriftungen(), (std::map<Text, Text>{{"Name:", "Name"},
                                                      {"Eintrittsdatum:", "Tag"},
                                                      {"Jahre:", "Jahre"},
                                                      {"Telefon:", "Telefon"}}));
    EXPECT_EQ(Zeile(), "0: Ben Berg, 01.01.2026, 0, 0254/1");
    Klick(Finden(ansicht, "Plus"));
    EXPECT_EQ(Zeile(), "1: Anna Berg, 01.05.2026, 0, 0254/0");
}

TEST_F(ListenansichtFormTest, JahreSindDieDerZeile)
{
    Öffnen();
    Ankreuzen("Fünfzehne");
    Klick("AnsichtJubiMeß");
    ansicht = Fenster("Jubiläumsanzeige");
    EXPECT_EQ(Zeile(), "0: Cara Berg, 17.05.2009, 17, 0254/2");
    EXPECT_EQ(InDerAnsicht("Datensätze"), "1");
}

TEST_F(ListenansichtFormTest, AlleWegeZurNächstenUndVorigenZeile)
{
    GeburtstageÖffnen();
    const auto taste = [&](const char *name, Qt::Key taste) {
        FokusAuf(Finden(ansicht, name));
        QTest::keyClick(Finden(ansicht, name), taste);
    };
    Klick(Finden(ansicht, "Plus"));
    EXPECT_EQ(Zeile(), "1: Anna Berg, 20.01.2010, 16, 0254/0");
    Klick(Finden(ansicht, "Minus"));
    EXPECT_EQ(Zeile(), "0: Lea Lang, 09.01.1980, 46, ");
    taste("Telefon", Qt::Key_PageUp);
    EXPECT_EQ(InDerAnsicht("Nu"), "1");
    taste("Nu", Qt::Key_PageDown);
    EXPECT_EQ(InDerAnsicht("Nu"), "0");
    taste("Plus", Qt::Key_Plus);
    EXPECT_EQ(InDerAnsicht("Nu"), "1");
    taste("Minus", Qt::Key_Minus);
    EXPECT_EQ(InDerAnsicht("Nu"), "0");
}

// The number goes up to the count itself, where the blank row after the last one is.
TEST_F(ListenansichtFormTest, DieNummerBleibtZwischenNullUndDerAnzahl)
{
    GeburtstageÖffnen();
    Klick(Finden(ansicht, "Minus"));
    EXPECT_EQ(Zeile(), "0: Lea Lang, 09.01.1980, 46, ");
    for (int mal = 0; mal < 4; ++mal)
        Klick(Finden(ansicht, "Plus"));
    EXPECT_EQ(Zeile(), Leer);
    for (const char *zahl : {"3", "40000", "99999999999"}) {
        Tippen(Finden(ansicht, "Nu"), zahl);
        EXPECT_EQ(Zeile(), Leer) << zahl;
    }
    Tippen(Finden(ansicht, "Nu"), "-1");
    EXPECT_EQ(Zeile(), "0: Lea Lang, 09.01.1980, 46, ");
}

TEST_F(ListenansichtFormTest, WasKeineZahlIstBleibtStehenUndÄndertNichts)
{
    GeburtstageÖffnen();
    Klick(Finden(ansicht, "Plus"));
    auto *nu = Finden<QLineEdit>(ansicht, "Nu");
    for (const auto &[eingabe, zeigt] :
         {std::pair{"x", "x"}, {"", ""}, {"1\n1", "1 1"}, {"😀", "?"}, {"1,x", "1,x"}}) {
        Einsetzen(nu, eingabe);
        EXPECT_EQ(Zeile(), Text(zeigt) + ": Anna Berg, 20.01.2010, 16, 0254/0");
        Klick(Finden(ansicht, "Plus"));
        Klick(Finden(ansicht, "Minus"));
        EXPECT_EQ(InDerAnsicht("Nu"), zeigt);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(ListenansichtFormTest, EineLeereListeZeigtEineLeereZeile)
{
    Öffnen();
    Ankreuzen("Mai");
    Ankreuzen("Viere");
    for (const auto &[knopf, fenster] :
         {std::pair{"AnsichtGeb", "Geburtstagsansicht"}, {"AnsichtJubiMeß", "Jubiläumsanzeige"}}) {
        Klick(knopf);
        ansicht = Fenster(fenster);
        EXPECT_EQ(Zeile(), "0:  , 21.11.2026, 0, ");
        EXPECT_EQ(InDerAnsicht("Datensätze"), "1");
        ansicht->close();
    }
}

TEST_F(ListenansichtFormTest, NichtsLäßtSichÄndern)
{
    GeburtstageÖffnen();
    for (const char *feld : {"Name", "Tag", "Jahre", "Telefon"}) {
        Tippen(Finden(ansicht, feld), "anders");
        EXPECT_TRUE(Finden<QLineEdit>(ansicht, feld)->isReadOnly());
    }
    EXPECT_EQ(Zeile(), "0: Lea Lang, 09.01.1980, 46, ");
    EXPECT_EQ(Geburtstagsliste.Vorname[0], "Lea");
}

TEST_F(ListenansichtFormTest, DieFormWartetBisEndeDieAnsichtSchließt)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    haupt.setEnabled(false);
    GeburtstageÖffnen();
    EXPECT_EQ(QApplication::activeModalWidget(), ansicht);
    EXPECT_TRUE(form->isVisible());
    Klick(Finden(ansicht, "Ende"));
    EXPECT_TRUE(Warten([&] { return ansicht.isNull(); }));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(Warten([&] { return form->isActiveWindow(); }));
    EXPECT_FALSE(haupt.isEnabled()); // comes back with the form that opened the view
}

TEST_F(ListenansichtFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    GeburtstageÖffnen();
    FokusAuf(Finden(ansicht, "Nu"));
    EXPECT_EQ(Tabfolge(ansicht), (Liste{"Nu", "Name", "Tag", "Jahre", "Telefon", "Ende"}));
    EXPECT_EQ(Stumme(ansicht), Liste{});
    EXPECT_LE(ansicht->width(), KleinsterBildschirm.width());
    EXPECT_LE(ansicht->height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
