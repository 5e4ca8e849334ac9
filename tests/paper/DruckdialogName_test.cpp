// The name of the report in the print dialog, and what the dialog remembers.
#include "paper/Druckdialog.h"

#include "Formstand.h"
#include "application/Gemerktes.h"
#include "paper/Dokumente.h"

#include <memory>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

const Druckanfrage Plan = {{}, {}, "Altardienst", "Altardienst 2026-11-28"};
const Druckanfrage Helferliste = Druckanfrage::Für("Helferliste");

/// The documents lie on the disk, which has the directories A and B.
class DruckdialogNameTest : public Formstand<DruckdialogForm> {
  protected:
    DruckdialogNameTest() : dokumente(Festplatte)
    {
        for (const char *name : {"A", "B"})
            fs::create_directory(Festplatte / name);
    }

    void Öffnen(const Druckanfrage &anfrage, const Druckerliste &drucker = {})
    {
        dialog = std::make_unique<DruckdialogForm>(anfrage, drucker);
        form = dialog.get();
        Zeigen(form);
    }

    /// What the dialog of a report proposes.
    Text Vorschlag(const Druckanfrage &anfrage)
    {
        Öffnen(anfrage);
        return Zeigt("PdfDatei");
    }

    /// Prints a report to this file.
    void Drucken(const Druckanfrage &anfrage, const Text &datei)
    {
        Öffnen(anfrage);
        Tippen("PdfDatei", datei);
        dialog->Auswahl();
    }

    Text Pfad(const char *name) const { return TextVon(Festplatte / PfadAus(name)); }

    Dokumente dokumente;
    std::unique_ptr<DruckdialogForm> dialog;
};

TEST_F(DruckdialogNameTest, DerTitelNenntDenBericht)
{
    Öffnen(Plan);
    EXPECT_EQ(dialog->windowTitle().toStdString(), "Drucken: Altardienst");
    Öffnen(Helferliste);
    EXPECT_EQ(dialog->windowTitle().toStdString(), "Drucken: Helferliste");
}

TEST_F(DruckdialogNameTest, JederBerichtSchlägtSeineEigeneDateiVor)
{
    EXPECT_EQ(Vorschlag(Plan), Pfad("Altardienst 2026-11-28.pdf"));
    EXPECT_EQ(Vorschlag(Helferliste), Pfad("Helferliste.pdf"));
    EXPECT_EQ(Vorschlag(Druckanfrage::Für("Meßdienerliste Große/Kleine ")),
              Pfad("Meßdienerliste Große-Kleine.pdf"));
}

TEST_F(DruckdialogNameTest, ImZuletztBenutztenVerzeichnis)
{
    Drucken(Helferliste, Pfad("A/Helferliste.pdf"));
    EXPECT_EQ(Vorschlag(Plan), Pfad("A/Altardienst 2026-11-28.pdf"));
    Drucken(Plan, Pfad("B/Altardienst 2026-11-28.pdf"));
    EXPECT_EQ(Vorschlag(Helferliste), Pfad("B/Helferliste.pdf"));
}

TEST_F(DruckdialogNameTest, EinEigenerNameGiltFürDenselbenBerichtWeiter)
{
    Drucken(Plan, Pfad("A/Advent"));
    EXPECT_EQ(Vorschlag(Plan), Pfad("A/Advent.pdf"));
    EXPECT_EQ(Vorschlag(Helferliste), Pfad("A/Helferliste.pdf"));
    const Druckanfrage nächster = {{}, {}, "Altardienst", "Altardienst 2027-01-09"};
    EXPECT_EQ(Vorschlag(nächster), Pfad("A/Altardienst 2027-01-09.pdf"));
}

TEST_F(DruckdialogNameTest, EinVerschwundenesVerzeichnisWirdNichtVorgeschlagen)
{
    Drucken(Plan, Pfad("A/Advent"));
    fs::remove_all(Festplatte / "A");
    EXPECT_EQ(Vorschlag(Helferliste), Pfad("Helferliste.pdf"));
    EXPECT_EQ(Vorschlag(Plan), Pfad("Altardienst 2026-11-28.pdf"));
}

TEST_F(DruckdialogNameTest, DanachÖffnenIstGewähltUndWirdGemerkt)
{
    Öffnen(Plan);
    EXPECT_TRUE(Angekreuzt("DanachÖffnen"));
    EXPECT_TRUE(dialog->Auswahl().DanachÖffnen);
    Klick("DanachÖffnen");
    EXPECT_FALSE(dialog->Auswahl().DanachÖffnen);
    Öffnen(Helferliste);
    EXPECT_FALSE(Angekreuzt("DanachÖffnen"));
    Klick("DanachÖffnen");
    dialog->reject();
    Öffnen(Plan);
    EXPECT_FALSE(Angekreuzt("DanachÖffnen")) << "cancelled";
}

TEST_F(DruckdialogNameTest, VerzeichnisUndHäkchenGeltenAuchBeimNächstenStart)
{
    Öffnen(Plan);
    Tippen("PdfDatei", Pfad("A/Plan.pdf"));
    Klick("DanachÖffnen");
    dialog->Auswahl();
    Gemerktes().sync();
    const QString gemerkt = Gemerktes().fileName();
    GegebenePdfNamen().clear(); // as in a new run
    GemerktesIn(gemerkt);
    EXPECT_EQ(Vorschlag(Helferliste), Pfad("A/Helferliste.pdf"));
    EXPECT_FALSE(Angekreuzt("DanachÖffnen"));
}

TEST_F(DruckdialogNameTest, AufPapierIstNichtsZuÖffnenUndNichtsZuMerken)
{
    Öffnen(Plan, {{"Sakristei"}, "Sakristei"});
    EXPECT_FALSE(Finden("DanachÖffnen")->isEnabled());
    EXPECT_FALSE(dialog->Auswahl().DanachÖffnen);
    EXPECT_EQ(Druckgewohnheiten.Lesen().Verzeichnis, "");
    Klick("Pdf");
    EXPECT_TRUE(Finden("DanachÖffnen")->isEnabled());
}

} // namespace
} // namespace altardienst
