// "Wer kann hier?"
#include "overview/Planstand.h"

#include "history/Rückgängig.h"
#include "history/Rücknahme.h"
#include "overview/WerKannHierForm.h"

#include <QApplication>
#include <QHeaderView>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

/// In the last mass the second place is open. Cem is absent there; Doris would like to serve with
/// Cem.
class WerKannHierFormTest : public Planstand {
  protected:
    WerKannHierFormTest()
    {
        Meßdiener.Von1[2] = DatumAus({2026, 12, 6});
        Meßdiener.Bis1[2] = DatumAus({2026, 12, 8});
        Meßdiener.WunschVorname[3] = "Cem";
        Meßdiener.WunschNachname[3] = "Cohn";
        Meßdiener.Gruppe[3] = "Große";
    }

    WerKannHierForm *Fragen(const Planplatz &platz)
    {
        if (!plan)
            PlanÖffnen();
        plan->Tafel->Wählen(platz);
        Drücken(Qt::Key_Return);
        form = static_cast<WerKannHierForm *>(Fenster("WerKannHier"));
        EXPECT_TRUE(Warten([this] { return QApplication::activeWindow() == form; }));
        return form;
    }

    Liste Namen() const { return Spalte(Kandidatenmodell::Name); }
    Liste Spalte(int spalte) const
    {
        Liste texte;
        const QAbstractItemModel *modell = form->Kandidaten->model();
        for (int zeile = 0; zeile < modell->rowCount(); ++zeile)
            texte.push_back(modell->index(zeile, spalte).data().toString().toStdString());
        return texte;
    }
    Text Markiert() const
    {
        return form->Kandidaten->currentIndex()
            .siblingAtColumn(Kandidatenmodell::Name)
            .data()
            .toString()
            .toStdString();
    }
    void Marken(const Text &name) const
    {
        const Liste namen = Namen();
        const auto zeile = std::ranges::find(namen, name) - namen.begin();
        form->Kandidaten->setCurrentIndex(
            form->Kandidaten->model()->index(static_cast<int>(zeile), 0));
    }

    QPointer<WerKannHierForm> form;
};

TEST_F(WerKannHierFormTest, ZeigtAlleDieBestenZuerstMitDenGründenGegenDieAnderen)
{
    Fragen(Dienerplatznr(3, 2));
    EXPECT_EQ(Zeigt(form->Platzname), "Sonntag, 06.12.2026, 10:00 Uhr, Messe: Diener 2, Allgemein");
    EXPECT_EQ(Zeigt(form->Jetzt), "Der Platz ist frei.");
    EXPECT_FALSE(form->Leeren->isEnabled());
    const auto kandidaten = WerKannHier(Modell()->Prüfung(), Dienerplatznr(3, 2));
    Liste erwartet;
    for (const Platzkandidat &kandidat : kandidaten)
        erwartet.push_back(VollerName(kandidat.Vorname, kandidat.Nachname));
    EXPECT_EQ(Namen(), erwartet);
    EXPECT_EQ(Markiert(), erwartet.front());
    Marken("Anna Adler");
    EXPECT_EQ(Zeigt(form->Gründe), "Nichts spricht gegen Anna Adler.");
    Marken("Cem Cohn");
    EXPECT_NE(Zeigt(form->Gründe).find("Cem Cohn ist vom 06.12. bis 08.12. nicht dienstbereit."),
              Text::npos)
        << Zeigt(form->Gründe);
    EXPECT_EQ(form->Kandidaten->currentIndex().data(Qt::ToolTipRole).toString().replace('\n', ' '),
              form->Gründe->text());
}

TEST_F(WerKannHierFormTest, DieSpaltenSagenWasFürDieWahlWichtigIst)
{
    Meßdiener.Häufigkeit[0] = 2;
    Fragen(Dienerplatznr(2, 2));
    const Liste namen = Namen();
    const auto von = [&](int spalte, const Text &wer) {
        return Spalte(
            spalte)[static_cast<std::size_t>(std::ranges::find(namen, wer) - namen.begin())];
    };
    EXPECT_EQ(von(Kandidatenmodell::Gruppe, "Doris Dorn"), "Große");
    EXPECT_EQ(von(Kandidatenmodell::Zuletzt, "Doris Dorn"), "29.11.");
    EXPECT_EQ(von(Kandidatenmodell::Danach, "Doris Dorn"), "–");
    EXPECT_EQ(von(Kandidatenmodell::Danach, "Anna Arndt"), "06.12.");
    EXPECT_EQ(von(Kandidatenmodell::Dienste, "Anna Arndt"), "2");
    EXPECT_EQ(von(Kandidatenmodell::Häufigkeit, "Anna Adler"), "2");
    EXPECT_TRUE(von(Kandidatenmodell::Partner, "Doris Dorn").starts_with("Cem Cohn"));
    EXPECT_NE(von(Kandidatenmodell::Dagegen, "Anna Adler"), "") << "serves in this mass already";
}

TEST_F(WerKannHierFormTest, EinKlickAufEinenKopfOrdnetDerDritteNimmtEsZurück)
{
    Fragen(Dienerplatznr(3, 2));
    const Liste beste = Namen();
    QHeaderView *kopf = form->Kandidaten->horizontalHeader();
    const auto klick = [&](int spalte) {
        QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {},
                          {kopf->sectionViewportPosition(spalte) + 8, kopf->height() / 2});
    };
    klick(Kandidatenmodell::Name);
    EXPECT_EQ(Namen(), (Liste{"Anna Adler", "Anna Arndt", "Cem Cohn", "Doris Dorn"}));
    klick(Kandidatenmodell::Name);
    EXPECT_EQ(Namen(), (Liste{"Doris Dorn", "Cem Cohn", "Anna Arndt", "Anna Adler"}));
    klick(Kandidatenmodell::Name);
    EXPECT_EQ(Namen(), beste);
    klick(Kandidatenmodell::Zuletzt);
    Liste tage = Spalte(Kandidatenmodell::Zuletzt);
    EXPECT_EQ(tage.front(), "29.11.");
    EXPECT_EQ(tage.back(), "03.12.");
    klick(Kandidatenmodell::Dienste);
    const Liste dienste = Spalte(Kandidatenmodell::Dienste);
    EXPECT_TRUE(std::is_sorted(dienste.begin(), dienste.end()));
    klick(Kandidatenmodell::Dagegen);
    EXPECT_EQ(Spalte(Kandidatenmodell::Dagegen).front(), "");
    EXPECT_NE(Spalte(Kandidatenmodell::Dagegen).back(), "");
}

TEST_F(WerKannHierFormTest, DerFilterSuchtInNameGruppeUndWunschpartner)
{
    Fragen(Dienerplatznr(3, 2));
    EXPECT_TRUE(form->Namenfilter->hasFocus());
    Tippen(form->Namenfilter, "ann ad");
    EXPECT_EQ(Namen(), Liste{"Anna Adler"});
    Tippen(form->Namenfilter, "große");
    EXPECT_EQ(Namen(), Liste{"Doris Dorn"});
    Tippen(form->Namenfilter, "cohn");
    EXPECT_EQ(Namen().size(), 2U);
    Tippen(form->Namenfilter, "niemand");
    EXPECT_EQ(Namen(), Liste{});
    EXPECT_EQ(Zeigt(form->Gründe), "Das trifft auf niemanden zu.");
    EXPECT_FALSE(form->Einsetzen->isEnabled());
    EXPECT_FALSE(form->MitPartner->isEnabled());
}

TEST_F(WerKannHierFormTest, AllesGehtMitDerTastatur)
{
    Fragen(Dienerplatznr(3, 2));
    const Liste namen = Namen();
    Taste(Qt::Key_Down);
    EXPECT_EQ(Markiert(), namen[1]);
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Up);
    EXPECT_EQ(Markiert(), namen[1]);
    EXPECT_TRUE(form->Namenfilter->hasFocus()) << "typing goes on";
    Taste(Qt::Key_Return);
    EXPECT_TRUE(Warten([&] { return !IstOffen("WerKannHier"); }));
    EXPECT_EQ(Messe.DienerVor[3][2] + " " + Messe.DienerNach[3][2], namen[1]);
}

TEST_F(WerKannHierFormTest, EinsetzenSchreibtNurDiesenPlatzUndDasRasterZeigtIhn)
{
    Fragen(Dienerplatznr(3, 2));
    Marken("Cem Cohn");
    Klick(form->Einsetzen);
    EXPECT_EQ(Messe.DienerVor[3][2], "Cem");
    EXPECT_EQ(Messe.DienerNach[3][2], "Cohn");
    EXPECT_EQ(Messe.DienerNach[3][1], "Arndt");
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem C.");
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(3, Plätze + 1));
    EXPECT_FALSE(IstOffen("WerKannHier"));
    EXPECT_EQ(Zeigt(Finden(haupt, "StatusMitteilung")),
              "12:00 Cem Cohn eingesetzt als Diener 2 (06.12., 10:00 Uhr, Messe)");
    const auto &befunde = Modell()->Prüfung().Von(3);
    EXPECT_TRUE(std::ranges::any_of(befunde, [](const Befund &b) {
        return b.Gegen == Regel::Abwesend;
    })) << "the check says so";
    TabellenBeobachten();
    EXPECT_EQ(LetzterSchritt(), "Cem Cohn eingesetzt als Diener 2 (06.12., 10:00 Uhr, Messe)");
    RückgängigMachen();
    EXPECT_EQ(Messe.DienerNach[3][2], "");
    EXPECT_EQ(Steht(3, Plätze + 1), "");
}

TEST_F(WerKannHierFormTest, LeerenLäßtDasFensterOffenUndSagtWerDaStand)
{
    Fragen(Dienerplatznr(0, 2));
    EXPECT_EQ(Zeigt(form->Jetzt), "Jetzt steht hier Cem Cohn.");
    Klick(form->Leeren);
    EXPECT_EQ(Messe.DienerVor[0][2] + Messe.DienerNach[0][2], "");
    EXPECT_EQ(Zeigt(form->Jetzt), "Der Platz ist frei.");
    EXPECT_FALSE(form->Leeren->isEnabled());
    EXPECT_TRUE(form->Namenfilter->hasFocus());
    EXPECT_EQ(Steht(0, Plätze + 1), "");
}

TEST_F(WerKannHierFormTest, MitPartnerSetztAuchDenWunschpartnerDaneben)
{
    Messe.DienerVor[2][1].clear();
    Messe.DienerNach[2][1].clear();
    Messe.DienerVor[2][2].clear();
    Messe.DienerNach[2][2].clear();
    Fragen(Dienerplatznr(2, 1));
    Marken("Anna Adler");
    EXPECT_FALSE(form->MitPartner->isEnabled()) << "she has no wish partner";
    Marken("Doris Dorn");
    ASSERT_TRUE(form->MitPartner->isEnabled());
    Klick(form->MitPartner);
    EXPECT_EQ(Messe.DienerNach[2][1], "Dorn");
    EXPECT_EQ(Messe.DienerNach[2][2], "Cohn");
    EXPECT_EQ(Messe.DienerVor[2][2], "Cem");
    EXPECT_EQ(Zeigt(Finden(haupt, "StatusMitteilung")),
              "12:00 Doris Dorn eingesetzt als Diener 1; Cem Cohn eingesetzt als Diener 2 (03.12., "
              "10:00 Uhr, Messe)");
    RückgängigMachen();
    EXPECT_EQ(Messe.DienerNach[2][1] + Messe.DienerNach[2][2], "") << "both are one step";
}

TEST_F(WerKannHierFormTest, FürEinenHelferplatzStehenDieHelferDa)
{
    Fragen(Helferplatznr(1, 0));
    EXPECT_EQ(Zeigt(form->Platzname), "Sonntag, 29.11.2026, 10:00 Uhr, Hochamt: Lektor 1");
    EXPECT_EQ(Namen(), (Liste{"Lea Lang", "Kai Kurz"}));
    EXPECT_TRUE(form->Kandidaten->isColumnHidden(Kandidatenmodell::Partner));
    EXPECT_TRUE(form->Kandidaten->isColumnHidden(Kandidatenmodell::Häufigkeit));
    EXPECT_FALSE(form->MitPartner->isVisible());
    Marken("Kai Kurz");
    Klick(form->Einsetzen);
    EXPECT_EQ(Messe.Lektor1Nach[1], "Kurz");
    EXPECT_EQ(Messe.Lektor2Nach[1], "");
}

TEST_F(WerKannHierFormTest, EscUndSchließenÄndernNichts)
{
    for (const bool taste : {true, false}) {
        Fragen(Dienerplatznr(3, 2));
        if (taste)
            QTest::keyClick(form->Namenfilter, Qt::Key_Escape);
        else
            Klick(form->Schließen);
        EXPECT_TRUE(Warten([&] { return !IstOffen("WerKannHier"); }));
        EXPECT_EQ(Messe.DienerNach[3][2], "");
    }
    EXPECT_TRUE(haupt->isEnabled());
}

} // namespace
} // namespace altardienst
