// Searching in the window of the handbook.
#include "help/Handbuchstand.h"

#include <QSplitter>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class HandbuchFormSucheTest : public Handbuchstand {
  protected:
    HandbuchFormSucheTest() { Aufschlagen("README.md"); }

    /// The first hit below a heading.
    int ZeileUnter(const Text &überschrift) const
    {
        int zeile = 0;
        while (zeile < form->Fundliste->count() && !Zeile(zeile).starts_with(überschrift + "\n"))
            ++zeile;
        return zeile;
    }

    Text Zeile(int nummer) const { return form->Fundliste->item(nummer)->text().toStdString(); }
};

TEST_F(HandbuchFormSucheTest, StrgFGehtInsSuchfeld)
{
    FokusAuf(form->Seite);
    Taste(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(form->Suchwort->hasFocus());
}

TEST_F(HandbuchFormSucheTest, DieFundstellenStehenMitIhremSatzDa)
{
    Suchen("diskette");
    EXPECT_TRUE(form->Fundliste->isVisible());
    ASSERT_GT(form->Fundliste->count(), 0);
    EXPECT_EQ(Zeigt(form->Fundzahl),
              form->Fundliste->count() == 1
                  ? "1 Fundstelle"
                  : std::to_string(form->Fundliste->count()) + " Fundstellen");
    int dabei = 0;
    for (int i = 0; i < form->Fundliste->count(); ++i) {
        if (!Zeile(i).starts_with(
                "Was eine gute Datei kosten kann, und was dann hilft\n\"Daten auf "
                "Diskette\", \"speichern\" überschreibt die Diskette;"))
            continue;
        ++dabei;
        EXPECT_EQ(form->Fundliste->item(i)->toolTip(),
                  "Daten sichern und holen › Was eine gute Datei kosten kann, und was dann hilft");
    }
    EXPECT_EQ(dabei, 1);
    EXPECT_EQ(form->windowTitle(), "Handbuch") << "typing alone opens nothing";
}

TEST_F(HandbuchFormSucheTest, JedeFundstelleHatDieWorte)
{
    Suchen("messdiener gruppe");
    ASSERT_GT(form->Fundliste->count(), 3);
    for (int i = 0; i < form->Fundliste->count(); ++i) {
        form->Fundliste->setCurrentRow(i);
        const auto marken = Marken();
        EXPECT_EQ(std::ranges::count_if(marken, [](const Text &m) { return m.front() == '['; }), 1);
        EXPECT_TRUE(Klein(marken.back()) == "[messdiener]" || Klein(marken.back()) == "[gruppe]" ||
                    Klein(marken.back()) == "[meßdiener]")
            << marken.back();
    }
}

TEST_F(HandbuchFormSucheTest, DieEingabetasteGehtReihumWeiter)
{
    Suchen("etikett");
    const int anzahl = form->Fundliste->count();
    ASSERT_GT(anzahl, 2);
    for (int runde = 0; runde < 2; ++runde)
        for (int i = 0; i < anzahl; ++i) {
            Taste(i % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
            EXPECT_EQ(form->Fundliste->currentRow(), i);
            EXPECT_EQ(Zeigt(form->Fundzahl),
                      "Fundstelle " + std::to_string(i + 1) + " von " + std::to_string(anzahl));
            EXPECT_TRUE(form->Suchwort->hasFocus());
        }
    Taste(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(form->Fundliste->currentRow(), anzahl - 2);
    Taste(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(form->Fundliste->currentRow(), anzahl - 3);
}

TEST_F(HandbuchFormSucheTest, RückwärtsBeginntAmEnde)
{
    Suchen("etikett");
    Taste(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(form->Fundliste->currentRow(), form->Fundliste->count() - 1);
}

TEST_F(HandbuchFormSucheTest, DieFundstelleIstZuSehenUndHervorgehoben)
{
    Suchen("zuordnungen ansehen und ändern");
    form->Fundliste->setCurrentRow(ZeileUnter("Zuordnungen ansehen und ändern"));
    EXPECT_EQ(form->windowTitle(), "Handbuch: Vom Wochenmuster zum Plan");
    EXPECT_EQ(Marken().back(), "[Zuordnungen]");
    EXPECT_TRUE(IstZuSehen(Block("Zuordnungen ansehen und ändern")));
    EXPECT_EQ(Gewählt(), "Zuordnungen ansehen und ändern");
}

TEST_F(HandbuchFormSucheTest, AlleWorteDerSeiteSindHervorgehoben)
{
    Suchen("helfer");
    form->Aufschlagen({"leute.md", ""});
    EXPECT_EQ(Marken(), Liste{}) << "F1 ends a search";
    Suchen("häkchen");
    const auto marken = Marken();
    EXPECT_EQ(marken, Liste(marken.size(), "Häkchen"));
    EXPECT_GE(marken.size(), 2U);
    Suchen("");
    EXPECT_EQ(Marken(), Liste{});
}

TEST_F(HandbuchFormSucheTest, LeeresFeldZeigtWiederDenInhalt)
{
    EXPECT_TRUE(form->Inhalt->isVisible());
    Suchen("plan");
    EXPECT_FALSE(form->Inhalt->isVisible());
    Suchen("");
    EXPECT_TRUE(form->Inhalt->isVisible());
    EXPECT_FALSE(form->Fundliste->isVisible());
    Taste(Qt::Key_F3);
    EXPECT_TRUE(form->Suchwort->hasFocus()) << "nothing to go on with";
    EXPECT_EQ(form->windowTitle(), "Handbuch");
}

TEST_F(HandbuchFormSucheTest, NichtsGefundenWirdGesagt)
{
    Suchen("xyzzy");
    EXPECT_FALSE(form->Fundliste->isVisible());
    EXPECT_TRUE(form->Fundzahl->isVisible());
    EXPECT_TRUE(Zeigt(form->Fundzahl).starts_with("Nichts gefunden."));
    Taste(Qt::Key_Return);
    EXPECT_EQ(form->windowTitle(), "Handbuch");
}

TEST_F(HandbuchFormSucheTest, DurchDieListeGehtEsMitDenPfeilen)
{
    Suchen("etikett");
    Taste(Qt::Key_Down);
    EXPECT_TRUE(form->Fundliste->hasFocus());
    Taste(Qt::Key_Down);
    const int zeile = form->Fundliste->currentRow();
    EXPECT_GE(zeile, 0);
    EXPECT_EQ(Marken().back().front(), '[');
    Taste(Qt::Key_Down);
    EXPECT_EQ(form->Fundliste->currentRow(), zeile + 1);
    Taste(Qt::Key_Return);
    EXPECT_TRUE(form->Seite->hasFocus()) << "to read on";
}

TEST_F(HandbuchFormSucheTest, AusDemSuchfeldFührtPfeilAbInDenInhalt)
{
    FokusAuf(form->Suchwort);
    Taste(Qt::Key_Down);
    EXPECT_TRUE(form->Inhalt->hasFocus());
}

TEST_F(HandbuchFormSucheTest, EineSucheIstEinSchrittZurück)
{
    form->Aufschlagen({"leute.md", "helfer"});
    Suchen("etikett");
    for (int i = 0; i < 4; ++i)
        Taste(Qt::Key_F3);
    EXPECT_NE(form->windowTitle(), "Handbuch: Messdiener, Gruppen und Helfer");
    Klick(form->Zurück);
    EXPECT_EQ(form->windowTitle(), "Handbuch: Messdiener, Gruppen und Helfer");
    EXPECT_EQ(Gewählt(), "Helfer");
}

TEST_F(HandbuchFormSucheTest, EinKlickZeigtDieFundstelleNochEinmal)
{
    Suchen("zuordnungen ansehen und ändern");
    const int nummer = ZeileUnter("Zuordnungen ansehen und ändern");
    form->Fundliste->setCurrentRow(nummer);
    FokusAuf(form->Seite);
    Taste(Qt::Key_Home);
    EXPECT_FALSE(IstZuSehen(Block("Zuordnungen ansehen und ändern")));
    const QRect zeile = form->Fundliste->visualItemRect(form->Fundliste->item(nummer));
    QTest::mouseClick(form->Fundliste->viewport(), Qt::LeftButton, {}, zeile.center());
    EXPECT_TRUE(IstZuSehen(Block("Zuordnungen ansehen und ändern")));
}

TEST_F(HandbuchFormSucheTest, DieListeIstBarriereFrei)
{
    Suchen("plan");
    EXPECT_EQ(Stumme(form), Liste{});
    FokusAuf(form->Suchwort);
    const auto folge = Tabfolge(form);
    ASSERT_GT(folge.size(), 2U);
    EXPECT_EQ(folge[1], "Fundliste");
}

TEST_F(HandbuchFormSucheTest, DieZeilenHabenDieHöheIhresTextes)
{
    Suchen("diskette");
    const auto höhe = [this] {
        int summe = 0;
        for (int i = 0; i < form->Fundliste->count(); ++i)
            summe += form->Fundliste->visualItemRect(form->Fundliste->item(i)).height();
        return summe;
    };
    const int schmal = höhe();
    EXPECT_GE(schmal, form->fontMetrics().height() * 2 * form->Fundliste->count());
    auto *teiler = Finden<QSplitter>(form, "Teiler");
    teiler->setSizes({600, 100});
    QApplication::processEvents();
    EXPECT_LT(höhe(), schmal) << "the rows follow the width";
    EXPECT_FALSE(form->Fundliste->horizontalScrollBar()->isVisible());
}

} // namespace
} // namespace altardienst
