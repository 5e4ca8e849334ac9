// The window "E-Mail".
#include "exchange/EMailForm.h"

#include "Formstand.h"
#include "exchange/Aushangstand.h"
#include "printing/Plandruck.h"

#include <QApplication>
#include <QClipboard>
#include <QUrl>
#include <QUrlQuery>

namespace altardienst {
namespace {

class EMailFormTest : public Formstand<EMailForm> {
  protected:
    EMailFormTest()
    {
        Gruppe.Anzahl = 2;
        Gruppe.Bezeichnung[0] = "Große";
        Gruppe.Bezeichnung[1] = "Kleine";
        VolleMesse(2);
        VolleMesse(1, "Andacht");
        Anlegen("Vor1", "Nach1", "eins@x.de", "Große");
        Anlegen("Vor2", "Nach2", "zwei@x.de", "Kleine");
        Anlegen("Ben", "Busch", "");
        Helfer.EMail[HelferAnlegen("Maria", "Linde", "Lektor")] = "maria(at)x.de";
        QApplication::clipboard()->setText("vorher");
        VorDemPlandruck = [this] { ++abgegeben; };
    }
    ~EMailFormTest() override
    {
        VorDemPlandruck = [] {};
    }

    static void Anlegen(const Text &vorname, const Text &nachname, const Text &adresse,
                        const Text &gruppe = "")
    {
        const int j = MeßdienerAnlegen(vorname, nachname);
        Meßdiener.EMail[j] = adresse;
        Meßdiener.Gruppe[j] = gruppe;
    }

    void Öffnen()
    {
        form = new EMailForm;
        Zeigen(form);
    }

    static Text Ablage() { return QApplication::clipboard()->text().toStdString(); }
    Text Verweis() const { return GeöffneteVerweise.empty() ? "" : GeöffneteVerweise.back(); }

    int abgegeben = 0;
};

TEST_F(EMailFormTest, AlleMitDemGanzenPlan)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Zahl"), "2 Adressen; nicht erreicht werden:");
    EXPECT_EQ(
        form->Fehlende->toPlainText(),
        "ohne Adresse\n  Busch, Ben\nmit unlesbarer Adresse\n  Linde, Maria: maria(at)x.de\n");
    EXPECT_EQ(Zeigt("Betreff"), "Altardienst, 22.11.2026 bis 23.11.2026");
    EXPECT_NE(form->Plantext->toPlainText().indexOf("Vor2 N."), -1);
    Klick("Öffnen");
    EXPECT_TRUE(Verweis().starts_with("mailto:?bcc=eins@x.de,zwei@x.de&subject=Altardienst%2C%20"))
        << Verweis();
    EXPECT_EQ(Zeigt("Hinweis"),
              "Das E-Mail-Programm ist aufgerufen, mit 2 Adressen als Blindkopie.");
    EXPECT_EQ(Ablage(), "vorher");
    EXPECT_EQ(abgegeben, 1);
}

TEST_F(EMailFormTest, DerVerweisKommtHeilBeimSystemAn)
{
    Öffnen();
    Einsetzen("Betreff", "Plan & Größe: 100 %");
    form->Nachricht->setPlainText("Liebe alle,\nbis bald!");
    Klick("MitPlan");
    Klick("Öffnen");
    EXPECT_EQ(abgegeben, 0) << "a message alone gives no plan away";
    const QUrl url = QUrl::fromEncoded(QByteArray::fromStdString(Verweis()), QUrl::StrictMode);
    ASSERT_TRUE(url.isValid());
    EXPECT_EQ(url.toEncoded().toStdString(), Verweis());
    const QUrlQuery teile(url);
    EXPECT_EQ(teile.queryItemValue("subject", QUrl::FullyDecoded), "Plan & Größe: 100 %");
    EXPECT_EQ(teile.queryItemValue("body", QUrl::FullyDecoded), "Liebe alle,\r\nbis bald!");
}

TEST_F(EMailFormTest, EineGruppe)
{
    Öffnen();
    EXPECT_FALSE(form->Gruppe->isVisible());
    Klick("Diener"); // groups are servers, whatever is ticked
    form->An->setCurrentIndex(1);
    EXPECT_TRUE(form->Gruppe->isVisible());
    EXPECT_FALSE(form->Helferinnen->isEnabled());
    EXPECT_EQ(Zeigt("Zahl"), "1 Adresse");
    EXPECT_FALSE(form->Fehlende->isVisible());
    form->Gruppe->setCurrentIndex(1);
    Klick("AdressenKopieren");
    EXPECT_EQ(Ablage(), "zwei@x.de");
    EXPECT_EQ(Zeigt("Hinweis"), "1 Adresse in der Zwischenablage.");
}

TEST_F(EMailFormTest, EineGruppeOhneNamenStehtNichtZurWahl)
{
    Gruppe.Bezeichnung[0] = "";
    Öffnen();
    ASSERT_EQ(form->Gruppe->count(), 1);
    EXPECT_EQ(Zeigt("Gruppe"), "Kleine");
}

TEST_F(EMailFormTest, EineMesseOhneDatumHatKeinesImBetreff)
{
    Messe.Datum[0] = 0;
    Öffnen();
    EXPECT_EQ(Zeigt("Betreff"), "Altardienst, 23.11.2026");
    form->An->setCurrentIndex(2);
    EXPECT_EQ(Zeigt("Betreff"), "Altardienst, ?, Hochamt");
}

TEST_F(EMailFormTest, EineMesseMitIhremPlanUndBetreff)
{
    Öffnen();
    form->An->setCurrentIndex(2);
    form->EineMesse->setCurrentIndex(1);
    EXPECT_EQ(Zeigt("Betreff"), "Altardienst, Mo 23.11.2026, 10:00 Uhr, Andacht");
    EXPECT_EQ(form->Plantext->toPlainText(),
              "Mo 23.11.2026, 10:00 Uhr, Andacht\n  Allgemein: Vor1 N.\n");
    EXPECT_EQ(Zeigt("Zahl"), "1 Adresse");
}

TEST_F(EMailFormTest, EinGetippterBetreffBleibt)
{
    Öffnen();
    Einsetzen("Betreff", "Neuer Plan");
    form->An->setCurrentIndex(2);
    EXPECT_EQ(Zeigt("Betreff"), "Neuer Plan");
}

TEST_F(EMailFormTest, NamenSoVielWieGewähltUndGemerkt)
{
    Öffnen();
    form->Namen->setCurrentIndex(static_cast<int>(Namenform::Ganz));
    EXPECT_NE(form->Plantext->toPlainText().indexOf("Vor2 Nach2"), -1);
    delete form;
    Öffnen();
    EXPECT_NE(form->Plantext->toPlainText().indexOf("Vor2 Nach2"), -1);
    Klick("MitPlan");
    EXPECT_FALSE(form->Plantext->isVisible());
    EXPECT_EQ(form->Plantext->toPlainText(), "");
}

TEST_F(EMailFormTest, EinLangerTextKommtInDieZwischenablage)
{
    for (int i = 0; i < 40; ++i)
        VolleMesse(4);
    Öffnen();
    form->Nachricht->setPlainText("Hallo");
    Klick("Öffnen");
    EXPECT_EQ(Verweis().find("body="), Text::npos);
    EXPECT_TRUE(Ablage().starts_with("Hallo\n\nSo 22.11.2026")) << Ablage();
    EXPECT_NE(Zeigt("Hinweis").find("Zwischenablage"), Text::npos);
}

TEST_F(EMailFormTest, ZuVieleAdressenKommenInDieZwischenablage)
{
    for (int j = 0; j < 120; ++j)
        Anlegen("Kim", std::to_string(j), "kim" + std::to_string(j) + "@beispielgemeinde.de");
    Öffnen();
    Klick("Öffnen");
    EXPECT_EQ(Verweis().find("bcc="), Text::npos);
    EXPECT_NE(Verweis().find("body="), Text::npos) << "the short plan has room";
    EXPECT_TRUE(Ablage().starts_with("eins@x.de; zwei@x.de; kim0@")) << Ablage();
    EXPECT_EQ(Zeigt("Hinweis"), "122 Adressen sind zu viele auf einmal; sie liegen in der "
                                "Zwischenablage und gehören in das Feld \"Bcc\".");
    for (int i = 0; i < 40; ++i)
        VolleMesse(4);
    delete form;
    Öffnen();
    Klick("Öffnen");
    EXPECT_EQ(Verweis().find("body="), Text::npos);
    EXPECT_NE(Zeigt("Hinweis").find("\"Text kopieren\""), Text::npos);
    Klick("TextKopieren");
    EXPECT_TRUE(Ablage().starts_with("So 22.11.2026"));
}

TEST_F(EMailFormTest, OhneMailprogrammGibtEsDieAdressen)
{
    ZumÖffnenGibtEsEtwas = false;
    Öffnen();
    Klick("Öffnen");
    EXPECT_EQ(Ablage(), "eins@x.de; zwei@x.de");
    EXPECT_EQ(Zeigt("Hinweis"), "Es lässt sich kein E-Mail-Programm aufrufen. 2 Adressen in der "
                                "Zwischenablage; den Text holt danach \"Text kopieren\".");
    Klick("MitPlan");
    Klick("Öffnen");
    EXPECT_EQ(Zeigt("Hinweis"), "Es lässt sich kein E-Mail-Programm aufrufen. 2 Adressen in der "
                                "Zwischenablage.");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EMailFormTest, OhneAdressenGibtEsNichtsZuÖffnen)
{
    Öffnen();
    Klick("Diener");
    EXPECT_FALSE(form->Öffnen->isEnabled());
    EXPECT_FALSE(form->AdressenKopieren->isEnabled());
    EXPECT_EQ(Zeigt("Hinweis"), "Niemand davon hat eine lesbare E-Mail-Adresse.");
    Klick("Helferinnen");
    EXPECT_EQ(Zeigt("Hinweis"), "Weder Meßdiener noch Helfer sind angekreuzt.");
    Helfer.EMail[0] = "";
    Klick("Helferinnen");
    EXPECT_EQ(Zeigt("Hinweis"), "Niemand davon hat eine E-Mail-Adresse.");
    form->An->setCurrentIndex(2);
    EXPECT_EQ(Zeigt("Hinweis"), "In dieser Messe dient niemand davon.");
    Meßdiener.Gruppe[0] = "";
    form->An->setCurrentIndex(1);
    EXPECT_EQ(Zeigt("Hinweis"), "Zu dieser Gruppe gehört niemand.");
}

TEST_F(EMailFormTest, OhnePlanUndLeute)
{
    TabellenLeeren();
    Öffnen();
    const char *const sätze[] = {"Davon ist niemand eingetragen.", "Es gibt keine Gruppe.",
                                 "Es gibt keine Messe."};
    for (const int kreis : {0, 1, 2}) {
        form->An->setCurrentIndex(kreis);
        EXPECT_EQ(Zeigt("Hinweis"), sätze[kreis]);
        EXPECT_FALSE(form->Öffnen->isEnabled());
        EXPECT_EQ(Zeigt("Zahl"), "0 Adressen");
    }
}

TEST_F(EMailFormTest, WieDasFensterUndSeineKnöpfeHeißen)
{
    Gruppe.Anzahl = 1; // "Kleine" was deleted
    form = new EMailForm;
    Zeigen(form);
    EXPECT_EQ(form->windowTitle(), "E-Mail");
    EXPECT_EQ(form->Öffnen->text(), "&E-Mail öffnen");
    EXPECT_EQ(form->AdressenKopieren->text(), "A&dressen kopieren");
    EXPECT_EQ(form->TextKopieren->text(), "&Text kopieren");
    EXPECT_EQ(form->Gruppe->count(), 1);
    EXPECT_EQ(form->EineMesse->count(), 2);
    EXPECT_EQ(form->EineMesse->accessibleName(), "Messe");
    EXPECT_EQ(form->Gruppe->accessibleName(), "Gruppe");
    Gruppe.Anzahl = 30000; // a file may claim any number
    delete form;
    form = new EMailForm;
    EXPECT_EQ(form->Gruppe->count(), 2);
}

TEST_F(EMailFormTest, AnEineMesseVonAnderswo)
{
    form = new EMailForm;
    Zeigen(form);
    form->AnMesse(1);
    EXPECT_EQ(Zeigt("An"), "eine Messe");
    EXPECT_EQ(form->EineMesse->currentIndex(), 1);
    EXPECT_NE(Zeigt("Betreff").find("Andacht"), Text::npos);
    EXPECT_EQ(Zeigt("Zahl"), "1 Adresse");
}

} // namespace
} // namespace altardienst
