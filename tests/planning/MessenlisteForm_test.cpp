// The mass list: its controls, moving, adding and the entries that follow a mass.
#include "planning/Messenlistenstand.h"

namespace altardienst {
namespace {

class MessenlisteFormTest : public Messenlistenstand {};

TEST_F(MessenlisteFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Messenliste");
    EXPECT_EQ(form->windowTitle(), "Messenliste");
    std::map<Text, Text> erwartet = {{"tagelang", "Wochentag:"},
                                     {"datendaten", "Datum:"},
                                     {"Uhrwerk", "Uhrzeit:"},
                                     {"Messewesen", "Art:"},
                                     {"Dienerzahlen", "Meßdienerzahl:"},
                                     {"Dienster1", "Gabenbereitung:"},
                                     {"Dienster2", "Leuchter:"},
                                     {"Dienster3", "Flambeaus:"},
                                     {"Dienster4", "Weihrauch:"},
                                     {"Dienster5", "Kreuzträger:"},
                                     {"Dienster6", "Allgemein:"}};
    std::map<Text, Text> gefunden = Beschriftungen();
    for (int k = 1; k <= 20; ++k) {
        EXPECT_EQ(gefunden.erase("vor" + ZahlText(k)), 1U);
        EXPECT_FALSE(Slot(k).empty());
        Finden<QLineEdit>("nach" + ZahlText(k));
    }
    EXPECT_EQ(gefunden, erwartet);
    for (const auto &[name, text] : {std::pair("NBe", "Anzahl Datensätze:"),
                                     {"maxi", "30"},
                                     {"Datensatzus", "0"},
                                     {"Taga", "Wochentag bestimmen"},
                                     {"Löscher", "Datensatz löschen"},
                                     {"NeuMeß", "neue Messe"},
                                     {"Lektoren", "Lektoren und ..."},
                                     {"Ende", "Ende"}})
        EXPECT_EQ(Zeigt(name), text);
    for (const char *name :
         {"mt", "pt", "mm", "pm", "mj", "pj", "mhh", "phh", "mmin", "pmin", "Plus", "Minus"})
        Finden<QPushButton>(name);
    for (const char *name : {"Ä1", "Ä2", "Ä3", "Ä4", "Ä5", "Ä6", "Ä7", "Änderung1", "Änderung2",
                             "Änderung4", "Änderung5", "Änderung6", "DPM"})
        Finden<SpinButton>(name);
}

TEST_F(MessenlisteFormTest, TabFolgtDemAuge)
{
    Öffnen();
    Einsetzen("Dienerzahlen", "2");
    FokusAuf("Datensatzus");
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{
                  "Datensatzus",  "tagelang",  "Taga",      "datendaten", "Uhrwerk",   "Messewesen",
                  "Dienerzahlen", "Dienster1", "Dienster2", "Dienster3",  "Dienster4", "Dienster5",
                  "Dienster6",    "vor1",      "nach1",     "vor2",       "nach2",     "Löscher",
                  "NeuMeß",       "Lektoren",  "Ende"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(MessenlisteFormTest, ÖffnetAufDemCursorUndÄndertNichts)
{
    for (const int i : {0, 7, 29}) {
        Öffnen(i);
        EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(i));
        EXPECT_EQ(Zeigt("maxi"), "30");
        EXPECT_EQ(Schirm(), Gezeigter(i));
        EXPECT_TRUE(form->close());
        EXPECT_EQ(MessenJetzt(), vorher);
        EXPECT_EQ(Messe.Cursor, i);
        EXPECT_EQ(Messe.Anzahl, 30);
        delete form;
    }
}

TEST_F(MessenlisteFormTest, EinCursorHinterDemEndeFälltAufDasEnde)
{
    for (const auto &[cursor, gezeigt] : {std::pair(45, 30), {602, 30}, {-3, 0}}) {
        Öffnen(cursor);
        EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(gezeigt));
        EXPECT_EQ(Messe.Cursor, gezeigt);
        EXPECT_EQ(Messe.Anzahl, 30);
        delete form;
    }
}

struct Bewegung {
    const char *Name;
    int Richtung;
    std::function<void(QWidget *)> Tun;
};

const std::array Bewegungen = {
    Bewegung{"Plus", +1, [](QWidget *f) { Klick(Finden(f, "Plus")); }},
    Bewegung{"DPM auf", +1, [](QWidget *f) { Drehen(Finden(f, "DPM"), "auf"); }},
    Bewegung{"Bild auf", +1,
             [](QWidget *f) { QTest::keyClick(f->windowHandle(), Qt::Key_PageUp); }},
    Bewegung{"Minus", -1, [](QWidget *f) { Klick(Finden(f, "Minus")); }},
    Bewegung{"DPM ab", -1, [](QWidget *f) { Drehen(Finden(f, "DPM"), "ab"); }},
    Bewegung{"Bild ab", -1,
             [](QWidget *f) { QTest::keyClick(f->windowHandle(), Qt::Key_PageDown); }}};

TEST_F(MessenlisteFormTest, BewegenSchreibtDenSchirmUndZeigtDenNachbarn)
{
    for (const Bewegung &bewegung : Bewegungen) {
        Öffnen(12);
        AllesÄndern();
        const Satz schirm = Schirm();
        bewegung.Tun(form);
        Messenbild modell = vorher;
        modell[12] = Mit(modell[12], schirm);
        EXPECT_EQ(MessenJetzt(), modell) << bewegung.Name;
        const int ziel = 12 + bewegung.Richtung;
        EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(ziel));
        EXPECT_EQ(Messe.Cursor, ziel);
        EXPECT_EQ(Schirm(), Gezeigter(ziel)) << bewegung.Name;
        delete form;
    }
}

TEST_F(MessenlisteFormTest, DurchblätternLässtWochentagUndDienerzahlWieSieSind)
{
    Öffnen(0);
    for (int i = 0; i < 29; ++i)
        Klick("Plus");
    EXPECT_EQ(Schirm(), Gezeigter(29));
    for (int i = 0; i < 35; ++i)
        Klick("Minus");
    form->close();
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(Messe.Anzahl, 30);
}

TEST_F(MessenlisteFormTest, MinusAmAnfangSchreibtUndBleibt)
{
    Öffnen(0);
    AllesÄndern();
    const Satz schirm = Schirm();
    Klick("Minus");
    Messenbild modell = vorher;
    modell[0] = Mit(modell[0], schirm);
    EXPECT_EQ(MessenJetzt(), modell);
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(Zeigt("Datensatzus"), "0");
}

TEST_F(MessenlisteFormTest, PlusHinterDemEndeLegtEineLeereMesseAn)
{
    Öffnen(29);
    Klick("Plus");
    EXPECT_EQ(Zeigt("Datensatzus"), "30");
    EXPECT_EQ(Messe.Anzahl, 30);
    Klick("Plus");
    EXPECT_EQ(Zeigt("Datensatzus"), "31");
    EXPECT_EQ(Messe.Anzahl, 31);
    EXPECT_EQ(Messe.Cursor, 31);
    EXPECT_EQ(Zeigt("Messewesen"), "");
    EXPECT_EQ(Zeigt("tagelang"), "");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "0");
    EXPECT_EQ(GestellteFragen.size(), 0U);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    Klick("Minus");
    EXPECT_EQ(Zeigt("maxi"), "31");
    EXPECT_EQ(MessenJetzt(), vorher); // what was shown was empty and still is
}

TEST_F(MessenlisteFormTest, BeiNummer600IstSchluss)
{
    Öffnen(600, 600);
    AllesÄndern();
    const Satz schirm = Schirm();
    Klick("Plus");
    EXPECT_EQ(Zeigt("Datensatzus"), "600");
    EXPECT_EQ(Messe.Anzahl, 600);
    Messenbild modell = vorher;
    modell[600] = Mit(modell[600], schirm);
    EXPECT_EQ(MessenJetzt(), modell);
    EXPECT_EQ(Schirm(), schirm);
}

TEST_F(MessenlisteFormTest, EineGetippteNummerSpringtOhneZuSpeichern)
{
    Öffnen(3);
    AllesÄndern();
    Tippen("Datensatzus", "12");
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(Messe.Cursor, 12);
    EXPECT_EQ(Zeigt("Messewesen"), "Art12");
    EXPECT_EQ(Zeigt("vor20"), "Vor20/12");
}

TEST_F(MessenlisteFormTest, EineGetippteNummerFülltEinmal)
{
    Öffnen(3);
    Einsetzen("Datensatzus", "15"); // Monday
    EXPECT_EQ(Zeigt("tagelang"), "Montag    ");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "5"); // the sum of the services
    EXPECT_EQ(Messe.Wochentag[15], "Montag");
    EXPECT_EQ(Messe.Dienerzahl[15], 14);
}

TEST_F(MessenlisteFormTest, EineGetippteNummerWirdBegrenzt)
{
    for (const auto &[text, nummer, anzahl] : {std::tuple("40", 30, 30),
                                               {"32", 30, 30},
                                               {"31", 31, 31},
                                               {"30", 30, 30},
                                               {"-1", 0, 30},
                                               {"601", 30, 30},
                                               {"40000", 30, 30},
                                               {"-40000", 0, 30}}) {
        Öffnen(3);
        Einsetzen("Datensatzus", text);
        EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(nummer)) << text;
        EXPECT_EQ(Messe.Cursor, nummer) << text;
        EXPECT_EQ(Messe.Anzahl, anzahl) << text;
        EXPECT_EQ(MessenJetzt(), vorher) << text;
        delete form;
    }
}

TEST_F(MessenlisteFormTest, EineNummerDieKeineIstBleibtOhneWortStehen)
{
    Öffnen(3);
    AllesÄndern();
    const Satz schirm = Schirm();
    for (const char *text : {"abc", "-", "1 2", "31.02.2027", "25:61"}) {
        Einsetzen("Datensatzus", text);
        for (const char *knopf : {"Plus", "Minus", "Ende"})
            Klick(knopf);
        EXPECT_EQ(Zeigt("Datensatzus"), text);
        EXPECT_EQ(Schirm(), schirm);
        EXPECT_TRUE(form->isVisible());
    }
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(Messe.Cursor, 3);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(MessenlisteFormTest, EineLeereNummerWirdBeimBewegen0)
{
    for (const auto &[knopf, ziel] : {std::pair("Plus", "1"), {"Minus", "0"}}) {
        Öffnen(3);
        Fest(0, 3);
        AllesÄndern();
        Einsetzen("Datensatzus", "");
        EXPECT_EQ(Zeigt("Messewesen"), "Christmette");
        Klick(knopf);
        EXPECT_EQ(Zeigt("Datensatzus"), ziel);
        EXPECT_EQ(Messe.Messeart[0], "Art0"); // it was shown before it was written
        EXPECT_EQ(Messe.Messeart[3], "Art3");
        EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[3]);
        delete form;
    }
}

TEST_F(MessenlisteFormTest, DerFesteEintragFolgtSeinerMesseBeimBewegenUndVerlassen)
{
    for (const char *knopf : {"Plus", "Minus", "Ende"}) {
        Öffnen(5);
        Fest(0, 4);
        Fest(1, 5);
        Fest(2, 6);
        Klick("pt");
        Klick("phh");
        EXPECT_EQ(MesseDienerFest.Datum[1], Messe.Datum[5]) << "not before the record is written";
        const Datum neuerTag = Messe.Datum[5] + 1;
        const Datum neueZeit = UhrzeitWeiter(Messe.Uhrzeit[5], 3600);
        Klick(knopf);
        EXPECT_EQ(Messe.Datum[5], neuerTag);
        EXPECT_EQ(MesseDienerFest.Datum[1], neuerTag);
        EXPECT_EQ(MesseDienerFest.Uhrzeit[1], neueZeit);
        for (const int k : {0, 2}) {
            EXPECT_EQ(MesseDienerFest.Datum[k], Messe.Datum[4 + k]);
            EXPECT_EQ(MesseDienerFest.Uhrzeit[k], Messe.Uhrzeit[4 + k]);
        }
        delete form;
    }
}

TEST_F(MessenlisteFormTest, WerEineNummerTipptNimmtKeinenFestenEintragMit)
{
    Öffnen(5);
    Fest(0, 5);
    Klick("pt");
    Einsetzen("Datensatzus", "9");
    EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[5]);
}

TEST_F(MessenlisteFormTest, PasstAufDenKleinstenBildschirm)
{
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
