// The table of the fixed entries and how it relates to the masses.
#include "fixed/FesteEinträge.h"

#include "Prüfstand.h"
#include "core/SchleifenZähler.h"
#include "core/Umwandlung.h"

namespace altardienst {
namespace {

class FesteEinträgeTest : public Prüfstand {
  protected:
    const Datum Sonntag = DatumAus({2026, 11, 22});
    const Datum Zehn = ZeitAus(36000);

    static void Fest(int k, Datum datum, Datum uhrzeit)
    {
        MesseDienerFest.Datum[k] = datum;
        MesseDienerFest.Uhrzeit[k] = uhrzeit;
    }

    /// Puts entry `wer`, with texts of its own in every field, slot 0 included, into record `k`.
    static void Füllen(int k, int wer)
    {
        Fest(k, 46000 + wer, ZeitAus(60 * wer));
        MesseDienerFest.Index[k] = wer;
        for (int slot = 0; slot <= 20; ++slot) {
            const Text wo = ZahlText(wer) + "/" + ZahlText(slot);
            MesseDienerFest.Vorname[k][slot] = "V" + wo;
            MesseDienerFest.Nachname[k][slot] = "N" + wo;
            MesseDienerFest.Dienst[k][slot] = "D" + wo;
        }
    }

    /// Which filled entry is at `k`, by its first field; all its fields must belong to it.
    static int Wer(int k)
    {
        const int wer = MesseDienerFest.Index[k];
        if (wer == 0)
            return 0;
        EXPECT_EQ(MesseDienerFest.Datum[k], 46000 + wer);
        EXPECT_EQ(MesseDienerFest.Uhrzeit[k], ZeitAus(60 * wer));
        for (int slot = 0; slot <= 20; ++slot) {
            const Text wo = ZahlText(wer) + "/" + ZahlText(slot);
            EXPECT_EQ(MesseDienerFest.Vorname[k][slot], "V" + wo);
            EXPECT_EQ(MesseDienerFest.Nachname[k][slot], "N" + wo);
            EXPECT_EQ(MesseDienerFest.Dienst[k][slot], "D" + wo);
        }
        return wer;
    }
};

TEST_F(FesteEinträgeTest, ZähltDieDienerDerMesseVonGleichemDatumUndGleicherUhrzeit)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    MesseMitDienern(Sonntag, 7, ZeitAus(18 * 3600));
    MesseMitDienern(Sonntag + 1, 2, Zehn);
    Fest(0, Sonntag, Zehn);
    Fest(1, Sonntag + 1, Zehn);
    Fest(2, Sonntag, ZeitAus(18 * 3600));
    Fest(3, Sonntag + 1, ZeitAus(18 * 3600));
    MesseDienerFest.Index[3] = 9;
    DienerzahlenBestimmen();
    EXPECT_EQ(MesseDienerFest.Index[0], 4);
    EXPECT_EQ(MesseDienerFest.Index[1], 2);
    EXPECT_EQ(MesseDienerFest.Index[2], 7);
    EXPECT_EQ(MesseDienerFest.Index[3], 0); // no such mass
}

TEST_F(FesteEinträgeTest, VonZweiMessenZurSelbenZeitZähltDieSpätere)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    MesseMitDienern(Sonntag, 7, Zehn);
    Fest(0, Sonntag, Zehn);
    DienerzahlenBestimmen();
    EXPECT_EQ(MesseDienerFest.Index[0], 7);
    EXPECT_EQ(DienerzahlDerMesse(Sonntag, Zehn), 7);
    EXPECT_EQ(DienerzahlDerMesse(Sonntag + 1, Zehn), std::nullopt);
}

TEST_F(FesteEinträgeTest, Eintrag100WirdGezähltEintrag101Nicht)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    for (const int k : {100, 101}) {
        Fest(k, Sonntag, Zehn);
        MesseDienerFest.Index[k] = 9;
    }
    Fest(102, Sonntag + 5, Zehn);
    MesseDienerFest.Index[102] = 9;
    DienerzahlenBestimmen(); // the count of the entries does not matter
    EXPECT_EQ(MesseDienerFest.Index[100], 4);
    EXPECT_EQ(MesseDienerFest.Index[101], 9);
    EXPECT_EQ(MesseDienerFest.Index[102], 9);
}

TEST_F(FesteEinträgeTest, DieLeereMesseHinterDerLetztenZähltMit)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    Messe.Datum[1] = Sonntag + 1;
    Messe.Uhrzeit[1] = Zehn;
    Messe.Dienerzahl[1] = 3;
    Messe.Datum[2] = Sonntag + 2;
    Messe.Uhrzeit[2] = Zehn;
    Messe.Dienerzahl[2] = 5;
    EXPECT_EQ(DienerzahlDerMesse(Sonntag + 1, Zehn), 3);
    EXPECT_EQ(DienerzahlDerMesse(Sonntag + 2, Zehn), std::nullopt);
}

TEST_F(FesteEinträgeTest, DerErsteDienstDerMesseGehörtZuSlotEins)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    for (int k = 0; k <= 20; ++k) {
        Messe.DienerDienst[0][k] = "D" + ZahlText(k);
        MesseDienerFest.Dienst[0][k] = "alt";
    }
    DiensteDerMesse(Sonntag + 1, Zehn, MesseDienerFest.Dienst[0]);
    EXPECT_EQ(MesseDienerFest.Dienst[0][1], "alt"); // no such mass
    DiensteDerMesse(Sonntag, Zehn, MesseDienerFest.Dienst[0]);
    EXPECT_EQ(MesseDienerFest.Dienst[0][0], "alt");
    for (int slot = 1; slot <= 20; ++slot)
        EXPECT_EQ(MesseDienerFest.Dienst[0][slot], "D" + ZahlText(slot - 1));
}

TEST_F(FesteEinträgeTest, LöschenZiehtAlleSpäterenMitJedemSlotVor)
{
    for (int k = 0; k <= 5; ++k)
        Füllen(k, k + 1);
    MesseDienerFest.Anzahl = 4; // two filled records follow
    FestenEintragLöschen(1);
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    std::vector<int> folge;
    for (int k = 0; k <= 5; ++k)
        folge.push_back(Wer(k));
    EXPECT_EQ(folge, (std::vector<int>{1, 3, 4, 5, 6, 6}));
}

TEST_F(FesteEinträgeTest, LöschenReichtBisAnDasEndeDerTabelle)
{
    Füllen(602, 602);
    MesseDienerFest.Anzahl = 601;
    FestenEintragLöschen(0);
    EXPECT_EQ(Wer(601), 602);
    MesseDienerFest.Anzahl = 602;
    EXPECT_EQ(NummerDesFehlers([] { FestenEintragLöschen(0); }), Laufzeitfehler::IndexAußerhalb);
    EXPECT_EQ(MesseDienerFest.Anzahl, 602);
}

TEST_F(FesteEinträgeTest, EinEintragIstDoppeltWennDatumUndUhrzeitStimmen)
{
    for (int k = 0; k < 3; ++k)
        Fest(k, Sonntag + k, Zehn);
    MesseDienerFest.Anzahl = 2;
    EXPECT_TRUE(HatFestenEintrag(Sonntag, Zehn));
    EXPECT_TRUE(HatFestenEintrag(Sonntag + 1, Zehn));
    EXPECT_FALSE(HatFestenEintrag(Sonntag + 2, Zehn)); // after the last one
    EXPECT_FALSE(HatFestenEintrag(Sonntag, ZeitAus(35999)));
    MesseDienerFest.Anzahl = 0;
    EXPECT_FALSE(HatFestenEintrag(Sonntag, Zehn));
}

TEST_F(FesteEinträgeTest, EineZuordnungIstEinMeßdienerOderEineGruppe)
{
    MeßdienerAnlegen("Anna", "Groß");
    MeßdienerAnlegen("Karl, jun.", "Klein");
    Gruppe.Bezeichnung[0] = "Tarzisius";
    Gruppe.Bezeichnung[1] = "Agnes";
    Gruppe.Anzahl = 1;
    for (const char *text : {"Groß,Anna", "Klein,Karl, jun.", "Tarzisius,Gruppe"})
        EXPECT_TRUE(IstZuordnung(text)) << text;
    // The records after the last ones count.
    EXPECT_TRUE(IstZuordnung(","));
    EXPECT_TRUE(IstZuordnung("Agnes,Gruppe"));
    EXPECT_FALSE(IstZuordnung(",Gruppe"));
    Gruppe.Anzahl = 2;
    EXPECT_TRUE(IstZuordnung(",Gruppe"));
    for (const char *text : {"", " ", "Groß", "groß,Anna", "Groß,Anna ", "Groß, Anna", "Anna,Groß",
                             "Tarzisius", "Tarzisius,gruppe", "Gruppe,Tarzisius"})
        EXPECT_FALSE(IstZuordnung(text)) << text;
}

TEST_F(FesteEinträgeTest, EineMesseHeißtNachDatumUhrzeitUndArt)
{
    MesseMitDienern(Sonntag, 4, ZeitAus(8 * 3600 + 60));
    Messe.Messeart[0] = "Hochamt, feierlich";
    EXPECT_EQ(Messentext(0), "22.11.2026,08:01:00,Hochamt, feierlich");
    EXPECT_EQ(Messentext(1), "00:00:00,00:00:00,"); // the blank record
    EXPECT_EQ(Gruppentext("Tarzisius"), "Tarzisius,Gruppe");
}

TEST_F(FesteEinträgeTest, EineMesseIstMitUndOhneArtBekannt)
{
    MesseMitDienern(Sonntag, 4, Zehn);
    Messe.Messeart[0] = "Hochamt";
    SchleifenZähler = 1;
    for (const char *text : {"22.11.2026,10:00:00", "22.11.2026,10:00:00,Hochamt",
                             "00:00:00,00:00:00", "00:00:00,00:00:00,"})
        EXPECT_TRUE(IstMesse(text)) << text;
    for (const char *text :
         {"", "22.11.2026", "22.11.2026,10:00:00,", "22.11.2026,10:00:00,hochamt",
          "22.11.26,10:00:00", "22.11.2026,10:00", "22.11.2026, 10:00:00"})
        EXPECT_FALSE(IstMesse(text)) << text;
}

} // namespace
} // namespace altardienst
