// The list in the editors of the people: choosing a row leaves the record like PLUS and MINUS do.
#include "people/Personenfenster.h"

#include "Ruhe.h"

#include <QListView>
#include <QScrollArea>
#include <QStyle>

#include <tuple>

namespace altardienst {
namespace {

class DatensatzlisteForm : public Personenfenster {
  protected:
    /// On a screen that has room for the list.
    void Öffnen(const Text &name)
    {
        Personenfenster::Öffnen(name);
        form->resize(1400, 900);
        QCoreApplication::processEvents();
    }

    QListView *Ansicht() const { return Finden<QListView>("Liste"); }

    std::vector<Text> Zeilen() const
    {
        Ruhe(0);
        std::vector<Text> zeilen;
        for (int zeile = 0; zeile < Ansicht()->model()->rowCount(); ++zeile)
            zeilen.push_back(Ansicht()->model()->index(zeile, 0).data().toString().toStdString());
        return zeilen;
    }

    Text Markiert() const
    {
        Ruhe(0);
        return Ansicht()->currentIndex().data().toString().toStdString();
    }

    /// A click of the mouse, which leaves the box that has the focus.
    void Wählen(int zeile) const
    {
        Ruhe(0);
        const QModelIndex stelle = Ansicht()->model()->index(zeile, 0);
        Ansicht()->scrollTo(stelle);
        QTest::mouseClick(Ansicht()->viewport(), Qt::LeftButton, {},
                          Ansicht()->visualRect(stelle).center());
    }

    const std::vector<Text> Personen = {"Adler, Anna", "Berg, Bea", "Cohn, Cem"};
};

TEST_F(DatensatzlisteForm, ZeigtAlleUndMarkiertDenGezeigten)
{
    Meßdiener.Cursor = Helfer.Cursor = Gruppe.Cursor = 1;
    for (const char *fenster : {"Meßdiener", "Helfer"}) {
        Öffnen(fenster);
        EXPECT_EQ(Zeilen(), Personen) << fenster;
        EXPECT_EQ(Markiert(), "Berg, Bea") << fenster;
    }
    Öffnen("Gruppe");
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Rot", "Blau", "Grün"}));
    EXPECT_EQ(Markiert(), "Blau");
}

TEST_F(DatensatzlisteForm, EineWahlSpeichertZeigtUndRücktDenCursor)
{
    Öffnen("Meßdiener");
    Einsetzen("Straßen", "Gasse 1");
    Wählen(2);
    EXPECT_EQ(Meßdiener.Straße[0], "Gasse 1");
    EXPECT_EQ(Zeigt("Datensätze"), "2");
    EXPECT_EQ(Zeigt("Vornamen"), "Cem");
    EXPECT_EQ(Meßdiener.Cursor, 2);
    EXPECT_EQ(Markiert(), "Cohn, Cem");

    Öffnen("Helfer");
    Einsetzen("Weg", "Gasse 2");
    Wählen(2);
    EXPECT_EQ(Helfer.Straße[0], "Gasse 2");
    EXPECT_EQ(Zeigt("Indexen"), "2");
    EXPECT_EQ(Zeigt("Vorne"), "Cem");
    EXPECT_EQ(Helfer.Cursor, 2);

    Öffnen("Gruppe");
    Einsetzen("GBezeichnung", "Purpur");
    Wählen(2);
    EXPECT_EQ(Gruppe.Bezeichnung[0], "Purpur");
    EXPECT_EQ(Zeigt("Indexi"), "2");
    EXPECT_EQ(Zeigt("GBezeichnung"), "Grün");
    EXPECT_EQ(Gruppe.Cursor, 2);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensatzlisteForm, EinNeuerNameGehtDenselbenWegWieBeiPlus)
{
    MesseMitDienern(Heute, 1);
    Messe.DienerVor[0][1] = Meßdiener.WunschVorname[2] = "Anna";
    Messe.DienerNach[0][1] = Meßdiener.WunschNachname[2] = "Adler";
    Öffnen("Meßdiener");
    Einsetzen("Vornamen", "Anne");
    Wählen(1);
    EXPECT_EQ(Messe.DienerVor[0][1], "Anne");
    EXPECT_EQ(Meßdiener.WunschVorname[2], "Anne");
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Adler, Anne", "Berg, Bea", "Cohn, Cem"}));
    EXPECT_EQ(Liste("Partner"), (std::vector<Text>{"Adler,Anne", "Berg,Bea", "Cohn,Cem"}));

    Messe.LektorZahl[0] = 1;
    Messe.Lektor1Vor[0] = "Anna";
    Messe.Lektor1Nach[0] = "Adler";
    Öffnen("Helfer");
    Einsetzen("Vorne", "Anne");
    Wählen(1);
    EXPECT_EQ(Messe.Lektor1Vor[0], "Anne");

    Öffnen("Gruppe");
    Einsetzen("GBezeichnung", "Purpur");
    Wählen(1);
    EXPECT_EQ(Meßdiener.Gruppe[2], "Purpur");
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Purpur", "Blau", "Grün"}));
}

TEST_F(DatensatzlisteForm, WasNachDemLetztenGetipptIstKommtDazuWieBeiPlus)
{
    Öffnen("Meßdiener");
    Einsetzen("Datensätze", "3");
    Einsetzen("Vornamen", "Dora");
    Einsetzen("Nachnamen", "Dorn");
    Einsetzen("Straßen", "Gasse 4");
    Wählen(1);
    EXPECT_EQ(Meßdiener.Anzahl, 4);
    EXPECT_EQ(Meßdiener.Vorname[3], "Dora");
    EXPECT_EQ(Meßdiener.Straße[3], "Gasse 4");
    EXPECT_EQ(Zeigt("MaxIndex"), "4");
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    EXPECT_EQ(Zeigt("Vornamen"), "Bea");
    EXPECT_EQ(Meßdiener.Cursor, 1);
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Adler, Anna", "Berg, Bea", "Cohn, Cem", "Dorn, Dora"}));
    EXPECT_EQ(Liste("Partner").back(), "Dorn,Dora");

    Öffnen("Helfer");
    Einsetzen("Indexen", "3");
    Einsetzen("Vorne", "Dora");
    Wählen(0);
    EXPECT_EQ(Helfer.Anzahl, 4);
    EXPECT_EQ(Helfer.Vorname[3], "Dora");
    EXPECT_EQ(Zeigt("Datensätzig"), "4");
    EXPECT_EQ(Zeigt("Vorne"), "Anna");
    EXPECT_EQ(Helfer.Cursor, 0);

    Öffnen("Gruppe");
    Einsetzen("Indexi", "3");
    Einsetzen("GBezeichnung", "Gelb");
    Wählen(2);
    EXPECT_EQ(Gruppe.Anzahl, 4);
    EXPECT_EQ(Gruppe.Bezeichnung[3], "Gelb");
    EXPECT_EQ(Zeigt("Gruppenzahl"), "4");
    EXPECT_EQ(Zeigt("GBezeichnung"), "Grün");
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Rot", "Blau", "Grün", "Gelb"}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensatzlisteForm, VomLeerenSatzGehtEsZurückOhneDaßEinerDazukommt)
{
    for (const auto &[fenster, nummer] :
         {std::pair("Meßdiener", "Datensätze"), {"Helfer", "Indexen"}, {"Gruppe", "Indexi"}}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        Einsetzen(nummer, "3");
        Wählen(1);
        EXPECT_EQ(Zeigt(nummer), "1");
        EXPECT_EQ(Zeilen().size(), 3U);
    }
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Helfer.Anzahl, 3);
    EXPECT_EQ(Gruppe.Anzahl, 3);
}

TEST_F(DatensatzlisteForm, EinHalberNameNachDemLetztenWirdNichtVerlassen)
{
    for (const auto &[fenster, nummer, getippt, fehlt] :
         {std::tuple("Meßdiener", "Datensätze", "Vornamen", "Nachnamen"),
          {"Meßdiener", "Datensätze", "Nachnamen", "Vornamen"},
          {"Helfer", "Indexen", "Hinten", "Vorne"}}) {
        SCOPED_TRACE(getippt);
        Meßdiener.Vorname[3].clear(); // of the round before
        Meßdiener.Nachname[3].clear();
        Öffnen(fenster);
        Einsetzen(nummer, "3");
        Einsetzen(getippt, "Dorn");
        Wählen(0);
        EXPECT_EQ(Zeigt(nummer), "3") << "what was typed would be lost";
        EXPECT_EQ(Zeigt(getippt), "Dorn");
        EXPECT_TRUE(Finden(fehlt)->hasFocus());
        Einsetzen(getippt, "");
    }
}

TEST_F(DatensatzlisteForm, WoKeinerMehrDazukommtBleibtManStehen)
{
    Meßdiener.Anzahl = 399;
    Öffnen("Meßdiener");
    Einsetzen("Datensätze", "399");
    Einsetzen("Vornamen", "Dora");
    Einsetzen("Nachnamen", "Dorn");
    Wählen(0);
    EXPECT_EQ(Zeigt("Datensätze"), "399") << "like PLUS; closing the window adds it";
    EXPECT_EQ(Zeigt("Nachnamen"), "Dorn");
}

TEST_F(DatensatzlisteForm, EinVergebenerNameKommtStillZurück)
{
    Öffnen("Meßdiener");
    Einsetzen("Vornamen", "Cem");
    Einsetzen("Nachnamen", "Cohn");
    Wählen(1);
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna");
    EXPECT_EQ(Zeigt("Vornamen"), "Bea");
    EXPECT_EQ(Zeilen(), Personen);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensatzlisteForm, ScheitertDasSpeichernBleibtDerSatzUndDieMarkeKehrtZurück)
{
    for (const auto &[fenster, feld, nummer] :
         {std::tuple("Meßdiener", "Groß", "Datensätze"), {"Helfer", "PLZetus", "Indexen"}}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        Einsetzen(feld, "viel");
        Wählen(2);
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
        GezeigteMeldungen.clear();
        EXPECT_EQ(Zeigt(nummer), "0");
        EXPECT_EQ(Zeigt(feld), "viel");
        EXPECT_TRUE(Finden(feld)->hasFocus()) << "where the mistake is";
        EXPECT_EQ(Markiert(), "Adler, Anna");
        Einsetzen(feld, "150");
    }
}

TEST_F(DatensatzlisteForm, OhneNamenGehtEsNichtNachVornAberZurück)
{
    for (const char *fenster : {"Meßdiener", "Helfer", "Gruppe"}) {
        SCOPED_TRACE(fenster);
        Meßdiener.Vorname[1] = Helfer.Vorname[1] = Gruppe.Bezeichnung[1] = "";
        Meßdiener.Cursor = Helfer.Cursor = Gruppe.Cursor = 1;
        const Text nummer = fenster == Text("Meßdiener") ? "Datensätze"
                            : fenster == Text("Helfer")  ? "Indexen"
                                                         : "Indexi";
        const Text name = fenster == Text("Meßdiener") ? "Vornamen"
                          : fenster == Text("Helfer")  ? "Vorne"
                                                       : "GBezeichnung";
        Öffnen(fenster);
        const Text marke = Markiert();
        Wählen(2);
        EXPECT_EQ(Zeigt(nummer), "1");
        EXPECT_EQ(Zeigt(name), "") << "nothing of the other record is shown";
        EXPECT_EQ(Markiert(), marke);
        Wählen(0);
        EXPECT_EQ(Zeigt(nummer), "0");
    }
}

TEST_F(DatensatzlisteForm, EinLeeresNummernfeldGiltAlsNullAußerBeiGruppen)
{
    Öffnen("Meßdiener");
    Einsetzen("Datensätze", "");
    Wählen(2);
    EXPECT_EQ(Zeigt("Datensätze"), "2");
    Öffnen("Helfer");
    Einsetzen("Indexen", "");
    Wählen(2);
    EXPECT_EQ(Zeigt("Indexen"), "2");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Öffnen("Gruppe");
    Einsetzen("Indexi", "");
    Wählen(2);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "like PLUS there";
    EXPECT_EQ(Zeigt("Indexi"), "");
    Einsetzen("Indexi", "0");
}

TEST_F(DatensatzlisteForm, EinKlickVerläßtDasFeldWieJederAndere)
{
    Öffnen("Meßdiener");
    FokusAuf("Postleit");
    Einsetzen("Postleit", "123456");
    Wählen(1);
    EXPECT_EQ(Meßdiener.PLZ[0], 48999) << "put right on leaving the box, before the save";
    Öffnen("Meßdiener");
    FokusAuf("Dieenst");
    Einsetzen("Dieenst", "Gelb");
    Klick(Finden("Listenfilter"));
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Die Gruppe ist unbekannt!!"});
}

TEST_F(DatensatzlisteForm, FolgtDemBlätternDemLöschenUndDemAnlegen)
{
    Öffnen("Meßdiener");
    Auslösen("PLUS");
    EXPECT_EQ(Markiert(), "Berg, Bea");
    DrehungAuslösen("DPM", +1);
    EXPECT_EQ(Markiert(), "Cohn, Cem");
    Einsetzen("Datensätze", "0");
    EXPECT_EQ(Markiert(), "Adler, Anna");
    Antworten = {true};
    Auslösen("Lösch");
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Berg, Bea", "Cohn, Cem"}));
    EXPECT_EQ(Markiert(), "Berg, Bea");
    Auslösen("NeuDiener");
    QWidget *neu = Fenster("NeuMeßdiener");
    Einsetzen(Finden(neu, "Vornamen"), "Dora");
    Einsetzen(Finden(neu, "Nachnamen"), "Dorn");
    Auslösen(Finden<QAbstractButton>(neu, "OKButton"));
    EXPECT_TRUE(Warten([this] { return form->isVisible(); }));
    EXPECT_EQ(Zeilen(), (std::vector<Text>{"Berg, Bea", "Cohn, Cem", "Dorn, Dora"}));
    Einsetzen("Datensätze", "3");
    EXPECT_EQ(Markiert(), "(ohne Namen)") << "the blank slot";
}

TEST_F(DatensatzlisteForm, AuchHelferUndGruppenFolgenDemLöschen)
{
    for (const auto &[fenster, knopf] :
         {std::pair("Helfer", "Datensatzlösch"), {"Gruppe", "Löschend"}}) {
        Öffnen(fenster);
        Antworten = {true};
        Auslösen(knopf);
        EXPECT_EQ(Zeilen().size(), 2U) << fenster;
    }
}

TEST_F(DatensatzlisteForm, DerErsteFokusBleibtUndDieFensterPassenAufDenKleinstenBildschirm)
{
    for (const auto &[fenster, erstes] :
         {std::pair("Meßdiener", "Vornamen"), {"Helfer", "Vorne"}, {"Gruppe", "GBezeichnung"}}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        EXPECT_TRUE(Finden(erstes)->hasFocus());
        form->resize(KleinsterBildschirm);
        QCoreApplication::processEvents();
        EXPECT_LE(form->width(), KleinsterBildschirm.width());
        for (const QScrollArea *fläche : form->findChildren<QScrollArea *>()) {
            const bool paßt = fläche->widget()->minimumSizeHint().width() +
                                  form->style()->pixelMetric(QStyle::PM_ScrollBarExtent) <=
                              fläche->width();
            EXPECT_TRUE(paßt || !Finden("Liste")->isVisible()) << "the list gives way first";
        }
    }
}

/// What the screens have on which most people work: 1920 dots at 150 %.
TEST_F(DatensatzlisteForm, Auf1280PunktenStehtDieListeNebenDemGanzenDatensatz)
{
    for (const auto &[fenster, links, rechts] :
         {std::tuple("Meßdiener", "Vornamen", "Partner"), {"Helfer", "Vorne", "Dient"}}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        form->resize(1280 - 16, 600); // less the frame
        QCoreApplication::processEvents();
        EXPECT_EQ(form->width(), 1264);
        EXPECT_TRUE(Ansicht()->isVisible());
        const QWidget *name = Finden(links);
        EXPECT_GT(Finden(rechts)->mapTo(form, QPoint()).x(),
                  name->mapTo(form, QPoint(name->width(), 0)).x())
            << "side by side";
    }
}

TEST_F(DatensatzlisteForm, WenigerAlsKeinDatensatzÖffnetDasFensterTrotzdem)
{
    Meßdiener.Anzahl = Helfer.Anzahl = Gruppe.Anzahl = -3;
    for (const char *fenster : {"Meßdiener", "Helfer", "Gruppe"}) {
        Öffnen(fenster);
        EXPECT_TRUE(GezeigteMeldungen.empty()) << fenster;
        EXPECT_LE(Zeilen().size(), 1U);
    }
}

TEST_F(DatensatzlisteForm, JederSatzIstZuErreichen)
{
    Meßdiener.Anzahl = 402; // more than the number box shows
    Öffnen("Meßdiener");
    EXPECT_EQ(Zeilen().size(), 400U);
    Wählen(399);
    EXPECT_EQ(Zeigt("Datensätze"), "399");
    EXPECT_EQ(Meßdiener.Anzahl, 402);
}

} // namespace
} // namespace altardienst
