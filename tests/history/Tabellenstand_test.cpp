// All tables aside and back.
#include "history/Tabellenstand.h"

#include "Prüfstand.h"
#include "core/SchleifenZähler.h"
#include "history/Standinhalt.h"

#include <stdexcept>

namespace altardienst {
namespace {

class TabellenstandTest : public Prüfstand {
  protected:
    TabellenstandTest()
    {
        Konfig.Gemeinde = "St. Ägid am Rande der großen Stadt"; // longer than a text keeps in place
        Konfig.StartDatum = Heute;
        MeßdienerAnlegen("Kim", "Adler");
        Meßdiener.Belegt[0] = 1;
        MesseMitDienern(Heute, 3);
        Messe.DienerDienst[0][0] = "Leuchter";
        HelferAnlegen("Maria", "Linde", "Lektor");
        Helfer.LetzterDienst[300] = Heute;
        Gruppe.Bezeichnung[102] = "Ältere";
        Etikett.Breite[22] = 7.5F;
        Standardmesse.Messeart[0] = "Hochamt";
        MesseDienerFest.Vorname[0][0] = "Kim";
        SchleifenZähler = 77;
    }

    void IstNochDa() const
    {
        EXPECT_EQ(Konfig.Gemeinde, "St. Ägid am Rande der großen Stadt");
        EXPECT_EQ(Konfig.StartDatum, Heute);
        EXPECT_EQ(Meßdiener.Nachname[0], "Adler");
        EXPECT_EQ(Meßdiener.Belegt[0], 1);
        EXPECT_EQ(Messe.Anzahl, 1);
        EXPECT_EQ(Messe.DienerDienst[0][0], "Leuchter");
        EXPECT_EQ(Helfer.Nachname[0], "Linde");
        EXPECT_EQ(Helfer.LetzterDienst[300], Heute);
        EXPECT_EQ(Gruppe.Bezeichnung[102], "Ältere");
        EXPECT_EQ(Etikett.Breite[22], 7.5F);
        EXPECT_EQ(Standardmesse.Messeart[0], "Hochamt");
        EXPECT_EQ(MesseDienerFest.Vorname[0][0], "Kim");
        EXPECT_EQ(SchleifenZähler, 77);
    }
};

TEST_F(TabellenstandTest, BeiseiteSindDieTabellenWieBeimStart)
{
    {
        const TabellenBeiseite beiseite;
        EXPECT_EQ(Konfig.Gemeinde, "");
        EXPECT_EQ(Konfig.GrenzeAuslöse, 60);
        EXPECT_EQ(Meßdiener.Anzahl, 0);
        EXPECT_EQ(Meßdiener.Qualifikation[402], "jjjjjj");
        EXPECT_EQ(Messe.DienerDienst[0][0], "");
        EXPECT_EQ(MesseDienerFest.Vorname[0][0], "");
        EXPECT_EQ(SchleifenZähler, 0);
        MeßdienerAnlegen("Jan", "Busch");
        Konfig.Gemeinde = "anders";
    }
    IstNochDa();
}

TEST_F(TabellenstandTest, AuchNachEinemFehlerIstAllesWiederDa)
{
    try {
        const TabellenBeiseite beiseite;
        MeßdienerAnlegen("Jan", "Busch");
        throw std::runtime_error("probe");
    } catch (const std::runtime_error &) {
        IstNochDa();
    }
    EXPECT_EQ(Meßdiener.Anzahl, 1);
}

TEST_F(TabellenstandTest, HerausgenommenIstWasInzwischenDarinStand)
{
    Tabellenstand stand;
    {
        const TabellenBeiseite beiseite;
        MeßdienerAnlegen("Jan", "Busch");
        stand = TabellenBeiseite::Herausnehmen();
    }
    IstNochDa();
    EXPECT_EQ(stand.Diener->Nachname[0], "Busch");
    EXPECT_EQ(stand.Messen->Anzahl, 0);
}

TEST_F(TabellenstandTest, AufgenommenesFolgtDenTabellenNicht)
{
    const Tabellenstand stand = TabellenAufnehmen();
    Meßdiener.Nachname[0] = "anders";
    EXPECT_EQ(stand.Diener->Nachname[0], "Adler");
    EXPECT_EQ(stand.Diener->Belegt[0], 1);
    EXPECT_EQ(stand.Einstellungen->StartDatum, Heute);
    EXPECT_EQ(stand.FesteDiener->Vorname[0][0], "Kim");
}

TEST_F(TabellenstandTest, DerInhaltDerTabellenLäßtSieWieSieSind)
{
    EXPECT_TRUE(InhaltDerTabellen().Vollzählig());
    IstNochDa();
    InhaltLesen(InhaltDerTabellen());
    IstNochDa();
}

} // namespace
} // namespace altardienst
