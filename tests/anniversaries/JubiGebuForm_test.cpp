// Birthdays and jubilees: what is chosen, listed, printed and put on labels.
#include "anniversaries/JubiGebustand.h"

#include "Heimkehr.h"

#include <QApplication>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

constexpr std::array Monate = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                               "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
constexpr std::array Jahre = {"NullE",  "Einse",     "Zweie",     "Dreie",    "Viere",  "fünfE",
                              "Sechse", "Siebene",   "Achte",     "Neune",    "Zehene", "Elfe",
                              "Zwölfe", "Dreizehne", "Vierzehne", "Fünfzehne"};

class JubiGebuFormTest : public JubiGebustand {};

TEST_F(JubiGebuFormTest, JedesControlHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "JubiGebu");
    EXPECT_EQ(form->windowTitle(), "Jubiläen und Geburtstage");
    const std::pair<const char *, const char *> aufschriften[] = {
        {"Alle", "Alle"},
        {"Messdien", "Meßdiener"},
        {"Meßhelfer", "Meßhelfer"},
        {"AnsichtGeb", "Ansicht Geburtstage"},
        {"DruckGebu", "Druck der Geburtstage"},
        {"AnsichtJubiMeß", "Ansicht Jubiläum Meßdiener"},
        {"JubiläumMeßdiener", "Druck Jubiläum Meßdiener"},
        {"Geburtstage", "Geburtstage"},
        {"Jubiläum", "Jubiläum"},
        {"Etiketten", "Adressetiketten drucken"},
        {"Ende", "Ende"}};
    for (const auto &[name, text] : aufschriften)
        EXPECT_EQ(Zeigt(name), text) << name;
    for (const char *monat : Monate)
        EXPECT_EQ(Zeigt(monat), monat);
    for (std::size_t n = 0; n < Jahre.size(); ++n)
        EXPECT_EQ(Zeigt(Jahre[n]), n == 15 ? "15..." : std::to_string(n));
    for (const auto &[name, titel] : {std::pair{"Gruppende", "Gruppe"},
                                      {"Geburtstagsmonat", "Geburtsmonat"},
                                      {"Jahreszahl", "Anzahl Jahre"},
                                      {"EtiGröß", "Etikettengröße"},
                                      {"Etik", "Erstes zu bedruckende Etikett in"}})
        EXPECT_EQ(Finden<QGroupBox>(name)->title().toStdString(), titel);
    for (const auto &[rahmen, option] : {std::pair{"Gruppende", "Meßhelfer"},
                                         {"Geburtstagsmonat", "Dezember"},
                                         {"Jahreszahl", "Fünfzehne"}})
        EXPECT_EQ(Finden(option)->parentWidget(), Finden(rahmen));
}

TEST_F(JubiGebuFormTest, ÖffnetMitAllenImJanuarUndNullJahren)
{
    Öffnen();
    for (const char *option : {"Alle", "Januar", "NullE", "Geburtstage", "O1"})
        EXPECT_TRUE(Angekreuzt(option)) << option;
    EXPECT_EQ(Namen(Geburtstagsliste), "Lea Anna");
    EXPECT_EQ(Namen(Jubiläumsliste), "Ben Anna");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(JubiGebuFormTest, JedesÖffnenBeginntVonVorn)
{
    Öffnen();
    for (const char *option : {"Meßhelfer", "März", "Fünfzehne", "Jubiläum"})
        Ankreuzen(option);
    delete form;
    Öffnen();
    for (const char *option : {"Alle", "Januar", "NullE", "Geburtstage"})
        EXPECT_TRUE(Angekreuzt(option)) << option;
    EXPECT_EQ(Namen(Geburtstagsliste), "Lea Anna");
    EXPECT_EQ(Namen(Jubiläumsliste), "Ben Anna");
}

TEST_F(JubiGebuFormTest, JederMonatFülltDieListe)
{
    Meßdiener.Anzahl = Helfer.Anzahl = 0;
    for (int monat = 1; monat <= 12; ++monat)
        Diener(std::to_string(monat), {2010, monat, 15}, {2020, 1, 1});
    Öffnen();
    for (int monat = 12; monat >= 1; --monat) {
        Ankreuzen(Monate[static_cast<std::size_t>(monat - 1)]);
        EXPECT_EQ(Namen(Geburtstagsliste), std::to_string(monat));
    }
}

TEST_F(JubiGebuFormTest, JedeGruppeFülltDieListe)
{
    Öffnen();
    Ankreuzen("Messdien");
    EXPECT_EQ(Namen(Geburtstagsliste), "Anna");
    Ankreuzen("Meßhelfer");
    EXPECT_EQ(Namen(Geburtstagsliste), "Lea");
    Ankreuzen("März");
    EXPECT_EQ(Namen(Geburtstagsliste), "Max"); // the group stays
    Ankreuzen("Alle");
    EXPECT_EQ(Namen(Geburtstagsliste), "Max Ben");
}

TEST_F(JubiGebuFormTest, JedeJahreszahlFülltDieListe)
{
    Meßdiener.Anzahl = 0;
    for (int n = 0; n <= 16; ++n)
        Diener(std::to_string(n), {2010, 1, 1}, {2026 - n, 11, 1});
    Öffnen();
    for (int n = 14; n >= 0; --n) {
        Ankreuzen(Jahre[static_cast<std::size_t>(n)]);
        EXPECT_EQ(Namen(Jubiläumsliste), std::to_string(n));
    }
    Ankreuzen("Fünfzehne");
    EXPECT_EQ(Namen(Jubiläumsliste), "16 15");
}

TEST_F(JubiGebuFormTest, EineWahlFülltNurIhreEigeneListe)
{
    Öffnen();
    Jubiläumsliste.Vorname[0] = "unberührt";
    Ankreuzen("März");
    Ankreuzen("Messdien");
    EXPECT_EQ(Jubiläumsliste.Vorname[0], "unberührt");
    Geburtstagsliste.Vorname[0] = "unberührt";
    Ankreuzen("Viere");
    EXPECT_EQ(Geburtstagsliste.Vorname[0], "unberührt");
    Ankreuzen("Viere"); // already chosen: no change
    Jubiläumsliste.Vorname[0] = "unberührt";
    Ankreuzen("Viere");
    EXPECT_EQ(Jubiläumsliste.Vorname[0], "unberührt");
}

TEST_F(JubiGebuFormTest, DiePfeiltastenWählenInIhremRahmen)
{
    Öffnen();
    const std::array wege = {std::array{"Januar", "Februar"}, std::array{"Alle", "Messdien"},
                             std::array{"NullE", "Einse"}, std::array{"Geburtstage", "Jubiläum"}};
    for (const auto &[von, nach] : wege) {
        FokusAuf(von);
        QTest::keyClick(Finden(von), Qt::Key_Right);
        EXPECT_TRUE(Angekreuzt(nach)) << nach;
        EXPECT_FALSE(Angekreuzt(von)) << von;
    }
    EXPECT_EQ(Namen(Geburtstagsliste), "");
    EXPECT_EQ(Namen(Jubiläumsliste), "");
    EXPECT_TRUE(Angekreuzt("O1"));
}

TEST_F(JubiGebuFormTest, EinUnmöglichesDatumWirdGemeldet)
{
    Öffnen();
    Meßdiener.Eintrittsdatum[1] = -1e9;
    Ankreuzen("Dreie");
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '6': Überlauf"});
    Meßdiener.Geburtstag[1] = -1e9;
    Ankreuzen("Mai");
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(JubiGebuFormTest, DruckGebuDrucktWasGewähltIst)
{
    Öffnen();
    EXPECT_EQ(Gedruckt("DruckGebu"),
              (Liste{"Geburtstage der Meßdiener und Meßhelfer im Januar",
                     "Lea Lang, Geburtstag: 09.01.1980 , Alter:  46  Jahre, Telefon: ",
                     "Anna Berg, Geburtstag: 20.01.2010 , Alter:  16  Jahre, Telefon: 0254/0"}));
    Ankreuzen("März");
    Ankreuzen("Messdien");
    EXPECT_EQ(Gedruckt("DruckGebu"),
              (Liste{"Geburtstage der Meßdiener im März",
                     "Ben Berg, Geburtstag: 31.03.2012 , Alter:  14  Jahre, Telefon: 0254/1"}));
    Ankreuzen("Meßhelfer");
    Ankreuzen("Dezember");
    EXPECT_EQ(Gedruckt("DruckGebu"),
              (Liste{"Geburtstage der Meßhelfer im Dezember",
                     " , Geburtstag: 21.11.2026 , Alter:  0  Jahre, Telefon: "}));
    EXPECT_EQ(Papier.WieOft("Dialog"), 1);
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

TEST_F(JubiGebuFormTest, JubiläumMeßdienerDrucktWasGewähltIst)
{
    Öffnen();
    EXPECT_EQ(Gedruckt("JubiläumMeßdiener"),
              (Liste{"Jubiläum von  0  Jahren der Meßdiener",
                     "Ben Berg, Eintrittsdatum: 01.01.2026 , Telefon: 0254/1",
                     "Anna Berg, Eintrittsdatum: 01.05.2026 , Telefon: 0254/0"}));
    Ankreuzen("Fünfzehne");
    EXPECT_EQ(Gedruckt("JubiläumMeßdiener"),
              (Liste{"Jubiläum von  15  und mehr  Jahren der Meßdiener",
                     "Cara Berg, Eintrittsdatum: 17.05.2009 , Telefon: 0254/2"}));
}

TEST_F(JubiGebuFormTest, EtikettenDerGewähltenListe)
{
    Öffnen();
    EXPECT_EQ(Gedruckt("Etiketten"),
              (Liste{"Lea Lang", "0 ", "Anna Berg", "Weg 0", "43217 Oberquell"}));
    EXPECT_EQ(Zeigt("Reih") + "/" + Zeigt("Spal"), "1/3");
    Ankreuzen("Jubiläum");
    EXPECT_EQ(Gedruckt("Etiketten"), (Liste{"Ben Berg", "Weg 1", "43217 Oberquell", "Anna Berg",
                                            "Weg 0", "43217 Oberquell"}));
    EXPECT_EQ(Zeigt("Reih") + "/" + Zeigt("Spal"), "2/2"); // from 1/3 on
    Ankreuzen("Fünfzehne");
    EXPECT_EQ(Gedruckt("Etiketten"), (Liste{"Cara Berg", "Weg 2", "43217 Oberquell"}));
    Ankreuzen("Geburtstage");
    Ankreuzen("Mai");
    EXPECT_EQ(Gedruckt("Etiketten"), Liste{" "}); // nobody: one blank label
}

TEST_F(JubiGebuFormTest, DasFormatGiltAuchHier)
{
    Etikett.Anzahl = 4;
    Etikett.Reihen[1] = Etikett.Spalten[1] = 2;
    Öffnen();
    EXPECT_TRUE(Angekreuzt("O5"));
    EXPECT_EQ(Zeigt("O5"), "Format 4");
    Tippen("Reih", "9");
    Tippen("Spal", "3");
    Ankreuzen("O2");
    EXPECT_EQ(Etikett.Anzahl, 1);
    EXPECT_EQ(Zeigt("Reih") + "/" + Zeigt("Spal"), "2/2");
    EXPECT_TRUE(Angekreuzt("Geburtstage")); // a group of its own
}

TEST_F(JubiGebuFormTest, SchlechteEingabenInReiheUndSpalte)
{
    Öffnen();
    const std::pair<const char *, const char *> fälle[] = {{"x", "x"},  {"", "1"},  {"40000", "4"},
                                                           {"-1", "1"}, {"0", "1"}, {"99", "4"}};
    for (const auto &[eingabe, zeigt] : fälle) {
        Tippen("Reih", eingabe);
        FokusAuf("Ende");
        EXPECT_EQ(Zeigt("Reih"), eingabe) << "until a format is chosen";
        Ankreuzen("O1");
        EXPECT_EQ(Zeigt("Reih"), zeigt) << eingabe;
    }
    Tippen("Reih", "x");
    EXPECT_EQ(Gedruckt("Etiketten"), Liste{});
    Einsetzen("Reih", "1\n😀");
    EXPECT_EQ(Zeigt("Reih"), "1 ?");
    EXPECT_EQ(Gedruckt("Etiketten"), Liste{});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(JubiGebuFormTest, AbgebrochenDrucktKeinKnopfEtwas)
{
    Papier.Antwort = std::nullopt;
    Öffnen();
    Tippen("Reih", "99");
    Tippen("Spal", "");
    for (const char *knopf : {"DruckGebu", "JubiläumMeßdiener", "Etiketten"}) {
        Gedruckt(knopf);
        EXPECT_EQ(Papier.Zeilen, Liste{"Dialog"}) << knopf;
    }
    EXPECT_EQ(Zeigt("Reih") + "/" + Zeigt("Spal"), "99/");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(JubiGebuFormTest, EndeUndSchließenGebenDasHauptfensterZurück)
{
    GibtDasHauptfensterZurück([this] {
        Öffnen();
        return form.data();
    });
}

TEST_F(JubiGebuFormTest, TabFolgtDemAugeUndKeinControlIstStumm)
{
    Öffnen();
    FokusAuf("Alle");
    EXPECT_EQ(Tabfolge(form),
              (Liste{"Alle", "Januar", "AnsichtGeb", "DruckGebu", "Geburtstage", "O1", "Reih",
                     "Spal", "Etiketten", "NullE", "AnsichtJubiMeß", "JubiläumMeßdiener", "Ende"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(JubiGebuFormTest, PasstAufDenKleinstenBildschirm)
{
    const char *namen[] = {"70 x 37 mm (3 x 8)",      "63,5 x 38,1 mm (3 x 7)",
                           "63,5 x 33,9 mm (3 x 8)",  "63,5 x 46,6 mm (3 x 6)",
                           "99,1 x 38,1 mm (2 x 7)",  "99,1 x 33,9 mm (2 x 8)",
                           "99,1 x 67,7 mm (2 x 4)",  "96 x 50,8 mm (2 x 5)",
                           "48,5 x 25,4 mm (4 x 10)", "38,1 x 21,2 mm (5 x 13)"};
    for (int k = 0; k < 10; ++k)
        Etikett.Name[k] = namen[k];
    Öffnen();
    EXPECT_LE(form->sizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->sizeHint().height(), KleinsterBildschirm.height());
    for (int k = 0; k < 10; ++k)
        Etikett.Name[k] = Text(200, 'W'); // scrolls
    delete form;
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
}

} // namespace
} // namespace altardienst
