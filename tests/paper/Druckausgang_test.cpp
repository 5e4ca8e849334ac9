// What becomes known of a report that was printed: how it ended, where it went, and its PDF opens.
#include "paper/Druckziel.h"

#include "application/Druckmitteilung.h"
#include "application/Mitteilung.h"
#include "paper/Papierdrucker.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

namespace altardienst {
namespace {

class DruckausgangTest : public DruckzielTest {
  protected:
    DruckausgangTest() { Drucker = &mitNachricht; }
    ~DruckausgangTest() override
    {
        Drucker = &drucker; // as the fixture left it
        Mitteilungen() = {};
    }

    static Text Gesagt() { return Mitteilungen().Letzte; }

    bool öffnen = false;
    std::vector<Druckausgang::Art> ausgänge;

    DruckerQt mitNachricht{[this](const Druckanfrage &) {
                               return Druckauswahl{modus, ziel ? ziel : PdfDrucker(datei), öffnen};
                           },
                           [this](const Druckausgang &ausgang) {
                               ausgänge.push_back(ausgang.Ende);
                               DruckMitteilen(ausgang);
                           }};
};

TEST_F(DruckausgangTest, EinPdfSagtWohinEsGeschriebenWurde)
{
    WunschpartnerlisteDrucken();
    EXPECT_EQ(ausgänge, std::vector{Druckausgang::Gedruckt});
    EXPECT_EQ(Gesagt(), "12:00 PDF geschrieben: " + datei.toStdString());
    EXPECT_TRUE(GeöffneteDateien.empty());
}

TEST_F(DruckausgangTest, DanachÖffnenZeigtDieFertigeDatei)
{
    öffnen = true;
    Betrachter.Öffnen = [this](const std::filesystem::path &gezeigt) {
        GeöffneteDateien.push_back(gezeigt);
        EXPECT_TRUE(DateiLesen(gezeigt).starts_with("%PDF"));
        return true;
    };
    WunschpartnerlisteDrucken();
    EXPECT_EQ(GeöffneteDateien, std::vector<std::filesystem::path>{PfadAus(datei.toStdString())});
    EXPECT_EQ(Gesagt(), "12:00 PDF geschrieben: " + datei.toStdString());
}

TEST_F(DruckausgangTest, OhneProgrammZumAnsehenWirdDasGesagt)
{
    öffnen = true;
    ZumÖffnenGibtEsEtwas = false;
    WunschpartnerlisteDrucken();
    EXPECT_EQ(Gesagt(),
              "12:00 PDF geschrieben, aber kein Programm zeigt es: " + datei.toStdString());
}

TEST_F(DruckausgangTest, EinLeererBerichtSagtDaßNichtsGedrucktWurde)
{
    öffnen = true;
    PlanDrucken(); // no masses
    EXPECT_EQ(ausgänge, std::vector{Druckausgang::OhneInhalt});
    EXPECT_EQ(Gesagt(), "12:00 nichts gedruckt: der Bericht ist leer");
    EXPECT_TRUE(GeöffneteDateien.empty());
}

TEST_F(DruckausgangTest, EinGescheiterterBerichtBleibtNichtStumm)
{
    öffnen = true;
    datei = Anzeige(Festplatte.string()) + "/fehlt/Bericht.pdf";
    WunschpartnerlisteDrucken();
    EXPECT_EQ(ausgänge, std::vector{Druckausgang::Gescheitert});
    EXPECT_EQ(Gesagt(), "12:00 PDF nicht geschrieben: " + datei.toStdString());
    EXPECT_TRUE(GeöffneteDateien.empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckausgangTest, PapierNenntSeinenDrucker)
{
    DruckMitteilen({Druckausgang::Gedruckt, "", "Sakristei"});
    EXPECT_EQ(Gesagt(), "12:00 gedruckt auf Sakristei");
    auto papier = std::make_shared<Papierdrucker>();
    ziel = papier;
    WunschpartnerlisteDrucken();
    EXPECT_EQ(papier->Werk.Aufträge, 1);
    EXPECT_EQ(Gesagt(), "12:00 gedruckt");
}

TEST_F(DruckausgangTest, EinFehlerDesDruckersEndetOhneEinWort)
{
    auto papier = std::make_shared<Papierdrucker>();
    ziel = papier;
    papier->Werk.Gestört = true;
    WunschpartnerlisteDrucken();
    EXPECT_EQ(ausgänge, std::vector{Druckausgang::Gescheitert});
    EXPECT_EQ(Gesagt(), "");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckausgangTest, AbbrechenSagtNichts)
{
    DruckerQt abgebrochen{[](const Druckanfrage &) { return std::nullopt; },
                          [](const Druckausgang &) { ADD_FAILURE(); }};
    Drucker = &abgebrochen;
    WunschpartnerlisteDrucken();
    abgebrochen.Verwerfen();
    EXPECT_EQ(Gesagt(), "");
}

TEST_F(DruckausgangTest, JederBerichtMeldetSichEinmal)
{
    WunschpartnerlisteDrucken();
    mitNachricht.Verwerfen(); // nothing is being printed
    EtikettengrößenDrucken();
    EXPECT_EQ(ausgänge, (std::vector{Druckausgang::Gedruckt, Druckausgang::Gedruckt}));
}

} // namespace
} // namespace altardienst
