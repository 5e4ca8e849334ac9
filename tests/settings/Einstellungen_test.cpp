// The rules of individual settings.
#include "settings/Einstellungen.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

constexpr auto ZuKurz = "Keine korrekte Angabe von PLZ und Ort";
constexpr auto KeineLeerstelle = "Es ist die PLZ, Leerstelle und dann der Ort anzugeben!!!!";

class EinstellungenTest : public Prüfstand {
  protected:
    /// What is stored once the box with this text has been left, and the messages shown.
    Text Gespeichert(const Text &eingabe)
    {
        GezeigteMeldungen.clear();
        PlzOrtSetzen(eingabe);
        return Konfig.PlzOrt;
    }
};

TEST_F(EinstellungenTest, DasBandLiegtZwischenZweiUndHundertDarüberFünfzig)
{
    const std::pair<Single, Single> fälle[] = {{-1, 2},      {0, 2},    {1.9F, 2},   {2, 2},
                                               {2.1F, 2.1F}, {50, 50},  {51, 51},    {100, 100},
                                               {100.1F, 50}, {101, 50}, {40000, 50}, {7, 7}};
    for (const auto &[band, erlaubt] : fälle)
        EXPECT_EQ(GrößendifferenzBegrenzt(band), erlaubt) << band;
}

TEST_F(EinstellungenTest, DieHälfteGehtZumGeradenNachbarn)
{
    const std::pair<Single, int> fälle[] = {{2, 1},   {3, 2},    {5, 2},    {7, 4},
                                            {9, 4},   {11, 6},   {100, 50}, {99, 50},
                                            {97, 48}, {6.6F, 3}, {5.2F, 3}};
    for (const auto &[band, halb] : fälle) {
        GrößendifferenzSetzen(band);
        EXPECT_EQ(Konfig.DiffGröße, halb) << band;
    }
}

TEST_F(EinstellungenTest, PlzLeerstelleOrtWirdGespeichert)
{
    for (const Text plzOrt : {"48653 Coesfeld", "abcde x", "48653 ", "äöüßÄ Ö", "      "}) {
        EXPECT_EQ(Gespeichert(plzOrt), plzOrt);
        EXPECT_EQ(GezeigteMeldungen, Liste{}) << plzOrt;
    }
}

TEST_F(EinstellungenTest, EinLeererTextWirdMusterstadt)
{
    Konfig.PlzOrt = "48653 Coesfeld";
    EXPECT_EQ(Gespeichert(""), "49999 Musterstadt");
    EXPECT_EQ(GezeigteMeldungen, Liste{ZuKurz});
}

TEST_F(EinstellungenTest, WenigerAlsFünfZeichenWeichenDemFrüherenText)
{
    Konfig.PlzOrt = "48653 Coesfeld";
    for (const Text kurz : {"4865", " ", "ßßßß", "😀"}) {
        EXPECT_EQ(Gespeichert(kurz), "48653 Coesfeld");
        EXPECT_EQ(GezeigteMeldungen, Liste{ZuKurz}) << kurz;
    }
}

TEST_F(EinstellungenTest, OhneLeerstelleAnSechsterStelleGiltDerFrühereText)
{
    Konfig.PlzOrt = "48653 Coesfeld";
    for (const Text falsch : {"48653", "48653Coesfeld", "4865 Coesfeld", "486530 Ort"}) {
        EXPECT_EQ(Gespeichert(falsch), "48653 Coesfeld");
        EXPECT_EQ(GezeigteMeldungen, Liste{KeineLeerstelle}) << falsch;
    }
}

TEST_F(EinstellungenTest, EinZuKurzerGespeicherterTextBringtBeideMeldungen)
{
    for (const Text gespeichert : {"", "123", "48653", "48653x"}) {
        Konfig.PlzOrt = gespeichert;
        EXPECT_EQ(Gespeichert("4"), gespeichert);
        EXPECT_EQ(GezeigteMeldungen, (Liste{ZuKurz, KeineLeerstelle})) << gespeichert;
    }
    Konfig.PlzOrt = "";
    EXPECT_EQ(Gespeichert("48653"), "");
    EXPECT_EQ(GezeigteMeldungen, Liste{KeineLeerstelle});
}

// Today is 21.11.2026.
TEST_F(EinstellungenTest, DasStartDatumLiegtNieVorHeute)
{
    StartDatumSetzen(Heute - 1);
    EXPECT_EQ(Konfig.StartDatum, Heute);
    StartDatumSetzen(Heute);
    EXPECT_EQ(Konfig.StartDatum, Heute);
    StartDatumSetzen(Heute + 1);
    EXPECT_EQ(Konfig.StartDatum, Heute + 1);
    StartDatumSetzen(0);
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

} // namespace
} // namespace altardienst
