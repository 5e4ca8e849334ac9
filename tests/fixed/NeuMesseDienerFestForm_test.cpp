// The dialog for a new fixed entry.
#include "fixed/Zuordnungsstand.h"

namespace altardienst {
namespace {

class NeuMesseDienerFestFormTest : public Zuordnungsstand {
  protected:
    void Öffnen()
    {
        knopf = "Abrechen";
        NeuÖffnen();
    }

    /// The first mass, without a name in any slot.
    void ErwarteVorschlag() const
    {
        EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
        EXPECT_EQ(AmUm(), "22.11.2026,10:00:00");
        EXPECT_EQ(Zeilen(), 4);
        EXPECT_EQ(Dienst(1), "Gabenbereitung");
        EXPECT_EQ(Dienst(4), "Allgemein");
        for (int i = 1; i <= 20; ++i) {
            EXPECT_EQ(Gewählt(i), "");
            EXPECT_EQ(Name(i), "|");
        }
    }

    const Text Doppelt = "Lege keinen doppelten Datensatz an";
    const Text KeinKorrekter = "Kein korrekter Datensatz!!";
};

TEST_F(NeuMesseDienerFestFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "NeuMesseDienerFest");
    EXPECT_EQ(form->windowTitle(), "Meßdiener Messe zuordnen");
    auto beschriftungen = Beschriftungen();
    EXPECT_EQ(beschriftungen["Messen"], "Messe :");
    EXPECT_EQ(beschriftungen["DatumD"], "am :");
    EXPECT_EQ(beschriftungen["Zeitd"], "um :");
    EXPECT_EQ(Zeigt("Anfügen"), "Anfügen");
    EXPECT_EQ(Zeigt("Abrechen"), "Abbrechen");
}

TEST_F(NeuMesseDienerFestFormTest, TabFolgtDemAuge)
{
    std::swap(Messe.Dienerzahl[0], Messe.Dienerzahl[1]); // two rows
    Öffnen();
    EXPECT_TRUE(Finden("Messen")->hasFocus());
    EXPECT_EQ(Tabfolge(form), (Liste{"Messen", "DatumD", "Zeitd", "MDiener1", "MDV1", "MDN1",
                                     "MDiener2", "MDV2", "MDN2", "Anfügen", "Abrechen"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(NeuMesseDienerFestFormTest, PasstAufDenKleinstenBildschirm)
{
    Messe.Dienerzahl[0] = 20;
    Öffnen();
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(NeuMesseDienerFestFormTest, SchlägtDieErsteMesseVor)
{
    Messe.DienerDienst[0][0] = "alt";
    MesseDienerFest.Cursor = 3;
    Öffnen();
    ErwarteVorschlag();
    EXPECT_EQ(Messe.DienerDienst[0][0], "Gabenbereitung"); // distributed again
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_EQ(MesseDienerFest.Cursor, 3);
}

TEST_F(NeuMesseDienerFestFormTest, AnfügenSchreibtDenEintragUndGehtAufDieErsteMesseZurück)
{
    Fest(0, 1, {"Otto"});
    for (int slot = 0; slot <= 20; ++slot)
        MesseDienerFest.Nachname[1][slot] = MesseDienerFest.Vorname[1][slot] =
            MesseDienerFest.Dienst[1][slot] = "alt";
    Öffnen();
    MesseWählen("23.11.2026,08:00:00,");
    Wählen(1, "Abel,Kim");
    Wählen(3, "Agnes,Gruppe");
    Wählen(20, "Zoller,Kim");
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    EXPECT_EQ(Termin(1), "23.11.2026,08:00:00");
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Abel");
    EXPECT_EQ(Gespeichert(1, 2), "|"); // what was there before is gone
    EXPECT_EQ(Gespeichert(1, 3), "Gruppe|Agnes");
    EXPECT_EQ(Gespeichert(1, 20), "Kim|Zoller");
    EXPECT_EQ(Gespeichert(1, 0), "alt|alt");
    EXPECT_EQ(MesseDienerFest.Dienst[1][0], "alt");
    for (int slot = 1; slot <= 20; ++slot)
        EXPECT_EQ(MesseDienerFest.Dienst[1][slot], slot <= 2 ? "Weihrauch" : "Allgemein") << slot;
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Otto");
    EXPECT_TRUE(form->isVisible());
    ErwarteVorschlag();
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    EXPECT_TRUE(GestellteFragen.empty());
}

TEST_F(NeuMesseDienerFestFormTest, DieBoxInDerGeschriebenWirdGehörtDazu)
{
    Öffnen();
    FokusAuf(MDiener(1));
    Einsetzen(1, "Dahl,Kim");
    FokusAuf("Anfügen"); // as a click does
    QTest::keyClick(Finden("Anfügen"), Qt::Key_Space);
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Dahl");
}

TEST_F(NeuMesseDienerFestFormTest, EinTerminHatNurEinenEintrag)
{
    Anlegen(Sonntag, 10, 5, "Kindermesse"); // of another kind, at the time of mass 0
    Öffnen();
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
    for (const char *text : {"22.11.2026,10:00:00", "22.11.2026,10:00:00,Kindermesse"}) {
        MesseWählen(text);
        Wählen(1, "Dahl,Kim");
        GezeigteMeldungen.clear();
        Klick("Anfügen");
        EXPECT_EQ(GezeigteMeldungen, Liste{Doppelt});
        EXPECT_EQ(MesseDienerFest.Anzahl, 1);
        EXPECT_EQ(Gewählt(1), "Dahl,Kim"); // all stays as it is
        EXPECT_EQ(Messentext(), text);
    }
    MesseWählen("22.11.2026,18:00:00");
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
}

/// Leaving the mass takes the count of the last mass at its time.
TEST_F(NeuMesseDienerFestFormTest, DerVorschlagZähltDieDienerDerErstenMesse)
{
    Anlegen(Sonntag, 10, 7, "Kindermesse");
    Öffnen();
    EXPECT_EQ(Zeilen(), 4);
    Verlassen();
    EXPECT_EQ(Zeilen(), 7);
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
    EXPECT_EQ(Zeilen(), 4);
}

TEST_F(NeuMesseDienerFestFormTest, NurEinträgeUnterDerAnzahlSindDoppelt)
{
    Fest(0, 1);
    Fest(1, 0);
    MesseDienerFest.Anzahl = 1;
    Öffnen();
    Klick("Anfügen");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    MesseDienerFest.Anzahl = 0; // the first one always passes
    Klick("Anfügen");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
}

TEST_F(NeuMesseDienerFestFormTest, BeiZweihundertIstOhneWortSchluß)
{
    for (int k = 0; k < 199; ++k)
        MesseDienerFest.Datum[k] = Sonntag + 1000 + k;
    MesseDienerFest.Anzahl = 199;
    Öffnen();
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 200);
    MesseWählen("22.11.2026,18:00:00");
    Wählen(1, "Dahl,Kim");
    Klick("Anfügen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 200);
    EXPECT_EQ(Termin(200), "00:00:00,00:00:00");
    EXPECT_EQ(Gewählt(1), "Dahl,Kim");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    MesseWählen("22.11.2026,10:00:00");
    Klick("Anfügen");
    EXPECT_EQ(GezeigteMeldungen, Liste{Doppelt}); // which is checked before the limit
}

TEST_F(NeuMesseDienerFestFormTest, OhneMesseIstEsKeinKorrekterDatensatz)
{
    Fest(0, 0); // the empty text is reported before the duplicate
    Öffnen();
    Verlassen();
    MesseEinsetzen("");
    Klick("Anfügen");
    EXPECT_EQ(GezeigteMeldungen, Liste{KeinKorrekter});
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
}

TEST_F(NeuMesseDienerFestFormTest, EineLeereMessentabelleGibtHeuteUndAuchDoppelte)
{
    TabellenLeeren();
    Öffnen();
    EXPECT_EQ(Messentext(), "00:00:00,00:00:00");
    EXPECT_EQ(AmUm(), "00:00:00,00:00:00");
    EXPECT_EQ(Zeilen(), 0);
    for (int anzahl = 1; anzahl <= 2; ++anzahl) {
        Finden("Abrechen")->setFocus();
        MesseEinsetzen("00:00:00,00:00:00");
        Einsetzen("DatumD", "00:00:00");
        Einsetzen("Zeitd", "00:00:00");
        Klick("Anfügen");
        EXPECT_EQ(MesseDienerFest.Anzahl, anzahl);
        EXPECT_EQ(Termin(anzahl - 1), "21.11.2026,00:00:00");
        EXPECT_EQ(Messentext(), "00:00:00,00:00:00");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(NeuMesseDienerFestFormTest, EinSchlechterTerminFügtNichtsAn)
{
    Fest(0, 1);
    Öffnen();
    FokusAuf("Anfügen");
    for (const int anzahl : {1, 0}) {
        MesseDienerFest.Anzahl = anzahl;
        for (const char *feld : {"DatumD", "Zeitd"}) {
            const Text vorher = Zeigt(feld);
            for (const char *text : {"", "abc", "31.02.2027", "25:61"}) {
                Einsetzen(feld, text);
                Klick("Anfügen");
                EXPECT_EQ(MesseDienerFest.Anzahl, anzahl) << text;
                EXPECT_EQ(Zeigt(feld), text);
            }
            Einsetzen(feld, vorher);
        }
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(NeuMesseDienerFestFormTest, SchließenFragtUndSpeichertNichts)
{
    for (const bool mitKnopf : {true, false}) {
        Öffnen();
        Wählen(1, "Abel,Kim");
        GestellteFragen.clear();
        if (mitKnopf)
            Klick("Abrechen");
        else
            form->close();
        ASSERT_EQ(GestellteFragen.size(), 1U);
        EXPECT_EQ(GestellteFragen[0].Titel, "Meßdiener zu Messen");
        EXPECT_EQ(GestellteFragen[0].Wortlaut, "Übertragen in die Messenliste?");
        EXPECT_TRUE(Warten([&] { return !form; }));
        EXPECT_EQ(MesseDienerFest.Anzahl, 0);
        EXPECT_EQ(Gespeichert(0, 1), "|");
        EXPECT_EQ(Messe.DienerNach[0][1], "");
    }
}

TEST_F(NeuMesseDienerFestFormTest, EineFalscheEingabeHältDasSchließenNichtAuf)
{
    Öffnen();
    FokusAuf(MDiener(1));
    Einsetzen(1, "Niemand,Nina");
    form->close();
    EXPECT_TRUE(Warten([&] { return !form; }));
    EXPECT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GezeigteMeldungen, Liste{}); // nothing of it is kept
}

TEST_F(NeuMesseDienerFestFormTest, DieFrageVerläßtKeineBox)
{
    EchteMeldungen();
    Öffnen();
    FokusAuf(MDiener(1));
    Einsetzen(1, "Niemand,Nina");
    Beantworten([](QMessageBox *box) {
        EXPECT_EQ(box->text().toStdString(), "Übertragen in die Messenliste?");
        if (auto *nein = box->button(QMessageBox::No))
            return Auslösen(nein);
        Beantworten([](QMessageBox *frage) { Auslösen(frage->button(QMessageBox::No)); });
        box->accept();
    });
    form->close();
    EXPECT_EQ(Messe.DienerNach[0][1], "");
    EXPECT_TRUE(Warten([&] { return !form; }));
}

TEST_F(NeuMesseDienerFestFormTest, AufJaStehtDerEintragInDerMesseEineGruppeWieEinePerson)
{
    Messe.DienerVor[0][2] = "Alt";
    Messe.DienerNach[0][2] = "Neu";
    Öffnen();
    Wählen(1, "Abel,Kim");
    Wählen(3, "Tarzisius,Gruppe");
    Klick("Anfügen");
    EXPECT_EQ(Messe.DienerNach[0][1], ""); // not before the question
    Antworten = {true};
    Klick("Abrechen");
    EXPECT_EQ(Messe.DienerVor[0][1] + " " + Messe.DienerNach[0][1], "Kim Abel");
    EXPECT_EQ(Messe.DienerVor[0][2] + " " + Messe.DienerNach[0][2], "Alt Neu");
    EXPECT_EQ(Messe.DienerVor[0][3] + " " + Messe.DienerNach[0][3], "Gruppe Tarzisius");
}

} // namespace
} // namespace altardienst
