// The window "Einlesen".
#include "exchange/EinlesenForm.h"

#include "Formstand.h"
#include "core/Tabellentext.h"
#include "history/Rückgängig.h"
#include "platform/Uhr.h"

#include <QApplication>

#include <chrono>
#include <map>
#include <set>

namespace altardienst {
namespace {

class EinlesenFormTest : public Formstand<EinlesenForm> {
  protected:
    EinlesenFormTest()
    {
        MeßdienerAnlegen("Anna", "Adler");
        Meßdiener.Telefon[0] = "0251 1";
        MeßdienerAnlegen("Kim", "Busch");
        HelferAnlegen("Maria", "Linde", "Lektor");
        form = new EinlesenForm;
        Zeigen(form);
    }

    void Lesen(const std::string &bytes)
    {
        GewählteDatei = Festplatte / "Leute.csv";
        DateiSchreiben(*GewählteDatei, bytes);
        Klick("Datei");
    }

    /// The preview, one line a row: "[x] + neu | Dorn, Mia | Telefon: 7".
    std::vector<Text> Vorschau() const
    {
        std::vector<Text> zeilen;
        for (int zeile = 0; zeile < form->Zeilen->rowCount(); ++zeile) {
            const QTableWidgetItem *nimm = form->Zeilen->item(zeile, 0);
            Text text = !(nimm->flags() & Qt::ItemIsUserCheckable) ? "[-]"
                        : nimm->checkState() == Qt::Checked        ? "[x]"
                                                                   : "[ ]";
            for (int spalte = 1; spalte < 4; ++spalte)
                text += (spalte == 1 ? " " : " | ") +
                        form->Zeilen->item(zeile, spalte)->text().toStdString();
            zeilen.push_back(text);
        }
        return zeilen;
    }

    QComboBox *Bedeutung(int spalte) const // from 1
    {
        return dynamic_cast<QComboBox *>(form->Spalten->cellWidget(spalte - 1, 2));
    }

    void Kreuz(int zeile) const
    {
        QTableWidgetItem *nimm = form->Zeilen->item(zeile, 0);
        nimm->setCheckState(nimm->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }

    const std::string Leute = "Vorname;Name;Tel.;Geb.;Hobby\n"
                              "Anna;Adler;0251 2;;Lesen\n"
                              "Kim;Busch;;;\n"
                              "Mia;Dorn;0251 7;1.2.13;\n"
                              "Lars;Eich;;gestern;\n"
                              ";Fuchs;;;\n";
    using Liste = std::vector<Text>;
};

TEST_F(EinlesenFormTest, VorDerWahlEinerDateiGibtEsNichtsZuTun)
{
    EXPECT_FALSE(form->Übernehmen->isEnabled());
    EXPECT_TRUE(Vorschau().empty());
    Klick("Datei"); // cancelled
    ASSERT_EQ(Dateiwünsche.size(), 1U);
    EXPECT_TRUE(Vorschau().empty());
}

TEST_F(EinlesenFormTest, DieVorschauZeigtWasAusJederZeileWird)
{
    Lesen(Leute);
    EXPECT_EQ(Vorschau(),
              (Liste{"[x] ~ geändert | Adler, Anna | Telefon: 0251 1 → 0251 2",
                     "[x] + neu | Dorn, Mia | Telefon: 0251 7; Geburtstag: 01.02.2013; Größe: 150",
                     "[ ] ! zweifelhaft | Eich, Lars | Geburtstag: „gestern“ ist kein Datum. "
                     "Größe: 150",
                     "[ ] ! zweifelhaft | Fuchs | Der Vorname fehlt. Größe: 150"}));
    EXPECT_EQ(Zeigt("Zahlen"), "1 neu, 1 geändert, 1 gleich, 2 zweifelhaft; angekreuzt: 2.");
    EXPECT_EQ(Zeigt("Lage"), "Leute.csv: 5 Zeilen, 4 von 5 Spalten erkannt. Jemand ist derselbe, "
                             "wenn Vor- und Nachname gleich sind.");
    EXPECT_EQ(form->Spalten->item(1, 0)->text(), "Name");
    EXPECT_EQ(form->Spalten->item(1, 1)->text(), "Adler");
    EXPECT_EQ(Bedeutung(2)->currentText(), "Nachname");
    EXPECT_EQ(Bedeutung(5)->currentText(), "(nicht einlesen)");
    Klick("Gleiche");
    EXPECT_EQ(Vorschau()[1], "[-] = gleich | Busch, Kim | ");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Telefon[0], "0251 1");
}

TEST_F(EinlesenFormTest, ÜbernehmenSchreibtDasAngekreuzteAlsEinenSchritt)
{
    SchritteBeginnen();
    Lesen(Leute);
    Kreuz(0);
    Kreuz(2);
    EXPECT_EQ(Zeigt("Zahlen"), "1 neu, 1 geändert, 1 gleich, 2 zweifelhaft; angekreuzt: 2.");
    Klick("Übernehmen");
    EXPECT_EQ(Meßdiener.Telefon[0], "0251 1");
    EXPECT_EQ(Meßdiener.Anzahl, 4);
    EXPECT_EQ(Meßdiener.Nachname[3], "Eich");
    EXPECT_EQ(Zeigt("Lage"), "Meßdiener eingelesen: 2 neu, 0 geändert. Strg+Z nimmt alles zurück.");
    EXPECT_EQ(Zeigt("Zahlen"), "0 neu, 1 geändert, 2 gleich, 2 zweifelhaft; angekreuzt: 0.");
    TabellenBeobachten();
    EXPECT_EQ(LetzterSchritt(), "Meßdiener einlesen");
    SchrittZurücknehmen();
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    SchritteBeenden();
}

TEST_F(EinlesenFormTest, JedeSpalteLässtSichVonHandZuordnen)
{
    Lesen("A;B;C\nMia;Dorn;0251 7\n");
    EXPECT_EQ(Zeigt("Lage"),
              "Leute.csv: Wo Vor- und Nachname stehen, ist nicht zu erkennen. Wählen "
              "Sie es links unter „wird zu“.");
    EXPECT_EQ(form->Spalten->item(0, 0)->text(), "Spalte 1");
    for (const auto &[spalte, bedeutung] :
         {std::pair(1, "Vorname"), std::pair(2, "Nachname"), std::pair(3, "Telefon")})
        Bedeutung(spalte)->setCurrentText(bedeutung);
    EXPECT_EQ(Vorschau(), (Liste{"[ ] ! zweifelhaft | B, A | Das kann eine Überschrift sein. "
                                 "Telefon: C; Größe: 150",
                                 "[x] + neu | Dorn, Mia | Telefon: 0251 7; Größe: 150"}));
    // Each meaning is there once.
    Bedeutung(2)->setCurrentText("Vorname");
    EXPECT_EQ(Bedeutung(1)->currentText(), "(nicht einlesen)");
    Bedeutung(1)->setCurrentText("Vor- und Nachname");
    EXPECT_EQ(Bedeutung(2)->currentText(), "(nicht einlesen)");
}

/// What another column now means, this one is not read as any more.
TEST_F(EinlesenFormTest, GelesenWirdAusDerZuletztGewähltenSpalte)
{
    Lesen("Vorname;Name;X;Telefon\nMia;Dorn;1111;2222\n");
    EXPECT_EQ(Vorschau(), (Liste{"[x] + neu | Dorn, Mia | Telefon: 2222; Größe: 150"}));
    Bedeutung(3)->setCurrentText("Telefon");
    EXPECT_EQ(Vorschau(), (Liste{"[x] + neu | Dorn, Mia | Telefon: 1111; Größe: 150"}));
}

TEST_F(EinlesenFormTest, AuchHelferUndDieWahlGiltFürDieselbeDatei)
{
    Lesen("Vorname;Name;Dienst\nMaria;Linde;Kantor\nPaul;Quast;Kollekte\n");
    EXPECT_EQ(Bedeutung(3)->currentText(), "(nicht einlesen)");
    form->Wer->setCurrentIndex(1);
    EXPECT_EQ(Bedeutung(3)->currentText(), "Dienst 1");
    EXPECT_FALSE(form->GruppenAnlegen->isEnabled());
    EXPECT_EQ(Vorschau(), (Liste{"[x] ~ geändert | Linde, Maria | Dienst 1: Lektor → Kantor",
                                 "[x] + neu | Quast, Paul | Dienst 1: Kollektant"}));
    Klick("Übernehmen");
    EXPECT_EQ(Helfer.Anzahl, 2);
    EXPECT_EQ(Helfer.Dienst1[0], "Kantor");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

TEST_F(EinlesenFormTest, NeueGruppenUndLeereFelder)
{
    Lesen("Vorname;Nachname;Gruppe;Telefon\nAnna;Adler;Lilien;\n");
    EXPECT_EQ(
        Vorschau(),
        (Liste{"[-] ! zweifelhaft | Adler, Anna | Gruppe: Die Gruppe „Lilien“ gibt es nicht."}));
    Klick("GruppenAnlegen");
    EXPECT_EQ(Vorschau(), (Liste{"[x] ~ geändert | Adler, Anna | Gruppe: (leer) → Lilien"}));
    Klick("LeeresLöscht");
    EXPECT_EQ(Vorschau(), (Liste{"[x] ~ geändert | Adler, Anna | Gruppe: (leer) → Lilien; "
                                 "Telefon: 0251 1 → (leer)"}));
    Klick("Übernehmen");
    EXPECT_EQ(Gruppe.Anzahl, 1);
    EXPECT_EQ(Zeigt("Lage"),
              "Meßdiener eingelesen: 0 neu, 1 geändert, eine neue Gruppe. Strg+Z nimmt "
              "alles zurück.");
}

/// What somebody has ticked or left out stays so as long as the row is the same.
TEST_F(EinlesenFormTest, WasVonHandGewähltIstBleibt)
{
    const auto häkchen = [this] {
        Text alle;
        for (const Text &zeile : Vorschau())
            alle += zeile.substr(0, 3);
        return alle;
    };
    Lesen(Leute);
    EXPECT_EQ(häkchen(), "[x][x][ ][ ]");
    Kreuz(0); // left out
    Kreuz(2); // taken in spite of the date
    EXPECT_EQ(häkchen(), "[ ][x][x][ ]");
    Klick("GruppenAnlegen");
    EXPECT_EQ(häkchen(), "[ ][x][x][ ]");
    Bedeutung(5)->setCurrentText("Ort"); // changes the first row, who stays out
    EXPECT_EQ(Vorschau()[0], "[ ] ~ geändert | Adler, Anna | Ort: (leer) → Lesen; "
                             "Telefon: 0251 1 → 0251 2");
    EXPECT_EQ(häkchen(), "[ ][x][x][ ]");
    Bedeutung(4)->setCurrentText("(nicht einlesen)"); // the third has no doubt any more
    EXPECT_EQ(häkchen(), "[ ][x][x][ ]");
    Bedeutung(4)->setCurrentText("Eintrittsdatum"); // another doubt: nobody has looked at it
    EXPECT_EQ(häkchen(), "[ ][x][ ][ ]");
    Bedeutung(4)->setCurrentText("Geburtstag");
    EXPECT_EQ(häkchen(), "[ ][x][x][ ]");
    Klick("Übernehmen");
    EXPECT_EQ(häkchen(), "[ ][-][ ]"); // who was left out is not proposed again
    EXPECT_FALSE(form->Übernehmen->isEnabled());
    Bedeutung(2)->setCurrentText("(nicht einlesen)"); // other names, other people
    Bedeutung(5)->setCurrentText("Nachname");
    EXPECT_EQ(Vorschau()[0].substr(0, 3), "[x]");
    Lesen(Leute); // a new beginning
    EXPECT_EQ(häkchen(), "[x][-][ ]");
}

TEST_F(EinlesenFormTest, DieZeilenZählenWieInDerTabellenkalkulation)
{
    Lesen("sep=;\nUnsere Leute\n\nVorname;Name;Ort\n\nMia;Dorn;\"a\nb\"\nLea;Eich;\nLea;Eich;\n");
    EXPECT_EQ(Vorschau().back(), "[ ] ! zweifelhaft | Eich, Lea | Steht genauso schon in Zeile 6. "
                                 "Größe: 150");
    Lesen("Vorname;Name;Ort\n\n;;X\n");
    EXPECT_EQ(Vorschau(), (Liste{"[-] ! zweifelhaft | Zeile 3 | Der Name fehlt."}));
}

TEST_F(EinlesenFormTest, PlzUndOrtInEinerSpalteSindEineWahl)
{
    Lesen("Vorname;Name;PLZ Ort;PLZ\nAnna;Adler;48999 Beispielort;1\n");
    EXPECT_EQ(Bedeutung(3)->currentText(), "PLZ und Ort");
    EXPECT_EQ(Vorschau(), (Liste{"[x] ~ geändert | Adler, Anna | PLZ: (leer) → 48999; "
                                 "Ort: (leer) → Beispielort"}));
    Bedeutung(4)->setCurrentText("PLZ");
    EXPECT_EQ(Bedeutung(3)->currentText(), "(nicht einlesen)");
}

/// A file of two encodings, or one that was damaged on its way.
TEST_F(EinlesenFormTest, EinBeschädigtesZeichenIstEinZweifel)
{
    Lesen("Vorname;Name;Ort\nJörg;Weiß;Gro\xDF"
          "dorf\nÄnne;M\xFCller;\n");
    EXPECT_EQ(Vorschau()[0], "[ ] ! zweifelhaft | Weiß, Jörg | Ort: „Gro\xEF\xBF\xBD"
                             "dorf“ hat ein "
                             "beschädigtes Zeichen. Größe: 150");
    EXPECT_EQ(Vorschau()[1].substr(0, 3), "[-]");
}

TEST_F(EinlesenFormTest, WoFürAlleKeinPlatzIstWartetÜbernehmen)
{
    std::string leute = "Vorname;Nachname\n";
    for (int i = 0; i < 199; ++i)
        leute += "Kind;Nr" + std::to_string(i) + "\n";
    Lesen(leute);
    EXPECT_FALSE(form->Übernehmen->isEnabled());
    EXPECT_NE(Zeigt("Zahlen").find("Platz ist nur noch für 198"), Text::npos);
    Kreuz(5);
    EXPECT_TRUE(form->Übernehmen->isEnabled());
    Klick("Übernehmen");
    EXPECT_EQ(Meßdiener.Anzahl, 200);
}

/// Everything bad that a file can be is told in a sentence, quickly, and nothing is written.
TEST_F(EinlesenFormTest, SchlechteDateienWerdenInEinemSatzGesagt)
{
    const std::map<Text, std::string> dateien = {
        {"Leute.csv: Die Datei ist leer.", ""},
        {"Leute.csv: Die Datei ist kein Text und keine Tabelle.", "Vorname;Name\nAnna;\x01\x02\n"},
        {"Leute.csv: Die Tabelle hat mehr als 256 Spalten.", "a;b\n" + std::string(9999, ';')},
        {"Leute.csv: Wo Vor- und Nachname stehen, ist nicht zu erkennen. Wählen Sie es links unter "
         "„wird zu“.",
         std::string(4'000'000, '"')}};
    for (const auto &[satz, bytes] : dateien) {
        Lesen(bytes);
        EXPECT_EQ(Zeigt("Lage"), satz);
        EXPECT_FALSE(form->Übernehmen->isEnabled());
    }
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EinlesenFormTest, VonEinerRiesigenDateiWirdNichtsGelesen)
{
    DateiSchreiben(Festplatte / "riesig.csv", "");
    std::filesystem::resize_file(Festplatte / "riesig.csv", 100'000'000);
    GewählteDatei = Festplatte / "riesig.csv";
    int gelesen = 0;
    Laufwerke.Lesen = [&gelesen](const std::filesystem::path &) {
        ++gelesen;
        return std::string();
    };
    Klick("Datei");
    EXPECT_EQ(Zeigt("Lage"),
              "riesig.csv: Die Datei ist größer als 16 MB: Das ist keine Liste von Leuten.");
    EXPECT_EQ(gelesen, 0);
    GewählteDatei = Festplatte / "fehlt.csv";
    Klick("Datei");
    EXPECT_TRUE(Zeigt("Lage").starts_with("fehlt.csv: Die Datei ist nicht lesbar: "));
}

TEST_F(EinlesenFormTest, EineLangeListeLiestSichUnterDemWartezeiger)
{
    std::string leute = "Vorname;Nachname;Telefon;Geburtstag\n";
    for (int i = 0; i < 4999; ++i)
        leute += "Kind;Nr" + std::to_string(i) + ";0251;6.1.2012\n";
    std::map<Text, std::set<bool>> gewartet; // at each of these steps
    const auto merken = [&gewartet](const Text &schritt) {
        gewartet[schritt].insert(QApplication::overrideCursor() != nullptr);
    };
    const auto lesen = Laufwerke.Lesen;
    Laufwerke.Lesen = [&](const std::filesystem::path &pfad) {
        merken("file");
        return lesen(pfad);
    };
    const auto heute = Uhr.Heute;
    Uhr.Heute = [&] {
        merken("preview");
        return heute();
    };
    for (const auto &[tafel, schritt] :
         {std::pair(form->Spalten, "columns"), std::pair(form->Zeilen, "rows")})
        QObject::connect(tafel->model(), &QAbstractItemModel::rowsInserted, form,
                         [merken, schritt = schritt] { merken(schritt); });
    const std::set<bool> immer = {true};
    const auto anfang = std::chrono::steady_clock::now();
    Lesen(leute);
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - anfang;
    EXPECT_EQ(form->Zeilen->rowCount(), 4999);
    EXPECT_EQ(gewartet,
              (std::map<Text, std::set<bool>>{
                  {"file", immer}, {"preview", immer}, {"columns", immer}, {"rows", immer}}));
    RecordProperty("Sekunden", std::to_string(dauer.count()));
    EXPECT_LT(dauer.count(), 10) << "far above what a busy machine takes";
    for (const auto &schritt : {std::function<void()>([this] { form->Wer->setCurrentIndex(1); }),
                                std::function<void()>([this] { Klick("LeeresLöscht"); })}) {
        gewartet.clear();
        schritt();
        EXPECT_EQ(gewartet["preview"], immer);
        gewartet.erase("file");
        for (const auto &[was, wie] : gewartet)
            EXPECT_EQ(wie, immer) << was;
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Uhr.Heute = heute;
}

/// One field of several megabytes: it is read, and the cells and tips bear no more than a part.
TEST_F(EinlesenFormTest, EinRiesigesFeldWirdInDenTafelnGekürzt)
{
    const std::string lang(5'000'000, 'x');
    Lesen("Vorname;Nachname;" + lang + "\nMia;" + lang + ";" + lang + "\n");
    ASSERT_EQ(form->Spalten->rowCount(), 3);
    ASSERT_EQ(form->Zeilen->rowCount(), 1);
    for (const QTableWidget *tafel : {form->Spalten, form->Zeilen})
        for (int zeile = 0; zeile < tafel->rowCount(); ++zeile)
            for (int spalte = 0; spalte < tafel->columnCount(); ++spalte)
                if (const QTableWidgetItem *zelle = tafel->item(zeile, spalte)) {
                    EXPECT_LE(zelle->text().size(), 201);
                    EXPECT_LE(zelle->toolTip().size(), 201);
                }
    EXPECT_EQ(form->Spalten->item(2, 0)->text(), QString(200, 'x') + "…");
    EXPECT_TRUE(form->Zeilen->item(0, 2)->text().endsWith("…"));
    EXPECT_LT(form->Zeilen->columnWidth(2), form->Zeilen->width());
}

TEST_F(EinlesenFormTest, EineEinzigeSpalteHeißtSo)
{
    Lesen("Name\nAnna Adler\n");
    EXPECT_EQ(Zeigt("Lage"), "Leute.csv: eine Zeile, die einzige Spalte erkannt. Jemand ist "
                             "derselbe, wenn Vor- und Nachname gleich sind.");
}

} // namespace
} // namespace altardienst
