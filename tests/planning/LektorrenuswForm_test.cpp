// The helpers of a mass: counts, places, and what leaving writes.
#include "application/Nebenfenster.h"
#include "core/Messenname.h"
#include "core/Namen.h"
#include "planning/Lektorenstand.h"
#include "planning/MessenlisteForm.h"

namespace altardienst {
namespace {

class LektorrenuswFormTest : public Lektorenstand {};

TEST_F(LektorrenuswFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Lektorrenusw");
    EXPECT_EQ(form->windowTitle(), "Lektoren usw.");
    std::map<Text, Text> erwartet = {{"Lecki", "Lektor:"},
                                     {"Kommi", "Kommunionhelfer:"},
                                     {"Kanto", "Kantor/in:"},
                                     {"Kolt", "Kollektant:"}};
    for (const Lektorenplatz &platz : Plätze) {
        erwartet[platz.LH] = platz.Beschriftung;
        Finden<QLineEdit>(platz.Vor);
        Finden<QLineEdit>(platz.Nach);
    }
    EXPECT_EQ(Beschriftungen(), erwartet);
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    for (const char *spin : {"Änderung1", "Änderung2", "Änderung3", "Änderung4"})
        Finden<SpinButton>(spin);
}

TEST_F(LektorrenuswFormTest, TabFolgtDemAuge)
{
    Öffnen();
    FokusAuf("Lecki");
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{"Lecki",     "LH1",        "Lecki1Vor", "Lecki1nach", "LH2",
                                 "Lecki2Vor", "Lecki2Nach", "Kommi",     "LH3",        "Komm1Vor",
                                 "Komm1Nach", "LH4",        "Kommt2Vor", "Kommt2Nach", "Kanto",
                                 "LH5",       "Kant1Vor",   "Kant1Nach", "LH6",        "Kant2Vor",
                                 "Kant2Nach", "Kolt",       "LH7",       "Ko1Vor",     "Ko1Nach",
                                 "LH8",       "Ko2Vor",     "Ko2Nach",   "Ende"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(LektorrenuswFormTest, ZeigtDieHelferDerMesseBeimCursor)
{
    Messe.KommZahl[2] = 1;
    Messe.KantorZahl[2] = 0;
    Messe.Komm2Vor[2] = ""; // a single name shows in its box, not in the combo
    Messe.Kollekt1Nach[2] = "";
    Öffnen();
    EXPECT_EQ(Zeigt("Lecki"), "2");
    EXPECT_EQ(Zeigt("Kommi"), "1");
    EXPECT_EQ(Zeigt("Kanto"), "0");
    EXPECT_EQ(Zeigt("Kolt"), "2");
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        EXPECT_EQ(Name(p), Gespeichert(p));
        const int h = static_cast<int>(p);
        const bool besetzt = p != 3 && p != 6;
        EXPECT_EQ(Gewählt(p), besetzt ? Helfer.Nachname[h] + "," + Helfer.Vorname[h] : Text());
    }
    EXPECT_EQ(Name(3), "|Dahl");
    EXPECT_EQ(Name(6), "Georg|");
    EXPECT_TRUE(form->close());
    EXPECT_EQ(MessenJetzt(), vorher);
}

TEST_F(LektorrenuswFormTest, JedeListeNenntAlleHelferInIhrerFolge)
{
    Helfer.Dienst1[1] = "Kantor";
    Helfer.Nachname[10] = "behind the end";
    Öffnen();
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        ASSERT_EQ(LH(p)->count(), 10);
        EXPECT_EQ(LH(p)->itemText(0), "Abel,Anna");
        EXPECT_EQ(LH(p)->itemText(1), "Bauer,Bernd");
        EXPECT_EQ(LH(p)->itemText(7), QString::fromUtf8("Höß,Hanna"));
        EXPECT_EQ(LH(p)->itemText(9), "Zoller,Zita");
    }
}

TEST_F(LektorrenuswFormTest, DieZahlSchaltetDiePlätze)
{
    Öffnen();
    for (std::size_t art = 0; art < Zahlboxen.size(); ++art) {
        for (const auto &[text, zahl] : {std::pair("0", 0),
                                         {"1", 1},
                                         {"2", 2},
                                         {"-1", 0},
                                         {"3", 2},
                                         {"40000", 2},
                                         {"-40000", 0},
                                         {"2", 2}}) {
            Einsetzen(Zahlboxen[art], text);
            EXPECT_EQ(Zeigt(Zahlboxen[art]), ZahlText(zahl)) << text;
            for (std::size_t p = 0; p < Plätze.size(); ++p) {
                const bool eigener = p / 2 == art;
                EXPECT_EQ(IstAktiv(p), !eigener || zahl > static_cast<int>(p % 2)) << p << text;
            }
        }
    }
}

TEST_F(LektorrenuswFormTest, DieZahlSchaltetUndBegrenztSchonBeimÖffnen)
{
    Messe.LektorZahl[2] = 0;
    Messe.KommZahl[2] = 1;
    Messe.KantorZahl[2] = 5;
    Messe.KollektZahl[2] = -1;
    Öffnen();
    const std::array aktiv = {false, false, true, false, true, true, false, false};
    for (std::size_t p = 0; p < Plätze.size(); ++p)
        EXPECT_EQ(IstAktiv(p), aktiv[p]) << p;
    EXPECT_EQ(Zeigt("Lecki") + Zeigt("Kommi") + Zeigt("Kanto") + Zeigt("Kolt"), "0120");
}

TEST_F(LektorrenuswFormTest, EineZahlDieKeineIstSchaltetNichts)
{
    Öffnen();
    for (const int zahl : {0, 1, 2}) {
        for (const char *text : {"abc", "", "31.02.2027", "25:61"}) {
            Einsetzen("Kommi", ZahlText(zahl));
            Einsetzen("Kommi", text);
            EXPECT_EQ(IstAktiv(2), zahl > 0);
            EXPECT_EQ(IstAktiv(3), zahl > 1);
            EXPECT_EQ(Zeigt("Kommi"), text);
        }
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(LektorrenuswFormTest, EineZahlDieKeineIstHältDasSchließenAn)
{
    for (std::size_t art = 0; art < Zahlboxen.size(); ++art) {
        for (const bool mitEnde : {true, false}) {
            Öffnen();
            Wählen(0, "Zoller,Zita");
            Wählen(7, "Yilmaz,Yvonne");
            Einsetzen(Zahlboxen[art], "abc");
            if (mitEnde)
                Klick("Ende");
            else
                form->close();
            EXPECT_EQ(GezeigteMeldungen,
                      std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
            EXPECT_TRUE(form->isVisible());
            EXPECT_TRUE(Finden(Zahlboxen[art])->hasFocus()) << "where the mistake is";
            EXPECT_EQ(geschlossen, 0);
            EXPECT_EQ(Gespeichert(0), art > 0 ? "Zita|Zoller" : "Anna|Abel"); // as before
            EXPECT_EQ(Gespeichert(7), "Hanna|Höß");
            GezeigteMeldungen.clear();
            delete form;
            Messe.Lektor1Vor[2] = "Anna";
            Messe.Lektor1Nach[2] = "Abel";
        }
    }
}

TEST_F(LektorrenuswFormTest, DerSpinGehtUmEinsUndGibtDerZahlDenFokus)
{
    Öffnen();
    for (std::size_t art = 0; art < Zahlboxen.size(); ++art) {
        const Text spin = "Änderung" + ZahlText(static_cast<int>(art + 1));
        for (const auto &[richtung, zahl] : {std::pair("ab", "1"),
                                             {"ab", "0"},
                                             {"ab", "0"},
                                             {"auf", "1"},
                                             {"auf", "2"},
                                             {"auf", "2"}}) {
            Drehen(spin.c_str(), richtung);
            EXPECT_EQ(Zeigt(Zahlboxen[art]), zahl) << spin << richtung;
            EXPECT_TRUE(Finden(Zahlboxen[art])->hasFocus());
        }
    }
}

TEST_F(LektorrenuswFormTest, DerSpinLäßtStehenWasKeineZahlIstUndGibtIhmDenFokus)
{
    Öffnen();
    for (const char *richtung : {"ab", "auf"}) {
        FokusAuf("Ende");
        Einsetzen("Kommi", "abc");
        Drehen("Änderung2", richtung);
        EXPECT_EQ(Zeigt("Kommi"), "abc");
        EXPECT_TRUE(Finden("Kommi")->hasFocus()) << richtung;
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(LektorrenuswFormTest, EinAbgeschalteterPlatzBehältSeineNamen)
{
    Öffnen();
    for (const char *zahl : Zahlboxen)
        Einsetzen(zahl, "0");
    EXPECT_EQ(Name(0), "Anna|Abel");
    EXPECT_TRUE(form->close());
    for (std::size_t p = 0; p < Plätze.size(); ++p)
        EXPECT_EQ(Gespeichert(p),
                  Helfer.Vorname[static_cast<int>(p)] + "|" + Helfer.Nachname[static_cast<int>(p)]);
    EXPECT_EQ(Messe.LektorZahl[2], 0);
    EXPECT_EQ(Messe.KollektZahl[2], 0);
}

TEST_F(LektorrenuswFormTest, SchließenSchreibtDenSchirmAuchVonHandGetipptes)
{
    for (const bool mitEnde : {true, false}) {
        Öffnen();
        for (const char *zahl : Zahlboxen)
            Einsetzen(zahl, "1");
        for (std::size_t p = 0; p < Plätze.size(); ++p) {
            Einsetzen(Plätze[p].Vor, ("V" + ZahlText(static_cast<int>(p))).c_str());
            Einsetzen(Plätze[p].Nach, ("N" + ZahlText(static_cast<int>(p))).c_str());
        }
        Messenbild modell = vorher;
        for (std::size_t p = 0; p < Plätze.size(); ++p) {
            const std::size_t stelle = 75 + 5 * (p / 2);
            modell[2][stelle] = "1";
            modell[2][stelle + 1 + 2 * (p % 2)] = "V" + ZahlText(static_cast<int>(p));
            modell[2][stelle + 2 + 2 * (p % 2)] = "N" + ZahlText(static_cast<int>(p));
        }
        if (mitEnde)
            Klick("Ende");
        else
            form->close();
        EXPECT_EQ(MessenJetzt(), modell);
        EXPECT_EQ(geschlossen, 1);
        geschlossen = 0;
        delete form;
    }
}

TEST_F(LektorrenuswFormTest, SchließenVerläßtZuerstDieOffeneWahl)
{
    Öffnen();
    FokusAuf(LH(2));
    Einsetzen(LH(2), "Zoller,Zita");
    EXPECT_TRUE(form->close());
    delete form;
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    EXPECT_EQ(Gespeichert(2), "Zita|Zoller");

    Öffnen();
    FokusAuf(LH(2));
    Einsetzen(LH(2), "Niemand,Nina");
    EXPECT_TRUE(form->close());
    delete form;
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Unbekannt});
    EXPECT_EQ(Gespeichert(2), "Zita|Zoller");
}

TEST_F(LektorrenuswFormTest, PasstAufDenKleinstenBildschirm)
{
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(LektorrenuswFormTest, EinLangerNameIstVonVornZuSehen)
{
    const Text lang = "Bärenfänger-Großmann-Wiesenthal,Heinrich Maximilian";
    NameTeilen(lang, (Messe.*Helferplätze[0].Nach)[2], (Messe.*Helferplätze[0].Vor)[2]);
    Öffnen();
    const QLineEdit *feld = LH(0)->lineEdit();
    EXPECT_EQ(Zeigt(LH(0)), lang);
    EXPECT_EQ(feld->cursorPosition(), 0);
    EXPECT_GT(LH(0)->width(), Finden("Lecki1nach")->width()); // it holds two names
    Tippen(LH(0), "Zoll");                                    // while it is typed, its end
    EXPECT_EQ(feld->cursorPosition(), 4);
}

TEST_F(LektorrenuswFormTest, KommtAusDerMessenlisteUndKehrtDorthinZurück)
{
    vorher = MessenJetzt();
    auto *liste = new MessenlisteForm;
    Zeigen(liste);
    Klick(liste->Lektoren);
    form = Fenster("Lektorrenusw");
    Zeigen(form);
    EXPECT_FALSE(liste->isVisible());
    Wählen(0, "Zoller,Zita");
    Klick("Ende");
    EXPECT_TRUE(Warten([&] { return !form; })); // unloaded
    EXPECT_TRUE(liste->isVisible());
    EXPECT_EQ(Gespeichert(0), "Zita|Zoller");
    EXPECT_TRUE(liste->close()); // the list knows nothing of helpers
    EXPECT_EQ(Gespeichert(0), "Zita|Zoller");
}

TEST_F(LektorrenuswFormTest, NenntSeineMesseUndSeineSpalten)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Messenname"), Messenüberschrift(2));
    std::map<Text, int> mitte; // of the labels, by their text
    for (const QLabel *label : form->findChildren<QLabel *>())
        mitte[Zeigt(label)] = label->mapTo(form, label->rect().bottomLeft()).y();
    for (const char *kopf : {"Anzahl", "Platz", "Helfer", "Vorname", "Nachname"}) {
        ASSERT_TRUE(mitte.contains(kopf)) << kopf;
        EXPECT_LT(mitte[kopf], mitte["Lektor 1:"]) << kopf;
    }
    Messe.Messeart[2] = "Andacht"; // by an action of the main window
    HauptfensterHandelt([] {});
    EXPECT_EQ(Zeigt("Messenname"), Messenüberschrift(2));
}

} // namespace
} // namespace altardienst
