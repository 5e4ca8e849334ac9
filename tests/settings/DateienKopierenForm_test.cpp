// The copy dialog of the first start, and the start dialog that it stands in for.
#include "settings/Kopierstand.h"

#include "core/Allgemein.h"
#include "shell/Programm.h"

#include <QAction>
#include <QTimer>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

Text Fehlt(const Text &datei)
{
    return "Bitte Daten von Diskette einlesen oder kopieren, da Datei - " + datei +
           " - im Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!";
}

/// The diskette holds a parish with a period of 28 days; the program's directory is empty. No main
/// window is there yet.
class DateienKopierenFormTest : public Kopierstand {
  protected:
    DateienKopierenFormTest()
    {
        delete haupt;
        const path zuvor = Festplatte;
        Festplatte = Diskette;
        Konfig.Tage = 28;
        Konfig.Gemeinde = "St. Martin";
        AufFestplatteSpeichern();
        Festplatte = zuvor;
        TabellenLeeren();
    }

    void Starten()
    {
        ProgrammStarten();
        Nehmen();
    }

    void Nehmen()
    {
        form = static_cast<KopierForm *>(Fenster("DateienKopieren"));
        Zeigen(form);
    }

    void VonDisketteKopieren() const
    {
        NächstesLaufwerk();
        Klick(form->OKButton);
    }

    static Text Tage() { return Zeigt(Finden(Fenster("Start"), "Tagilein")); }

    static int Anzahl(const char *name)
    {
        int anzahl = 0;
        for (const QWidget *fenster : QApplication::topLevelWidgets())
            anzahl += fenster->objectName() == name;
        return anzahl;
    }
};

TEST_F(DateienKopierenFormTest, StehtAnStelleDesStarts)
{
    bool dialogOffen = false;
    Meldungen.Zeigen = [&](const Text &text) {
        GezeigteMeldungen.push_back(text);
        dialogOffen = IstOffen("DateienKopieren");
    };
    Starten();
    EXPECT_TRUE(dialogOffen) << "below the message";
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehlt("etiketten.dat")});
    EXPECT_FALSE(IstOffen("Start"));
    EXPECT_EQ(form->windowTitle(), "Datendateien kopieren");
    EXPECT_FALSE(form->findChild<QWidget *>("VZ"));
    EXPECT_FALSE(form->findChild<QWidget *>("Verzeichnis"));
    EXPECT_FALSE(ZeigtOK());
}

TEST_F(DateienKopierenFormTest, NachDerKopieWirdDerStartNeuGeladen)
{
    Starten();
    VonDisketteKopieren();
    EXPECT_EQ(NachKopie, 12);
    EXPECT_EQ(Tage(), "28");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_FALSE(IstOffen("DateienKopieren"));
    EXPECT_TRUE(Warten([&] { return !form && Anzahl("Start") == 1; }));
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    EXPECT_EQ(DateienIn(Festplatte), DateienIn(Diskette)) << "under the names of the source";
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == DateiLesen(Diskette / PfadAus(name)))
            << name;
}

TEST_F(DateienKopierenFormTest, DasKopierteProgrammIstBrauchbarUndLässtSichSichern)
{
    Starten();
    VonDisketteKopieren();
    Klick(Finden(Fenster("Start"), "Starten"));
    MenüWählen(Fenster("Haupt"), "mnuDatenSichern");
    auto *sicherung = static_cast<KopierForm *>(Fenster("Datensicherung"));
    EXPECT_TRUE(sicherung->OKButton->isVisible());
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U) << "saved under the same names";
    fs::create_directories(laufwerk / "Sicherung");
    sicherung->Wahl.Öffnen(laufwerk / "Sicherung");
    Klick(sicherung->OKButton);
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(laufwerk / "Sicherung" / PfadAus(klein)) ==
                    DateiLesen(Festplatte / PfadAus(name)))
            << name;
}

TEST_F(DateienKopierenFormTest, AbbrechenUndSchließenZeigenDenStartWieErWar)
{
    for (bool abbrechen : {true, false}) {
        Starten();
        NachKopie = 12;
        const int meldungen = static_cast<int>(GezeigteMeldungen.size());
        if (abbrechen)
            Klick(form->CancelButton);
        else
            form->close();
        EXPECT_EQ(NachKopie, 0);
        EXPECT_EQ(Tage(), "7");
        EXPECT_EQ(static_cast<int>(GezeigteMeldungen.size()), meldungen) << "nothing is loaded";
        EXPECT_TRUE(DateienIn(Festplatte).empty());
        EXPECT_TRUE(Warten([&] { return !form; }));
    }
}

TEST_F(DateienKopierenFormTest, EineEinzelneDateiGibtDenDialogNochEinmal)
{
    Starten();
    NächstesLaufwerk();
    EinzelneWählen(1);
    GezeigteMeldungen.clear();
    Klick(form->OKButton);
    // The load after the copy, and that of the start dialog shown again.
    EXPECT_EQ(GezeigteMeldungen, (Liste{Fehlt("gruppen.dat"), Fehlt("gruppen.dat")}));
    EXPECT_EQ(NachKopie, 0);
    EXPECT_FALSE(IstOffen("Start"));
    EXPECT_TRUE(Warten([&] { return !form && Anzahl("DateienKopieren") == 1; }));
    EXPECT_EQ(DateienIn(Festplatte), Liste{"Etiketten.dat"});
    Nehmen();
    VonDisketteKopieren();
    EXPECT_EQ(Tage(), "28");
}

TEST_F(DateienKopierenFormTest, EineGescheiterteKopieLässtDenDialogStehen)
{
    Laufwerke.Kopieren = [](const path &, const path &) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Starten();
    GezeigteMeldungen.clear();
    VonDisketteKopieren();
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '61': Datenträger voll"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(IstOffen("Start"));
    EXPECT_EQ(NachKopie, 0);
    Klick(form->CancelButton);
    EXPECT_EQ(Tage(), "7");
}

TEST_F(DateienKopierenFormTest, EinFalscherWertInDerKopieLädtBisZuIhmOhneEinWort)
{
    DateiSchreiben(Diskette / "Standard.dat", "x");
    Starten();
    GezeigteMeldungen.clear();
    VonDisketteKopieren();
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(NachKopie, 0);
    EXPECT_EQ(Tage(), "28") << "the settings come before it";
}

TEST_F(DateienKopierenFormTest, DasLadenImMenüFührtAuchHierherUndZurückInsHauptfenster)
{
    Starten();
    VonDisketteKopieren();
    Klick(Finden(Fenster("Start"), "Starten"));
    QWidget *fenster = Fenster("Haupt");
    fs::remove(Festplatte / "Helfer.dat");
    GezeigteMeldungen.clear();
    MenüWählen(fenster, "mnuDatenladen");
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehlt("helfer.dat")});
    EXPECT_TRUE(fenster->isEnabled()) << "the load doesn't touch the main window";
    Nehmen();
    VonDisketteKopieren();
    EXPECT_EQ(Tage(), "28");
    Klick(Finden(Fenster("Start"), "Starten"));
    EXPECT_EQ(Anzahl("Haupt"), 1);
    EXPECT_EQ(Fenster("Haupt"), fenster);
}

TEST_F(DateienKopierenFormTest, EinWeiteresLadenVerstecktDenWiedergekehrtenStart)
{
    Starten();
    VonDisketteKopieren();
    Klick(Finden(Fenster("Start"), "Starten"));
    auto *laden = Finden<QAction>(Fenster("Haupt"), "mnuDatenladen");
    fs::remove(Festplatte / "Helfer.dat");
    laden->trigger();
    Nehmen();
    Klick(form->CancelButton);
    ASSERT_TRUE(IstOffen("Start"));
    laden->trigger();
    EXPECT_FALSE(IstOffen("Start"));
    EXPECT_TRUE(IstOffen("DateienKopieren"));
    EXPECT_TRUE(Warten([&] { return !form && Anzahl("DateienKopieren") == 1; }));
    laden->trigger();
    EXPECT_EQ(Anzahl("DateienKopieren"), 1) << "the one that is open";
    EXPECT_FALSE(IstOffen("Start"));
    QWidget *offener = Fenster("DateienKopieren");
    offener->showMinimized();
    laden->trigger();
    EXPECT_EQ(Fenster("DateienKopieren"), offener);
    EXPECT_FALSE(offener->isMinimized());
    EXPECT_TRUE(Warten([&] { return offener->isActiveWindow(); }));
}

TEST_F(DateienKopierenFormTest, EinzelErgänztDieFehlendeUndLässtSiebenGuteStehen)
{
    constexpr std::size_t Fehlende = 3;
    Konfig.Tage = 42;
    Konfig.Gemeinde = "die gute";
    AufFestplatteSpeichern();
    TabellenLeeren();
    fs::remove(Festplatte / AchtNamen[Fehlende].first);
    std::map<Text, std::string> zuvor;
    for (const auto &[name, klein] : AchtNamen)
        zuvor[name] = DateiLesen(Festplatte / PfadAus(name));
    Starten();
    NächstesLaufwerk();
    EinzelneWählen(Fehlende);
    GezeigteMeldungen.clear();
    Klick(form->OKButton);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Tage(), "42");
    EXPECT_EQ(Konfig.Gemeinde, "die gute");
    EXPECT_FALSE(IstOffen("DateienKopieren"));
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
    for (std::size_t k = 0; k < AchtNamen.size(); ++k) {
        const auto &[name, klein] = AchtNamen[k];
        EXPECT_TRUE(k == Fehlende || DateiLesen(Festplatte / PfadAus(name)) == zuvor[name]) << name;
    }
    EXPECT_TRUE(DateiLesen(Festplatte / "Helfer.dat") == DateiLesen(Diskette / "Helfer.dat"));
}

TEST_F(DateienKopierenFormTest, SchließenDesStartsNebenDemHauptfensterBeendetNichts)
{
    const int ergebnis = Programmlauf([this] {
        Starten();
        VonDisketteKopieren();
        Klick(Finden(Fenster("Start"), "Starten"));
        QWidget *fenster = Fenster("Haupt");
        StartNeuZeigen();
        Fenster("Start")->close();
        QTimer::singleShot(200, fenster, [fenster] {
            Konfig.Gemeinde = "noch da";
            fenster->close();
        });
    });
    EXPECT_EQ(ergebnis, 0);
    EXPECT_TRUE(DateiLesen(Festplatte / "Konfig.cfg").starts_with("noch da\r\n"));
}

TEST_F(DateienKopierenFormTest, EinGeschlossenerStartWirdNeuGeladen)
{
    Starten();
    VonDisketteKopieren();
    Klick(Finden(Fenster("Start"), "Starten"));
    StartNeuZeigen();
    Fenster("Start")->close();
    EXPECT_TRUE(Warten([] { return Anzahl("Start") == 0; }));
    Konfig.Tage = 99;
    StartZeigen();
    EXPECT_EQ(Tage(), "28");
}

} // namespace
} // namespace altardienst
