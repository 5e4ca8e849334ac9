// What both dialogs of the fixed entries have in common: their lists and the checks of a slot.
#include "fixed/Zuordnungsstand.h"

namespace altardienst {
namespace {

class ZuordnungenFormTest : public BeideZuordnungen {};

INSTANTIATE_TEST_SUITE_P(Dialoge, ZuordnungenFormTest, BeideDialoge(), Dialogname);

Liste Einträge(const QComboBox *wahl)
{
    Liste texte;
    for (int k = 0; k < wahl->count(); ++k)
        texte.push_back(wahl->itemText(k).toStdString());
    return texte;
}

TEST_P(ZuordnungenFormTest, DieListenFolgenDenTabellen)
{
    MeßdienerAnlegen("Ada", "Abel"); // after Zoller: nothing is sorted
    Öffnen();
    EXPECT_EQ(Einträge(Finden<QComboBox>("Messen")),
              (Liste{"22.11.2026,10:00:00,Hochamt", "22.11.2026,18:00:00,Abendmesse",
                     "23.11.2026,08:00:00,", "24.11.2026,08:00:00,Taufe, klein"}));
    Liste namen;
    if (IstListe())
        namen.push_back(" "); // in one of the two only
    for (int j = 0; j < Meßdiener.Anzahl; ++j)
        namen.push_back(Meßdiener.Nachname[j] + "," + Meßdiener.Vorname[j]);
    namen.push_back("Tarzisius,Gruppe");
    namen.push_back("Agnes,Gruppe");
    for (int i = 1; i <= 20; ++i) {
        EXPECT_EQ(Einträge(MDiener(i)), namen) << i;
        EXPECT_EQ(Gewählt(i), "");
    }
    EXPECT_EQ(MDiener(1)->model(), MDiener(20)->model());
}

TEST_P(ZuordnungenFormTest, EinNameKommtBeimVerlassenInDieFelder)
{
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    for (int i = 1; i <= 20; ++i) {
        const Text name = Meßdiener.Nachname[i];
        FokusAuf(MDiener(i));
        Einsetzen(i, name + ",Kim");
        // The last slot reacts to every change.
        EXPECT_EQ(Name(i), i == 20 ? "Kim|" + name : "|") << i;
        Verlassen();
        EXPECT_EQ(Name(i), "Kim|" + name) << i;
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, EineGruppeStehtWieEinePersonDesVornamensGruppe)
{
    Öffnen();
    Wählen(2, "Tarzisius,Gruppe");
    EXPECT_EQ(Name(2), "Gruppe|Tarzisius");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, AuswahlAusDerListeMitDerTastatur)
{
    Öffnen();
    FokusAuf(MDiener(1));
    MDiener(1)->setCurrentIndex(MDiener(1)->findText("Jung,Kim"));
    QTest::keyClick(MDiener(1), Qt::Key_Down);
    EXPECT_EQ(Gewählt(1), "Klein,Kim");
    QTest::keyClick(MDiener(1), Qt::Key_Tab);
    EXPECT_EQ(Name(1), "Kim|Klein");
}

TEST_P(ZuordnungenFormTest, DieTastenGehenVomNamenAusDerDasteht)
{
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    for (const int slot : {1, 20}) {
        Einsetzen(slot, "Klein,Kim");
        FokusAuf(MDiener(slot));
        EXPECT_EQ(MDiener(slot)->currentText(), "Klein,Kim");
        EXPECT_EQ(MDiener(slot)->currentIndex(), MDiener(slot)->findText("Klein,Kim"));
        QTest::keyClick(MDiener(slot), Qt::Key_Up);
        EXPECT_EQ(Gewählt(slot), "Jung,Kim");
        Einsetzen(slot, "Otto,Kim"); // while it has the focus
        QTest::keyClick(MDiener(slot), Qt::Key_Down);
        EXPECT_EQ(Gewählt(slot), "Pohl,Kim");
        Wählen(slot, "");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, DieTastenGehenÜberEinenSchonVergebenenNamenHinweg)
{
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    Wählen(1, "Lenz,Kim");
    Einsetzen(20, "Klein,Kim"); // the slot that reacts to every change
    FokusAuf(MDiener(20));
    for (const char *name : {"", "Maurer,Kim"}) {
        QTest::keyClick(MDiener(20), Qt::Key_Down);
        EXPECT_EQ(Gewählt(20), name);
    }
}

TEST_P(ZuordnungenFormTest, VonZweiGleichenGehenDieTastenWeiter)
{
    MeßdienerAnlegen("Kim", "Zoller"); // after the other one
    MeßdienerAnlegen("Kim", "Zimmer");
    Öffnen();
    FokusAuf(MDiener(1));
    Einsetzen(1, "Wolf,Kim");
    for (const char *name : {"Zoller,Kim", "Zoller,Kim", "Zimmer,Kim"}) {
        QTest::keyClick(MDiener(1), Qt::Key_Down);
        EXPECT_EQ(Gewählt(1), name);
    }
}

TEST_P(ZuordnungenFormTest, DasRadWähltNichts)
{
    Öffnen();
    Wählen(1, "Klein,Kim");
    for (QComboBox *wahl : {MDiener(1), Finden<QComboBox>("Messen")}) {
        const QPoint mitte = wahl->rect().center();
        const Text vorher = altardienst::Zeigt(wahl);
        QWheelEvent rad(mitte, wahl->mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(wahl, &rad);
        EXPECT_EQ(altardienst::Zeigt(wahl), vorher);
        EXPECT_FALSE(wahl->hasFocus());
    }
}

TEST_P(ZuordnungenFormTest, EinUnbekannterNameWirdGeleert)
{
    Öffnen();
    for (const char *text : {"Niemand,Nina", "Abel", "abel,Kim", "Abel,Kim ", "Abel, Kim",
                             "Kim,Abel", "Tarzisius", "Tarzisius,gruppe", " ", "🎉", "Abel,Kim\n"}) {
        GezeigteMeldungen.clear();
        Wählen(2, text);
        EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe}) << text;
        EXPECT_EQ(Gewählt(2), "");
        EXPECT_EQ(Name(2), "|");
    }
}

TEST_P(ZuordnungenFormTest, EinUnbekannterNameGehtAufDieFelderZurück)
{
    Öffnen();
    Wählen(2, "Dahl,Kim");
    for (const char *text : {"Niemand,Nina", " ", "Dahl"}) {
        GezeigteMeldungen.clear();
        Wählen(2, text);
        EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe}) << text;
        EXPECT_EQ(Gewählt(2), "Dahl,Kim");
        EXPECT_EQ(Name(2), "Kim|Dahl");
    }
    Einsetzen("MDV2", ""); // one name alone is not enough to go back to
    Wählen(2, "Niemand,Nina");
    EXPECT_EQ(Gewählt(2), "");
    EXPECT_EQ(Name(2), "|");
}

TEST_P(ZuordnungenFormTest, DieFehleingabeKommtNachDemZurücksetzen)
{
    EchteMeldungen();
    Öffnen();
    Wählen(2, "Dahl,Kim");
    for (const auto &[slot, danach] : {std::pair(2, "Dahl,Kim"), {3, ""}}) {
        FokusAuf(MDiener(slot));
        Einsetzen(slot, "Niemand,Nina");
        Text dabei = "no box";
        Beantworten([&, slot = slot](QMessageBox *box) {
            EXPECT_EQ(box->text().toStdString(), Fehleingabe);
            dabei = Gewählt(slot);
            box->accept();
        });
        QTest::keyClick(MDiener(slot), Qt::Key_Tab);
        EXPECT_EQ(dabei, danach) << slot;
        Zeigen(form);
    }
}

TEST_P(ZuordnungenFormTest, EinLeererTextLeertDenSlotOhneWort)
{
    Öffnen();
    Wählen(2, "Dahl,Kim");
    Wählen(2, "");
    EXPECT_EQ(Name(2), "|");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, DerErsteFehlerHältDiePrüfungAn)
{
    Öffnen();
    Einsetzen(3, "Niemand,Nina");
    Einsetzen(4, "Keiner,Karl");
    Wählen(1, "Abel,Kim"); // leaving any slot checks all of them
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe});
    EXPECT_EQ(Gewählt(3), "");
    EXPECT_EQ(Gewählt(4), "Keiner,Karl");
    EXPECT_EQ(Name(1), "Kim|Abel"); // the rest continues
    EXPECT_EQ(Name(4), "Karl|Keiner");
    Wählen(1, "Abel,Kim");
    EXPECT_EQ(GezeigteMeldungen, (Liste{Fehleingabe, Fehleingabe}));
    EXPECT_EQ(Gewählt(4), "Keiner,Karl"); // back to its names, which it had from the first pass
}

TEST_P(ZuordnungenFormTest, NiemandStehtZweimalInEinerMesse)
{
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    for (int q = 1; q <= 20; ++q) {
        Wählen(q, "Dahl,Kim");
        for (int p = 1; p <= 20; ++p) {
            if (p == q)
                continue;
            Wählen(p, "Abel,Kim");
            Wählen(p, "Dahl,Kim");
            EXPECT_EQ(Gewählt(p), "") << p << " " << q;
            EXPECT_EQ(Name(p), "|");
            EXPECT_EQ(Name(q), "Kim|Dahl"); // who was there first stays
        }
        Wählen(q, "");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, MehrereLeereSlotsSindNichtDoppelt)
{
    Öffnen();
    Wählen(1, "");
    Wählen(2, "");
    Wählen(3, "Dahl,Kim");
    EXPECT_EQ(Name(3), "Kim|Dahl");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, SlotZwanzigPrüftJedenBuchstaben)
{
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    Tippen(MDiener(20), "Da");
    EXPECT_EQ(GezeigteMeldungen, (Liste{Fehleingabe, Fehleingabe}));
    EXPECT_EQ(Gewählt(20), "");
    Einsetzen(20, "Dahl,Kim");
    QTest::keyClick(MDiener(20), Qt::Key_Backspace);
    EXPECT_EQ(GezeigteMeldungen.size(), 3U);
    EXPECT_EQ(Gewählt(20), "Dahl,Kim"); // back to its names
    Einsetzen(1, "Niemand,Nina");
    Einsetzen(20, ""); // its change checks the others too
    EXPECT_EQ(GezeigteMeldungen.size(), 4U);
    EXPECT_EQ(Gewählt(1), "");
    const std::size_t bisher = GezeigteMeldungen.size();
    FokusAuf(MDiener(20));
    Einsetzen(2, "Niemand,Nina");
    Verlassen(); // without a change nothing is checked
    EXPECT_EQ(GezeigteMeldungen.size(), bisher);
    EXPECT_EQ(Gewählt(2), "Niemand,Nina");
}

TEST_P(ZuordnungenFormTest, EinNameMitMehrerenKommasWirdAmErstenGetrennt)
{
    MeßdienerAnlegen("Karl, jun.", "Klein");
    MeßdienerAnlegen("Ida", "Imhof, geb. Iven");
    Öffnen();
    Wählen(1, "Klein,Karl, jun.");
    EXPECT_EQ(Name(1), "Karl, jun.|Klein");
    Wählen(2, "Imhof, geb. Iven,Ida");
    EXPECT_EQ(Name(2), " geb. Iven,Ida|Imhof");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, OhneEtwasVorDemKommaBleibtDerNachnameStehen)
{
    MeßdienerAnlegen("Konrad", "");
    Öffnen();
    Wählen(1, "Abel,Kim");
    Wählen(1, ",Konrad");
    EXPECT_EQ(Name(1), "Konrad|Abel");
    Wählen(2, ","); // the blank record after the last server
    EXPECT_EQ(Name(2), "|");
    EXPECT_EQ(Gewählt(2), ",");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, VerlassenNimmtTerminUndDiensteAusDemMessentext)
{
    Öffnen();
    MesseEinsetzen("22.11.2026,18:00:00");
    Wählen(1, "Abel,Kim");
    EXPECT_EQ(AmUm(), "22.11.2026,18:00:00");
    EXPECT_EQ(Dienst(1), "Flambeau");
    EXPECT_EQ(Zeilen(), 4); // the count changes only when `Messen` is left
    MesseEinsetzen("23.11.2026,18:00:00,gibt es nicht");
    Wählen(1, "Bauer,Kim");
    EXPECT_EQ(AmUm(), "23.11.2026,18:00:00");
    EXPECT_EQ(Dienst(1), "Flambeau"); // without such a mass
    MesseEinsetzen("am 22.11.2026 um zehn");
    Wählen(1, "Conrad,Kim");
    EXPECT_EQ(AmUm(), "am 22.11.2,26 um ze"); // whatever is at these positions
    EXPECT_EQ(Name(1), "Kim|Conrad");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormTest, EineMeldungVerläßtNichtAuchNochDieNächsteBox)
{
    EchteMeldungen();
    Öffnen();
    Einsetzen(1, "Niemand,Nina");
    Einsetzen(2, "Keiner,Karl");
    int boxen = 0;
    const auto einmal = [&](QMessageBox *box) {
        ++boxen;
        EXPECT_EQ(box->text().toStdString(), Fehleingabe);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        box->accept();
    };
    FokusAuf(MDiener(1));
    Beantworten(einmal);
    QTest::keyClick(MDiener(1), Qt::Key_Tab);
    EXPECT_EQ(boxen, 1);
    Zeigen(form);
    FokusAuf(MDiener(1));
    Beantworten(einmal);
    MDiener(3)->setFocus(); // which loses the focus to the message at once
    EXPECT_EQ(boxen, 2);
    EXPECT_EQ(Gewählt(2), "Keiner,Karl"); // back to the names it got from the first pass
}

} // namespace
} // namespace altardienst
