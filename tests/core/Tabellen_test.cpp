// The tables as they are when the program starts, and their bounds.
#include "core/Felderlisten.h"

#include "Prüfstand.h"

#include <bit>

namespace altardienst {
namespace {

class Tabellen : public Prüfstand {};

/// A column accepts its highest index but none above it, and none below 0.
template <class Spalte> void PrüfeGrenzen(Spalte &spalte, int höchster, const char *name)
{
    EXPECT_EQ(NummerDesFehlers([&] { spalte[0]; }), 0) << name;
    EXPECT_EQ(NummerDesFehlers([&] { spalte[höchster]; }), 0) << name;
    EXPECT_EQ(NummerDesFehlers([&] { spalte[höchster + 1]; }), 9) << name;
    EXPECT_EQ(NummerDesFehlers([&] { spalte[-1]; }), 9) << name;
}

TEST_F(Tabellen, JedeSpalteEndetAnIhremHöchstenIndex)
{
    PrüfeGrenzen(Meßdiener.Vorname, 402, "Meßdiener.Vorname");
    PrüfeGrenzen(Meßdiener.Größe, 402, "Meßdiener.Größe");
    PrüfeGrenzen(Meßdiener.Häufigkeit, 402, "Meßdiener.Häufigkeit");
    PrüfeGrenzen(Meßdiener.Belegt, 402, "Meßdiener.Belegt");
    PrüfeGrenzen(Messe.Datum, 602, "Messe.Datum");
    PrüfeGrenzen(Messe.DienerVor, 602, "Messe.DienerVor");
    PrüfeGrenzen(Messe.Kollekt2Nach, 602, "Messe.Kollekt2Nach");
    PrüfeGrenzen(Standardmesse.Wochentag, 22, "Standardmesse.Wochentag");
    PrüfeGrenzen(Standardmesse.Kollektant, 22, "Standardmesse.Kollektant");
    PrüfeGrenzen(Helfer.Vorname, 202, "Helfer.Vorname");
    PrüfeGrenzen(Helfer.Bis3, 202, "Helfer.Bis3");
    PrüfeGrenzen(Gruppe.Bezeichnung, 102, "Gruppe.Bezeichnung");
    PrüfeGrenzen(Etikett.Name, 22, "Etikett.Name");
    PrüfeGrenzen(Etikett.Spalten, 22, "Etikett.Spalten");
    PrüfeGrenzen(MesseDienerFest.Datum, 602, "MesseDienerFest.Datum");
    PrüfeGrenzen(MesseDienerFest.Index, 602, "MesseDienerFest.Index");
    PrüfeGrenzen(MesseDienerFest.Dienst, 602, "MesseDienerFest.Dienst");
}

TEST_F(Tabellen, DieSlotsEinerMesseReichenBis20)
{
    PrüfeGrenzen(Messe.DienerVor[0], 20, "DienerVor");
    PrüfeGrenzen(Messe.DienerNach[602], 20, "DienerNach");
    PrüfeGrenzen(Messe.DienerDienst[5], 20, "DienerDienst");
    PrüfeGrenzen(MesseDienerFest.Vorname[0], 20, "Vorname");
    PrüfeGrenzen(MesseDienerFest.Nachname[602], 20, "Nachname");
    PrüfeGrenzen(MesseDienerFest.Dienst[5], 20, "Dienst");
}

TEST_F(Tabellen, DreiGrenzenStehenNebeneinander)
{
    EXPECT_EQ(MeßdienerTabelle::HöchsterIndex, 402);
    EXPECT_EQ(MeßdienerTabelle::HöchsterInDatei, 400);
    EXPECT_EQ(MesseTabelle::HöchsterIndex, 602);
    EXPECT_EQ(MesseTabelle::HöchsterInDatei, 602);
    EXPECT_EQ(StandardmesseTabelle::HöchsterIndex, 22);
    EXPECT_EQ(StandardmesseTabelle::HöchsterInDatei, 20);
    EXPECT_EQ(HelferTabelle::HöchsterIndex, 202);
    EXPECT_EQ(HelferTabelle::HöchsterInDatei, 200);
    EXPECT_EQ(GruppeTabelle::HöchsterIndex, 102);
    EXPECT_EQ(GruppeTabelle::HöchsterInDatei, 102);
    EXPECT_EQ(EtikettTabelle::HöchsterIndex, 22);
    EXPECT_EQ(EtikettTabelle::HöchsterInDatei, 20);
    EXPECT_EQ(MesseDienerFestTabelle::HöchsterIndex, 602);
    EXPECT_EQ(MesseDienerFestTabelle::HöchsterInDatei, 400);
}

TEST_F(Tabellen, KonfigHatAnfangsIhreVorgaben)
{
    EXPECT_EQ(Konfig.Gemeinde, "");
    EXPECT_EQ(Konfig.Straße, "");
    EXPECT_EQ(Konfig.PlzOrt, "");
    EXPECT_EQ(Konfig.DiffJahr, 0);
    EXPECT_EQ(Konfig.DiffGröße, 0);
    EXPECT_EQ(Konfig.Tage, 0);
    EXPECT_EQ(Konfig.Schriftart, "");
    EXPECT_EQ(Konfig.Flags8, "jjjjjjjj");
    EXPECT_EQ(Konfig.Schriftgröße, 0);
    EXPECT_EQ(Konfig.Überschriftgröße, 0);
    EXPECT_EQ(Konfig.Flags6, "jjjjjj");
    EXPECT_EQ(Konfig.Flags11, "jjjjjjjjjjj");
    EXPECT_EQ(Konfig.RandLinks, 0);
    EXPECT_EQ(Konfig.RandUnten, 0);
    EXPECT_EQ(Konfig.RandOben, 0);
    EXPECT_EQ(Konfig.GrenzeAuslöse, 60);
    EXPECT_EQ(Konfig.ManuellKreuzträger, 0);
    EXPECT_EQ(Konfig.ManuellWeihrauch, 0);
    EXPECT_EQ(Konfig.StartWochentag, 7);
    EXPECT_EQ(Konfig.VorlaufWochen, 1);
    EXPECT_EQ(Konfig.XSkala, 56.6857F);
    EXPECT_EQ(Konfig.YSkala, 56.6857F);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(Konfig.XSkala), 0x4262BE28U);
    EXPECT_EQ(Konfig.Skal1, 302);
    EXPECT_EQ(Konfig.Skal2, 302);
    EXPECT_EQ(Konfig.Skal3, 602);
    EXPECT_EQ(Konfig.Skal4, 102);
    EXPECT_EQ(Konfig.Skal5, 604);
    EXPECT_EQ(Konfig.Skal6, 202);
    EXPECT_EQ(Konfig.Hintergrund, "");
    EXPECT_EQ(Konfig.StartDatum, 0);
}

/// Expects each field to be empty or 0.
struct Leer {
    void operator()(Text &wert) const { EXPECT_EQ(wert, ""); }
    void operator()(Int16 &wert) const { EXPECT_EQ(wert, 0); }
    void operator()(Int32 &wert) const { EXPECT_EQ(wert, 0); }
    void operator()(Single &wert) const { EXPECT_EQ(wert, 0); }
    void operator()(Datum &wert) const { EXPECT_EQ(wert, 0); }
    void Zeit(Datum &wert) const { EXPECT_EQ(wert, 0); }
};

TEST_F(Tabellen, DieAnderenSindAnfangsLeer)
{
    for (int i = 0; i <= 402; ++i) {
        EXPECT_EQ(Meßdiener.Qualifikation[i], "jjjjjj");
        EXPECT_EQ(Meßdiener.Wochendienst[i], "jjjjjjjj");
        Meßdiener.Qualifikation[i] = "";
        Meßdiener.Wochendienst[i] = "";
        MeßdienerFelder(i, Leer());
        EXPECT_EQ(Meßdiener.Belegt[i], 0);
        EXPECT_EQ(Meßdiener.LetzterDienst[i], 0);
        EXPECT_EQ(Meßdiener.DienstZähler[i], 0);
    }
    for (int datei = DateiKonfig; datei <= DateiMesseDienerFest; ++datei)
        KopfFelder(datei, Leer());
    for (int i = 0; i <= 602; ++i)
        MesseFelder(i, Leer());
    for (int i = 0; i <= 22; ++i)
        StandardmesseFelder(i, Leer());
    for (int i = 0; i <= 202; ++i)
        HelferFelder(i, Leer());
    for (int i = 0; i <= 102; ++i)
        GruppeFelder(i, Leer());
    for (int i = 0; i <= 22; ++i)
        EtikettFelder(i, Leer());
    for (int i = 0; i <= 602; ++i)
        MesseDienerFestFelder(i, Leer());
}

TEST_F(Tabellen, LeerenSetztAllesZurück)
{
    Konfig.Gemeinde = "St. Martin";
    Konfig.StartDatum = 5;
    Konfig.Skal5 = 1;
    Meßdiener.Anzahl = 3;
    Meßdiener.Qualifikation[2] = "nnnnnn";
    Meßdiener.Belegt[2] = 1;
    Messe.DienerVor[602][20] = "Anna";
    MesseDienerFest.Index[600] = 4;
    Standardmesse.Anzahl = 9;
    Etikett.Anzahl = 9;
    Gruppe.Cursor = 1;
    Helfer.PLZ[202] = 1;
    TabellenLeeren();
    EXPECT_EQ(Konfig.Gemeinde, "");
    EXPECT_EQ(Konfig.StartDatum, 0);
    EXPECT_EQ(Konfig.Skal5, 604);
    EXPECT_EQ(Meßdiener.Anzahl, 0);
    EXPECT_EQ(Meßdiener.Qualifikation[2], "jjjjjj");
    EXPECT_EQ(Meßdiener.Belegt[2], 0);
    EXPECT_EQ(Messe.DienerVor[602][20], "");
    EXPECT_EQ(MesseDienerFest.Index[600], 0);
    EXPECT_EQ(Standardmesse.Anzahl, 0);
    EXPECT_EQ(Etikett.Anzahl, 0);
    EXPECT_EQ(Gruppe.Cursor, 0);
    EXPECT_EQ(Helfer.PLZ[202], 0);
}

TEST_F(Tabellen, EinDatensatzBewegtSichMitAllenSeinenFeldern)
{
    MesseDienerFest.Datum[3] = 46000;
    MesseDienerFest.Uhrzeit[3] = 0.5;
    MesseDienerFest.Vorname[3][1] = "Anna";
    MesseDienerFest.Nachname[3][20] = "Weiß";
    MesseDienerFest.Dienst[3][7] = "Leuchter";
    MesseDienerFest.Index[3] = 4;
    FelderÜbernehmen(MesseDienerFest.Felder(), 602, 3);
    EXPECT_EQ(MesseDienerFest.Datum[602], 46000);
    EXPECT_EQ(MesseDienerFest.Uhrzeit[602], 0.5);
    EXPECT_EQ(MesseDienerFest.Vorname[602][1], "Anna");
    EXPECT_EQ(MesseDienerFest.Nachname[602][20], "Weiß");
    EXPECT_EQ(MesseDienerFest.Dienst[602][7], "Leuchter");
    EXPECT_EQ(MesseDienerFest.Index[602], 4);

    FelderTauschen(MesseDienerFest.Felder(), 3, 10);
    EXPECT_EQ(MesseDienerFest.Datum[3], 0);
    EXPECT_EQ(MesseDienerFest.Index[3], 0);
    EXPECT_EQ(MesseDienerFest.Datum[10], 46000);
    EXPECT_EQ(MesseDienerFest.Nachname[10][20], "Weiß");
    EXPECT_EQ(NummerDesFehlers([] { FelderTauschen(MesseDienerFest.Felder(), 0, 603); }), 9);
}

} // namespace
} // namespace altardienst
