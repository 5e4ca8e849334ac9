// Address labels: the places on the sheet, whom they are for, and where to continue.
#include "printing/Etikettendruck.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

/// Sheet 2 has 3 rows and 2 columns; a millimetre is 50 twips across and 40 down.
class EtikettendruckTest : public Druckstand {
  protected:
    EtikettendruckTest()
    {
        Etikett.Anzahl = 2;
        Etikett.RandOU[2] = 10;
        Etikett.RandLR[2] = 5;
        Etikett.Breite[2] = 60;
        Etikett.Höhe[2] = 30;
        Etikett.Steg[2] = 2;
        Etikett.Reihen[2] = 3;
        Etikett.Spalten[2] = 2;
    }

    static void MeßdienerAnzahl(int anzahl)
    {
        for (int i = 0; i < anzahl; ++i)
            MeßdienerAnlegen("V" + std::to_string(i), "N");
    }

    static void InGruppe(const Text &gruppe, std::initializer_list<int> diener)
    {
        for (int i : diener)
            Meßdiener.Gruppe[i] = gruppe;
    }

    /// Prints from `platz` on, which is then set to the proposed place to continue.
    void Drucken(const Etikettenleute &leute)
    {
        if (const auto weiter = EtikettenDrucken(leute, [this] { return platz; }))
            platz = *weiter;
    }

    /// The label at a place counted from 0.
    static void Etikettzeilen(Ablauf &ablauf, int r, int c, const std::vector<Text> &zeilen)
    {
        ablauf.Tut("CurrentY " + std::to_string((r * 30 + 10) * 40));
        for (const Text &zeile : zeilen)
            ablauf.Tut("CurrentX " + std::to_string(((2 + 60) * c + 5) * 50))
                .Tut("Print \"" + zeile + "\"");
    }

    /// "who row column" of each label and "Seite" for each page turn.
    std::vector<Text> Plätze() const
    {
        std::vector<Text> plätze;
        Text platz;
        for (std::size_t n = 0; n < Papier.Zeilen.size(); ++n) {
            const Text &zeile = Papier.Zeilen[n];
            if (zeile == "NewPage")
                plätze.emplace_back("Seite");
            if (!zeile.starts_with("CurrentY "))
                continue;
            const int r = (std::stoi(zeile.substr(9)) / 40 - 10) / 30;
            const int c = (std::stoi(Papier.Zeilen[n + 1].substr(9)) / 50 - 5) / 62;
            const Text &name = Papier.Zeilen[n + 2]; // Print "V0 N"
            plätze.push_back(name.substr(7, name.find(' ', 7) - 7) + " " + std::to_string(r) +
                             std::to_string(c));
        }
        return plätze;
    }

    using Liste = std::vector<Text>;
    Etikettenplatz platz = {1, 1};
};

TEST_F(EtikettendruckTest, AlleMeßdienerZeileFürZeile)
{
    MeßdienerAnlegen("Anna", "Berg");
    Meßdiener.Straße[0] = "Hauptstraße 5";
    Meßdiener.PLZ[0] = 43217;
    Meßdiener.Ort[0] = "Quellersheim";
    MeßdienerAnlegen("Jörg", "Groß");
    Drucken(EtikettenAllerMeßdiener());
    Ablauf ablauf;
    for (const char *operation :
         {"Dialog", "FontSize 10", "FontName Liberation Sans", "FontBold aus", "FontItalic aus",
          "FontStrikethru aus", "FontUnderline aus"})
        ablauf.Tut(operation);
    Etikettzeilen(ablauf, 0, 0, {"Anna Berg", "Hauptstraße 5", " 43217  Quellersheim"});
    Etikettzeilen(ablauf, 0, 1, {"Jörg Groß", "", " 0  "});
    EXPECT_EQ(Papier.Zeilen, ablauf.Tut("EndDoc").Zeilen);
    EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
}

TEST_F(EtikettendruckTest, AlleHelfer)
{
    MeßdienerAnlegen("Anna", "Berg");
    HelferAnlegen("Lea", "Lang", "Lektor");
    Helfer.Straße[0] = "Am Bach 1";
    Helfer.PLZ[0] = 7;
    Helfer.Ort[0] = "Oberquell";
    Drucken(EtikettenAllerHelfer());
    EXPECT_EQ(Plätze(), Liste{"Lea 00"});
    EXPECT_EQ(Papier.WieOft("Print \"Lea Lang\""), 1);
    EXPECT_EQ(Papier.WieOft("Print \"Am Bach 1\""), 1);
    EXPECT_EQ(Papier.WieOft("Print \" 7  Oberquell\""), 1);
}

TEST_F(EtikettendruckTest, DieLageRechnetInEinfacherGenauigkeit)
{
    MeßdienerAnzahl(4);
    Konfig.XSkala = 56.6857F;
    Konfig.YSkala = 56.7F;
    Etikett.Höhe[2] = 33.9F;
    Etikett.RandOU[2] = 12.9F;
    Etikett.Breite[2] = 63.5F;
    Etikett.Steg[2] = 2.5F;
    Etikett.RandLR[2] = 7.25F;
    Drucken(EtikettenAllerMeßdiener());
    char lage[32];
    std::snprintf(lage, sizeof lage, "CurrentY %.9g", (33.9F + 12.9F) * 56.7F);
    EXPECT_EQ(Papier.WieOft(lage), 2);
    std::snprintf(lage, sizeof lage, "CurrentX %.9g", (2.5F + 63.5F + 7.25F) * 56.6857F);
    EXPECT_EQ(Papier.WieOft(lage), 6);
}

TEST_F(EtikettendruckTest, MehrereBögen)
{
    MeßdienerAnzahl(8);
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 00", "V1 01", "V2 10", "V3 11", "V4 20", "V5 21", "Seite",
                               "V6 00", "V7 01"}));
    EXPECT_EQ(platz.Reihe, 1);
    EXPECT_EQ(platz.Spalte, 3); // beyond the sheet; whoever shows it brings it back
}

TEST_F(EtikettendruckTest, EinGeradeVollerBogenWirdNichtGewendet)
{
    MeßdienerAnzahl(6);
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Papier.WieOft("NewPage"), 0);
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
    EXPECT_EQ(platz.Reihe, 3);
    EXPECT_EQ(platz.Spalte, 3);
}

TEST_F(EtikettendruckTest, DerErsteKommtAufDenGewähltenPlatzUndDannGehtEsFort)
{
    MeßdienerAnzahl(4);
    platz = {2, 2};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 11", "V1 20", "V2 21", "Seite", "V3 00"}));
    EXPECT_EQ(platz.Reihe, 1);
    EXPECT_EQ(platz.Spalte, 2);
}

TEST_F(EtikettendruckTest, ReiheDreiSpalteZweiEinesGroßenBogens)
{
    Etikett.Reihen[2] = 8;
    Etikett.Spalten[2] = 3;
    MeßdienerAnzahl(3);
    platz = {3, 2};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 21", "V1 22", "V2 30"}));
    EXPECT_EQ(platz.Reihe, 4);
    EXPECT_EQ(platz.Spalte, 2);
}

TEST_F(EtikettendruckTest, NurReiheOderNurSpalteGewählt)
{
    MeßdienerAnzahl(2);
    platz = {3, 1};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 20", "V1 21"}));
    Papier.Leeren();
    platz = {1, 2};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 01", "V1 10"}));
}

TEST_F(EtikettendruckTest, EineGruppeÜberspringtDieAnderen)
{
    MeßdienerAnzahl(6);
    InGruppe("Die Großen", {1, 3, 5});
    Drucken(EtikettenDerGruppe("Die Großen"));
    EXPECT_EQ(Plätze(), (Liste{"V1 00", "V3 01", "V5 10"}));
    EXPECT_EQ(platz.Reihe, 2);
    EXPECT_EQ(platz.Spalte, 2);
}

// The table ends while the next place is being looked at, so the proposal is one place further on.
TEST_F(EtikettendruckTest, StehtHinterDerGruppeNochJemandEndetDerLaufAmNächstenPlatz)
{
    MeßdienerAnzahl(6);
    InGruppe("Die Großen", {1, 3});
    Drucken(EtikettenDerGruppe("Die Großen"));
    EXPECT_EQ(Plätze(), (Liste{"V1 00", "V3 01"}));
    EXPECT_EQ(platz.Reihe, 2);
    EXPECT_EQ(platz.Spalte, 2);
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

// Whether anybody in the group is left shows only on the sheet started for him.
TEST_F(EtikettendruckTest, FülltDieGruppeDenBogenUndStehtNochJemandDahinterWirdGewendet)
{
    MeßdienerAnzahl(7);
    InGruppe("Die Großen", {0, 1, 2, 3, 4, 5});
    Drucken(EtikettenDerGruppe("Die Großen"));
    EXPECT_EQ(Plätze(), (Liste{"V0 00", "V1 01", "V2 10", "V3 11", "V4 20", "V5 21", "Seite"}));
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
    EXPECT_EQ(platz.Reihe, 1);
    EXPECT_EQ(platz.Spalte, 2);
}

TEST_F(EtikettendruckTest, WerKeineGruppeHatIstInKeinerAuchNichtInDerOhneNamen)
{
    MeßdienerAnzahl(3);
    Drucken(EtikettenDerGruppe(""));
    EXPECT_EQ(Plätze(), Liste{});
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

TEST_F(EtikettendruckTest, NachEinemFehlerIstDerPlatzWieZuvor)
{
    MeßdienerAnzahl(8);
    Drucken(EtikettenAllerMeßdiener());
    const int operationen = static_cast<int>(Papier.Zeilen.size());
    for (int n = 1; n <= operationen; ++n) { // the last one is EndDoc
        Papier.Leeren();
        Papier.FehlerBei = n;
        platz = {2, 2};
        Drucken(EtikettenAllerMeßdiener());
        EXPECT_EQ(platz.Reihe, 2) << n;
        EXPECT_EQ(platz.Spalte, 2) << n;
    }
}

TEST_F(EtikettendruckTest, EineGruppeOhneMitgliedErgibtKeinEtikett)
{
    MeßdienerAnzahl(3);
    for (const Text gruppe : {"Die Kleinen", "die großen"}) {
        Papier.Leeren();
        Drucken(EtikettenDerGruppe(gruppe));
        EXPECT_EQ(Plätze(), Liste{});
        EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
    }
}

TEST_F(EtikettendruckTest, OhneLeuteKeinEtikettUndDerBogenIstNochLeer)
{
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), Liste{});
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
    EXPECT_EQ(platz.Reihe, 1);
    EXPECT_EQ(platz.Spalte, 2);
}

// The cell where the run begins is used before it turns out that there is nobody for it.
TEST_F(EtikettendruckTest, OhneLeuteEndetDerLaufAmGewähltenPlatz)
{
    platz = {3, 2};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(platz.Reihe, 3);
    EXPECT_EQ(platz.Spalte, 3);
    MeßdienerAnzahl(3);
    platz = {3, 2};
    Drucken(EtikettenDerGruppe("Die Kleinen"));
    EXPECT_EQ(Plätze(), Liste{});
    EXPECT_EQ(platz.Reihe, 3);
    EXPECT_EQ(platz.Spalte, 3);
}

TEST_F(EtikettendruckTest, EineGruppeBeginntAmGewähltenPlatz)
{
    MeßdienerAnzahl(6);
    InGruppe("Die Großen", {1, 3});
    platz = {2, 2};
    Drucken(EtikettenDerGruppe("Die Großen"));
    EXPECT_EQ(Plätze(), (Liste{"V1 11", "V3 20"}));
    EXPECT_EQ(platz.Reihe, 3);
    EXPECT_EQ(platz.Spalte, 3);
}

TEST_F(EtikettendruckTest, AbgebrochenBleibtDerPlatz)
{
    MeßdienerAnzahl(2);
    Papier.Antwort = std::nullopt;
    platz = {3, 2};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Papier.Zeilen, Liste{"Dialog"});
    EXPECT_EQ(platz.Reihe, 3);
    EXPECT_EQ(platz.Spalte, 2);
}

TEST_F(EtikettendruckTest, EinBogenOhneReihenOderSpaltenIstEinDruckerfehler)
{
    MeßdienerAnzahl(1);
    for (const auto &[reihen, spalten] : {std::pair{0, 2}, {3, 0}, {0, 0}, {-1, 2}}) {
        Etikett.Reihen[2] = reihen;
        Etikett.Spalten[2] = spalten;
        Papier.Leeren();
        Drucken(EtikettenAllerMeßdiener());
        EXPECT_EQ(Papier.Zeilen, (Liste{"Dialog", "Verwerfen"}));
    }
    Etikett.Anzahl = 99; // no such sheet
    Papier.Leeren();
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Papier.Zeilen, (Liste{"Dialog", "Verwerfen"}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

// The dialog comes before the place is read.
TEST_F(EtikettendruckTest, EinPlatzDerKeinerIstEndetHinterDemDialog)
{
    MeßdienerAnzahl(2);
    const auto weiter = EtikettenDrucken(EtikettenAllerMeßdiener(), []() -> Etikettenplatz {
        throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
    });
    EXPECT_FALSE(weiter);
    EXPECT_EQ(Papier.WieOft("Dialog"), 1);
    EXPECT_EQ(Papier.WieOft("Verwerfen"), 1);
    EXPECT_EQ(Plätze(), Liste{});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(EtikettendruckTest, EinPlatzJenseitsDesBogensGiltFürDasErsteEtikettWieErIst)
{
    MeßdienerAnzahl(3);
    platz = {9, 1};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 80", "V1 81", "Seite", "V2 00"}));
    Papier.Leeren();
    platz = {1, 5};
    Drucken(EtikettenAllerMeßdiener());
    EXPECT_EQ(Plätze(), (Liste{"V0 04", "V1 10", "V2 11"}));
}

} // namespace
} // namespace altardienst
