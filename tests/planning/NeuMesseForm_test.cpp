// The dialog for a new mass: what it starts with, and the rules of its boxes.
#include "planning/Neumessenstand.h"

#include <algorithm>

namespace altardienst {
namespace {

class NeuMesseFormTest : public Neumessenstand {};

TEST_F(NeuMesseFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->windowTitle(), "Neue Messe");
    const std::map<Text, Text> erwartet = {{"tagelang", "Wochentag:"},
                                           {"datendaten", "Datum:"},
                                           {"Uhrwerk", "Uhrzeit:"},
                                           {"Messewesen", "Art:"},
                                           {"Dienerzahlen", "Meßdienerzahl:"},
                                           {"Dienster1", "Gabenbereitung:"},
                                           {"Dienster2", "Leuchter:"},
                                           {"Dienster3", "Flambeaus:"},
                                           {"Dienster4", "Weihrauch:"},
                                           {"Dienster5", "Kreuzträger:"},
                                           {"Dienster6", "Allgemein:"},
                                           {"Lecki", "Lektor:"},
                                           {"Kommi", "Kommunionhelfer:"},
                                           {"Kanto", "Kantor/in:"},
                                           {"Kolt", "Kollektant:"}};
    EXPECT_EQ(Beschriftungen(), erwartet);
    EXPECT_EQ(Zeigt("Taga"), "Wochentag bestimmen");
    EXPECT_EQ(Zeigt("OKButton"), "OK");
    EXPECT_EQ(Zeigt("CancelButton"), "Abbrechen");
}

TEST_F(NeuMesseFormTest, TabFolgtDemAuge)
{
    Öffnen();
    FokusAuf("tagelang");
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{"tagelang", "Taga", "datendaten", "Uhrwerk", "Messewesen",
                                 "Dienerzahlen", "Dienster1", "Dienster2", "Dienster3", "Dienster4",
                                 "Dienster5", "Dienster6", "Lecki", "Kommi", "Kanto", "Kolt",
                                 "OKButton", "CancelButton"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(NeuMesseFormTest, BeginntMitDemTerminDerListeUndSonstMitNull)
{
    Öffnen();
    EXPECT_FALSE(liste->isVisible());
    EXPECT_EQ(Zeigt("tagelang"), "Dienstag");
    EXPECT_EQ(Zeigt("datendaten"), "24.11.2026");
    EXPECT_EQ(Zeigt("Uhrwerk"), "08:02:00");
    EXPECT_EQ(Zeigt("Messewesen"), "Messe");
    for (const char *box : Zahlen)
        EXPECT_EQ(Zeigt(box), "0") << box;
}

TEST_F(NeuMesseFormTest, ÖffnenAlleinRechnetNicht)
{
    MessenFüllen(5);
    Messe.Datum[0] = DatumAus({2020, 1, 6});
    Messe.Wochentag[0] = "Montag";
    ListeZeigen(0);
    ÜberDieListe();
    EXPECT_EQ(Zeigt("datendaten"), "06.01.2020");
    EXPECT_EQ(Zeigt("tagelang"), "Montag");
}

TEST_F(NeuMesseFormTest, NimmtWasAufDemSchirmDerListeStehtUndDieListeZeigtWiederIhrenDatensatz)
{
    MessenFüllen(5);
    vorher = MessenJetzt();
    ListeZeigen(2);
    Einsetzen("datendaten", "24.12.2026");
    Einsetzen("Uhrwerk", "23:00");
    Einsetzen("Messewesen", "Christmette");
    ÜberDieListe();
    EXPECT_EQ(Zeigt("datendaten"), "24.12.2026");
    EXPECT_EQ(Zeigt("tagelang"), "Donnerstag");
    EXPECT_EQ(Zeigt("Uhrwerk"), "23:00:00");
    EXPECT_EQ(InDerListe("Messewesen"), "Art2");
    EXPECT_EQ(InDerListe("datendaten"), "24.11.2026");
    EXPECT_EQ(MessenJetzt(), vorher);
}

TEST_F(NeuMesseFormTest, JederDatumsschrittRechnetNeu)
{
    Öffnen();
    for (const auto &[spin, richtung, datum, tag] :
         {std::tuple("Änderung1", "auf", "16.12.2026", "Mittwoch  "),
          {"Änderung1", "ab", "14.12.2026", "Montag    "},
          {"Änderung2", "auf", "15.01.2027", "Freitag   "},
          {"Änderung2", "ab", "21.11.2026", "Samstag   "}, // past: today
          {"Änderung4", "auf", "15.12.2027", "Mittwoch  "},
          {"Änderung4", "ab", "21.11.2026", "Samstag   "}}) {
        Termin("15.12.2026", "10:00", "irgendwann");
        Drehen(spin, richtung);
        EXPECT_EQ(Zeigt("datendaten"), datum) << spin << richtung;
        EXPECT_EQ(Zeigt("tagelang"), tag) << spin << richtung;
    }
}

TEST_F(NeuMesseFormTest, DieUhrzeitGehtInSchrittenUndWirdLangGeschrieben)
{
    Öffnen();
    for (const auto &[spin, richtung, uhrzeit] : {std::tuple("Änderung5", "auf", "00:02:00"),
                                                  {"Änderung5", "ab", "22:02:00"},
                                                  {"Änderung6", "auf", "23:07:00"},
                                                  {"Änderung6", "ab", "22:57:00"}}) {
        Termin("15.12.2026", "23:2", "irgendwann");
        EXPECT_EQ(Zeigt("Uhrwerk"), "23:02:00");
        Drehen(spin, richtung);
        EXPECT_EQ(Zeigt("Uhrwerk"), uhrzeit) << spin << richtung;
        EXPECT_EQ(Zeigt("tagelang"), "irgendwann");
    }
}

TEST_F(NeuMesseFormTest, EingabetasteRechnetNeuGetipptesAlleinNicht)
{
    Öffnen();
    for (const char *feld : {"datendaten", "Uhrwerk"}) {
        Termin("1.2.27", "10:00", "irgendwann");
        EXPECT_EQ(Zeigt("datendaten"), "1.2.27");
        EXPECT_EQ(Zeigt("tagelang"), "irgendwann");
        Taste(feld, Qt::Key_Return);
        EXPECT_EQ(Zeigt("datendaten"), "01.02.2027") << feld;
        EXPECT_EQ(Zeigt("tagelang"), "Montag    ");
        Einsetzen("datendaten", "20.11.2026");
        Taste(feld, Qt::Key_Enter);
        EXPECT_EQ(Zeigt("datendaten"), "21.11.2026") << feld;
        EXPECT_EQ(Zeigt("tagelang"), "Samstag   ");
        Taste(feld, Qt::Key_Return); // today is not in the past
        EXPECT_EQ(Zeigt("datendaten"), "21.11.2026");
    }
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(MessenJetzt(), vorher);
}

TEST_F(NeuMesseFormTest, TagaBestimmtNurDenWochentag)
{
    Öffnen();
    Termin("6.1.2020", "10:00", "irgendwann");
    Klick("Taga");
    EXPECT_EQ(Zeigt("tagelang"), "Montag    ");
    EXPECT_EQ(Zeigt("datendaten"), "6.1.2020");
}

TEST_F(NeuMesseFormTest, ZahlenBleibenInIhrenGrenzen)
{
    Öffnen();
    for (const auto &[feld, höchstens] : {std::pair("Dienerzahlen", 20),
                                          {"Dienster1", 2},
                                          {"Dienster2", 2},
                                          {"Dienster3", 8},
                                          {"Dienster4", 2},
                                          {"Dienster5", 2},
                                          {"Dienster6", 20},
                                          {"Lecki", 2},
                                          {"Kommi", 2},
                                          {"Kanto", 2},
                                          {"Kolt", 2}}) {
        for (const int zahl : {1, -1, höchstens, höchstens + 1, 40000}) {
            Einsetzen(feld, ZahlText(zahl));
            EXPECT_EQ(Zeigt(feld), ZahlText(std::clamp(zahl, 0, höchstens))) << feld;
            if (Text(feld).starts_with("Dienster")) {
                EXPECT_EQ(Zeigt("Dienerzahlen"), Zeigt(feld)) << feld;
            }
        }
        Einsetzen(feld, "0");
    }
    for (const auto &[feld, zahl] : {std::pair("Dienster6", "20"),
                                     {"Dienster1", "2"},
                                     {"Dienster2", "2"},
                                     {"Dienster3", "8"},
                                     {"Dienster4", "2"},
                                     {"Dienster5", "2"}})
        Einsetzen(feld, zahl);
    EXPECT_EQ(Zeigt("Dienster6"), "4");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "20");
}

TEST_F(NeuMesseFormTest, JedesZahlenfeldHatSeinenSpin)
{
    Öffnen();
    for (std::size_t k = 0; k < Zahlen.size(); ++k) {
        for (const char *feld : Zahlen)
            Einsetzen(feld, "0");
        const Text spin = "Ä" + ZahlText(static_cast<int>(k + 1));
        Drehen(spin.c_str(), "auf");
        for (std::size_t b = 0; b < Zahlen.size(); ++b) {
            const bool folgt = b == 0 && k >= 1 && k <= 6; // the sum
            EXPECT_EQ(Zeigt(Zahlen[b]), b == k || folgt ? "1" : "0") << spin << " " << Zahlen[b];
        }
        Drehen(spin.c_str(), "ab");
        Drehen(spin.c_str(), "ab");
        EXPECT_EQ(Zeigt(Zahlen[k]), "0");
    }
}

TEST_F(NeuMesseFormTest, PasstAufDenKleinstenBildschirm)
{
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
