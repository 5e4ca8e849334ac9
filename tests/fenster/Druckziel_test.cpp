// Where a report goes on the printer on Qt: files that are whole or not there at all, printers that
// vanish, bad settings; and the sample parish on paper.
#include "anniversaries/JubiGebuDruck.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Allgemein.h"
#include "fenster/Bausteine.h"
#include "fenster/DruckerQt.h"
#include "fenster/Fensterstand.h"
#include "fenster/PdfLesen.h"
#include "planning/MessenBestimmen.h"
#include "printing/Erfassungsbogen.h"
#include "printing/Etikettendruck.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <QDir>
#include <QPainter>

#include <csignal>
#include <filesystem>
#include <functional>
#include <utility>

#include <sys/resource.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class DruckzielTest : public Prüfstand {
  protected:
    DruckzielTest() : zuvor(std::exchange(Drucker, &drucker))
    {
        Konfig.Schriftart = "Liberation Sans";
        Konfig.Schriftgröße = 10;
        Konfig.Überschriftgröße = 14;
        Konfig.RandLinks = 20;
        Konfig.RandOben = 15;
        Konfig.RandUnten = 15;
        Konfig.DiffJahr = 1;
        for (const char *vorname : {"Anna", "Jörg", "Zoë"})
            MeßdienerAnlegen(vorname, "Groß");
        Etikett.Reihen[0] = 2;
        Etikett.Spalten[0] = 2;
    }
    ~DruckzielTest() override { Drucker = zuvor; }

    /// Names of the files in the directory of the reports.
    QStringList Dateien() const
    {
        return QDir(Anzeige(Festplatte.string())).entryList(QDir::Files | QDir::Hidden);
    }

    static void Etikettenlauf()
    {
        Etikettenplatz platz = {1, 1};
        EtikettenDrucken(EtikettenAllerMeßdiener(), platz);
    }

    QString datei = Anzeige(Festplatte.string()) + "/Bericht.pdf";
    std::shared_ptr<QPrinter> ziel; // null: the PDF
    int modus = 0;
    DruckerQt drucker{[this](const Druckanfrage &) {
        return Druckauswahl{modus, ziel ? ziel : PdfDrucker(datei)};
    }};

  private:
    DruckerDienst *zuvor;
};

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

TEST_F(DruckzielTest, WoNichtGeschriebenWerdenKannEndetDerBerichtStill)
{
    fs::create_directory(Festplatte / "Verzeichnis.pdf");
    for (const char *name : {"/gibt/es/nicht.pdf", "/Verzeichnis.pdf", "/proc/Bericht.pdf"}) {
        datei =
            Text(name).starts_with("/proc") ? QString(name) : Anzeige(Festplatte.string()) + name;
        WunschpartnerlisteDrucken();
        EtikettengrößenDrucken();
    }
    datei.clear(); // an empty name is no way to the system's printer
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

    // One that another painter still holds cannot begin either.
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

/// The parish that is shipped with the program.
class BeispielAufPapierTest : public DruckzielTest {
  protected:
    BeispielAufPapierTest()
    {
        Laufwerke.Programmverzeichnis = [] { return fs::path(BEISPIELDATEN); };
        VonFestplatteLaden();
        Konfig.StartDatum = Heute + 7;
        MessenBestimmen();
        WunschpartnerBerücksichtigen();
        MessenMitMessehelferBesetzen();
    }

    /// Names of reports on which a word stands over the edge of the paper or the lower margin.
    Text Überstehendes(const PdfInhalt &pdf) const
    {
        Text worte;
        const double unten = (Konfig.RandUnten - 10) * 72 / 25.4;
        for (const PdfWort &wort : pdf.Wörter) {
            const PdfSeite &seite = pdf.Seiten[static_cast<std::size_t>(wort.Seite - 1)];
            if (wort.Rechts > seite.Breite || wort.Unten > seite.Höhe - unten || wort.Links < 0)
                worte += wort.Inhalt + " ";
        }
        return worte;
    }
};

TEST_F(BeispielAufPapierTest, DerPlanStehtMitZehnPunktAufA4)
{
    ASSERT_EQ(Konfig.Schriftgröße, 10);
    ASSERT_GT(Messe.Anzahl, 20);
    PlanDrucken();
    const PdfInhalt pdf = PdfLesen(datei);
    EXPECT_GT(pdf.Seiten.size(), 1U);
    EXPECT_NEAR(pdf.Seiten[0].Breite, 595, 1);
    EXPECT_EQ(Überstehendes(pdf), "");
    EXPECT_NE(PdfText(datei).find("Messen der Pfarrei St. Lambertus Quellersheim"), Text::npos);
}

TEST_F(BeispielAufPapierTest, GeburtstageUndJubiläenZurückgelesen)
{
    const auto stehtDa = [&](const Text &text) {
        EXPECT_NE(PdfText(datei).find(text), Text::npos) << text;
    };
    GeburtstageSuchen(Gruppende::Alle, 3);
    GeburtstageDrucken(Gruppende::Alle, 3);
    stehtDa("Geburtstage der Meßdiener und Meßhelfer im März");
    for (int i = 0; i < Geburtstagsliste.Anzahl; ++i)
        stehtDa(Geburtstagsliste.Vorname[i] + " " + Geburtstagsliste.Nachname[i] +
                ", Geburtstag: ");
    const PdfInhalt pdf = PdfLesen(datei);
    ASSERT_GT(Geburtstagsliste.Anzahl, 1);
    EXPECT_EQ(pdf.Seiten.size(), 1U); // none behind the last row
    EXPECT_NEAR(pdf.Wort("Geburtstage").Links, Konfig.RandLinks * 72 / 25.4, 1.5);
    JubiläenSuchen(0);
    JubiläenDrucken(0);
    stehtDa("Jubiläum von 0 Jahren der Meßdiener");
    stehtDa(", Eintrittsdatum: ");
}

TEST_F(BeispielAufPapierTest, AlleBerichtePassenAufDasBlatt)
{
    const std::vector<std::pair<const char *, std::function<void()>>> berichte = {
        {"Meßdiener", AlleMeßdienerDrucken},
        {"Gruppe", [] { MeßdienergruppeDrucken(Gruppe.Bezeichnung[0]); }},
        {"Helfer", AlleHelferDrucken},
        {"Wunschpartner", WunschpartnerlisteDrucken},
        {"Standardmessen", StandardmessenDrucken},
        {"Etikettengrößen", EtikettengrößenDrucken},
        {"Bogen", [] { ErfassungsbogenMeßdienerDrucken("28.11.2026", "26.12.2026"); }},
        {"Helferbogen", [] { ErfassungsbogenHelferDrucken("28.11.2026", "26.12.2026"); }},
        {"Etiketten", Etikettenlauf},
        {"Geburtstage",
         [] {
             GeburtstageSuchen(Gruppende::Alle, 5);
             GeburtstageDrucken(Gruppende::Alle, 5);
         }},
        {"Jubiläum", [] {
             JubiläenSuchen(15);
             JubiläenDrucken(15);
         }}};
    for (modus = 0; modus <= 1; ++modus)
        for (const auto &[name, bericht] : berichte) {
            bericht();
            EXPECT_EQ(Überstehendes(PdfLesen(datei)), "") << name << ", " << modus;
        }
    PlanDrucken(); // the form for the helpers
    EXPECT_EQ(Überstehendes(PdfLesen(datei)), "");
}

} // namespace
} // namespace altardienst
