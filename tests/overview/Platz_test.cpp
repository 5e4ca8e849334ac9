// What a place is called, and what it is for; the names where there is little room.
#include "overview/Platz.h"

#include "assignment/Dienste.h"
#include "overview/Kurznamen.h"
#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class PlatzTest : public Prüfungsstand {};

TEST_F(PlatzTest, DerDienstFolgtAusDenZahlenWieImDruck)
{
    Messe.Anzahl = 1;
    for (int gaben = -1; gaben <= 3; ++gaben)
        for (int leuchter = 0; leuchter <= 3; ++leuchter)
            for (const int flambeau : {0, 1, 8, 9})
                for (int weihrauch = 0; weihrauch <= 3; ++weihrauch)
                    for (int kreuz = 0; kreuz <= 3; ++kreuz) {
                        Messe.Gabenbereitung[0] = gaben;
                        Messe.Leuchter[0] = leuchter;
                        Messe.Flambeau[0] = flambeau;
                        Messe.Weihrauch[0] = weihrauch;
                        Messe.Kreuzträger[0] = kreuz;
                        DiensteVerteilen();
                        for (int slot = 1; slot <= 20; ++slot)
                            ASSERT_EQ(DienstAm(Messe, Dienerplatznr(0, slot)),
                                      DienstDesSlots(0, slot));
                    }
}

TEST_F(PlatzTest, KurzeDiensteUndAufschriften)
{
    const int i = Hochamt(Tag(22), 3);
    MitDienst(i, Messe.Gabenbereitung, 1);
    MitDienst(i, Messe.Kreuzträger, 1);
    EXPECT_EQ(KurzdienstAm(Messe, Dienerplatznr(i, 1)), "Gabenber.");
    EXPECT_EQ(KurzdienstAm(Messe, Dienerplatznr(i, 2)), "Kreuztr.");
    EXPECT_EQ(KurzdienstAm(Messe, Dienerplatznr(i, 3)), "");
    EXPECT_EQ(KurzdienstAm(Messe, Helferplatznr(i, 4)), "Kantor");
    EXPECT_EQ(Platzaufschrift(Dienerplatznr(i, 20)), "Diener 20");
    EXPECT_EQ(Platzaufschrift(Helferplatznr(i, 3)), "Kommunionhelfer 2");
    EXPECT_EQ(Platzaufschrift(GanzeMesse(i)), "");
    EXPECT_EQ(MesseImSatz(Messe, i), "22.11., 10:00 Uhr, Hochamt");
    Messe.Messeart[i] = "";
    EXPECT_EQ(MesseImSatz(Messe, i), "22.11., 10:00 Uhr");
}

TEST_F(PlatzTest, GewünschtIstWasDieZahlErreicht)
{
    const int i = Hochamt(Tag(22), 2);
    EXPECT_TRUE(IstGewünscht(Messe, Dienerplatznr(i, 2)));
    EXPECT_FALSE(IstGewünscht(Messe, Dienerplatznr(i, 3)));
    Messe.Dienerzahl[i] = 30;
    EXPECT_EQ(Dienerplätze(Messe, i), 20);
    Messe.Dienerzahl[i] = -1;
    EXPECT_EQ(Dienerplätze(Messe, i), 0);
    Messe.KommZahl[i] = 1;
    EXPECT_TRUE(IstGewünscht(Messe, Helferplatznr(i, 2)));
    EXPECT_FALSE(IstGewünscht(Messe, Helferplatznr(i, 3)));
}

class KurznamenTest : public Prüfungsstand {
  protected:
    static Text Kurz(const Text &vorname, const Text &nachname)
    {
        Kurznamen namen;
        namen.Neu();
        return namen.Von(vorname, nachname);
    }
};

TEST_F(KurznamenTest, NurSoLangWieNötig)
{
    for (const char *name : {"Müller", "Maier", "Mai", "Maischberger", "Berg"})
        MeßdienerAnlegen("Anna", name);
    MeßdienerAnlegen("Ömer", "Özdemir");
    EXPECT_EQ(Kurz("Anna", "Berg"), "Anna B.");
    EXPECT_EQ(Kurz("Anna", "Müller"), "Anna Mü.");
    EXPECT_EQ(Kurz("Anna", "Mai"), "Anna Mai");
    EXPECT_EQ(Kurz("Anna", "Maier"), "Anna Maie.");
    EXPECT_EQ(Kurz("Anna", "Maischberger"), "Anna Mais.");
    EXPECT_EQ(Kurz("Ömer", "Özdemir"), "Ömer Ö.");
    EXPECT_EQ(Kurz("Emma", "Fuchs"), "Emma F."); // in no table
}

TEST_F(KurznamenTest, HelferUndFremdeZählenMitWerBeidesIstEinmal)
{
    MeßdienerAnlegen("Anna", "Berg");
    HelferAnlegen("Anna", "Berg", "Lektor");
    EXPECT_EQ(Kurz("Anna", "Berg"), "Anna B.");
    HelferAnlegen("Anna", "Bauer", "Lektor");
    EXPECT_EQ(Kurz("Anna", "Berg"), "Anna Be.");
    const int i = Hochamt(Tag(22), 0);
    Besetzen(Messe, Helferplatznr(i, 7), "Anna", "Bergmann"); // nobody's
    EXPECT_EQ(Kurz("Anna", "Berg"), "Anna Berg");
    EXPECT_EQ(Kurz("Anna", "Bergmann"), "Anna Bergm.");
}

TEST_F(KurznamenTest, EinzelneNamenUndGruppenBleibenGanz)
{
    MeßdienerAnlegen("", "Berg");
    MeßdienerAnlegen("Anna", "");
    MeßdienerAnlegen("Anna", "Berg");
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Die Großen";
    Besetzen(Messe, Dienerplatznr(Hochamt(Tag(22), 1), 1), "Gruppe", "Die Großen");
    EXPECT_EQ(Kurz("", "Berg"), "Berg");
    EXPECT_EQ(Kurz("Anna", ""), "Anna");
    EXPECT_EQ(Kurz("Anna", "Berg"), "Anna B.");
    EXPECT_EQ(Kurz("Gruppe", "Die Großen"), "Gruppe Die Großen");
}

TEST_F(KurznamenTest, AlleBleibenVerschieden)
{
    const std::vector<Text> vornamen = {"Anna", "Ann", "A", "Änne"};
    const std::vector<Text> nachnamen = {"A", "Aa", "Aaa", "Ab", "Ä", "Äa", "B", "Ba", "A.", "Aa."};
    for (const Text &vorname : vornamen)
        for (const Text &nachname : nachnamen)
            MeßdienerAnlegen(vorname, nachname);
    Kurznamen namen;
    namen.Neu();
    std::set<Text> kurze;
    for (int j = 0; j < Meßdiener.Anzahl; ++j)
        EXPECT_TRUE(kurze.insert(namen.Von(Meßdiener.Vorname[j], Meßdiener.Nachname[j])).second)
            << Meßdiener.Vorname[j] << " " << Meßdiener.Nachname[j];
}

} // namespace
} // namespace altardienst
