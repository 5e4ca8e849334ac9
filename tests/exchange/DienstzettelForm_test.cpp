// The window "Dienstzettel".
#include "exchange/DienstzettelForm.h"

#include "application/Mitteilung.h"
#include "exchange/Aushangstand.h"
#include "fairness/Archiv.h"
#include "printing/Papierfenster.h"
#include "printing/Plandruck.h"

#include <QApplication>
#include <QClipboard>

namespace altardienst {
namespace {

class DienstzettelFormTest : public Papierfenster<DienstzettelForm> {
  protected:
    DienstzettelFormTest()
    {
        const int i = VolleMesse(2);
        Messe.LektorZahl[i] = 1;
        Besetzen(Messe, Helferplatznr(i, 0), "Maria", "Linde");
        MeßdienerAnlegen("Ben", "Busch");
        Öffnen();
    }
    ~DienstzettelFormTest() override
    {
        VorDemPlandruck = [] {};
    }

    Text Vorschau() const { return form->Vorschau->toPlainText().toStdString(); }
    bool Zeigt(const Text &name) const { return Vorschau().find(name) != Text::npos; }
    using Formstand<DienstzettelForm>::Zeigt;
};

TEST_F(DienstzettelFormTest, DieVorschauFolgtDerWahl)
{
    EXPECT_TRUE(Zeigt("Vor1 Nach1\nAltardienst, 22.11.2026\n"));
    EXPECT_TRUE(Vorschau().find("Maria Linde (Helfer)") != Text::npos);
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "3 Zettel.");
    Klick("Helferinnen");
    EXPECT_EQ(Vorschau().find("Maria"), Text::npos);
    Klick("AuchOhneDienst");
    EXPECT_NE(Vorschau().find("Ben Busch"), Text::npos);
    Klick("Diener");
    EXPECT_EQ(Vorschau(), "");
    EXPECT_FALSE(form->Drucken->isEnabled() || form->Kopieren->isEnabled() ||
                 form->Speichern->isEnabled());
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "Weder Meßdiener noch Helfer sind angekreuzt.");
}

TEST_F(DienstzettelFormTest, WarumEsKeinenZettelGibt)
{
    Messe.Dienerzahl[0] = 0;
    Klick("Helferinnen");
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "Kein Meßdiener dient in diesem Plan.");
    Messe.LektorZahl[0] = 0;
    Klick("Helferinnen");
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "Niemand dient in diesem Plan.");
    Klick("Diener");
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "Kein Helfer dient in diesem Plan.");
}

TEST_F(DienstzettelFormTest, NachGruppen)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Meßdiener.Gruppe[MeßdienerAnlegen("Vor2", "Nach2")] = "Große";
    form->Ordnung->setCurrentIndex(1);
    EXPECT_TRUE(Vorschau().starts_with("Vor2 Nach2 (Große)"));
}

TEST_F(DienstzettelFormTest, DruckenNachdemDerPlanInsArchivKam)
{
    int vorher = 0;
    VorDemPlandruck = [&] { vorher += Papier.Zeilen.empty() ? 1 : 100; };
    const auto zeilen = Gedruckt("Drucken");
    EXPECT_EQ(vorher, 1);
    ASSERT_FALSE(zeilen.empty());
    EXPECT_EQ(zeilen[0], "Maria Linde");
    EXPECT_EQ(zeilen[1], "Altardienst, 22.11.2026, Helfer");
}

TEST_F(DienstzettelFormTest, KopierenLegtDenTextInDieZwischenablage)
{
    Klick("Kopieren");
    EXPECT_EQ(QApplication::clipboard()->text(), form->Vorschau->toPlainText());
    EXPECT_EQ(altardienst::Zeigt(form->Hinweis), "3 Zettel in der Zwischenablage.");
}

TEST_F(DienstzettelFormTest, SpeichernSchreibtEineTextdatei)
{
    GewählteDatei = Festplatte / "Zettel.txt";
    Klick("Speichern");
    ASSERT_EQ(Dateiwünsche.size(), 1U);
    EXPECT_EQ(Dateiwünsche[0].Name, "Dienstzettel.txt");
    const Text datei = DateiLesen(Festplatte / "Zettel.txt");
    EXPECT_TRUE(datei.starts_with("\xEF\xBB\xBFMaria Linde (Helfer)\r\n")) << datei;
    EXPECT_EQ(datei.find("\n\n"), Text::npos);
    EXPECT_NE(Mitteilungen().Letzte.find("Dienstzettel geschrieben: "), Text::npos);
}

TEST_F(DienstzettelFormTest, WasSichNichtSchreibenLässtStehtImFenster)
{
    GewählteDatei = Festplatte / "fehlt" / "Zettel.txt";
    Klick("Speichern");
    EXPECT_TRUE(
        altardienst::Zeigt(form->Hinweis).starts_with("Die Datei wurde nicht geschrieben: "))
        << altardienst::Zeigt(form->Hinweis);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    GewählteDatei.reset();
    Klick("Speichern");
    EXPECT_TRUE(std::filesystem::is_empty(Festplatte));
}

} // namespace
} // namespace altardienst
