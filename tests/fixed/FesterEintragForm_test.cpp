// The path of a fixed entry from the main window into the plan, and what becomes of it.
#include "fixed/Zuordnungsstand.h"

#include "planning/MessenlisteForm.h"
#include "printing/DialogForm.h"
#include "printing/Druckprotokoll.h"
#include "shell/HauptForm.h"

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

/// A period of eight days with three masses: Sunday, Wednesday and the next Sunday.
class FesterEintragFormTest : public Zuordnungsstand {
  protected:
    FesterEintragFormTest() : zuvor(std::exchange(Drucker, &Papier))
    {
        Konfig.StartDatum = Sonntag;
        Konfig.Tage = 7;
        Konfig.Gemeinde = "St. Ägid";
        Konfig.DiffGröße = 20;
        Muster(0, "Sonntag", 10, "Hochamt", 4);
        Standardmesse.Leuchter[0] = 2;
        Muster(1, "Mittwoch", 18, "Abendmesse", 3);
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        Zeigen(haupt);
    }
    ~FesterEintragFormTest() override { Drucker = zuvor; }

    static void Muster(int i, const char *tag, int stunde, const char *art, int diener)
    {
        Standardmesse.Wochentag[i] = tag;
        Standardmesse.Uhrzeit[i] = ZeitAus(stunde * 3600);
        Standardmesse.Messeart[i] = art;
        Standardmesse.Dienerzahl[i] = diener;
    }

    /// Runs step 1 to 7 of the main window; a dialog that opens becomes `form`.
    void Schritt(int nummer, const char *dialog = nullptr)
    {
        const std::array knöpfe = {haupt->Messenorgani,    haupt->Meßdienernern, haupt->Dienstus,
                                   haupt->MeßdienerMessen, haupt->Helfend,       haupt->AnzMesse,
                                   haupt->Messendruck};
        Zeigen(haupt);
        Klick(knöpfe.at(static_cast<std::size_t>(nummer - 1)));
        if (dialog)
            Dialog(dialog);
    }
    void MenüWählen(const char *eintrag, const char *dialog)
    {
        altardienst::MenüWählen(haupt, eintrag);
        Dialog(dialog);
    }
    using Zuordnungsstand::Wählen;

    void Dialog(const char *name)
    {
        form = Fenster(name);
        Zeigen(form);
    }
    void Schließen()
    {
        form->close();
        ASSERT_TRUE(Warten([&] { return !form; }));
    }

    void MessenBestimmen()
    {
        Schritt(1, "Messenliste");
        Schließen();
        ASSERT_EQ(Messe.Anzahl, 3);
    }

    /// Puts Abel into the first slot of the first mass and a group into the third.
    void Festlegen()
    {
        Schritt(2, "NeuMesseDienerFest");
        knopf = "Anfügen";
        MesseWählen("22.11.2026,10:00:00,Hochamt");
        Wählen(1, "Abel,Kim");
        Wählen(3, "Tarzisius,Gruppe");
        Klick("Anfügen");
        Schließen();
        ASSERT_EQ(MesseDienerFest.Anzahl, 1);
    }

    static Text Slot(int m, int slot)
    {
        return Messe.DienerVor[m][slot] + " " + Messe.DienerNach[m][slot];
    }

    /// The first mass has its fixed names, and other people in its other slots.
    static void ErwarteFesteNamen(const Text &erster, const char *schritt)
    {
        EXPECT_EQ(Slot(0, 1), erster) << schritt;
        EXPECT_EQ(Slot(0, 3), "Gruppe Tarzisius") << schritt;
        for (const int slot : {2, 4})
            EXPECT_GT(Slot(0, slot), " ") << schritt;
    }

    void ErwarteInDerListe()
    {
        Schritt(6, "Messenliste");
        EXPECT_EQ(Zeigt("vor1") + " " + Zeigt("nach1"), "Kim Abel");
        EXPECT_EQ(Zeigt("vor3") + " " + Zeigt("nach3"), "Gruppe Tarzisius");
        Schließen();
    }

    void ErwarteGedruckt()
    {
        Papier.Leeren();
        Schritt(7);
        EXPECT_EQ(Papier.WieOft("Print \"Leuchter: Kim Abel, " + Slot(0, 2) + "\""), 1);
        EXPECT_EQ(Papier.WieOft("Print \"Gruppe Tarzisius, " + Slot(0, 4) + "\""), 1);
    }

    void ErwarteAlsText()
    {
        MenüWählen("mnuMessenlisteText", "Dialog");
        auto *dialog = static_cast<DialogForm *>(form.data());
        dialog->Wahl.Öffnen(Festplatte);
        Einsetzen(dialog->Dateiname, "Plan");
        Klick(dialog->OKButton);
        const Text plan = DateiLesen(Festplatte / "Plan.txt");
        EXPECT_NE(plan.find("\r\nLeuchter: Kim Abel, " + Slot(0, 2) + "\r\n"), Text::npos) << plan;
        EXPECT_NE(plan.find("\r\nGruppe Tarzisius, " + Slot(0, 4) + "\r\n"), Text::npos) << plan;
        std::filesystem::remove(Festplatte / "Plan.txt");
        if (form)
            Schließen();
    }

    QPointer<HauptForm> haupt;
    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

TEST_F(FesterEintragFormTest, StehtNachJedemLaufInListePlanUndText)
{
    MessenBestimmen();
    Festlegen();
    EXPECT_EQ(Slot(0, 1), " "); // No to the question
    for (const int lauf : {3, 4}) {
        Antworten = {true};
        Schritt(lauf);
        ErwarteFesteNamen("Kim Abel", ZahlText(lauf).c_str());
        ErwarteInDerListe();
        ErwarteGedruckt();
        ErwarteAlsText();
    }
}

TEST_F(FesterEintragFormTest, DerWunschpartnerlaufSetztDenFestenNirgendsSonstEin)
{
    MessenBestimmen();
    Festlegen();
    for (int mal = 0; mal < 20; ++mal) {
        Schritt(4);
        for (int slot = 2; slot <= 4; ++slot)
            EXPECT_NE(Slot(0, slot), "Kim Abel");
    }
}

TEST_F(FesterEintragFormTest, FolgtSeinerMesseAufEinenAnderenTag)
{
    MessenBestimmen();
    Festlegen();
    Schritt(6, "Messenliste");
    Klick("pt");
    Einsetzen("Uhrwerk", "11:30");
    Schließen();
    EXPECT_EQ(Termin(0), "23.11.2026,11:30:00");
    MenüWählen("MnuMESSDIENZUMESS", "MesseDienerFest");
    EXPECT_EQ(Messentext(), "23.11.2026,11:30:00");
    EXPECT_EQ(Zeilen(), 4);
    EXPECT_EQ(Gewählt(1), "Abel,Kim");
    Antworten = {true};
    Schließen();
    EXPECT_EQ(Slot(0, 1), "Kim Abel");
}

TEST_F(FesterEintragFormTest, FolgtDemNeuenNamenSeinesMeßdieners)
{
    MessenBestimmen();
    Festlegen();
    MenüWählen("mnuMeßdiener", "Meßdiener");
    Einsetzen("Vornamen", "Ada");
    Klick("Ende");
    ASSERT_TRUE(Warten([&] { return !form; }));
    EXPECT_EQ(Gespeichert(0, 1), "Ada|Abel");
    MenüWählen("MnuMESSDIENZUMESS", "MesseDienerFest");
    EXPECT_EQ(Gewählt(1), "Abel,Ada");
    knopf = "OKbutton";
    Wählen(2, "Bauer,Kim");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U); // about the masses, and none since
    Schließen();
    Antworten = {true};
    Schritt(3);
    EXPECT_EQ(Slot(0, 1), "Ada Abel");
    EXPECT_EQ(Slot(0, 2), "Kim Bauer");
}

TEST_F(FesterEintragFormTest, EinNeuerPlanHatKeineFestenEinträge)
{
    MessenBestimmen();
    Festlegen();
    MesseDienerFest.Cursor = 1;
    MessenBestimmen();
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_EQ(Gespeichert(0, 1), "|");
    MenüWählen("MnuMESSDIENZUMESS", "MesseDienerFest");
    EXPECT_EQ(Zeigt("MaxIndex"), "0");
    EXPECT_EQ(Zeigt("Index"), "0");
    EXPECT_EQ(Gewählt(1), "");
    EXPECT_EQ(Zeilen(), 0);
    Schließen();
    Schritt(4);
    for (int slot = 1; slot <= 4; ++slot)
        EXPECT_NE(Slot(0, slot), "Gruppe Tarzisius");
}

} // namespace
} // namespace altardienst
