// "Wer kann hier?": who comes first, and what is said of the others.
#include "overview/Kandidaten.h"

#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class KandidatenTest : public Prüfungsstand {
  protected:
    static std::vector<Platzkandidat> Wer(Planplatz platz)
    {
        return WerKannHier(Planprüfung(), platz);
    }

    /// "Anna: sentence; sentence".
    static Zeilen Gründe(Planplatz platz)
    {
        Zeilen zeilen;
        for (const Platzkandidat &kandidat : Wer(platz)) {
            zeilen.push_back(kandidat.Vorname + ":");
            for (const Gegengrund &grund : kandidat.Gegengründe)
                zeilen.back() += " " + grund.Satz;
        }
        return zeilen;
    }

    static Zeilen Namen(Planplatz platz)
    {
        Zeilen namen;
        for (const Platzkandidat &kandidat : Wer(platz))
            namen.push_back(kandidat.Vorname);
        return namen;
    }
};

TEST_F(KandidatenTest, WenigerDiensteZuerstDannDerLängereAbstand)
{
    const std::vector<Datum> tage = {Tag(22), Tag(24), Tag(26), Tag(30), Tag(2, 12)};
    for (const Datum tag : tage)
        Hochamt(tag, 2);
    const int carl = MeßdienerAnlegen("Carl", "Berg");
    const int ben = MeßdienerAnlegen("Ben", "Berg");
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Dora", "Berg");
    MeßdienerAnlegen("", "Niemand");
    Einsetzen(0, 1, anna);
    Einsetzen(1, 1, ben);
    Einsetzen(0, 2, carl);
    Einsetzen(4, 1, carl);
    EXPECT_EQ(Namen(Dienerplatznr(3, 1)), (Zeilen{"Dora", "Anna", "Ben", "Carl"}));
    const std::vector<Platzkandidat> alle = Wer(Dienerplatznr(3, 1));
    EXPECT_EQ(alle[0].Zuletzt, 0);
    EXPECT_EQ(alle[0].Dienste, 0);
    EXPECT_EQ(alle[1].Nr, anna);
    EXPECT_EQ(alle[1].Zuletzt, Tag(22));
    EXPECT_EQ(alle[1].Danach, 0);
    EXPECT_EQ(alle[3].Zuletzt, Tag(22));
    EXPECT_EQ(alle[3].Danach, Tag(2, 12));
    EXPECT_EQ(alle[3].Dienste, 2);
    // His own service here does not count.
    EXPECT_EQ(Wer(Dienerplatznr(0, 1))[1].Dienste, 0);
}

TEST_F(KandidatenTest, JederGrundInDerReihenfolgeDerRegeln)
{
    const int davor = Hochamt(Tag(21), 1);
    const int i = Hochamt(Tag(22), 4);
    const int abend = Hochamt(Tag(22), 1);
    const int danach = Hochamt(Tag(23), 1);
    Messe.Uhrzeit[abend] = ZeitAus(18 * 3600);
    MitDienst(i, Messe.Kreuzträger, 1);
    Messe.Messeart[i] = "Wochendienst";
    Messe.Wochentag[i] = "Montag";
    Meßdiener.Anzahl = 0;
    const int emma = MeßdienerAnlegen("Emma", "Fuchs", 150, "weiblich");
    const int max = MeßdienerAnlegen("Max", "Berg", 180);
    Einsetzen(i, 2, emma);
    for (const int messe : {davor, i, abend, danach})
        Einsetzen(messe, messe == i ? 3 : 1, max);
    Meßdiener.Qualifikation[max] = "nnnnnn";
    Meßdiener.Von1[max] = Meßdiener.Bis1[max] = Tag(22);
    Meßdiener.Wochendienst[max] = "jjnnnnnn";
    Messe.Kennung[i] = "s";
    Meßdiener.WunschVorname[max] = "Emma";
    Meßdiener.WunschNachname[max] = "Fuchs";
    EXPECT_EQ(Gründe(Dienerplatznr(i, 1))[1],
              "Max: Max Berg steht in dieser Messe auch auf Diener 3. Max Berg dient an diesem Tag "
              "auch um 18:00 Uhr, Hochamt. Max Berg dient schon am Vortag, 21.11., 10:00 Uhr, "
              "Hochamt. Max Berg dient auch am Folgetag, 23.11., 10:00 Uhr, Hochamt. Max Berg ist "
              "für den Dienst Kreuzträger nicht eingetragen. Max Berg ist am 22.11. "
              "nicht dienstbereit. Max Berg möchte nicht im Wochendienst dienen. Max Berg möchte "
              "nicht an einem Montag dienen.");
    EXPECT_EQ(Wer(Dienerplatznr(i, 1))[1].Rang(), 2);
    Meßdiener.WunschVorname[max] = "";
    EXPECT_TRUE(Gründe(Dienerplatznr(i, 1))[1].ends_with(
        " Max Berg (männlich) steht als Paar neben Emma Fuchs (weiblich)."));
}

TEST_F(KandidatenTest, DieGrößeIstNurEinHinweis)
{
    const int i = Hochamt(Tag(22), 2);
    const int anna = MeßdienerAnlegen("Anna", "Berg", 150);
    MeßdienerAnlegen("Ben", "Berg", 161);
    MeßdienerAnlegen("Carl", "Berg", 160);
    Einsetzen(i, 1, anna);
    EXPECT_EQ(Gründe(Dienerplatznr(i, 2)),
              (Zeilen{"Carl:",
                      "Ben: Ben Berg ist 161 cm groß; hier passen 140 bis 160 "
                      "cm.",
                      "Anna: Anna Berg steht in dieser Messe auch auf Diener 1."}));
    EXPECT_EQ(Wer(Dienerplatznr(i, 2))[1].Rang(), 1);
}

TEST_F(KandidatenTest, DerFesteEintragStehtGegenAlleAnderen)
{
    const int i = Hochamt(Tag(22), 1);
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Ben", "Berg");
    MesseDienerFest.Anzahl = 1;
    MesseDienerFest.Datum[0] = Messe.Datum[i];
    MesseDienerFest.Uhrzeit[0] = Messe.Uhrzeit[i];
    MesseDienerFest.Vorname[0][1] = "Ben";
    MesseDienerFest.Nachname[0][1] = "Berg";
    EXPECT_EQ(Gründe(Dienerplatznr(i, 1)),
              (Zeilen{"Ben:", "Anna: Für Diener 1 ist Ben Berg fest zugeordnet, nicht "
                              "Anna Berg."}));
}

TEST_F(KandidatenTest, DerPartnerDarfVonAnderemGeschlechtSein)
{
    const int i = Hochamt(Tag(22), 2);
    const int anna = MeßdienerAnlegen("Anna", "Berg", 150, "weiblich");
    const int ben = MeßdienerAnlegen("Ben", "Berg", 150);
    Meßdiener.WunschVorname[anna] = "Ben";
    Meßdiener.WunschNachname[anna] = "Berg";
    Meßdiener.WunschVorname[ben] = "";
    for (const int slot : {1, 2}) {
        const std::vector<Platzkandidat> alle = Wer(Dienerplatznr(i, slot));
        const auto sie = std::ranges::find(alle, anna, &Platzkandidat::Nr);
        EXPECT_EQ(sie->Partnerplatz, 3 - slot);
    }
}

TEST_F(KandidatenTest, DerPartnerBrichtKeinAnderesPaar)
{
    const int i = Hochamt(Tag(22), 4);
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    const int ben = MeßdienerAnlegen("Ben", "Berg");
    const int eva = MeßdienerAnlegen("Eva", "Berg", 150, "weiblich");
    const int carl = MeßdienerAnlegen("Carl", "Berg");
    Meßdiener.WunschVorname[anna] = "Ben";
    Meßdiener.WunschNachname[anna] = "Berg";
    Einsetzen(i, 1, carl);
    Einsetzen(i, 4, carl);
    const auto platz = [&] {
        const std::vector<Platzkandidat> alle = Wer(Dienerplatznr(i, 2));
        return std::ranges::find(alle, anna, &Platzkandidat::Nr)->Partnerplatz;
    };
    EXPECT_EQ(Wer(Dienerplatznr(i, 2)).size(), 4U);
    EXPECT_EQ(platz(), 3) << "beside a boy";
    Einsetzen(i, 4, eva);
    EXPECT_NE(platz(), 3) << "there he would stand as a pair with a girl";
    EXPECT_GE(ben, 0);
}

TEST_F(KandidatenTest, VonGleichnamigenWeißNiemandWoSieStehen)
{
    const int i = Hochamt(Tag(22), 2);
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Ben", "Berg");
    Einsetzen(i, 1, anna);
    const Text satz = "Anna: Mehrere heißen Anna Berg; wer gemeint ist, lässt sich nicht sagen.";
    EXPECT_EQ(Gründe(Dienerplatznr(i, 2)), (Zeilen{"Ben:", satz, satz}));
    EXPECT_EQ(Wer(Dienerplatznr(i, 2))[1].Rang(), 1);
    HelferAnlegen("Lea", "Lang", "Lektor");
    HelferAnlegen("Lea", "Lang", "Lektor");
    Messe.LektorZahl[i] = 1;
    EXPECT_EQ(Gründe(Helferplatznr(i, 0)).at(1),
              "Lea: Mehrere heißen Lea Lang; wer gemeint ist, lässt sich nicht sagen.");
}

TEST_F(KandidatenTest, DerWunschpartnerFindetEinenPlatzDaneben)
{
    const int i = Hochamt(Tag(22), 4);
    Füllen(i);
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    const int ben = MeßdienerAnlegen("Ben", "Berg");
    Meßdiener.WunschVorname[anna] = "Ben";
    Meßdiener.WunschNachname[anna] = "Berg";
    const auto platzDaneben = [&](int slot) {
        const std::vector<Platzkandidat> alle = Wer(Dienerplatznr(i, slot));
        return std::ranges::find(alle, anna, &Platzkandidat::Nr)->Partnerplatz;
    };
    EXPECT_EQ(platzDaneben(1), 2);
    EXPECT_EQ(platzDaneben(2), 1);
    EXPECT_EQ(platzDaneben(3), 4);
    EXPECT_EQ(platzDaneben(4), 3);
    Leeren(Messe, Dienerplatznr(i, 1)); // a free place is better than its pair
    EXPECT_EQ(platzDaneben(2), 1);
    Leeren(Messe, Dienerplatznr(i, 3));
    EXPECT_EQ(platzDaneben(2), 1);
    Einsetzen(i, 1, 0);
    EXPECT_EQ(platzDaneben(2), 3);
    Meßdiener.Von1[ben] = Meßdiener.Bis1[ben] = Tag(22);
    EXPECT_EQ(platzDaneben(2), 0);
    Meßdiener.Von1[ben] = Meßdiener.Bis1[ben] = 0;
    Messe.Dienerzahl[i] = 1;
    EXPECT_EQ(platzDaneben(1), 0);
    Messe.Dienerzahl[i] = 4;
    Einsetzen(i, 3, ben);
    const std::vector<Platzkandidat> alle = Wer(Dienerplatznr(i, 2));
    const auto sie = std::ranges::find(alle, anna, &Platzkandidat::Nr);
    EXPECT_TRUE(sie->PartnerDaneben);
    EXPECT_EQ(sie->Partnerplatz, 0);
    EXPECT_EQ(sie->Partner, ben);
    EXPECT_EQ(sie->Wunschpartner, "Ben Berg");
}

TEST_F(KandidatenTest, DerLetztePlatzHatKeinenDaneben)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    const int ben = MeßdienerAnlegen("Ben", "Berg");
    Meßdiener.WunschVorname[anna] = "Ben";
    Meßdiener.WunschNachname[anna] = "Berg";
    Meßdiener.Von1[ben] = Meßdiener.Bis1[ben] = Tag(22); // who is away is not missed
    const auto gründe = [&](int slot) {
        for (const Platzkandidat &kandidat : Wer(Dienerplatznr(i, slot)))
            if (kandidat.Nr == anna)
                return kandidat.Gegengründe.empty() ? Text() : kandidat.Gegengründe[0].Satz;
        return Text("?");
    };
    EXPECT_EQ(gründe(1), "");
    EXPECT_EQ(gründe(2),
              "Nach dem letzten Platz ist für Ben Berg, den Wunschpartner von Anna Berg, "
              "kein Platz mehr.");
}

TEST_F(KandidatenTest, FürEinenHelferplatzKommenHelfer)
{
    const int i = Hochamt(Tag(22), 0);
    Messe.LektorZahl[i] = 1;
    MeßdienerAnlegen("Anna", "Berg");
    HelferAnlegen("Karl", "Klein", "Kantor");
    HelferAnlegen("Lena", "Lang", "", "Lektor");
    EXPECT_EQ(Gründe(Helferplatznr(i, 0)),
              (Zeilen{"Lena:", "Karl: Karl Klein ist nicht als Lektor eingetragen."}));
}

TEST_F(KandidatenTest, EinsetzenSchreibtNurDieBeidenNamen)
{
    const int i = Hochamt(Tag(22), 20);
    for (const int slot : {1, 20}) {
        Besetzen(Messe, Dienerplatznr(i, slot), "Anna", "Berg");
        EXPECT_EQ(Messe.DienerVor[i][slot], "Anna");
        EXPECT_EQ(Messe.DienerNach[i][slot], "Berg");
        Leeren(Messe, Dienerplatznr(i, slot));
        EXPECT_EQ(Messe.DienerVor[i][slot] + Messe.DienerNach[i][slot], "");
    }
    Besetzen(Messe, Helferplatznr(i, 7), "Karl", "Klein");
    EXPECT_EQ(Messe.Kollekt2Vor[i], "Karl");
    EXPECT_EQ(Messe.Kollekt2Nach[i], "Klein");
    EXPECT_EQ(Messe.KollektZahl[i], 0);
    Besetzen(Messe, Helferplatznr(i, 0), "Karl", "Klein");
    EXPECT_EQ(Messe.Lektor1Vor[i] + Messe.Lektor1Nach[i], "KarlKlein");
}

} // namespace
} // namespace altardienst
