// Why a directory cannot be copied from, and files that get the names under which they are sought.
#include "settings/Dateikopie.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

constexpr std::array<const char *, 8> Suchfolgenamen = {
    "Etiketten.dat", "Gruppen.dat",  "Helfer.dat", "Meßdiener.dat",
    "Messen.dat",    "Standard.dat", "Konfig.cfg", "MeßdienerMesse.dat"};

/// The diskette holds a backup: eight files in small letters, each with its own content.
class DateinamenTest : public Prüfstand {
  protected:
    DateinamenTest()
    {
        for (const char *name : Suchfolgenamen)
            DateiSchreiben(Diskette / PfadAus(Klein(name)), name);
    }

    void Eigene() const
    {
        for (const char *name : Suchfolgenamen)
            if (fs::exists(Diskette / PfadAus(Klein(name))))
                fs::rename(Diskette / PfadAus(Klein(name)), Diskette / PfadAus(name));
    }

    Liste DateienDort() const { return Laufwerke.Auflisten(Diskette).Dateien; }
    Text Satz() const { return DateimängelSatz(DateimängelIn(Diskette)); }
    Text Berichtigt() const { return NamenBerichtigen(Diskette); }
};

TEST_F(DateinamenTest, EineVollständigeQuelleHatKeineMängel)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Eigene();
    EXPECT_TRUE(DateimängelIn(Diskette).Keine());
    EXPECT_FALSE(DateimängelIn(Diskette).SindNurNamen());
    EXPECT_EQ(Satz(), "");
}

TEST_F(DateinamenTest, EineFehlendeDateiWirdBeiIhremNamenGenannt)
{
    Eigene();
    fs::remove(Diskette / "Etiketten.dat");
    EXPECT_EQ(Satz(), "Hier fehlt: Etiketten.dat");
    fs::remove(Diskette / "Konfig.cfg");
    EXPECT_EQ(Satz(), "Hier fehlen: Etiketten.dat, Konfig.cfg");
    EXPECT_FALSE(DateimängelIn(Diskette).SindNurNamen());
    for (const auto &datei : fs::directory_iterator(Diskette))
        fs::remove(datei);
    EXPECT_EQ(Satz(), "Hier liegt keine der acht Dateien.");
    fs::remove(Diskette);
    EXPECT_EQ(Satz(), "Hier liegt keine der acht Dateien.");
}

TEST_F(DateinamenTest, AndereSchreibungenSindNurNamen)
{
    NUR_WO_ES_GIBT(Schreibungen);
    EXPECT_TRUE(DateimängelIn(Diskette).SindNurNamen());
    EXPECT_EQ(Satz(), "Hier heißen 8 Dateien anders, etwa etiketten.dat statt Etiketten.dat");
    Eigene();
    fs::rename(Diskette / "Helfer.dat", Diskette / "HELFER.DAT");
    EXPECT_EQ(Satz(), "Hier heißt 1 Datei anders: HELFER.DAT statt Helfer.dat");
    fs::remove(Diskette / "Messen.dat");
    EXPECT_EQ(Satz(), "Hier fehlt: Messen.dat");
    EXPECT_FALSE(DateimängelIn(Diskette).SindNurNamen()) << "names alone would not help";
}

TEST_F(DateinamenTest, BerichtigenGibtAllenIhrenNamenUndLässtDenInhalt)
{
    EXPECT_EQ(Berichtigt(), "8 Namen berichtigt.");
    EXPECT_EQ(DateienDort().size(), 8U);
    for (const char *name : Suchfolgenamen)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(name)), name);
    EXPECT_TRUE(AlleDateienVorhanden(Diskette));
}

TEST_F(DateinamenTest, NurWasAndersHeißtWirdUmbenannt)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Eigene();
    fs::rename(Diskette / "Helfer.dat", Diskette / "HELFER.DAT");
    EXPECT_EQ(Berichtigt(), "1 Name berichtigt.");
    EXPECT_TRUE(AlleDateienVorhanden(Diskette));
    EXPECT_EQ(DateiLesen(Diskette / "Helfer.dat"), "Helfer.dat");
}

TEST_F(DateinamenTest, EineZweiteSchreibungDanebenWirdNieÜberschrieben)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Eigene();
    DateiSchreiben(Diskette / "konfig.cfg", "andere");
    EXPECT_FALSE(AlleDateienVorhanden(Diskette));
    EXPECT_FALSE(DateimängelIn(Diskette).SindNurNamen());
    EXPECT_EQ(Satz(),
              "Hier liegen konfig.cfg und Konfig.cfg nebeneinander; eine von beiden muss weg.");
    Berichtigt();
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "andere");
    EXPECT_EQ(DateiLesen(Diskette / "Konfig.cfg"), "Konfig.cfg");
    EXPECT_EQ(DateienDort().size(), 9U);
}

TEST_F(DateinamenTest, EinVerzeichnisImWegBleibtUndDieDateiBehältIhrenNamen)
{
    NUR_WO_ES_GIBT(Schreibungen);
    fs::create_directory(Diskette / "Konfig.cfg");
    EXPECT_EQ(Berichtigt(), "7 Namen berichtigt, nicht aber: konfig.cfg (Datei existiert bereits)");
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "Konfig.cfg");
    EXPECT_TRUE(fs::is_directory(Diskette / "Konfig.cfg"));
    EXPECT_EQ(DateienDort().size(), 8U) << "nothing is left halfway";
}

TEST_F(DateinamenTest, EinScheiternWirdInWortenGesagtUndHältDieAnderenNichtAuf)
{
    Laufwerke.Umbenennen = [um = Laufwerke.Umbenennen](const fs::path &von, const fs::path &nach) {
        if (von.filename() == "gruppen.dat")
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        um(von, nach);
    };
    EXPECT_EQ(Berichtigt(), "7 Namen berichtigt, nicht aber: gruppen.dat (Zugriff verweigert)");
    EXPECT_EQ(Berichtigt(), "Kein Name berichtigt: gruppen.dat (Zugriff verweigert)");
    EXPECT_EQ(DateiLesen(Diskette / "gruppen.dat"), "Gruppen.dat");
}

/// As on some sticks: another spelling is the same name, so there is nothing to rename.
class OhneGroßschreibung : public DateinamenTest {
  protected:
    OhneGroßschreibung()
    {
        Laufwerke.Umbenennen = [this, um = Laufwerke.Umbenennen](const fs::path &von,
                                                                 const fs::path &nach) {
            const Text alt = TextVon(von.filename());
            const Text neu = TextVon(nach.filename());
            Schritte.push_back(alt + " > " + neu);
            if (Schritte.back() == gesperrt)
                throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
            if (Klein(alt) != Klein(neu))
                um(von, nach);
        };
    }

    Liste Schritte;
    Text gesperrt;
};

TEST_F(OhneGroßschreibung, GehtAufEinemUmweg)
{
    EXPECT_EQ(Berichtigt(), "8 Namen berichtigt.");
    EXPECT_TRUE(AlleDateienVorhanden(Diskette));
    for (const char *name : Suchfolgenamen)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(name)), name);
    EXPECT_EQ(Liste(Schritte.begin(), Schritte.begin() + 3),
              (Liste{"etiketten.dat > Etiketten.dat", "etiketten.dat > Etiketten.dat.umbenannt",
                     "Etiketten.dat.umbenannt > Etiketten.dat"}));
}

TEST_F(OhneGroßschreibung, EinUmwegDerNichtEndetGehtZurück)
{
    gesperrt = "Helfer.dat.umbenannt > Helfer.dat";
    EXPECT_EQ(Berichtigt(), "7 Namen berichtigt, nicht aber: helfer.dat (Zugriff verweigert)");
    EXPECT_EQ(DateiLesen(Diskette / "helfer.dat"), "Helfer.dat");
    EXPECT_EQ(DateienDort().size(), 8U);
}

TEST_F(OhneGroßschreibung, EinUmwegDerBesetztIstWirdNichtÜberschrieben)
{
    DateiSchreiben(Diskette / "Helfer.dat.umbenannt", "fremd");
    EXPECT_EQ(Berichtigt(), "7 Namen berichtigt, nicht aber: helfer.dat (Datei existiert bereits)");
    EXPECT_EQ(DateiLesen(Diskette / "Helfer.dat.umbenannt"), "fremd");
    EXPECT_EQ(DateiLesen(Diskette / "helfer.dat"), "Helfer.dat");
}

TEST_F(DateinamenTest, WasKopiertUndGeholtWurdeInEinemSatz)
{
    const Text stick = OrdnerText("/media/Stick");
    const Text wurzel = OrdnerText("/");
    EXPECT_EQ(KopiertSatz(8, "/media/Stick"), "8 Dateien nach " + stick + " kopiert");
    EXPECT_EQ(KopiertSatz(1, "/"), "1 Datei nach " + wurzel + " kopiert");
    EXPECT_EQ(GeholtSatz(8, "/media/Stick", {}), "8 Dateien aus " + stick + " geholt und geladen");
    EXPECT_EQ(GeholtSatz(1, "/media/Stick", {{"Konfig.cfg"}, "Standard.dat", true}),
              "1 Datei aus " + stick +
                  " geholt, aber nicht alles geladen: bei Standard.dat "
                  "abgebrochen");
}

} // namespace
} // namespace altardienst
