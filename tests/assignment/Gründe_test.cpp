// The rules of the draw one by one: which reason each gives, at which places, and what it reads.
#include "assignment/Gründe.h"

#include "assignment/Wurf.h"

#include <functional>
#include <memory>
#include <span>

namespace altardienst {
namespace {

using Gründe = std::vector<Grund>;

class GründeTest : public Zuweisungsstand {
  protected:
    /// Server 0 in a mass on Sunday, whom no rule refuses in any slot.
    GründeTest()
    {
        DienerAnlegen(1);
        MesseMitDienern(Sonntag, 20);
        DiensteSetzen("Allgemein");
        Konfig.DiffGröße = 10;
        Stand.MittelGröße = 160;
        Stand.LetztesGeschlecht = "männlich";
        Stand.DienstProDiener = 3;
    }

    Laufstand Stand;

    static void DiensteSetzen(const Text &dienst)
    {
        for (int k = 0; k <= MesseTabelle::HöchsterSlot; ++k)
            Messe.DienerDienst[0][k] = dienst;
    }

    using Dienerprüfung = Prüfung<Dienerperson, Dienerplatz>;

    Grund Frage(Dienerprüfung prüfung, int slot = 1) const
    {
        return prüfung({Meßdiener, 0}, {Messe, Konfig, 0, slot}, Stand);
    }
    template <class Liste> Gründe Alle(int slot) const
    {
        return Liste::Alle({Meßdiener, 0}, {Messe, Konfig, 0, slot}, Stand);
    }
    template <class Liste> Grund Erster(int slot) const
    {
        return Liste::Erster({Meßdiener, 0}, {Messe, Konfig, 0, slot}, Stand);
    }

    /// Tests a helper for one of the eight places, counted from 1.
    Grund HelferFrage(Prüfung<Helferperson, Helferstelle> prüfung, std::size_t platz) const
    {
        return prüfung({Helfer, 0}, {Messe, 0, Helferplätze.at(platz - 1)}, Stand);
    }
};

TEST_F(GründeTest, OhneEinenDerNamen)
{
    const auto grund = [this](const Text &vor, const Text &nach) {
        Meßdiener.Vorname[0] = vor;
        Meßdiener.Nachname[0] = nach;
        return Frage(NamenPrüfen);
    };
    EXPECT_EQ(grund("V", "N"), Grund::Keiner);
    EXPECT_EQ(grund("", "N"), Grund::OhneNamen);
    EXPECT_EQ(grund("V", ""), Grund::OhneNamen);
    EXPECT_EQ(grund("", ""), Grund::OhneNamen);
}

TEST_F(GründeTest, VergebenIstWasDerLaufSagt)
{
    Meßdiener.Belegt[0] = 1;
    EXPECT_EQ(Frage(FreiseinPrüfen), Grund::Keiner);
    EXPECT_TRUE(IstVergeben(Meßdiener, 0));
    Stand.Vergeben = true;
    Meßdiener.Belegt[0] = 0;
    EXPECT_EQ(Frage(FreiseinPrüfen), Grund::Vergeben);
    EXPECT_FALSE(IstVergeben(Meßdiener, 0));
}

TEST_F(GründeTest, GrößeImSpielraumBeideEndenGehörenDazu)
{
    for (int slot = 1; slot <= 20; ++slot)
        for (int größe : {149, 150, 170, 171}) {
            Meßdiener.Größe[0] = größe;
            const bool passt = slot == 1 || (größe >= 150 && größe <= 170);
            EXPECT_EQ(Frage(GrößePrüfen, slot), passt ? Grund::Keiner : Grund::FalscheGröße)
                << slot << " " << größe;
        }
    Konfig.DiffGröße = 32700;
    EXPECT_EQ(Frage(GrößePrüfen, 1), Grund::Keiner);
    EXPECT_EQ(NummerDesFehlers([this] { Frage(GrößePrüfen, 2); }), 6);
    Meßdiener.Größe[0] = -32600; // below the band: its upper end is not computed
    EXPECT_EQ(Frage(GrößePrüfen, 2), Grund::FalscheGröße);
}

TEST_F(GründeTest, JederDienstHatSeineStelleDerQualifikation)
{
    const char *dienste[] = {"Gabenbereitung", "Leuchter", "Flambeau", "Weihrauch", "Kreuzträger"};
    const auto qualifiziert = [this](const Text &dienst) {
        DiensteSetzen(dienst);
        const Grund grund = Frage(QualifikationPrüfen);
        EXPECT_TRUE(grund == Grund::Keiner || grund == Grund::OhneQualifikation);
        return grund == Grund::Keiner;
    };
    for (int stelle = 1; stelle <= 6; ++stelle) {
        Meßdiener.Qualifikation[0] = "nnnnnn";
        Meßdiener.Qualifikation[0][static_cast<std::size_t>(stelle - 1)] = 'j';
        for (int d = 0; d < 5; ++d)
            EXPECT_EQ(qualifiziert(dienste[d]), d + 1 == stelle) << dienste[d] << stelle;
    }
    Meßdiener.Qualifikation[0] = "JJJJJJ"; // only the small letter means yes
    for (const char *dienst : dienste)
        EXPECT_FALSE(qualifiziert(dienst));
    for (const char *dienst : {"Allgemein", "", "leuchter", "Anführer"})
        EXPECT_TRUE(qualifiziert(dienst));
}

TEST_F(GründeTest, QualifikationGiltDemDienstDesSlots)
{
    Meßdiener.Qualifikation[0] = "jnjjjj";
    for (int slot = 1; slot <= 20; ++slot) {
        DiensteSetzen("Allgemein");
        Messe.DienerDienst[0][slot - 1] = "Leuchter";
        for (int n = 1; n <= 20; ++n) {
            EXPECT_EQ(Frage(QualifikationPrüfen, n) == Grund::OhneQualifikation, n == slot);
            EXPECT_EQ(Frage(QualifikationDerDienstslotsPrüfen, n) == Grund::OhneQualifikation,
                      n == slot && n <= 16);
        }
    }
}

TEST_F(GründeTest, VonHandIstJederDerBeidenDiensteFürSich)
{
    for (int weihrauch : {0, 1, 2, -1})
        for (int kreuz : {0, 1, 2, -1}) {
            Konfig.ManuellWeihrauch = weihrauch;
            Konfig.ManuellKreuzträger = kreuz;
            for (const Dienstart &art : Dienstarten) {
                DiensteSetzen(Text(art.Name));
                const bool vonHand = (art.Name == "Weihrauch" && weihrauch == 1) ||
                                     (art.Name == "Kreuzträger" && kreuz == 1);
                EXPECT_EQ(Frage(VonHandPrüfen), vonHand ? Grund::VonHand : Grund::Keiner);
            }
        }
}

TEST_F(GründeTest, JederDerFünfZeiträumeSchließtBeideEndtageEin)
{
    using Spalte = MeßdienerTabelle::Spalte<Datum>;
    const std::pair<Spalte *, Spalte *> zeiträume[] = {{&Meßdiener.Von1, &Meßdiener.Bis1},
                                                       {&Meßdiener.Von2, &Meßdiener.Bis2},
                                                       {&Meßdiener.Von3, &Meßdiener.Bis3},
                                                       {&Meßdiener.Von4, &Meßdiener.Bis4},
                                                       {&Meßdiener.Von5, &Meßdiener.Bis5}};
    EXPECT_EQ(Frage(AnwesenheitPrüfen), Grund::Keiner);
    for (const auto &[von, bis] : zeiträume) {
        auto grund = [&](Datum ab, Datum ende) {
            (*von)[0] = ab;
            (*bis)[0] = ende;
            return Frage(AnwesenheitPrüfen);
        };
        EXPECT_EQ(grund(Sonntag, Sonntag), Grund::Abwesend);
        EXPECT_EQ(grund(Samstag, Sonntag), Grund::Abwesend);
        EXPECT_EQ(grund(Sonntag, Montag), Grund::Abwesend);
        EXPECT_EQ(grund(Samstag, Montag), Grund::Abwesend);
        EXPECT_EQ(grund(Samstag, Samstag), Grund::Keiner);
        EXPECT_EQ(grund(Montag, Montag), Grund::Keiner);
        EXPECT_EQ(grund(Montag, Samstag), Grund::Keiner); // reversed
        EXPECT_EQ(grund(0, Sonntag), Grund::Abwesend);    // only an end: every date up to it
        EXPECT_EQ(grund(0, Samstag), Grund::Keiner);
        EXPECT_EQ(grund(Samstag, 0), Grund::Keiner); // only a beginning
        EXPECT_EQ(grund(0, 0), Grund::Keiner);
    }
}

TEST_F(GründeTest, GeschlechtZähltAnGeradenSlots)
{
    for (int slot = 1; slot <= 20; ++slot)
        for (const char *letztes : {"männlich", "weiblich", ""}) {
            Stand.LetztesGeschlecht = letztes;
            const bool passt = slot % 2 == 1 || Text(letztes) == "männlich";
            EXPECT_EQ(Frage(GeschlechtPrüfen, slot),
                      passt ? Grund::Keiner : Grund::AnderesGeschlecht);
        }
}

TEST_F(GründeTest, WochenwunschNachWochentagGiltNurFürStandardmessen)
{
    const char *tage[] = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag"};
    for (int stelle = 1; stelle <= 8; ++stelle) {
        Meßdiener.Wochendienst[0] = "nnnnnnnn";
        Meßdiener.Wochendienst[0][static_cast<std::size_t>(stelle - 1)] = 'j';
        for (int t = 0; t < 5; ++t) {
            Messe.Wochentag[0] = tage[t];
            Messe.Kennung[0] = "s";
            EXPECT_EQ(Frage(WochentagPrüfen),
                      t + 2 == stelle ? Grund::GegenWochentag : Grund::Keiner)
                << tage[t] << stelle;
            for (const char *kennung : {"", "S"}) {
                Messe.Kennung[0] = kennung;
                EXPECT_EQ(Frage(WochentagPrüfen), Grund::Keiner);
            }
        }
    }
    Meßdiener.Wochendienst[0] = "jjjjjjjj";
    Messe.Kennung[0] = "s";
    for (const char *frei : {"Samstag", "Sonntag", "Montag    ", ""}) {
        Messe.Wochentag[0] = frei;
        EXPECT_EQ(Frage(WochentagPrüfen), Grund::Keiner) << frei;
    }
}

TEST_F(GründeTest, WunschGegenWochendienstGiltAuchFürMessenVonHand)
{
    for (const char *kennung : {"s", ""}) {
        Messe.Kennung[0] = kennung;
        Messe.Messeart[0] = "Wochendienst";
        Meßdiener.Wochendienst[0] = "jnnnnnnn";
        EXPECT_EQ(Frage(WochendienstPrüfen), Grund::GegenWochendienst);
        Meßdiener.Wochendienst[0] = "njjjjjjj";
        EXPECT_EQ(Frage(WochendienstPrüfen), Grund::Keiner);
        Messe.Messeart[0] = "Wochendienste";
        Meßdiener.Wochendienst[0] = "jnnnnnnn";
        EXPECT_EQ(Frage(WochendienstPrüfen), Grund::Keiner);
    }
}

TEST_F(GründeTest, PaareSindDurchAnteilUndHäufigkeitBegrenzt)
{
    for (int häufigkeit : {0, 2, -3})
        for (int paare = 0; paare <= 6; ++paare) {
            Meßdiener.Häufigkeit[0] = häufigkeit;
            Stand.Paare = paare;
            EXPECT_EQ(Frage(PaarePrüfen),
                      paare < häufigkeit + 3 ? Grund::Keiner : Grund::ZuVielePaare);
        }
    Meßdiener.Häufigkeit[0] = 32765;
    EXPECT_EQ(NummerDesFehlers([this] { Frage(PaarePrüfen); }), 6);
}

TEST_F(GründeTest, WerEinenWunschpartnerHatNimmtNichtDenLetztenPlatz)
{
    const auto grund = [this](const Text &vor, const Text &nach, int slot) {
        Meßdiener.WunschVorname[0] = vor;
        Meßdiener.WunschNachname[0] = nach;
        return Frage(LetztenPlatzPrüfen, slot);
    };
    EXPECT_EQ(grund("V", "N", 20), Grund::PartnerOhnePlatz);
    EXPECT_EQ(grund("V", "N", 19), Grund::Keiner);
    EXPECT_EQ(grund("V", "", 20), Grund::Keiner);
    EXPECT_EQ(grund("", "N", 20), Grund::Keiner);
    Messe.Dienerzahl[0] = 3;
    EXPECT_EQ(grund("V", "N", 3), Grund::PartnerOhnePlatz);
    EXPECT_EQ(grund("V", "N", 4), Grund::Keiner); // beyond the count
}

TEST_F(GründeTest, HelferHabenIhreEigenenDreiZeiträume)
{
    HelferAnlegen("V", "N", "Lektor");
    for (const auto &[von, bis] :
         {std::pair(&Helfer.Von1, &Helfer.Bis1), std::pair(&Helfer.Von2, &Helfer.Bis2),
          std::pair(&Helfer.Von3, &Helfer.Bis3)}) {
        EXPECT_EQ(HelferFrage(AnwesenheitPrüfen, 1), Grund::Keiner);
        (*von)[0] = (*bis)[0] = Sonntag;
        EXPECT_EQ(HelferFrage(AnwesenheitPrüfen, 1), Grund::Abwesend);
        (*von)[0] = (*bis)[0] = Montag;
    }
    Helfer.Nachname[0] = "";
    EXPECT_EQ(HelferFrage(NamenPrüfen, 1), Grund::OhneNamen);
}

TEST_F(GründeTest, DienstDerHelferLektorBrauchtIhnDieAnderenDürfenIhnNichtZweimalHaben)
{
    HelferAnlegen("V", "N", "");
    const char *dienste[] = {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant", "", "Küster"};
    for (std::size_t platz = 1; platz <= 8; ++platz) {
        const Text dienst = dienste[(platz - 1) / 2];
        for (const char *erster : dienste)
            for (const char *zweiter : dienste) {
                Helfer.Dienst1[0] = erster;
                Helfer.Dienst2[0] = zweiter;
                const int mal = (erster == dienst) + (zweiter == dienst);
                const Grund erwartet = platz <= 2 ? (mal == 0 ? Grund::OhneDienst : Grund::Keiner)
                                       : mal == 2 ? Grund::DienstInBeidenFeldern
                                                  : Grund::Keiner;
                EXPECT_EQ(HelferFrage(HelferdienstPrüfen, platz), erwartet)
                    << platz << erster << zweiter;
            }
    }
}

TEST_F(GründeTest, JederWegFragtInSeinerFolge)
{
    // As each reason is removed, the next one becomes the first.
    const std::pair<Grund, std::function<void()>> voll[] = {
        {Grund::OhneNamen, [] { Meßdiener.Vorname[0] = "V"; }},
        {Grund::Vergeben, [this] { Stand.Vergeben = false; }},
        {Grund::FalscheGröße, [] { Meßdiener.Größe[0] = 160; }},
        {Grund::OhneQualifikation, [] { Meßdiener.Qualifikation[0] = "jjjjjj"; }},
        {Grund::Abwesend, [] { Meßdiener.Bis1[0] = 0; }},
        {Grund::AnderesGeschlecht, [] { Meßdiener.Geschlecht[0] = "männlich"; }},
        {Grund::GegenWochendienst, [] { Messe.Messeart[0] = "Messe"; }},
        {Grund::GegenWochentag, [] { Messe.Wochentag[0] = "Sonntag"; }},
    };
    const std::pair<Grund, std::function<void()>> partner[] = {
        {Grund::OhneNamen, [] { Meßdiener.Vorname[0] = "V"; }},
        {Grund::Vergeben, [this] { Stand.Vergeben = false; }},
        {Grund::ZuVielePaare, [this] { Stand.Paare = 2; }},
        {Grund::OhneQualifikation, [] { Meßdiener.Qualifikation[0] = "jjjjjj"; }},
        {Grund::VonHand, [] { Konfig.ManuellWeihrauch = 0; }},
        {Grund::Abwesend, [] { Meßdiener.Bis1[0] = 0; }},
        {Grund::GegenWochendienst, [] { Messe.Messeart[0] = "Messe"; }},
        {Grund::GegenWochentag, [] { Messe.Wochentag[0] = "Sonntag"; }},
        {Grund::AnderesGeschlecht, [] { Meßdiener.Geschlecht[0] = "männlich"; }},
        {Grund::PartnerOhnePlatz, [] { Meßdiener.WunschVorname[0] = ""; }},
    };
    const auto allesFalsch = [this] {
        Meßdiener.Vorname[0] = "";
        Meßdiener.Größe[0] = 199;
        Meßdiener.Qualifikation[0] = "nnnnnn";
        Meßdiener.Bis1[0] = Sonntag;
        Meßdiener.Geschlecht[0] = "weiblich";
        Meßdiener.Wochendienst[0] = "jjjjjjjj";
        Meßdiener.WunschVorname[0] = "W";
        Meßdiener.WunschNachname[0] = "N";
        Messe.Dienerzahl[0] = 2;
        Messe.Messeart[0] = "Wochendienst";
        Messe.Wochentag[0] = "Montag";
        DiensteSetzen("Weihrauch");
        Konfig.ManuellWeihrauch = 1;
        Stand.Vergeben = true;
        Stand.Paare = 3;
    };
    const auto durchgehen = [&](const auto &schritte, auto erster, auto alle) {
        allesFalsch();
        Gründe erwartet;
        for (const auto &[grund, beheben] : schritte)
            erwartet.push_back(grund);
        for (const auto &[grund, beheben] : schritte) {
            EXPECT_EQ(erster(), grund);
            EXPECT_EQ(alle(), erwartet);
            beheben();
            erwartet.erase(erwartet.begin());
        }
        EXPECT_EQ(erster(), Grund::Keiner);
        EXPECT_EQ(alle(), Gründe{});
    };
    durchgehen(
        voll, [this] { return Erster<VollePrüfungen>(2); },
        [this] { return Alle<VollePrüfungen>(2); });
    durchgehen(
        partner, [this] { return Erster<Partnerprüfungen>(2); },
        [this] { return Alle<Partnerprüfungen>(2); });
    durchgehen(
        std::span(voll).first(2), [this] { return Erster<EinfachePrüfungen>(2); },
        [this] { return Alle<EinfachePrüfungen>(2); });
}

TEST_F(GründeTest, HelferFragenInIhrerFolge)
{
    HelferAnlegen("", "N", "");
    Helfer.Bis2[0] = Sonntag;
    Stand.Vergeben = true;
    const auto alle = [this](std::size_t platz) {
        return Helferprüfungen::Alle({Helfer, 0}, {Messe, 0, Helferplätze.at(platz - 1)}, Stand);
    };
    EXPECT_EQ(alle(1),
              (Gründe{Grund::OhneNamen, Grund::Vergeben, Grund::Abwesend, Grund::OhneDienst}));
    EXPECT_EQ(alle(3), (Gründe{Grund::OhneNamen, Grund::Vergeben, Grund::Abwesend}));
    const Helferstelle stelle = {Messe, 0, Helferplätze[0]};
    EXPECT_EQ(FreieHelferprüfungen::Alle({Helfer, 0}, stelle, Stand), Gründe{Grund::OhneNamen});
    Helfer.Vorname[0] = "V";
    EXPECT_EQ(FreieHelferprüfungen::Erster({Helfer, 0}, stelle, Stand), Grund::Keiner);
    EXPECT_EQ(Helferprüfungen::Erster({Helfer, 0}, stelle, Stand), Grund::Vergeben);
}

TEST_F(GründeTest, SieLesenNurWasIhnenGegebenWird)
{
    // The same questions about copies, while the shared tables and the run hold something else.
    const auto diener = std::make_unique<MeßdienerTabelle>(Meßdiener);
    const auto messen = std::make_unique<MesseTabelle>(Messe);
    const KonfigDatensatz einstellungen = Konfig;
    TabellenLeeren();
    DiensteSetzen("Leuchter");
    Meßdiener.Qualifikation[0] = "nnnnnn";
    Meßdiener.Belegt[0] = 1;
    Meßdiener.DienstZähler[0] = 99;
    MittelGröße = 20;
    LetztesGeschlecht = "weiblich";
    EXPECT_EQ(VollePrüfungen::Alle({*diener, 0}, {*messen, einstellungen, 0, 2}, Stand), Gründe{});
    EXPECT_EQ(Partnerprüfungen::Alle({*diener, 0}, {*messen, einstellungen, 0, 2}, Stand),
              Gründe{});
}

TEST_F(GründeTest, GesperrtIstDerTagUndDerFolgende)
{
    EXPECT_FALSE(IstGesperrt(Samstag, Samstag - 1));
    EXPECT_TRUE(IstGesperrt(Samstag, Samstag));
    EXPECT_TRUE(IstGesperrt(Samstag, Sonntag));
    EXPECT_FALSE(IstGesperrt(Samstag, Montag));
}

} // namespace
} // namespace altardienst
