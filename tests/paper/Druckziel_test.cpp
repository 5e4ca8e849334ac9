// Where a report goes on the printer on Qt: files that are complete or not there at all, printers
// that disappear, bad settings.
#include "paper/Druckziel.h"

#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <QPainter>

#ifndef _WIN32
#include <csignal>

#include <sys/resource.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

TEST_F(DruckzielTest, EinPdfErsetztDasÄltereUndLässtNichtsDaneben)
{
    DateiSchreiben(PfadAus(datei.toStdString()), "alt");
    WunschpartnerlisteDrucken();
    EXPECT_EQ(Dateien(), QStringList{"Bericht.pdf"});
    EXPECT_NE(PdfText(datei).find("Groß,Zoë;,"), Text::npos);
    EXPECT_EQ(PdfLesen(datei).Seiten.size(), 1U);
}

TEST_F(DruckzielTest, OhneAusgabeEntstehtKeineDatei)
{
    PlanDrucken(); // no masses
    EXPECT_EQ(Dateien(), QStringList{});
    MesseMitDienern(Heute, 1);
    PlanDrucken();
    EXPECT_EQ(Dateien(), QStringList{"Bericht.pdf"});
}

/// Fails at a change of the font in the middle of a page.
void MittenImBerichtScheitern()
{
    MesseMitDienern(46350, 1);
    Konfig.Schriftgröße = 0; // the title is already written
    PlanDrucken();
}

TEST_F(DruckzielTest, EinFehlerMittenImBerichtLässtDasÄltereStehen)
{
    MittenImBerichtScheitern();
    EXPECT_EQ(Dateien(), QStringList{});
    DateiSchreiben(PfadAus(datei.toStdString()), "alt");
    PlanDrucken();
    EXPECT_EQ(Dateien(), QStringList{"Bericht.pdf"});
    EXPECT_EQ(DateiLesen(PfadAus(datei.toStdString())), "alt");
    EXPECT_TRUE(GezeigteMeldungen.empty());

    Konfig.Schriftgröße = 10; // and the program goes on
    PlanDrucken();
    EXPECT_EQ(PdfLesen(datei).Seiten.size(), 1U);
}

#ifndef _WIN32

TEST_F(DruckzielTest, EineVolleFestplatteLässtNichtsHalbesZurück)
{
    DateiSchreiben(PfadAus(datei.toStdString()), "alt");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit vorher = {};
    getrlimit(RLIMIT_FSIZE, &vorher);
    rlimit eng = vorher;
    eng.rlim_cur = 2000; // bytes
    setrlimit(RLIMIT_FSIZE, &eng);
    WunschpartnerlisteDrucken();
    setrlimit(RLIMIT_FSIZE, &vorher);
    EXPECT_EQ(Dateien(), QStringList{"Bericht.pdf"});
    EXPECT_EQ(DateiLesen(PfadAus(datei.toStdString())), "alt");
    WunschpartnerlisteDrucken();
    EXPECT_EQ(PdfLesen(datei).Seiten.size(), 1U);
}

#endif

TEST_F(DruckzielTest, WoNichtGeschriebenWerdenKannEndetDerBerichtStill)
{
    fs::create_directory(Festplatte / "Verzeichnis.pdf");
    for (const char *name : {"/gibt/es/nicht.pdf", "/Verzeichnis.pdf", "/proc/Bericht.pdf"}) {
        datei =
            Text(name).starts_with("/proc") ? QString(name) : Anzeige(Festplatte.string()) + name;
        WunschpartnerlisteDrucken();
        EtikettengrößenDrucken();
    }
    datei.clear(); // an empty name does not lead to the system's printer
    WunschpartnerlisteDrucken();
    EXPECT_EQ(Dateien(), QStringList{});
    EXPECT_TRUE(fs::is_directory(Festplatte / "Verzeichnis.pdf"));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckzielTest, EinLeererNameBleibtEinPdf)
{
    EXPECT_EQ(PdfDrucker("")->outputFormat(), QPrinter::PdfFormat);
}

TEST_F(DruckzielTest, EinDruckerDerVerschwindetEndetDenBerichtStill)
{
    ziel = std::make_shared<QPrinter>(QPrinter::HighResolution);
    ziel->setPrinterName("verschwunden");
    WunschpartnerlisteDrucken();
    EXPECT_TRUE(GezeigteMeldungen.empty());

    // A printer that another painter still uses cannot begin either.
    ziel = PdfDrucker(datei);
    QPainter anderer(ziel.get());
    WunschpartnerlisteDrucken();
    EXPECT_TRUE(anderer.isActive());
    anderer.end();

    ziel = nullptr;
    WunschpartnerlisteDrucken();
    EXPECT_EQ(PdfLesen(datei).Seiten.size(), 1U);
}

TEST_F(DruckzielTest, OhneAuswahlIstNichtsZuDrucken)
{
    EXPECT_EQ(NummerDesFehlers([&] { drucker.Print("x"); }), 482);
    drucker.Verwerfen();
    EXPECT_EQ(Dateien(), QStringList{});
}

TEST_F(DruckzielTest, RänderÜberDiePapiergrößeHinausSindKeinAbsturz)
{
    for (auto *rand : {&Konfig.RandLinks, &Konfig.RandOben, &Konfig.RandUnten}) {
        const Int16 vorher = std::exchange(*rand, 32767);
        for (const auto bericht : {WunschpartnerlisteDrucken, AlleMeßdienerDrucken,
                                   StandardmessenDrucken, EtikettengrößenDrucken})
            bericht();
        EXPECT_EQ(Dateien(), QStringList{"Bericht.pdf"});
        *rand = vorher;
    }
    Konfig.RandUnten = 300; // below the upper edge: every row turns the page
    WunschpartnerlisteDrucken();
    EXPECT_EQ(PdfLesen(datei).Seiten.size(), 3U);
}

TEST_F(DruckzielTest, EinEtikettenbogenOhneReihenGibtNichtsAus)
{
    Etikett.Reihen[0] = 0;
    Etikettenlauf();
    EXPECT_EQ(Dateien(), QStringList{});
}

TEST_F(DruckzielTest, LeereEinstellungenGebenNichtsAus)
{
    Konfig = {}; // as on the first run: no font, sizes 0, no orientation
    MesseMitDienern(Heute, 1);
    for (const auto bericht : {PlanDrucken, AlleMeßdienerDrucken, WunschpartnerlisteDrucken})
        bericht();
    EXPECT_EQ(Dateien(), QStringList{});
}

} // namespace
} // namespace altardienst
