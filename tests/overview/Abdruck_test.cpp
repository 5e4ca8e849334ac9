// Whether a change of the tables is noticed.
#include "overview/Abdruck.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class AbdruckTest : public Prüfstand {
  protected:
    AbdruckTest()
    {
        MeßdienerAnlegen("Anna", "Adler");
        HelferAnlegen("Lea", "Lang", "Lektor");
        MesseMitDienern(Heute, 2);
        MesseMitDienern(Heute + 1, 2);
        MesseDienerFest.Anzahl = 1;
    }
};

/// Another value of the same type.
void Ändern(Text &feld)
{
    feld += "x";
}
void Ändern(Int16 &feld)
{
    feld += 1;
}
void Ändern(Int32 &feld)
{
    ++feld;
}
void Ändern(Single &feld)
{
    feld += 1;
}
void Ändern(Datum &feld)
{
    feld += 1;
}
void Ändern(const Flagfeld &feld)
{
    feld.Wert = feld.Wert[0] == 'j' ? "n" + feld.Wert.substr(1) : "j" + feld.Wert.substr(1);
}

TEST_F(AbdruckTest, JedesFeldEinerMesseZähltZuDieserMesse)
{
    int felder = 0;
    FürJedesFeld(Messe.Felder(), 1, [&](auto &&feld) {
        const Planabdruck zuvor = AbdruckNehmen();
        Ändern(feld);
        const Planabdruck danach = AbdruckNehmen();
        EXPECT_EQ(danach.Messen[0], zuvor.Messen[0]);
        EXPECT_NE(danach.Messen[1], zuvor.Messen[1]) << "field " << felder;
        EXPECT_EQ(danach.Übriges, zuvor.Übriges);
        ++felder;
    });
    EXPECT_EQ(felder, 95);
}

template <class Tabelle> int GeänderteFelder(Tabelle &tabelle)
{
    int felder = 0;
    FürJedesFeld(tabelle.Felder(), 0, [&](auto &&feld) {
        const Planabdruck zuvor = AbdruckNehmen();
        Ändern(feld);
        const Planabdruck danach = AbdruckNehmen();
        EXPECT_NE(danach.Übriges, zuvor.Übriges) << "field " << felder;
        EXPECT_EQ(danach.Messen, zuvor.Messen);
        ++felder;
    });
    return felder;
}

TEST_F(AbdruckTest, JedesFeldDerLeuteDerGruppenUndDerFestenEinträgeZählt)
{
    EXPECT_EQ(GeänderteFelder(Meßdiener), 27);
    EXPECT_EQ(GeänderteFelder(Helfer), 16);
    EXPECT_EQ(GeänderteFelder(MesseDienerFest), 62);
    Gruppe.Anzahl = 1;
    EXPECT_EQ(GeänderteFelder(Gruppe), 1);
}

TEST_F(AbdruckTest, JedeEinstellungZählt)
{
    int felder = 0;
    const auto einzeln = [&](auto &&feld) {
        const Planabdruck zuvor = AbdruckNehmen();
        Ändern(feld);
        EXPECT_NE(AbdruckNehmen(), zuvor) << "setting " << felder;
        ++felder;
    };
    std::apply([&](auto &&...alle) { (einzeln(alle), ...); }, Konfig.Felder());
    einzeln(Konfig.StartDatum);
    EXPECT_EQ(felder, 30);
}

TEST_F(AbdruckTest, DieReihenfolgeUndDieAnzahlZählen)
{
    const Planabdruck zuvor = AbdruckNehmen();
    EXPECT_EQ(AbdruckNehmen(), zuvor);
    std::swap(Meßdiener.Vorname[0], Meßdiener.Nachname[0]);
    EXPECT_NE(AbdruckNehmen().Übriges, zuvor.Übriges);
    std::swap(Meßdiener.Vorname[0], Meßdiener.Nachname[0]);
    EXPECT_EQ(AbdruckNehmen(), zuvor);
    Meßdiener.Anzahl = 2; // an empty record
    EXPECT_NE(AbdruckNehmen(), zuvor);
    Meßdiener.Anzahl = 1;
    Messe.Anzahl = 3;
    EXPECT_EQ(AbdruckNehmen().Messen.size(), 3U);
}

TEST_F(AbdruckTest, MehrSätzeAlsEineTabelleFaßtSchadenNicht)
{
    Messe.Anzahl = Meßdiener.Anzahl = Helfer.Anzahl = MesseDienerFest.Anzahl = 30000;
    EXPECT_EQ(AbdruckNehmen().Messen.size(), MesseTabelle::HöchsterIndex + 1U);
    Messe.Anzahl = Meßdiener.Anzahl = Helfer.Anzahl = MesseDienerFest.Anzahl = -1;
    EXPECT_EQ(AbdruckNehmen().Messen.size(), 0U);
}

TEST_F(AbdruckTest, WasHinterDemLetztenSatzStehtZähltNicht)
{
    const Planabdruck zuvor = AbdruckNehmen();
    Messe.DienerVor[2][1] = "Anna";
    Meßdiener.Vorname[1] = "Bea";
    EXPECT_EQ(AbdruckNehmen(), zuvor);
}

} // namespace
} // namespace altardienst
