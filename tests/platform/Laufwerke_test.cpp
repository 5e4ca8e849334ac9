// The machine's own file system.
#include "platform/Laufwerke.h"

#include "platform/Lebenszeichen.h"

#include "Prüfstand.h"

#include <cstdlib>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class LaufwerkeTest : public Prüfstand {
  protected:
    LaufwerkeDienst System = Systemlaufwerke();
};

TEST_F(LaufwerkeTest, SuchenAchtetNichtAufGroßschreibung)
{
    DateiSchreiben(Festplatte / PfadAus("Meßdiener.dat"), "");
    DateiSchreiben(Festplatte / PfadAus("ÜBUNG.TXT"), "");
    EXPECT_EQ(System.Suchen(Festplatte, "Meßdiener.dat"), "Meßdiener.dat");
    EXPECT_EQ(System.Suchen(Festplatte, "meßdiener.dat"), "Meßdiener.dat");
    EXPECT_EQ(System.Suchen(Festplatte, "MEßDIENER.DAT"), "Meßdiener.dat");
    EXPECT_EQ(System.Suchen(Festplatte, "übung.txt"), "ÜBUNG.TXT");
    EXPECT_EQ(System.Suchen(Festplatte, "Meßdiener"), std::nullopt);
    EXPECT_EQ(System.Suchen(Festplatte, "Messdiener.dat"), std::nullopt);
}

TEST_F(LaufwerkeTest, DieGenaueSchreibungGehtVor)
{
    NUR_WO_ES_GIBT(Schreibungen);
    for (const char *name : {"KONFIG.CFG", "Konfig.cfg", "konfig.cfg"})
        DateiSchreiben(Festplatte / name, "");
    EXPECT_EQ(System.Suchen(Festplatte, "Konfig.cfg"), "Konfig.cfg");
    EXPECT_EQ(System.Suchen(Festplatte, "konfig.cfg"), "konfig.cfg");
    EXPECT_EQ(System.Suchen(Festplatte, "kONFIG.CFG"), "KONFIG.CFG") << "else the first by name";
}

TEST_F(LaufwerkeTest, SuchenImFehlendenVerzeichnisFindetNichts)
{
    EXPECT_EQ(System.Suchen(Festplatte / "nicht" / "da", "Konfig.cfg"), std::nullopt);
}

TEST_F(LaufwerkeTest, SuchenFindetKeineVerzeichnisse)
{
    NUR_WO_ES_GIBT(Schreibungen);
    fs::create_directory(Festplatte / "Konfig.cfg");
    EXPECT_EQ(System.Suchen(Festplatte, "Konfig.cfg"), std::nullopt);
    EXPECT_EQ(System.Suchen(Festplatte, "konfig.cfg"), std::nullopt);
    DateiSchreiben(Festplatte / "KONFIG.CFG", "");
    EXPECT_EQ(System.Suchen(Festplatte, "Konfig.cfg"), "KONFIG.CFG");
}

TEST_F(LaufwerkeTest, SchreibenLeertZuerst)
{
    fs::path pfad = Festplatte / PfadAus("Größe.txt");
    System.Schreiben(pfad, "lang und länger");
    System.Schreiben(pfad, "kurz\r\n");
    EXPECT_EQ(System.Lesen(pfad), "kurz\r\n");
    System.Anhängen(pfad, "mehr");
    EXPECT_EQ(System.Lesen(pfad), "kurz\r\nmehr");
    System.Schreiben(pfad, "");
    EXPECT_EQ(System.Lesen(pfad), "");
}

TEST_F(LaufwerkeTest, LesenBringtJedesByte)
{
    std::string bytes;
    for (int i = 0; i < 300000; ++i)
        bytes += static_cast<char>(i * 7 % 256);
    System.Schreiben(Festplatte / "x", bytes);
    EXPECT_TRUE(System.Lesen(Festplatte / "x") == bytes);
    bytes.resize(std::size_t(1) << 16);
    System.Schreiben(Festplatte / "x", bytes);
    EXPECT_TRUE(System.Lesen(Festplatte / "x") == bytes);
}

TEST_F(LaufwerkeTest, FehlerHabenIhreNummer)
{
    fs::path fehlt = Festplatte / "fehlt";
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(fehlt); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(fehlt / "x"); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { System.AttributeLöschen(fehlt); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { System.Schreiben(fehlt / "x", ""); }), 76);
    EXPECT_EQ(NummerDesFehlers([&] { System.Anhängen(fehlt / "x", ""); }), 76);
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(Festplatte); }), 75);
    EXPECT_EQ(NummerDesFehlers([&] { System.Schreiben(Festplatte, ""); }), 75);
}

#ifndef _WIN32

/// A read that never ends would hang the test; it is cut off.
TEST_F(LaufwerkeTest, NurDateienWerdenGelesen)
{
    const fs::path röhre = Festplatte / "pipe";
    ASSERT_EQ(mkfifo(röhre.c_str(), 0600), 0);
    alarm(20);
    for (const fs::path &pfad : {röhre, fs::path("/dev/zero"), fs::path("/dev/null")})
        for (const int nummer : {NummerDesFehlers([&] { System.Lesen(pfad); }),
                                 NummerDesFehlers([&] { System.Größe(pfad); })})
            EXPECT_EQ(nummer, 75) << pfad;
    fs::create_symlink("/dev/zero", Festplatte / "Messen.dat");
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(Festplatte / "Messen.dat"); }), 75);
    EXPECT_EQ(
        NummerDesFehlers([&] { System.Kopieren(Festplatte / "Messen.dat", Festplatte / "x"); }),
        75);
    alarm(0);
    EXPECT_NE(System.Lesen("/proc/self/mounts"), "") << "tells no size, but is a file";
}

/// Nor does a write wait for someone who reads.
TEST_F(LaufwerkeTest, InEineRöhreWirdNichtGeschrieben)
{
    const fs::path röhre = Festplatte / "Konfig.cfg";
    ASSERT_EQ(mkfifo(röhre.c_str(), 0600), 0);
    alarm(20);
    EXPECT_EQ(NummerDesFehlers([&] { System.Schreiben(röhre, "x"); }), 75);
    EXPECT_EQ(NummerDesFehlers([&] { System.Anhängen(röhre, "x"); }), 75);
    alarm(0);
    EXPECT_EQ(NummerDesFehlers([&] { System.Schreiben("/dev/null", "x"); }), 0);
}

TEST_F(LaufwerkeTest, EineÜbergroßeDateiWirdNichtGelesen)
{
    System.Schreiben(Festplatte / PfadAus("groß"), "");
    fs::resize_file(Festplatte / PfadAus("groß"), GrößteDatei + 1); // takes no space
    EXPECT_EQ(System.Größe(Festplatte / PfadAus("groß")), GrößteDatei + 1);
    EXPECT_EQ(NummerDesFehlers([&] { System.Größe(Festplatte / "fehlt"); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(Festplatte / PfadAus("groß")); }), 75);
    EXPECT_EQ(
        NummerDesFehlers([&] { System.Kopieren(Festplatte / PfadAus("groß"), Festplatte / "x"); }),
        75);
}

#endif

TEST_F(LaufwerkeTest, UmbenennenErsetztNichts)
{
    System.Schreiben(Festplatte / "a", "1");
    System.Schreiben(Festplatte / "b", "2");
    EXPECT_EQ(NummerDesFehlers([&] { System.Umbenennen(Festplatte / "a", Festplatte / "b"); }), 58);
    EXPECT_EQ(System.Lesen(Festplatte / "b"), "2");
    EXPECT_EQ(NummerDesFehlers([&] { System.Umbenennen(Festplatte / "c", Festplatte / "d"); }), 53);
    System.Umbenennen(Festplatte / "a", Festplatte / "c");
    EXPECT_EQ(System.Lesen(Festplatte / "c"), "1");
    EXPECT_FALSE(fs::exists(Festplatte / "a"));
    fs::create_directories(Festplatte / "ordner");
    fs::create_directories(Festplatte / "leer");
    EXPECT_EQ(
        NummerDesFehlers([&] { System.Umbenennen(Festplatte / "ordner", Festplatte / "leer"); }),
        58);
}

TEST_F(LaufwerkeTest, LöschenNimmtAllesDarinUndFolgtKeinemVerweis)
{
    NUR_WO_ES_GIBT(Verweise);
    System.VerzeichnisAnlegen(Festplatte / "a" / "b");
    System.Schreiben(Festplatte / "a" / "b" / "x", "1");
    System.Schreiben(Festplatte / "fremd", "2");
    fs::create_symlink(Festplatte / "fremd", Festplatte / "a" / "verweis");
    System.Löschen(Festplatte / "a");
    EXPECT_FALSE(fs::exists(Festplatte / "a"));
    EXPECT_EQ(System.Lesen(Festplatte / "fremd"), "2");
    EXPECT_NO_THROW(System.Löschen(Festplatte / "a")) << "may be gone";
    EXPECT_EQ(NummerDesFehlers([&] { System.Löschen(Festplatte / "fremd" / "x"); }), 76);
}

TEST_F(LaufwerkeTest, DurchschreibenNimmtDateienUndVerzeichnisse)
{
    System.Schreiben(Festplatte / "x", "1");
    EXPECT_NO_THROW(System.Durchschreiben(Festplatte / "x"));
    EXPECT_NO_THROW(System.Durchschreiben(Festplatte));
    EXPECT_EQ(NummerDesFehlers([&] { System.Durchschreiben(Festplatte / "fehlt"); }), 53);
}

TEST_F(LaufwerkeTest, AttributeLöschenMachtSchreibbar)
{
    NUR_WO_ES_GIBT(Rechte);
    DateiSchreiben(Festplatte / "x", "");
    fs::permissions(Festplatte / "x", fs::perms::owner_read);
    System.AttributeLöschen(Festplatte / "x");
    EXPECT_EQ(fs::status(Festplatte / "x").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(LaufwerkeTest, VerzeichnisseEntstehenMitDenenDarüber)
{
    System.VerzeichnisAnlegen(Festplatte / "a" / "b");
    EXPECT_TRUE(fs::is_directory(Festplatte / "a" / "b"));
    EXPECT_NO_THROW(System.VerzeichnisAnlegen(Festplatte / "a" / "b")) << "may exist";
    DateiSchreiben(Festplatte / "datei", "");
    EXPECT_NE(NummerDesFehlers([&] { System.VerzeichnisAnlegen(Festplatte / "datei"); }), 0);
    EXPECT_NE(NummerDesFehlers([&] { System.VerzeichnisAnlegen(Festplatte / "datei" / "x"); }), 0);
}

TEST_F(LaufwerkeTest, UmbenennenÄndertAuchNurDieSchreibung)
{
    NUR_WO_ES_GIBT(Schreibungen);
    const fs::path groß = Festplatte / PfadAus("Größe");
    DateiSchreiben(Festplatte / "alt", "Inhalt");
    System.Umbenennen(Festplatte / "alt", Festplatte / PfadAus("größe"));
    System.Umbenennen(Festplatte / PfadAus("größe"), groß);
    EXPECT_EQ(System.Auflisten(Festplatte).Dateien, std::vector<Text>{"Größe"});
    EXPECT_EQ(DateiLesen(groß), "Inhalt");
    DateiSchreiben(Festplatte / "andere", "bleibt");
    fs::create_symlink("nirgends", Festplatte / "Verweis");
    for (const char *ziel : {"andere", "ANDERE", "Verweis"})
        EXPECT_EQ(NummerDesFehlers([&] { System.Umbenennen(groß, Festplatte / ziel); }), 58)
            << ziel;
    EXPECT_EQ(DateiLesen(Festplatte / "andere"), "bleibt");
    EXPECT_EQ(DateiLesen(groß), "Inhalt");
    EXPECT_EQ(NummerDesFehlers([&] { System.Umbenennen(groß, Festplatte / "weg" / "x"); }), 76);
}

TEST_F(LaufwerkeTest, JederZugriffGibtEinLebenszeichen)
{
    int zeichen = 0;
    const auto zuvor = std::exchange(Lebenszeichen, [&] { ++zeichen; });
    const auto gibtEines = [&](auto tun) { // at least one
        zeichen = 0;
        tun();
        return zeichen > 0;
    };
    DateiSchreiben(Festplatte / "x", "");
    EXPECT_TRUE(gibtEines([&] { System.Lesen(Festplatte / "x"); }));
    EXPECT_TRUE(gibtEines([&] { System.Schreiben(Festplatte / "x", "1"); }));
    EXPECT_TRUE(gibtEines([&] { System.Anhängen(Festplatte / "x", "1"); }));
    EXPECT_TRUE(gibtEines([&] { System.Kopieren(Festplatte / "x", Festplatte / "y"); }));
    EXPECT_TRUE(gibtEines([&] { System.Umbenennen(Festplatte / "y", Festplatte / "z"); }));
    EXPECT_TRUE(gibtEines([&] { System.Suchen(Festplatte, "X"); }));
    EXPECT_TRUE(gibtEines([&] { System.Auflisten(Festplatte); }));
    DateiSchreiben(Festplatte / PfadAus("groß"), std::string(1000000, 'x'));
    System.Lesen(Festplatte / PfadAus("groß"));
    EXPECT_GT(zeichen, 10) << "between the parts of a file too";
    Lebenszeichen = zuvor;
}

TEST_F(LaufwerkeTest, EinDateinameGehtAufJedemSystem)
{
    EXPECT_EQ(AlsDateiname("Helferliste"), "Helferliste");
    EXPECT_EQ(AlsDateiname("Meßdienerliste Große & Kleine"), "Meßdienerliste Große & Kleine");
    EXPECT_EQ(AlsDateiname("a/b\\c:d*e?f\"g<h>i|j\nk"), "a-b-c-d-e-f-g-h-i-j-k");
    EXPECT_EQ(AlsDateiname(" ..Etiketten St. Martin. "), "Etiketten St. Martin");
    EXPECT_EQ(AlsDateiname(" . "), "");
    EXPECT_EQ(AlsDateiname(""), "");
}

TEST_F(LaufwerkeTest, EinDateinameStehtFürKeinGerät)
{
    for (const char *gerät :
         {"Aux", "CON", "prn", "NUL", "Com0", "COM1", "lpt9", "COM²", "conin$", "CONOUT$"})
        EXPECT_EQ(AlsDateiname(gerät), Text(gerät) + "-");
    EXPECT_EQ(AlsDateiname("Aux.2026"), "Aux-.2026");
    EXPECT_EQ(AlsDateiname("Con . Rad"), "Con- . Rad");
    EXPECT_EQ(AlsDateiname(" nul. "), "nul-");
    for (const char *name : {"Auxilia", "Con Rad", "Com", "Com10", "COMa", "Lpt", "Anna.Aux", "-"})
        EXPECT_EQ(AlsDateiname(name), name);
}

TEST_F(LaufwerkeTest, VonEinemLangenDateinamenBleibtDerAnfang)
{
    const Text a149(149, 'a');
    EXPECT_EQ(AlsDateiname(a149 + "b"), a149 + "b");
    EXPECT_EQ(AlsDateiname(a149 + "bc"), a149 + "b");
    EXPECT_EQ(AlsDateiname(a149 + "ä"), a149);               // no half of a character
    EXPECT_EQ(AlsDateiname(a149 + " Adler"), a149);          // no blank at the end
    EXPECT_EQ(AlsDateiname("  " + a149 + "bc"), a149 + "b"); // what goes anyway counts for nothing
    EXPECT_EQ(AlsDateiname("Aux." + a149), "Aux-." + a149.substr(0, 146));
    Text name;
    for (int i = 0; i < 250; ++i)
        name += "€";
    name = AlsDateiname(name) + ".ics";
    Laufwerke.Schreiben(Festplatte / PfadAus(name + ".unfertig"), "x");
    EXPECT_EQ(Laufwerke.Lesen(Festplatte / PfadAus(name + ".unfertig")), "x");
}

TEST_F(LaufwerkeTest, TexteUndPfadeSindEinUndDasselbe)
{
    EXPECT_EQ(TextVon(PfadAus("Meßdiener.dat")), "Meßdiener.dat");
    EXPECT_EQ(TextVon(PfadAus("a") / PfadAus("ß")), TextVon(PfadAus("a/ß").make_preferred()));
}

TEST_F(LaufwerkeTest, EinOrdnerEndetMitEinemTrenner)
{
    EXPECT_EQ(OrdnerText("/"), TextVon("/"));
    EXPECT_EQ(OrdnerText("/a/b"), TextVon(fs::path("/a/b/")));
    EXPECT_EQ(OrdnerText("/a/b/"), TextVon(fs::path("/a/b/")));
}

TEST_F(LaufwerkeTest, MitgelieferteDatenLiegenInstalliertDanebenOderImBau)
{
    EXPECT_EQ(MitgelieferteDaten(Festplatte / "bin"), "");
    for (const char *ort : {"data", "share/altardienst", "bin/data"}) {
        fs::create_directories(Festplatte / "bin");
        fs::create_directories(Festplatte / ort / "leer");
        const fs::path programm =
            Text(ort) == "data" ? Festplatte / "build" / "dev" : Festplatte / "bin";
        EXPECT_EQ(MitgelieferteDaten(programm), Festplatte / ort);
        fs::remove_all(Festplatte / ort);
    }
    fs::create_directories(Festplatte / "share" / "altardienst");
    EXPECT_EQ(MitgelieferteDaten(Festplatte / "bin"), "") << "without the data in it";
}

#ifndef _WIN32

/// An environment variable for one test.
class Umgebung {
  public:
    Umgebung(const char *name, const char *wert) : name(name)
    {
        if (const char *alt = std::getenv(name))
            zuvor = alt;
        wert ? setenv(name, wert, 1) : unsetenv(name);
    }
    ~Umgebung() { zuvor ? setenv(name, zuvor->c_str(), 1) : unsetenv(name); }

  private:
    const char *name;
    std::optional<std::string> zuvor;
};

TEST_F(LaufwerkeTest, DieUmgebungNenntVerzeichnisUndDiskette)
{
    Umgebung daten("ALTARDIENST_DATEN", "/tmp/daten");
    Umgebung diskette("ALTARDIENST_DISKETTE", "/tmp/diskette");
    EXPECT_EQ(System.Programmverzeichnis(), "/tmp/daten");
    EXPECT_EQ(System.Diskette(), "/tmp/diskette");
}

TEST_F(LaufwerkeTest, OhneAngabeLiegenDieDatenBeimBenutzer)
{
    Umgebung daten("ALTARDIENST_DATEN", nullptr);
    Umgebung diskette("ALTARDIENST_DISKETTE", "");
    Umgebung heim("HOME", "/home/küster");
    EXPECT_EQ(System.Programmverzeichnis(), "/home/küster/.local/share/Altardienst");
    EXPECT_EQ(System.Diskette(), "/media/floppy");
    const auto wurzeln = System.Wurzeln();
    ASSERT_GE(wurzeln.size(), 3U);
    EXPECT_EQ(wurzeln[0].Pfad, "/home/küster");
    EXPECT_EQ(wurzeln[1].Pfad, "/media/floppy");
    EXPECT_EQ(wurzeln.back().Pfad, "/");
}

TEST_F(LaufwerkeTest, JedesProgrammverzeichnisHatSeineEigenenAusweichverzeichnisse)
{
    const Umgebung heim("HOME", "/heim");
    const Umgebung ort("XDG_STATE_HOME", nullptr);
    const Umgebung sitzung("XDG_RUNTIME_DIR", "/sitzung");
    {
        const Umgebung daten("ALTARDIENST_DATEN", nullptr);
        EXPECT_EQ(
            System.Ausweichverzeichnisse(),
            (std::vector<fs::path>{"/heim/.local/state/Altardienst/heim/.local/share/Altardienst",
                                   "/sitzung/Altardienst/heim/.local/share/Altardienst"}));
    }
    for (const char *daten : {"/srv/proben", "/srv/proben/", "/srv/x/../proben"}) {
        const Umgebung diese("ALTARDIENST_DATEN", daten);
        EXPECT_EQ(System.Ausweichverzeichnisse()[0], "/heim/.local/state/Altardienst/srv/proben");
    }
}

TEST_F(LaufwerkeTest, EingehängteDatenträgerSindWurzelnAndereDateisystemeNicht)
{
    Umgebung diskette("ALTARDIENST_DISKETTE", "/media/diskette");
    const auto wurzeln =
        EingehängteDatenträger("/dev/sda1 / ext4 rw,relatime 0 0\n"
                               "proc /proc proc rw 0 0\n"
                               "/dev/sdb1 /media/kuester/USB\\040STICK vfat rw 0 0\n"
                               "/dev/sdc1 /run/media/kuester/Größe\\134 exfat rw 0 0\n"
                               "/dev/fd0 /media/diskette vfat rw 0 0\n"
                               "/dev/sdd1 /mnt ext4 rw 0 0\n"
                               "/dev/sde1 /mntx ext4 rw 0 0\n"
                               "\n"
                               "halb");
    ASSERT_EQ(wurzeln.size(), 3U);
    EXPECT_EQ(wurzeln[0].Name, "USB STICK");
    EXPECT_EQ(wurzeln[0].Pfad, "/media/kuester/USB STICK");
    EXPECT_EQ(wurzeln[1].Name, "Größe\\");
    EXPECT_EQ(wurzeln[2].Pfad, "/mnt");
    EXPECT_TRUE(EingehängteDatenträger("").empty());
}

#endif

#ifdef _WIN32

TEST_F(LaufwerkeTest, DieLaufwerkeHabenBuchstabenUndCStehtVorn)
{
    const auto wurzeln = System.Wurzeln();
    ASSERT_FALSE(wurzeln.empty());
    EXPECT_EQ(wurzeln[0].Name, "c:\\");
    EXPECT_EQ(System.Programmverzeichnis(), "c:\\programm\\Altardienst\\");
    EXPECT_EQ(System.Diskette(), "a:\\");
}

TEST_F(LaufwerkeTest, VerborgenesStehtNichtInDerListe)
{
    for (const char *name : {"gezeigt", "versteckt", "system"})
        System.Schreiben(Festplatte / name, "");
    SetFileAttributesW((Festplatte / "versteckt").c_str(), FILE_ATTRIBUTE_HIDDEN);
    SetFileAttributesW((Festplatte / "system").c_str(), FILE_ATTRIBUTE_SYSTEM);
    EXPECT_EQ(System.Auflisten(Festplatte).Dateien, std::vector<Text>{"gezeigt"});
    System.AttributeLöschen(Festplatte / "versteckt");
    EXPECT_EQ(System.Auflisten(Festplatte).Dateien, (std::vector<Text>{"gezeigt", "versteckt"}));
}

TEST_F(LaufwerkeTest, LangePfadeMitUmlauten)
{
    fs::path tief = Festplatte;
    for (int k = 0; k < 6; ++k)
        tief /= PfadAus("Verzeichnis für Meßdiener, ein recht langer Name, wie es ihn gibt");
    ASSERT_GT(tief.native().size(), 260U);
    System.VerzeichnisAnlegen(tief);
    System.Schreiben(tief / PfadAus("Größe.dat"), "1");
    System.Anhängen(tief / PfadAus("Größe.dat"), "2");
    System.Durchschreiben(tief / PfadAus("Größe.dat"));
    EXPECT_EQ(System.Lesen(tief / PfadAus("Größe.dat")), "12");
    EXPECT_EQ(System.Suchen(tief, "größe.DAT"), "Größe.dat");
    EXPECT_EQ(System.Auflisten(tief).Dateien, std::vector<Text>{"Größe.dat"});
    System.Kopieren(tief / PfadAus("Größe.dat"), tief / "Kopie.dat");
    System.Kopieren(tief / PfadAus("Größe.dat"), tief / "Kopie.dat"); // over itself, too
    System.Umbenennen(tief / "Kopie.dat", tief / "anders.dat");
    EXPECT_EQ(System.Lesen(tief / "anders.dat"), "12");
    // A directory in use elsewhere keeps what is in it.
    DateiSchreiben(Diskette / "bleibt", "");
    const fs::path zuvor = fs::current_path();
    fs::current_path(Diskette);
    System.Löschen(tief);
    EXPECT_TRUE(fs::exists(Diskette / "bleibt"));
    fs::current_path(zuvor);
    EXPECT_EQ(NummerDesFehlers([&] { System.Lesen(tief / PfadAus("Größe.dat")); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { System.Auflisten(tief); }), 76);
    System.VerzeichnisAnlegen(tief / "");
    EXPECT_TRUE(System.Auflisten(tief.parent_path()).Dateien.empty());
    EXPECT_EQ(System.Auflisten(tief.parent_path()).Verzeichnisse.size(), 1U);
    System.Löschen(tief.parent_path());
}

TEST_F(LaufwerkeTest, KopierenÜberschreibtUndSchontSchreibgeschützte)
{
    System.Schreiben(Festplatte / "a", "neu");
    System.Schreiben(Festplatte / "b", "alt");
    System.Kopieren(Festplatte / "a", Festplatte / "b");
    EXPECT_EQ(System.Lesen(Festplatte / "b"), "neu");
    SetFileAttributesW((Festplatte / "b").c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(NummerDesFehlers([&] { System.Kopieren(Festplatte / "a", Festplatte / "b"); }), 75);
    System.AttributeLöschen(Festplatte / "b");
    EXPECT_NO_THROW(System.Kopieren(Festplatte / "a", Festplatte / "b"));
}

#endif

} // namespace
} // namespace altardienst
