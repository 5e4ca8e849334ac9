// The editor of the week pattern: the rules of its boxes, the steps of the time, bad input.
#include "planning/Standardmessenstand.h"

#include <QWheelEvent>

namespace altardienst {
namespace {

class StandardmessenFormEingabenTest : public Standardmessenstand {
  protected:
    /// The number of servers and the six services, in the order of the screen.
    void Dienste(const std::array<int, 7> &zahlen) const
    {
        for (std::size_t k = 1; k < zahlen.size(); ++k)
            Einsetzen(Dienstfelder[k], ZahlText(zahlen[k]).c_str());
        Einsetzen(Dienstfelder[0], ZahlText(zahlen[0]).c_str());
    }
    std::vector<Text> Dienste() const
    {
        std::vector<Text> texte;
        for (const char *feld : Dienstfelder)
            texte.push_back(Zeigt(feld));
        return texte;
    }

    static constexpr std::array Dienstfelder = {"ZahlMeßdiener", "DienstA", "DienstB", "DienstC",
                                                "DienstD",       "Dienste", "DienstF"};
    static constexpr std::array Helferfelder = {"Leck", "Komu", "Kanto", "Kolle"};
};

using Zahlen = std::vector<Text>;

TEST_F(StandardmessenFormEingabenTest, DiensteBleibenInIhrenGrenzen)
{
    Öffnen();
    for (const auto &[feld, höchstens] : {std::pair("DienstA", 2),
                                          {"DienstB", 2},
                                          {"DienstC", 8},
                                          {"DienstD", 2},
                                          {"Dienste", 2}}) {
        const auto nach = [&](const char *text) {
            Dienste({1, 0, 0, 0, 0, 0, 1});
            Einsetzen(feld, text);
            EXPECT_EQ(Zeigt("ZahlMeßdiener"), ZahlText(1 + std::stoi(Zeigt(feld)))) << feld << text;
            return Zeigt(feld);
        };
        for (int zahl = -2; zahl <= 12; ++zahl)
            EXPECT_EQ(nach(ZahlText(zahl).c_str()), ZahlText(std::clamp(zahl, 0, höchstens)))
                << feld;
        EXPECT_EQ(nach("40000"), ZahlText(höchstens)) << feld;
        EXPECT_EQ(nach("-40000"), "0") << feld;
    }
}

TEST_F(StandardmessenFormEingabenTest, DienerzahlIstDieSummeAllerDienste)
{
    Öffnen();
    Dienste({0, 0, 0, 0, 0, 0, 0});
    int summe = 0;
    for (const auto &[feld, zahl] : {std::pair("DienstA", 1),
                                     {"DienstB", 2},
                                     {"DienstC", 5},
                                     {"DienstD", 1},
                                     {"Dienste", 2},
                                     {"DienstF", 4}}) {
        Tippen(feld, ZahlText(zahl));
        EXPECT_EQ(Zeigt("ZahlMeßdiener"), ZahlText(summe += zahl)) << feld;
    }
}

TEST_F(StandardmessenFormEingabenTest, AllgemeinBekommtDenRestBis20)
{
    Öffnen();
    Dienste({0, 2, 2, 8, 2, 2, 0});
    EXPECT_EQ(Zeigt("ZahlMeßdiener"), "0"); // the last value typed by hand
    for (int zahl = -2; zahl <= 22; ++zahl) {
        Einsetzen("DienstF", "1");
        Einsetzen("DienstF", ZahlText(zahl));
        EXPECT_EQ(Zeigt("DienstF"), ZahlText(std::clamp(zahl, 0, 4))) << zahl;
        EXPECT_EQ(Zeigt("ZahlMeßdiener"), ZahlText(16 + std::clamp(zahl, 0, 4))) << zahl;
    }
    Dienste({0, 0, 0, 0, 0, 0, 20});
    EXPECT_EQ(Zeigt("DienstF"), "20");
    Einsetzen("DienstF", "40000");
    EXPECT_EQ(Zeigt("DienstF"), "20");
}

TEST_F(StandardmessenFormEingabenTest, EinDienstMehrSchneidetAllgemein)
{
    Öffnen();
    Dienste({20, 0, 0, 0, 0, 0, 20});
    for (const auto &[feld, zahl, rest] : {std::tuple("DienstC", "8", "12"),
                                           {"DienstA", "2", "10"},
                                           {"DienstB", "1", "9"},
                                           {"DienstD", "2", "7"},
                                           {"Dienste", "2", "5"}}) {
        Einsetzen(feld, zahl);
        EXPECT_EQ(Zeigt("DienstF"), rest) << feld;
        EXPECT_EQ(Zeigt("ZahlMeßdiener"), "20") << feld;
    }
    Einsetzen("DienstC", "0"); // what was cut does not come back
    EXPECT_EQ(Zeigt("DienstF"), "5");
    EXPECT_EQ(Zeigt("ZahlMeßdiener"), "12");
}

TEST_F(StandardmessenFormEingabenTest, EineGetippteDienerzahlLässtDieDiensteStehen)
{
    Öffnen();
    Dienste({0, 1, 2, 3, 0, 1, 4});
    for (const auto &[text, zahl] : {std::pair("3", "3"),
                                     {"20", "20"},
                                     {"21", "20"},
                                     {"-1", "0"},
                                     {"0", "0"},
                                     {"40000", "20"},
                                     {"-40000", "0"}}) {
        Einsetzen("ZahlMeßdiener", "7");
        Einsetzen("ZahlMeßdiener", text);
        EXPECT_EQ(Dienste(), (Zahlen{zahl, "1", "2", "3", "0", "1", "4"})) << text;
    }
    Einsetzen("DienstD", "1");
    EXPECT_EQ(Zeigt("ZahlMeßdiener"), "12"); // the sum again
}

TEST_F(StandardmessenFormEingabenTest, EineLeereDienerzahlWird1)
{
    Öffnen();
    Dienste({9, 1, 2, 3, 0, 1, 4});
    Einsetzen("ZahlMeßdiener", "");
    EXPECT_EQ(Dienste(), (Zahlen{"1", "1", "2", "3", "0", "1", "4"}));
}

TEST_F(StandardmessenFormEingabenTest, EineGetippteDienerzahlFülltLeereDiensteMit0)
{
    Öffnen();
    Dienste({9, 1, 2, 3, 0, 1, 4});
    for (const char *feld : {"DienstA", "DienstC", "Dienste", "DienstF"})
        Einsetzen(feld, "");
    EXPECT_EQ(Dienste(), (Zahlen{"9", "", "2", "", "0", "", ""})); // no sum without numbers
    Einsetzen("ZahlMeßdiener", "5");
    const Zahlen gefüllt = Dienste();
    EXPECT_EQ(Zahlen(gefüllt.begin() + 1, gefüllt.end()), (Zahlen{"0", "2", "0", "0", "0", "0"}));
}

TEST_F(StandardmessenFormEingabenTest, NurLeereDiensteWerden0UndKeineLeereHelferzahl)
{
    Öffnen();
    Dienste({9, 1, 2, 3, 1, 1, 4});
    for (const char *feld : {"DienstB", "DienstD", "Leck"})
        Einsetzen(feld, "");
    Einsetzen("ZahlMeßdiener", "5");
    EXPECT_EQ(Zeigt("DienstB"), "0");
    EXPECT_EQ(Zeigt("DienstD"), "0");
    EXPECT_EQ(Zeigt("Leck"), "");
}

TEST_F(StandardmessenFormEingabenTest, WasSichNichtUmwandelnLässtBekommtDenFokus)
{
    Öffnen();
    std::vector<const char *> felder(Dienstfelder.begin(), Dienstfelder.end());
    felder.insert(felder.end(), Helferfelder.begin(), Helferfelder.end());
    felder.push_back("Zeitig");
    for (const char *feld : felder)
        for (const char *knopf : {"Plus", "Minus", "Ende"}) {
            const Text zuvor = Zeigt(feld);
            Einsetzen(feld, "abc");
            Klick(knopf);
            EXPECT_EQ(GezeigteMeldungen.size(), 1U) << feld;
            EXPECT_TRUE(Finden(feld)->hasFocus()) << feld << " " << knopf;
            GezeigteMeldungen.clear();
            Einsetzen(feld, zuvor);
        }
    Einsetzen("Datensatznummer", "abc");
    Klick("Plus");
    EXPECT_TRUE(Finden("Datensatznummer")->hasFocus());
}

TEST_F(StandardmessenFormEingabenTest, DasRadGehtAmWochentagVorbei)
{
    Öffnen();
    const QPointF mitte = Tage()->rect().center();
    QWheelEvent rad(mitte, Tage()->mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QApplication::sendEvent(Tage(), &rad);
    EXPECT_EQ(Tage()->currentText(), "Mittwoch");
    EXPECT_NE(Tage()->focusPolicy(), Qt::WheelFocus);
}

TEST_F(StandardmessenFormEingabenTest, HelferzahlenGehenVon0Bis2)
{
    Öffnen();
    for (const char *feld : Helferfelder) {
        for (const auto &[text, zahl] : {std::pair("0", "0"),
                                         {"1", "1"},
                                         {"2", "2"},
                                         {"3", "2"},
                                         {"-1", "0"},
                                         {"40000", "2"}}) {
            Einsetzen(feld, "1");
            Einsetzen(feld, text);
            EXPECT_EQ(Zeigt(feld), zahl) << feld << " " << text;
        }
    }
}

TEST_F(StandardmessenFormEingabenTest, JedesZahlenfeldHatSeinenSpin)
{
    Öffnen();
    std::vector<const char *> felder(Dienstfelder.begin(), Dienstfelder.end());
    felder.insert(felder.end(), Helferfelder.begin(), Helferfelder.end());
    for (std::size_t k = 0; k < felder.size(); ++k) {
        Dienste({1, 1, 1, 1, 1, 1, 1});
        for (const char *feld : Helferfelder)
            Einsetzen(feld, "1");
        Einsetzen("ZahlMeßdiener", "7");
        std::map<Text, Text> erwartet = AlleZeigen(felder);
        const Text spin = "Änderung" + ZahlText(static_cast<int>(k + 1));
        const bool istDienst = k >= 1 && k <= 6;
        const auto prüfen = [&](const char *richtung, int zahl, int summe) {
            Drehen(spin.c_str(), richtung);
            if (istDienst)
                erwartet["ZahlMeßdiener"] = ZahlText(summe);
            erwartet[felder[k]] = ZahlText(k == 0 ? zahl + 6 : zahl);
            EXPECT_EQ(AlleZeigen(felder), erwartet) << spin << " " << richtung;
        };
        prüfen("auf", 2, 7);
        prüfen("ab", 1, 6);
        prüfen("ab", 0, 5);
        if (k > 0)
            prüfen("ab", 0, 5); // clipped
    }
}

TEST_F(StandardmessenFormEingabenTest, EinSpinLässtEinFeldOhneZahlStehen)
{
    Öffnen();
    Einsetzen("DienstC", "abc");
    Drehen("Änderung4", "auf");
    EXPECT_EQ(Zeigt("DienstC"), "abc");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(StandardmessenFormEingabenTest, DieUhrzeitGehtInStundenUndFünfMinuten)
{
    Öffnen();
    const auto nach = [&](const char *anfang, const std::function<void()> &tun) {
        Einsetzen("Zeitig", anfang);
        tun();
        return Zeigt("Zeitig");
    };
    const auto gehtUm = [&](const Text &was, const std::function<void()> &tun, const char *von10Uhr,
                            const char *anfang, const char *überDenTag) {
        EXPECT_EQ(nach("10:00:00", tun), von10Uhr) << was;
        EXPECT_EQ(nach(anfang, tun), überDenTag) << was;
    };
    struct Schritt {
        const char *Knopf;
        const char *Spin;
        const char *Richtung;
        Qt::Key Taste;
        const char *Von10Uhr;
        const char *Anfang;
        const char *ÜberDenTag;
    };
    for (const Schritt &s :
         {Schritt{"mh", "Stundenändern", "ab", Qt::Key_Minus, "09:00:00", "00:30:15", "23:30:15"},
          {"ph", "Stundenändern", "auf", Qt::Key_Plus, "11:00:00", "23:30:15", "00:30:15"},
          {"mMin", "Minutenänderung", "ab", Qt::Key_Minus, "09:55:00", "00:03:00", "23:58:00"},
          {"pMini", "Minutenänderung", "auf", Qt::Key_Plus, "10:05:00", "23:55:00", "00:00:00"}}) {
        gehtUm(
            s.Knopf, [&] { Klick(s.Knopf); }, s.Von10Uhr, s.Anfang, s.ÜberDenTag);
        gehtUm(
            s.Spin, [&] { Drehen(s.Spin, s.Richtung); }, s.Von10Uhr, s.Anfang, s.ÜberDenTag);
        gehtUm(
            "Taste", [&] { Taste(s.Knopf, s.Taste); }, s.Von10Uhr, s.Anfang, s.ÜberDenTag);
        const Qt::Key andere = s.Taste == Qt::Key_Plus ? Qt::Key_Minus : Qt::Key_Plus;
        EXPECT_EQ(nach("10:00:00", [&] { Taste(s.Knopf, andere); }), "10:00:00") << s.Knopf;
    }
}

TEST_F(StandardmessenFormEingabenTest, EineUhrzeitWirdLangGeschrieben)
{
    Öffnen();
    for (const auto &[text, lang] : {std::pair("9:30", "09:30:00"),
                                     {"7:5", "07:05:00"},
                                     {"23:59:59", "23:59:59"},
                                     {"0:0", "00:00:00"},
                                     {"01.02.2027 18:30", "18:30:00"}}) {
        Einsetzen("Zeitig", text);
        EXPECT_EQ(Zeigt("Zeitig"), lang);
    }
}

TEST_F(StandardmessenFormEingabenTest, EineUngültigeUhrzeitBleibtStehenUndGehtNichtWeiter)
{
    Öffnen();
    for (const char *text : {"25:61", "abc", "", "9", "40000", "-1", "12:60", "31.02.2027"}) {
        Einsetzen("Zeitig", text);
        EXPECT_EQ(Zeigt("Zeitig"), text);
        for (const char *knopf : {"mh", "ph", "mMin", "pMini"})
            Klick(knopf);
        EXPECT_EQ(Zeigt("Zeitig"), text);
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

/// Every box in turn holds something that is not a number: the change leaves it alone, moving and
/// leaving show the failure, and the boxes before it are written.
TEST_F(StandardmessenFormEingabenTest, WasSichNichtUmwandelnLässtHältDasSpeichernAn)
{
    const std::vector<Text> fehler{"Laufzeitfehler '13': Typen unverträglich"};
    for (std::size_t k = 0; k < Boxen.size(); ++k) {
        if (k == 1)
            continue; // the kind is free text
        for (const char *text : {"abc", "31.02.2027", "25:61", ""}) {
            if (k == 2 && *text == 0)
                continue; // becomes 1
            for (const bool bewegen : {true, false}) {
                Öffnen(5);
                AllesÄndern();
                Einsetzen(Boxen[k], text);
                EXPECT_EQ(Zeigt(Boxen[k]), text);
                EXPECT_EQ(StandardmessenJetzt(), vorher);
                GezeigteMeldungen.clear();
                Satz erwartet = vorher[5];
                const Satz schirm = Schirm();
                for (std::size_t f = 0; f <= k; ++f)
                    erwartet[f] = schirm[f];
                if (bewegen)
                    Klick("Plus");
                else
                    form->close();
                EXPECT_EQ(GezeigteMeldungen, fehler) << Boxen[k] << " " << text;
                Messenbild modell = vorher;
                modell[5] = erwartet;
                EXPECT_EQ(StandardmessenJetzt(), modell) << Boxen[k] << " " << text;
                EXPECT_TRUE(form->isVisible());
                EXPECT_EQ(Zeigt("Datensatznummer"), "5");
                EXPECT_EQ(Zeigt(Boxen[k]), text);
                delete form;
                Füllen(5);
            }
        }
    }
}

TEST_F(StandardmessenFormEingabenTest, InDerTabelleStehtWasAufDemSchirmStand)
{
    Öffnen(5);
    for (const char *text : {"Hochamt 🎉 mit Chor", "Grüße – „ß“ €", "中文", ""}) {
        Einfügen("Messearten", text);
        const Text gezeigt = Zeigt("Messearten");
        Klick("Plus");
        EXPECT_EQ(Standardmesse.Messeart[5], gezeigt);
        Klick("Minus");
        EXPECT_EQ(Zeigt("Messearten"), gezeigt);
    }
}

TEST_F(StandardmessenFormEingabenTest, EinEingefügterZeilenumbruchBleibtNichtImFeld)
{
    Öffnen(5);
    for (const char *feld : Boxen) {
        for (const char *text : {"Hoch\namt", "1\r\n2", "a\nb\n"}) {
            Einsetzen(feld, text);
            EXPECT_EQ(Zeigt(feld).find_first_of("\r\n"), Text::npos) << feld;
        }
    }
}

} // namespace
} // namespace altardienst
