// The archive of past plans in the program: what (1), the print of the plan, a new name and undo do
// to it.
#include "shell/Hauptstand.h"

#include "Ruhe.h"
#include "application/Mitteilung.h"
#include "core/Allgemein.h"
#include "fairness/Archiv.h"
#include "history/Rückgängig.h"
#include "overview/Platz.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "printing/Druckprotokoll.h"

#include <utility>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class HauptArchivTest : public Hauptstand {
  protected:
    HauptArchivTest() : zuvor(std::exchange(Drucker, &Papier))
    {
        Konfig.PlzOrt = "48999 Beispielort"; // else opening a dialog sets it
        Konfig.StartDatum = Heute + 7;
        Konfig.Tage = 7;
        for (const char *name : {"Adler", "Busch", "Clausen"}) {
            const int i = MeßdienerAnlegen("Kim", name);
            Meßdiener.Geburtstag[i] = Meßdiener.Eintrittsdatum[i] = Heute;
            Helfer.Geburtstag[HelferAnlegen("Eva", name, "Lektor")] = Heute;
        }
        MesseMitDienern(Heute + 7, 2);
        Messe.LektorZahl[0] = 1;
        Besetzen(Messe, Dienerplatznr(0, 1), "Kim", "Adler");
        Besetzen(Messe, Dienerplatznr(0, 2), "Kim", "Busch");
        Besetzen(Messe, Helferplatznr(0, 0), "Eva", "Adler");
        AufFestplatteSpeichern();
    }
    ~HauptArchivTest() override
    {
        Drucker = zuvor;
        SchritteBeenden();
    }

    static void Ruhe() { altardienst::Ruhe(5); }

    std::vector<Text> Aufgehoben() const
    {
        std::vector<Text> namen;
        for (const Archivdienst &dienst : ArchivLesen(Zeitraum).Dienste)
            namen.push_back(dienst.Vorname + " " + dienst.Nachname);
        return namen;
    }
    fs::path Datei() const { return Festplatte / "Archiv" / Archivname(Zeitraum); }

    static bool Gesagt(const Text &text) { return Mitteilungen().Letzte.find(text) != Text::npos; }

    /// Opens the editor, types another last name over that of the first record, and leaves it.
    void Umbenennen(const char *eintrag, const char *fenster, const Text &neu)
    {
        MenüWählen(eintrag);
        Ruhe();
        QPointer<QWidget> form = Fenster(fenster);
        ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == form; }));
        Tippen(Finden(form, Text(fenster) == "Helfer" ? "Hinten" : "Nachnamen"), neu);
        Klick(Finden(form, "Ende"));
        ASSERT_TRUE(Warten([&] { return !form; }));
        Ruhe();
    }

    void Strg(Qt::Key taste) const
    {
        Zeigen(haupt);
        QTest::keyClick(haupt->windowHandle(), taste, Qt::ControlModifier);
        Ruhe();
    }

    using Liste = std::vector<Text>;
    const Archivzeitraum Zeitraum{Heute + 7, Heute + 7};
    const Liste Namen = {"Kim Adler", "Kim Busch", "Eva Adler"};
    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

TEST_F(HauptArchivTest, EinsHebtDenPlanAufBevorErVerschwindet)
{
    Öffnen();
    Klick(haupt->Messenorgani);
    EXPECT_EQ(Messe.DienerNach[0][1], "");
    EXPECT_EQ(Aufgehoben(), Namen);
}

TEST_F(HauptArchivTest, EinsOhneNamenHebtNichtsAuf)
{
    Leeren(Messe, Dienerplatznr(0, 1));
    Leeren(Messe, Dienerplatznr(0, 2));
    Leeren(Messe, Helferplatznr(0, 0));
    Öffnen();
    Klick(haupt->Messenorgani);
    EXPECT_FALSE(fs::exists(Festplatte / "Archiv"));
}

TEST_F(HauptArchivTest, DasDruckenHebtIhnAuf)
{
    Öffnen();
    Klick(haupt->Messendruck);
    EXPECT_EQ(Aufgehoben(), Namen);
    EXPECT_GT(Papier.WieOft("EndDoc"), 0);
}

TEST_F(HauptArchivTest, DerselbeZeitraumErsetztSeineDatei)
{
    Öffnen();
    Klick(haupt->Messendruck);
    Besetzen(Messe, Dienerplatznr(0, 2), "Kim", "Clausen");
    Klick(haupt->Messendruck);
    EXPECT_EQ(ArchivierteZeiträume(), std::vector{Zeitraum});
    EXPECT_EQ(Aufgehoben(), (Liste{"Kim Adler", "Kim Clausen", "Eva Adler"}));
}

TEST_F(HauptArchivTest, EinVerzeichnisAnSeinerStelleHältNichtsAuf)
{
    fs::create_directories(Datei() / "etwas");
    Öffnen();
    Klick(haupt->Messendruck);
    EXPECT_TRUE(Gesagt("Plan nicht im Archiv: ")) << Mitteilungen().Letzte;
    EXPECT_GT(Papier.WieOft("EndDoc"), 0) << "printed all the same";
    Klick(haupt->Messenorgani);
    EXPECT_EQ(Messe.DienerNach[0][1], "") << "(1) went on";
    EXPECT_TRUE(fs::exists(Datei() / "etwas"));
    for (const Text &meldung : GezeigteMeldungen)
        EXPECT_EQ(meldung.find("Laufzeitfehler"), Text::npos) << meldung;
}

TEST_F(HauptArchivTest, EinNeuerNameErreichtDasArchivUndRückgängigNimmtIhnZurück)
{
    PlanArchivieren();
    Öffnen();
    SchritteBeginnen();
    Ruhe();
    Umbenennen("mnuMeßdiener", "Meßdiener", "Amsel");
    EXPECT_EQ(Messe.DienerNach[0][1], "Amsel");
    EXPECT_EQ(Aufgehoben(), (Liste{"Kim Amsel", "Kim Busch", "Eva Adler"}));
    Strg(Qt::Key_Z);
    EXPECT_EQ(Messe.DienerNach[0][1], "Adler");
    EXPECT_EQ(Aufgehoben(), Namen);
    Strg(Qt::Key_Y);
    EXPECT_EQ(Messe.DienerNach[0][1], "Amsel");
    EXPECT_EQ(Aufgehoben(), (Liste{"Kim Amsel", "Kim Busch", "Eva Adler"}));
}

TEST_F(HauptArchivTest, EbensoBeiHelfern)
{
    PlanArchivieren();
    Öffnen();
    SchritteBeginnen();
    Ruhe();
    Umbenennen("mnuHelfer", "Helfer", "Amsel");
    EXPECT_EQ(Aufgehoben(), (Liste{"Kim Adler", "Kim Busch", "Eva Amsel"}));
    Strg(Qt::Key_Z);
    EXPECT_EQ(Aufgehoben(), Namen);
}

TEST_F(HauptArchivTest, ImEditorSelbstNimmtStrgZDenNamenAuchDortZurück)
{
    PlanArchivieren();
    Öffnen();
    SchritteBeginnen();
    MenüWählen("mnuMeßdiener");
    Ruhe();
    auto *form = static_cast<MeßdienerForm *>(Fenster("Meßdiener"));
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == form; }));
    Tippen(form->Angaben.Person.Nachname, "Amsel");
    Klick(Finden(form, "PLUS"));
    Ruhe();
    ASSERT_EQ(Aufgehoben().front(), "Kim Amsel");
    QTest::keyClick(form->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    Ruhe();
    EXPECT_EQ(Meßdiener.Nachname[0], "Adler");
    EXPECT_EQ(Aufgehoben(), Namen);
}

TEST_F(HauptArchivTest, WasRückgängigImArchivNichtÄndernKannSagtEs)
{
    PlanArchivieren();
    Öffnen();
    SchritteBeginnen();
    Ruhe();
    Umbenennen("mnuMeßdiener", "Meßdiener", "Amsel");
    const auto lesen = Laufwerke.Lesen;
    Laufwerke.Lesen = [&](const fs::path &pfad) {
        if (pfad == Datei())
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        return lesen(pfad);
    };
    Strg(Qt::Key_Z);
    Laufwerke.Lesen = lesen;
    EXPECT_EQ(Meßdiener.Nachname[0], "Adler") << "taken back all the same";
    EXPECT_EQ(Aufgehoben().front(), "Kim Amsel");
    EXPECT_TRUE(Gesagt("alter Name noch im Archiv: 1 Datei ist nicht zu ändern"))
        << Mitteilungen().Letzte;
}

TEST_F(HauptArchivTest, SortierenRückgängigLäßtDasArchivInRuhe)
{
    PlanArchivieren();
    Meßdiener.Nachname[0] = "Zorn"; // so that sorting moves somebody
    Öffnen();
    SchritteBeginnen();
    Ruhe();
    const std::string datei = DateiLesen(Datei());
    MenüWählen("mnuMeßdienersort");
    Ruhe();
    Strg(Qt::Key_Z);
    EXPECT_EQ(DateiLesen(Datei()), datei);
}

} // namespace
} // namespace altardienst
