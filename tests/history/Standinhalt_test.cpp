// How far a load gets with the eight files, in words.
#include "history/Standinhalt.h"

#include "Prüfstand.h"
#include "core/Allgemein.h"
#include "core/Felderlisten.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class StandinhaltTest : public Prüfstand {
  protected:
    StandinhaltTest()
    {
        Konfig.Gemeinde = "St. Ägid";
        for (const char *name : {"Adler", "Busch", "Clausen"}) {
            const int j = MeßdienerAnlegen("Kim", name);
            Meßdiener.Straße[j] = "Am Markt 3";
            Meßdiener.PLZ[j] = 48143;
            Meßdiener.Ort[j] = "Münster";
        }
        HelferAnlegen("Maria", "Linde", "Lektor");
        MesseMitDienern(Heute, 3);
        MesseMitDienern(Heute + 1, 3);
        Gruppe.Anzahl = 2;
    }

    Ladebefund Befund() const { return InhaltLesen(InhaltVon(Festplatte)).Befund; }

    /// After a save, the first lines of one of the files, or all of it but its last bytes.
    void Kürzen(const char *name, int zeilen) const
    {
        const fs::path pfad = Festplatte / PfadAus(name);
        std::string kurz;
        for (const std::string &zeile : ZeilenVon(DateiLesen(pfad))) {
            if (zeilen-- <= 0)
                break;
            kurz += zeile + "\r\n";
        }
        DateiSchreiben(pfad, kurz);
    }

    void ZeileErsetzen(const char *name, int nummer, const std::string &neue) const
    {
        const fs::path pfad = Festplatte / PfadAus(name);
        std::string bytes;
        for (const std::string &zeile : ZeilenVon(DateiLesen(pfad)))
            bytes += (--nummer == 0 ? neue : zeile) + "\r\n";
        DateiSchreiben(pfad, bytes);
    }
};

TEST_F(StandinhaltTest, WasDasProgrammSchreibtIstVollständig)
{
    AufFestplatteSpeichern();
    EXPECT_EQ(Befund().Was, Ladebefund::Vollständig);
    EXPECT_EQ(Befund().Satz(), "");
    EXPECT_TRUE(InhaltVon(Festplatte) == InhaltDerTabellen());
    EXPECT_TRUE(InhaltVon(Festplatte).Vollzählig());
}

TEST_F(StandinhaltTest, DerInhaltNenntDieGespeichertenNamen)
{
    NUR_WO_ES_GIBT(Schreibungen);
    AufFestplatteSpeichern();
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "HELFER.DAT");
    const Standinhalt inhalt = InhaltVon(Festplatte);
    EXPECT_EQ(inhalt.Dateien[DateiHelfer].Name, "HELFER.DAT");
    EXPECT_EQ(inhalt.Dateien[DateiMesse].Name, "Messen.dat");
    EXPECT_TRUE(inhalt == InhaltDerTabellen()) << "the same bytes";
}

TEST_F(StandinhaltTest, EinKommaInDerStraßeIstGefundenMitZeileUndWortlaut)
{
    Meßdiener.Straße[1] = "Am Markt 3, Hinterhaus";
    AufFestplatteSpeichern();
    const Ladebefund befund = Befund();
    EXPECT_EQ(befund.Was, Ladebefund::Unpassend);
    EXPECT_TRUE(befund.Abgebrochen);
    EXPECT_EQ(befund.Datei, "Meßdiener.dat");
    EXPECT_EQ(befund.Zeile, 2 + 27 + 3);
    EXPECT_EQ(befund.Inhalt, "Am Markt 3, Hinterhaus");
    EXPECT_EQ(befund.Satz(),
              "Meßdiener.dat ist nur bis Zeile 32 gelesen; dort steht „Am Markt 3, Hinterhaus“. "
              "Das Komma zerreißt die Datei.");
}

// What stands after the comma may pass for the postal code; then the record breaks further down.
TEST_F(StandinhaltTest, DasKommaIstAuchGefundenWoDieZeileDanachScheitert)
{
    Meßdiener.Straße[1] = "Am Markt 3, 4";
    Meßdiener.Telefon[1] = "0251 1234";
    AufFestplatteSpeichern();
    const Ladebefund befund = Befund();
    EXPECT_EQ(befund.Komma, 32);
    EXPECT_GT(befund.Zeile, 32);
    EXPECT_EQ(befund.MitKomma, "Am Markt 3, 4");
    EXPECT_NE(befund.Satz().find("Zerrissen hat sie das Komma in Zeile 32: „Am Markt 3, 4“."),
              Text::npos)
        << befund.Satz();
}

TEST_F(StandinhaltTest, EinWertDerNichtPaßtHatSeineZeileInJederDatei)
{
    AufFestplatteSpeichern();
    const Standinhalt ganz = InhaltVon(Festplatte);
    for (std::size_t i = 0; i < Dateien.size(); ++i) {
        const Dateiform &form = Dateiformen()[i];
        SCOPED_TRACE(form.Name);
        for (const int zeile : {0, 5, form.Zeilen / 2, form.Zeilen - 1}) {
            int diese = zeile; // a number or a date, at or after this line
            while (diese < form.Zeilen && Text("NLSDZ").find(form.Art(diese)) == Text::npos)
                ++diese;
            if (diese == form.Zeilen)
                continue;
            ZeileErsetzen(form.Name, diese + 1, "xyz");
            const Ladebefund befund = Befund();
            EXPECT_EQ(befund.Was, Ladebefund::Unpassend);
            EXPECT_EQ(befund.Datei, form.Name);
            EXPECT_EQ(befund.Zeile, diese + 1);
            EXPECT_EQ(befund.Inhalt, "xyz");
            DateiSchreiben(Festplatte / PfadAus(form.Name), *ganz.Dateien[i].Bytes);
        }
    }
}

TEST_F(StandinhaltTest, EineLeereDateiEndetNachIhremAnfang)
{
    AufFestplatteSpeichern();
    for (const Dateiform &form : Dateiformen()) {
        const std::string zuvor = DateiLesen(Festplatte / PfadAus(form.Name));
        DateiSchreiben(Festplatte / PfadAus(form.Name), "");
        const Ladebefund befund = Befund();
        EXPECT_EQ(befund.Was, Ladebefund::EndetVorher) << form.Name;
        EXPECT_EQ(befund.Satz(), Text(form.Name) + " endet zu früh, nach Zeile 0.");
        DateiSchreiben(Festplatte / PfadAus(form.Name), zuvor);
    }
}

// The reader takes such a file without a word.
TEST_F(StandinhaltTest, ZwischenZweiDatensätzenAbgeschnittenFehltDerLetzteBenutzte)
{
    AufFestplatteSpeichern();
    Kürzen("Messen.dat", 2 + 95);
    const Ladebefund befund = Befund();
    EXPECT_EQ(befund.Was, Ladebefund::EndetVorher);
    EXPECT_FALSE(befund.Abgebrochen);
    EXPECT_EQ(befund.Zeile, 2 + 95);
    AufFestplatteSpeichern();
    Kürzen("Meßdiener.dat", 2 + 2 * 27);
    EXPECT_EQ(Befund().Was, Ladebefund::EndetVorher);
    AufFestplatteSpeichern();
    Kürzen("Gruppen.dat", 2 + 1);
    EXPECT_EQ(Befund().Was, Ladebefund::EndetVorher);
    AufFestplatteSpeichern();
    Kürzen("Standard.dat", 1 + 5 * 14);
    EXPECT_EQ(Befund().Was, Ladebefund::EndetVorher);
    AufFestplatteSpeichern();
    Kürzen("Etiketten.dat", 1 + 20 * 8);
    EXPECT_EQ(Befund().Was, Ladebefund::EndetVorher);
}

TEST_F(StandinhaltTest, OhneDieUnbenutztenDatensätzeFehltNichts)
{
    MesseDienerFest.Anzahl = 1;
    AufFestplatteSpeichern();
    Kürzen("Messen.dat", 2 + 2 * 95);
    Kürzen("Meßdiener.dat", 2 + 3 * 27);
    Kürzen("Gruppen.dat", 2 + 2);
    Kürzen("MeßdienerMesse.dat", 2 + 62);
    Kürzen("Konfig.cfg", 15); // of an older version
    EXPECT_EQ(Befund().Satz(), "");
    Kürzen("MeßdienerMesse.dat", 2);
    EXPECT_EQ(Befund().Was, Ladebefund::EndetVorher);
}

TEST_F(StandinhaltTest, MehrGezählteAlsDieDateiFaßtIstKeinZuFrühesEnde)
{
    Gruppe.Anzahl = 500;
    AufFestplatteSpeichern();
    EXPECT_EQ(Befund().Satz(), "");
    Gruppe.Anzahl = -1;
    AufFestplatteSpeichern();
    EXPECT_EQ(Befund().Satz(), "");
}

TEST_F(StandinhaltTest, FehltOderUnlesbarIstZweierlei)
{
    NUR_WO_ES_GIBT(Verweise);
    AufFestplatteSpeichern();
    fs::remove(Festplatte / "Helfer.dat");
    EXPECT_EQ(Befund().Satz(), "Helfer.dat fehlt.");
    EXPECT_FALSE(InhaltVon(Festplatte).Vollzählig());
    fs::create_symlink("/dev/zero", Festplatte / "Helfer.dat");
    EXPECT_EQ(Befund().Satz(), "Helfer.dat lässt sich nicht lesen.");
}

TEST_F(StandinhaltTest, GelesenIstWasBisDahinStandUndDieTabellenBleiben)
{
    AufFestplatteSpeichern();
    ZeileErsetzen("Meßdiener.dat", 2 + 27 + 10, "groß");
    Meßdiener.Nachname[0] = "im Speicher";
    const Gelesenes gelesenes = InhaltLesen(InhaltVon(Festplatte));
    EXPECT_EQ(gelesenes.Tabellen.Diener->Nachname[0], "Adler");
    EXPECT_EQ(gelesenes.Tabellen.Diener->Nachname[1], "Busch");
    EXPECT_EQ(gelesenes.Tabellen.Diener->Nachname[2], "");
    EXPECT_EQ(gelesenes.Tabellen.Messehelfer->Anzahl, 0) << "as in a load that stops";
    EXPECT_EQ(Meßdiener.Nachname[0], "im Speicher");
    EXPECT_EQ(Helfer.Anzahl, 1);
}

TEST_F(StandinhaltTest, DieSkalenSindBegrenztWieNachEinemLaden)
{
    AufFestplatteSpeichern();
    ZeileErsetzen("Konfig.cfg", 21, " 0 ");
    EXPECT_EQ(InhaltLesen(InhaltVon(Festplatte)).Tabellen.Einstellungen->XSkala,
              KonfigDatensatz::SkalaVorgabe);
}

TEST_F(StandinhaltTest, EinZitatIstNichtLängerAlsEineZeile)
{
    AufFestplatteSpeichern();
    ZeileErsetzen("Messen.dat", 1, std::string(500, 'x'));
    EXPECT_EQ(Befund().Satz(),
              "Messen.dat ist nur bis Zeile 1 gelesen; dort steht „" + Text(60, 'x') + " …“.");
    ZeileErsetzen("Messen.dat", 1, "");
    EXPECT_EQ(Befund().Satz(), "Messen.dat ist nur bis Zeile 1 gelesen; dort steht nichts.");
}

} // namespace
} // namespace altardienst
