// The dialog that copies the eight files out of the program's directory.
#include "settings/Kopierstand.h"

#include "core/Allgemein.h"

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QScopeGuard>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class DatensicherungFormTest : public Kopierstand {
  protected:
    DatensicherungFormTest() { AchtSchreiben(Festplatte, "neu "); }

    KopierForm &Öffnen() { return Kopierstand::Öffnen<DatensicherungForm>(); }

    void Sichern(bool alle = true)
    {
        Öffnen();
        NächstesLaufwerk();
        if (!alle)
            Klick(form->Einzel);
        Klick(form->OKButton);
    }
};

TEST_F(DatensicherungFormTest, FehltEineDateiDesProgrammsGibtEsKeinOKWelchesZielAuchImmer)
{
    NUR_WO_ES_GIBT(Schreibungen);
    for (const auto &[name, klein] : AchtNamen) {
        SCOPED_TRACE(name);
        fs::rename(Festplatte / PfadAus(name), Festplatte / PfadAus(klein));
        Öffnen();
        EXPECT_FALSE(ZeigtOK()) << "stored in small letters";
        fs::remove(Festplatte / PfadAus(klein));
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK());
        Klick(form->Einzel);
        EXPECT_FALSE(ZeigtOK()) << "not for a single file either";
        AchtSchreiben(Diskette, "");
        NächstesLaufwerk(-1);
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK()) << "the target is not tested";
        DateiSchreiben(Festplatte / PfadAus(name), "neu " + Text(name));
        NächstesLaufwerk(-1);
        EXPECT_TRUE(ZeigtOK());
        form->close();
    }
}

TEST_F(DatensicherungFormTest, AlleAchtEntstehenInKleinbuchstabenUndDasHauptfensterKehrtZurück)
{
    Sichern();
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    EXPECT_EQ(DateienIn(Diskette).size(), 8U);
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(klein)), "neu " + Text(name));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensicherungFormTest, DasVerzeichnisIstAuchAufEinemDunklenBildschirmZuLesen)
{
    const QPalette hell = QApplication::palette();
    QPalette dunkel = hell;
    dunkel.setColor(QPalette::Text, Qt::white);
    dunkel.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dunkel);
    const auto zurück = qScopeGuard([&] { QApplication::setPalette(hell); });
    Öffnen();
    for (const bool mitFokus : {true, false}) {
        Tippen(form->VZ, "Sicherung");
        if (!mitFokus)
            FokusAuf(form->Einzel);
        const QImage bild = form->VZ->grab(form->VZ->rect().adjusted(5, 5, -5, -5)).toImage();
        int dunkle = 0;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                dunkle += bild.pixelColor(x, y).lightness() < 60;
        EXPECT_GT(dunkle, 40) << mitFokus;
        EXPECT_LT(dunkle, bild.width() * bild.height() / 2) << mitFokus;
    }
}

TEST_F(DatensicherungFormTest, SichernLädtNichts)
{
    Konfig.Gemeinde = "im Speicher";
    Sichern();
    ASSERT_EQ(DateienIn(Diskette).size(), 8U);
    EXPECT_EQ(Konfig.Gemeinde, "im Speicher");
    EXPECT_EQ(NachKopie, 0);
}

TEST_F(DatensicherungFormTest, JedeOptionSichertIhreDateiAllein)
{
    for (std::size_t k = 0; k < AchtNamen.size(); ++k) {
        Öffnen();
        NächstesLaufwerk();
        EinzelneWählen(k);
        Klick(form->OKButton);
        EXPECT_EQ(DateienIn(Diskette), Liste{AchtNamen[k].second});
        fs::remove(Diskette / PfadAus(AchtNamen[k].second));
    }
}

TEST_F(DatensicherungFormTest, DerRundwegBringtDieAchtDateienByteFürByteZurück)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Konfig.Gemeinde = "St. Martin";
    MeßdienerAnlegen("Jörg", "Größe");
    fs::remove_all(Festplatte);
    fs::create_directories(Festplatte);
    AufFestplatteSpeichern();
    std::map<Text, std::string> zuvor;
    for (const auto &[name, klein] : AchtNamen)
        zuvor[name] = DateiLesen(Festplatte / PfadAus(name));

    Öffnen();
    NächstesLaufwerk();
    Tippen(form->VZ, "Sicherung");
    Klick(form->Verzeichnis);
    VerzeichnisÖffnen("Sicherung");
    Klick(form->OKButton);

    // What the program offers for restoring it: nothing, until the files have their own names
    // again.
    Kopierstand::Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    VerzeichnisÖffnen("Sicherung");
    EXPECT_FALSE(ZeigtOK());
    form->close();
    for (const auto &[name, klein] : AchtNamen)
        fs::rename(Diskette / "Sicherung" / PfadAus(klein), Diskette / "Sicherung" / PfadAus(name));

    TabellenLeeren();
    AufFestplatteSpeichern();
    Kopierstand::Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    VerzeichnisÖffnen("Sicherung");
    ASSERT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == zuvor[name]) << name;
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Meßdiener.Nachname[0], "Größe");
    AufFestplatteSpeichern();
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == zuvor[name]) << name;
}

TEST_F(DatensicherungFormTest, EinFehlerWirdGezeigtUndDerDialogBleibt)
{
    AchtSchreiben(Diskette, "alt ");
    for (auto art : {Laufzeitfehler::DatenträgerVoll, Laufzeitfehler::ZugriffVerweigert}) {
        GezeigteMeldungen.clear();
        auto kopieren = Laufwerke.Kopieren;
        Laufwerke.Kopieren = [=](const path &von, const path &nach) {
            if (von.filename() == "Gruppen.dat")
                throw Laufzeitfehler(art);
            kopieren(von, nach);
        };
        Sichern();
        EXPECT_EQ(GezeigteMeldungen, Liste{Laufzeitfehler(art).Meldung()});
        EXPECT_TRUE(form->isVisible());
        EXPECT_FALSE(haupt->isEnabled());
        EXPECT_EQ(DateiLesen(Diskette / "Etiketten.dat"), "neu Etiketten.dat");
        EXPECT_EQ(DateiLesen(Diskette / "Gruppen.dat"), "alt Gruppen.dat");
        EXPECT_EQ(DateiLesen(Diskette / "Helfer.dat"), "alt Helfer.dat");
        Laufwerke.Kopieren = kopieren;
        form->close();
    }
}

TEST_F(DatensicherungFormTest, EinSchreibgeschütztesZielBleibt)
{
    DateiSchreiben(Diskette / "konfig.cfg", "alt");
    fs::permissions(Diskette / "konfig.cfg", fs::perms::owner_read);
    Sichern();
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '75': Zugriff verweigert"});
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "alt");
    EXPECT_EQ(DateienIn(Diskette), Liste{"konfig.cfg"});
}

TEST_F(DatensicherungFormTest, EinVerschwundenesZielUndEineDateiAnSeinerStelle)
{
    for (bool datei : {false, true}) {
        GezeigteMeldungen.clear();
        fs::create_directories(Diskette / "Ziel");
        Öffnen();
        NächstesLaufwerk();
        VerzeichnisÖffnen("Ziel");
        fs::remove(Diskette / "Ziel");
        if (datei)
            DateiSchreiben(Diskette / "Ziel", "x");
        Klick(form->OKButton);
        ASSERT_EQ(GezeigteMeldungen.size(), 1U);
        EXPECT_TRUE(GezeigteMeldungen[0].starts_with("Laufzeitfehler '76'"));
        EXPECT_EQ(fs::exists(Diskette / "Ziel"), datei);
        form->close();
        fs::remove(Diskette / "Ziel");
    }
}

TEST_F(DatensicherungFormTest, DasVerzeichnisDesProgrammsAlsZielZerstörtNichts)
{
    Öffnen();
    VerzeichnisÖffnen("Altardienst");
    ASSERT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '75': Zugriff verweigert"});
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_EQ(DateiLesen(Festplatte / PfadAus(name)), "neu " + Text(name));
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
}

TEST_F(DatensicherungFormTest, AbbrechenUndSchließenKopierenNichts)
{
    for (bool abbrechen : {true, false}) {
        Öffnen();
        NächstesLaufwerk();
        if (abbrechen)
            Klick(form->CancelButton);
        else
            form->close();
        EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
        EXPECT_TRUE(DateienIn(Diskette).empty());
    }
}

} // namespace
} // namespace altardienst
