// The list in the mass list: choosing a mass, following what happens to the table.
#include "application/Nebenfenster.h"
#include "core/Messenname.h"
#include "planning/Messenlistenstand.h"

#include <QListView>

namespace altardienst {
namespace {

class MessenlisteFormListe : public Messenlistenstand {
  protected:
    /// On a screen that has room for the list.
    void Öffnen(int cursor, int anzahl = 30)
    {
        Messenlistenstand::Öffnen(cursor, anzahl);
        Verbreitern();
    }
    void Verbreitern()
    {
        form->resize(1400, 900);
        QCoreApplication::processEvents();
    }

    QListView *Ansicht() const { return Finden<QListView>("Liste"); }

    std::vector<Text> Zeilen() const
    {
        QCoreApplication::processEvents();
        std::vector<Text> zeilen;
        for (int zeile = 0; zeile < Ansicht()->model()->rowCount(); ++zeile)
            zeilen.push_back(Ansicht()->model()->index(zeile, 0).data().toString().toStdString());
        return zeilen;
    }

    static std::vector<Text> Messen()
    {
        std::vector<Text> zeilen;
        for (int i = 0; i < Messe.Anzahl; ++i)
            zeilen.push_back(Messenzeile(i));
        return zeilen;
    }

    int Markiert() const
    {
        QCoreApplication::processEvents();
        return Ansicht()->currentIndex().row();
    }

    void Wählen(int zeile) const
    {
        QCoreApplication::processEvents();
        const QModelIndex stelle = Ansicht()->model()->index(zeile, 0);
        Ansicht()->scrollTo(stelle);
        QTest::mouseClick(Ansicht()->viewport(), Qt::LeftButton, {},
                          Ansicht()->visualRect(stelle).center());
    }
};

TEST_F(MessenlisteFormListe, NenntTagStundeUndArt)
{
    Öffnen(3, 5);
    EXPECT_EQ(Zeilen(), Messen());
    EXPECT_EQ(Markiert(), 3);
    EXPECT_TRUE(Finden("Datensatzus")->hasFocus()) << "the first focus stays where it was";
}

TEST_F(MessenlisteFormListe, EineWahlSchreibtDenSchirmUndNimmtFesteEinträgeMit)
{
    Öffnen(12);
    Fest(0, 12);
    AllesÄndern();
    const Satz schirm = Schirm();
    Wählen(3);
    Messenbild modell = vorher;
    modell[12] = Mit(modell[12], schirm);
    EXPECT_EQ(MessenJetzt(), modell);
    EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[12]);
    EXPECT_EQ(MesseDienerFest.Uhrzeit[0], Messe.Uhrzeit[12]);
    EXPECT_EQ(Zeigt("Datensatzus"), "3");
    EXPECT_EQ(Messe.Cursor, 3);
    EXPECT_EQ(Schirm(), Gezeigter(3));
    EXPECT_EQ(Zeilen(), Messen());
    EXPECT_EQ(Markiert(), 3);
}

TEST_F(MessenlisteFormListe, EineMesseNachDerLetztenKommtDazuWieBeiPlus)
{
    for (const auto &[feld, text] : {std::pair("datendaten", "24.12.2026"),
                                     {"Uhrwerk", "23:45:00"},
                                     {"Messewesen", "Christmette"},
                                     {"Dienster2", "2"}}) {
        SCOPED_TRACE(feld);
        Messe.Datum[5] = Messe.Uhrzeit[5] = 0;
        Messe.Messeart[5].clear();
        Öffnen(0, 5);
        Einsetzen("Datensatzus", "5");
        Einsetzen(feld, text);
        const Satz schirm = Schirm();
        Wählen(2);
        EXPECT_EQ(Messe.Anzahl, 6);
        EXPECT_EQ(Zeigt("maxi"), "6");
        EXPECT_EQ(Zeigt("Datensatzus"), "2");
        EXPECT_EQ(Schirm(), Gezeigter(2));
        EXPECT_EQ(Zeilen(), Messen());
        Einsetzen("Datensatzus", "5");
        EXPECT_EQ(Schirm(), schirm);
        delete form;
    }
}

TEST_F(MessenlisteFormListe, WenigerAlsKeineMesseÖffnetDasFensterTrotzdem)
{
    Messe.Anzahl = -3;
    ListeZeigen(0);
    Verbreitern();
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_LE(Zeilen().size(), 1U);
}

TEST_F(MessenlisteFormListe, EineLeereMesseNachDerLetztenKommtNichtDazu)
{
    Öffnen(0, 5);
    Einsetzen("Datensatzus", "5");
    Wählen(2);
    EXPECT_EQ(Messe.Anzahl, 5);
    EXPECT_EQ(Zeigt("Datensatzus"), "2");
    EXPECT_EQ(Zeilen(), Messen());
}

TEST_F(MessenlisteFormListe, EinFeldDasNichtZuLesenIstHältDieMesseFest)
{
    Öffnen(12);
    Einsetzen("Uhrwerk", "mittags");
    Wählen(3);
    EXPECT_EQ(Zeigt("Datensatzus"), "12");
    EXPECT_EQ(Zeigt("Uhrwerk"), "mittags");
    EXPECT_EQ(Markiert(), 12);
    EXPECT_TRUE(Finden("Uhrwerk")->hasFocus());
    EXPECT_TRUE(GezeigteMeldungen.empty()) << "silent, like PLUS here";
}

TEST_F(MessenlisteFormListe, FolgtDemBlätternUndDemLöschen)
{
    Öffnen(28);
    Klick("Plus");
    EXPECT_EQ(Markiert(), 29);
    Klick("Plus");
    EXPECT_EQ(Markiert(), 30) << "the empty mass after the last";
    EXPECT_EQ(Zeilen().size(), 31U);
    Einsetzen("Datensatzus", "4");
    EXPECT_EQ(Markiert(), 4);
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(Zeilen(), Messen());
    EXPECT_EQ(Zeilen().size(), 29U);
    EXPECT_EQ(Markiert(), 4);
}

TEST_F(MessenlisteFormListe, NebenDemHauptfensterFolgtSieDessenSchritten)
{
    Öffnen(0, 5);
    ASSERT_EQ(Zeilen(), Messen());
    HauptfensterHandelt([] {
        std::swap(Messe.Datum[3], Messe.Datum[4]);
        Messe.Anzahl = 6;
    });
    EXPECT_EQ(Zeilen(), Messen());
    Messe.Messeart[2] = "Andacht";
    OffeneFormenBelassen(); // a load
    EXPECT_EQ(Zeilen(), Messen());
}

TEST_F(MessenlisteFormListe, WerImFilterTipptHatDieMesseNichtGeändert)
{
    MessenFüllen(5);
    Messe.Dienerzahl[2] = 30; // the screen shows 20
    ListeZeigen(2);
    Verbreitern();
    Tippen("Listenfilter", "messe");
    HauptfensterHandelt([] {});
    EXPECT_EQ(Messe.Dienerzahl[2], 30) << "a mass that was only looked at";
    Einsetzen("Messewesen", "Andacht");
    HauptfensterHandelt([] {});
    EXPECT_EQ(Messe.Messeart[2], "Andacht");
    EXPECT_EQ(Messe.Dienerzahl[2], 20);
}

TEST_F(MessenlisteFormListe, MehrAlsSechshundertSindNichtZuZeigen)
{
    Öffnen(0, 5);
    Messe.Anzahl = 602;
    HauptfensterHandelt([] {});
    EXPECT_EQ(Zeilen().size(), 601U);
    Wählen(600);
    EXPECT_EQ(Zeigt("Datensatzus"), "600");
    EXPECT_EQ(Messe.Anzahl, 602);
}

TEST_F(MessenlisteFormListe, ZweiPlätzeStehenNebeneinander)
{
    Öffnen(0, 5);
    Einsetzen("Dienerzahlen", "5");
    QCoreApplication::processEvents();
    EXPECT_EQ(Finden("vor1")->y(), Finden("vor2")->y());
    EXPECT_GT(Finden("vor3")->y(), Finden("vor1")->y());
    EXPECT_EQ(Finden("vor5")->x(), Finden("vor1")->x());
    const int breite = Finden("vor1")->width();
    EXPECT_NEAR(Finden("vor2")->width(), breite, 8);
    Einsetzen("Dienerzahlen", "1");
    QCoreApplication::processEvents();
    EXPECT_NEAR(Finden("vor1")->width(), breite, 8) << "also where no row has a second one";
}

} // namespace
} // namespace altardienst
