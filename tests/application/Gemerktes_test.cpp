// What is remembered of the windows: kept from run to run, apart from the eight files and, in
// tests, from the user's own.
#include "Fensterstand.h"
#include "application/Gemerktes.h"

#include <QFile>

namespace altardienst {
namespace {

class GemerktesTest : public Fensterstand {
  protected:
    QString datei = Anzeige((Festplatte.parent_path() / "Gemerktes.ini").string());
    QString zuvor = Gemerktes().fileName();

    ~GemerktesTest() override { GemerktesIn(zuvor); }
};

TEST_F(GemerktesTest, BleibtVonLaufZuLauf)
{
    GemerktesIn(datei);
    Gemerktes().setValue("Liste/Meßdiener", true);
    GemerktesIn(zuvor); // the end of the run
    EXPECT_FALSE(Gemerktes().contains("Liste/Meßdiener"));
    GemerktesIn(datei);
    EXPECT_TRUE(Gemerktes().value("Liste/Meßdiener").toBool());
}

TEST_F(GemerktesTest, LiegtInEinerEigenenDatei)
{
    GemerktesIn(datei);
    Gemerktes().setValue("Liste/Meßdiener", true);
    Gemerktes().sync();
    EXPECT_TRUE(QFile::exists(datei));
    EXPECT_TRUE(std::filesystem::is_empty(Festplatte)) << "none of the eight files is touched";
}

TEST_F(GemerktesTest, EinTestBeginntOhneUndLäßtDieDateiDesBenutzersInRuhe)
{
    EXPECT_TRUE(Gemerktes().allKeys().isEmpty());
    GemerktesIn({});
    EXPECT_TRUE(Gemerktes().fileName().endsWith("Altardienst/Fenster.ini")) << "that of the user";
    EXPECT_NE(Gemerktes().fileName(), zuvor);
}

TEST_F(GemerktesTest, WasSichNichtSchreibenLäßtWirdVergessen)
{
    DateiSchreiben(Festplatte / "Datei", "kein Verzeichnis");
    GemerktesIn(Anzeige((Festplatte / "Datei" / "Gemerktes.ini").string()));
    Gemerktes().setValue("Liste/Meßdiener", true);
    Gemerktes().sync();
    EXPECT_TRUE(Gemerktes().value("Liste/Meßdiener").toBool()) << "for this run";
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
