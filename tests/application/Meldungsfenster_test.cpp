// Message boxes: symbol, width, buttons, and what Enter and Escape answer.
#include "application/Meldungsfenster.h"

#include "Fensterstand.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Allgemein.h"
#include "fixed/FesteMeßdienerÜbertragen.h"

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

TEST_F(MeldungsfensterTest, VorEinemVerlustIstNeinDieVorgabe)
{
    for (const auto &[fragen, vorVerlust] :
         {std::pair(Meldungen.Fragen, false), {Meldungen.FragenVorVerlust, true}}) {
        SCOPED_TRACE(vorVerlust);
        const auto stellen = [fragen = fragen] { return fragen("Wirklich?", "Titel"); };
        Ansehen(
            [vorVerlust = vorVerlust](QMessageBox *box) {
                EXPECT_EQ(box->defaultButton(),
                          box->button(vorVerlust ? QMessageBox::No : QMessageBox::Yes));
                EXPECT_EQ(box->icon(), vorVerlust ? QMessageBox::Warning : QMessageBox::Question);
            },
            [&] { stellen(); });
        for (const auto &[taste, ja] :
             {std::pair(Qt::Key_Return, !vorVerlust), {Qt::Key_Escape, false}}) {
            bool antwort = !ja;
            Ansehen([taste = taste](QMessageBox *box) { QTest::keyClick(box, taste); },
                    [&] { antwort = stellen(); });
            EXPECT_EQ(antwort, ja);
        }
        bool antwort = true;
        Ansehen([](QMessageBox *box) { box->close(); }, [&] { antwort = stellen(); });
        EXPECT_FALSE(antwort);
    }
}

/// Those that can be asked without a window.
TEST_F(MeldungsfensterTest, WasÜberschreibtSchlägtNeinVor)
{
    for (const auto &[frage, stellen] :
         {std::pair<Text, std::function<void()>>{"Übertragen in die Messenliste?",
                                                 ÜbertragenAufWunsch},
          {"Sicherer ist", [] { MessenMitMeßdienerBesetzen([] {}); }},
          {"Das Laden der Daten von Diskette", VonDisketteLaden}}) {
        SCOPED_TRACE(frage);
        Ansehen(
            [frage = frage](QMessageBox *box) {
                EXPECT_TRUE(box->text().startsWith(QString::fromStdString(frage)));
                EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
            },
            stellen);
    }
}

/// All questions there are now. Whoever adds one whose Ja loses nothing lists it here.
TEST_F(MeldungsfensterTest, KeineFrageDesProgrammsVerliertMitJaNichts)
{
    const std::regex harmlos(R"(Meldungen\.Fragen\()");
    for (const auto &datei : std::filesystem::recursive_directory_iterator(QUELLEN)) {
        if (datei.path().extension() != ".cpp")
            continue;
        std::ostringstream text;
        text << std::ifstream(datei.path()).rdbuf();
        EXPECT_FALSE(std::regex_search(text.str(), harmlos)) << datei.path();
    }
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

TEST_F(MeldungsfensterTest, DieLängsteFragePaßtAufDenKleinstenBildschirmUndIstMitTabZuBedienen)
{
    Ansehen(
        [](QMessageBox *box) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(box));
            EXPECT_LE(box->width(), KleinsterBildschirm.width());
            EXPECT_LE(box->height(), KleinsterBildschirm.height());
            for (const auto &[knopf, nächster] : {std::pair(QMessageBox::No, QMessageBox::Yes),
                                                  {QMessageBox::Yes, QMessageBox::No}}) {
                QAbstractButton *hat = box->button(knopf);
                EXPECT_TRUE(box->rect().contains(hat->geometry()));
                EXPECT_TRUE(hat->hasFocus());
                const QImage mit = hat->grab().toImage();
                QTest::keyClick(box, Qt::Key_Tab);
                EXPECT_TRUE(box->button(nächster)->hasFocus());
                EXPECT_NE(hat->grab().toImage(), mit) << "the focus is seen";
            }
        },
        VonDisketteLaden);
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
