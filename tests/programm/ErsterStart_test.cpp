// The first start of the program itself: with nothing, with a file missing, with a file that cannot
// be read.
#include "Prüfstand.h"
#include "programm/Programmlauf.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// In the order in which the program checks for them.
constexpr std::array<std::pair<const char *, const char *>, 8> Dateien = {{
    {"Etiketten.dat", "etiketten.dat"},
    {"Gruppen.dat", "gruppen.dat"},
    {"Helfer.dat", "helfer.dat"},
    {"Meßdiener.dat", "meßdiener.dat"},
    {"Messen.dat", "messen.dat"},
    {"Standard.dat", "standard.dat"},
    {"Konfig.cfg", "konfig.cfg"},
    {"MeßdienerMesse.dat", "meßdienermesse.dat"},
}};

Text Fehlt(const Text &datei)
{
    return "Bitte Daten von Diskette einlesen oder kopieren, da Datei - " + datei +
           " - im Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!";
}

/// The user's home holds the program's directory, a backup and whatever a test puts there.
class ErsterStartTest : public Prüfstand {
  protected:
    ErsterStartTest()
    {
        heim = Festplatte;
        daten = heim / "Altardienst";
    }

    void Bereitstellen(const fs::path &verzeichnis) const
    {
        fs::remove_all(verzeichnis);
        fs::create_directories(verzeichnis);
        for (const auto &datei : fs::directory_iterator(BEISPIELDATEN))
            fs::copy_file(datei, verzeichnis / datei.path().filename());
    }

    /// The copy dialog is open in place of the start dialog, with one message in front; this is
    /// checked and closed. The next message may follow at once.
    static void MeldungBestätigen(Programmlauf &lauf, const Text &datei, const char *wievielte)
    {
        EXPECT_EQ(lauf.Warten("meldungen", wievielte), wievielte);
        EXPECT_EQ(lauf.Fenster("DateienKopieren Meldung"), "DateienKopieren Meldung");
        EXPECT_EQ(lauf.Befehl("text Meldung"), Fehlt(datei));
        EXPECT_EQ(lauf.Befehl("klick OKButton"), "Fehler: nicht erreichbar OKButton");
        EXPECT_EQ(lauf.Befehl("klick OK"), "ok");
    }

    static void MeldungBestätigen(Programmlauf &lauf, const Text &datei)
    {
        MeldungBestätigen(lauf, datei, "1");
        EXPECT_EQ(lauf.Fenster("DateienKopieren"), "DateienKopieren");
    }

    /// Closes the copy dialog, which brings up the start dialog, and closes that.
    static void Beenden(Programmlauf &lauf, const Text &fenster)
    {
        if (fenster == "DateienKopieren") {
            EXPECT_EQ(lauf.Befehl("schließe " + fenster), "ok");
            EXPECT_EQ(lauf.Fenster("Start"), "Start");
            return Beenden(lauf, "Start");
        }
        EXPECT_EQ(lauf.Befehl("schließe " + fenster), "ok");
        EXPECT_EQ(lauf.Ende(), 0);
    }

    fs::path heim;
    fs::path daten;
};

TEST_F(ErsterStartTest, MitAllenDateienKommtGleichDerStart)
{
    Bereitstellen(daten);
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_EQ(lauf.Befehl("text Tagilein"), "28");
    Beenden(lauf, "Start");
}

TEST_F(ErsterStartTest, OhneVerzeichnisEntstehtEsUndEineMeldungKommt)
{
    Programmlauf lauf(daten);
    MeldungBestätigen(lauf, "etiketten.dat");
    EXPECT_TRUE(fs::is_directory(daten));
    EXPECT_TRUE(fs::is_empty(daten));
    EXPECT_EQ(lauf.Befehl("text OKButton"), "-"); // the home has no files to copy
    EXPECT_EQ(lauf.Befehl("klick CancelButton"), "ok");
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_EQ(lauf.Befehl("text Tagilein"), "7");
    Beenden(lauf, "Start");
    EXPECT_TRUE(fs::is_empty(daten)) << "nothing is saved before the main window";
}

TEST_F(ErsterStartTest, DieKopieFührtZuEinemBrauchbarenProgramm)
{
    Bereitstellen(heim / "Sicherung");
    Programmlauf lauf(daten);
    MeldungBestätigen(lauf, "etiketten.dat");
    EXPECT_EQ(lauf.Befehl("öffne Dir1 Sicherung"), "ok");
    EXPECT_EQ(lauf.Befehl("text OKButton"), "OK");
    EXPECT_EQ(lauf.Befehl("klick OKButton"), "ok");
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_EQ(lauf.Befehl("text Tagilein"), "28") << "the start values come from the new data";
    for (const auto &[name, klein] : Dateien)
        EXPECT_EQ(DateiLesen(daten / PfadAus(name)),
                  DateiLesen(fs::path(BEISPIELDATEN) / PfadAus(name)));
    EXPECT_EQ(lauf.Befehl("klick Starten"), "ok");
    EXPECT_EQ(lauf.Fenster("Haupt"), "Haupt");
    Beenden(lauf, "Haupt");
    for (const auto &[name, klein] : Dateien)
        EXPECT_TRUE(DateiLesen(daten / PfadAus(name)) ==
                    DateiLesen(fs::path(BEISPIELDATEN) / PfadAus(name)))
            << name;
}

TEST_F(ErsterStartTest, JedeFehlendeDateiHatIhreMeldung)
{
    for (const auto &[name, klein] : Dateien) {
        SCOPED_TRACE(name);
        Bereitstellen(daten);
        fs::remove(daten / PfadAus(name));
        Programmlauf lauf(daten);
        MeldungBestätigen(lauf, klein);
        Beenden(lauf, "DateienKopieren");
    }
}

TEST_F(ErsterStartTest, EinVerzeichnisAnStelleDerDateiFehltWieSie)
{
    for (const auto &[name, klein] : Dateien) {
        SCOPED_TRACE(name);
        Bereitstellen(daten);
        fs::remove(daten / PfadAus(name));
        fs::create_directory(daten / PfadAus(name));
        Programmlauf lauf(daten);
        MeldungBestätigen(lauf, klein);
        Beenden(lauf, "DateienKopieren");
    }
}

/// The memory of a process cannot be read as a file: opening it works, reading fails as on a broken
/// disk, even for the superuser.
TEST_F(ErsterStartTest, EineUnlesbareDateiBeendetDasLadenOhneEinWort)
{
    for (const auto &[name, klein] : Dateien) {
        SCOPED_TRACE(name);
        Bereitstellen(daten);
        fs::remove(daten / PfadAus(name));
        fs::create_symlink("/proc/self/mem", daten / PfadAus(name));
        Programmlauf lauf(daten);
        EXPECT_EQ(lauf.Fenster("Start"), "Start");
        EXPECT_EQ(lauf.Befehl("text Tagilein"), Text(klein) == "konfig.cfg" ? "7" : "28");
        Beenden(lauf, "Start");
    }
}

TEST_F(ErsterStartTest, EineEinzelneDateiLäßtDenDialogWiederkommen)
{
    Bereitstellen(heim / "Sicherung");
    Programmlauf lauf(daten);
    MeldungBestätigen(lauf, "etiketten.dat");
    EXPECT_EQ(lauf.Befehl("öffne Dir1 Sicherung"), "ok");
    EXPECT_EQ(lauf.Befehl("klick Einzel"), "ok");
    EXPECT_EQ(lauf.Warten("text O2", "Etiketten"), "Etiketten");
    EXPECT_EQ(lauf.Befehl("klick O2"), "ok");
    EXPECT_EQ(lauf.Befehl("klick OKButton"), "ok");
    // Once from the load after the copy, once from the start dialog that is shown again.
    MeldungBestätigen(lauf, "gruppen.dat", "2");
    MeldungBestätigen(lauf, "gruppen.dat", "3");
    EXPECT_EQ(lauf.Fenster("DateienKopieren"), "DateienKopieren");
    EXPECT_TRUE(fs::exists(daten / "Etiketten.dat"));
    Beenden(lauf, "DateienKopieren");
}

TEST_F(ErsterStartTest, KannDasVerzeichnisNichtEntstehenSagtEsDasProgramm)
{
    DateiSchreiben(heim / "Altardienst", "im Weg");
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("Meldung"), "Meldung");
    EXPECT_TRUE(lauf.Befehl("text Meldung").starts_with("Laufzeitfehler '"));
    EXPECT_EQ(lauf.Befehl("klick OK"), "ok");
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    Beenden(lauf, "Start");
    EXPECT_EQ(DateiLesen(heim / "Altardienst"), "im Weg");
}

TEST_F(ErsterStartTest, EinInstalliertesProgrammBietetSeineDatenAn)
{
    const fs::path ziel = heim / "usr";
    QProcess installieren;
    installieren.start("cmake", {"--install", BAUVERZEICHNIS, "--prefix", Anzeige(TextVon(ziel))});
    ASSERT_TRUE(installieren.waitForFinished(30000));
    ASSERT_EQ(installieren.exitCode(), 0) << installieren.readAllStandardError().toStdString();
    for (const auto &[ordner, gemeinde] : {std::pair("leer", false), {"beispiel", true}}) {
        SCOPED_TRACE(ordner);
        fs::remove_all(daten);
        Programmlauf lauf(daten, ziel / "bin" / "altardienst");
        MeldungBestätigen(lauf, "etiketten.dat");
        EXPECT_EQ(lauf.Befehl("laufwerk Drive1 Mitgelieferte Daten"), "ok");
        EXPECT_EQ(lauf.Befehl("text Datei"), TextVon(ziel) + "/share/altardienst/");
        EXPECT_EQ(lauf.Befehl("öffne Dir1 " + Text(ordner)), "ok");
        EXPECT_EQ(lauf.Befehl("klick OKButton"), "ok");
        EXPECT_EQ(lauf.Fenster("Start"), "Start");
        EXPECT_EQ(DateiLesen(daten / "Konfig.cfg").starts_with("\r\n"), !gemeinde);
        Beenden(lauf, "Start");
    }
}

} // namespace
} // namespace altardienst
