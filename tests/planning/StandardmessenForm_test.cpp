// The editor of the week pattern: its controls, what moving and leaving write, deleting.
#include "application/Anwendung.h"
#include "planning/Standardmessenstand.h"
#include "shell/HauptForm.h"

#include <QListView>

namespace altardienst {
namespace {

class StandardmessenFormTest : public Standardmessenstand {};

TEST_F(StandardmessenFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Standardmessen");
    EXPECT_EQ(form->windowTitle(), "Standardmessen");
    const std::map<Text, Text> erwartet = {{"Tage", "Wochentag"},
                                           {"Zeitig", "Uhrzeit"},
                                           {"Messearten", "Art"},
                                           {"ZahlMeßdiener", "Anzahl Meßdiener"},
                                           {"DienstA", "Gabenbereitung"},
                                           {"DienstB", "Leuchter"},
                                           {"DienstC", "Flambeaus"},
                                           {"DienstD", "Weihrauch"},
                                           {"Dienste", "Kreuzträger"},
                                           {"DienstF", "Allgemein"},
                                           {"Leck", "Lektor"},
                                           {"Komu", "Kommunionhelfer"},
                                           {"Kanto", "Kantor/in"},
                                           {"Kolle", "Kollektant"}};
    EXPECT_EQ(Beschriftungen(), erwartet);
    EXPECT_EQ(Zeigt("Löschig"), "Löschen");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    for (const char *name : {"mh", "ph", "mMin", "pMini", "Plus", "Minus"})
        Finden<QPushButton>(name);
    for (const char *name : {"Stundenändern", "Minutenänderung", "DPM"})
        Finden<SpinButton>(name);
    QStringList tage;
    for (int i = 0; i < Tage()->count(); ++i)
        tage << Tage()->itemText(i);
    EXPECT_EQ(tage, QStringList({"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag",
                                 "Freitag", "Samstag"}));
}

TEST_F(StandardmessenFormTest, TabFolgtDemAuge)
{
    Öffnen();
    FokusAuf(Tage());
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{"Tage", "Zeitig", "Messearten", "ZahlMeßdiener", "DienstA",
                                 "DienstB", "DienstC", "DienstD", "Dienste", "DienstF", "Leck",
                                 "Komu", "Kanto", "Kolle", "Löschig", "Ende", "Datensatznummer"}));
    EXPECT_EQ(Stumme(form), std::vector<Text>{});
}

TEST_F(StandardmessenFormTest, ÖffnetAufDemDatensatzDerZuletztGezeigtWurde)
{
    for (int i = 0; i <= 10; ++i) {
        Öffnen(i);
        EXPECT_EQ(Zeigt("Datensatznummer"), ZahlText(i));
        EXPECT_EQ(Schirm(), vorher[static_cast<std::size_t>(i)]) << i;
        delete form;
    }
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

TEST_F(StandardmessenFormTest, EineNummerAußerhalbVon0Bis10WirdBeimÖffnenBegrenzt)
{
    for (const auto &[gemerkt, gezeigt] : {std::pair(11, 10), {20, 10}, {-1, 0}, {300, 10}}) {
        Öffnen(gemerkt);
        EXPECT_EQ(Zeigt("Datensatznummer"), ZahlText(gezeigt)) << gemerkt;
        EXPECT_EQ(Standardmesse.Anzahl, gezeigt);
        EXPECT_EQ(Schirm(), vorher[static_cast<std::size_t>(gezeigt)]);
        delete form;
    }
}

struct Bewegung {
    const char *Name;
    std::function<void(QWidget *)> Tun;
};

const std::array Vorwärts = {
    Bewegung{"Plus", [](QWidget *f) { Klick(Finden(f, "Plus")); }},
    Bewegung{"DPM", [](QWidget *f) { Drehen(Finden(f, "DPM"), "auf"); }},
    Bewegung{"Bild auf", [](QWidget *f) { QTest::keyClick(f->windowHandle(), Qt::Key_PageUp); }}};
const std::array Rückwärts = {
    Bewegung{"Minus", [](QWidget *f) { Klick(Finden(f, "Minus")); }},
    Bewegung{"DPM", [](QWidget *f) { Drehen(Finden(f, "DPM"), "ab"); }},
    Bewegung{"Bild ab", [](QWidget *f) { QTest::keyClick(f->windowHandle(), Qt::Key_PageDown); }}};

TEST_F(StandardmessenFormTest, BewegenSchreibtDenSchirmUndZeigtDenNachbarn)
{
    const auto prüfen = [&](const Bewegung &bewegung, int richtung) {
        for (const int i : {1, 5, 9}) {
            Öffnen(i);
            AllesÄndern();
            bewegung.Tun(form);
            Messenbild modell = vorher;
            modell[static_cast<std::size_t>(i)] = Geändert;
            EXPECT_EQ(StandardmessenJetzt(), modell) << bewegung.Name << i;
            EXPECT_EQ(Zeigt("Datensatznummer"), ZahlText(i + richtung));
            EXPECT_EQ(Standardmesse.Anzahl, i + richtung);
            EXPECT_EQ(Schirm(), vorher[static_cast<std::size_t>(i + richtung)]);
            bewegung.Tun(form); // the neighbour was only looked at
            modell = StandardmessenJetzt();
            EXPECT_EQ(modell[static_cast<std::size_t>(i + richtung)],
                      vorher[static_cast<std::size_t>(i + richtung)]);
            delete form;
            Füllen(i);
        }
    };
    for (const Bewegung &bewegung : Vorwärts)
        prüfen(bewegung, +1);
    for (const Bewegung &bewegung : Rückwärts)
        prüfen(bewegung, -1);
}

TEST_F(StandardmessenFormTest, AnDenEndenWirdNichtsGeschrieben)
{
    const auto prüfen = [&](const Bewegung &bewegung, int ende) {
        Öffnen(ende);
        AllesÄndern();
        bewegung.Tun(form);
        EXPECT_EQ(StandardmessenJetzt(), vorher) << bewegung.Name;
        EXPECT_EQ(Zeigt("Messearten"), "Art" + ZahlText(ende)); // clipped, it is shown again
        EXPECT_EQ(Zeigt("Datensatznummer"), ZahlText(ende));
        EXPECT_EQ(Standardmesse.Anzahl, ende);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
        delete form;
    };
    for (const Bewegung &bewegung : Vorwärts)
        prüfen(bewegung, 10);
    for (const Bewegung &bewegung : Rückwärts)
        prüfen(bewegung, 0);
}

TEST_F(StandardmessenFormTest, EineZeileOhneMesseHatKeinenWochentag)
{
    Standardmesse.Wochentag[4].clear();
    vorher = StandardmessenJetzt();
    Öffnen(3);
    Klick("Plus");
    EXPECT_EQ(Tage()->currentText(), "");
    Klick("Plus");
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

/// Texts that a file may hold in place of a weekday.
const std::array FremdeTage = {"Feiertag",        "Montag    ", "montag", " Sonntag",
                               "Montag, Freitag", "Größentag",  " "};

TEST_F(StandardmessenFormTest, EinWochentagDerKeinerDerSiebenIstBleibtWieErIst)
{
    for (const char *tag : FremdeTage) {
        SCOPED_TRACE(tag);
        Standardmesse.Wochentag[4] = tag;
        Standardmesse.Wochentag[5] = Text(tag) + " auch";
        vorher = StandardmessenJetzt();
        Öffnen(3);
        for (const int i : {4, 5, 6, 5, 4}) {
            Klick(Zeigt("Datensatznummer") < ZahlText(i) ? "Plus" : "Minus");
            EXPECT_EQ(Schirm(), vorher[static_cast<std::size_t>(i)]);
        }
        Tippen("Datensatznummer", "5");
        EXPECT_EQ(Tage()->currentText().toStdString(), Text(tag) + " auch");
        Klick("Minus");
        Klick("Ende");
        EXPECT_FALSE(form->isVisible());
        delete form;
        Öffnen(4);
        EXPECT_EQ(Tage()->currentText().toStdString(), tag);
        form->close();
        EXPECT_EQ(StandardmessenJetzt()[4][0], tag);
        EXPECT_EQ(StandardmessenJetzt()[5][0], Text(tag) + " auch");
        delete form;
        Füllen(4);
        Füllen(5);
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(StandardmessenFormTest, EinFremderWochentagStehtNichtZurWahl)
{
    Standardmesse.Wochentag[4] = "Samstagabend";
    Öffnen(4);
    FokusAuf(Tage());
    Tage()->showPopup();
    auto *liste = static_cast<QListView *>(Tage()->view());
    int sichtbare = 0;
    for (int zeile = 0; zeile < Tage()->count(); ++zeile)
        sichtbare += !liste->isRowHidden(zeile);
    EXPECT_EQ(sichtbare, 7);
    Tage()->hidePopup();
    EXPECT_EQ(Tage()->currentText(), "Samstagabend");
    QTest::keyClick(Tage(), Qt::Key_Up);
    EXPECT_EQ(Tage()->currentText(), "Samstag");
    for (const Qt::Key taste : {Qt::Key_Down, Qt::Key_End, Qt::Key_S}) {
        QTest::keyClick(Tage(), taste);
        EXPECT_NE(Tage()->currentText(), "Samstagabend") << taste;
    }
    Tage()->setCurrentText("Freitag");
    Klick("Plus");
    EXPECT_EQ(Standardmesse.Wochentag[4], "Freitag");
    EXPECT_EQ(Tage()->count(), 7);
    Klick("Minus");
    EXPECT_EQ(Tage()->currentText(), "Freitag");
    EXPECT_EQ(Tage()->findText("Samstagabend"), -1);
}

TEST_F(StandardmessenFormTest, EinSehrLangerWochentagMachtDasFensterNichtBreiter)
{
    Öffnen(4);
    const int breite = form->width();
    delete form;
    Standardmesse.Wochentag[4] = Text(100000, 'w');
    Öffnen(4);
    EXPECT_EQ(form->width(), breite);
    form->close();
    EXPECT_EQ(Standardmesse.Wochentag[4], Text(100000, 'w'));
}

TEST_F(StandardmessenFormTest, NurGezeigteDatensätzeBehaltenIhreDienerzahl)
{
    Öffnen(0);
    for (int i = 0; i < 14; ++i)
        Klick("Plus");
    for (int i = 0; i < 14; ++i)
        Klick("Minus");
    form->close();
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

TEST_F(StandardmessenFormTest, EineGetippteNummerSpringtOhneZuSpeichern)
{
    Öffnen(3);
    AllesÄndern();
    Tippen("Datensatznummer", "7");
    EXPECT_EQ(StandardmessenJetzt(), vorher);
    EXPECT_EQ(Standardmesse.Anzahl, 7);
    Satz gezeigt = vorher[7];
    int summe = 0;
    for (std::size_t k = 4; k <= 9; ++k)
        summe += std::stoi(vorher[7][k]);
    gezeigt[3] = ZahlText(summe); // the count follows the services
    EXPECT_EQ(Schirm(), gezeigt);
}

TEST_F(StandardmessenFormTest, EineGetippteNummerWirdBegrenzt)
{
    Öffnen(3);
    for (const auto &[text, nummer] : {std::pair("15", 10),
                                       {"11", 10},
                                       {"10", 10},
                                       {"-1", 0},
                                       {"0", 0},
                                       {"40000", 10},
                                       {"-40000", 0},
                                       {"999999999999", 10}}) {
        Einsetzen("Datensatznummer", "5");
        Einsetzen("Datensatznummer", text);
        EXPECT_EQ(Zeigt("Datensatznummer"), ZahlText(nummer)) << text;
        EXPECT_EQ(Standardmesse.Anzahl, nummer) << text;
        EXPECT_EQ(Zeigt("Messearten"), "Art" + ZahlText(nummer));
    }
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

TEST_F(StandardmessenFormTest, EineNummerDieKeineIstBleibtStehen)
{
    Öffnen(3);
    for (const char *text : {"abc", "", "-", "4 5", "1a"}) {
        Einsetzen("Datensatznummer", text);
        EXPECT_EQ(Zeigt("Datensatznummer"), text);
        EXPECT_EQ(Standardmesse.Anzahl, 3);
        EXPECT_EQ(Zeigt("Messearten"), "Art3");
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
    Klick("Plus"); // writes the record, shows the next one and stops at the number
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

TEST_F(StandardmessenFormTest, LöschenFragtUndÄndertBeiNeinNichts)
{
    Öffnen(4);
    Klick("Löschig");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen einer Standardmesse");
    EXPECT_EQ(Schirm(), vorher[4]);
    EXPECT_EQ(StandardmessenJetzt(), vorher);
}

TEST_F(StandardmessenFormTest, LöschenLeertDenSchirmUndErstVerlassenDieTabelle)
{
    Öffnen(4);
    Antworten = {true};
    Klick("Löschig");
    const Satz leer = {"Donnerstag", "00:00:00", "",  "0", "0", "0", "0",
                       "0",          "0",        "0", "0", "0", "0", "0"};
    EXPECT_EQ(Schirm(), leer);
    EXPECT_EQ(StandardmessenJetzt(), vorher);
    Klick("Plus");
    Messenbild modell = vorher;
    modell[4] = leer;
    EXPECT_EQ(StandardmessenJetzt(), modell);
    EXPECT_EQ(Standardmesse.Anzahl, 5);
}

TEST_F(StandardmessenFormTest, LöschenRäumtAuchWegWasKeineZahlIst)
{
    Öffnen(4);
    for (const char *box : {"DienstA", "DienstC", "DienstF", "ZahlMeßdiener", "Leck", "Zeitig"})
        Einsetzen(box, "abc");
    Antworten = {true};
    Klick("Löschig");
    EXPECT_EQ(Schirm(), (Satz{"Donnerstag", "00:00:00", "", "0", "0", "0", "0", "0", "0", "0", "0",
                              "0", "0", "0"}));
    EXPECT_TRUE(form->close());
    EXPECT_EQ(Standardmesse.Messeart[4], "");
}

TEST_F(StandardmessenFormTest, EndeUndSchließenSchreibenDenSchirm)
{
    for (const bool mitEnde : {true, false}) {
        Öffnen(6);
        AllesÄndern();
        if (mitEnde)
            Klick("Ende");
        else
            form->close();
        EXPECT_FALSE(form && form->isVisible());
        Messenbild modell = vorher;
        modell[6] = Geändert;
        EXPECT_EQ(StandardmessenJetzt(), modell);
        EXPECT_EQ(Standardmesse.Anzahl, 6);
        delete form;
        Füllen(6);
    }
}

TEST_F(StandardmessenFormTest, EndeSchreibtDenGemerktenDatensatzWasAuchAlsNummerDasteht)
{
    Öffnen(3);
    AllesÄndern();
    Einsetzen("Datensatznummer", "abc");
    EXPECT_TRUE(form->close());
    Messenbild modell = vorher;
    modell[3] = Geändert;
    EXPECT_EQ(StandardmessenJetzt(), modell);
}

TEST_F(StandardmessenFormTest, DasHauptfensterWartetVerkleinertUndKommtZurück)
{
    auto *haupt = new HauptForm;
    HauptfensterSetzen(haupt);
    haupt->showMaximized();
    Zeigen(haupt);
    MenüWählen(haupt, "mnuStandardmessen");
    form = Fenster("Standardmessen");
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    Klick("Ende");
    EXPECT_TRUE(Warten([&] { return !form; })); // unloaded
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
}

TEST_F(StandardmessenFormTest, PasstAufDenKleinstenBildschirm)
{
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(StandardmessenFormTest, DieNummerStehtObenLinks)
{
    Öffnen();
    const auto ort = [this](const char *name) { return Finden(name)->mapTo(form, QPoint(0, 0)); };
    EXPECT_LT(ort("Datensatznummer").y(), ort("Tage").y());
    EXPECT_LT(ort("Datensatznummer").x(), ort("Tage").x());
}

} // namespace
} // namespace altardienst
