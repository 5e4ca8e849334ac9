// Every box of every window: what it says about a text that it cannot hold, its calendar, its
// tooltip.
#include "AlleFenster.h"
#include "Ruhe.h"
#include "application/Datensatzliste.h"
#include "controls/Feldmarke.h"
#include "controls/Hinweise.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace altardienst {
namespace {

using Namen = std::set<Text>;

/// The name of a box, which is that of the list it is part of, if it has none of its own.
Text Name(const QLineEdit *feld)
{
    const QObject *benannt = feld->parent()->inherits("QComboBox") ? feld->parent() : feld;
    return benannt->objectName().toStdString();
}

/// "MDiener1", "MDiener2" and so on: the rules of one are those of all.
std::vector<Text> Reihe(const Text &stamm, int bis)
{
    std::vector<Text> namen;
    for (int n = 1; n <= bis; ++n)
        namen.push_back(stamm + std::to_string(n));
    return namen;
}

struct Felder {
    Namen Daten, Zeiten, Zahlen, MitKomma, Frei;
};

const std::map<Text, Felder> &Erwartet()
{
    static const Namen person = {"Vornamen", "Nachnamen", "Straßen", "Gemeinde",
                                 "Teflon",   "Emeil",     "Geschl",  "Dieenst"};
    static const Namen helfer = {"Vorne", "Hinten", "Weg",   "Wohort",
                                 "Anruf", "Mailen", "Dient", "Dient2"};
    static const Namen dienste = {"Dienerzahlen", "Dienster1", "Dienster2", "Dienster3",
                                  "Dienster4",    "Dienster5", "Dienster6"};
    static const std::map<Text, Felder> erwartet = [] {
        std::map<Text, Felder> f;
        const auto dazu = [](Namen namen, std::initializer_list<std::vector<Text>> weitere) {
            for (const auto &mehr : weitere)
                namen.insert(mehr.begin(), mehr.end());
            return namen;
        };
        f["Meßdiener"] = {{"Gebutag", "Eintritttdatum", "Start", "Start2", "Start3", "Start4",
                           "Start5", "Schluß", "Schluß2", "Schluß3", "Schluß4", "Schluß5"},
                          {},
                          {"Datensätze", "Postleit", "Groß", "Haufigk"},
                          dazu(person, {{"VName", "NName"}}),
                          {"Partner"}};
        f["NeuMeßdiener"] = {{"Gebutag", "Eintritttdatum"}, {}, {"Postleit", "Groß"}, person, {}};
        f["Helfer"] = {{"Tagen", "Start", "Start2", "Start3", "Schluß", "Schluß2", "Schluß3"},
                       {},
                       {"Indexen", "PLZetus"},
                       {},
                       helfer};
        f["NeuerHelfer"] = {{"Tagen"}, {}, {"PLZetus"}, {}, helfer};
        f["Gruppe"] = {{}, {}, {"Indexi"}, {"GBezeichnung"}, {}};
        f["NeuGruppe"] = {{}, {}, {}, {"GBezeichnung"}, {}};
        f["Standardmessen"] = {{},
                               {"Zeitig"},
                               {"Datensatznummer", "ZahlMeßdiener", "DienstA", "DienstB", "DienstC",
                                "DienstD", "Dienste", "DienstF", "Leck", "Komu", "Kanto", "Kolle"},
                               {},
                               {"Messearten"}};
        f["Messenliste"] = {
            {"datendaten"},
            {"Uhrwerk"},
            dazu(dienste, {{"Datensatzus"}}),
            {},
            dazu({"tagelang", "Messewesen"}, {Reihe("vor", 20), Reihe("nach", 20)})};
        f["NeuMesse"] = {{"datendaten"},
                         {"Uhrwerk"},
                         dazu(dienste, {{"Lecki", "Kommi", "Kanto", "Kolt"}}),
                         {},
                         {"tagelang", "Messewesen"}};
        f["Lektorrenusw"] = {
            {},
            {},
            {"Lecki", "Kommi", "Kanto", "Kolt"},
            {},
            dazu({"Lecki1Vor", "Lecki1nach", "Lecki2Vor", "Lecki2Nach", "Komm1Vor", "Komm1Nach",
                  "Kommt2Vor", "Kommt2Nach", "Kant1Vor", "Kant1Nach", "Kant2Vor", "Kant2Nach",
                  "Ko1Vor", "Ko1Nach", "Ko2Vor", "Ko2Nach"},
                 {Reihe("LH", 8)})};
        const Namen fest =
            dazu({"Messen"}, {Reihe("MDiener", 20), Reihe("MDV", 20), Reihe("MDN", 20)});
        f["MesseDienerFest"] = {{"DatumD"}, {"Zeitd"}, {"Index"}, {}, fest};
        f["NeuMesseDienerFest"] = {{"DatumD"}, {"Zeitd"}, {}, {}, fest};
        f["Start"] = {{"Datumsen"}, {}, {"Tagilein"}, {}, {}};
        f["Konfiguration"] = {
            {"Datumsen"},
            {},
            {"tagilein", "DiffG", "GrenzAuslos", "Schriftg", "Über", "Linker", "Unt", "OB"},
            {},
            {"Bezeichnung", "Straß", "Örtchus", "Schriftartig"}};
        f["ZusatzKonfig"] = {{}, {}, {"WOBO"}, {}, {}};
        f["Skalierung"] = {
            {}, {}, {"XSKALA", "YSKALA", "MDS", "MHS", "MS", "MGS", "MJS", "MVS"}, {}, {}};
        f["Etiketten"] = {{}, {}, {"Ind", "OU", "LR", "H", "B", "ST", "R", "S"}, {}, {"N"}};
        f["Druck"] = {{"Rückgebend", "Dauernde"}, {}, {"Reih", "Spal"}, {}, {}};
        f["Ausgleich"] = {{"AbTag"}, {}, {}, {}, {}};
        f["JubiGebu"] = {{}, {}, {"Reih", "Spal"}, {}, {}};
        f["Datensicherung"] = {{}, {}, {}, {}, {"VZ"}};
        f["Dateikopie"] = f["DateienKopieren"] = {};
        return f;
    }();
    return erwartet;
}

/// The sentence of a box about a text, empty if it is not marked. Rules may take the text back.
QString SatzNach(QLineEdit *feld, const char *text)
{
    feld->setText(text);
    if (!IstMarkiert(feld))
        return {};
    const QWidget *wahl = feld->parentWidget();
    return wahl->inherits("QComboBox") ? wahl->toolTip() : feld->toolTip();
}

class FelderAllerFenster : public AlleFenster {
  protected:
    /// Sorts the boxes of a window by what they say.
    static Felder Einteilung(const QWidget *form)
    {
        Felder felder;
        for (QLineEdit *feld : form->findChildren<QLineEdit *>()) {
            if (feld->isHidden() && feld->parentWidget() == form)
                continue; // a flag string, which its check boxes stand for
            if (GehörtZurListe(feld))
                continue; // no field of the record
            const Text name = Name(feld);
            const QString zuvor = feld->text();
            const QString falsch = SatzNach(feld, "abc");
            const QString komma = SatzNach(feld, "a,b");
            feld->setText(zuvor);
            EXPECT_FALSE(IstMarkiert(feld)) << name << ": " << zuvor.toStdString();
            if (falsch == "abc ist kein Datum.")
                felder.Daten.insert(name);
            else if (falsch == "abc ist keine Uhrzeit.")
                felder.Zeiten.insert(name);
            else if (falsch == "abc ist keine Zahl.")
                felder.Zahlen.insert(name);
            else if (komma.startsWith("Ein Komma zerreißt die Datei: beim nächsten Start fehlen"))
                felder.MitKomma.insert(name);
            else
                felder.Frei.insert(name);
        }
        return felder;
    }
};

TEST_F(FelderAllerFenster, JedesFeldSagtWasEsNichtLesenKann)
{
    for (const Text &name : AlleFenster::Namen()) {
        SCOPED_TRACE(name);
        const Felder gefunden = Einteilung(Öffnen(name));
        const Felder &erwartet = Erwartet().at(name);
        EXPECT_EQ(gefunden.Daten, erwartet.Daten);
        EXPECT_EQ(gefunden.Zeiten, erwartet.Zeiten);
        EXPECT_EQ(gefunden.Zahlen, erwartet.Zahlen);
        EXPECT_EQ(gefunden.MitKomma, erwartet.MitKomma);
        EXPECT_EQ(gefunden.Frei, erwartet.Frei);
    }
}

TEST_F(FelderAllerFenster, JedesFeldFürEinDatumHatEinenKalender)
{
    for (const Text &name : AlleFenster::Namen()) {
        QWidget *form = Öffnen(name);
        for (const Text &feld : Erwartet().at(name).Daten) {
            SCOPED_TRACE(name + "." + feld);
            auto *box = Finden<QLineEdit>(form, feld);
            FokusAuf(box);
            QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
            QWidget *offen = QApplication::activePopupWidget();
            ASSERT_TRUE(offen);
            EXPECT_EQ(offen->objectName(), "Kalender");
            offen->close();
        }
    }
}

TEST_F(FelderAllerFenster, WasEineGetippteKommaDateiZerreißtStehtImHinweis)
{
    QWidget *form = Öffnen("Meßdiener");
    Tippen(Finden(form, "Straßen"), "Hauptstr. 3, links");
    EXPECT_EQ(Finden(form, "Straßen")->toolTip(),
              "Ein Komma zerreißt die Datei: beim nächsten Start fehlen alle Meßdiener ab hier.");
    Tippen(Finden(form, "Straßen"), "Hauptstr. 3 links");
    EXPECT_EQ(Finden(form, "Straßen")->toolTip(), "");
}

/// Each line of the table, opened in each of its windows.
TEST_F(FelderAllerFenster, JederHinweisGehörtZuEinemControl)
{
    std::map<Text, QWidget *> offen;
    for (const Text &name : AlleFenster::Namen())
        offen[name] = Öffnen(name);
    for (const Hinweis &hinweis : AlleHinweise()) {
        std::istringstream fenster(hinweis.Fenster);
        for (Text name; fenster >> name;) {
            SCOPED_TRACE(name + "." + hinweis.Control);
            ASSERT_TRUE(offen.count(name));
            Text control = hinweis.Control;
            if (control.ends_with('#')) // any of them: the first, or the second of the absences
                control.back() =
                    Text(hinweis.Control) == "Start#" || control == "Schluß#" ? '2' : '1';
            QWidget *gefunden = Finden(offen[name], control);
            const Text zeile = EigenerHinweis(gefunden).section('\n', 0, 0).toStdString();
            EXPECT_TRUE(zeile == hinweis.Text || zeile.starts_with(Text(hinweis.Text) + " ("))
                << zeile; // a button's key comes after it
        }
    }
}

TEST_F(FelderAllerFenster, WasSeinWortAlleinNichtSagtHatEinenHinweis)
{
    for (const auto &[fenster, control] : {std::pair{"Konfiguration", "GrenzAuslos"},
                                           {"Konfiguration", "DiffG"},
                                           {"Konfiguration", "Örtchus"},
                                           {"Konfiguration", "Datumsen"},
                                           {"Konfiguration", "tagilein"},
                                           {"Konfiguration", "Über"},
                                           {"Konfiguration", "Diner"},
                                           {"Konfiguration", "Help"},
                                           {"ZusatzKonfig", "Wer"},
                                           {"ZusatzKonfig", "Kr"},
                                           {"ZusatzKonfig", "WOBO"},
                                           {"Skalierung", "XSKALA"},
                                           {"Skalierung", "MVS"},
                                           {"Etiketten", "ST"},
                                           {"Etiketten", "OU"},
                                           {"Etiketten", "LR"},
                                           {"Druck", "Reih"},
                                           {"JubiGebu", "Spal"},
                                           {"Meßdiener", "DPM"},
                                           {"Meßdiener", "Haufigk"},
                                           {"Meßdiener", "Norm"},
                                           {"Meßdiener", "Oft"},
                                           {"Meßdiener", "Check3a"},
                                           {"Meßdiener", "Check6"},
                                           {"Meßdiener", "Datensätze"},
                                           {"Meßdiener", "Start4"},
                                           {"Helfer", "Dient"},
                                           {"Helfer", "DPM"},
                                           {"MesseDienerFest", "DatensatzWechsel"},
                                           {"MesseDienerFest", "MDiener17"},
                                           {"Messenliste", "Taga"},
                                           {"Messenliste", "Lektoren"},
                                           {"Standardmessen", "DienstF"},
                                           {"Start", "Tagilein"}})
        EXPECT_NE(HinweisFür(fenster, control), "") << fenster << "." << control;
    EXPECT_EQ(HinweisFür("Meßdiener", "Vornamen"), "");
    EXPECT_EQ(HinweisFür("Start", "DiffG"), "");
    EXPECT_EQ(HinweisFür("Meßdiener", "Start12x"), "");
}

/// Boxes and options whose label says all there is to say, by their windows. Whoever adds a control
/// gives it a hint, or lists it here.
const std::map<Text, std::set<Text>> &SprechenFürSich()
{
    static const std::map<Text, std::set<Text>> nachFenster = [] {
        const std::set<Text> person = {"Vornamen", "Nachnamen", "Straßen", "Postleit",
                                       "Gemeinde", "Teflon",    "Emeil",   "Gebutag"};
        const std::set<Text> helfer = {"Vorne",  "Hinten", "Weg",    "PLZetus",
                                       "Wohort", "Anruf",  "Mailen", "Tagen"};
        const std::set<Text> messe = {"tagelang",   "datendaten", "Uhrwerk",
                                      "Messewesen", "Dienster1",  "Dienster2",
                                      "Dienster3",  "Dienster4",  "Dienster5"};
        const auto mit = [](std::set<Text> namen, const std::set<Text> &weitere) {
            namen.insert(weitere.begin(), weitere.end());
            return namen;
        };
        const auto reihe = [](const Text &stamm, int anzahl) {
            std::set<Text> namen;
            for (int n = 1; n <= anzahl; ++n)
                namen.insert(stamm + std::to_string(n));
            return namen;
        };
        std::map<Text, std::set<Text>> f;
        f["Meßdiener"] = mit(person, reihe("Check", 5));
        f["NeuMeßdiener"] = person;
        f["Helfer"] = f["NeuerHelfer"] = helfer;
        f["Gruppe"] = f["NeuGruppe"] = {"GBezeichnung"};
        f["Standardmessen"] = {"Tage",    "Zeitig", "DienstA", "DienstB", "DienstC", "DienstD",
                               "Dienste", "Leck",   "Komu",    "Kanto",   "Kolle"};
        f["Messenliste"] = mit(mit(messe, reihe("vor", 3)), reihe("nach", 3));
        f["NeuMesse"] = mit(messe, {"Lecki", "Kommi", "Kanto", "Kolt"});
        f["Lektorrenusw"] = {"Lecki1Vor", "Lecki1nach", "Lecki2Vor", "Lecki2Nach",
                             "Komm1Vor",  "Komm1Nach",  "Kommt2Vor", "Kommt2Nach",
                             "Kant1Vor",  "Kant1Nach",  "Kant2Vor",  "Kant2Nach",
                             "Ko1Vor",    "Ko1Nach",    "Ko2Vor",    "Ko2Nach"};
        f["Konfiguration"] = {"Bezeichnung", "Straß", "Schriftartig"};
        f["Etiketten"] = {"N"};
        f["Druck"] = mit({"Alles", "Gruppend", "Messhelfer"}, reihe("O", 10));
        f["JubiGebu"] = mit(
            {"Alle",    "Messdien", "Meßhelfer", "Geburtstage", "Jubiläum", "Januar", "Februar",
             "März",    "April",    "Mai",       "Juni",        "Juli",     "August", "September",
             "Oktober", "November", "Dezember",  "NullE",       "Einse",    "Zweie",  "Dreie",
             "Viere",   "fünfE",    "Sechse",    "Siebene",     "Achte",    "Neune",  "Zehene",
             "Elfe",    "Zwölfe",   "Dreizehne", "Vierzehne",   "Fünfzehne"},
            reihe("O", 10));
        f["Ausgleich"] = {"Diener", "Helferinnen"};
        f["Datensicherung"] = {"Drive1", "VZ"};
        f["Dateikopie"] = f["DateienKopieren"] = {"Drive1"};
        return f;
    }();
    return nachFenster;
}

TEST_F(FelderAllerFenster, WasKeinenHinweisHatSprichtFürSich)
{
    for (const Text &name : AlleFenster::Namen()) {
        const QWidget *form = Öffnen(name);
        std::set<Text> ohne;
        for (const QWidget *control : form->findChildren<QWidget *>()) {
            const bool einTeil = qobject_cast<QComboBox *>(control->parentWidget());
            const bool nimmtEingaben = qobject_cast<const QLineEdit *>(control) ||
                                       qobject_cast<const QComboBox *>(control) ||
                                       qobject_cast<const QCheckBox *>(control) ||
                                       qobject_cast<const QRadioButton *>(control);
            if (nimmtEingaben && !einTeil && control->isVisibleTo(form) &&
                !GehörtZurListe(control) && EigenerHinweis(control).isEmpty())
                ohne.insert(control->objectName().toStdString());
        }
        const auto sprechende = SprechenFürSich().find(name);
        EXPECT_EQ(ohne,
                  sprechende == SprechenFürSich().end() ? std::set<Text>{} : sprechende->second)
            << name;
    }
}

TEST_F(FelderAllerFenster, DieHinweiseStehenSoImHandbuch)
{
    Text handbuch; // all pages, whatever breaks their lines
    for (const auto &eintrag : std::filesystem::directory_iterator(HANDBUCH)) {
        std::ifstream seite(eintrag.path());
        for (Text wort; seite >> wort;)
            handbuch += wort + " ";
    }
    for (const Hinweis &hinweis : AlleHinweise())
        EXPECT_NE(handbuch.find(hinweis.Text), Text::npos) << hinweis.Text;
}

/// The content of a window on a small or strongly enlarged screen.
void FülltDieBreite(QWidget *form, QSize platz)
{
    form->resize(platz);
    Ruhe(0);
    for (int runde = 0; runde < 20 && form->size() != platz; ++runde) {
        form->resize(platz); // a window manager may answer late
        Ruhe(5);
    }
    EXPECT_EQ(form->size(), platz);
    for (const QScrollArea *fläche : form->findChildren<QScrollArea *>()) {
        EXPECT_EQ(fläche->horizontalScrollBar()->maximum(), 0);
        EXPECT_LE(fläche->widget()->minimumSizeHint().width(), fläche->viewport()->width());
    }
    for (const QPushButton *knopf : form->findChildren<QPushButton *>())
        if (knopf->parentWidget() == form && knopf->isVisible()) {
            EXPECT_TRUE(form->rect().contains(knopf->geometry())) << Zeigt(knopf);
        }
}

TEST_F(FelderAllerFenster, LeuteRollenAufKleinenBildschirmenNichtSeitwärts)
{
    constexpr QSize VierK(944, 500); // 1920 x 1080 at 200 %, less frame and title bar
    for (const char *name : {"Meßdiener", "NeuMeßdiener", "Helfer", "NeuerHelfer"}) {
        SCOPED_TRACE(name);
        QWidget *form = Öffnen(name);
        FülltDieBreite(form, KleinsterBildschirm);
        FülltDieBreite(form, VierK);
        FülltDieBreite(form, {1400, 900});
    }
}

} // namespace
} // namespace altardienst
