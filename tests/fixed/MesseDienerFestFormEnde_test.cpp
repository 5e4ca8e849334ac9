// The dialog of the fixed entries: its end, the dialog for a new entry, and the way back.
#include "fixed/FesteEinträge.h"
#include "fixed/Zuordnungsstand.h"

#include "core/Allgemein.h"
#include "shell/HauptForm.h"

namespace altardienst {
namespace {

/// With the real main window; messages and questions go into one list, in order.
class MesseDienerFestFormEndeTest : public Zuordnungsstand {
  protected:
    MesseDienerFestFormEndeTest()
    {
        Meldungen.Fragen = [this](const Text &frage, const Text &titel) {
            GezeigteMeldungen.push_back(titel + ": " + frage);
            sichtbarBeiFrage = form && form->isVisible();
            offenBeiFrage = FesteZuordnungOffen;
            return antwort;
        };
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
    }

    void Öffnen()
    {
        Fest(0, 0, {"Abel", "Bauer"});
        Fest(1, 1, {"Conrad"});
        MenüWählen("MnuMESSDIENZUMESS");
        form = Fenster("MesseDienerFest");
        Zeigen(form);
    }

    void MenüWählen(const char *eintrag) const { altardienst::MenüWählen(haupt, eintrag); }
    using Zuordnungsstand::Wählen;

    void HinzuUndZurück(const std::function<void()> &dabei = [] {})
    {
        liste = form;
        Klick("Hinzu");
        form = Fenster("NeuMesseDienerFest");
        Zeigen(form);
        EXPECT_FALSE(liste->isEnabled());
        EXPECT_TRUE(liste->isMinimized());
        knopf = "Anfügen";
        dabei();
        knopf = "OKbutton";
        form->close();
        EXPECT_TRUE(Warten([&] { return !form && liste->isActiveWindow(); }));
        form = liste;
    }

    static Text Slot(int m, int slot)
    {
        return Messe.DienerVor[m][slot] + " " + Messe.DienerNach[m][slot];
    }

    bool HauptfensterIstZurück() const { return haupt->isEnabled() && haupt->isMaximized(); }

    QPointer<HauptForm> haupt;
    QPointer<QWidget> liste;
    bool antwort = false;
    bool sichtbarBeiFrage = true;
    bool offenBeiFrage = true;
    const Text Übertragen = "Meßdiener zu Messen: Übertragen in die Messenliste?";
};

TEST_F(MesseDienerFestFormEndeTest, OkUndSchließenSpeichernUndFragen)
{
    for (const bool mitKnopf : {true, false}) {
        for (const bool ja : {true, false}) {
            GezeigteMeldungen.clear();
            Messe.DienerVor[0][1] = Messe.DienerNach[0][1] = "";
            antwort = ja;
            Öffnen();
            EXPECT_FALSE(haupt->isEnabled());
            EXPECT_TRUE(haupt->isMinimized());
            EXPECT_TRUE(FesteZuordnungOffen);
            MesseWählen("22.11.2026,10:00:00,Hochamt");
            Wählen(1, "Dahl,Kim");
            if (mitKnopf)
                Klick("OKbutton");
            else
                form->close();
            EXPECT_EQ(GezeigteMeldungen, Liste{Übertragen});
            EXPECT_FALSE(sichtbarBeiFrage);
            EXPECT_FALSE(offenBeiFrage);
            EXPECT_EQ(Gespeichert(0, 1), "Kim|Dahl");
            EXPECT_EQ(Slot(0, 1), ja ? "Kim Dahl" : " ");
            EXPECT_TRUE(HauptfensterIstZurück());
            EXPECT_FALSE(FesteZuordnungOffen);
            EXPECT_TRUE(Warten([&] { return !form; }));
        }
    }
}

TEST_F(MesseDienerFestFormEndeTest, DieFrageSelbst)
{
    EchteMeldungen();
    Öffnen();
    Beantworten([&](QMessageBox *box) {
        EXPECT_EQ(box->windowTitle().toStdString(), "Meßdiener zu Messen");
        EXPECT_EQ(box->text().toStdString(), "Übertragen in die Messenliste?");
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        Auslösen(box->button(QMessageBox::Yes));
    });
    Klick("OKbutton");
    EXPECT_EQ(Slot(0, 1), "Kim Abel");
    EXPECT_EQ(Slot(1, 1), "Kim Conrad");
}

TEST_F(MesseDienerFestFormEndeTest, OkNimmtAllesAusDenWahlfeldern)
{
    Öffnen();
    FokusAuf("OKbutton");
    MesseEinsetzen("23.11.2026,08:00:00,");
    Einsetzen(1, "Dahl,Kim");
    Einsetzen("MDV2", "von Hand");
    Klick("OKbutton");
    EXPECT_EQ(Termin(0), "23.11.2026,08:00:00");
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Dahl");
    EXPECT_EQ(Gespeichert(0, 2), "Kim|Bauer");
    EXPECT_EQ(MesseDienerFest.Dienst[0][1], "Weihrauch");
}

TEST_F(MesseDienerFestFormEndeTest, OkAufDemLeerenEintragFülltIhnAberZähltIhnNicht)
{
    ListeÖffnen();
    MesseWählen("22.11.2026,10:00:00,Hochamt");
    Wählen(1, "Abel,Kim");
    Klick("OKbutton");
    EXPECT_EQ(Termin(0), "22.11.2026,10:00:00");
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
}

TEST_F(MesseDienerFestFormEndeTest, DieBoxInDerGeschriebenWirdWirdZuerstVerlassen)
{
    Öffnen();
    FokusAuf(MDiener(1));
    Einsetzen(1, "Niemand,Nina");
    form->close();
    EXPECT_EQ(GezeigteMeldungen, (Liste{Fehleingabe, Übertragen}));
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    EXPECT_TRUE(Warten([&] { return !form; }));
    GezeigteMeldungen.clear();
    Öffnen();
    FokusAuf("Messen");
    MesseEinsetzen("Christmette");
    form->close();
    EXPECT_EQ(GezeigteMeldungen, (Liste{Unbekannt, Übertragen}));
    EXPECT_EQ(Termin(0), "22.11.2026,10:00:00");
}

TEST_F(MesseDienerFestFormEndeTest, WasSichNichtSpeichernLäßtHältOkAufAberNichtDasFenster)
{
    Öffnen();
    FokusAuf("OKbutton");
    MesseEinsetzen("Christmette");
    Klick("OKbutton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    EXPECT_FALSE(haupt->isEnabled());
    form->close();
    EXPECT_EQ(GezeigteMeldungen, Liste{Übertragen});
    EXPECT_TRUE(HauptfensterIstZurück());
    EXPECT_EQ(Termin(0), "22.11.2026,10:00:00");
}

TEST_F(MesseDienerFestFormEndeTest, DerCursorBleibt)
{
    Öffnen();
    Klick("Plus");
    Klick("OKbutton");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    EXPECT_TRUE(Warten([&] { return !form; }));
    Öffnen();
    EXPECT_EQ(Zeigt("Index"), "1");
    EXPECT_EQ(Gewählt(1), "Conrad,Kim");
}

TEST_F(MesseDienerFestFormEndeTest, HinzuKommtMitDemNeuenEintragZurück)
{
    Öffnen();
    Klick("Plus");
    HinzuUndZurück([&] {
        MesseWählen("23.11.2026,08:00:00,");
        Wählen(1, "Zoller,Kim");
        Klick("Anfügen");
    });
    EXPECT_EQ(GezeigteMeldungen, Liste{Übertragen});
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(form->isMaximized());
    EXPECT_TRUE(HauptfensterIstZurück());
    EXPECT_TRUE(FesteZuordnungOffen);
    EXPECT_EQ(Zeigt("MaxIndex"), "3");
    EXPECT_EQ(Zeigt("Index"), "1");
    Klick("Plus");
    EXPECT_EQ(Gewählt(1), "Zoller,Kim");
    EXPECT_EQ(Zeilen(), 20);
}

TEST_F(MesseDienerFestFormEndeTest, OhneDieListeGehtEsNurZumHauptfensterZurück)
{
    Klick(haupt->Meßdienernern);
    form = Fenster("NeuMesseDienerFest");
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    form->close();
    EXPECT_TRUE(HauptfensterIstZurück());
    EXPECT_FALSE(IstOffen("MesseDienerFest"));
}

TEST_F(MesseDienerFestFormEndeTest, EsGibtDieListeNurEinmal)
{
    Öffnen();
    HinzuUndZurück(); // which also enables the main window
    MenüWählen("MnuMESSDIENZUMESS");
    EXPECT_EQ(Fenster("MesseDienerFest"), form);
    EXPECT_EQ(haupt->isEnabled(), false);
    Klick("Hinzu");
    EXPECT_FALSE(form->isEnabled());
    MenüWählen("MnuMESSDIENZUMESS");
    EXPECT_TRUE(form->isEnabled());
    EXPECT_FALSE(form->isMinimized());
    int zahl = 0;
    for (const QWidget *fenster : QApplication::topLevelWidgets())
        zahl += fenster->objectName() == "MesseDienerFest";
    EXPECT_EQ(zahl, 1);
}

/// The mass list enables the main window when it closes, so (2) and the entry can both be chosen.
TEST_F(MesseDienerFestFormEndeTest, HinzuHoltDenDialogDerSchonOffenIst)
{
    Klick(haupt->Messenorgani);
    Klick(haupt->Meßdienernern);
    const QPointer<QWidget> neu = Fenster("NeuMesseDienerFest");
    Fenster("Messenliste")->close();
    EXPECT_TRUE(HauptfensterIstZurück());
    Öffnen();
    neu->showMinimized();
    Klick("Hinzu");
    EXPECT_FALSE(form->isEnabled());
    EXPECT_TRUE(form->isMinimized());
    int zahl = 0;
    for (const QWidget *fenster : QApplication::topLevelWidgets())
        zahl += fenster->objectName() == "NeuMesseDienerFest";
    EXPECT_EQ(zahl, 1);
    EXPECT_FALSE(neu->isMinimized());
    EXPECT_TRUE(Warten([&] { return neu->isActiveWindow(); }));
    neu->close();
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(form->isMaximized());
    EXPECT_TRUE(HauptfensterIstZurück());
}

// A start dialog that is loaded anew clears the flag.
TEST_F(MesseDienerFestFormEndeTest, EsGibtSieNurEinmalAuchWennDerStartNeuGeladenWurde)
{
    Öffnen();
    Klick("Hinzu");
    QWidget *neu = Fenster("NeuMesseDienerFest");
    Zeigen(neu);
    FesteZuordnungOffen = false;
    neu->close();
    EXPECT_FALSE(form->isEnabled());
    altardienst::MenüWählen(haupt, "MnuMESSDIENZUMESS");
    EXPECT_EQ(Fenster("MesseDienerFest"), form);
    EXPECT_TRUE(form->isEnabled());
    EXPECT_FALSE(form->isMinimized());
    EXPECT_TRUE(Warten([&] { return form->isActiveWindow(); }));
    EXPECT_TRUE(FesteZuordnungOffen);
}

TEST_F(MesseDienerFestFormEndeTest, EinLadenRührtSieNichtAn)
{
    Öffnen();
    AufFestplatteSpeichern();
    HinzuUndZurück();
    Wählen(1, "Dahl,Kim");
    MesseDienerFest.Nachname[0][1] = "Zoller";
    MesseDienerFest.Cursor = 1;
    Zeigen(haupt);
    altardienst::MenüWählen(haupt, "mnuDatenladen");
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    EXPECT_EQ(MesseDienerFest.Cursor, 0);
    EXPECT_EQ(Gewählt(1), "Dahl,Kim");
    EXPECT_EQ(Zeigt("Index"), "0");
    form->close();
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Dahl");
}

TEST_F(MesseDienerFestFormEndeTest, ZurückAusEinerAnderenFormZeigtSieDenEintragNeu)
{
    Öffnen();
    Wählen(1, "Dahl,Kim"); // not yet in the table
    auto *andere = new QWidget;
    Zeigen(andere);
    Messe.Dienerzahl[0] = 7;
    MesseDienerFest.Nachname[0][2] = "Ebert";
    EXPECT_EQ(Zeilen(), 4);
    Zeigen(form);
    EXPECT_EQ(Zeilen(), 7);
    EXPECT_EQ(Gewählt(1), "Abel,Kim");
    EXPECT_EQ(Gewählt(2), "Ebert,Kim");
    MesseDienerFest.Anzahl = 0;
    Zeigen(andere);
    FesteZuordnungOffen = false;
    Einsetzen("Index", "1");
    Zeigen(form);
    EXPECT_EQ(Zeigt("Index"), "0");
    EXPECT_TRUE(FesteZuordnungOffen);
    Messe.DienerDienst[0][0] = "bleibt"; // services are only distributed on opening
    Zeigen(andere);
    Zeigen(form);
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt");
}

TEST_F(MesseDienerFestFormEndeTest, ZurückAusEinerAnderenFormBleibenDieListenWieSieWaren)
{
    Öffnen();
    const int namen = MDiener(1)->count();
    const int messen = Finden<QComboBox>("Messen")->count();
    auto *andere = new QWidget;
    Zeigen(andere);
    MeßdienerAnlegen("Ada", "Abel");
    Anlegen(Sonntag + 3, 9, 2, "Andacht");
    Messe.Dienerzahl[0] = 7;
    Zeigen(form);
    EXPECT_EQ(Zeilen(), 7); // the form has noticed that it came back
    EXPECT_EQ(MDiener(1)->count(), namen);
    EXPECT_EQ(Finden<QComboBox>("Messen")->count(), messen);
}

TEST_F(MesseDienerFestFormEndeTest, EineMeldungIstKeineAndereForm)
{
    EchteMeldungen();
    Öffnen();
    Wählen(1, "Dahl,Kim");
    FokusAuf(MDiener(2));
    Einsetzen(2, "Niemand,Nina");
    Beantworten([&](QMessageBox *box) { box->accept(); });
    QTest::keyClick(MDiener(2), Qt::Key_Tab);
    Zeigen(form);
    EXPECT_EQ(Gewählt(1), "Dahl,Kim");
    EXPECT_EQ(Gewählt(2), "Bauer,Kim");
}

/// A sort command of the main window leaves its own count in the counter.
TEST_F(MesseDienerFestFormEndeTest, NachEinemSortierenSuchtSieNurSoWeitWieDieses)
{
    Öffnen();
    HinzuUndZurück();
    MesseWählen("24.11.2026,08:00:00,Taufe, klein");
    EXPECT_EQ(GezeigteMeldungen, Liste{Übertragen});
    MesseWählen("22.11.2026,10:00:00,Hochamt");
    MenüWählen("mnuGruppensort"); // one pass for two groups
    for (const char *text : {"22.11.2026,10:00:00,Hochamt", "22.11.2026,18:00:00"})
        MesseWählen(text);
    EXPECT_EQ(GezeigteMeldungen, Liste{Übertragen});
    MesseWählen("23.11.2026,08:00:00,");
    EXPECT_EQ(GezeigteMeldungen, (Liste{Übertragen, Unbekannt}));
    MenüWählen("DruckML");
    MesseWählen("23.11.2026,08:00:00,");
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
}

} // namespace
} // namespace altardienst
