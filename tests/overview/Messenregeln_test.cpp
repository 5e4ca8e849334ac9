// The rules of the check for masses and for helpers.
#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class MessenregelnTest : public Prüfungsstand {};

TEST_F(MessenregelnTest, ZweiMessenZurSelbenZeit)
{
    Hochamt(Tag(22), 0);
    const int zweite = Hochamt(Tag(22), 0);
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Zur selben Zeit steht noch eine Messe im Plan: Hochamt."});
    Messe.Messeart[0] = "";
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Zur selben Zeit steht noch eine Messe im Plan."});
    Messe.Uhrzeit[zweite] = ZeitAus(10 * 3600 + 60);
    EXPECT_EQ(Befunde(), Zeilen());
    Messe.Uhrzeit[zweite] = Messe.Uhrzeit[0];
    Messe.Datum[zweite] = Tag(23);
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(MessenregelnTest, AußerhalbDesZeitraums)
{
    Hochamt(Tag(22), 0);
    const int letzte = Hochamt(Tag(20, 12), 0);
    EXPECT_EQ(Befunde(), Zeilen());
    const Text satz = "H 0 Die Messe liegt nicht im Zeitraum 22.11.2026 bis 20.12.2026.";
    Messe.Datum[letzte] = Tag(21, 12);
    EXPECT_EQ(Befunde(), Zeilen{satz});
    Messe.Datum[letzte] = Tag(20, 12);
    Messe.Datum[0] = Tag(21);
    EXPECT_EQ(Befunde(), Zeilen{satz});
    Messe.Datum[0] = 0;
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Die Messe hat noch kein Datum."});
    Konfig.StartDatum = 0; // before the start dialog
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(MessenregelnTest, EinPlanFürEinenAnderenZeitraumIstEinEinzigerHinweis)
{
    Hochamt(Tag(22), 0);
    Hochamt(Tag(24), 0);
    Konfig.StartDatum = Tag(25);
    EXPECT_EQ(Befunde(),
              Zeilen{"H 0 Keine der Messen liegt im Zeitraum 25.11.2026 bis 23.12.2026."});
}

TEST_F(MessenregelnTest, DiensteUndMeßdienerzahl)
{
    const int i = Hochamt(Tag(22), 0);
    int zahl = 1;
    for (const Dienstart &art : Dienstarten)
        art.Zahl.In(Messe)[i] = zahl++;
    Messe.Dienerzahl[i] = 20;
    const auto alleFrei = Befunde();
    ASSERT_EQ(alleFrei.size(), 21U);
    EXPECT_EQ(alleFrei[0], "H 0 Die Dienste ergeben 21 Meßdiener, die Messe hat 20.");
    Messe.Allgemein[i] = 5;
    EXPECT_EQ(Befunde().size(), 20U);
    Messe.Gabenbereitung[i] = 0;
    EXPECT_EQ(Befunde()[0], "H 0 Die Dienste ergeben 19 Meßdiener, die Messe hat 20.");
}

TEST_F(MessenregelnTest, EineLeereMesseIstKeinFehler)
{
    Messe.Anzahl = 1; // one step after the last record
    Meßdiener.Anzahl = -1;
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Die Messe hat noch kein Datum."});
    Messe.Anzahl = 0;
    EXPECT_EQ(Befunde(), Zeilen());
    Messe.Anzahl = 1000; // a file may claim so
    EXPECT_EQ(Befunde().size(), 1U);
}

TEST_F(MessenregelnTest, EinDatumOhneKalenderIstKeinFehler)
{
    Füllen(Hochamt(1e9, 1));
    Füllen(Hochamt(1e9 + 1, 1));
    Einsetzen(1, 1, 0);
    Konfig.StartDatum = 0;
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach dient schon am Vortag, ?, 10:00 Uhr, Hochamt."});
}

class HelferregelnTest : public Prüfungsstand {
  protected:
    /// A mass that wants all eight helpers, and has them.
    HelferregelnTest() : messe(Hochamt(Tag(22), 0))
    {
        for (auto *zahl :
             {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl})
            (*zahl)[messe] = 2;
        for (int nr = 0; nr < 8; ++nr)
            HelferEinsetzen(
                messe, nr,
                HelferAnlegen("Vor" + std::to_string(nr), "Nach",
                              Text(Helferplätze[static_cast<std::size_t>(nr)].Art.Name)));
    }

    int messe;
};

TEST_F(HelferregelnTest, EinVollerPlanOhneFehlerHatKeineBefunde)
{
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(HelferregelnTest, JederGewünschtePlatzOhneNamenIstFrei)
{
    Leeren(Messe, Helferplatznr(messe, 0));
    Leeren(Messe, Helferplatznr(messe, 7));
    EXPECT_EQ(Befunde(), (Zeilen{"V 0 Lektor 1 ist frei.", "V 7 Kollektant 2 ist frei."}));
    Messe.KollektZahl[messe] = 1;
    EXPECT_EQ(Befunde(), Zeilen{"V 0 Lektor 1 ist frei."});
    Messe.LektorZahl[messe] = 0;
    EXPECT_EQ(Befunde(), Zeilen()); // whoever is the second Lektor stays there unseen
    Messe.KommZahl[messe] = 3;      // a third does not exist
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(HelferregelnTest, EinMeßdienerIstKeinHelfer)
{
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    Besetzen(Messe, Helferplatznr(messe, 4), Meßdiener.Vorname[anna], Meßdiener.Nachname[anna]);
    EXPECT_EQ(Befunde(), Zeilen{"V 4 Anna Berg ist unter den Helfern nicht zu finden."});
}

TEST_F(HelferregelnTest, EinHelferDarfAuchMeßdienerSein)
{
    const int i = Hochamt(Tag(22), 1);
    Messe.Uhrzeit[i] = ZeitAus(11 * 3600);
    Einsetzen(i, 1, MeßdienerAnlegen("Vor0", "Nach"));
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(HelferregelnTest, NiemandStehtZweimalInEinerMesse)
{
    Helfer.Dienst2[0] = "Kollektant";
    HelferEinsetzen(messe, 7, 0);
    EXPECT_EQ(Befunde(), Zeilen{"V 7 Vor0 Nach steht in dieser Messe auch auf Lektor 1."});
}

TEST_F(HelferregelnTest, DerselbeUndDerNächsteTagSindNurHinweise)
{
    const int i = Hochamt(Tag(23), 0);
    Messe.LektorZahl[i] = 1;
    HelferEinsetzen(i, 0, 0);
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Vor0 Nach dient schon am Vortag, 22.11., 10:00 Uhr, "
                                "Hochamt."});
    Messe.Datum[i] = Tag(22);
    Messe.Uhrzeit[i] = ZeitAus(8 * 3600 + 1800);
    EXPECT_EQ(Befunde(), Zeilen{"H 0 Vor0 Nach dient an diesem Tag auch um 08:30 Uhr, Hochamt."});
    Messe.Datum[i] = Tag(24);
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(HelferregelnTest, AbwesendIstManVomErstenBisZumLetztenTag)
{
    using Spalte = HelferTabelle::Spalte<Datum>;
    const std::vector<std::pair<Spalte *, Spalte *>> zeiträume = {
        {&Helfer.Von1, &Helfer.Bis1}, {&Helfer.Von2, &Helfer.Bis2}, {&Helfer.Von3, &Helfer.Bis3}};
    for (const auto &[von, bis] : zeiträume) {
        (*von)[5] = Tag(20);
        (*bis)[5] = Tag(22);
        EXPECT_EQ(Befunde(), Zeilen{"V 5 Vor5 Nach ist vom 20.11. bis 22.11. nicht dienstbereit."});
        (*bis)[5] = Tag(21);
        EXPECT_EQ(Befunde(), Zeilen());
        (*von)[5] = Tag(22);
        (*bis)[5] = Tag(23);
        EXPECT_EQ(Befunde(), Zeilen{"V 5 Vor5 Nach ist vom 22.11. bis 23.11. nicht dienstbereit."});
        (*von)[5] = Tag(23);
        EXPECT_EQ(Befunde(), Zeilen());
        (*von)[5] = (*bis)[5] = 0;
    }
}

TEST_F(HelferregelnTest, DerDienstStehtInEinemDerBeidenFelder)
{
    for (int nr = 0; nr < 8; ++nr) {
        const Text dienst(Helferplätze[static_cast<std::size_t>(nr)].Art.Name);
        const Text anfang =
            (nr < 2 ? "V " : "H ") + std::to_string(nr) + " Vor" + std::to_string(nr) + " Nach ";
        Helfer.Dienst1[nr] = "";
        Helfer.Dienst2[nr] = dienst;
        EXPECT_EQ(Befunde(), Zeilen());
        Helfer.Dienst1[nr] = dienst; // twice: the draw takes only a Lektor then
        EXPECT_EQ(Befunde(),
                  nr < 2 ? Zeilen()
                         : Zeilen{anfang + "hat den Dienst " + dienst +
                                  " zweimal eingetragen; (5) setzt solche Helfer dort nicht ein."});
        Helfer.Dienst1[nr] = Helfer.Dienst2[nr] = "Küster";
        EXPECT_EQ(Befunde(), Zeilen{anfang + "ist nicht als " + dienst + " eingetragen."});
        Helfer.Dienst1[nr] = dienst;
    }
}

} // namespace
} // namespace altardienst
