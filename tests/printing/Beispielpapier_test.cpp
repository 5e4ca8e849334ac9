// The sample parish on paper: every report is complete and within the margins, and the text of
// every label within its label.
#include "paper/Druckziel.h"

#include "anniversaries/JubiGebuDruck.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Allgemein.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "planning/MessenBestimmen.h"
#include "printing/Druckprotokoll.h"
#include "printing/Erfassungsbogen.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <functional>

namespace altardienst {
namespace {

/// The parish that is shipped with the program.
class BeispielAufPapierTest : public DruckzielTest {
  protected:
    BeispielAufPapierTest()
    {
        Laufwerke.Programmverzeichnis = [] { return std::filesystem::path(BEISPIELDATEN); };
        VonFestplatteLaden();
        Konfig.StartDatum = Heute + 7;
        MessenBestimmen();
        WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen);
        MessenMitMessehelferBesetzen();
    }

    /// The words that stick out over the edge of the paper or the lower margin.
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
    EXPECT_EQ(pdf.Seiten.size(), 1U); // none after the last row
    EXPECT_NEAR(pdf.Wort("Geburtstage").Links, Konfig.RandLinks * 72 / 25.4, 1.5);
    JubiläenSuchen(0);
    JubiläenDrucken(0);
    stehtDa("Jubiläum von 0 Jahren der Meßdiener");
    stehtDa(", Eintrittsdatum: ");
}

struct Bericht {
    const char *Name;
    std::function<void()> Drucken;
};

void Etikettenlauf()
{
    EtikettenDrucken(EtikettenAllerMeßdiener(), [] { return Etikettenplatz{1, 1}; });
}

const Bericht Berichte[] = {
    {"Plan", PlanDrucken},
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

TEST_F(BeispielAufPapierTest, AlleBerichtePassenAufDasBlatt)
{
    for (modus = 0; modus <= 1; ++modus)
        for (const Bericht &bericht : Berichte) {
            bericht.Drucken();
            EXPECT_EQ(Überstehendes(PdfLesen(datei)), "") << bericht.Name << ", " << modus;
        }
}

/// The words of a line with one blank between them.
Text Wortfolge(const QString &zeile)
{
    return zeile.simplified().toStdString();
}

TEST_F(BeispielAufPapierTest, JedeZeileJedesBerichtsStehtGanzDa)
{
    for (modus = 0; modus <= 1; ++modus)
        for (const Bericht &bericht : Berichte) {
            Druckprotokoll protokoll;
            protokoll.Antwort = modus;
            Drucker = &protokoll;
            bericht.Drucken();
            Drucker = &drucker;
            bericht.Drucken();
            Text papier;
            for (const QString &zeile : Anzeige(PdfText(datei)).split('\n'))
                papier += Wortfolge(zeile) + "\n";
            int zeilen = 0;
            for (const Text &operation : protokoll.Zeilen) {
                if (!operation.starts_with("Print \""))
                    continue;
                const Text zeile = Wortfolge(Anzeige(operation.substr(7, operation.size() - 8)));
                EXPECT_NE(papier.find(zeile), Text::npos)
                    << bericht.Name << ", " << modus << ": " << zeile;
                zeilen += zeile.empty() ? 0 : 1;
            }
            EXPECT_GT(zeilen, 1) << bericht.Name << ", " << modus;
        }
}

/// Edges of a label in points, counted from the upper left corner of the sheet.
struct Zelle {
    double Links, Oben, Rechts, Unten;

    Zelle(int reihe, int spalte) // from 0
    {
        constexpr double Mm = 72 / 25.4;
        constexpr double Abstand = 4; // mm, from the edge to the text, in the shipped formats
        const int f = Etikett.Anzahl;
        Links = Etikett.RandLR[f] - Abstand + spalte * (Etikett.Breite[f] + Etikett.Steg[f]);
        Oben = Etikett.RandOU[f] - Abstand + reihe * Etikett.Höhe[f];
        Rechts = Links + Etikett.Breite[f];
        Unten = Oben + Etikett.Höhe[f];
        for (double *kante : {&Links, &Oben, &Rechts, &Unten})
            *kante *= Mm;
    }

    bool Enthält(const PdfWort &wort) const
    {
        return wort.Links >= Links && wort.Rechts <= Rechts && wort.Oben >= Oben &&
               wort.Unten <= Unten;
    }
};

// In formats of two, three and four columns, wide and narrow, starting at 2/2, over several sheets.
TEST_F(BeispielAufPapierTest, JedesEtikettLiegtInSeinemFeld)
{
    for (const int format : {0, 1, 2, 3, 4, 6}) {
        Etikett.Anzahl = format;
        const int reihen = Etikett.Reihen[format];
        const int spalten = Etikett.Spalten[format];
        const Etikettenleute leute = EtikettenAllerMeßdiener();
        ASSERT_GT(leute.Anzahl, reihen * spalten);
        EtikettenDrucken(leute, [] { return Etikettenplatz{2, 2}; });
        const PdfInhalt pdf = PdfLesen(datei);
        std::size_t worte = 0;
        for (int person = 0; person < leute.Anzahl; ++person) {
            const int stelle = spalten + 1 + person;
            const Zelle zelle(stelle / spalten % reihen, stelle % spalten);
            const int seite = 1 + stelle / (reihen * spalten);
            Text erwartet;
            for (const Text &zeile : leute.Anschrift(person))
                erwartet += Wortfolge(Anzeige(zeile)) + " ";
            Text darin;
            for (const PdfWort &wort : pdf.Wörter)
                if (wort.Seite == seite && zelle.Enthält(wort)) {
                    darin += wort.Inhalt + " ";
                    ++worte;
                }
            EXPECT_EQ(darin, erwartet) << format << ", " << person;
        }
        EXPECT_EQ(worte, pdf.Wörter.size()) << format; // there is none between the labels
    }
}

} // namespace
} // namespace altardienst
