// Undo and redo in the windows: the two entries of the menu, their keys, and what the forms that
// are open show.
#include "Ruhe.h"
#include "application/Mitteilung.h"
#include "core/Allgemein.h"
#include "history/Rückgängig.h"
#include "history/Tabellenbild.h"
#include "planning/MessenlisteImProgramm.h"

#include <QAction>
#include <QMenu>

#include <array>
#include <random>
#include <tuple>

namespace altardienst {
namespace {

constexpr const char *NachNachname = "mnuMeßdienersort";
constexpr const char *NachUhrzeit = "mnuSortmessenUhr";

class HauptRückgängigTest : public MessenlisteImProgramm {
  protected:
    HauptRückgängigTest()
    {
        Uhr.Sekunden = [this] { return 12 * 3600 + ++Ablesungen / 2000; }; // no search is endless
        Konfig.DiffGröße = 40;
        Konfig.PlzOrt = "48999 Beispielort"; // else opening a dialog sets it
        for (int i = 0; i < 60; ++i)
            MeßdienerAnlegen("Vor" + std::to_string(i), "Nach" + std::to_string(i * 7 % 60));
        for (int i = 0; i < 5; ++i)
            MesseMitDienern(DatumAus({2026, 12, 20 - i}), 3);
        AufFestplatteSpeichern();
        SchritteBeginnen();
        Ruhe();
    }

    static void Ruhe() { altardienst::Ruhe(25); }

    void Wählen(const char *eintrag) const
    {
        MenüWählen(eintrag);
        Ruhe();
    }

    static void Strg(QWidget *fenster, Qt::Key taste)
    {
        Zeigen(fenster);
        QTest::keyClick(fenster->windowHandle(), taste, Qt::ControlModifier);
        Ruhe();
    }
    void FensterStrg(Qt::Key taste) const
    {
        QTest::keyClick(haupt->windowHandle(), taste, Qt::ControlModifier);
        Ruhe();
    }

    void MessenBesetzen()
    {
        Antworten.push_back(true);
        Klick(haupt->Dienstus);
        Ruhe();
    }

    Text Rückgängig() const { return haupt->mnuRückgängig->text().toStdString(); }
    Text Wiederholen() const { return haupt->mnuWiederholen->text().toStdString(); }

    /// What the open list shows is what the table holds.
    void ListeStimmt() const
    {
        const int i = Zeigt("Datensatzus").empty() ? 0 : std::stoi(Zeigt("Datensatzus"));
        const auto ohneWochentag = [](Satz satz) { // it follows the date
            satz.front().clear();
            if (satz[1] == "00:00:00") // a blank record
                satz[1] = "30.12.1899";
            return satz;
        };
        EXPECT_EQ(ohneWochentag(Schirm()),
                  ohneWochentag(Sichtbar(MessenJetzt()[static_cast<std::size_t>(i)])));
    }

    /// The tables, but for the blanks with which the list fills up the weekday.
    static Text Tabellen() // not for EXPECT_EQ, which would look for the differences of its lines
    {
        Text tabellen;
        for (const char zeichen : Bild().Tabellen) {
            if (zeichen == '\n')
                tabellen.erase(tabellen.find_last_not_of(' ') + 1);
            tabellen += zeichen;
        }
        return tabellen;
    }

    int Ablesungen = 0;
};

TEST_F(HauptRückgängigTest, OhneSchrittSindDieEinträgeBlaß)
{
    EXPECT_EQ(Rückgängig(), "&Rückgängig");
    EXPECT_EQ(Wiederholen(), "&Wiederholen");
    EXPECT_FALSE(haupt->mnuRückgängig->isEnabled());
    EXPECT_FALSE(haupt->mnuWiederholen->isEnabled());
    EXPECT_EQ(haupt->mnuRückgängig->shortcut().toString(), "Ctrl+Z");
    EXPECT_EQ(haupt->mnuWiederholen->shortcut().toString(), "Ctrl+Y");
    FensterStrg(Qt::Key_Z);
    FensterStrg(Qt::Key_Y);
    EXPECT_EQ(Mitteilungen().Letzte.find("rückgängig"), Text::npos);
}

TEST_F(HauptRückgängigTest, DasMenüNenntDenSchrittUndDieStatuszeileWasGeschah)
{
    const Tabellenbild vorher = Bild();
    Wählen(NachNachname);
    const Tabellenbild sortiert = Bild();
    EXPECT_EQ(Rückgängig(), "&Rückgängig: Meßdiener nach Nachname sortieren");
    EXPECT_TRUE(haupt->mnuRückgängig->isEnabled());
    EXPECT_FALSE(haupt->mnuWiederholen->isEnabled());

    Wählen("mnuRückgängig");
    EXPECT_TRUE(Bild() == vorher);
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 rückgängig gemacht: Meßdiener nach Nachname sortieren");
    EXPECT_EQ(Rückgängig(), "&Rückgängig");
    EXPECT_FALSE(haupt->mnuRückgängig->isEnabled());
    EXPECT_EQ(Wiederholen(), "&Wiederholen: Meßdiener nach Nachname sortieren");

    Wählen("mnuWiederholen");
    EXPECT_TRUE(Bild() == sortiert);
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 wiederholt: Meßdiener nach Nachname sortieren");

    FensterStrg(Qt::Key_Z);
    EXPECT_TRUE(Bild() == vorher);
    FensterStrg(Qt::Key_Y);
    EXPECT_TRUE(Bild() == sortiert);
}

TEST_F(HauptRückgängigTest, EinUndImNamenIstKeineTasteDesMenüs)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Rot & Blau";
    haupt->setEnabled(false);
    haupt->setEnabled(true); // a dialog was open
    EXPECT_EQ(Rückgängig(), "&Rückgängig: Gruppe Rot && Blau anlegen");
}

TEST_F(HauptRückgängigTest, JederSchrittDesHauptfenstersHatSeinenNamen)
{
    Konfig.StartDatum = Heute + 1;
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Messeart[0] = "Hochamt";
    Standardmesse.Dienerzahl[0] = 2;
    Standardmesse.Lektor[0] = 1;
    HelferAnlegen("Maria", "Linde", "Lektor");
    HelferAnlegen("Anna", "Birke", "Lektor");
    HelferAnlegen("Jutta", "Eiche", "Lektor");
    Messe.DienerDienst[0][0] = "Weihrauch";
    AufFestplatteSpeichern();
    SchritteBeginnen();
    std::vector<Tabellenbild> bilder = {Bild()};
    const auto danach = [&](const Text &name) {
        Ruhe();
        EXPECT_EQ(LetzterSchritt(), name);
        bilder.push_back(Bild());
    };
    Wählen("DruckML");
    danach("Dienste richtig setzen");
    Klick(haupt->Messenorgani);
    danach("(1) Messen bestimmen");
    MessenBesetzen();
    danach("(3) Messen mit Meßdiener besetzen");
    Klick(haupt->MeßdienerMessen);
    danach("(4) Meßdiener - Wunschpartner berücksichtigen");
    Klick(haupt->Helfend);
    danach("(5) Messen mit Messehelfer besetzen");
    Wählen("mnuMeßhelferNachsort");
    danach("Helfer nach Nachname sortieren");
    Wählen("mnuDatenladen");
    danach("Daten von der Festplatte laden");
    bilder.pop_back();
    while (!bilder.empty()) {
        Wählen("mnuRückgängig");
        EXPECT_TRUE(Bild().Tabellen == bilder.back().Tabellen) << NächsterSchritt();
        bilder.pop_back();
    }
    EXPECT_EQ(LetzterSchritt(), "");
}

/// Whoever sorts by the menu waits for the sort alone: in the pause before, all tables were looked
/// at.
TEST_F(HauptRückgängigTest, NachEinerPauseSiehtEinSchrittNichtNochEinmalNach)
{
    const auto unberührt = TabellenUnberührt;
    std::vector<bool> antworten;
    TabellenUnberührt = [&] {
        antworten.push_back(unberührt());
        return antworten.back();
    };
    Klick(haupt->Helfend);
    Ruhe();
    auto *menü = Finden<QMenu>(haupt, "mnuMeßdienersortierung");
    menü->popup(QPoint());
    menü->setActiveAction(Finden<QAction>(haupt, NachNachname));
    Ruhe();
    QTest::keyClick(menü, Qt::Key_Return);
    EXPECT_FALSE(menü->isVisible());
    EXPECT_TRUE(SchrittAusstehend());
    Ruhe();
    EXPECT_FALSE(SchrittAusstehend());
    QTest::keyClick(haupt->windowHandle(), Qt::Key_5);
    Ruhe();
    EXPECT_EQ(antworten, (std::vector<bool>{true, true, true}));
    Meßdiener.Telefon[0] = "neu";
    ListeDaneben();
    Ruhe();
    Klick(haupt->Helfend); // the list might have written something
    EXPECT_EQ(antworten, (std::vector<bool>{true, true, true, false}));
    TabellenUnberührt = unberührt;
}

TEST_F(HauptRückgängigTest, DieOffeneListeZeigtWasDieTabelleDannHält)
{
    ListeDaneben(1);
    const Text ohne = Zeigt("vor1");
    MessenBesetzen();
    const Text mit = Zeigt("vor1");
    EXPECT_NE(mit, ohne);
    Wählen("mnuRückgängig");
    EXPECT_EQ(Zeigt("vor1"), ohne);
    ListeStimmt();

    Zeigen(form);
    FokusAuf("Plus");
    Strg(form, Qt::Key_Y); // the keys work in the list too
    EXPECT_EQ(Zeigt("vor1"), mit);
    ListeStimmt();
    FokusAuf("Messewesen"); // a box with nothing to take back
    Strg(form, Qt::Key_Z);
    EXPECT_EQ(Zeigt("vor1"), ohne);
    ListeStimmt();
}

TEST_F(HauptRückgängigTest, GetipptesNimmtErstDasFeldSelbstZurück)
{
    ListeDaneben(1);
    MessenBesetzen();
    Zeigen(form);
    const Tabellenbild besetzt = Bild();
    Tippen("Messewesen", "Taufe");
    auto *feld = Finden<QLineEdit>("Messewesen");
    for (int k = 0; k < 20 && feld->isUndoAvailable(); ++k)
        Strg(form, Qt::Key_Z);
    EXPECT_EQ(Zeigt("Messewesen"), "Messe");
    EXPECT_TRUE(Bild() == besetzt);
    for (int k = 0; k < 20 && feld->isRedoAvailable(); ++k)
        Strg(form, Qt::Key_Y);
    EXPECT_EQ(Zeigt("Messewesen"), "Taufe");
    EXPECT_TRUE(Bild() == besetzt);
}

TEST_F(HauptRückgängigTest, GetipptesGehtMitKeinemSchrittVerloren)
{
    ListeDaneben(1);
    MessenBesetzen();
    Zeigen(form);
    Tippen("Messewesen", "Taufe");
    Zeigen(haupt); // leaving the list writes it
    EXPECT_TRUE(Warten([&] {
        Ruhe();
        return Rückgängig().starts_with("&Rückgängig: Messe ");
    })) << Rückgängig();
    Wählen("mnuRückgängig");
    EXPECT_EQ(Zeigt("Messewesen"), "Messe");
    EXPECT_EQ(Rückgängig(), "&Rückgängig: (3) Messen mit Meßdiener besetzen");
    Wählen("mnuWiederholen");
    EXPECT_EQ(Zeigt("Messewesen"), "Taufe");
    ListeStimmt();
}

/// The list writes each mass that it leaves.
TEST_F(HauptRückgängigTest, BlätternInDerListeIstKeinSchritt)
{
    ListeDaneben(0);
    MessenBesetzen();
    for (int k = 0; k < 4; ++k) {
        Klick("Plus");
        Ruhe();
    }
    EXPECT_EQ(Rückgängig(), "&Rückgängig: (3) Messen mit Meßdiener besetzen");
    Wählen("mnuRückgängig");
    EXPECT_EQ(Messe.DienerVor[0][1], "");
    EXPECT_EQ(Zeigt("Datensatzus"), "4") << "one stays where one is";
    ListeStimmt();
}

TEST_F(HauptRückgängigTest, NachEinemLadenZeigtDieListeErstDurchDasZurücknehmenDieTabelle)
{
    Messe.Messeart[1] = "Rorate";
    ListeDaneben(1);
    Zeigen(haupt);
    Ruhe();
    const Tabellenbild vorher = Bild();
    Wählen("mnuDatenladen");
    EXPECT_EQ(Messe.Messeart[1], "Messe");
    EXPECT_EQ(Zeigt("Messewesen"), "Rorate"); // a load touches no form that is open
    EXPECT_EQ(Rückgängig(), "&Rückgängig: Daten von der Festplatte laden");
    Wählen("mnuRückgängig");
    EXPECT_TRUE(Bild() == vorher);
    ListeStimmt();
    Wählen("mnuWiederholen");
    EXPECT_EQ(Zeigt("Messewesen"), "Messe");
    ListeStimmt();
}

/// A long random walk with the list open: every step leads back to where it came from, all of them
/// to the beginning, and the list always shows what the table holds.
TEST_F(HauptRückgängigTest, EinLangerGangMitOffenerListeFührtZurückUndWiederHin)
{
    std::mt19937 zufall(7);
    const auto wurf = [&](int seiten) {
        return static_cast<int>(zufall() % static_cast<unsigned>(seiten));
    };
    ListeDaneben(1);
    Ruhe();
    const Text anfang = Tabellen();
    for (int k = 0; k < 200; ++k) {
        SCOPED_TRACE(k);
        switch (wurf(8)) {
        case 0:
            MessenBesetzen();
            break;
        case 1:
            Wählen(wurf(2) == 0 ? NachUhrzeit : NachNachname);
            break;
        case 2:
            Zeigen(form);
            Tippen("Messewesen", "Art" + std::to_string(k));
            Zeigen(haupt); // leaving the list writes it
            EXPECT_TRUE(Warten([&] {
                Ruhe();
                return Messe.Messeart[Messe.Cursor] == Zeigt("Messewesen");
            }));
            break;
        case 3:
            Klick(wurf(2) == 0 ? "Plus" : "Minus");
            Ruhe();
            break;
        case 4:
            Antworten.push_back(true);
            Klick("Löscher");
            Antworten.clear();
            Ruhe();
            break;
        case 5:
            Wählen("mnuWiederholen");
            break;
        default: {
            Ruhe();
            const Text zuvor = Tabellen();
            if (!haupt->mnuRückgängig->isEnabled())
                break;
            Wählen("mnuRückgängig");
            Wählen("mnuWiederholen");
            EXPECT_TRUE(Tabellen() == zuvor);
            Wählen("mnuRückgängig");
        }
        }
        ListeStimmt();
        if (HasFailure())
            return;
    }
    const Text ende = Tabellen();
    int schritte = 0;
    for (; haupt->mnuRückgängig->isEnabled(); ++schritte)
        Wählen("mnuRückgängig");
    EXPECT_GT(schritte, 10);
    EXPECT_LT(schritte, 100);
    EXPECT_TRUE(Tabellen() == anfang);
    ListeStimmt();
    while (schritte-- > 0)
        Wählen("mnuWiederholen");
    EXPECT_TRUE(Tabellen() == ende);
    ListeStimmt();
}

TEST_F(HauptRückgängigTest, ImEditorNehmenDieTastenZurückWasInIhmGeschah)
{
    Wählen(NachNachname);
    const Text sortiert = Tabellen();
    Wählen("mnuMeßdiener");
    QWidget *editor = Fenster("Meßdiener");
    const auto name = [&] { return Zeigt(Finden(editor, "Nachnamen")); };
    const Text gelöschter = name();
    Antworten.push_back(true);
    Klick(Finden(editor, "Lösch"));
    Ruhe();
    EXPECT_EQ(Meßdiener.Anzahl, 59);
    Strg(editor, Qt::Key_Z);
    EXPECT_TRUE(Tabellen() == sortiert);
    EXPECT_EQ(name(), gelöschter);
    EXPECT_EQ(Zeigt(Finden(editor, "MaxIndex")), "60");
    Strg(editor, Qt::Key_Z); // what was done before is not in sight
    EXPECT_TRUE(Tabellen() == sortiert);
    Strg(editor, Qt::Key_Y);
    EXPECT_EQ(Meßdiener.Anzahl, 59);
    EXPECT_NE(name(), gelöschter);
    EXPECT_EQ(Zeigt(Finden(editor, "MaxIndex")), "59");
    Strg(editor, Qt::Key_Y);
    EXPECT_EQ(Meßdiener.Anzahl, 59);
    Strg(editor, Qt::Key_Z);
    Strg(editor, Qt::Key_Z);
    Klick(Finden(editor, "Ende"));
    Ruhe();
    haupt->activateWindow();
    Wählen("mnuRückgängig"); // what Ende has put in order, or the sort
    EXPECT_TRUE(Rückgängig().find("löschen") == Text::npos);
}

TEST_F(HauptRückgängigTest, ImEditorGehtGetipptesZuerstZurückUndMitBildAufGeschriebenesDanach)
{
    Wählen("mnuMeßdiener");
    QWidget *editor = Fenster("Meßdiener");
    QWidget *straße = Finden(editor, "Straßen");
    Tippen(straße, "Am Bach 1");
    Klick(Finden(editor, "PLUS"));
    Ruhe();
    EXPECT_EQ(Meßdiener.Straße[0], "Am Bach 1");
    Tippen(straße, "Am Bach 2");
    FokusAuf(Finden(editor, "Teflon")); // a box in which nothing was typed
    Strg(editor, Qt::Key_Z);
    EXPECT_EQ(Zeigt(straße), "");
    EXPECT_EQ(Meßdiener.Straße[1], "");
    EXPECT_EQ(Meßdiener.Straße[0], "Am Bach 1");
    Strg(editor, Qt::Key_Z);
    EXPECT_EQ(Meßdiener.Straße[0], "");
    Strg(editor, Qt::Key_Y);
    Strg(editor, Qt::Key_Y);
    EXPECT_EQ(Meßdiener.Straße[0], "Am Bach 1");
    EXPECT_EQ(Meßdiener.Straße[1], "Am Bach 2");
    EXPECT_EQ(Zeigt(straße), "Am Bach 2");
}

TEST_F(HauptRückgängigTest, InDenAnderenEditorenKommtGelöschtesGenausoZurück)
{
    for (int i = 0; i < 4; ++i)
        HelferAnlegen("Maria", "Linde" + std::to_string(i), "Lektor");
    Gruppe.Anzahl = 4;
    for (int i = 0; i < 4; ++i)
        Gruppe.Bezeichnung[i] = "Gruppe " + std::to_string(i);
    Meßdiener.Gruppe[7] = "Gruppe 0";
    const std::array editoren = {std::tuple("mnuHelfer", "Helfer", "Datensatzlösch"),
                                 std::tuple("mnuGruppe", "Gruppe", "Löschend")};
    for (const auto &[menü, fenster, knopf] : editoren) {
        SCOPED_TRACE(fenster);
        Ruhe();
        const Text vorher = Tabellen();
        Wählen(menü);
        QWidget *editor = Fenster(fenster);
        Antworten.push_back(true);
        Klick(Finden(editor, knopf));
        Ruhe();
        EXPECT_FALSE(Tabellen() == vorher);
        Strg(editor, Qt::Key_Z);
        EXPECT_TRUE(Tabellen() == vorher);
        editor->close();
        Ruhe();
    }
}

TEST_F(HauptRückgängigTest, SperrtDieListeDasHauptfensterGiltEsNurIhremTun)
{
    Wählen(NachNachname);
    const Text sortiert = Tabellen();
    Klick(haupt->AnzMesse);
    form = Fenster("Messenliste");
    Ruhe();
    EXPECT_FALSE(haupt->isEnabled());
    Strg(form, Qt::Key_Z);
    EXPECT_TRUE(Tabellen() == sortiert);
    Antworten.push_back(true);
    Klick("Löscher");
    Ruhe();
    EXPECT_EQ(Messe.Anzahl, 4);
    FokusAuf("Plus");
    Strg(form, Qt::Key_Z);
    EXPECT_TRUE(Tabellen() == sortiert);
    ListeStimmt();
    Strg(form, Qt::Key_Z);
    EXPECT_TRUE(Tabellen() == sortiert);
    Strg(form, Qt::Key_Y);
    EXPECT_EQ(Messe.Anzahl, 4);
    Strg(form, Qt::Key_Z);
    ListeZurück();
    Wählen("mnuRückgängig");
    EXPECT_FALSE(Tabellen() == sortiert);
}

TEST_F(HauptRückgängigTest, InAnderenFensternGeltenDieTastenNicht)
{
    Wählen(NachNachname);
    const Text erster = Meßdiener.Vorname[0];
    Wählen("mnuKonfiguration");
    QWidget *dialog = Fenster("Konfiguration");
    EXPECT_FALSE(haupt->isEnabled());
    Strg(dialog, Qt::Key_Z);
    EXPECT_EQ(Meßdiener.Vorname[0], erster);
    Klick(Finden(dialog, "Ende"));
    Ruhe();
    EXPECT_TRUE(haupt->isEnabled());
    while (LetzterSchritt().starts_with("Einstellungen")) // the dialog brings them into bounds
        FensterStrg(Qt::Key_Z);
    EXPECT_EQ(LetzterSchritt(), "Meßdiener nach Nachname sortieren");
    FensterStrg(Qt::Key_Z);
    EXPECT_EQ(LetzterSchritt(), "");
}

} // namespace
} // namespace altardienst
