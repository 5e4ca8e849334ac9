// The list of findings below the grid.
#include "overview/Planstand.h"

#include "core/Messenname.h"
#include "platform/Drucker.h"
#include "printing/Druckprotokoll.h"

#include <QHeaderView>

#include <utility>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

/// In the first mass an unknown server, in the last an open place.
class BefundlisteFormTest : public Planstand {
  protected:
    BefundlisteFormTest() { Messe.DienerVor[0][2] = "Niemand"; }

    QTreeView *Baum() const { return plan->Liste->Befunde; }
    QAbstractItemModel *Befunde() const { return Baum()->model(); }
    const Planprüfung &Prüfung() const { return Modell()->Prüfung(); }

    QModelIndex Gruppe(int nr) const { return Befunde()->index(nr, 0); }
    Text Titel(int gruppe) const { return Gruppe(gruppe).data().toString().toStdString(); }
    Liste Sätze(int gruppe) const { return Spalte(gruppe, Befundmodell::Satzspalte); }
    Liste Spalte(int gruppe, int spalte) const
    {
        Liste texte;
        for (int zeile = 0; zeile < Befunde()->rowCount(Gruppe(gruppe)); ++zeile)
            texte.push_back(
                Befunde()->index(zeile, spalte, Gruppe(gruppe)).data().toString().toStdString());
        return texte;
    }
    void Anklicken(const QModelIndex &zeile) const
    {
        Baum()->scrollTo(zeile);
        QTest::mouseClick(Baum()->viewport(), Qt::LeftButton, {},
                          Baum()->visualRect(zeile).center());
    }
    void KopfAnklicken(int spalte) const
    {
        QHeaderView *kopf = Baum()->header();
        QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {},
                          {kopf->sectionViewportPosition(spalte) + 20, kopf->height() / 2});
    }
};

/// On a small screen the sentence has the room: it says what is the matter.
TEST_F(BefundlisteFormTest, WoWenigPlatzIstStehtDerSatzAllein)
{
    PlanÖffnen();
    Befundliste *liste = plan->Liste;
    for (const auto &[breite, schmal] : {std::pair(1000, false), {320, true}, {1000, false}}) {
        liste->resize(breite, 300);
        for (const int spalte : {Befundmodell::Platz, Befundmodell::Bei})
            EXPECT_EQ(Baum()->isColumnHidden(spalte), schmal) << breite;
        EXPECT_GT(Baum()->columnWidth(Befundmodell::Satzspalte), 250) << breite;
        EXPECT_EQ(Baum()->header()->length(), Baum()->viewport()->width()) << breite;
    }
}

TEST_F(BefundlisteFormTest, JederBefundStehtUnterSeinerMesse)
{
    PlanÖffnen();
    ASSERT_EQ(Befunde()->rowCount(), 2);
    for (const auto &[gruppe, messe] : {std::pair(0, 0), {1, 3}}) {
        Liste erwartet;
        for (const Befund &befund : Prüfung().Von(messe))
            erwartet.push_back(Satz(GemeinsameTabellen(), befund));
        EXPECT_FALSE(erwartet.empty());
        EXPECT_EQ(Sätze(gruppe), erwartet);
        EXPECT_TRUE(Baum()->isExpanded(Gruppe(gruppe)));
        EXPECT_TRUE(Titel(gruppe).starts_with(Messenüberschrift(messe) + " – ")) << Titel(gruppe);
    }
    EXPECT_EQ(Spalte(0, Befundmodell::Platz), Liste{"Diener 2"});
    EXPECT_EQ(Spalte(0, Befundmodell::Bei), Liste{"Niemand Cohn"});
    EXPECT_EQ(Zeigt(plan->Liste->Zahlen), Befundzahl(Prüfung().Verstöße(), Prüfung().Hinweise()));
}

TEST_F(BefundlisteFormTest, EinKlickGehtZumPlatz)
{
    PlanÖffnen();
    Anklicken(Befunde()->index(0, 0, Gruppe(0)));
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(0, Plätze + 1));
    Anklicken(Gruppe(1));
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(0, Plätze + 1)) << "a heading is no place";
    FokusAuf(Baum());
    QTest::keyClick(Baum(), Qt::Key_Down);
    QTest::keyClick(Baum(), Qt::Key_Return);
    EXPECT_EQ(plan->Tafel->currentIndex().row(), 3);
}

TEST_F(BefundlisteFormTest, NachPersonGegliedertStehtDieMesseDaneben)
{
    PlanÖffnen();
    Klick(plan->Liste->NachPerson);
    EXPECT_TRUE(Titel(0).starts_with("Niemand Cohn – ")) << Titel(0);
    EXPECT_EQ(Spalte(0, Befundmodell::Bei), Liste{Messenzeile(0)});
    EXPECT_EQ(Befunde()->headerData(Befundmodell::Bei, Qt::Horizontal).toString(), "Messe");
    EXPECT_TRUE(Baum()->isExpanded(Gruppe(0)));
    Wiederkommen();
    EXPECT_TRUE(Titel(0).starts_with("Niemand Cohn – ")) << "remembered";
}

TEST_F(BefundlisteFormTest, EinKlickAufDenKopfOrdnetDerDritteWieZuvor)
{
    Messe.DienerVor[3][1] = "Noch";
    Messe.DienerVor[3][2] = "Mehr";
    PlanÖffnen();
    const Text erste = Titel(0);
    const Text zweite = Titel(1);
    ASSERT_LT(Sätze(0).size(), Sätze(1).size());
    plan->Liste->resize(1000, 300); // with all columns
    KopfAnklicken(Befundmodell::Satzspalte);
    EXPECT_EQ(Titel(0), zweite) << "the most breaches first";
    EXPECT_TRUE(Baum()->isExpanded(Gruppe(0)));
    KopfAnklicken(Befundmodell::Satzspalte);
    EXPECT_EQ(Titel(0), erste);
    KopfAnklicken(Befundmodell::Satzspalte);
    EXPECT_EQ(Titel(0), erste);
    KopfAnklicken(Befundmodell::Bei);
    KopfAnklicken(Befundmodell::Bei);
    EXPECT_EQ(Titel(0), zweite) << "the last first";
    const Liste personen = Spalte(0, Befundmodell::Bei);
    EXPECT_TRUE(std::is_sorted(personen.rbegin(), personen.rend()));
    KopfAnklicken(Befundmodell::Platz);
    const Liste plätze = Spalte(1, Befundmodell::Platz);
    EXPECT_TRUE(std::is_sorted(plätze.begin(), plätze.end()));
}

TEST_F(BefundlisteFormTest, NachEinerÄnderungBleibtZugeklapptWasEsWarUndGewähltWasEsWar)
{
    PlanÖffnen();
    Baum()->setExpanded(Gruppe(0), false);
    Anklicken(Befunde()->index(0, 0, Gruppe(1)));
    const QVariant gewählter = Baum()->currentIndex().data();
    Messe.DienerVor[2][1] = "Niemand"; // a group between the two
    plan->Nachziehen();
    ASSERT_EQ(Befunde()->rowCount(), 3);
    EXPECT_FALSE(Baum()->isExpanded(Gruppe(0)));
    EXPECT_TRUE(Baum()->isExpanded(Gruppe(1)));
    EXPECT_EQ(Baum()->currentIndex().data(), gewählter);
    EXPECT_EQ(Zeigt(plan->Liste->Zahlen), Befundzahl(Prüfung().Verstöße(), Prüfung().Hinweise()));
}

TEST_F(BefundlisteFormTest, DerKnopfDrucktDiePrüflisteWieSieGegliedertIst)
{
    Druckprotokoll papier;
    DruckerDienst *zuvor = std::exchange(Drucker, &papier);
    PlanÖffnen();
    const auto gedruckt = [&](const Text &text) {
        return std::ranges::any_of(
            papier.Zeilen, [&](const Text &zeile) { return zeile.find(text) != Text::npos; });
    };
    Klick(plan->Liste->Drucken);
    EXPECT_TRUE(gedruckt("Prüfliste der Pfarrei"));
    EXPECT_TRUE(gedruckt(Messenüberschrift(3)));
    papier.Leeren();
    Klick(plan->Liste->NachPerson);
    Klick(plan->Liste->Drucken);
    EXPECT_TRUE(gedruckt("Print \"Niemand Cohn\""));
    EXPECT_FALSE(gedruckt(Messenüberschrift(3)));
    papier.Leeren();
    Regelwahl ohne = AlleRegeln;
    ohne[static_cast<std::size_t>(Regel::Unbekannt)] = false;
    plan->Liste->Beachten(ohne);
    Klick(plan->Liste->Drucken);
    EXPECT_FALSE(gedruckt("Print \"Niemand Cohn\"")) << "on paper neither";
    Drucker = zuvor;
}

} // namespace
} // namespace altardienst
