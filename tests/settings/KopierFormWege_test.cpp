// From where to where the copy dialogs copy, why there is no OK, and names that get corrected.
#include "settings/Kopierstand.h"

#include "application/Mitteilung.h"
#include "shell/Programm.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class KopierFormWegeTest : public Kopierstand {
  protected:
    /// The label at the left of a path.
    Text Neben(const QWidget *pfad) const
    {
        for (const char *name : {"QuelleText", "ZielText"}) {
            const QWidget *label = Finden(name);
            if (label->y() == pfad->y() && label->x() < pfad->x())
                return Zeigt(label);
        }
        return "";
    }

    Text Hinweis() const { return Zeigt(form->Hinweis); }
    bool ZeigtBerichtigen() const { return form->Berichtigen->isVisible(); }

    /// The eight files in small letters, as a backup has them.
    static void Sicherung(const path &verzeichnis)
    {
        fs::create_directories(verzeichnis);
        for (const auto &[name, klein] : AchtNamen)
            DateiSchreiben(verzeichnis / PfadAus(klein), name);
    }
};

TEST_F(KopierFormWegeTest, BeimSichernIstDasProgrammDieQuelle)
{
    AchtSchreiben(Festplatte, "");
    Öffnen<DatensicherungForm>();
    QCoreApplication::processEvents();
    EXPECT_EQ(Zeigt(form->Gegenort), TextVon(Festplatte) + "/");
    EXPECT_EQ(Neben(form->Gegenort), "Quelle:");
    EXPECT_EQ(Neben(form->Datei), "Ziel:");
    EXPECT_EQ(Hinweis(), "");
    EXPECT_FALSE(ZeigtBerichtigen());
}

TEST_F(KopierFormWegeTest, BeimHolenIstDasProgrammDasZiel)
{
    Öffnen<DateikopieForm>();
    QCoreApplication::processEvents();
    EXPECT_EQ(Neben(form->Datei), "Quelle:");
    EXPECT_EQ(Neben(form->Gegenort), "Ziel:");
    EXPECT_EQ(Zeigt(form->Gegenort), TextVon(Festplatte) + "/");
}

TEST_F(KopierFormWegeTest, EsSagtWarumOKFehlt)
{
    AchtSchreiben(Diskette, "");
    fs::remove(Diskette / "Etiketten.dat");
    Öffnen<DateikopieForm>();
    EXPECT_EQ(Hinweis(), "Hier liegt keine der acht Dateien.");
    NächstesLaufwerk();
    EXPECT_FALSE(ZeigtOK());
    EXPECT_EQ(Hinweis(), "Hier fehlt: Etiketten.dat");
    EXPECT_FALSE(ZeigtBerichtigen());
    DateiSchreiben(Diskette / "Etiketten.dat", "");
    NächstesLaufwerk(-1);
    NächstesLaufwerk();
    EXPECT_TRUE(ZeigtOK());
    EXPECT_EQ(Hinweis(), "");
}

TEST_F(KopierFormWegeTest, BeimSichernIstEsDasVerzeichnisDesProgrammsDemEtwasFehlt)
{
    AchtSchreiben(Festplatte, "");
    fs::remove(Festplatte / "Helfer.dat");
    Öffnen<DatensicherungForm>();
    EXPECT_FALSE(ZeigtOK());
    EXPECT_EQ(Hinweis(), "Hier fehlt: Helfer.dat");
    Laufwerke.Wurzeln = [] { return std::vector<Wurzel>{}; };
    form->close();
    Öffnen<DatensicherungForm>();
    EXPECT_EQ(Hinweis(), "Kein Laufwerk lässt sich lesen.");
}

TEST_F(KopierFormWegeTest, KleingeschriebenesLässtSichBerichtigenUndHolen)
{
    Sicherung(Diskette);
    Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    EXPECT_FALSE(ZeigtOK());
    ASSERT_TRUE(ZeigtBerichtigen());
    EXPECT_EQ(Zeigt(form->Berichtigen), "Namen berichtigen");
    Klick(form->Berichtigen);
    EXPECT_EQ(Hinweis(), "8 Namen berichtigt.");
    EXPECT_TRUE(ZeigtOK());
    EXPECT_TRUE(form->OKButton->hasFocus());
    EXPECT_FALSE(ZeigtBerichtigen());
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Liste gezeigt;
    for (int i = 0; i < form->Wahl.Dateien->count(); ++i)
        gezeigt.push_back(form->Wahl.Dateien->item(i)->text().toStdString());
    EXPECT_EQ(gezeigt, DateienIn(Diskette)) << "the list is read anew";
    NächstesLaufwerk(-1);
    NächstesLaufwerk();
    EXPECT_EQ(Hinweis(), "") << "what was done once is not said for ever";
}

TEST_F(KopierFormWegeTest, AuchImVerzeichnisDesProgrammsWirdBerichtigt)
{
    Sicherung(Festplatte);
    Öffnen<DatensicherungForm>();
    NächstesLaufwerk();
    Klick(form->Berichtigen);
    EXPECT_TRUE(ZeigtOK());
    EXPECT_EQ(DateiLesen(Festplatte / "Konfig.cfg"), "Konfig.cfg");
    EXPECT_TRUE(DateienIn(Diskette).empty());
}

TEST_F(KopierFormWegeTest, EinScheiternStehtDanebenUndOKBleibtWeg)
{
    Sicherung(Diskette);
    Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    Laufwerke.Umbenennen = [um = Laufwerke.Umbenennen](const path &von, const path &nach) {
        if (von.filename() == "helfer.dat")
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        um(von, nach);
    };
    Klick(form->Berichtigen);
    EXPECT_EQ(Hinweis(), "7 Namen berichtigt, nicht aber: helfer.dat (Zugriff verweigert)");
    EXPECT_FALSE(ZeigtOK());
    EXPECT_TRUE(ZeigtBerichtigen()) << "to try again";
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KopierFormWegeTest, WasKopiertWurdeWirdMitgeteilt)
{
    AchtSchreiben(Festplatte, "");
    Öffnen<DatensicherungForm>();
    NächstesLaufwerk();
    EinzelneWählen(3);
    Klick(form->OKButton);
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 1 Datei nach " + TextVon(Diskette) + "/ kopiert");
    AchtSchreiben(Diskette, "kaputt");
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    Klick(form->OKButton);
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 8 Dateien aus " + TextVon(Diskette) +
                                         "/ geholt, aber nicht alles geladen: bei Konfig.cfg "
                                         "abgebrochen");
}

TEST_F(KopierFormWegeTest, EineMißlungeneKopieGiltNichtAlsGetan)
{
    AchtSchreiben(Festplatte, "");
    Öffnen<DatensicherungForm>();
    NächstesLaufwerk();
    Laufwerke.Kopieren = [](const path &, const path &) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    EXPECT_EQ(Mitteilungen().Letzte, "");
}

TEST_F(KopierFormWegeTest, NurBeimErstenStartSagtEinSatzWasZuWählenIst)
{
    Öffnen<DateikopieForm>();
    EXPECT_EQ(form->findChild<QLabel *>("Anleitung"), nullptr);
    form->close();
    Laufwerke.Wurzeln = [wurzeln = Laufwerke.Wurzeln] {
        std::vector<Wurzel> mit = wurzeln();
        mit.push_back({MitgelieferteDatenName, mit.front().Pfad});
        return mit;
    };
    ProgrammStarten();
    form = static_cast<KopierForm *>(Fenster("DateienKopieren"));
    Zeigen(form);
    const Text satz = Zeigt("Anleitung");
    for (const char *wort : {"„Mitgelieferte Daten“", "„leer“", "„beispiel“", "Sicherung"})
        EXPECT_NE(satz.find(wort), Text::npos) << wort;
    Klick(form->Einzel);
    QCoreApplication::processEvents();
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
}

TEST_F(KopierFormWegeTest, WasNichtMitgeliefertIstNenntDerSatzNicht)
{
    ProgrammStarten();
    form = static_cast<KopierForm *>(Fenster("DateienKopieren"));
    EXPECT_EQ(Zeigt("Anleitung"), "Wählen Sie das Laufwerk und das Verzeichnis, in dem Ihre acht "
                                  "Dateien oder Ihre Sicherung liegen.");
}

TEST_F(KopierFormWegeTest, LangeWegeWerdenInDerMitteGekürzt)
{
    Festplatte = laufwerk / std::string(200, 'w') / std::string(200, 'x') / "Ende";
    AchtSchreiben(Festplatte, "");
    Öffnen<DatensicherungForm>();
    QCoreApplication::processEvents();
    const Text sichtbar = form->Gegenort->Sichtbar().toStdString();
    EXPECT_TRUE(sichtbar.starts_with(TextVon(laufwerk).substr(0, 8))) << sichtbar;
    EXPECT_TRUE(sichtbar.ends_with("/Ende/")) << sichtbar;
    EXPECT_EQ(Zeigt(form->Gegenort), TextVon(Festplatte) + "/");
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
}

} // namespace
} // namespace altardienst
