// The menu's dialog that copies the eight files into the program's directory.
#include "settings/Kopierstand.h"

#include "core/Allgemein.h"
#include "history/Rückgängig.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// The program's directory holds a saved parish; the diskette another one.
class DateikopieFormTest : public Kopierstand {
  protected:
    DateikopieFormTest()
    {
        Speichern(Diskette, "neu");
        Speichern(Festplatte, "alt");
    }

    /// Writes eight files whose settings and groups carry a mark, which is in memory too.
    void Speichern(const path &verzeichnis, const Text &zeichen)
    {
        const path zuvor = Festplatte;
        Festplatte = verzeichnis;
        Konfig.Gemeinde = Gruppe.Bezeichnung[0] = zeichen;
        AufFestplatteSpeichern();
        Festplatte = zuvor;
    }

    KopierForm &Öffnen() { return Kopierstand::Öffnen<DateikopieForm>(); }

    static Liste Geladen() { return {Konfig.Gemeinde, Gruppe.Bezeichnung[0]}; }

    bool Gleich(const char *name) const
    {
        return DateiLesen(Festplatte / PfadAus(name)) == DateiLesen(Diskette / PfadAus(name));
    }
};

TEST_F(DateikopieFormTest, HatNameUndTitelUndKeinVerzeichnisZuErstellen)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Dateikopie");
    EXPECT_EQ(form->windowTitle(), "Datendateien kopieren");
    for (const char *name : {"VZ", "Verzeichnis"})
        EXPECT_FALSE(form->findChild<QWidget *>(name)) << name;
    for (const char *name : {"Drive1", "Dir1", "Dateien", "Datei", "Alle", "CancelButton"})
        EXPECT_TRUE(Finden(name)->isVisible()) << name;
    EXPECT_FALSE(haupt->isEnabled());
}

TEST_F(DateikopieFormTest, AlleAchtWerdenKopiertUndGeladen)
{
    Öffnen();
    EXPECT_FALSE(ZeigtOK()) << "the first drive is no source";
    NächstesLaufwerk();
    EXPECT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    EXPECT_EQ(Geladen(), (Liste{"neu", "neu"}));
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(Gleich(name)) << name;
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U) << "they keep their stored names";
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(NachKopie, 0);
}

TEST_F(DateikopieFormTest, HolenIstEinSchrittDenManZurücknimmt)
{
    Konfig.Gemeinde = Gruppe.Bezeichnung[0] = "im Speicher";
    SchritteBeginnen();
    Öffnen();
    NächstesLaufwerk();
    Klick(form->OKButton);
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    TabellenBeobachten();
    EXPECT_EQ(Geladen(), (Liste{"neu", "neu"}));
    EXPECT_EQ(SchrittZurücknehmen(), "Daten holen");
    EXPECT_EQ(Geladen(), (Liste{"im Speicher", "im Speicher"}));
    EXPECT_TRUE(Gleich("Gruppen.dat")) << "the files stay as they were fetched";
    SchritteBeenden();
}

TEST_F(DateikopieFormTest, WasDemProgrammFehlteHeißtDanachWieInDerQuelle)
{
    Öffnen();
    NächstesLaufwerk();
    fs::remove(Festplatte / PfadAus("Meßdiener.dat"));
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "helfer.dat");
    Klick(form->OKButton);
    EXPECT_TRUE(Gleich("Meßdiener.dat"));
    EXPECT_TRUE(DateiLesen(Festplatte / "helfer.dat") == DateiLesen(Diskette / "Helfer.dat"))
        << "one that was there keeps its name";
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DateikopieFormTest, EineDateiAlleinLädtAlleAcht)
{
    Öffnen();
    NächstesLaufwerk();
    Klick(form->Einzel);
    Gruppe.Bezeichnung[0] = "im Speicher";
    Klick(form->OKButton);
    EXPECT_EQ(Geladen(), (Liste{"neu", "alt"}));
    EXPECT_TRUE(Gleich("Konfig.cfg"));
    EXPECT_FALSE(Gleich("Gruppen.dat"));
}

TEST_F(DateikopieFormTest, JedeOptionHoltIhreDatei)
{
    for (std::size_t k = 0; k < AchtNamen.size(); ++k) {
        AchtSchreiben(Diskette, "neu ");
        AchtSchreiben(Festplatte, "alt ");
        Öffnen();
        NächstesLaufwerk();
        EinzelneWählen(k);
        Klick(form->OKButton);
        for (std::size_t j = 0; j < AchtNamen.size(); ++j)
            EXPECT_EQ(DateiLesen(Festplatte / PfadAus(AchtNamen[j].first)),
                      (j == k ? "neu " : "alt ") + Text(AchtNamen[j].first));
    }
}

TEST_F(DateikopieFormTest, EineQuelleOhneEineDateiIstKeineAuchNichtFürEineAndere)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Öffnen();
    Klick(form->Einzel);
    for (const auto &[name, klein] : AchtNamen) {
        SCOPED_TRACE(name);
        fs::rename(Diskette / PfadAus(name), laufwerk / "weg");
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK());
        NächstesLaufwerk(-1);
        fs::rename(laufwerk / "weg", Diskette / PfadAus(klein));
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK()) << "stored in small letters";
        NächstesLaufwerk(-1);
        fs::rename(Diskette / PfadAus(klein), Diskette / PfadAus(name));
        NächstesLaufwerk();
        EXPECT_TRUE(ZeigtOK());
        NächstesLaufwerk(-1);
    }
}

TEST_F(DateikopieFormTest, EinUnlesbaresLaufwerkPrüftDasBisherigeVerzeichnisNeu)
{
    Laufwerke.Wurzeln = [this] {
        return std::vector<Wurzel>{
            {"Platte", laufwerk}, {"Diskette", Diskette}, {"weg", laufwerk / "weg"}};
    };
    Öffnen();
    NächstesLaufwerk();
    ASSERT_TRUE(ZeigtOK());
    NächstesLaufwerk();
    EXPECT_TRUE(ZeigtOK());
    fs::remove(Diskette / "Helfer.dat");
    NächstesLaufwerk();
    EXPECT_FALSE(ZeigtOK());
    EXPECT_EQ(form->Wahl.Dateien->count(), 7);
    EXPECT_TRUE(form->Wahl.Dateien->findItems("Helfer.dat", Qt::MatchExactly).isEmpty());
    EXPECT_EQ(Datei(), OrdnerText(Diskette));
    EXPECT_EQ(form->Wahl.Laufwerk->currentText(), "Diskette");
    fs::remove_all(Diskette); // now the current directory cannot be read either
    NächstesLaufwerk();
    EXPECT_FALSE(ZeigtOK());
    EXPECT_EQ(form->Wahl.Dateien->count(), 7);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DateikopieFormTest, VerschwindetEineDateiNachDerPrüfungBleibenDieDesProgramms)
{
    Öffnen();
    NächstesLaufwerk();
    fs::remove(Diskette / "Konfig.cfg");
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '53': Datei nicht gefunden"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Geladen(), (Liste{"alt", "alt"}));
    Klick(form->CancelButton);
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    VonFestplatteLaden();
    EXPECT_EQ(Geladen(), (Liste{"alt", "alt"}));
}

TEST_F(DateikopieFormTest, EinAbbruchInDerMitteLädtNichtsUndDasEndeStelltAllesWiederHer)
{
    auto kopieren = Laufwerke.Kopieren;
    Laufwerke.Kopieren = [=](const path &von, const path &nach) {
        if (von.filename() == "Gruppen.dat")
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        kopieren(von, nach);
    };
    Öffnen();
    NächstesLaufwerk();
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '61': Datenträger voll"});
    EXPECT_TRUE(Gleich("Konfig.cfg"));
    EXPECT_FALSE(Gleich("Gruppen.dat"));
    EXPECT_EQ(Geladen(), (Liste{"alt", "alt"}));
    Klick(form->CancelButton);
    AufFestplatteSpeichern();
    TabellenLeeren();
    VonFestplatteLaden();
    EXPECT_EQ(Geladen(), (Liste{"alt", "alt"}));
}

TEST_F(DateikopieFormTest, DasVerzeichnisDesProgrammsAlsQuelleZerstörtNichts)
{
    const std::string zuvor = DateiLesen(Festplatte / "Konfig.cfg");
    Öffnen();
    VerzeichnisÖffnen("Altardienst");
    ASSERT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '75': Zugriff verweigert"});
    EXPECT_TRUE(DateiLesen(Festplatte / "Konfig.cfg") == zuvor);
}

TEST_F(DateikopieFormTest, AbbrechenUndSchließenKopierenUndLadenNichts)
{
    for (bool abbrechen : {true, false}) {
        Konfig.Gemeinde = "im Speicher";
        Öffnen();
        NächstesLaufwerk();
        if (abbrechen)
            Klick(form->CancelButton);
        else
            form->close();
        EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
        EXPECT_EQ(Konfig.Gemeinde, "im Speicher");
        EXPECT_FALSE(Gleich("Konfig.cfg"));
    }
}

TEST_F(DateikopieFormTest, TabFolgtDemAuge)
{
    Öffnen();
    NächstesLaufwerk();
    EXPECT_EQ(Tabfolge(form),
              (Liste{"Drive1", "Dir1", "Dateien", "Alle", "OKButton", "CancelButton"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
