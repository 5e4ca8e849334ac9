// The sort commands as the user sees them: orders, what stays together, what is left over.
#include "core/Sortierbefehle.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class Sortierfolge : public Prüfstand {
  protected:
    static std::vector<Text> Nachnamen()
    {
        std::vector<Text> namen;
        for (int j = 0; j < Meßdiener.Anzahl; ++j)
            namen.push_back(Meßdiener.Nachname[j]);
        return namen;
    }
};

TEST_F(Sortierfolge, UmlauteUndKleineBuchstabenStehenHinterZ)
{
    for (const char *name : {"Ähre", "von Arx", "Zorn", "Abel", "ßa", "Öhm", "", "Zo"})
        MeßdienerAnlegen("Anna", name);
    MeßdienerNachNachnameSortieren();
    EXPECT_EQ(Nachnamen(),
              (std::vector<Text>{"", "Abel", "Zo", "Zorn", "von Arx", "Ähre", "Öhm", "ßa"}));
}

TEST_F(Sortierfolge, EinDatensatzBleibtBeisammen)
{
    MeßdienerAnlegen("Bernd", "Zorn", 170);
    MeßdienerAnlegen("Anna", "Abel", 150, "weiblich");
    MeßdienerNachNachnameSortieren();
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna");
    EXPECT_EQ(Meßdiener.Größe[0], 150);
    EXPECT_EQ(Meßdiener.Geschlecht[0], "weiblich");
    EXPECT_EQ(Meßdiener.Vorname[1], "Bernd");
    EXPECT_EQ(Meßdiener.Größe[1], 170);
}

TEST_F(Sortierfolge, DerHilfssatzBehältDenDerZuerstStand)
{
    MeßdienerAnlegen("Bernd", "Zorn");
    MeßdienerAnlegen("Anna", "Abel");
    MeßdienerNachNachnameSortieren();
    EXPECT_EQ(Meßdiener.Nachname[402], "Zorn");
    MeßdienerNachNachnameSortieren();
    EXPECT_EQ(Meßdiener.Nachname[402], "Zorn") << "no swap, no trace";
}

TEST_F(Sortierfolge, NurDieErstenAnzahlSätzeWerdenSortiert)
{
    MeßdienerAnlegen("", "C");
    MeßdienerAnlegen("", "B");
    MeßdienerAnlegen("", "A");
    Meßdiener.Anzahl = 2;
    MeßdienerNachNachnameSortieren();
    EXPECT_EQ(Meßdiener.Nachname[0], "B");
    EXPECT_EQ(Meßdiener.Nachname[1], "C");
    EXPECT_EQ(Meßdiener.Nachname[2], "A");
}

TEST_F(Sortierfolge, MitNullOderEinemSatzGeschiehtNichts)
{
    for (int anzahl : {0, 1}) {
        Meßdiener.Nachname[0] = "Zorn";
        Meßdiener.Nachname[1] = "Abel";
        Meßdiener.Anzahl = anzahl;
        MeßdienerNachNachnameSortieren();
        EXPECT_EQ(Meßdiener.Nachname[0], "Zorn");
        EXPECT_EQ(Meßdiener.Nachname[402], "");
    }
}

TEST_F(Sortierfolge, MessenEinesTagesBehaltenIhreFolge)
{
    MesseMitDienern(Heute, 1, ZeitAus(18 * 3600));
    MesseMitDienern(Heute, 2, ZeitAus(10 * 3600));
    MesseMitDienern(Heute - 1, 3, ZeitAus(12 * 3600));
    MessenNachDatumSortieren();
    EXPECT_EQ(Messe.Dienerzahl[0], 3);
    EXPECT_EQ(Messe.Dienerzahl[1], 1);
    EXPECT_EQ(Messe.Dienerzahl[2], 2);
    MessenSortieren();
    EXPECT_EQ(Messe.Dienerzahl[0], 3);
    EXPECT_EQ(Messe.Dienerzahl[1], 2);
    EXPECT_EQ(Messe.Dienerzahl[2], 1);
}

TEST_F(Sortierfolge, WochentageStehenAlphabetischLeereZuerst)
{
    const char *tage[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                          "Donnerstag", "Freitag", "Samstag",  ""};
    for (int i = 0; i < 8; ++i)
        Standardmesse.Wochentag[i] = tage[i];
    for (int i = 8; i <= 10; ++i)
        Standardmesse.Wochentag[i] = "Samstag";
    Standardmesse.Wochentag[11] = "Dienstag";
    StandardmessenNachWochentagSortieren();
    const char *erwartet[] = {"",        "Dienstag", "Donnerstag", "Freitag", "Mittwoch", "Montag",
                              "Samstag", "Samstag",  "Samstag",    "Samstag", "Sonntag"};
    for (int i = 0; i <= 10; ++i)
        EXPECT_EQ(Standardmesse.Wochentag[i], erwartet[i]);
    EXPECT_EQ(Standardmesse.Wochentag[11], "Dienstag") << "record 11 is not shown, so not sorted";
}

TEST_F(Sortierfolge, EtikettenSortierenDieErstenZehn)
{
    for (int i = 0; i <= 10; ++i)
        Etikett.Name[i] = Text(1, static_cast<char>('K' - i));
    Etikett.Anzahl = 0;
    EtikettenAufsteigendSortieren();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Etikett.Name[i], Text(1, static_cast<char>('B' + i)));
    EXPECT_EQ(Etikett.Name[10], "A") << "the eleventh stays";
    EtikettenAbsteigendSortieren();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Etikett.Name[i], Text(1, static_cast<char>('K' - i)));
    EXPECT_EQ(Etikett.Name[10], "A");
}

TEST_F(Sortierfolge, NachDemSortierenDerEtikettenHältDerHilfssatzSatz21)
{
    Etikett.Name[0] = "B";
    Etikett.Name[1] = "A";
    Etikett.Name[21] = "einundzwanzig";
    Etikett.Steg[21] = 2.5F;
    Etikett.Name[22] = "Rest";
    EtikettenAbsteigendSortieren();
    EXPECT_EQ(Etikett.Name[22], "Rest") << "nothing to swap";
    EtikettenAufsteigendSortieren();
    EXPECT_EQ(Etikett.Name[22], "einundzwanzig");
    EXPECT_EQ(Etikett.Steg[22], 2.5F);
    EXPECT_EQ(Etikett.Name[21], "einundzwanzig");
}

TEST_F(Sortierfolge, LeereEtikettenKommenZuerst)
{
    Etikett.Name[0] = "A";
    EtikettenAufsteigendSortieren();
    EXPECT_EQ(Etikett.Name[9], "A");
    EtikettenAbsteigendSortieren();
    EXPECT_EQ(Etikett.Name[0], "A");
}

TEST_F(Sortierfolge, VorbesetzteMessenÜberschreibenEintrag202)
{
    // 204 entries, only the last two out of order: the swap goes through entry 202 itself.
    for (int i = 0; i < 204; ++i) {
        MesseDienerFest.Datum[i] = Heute + i;
        MesseDienerFest.Index[i] = i;
    }
    std::swap(MesseDienerFest.Datum[202], MesseDienerFest.Datum[203]);
    MesseDienerFest.Anzahl = 204;
    VorbesetzteMessenSortieren();
    // The entry that came first is overwritten by its neighbour, then by entry 201.
    EXPECT_EQ(MesseDienerFest.Index[201], 201);
    EXPECT_EQ(MesseDienerFest.Index[202], 201);
    EXPECT_EQ(MesseDienerFest.Index[203], 203);
}

TEST_F(Sortierfolge, VorbesetzteMessenBis202BleibenGanz)
{
    for (int i = 0; i < 202; ++i) {
        MesseDienerFest.Datum[i] = Heute - i;
        MesseDienerFest.Index[i] = i;
    }
    MesseDienerFest.Anzahl = 202;
    VorbesetzteMessenSortieren();
    for (int i = 0; i < 202; ++i)
        EXPECT_EQ(MesseDienerFest.Index[i], 201 - i);
    EXPECT_EQ(MesseDienerFest.Index[202], MesseDienerFest.Index[201])
        << "the trace of the last swap, which goes into the file";
}

TEST_F(Sortierfolge, DieSpurDesHilfssatzesStehtInDerDateiDerGruppen)
{
    Gruppe.Bezeichnung[0] = "B";
    Gruppe.Bezeichnung[1] = "A";
    Gruppe.Anzahl = 2;
    GruppenSortieren();
    EXPECT_EQ(Gruppe.Bezeichnung[0], "A");
    EXPECT_EQ(Gruppe.Bezeichnung[1], "B");
    EXPECT_EQ(Gruppe.Bezeichnung[102], "B");
}

} // namespace
} // namespace altardienst
