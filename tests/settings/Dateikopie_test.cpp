// Copies of the eight data files between the program's directory and another.
#include "settings/Dateikopie.h"

#include "Prüfstand.h"

#include <chrono>

#ifndef _WIN32
#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

/// In the order of a copy of all: the file's own name and its name in small letters.
constexpr std::array<std::pair<const char *, const char *>, 8> Namen = {{
    {"Konfig.cfg", "konfig.cfg"},
    {"Etiketten.dat", "etiketten.dat"},
    {"Gruppen.dat", "gruppen.dat"},
    {"Helfer.dat", "helfer.dat"},
    {"Meßdiener.dat", "meßdiener.dat"},
    {"Messen.dat", "messen.dat"},
    {"Standard.dat", "standard.dat"},
    {"MeßdienerMesse.dat", "meßdienermesse.dat"},
}};

/// The program's directory holds the eight files, each with its own content; the diskette is empty.
class DateikopieTest : public Prüfstand {
  protected:
    DateikopieTest()
    {
        for (const auto &[name, klein] : Namen)
            DateiSchreiben(Festplatte / PfadAus(name), Inhalt(name));
    }

    static std::string Inhalt(const Text &name)
    {
        std::string bytes = "neu " + name + "\r\n";
        for (int i = 0; i < 20000; ++i)
            bytes += static_cast<char>(i * 7);
        return bytes;
    }

    static Liste InhaltVon(const fs::path &verzeichnis)
    {
        Liste namen = Laufwerke.Auflisten(verzeichnis).Dateien;
        const Liste verzeichnisse = Laufwerke.Auflisten(verzeichnis).Verzeichnisse;
        namen.insert(namen.end(), verzeichnisse.begin(), verzeichnisse.end());
        return namen;
    }

    void AlleSichern() const { AlleDateienKopieren(Festplatte, Diskette, NeueDatei::Klein); }
};

TEST_F(DateikopieTest, DieAchtDateienHabenIhreBeschriftung)
{
    const std::array<std::pair<const char *, const char *>, 8> erwartet = {{
        {"Konfiguration", "Konfig.cfg"},
        {"Etiketten", "Etiketten.dat"},
        {"Gruppen", "Gruppen.dat"},
        {"Helfer", "Helfer.dat"},
        {"Meßdierner", "Meßdiener.dat"},
        {"Messen", "Messen.dat"},
        {"Standardmessen", "Standard.dat"},
        {"Meßdiener für bestimmte Messen", "MeßdienerMesse.dat"},
    }};
    for (std::size_t k = 0; k < erwartet.size(); ++k) {
        EXPECT_STREQ(Kopierdateien[k].Beschriftung, erwartet[k].first);
        EXPECT_STREQ(DateiMit(Kopierdateien[k].Nummer).Name, erwartet[k].second);
    }
}

TEST_F(DateikopieTest, AlleAchtUnterIhremNamenGeltenAlsVorhanden)
{
    EXPECT_TRUE(AlleDateienVorhanden(Festplatte));
    EXPECT_FALSE(AlleDateienVorhanden(Diskette));
    EXPECT_FALSE(AlleDateienVorhanden(Diskette / "fehlt"));
    EXPECT_FALSE(AlleDateienVorhanden({}));
}

TEST_F(DateikopieTest, JedeFehlendeUndJedeAndersGeschriebeneDateiFehlt)
{
    NUR_WO_ES_GIBT(Schreibungen);
    for (const auto &[name, klein] : Namen) {
        const fs::path datei = Festplatte / PfadAus(name);
        fs::rename(datei, Festplatte / "weg");
        EXPECT_FALSE(AlleDateienVorhanden(Festplatte)) << name;
        fs::create_directory(datei);
        EXPECT_FALSE(AlleDateienVorhanden(Festplatte)) << name << " is a directory";
        fs::remove(datei);
        fs::rename(Festplatte / "weg", Festplatte / PfadAus(klein));
        EXPECT_FALSE(AlleDateienVorhanden(Festplatte)) << klein;
        fs::rename(Festplatte / PfadAus(klein), datei);
        EXPECT_TRUE(AlleDateienVorhanden(Festplatte));
    }
    fs::rename(Festplatte / "Konfig.cfg", Festplatte / "KONFIG.CFG");
    EXPECT_FALSE(AlleDateienVorhanden(Festplatte));
}

TEST_F(DateikopieTest, GesuchtWirdUnterKleinenNamenInFesterFolgeBisZurErstenLücke)
{
    Liste gesucht;
    auto suchen = Laufwerke.Suchen;
    Laufwerke.Suchen = [&](const fs::path &verzeichnis, const Text &name) {
        gesucht.push_back(name);
        return suchen(verzeichnis, name);
    };
    AlleDateienVorhanden(Festplatte);
    EXPECT_EQ(gesucht, (Liste{"etiketten.dat", "gruppen.dat", "helfer.dat", "meßdiener.dat",
                              "messen.dat", "standard.dat", "konfig.cfg", "meßdienermesse.dat"}));
    gesucht.clear();
    fs::remove(Festplatte / "Helfer.dat");
    AlleDateienVorhanden(Festplatte);
    EXPECT_EQ(gesucht, (Liste{"etiketten.dat", "gruppen.dat", "helfer.dat"}));
}

TEST_F(DateikopieTest, AuchUnterZehntausendDateienIstSchnellGesucht)
{
    for (int i = 0; i < 10000; ++i)
        DateiSchreiben(Festplatte / ("Meßdiener " + std::to_string(i)), "");
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_TRUE(AlleDateienVorhanden(Festplatte));
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
    RecordProperty("ms", static_cast<int>(dauer.count() * 1000));
    EXPECT_LT(dauer.count(), 5) << "far more than it takes";
}

TEST_F(DateikopieTest, EineNeueDateiHeißtKleinUndIstByteFürByteGleich)
{
    AlleSichern();
    EXPECT_EQ(InhaltVon(Diskette).size(), 8U);
    for (const auto &[name, klein] : Namen)
        EXPECT_TRUE(DateiLesen(Diskette / PfadAus(klein)) == Inhalt(name)) << klein;
    EXPECT_FALSE(AlleDateienVorhanden(Diskette)) << "under another case they count as missing";
}

TEST_F(DateikopieTest, EineNeueDateiHeißtWieGespeichertWennSieDasSoll)
{
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "HELFER.DAT");
    AlleDateienKopieren(Festplatte, Diskette, NeueDatei::WieGespeichert);
    EXPECT_EQ(InhaltVon(Diskette).size(), 8U);
    for (const auto &[name, klein] : Namen) {
        const Text gespeichert = Text(name) == "Helfer.dat" ? "HELFER.DAT" : name;
        EXPECT_TRUE(DateiLesen(Diskette / PfadAus(gespeichert)) == Inhalt(name)) << name;
    }
}

TEST_F(DateikopieTest, EineVorhandeneDateiBehältIhrenNamen)
{
    for (const NeueDatei neue : {NeueDatei::Klein, NeueDatei::WieGespeichert}) {
        DateiSchreiben(Diskette / "Konfig.cfg", "alt");
        DateiSchreiben(Diskette / "helfer.dat", "alt");
        DateiSchreiben(Diskette / PfadAus("MEßDIENER.DAT"), std::string(200000, 'x'));
        AlleDateienKopieren(Festplatte, Diskette, neue);
        EXPECT_EQ(InhaltVon(Diskette).size(), 8U);
        EXPECT_TRUE(DateiLesen(Diskette / "Konfig.cfg") == Inhalt("Konfig.cfg"));
        EXPECT_TRUE(DateiLesen(Diskette / "helfer.dat") == Inhalt("Helfer.dat"));
        EXPECT_TRUE(DateiLesen(Diskette / PfadAus("MEßDIENER.DAT")) == Inhalt("Meßdiener.dat"));
    }
}

TEST_F(DateikopieTest, EinRundwegBringtAlleAchtZurück)
{
    NUR_WO_ES_GIBT(Schreibungen);
    AlleSichern();
    for (const auto &[name, klein] : Namen) {
        fs::rename(Diskette / PfadAus(klein), Diskette / PfadAus(name));
        DateiSchreiben(Festplatte / PfadAus(name), "kaputt");
    }
    ASSERT_TRUE(AlleDateienVorhanden(Diskette));
    AlleDateienKopieren(Diskette, Festplatte, NeueDatei::WieGespeichert);
    EXPECT_EQ(InhaltVon(Festplatte).size(), 8U);
    for (const auto &[name, klein] : Namen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == Inhalt(name)) << name;
}

TEST_F(DateikopieTest, AlleGehenInDerFolgeDerOptionen)
{
    Liste kopiert;
    Laufwerke.Kopieren = [&](const fs::path &von, const fs::path &nach) {
        EXPECT_EQ(nach.parent_path(), Diskette);
        kopiert.push_back(TextVon(von.filename()));
    };
    AlleSichern();
    Liste erwartet;
    for (const auto &[name, klein] : Namen)
        erwartet.emplace_back(name);
    EXPECT_EQ(kopiert, erwartet);
}

TEST_F(DateikopieTest, EineEinzelneDateiGehtAllein)
{
    for (std::size_t k = 0; k < Namen.size(); ++k) {
        DateiKopieren(Kopierdateien[k], Festplatte, Diskette, NeueDatei::Klein);
        EXPECT_EQ(InhaltVon(Diskette), Liste{Namen[k].second});
        fs::remove(Diskette / PfadAus(Namen[k].second));
    }
}

TEST_F(DateikopieTest, DerErsteFehlerBeendetUndDasKopierteBleibt)
{
    for (const auto &[name, klein] : Namen)
        DateiSchreiben(Diskette / PfadAus(klein), "alt");
    auto kopieren = Laufwerke.Kopieren;
    Laufwerke.Kopieren = [&](const fs::path &von, const fs::path &nach) {
        if (von.filename() == "Helfer.dat")
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        kopieren(von, nach);
    };
    EXPECT_EQ(NummerDesFehlers([&] { AlleSichern(); }), 61);
    for (std::size_t k = 0; k < Namen.size(); ++k)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(Namen[k].second)) == "alt", k >= 3)
            << Namen[k].first;
}

TEST_F(DateikopieTest, EineFehlendeQuelleLässtDasZielStehen)
{
    DateiSchreiben(Diskette / "konfig.cfg", "alt");
    fs::remove(Festplatte / "Konfig.cfg");
    EXPECT_EQ(NummerDesFehlers([&] { AlleSichern(); }), 53);
    EXPECT_EQ(InhaltVon(Diskette), Liste{"konfig.cfg"});
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "alt");
}

TEST_F(DateikopieTest, EinZielDasFehltOderEineDateiIst)
{
    EXPECT_EQ(NummerDesFehlers(
                  [&] { AlleDateienKopieren(Festplatte, Diskette / "weg", NeueDatei::Klein); }),
              76);
    EXPECT_FALSE(fs::exists(Diskette / "weg"));
    DateiSchreiben(Diskette / "datei", "x");
    EXPECT_EQ(NummerDesFehlers(
                  [&] { AlleDateienKopieren(Festplatte, Diskette / "datei", NeueDatei::Klein); }),
              76);
    EXPECT_EQ(DateiLesen(Diskette / "datei"), "x");
    EXPECT_EQ(NummerDesFehlers([&] { AlleDateienKopieren(Festplatte, {}, NeueDatei::Klein); }), 76);
    EXPECT_EQ(NummerDesFehlers([&] { AlleDateienKopieren({}, Diskette, NeueDatei::Klein); }), 76);
}

TEST_F(DateikopieTest, EinVerzeichnisAnStelleDerDateiBleibt)
{
    fs::create_directory(Diskette / "konfig.cfg");
    EXPECT_EQ(NummerDesFehlers([&] { AlleSichern(); }), 75);
    EXPECT_TRUE(fs::is_directory(Diskette / "konfig.cfg"));
    EXPECT_EQ(InhaltVon(Diskette), Liste{"konfig.cfg"});
}

TEST_F(DateikopieTest, EineSchreibgeschützteDateiBleibt)
{
    DateiSchreiben(Diskette / "konfig.cfg", "alt");
    fs::permissions(Diskette / "konfig.cfg", fs::perms::owner_read);
    EXPECT_EQ(NummerDesFehlers([&] { AlleSichern(); }), 75);
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "alt");
    EXPECT_EQ(InhaltVon(Diskette), Liste{"konfig.cfg"});
}

TEST_F(DateikopieTest, AufSichSelbstZerstörtNichts)
{
    NUR_WO_ES_GIBT(Verweise);
    EXPECT_EQ(
        NummerDesFehlers([&] { AlleDateienKopieren(Festplatte, Festplatte, NeueDatei::Klein); }),
        75);
    fs::create_directory_symlink(Festplatte, Diskette / "auch");
    EXPECT_EQ(NummerDesFehlers(
                  [&] { AlleDateienKopieren(Festplatte, Diskette / "auch", NeueDatei::Klein); }),
              75);
    for (const auto &[name, klein] : Namen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == Inhalt(name)) << name;
    EXPECT_EQ(InhaltVon(Festplatte).size(), 8U);
}

TEST_F(DateikopieTest, EineVorhandeneDateiBehältIhreRechte)
{
    NUR_WO_ES_GIBT(Rechte);
    for (const auto rechte : {fs::perms(0600), fs::perms(0664)}) {
        DateiSchreiben(Diskette / "konfig.cfg", "alt");
        fs::permissions(Diskette / "konfig.cfg", rechte);
        DateiKopieren(Kopierdateien[0], Festplatte, Diskette, NeueDatei::Klein);
        EXPECT_TRUE(DateiLesen(Diskette / "konfig.cfg") == Inhalt("Konfig.cfg"));
        EXPECT_EQ(fs::status(Diskette / "konfig.cfg").permissions(), rechte);
    }
}

TEST_F(DateikopieTest, EinVerweisBleibtEiner)
{
    NUR_WO_ES_GIBT(Verweise);
    DateiSchreiben(Diskette / "wirklich.cfg", "alt");
    fs::create_symlink("wirklich.cfg", Diskette / "konfig.cfg");
    DateiKopieren(Kopierdateien[0], Festplatte, Diskette, NeueDatei::Klein);
    EXPECT_TRUE(fs::is_symlink(Diskette / "konfig.cfg"));
    EXPECT_TRUE(DateiLesen(Diskette / "wirklich.cfg") == Inhalt("Konfig.cfg"));
}

#ifndef _WIN32

/// Copies in a child process that may not write more than `grenze` bytes per file: with the signal
/// ignored this looks like a full disk, otherwise it is killed in the middle of the file. Returns
/// its wait status.
int KopieImKind(const fs::path &von, const fs::path &nach, rlim_t grenze, bool ignorieren,
                int nutzer = 0)
{
    pid_t kind = fork();
    if (kind == 0) {
        if (ignorieren)
            std::signal(SIGXFSZ, SIG_IGN);
        rlimit höchstens{grenze, grenze};
        setrlimit(RLIMIT_FSIZE, &höchstens);
        rlimit ohneAbbild{0, 0};
        setrlimit(RLIMIT_CORE, &ohneAbbild);
        if (nutzer != 0 && geteuid() == 0 && seteuid(static_cast<uid_t>(nutzer)) != 0)
            _exit(99);
        _exit(NummerDesFehlers([&] { AlleDateienKopieren(von, nach, NeueDatei::Klein); }));
    }
    int ausgang = 0;
    waitpid(kind, &ausgang, 0);
    return ausgang;
}

TEST_F(DateikopieTest, EinVollesZielBehältDieAlteDatei)
{
    DateiSchreiben(Festplatte / "Konfig.cfg", "klein");
    for (const auto &[name, klein] : Namen)
        DateiSchreiben(Diskette / PfadAus(klein), "alt");
    const int ausgang = KopieImKind(Festplatte, Diskette, 9000, true);
    ASSERT_TRUE(WIFEXITED(ausgang));
    EXPECT_EQ(WEXITSTATUS(ausgang), 61);
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "klein");
    for (std::size_t k = 1; k < Namen.size(); ++k)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(Namen[k].second)), "alt") << Namen[k].second;
    EXPECT_EQ(InhaltVon(Diskette).size(), 8U);
}

TEST_F(DateikopieTest, EinAbbruchMittenInEinerDateiBehältDieAlteUndDieNächsteKopieRäumtAuf)
{
    for (const auto &[name, klein] : Namen)
        DateiSchreiben(Diskette / PfadAus(klein), "alt");
    const int ausgang = KopieImKind(Festplatte, Diskette, 9000, false);
    ASSERT_TRUE(WIFSIGNALED(ausgang));
    for (const auto &[name, klein] : Namen) {
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(klein)), "alt") << klein;
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == Inhalt(name)) << name;
    }
    EXPECT_TRUE(fs::exists(Diskette / "konfig.cfg.neu"));
    AlleSichern();
    EXPECT_EQ(InhaltVon(Diskette).size(), 8U);
    EXPECT_TRUE(DateiLesen(Diskette / "konfig.cfg") == Inhalt("Konfig.cfg"));
}

TEST_F(DateikopieTest, EinVerzeichnisOhneSchreibrechtBleibtWieEsIst)
{
    constexpr int Niemand = 65534;
    fs::permissions(Festplatte.parent_path(), fs::perms::all);
    fs::permissions(Diskette, fs::perms::owner_read | fs::perms::owner_exec |
                                  fs::perms::others_read | fs::perms::others_exec);
    const int ausgang = KopieImKind(Festplatte, Diskette, RLIM_INFINITY, true, Niemand);
    ASSERT_TRUE(WIFEXITED(ausgang));
    EXPECT_EQ(WEXITSTATUS(ausgang), 75);
    EXPECT_TRUE(InhaltVon(Diskette).empty());
    fs::permissions(Diskette, fs::perms::all);
}

#endif

} // namespace
} // namespace altardienst
