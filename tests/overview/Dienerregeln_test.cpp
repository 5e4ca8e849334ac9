// The rules of the check for servers: each broken by a little, and just not.
#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class DienerregelnTest : public Prüfungsstand {};

TEST_F(DienerregelnTest, EinVollerPlanOhneFehlerHatKeineBefunde)
{
    for (int tag = 22; tag <= 30; tag += 2)
        Füllen(Hochamt(Tag(tag), 20));
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(DienerregelnTest, JederGewünschtePlatzOhneNamenIstFrei)
{
    const int i = Hochamt(Tag(22), 20);
    Füllen(i);
    Leeren(Messe, Dienerplatznr(i, 1));
    Leeren(Messe, Dienerplatznr(i, 20));
    EXPECT_EQ(Befunde(), (Zeilen{"V 1 Diener 1 ist frei.", "V 20 Diener 20 ist frei."}));
}

TEST_F(DienerregelnTest, EinFreierPlatzVonHandIstNurEinHinweis)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    MitDienst(i, Messe.Weihrauch, 1);
    Konfig.ManuellWeihrauch = 1;
    Leeren(Messe, Dienerplatznr(i, 1)); // "Weihrauch"
    Leeren(Messe, Dienerplatznr(i, 2)); // "Allgemein"
    EXPECT_EQ(Befunde(), (Zeilen{"H 1 Diener 1 ist frei.", "V 2 Diener 2 ist frei."}));
}

TEST_F(DienerregelnTest, EinNameOhneDatensatzIstUnbekannt)
{
    const int i = Hochamt(Tag(22), 3);
    Füllen(i);
    Besetzen(Messe, Dienerplatznr(i, 1), "Vor0", "nach"); // the case counts
    Besetzen(Messe, Dienerplatznr(i, 3), "", "Nach");
    EXPECT_EQ(Befunde(), (Zeilen{"V 1 Vor0 nach ist unter den Meßdienern nicht zu finden.",
                                 "V 3 Nach ist unter den Meßdienern nicht zu finden."}));
}

TEST_F(DienerregelnTest, EinDatensatzNachDemLetztenIstUnbekannt)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    Meßdiener.Anzahl = 0;
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach ist unter den Meßdienern nicht zu finden."});
}

TEST_F(DienerregelnTest, EineGruppeIstBekannt)
{
    const int i = Hochamt(Tag(22), 2);
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Die Großen";
    Gruppe.Bezeichnung[1] = "Die Kleinen"; // after the last one
    Besetzen(Messe, Dienerplatznr(i, 1), "Gruppe", "Die Großen");
    Besetzen(Messe, Dienerplatznr(i, 2), "Gruppe", "Die Kleinen");
    EXPECT_EQ(Befunde(),
              Zeilen{"V 2 Gruppe Die Kleinen ist unter den Meßdienern nicht zu finden."});
}

TEST_F(DienerregelnTest, WerEinenNamenTeiltWirdNichtBeurteilt)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    const int zweiter = MeßdienerAnlegen("Vor0", "Nach");
    Meßdiener.Von1[zweiter] = Meßdiener.Bis1[zweiter] = Tag(22);
    EXPECT_EQ(Befunde(),
              Zeilen{"H 1 Mehrere heißen Vor0 Nach; wer gemeint ist, lässt sich nicht sagen."});
    Meßdiener.Nachname[zweiter] = "Nach.";
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(DienerregelnTest, NiemandStehtZweimalInEinerMesse)
{
    const int i = Hochamt(Tag(22), 20);
    Füllen(i);
    Einsetzen(i, 20, 0);
    EXPECT_EQ(Befunde(), Zeilen{"V 20 Vor0 Nach steht in dieser Messe auch auf Diener 1."});
}

TEST_F(DienerregelnTest, AmSelbenUndAmNächstenTagIstSchluss)
{
    const int samstag = Hochamt(Tag(28), 1);
    const int abend = Hochamt(Tag(28), 1);
    Messe.Uhrzeit[abend] = ZeitAus(18 * 3600 + 30 * 60);
    Messe.Messeart[abend] = "Vorabendmesse";
    const int sonntag = Hochamt(Tag(29), 1);
    const int montag = Hochamt(Tag(30), 1);
    for (const int i : {samstag, abend, sonntag, montag})
        Füllen(i);
    Einsetzen(sonntag, 1, 0);
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach dient schon am Vortag, 28.11., 10:00 Uhr, "
                                "Hochamt."});
    Füllen(sonntag);
    Einsetzen(montag, 1, 0); // two days later
    EXPECT_EQ(Befunde(), Zeilen());
    Einsetzen(abend, 1, 0);
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach dient an diesem Tag auch um 10:00 Uhr, Hochamt."});
}

TEST_F(DienerregelnTest, DieReihenfolgeDerTabelleIstGleich)
{
    const int sonntag = Hochamt(Tag(29), 1);
    const int samstag = Hochamt(Tag(28), 1);
    Füllen(sonntag);
    Einsetzen(samstag, 1, 0);
    const Planprüfung prüfung;
    EXPECT_TRUE(prüfung.Von(samstag).empty());
    ASSERT_EQ(prüfung.Von(sonntag).size(), 1U);
    EXPECT_EQ(prüfung.Von(sonntag)[0].Gegen, Regel::Nachbartag);
}

TEST_F(DienerregelnTest, DieGrößeDarfUmDenSpielraumAbweichen)
{
    const int i = Hochamt(Tag(22), 5);
    Füllen(i);                // all 160 cm
    Meßdiener.Größe[1] = 170; // the reference is 165 now
    Meßdiener.Größe[2] = 155; // and 162 (161.67) now
    Meßdiener.Größe[3] = 172;
    Meßdiener.Größe[4] = 152;
    EXPECT_EQ(Befunde(), Zeilen());
    Meßdiener.Größe[3] = 173;
    Meßdiener.Größe[4] = 151;
    EXPECT_EQ(Befunde(), (Zeilen{"H 4 Vor3 Nach ist 173 cm groß; hier passen 152 bis "
                                 "172 cm.",
                                 "H 5 Vor4 Nach ist 151 cm groß; hier passen 152 bis "
                                 "172 cm."}));
}

TEST_F(DienerregelnTest, OhneDieErstenDreiGibtEsKeineGröße)
{
    const int i = Hochamt(Tag(22), 4);
    Füllen(i);
    Meßdiener.Größe[3] = 200;
    for (const int slot : {1, 2, 3}) {
        SCOPED_TRACE(slot);
        Leeren(Messe, Dienerplatznr(i, slot));
        EXPECT_EQ(Befunde(), Zeilen{"V " + std::to_string(slot) + " Diener " +
                                    std::to_string(slot) + " ist frei."});
        Einsetzen(i, slot, slot - 1);
    }
    EXPECT_EQ(Befunde().size(), 1U);
}

TEST_F(DienerregelnTest, EinGrenzenloserSpielraumIstKeinFehler)
{
    Füllen(Hochamt(Tag(22), 2));
    Konfig.DiffGröße = 32767;
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(DienerregelnTest, JederDienstBrauchtSeineQualifikation)
{
    const int i = Hochamt(Tag(22), 6);
    Füllen(i);
    for (auto *dienst : {&Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau, &Messe.Weihrauch,
                         &Messe.Kreuzträger})
        MitDienst(i, *dienst, 1);
    for (int j = 0; j < 6; ++j)
        Meßdiener.Qualifikation[j] = MitFlag("nnnnnn", j + 1, true); // the one needed
    Meßdiener.Qualifikation[5] = "nnnnnn";
    EXPECT_EQ(Befunde(), Zeilen());
    for (int j = 0; j < 5; ++j)
        Meßdiener.Qualifikation[j] = MitFlag("jjjjjj", j + 1, false);
    EXPECT_EQ(Befunde(),
              (Zeilen{"V 1 Vor0 Nach ist für den Dienst Gabenbereitung nicht eingetragen.",
                      "V 2 Vor1 Nach ist für den Dienst Leuchter nicht eingetragen.",
                      "V 3 Vor2 Nach ist für den Dienst Flambeau nicht eingetragen.",
                      "V 4 Vor3 Nach ist für den Dienst Weihrauch nicht eingetragen.",
                      "V 5 Vor4 Nach ist für den Dienst Kreuzträger nicht eingetragen."}));
}

TEST_F(DienerregelnTest, EsZähltDerDienstDenDerPlanDruckt)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    MitDienst(i, Messe.Weihrauch, 1);
    DienstDesSlots(i, 1) = DienstDesSlots(i, 2) = "Weihrauch"; // as the plain way leaves it
    Meßdiener.Qualifikation[1] = "nnnnnn";
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(DienerregelnTest, AbwesendIstManVomErstenBisZumLetztenTag)
{
    const int i = Hochamt(Tag(1, 12), 5);
    Füllen(i);
    using Spalte = MeßdienerTabelle::Spalte<Datum>;
    const std::vector<std::pair<Spalte *, Spalte *>> zeiträume = {
        {&Meßdiener.Von1, &Meßdiener.Bis1},
        {&Meßdiener.Von2, &Meßdiener.Bis2},
        {&Meßdiener.Von3, &Meßdiener.Bis3},
        {&Meßdiener.Von4, &Meßdiener.Bis4},
        {&Meßdiener.Von5, &Meßdiener.Bis5}};
    for (int j = 0; j < 5; ++j) {
        SCOPED_TRACE(j);
        auto &[von, bis] = zeiträume[static_cast<std::size_t>(j)];
        const Text platz = "V " + std::to_string(j + 1) + " Vor" + std::to_string(j);
        (*von)[j] = Tag(1, 12);
        (*bis)[j] = Tag(5, 12);
        EXPECT_EQ(Befunde(), Zeilen{platz + " Nach ist vom 01.12. bis 05.12. nicht dienstbereit."});
        (*von)[j] = Tag(28);
        (*bis)[j] = Tag(1, 12);
        EXPECT_EQ(Befunde(), Zeilen{platz + " Nach ist vom 28.11. bis 01.12. nicht dienstbereit."});
        (*bis)[j] = Tag(30);
        EXPECT_EQ(Befunde(), Zeilen());
        (*von)[j] = Tag(2, 12);
        (*bis)[j] = Tag(5, 12);
        EXPECT_EQ(Befunde(), Zeilen());
        (*von)[j] = 0;
        EXPECT_EQ(Befunde(), Zeilen{platz + " Nach ist bis 05.12. nicht dienstbereit."});
        (*bis)[j] = 0;
    }
}

TEST_F(DienerregelnTest, EinPaarIstEinesGeschlechts)
{
    const int i = Hochamt(Tag(22), 4);
    Füllen(i);
    Meßdiener.Geschlecht[0] = Meßdiener.Geschlecht[1] = "weiblich";
    EXPECT_EQ(Befunde(), Zeilen()); // 2 and 3 are no pair
    Meßdiener.Geschlecht[3] = "weiblich";
    EXPECT_EQ(Befunde(), Zeilen{"V 4 Vor3 Nach (weiblich) steht als Paar neben Vor2 Nach "
                                "(männlich)."});
    Leeren(Messe, Dienerplatznr(i, 3));
    EXPECT_EQ(Befunde(), Zeilen{"V 3 Diener 3 ist frei."});
}

TEST_F(DienerregelnTest, WunschpartnerDürfenVerschiedenSein)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    Meßdiener.Geschlecht[1] = "weiblich";
    const Text satz = "2 Vor1 Nach (weiblich) steht als Paar neben Vor0 Nach (männlich).";
    for (const int j : {0, 1}) {
        Meßdiener.WunschVorname[j] = Meßdiener.Vorname[1 - j];
        EXPECT_EQ(Befunde(), Zeilen{"V " + satz}); // only a first name is no wish
        Meßdiener.WunschNachname[j] = "Nach";
        EXPECT_EQ(Befunde(), Zeilen{"H " + satz});
        Meßdiener.WunschVorname[j] = Meßdiener.WunschNachname[j] = "";
    }
}

TEST_F(DienerregelnTest, NachEinemPaarAufGeradenPlätzenGiltDerErsteDesPaares)
{
    const int i = Hochamt(Tag(22), 4);
    Füllen(i);
    Meßdiener.WunschVorname[1] = "Vor2";
    Meßdiener.WunschNachname[1] = "Nach";
    Meßdiener.Geschlecht[2] = "weiblich";
    EXPECT_EQ(Befunde(), Zeilen{"H 4 Vor3 Nach (männlich) steht als Paar neben Vor2 Nach "
                                "(weiblich)."});
    Meßdiener.Geschlecht[0] = Meßdiener.Geschlecht[1] = "weiblich";
    EXPECT_EQ(Befunde(), Zeilen{"V 4 Vor3 Nach (männlich) steht als Paar neben Vor2 Nach "
                                "(weiblich)."});
}

TEST_F(DienerregelnTest, EinVonHandBesetzterPlatzPaßtSelten)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    Meßdiener.Geschlecht[1] = "weiblich";
    MitDienst(i, Messe.Kreuzträger, 1); // slot 1
    const Text satz = "2 Vor1 Nach (weiblich) steht als Paar neben Vor0 Nach (männlich).";
    EXPECT_EQ(Befunde(), Zeilen{"V " + satz});
    Konfig.ManuellKreuzträger = 1;
    EXPECT_EQ(Befunde(), Zeilen{"H " + satz});
}

TEST_F(DienerregelnTest, WerKeinenWochendienstWill)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    Meßdiener.Wochendienst[0] = "jnnnnnnn";
    EXPECT_EQ(Befunde(), Zeilen());
    Messe.Messeart[i] = "Wochendienst";
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach möchte nicht im Wochendienst dienen."});
    Meßdiener.Wochendienst[0] = "njjjjjjj";
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(DienerregelnTest, WerAnEinemWochentagNichtWill)
{
    const std::vector<Text> tage = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag"};
    const int i = Hochamt(Tag(23), 1);
    Füllen(i);
    for (std::size_t k = 0; k < tage.size(); ++k) {
        Messe.Wochentag[i] = tage[k];
        Messe.Kennung[i] = "s";
        Meßdiener.Wochendienst[0] = MitFlag("nnnnnnnn", static_cast<int>(k) + 2, true);
        EXPECT_EQ(Befunde(), Zeilen{"V 1 Vor0 Nach möchte nicht an einem " + tage[k] + " dienen."});
        Meßdiener.Wochendienst[0] = MitFlag("jjjjjjjj", static_cast<int>(k) + 2, false);
        EXPECT_EQ(Befunde(), Zeilen());
        Meßdiener.Wochendienst[0] = "jjjjjjjj";
        Messe.Kennung[i] = ""; // by hand
        EXPECT_EQ(Befunde(), Zeilen());
    }
    Messe.Kennung[i] = "s";
    Messe.Wochentag[i] = "Montag    "; // as the mass list writes it
    EXPECT_EQ(Befunde(), Zeilen());
    Messe.Wochentag[i] = "Samstag";
    EXPECT_EQ(Befunde(), Zeilen());
}

} // namespace
} // namespace altardienst
