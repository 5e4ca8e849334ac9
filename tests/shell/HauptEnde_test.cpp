// Leaving the program, and saving that fails.
#include "shell/Hauptstand.h"

#include "core/Allgemein.h"
#include "printing/DialogForm.h"
#include "shell/Programm.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

const char *const Dateinamen[] = {"Konfig.cfg",    "Standard.dat",      "Meßdiener.dat",
                                  "Messen.dat",    "Gruppen.dat",       "Helfer.dat",
                                  "Etiketten.dat", "MeßdienerMesse.dat"};

class HauptEndeTest : public Hauptstand {
  protected:
    /// The names of the eight files that are there.
    std::vector<Text> Geschrieben() const
    {
        std::vector<Text> namen;
        for (const char *name : Dateinamen)
            if (fs::exists(Festplatte / PfadAus(name)))
                namen.emplace_back(name);
        return namen;
    }

    static std::vector<Text> AlleAcht() { return {std::begin(Dateinamen), std::end(Dateinamen)}; }

    /// From the third file on the disk is full.
    static void DatenträgerFüllen()
    {
        auto schreiben = Laufwerke.Schreiben;
        Laufwerke.Schreiben = [schreiben, zahl = 0](const fs::path &pfad,
                                                    std::string_view inhalt) mutable {
            if (++zahl > 2)
                throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
            schreiben(pfad, inhalt);
        };
    }

    static bool AlleEntladen()
    {
        const QWidgetList fenster = QApplication::topLevelWidgets();
        return std::none_of(fenster.begin(), fenster.end(),
                            [](const QWidget *eines) { return !eines->parent(); });
    }
};

TEST_F(HauptEndeTest, SchließenSpeichertAlleAchtDateienUndEntlädt)
{
    EXPECT_EQ(Programmlauf([this] { Öffnen().close(); }), 0);
    EXPECT_EQ(Geschrieben(), AlleAcht());
    EXPECT_FALSE(haupt);
    EXPECT_TRUE(AlleEntladen());
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptEndeTest, BeendenImMenüSpeichertAlleAchtDateienUndEntlädt)
{
    EXPECT_EQ(Programmlauf([this] {
                  Öffnen();
                  MenüWählen("mnuFileExit");
              }),
              0);
    EXPECT_EQ(Geschrieben(), AlleAcht());
    EXPECT_FALSE(haupt);
}

TEST_F(HauptEndeTest, DasEndeEntlädtAuchStartUndOffeneDialoge)
{
    AufFestplatteSpeichern();
    EXPECT_EQ(Programmlauf([] {
                  ProgrammStarten();
                  Klick(Finden(Fenster("Start"), "Starten"));
                  QWidget *haupt = Fenster("Haupt");
                  DialogÖffnen(new DialogForm);
                  haupt->close();
              }),
              0);
    EXPECT_TRUE(AlleEntladen());
}

TEST_F(HauptEndeTest, DasEndeSchreibtWasImSpeicherSteht)
{
    Konfig.Tage = 33;
    EXPECT_EQ(Programmlauf([this] {
                  Öffnen();
                  Konfig.Tage = 44;
                  haupt->close();
              }),
              0);
    EXPECT_NE(DateiLesen(Festplatte / "Konfig.cfg").find(" 44 \r\n"), std::string::npos);
}

TEST_F(HauptEndeTest, ScheitertDasSpeichernBeimSchließenEndetDasProgrammMitDerMeldung)
{
    DatenträgerFüllen();
    EXPECT_EQ(Programmlauf([this] { Öffnen().close(); }), 61);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '61': Datenträger voll"});
    EXPECT_EQ(Geschrieben(), (std::vector<Text>{"Konfig.cfg", "Standard.dat"}));
    EXPECT_TRUE(AlleEntladen());
}

TEST_F(HauptEndeTest, ScheitertSpeichernImMenüEndetDasProgrammAuch)
{
    DatenträgerFüllen();
    EXPECT_EQ(Programmlauf([this] {
                  Öffnen();
                  MenüWählen("mnuDatenspeichern");
              }),
              61);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '61': Datenträger voll"});
    EXPECT_EQ(Geschrieben(), (std::vector<Text>{"Konfig.cfg", "Standard.dat"}));
}

TEST_F(HauptEndeTest, ScheitertDasSpeichernVorHolenOderSichernEndetDasProgrammOhneDialog)
{
    auto schreiben = Laufwerke.Schreiben;
    for (const char *eintrag : {"mnuDatenHolen", "mnuDatenSichern"}) {
        Laufwerke.Schreiben = schreiben;
        DatenträgerFüllen();
        GezeigteMeldungen.clear();
        EXPECT_EQ(Programmlauf([&] {
                      Öffnen();
                      MenüWählen(eintrag);
                      EXPECT_FALSE(IstOffen("Dateikopie") || IstOffen("Datensicherung"));
                  }),
                  61);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '61': Datenträger voll"});
    }
}

// Nobody could reach the program any more if its window went.
TEST_F(HauptEndeTest, ScheitertDasEndeAnEtwasUnerwartetemBleibtDasHauptfensterOffen)
{
    const auto schreiben = Laufwerke.Schreiben;
    Konfig.Gemeinde = "St. Ägid";
    EXPECT_EQ(Programmlauf([&] {
                  Laufwerke.Schreiben = [](const fs::path &, std::string_view) {
                      throw std::bad_alloc();
                  };
                  EXPECT_FALSE(Öffnen().close());
                  EXPECT_TRUE(Warten([this] { return GezeigteMeldungen.size() == 1; }));
                  EXPECT_TRUE(haupt->isVisible());
                  EXPECT_EQ(Konfig.Gemeinde, "St. Ägid");
                  Laufwerke.Schreiben = schreiben;
                  EXPECT_TRUE(haupt->close());
              }),
              0);
    EXPECT_EQ(Geschrieben(), AlleAcht());
    EXPECT_TRUE(GezeigteMeldungen.at(0).starts_with("Der Arbeitsspeicher reicht nicht aus."));
}

TEST_F(HauptEndeTest, DieMeldungEinesGescheitertenSpeichernsIstEinFenster)
{
    DatenträgerFüllen();
    EchteMeldungen();
    EXPECT_EQ(Programmlauf([this] {
                  Öffnen();
                  Beantworten([](QMessageBox *box) {
                      EXPECT_EQ(box->text(),
                                "Laufzeitfehler '61': " + QString::fromUtf8("Datenträger voll"));
                      Klick(box->button(QMessageBox::Ok));
                  });
                  haupt->close();
              }),
              61);
}

} // namespace
} // namespace altardienst
