// Message boxes: symbol, width, buttons, and what Enter and Escape answer.
#include "application/Meldungsfenster.h"

#include "Fensterstand.h"

#include <QFontMetrics>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace altardienst {
namespace {

class MeldungsfensterTest : public Fensterstand {
  protected:
    MeldungsfensterTest() { EchteMeldungen(); }

    static void Ansehen(const std::function<void(QMessageBox *)> &prüfen,
                        const std::function<void()> &melden)
    {
        bool gesehen = false;
        Beantworten([&](QMessageBox *box) {
            gesehen = true;
            prüfen(box);
            if (box->isVisible())
                box->reject();
        });
        melden();
        EXPECT_TRUE(gesehen);
    }
};

struct GestellteFrage {
    const char *Text;
    const char *Titel;
    bool VorVerlust;
};

/// All questions of the program.
const std::vector<GestellteFrage> Fragen = {
    {"Wirklich?", "Löschen einer Messe", true},
    {"Wirklich?", "Löschen einer Standardmesse", true},
    {"Wirklich?", "Löschen der Zuordnung Meßdiener Messe", true},
    {"Wirklich?", "Löschen einer Gruppe", true},
    {"Wirklich?", "Löschen eines Meßdieners", true},
    {"Wirklich?", "Löschen eines Helfers", true},
    {"Die Datei /tmp/Plan.pdf gibt es schon. Soll sie ersetzt werden?", "Drucken", true},
    {"Sicherer ist ~(4)Meßdiener-Wunschpartner berücksichtigen~ und ohne Probleme. Wollen Sie "
     "Wirklich diese Funktion ausführen?",
     "Wirklich?", true},
    {"Das Laden der Daten von Diskette kann zu Problemen und Fehlern führen, denn es könnte sich "
     "z.B. um alte Daten handeln! Wollen Sie die Daten wirklich laden??",
     "Laden der Daten von Diskette", true},
    {"Den Stand vom 21.11.2026, 12:00:05 zurückholen? Was das Programm jetzt weiß, wird vorher als "
     "eigener Stand aufgehoben.",
     "Zurückholen", true},
    {"Übertragen in die Messenliste?", "Meßdiener zu Messen", false},
};

TEST_F(MeldungsfensterTest, VorEinemVerlustIstNeinDieVorgabe)
{
    for (const auto &[text, titel, vorVerlust] : Fragen) {
        SCOPED_TRACE(titel);
        Ansehen(
            [&, vorVerlust = vorVerlust](QMessageBox *box) {
                EXPECT_EQ(box->defaultButton(),
                          box->button(vorVerlust ? QMessageBox::No : QMessageBox::Yes));
                EXPECT_EQ(box->icon(), vorVerlust ? QMessageBox::Warning : QMessageBox::Question);
            },
            [&, text = text, titel = titel] { Meldungen.Fragen(text, titel); });
        for (const auto &[taste, ja] :
             {std::pair(Qt::Key_Return, !vorVerlust), {Qt::Key_Escape, false}}) {
            bool antwort = !ja;
            Ansehen([taste = taste](QMessageBox *box) { QTest::keyClick(box, taste); },
                    [&, text = text, titel = titel] { antwort = Meldungen.Fragen(text, titel); });
            EXPECT_EQ(antwort, ja);
        }
        bool antwort = true;
        Ansehen([](QMessageBox *box) { box->close(); },
                [&, text = text, titel = titel] { antwort = Meldungen.Fragen(text, titel); });
        EXPECT_FALSE(antwort);
    }
}

/// Whoever adds a question decides what Enter answers, and adds it above.
TEST_F(MeldungsfensterTest, AlleFragenDesProgrammsSindBedacht)
{
    std::size_t anzahl = 0;
    const std::regex aufruf(R"(Meldungen\.Fragen\()");
    for (const auto &datei : std::filesystem::recursive_directory_iterator(QUELLEN)) {
        if (datei.path().extension() != ".cpp")
            continue;
        std::ostringstream text;
        text << std::ifstream(datei.path()).rdbuf();
        const std::string quelle = text.str();
        anzahl += static_cast<std::size_t>(std::distance(
            std::sregex_iterator(quelle.begin(), quelle.end(), aufruf), std::sregex_iterator()));
    }
    EXPECT_EQ(anzahl, Fragen.size());
}

TEST_F(MeldungsfensterTest, JedeArtHatIhrBild)
{
    for (const auto &[text, bild] :
         {std::pair("Fertig mit Messen bestimmen", QMessageBox::Information),
          {"Laufzeitfehler '13': Typen unverträglich", QMessageBox::Critical},
          {"Unerwarteter Fehler (x).", QMessageBox::Critical},
          {"Der Arbeitsspeicher reicht nicht aus. Was", QMessageBox::Critical}})
        Ansehen(
            [bild = bild](QMessageBox *box) {
                EXPECT_EQ(box->icon(), bild);
                EXPECT_FALSE(box->iconPixmap().isNull());
            },
            [text = text] { Meldungen.Zeigen(text); });
}

TEST_F(MeldungsfensterTest, DerTitelPaßtHinein)
{
    const char *titel = "Löschen der Zuordnung Meßdiener Messe";
    QFont fett = QApplication::font();
    fett.setBold(true);
    const int breite = QFontMetrics(fett).horizontalAdvance(QString::fromUtf8(titel));
    Ansehen([breite](QMessageBox *box) { EXPECT_GT(box->width(), breite + 80); },
            [titel] { Meldungen.Fragen("Wirklich?", titel); });
    Ansehen([breite](QMessageBox *box) { EXPECT_LT(box->width(), breite + 80); },
            [] { Meldungen.Fragen("Wirklich?", "Kurz"); });
}

TEST_F(MeldungsfensterTest, LäßtSichWederVerkleinernNochMaximieren)
{
    Ansehen(
        [](QMessageBox *box) {
            const Qt::WindowFlags art = box->windowFlags();
            EXPECT_EQ(box->windowType(), Qt::Dialog);
            EXPECT_TRUE(art & Qt::CustomizeWindowHint) << "or else the desktop decides";
            EXPECT_FALSE(art & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
            EXPECT_TRUE(art & Qt::WindowTitleHint);
            EXPECT_TRUE(art & Qt::WindowCloseButtonHint);
        },
        [] { Meldungen.Zeigen("Fertig"); });
}

} // namespace
} // namespace altardienst
