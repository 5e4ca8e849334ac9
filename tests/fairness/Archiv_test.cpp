// The archive of past plans.
#include "fairness/Archiv.h"

#include "Prüfstand.h"
#include "overview/Platz.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class ArchivTest : public Prüfstand {
  protected:
    const Datum Beginn = DatumAus({2026, 11, 28});
    const Archivzeitraum Zeitraum{DatumAus({2026, 11, 28}), DatumAus({2026, 12, 5})};

    ArchivTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        MeßdienerAnlegen("Änne", "Groß; Weiß");
        HelferAnlegen("Maria", "Linde", "Lektor");
        MesseMitDienern(Beginn, 2);
        MesseMitDienern(Beginn + 7, 1);
        Messe.Messeart[0] = "Vorabend\"messe";
        Messe.Leuchter[0] = 1;
        Messe.LektorZahl[0] = 1;
        Besetzen(Messe, Dienerplatznr(0, 1), "Kim", "Adler");
        Besetzen(Messe, Dienerplatznr(0, 2), "Änne", "Groß; Weiß");
        Besetzen(Messe, Dienerplatznr(1, 1), "Kim", "Adler");
        Besetzen(Messe, Dienerplatznr(1, 2), "Beyond", "Count");
        Besetzen(Messe, Helferplatznr(0, 0), "Maria", "Linde");
    }

    fs::path Datei() const { return Festplatte / "Archiv" / Archivname(Zeitraum); }
};

TEST_F(ArchivTest, EineDateiJeZeitraumDieEineTabelleÖffnet)
{
    EXPECT_TRUE(PlanArchivieren());
    EXPECT_EQ(Archivname(Zeitraum), "Plan 2026-11-28 bis 2026-12-05.csv");
    EXPECT_EQ(DateiLesen(Datei()),
              "\xEF\xBB\xBF"
              "Datum;Uhrzeit;Messe;Vorname;Nachname;Dienst\r\n"
              "28.11.2026;10:00;\"Vorabend\"\"messe\";Kim;Adler;Leuchter\r\n"
              "28.11.2026;10:00;\"Vorabend\"\"messe\";Änne;\"Groß; Weiß\";Allgemein\r\n"
              "28.11.2026;10:00;\"Vorabend\"\"messe\";Maria;Linde;Lektor\r\n"
              "05.12.2026;10:00;Messe;Kim;Adler;Allgemein\r\n");
    EXPECT_EQ(ArchivierteZeiträume(), std::vector{Zeitraum});
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste, DiensteDesPlans(GemeinsameTabellen()));
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte / "Archiv").Dateien,
              std::vector{Archivname(Zeitraum)});
}

TEST_F(ArchivTest, OhneNamenGibtEsNichtsAufzuheben)
{
    for (int i = 0; i < 2; ++i)
        for (int slot = 1; slot <= 2; ++slot)
            Leeren(Messe, Dienerplatznr(i, slot));
    Leeren(Messe, Helferplatznr(0, 0));
    EXPECT_FALSE(PlanArchivieren());
    EXPECT_FALSE(fs::exists(Festplatte / "Archiv"));
    EXPECT_TRUE(ArchivierteZeiträume().empty());
}

TEST_F(ArchivTest, DerselbeZeitraumErsetztSeineDatei)
{
    PlanArchivieren();
    Besetzen(Messe, Dienerplatznr(1, 1), "Änne", "Groß; Weiß");
    PlanArchivieren();
    EXPECT_EQ(ArchivierteZeiträume().size(), 1U);
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste.back().Vorname, "Änne");
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste.size(), 4U);
}

TEST_F(ArchivTest, EinNeuerNameZiehtEinUndUnlesbareZeilenBleiben)
{
    PlanArchivieren();
    DateiSchreiben(Datei(), DateiLesen(Datei()) + "von Hand: Kim;Adler\r\n");
    EXPECT_EQ(ImArchivUmbenennen({"Kim", "Adler"}, {"Kim", "Busch"}, false), 0);
    const Archivinhalt inhalt = ArchivLesen(Zeitraum);
    EXPECT_EQ(inhalt.Dienste.front().Nachname, "Busch");
    EXPECT_EQ(inhalt.Dienste.back().Nachname, "Busch");
    EXPECT_EQ(inhalt.Dienste.size(), 4U);
    EXPECT_EQ(inhalt.Unlesbar, 1);
    EXPECT_NE(DateiLesen(Datei()).find("von Hand: Kim;Adler\r\n"), std::string::npos);
    // A helper of the same name is somebody else.
    ImArchivUmbenennen({"Maria", "Linde"}, {"Maria", "Falsch"}, false);
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste[2].Nachname, "Linde");
    ImArchivUmbenennen({"Maria", "Linde"}, {"Maria", "Eich"}, true);
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste[2].Nachname, "Eich");
}

TEST_F(ArchivTest, LiestWasEineTabellenkalkulationDarausMacht)
{
    PlanArchivieren();
    DateiSchreiben(Datei(), "Datum,Uhrzeit,Messe,Vorname,Nachname,Dienst\n"
                            "28.11.2026,10:00,Hochamt,\xC4nne,\"Gro\xDF, W\",Leuchter\n"
                            ",,,,,\n");
    const Archivinhalt inhalt = ArchivLesen(Zeitraum);
    ASSERT_EQ(inhalt.Dienste.size(), 1U);
    EXPECT_EQ(inhalt.Dienste[0].Vorname, "Änne");
    EXPECT_EQ(inhalt.Dienste[0].Nachname, "Groß, W");
    EXPECT_EQ(inhalt.Unlesbar, 1);
}

TEST_F(ArchivTest, EinZeilenumbruchInEinerMesseTrenntNichts)
{
    Messe.Messeart[0] = "Hochamt\r\nmit Chor";
    PlanArchivieren();
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste, DiensteDesPlans(GemeinsameTabellen()));
    ImArchivUmbenennen({"Kim", "Adler"}, {"Kim", "Busch"}, false);
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste[1].Messeart, "Hochamt\r\nmit Chor");
    EXPECT_EQ(ArchivLesen(Zeitraum).Unlesbar, 0);
}

TEST_F(ArchivTest, ZähltDieMonateVorDemPlanNachPersonen)
{
    PlanArchivieren();
    const Archivzählung zählung = ArchivZählen(GemeinsameTabellen(), DatumAus({2026, 12, 12}), 3);
    EXPECT_EQ(zählung.Diener, (std::vector<double>{2, 1}));
    EXPECT_EQ(zählung.Helfer, (std::vector<double>{1}));
    // The day itself does not belong to it, nor does what lies further back.
    EXPECT_EQ(ArchivZählen(GemeinsameTabellen(), DatumAus({2026, 12, 5}), 3).Diener,
              (std::vector<double>{1, 1}));
    EXPECT_EQ(ArchivZählen(GemeinsameTabellen(), DatumAus({2027, 3, 1}), 3).Diener,
              (std::vector<double>{1, 0}));
}

TEST_F(ArchivTest, WoZweiZeiträumeSichÜberschneidenZähltDerSpätere)
{
    PlanArchivieren();
    Messe.Datum[0] = Beginn + 14; // the plan is now from 5.12. on
    Besetzen(Messe, Dienerplatznr(1, 1), "Änne", "Groß; Weiß");
    PlanArchivieren();
    EXPECT_EQ(ArchivierteZeiträume().size(), 2U);
    const Archivzählung zählung = ArchivZählen(GemeinsameTabellen(), DatumAus({2027, 1, 1}), 3);
    EXPECT_EQ(zählung.Diener, (std::vector<double>{2, 3})); // not 3 and 3
}

TEST_F(ArchivTest, EinVerzeichnisAnSeinerStelleIstEinFehlerUndNichtsGehtVerloren)
{
    fs::create_directories(Datei() / "etwas");
    EXPECT_NE(NummerDesFehlers([] { PlanArchivieren(); }), 0);
    EXPECT_TRUE(fs::exists(Datei() / "etwas"));
    EXPECT_TRUE(Laufwerke.Auflisten(Festplatte / "Archiv").Dateien.empty());
    fs::remove_all(Festplatte / "Archiv");
    DateiSchreiben(Festplatte / "Archiv", "kein Verzeichnis");
    EXPECT_NE(NummerDesFehlers([] { PlanArchivieren(); }), 0);
    EXPECT_EQ(DateiLesen(Festplatte / "Archiv"), "kein Verzeichnis");
    EXPECT_TRUE(ArchivierteZeiträume().empty());
    EXPECT_EQ(ArchivZählen(GemeinsameTabellen(), Beginn, 12).UnlesbareDateien, 0);
}

TEST_F(ArchivTest, EineUnlesbareDateiZähltNichtUndBleibt)
{
    PlanArchivieren();
    const auto lesen = Laufwerke.Lesen;
    Laufwerke.Lesen = [](const fs::path &) -> std::string {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    EXPECT_EQ(ArchivZählen(GemeinsameTabellen(), Beginn + 30, 12).UnlesbareDateien, 1);
    EXPECT_EQ(ImArchivUmbenennen({"Kim", "Adler"}, {"Kim", "Busch"}, false), 1);
    Laufwerke.Lesen = lesen;
    EXPECT_EQ(ArchivLesen(Zeitraum).Dienste.front().Nachname, "Adler");
}

TEST_F(ArchivTest, EineVolleFestplatteLäßtDieAlteDatei)
{
    PlanArchivieren();
    const std::string alt = DateiLesen(Datei());
    Besetzen(Messe, Dienerplatznr(1, 1), "Änne", "Groß; Weiß");
    Laufwerke.Schreiben = [](const fs::path &, std::string_view) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    EXPECT_EQ(NummerDesFehlers([] { PlanArchivieren(); }), 61);
    EXPECT_EQ(DateiLesen(Datei()), alt);
}

TEST_F(ArchivTest, FremdeDateienSindKeineZeiträume)
{
    PlanArchivieren();
    DateiSchreiben(Festplatte / "Archiv" / "Notizen.csv", "");
    DateiSchreiben(Festplatte / "Archiv" / "Plan 2026-13-28 bis 2026-12-05.csv", "");
    DateiSchreiben(Festplatte / "Archiv" / "Plan 2026-11-28 bis 2026-12-05.csv.alt", "");
    EXPECT_EQ(ArchivierteZeiträume(), std::vector{Zeitraum});
    ArchivLöschen(Zeitraum);
    EXPECT_TRUE(ArchivierteZeiträume().empty());
    EXPECT_TRUE(fs::exists(Festplatte / "Archiv" / "Notizen.csv"));
}

} // namespace
} // namespace altardienst
