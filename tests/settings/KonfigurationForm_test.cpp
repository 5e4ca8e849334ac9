// The settings: captions, filling in, texts, orientation, flag boxes, fonts, and leaving.
#include "settings/Konfigurationsstand.h"

#include "Heimkehr.h"

#include <QAbstractItemView>

#include <map>
#include <set>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

struct Flagbox {
    const char *Box;
    Text *Flags;
    int Position;
    const char *Wort;
};

const Flagbox Flagboxen[] = {
    {"Check1", &Konfig.Flags8, 1, "1.-7."},
    {"Check2", &Konfig.Flags8, 2, "8.-14."},
    {"Check3", &Konfig.Flags8, 3, "15.-21."},
    {"Check4", &Konfig.Flags8, 4, "22.-28."},
    {"Check5", &Konfig.Flags8, 5, "29.-31."},
    {"Dress", &Konfig.Flags6, 1, "Adresse"},
    {"Teflonie", &Konfig.Flags6, 2, "Telefon"},
    {"Gebteg", &Konfig.Flags6, 3, "Geburtstag"},
    {"Numm", &Konfig.Flags6, 4, "Nummerierung"},
    {"Diner", &Konfig.Flags11, 1, "Meßdienerdienste"},
    {"Help", &Konfig.Flags11, 2, "Helferdienste"},
};

class KonfigurationFormTest : public Konfigurationsstand {
  protected:
    static void AlleFlags(const char *acht, const char *sechs, const char *elf)
    {
        Konfig.Flags8 = acht;
        Konfig.Flags6 = sechs;
        Konfig.Flags11 = elf;
    }
    static Text Flags() { return Konfig.Flags8 + "|" + Konfig.Flags6 + "|" + Konfig.Flags11; }

    QComboBox *Schriften() const { return Finden<QComboBox>("Schriftartig"); }
    Text Schriftliste() const
    {
        Text liste;
        for (int i = 0; i < Schriften()->count(); ++i)
            liste += Schriften()->itemText(i).toStdString() + "|";
        return liste;
    }
};

TEST_F(KonfigurationFormTest, JedesControlHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Konfiguration");
    EXPECT_EQ(form->windowTitle(), "Konfiguration");
    std::map<Text, Text> felder = {{"Gemeinde:", "Bezeichnung"},
                                   {"Straße:", "Straß"},
                                   {"PLZ und Ort:", "Örtchus"},
                                   {"Startberechnungsdatum für den Meßdienerplan:", "Datumsen"},
                                   {"Anzahl Tage: ", "tagilein"},
                                   {"Größendifferenz:", "DiffG"},
                                   {"Grenze Auslöse:", "GrenzAuslos"},
                                   {"Schriftart:", "Schriftartig"},
                                   {"Schriftgröße :", "Schriftg"},
                                   {"Überschriftgröße:", "Über"},
                                   {"Rand links ca.:", "Linker"},
                                   {"Rand unten ca.:", "Unt"},
                                   {"Rand oben ca.:", "OB"}};
    for (const Flagbox &flag : Flagboxen) {
        felder[flag.Wort] = flag.Box;
        EXPECT_EQ(Zeigt(flag.Box), "") << flag.Box; // its label is next to it
    }
    std::map<Text, Text> gesehen;
    std::multiset<Text> ohneFeld;
    for (const QLabel *label : form->findChildren<QLabel *>())
        if (label->buddy())
            gesehen[Zeigt(label)] = label->buddy()->objectName().toStdString();
        else if (label->objectName().isEmpty())
            ohneFeld.insert(Zeigt(label));
    EXPECT_EQ(gesehen, felder);
    EXPECT_EQ(ohneFeld,
              (std::multiset<Text>{"bis zum:", "cm", "%", "mm", "mm", "mm", "jeden Monat"}));
    std::set<Text> rahmen;
    for (const QGroupBox *eines : form->findChildren<QGroupBox *>())
        rahmen.insert(eines->title().toStdString());
    EXPECT_EQ(rahmen, (std::set<Text>{"Taufe im Zeitraum:", "Druck von Messendaten:",
                                      "Druck von Meßdiener- und Helferdaten :",
                                      "Druck von Meßdiener- und Helferdaten in"}));
    EXPECT_EQ(Zeigt("Hochformat"), "Hochformat");
    EXPECT_EQ(Zeigt("Querformat"), "Querformat");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    EXPECT_FALSE(Finden("DiffJahr")->isVisible());
}

TEST_F(KonfigurationFormTest, ÖffnetMitDenEinstellungenUndÄndertSieNicht)
{
    Öffnen();
    const std::pair<const char *, const char *> inhalte[] = {{"Bezeichnung", "St. Ägid"},
                                                             {"Straß", "Kirchplatz 1"},
                                                             {"Örtchus", "43217 Quellersheim"},
                                                             {"Datumsen", "28.11.2026"},
                                                             {"tagilein", "28"},
                                                             {"DiffG", "20"},
                                                             {"GrenzAuslos", "60"},
                                                             {"Schriftg", "9"},
                                                             {"Über", "14"},
                                                             {"Linker", "20"},
                                                             {"Unt", "16"},
                                                             {"OB", "12"},
                                                             {"DiffJahr", "1"}};
    for (const auto &[name, text] : inhalte)
        EXPECT_EQ(Zeigt(name), text) << name;
    EXPECT_EQ(Schriften()->currentText(), "Liberation Sans");
    const std::pair<int, int> werte[] = {
        {Konfig.DiffJahr, 1},        {Konfig.DiffGröße, 10},        {Konfig.Tage, 28},
        {Konfig.Schriftgröße, 9},    {Konfig.Überschriftgröße, 14}, {Konfig.RandLinks, 20},
        {Konfig.RandUnten, 16},      {Konfig.RandOben, 12},         {Konfig.GrenzeAuslöse, 60},
        {Konfig.ManuellWeihrauch, 0}};
    for (const auto &[ist, soll] : werte)
        EXPECT_EQ(ist, soll);
    EXPECT_EQ(Konfig.Gemeinde + Konfig.Straße + Konfig.PlzOrt + Konfig.Schriftart,
              "St. ÄgidKirchplatz 143217 QuellersheimLiberation Sans");
    EXPECT_EQ(Flags(), "jjjjjjjj|jjjjjj|jjjjjjjjjjj");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationFormTest, TexteGeltenMitJedemBuchstaben)
{
    Öffnen();
    FokusAuf("Bezeichnung");
    QTest::keyClick(Finden("Bezeichnung"), Qt::Key_End);
    QTest::keyClick(Finden("Bezeichnung"), Qt::Key_Backspace);
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägi");
    Tippen("Straß", "Weg");
    EXPECT_EQ(Konfig.Straße, "Weg");
    Leeren("Straß");
    EXPECT_EQ(Konfig.Straße, "");
    Einfügen("Bezeichnung", "St. 😀\r\nMichael");
    EXPECT_EQ(Konfig.Gemeinde, "St. ? Michael");
}

TEST_F(KonfigurationFormTest, JedeFlagboxZeigtIhrePosition)
{
    for (const Flagbox &nur : Flagboxen) {
        AlleFlags("nnnnnjjj", "nnnnjj", "nnjjjjjjjjj");
        nur.Flags->replace(static_cast<std::size_t>(nur.Position - 1), 1, "j");
        Öffnen();
        for (const Flagbox &flag : Flagboxen)
            EXPECT_EQ(Angekreuzt(flag.Box), flag.Box == nur.Box) << nur.Box << " " << flag.Box;
    }
}

TEST_F(KonfigurationFormTest, EinKlickSchreibtNurSeinePosition)
{
    for (const Flagbox &flag : Flagboxen) {
        AlleFlags("jjjjjnxj", "jjjjnx", "jjnxjnxjnxj");
        Öffnen();
        const Text vorher = *flag.Flags;
        const Text andere = Flags();
        Klick(flag.Box);
        Text erwartet = vorher;
        erwartet[static_cast<std::size_t>(flag.Position - 1)] = 'n';
        EXPECT_EQ(*flag.Flags, erwartet) << flag.Box;
        EXPECT_FALSE(Angekreuzt(flag.Box));
        FokusAuf(flag.Box);
        QTest::keyClick(Finden(flag.Box), Qt::Key_Space);
        EXPECT_EQ(*flag.Flags, vorher) << flag.Box;
        EXPECT_EQ(Flags(), andere);
    }
}

TEST_F(KonfigurationFormTest, EinKlickAufDasWortZähltAlsKlickAufDieBox)
{
    Öffnen();
    for (const QLabel *label : form->findChildren<QLabel *>())
        if (Zeigt(label) == "Nummerierung")
            QTest::mouseClick(const_cast<QLabel *>(label), Qt::LeftButton);
    EXPECT_EQ(Konfig.Flags6, "jjjnjj");
}

TEST_F(KonfigurationFormTest, EineZuKurzeFlagreiheHatWederHakenNochFehler)
{
    AlleFlags("", "j", "x");
    Öffnen();
    for (const Flagbox &flag : Flagboxen)
        EXPECT_EQ(Angekreuzt(flag.Box), Text(flag.Box) == "Dress") << flag.Box;
    EXPECT_EQ(Flags(), "|j|x");
    Klick("Check3");
    EXPECT_EQ(Konfig.Flags8, "nnj");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationFormTest, DieAusrichtung)
{
    Öffnen();
    EXPECT_TRUE(Angekreuzt("Hochformat"));
    Ankreuzen("Querformat");
    EXPECT_EQ(Konfig.DiffJahr, 2);
    EXPECT_EQ(Zeigt("DiffJahr"), "2");
    EXPECT_FALSE(Angekreuzt("Hochformat"));
    Ankreuzen("Querformat"); // stays selected
    EXPECT_EQ(Konfig.DiffJahr, 2);
    Öffnen();
    EXPECT_TRUE(Angekreuzt("Querformat"));
    EXPECT_FALSE(Angekreuzt("Hochformat"));
    Ankreuzen("Hochformat");
    EXPECT_EQ(Konfig.DiffJahr, 1);
    FokusAuf("Hochformat");
    QTest::keyClick(Finden("Hochformat"), Qt::Key_Right);
    EXPECT_EQ(Konfig.DiffJahr, 2);
}

TEST_F(KonfigurationFormTest, EineAndereAusrichtungWähltKeineUndWirdBegrenzt)
{
    for (const auto &[wert, begrenzt] : {std::pair{0, 1}, {-5, 1}, {3, 2}, {30000, 2}}) {
        Konfig.DiffJahr = wert;
        Öffnen();
        EXPECT_FALSE(Angekreuzt("Hochformat")) << wert;
        EXPECT_FALSE(Angekreuzt("Querformat")) << wert;
        EXPECT_EQ(Konfig.DiffJahr, begrenzt) << wert;
    }
}

TEST_F(KonfigurationFormTest, DieSchriftenStehenInDerFolgeDesDruckers)
{
    Öffnen();
    EXPECT_EQ(Schriftliste(), "Zeta|Liberation Sans|Alpha|");
    EXPECT_EQ(Schriften()->currentText(), "Liberation Sans");
    EXPECT_EQ(Schriften()->currentIndex(), 1);
    Konfig.Schriftart = "Nirgends";
    Öffnen();
    EXPECT_EQ(Schriften()->currentText(), "Nirgends");
    EXPECT_EQ(Konfig.Schriftart, "Nirgends");
    EXPECT_EQ(Schriftliste(), "Zeta|Liberation Sans|Alpha|");
}

TEST_F(KonfigurationFormTest, MitDemFokusWirdDieListeNeuGefüllt)
{
    Öffnen();
    Papier.Schriftarten = {"Beta", "Liberation Sans"};
    EXPECT_EQ(Schriftliste(), "Zeta|Liberation Sans|Alpha|");
    FokusAuf(Schriften());
    EXPECT_EQ(Schriftliste(), "Beta|Liberation Sans|");
    EXPECT_EQ(Schriften()->currentText(), "Liberation Sans");
    Verlassen();
    Papier.Schriftarten.clear();
    FokusAuf(Schriften());
    EXPECT_EQ(Schriftliste(), "");
    EXPECT_EQ(Konfig.Schriftart, "Liberation Sans");
}

TEST_F(KonfigurationFormTest, EineSchriftWirdGewähltOderGetippt)
{
    Öffnen();
    FokusAuf(Schriften());
    QTest::keyClick(Schriften(), Qt::Key_Down);
    EXPECT_EQ(Konfig.Schriftart, "Alpha"); // the next one
    Tippen(Schriften()->lineEdit(), "Alp");
    EXPECT_EQ(Konfig.Schriftart, "Alp"); // nothing is completed
    Verlassen();
    EXPECT_EQ(Konfig.Schriftart, "Alp");
    Tippen(Schriften()->lineEdit(), "");
    EXPECT_EQ(Konfig.Schriftart, "");
    Einsetzen(Schriften(), "A\n😀");
    EXPECT_EQ(Konfig.Schriftart, "A ?");
}

TEST_F(KonfigurationFormTest, EineSchriftAusDerAufgeklapptenListe)
{
    Öffnen();
    FokusAuf(Schriften());
    Schriften()->showPopup();
    QWidget *liste = Schriften()->view();
    ASSERT_TRUE(Warten([&] { return liste->isVisible(); }));
    QTest::keyClick(liste, Qt::Key_Up);
    QTest::keyClick(liste, Qt::Key_Return);
    EXPECT_EQ(Konfig.Schriftart, "Zeta");
    EXPECT_EQ(Schriften()->currentText(), "Zeta");
}

TEST_F(KonfigurationFormTest, EndeUndSchließenGebenDasHauptfensterZurück)
{
    GibtDasHauptfensterZurück([this] {
        Öffnen();
        return form.data();
    });
}

TEST_F(KonfigurationFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    Öffnen();
    FokusAuf("Bezeichnung");
    EXPECT_EQ(Tabfolge(form),
              (Liste{"Bezeichnung", "Straß",        "Örtchus",  "Datumsen", "tagilein", "DiffG",
                     "GrenzAuslos", "Schriftartig", "Schriftg", "Über",     "Linker",   "Unt",
                     "OB",          "Hochformat",   "Check1",   "Check2",   "Check3",   "Check4",
                     "Check5",      "Dress",        "Teflonie", "Gebteg",   "Numm",     "Diner",
                     "Help",        "Ende"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(KonfigurationFormTest, PasstAufDenKleinstenBildschirm)
{
    Konfig.Gemeinde = Konfig.Straße = Konfig.PlzOrt = Text(300, 'W');
    Konfig.Schriftart = Text(300, 'W');
    Papier.Schriftarten = {Text(300, 'W')};
    Öffnen();
    EXPECT_LE(form->sizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->sizeHint().height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
