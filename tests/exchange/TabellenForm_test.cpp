// The window "Tabellen".
#include "exchange/TabellenForm.h"

#include "Formstand.h"
#include "core/Tabellentext.h"

namespace altardienst {
namespace {

class TabellenFormTest : public Formstand<TabellenForm> {
  protected:
    TabellenFormTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        Meßdiener.Gruppe[0] = "Große";
        Meßdiener.Telefon[0] = "0251";
        HelferAnlegen("Maria", "Linde", "Lektor");
        HelferAnlegen("Paul", "Quast", "Kantor");
        Öffnen();
    }

    void Öffnen()
    {
        delete form;
        form = new TabellenForm;
        Zeigen(form);
    }

    Text Angekreuzte() const
    {
        Text namen;
        for (int k = 0; k < form->Spalten->count(); ++k)
            if (form->Spalten->item(k)->checkState() == Qt::Checked)
                namen += form->Spalten->item(k)->text().toStdString() + " ";
        return namen;
    }

    void Kreuz(int spalte) const
    {
        QListWidgetItem *eine = form->Spalten->item(spalte);
        eine->setCheckState(eine->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
};

TEST_F(TabellenFormTest, ZuerstIstNurDasNötigeAngekreuzt)
{
    EXPECT_EQ(Angekreuzte(), "Vorname Nachname Gruppe ");
    EXPECT_EQ(Zeigt("Lage"),
              "Eine Zeile, 3 Spalten. Geben Sie nur weiter, was der Empfänger braucht.");
    form->Welche->setCurrentIndex(1);
    EXPECT_EQ(Angekreuzte(), "Vorname Nachname Dienst 1 Dienst 2 ");
    form->Welche->setCurrentIndex(2);
    EXPECT_EQ(Zeigt("Lage"), "Diese Liste ist leer.");
    EXPECT_FALSE(form->Speichern->isEnabled());
}

TEST_F(TabellenFormTest, DieWahlBleibtJeListe)
{
    Kreuz(5);
    Kreuz(11);
    form->Welche->setCurrentIndex(1);
    Klick("Alle");
    Öffnen();
    EXPECT_EQ(Angekreuzte(), "Vorname Nachname Telefon ");
    Klick("Übliche");
    EXPECT_EQ(Angekreuzte(), "Vorname Nachname Gruppe ");
    form->Welche->setCurrentIndex(1);
    EXPECT_EQ(Zeigt("Lage"),
              "2 Zeilen, 16 Spalten. Geben Sie nur weiter, was der Empfänger braucht.");
    for (int k = 0; k < form->Spalten->count(); ++k)
        Kreuz(k);
    EXPECT_EQ(Zeigt("Lage"), "Keine Spalte ist angekreuzt.");
    EXPECT_FALSE(form->Speichern->isEnabled());
    Öffnen();
    form->Welche->setCurrentIndex(1);
    EXPECT_EQ(Angekreuzte(), "") << "that nothing is ticked is remembered too";
}

TEST_F(TabellenFormTest, SpeichertWasAngekreuztIst)
{
    GewählteDatei = Festplatte / "Leute.csv";
    Klick("Speichern");
    ASSERT_EQ(Dateiwünsche.size(), 1U);
    EXPECT_EQ(Dateiwünsche[0].Name, "Meßdiener.csv");
    EXPECT_EQ(DateiLesen(Festplatte / "Leute.csv"),
              Text(Utf8Marke) + "Vorname;Nachname;Gruppe\r\nKim;Adler;Große\r\n");
    EXPECT_EQ(Zeigt("Lage"), "Leute.csv gespeichert, eine Zeile.");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(TabellenFormTest, EinMißlungenesSpeichernStehtImFensterUndLässtDasAlte)
{
    GewählteDatei = Festplatte / "Leute.csv";
    Klick("Speichern");
    const std::string vorher = DateiLesen(*GewählteDatei);
    Kreuz(5);
    Laufwerke.Schreiben = [](const std::filesystem::path &, std::string_view) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Klick("Speichern");
    EXPECT_TRUE(Zeigt("Lage").starts_with("Nicht gespeichert: ")) << Zeigt("Lage");
    EXPECT_EQ(DateiLesen(*GewählteDatei), vorher);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    GewählteDatei.reset(); // cancelled
    const Text lage = Zeigt("Lage");
    Klick("Speichern");
    EXPECT_EQ(Zeigt("Lage"), lage);
}

} // namespace
} // namespace altardienst
