// The dialog of the fixed entries: what it shows when it opens.
#include "fixed/FesteEinträge.h"
#include "fixed/Zuordnungsstand.h"

namespace altardienst {
namespace {

class MesseDienerFestFormTest : public Zuordnungsstand {};

TEST_F(MesseDienerFestFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Fest(0, 0);
    ListeÖffnen();
    EXPECT_EQ(form->objectName(), "MesseDienerFest");
    EXPECT_EQ(form->windowTitle(), "Meßdiener fest zu einer Messe zuordnen");
    auto beschriftungen = Beschriftungen();
    EXPECT_EQ(beschriftungen["Messen"], "Messe :");
    EXPECT_EQ(beschriftungen["DatumD"], "am :");
    EXPECT_EQ(beschriftungen["Zeitd"], "um :");
    EXPECT_EQ(Zeigt("Hinzu"), "Datensatz hinzufügen");
    EXPECT_EQ(Zeigt("Löschen"), "Datensatz löschen");
    EXPECT_EQ(Zeigt("OKbutton"), "OK");
    Liste aufschriften;
    for (const QLabel *label : form->findChildren<QLabel *>())
        if (label->objectName().isEmpty() && !label->buddy())
            aufschriften.push_back(label->text().toStdString());
    EXPECT_EQ(aufschriften,
              (Liste{"Anzahl Datensätze:", "Uhr", "Nachname,Vorname", "Vorname", "Nachname"}));
    for (int i = 1; i <= 20; ++i) {
        EXPECT_EQ(Finden<QLabel>(Nr("ME", i))->buddy(), MDiener(i));
        EXPECT_EQ(MDiener(i)->accessibleName().toStdString(), Nr("Meßdiener ", i));
    }
}

TEST_F(MesseDienerFestFormTest, TabFolgtDemAuge)
{
    Fest(0, 1);
    ListeÖffnen();
    EXPECT_TRUE(Finden("Index")->hasFocus());
    EXPECT_EQ(Tabfolge(form),
              (Liste{"Index", "Messen", "DatumD", "Zeitd", "MDiener1", "MDV1", "MDN1", "MDiener2",
                     "MDV2", "MDN2", "Hinzu", "Löschen", "OKbutton"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormTest, PasstAufDenKleinstenBildschirm)
{
    Fest(0, 2); // all twenty rows
    ListeÖffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(MesseDienerFestFormTest, ÖffnenZeigtDenEintragDesCursors)
{
    Fest(0, 0, {"Abel"});
    Fest(1, 1, {"Bauer", "Conrad"});
    Fest(2, 3, {"Dahl"});
    MesseDienerFest.Cursor = 1;
    EXPECT_FALSE(FesteZuordnungOffen);
    ListeÖffnen();
    EXPECT_TRUE(FesteZuordnungOffen);
    EXPECT_EQ(Zeigt("Index"), "1");
    EXPECT_EQ(Zeigt("MaxIndex"), "3");
    EXPECT_EQ(AmUm(), "22.11.2026,18:00:00");
    EXPECT_EQ(Messentext(), "22.11.2026,18:00:00");
    EXPECT_EQ(Zeilen(), 2);
    EXPECT_EQ(Gewählt(1), "Bauer,Kim");
    EXPECT_EQ(Name(1), "Kim|Bauer");
    EXPECT_EQ(Gewählt(2), "Conrad,Kim");
    EXPECT_EQ(Gewählt(3), "");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormTest, EinCursorHinterDemLetztenGehtAufDieAnzahl)
{
    Fest(0, 0);
    Fest(1, 1);
    MesseDienerFest.Cursor = 7;
    ListeÖffnen();
    EXPECT_EQ(MesseDienerFest.Cursor, 2);
    EXPECT_EQ(Zeigt("Index"), "2");
    EXPECT_EQ(AmUm(), "21.11.2026,00:00:00"); // the blank entry: today
    EXPECT_EQ(Zeilen(), 0);
}

TEST_F(MesseDienerFestFormTest, OhneEinträgeZeigtErHeuteUndKeineZeile)
{
    ListeÖffnen();
    EXPECT_EQ(Zeigt("Index"), "0");
    EXPECT_EQ(Messentext(), "21.11.2026,00:00:00");
    EXPECT_EQ(Zeilen(), 0);
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormTest, ÖffnenVerteiltDieDiensteAberZeigtDieDesEintrags)
{
    Fest(0, 0);
    MesseDienerFest.Dienst[0][1] = "von früher";
    Messe.DienerDienst[0][0] = "alt";
    ListeÖffnen();
    EXPECT_EQ(Messe.DienerDienst[0][0], "Gabenbereitung");
    EXPECT_EQ(Dienst(1), "von früher");
    EXPECT_EQ(Dienst(2), "");
    Wählen(2, "Abel,Kim"); // leaving any box takes them from the mass
    EXPECT_EQ(Dienst(1), "Gabenbereitung");
    EXPECT_EQ(Dienst(2), "Leuchter");
    EXPECT_EQ(MesseDienerFest.Dienst[0][2], "Leuchter");
    EXPECT_EQ(MesseDienerFest.Dienst[0][0], "");
}

TEST_F(MesseDienerFestFormTest, SieGiltAlsOffenAuchWennSichDieDiensteNichtVerteilenLassen)
{
    Messe.Anzahl = 5000;
    ListeÖffnen();
    EXPECT_TRUE(FesteZuordnungOffen);
}

TEST_F(MesseDienerFestFormTest, DieTastenWählenDenNachbarnDesGezeigtenNamens)
{
    Fest(0, 2, Liste(20));
    for (const int slot : {1, 20}) {
        MesseDienerFest.Nachname[0][slot] = slot == 1 ? "Klein" : "Funk";
        MesseDienerFest.Vorname[0][slot] = "Kim";
    }
    ListeÖffnen();
    for (const auto &[slot, name, danach] :
         {std::tuple(1, "Klein,Kim", "Lenz,Kim"), {20, "Funk,Kim", "Groß,Kim"}}) {
        EXPECT_EQ(Gewählt(slot), name);
        FokusAuf(MDiener(slot));
        QTest::keyClick(MDiener(slot), Qt::Key_Down);
        EXPECT_EQ(Gewählt(slot), danach);
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormTest, ÖffnenZähltDieDienerBisEintrag100)
{
    for (int k = 0; k <= 101; ++k) {
        Fest(k, 0);
        MesseDienerFest.Index[k] = 9;
    }
    MesseDienerFest.Cursor = 100;
    ListeÖffnen();
    EXPECT_EQ(Zeilen(), 4);
    Einsetzen("Index", "101"); // shows its stored count
    EXPECT_EQ(Zeilen(), 9);
    MesseWählen("22.11.2026,18:00:00");
    EXPECT_EQ(Zeilen(), 2); // only a choice of the mass sets it
    EXPECT_EQ(MesseDienerFest.Index[101], 2);
    EXPECT_EQ(MesseDienerFest.Index[100], 4);
}

TEST_F(MesseDienerFestFormTest, NamenHinterDerDienerzahlFehlenAufDemSchirmUndNachDemSpeichern)
{
    Fest(0, 1, {"Abel", "Bauer", "Conrad", "Dahl"});
    ListeÖffnen();
    EXPECT_EQ(Zeilen(), 2);
    for (const int i : {3, 4}) {
        EXPECT_EQ(Gewählt(i), "");
        EXPECT_EQ(Name(i), "|");
    }
    EXPECT_EQ(Gespeichert(0, 3), "Kim|Conrad");
    Klick("Plus");
    EXPECT_EQ(Gespeichert(0, 2), "Kim|Bauer");
    EXPECT_EQ(Gespeichert(0, 3), "|");
}

TEST_F(MesseDienerFestFormTest, EinHalberNameStehtNurInDenFeldern)
{
    Fest(0, 0, {"Abel", "Bauer"});
    MesseDienerFest.Vorname[0][1].clear();
    MesseDienerFest.Nachname[0][2].clear();
    ListeÖffnen();
    EXPECT_EQ(Gewählt(1), "");
    EXPECT_EQ(Name(1), "|Abel");
    EXPECT_EQ(Gewählt(2), "");
    EXPECT_EQ(Name(2), "Kim|");
    Wählen(3, "Conrad,Kim");
    EXPECT_EQ(Name(1), "|"); // an empty combo empties them
}

TEST_F(MesseDienerFestFormTest, EinEintragDessenMesseNichtMehrBestehtZeigtKeineZeilen)
{
    Fest(0, 0, {"Abel"});
    Messe.Uhrzeit[0] = ZeitAus(11 * 3600);
    ListeÖffnen();
    EXPECT_EQ(AmUm(), "22.11.2026,10:00:00");
    EXPECT_EQ(Zeilen(), 0);
    EXPECT_EQ(GezeigteMeldungen, Liste{}); // it is not reported
    FokusAuf("Messen");
    Verlassen();
    EXPECT_EQ(GezeigteMeldungen, Liste{Unbekannt});
    EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    MesseWählen("22.11.2026,11:00:00");
    EXPECT_EQ(Zeilen(), 4);
}

TEST_F(MesseDienerFestFormTest, EinGelöschterMeßdienerBleibtStehenUndGiltAlsFehler)
{
    Fest(0, 0, {"Abel", "Fremd"});
    ListeÖffnen();
    EXPECT_EQ(Gewählt(2), "Fremd,Kim");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    Wählen(1, "Bauer,Kim");
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe});
    EXPECT_EQ(Gewählt(2), "Fremd,Kim"); // back to its names
    Wählen(2, "");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    EXPECT_EQ(Name(2), "|");
}

TEST_F(MesseDienerFestFormTest, EineFalscheEingabeFälltAufDenNamenDenSchonEinAndererSlotHat)
{
    Fest(0, 0, {"Dahl", "Dahl"});
    ListeÖffnen();
    Wählen(2, "Niemand,Nina"); // back to its own name first, and only then compared
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe});
    EXPECT_EQ(Gewählt(2), "");
    EXPECT_EQ(Name(2), "|");
    EXPECT_EQ(Name(1), "Kim|Dahl");
}

TEST_F(MesseDienerFestFormTest, EineUnmöglicheAnzahlHältNichtsAuf)
{
    Fest(0, 0, {"Abel"});
    for (Int16 *zahl : {&Messe.Anzahl, &Meßdiener.Anzahl, &Gruppe.Anzahl, &MesseDienerFest.Anzahl,
                        &MesseDienerFest.Cursor}) {
        for (const int wert : {-5, 5000}) {
            const Int16 vorher = std::exchange(*zahl, Int16(wert));
            ListeÖffnen();
            for (const char *name : {"Plus", "Minus"})
                Klick(name);
            Drehen("DatensatzWechsel", "auf");
            Einsetzen("Index", "1");
            MesseWählen("22.11.2026,10:00:00");
            Einsetzen(20, "Niemand,Nina");
            form->close();
            EXPECT_TRUE(Warten([&] { return !form; }));
            *zahl = vorher;
        }
    }
}

} // namespace
} // namespace altardienst
