// The mass list beside the main window, which stays in use: what its actions do to the list.
#include "planning/MessenlisteImProgramm.h"

#include "core/Allgemein.h"

#include <QComboBox>

namespace altardienst {
namespace {

/// Mass 0 is later than the others, so a sort by date puts mass 1 in its place.
class MessenlisteDaneben : public MessenlisteImProgramm {
  protected:
    MessenlisteDaneben()
    {
        MessenFüllen(5);
        Messe.Datum[0] = DatumAus({2026, 12, 24});
    }
};

/// Opens and closes the dialogs for which the list is hidden.
struct Listendialog {
    const char *Knopf;
    const char *Name;
    const char *Ende;
};
const std::array Listendialoge = {Listendialog{"NeuMeß", "NeuMesse", "CancelButton"},
                                  Listendialog{"Lektoren", "Lektorrenusw", "Ende"}};

TEST_F(MessenlisteDaneben, EinDialogDerListeKommtNachVornUndDieListeBleibtVerborgen)
{
    for (const auto &[knopf, name, ende] : Listendialoge) {
        ListeDaneben();
        Klick(knopf);
        const QPointer<QWidget> dialog = Fenster(name);
        dialog->showMinimized();
        Zeigen(haupt);
        Klick(haupt->AnzMesse);
        EXPECT_FALSE(form->isVisible()) << name;
        EXPECT_EQ(Fenster(name), dialog);
        EXPECT_FALSE(dialog->isMinimized());
        EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
        Klick(Finden<QPushButton>(dialog, ende));
        EXPECT_TRUE(form->isVisible()) << name;
        Klick(haupt->AnzMesse); // the dialog is over, though not yet deleted
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(Fenster("Messenliste"), form);
        EXPECT_TRUE(Warten([&] { return !dialog; }));
        ListeZurück();
    }
}

TEST_F(MessenlisteDaneben, Knopf1ZeigtDieListeAuchWennSieVerborgenIst)
{
    Konfig.StartDatum = Heute + 1;
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Messeart[0] = "Hochamt";
    Standardmesse.Dienerzahl[0] = 2;
    for (const auto &[knopf, name, ende] : Listendialoge) {
        SCOPED_TRACE(name);
        MessenFüllen(5);
        ListeDaneben(3);
        Klick(knopf);
        const QPointer<QWidget> dialog = Fenster(name);
        Klick(haupt->Messenorgani);
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(Warten([&] { return form->isActiveWindow(); }));
        EXPECT_EQ(Fenster("Messenliste"), form);
        EXPECT_EQ(Zeigt("Datensatzus"), "0");
        EXPECT_EQ(Zeigt("Messewesen"), "Hochamt");
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(dialog->isVisible()); // beside it

        Klick(haupt->AnzMesse);
        EXPECT_TRUE(form->isVisible());
        Klick(knopf); // the one that is open
        EXPECT_EQ(Fenster(name), dialog);
        EXPECT_FALSE(form->isVisible());
        Klick(haupt->Messenorgani);
        const Messenbild bild = MessenJetzt();
        Klick(Finden<QPushButton>(dialog, ende));
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(MessenJetzt(), bild);
        EXPECT_TRUE(Warten([&] { return !dialog; }));
        ListeZurück();
        EXPECT_EQ(MessenJetzt(), bild);
    }
}

TEST_F(MessenlisteDaneben, EinDialogDerListeZeigtSieAuchWennSieInzwischenGeschlossenIst)
{
    for (const auto &[knopf, name, ende] : Listendialoge) {
        ListeDaneben();
        Klick(knopf);
        const QPointer<QWidget> dialog = Fenster(name);
        Klick(haupt->Messenorgani);
        ListeZurück();
        Klick(Finden<QPushButton>(dialog, ende));
        EXPECT_TRUE(Warten([&] { return !dialog; })) << name;
        form = Fenster("Messenliste");
        ListeZurück();
    }
}

TEST_F(MessenlisteDaneben, EinDialogÜberlebtSeineListe)
{
    for (const auto &[knopf, name, ende] : Listendialoge) {
        ListeDaneben();
        Klick(knopf);
        const QPointer<QWidget> dialog = Fenster(name);
        delete form;
        Klick(Finden<QPushButton>(dialog, ende));
        EXPECT_TRUE(Warten([&] { return !dialog; })) << name;
        form = Fenster("Messenliste");
        ListeZurück();
    }
}

TEST_F(MessenlisteDaneben, HinterDemDialogStehtWasDasHauptfensterGetanHat)
{
    ListeDaneben(3);
    Klick("NeuMeß");
    QWidget *dialog = Fenster("NeuMesse");
    Einsetzen("Messewesen", "was die Liste nicht zeigt");
    Klick(haupt->Messenorgani); // no standard masses, so no masses are left
    Klick(Finden<QPushButton>(dialog, "CancelButton"));
    EXPECT_EQ(Zeigt("Datensatzus"), "0");
    EXPECT_EQ(Zeigt("maxi"), "0");
    EXPECT_EQ(Zeigt("Messewesen"), "");
}

// The change of the date rewrites the weekday, that of the services the count; filling in a second
// time restores both.
TEST_F(MessenlisteDaneben, WiederGeöffnetFülltSieSichWieBeimErstenMal)
{
    ListeDaneben(1);
    Messe.Datum[1] += 7;
    Messe.Flambeau[1] += 3;
    Klick(haupt->AnzMesse);
    EXPECT_EQ(Zeigt("datendaten"), "30.11.2026");
    EXPECT_EQ(Zeigt("tagelang"), "Montag");
    EXPECT_EQ(Zeigt("Dienerzahlen"), ZahlText(Messe.Dienerzahl[1]));
    const Messenbild bild = MessenJetzt();
    ListeZurück();
    EXPECT_EQ(MessenJetzt(), bild);
}

TEST_F(MessenlisteDaneben, EineVerkleinerteListeKommtZurück)
{
    ListeDaneben();
    form->showMinimized();
    Klick(haupt->AnzMesse);
    EXPECT_FALSE(form->isMinimized());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(MessenlisteDaneben, Knopf6VergißtNichtWasAufDemSchirmStand)
{
    ListeDaneben(2);
    AllesÄndern();
    const Satz schirm = Schirm();
    Klick(haupt->AnzMesse);
    EXPECT_EQ(MesseSatz(2), Mit(MesseSatz(2), schirm));
    EXPECT_EQ(Schirm(), schirm);
}

TEST_F(MessenlisteDaneben, WasDasHauptfensterTutSchreibtZuerstDieMesseUndZeigtSieDannNeu)
{
    for (const bool mitKnopf : {true, false}) {
        MessenFüllen(5);
        Messe.Datum[0] = DatumAus({2026, 12, 24});
        ListeDaneben();
        Einsetzen("Messewesen", "Christmette");
        Einsetzen("vor1", "Anna");
        if (mitKnopf) {
            SekundenProAblesung = 1;
            Antworten = {true};
            Klick(haupt->Dienstus); // sorts the masses; there is nobody to be drawn
        } else {
            MenüWählen("mnuSortmessen");
        }
        EXPECT_EQ(Messe.Messeart[4], "Christmette");
        EXPECT_EQ(Messe.Messeart[0], "Art1");
        EXPECT_EQ(Zeigt("Datensatzus"), "0");
        EXPECT_EQ(Zeigt("Messewesen"), "Art1");
        EXPECT_EQ(Zeigt("tagelang"), Messe.Wochentag[0]);
        EXPECT_EQ(Zeigt("vor1"), Messe.DienerVor[0][1]);
        const Messenbild bild = MessenJetzt();
        ListeZurück();
        EXPECT_EQ(MessenJetzt(), bild);
    }
}

TEST_F(MessenlisteDaneben, DerFesteEintragFolgtSeinerMesseAuchDabei)
{
    ListeDaneben(2);
    Fest(0, 2);
    Klick("pt");
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(KurzesDatum(Messe.Datum[2]), "25.11.2026");
    EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[2]);
}

TEST_F(MessenlisteDaneben, WasSichNichtUmwandelnLässtBleibtStehenWennDieMesseBlieb)
{
    ListeDaneben();
    Einsetzen("Dienster1", "abc");
    Einsetzen("vor1", "Anna");
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Zeigt("Dienster1"), "abc");
    EXPECT_EQ(Zeigt("vor1"), "Anna");
    EXPECT_EQ(Messe.DienerVor[0][1], "Vor1/0");
    Klick(haupt->AnzMesse);
    EXPECT_EQ(Zeigt("Dienster1"), "abc");
    EXPECT_EQ(Zeigt("vor1"), "Anna");
    Einsetzen("Messewesen", "steht vor dem Feld, das hält");
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.Messeart[0], "steht vor dem Feld, das hält");
    EXPECT_EQ(Zeigt("vor1"), "Anna"); // it was the list itself that changed the mass
    MenüWählen("mnuSortmessen");
    EXPECT_EQ(Zeigt("Dienster1"), ZahlText(Messe.Gabenbereitung[0]));
    EXPECT_EQ(Zeigt("vor1"), "Vor1/1");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(MessenlisteDaneben, WerZurückkommtSiehtDieMesseWieSieIst)
{
    ListeDaneben();
    Zeigen(form);
    Zeigen(haupt);
    Messe.DienerVor[0][1] = "Neu"; // as a dialog of the main window does
    Zeigen(form);
    EXPECT_TRUE(Warten([&] { return Zeigt("vor1") == "Neu"; }));
    Einsetzen("vor1", "getippt");
    Zeigen(haupt);
    EXPECT_TRUE(Warten([&] { return Messe.DienerVor[0][1] == "getippt"; }));
    Messe.DienerNach[0][2] = "umbenannt";
    Zeigen(form);
    EXPECT_TRUE(Warten([&] { return Zeigt("nach2") == "umbenannt"; }));
    EXPECT_EQ(Zeigt("vor1"), "getippt");
}

// After typing a number the screen differs from the mass: the weekday is padded with blanks, the
// number of servers is the sum of the services.
TEST_F(MessenlisteDaneben, EineMesseDieNurAngesehenWurdeBleibtWieSieIst)
{
    ListeDaneben();
    const Messenbild bild = MessenJetzt();
    Einsetzen("Datensatzus", "2");
    EXPECT_NE(Zeigt("tagelang"), Messe.Wochentag[2]);
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(MessenJetzt(), bild);
    EXPECT_EQ(Zeigt("Datensatzus"), "2");
    Antworten = {true};
    Klick("Löscher");
    const Messenbild gelöscht = MessenJetzt();
    EXPECT_NE(Zeigt("tagelang"), Messe.Wochentag[2]);
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(MessenJetzt(), gelöscht);
}

TEST_F(MessenlisteDaneben, DieListeFolgtDemCursor)
{
    ListeDaneben(3);
    Messe.Cursor = 1;
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Zeigt("Datensatzus"), "1");
    EXPECT_EQ(Zeigt("Messewesen"), "Art1");
}

// It is deleted a moment later. Showing the mass of this cursor would add it.
TEST_F(MessenlisteDaneben, EineGeschlosseneListeTutNichtsMehr)
{
    ListeDaneben();
    form->close();
    Messe.Cursor = 6;
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.Anzahl, 5);
}

TEST_F(MessenlisteDaneben, AuchEinEinzigesGeändertesFeldWirdNichtÜberschrieben)
{
    const std::function<void()> änderungen[] = {
        [] { Messe.Wochentag[0] = "Freitag"; },  [] { Messe.Datum[0] += 1; },
        [] { Messe.Uhrzeit[0] += 0.25; },        [] { Messe.Messeart[0] = "Neu"; },
        [] { Messe.Dienerzahl[0] = 9; },         [] { Messe.Gabenbereitung[0] = 9; },
        [] { Messe.Leuchter[0] = 9; },           [] { Messe.Flambeau[0] = 9; },
        [] { Messe.Weihrauch[0] = 9; },          [] { Messe.Kreuzträger[0] = 9; },
        [] { Messe.Allgemein[0] = 9; },          [] { Messe.DienerVor[0][20] = "Neu"; },
        [] { Messe.DienerNach[0][20] = "Neu"; },
    };
    for (const auto &ändern : änderungen) {
        MessenFüllen(5);
        ListeDaneben();
        Einsetzen("vor1", "alt");
        ändern();
        const Messenbild bild = MessenJetzt();
        MenüWählen("mnuGruppensort");
        EXPECT_EQ(MessenJetzt(), bild);
    }
}

TEST_F(MessenlisteDaneben, EineInzwischenGeänderteMesseWirdNichtÜberschrieben)
{
    ListeDaneben();
    Messe.DienerVor[0][1] = "Neu";
    Einsetzen("Messewesen", "alt");
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.DienerVor[0][1], "Neu");
    EXPECT_EQ(Messe.Messeart[0], "Art0");
    EXPECT_EQ(Zeigt("vor1"), "Neu");
    EXPECT_EQ(Zeigt("Messewesen"), "Art0");
}

TEST_F(MessenlisteDaneben, EineNeueAnzahlStehtDaneben)
{
    ListeDaneben();
    Messe.Anzahl = 4;
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Zeigt("maxi"), "4");
}

TEST_F(MessenlisteDaneben, NachDemLöschenBleibtDerSchirm)
{
    ListeDaneben();
    Antworten = {true};
    Klick("Löscher");
    Einsetzen("Messewesen", "getippt");
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.Messeart[0], "getippt");
}

TEST_F(MessenlisteDaneben, DasEndeDesProgrammsSpeichertAuchWasAufDemSchirmSteht)
{
    for (const bool mitMenü : {true, false}) {
        if (!haupt)
            haupt = new HauptForm;
        ListeDaneben();
        Einsetzen("Messewesen", mitMenü ? "Beenden" : "Kreuz");
        EXPECT_EQ(Programmlauf([&] {
                      if (mitMenü)
                          MenüWählen("mnuFileExit");
                      else
                          haupt->close();
                  }),
                  0);
        haupt = nullptr;
        EXPECT_NE(DateiLesen(Festplatte / "Messen.dat").find(mitMenü ? "Beenden" : "Kreuz"),
                  std::string::npos);
    }
}

TEST_F(MessenlisteDaneben, AuchDieHelferWerdenZuerstGeschriebenUndDannNeuGezeigt)
{
    for (auto *name : {&Messe.Lektor2Vor, &Messe.Lektor2Nach})
        (*name)[1].clear();
    ListeDaneben();
    Klick("Lektoren");
    QPointer<QWidget> helfer = Fenster("Lektorrenusw");
    const auto feld = [&](const char *name) { return Finden<QLineEdit>(helfer, name); };
    Einsetzen(feld("Lecki1Vor"), "Anna");
    MenüWählen("mnuSortmessen");
    EXPECT_EQ(Messe.Lektor1Vor[4], "Anna");
    EXPECT_EQ(Zeigt(feld("Lecki1Vor")), Messe.Lektor1Vor[0]);
    EXPECT_EQ(Finden<QComboBox>(helfer, "LH2")->currentText(), "");
    const Messenbild bild = MessenJetzt();
    Klick(Finden<QPushButton>(helfer, "Ende"));
    EXPECT_EQ(MessenJetzt(), bild);
    EXPECT_TRUE(Warten([&] { return !helfer; }));

    Klick("Lektoren");
    helfer = Fenster("Lektorrenusw");
    Einsetzen(feld("Lecki1Vor"), "halb");
    Einsetzen(feld("Kommi"), "abc");
    MenüWählen("mnuGruppensort"); // the names before the bad count are written
    EXPECT_EQ(Messe.Lektor1Vor[0], "halb");
    EXPECT_EQ(Zeigt(feld("Kommi")), "abc");
    Einsetzen(feld("Kommi"), "1");
    Einsetzen(feld("Lecki1Vor"), "getippt");
    Einsetzen(feld("Lecki"), "abc");
    MenüWählen("mnuGruppensort"); // the mass is the same
    EXPECT_EQ(Zeigt(feld("Lecki1Vor")), "getippt");
    EXPECT_EQ(Zeigt(feld("Lecki")), "abc");
    Messe.Lektor1Vor[0] = "Neu"; // as the draw of the helpers does
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.Lektor1Vor[0], "Neu");
    EXPECT_EQ(Zeigt(feld("Lecki1Vor")), "Neu");
}

// Many masses have the same helpers: none.
TEST_F(MessenlisteDaneben, HelferGehörenZuIhrerMesse)
{
    for (int i = 0; i < 5; ++i) {
        Messe.LektorZahl[i] = 1;
        for (auto *name :
             {&Messe.Lektor1Vor, &Messe.Lektor1Nach, &Messe.Lektor2Vor, &Messe.Lektor2Nach,
              &Messe.Komm1Vor, &Messe.Komm1Nach, &Messe.Komm2Vor, &Messe.Komm2Nach,
              &Messe.Kantor1Vor, &Messe.Kantor1Nach, &Messe.Kantor2Vor, &Messe.Kantor2Nach,
              &Messe.Kollekt1Vor, &Messe.Kollekt1Nach, &Messe.Kollekt2Vor, &Messe.Kollekt2Nach})
            (*name)[i].clear();
        Messe.KommZahl[i] = Messe.KantorZahl[i] = Messe.KollektZahl[i] = 1;
    }
    ListeDaneben();
    Klick("Lektoren");
    QWidget *helfer = Fenster("Lektorrenusw");
    const auto feld = [&](const char *name) { return Finden<QLineEdit>(helfer, name); };
    altardienst::Einsetzen(feld("Lecki"), "");
    altardienst::Einsetzen(feld("Lecki1Vor"), "Anna");
    MenüWählen("mnuSortmessen"); // there is another mass at the cursor now
    EXPECT_EQ(altardienst::Zeigt(feld("Lecki1Vor")), "");
    EXPECT_EQ(altardienst::Zeigt(feld("Lecki")), "1");
}

TEST_F(MessenlisteDaneben, DerGewählteHelferWirdMitgeschrieben)
{
    HelferAnlegen("Lea", "Lang", "Lektor");
    Messe.LektorZahl[0] = 1;
    ListeDaneben();
    Klick("Lektoren");
    QWidget *helfer = Fenster("Lektorrenusw");
    Zeigen(helfer);
    auto *wahl = Finden<QComboBox>(helfer, "LH1");
    FokusAuf(wahl);
    Einsetzen(wahl, "Lang,Lea"); // without leaving the box
    MenüWählen("mnuGruppensort");
    EXPECT_EQ(Messe.Lektor1Vor[0], "Lea");
    EXPECT_EQ(Messe.Lektor1Nach[0], "Lang");
}

} // namespace
} // namespace altardienst
