// How what was changed by hand is called.
#include "history/Änderungsname.h"

#include "history/Schrittstand.h"
#include "people/Personen.h"
#include "planning/Messenbearbeitung.h"

namespace altardienst {
namespace {

class ÄnderungsnameTest : public Schrittstand {
  protected:
    ÄnderungsnameTest()
    {
        Meßdiener.Vorname[4] = "Kim";
        Meßdiener.Nachname[4] = "Adler";
        Meßdiener.WunschVorname[5] = "Kim";
        Meßdiener.WunschNachname[5] = "Adler";
        Messe.DienerVor[2][1] = "Kim";
        Messe.DienerNach[2][1] = "Adler";
        for (int i = 0; i < Messe.Anzahl; ++i) // as after any plan
            Messe.DienerDienst[i][0] = "Leuchter";
        SchritteBeginnen();
    }

    /// What undo would say after this.
    template <class F> static Text Nach(F tun)
    {
        tun();
        Warten();
        const Text name = LetzterSchritt();
        SchrittZurücknehmen();
        return name;
    }
};

TEST_F(ÄnderungsnameTest, EinDatensatzWirdGenannt)
{
    EXPECT_EQ(Nach([] { Meßdiener.Größe[4] += 1; }), "Meßdiener Adler, Kim ändern");
    EXPECT_EQ(Nach([] { Meßdiener.Wochendienst[4] = "jnjnjnjn"; }), "Meßdiener Adler, Kim ändern");
    EXPECT_EQ(Nach([] { Helfer.Dienst2[0] = "Kollektant"; }), "Helfer Linde0, Maria0 ändern");
    EXPECT_EQ(Nach([] { Messe.DienerVor[0][3] = "Kim"; }),
              "Messe So 20.12.2026 10:00 Messe ändern");
    EXPECT_EQ(Nach([] { Messe.Uhrzeit[0] = ZeitAus(18 * 3600); }),
              "Messe So 20.12.2026 18:00 Messe ändern");
    EXPECT_EQ(Nach([] { Standardmesse.Lektor[0] = 2; }), "Standardmesse Sonntag 09:00 ändern");
    EXPECT_EQ(Nach([] { Etikett.Name[3] = "A4"; }), "Etikettengröße A4 ändern");
    EXPECT_EQ(Nach([] { Etikett.Breite[3] = 4; }), "Etikettengröße 3 ändern");
    EXPECT_EQ(Nach([] { Konfig.RandOben = 9; }), "Einstellungen ändern");
    EXPECT_EQ(Nach([] { Konfig.StartDatum += 1; }), "Einstellungen ändern");
}

TEST_F(ÄnderungsnameTest, UmbenennenLöschenUndAnlegen)
{
    EXPECT_EQ(Nach([] {
                  MeßdienerUmbenennen(4, {"Kai", "Adler"});
                  Meßdiener.Vorname[4] = "Kai";
                  Meßdiener.Telefon[4] = "4711";
              }),
              "Meßdiener Adler, Kim umbenennen");
    EXPECT_EQ(Messe.DienerVor[2][1], "Kim");
    EXPECT_EQ(Meßdiener.WunschVorname[5], "Kim");
    EXPECT_EQ(Nach([] {
                  GruppeUmbenennen(0, "Ganz Große");
                  Gruppe.Bezeichnung[0] = "Ganz Große";
              }),
              "Gruppe Große umbenennen");
    EXPECT_EQ(Meßdiener.Gruppe[0], "Große");
    EXPECT_EQ(Nach([] { MeßdienerLöschen(4); }), "Meßdiener Adler, Kim löschen");
    EXPECT_EQ(Meßdiener.WunschVorname[5], "Kim");
    EXPECT_EQ(Nach([] { HelferLöschen(0); }), "Helfer Linde0, Maria0 löschen");
    EXPECT_EQ(Nach([] { GruppeLöschen(0); }), "Gruppe Große löschen");
    EXPECT_EQ(Nach([] {
                  MesseVorziehen(0);
                  --Messe.Anzahl;
              }),
              "Messe So 20.12.2026 10:00 Messe löschen");
    EXPECT_EQ(Nach([] { MeßdienerAnlegen("Lea", "Busch"); }), "Meßdiener Busch, Lea anlegen");
    EXPECT_EQ(Nach([] { GruppeAnlegen("Neue"); }), "Gruppe Neue anlegen");
    EXPECT_EQ(Nach([] {
                  MesseMitDienern(DatumAus({2026, 12, 6}), 3);
                  MessenSortieren();
              }),
              "Messe So 06.12.2026 10:00 Messe anlegen");
    EXPECT_EQ(Nach([] {
                  MesseDienerFest.Datum[0] = DatumAus({2026, 12, 6});
                  MesseDienerFest.Anzahl = 1;
              }),
              "Zuordnung So 06.12.2026 00:00 anlegen");
}

/// A record begins as the blank one after the last.
TEST_F(ÄnderungsnameTest, EinLeererDatensatzDerEinenNamenBekommtWirdAngelegt)
{
    ++Meßdiener.Anzahl;
    Warten();
    EXPECT_EQ(LetzterSchritt(), "Meßdiener (ohne Namen) anlegen");
    EXPECT_EQ(Nach([] {
                  Meßdiener.Vorname[Diener] = "Lea";
                  Meßdiener.Nachname[Diener] = "Busch";
              }),
              "Meßdiener Busch, Lea anlegen");
}

TEST_F(ÄnderungsnameTest, MehreresWirdZusammengefaßt)
{
    EXPECT_EQ(Nach([] {
                  Meßdiener.Telefon[1] = "1";
                  Meßdiener.Telefon[2] = "2";
              }),
              "Meßdiener ändern");
    EXPECT_EQ(Nach([] { MessenSortieren(); }), "Messen ändern");
    EXPECT_EQ(Nach([] {
                  Etikett.Name[1] = "A";
                  Etikett.Name[2] = "B";
              }),
              "Etikettengrößen ändern");
    EXPECT_EQ(Nach([] {
                  TabellenLeeren();
                  Konfig.Gemeinde = "andere";
              }),
              "Daten ändern");
    EXPECT_EQ(Nach([] { Meßdiener.Belegt[0] = 1; }), "Daten ändern");
}

} // namespace
} // namespace altardienst
