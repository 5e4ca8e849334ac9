// Where the print dialog can send a report: a printer of the system, or a PDF file.
#include "paper/Druckdialog.h"

#include "Formstand.h"
#include "paper/Dokumente.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QTimer>

#include <memory>

#include <unistd.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// The documents lie on the disk, which has the directory Berichte.
class DruckdialogZielTest : public Formstand<DruckdialogForm> {
  protected:
    DruckdialogZielTest() : dokumente(Festplatte) { fs::create_directory(Festplatte / "Berichte"); }

    void Öffnen(const Druckerliste &drucker = {})
    {
        dialog = std::make_unique<DruckdialogForm>(Druckanfrage{}, drucker);
        form = dialog.get();
        Zeigen(form);
    }

    bool IstAktiv(const char *name) const { return Finden(name)->isEnabled(); }

    /// Types the name of a PDF file; true if it may be chosen.
    bool Geht(const Text &name) const
    {
        Tippen(dialog->PdfDatei, name);
        return dialog->OKButton->isEnabled();
    }

    /// Presses Enter in the box; true if that accepts the dialog.
    bool Genommen() const
    {
        QTest::keyClick(dialog->PdfDatei, Qt::Key_Return);
        return !dialog->isVisible() && dialog->result() == QDialog::Accepted;
    }

    Text Gewählt() const
    {
        return QDir::toNativeSeparators(dialog->Auswahl().Ziel->outputFileName()).toStdString();
    }
    Text Pfad(const char *name) const { return TextVon((Festplatte / name).make_preferred()); }

    Dokumente dokumente;
    std::unique_ptr<DruckdialogForm> dialog;
};

const Druckerliste ZweiDrucker = {{"Pfarrbüro", "Sakristei"}, "Sakristei"};

TEST_F(DruckdialogZielTest, EinDruckerDesSystemsIstVorgewähltUndBrauchtKeineDatei)
{
    Öffnen(ZweiDrucker);
    EXPECT_TRUE(dialog->Papier->isChecked());
    EXPECT_EQ(dialog->Druckername->count(), 2);
    EXPECT_EQ(dialog->Druckername->currentText(), "Sakristei");
    for (const char *name : {"Papier", "Druckername", "Einstellungen", "Kopien", "OKButton"})
        EXPECT_TRUE(IstAktiv(name)) << name;
    for (const char *name : {"PdfDatei", "Durchsuchen"})
        EXPECT_FALSE(IstAktiv(name)) << name;
    dialog->PdfDatei->clear();
    EXPECT_TRUE(IstAktiv("OKButton"));
    Einsetzen(dialog->PdfDatei, "/gibt/es/nicht.pdf");
    EXPECT_TRUE(IstAktiv("OKButton"));
    EXPECT_EQ(Zeigt("Hinweis"), "");
}

TEST_F(DruckdialogZielTest, DerDruckerBekommtDieKopienUndKeineDatei)
{
    DateiSchreiben(Festplatte / "Altardienst.pdf", "alt");
    Öffnen(ZweiDrucker);
    dialog->Kopien->setValue(3);
    Klick(dialog->OKButton);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_TRUE(GestellteFragen.empty());
    const Druckauswahl auswahl = dialog->Auswahl();
    EXPECT_EQ(auswahl.Ziel->copyCount(), 3);
    EXPECT_EQ(auswahl.Ziel->outputFileName(), "");
}

TEST_F(DruckdialogZielTest, VomDruckerZurDateiUndZurück)
{
    Öffnen(ZweiDrucker);
    Klick(dialog->Pdf);
    for (const char *name : {"PdfDatei", "Durchsuchen"})
        EXPECT_TRUE(IstAktiv(name)) << name;
    for (const char *name : {"Druckername", "Einstellungen", "Kopien"})
        EXPECT_FALSE(IstAktiv(name)) << name;
    EXPECT_FALSE(Geht(""));
    Klick(dialog->Papier);
    EXPECT_TRUE(IstAktiv("OKButton"));
}

TEST_F(DruckdialogZielTest, EineVorhandeneDateiWirdNurNachEinerFrageErsetzt)
{
    DateiSchreiben(Festplatte / "Berichte/Plan.pdf", "alt");
    Öffnen();
    EXPECT_TRUE(Geht(Pfad("Berichte/Plan.pdf")));
    EXPECT_FALSE(Genommen()); // Nein
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Die Datei " + Pfad("Berichte/Plan.pdf") +
                                               " gibt es schon. Soll sie ersetzt werden?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Drucken");
    Antworten = {true};
    EXPECT_TRUE(Genommen());
    EXPECT_EQ(GestellteFragen.size(), 2U);
    Öffnen();
    EXPECT_TRUE(Geht(Pfad("Berichte/neu.pdf")));
    EXPECT_TRUE(Genommen());
    EXPECT_EQ(GestellteFragen.size(), 2U);
}

// The same file is asked about when it is named without its extension.
TEST_F(DruckdialogZielTest, GefragtWirdNachDerDateiDieGeschriebenWird)
{
    DateiSchreiben(Festplatte / "Plan.pdf", "alt");
    Öffnen();
    EXPECT_TRUE(Geht("Plan"));
    EXPECT_FALSE(Genommen());
    EXPECT_EQ(GestellteFragen.size(), 1U);
}

TEST_F(DruckdialogZielTest, WasBeimDurchsuchenBestätigtWurdeWirdNichtNocheinmalGefragt)
{
    DateiSchreiben(Festplatte / "Berichte/Plan.pdf", "alt");
    DateiSchreiben(Festplatte / "Berichte/Liste.pdf", "alt");
    Öffnen();
    QTimer::singleShot(1, [&] {
        auto *wähler = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(wähler, nullptr);
        wähler->setOption(QFileDialog::DontConfirmOverwrite); // as if it had been confirmed
        wähler->selectFile(Anzeige(Pfad("Berichte/Plan.pdf")));
        QMetaObject::invokeMethod(wähler, "accept");
    });
    Klick(dialog->Durchsuchen);
    EXPECT_EQ(Zeigt("PdfDatei"), Pfad("Berichte/Plan.pdf"));
    Zeigen(dialog.get());
    EXPECT_TRUE(Geht(Pfad("Berichte/Liste.pdf")));
    EXPECT_FALSE(Genommen()); // another one is
    EXPECT_EQ(GestellteFragen.size(), 1U);
    EXPECT_TRUE(Geht(Pfad("Berichte/Plan.pdf")));
    EXPECT_TRUE(Genommen());
    EXPECT_EQ(GestellteFragen.size(), 1U);
}

TEST_F(DruckdialogZielTest, EinNameBekommtSeineEndung)
{
    Öffnen();
    for (const auto &[getippt, datei] : {std::pair{"Berichte/Plan", "Berichte/Plan.pdf"},
                                         {"Berichte/Plan.PDF", "Berichte/Plan.PDF"},
                                         {"Berichte/Plan 1.12.", "Berichte/Plan 1.12..pdf"},
                                         {"Berichte/pdf", "Berichte/pdf.pdf"}}) {
        EXPECT_TRUE(Geht(Pfad(getippt)));
        EXPECT_EQ(Gewählt(), Pfad(datei));
        FokusAuf(dialog->CancelButton); // and shows it
        EXPECT_EQ(Zeigt("PdfDatei"), Pfad(datei));
    }
}

TEST_F(DruckdialogZielTest, EinBloßerNameLiegtBeiDenDokumentenOderImHeimverzeichnis)
{
    Öffnen();
    EXPECT_EQ(Zeigt("PdfDatei"), Pfad("Altardienst.pdf"));
    EXPECT_TRUE(Geht("Plan"));
    EXPECT_EQ(Gewählt(), Pfad("Plan.pdf"));
    EXPECT_TRUE(Geht(" Berichte/Plan.pdf "));
    EXPECT_EQ(Gewählt(), Pfad("Berichte/Plan.pdf"));
    dokumente.EigenesVerzeichnis();
    EXPECT_TRUE(Geht("Plan"));
    EXPECT_EQ(Gewählt(), Pfad("Documents/Plan.pdf"));
}

TEST_F(DruckdialogZielTest, WoNichtGeschriebenWerdenKannGibtEsKeinOk)
{
    fs::create_directory(Festplatte / "Ordner.pdf");
    DateiSchreiben(Festplatte / "Datei", "");
    Öffnen();
    for (const char *name : {"fehlt/Plan.pdf", "Ordner.pdf", "Ordner", "Datei/Plan.pdf"}) {
        EXPECT_FALSE(Geht(Pfad(name))) << name;
        EXPECT_EQ(Zeigt("Hinweis"), "In dieses Verzeichnis lässt sich nichts schreiben.");
        EXPECT_FALSE(Genommen());
    }
    for (const char *name : {"", "   ", "/", "C:\\Pläne\\"}) {
        EXPECT_FALSE(Geht(name)) << name;
        EXPECT_EQ(Zeigt("Hinweis"), "");
        EXPECT_FALSE(Genommen());
    }
    EXPECT_TRUE(Geht(Pfad("Berichte/Plan.pdf")));
    EXPECT_EQ(Zeigt("Hinweis"), "");
#ifndef _WIN32
    if (geteuid() == 0)
        return; // who may write everywhere
    fs::permissions(Festplatte / "Berichte", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(Geht(Pfad("Berichte/Liste.pdf")));
#endif
}

TEST_F(DruckdialogZielTest, EinVerzeichnisDasVerschwundenIstWirdNichtMehrVorgeschlagen)
{
    Öffnen();
    EXPECT_TRUE(Geht(Pfad("Berichte/Plan")));
    EXPECT_EQ(Gewählt(), Pfad("Berichte/Plan.pdf"));
    Öffnen();
    EXPECT_EQ(Zeigt("PdfDatei"), Pfad("Berichte/Plan.pdf"));
    fs::remove_all(Festplatte / "Berichte");
    Öffnen();
    EXPECT_EQ(Zeigt("PdfDatei"), Pfad("Altardienst.pdf"));
    EXPECT_TRUE(IstAktiv("OKButton"));
}

} // namespace
} // namespace altardienst
