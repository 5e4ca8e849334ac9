// What differs between two states, in words.
#include "history/Unterschiede.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class UnterschiedeTest : public Prüfstand {
  protected:
    UnterschiedeTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        MeßdienerAnlegen("Jan", "Busch");
        HelferAnlegen("Maria", "Linde", "Lektor");
        MesseMitDienern(DatumAus({2026, 11, 22}), 2);
        MesseMitDienern(DatumAus({2026, 11, 29}), 2);
        Gruppe.Anzahl = 1;
        Gruppe.Bezeichnung[0] = "Große";
        damals = TabellenAufnehmen();
    }

    Unterschiede Jetzt() const { return UnterschiedeZwischen(damals, TabellenAufnehmen()); }

    Tabellenstand damals;
};

TEST_F(UnterschiedeTest, OhneUnterschiedIstEsWieJetzt)
{
    EXPECT_EQ(Jetzt().Kurz, "wie jetzt");
    EXPECT_TRUE(Jetzt().Zeilen.empty());
    Meßdiener.Cursor = 1; // the record shown last
    Meßdiener.Belegt[0] = 1;
    Meßdiener.Nachname[5] = "nicht benutzt";
    EXPECT_EQ(Jetzt().Kurz, "wie jetzt");
}

TEST_F(UnterschiedeTest, WerKamUndGingUndSichÄnderte)
{
    MeßdienerAnlegen("Lea", "Clausen");
    Meßdiener.Vorname[0] = "Kai"; // another person by name
    Meßdiener.Straße[1] = "Am Markt 3";
    Meßdiener.Häufigkeit[1] = 2;
    EXPECT_EQ(Jetzt().Kurz, "Meßdiener: 2 gekommen, 1 gegangen, 1 geändert");
    EXPECT_EQ(Jetzt().Zeilen,
              (Liste{"Meßdiener Adler, Kai: gekommen",
                     "Meßdiener Busch, Jan: Straße damals nichts, jetzt „Am Markt 3“; Häufigkeit "
                     "damals „0“, jetzt „2“",
                     "Meßdiener Clausen, Lea: gekommen", "Meßdiener Adler, Kim: gegangen"}));
}

TEST_F(UnterschiedeTest, DieFolgeDerDatensätzeZähltNicht)
{
    FelderTauschen(Meßdiener.Felder(), 0, 1);
    FelderTauschen(Messe.Felder(), 0, 1);
    EXPECT_EQ(Jetzt().Kurz, "wie jetzt");
}

TEST_F(UnterschiedeTest, ZweiGleichenNamensWerdenGezählt)
{
    MeßdienerAnlegen("Kim", "Adler");
    EXPECT_EQ(Jetzt().Zeilen, Liste{"Meßdiener Adler, Kim: gekommen"});
    Meßdiener.Anzahl += 3;
    EXPECT_EQ(Jetzt().Kurz, "Meßdiener: 4 gekommen");
    EXPECT_EQ(Jetzt().Zeilen,
              (Liste{"Meßdiener Adler, Kim: gekommen", "Meßdiener ohne Namen: gekommen (3mal)"}));
    Meßdiener.Anzahl -= 3;
    damals = TabellenAufnehmen();
    Meßdiener.Anzahl -= 2;
    EXPECT_EQ(Jetzt().Zeilen,
              (Liste{"Meßdiener Adler, Kim: gegangen", "Meßdiener Busch, Jan: gegangen"}));
}

TEST_F(UnterschiedeTest, EineMesseSagtWasAnIhrAndersIst)
{
    Messe.Messeart[1] = "Hochamt";
    Messe.DienerNach[0][1] = "Adler";
    EXPECT_EQ(Jetzt().Zeilen, (Liste{"Messe 22.11.2026, 10:00, Messe: andere Meßdiener",
                                     "Messe 29.11.2026, 10:00, Hochamt: gekommen",
                                     "Messe 29.11.2026, 10:00, Messe: gegangen"}));
    EXPECT_EQ(Jetzt().Kurz, "Messen: 1 gekommen, 1 gegangen, 1 geändert");
    damals = TabellenAufnehmen();
    Messe.Lektor1Nach[0] = "Linde";
    EXPECT_EQ(Jetzt().Zeilen, Liste{"Messe 22.11.2026, 10:00, Messe: andere Helfer"});
    damals = TabellenAufnehmen();
    Messe.Dienerzahl[0] = 5;
    Messe.DienerDienst[0][20] = "Leuchter"; // the last line of the places
    EXPECT_EQ(Jetzt().Zeilen, Liste{"Messe 22.11.2026, 10:00, Messe: andere Zahlen der Dienste, "
                                    "andere Meßdiener"});
    damals = TabellenAufnehmen();
    Messe.Wochentag[0] = "Sonntag   ";
    Messe.Uhrzeit[1] += 1.0 / SekundenProTag;
    EXPECT_EQ(Jetzt().Zeilen, (Liste{"Messe 22.11.2026, 10:00, Messe: anderer Wochentag",
                                     "Messe 29.11.2026, 10:00, Hochamt: andere Zeit"}));
}

TEST_F(UnterschiedeTest, AuchWasKeineNamenHat)
{
    Gruppe.Bezeichnung[0] = "Kleine";
    Standardmesse.Messeart[20] = "Hochamt";
    Etikett.Breite[0] = 7;
    Konfig.Tage = 30;
    HelferAnlegen("Anna", "Ulm", "Kantor");
    MesseDienerFest.Anzahl = 1;
    EXPECT_EQ(Jetzt().Kurz, "Helfer: 1 gekommen; Gruppen: 1 gekommen, 1 gegangen; Feste "
                            "Zuordnungen: 1 gekommen; Standardmessen geändert; Etiketten "
                            "geändert; Einstellungen geändert");
}

TEST_F(UnterschiedeTest, DieÜbersichtNenntZahlenUndZeitraum)
{
    FelderTauschen(Messe.Felder(), 0, 1);
    const Standübersicht hier = ÜbersichtVon(TabellenAufnehmen());
    EXPECT_EQ(hier.Diener, 2);
    EXPECT_EQ(hier.Messehelfer, 1);
    EXPECT_EQ(hier.Messen, 2);
    EXPECT_EQ(hier.Zeitraum, "22.11.2026 bis 29.11.2026");
    TabellenLeeren();
    EXPECT_EQ(ÜbersichtVon(TabellenAufnehmen()).Zeitraum, "");
}

TEST_F(UnterschiedeTest, ZahlenAußerhalbDerTabelleSchadenNicht)
{
    Messe.Anzahl = 5000;
    Meßdiener.Anzahl = -3;
    EXPECT_EQ(ÜbersichtVon(TabellenAufnehmen()).Messen, 603);
    EXPECT_EQ(ÜbersichtVon(TabellenAufnehmen()).Diener, 0);
    EXPECT_NO_THROW(Jetzt());
}

} // namespace
} // namespace altardienst
