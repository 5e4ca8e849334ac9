// What the wall sheet shows and how large its type is.
#include "exchange/Aushangsatz.h"

#include "exchange/Aushangstand.h"

namespace altardienst {
namespace {

class AushangsatzTest : public Druckstand {
  protected:
    /// Every character is half as wide as the type is high.
    Satzmaße Maße{[](const Text &text, bool) { return Länge(text) * 10.0; }, 24, 20};
    Satzplatz Platz{15704, 10232};

    static Aushangtafel Tafel(Namenform form = Namenform::Ganz)
    {
        return AushangtafelVon(GemeinsameTabellen(), form);
    }

    std::optional<Satzform> Größter(const Aushangtafel &tafel, int blätter) const
    {
        return Satzsuche(tafel, Maße).Größter(Platz, blätter);
    }

    /// Whether the table fits in this form, set row by row.
    bool Passt(const Aushangtafel &tafel, const Satzform &form, double größe, int blätter) const
    {
        const Satzbreiten breiten = BreitenDer(tafel, form, Maße);
        if (größe *
                (form.Blöcke * breiten.Gesamt() + (form.Blöcke - 1) * Blockabstand * Maße.Geviert) >
            Platz.Breite)
            return false;
        const double luft = Zeilenluft * Maße.Geviert;
        const double höhe = Platz.Höhe / größe - Maße.Zeile - luft;
        double rest = 0;
        int blöcke = 0;
        for (const Aushangreihe &reihe : tafel.Reihen) {
            const double reihenhöhe =
                Maße.Zeile * ZeilenDer(reihe, form, breiten.Nebeneinander, Maße) + luft;
            if (reihenhöhe > höhe)
                return false;
            if (blöcke == 0 || reihenhöhe > rest) {
                ++blöcke;
                rest = höhe;
            }
            rest -= reihenhöhe;
        }
        return blöcke <= blätter * form.Blöcke;
    }

    /// The table at the size found is no larger than its sheet.
    void PrüfeObEsPasst(const Aushangtafel &tafel, const Satzform &form) const
    {
        const Satzbreiten breiten = BreitenDer(tafel, form, Maße);
        EXPECT_LE(form.Größe * (form.Blöcke * breiten.Gesamt() +
                                (form.Blöcke - 1) * Blockabstand * Maße.Geviert),
                  Platz.Breite);
        for (std::size_t b = 0; b < form.Anfänge.size(); ++b) {
            const std::size_t bis = b + 1 < form.Anfänge.size()
                                        ? static_cast<std::size_t>(form.Anfänge[b + 1])
                                        : tafel.Reihen.size();
            double höhe = Maße.Zeile + Zeilenluft * Maße.Geviert;
            for (auto i = static_cast<std::size_t>(form.Anfänge[b]); i < bis; ++i)
                höhe += Maße.Zeile * ZeilenDer(tafel.Reihen[i], form, breiten.Nebeneinander, Maße) +
                        Zeilenluft * Maße.Geviert;
            EXPECT_LE(höhe * form.Größe, Platz.Höhe * 1.0001) << b;
        }
    }
};

using Liste = std::vector<Text>;

TEST_F(AushangsatzTest, EineSpalteJeDienstDenEineMesseBraucht)
{
    const int i = VolleMesse(5);
    Messe.Leuchter[i] = 2;
    Messe.Allgemein[i] = 3;
    Messe.KommZahl[i] = 2;
    Besetzen(Messe, Helferplatznr(i, 2), "Eva", "Linde");
    VolleMesse(1);
    const Aushangtafel tafel = Tafel();
    ASSERT_EQ(tafel.Spalten.size(), 3U);
    EXPECT_EQ(tafel.Spalten[0].Kopf, "Leuchter");
    EXPECT_EQ(tafel.Spalten[0].Meiste, 2);
    EXPECT_EQ(tafel.Spalten[1].Kopf, "Allgemein");
    EXPECT_EQ(tafel.Spalten[1].Meiste, 3);
    EXPECT_EQ(tafel.Spalten[1].Übliche, 1);
    EXPECT_EQ(tafel.Spalten[2].Kopf, "Kommunionhelfer");
    EXPECT_EQ(tafel.Spalten[2].Kurzkopf, "Kommunion");
    EXPECT_EQ(tafel.Reihen[0].Namen[0], (Liste{"Vor1 Nach1", "Vor2 Nach2"}));
    EXPECT_EQ(tafel.Reihen[0].Namen[2], (Liste{"Eva Linde", ""})) << "one place is free";
    EXPECT_EQ(tafel.Reihen[1].Namen[0], Liste{});
    EXPECT_EQ(tafel.Reihen[1].Namen[1], Liste{"Vor1 Nach1"});
}

TEST_F(AushangsatzTest, InDerFolgeDerZeitMitTagUndWoche)
{
    VolleMesse(1);
    VolleMesse(1, "Wochendienst");
    const int früher = VolleMesse(1, "Frühmesse");
    Messe.Datum[früher] = Messe.Datum[0];
    Messe.Uhrzeit[früher] = ZeitAus(8 * 3600);
    const int später = VolleMesse(1);
    Messe.Datum[später] = Messe.Datum[0] + 6;
    const Aushangtafel tafel = Tafel();
    EXPECT_EQ(tafel.Titel, "Altardienst der Pfarrei St. Ägid");
    EXPECT_EQ(tafel.Zeitraum, "22.11.2026 bis 28.11.2026");
    EXPECT_EQ(tafel.Reihen[0].Art, "Frühmesse");
    EXPECT_EQ(tafel.Reihen[0].Uhrzeit, "08:00");
    EXPECT_EQ(tafel.Reihen[1].Tag, "So 22.11.");
    EXPECT_EQ(tafel.Reihen[2].Tag, "ab Mo 23.11.");
    EXPECT_EQ(tafel.Reihen[2].Uhrzeit, "");
    EXPECT_EQ(tafel.Reihen[0].Woche, tafel.Reihen[2].Woche);
    EXPECT_NE(tafel.Reihen[2].Woche, tafel.Reihen[3].Woche) << "weeks begin on Saturday";
}

TEST_F(AushangsatzTest, EinDatumDasEsNichtGibtHältNichtsAuf)
{
    Messe.Datum[VolleMesse(1)] = 3e6;
    EXPECT_EQ(Tafel().Reihen[0].Tag, "?");
}

TEST_F(AushangsatzTest, EineMesseOhneDatumStehtAmEndeUndNichtImZeitraum)
{
    VolleMesse(1);
    Messe.Datum[0] = 0;
    Messe.Uhrzeit[0] = 0;
    EXPECT_EQ(Tafel().Zeitraum, "");
    VolleMesse(1);
    const Aushangtafel tafel = Tafel();
    EXPECT_EQ(tafel.Zeitraum, "23.11.2026");
    EXPECT_EQ(tafel.Reihen[0].Tag, "Mo 23.11.");
    EXPECT_EQ(tafel.Reihen[1].Tag, "?");
    EXPECT_EQ(tafel.Reihen[1].Uhrzeit, "");
}

TEST_F(AushangsatzTest, KurzeNamenBleibenAuseinander)
{
    const int i = VolleMesse(2);
    Besetzen(Messe, Dienerplatznr(i, 1), "Anna", "Adler");
    Besetzen(Messe, Dienerplatznr(i, 2), "Anna", "Albers");
    EXPECT_EQ(Tafel(Namenform::VornameUndBuchstabe).Reihen[0].Namen[0],
              (Liste{"Anna Ad.", "Anna Al."}));
}

TEST_F(AushangsatzTest, DieGrößteSchriftDieNochPasst)
{
    for (int i = 0; i < 27; ++i)
        VolleMesse(4);
    const Aushangtafel tafel = Tafel();
    const auto form = Größter(tafel, 1);
    ASSERT_TRUE(form);
    EXPECT_EQ(form->Blätter(), 1);
    EXPECT_EQ(form->Blöcke, 1);
    PrüfeObEsPasst(tafel, *form);
    Satzform größer = *form;
    größer.Größe += 0.25;
    const double zeile = Maße.Zeile + Zeilenluft * Maße.Geviert;
    const bool zuHoch = 28 * zeile * größer.Größe > Platz.Höhe;
    const bool zuBreit = BreitenDer(tafel, größer, Maße).Gesamt() * größer.Größe > Platz.Breite;
    EXPECT_TRUE(zuHoch || zuBreit) << form->Größe;
}

TEST_F(AushangsatzTest, NieGrößerAlsZwanzigPunkt)
{
    VolleMesse(1);
    EXPECT_EQ(Größter(Tafel(), 1)->Größe, GrößterAushang);
}

TEST_F(AushangsatzTest, VieleMessenStehenNebeneinander)
{
    for (int i = 0; i < 113; ++i)
        VolleMesse(2);
    const Aushangtafel tafel = Tafel(Namenform::VornameUndBuchstabe);
    const auto form = Größter(tafel, 1);
    ASSERT_TRUE(form);
    EXPECT_GT(form->Blöcke, 1);
    EXPECT_EQ(static_cast<int>(form->Anfänge.size()), form->Blöcke);
    PrüfeObEsPasst(tafel, *form);
    int längster = 0;
    int kürzester = 113;
    for (std::size_t b = 0; b < form->Anfänge.size(); ++b) {
        const int bis = b + 1 < form->Anfänge.size() ? form->Anfänge[b + 1] : 113;
        längster = std::max(längster, bis - form->Anfänge[b]);
        kürzester = std::min(kürzester, bis - form->Anfänge[b]);
    }
    EXPECT_LE(längster - kürzester, form->Blöcke) << "the blocks are equally high";
}

TEST_F(AushangsatzTest, VieleNamenStehenUntereinander)
{
    for (int i = 0; i < 10; ++i)
        VolleMesse(i == 4 ? 20 : 4);
    const Aushangtafel tafel = Tafel();
    const auto form = Größter(tafel, 1);
    ASSERT_TRUE(form);
    EXPECT_GT(form->ImFest, form->Untereinander) << "only the feast is high";
    PrüfeObEsPasst(tafel, *form);
}

TEST_F(AushangsatzTest, UnlesbarKleinesGibtEsNicht)
{
    for (int i = 0; i < 300; ++i)
        VolleMesse(6);
    const Aushangtafel tafel = Tafel();
    EXPECT_FALSE(Größter(tafel, 1));
    const auto form = Größter(tafel, 8);
    ASSERT_TRUE(form);
    EXPECT_GE(form->Größe, KleinsterAushang);
    EXPECT_LE(form->Blätter(), 8);
    EXPECT_EQ(form->Anfänge.front(), 0);
    PrüfeObEsPasst(tafel, *form);
}

TEST_F(AushangsatzTest, SelteneDiensteTeilenSichEineSpalte)
{
    for (int i = 0; i < 10; ++i)
        Messe.Leuchter[VolleMesse(2)] = 2;
    const int fest = VolleMesse(6);
    Messe.Leuchter[fest] = 2;
    Messe.Weihrauch[fest] = 2;
    Messe.Kreuzträger[fest] = 1;
    Leeren(Messe, Dienerplatznr(fest, 6));
    const Aushangtafel getrennt = Tafel();
    ASSERT_EQ(getrennt.Spalten.size(), 4U);
    const auto zusammen = Zusammengelegt(getrennt);
    ASSERT_TRUE(zusammen);
    ASSERT_EQ(zusammen->Spalten.size(), 2U);
    EXPECT_EQ(zusammen->Spalten[0].Kopf, "Leuchter");
    EXPECT_EQ(zusammen->Spalten[1].Kopf, "weitere Dienste");
    EXPECT_EQ(zusammen->Spalten[1].Meiste, 4);
    EXPECT_EQ(zusammen->Reihen[0].Namen[1], Liste{});
    EXPECT_EQ(zusammen->Reihen[10].Namen[0], (Liste{"Vor1 Nach1", "Vor2 Nach2"}));
    EXPECT_EQ(zusammen->Reihen[10].Namen[1],
              (Liste{"Vor3 Nach3 (Weihrauch)", "Vor4 Nach4 (Weihrauch)", "Vor5 Nach5 (Kreuztr.)",
                     "_______ (Allgemein)"}));
    Messe.Kreuzträger[fest] = 0;
    Messe.Weihrauch[fest] = 4;
    Messe.Dienerzahl[fest] = 4;
    EXPECT_FALSE(Zusammengelegt(Tafel())) << "one rare service alone keeps its column";
}

TEST_F(AushangsatzTest, EineLangeArtStehtInZweiZeilen)
{
    EXPECT_EQ(Artzeilen("Hochamt mit Taufe", true, Maße), (Liste{"Hochamt", "mit Taufe"}));
    EXPECT_EQ(Artzeilen("Hochamt mit Taufe", false, Maße), Liste{"Hochamt mit Taufe"});
    EXPECT_EQ(Artzeilen("Hochamt", true, Maße), Liste{"Hochamt"});
}

/// No step larger would fit in the form that was found.
TEST_F(AushangsatzTest, DieSchriftIstSoGroßWieEsGeht)
{
    int kleiner = 0;
    for (int messen = 1; messen <= 90; messen += messen < 30 ? 1 : 7) {
        while (Messe.Anzahl < messen)
            VolleMesse(Messe.Anzahl % 5 == 0 ? 6 : 3,
                       Messe.Anzahl % 3 == 0 ? "Hochamt mit Prozession" : "Messe");
        const Aushangtafel tafel = Tafel();
        for (const int blätter : {1, 2}) {
            const auto form = Größter(tafel, blätter);
            if (!form)
                continue;
            EXPECT_TRUE(Passt(tafel, *form, form->Größe, blätter)) << messen;
            if (form->Größe >= GrößterAushang)
                continue;
            ++kleiner;
            EXPECT_FALSE(Passt(tafel, *form, form->Größe + 0.25, blätter)) << messen;
        }
    }
    EXPECT_GT(kleiner, 20) << "otherwise this shows nothing";
}

/// No block is longer than it must be, so the sheet is as full everywhere.
TEST_F(AushangsatzTest, DieBlöckeSindGleichLang)
{
    int mehrere = 0;
    for (int messen = 1; messen <= 120; messen += 3) {
        while (Messe.Anzahl < messen)
            VolleMesse(2, "Messe");
        const auto form = Größter(Tafel(), 1);
        if (!form)
            continue;
        const int länge = (messen + form->Blöcke - 1) / form->Blöcke;
        std::vector<int> anfänge;
        for (int anfang = 0; anfang < messen; anfang += länge)
            anfänge.push_back(anfang);
        EXPECT_EQ(form->Anfänge, anfänge) << messen;
        mehrere += form->Blöcke > 1 ? 1 : 0;
    }
    EXPECT_GT(mehrere, 5) << "otherwise this shows nothing";
}

TEST_F(AushangsatzTest, WasPasstWirdNichtGeteilt)
{
    VolleMesse(1, "Hochamt mit Chor");
    const auto form = Größter(Tafel(), 1);
    ASSERT_TRUE(form);
    EXPECT_EQ(form->Größe, GrößterAushang);
    EXPECT_FALSE(form->ArtGeteilt);
}

TEST_F(AushangsatzTest, SeltenIstWasWenigerAlsEinDrittelDerMessenHat)
{
    for (int i = 0; i < 6; ++i)
        VolleMesse(4);
    const auto mit = [](int leuchter, int weihrauch) {
        for (int i = 0; i < 6; ++i) {
            Messe.Leuchter[i] = i < leuchter ? 1 : 0;
            Messe.Weihrauch[i] = i < weihrauch ? 1 : 0;
            Messe.Allgemein[i] = 2;
        }
        return Zusammengelegt(Tafel());
    };
    EXPECT_FALSE(mit(2, 2));
    EXPECT_FALSE(mit(1, 2)) << "one alone is as well off in its own column";
    const auto zwei = mit(1, 1);
    ASSERT_TRUE(zwei);
    EXPECT_EQ(zwei->Spalten.back().Kopf, "weitere Dienste");
    EXPECT_EQ(zwei->Spalten.back().Kurzkopf, "weitere");
    EXPECT_EQ(zwei->Spalten.size(), 2U);
}

TEST_F(AushangsatzTest, DieKurzenKöpfeDerHelfer)
{
    const int i = VolleMesse(0);
    Messe.LektorZahl[i] = Messe.KommZahl[i] = Messe.KantorZahl[i] = Messe.KollektZahl[i] = 1;
    Liste köpfe;
    for (const Aushangspalte &spalte : Tafel().Spalten)
        köpfe.push_back(spalte.Kurzkopf);
    EXPECT_EQ(köpfe, (Liste{"Lektor", "Kommunion", "Kantor", "Kollekte"}));
}

/// The day and the heads are bold, all else is not.
TEST_F(AushangsatzTest, FettSindNurTagUndKopf)
{
    Maße.Breite = [](const Text &text, bool fett) { return Länge(text) * (fett ? 20.0 : 10.0); };
    const int i = VolleMesse(1);
    const double luft = Zellenluft * Maße.Geviert;
    const auto breiten = [&](const Text &vorname, const Text &art) {
        Messe.Messeart[i] = art;
        Besetzen(Messe, Dienerplatznr(i, 1), vorname, "");
        return BreitenDer(Tafel(), {.ArtGeteilt = true}, Maße);
    };
    const Satzbreiten langer = breiten("Maximiliane-Friederike", "Hochamt der Pfarre");
    EXPECT_DOUBLE_EQ(langer.Tag, Länge(Tafel().Reihen[0].Tag) * 20 + luft);
    EXPECT_DOUBLE_EQ(langer.Uhrzeit, Länge(Tafel().Reihen[0].Uhrzeit) * 10 + luft);
    EXPECT_DOUBLE_EQ(langer.Art, 100 + luft); // "der Pfarre"
    EXPECT_DOUBLE_EQ(langer.Spalten[0], 220 + luft);
    EXPECT_DOUBLE_EQ(breiten("Li", "Hochamt").Spalten[0],
                     Länge(Tafel().Spalten[0].Kurzkopf) * 20 + luft);
}

TEST_F(AushangsatzTest, EineArtTeiltSichInMöglichstGleicheZeilen)
{
    EXPECT_EQ(Artzeilen("Hochamt der Pfarre", false, Maße), Liste{"Hochamt der Pfarre"});
    EXPECT_EQ(Artzeilen("Hochamt", true, Maße), Liste{"Hochamt"});
    EXPECT_EQ(Artzeilen("Hochamt der Pfarre", true, Maße), (Liste{"Hochamt", "der Pfarre"}));
    EXPECT_EQ(Artzeilen("a b c d", true, Maße), (Liste{"a b", "c d"}));
    EXPECT_EQ(Artzeilen("aa b aa", true, Maße), (Liste{"aa", "b aa"})); // of equal ones the first
    Maße.Breite = [](const Text &text, bool fett) {
        return fett ? 1000.0 - Länge(text) : Länge(text) * 10.0;
    };
    EXPECT_EQ(Artzeilen("Hochamt der Pfarre", true, Maße), (Liste{"Hochamt", "der Pfarre"}));
}

} // namespace
} // namespace altardienst
