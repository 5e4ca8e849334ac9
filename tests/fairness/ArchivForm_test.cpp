// The window "Archiv".
#include "fairness/ArchivForm.h"

#include "Formstand.h"
#include "application/Mitteilung.h"
#include "fairness/Archiv.h"
#include "overview/Platz.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class ArchivFormTest : public Formstand<ArchivForm> {
  protected:
    ArchivFormTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        HelferAnlegen("Maria", "Linde", "Lektor");
        MesseMitDienern(Heute + 7, 2);
        MesseMitDienern(Heute + 14, 1);
        Messe.Leuchter[0] = 1;
        Messe.LektorZahl[1] = 1;
        Besetzen(Messe, Dienerplatznr(0, 1), "Kim", "Adler");
        Besetzen(Messe, Helferplatznr(1, 0), "Maria", "Linde");
    }

    /// Keeps the plan, and once more a month later with one name less.
    void ZweiZeiträumeAufheben()
    {
        PlanArchivieren();
        Messe.Datum[0] += 30;
        Messe.Datum[1] += 30;
        Leeren(Messe, Helferplatznr(1, 0));
        PlanArchivieren();
    }

    void Öffnen()
    {
        form = new ArchivForm;
        Zeigen(form);
    }

    void Anklicken(int zeile) const
    {
        const QTableWidget *tafel = form->Zeiträume;
        QTest::mouseClick(tafel->viewport(), Qt::LeftButton, {},
                          tafel->visualItemRect(tafel->item(zeile, 0)).center());
    }

    static std::vector<Text> Inhalt(const QTableWidget *tafel)
    {
        std::vector<Text> zeilen;
        for (int zeile = 0; zeile < tafel->rowCount(); ++zeile) {
            Text text;
            for (int spalte = 0; spalte < tafel->columnCount(); ++spalte)
                text += (spalte == 0 ? "" : "|") + tafel->item(zeile, spalte)->text().toStdString();
            zeilen.push_back(text);
        }
        return zeilen;
    }
    std::vector<Text> Zeiträume() const { return Inhalt(form->Zeiträume); }
    std::vector<Text> Dienste() const { return Inhalt(form->Dienste); }

    fs::path Datei() const
    {
        return Festplatte / "Archiv" /
               Archivname({DatumAus({2026, 11, 28}), DatumAus({2026, 12, 5})});
    }

    using Liste = std::vector<Text>;
    const Text Früher = "28.11.2026 bis 05.12.2026";
    const Text Später = "28.12.2026 bis 04.01.2027";
};

TEST_F(ArchivFormTest, EinLeeresArchivSagtWieEtwasHineinkommt)
{
    Öffnen();
    EXPECT_TRUE(Zeiträume().empty());
    EXPECT_TRUE(Dienste().empty());
    EXPECT_EQ(Zeigt("Hinweis"),
              "Das Archiv ist leer. Ein Plan kommt hinein, bevor (1) ihn wegwirft "
              "oder er gedruckt wird.");
    EXPECT_FALSE(form->Löschen->isEnabled());
    Klick("Ende");
    EXPECT_FALSE(IstOffen("Archiv"));
}

TEST_F(ArchivFormTest, DerLetzteZeitraumStehtObenUndIstGewählt)
{
    ZweiZeiträumeAufheben();
    Öffnen();
    EXPECT_EQ(Zeiträume(), (Liste{Später, Früher}));
    EXPECT_EQ(Dienste(), Liste{"Mo 28.12.2026 10:00|Messe|Adler, Kim|Leuchter"});
    EXPECT_EQ(Zeigt("Hinweis"), "Ein Dienst.");
    EXPECT_TRUE(form->Zeiträume->hasFocus());
}

TEST_F(ArchivFormTest, EinKlickUndEineTasteZeigenDieDiensteDesZeitraums)
{
    ZweiZeiträumeAufheben();
    Öffnen();
    const Liste frühere = {"Sa 28.11.2026 10:00|Messe|Adler, Kim|Leuchter",
                           "Sa 05.12.2026 10:00|Messe|Linde, Maria|Lektor"};
    Anklicken(1);
    EXPECT_EQ(Dienste(), frühere);
    EXPECT_EQ(Zeigt("Hinweis"), "2 Dienste.");
    Taste(form->Zeiträume, Qt::Key_Up);
    EXPECT_EQ(Dienste().size(), 1U);
    Taste(form->Zeiträume, Qt::Key_Down);
    EXPECT_EQ(Dienste(), frühere);
}

TEST_F(ArchivFormTest, LöschenFragtUndNenntDenZeitraum)
{
    ZweiZeiträumeAufheben();
    Öffnen();
    Anklicken(1);
    Klick("Löschen"); // the answer is Nein
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Archiv löschen");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Die Dienste vom 28.11.2026 bis 05.12.2026 aus dem Archiv löschen? Sie zählen dann "
              "nicht mehr mit.");
    EXPECT_TRUE(fs::exists(Datei()));
    EXPECT_EQ(Zeiträume(), (Liste{Später, Früher}));
    EXPECT_EQ(Dienste().size(), 2U);
}

TEST_F(ArchivFormTest, AufJaIstDerZeitraumFortUndDerNächsteGezeigt)
{
    ZweiZeiträumeAufheben();
    Öffnen();
    Anklicken(1);
    Antworten = {true, true};
    Taste(form->Löschen, Qt::Key_Space);
    EXPECT_FALSE(fs::exists(Datei()));
    EXPECT_EQ(Zeiträume(), Liste{Später});
    EXPECT_EQ(Dienste().size(), 1U);
    EXPECT_NE(Mitteilungen().Letzte.find("aus dem Archiv gelöscht: " + Früher), Text::npos);
    Klick("Löschen");
    EXPECT_TRUE(Zeiträume().empty());
    EXPECT_TRUE(Dienste().empty());
    EXPECT_FALSE(form->Löschen->isEnabled());
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Das Archiv ist leer."));
}

TEST_F(ArchivFormTest, EineUnlesbareDateiSagtEsUndLäßtSichLöschen)
{
    ZweiZeiträumeAufheben();
    const auto lesen = Laufwerke.Lesen;
    Laufwerke.Lesen = [&](const fs::path &pfad) {
        if (pfad == Datei())
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        return lesen(pfad);
    };
    Öffnen();
    EXPECT_EQ(Dienste().size(), 1U);
    Anklicken(1);
    EXPECT_TRUE(Dienste().empty()) << "not those of the other period";
    EXPECT_EQ(Zeigt("Hinweis"), "Die Datei ist nicht lesbar: Zugriff verweigert.");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Anklicken(0);
    EXPECT_EQ(Zeigt("Hinweis"), "Ein Dienst.");
    Anklicken(1);
    Antworten = {true};
    Klick("Löschen");
    EXPECT_EQ(Zeiträume(), Liste{Später});
}

TEST_F(ArchivFormTest, ZeilenDieKeinDienstSindWerdenGezählt)
{
    PlanArchivieren();
    DateiSchreiben(Datei(), DateiLesen(Datei()) + "von Hand\r\nnoch eine\r\n");
    Öffnen();
    EXPECT_EQ(Zeigt("Hinweis"), "2 Dienste. 2 Zeilen der Datei sind keine Dienste.");
}

TEST_F(ArchivFormTest, EinVerzeichnisAnDerStelleDerDateiBleibt)
{
    ZweiZeiträumeAufheben();
    Öffnen();
    fs::remove(Datei());
    fs::create_directories(Datei() / "etwas");
    Anklicken(1);
    EXPECT_TRUE(Dienste().empty());
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Die Datei ist nicht lesbar: ")) << Zeigt("Hinweis");
    Antworten = {true};
    Klick("Löschen");
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Die Datei lässt sich nicht löschen: "))
        << Zeigt("Hinweis");
    EXPECT_TRUE(fs::exists(Datei() / "etwas"));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(ArchivFormTest, EinVerzeichnisVonAnfangAnIstKeinZeitraum)
{
    fs::create_directories(Datei());
    Öffnen();
    EXPECT_TRUE(Zeiträume().empty());
}

TEST_F(ArchivFormTest, EineDateiAnDerStelleDesArchivsIstEinLeeresArchiv)
{
    DateiSchreiben(Festplatte / "Archiv", "kein Verzeichnis");
    Öffnen();
    EXPECT_TRUE(Zeiträume().empty());
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Das Archiv ist leer."));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
