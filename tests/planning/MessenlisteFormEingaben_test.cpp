// The mass list: services and slots, date and time, bad input.
#include "planning/Messenlistenstand.h"

#include <algorithm>

namespace altardienst {
namespace {

class MessenlisteFormEingabenTest : public Messenlistenstand {
  protected:
    MessenlisteFormEingabenTest() { Öffnen(4, 9); }

    void Dienste(const std::array<int, 6> &zahlen) const
    {
        for (std::size_t k = 0; k < zahlen.size(); ++k)
            Einsetzen(("Dienster" + ZahlText(static_cast<int>(k + 1))).c_str(),
                      ZahlText(zahlen[k]).c_str());
    }

    /// What the box shows after a step from the given text.
    Text Nach(const char *feld, const char *anfang, const std::function<void()> &schritt) const
    {
        Einsetzen(feld, anfang);
        schritt();
        return Zeigt(feld);
    }
};

TEST_F(MessenlisteFormEingabenTest, DiensteBleibenInIhrenGrenzenUndErgebenDieDienerzahl)
{
    for (const auto &[feld, höchstens] : {std::pair("Dienster1", 2),
                                          {"Dienster2", 2},
                                          {"Dienster3", 8},
                                          {"Dienster4", 2},
                                          {"Dienster5", 2},
                                          {"Dienster6", 20}}) {
        for (const int zahl : {-1, 1, höchstens, höchstens + 1, 40000}) {
            Dienste({0, 0, 0, 0, 0, 0});
            Einsetzen(feld, ZahlText(zahl));
            EXPECT_EQ(Zeigt(feld), ZahlText(std::clamp(zahl, 0, höchstens))) << feld;
            EXPECT_EQ(Zeigt("Dienerzahlen"), Zeigt(feld)) << feld;
        }
    }
    Dienste({2, 2, 8, 2, 2, 9});
    EXPECT_EQ(Zeigt("Dienster6"), "4");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "20");
    Dienste({0, 0, 0, 0, 0, 20});
    Einsetzen("Dienster4", "2");
    EXPECT_EQ(Zeigt("Dienster6"), "18");
}

TEST_F(MessenlisteFormEingabenTest, JedesZahlenfeldHatSeinenSpin)
{
    const std::vector<const char *> felder = {"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3",
                                              "Dienster4",    "Dienster5", "Dienster6"};
    for (std::size_t k = 0; k < felder.size(); ++k) {
        Dienste({1, 1, 1, 1, 1, 1});
        Einsetzen("Dienerzahlen", "6");
        std::map<Text, Text> erwartet = AlleZeigen(felder);
        const Text spin = "Ä" + ZahlText(static_cast<int>(k + 1));
        for (const auto &[richtung, schritt] : {std::pair("auf", 1), {"ab", 0}, {"ab", -1}}) {
            Drehen(spin.c_str(), richtung);
            erwartet["Dienerzahlen"] = ZahlText(6 + schritt);
            if (k > 0)
                erwartet[felder[k]] = ZahlText(1 + schritt);
            EXPECT_EQ(AlleZeigen(felder), erwartet) << spin;
        }
    }
}

TEST_F(MessenlisteFormEingabenTest, DienerzahlZeigtSovieleZeilen)
{
    for (const auto &[text, zahl] : {std::pair("0", 0),
                                     {"1", 1},
                                     {"7", 7},
                                     {"19", 19},
                                     {"20", 20},
                                     {"21", 20},
                                     {"-1", 0},
                                     {"40000", 20},
                                     {"3", 3}}) {
        Einsetzen("Dienerzahlen", text);
        EXPECT_EQ(Zeigt("Dienerzahlen"), ZahlText(zahl)) << text;
        for (int k = 1; k <= 20; ++k) {
            const Text n = ZahlText(k);
            EXPECT_EQ(Finden("MDR[" + ZahlText(k - 1) + "]")->isVisible(), k <= zahl);
            EXPECT_EQ(Finden("vor" + n)->isVisible(), k <= zahl) << n;
            EXPECT_EQ(Finden("nach" + n)->isVisible(), k <= zahl) << n;
        }
    }
    Einsetzen("Dienerzahlen", "abc"); // the rows stay as they were
    EXPECT_TRUE(Finden("vor3")->isVisible());
    EXPECT_FALSE(Finden("vor4")->isVisible());
}

TEST_F(MessenlisteFormEingabenTest, VerborgeneZeilenBehaltenIhrenTextUndWerdenGeschrieben)
{
    Einsetzen("vor20", "Anna");
    Einsetzen("Dienerzahlen", "2");
    form->close();
    EXPECT_EQ(Messe.DienerVor[4][20], "Anna");
    EXPECT_EQ(Messe.DienerNach[4][20], "Nach20/4");
    EXPECT_EQ(Messe.DienerVor[4][0], "Vor0/4"); // index 0 belongs to no slot
    EXPECT_EQ(Messe.Dienerzahl[4], 2);
}

TEST_F(MessenlisteFormEingabenTest, SlotsNennenDieDiensteDieSieBekommen)
{
    Dienste({0, 2, 0, 1, 0, 3});
    const auto slots = [&](int von, int bis) {
        std::vector<Text> texte;
        for (int k = von; k <= bis; ++k)
            texte.push_back(Slot(k));
        return texte;
    };
    EXPECT_EQ(slots(1, 4),
              (std::vector<Text>{"Leuchter :", "Leuchter :", "Weihrauch :", "Meßdiener 4 :"}));
    Einsetzen("Dienerzahlen", "8"); // any change rewrites them
    Dienste({1, 1, 2, 0, 2, 0});
    Drehen("Ä1", "auf");
    EXPECT_EQ(slots(1, 7),
              (std::vector<Text>{"Gabenber. :", "Leuchter :", "Flambeau :", "Flambeau :",
                                 "Kreuztr. :", "Kreuztr. :", "Meßdiener 7 :"}));
}

TEST_F(MessenlisteFormEingabenTest, BeimBewegenStehenDieSlotsDerNeuenMesse)
{
    Klick("Plus"); // record 5: 2 Gabenbereitung, 0 Leuchter, 0 Flambeau, 1 Weihrauch, 1 Kreuz
    EXPECT_EQ(Slot(1), "Gabenber. :");
    EXPECT_EQ(Slot(2), "Gabenber. :");
    EXPECT_EQ(Slot(3), "Weihrauch :");
    EXPECT_EQ(Slot(4), "Kreuztr. :");
    EXPECT_EQ(Slot(5), "Meßdiener 5 :");
}

TEST_F(MessenlisteFormEingabenTest, DatumUndUhrzeitGehenInSchritten)
{
    struct Schritt {
        const char *Feld;
        const char *Zurück, *Vor, *Spin;
        const char *Anfang, *Davor, *Danach;
    };
    for (const Schritt &s : {
             Schritt{"datendaten", "mt", "pt", "Änderung1", "01.03.2027", "28.02.2027",
                     "02.03.2027"},
             {"datendaten", "mt", "pt", "Änderung1", "31.12.2026", "30.12.2026", "01.01.2027"},
             {"datendaten", "mm", "pm", "Änderung2", "31.03.2027", "28.02.2027", "30.04.2027"},
             {"datendaten", "mm", "pm", "Änderung2", "15.01.2027", "15.12.2026", "15.02.2027"},
             {"datendaten", "mj", "pj", "Änderung4", "29.02.2028", "28.02.2027", "28.02.2029"},
             {"datendaten", "mj", "pj", "Änderung4", "21.11.1999", "21.11.1998", "21.11.2000"},
             {"Uhrwerk", "mhh", "phh", "Änderung5", "10:07:30", "09:07:30", "11:07:30"},
             {"Uhrwerk", "mhh", "phh", "Änderung5", "00:30:00", "23:30:00", "01:30:00"},
             {"Uhrwerk", "mhh", "phh", "Änderung5", "23:30:00", "22:30:00", "00:30:00"},
             {"Uhrwerk", "mmin", "pmin", "Änderung6", "10:00:00", "09:55:00", "10:05:00"},
             {"Uhrwerk", "mmin", "pmin", "Änderung6", "00:04:00", "23:59:00", "00:09:00"},
             {"Uhrwerk", "mmin", "pmin", "Änderung6", "23:57:00", "23:52:00", "00:02:00"},
         }) {
        EXPECT_EQ(Nach(s.Feld, s.Anfang, [&] { Klick(s.Zurück); }), s.Davor) << s.Zurück;
        EXPECT_EQ(Nach(s.Feld, s.Anfang, [&] { Klick(s.Vor); }), s.Danach) << s.Vor;
        EXPECT_EQ(Nach(s.Feld, s.Anfang, [&] { Drehen(s.Spin, "ab"); }), s.Davor) << s.Spin;
        EXPECT_EQ(Nach(s.Feld, s.Anfang, [&] { Drehen(s.Spin, "auf"); }), s.Danach) << s.Spin;
        const auto taste = [&](const char *knopf, Qt::Key taste) {
            return Nach(s.Feld, s.Anfang, [&] { Taste(knopf, taste); });
        };
        EXPECT_EQ(taste(s.Zurück, Qt::Key_Minus), s.Davor) << s.Zurück;
        EXPECT_EQ(taste(s.Vor, Qt::Key_Plus), s.Danach) << s.Vor;
        EXPECT_EQ(taste(s.Zurück, Qt::Key_Plus), s.Anfang) << s.Zurück;
        EXPECT_EQ(taste(s.Vor, Qt::Key_Minus), s.Anfang) << s.Vor;
    }
    EXPECT_EQ(MessenJetzt(), vorher); // nothing is written before the user moves on or leaves
}

TEST_F(MessenlisteFormEingabenTest, JederDatumsschrittBestimmtDenWochentag)
{
    for (const auto &[knopf, tag] : {std::pair("pt", "Montag    "),
                                     {"mt", "Samstag   "},
                                     {"pm", "Dienstag  "},
                                     {"mm", "Donnerstag"},
                                     {"pj", "Montag    "},
                                     {"mj", "Samstag   "}}) {
        Einsetzen("datendaten", "22.11.2026"); // Sunday
        Einsetzen("tagelang", "irgendwann");
        Klick(knopf);
        EXPECT_EQ(Zeigt("tagelang"), tag) << knopf;
    }
}

TEST_F(MessenlisteFormEingabenTest, WochentageSindAufZehnBuchstabenGefüllt)
{
    const std::array<Text, 7> tage = {"Sonntag   ", "Montag    ", "Dienstag  ", "Mittwoch  ",
                                      "Donnerstag", "Freitag   ", "Samstag   "};
    Einsetzen("datendaten", "21.11.2026");
    for (const Text &tag : tage) {
        Klick("pt");
        EXPECT_EQ(Zeigt("tagelang"), tag);
        Einsetzen("tagelang", "");
        Klick("Taga");
        EXPECT_EQ(Zeigt("tagelang"), tag);
    }
    form->close();
    EXPECT_EQ(Messe.Wochentag[4], "Samstag   "); // with its blanks
}

TEST_F(MessenlisteFormEingabenTest, EinDatumWirdKurzEineUhrzeitLangGeschrieben)
{
    for (const auto &[text, kurz, tag] :
         {std::tuple("1.2.27", "01.02.2027", "Montag    "),
          {"24-12-2026", "24.12.2026", "Donnerstag"},
          {"1/1/1950", "01.01.1950", "Sonntag   "}, // the past is allowed
          {"22.11.2026 10:00", "22.11.2026", "Sonntag   "}}) {
        Einsetzen("datendaten", text);
        EXPECT_EQ(Zeigt("datendaten"), kurz);
        EXPECT_EQ(Zeigt("tagelang"), tag);
    }
    for (const auto &[text, lang] : {std::pair("9:30", "09:30:00"), {"7:5:3", "07:05:03"}}) {
        Einsetzen("Uhrwerk", text);
        EXPECT_EQ(Zeigt("Uhrwerk"), lang);
    }
}

TEST_F(MessenlisteFormEingabenTest, WasKeinDatumIstBleibtStehenUndGehtNichtWeiter)
{
    Einsetzen("tagelang", "irgendwann");
    for (const char *text : {"31.02.2027", "abc", "", "40000", "-1", "1.2", "25:61"}) {
        Einsetzen("datendaten", text);
        for (const char *knopf : {"mt", "pt", "mm", "pm", "mj", "pj", "Taga"})
            Klick(knopf);
        for (const char *spin : {"Änderung1", "Änderung2", "Änderung4"})
            Drehen(spin, "auf");
        EXPECT_EQ(Zeigt("datendaten"), text);
    }
    for (const char *text : {"25:61", "abc", "", "40000", "-1"}) {
        Einsetzen("Uhrwerk", text);
        for (const char *knopf : {"mhh", "phh", "mmin", "pmin"})
            Klick(knopf);
        EXPECT_EQ(Zeigt("Uhrwerk"), text);
    }
    EXPECT_EQ(Zeigt("tagelang"), "irgendwann");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(MessenlisteFormEingabenTest, DerKalenderEndetOhneWort)
{
    EXPECT_EQ(Nach("datendaten", "31.12.9999", [&] { Klick("pt"); }), "31.12.9999");
    EXPECT_EQ(Nach("datendaten", "31.12.9999", [&] { Klick("pj"); }), "31.12.9999");
    EXPECT_EQ(Nach("datendaten", "01.01.0100", [&] { Klick("mt"); }), "01.01.0100");
    EXPECT_EQ(Nach("datendaten", "01.01.0100", [&] { Klick("mm"); }), "01.01.0100");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

/// A box that cannot be converted silently ends the handler: the boxes before it are written. Date
/// and time are needed for the fixed entries before anything is written.
TEST_F(MessenlisteFormEingabenTest, WasSichNichtUmwandelnLässtHältDasSpeichernStillAn)
{
    const std::vector<Text> boxen = Boxen();
    for (const std::size_t k : {1U, 2U, 4U, 5U, 6U, 7U, 8U, 9U, 10U}) {
        for (const char *text : {"abc", "", "31.02.2027", "1 2"}) {
            for (const char *knopf : {"Plus", "Minus", "Ende"}) {
                Fest(0, 4);
                AllesÄndern();
                Einsetzen(boxen[k].c_str(), text);
                const Satz schirm = Schirm();
                Klick(knopf);
                Messenbild modell = vorher;
                if (k > 2)
                    modell[4] = Mit(modell[4], schirm, k);
                EXPECT_EQ(MessenJetzt(), modell) << boxen[k] << " " << text << " " << knopf;
                EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[4]);
                EXPECT_EQ(MesseDienerFest.Uhrzeit[0], Messe.Uhrzeit[4]);
                EXPECT_EQ(Schirm(), schirm);
                EXPECT_EQ(Zeigt("Datensatzus"), "4");
                EXPECT_TRUE(form->isVisible());
                MesseFüllen(4);
            }
        }
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

// Silently, but the user ends up where the mistake is.
TEST_F(MessenlisteFormEingabenTest, WasSichNichtUmwandelnLässtBekommtDenFokus)
{
    for (const bool mitFestemEintrag : {false, true}) {
        if (mitFestemEintrag)
            Fest(0, 4);
        for (const char *box : {"datendaten", "Uhrwerk", "Dienerzahlen", "Dienster1", "Dienster2",
                                "Dienster3", "Dienster4", "Dienster5", "Dienster6", "Datensatzus"})
            for (const char *knopf : {"Plus", "Minus", "Ende"}) {
                const Text zuvor = Zeigt(box);
                Einsetzen(box, "abc");
                FokusAuf("vor1");
                Klick(knopf);
                EXPECT_TRUE(Finden(box)->hasFocus()) << box << " " << knopf;
                Einsetzen(box, zuvor);
                MesseFüllen(4);
            }
    }
    Einsetzen("datendaten", "abc"); // the number comes first
    Einsetzen("Datensatzus", "abc");
    Klick("Ende");
    EXPECT_TRUE(Finden("Datensatzus")->hasFocus());
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

// Date and time are converted when their turn comes if no entry needs them.
TEST_F(MessenlisteFormEingabenTest, OhneFestenEintragStehtWasVorDemSchlechtenTerminLiegt)
{
    for (const std::size_t k : {1U, 2U}) {
        AllesÄndern();
        Einsetzen(Boxen()[k].c_str(), "abc");
        const Satz schirm = Schirm();
        Klick("Plus");
        Messenbild modell = vorher;
        modell[4] = Mit(modell[4], schirm, k);
        EXPECT_EQ(MessenJetzt(), modell) << k;
        EXPECT_EQ(Zeigt("Datensatzus"), "4");
        MesseFüllen(4);
    }
}

TEST_F(MessenlisteFormEingabenTest, BuchstabenInEinemDienstLassenDieSlotsStehen)
{
    const auto slots = [&] {
        std::vector<Text> texte;
        for (int k = 1; k <= 20; ++k)
            texte.push_back(Slot(k));
        return texte;
    };
    const std::array felder = {"Dienster1", "Dienster2", "Dienster3",
                               "Dienster4", "Dienster5", "Dienster6"};
    for (std::size_t f = 0; f < felder.size(); ++f) {
        Dienste({1, 1, 2, 1, 1, 2});
        const std::vector<Text> zuvor = slots();
        ASSERT_EQ(zuvor[5], "Kreuztr. :");
        for (const char *text : {"abc", "", "-", "1x"}) {
            Einsetzen(felder[f], text);
            EXPECT_EQ(slots(), zuvor) << felder[f] << " " << text;
        }
        Tippen(felder[f], "abc");
        EXPECT_EQ(slots(), zuvor) << felder[f];
        // Nor does another service have an effect while the sum cannot be formed.
        Einsetzen(felder[(f + 1) % felder.size()], "0");
        EXPECT_EQ(slots(), zuvor) << felder[f];
        EXPECT_EQ(Zeigt("Dienerzahlen"), "8");
        Einsetzen(felder[(f + 1) % felder.size()], "1");
        Einsetzen(felder[f], "0");
        EXPECT_EQ(slots() == zuvor, f == 5) << felder[f];
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

// A service may change while the number of servers stays.
TEST_F(MessenlisteFormEingabenTest, DieSlotsFolgenDenDienstenAuchBeiGleicherMeßdienerzahl)
{
    Dienste({1, 1, 0, 0, 0, 0});
    Einsetzen("Dienerzahlen", "1");
    EXPECT_EQ(Slot(2), "Leuchter :");
    Einsetzen("Dienster2", "0");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "1");
    EXPECT_EQ(Slot(2), "Meßdiener 2 :");
}

TEST_F(MessenlisteFormEingabenTest, EinSchlechterDienstLässtDieSlotsHinterIhmNummeriert)
{
    Dienste({1, 1, 2, 2, 0, 0});
    Einsetzen("Dienster3", "abc");
    Einsetzen("Dienster1", "2");
    Einsetzen("Dienerzahlen", "9");
    EXPECT_EQ(Slot(1), "Gabenber. :");
    EXPECT_EQ(Slot(2), "Gabenber. :");
    EXPECT_EQ(Slot(3), "Leuchter :");
    for (int k = 4; k <= 20; ++k)
        EXPECT_EQ(Slot(k), "Meßdiener " + ZahlText(k) + " :");
}

TEST_F(MessenlisteFormEingabenTest, InDerTabelleStehtWasAufDemSchirmStand)
{
    for (const Text &box : Boxen()) {
        if (box.starts_with("D") || box == "datendaten" || box == "Uhrwerk")
            continue;
        Einsetzen(box, "🎉 Jörg\nGroß €");
        EXPECT_EQ(Zeigt(box), "? Jörg Groß €") << box;
    }
    const Satz schirm = Schirm();
    form->close();
    EXPECT_EQ(MesseSatz(4), Mit(vorher[4], schirm));
}

} // namespace
} // namespace altardienst
