// The form Druck: its buttons, the two dates and their weekdays.
#include "printing/Druckfenster.h"

#include "application/Anwendung.h"
#include "core/Umwandlung.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <map>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class DruckFormTest : public Druckfenster {};

TEST_F(DruckFormTest, JedesControlHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Druck");
    EXPECT_EQ(form->windowTitle(), "Druck");
    const std::map<const char *, const char *> aufschriften = {
        {"Messendruck", "Druck des Altardienstes"},
        {"Meßdienerdruck", "Druck der Meßdienerdaten (alle)"},
        {"DruckiMeßdieneri", "Druck Meßdienerdaten (Gruppe)"},
        {"DruckHelfer", "Druck der Helfer"},
        {"Standarddruck", "Drucken der Standardmessen"},
        {"Erfassungsbogen", "Drucken des Erfassungsbogens für Meßdiener"},
        {"Erfaßung", "Druck des Erfassungsbogens für Meßhelfer"},
        {"Etiketten", "Druck von Adressetiketten"},
        {"EtikGross", "Druck der Etikettengröße"},
        {"Alles", "Alle"},
        {"GRP", "Meßdienergruppe"},
        {"Ende", "Ende"}};
    for (const auto &[name, text] : aufschriften)
        EXPECT_EQ(Zeigt(name), text) << name;
    const std::map<Text, QWidget *> felder = {
        {"Gruppe:", Finden("Gruppend")},
        {"Rückgabe des Erfassungsbogen bis zum:", Finden("Rückgebend")},
        {"Dauer des Plans (ca.):", Finden("Dauernde")},
        {"Reihe :", Finden("Reih")},
        {"Spalte :", Finden("Spal")}};
    std::map<Text, QWidget *> gesehen;
    for (const QLabel *label : form->findChildren<QLabel *>())
        if (label->buddy())
            gesehen[Zeigt(label)] = label->buddy();
    EXPECT_EQ(gesehen, felder);
    EXPECT_EQ(Finden<QGroupBox>("EtiGröß")->title(), "Etikettengröße");
    EXPECT_EQ(Finden<QGroupBox>("Etik")->title(), "Erstes zu bedruckende Etikett in");
}

// Today is Saturday, the 21st; the plan starts on Saturdays, one week ahead.
TEST_F(DruckFormTest, ÖffnetMitDerRückgabeAmTagDesVorgeschlagenenPlans)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Rückgebend"), "28.11.2026");
    EXPECT_EQ(Zeigt("RückTag"), "Samstag   ");
    EXPECT_EQ(Zeigt("Dauernde"), "26.12.2026");
    EXPECT_EQ(Zeigt("DauerTag"), "Samstag   ");
}

TEST_F(DruckFormTest, EinFrühererStartwochentagLiegtWenigerWeitVoraus)
{
    Konfig.StartWochentag = 1;
    Konfig.VorlaufWochen = 3;
    Konfig.Tage = 0;
    Öffnen();
    EXPECT_EQ(Zeigt("Rückgebend"), "06.12.2026");
    EXPECT_EQ(Zeigt("RückTag"), "Sonntag   ");
    EXPECT_EQ(Zeigt("Dauernde"), "06.12.2026");
}

// Only the start dialog corrects them.
TEST_F(DruckFormTest, DieEinstellungenBleibenWieSieSind)
{
    Konfig.StartWochentag = 9;
    Konfig.VorlaufWochen = 22;
    Öffnen();
    EXPECT_EQ(Konfig.StartWochentag, 9);
    EXPECT_EQ(Konfig.VorlaufWochen, 22);
    EXPECT_EQ(Zeigt("Rückgebend"), KurzesDatum(Heute + 22 * 7 + 9 - 7));
    EXPECT_EQ(Zeigt("Dauernde"), KurzesDatum(Heute + 22 * 7 + 9 - 7 + 28));
}

TEST_F(DruckFormTest, BeimÖffnenWirdDieRückgabeNichtErsetzt)
{
    Konfig.StartWochentag = 1;
    Konfig.VorlaufWochen = 0;
    Öffnen();
    EXPECT_EQ(Zeigt("Rückgebend"), "15.11.2026"); // six days ago
    EXPECT_EQ(Zeigt("RückTag"), "Sonntag   ");
    EXPECT_EQ(Zeigt("Dauernde"), "13.12.2026");
    EXPECT_EQ(Zeigt("DauerTag"), "Sonntag   ");
    EXPECT_EQ(Konfig.VorlaufWochen, 0);
}

TEST_F(DruckFormTest, WochentageStehenInZehnZeichen)
{
    Öffnen();
    for (const char *tag : {"Sonntag   ", "Montag    ", "Dienstag  ", "Mittwoch  ", "Donnerstag",
                            "Freitag   ", "Samstag   "}) {
        Klick("Plus1");
        EXPECT_EQ(Zeigt("RückTag"), tag);
        Klick("Plus2");
        EXPECT_EQ(Zeigt("DauerTag"), tag);
    }
    EXPECT_EQ(Zeigt("Rückgebend"), "05.12.2026");
    EXPECT_EQ(Zeigt("Dauernde"), "02.01.2027");
}

TEST_F(DruckFormTest, AlleKnöpfeDerBeidenTage)
{
    Öffnen();
    for (const auto &[feld, minus, plus, spin] :
         {std::array{"Rückgebend", "Minus1", "Plus1", "Änderung1"},
          std::array{"Dauernde", "Minus2", "Plus2", "Änderung2"}}) {
        const Text anderer = Zeigt(feld == Text("Dauernde") ? "Rückgebend" : "Dauernde");
        NachTippen(feld, "28.2.2028");
        Klick(plus);
        EXPECT_EQ(Zeigt(feld), "29.02.2028");
        Klick(plus);
        EXPECT_EQ(Zeigt(feld), "01.03.2028");
        Klick(minus);
        EXPECT_EQ(Zeigt(feld), "29.02.2028");
        Drehen(spin, "auf");
        EXPECT_EQ(Zeigt(feld), "01.03.2028");
        Drehen(spin, "ab");
        EXPECT_EQ(Zeigt(feld), "29.02.2028");
        FokusAuf(plus);
        QTest::keyClick(Finden(plus), Qt::Key_Plus);
        EXPECT_EQ(Zeigt(feld), "01.03.2028");
        EXPECT_EQ(Zeigt(feld == Text("Dauernde") ? "Rückgebend" : "Dauernde"), anderer);
    }
    EXPECT_EQ(Zeigt("RückTag"), "Mittwoch  ");
    EXPECT_EQ(Zeigt("DauerTag"), "Mittwoch  ");
}

TEST_F(DruckFormTest, BeimVerlassenStehtDerTagInKurzerForm)
{
    Öffnen();
    EXPECT_EQ(NachTippen("Rückgebend", "1/12/27"), "01.12.2027");
    EXPECT_EQ(Zeigt("RückTag"), "Mittwoch  ");
    EXPECT_EQ(NachTippen("Dauernde", "7-1-2028"), "07.01.2028");
    EXPECT_EQ(Zeigt("DauerTag"), "Freitag   ");
    EXPECT_EQ(NachTippen("Rückgebend", "1.12.2027 14:30"), "01.12.2027");
}

TEST_F(DruckFormTest, BeimTippenÄndertSichNochNichts)
{
    Öffnen();
    Tippen("Rückgebend", "1.1.2001");
    EXPECT_EQ(Zeigt("Rückgebend"), "1.1.2001");
    EXPECT_EQ(Zeigt("RückTag"), "Samstag   ");
}

TEST_F(DruckFormTest, EineRückgabeInDerVergangenheitWirdHeute)
{
    Öffnen();
    EXPECT_EQ(NachTippen("Rückgebend", "20.11.2026"), "21.11.2026");
    EXPECT_EQ(NachTippen("Rückgebend", "21.11.2026"), "21.11.2026");
    EXPECT_EQ(NachTippen("Rückgebend", "22.11.2026"), "22.11.2026");
    EXPECT_EQ(NachTippen("Rückgebend", "9:00:00"), "21.11.2026"); // a time has no day
    Klick("Minus1");
    EXPECT_EQ(Zeigt("Rückgebend"), "21.11.2026");
    EXPECT_EQ(Zeigt("RückTag"), "Samstag   ");
    EXPECT_EQ(Zeigt("Dauernde"), "26.12.2026"); // does not follow
}

TEST_F(DruckFormTest, EineDauerInDerVergangenheitZähltAbDerRückgabe)
{
    Öffnen();
    NachTippen("Rückgebend", "1.12.2026");
    EXPECT_EQ(NachTippen("Dauernde", "20.11.2026"), "29.12.2026");
    EXPECT_EQ(Zeigt("DauerTag"), "Dienstag  ");
    EXPECT_EQ(NachTippen("Dauernde", "21.11.2026"), "21.11.2026"); // before the return only
    Klick("Minus2");
    EXPECT_EQ(Zeigt("Dauernde"), "29.12.2026");
}

TEST_F(DruckFormTest, WasKeinTagIstBleibtStehen)
{
    Öffnen();
    for (const char *feld : {"Rückgebend", "Dauernde"}) {
        for (const char *text : {"", "am Fest", "31.2.2027", "1.12."}) {
            EXPECT_EQ(NachTippen(feld, text), text);
            Klick(feld == Text("Dauernde") ? "Plus2" : "Plus1");
            EXPECT_EQ(Zeigt(feld), text);
        }
        NachTippen(feld, "31.12.9999");
        Klick(feld == Text("Dauernde") ? "Plus2" : "Plus1"); // there is no later day
        EXPECT_EQ(Zeigt(feld), "31.12.9999");
    }
    NachTippen("Rückgebend", "am Fest");
    EXPECT_EQ(NachTippen("Dauernde", "1.1.2001"), "1.1.2001"); // has no return date to count from
    EXPECT_EQ(Zeigt("RückTag"), "Freitag   ");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

// There is no return date to count from, but the weekday follows the day.
TEST_F(DruckFormTest, OhneRückgabeZeigtEinSchrittInDieVergangenheitSeinenWochentag)
{
    Öffnen();
    NachTippen("Rückgebend", "am Fest");
    NachTippen("Dauernde", "21.11.2026");
    Klick("Minus2");
    EXPECT_EQ(Zeigt("Dauernde"), "20.11.2026");
    EXPECT_EQ(Zeigt("DauerTag"), "Freitag   ");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckFormTest, JederKnopfDrucktSeinenBericht)
{
    MesseMitDienern(DatumAus({2026, 11, 22}), 1);
    Öffnen();
    const std::map<const char *, const char *> ersteZeilen = {
        {"Messendruck", "Messen der Pfarrei St. Ägid"},
        {"Meßdienerdruck", "Meßdiener der Pfarrei St. Ägid"},
        {"DruckiMeßdieneri", "Meßdiener der Pfarrei St. Ägid"},
        {"DruckHelfer", "Meßhelfer der Pfarrei St. Ägid"},
        {"Standarddruck", "Standardmessen der Pfarrei St. Ägid"},
        {"Wunschpartner", "Wunschpartnerliste"},
        {"Erfassungsbogen", "Erfassungsbogen für den Altardienst (Meßdiener)"},
        {"Erfaßung", "Erfassungsbogen für den Altardienst (Meßhelfer)"},
        {"EtikGross", "Etikettengrößen"},
        {"Etiketten", "Anna Berg"}};
    for (const auto &[knopf, zeile] : ersteZeilen) {
        EXPECT_EQ(Gedruckt(knopf).front(), zeile) << knopf;
        EXPECT_EQ(Papier.WieOft("Dialog"), 1) << knopf;
        EXPECT_EQ(Papier.WieOft("EndDoc"), 1) << knopf;
    }
}

TEST_F(DruckFormTest, DieBögenNehmenDieTageWieSieStehen)
{
    Öffnen();
    NachTippen("Rückgebend", "am Fest");
    for (const char *knopf : {"Erfassungsbogen", "Erfaßung"}) {
        const Liste zeilen = Gedruckt(knopf);
        EXPECT_EQ(std::ranges::count(zeilen, "Rückgeben bis zum am Fest"), 1);
        EXPECT_EQ(
            std::ranges::count(
                zeilen, "Der nächste Altardienst ist voraussichtlich gültig bis zum 26.12.2026"),
            1);
    }
}

TEST_F(DruckFormTest, DieGruppenlisteNimmtDieGewählteGruppe)
{
    Öffnen();
    auto *gruppen = Finden<QComboBox>("Gruppend");
    ASSERT_EQ(gruppen->count(), 2);
    EXPECT_EQ(gruppen->itemText(0), "Die Kleinen");
    EXPECT_EQ(gruppen->itemText(1), QString::fromUtf8("Die Großen"));
    EXPECT_EQ(Gedruckt("DruckiMeßdieneri").size(), 2U); // only the two titles
    FokusAuf(gruppen);
    QTest::keyClick(gruppen, Qt::Key_Down);
    const Liste zeilen = Gedruckt("DruckiMeßdieneri");
    EXPECT_EQ(zeilen[1], "der Gruppe Die Großen");
    EXPECT_EQ(zeilen.size(), 2U + 2 * 2);
}

// The list of groups is in another frame.
TEST_F(DruckFormTest, DieGruppeDerEtikettenSagtWoSieGewähltWird)
{
    Öffnen();
    EXPECT_EQ(Finden("GRP")->toolTip().toStdString(),
              "die Gruppe, die unter \"Plan und Listen\" gewählt ist");
    EXPECT_EQ(Finden<QGroupBox>("Listen")->title(), "Plan und Listen");
    EXPECT_TRUE(Finden("Listen")->isAncestorOf(Finden("Gruppend")));
}

TEST_F(DruckFormTest, DasMausradWechseltKeineGruppe)
{
    Öffnen();
    auto *gruppen = Finden<QComboBox>("Gruppend");
    const QPointF mitte = gruppen->rect().center();
    QWheelEvent rad(mitte, gruppen->mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QApplication::sendEvent(gruppen, &rad);
    EXPECT_EQ(gruppen->currentIndex(), 0);
}

TEST_F(DruckFormTest, AbgebrochenDrucktKeinKnopfEtwas)
{
    MesseMitDienern(DatumAus({2026, 11, 22}), 1);
    Papier.Antwort = std::nullopt;
    Öffnen();
    for (const char *knopf :
         {"Messendruck", "Meßdienerdruck", "DruckiMeßdieneri", "DruckHelfer", "Standarddruck",
          "Wunschpartner", "Erfassungsbogen", "Erfaßung", "EtikGross", "Etiketten"}) {
        Gedruckt(knopf);
        EXPECT_EQ(Papier.Zeilen, Liste{"Dialog"}) << knopf;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DruckFormTest, EndeGibtDasHauptfensterZurück)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    haupt.setEnabled(false);
    Öffnen();
    Klick("Ende");
    EXPECT_TRUE(Warten([&] { return form.isNull(); }));
    EXPECT_TRUE(haupt.isEnabled());
    EXPECT_TRUE(haupt.isMaximized());
}

TEST_F(DruckFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    Öffnen();
    FokusAuf("Messendruck");
    EXPECT_EQ(
        Tabfolge(form),
        (Liste{"Messendruck", "Standarddruck", "Meßdienerdruck", "DruckiMeßdieneri", "Gruppend",
               "Wunschpartner", "DruckHelfer", "Erfassungsbogen", "Erfaßung", "Rückgebend",
               "Dauernde", "Alles", "O1", "Reih", "Spal", "Etiketten", "EtikGross", "Ende"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(DruckFormTest, AufDemKleinstenBildschirmRolltDerInhalt)
{
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(DruckFormTest, WoPlatzIstGibtEsKeineRollbalken)
{
    Öffnen();
    for (QScrollBar *balken : form->findChildren<QScrollBar *>())
        EXPECT_FALSE(balken->isVisible());
}

} // namespace
} // namespace altardienst
