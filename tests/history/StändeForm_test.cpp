// The window "Frühere Stände".
#include "history/StändeForm.h"

#include "Formstand.h"
#include "core/Allgemein.h"
#include "history/Netz.h"
#include "history/Rückgängig.h"

#include <algorithm>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class StändeFormTest : public Formstand<StändeForm> {
  protected:
    StändeFormTest()
    {
        Konfig.Tage = 28;
        MeßdienerAnlegen("Kim", "Adler");
        MesseMitDienern(DatumAus({2026, 11, 22}), 2);
        Aufheben();
        MeßdienerAnlegen("Jan", "Busch");
        MesseMitDienern(DatumAus({2026, 11, 29}), 2);
        Aufheben();
        MeßdienerAnlegen("Lea", "Clausen");
    }
    ~StändeFormTest() override { NetzEinholen(); }

    /// The tables are saved, and the files kept as a state of the next minute.
    void Aufheben()
    {
        AufFestplatteSpeichern();
        Sekunden += 60;
        StandSichern(InhaltVon(Festplatte));
    }

    void Öffnen()
    {
        form = new StändeForm([this] { ++zurückgeholt; });
        Zeigen(form);
        EXPECT_TRUE(Warten([this] {
            const int zeilen = form->Liste->rowCount();
            return zeilen == 0 || form->Liste->item(zeilen - 1, 5);
        }));
    }

    Text Zelle(int zeile, int spalte) const
    {
        const QTableWidgetItem *zelle = form->Liste->item(zeile, spalte);
        return zelle ? zelle->text().toStdString() : "-";
    }

    std::vector<Text> Zeile(int zeile) const
    {
        std::vector<Text> texte;
        for (int spalte = 0; spalte < form->Liste->columnCount(); ++spalte)
            texte.push_back(Zelle(zeile, spalte));
        return texte;
    }

    int zurückgeholt = 0;
};

TEST_F(StändeFormTest, DieListeNenntDieNeuestenZuerstUndWasSeitherAndersIst)
{
    Öffnen();
    ASSERT_EQ(form->Liste->rowCount(), 2);
    EXPECT_EQ(Zeile(0), (std::vector<Text>{"21.11.2026, 12:02:00", "2", "0", "2",
                                           "22.11.2026 bis 29.11.2026", "Meßdiener: 1 gekommen"}));
    EXPECT_EQ(Zeile(1),
              (std::vector<Text>{"21.11.2026, 12:01:00", "1", "0", "1", "22.11.2026 bis 22.11.2026",
                                 "Meßdiener: 2 gekommen; Messen: 1 gekommen"}));
    EXPECT_EQ(form->Liste->currentRow(), 0);
    EXPECT_EQ(Zeigt("Hinweis"), "Seither: Meßdiener: 1 gekommen");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StändeFormTest, OhneStändeSagtSieWoherSieKommen)
{
    fs::remove_all(Festplatte / PfadAus("Stände"));
    Öffnen();
    EXPECT_NE(Zeigt("Hinweis").find("noch keine früheren Stände"), Text::npos);
    EXPECT_FALSE(form->Zurückholen->isEnabled());
    EXPECT_FALSE(form->Ansehen->isEnabled());
}

TEST_F(StändeFormTest, AnsehenZeigtDieUnterschiedeUndFolgtDerWahl)
{
    Öffnen();
    EXPECT_FALSE(form->Ansicht->isVisible());
    Klick("Ansehen");
    EXPECT_TRUE(form->Ansicht->isVisible());
    EXPECT_TRUE(form->Ansicht->isReadOnly());
    EXPECT_EQ(form->Ansicht->toPlainText().toStdString(),
              "21.11.2026, 12:02:00\nMeßdiener Clausen, Lea: gekommen\n");
    form->Liste->selectRow(1);
    EXPECT_NE(form->Ansicht->toPlainText().toStdString().find("Meßdiener Busch, Jan: gekommen"),
              Text::npos);
    EXPECT_EQ(Meßdiener.Anzahl, 3) << "the tables are not touched";
}

TEST_F(StändeFormTest, ZurückholenFragtEinmalUndNeinÄndertNichts)
{
    const Standinhalt zuvor = InhaltVon(Festplatte);
    Öffnen();
    form->Liste->selectRow(1);
    Klick("Zurückholen");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Zurückholen");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Den Stand vom 21.11.2026, 12:01:00 zurückholen? Was das Programm jetzt weiß, wird "
              "vorher als eigener Stand aufgehoben.");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(InhaltVon(Festplatte) == zuvor);
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(zurückgeholt, 0);
}

TEST_F(StändeFormTest, ZurückgeholtSchließtSieUndDasJetzigeIstEinStand)
{
    Öffnen();
    form->Liste->selectRow(1);
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_FALSE(IstOffen("Stände"));
    EXPECT_EQ(zurückgeholt, 1);
    EXPECT_EQ(Meßdiener.Anzahl, 1);
    EXPECT_EQ(Messe.Anzahl, 1);
    const Gelesenes neuester = InhaltLesen(InhaltVon(AlleStände().back().Ort));
    EXPECT_EQ(neuester.Tabellen.Diener->Anzahl, 3) << "also what was never saved";
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StändeFormTest, ZurückholenIstEinSchrittDenManZurücknimmt)
{
    SchritteBeginnen();
    MeßdienerAnlegen("Max", "Dorn");
    Öffnen();
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    const Standinhalt dateien = InhaltVon(Festplatte);
    TabellenBeobachten();
    EXPECT_TRUE(LetzterSchritt().starts_with("Stand vom 21.11.2026, 12:")) << LetzterSchritt();
    EXPECT_TRUE(LetzterSchritt().ends_with(" zurückholen"));
    SchrittZurücknehmen();
    EXPECT_EQ(Meßdiener.Anzahl, 4);
    EXPECT_EQ(LetzterSchritt(), "Meßdiener Dorn, Max anlegen");
    EXPECT_TRUE(InhaltVon(Festplatte) == dateien);
    SchritteBeenden();
}

TEST_F(StändeFormTest, EinUnvollständigerSagtEsInWortenUndBleibtLiegen)
{
    NUR_WO_ES_GIBT(Verweise);
    const fs::path neuester = AlleStände().back().Ort;
    fs::remove(neuester / "Helfer.dat");
    const Standinhalt zuvor = InhaltVon(Festplatte);
    Öffnen();
    EXPECT_EQ(Zelle(0, 5), "unvollständig: Helfer.dat fehlt.");
    EXPECT_EQ(form->Liste->currentRow(), 1) << "the newest that is whole";
    form->Liste->selectRow(0);
    Klick("Zurückholen");
    EXPECT_EQ(Zeigt("Hinweis"), "Dieser Stand lässt sich nicht zurückholen: Helfer.dat fehlt.");
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(InhaltVon(Festplatte) == zuvor);
    fs::create_symlink("/dev/zero", neuester / "Helfer.dat");
    Klick("Zurückholen");
    EXPECT_EQ(Zeigt("Hinweis"),
              "Dieser Stand lässt sich nicht zurückholen: Helfer.dat lässt sich nicht lesen.");
    fs::remove(neuester / "Helfer.dat");
    fs::create_directory(neuester / "Helfer.dat");
    Klick("Zurückholen");
    EXPECT_TRUE(
        Zeigt("Hinweis").starts_with("Dieser Stand lässt sich nicht zurückholen: Helfer.dat "))
        << Zeigt("Hinweis");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(InhaltVon(Festplatte) == zuvor);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(StändeFormTest, LäßtSichDasJetzigeNichtAufhebenSagtEsDasFenster)
{
    Öffnen();
    Laufwerke.Umbenennen = [](const fs::path &, const fs::path &) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_EQ(Zeigt("Hinweis"), "Dieser Stand lässt sich nicht zurückholen: Datenträger voll.");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(zurückgeholt, 0);
}

TEST_F(StändeFormTest, EinNotfallDerWartetIstVorgewählt)
{
    Sekunden += 60;
    NotfallSichern(InhaltDerTabellen());
    Sekunden += 60;
    MeßdienerAnlegen("Max", "Dorn");
    Aufheben();
    NetzSpannen();
    ASSERT_TRUE(Netz().Notfall);
    Öffnen();
    EXPECT_EQ(form->Liste->currentRow(), 1);
    EXPECT_EQ(Zelle(1, 0), "21.11.2026, 12:03:00 Notfall");
}

// A comma typed before the crash: it does not load whole, but it is what the user knows.
TEST_F(StändeFormTest, EinNotfallIstVorgewähltAuchWennErNichtGanzLädt)
{
    Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
    NotfallSichern(InhaltDerTabellen());
    NetzSpannen();
    ASSERT_TRUE(Netz().Notfall);
    Öffnen();
    EXPECT_EQ(form->Liste->currentRow(), 0);
    EXPECT_TRUE(form->Zurückholen->isEnabled());
}

// A start that could read nothing, left with "Starten", saves an empty parish, which loads whole.
TEST_F(StändeFormTest, EineLeereGemeindeIstNichtVorgewählt)
{
    TabellenLeeren();
    Aufheben();
    Öffnen();
    EXPECT_EQ(Zeile(0)[1], "0");
    EXPECT_EQ(form->Liste->currentRow(), 1);
}

TEST_F(StändeFormTest, GibtEsNurLeereIstDerNeuesteVorgewählt)
{
    fs::remove_all(Festplatte / PfadAus("Stände"));
    TabellenLeeren();
    Aufheben();
    Öffnen();
    EXPECT_TRUE(Warten([this] { return form->Liste->currentRow() == 0; }));
}

TEST_F(StändeFormTest, EineZeileDieScheitertHältDieAnderenNichtAuf)
{
    const fs::path neuester = AlleStände().back().Ort;
    Laufwerke.Suchen = [suchen = Laufwerke.Suchen, neuester](const fs::path &ort,
                                                             const Text &name) {
        if (ort == neuester)
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        return suchen(ort, name);
    };
    Öffnen();
    EXPECT_EQ(Zelle(0, 5), "-");
    EXPECT_EQ(Zelle(1, 1), "1");
    EXPECT_EQ(form->Liste->currentRow(), 1);
}

TEST_F(StändeFormTest, BrichtEsAbSindDieDateienWieZuvorUndEsIstKeinAbbruch)
{
    const Standinhalt zuvor = InhaltVon(Festplatte);
    Öffnen();
    form->Liste->selectRow(1);
    Laufwerke.Kopieren = [kopieren = Laufwerke.Kopieren, zahl = 0](const fs::path &von,
                                                                   const fs::path &nach) mutable {
        if (++zahl == 4)
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        kopieren(von, nach);
    };
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_EQ(Zeigt("Hinweis"), "Dieser Stand lässt sich nicht zurückholen: Datenträger voll.");
    EXPECT_TRUE(InhaltVon(Festplatte) == zuvor);
    EXPECT_FALSE(Netz().SpeichernAbgebrochen);
    EXPECT_EQ(zurückgeholt, 0);
}

TEST_F(StändeFormTest, LassenSieSichNichtZurücklegenSagtEsDasFenster)
{
    const Standinhalt zuvor = InhaltVon(Festplatte);
    Öffnen();
    form->Liste->selectRow(1);
    Laufwerke.Kopieren = [kopieren = Laufwerke.Kopieren, zahl = 0](const fs::path &von,
                                                                   const fs::path &nach) mutable {
        if (++zahl > 3)
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        kopieren(von, nach);
    };
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_EQ(
        Zeigt("Hinweis"),
        "Dieser Stand lässt sich nicht zurückholen: Datenträger voll. Die acht Dateien können "
        "aus zwei Speicherungen stammen; was das Programm jetzt weiß, ist aufgehoben.");
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    const auto stände = AlleStände();
    EXPECT_TRUE(std::ranges::any_of(
        stände, [&](const Stand &stand) { return InhaltVon(stand.Ort) == zuvor; }));
}

TEST_F(StändeFormTest, AuchÜberEineSchreibgeschützteDateiAnderenNamensKommtErZurück)
{
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "helfer.dat");
    fs::permissions(Festplatte / "helfer.dat", fs::perms::owner_read);
    Öffnen();
    form->Liste->selectRow(1);
    Antworten = {true};
    Klick("Zurückholen");
    EXPECT_EQ(zurückgeholt, 1);
    EXPECT_EQ(Meßdiener.Anzahl, 1);
}

TEST_F(StändeFormTest, WasDerBenutzerWähltBleibtGewählt)
{
    form = new StändeForm;
    form->Liste->selectRow(1);
    Zeigen(form);
    EXPECT_TRUE(Warten([this] { return form->Liste->item(1, 5) != nullptr; }));
    EXPECT_EQ(form->Liste->currentRow(), 1);
}

TEST_F(StändeFormTest, AllesIstMitDerTastaturErreichbarUndHatEinenNamen)
{
    Öffnen();
    Klick("Ansehen");
    form->Liste->setFocus();
    EXPECT_EQ(Tabfolge(form),
              (std::vector<Text>{"Liste", "Ansicht", "Ansehen", "Zurückholen", "Ende"}));
    EXPECT_TRUE(Stumme(form).empty());
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
    Klick("Ende");
    EXPECT_FALSE(IstOffen("Stände"));
}

} // namespace
} // namespace altardienst
