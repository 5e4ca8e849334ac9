// The services of each person in the plan.
#include "statistics/Dienstzählung.h"

#include "Prüfstand.h"

#include <random>

namespace altardienst {
namespace {

using Dienste6 = std::array<int, 6>;
using Dienste4 = std::array<int, 4>;

class DienstzählungTest : public Prüfstand {
  protected:
    /// The services of the slots are stored from entry 0 on, that of slot n at entry n - 1.
    static void Besetzen(int messe, int slot, const Text &vorname, const Text &nachname,
                         const Text &dienst)
    {
        Messe.DienerVor[messe][slot] = vorname;
        Messe.DienerNach[messe][slot] = nachname;
        if (slot > 0)
            Messe.DienerDienst[messe][slot - 1] = dienst;
    }

    static int NeueMesse() { return MesseMitDienern(DatumAus({2026, 11, 22}), 20); }
};

TEST_F(DienstzählungTest, JedeArtHatIhreSpalte)
{
    MeßdienerAnlegen("Anna", "Berg");
    const std::array<const char *, 6> arten = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                               "Weihrauch",      "Kreuzträger", "Allgemein"};
    int slot = 1;
    for (int art = 0; art < 6; ++art) {
        const int messe = NeueMesse();
        for (int wieOft = 0; wieOft <= art; ++wieOft)
            Besetzen(messe, slot++ % 20 + 1, "Anna", "Berg", arten[static_cast<std::size_t>(art)]);
    }
    Meßdienerzählung zählung = MeßdienerdiensteZählen();
    EXPECT_EQ(zählung[0].Dienste, (Dienste6{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(zählung[0].Insgesamt(), 21);
    EXPECT_EQ(zählung[0].Vorname, "Anna");
    EXPECT_EQ(zählung[0].Nachname, "Berg");
}

TEST_F(DienstzählungTest, BeideNamenMüssenGleichSein)
{
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Berta", "Berg");
    MeßdienerAnlegen("Anna", "Moos");
    const int messe = NeueMesse();
    Besetzen(messe, 1, "Anna", "Berg", "Leuchter");
    Besetzen(messe, 2, "Berta", "Berg", "Leuchter");
    Besetzen(messe, 3, "Berg", "Anna", "Leuchter");
    Besetzen(messe, 4, "anna", "Berg", "Leuchter");
    Meßdienerzählung zählung = MeßdienerdiensteZählen();
    EXPECT_EQ(zählung[0].Insgesamt(), 1);
    EXPECT_EQ(zählung[1].Insgesamt(), 1);
    EXPECT_EQ(zählung[2].Insgesamt(), 0);
}

TEST_F(DienstzählungTest, Slot1Bis20ZählenUndSlot0Nirgends)
{
    MeßdienerAnlegen("Anna", "Berg");
    const int messe = NeueMesse();
    Messe.Dienerzahl[messe] = 1; // whatever count the mass has
    Messe.DienerDienst[messe][20] = "Allgemein";
    Besetzen(messe, 0, "Anna", "Berg", "");
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Insgesamt(), 0);
    Besetzen(messe, 1, "Anna", "Berg", "Flambeau");
    Besetzen(messe, 20, "Anna", "Berg", "Weihrauch");
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Dienste, (Dienste6{0, 0, 1, 1, 0, 0}));
}

TEST_F(DienstzählungTest, EinAnderesWortZähltNirgends)
{
    MeßdienerAnlegen("Anna", "Berg");
    const int messe = NeueMesse();
    int slot = 1;
    for (const char *wort : {"", "Anführer", "leuchter", "Leuchter ", "Flammbeau"})
        Besetzen(messe, slot++, "Anna", "Berg", wort);
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Insgesamt(), 0);
}

TEST_F(DienstzählungTest, DieMesseHinterDerLetztenZähltMit)
{
    MeßdienerAnlegen("Anna", "Berg");
    Besetzen(NeueMesse(), 1, "Anna", "Berg", "Leuchter");
    Besetzen(NeueMesse(), 1, "Anna", "Berg", "Leuchter");
    Besetzen(NeueMesse(), 1, "Anna", "Berg", "Leuchter");
    Messe.Anzahl = 1;
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Dienste, (Dienste6{0, 2, 0, 0, 0, 0}));
}

TEST_F(DienstzählungTest, DerSatzHinterDemLetztenHatSeineZeile)
{
    MeßdienerAnlegen("Anna", "Berg");
    Meßdiener.Vorname[1] = "Rest";
    Meßdiener.Vorname[2] = "Nichts";
    Meßdienerzählung zählung = MeßdienerdiensteZählen();
    EXPECT_EQ(zählung[1].Vorname, "Rest");
    EXPECT_EQ(zählung[2].Vorname, "");
}

TEST_F(DienstzählungTest, EineLeereZeileZähltDieLeerenSlots)
{
    const int messe = NeueMesse();
    for (int slot = 1; slot <= 20; ++slot)
        Messe.DienerDienst[messe][slot - 1] = "Allgemein";
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Dienste, (Dienste6{0, 0, 0, 0, 0, 20}));
}

TEST_F(DienstzählungTest, NachUmbenennungZähltNurDerNeueName)
{
    MeßdienerAnlegen("Anna", "Berg");
    Besetzen(NeueMesse(), 1, "Anna", "Berg", "Leuchter");
    Meßdiener.Nachname[0] = "Groß";
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Insgesamt(), 0);
    Messe.DienerNach[0][1] = "Groß";
    EXPECT_EQ(MeßdienerdiensteZählen()[0].Insgesamt(), 1);
}

TEST_F(DienstzählungTest, FürMehrIstKeinPlatz)
{
    Meßdiener.Anzahl = 402;
    Messe.Anzahl = 602;
    EXPECT_EQ(NummerDesFehlers([] { MeßdienerdiensteZählen(); }), 0);
    Messe.Anzahl = 603;
    EXPECT_EQ(NummerDesFehlers([] { MeßdienerdiensteZählen(); }), 9);
    EXPECT_EQ(NummerDesFehlers([] { HelferdiensteZählen(); }), 9);
    Messe.Anzahl = 0;
    Meßdiener.Anzahl = 403;
    EXPECT_EQ(NummerDesFehlers([] { MeßdienerdiensteZählen(); }), 9);
    Helfer.Anzahl = 202;
    EXPECT_EQ(NummerDesFehlers([] { HelferdiensteZählen(); }), 0);
    Helfer.Anzahl = 203;
    EXPECT_EQ(NummerDesFehlers([] { HelferdiensteZählen(); }), 9);
}

TEST_F(DienstzählungTest, HelferZählenAnBeidenPlätzenJederArt)
{
    HelferAnlegen("Lea", "Lang", "Lektor");
    HelferAnlegen("Max", "Moos", "Kantor");
    const auto setzen = [](auto &vor, auto &nach, const Text &vorname, const Text &nachname) {
        const int messe = NeueMesse();
        vor[messe] = vorname;
        nach[messe] = nachname;
    };
    setzen(Messe.Lektor1Vor, Messe.Lektor1Nach, "Lea", "Lang");
    setzen(Messe.Lektor2Vor, Messe.Lektor2Nach, "Lea", "Lang");
    setzen(Messe.Komm1Vor, Messe.Komm1Nach, "Max", "Moos");
    setzen(Messe.Komm2Vor, Messe.Komm2Nach, "Lea", "Lang");
    setzen(Messe.Kantor1Vor, Messe.Kantor1Nach, "Max", "Moos");
    setzen(Messe.Kantor2Vor, Messe.Kantor2Nach, "Max", "Moos");
    setzen(Messe.Kantor1Vor, Messe.Kantor1Nach, "Lea", "Moos"); // nobody
    setzen(Messe.Kollekt1Vor, Messe.Kollekt1Nach, "Lea", "Lang");
    setzen(Messe.Kollekt2Vor, Messe.Kollekt2Nach, "Max", "Moos");
    --Messe.Anzahl; // the mass after the last one
    Helferzählung zählung = HelferdiensteZählen();
    EXPECT_EQ(zählung[0].Dienste, (Dienste4{2, 1, 0, 1}));
    EXPECT_EQ(zählung[1].Dienste, (Dienste4{0, 1, 2, 1}));
    EXPECT_EQ(zählung[0].Insgesamt(), 4);
}

// Nothing keeps two helpers from having the same name.
TEST_F(DienstzählungTest, HelferEinesNamensZählenBeide)
{
    HelferAnlegen("Lea", "Lang", "Lektor");
    HelferAnlegen("Lea", "Lang", "Kantor");
    const int messe = NeueMesse();
    Messe.Lektor2Vor[messe] = "Lea";
    Messe.Lektor2Nach[messe] = "Lang";
    Helferzählung zählung = HelferdiensteZählen();
    EXPECT_EQ(zählung[0].Dienste, (Dienste4{1, 0, 0, 0}));
    EXPECT_EQ(zählung[1].Dienste, (Dienste4{1, 0, 0, 0}));
}

// The index uses both ends of a name.
TEST_F(DienstzählungTest, NamenMitGleichenEndenSindVerschiedeneLeute)
{
    const Text müller = "Müller-Ost-Lüdenscheid";
    const Text west = "Müller-West-Lüdenscheid";
    const Text anna = "Anna-Maria-Elisabeth";
    const Text lena = "Anna-Lena-Elisabeth";
    const std::pair<Text, Text> leute[] = {{anna, müller}, {lena, müller}, {anna, west}};
    for (const auto &[vorname, nachname] : leute)
        MeßdienerAnlegen(vorname, nachname);
    const int messe = NeueMesse();
    for (int slot = 1; slot <= 6; ++slot) { // one, two and three services
        const auto &[vorname, nachname] = leute[slot == 1 ? 0 : slot <= 3 ? 1 : 2];
        Besetzen(messe, slot, vorname.c_str(), nachname.c_str(), "Leuchter");
    }
    Meßdienerzählung zählung = MeßdienerdiensteZählen();
    for (int d = 0; d < 3; ++d)
        EXPECT_EQ(zählung[d].Dienste[1], d + 1) << d;
}

/// The plain comparison of everyone with every slot.
Meßdienerzählung AlleMitAllen()
{
    const std::array<const char *, 6> arten = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                               "Weihrauch",      "Kreuzträger", "Allgemein"};
    Meßdienerzählung zählung;
    for (int d = 0; d <= Meßdiener.Anzahl; ++d) {
        zählung[d].Vorname = Meßdiener.Vorname[d];
        zählung[d].Nachname = Meßdiener.Nachname[d];
        for (int i = 0; i <= Messe.Anzahl; ++i)
            for (int slot = 0; slot <= 20; ++slot)
                if (Messe.DienerNach[i][slot] == Meßdiener.Nachname[d] &&
                    Messe.DienerVor[i][slot] == Meßdiener.Vorname[d] && slot > 0)
                    for (std::size_t art = 0; art < 6; ++art)
                        zählung[d].Dienste[art] +=
                            Messe.DienerDienst[i][slot - 1] == arten[art] ? 1 : 0;
    }
    return zählung;
}

struct PlatzUndArt {
    MesseTabelle::Spalte<Text> &Vor, &Nach;
    std::size_t Art;
};

const std::array<PlatzUndArt, 8> AllePlätze = {{
    {Messe.Lektor1Vor, Messe.Lektor1Nach, 0},
    {Messe.Lektor2Vor, Messe.Lektor2Nach, 0},
    {Messe.Komm1Vor, Messe.Komm1Nach, 1},
    {Messe.Komm2Vor, Messe.Komm2Nach, 1},
    {Messe.Kantor1Vor, Messe.Kantor1Nach, 2},
    {Messe.Kantor2Vor, Messe.Kantor2Nach, 2},
    {Messe.Kollekt1Vor, Messe.Kollekt1Nach, 3},
    {Messe.Kollekt2Vor, Messe.Kollekt2Nach, 3},
}};

Helferzählung AlleHelferMitAllen()
{
    Helferzählung zählung;
    for (int h = 0; h <= Helfer.Anzahl; ++h) {
        zählung[h].Vorname = Helfer.Vorname[h];
        zählung[h].Nachname = Helfer.Nachname[h];
        for (int i = 0; i <= Messe.Anzahl; ++i)
            for (const PlatzUndArt &platz : AllePlätze)
                if (platz.Nach[i] == Helfer.Nachname[h] && platz.Vor[i] == Helfer.Vorname[h])
                    ++zählung[h].Dienste[platz.Art];
    }
    return zählung;
}

/// Few names for many people and slots, so that names coincide and repeat; some are blank.
void Erwürfeln(std::mt19937 &zufall, int meßdiener, int messen)
{
    TabellenLeeren();
    const auto zahl = [&](int bis) { return static_cast<int>(zufall() % (bis + 1U)); };
    const std::array<const char *, 8> vornamen = {"",     "Anna", "Ben", "a",
                                                  "Berg", "Jörg", "Zoë", "B"};
    const std::array<const char *, 7> nachnamen = {"",     "Berg",   "AnnaBerg", "Moos",
                                                   "Groß", "nnaAna", "Zu"};
    const std::array<const char *, 9> dienste = {
        "Gabenbereitung", "Leuchter", "Flambeau", "Weihrauch", "Kreuzträger",
        "Allgemein",      "",         "Anführer", "Lektor"};
    const auto eines = [&](const auto &auswahl) -> Text {
        return auswahl[static_cast<std::size_t>(zahl(static_cast<int>(auswahl.size()) - 1))];
    };
    Meßdiener.Anzahl = meßdiener;
    Messe.Anzahl = messen;
    for (int d = 0; d <= meßdiener; ++d) {
        Meßdiener.Vorname[d] = eines(vornamen) + std::to_string(zahl(meßdiener / 20));
        Meßdiener.Nachname[d] = eines(nachnamen);
        if (zahl(20) == 0)
            Meßdiener.Vorname[d] = Meßdiener.Nachname[d] = "";
    }
    for (int i = 0; i <= messen; ++i)
        for (int slot = 0; slot <= 20; ++slot) {
            const int d = zahl(meßdiener);
            const bool leer = zahl(10) == 0;
            Messe.DienerVor[i][slot] = leer ? "" : Meßdiener.Vorname[d];
            Messe.DienerNach[i][slot] = leer            ? ""
                                        : zahl(10) == 0 ? eines(nachnamen)
                                                        : Text(Meßdiener.Nachname[d]);
            Messe.DienerDienst[i][slot] = eines(dienste);
        }

    Helfer.Anzahl = std::min(meßdiener, 200);
    for (int h = 0; h <= Helfer.Anzahl; ++h) {
        Helfer.Vorname[h] = eines(vornamen) + std::to_string(zahl(Helfer.Anzahl / 20));
        Helfer.Nachname[h] = eines(nachnamen);
    }
    for (int i = 0; i <= messen; ++i)
        for (const PlatzUndArt &platz : AllePlätze) {
            const int h = zahl(Helfer.Anzahl);
            const bool leer = zahl(10) == 0;
            platz.Vor[i] = leer ? "" : Helfer.Vorname[h];
            platz.Nach[i] = leer ? "" : zahl(10) == 0 ? eines(nachnamen) : Text(Helfer.Nachname[h]);
        }
}

template <class Zählung> void IstGleich(Zählung gezählt, Zählung verglichen, int letzter)
{
    for (int i = 0; i <= letzter; ++i) {
        ASSERT_EQ(gezählt[i].Vorname, verglichen[i].Vorname);
        ASSERT_EQ(gezählt[i].Nachname, verglichen[i].Nachname);
        ASSERT_EQ(gezählt[i].Dienste, verglichen[i].Dienste)
            << i << " " << gezählt[i].Vorname << " " << gezählt[i].Nachname;
    }
}

void Vergleichen()
{
    IstGleich(MeßdienerdiensteZählen(), AlleMitAllen(), MeßdienerTabelle::HöchsterIndex);
    IstGleich(HelferdiensteZählen(), AlleHelferMitAllen(), HelferTabelle::HöchsterIndex);
}

TEST_F(DienstzählungTest, GleichtDemVergleichAllerMitAllen)
{
    std::mt19937 zufall(7);
    for (int lauf = 0; lauf < 200; ++lauf) {
        Erwürfeln(zufall, static_cast<int>(zufall() % 60), static_cast<int>(zufall() % 40));
        ASSERT_NO_FATAL_FAILURE(Vergleichen()) << lauf;
    }
}

TEST_F(DienstzählungTest, GleichtDemVergleichInVollerGröße)
{
    std::mt19937 zufall(8);
    Erwürfeln(zufall, 400, 602);
    Vergleichen();
}

} // namespace
} // namespace altardienst
