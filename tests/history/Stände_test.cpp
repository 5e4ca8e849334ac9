// Earlier states: their names, how they are written, and which of them may go.
#include "history/Aufräumen.h"
#include "history/Netzstand.h"
#include "history/Stände.h"

#include <random>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class StändeTest : public Netzstand {
  protected:
    static Stand Am(Datum tag, int sekunde = 0)
    {
        Stand stand;
        stand.Zeit = {tag, sekunde, 1};
        return stand;
    }

    static bool Enthält(const std::vector<Stand> &stände, const Stand &gesucht)
    {
        return std::ranges::any_of(stände, [&](const Stand &s) { return s.Zeit == gesucht.Zeit; });
    }
};

TEST_F(StändeTest, EinNameNenntTagUndZeitUndKommtZurück)
{
    const Standzeit zeit{DatumAus({2026, 11, 21}), 12 * 3600 + 5, 1};
    EXPECT_EQ(Standname(zeit, Standart::Gewöhnlich), "2026-11-21 12-00-05");
    EXPECT_EQ(Standname({zeit.Tag, zeit.Sekunde, 2}, Standart::Gewöhnlich),
              "2026-11-21 12-00-05 (2)");
    EXPECT_EQ(Standname({zeit.Tag, zeit.Sekunde, 12}, Standart::Notfall),
              "2026-11-21 12-00-05 (12) Notfall");
    EXPECT_EQ(Standname(zeit, Standart::NotfallErledigt), "2026-11-21 12-00-05 Notfall erledigt");
    for (const Standart art : {Standart::Gewöhnlich, Standart::Notfall, Standart::NotfallErledigt,
                               Standart::VorAbbruch, Standart::OhneKomma})
        for (const int nummer : {1, 2, 10}) {
            const Standzeit diese{zeit.Tag, zeit.Sekunde, nummer};
            const auto stand = StandAusName(Standname(diese, art));
            ASSERT_TRUE(stand);
            EXPECT_EQ(stand->Zeit, diese);
            EXPECT_EQ(stand->Art, art);
        }
}

TEST_F(StändeTest, WasAndersHeißtIstKeiner)
{
    for (const char *name :
         {"Speichern", "unfertig", "geloescht", "2026-11-21", "2026-11-21 12-00-05 ",
          "2026-11-21 12-00-05 Kopie", "2026-02-30 12-00-05", "2026-11-21 12-00-05 (1)",
          "2026-1-2 3-4-5", "", "x2026-11-21 12-00-05", "2026-11-21 99-00-05"})
        EXPECT_FALSE(StandAusName(name)) << name;
}

TEST_F(StändeTest, DieFolgeIstDieDerZeitAuchBeiZehnInEinerSekunde)
{
    for (int i = 0; i < 11; ++i) {
        Gemeinde(i);
        EXPECT_TRUE(StandSichern(InhaltDerTabellen()));
    }
    ++Sekunden;
    Gemeinde(11);
    EXPECT_TRUE(StandSichern(InhaltDerTabellen()));
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 12U);
    for (int i = 0; i < 12; ++i)
        EXPECT_TRUE(InhaltVon(stände[static_cast<std::size_t>(i)].Ort) == InhaltDerGemeinde(i))
            << i;
    EXPECT_EQ(Standname(stände[9].Zeit, Standart::Gewöhnlich), "2026-11-21 12-00-00 (10)");
}

TEST_F(StändeTest, DerselbeInhaltGibtKeinenNeuen)
{
    GemeindeSpeichern(1);
    EXPECT_TRUE(StandSichern(AufDerPlatte()));
    Sekunden += 60;
    EXPECT_FALSE(StandSichern(AufDerPlatte()));
    GemeindeSpeichern(2);
    EXPECT_TRUE(StandSichern(AufDerPlatte()));
    GemeindeSpeichern(1);
    EXPECT_TRUE(StandSichern(AufDerPlatte())) << "only the newest counts";
    EXPECT_EQ(AlleStände().size(), 3U);
}

TEST_F(StändeTest, OhneDateienEntstehtNichts)
{
    EXPECT_FALSE(StandSichern(AufDerPlatte()));
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(StändeTest, DieDateienBehaltenIhreNamenUndJedesByte)
{
    GemeindeSpeichern(1);
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "HELFER.DAT");
    DateiSchreiben(Festplatte / "Messen.dat", std::string("a\0b\r\n\x80\n", 8));
    fs::remove(Festplatte / "Gruppen.dat");
    StandSichern(AufDerPlatte());
    const fs::path ort = AlleStände().back().Ort;
    EXPECT_EQ(ort.parent_path(), Stände());
    EXPECT_EQ(DateiLesen(ort / "Messen.dat"), std::string("a\0b\r\n\x80\n", 8));
    EXPECT_TRUE(fs::exists(ort / "HELFER.DAT"));
    EXPECT_TRUE(fs::exists(ort / PfadAus("MeßdienerMesse.dat")));
    EXPECT_FALSE(fs::exists(ort / "Gruppen.dat"));
    EXPECT_TRUE(ImNeuesten() == AufDerPlatte());
}

TEST_F(StändeTest, ErstAufDemMediumBekommtErSeinenNamen)
{
    GemeindeSpeichern(1);
    Liste folge;
    const auto durchschreiben = Laufwerke.Durchschreiben;
    const auto umbenennen = Laufwerke.Umbenennen;
    Laufwerke.Durchschreiben = [&](const fs::path &pfad) {
        folge.push_back(TextVon(pfad.filename()));
        durchschreiben(pfad);
    };
    Laufwerke.Umbenennen = [&](const fs::path &von, const fs::path &nach) {
        folge.push_back(TextVon(von.filename()) + " -> " + TextVon(nach.filename()));
        umbenennen(von, nach);
    };
    StandSichern(AufDerPlatte());
    EXPECT_EQ(folge, (Liste{"Festplatte", "Konfig.cfg", "Standard.dat", "Meßdiener.dat",
                            "Messen.dat", "Gruppen.dat", "Helfer.dat", "Etiketten.dat",
                            "MeßdienerMesse.dat", Restname(Rest::InArbeit),
                            Restname(Rest::InArbeit) + " -> 2026-11-21 12-00-00", "Stände"}));
}

// The disk becomes full, or is pulled out, at any step.
TEST_F(StändeTest, ScheitertEinSchrittIstKeinerDaUndNichtsBleibtLiegen)
{
    GemeindeSpeichern(1);
    StandSichern(AufDerPlatte());
    GemeindeSpeichern(2);
    const Liste zuvor = Namen();
    const LaufwerkeDienst ganz = Laufwerke;
    int schritte = 0;
    for (int beiSchritt = 1; beiSchritt <= 19; ++beiSchritt) {
        SCOPED_TRACE(beiSchritt);
        schritte = 0;
        const auto zählen = [&] {
            if (++schritte == beiSchritt)
                throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        };
        Laufwerke.VerzeichnisAnlegen = [&](const fs::path &p) {
            zählen();
            ganz.VerzeichnisAnlegen(p);
        };
        Laufwerke.Schreiben = [&](const fs::path &p, std::string_view bytes) {
            if (schritte + 1 == beiSchritt)
                ganz.Schreiben(p, bytes.substr(0, bytes.size() / 2));
            zählen();
            ganz.Schreiben(p, bytes);
        };
        Laufwerke.Durchschreiben = [&](const fs::path &p) {
            zählen();
            ganz.Durchschreiben(p);
        };
        EXPECT_EQ(NummerDesFehlers([&] { StandSichern(AufDerPlatte()); }), 61);
        EXPECT_EQ(Namen(), zuvor);
        Laufwerke = ganz;
    }
    EXPECT_EQ(schritte, 19) << "the last step before the name";
    EXPECT_TRUE(StandSichern(AufDerPlatte()));
    EXPECT_EQ(Namen().size(), 2U);
}

TEST_F(StändeTest, WasEinAbgeschossenerLaufLiegenließGehtBeimNächsten)
{
    GemeindeSpeichern(1);
    for (const char *rest : {"unfertig 17", "geloescht 17 3", "Notfall unfertig 18"}) {
        fs::create_directories(Stände() / rest);
        DateiSchreiben(Stände() / rest / "Konfig.cfg", "halb");
    }
    DateiSchreiben(Stände() / "Reserve 17", "Platz");
    fs::create_directories(Stände() / "Fotos"); // not ours
    fs::create_directories(Stände() / "unfertig mit Notizen");
    fs::create_directories(Stände() / "Speichern 17"); // of a save, and not decided yet
    ResteEntfernen();
    EXPECT_EQ(Namen(), (Liste{"Fotos", "Speichern 17", "unfertig mit Notizen"}));
    const fs::path unfertig = Stände() / PfadAus(Restname(Rest::InArbeit));
    fs::create_directories(unfertig);
    DateiSchreiben(unfertig / "fremd.txt", "halb");
    StandSichern(AufDerPlatte());
    EXPECT_FALSE(fs::exists(AlleStände().back().Ort / "fremd.txt"));
}

TEST_F(StändeTest, OhneProgrammverzeichnisEntstehtKeines)
{
    const Standinhalt inhalt = InhaltDerGemeinde(1);
    fs::remove_all(Festplatte);
    EXPECT_EQ(NummerDesFehlers([&] { StandSichern(inhalt); }), 76);
    EXPECT_FALSE(fs::exists(Festplatte));
}

TEST_F(StändeTest, EineDateiAnStelleDesVerzeichnissesIstEinFehlerUndBleibt)
{
    GemeindeSpeichern(1);
    DateiSchreiben(Stände(), "im Weg");
    EXPECT_NE(NummerDesFehlers([&] { StandSichern(AufDerPlatte()); }), 0);
    EXPECT_EQ(DateiLesen(Stände()), "im Weg");
    EXPECT_TRUE(AlleStände().empty());
    ResteEntfernen();
    StändeAufräumen();
    EXPECT_EQ(DateiLesen(Stände()), "im Weg");
}

TEST_F(StändeTest, EinNotfallWeichtAusWoDasVerzeichnisIhnNichtNimmt)
{
    GemeindeSpeichern(1);
    DateiSchreiben(Stände(), "im Weg");
    NotfallSichern(InhaltDerGemeinde(2));
    auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 1U);
    EXPECT_EQ(stände[0].Ort.parent_path(), Laufwerke.Ausweichverzeichnisse()[0]);
    EXPECT_EQ(stände[0].Art, Standart::Notfall);
    EXPECT_TRUE(InhaltVon(stände[0].Ort) == InhaltDerGemeinde(2));
    NotfälleErledigen();
    stände = AlleStände();
    ASSERT_EQ(stände.size(), 1U);
    EXPECT_EQ(stände[0].Art, Standart::NotfallErledigt);
    fs::remove(Stände());
    ++Sekunden;
    NotfallSichern(InhaltDerGemeinde(3));
    EXPECT_EQ(Namen(), Liste{"2026-11-21 12-00-01 Notfall"});
}

TEST_F(StändeTest, GehtAuchDasAusweichenNichtSagtErEs)
{
    GemeindeSpeichern(1);
    DateiSchreiben(Stände(), "im Weg");
    DateiSchreiben(Laufwerke.Ausweichverzeichnisse()[0], "auch im Weg");
    EXPECT_NE(NummerDesFehlers([&] { NotfallSichern(InhaltDerGemeinde(2)); }), 0);
}

TEST_F(StändeTest, EinAusgewichenerNotfallKommtZuDenAnderenSobaldPlatzIst)
{
    GemeindeSpeichern(1);
    DateiSchreiben(Stände(), "im Weg");
    NotfallSichern(InhaltDerGemeinde(2));
    const fs::path ausweg = Laufwerke.Ausweichverzeichnisse()[0];
    if (Kann(Fähigkeit::Rechte)) {
        EXPECT_EQ(fs::status(ausweg).permissions(), fs::perms::owner_all);
    }
    AusweichständeHolen();
    EXPECT_FALSE(fs::is_empty(ausweg));
    fs::remove(Stände());
    Neustart();
    EXPECT_TRUE(fs::is_empty(ausweg));
    ASSERT_TRUE(Netz().Notfall);
    EXPECT_EQ(Netz().Notfall->Ort.parent_path(), Stände());
    EXPECT_TRUE(InhaltVon(Netz().Notfall->Ort) == InhaltDerGemeinde(2));
}

TEST_F(StändeTest, WerDieDateienNichtLesenDarfLiestAuchDieStändeNicht)
{
    NUR_WO_ES_GIBT(Rechte);
    GemeindeSpeichern(1);
    fs::permissions(Festplatte, fs::perms(0755));
    StandSichern(AufDerPlatte());
    EXPECT_EQ(fs::status(Stände()).permissions(), fs::perms(0755));
    for (const Datei &datei : Dateien)
        fs::permissions(Festplatte / PfadAus(datei.Name), fs::perms(0640));
    GemeindeSpeichern(2);
    StandSichern(AufDerPlatte());
    EXPECT_EQ(fs::status(Stände()).permissions(), fs::perms(0750));
    for (const Datei &datei : Dateien)
        fs::permissions(Festplatte / PfadAus(datei.Name), fs::perms(0600));
    GemeindeSpeichern(3);
    StandSichern(AufDerPlatte());
    EXPECT_EQ(fs::status(Stände()).permissions(), fs::perms(0700));
}

// Room on the medium.

TEST_F(StändeTest, FehltDerPlatzMachenIhnDieEntbehrlichen)
{
    GemeindeSpeichern(1);
    for (int i = 0; i < 15; ++i)
        fs::create_directories(
            Stände() / Standname({Heute - (i < 10 ? 0 : 4000), i, 1}, Standart::Gewöhnlich));
    Laufwerke.Schreiben = [this, schreiben = Laufwerke.Schreiben](const fs::path &pfad,
                                                                  std::string_view bytes) {
        if (AlleStände().size() > 10)
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        schreiben(pfad, bytes);
    };
    EXPECT_TRUE(StandSichern(AufDerPlatte()));
    EXPECT_EQ(AlleStände().size(), 11U);
    const Standinhalt andere = InhaltDerGemeinde(2);
    EXPECT_EQ(NummerDesFehlers([&] { StandSichern(andere); }), 61) << "no more may go";
}

// Something on the disk that cannot be deleted.
TEST_F(StändeTest, WasSichNichtLöschenLäßtStehtKeinemAnderenImWeg)
{
    GemeindeSpeichern(1);
    for (int i = 0; i < 15; ++i)
        fs::create_directories(
            Stände() / Standname({Heute - (i < 10 ? 0 : 4000), i, 1}, Standart::Gewöhnlich));
    Laufwerke.Löschen = [](const fs::path &) {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    EXPECT_EQ(StändeAufräumen(), 5);
    EXPECT_EQ(AlleStände().size(), 10U);
    Laufwerke.Löschen = Systemlaufwerke().Löschen;
    ResteEntfernen();
    EXPECT_EQ(Namen().size(), 10U);
}

// Which may go.

TEST_F(StändeTest, VonDenLetztenSiebenTagenBleibenAlle)
{
    std::vector<Stand> stände;
    for (int tag = 0; tag < 9; ++tag)
        for (int i = 0; i < 5; ++i)
            stände.push_back(Am(Heute - tag, i));
    const auto weg = Entbehrliche(stände, Heute);
    for (const Stand &stand : stände) {
        const bool bleibt = Heute - stand.Zeit.Tag < 7 || stand.Zeit.Sekunde == 4;
        EXPECT_EQ(Enthält(weg, stand), !bleibt) << Standname(stand.Zeit, stand.Art);
    }
}

TEST_F(StändeTest, DanachJeTagUndDannJeMonatDerLetzte)
{
    std::vector<Stand> stände;
    for (int tag = 0; tag < 2500; ++tag)
        for (const int sekunde : {100, 200})
            stände.push_back(Am(Heute - tag, sekunde));
    const auto weg = Entbehrliche(stände, Heute);
    const auto bleibt = [&](Datum tag, int sekunde) { return !Enthält(weg, Am(tag, sekunde)); };
    EXPECT_TRUE(bleibt(Heute - 6, 100));
    EXPECT_FALSE(bleibt(Heute - 7, 100));
    EXPECT_TRUE(bleibt(Heute - 7, 200));
    EXPECT_TRUE(bleibt(Heute - 59, 200));
    EXPECT_FALSE(bleibt(Heute - 60, 200)) << "22.9. is not the last of its month";
    EXPECT_TRUE(bleibt(DatumAus({2026, 8, 31}), 200));
    EXPECT_FALSE(bleibt(DatumAus({2026, 8, 31}), 100));
    EXPECT_FALSE(bleibt(DatumAus({2026, 8, 30}), 200));
    EXPECT_TRUE(bleibt(DatumAus({2021, 12, 31}), 200));
    EXPECT_FALSE(bleibt(DatumAus({2021, 11, 30}), 200)) << "five years";
    EXPECT_EQ(stände.size() - weg.size(), 7U * 2 + 53 + 57);
}

TEST_F(StändeTest, ZehnBleibenImmer)
{
    std::vector<Stand> stände;
    for (int i = 0; i < 12; ++i)
        stände.push_back(Am(Heute - 4000, i));
    const auto weg = Entbehrliche(stände, Heute);
    ASSERT_EQ(weg.size(), 2U);
    EXPECT_TRUE(Enthält(weg, stände[0]));
    EXPECT_TRUE(Enthält(weg, stände[1]));
    EXPECT_TRUE(Entbehrliche({stände.begin(), stände.begin() + 10}, Heute).empty());
}

// Against the rule written out once more, in any order, also of days to come.
TEST_F(StändeTest, DieAuswahlFolgtDerRegelBeiJederVerteilung)
{
    std::mt19937 würfel(7);
    for (int lauf = 0; lauf < 50; ++lauf) {
        std::vector<Stand> stände;
        std::uniform_int_distribution<int> tage(-3, lauf % 2 ? 90 : 2500);
        std::uniform_int_distribution<int> sekunden(0, 50);
        for (int i = 0; i < 120; ++i) {
            Stand neu = Am(Heute - tage(würfel), sekunden(würfel));
            if (!Enthält(stände, neu))
                stände.push_back(neu);
        }
        const auto weg = Entbehrliche(stände, Heute);
        for (const Stand &s : stände) {
            const auto späterer = [&](auto gleich) {
                return std::ranges::any_of(
                    stände, [&](const Stand &t) { return t.Zeit > s.Zeit && gleich(t); });
            };
            const Kalendertag k = KalendertagVon(s.Zeit.Tag);
            const Datum alter = Heute - s.Zeit.Tag;
            const auto neuere =
                std::ranges::count_if(stände, [&](const Stand &t) { return t.Zeit > s.Zeit; });
            const bool bleibt =
                neuere < 10 || alter < 7 ||
                (alter < 60 &&
                 !späterer([&](const Stand &t) { return t.Zeit.Tag == s.Zeit.Tag; })) ||
                (2026 * 12 + 11 - k.Jahr * 12 - k.Monat < 60 && !späterer([&](const Stand &t) {
                     const Kalendertag l = KalendertagVon(t.Zeit.Tag);
                     return l.Jahr == k.Jahr && l.Monat == k.Monat;
                 }));
            EXPECT_EQ(Enthält(weg, s), !bleibt) << Standname(s.Zeit, s.Art);
        }
    }
}

TEST_F(StändeTest, DerNeuesteDerGanzLädtGehtNie)
{
    GemeindeSpeichern(1);
    const fs::path guter = Stände() / "2015-03-01 10-00-00";
    fs::create_directories(Stände());
    fs::copy(Festplatte, guter); // the files alone
    fs::copy(guter, Stände() / "2014-03-01 10-00-00");
    for (int i = 0; i < 12; ++i) {
        const fs::path zerrissen = Stände() / Standname({Heute, i, 1}, Standart::Gewöhnlich);
        fs::create_directories(zerrissen);
        DateiSchreiben(zerrissen / "Konfig.cfg", "zerrissen " + std::to_string(i));
    }
    StändeAufräumen();
    EXPECT_TRUE(fs::exists(guter));
    EXPECT_FALSE(fs::exists(Stände() / "2014-03-01 10-00-00"));
    EXPECT_EQ(Namen().size(), 13U) << "those of today and this one";
}

TEST_F(StändeTest, WasAufEineEntscheidungWartetGehtNie)
{
    for (int i = 0; i < 12; ++i)
        fs::create_directories(Stände() / Standname({Heute, i, 1}, Standart::Gewöhnlich));
    const auto alter = [&](Standart art) {
        const fs::path ort = Stände() / Standname({Heute - 4000, static_cast<int>(art), 1}, art);
        fs::create_directories(ort);
        return ort;
    };
    const fs::path notfall = alter(Standart::Notfall);
    const fs::path abbruch = alter(Standart::VorAbbruch);
    const fs::path erledigt = alter(Standart::NotfallErledigt);
    StändeAufräumen();
    EXPECT_TRUE(fs::exists(notfall));
    EXPECT_TRUE(fs::exists(abbruch));
    EXPECT_FALSE(fs::exists(erledigt));
}

// An emptied parish loads whole; the one before must not go for it.
TEST_F(StändeTest, AuchDerNeuesteMitLeutenGehtNie)
{
    GemeindeSpeichern(1);
    fs::create_directories(Stände());
    const fs::path mitLeuten = Stände() / "2012-03-01 10-00-00";
    fs::copy(Festplatte, mitLeuten);
    fs::copy(mitLeuten, Stände() / "2011-03-01 10-00-00");
    TabellenLeeren();
    AufFestplatteSpeichern();
    for (int i = 0; i < 10; ++i) {
        const fs::path leer = Stände() / Standname({Heute, i, 1}, Standart::Gewöhnlich);
        fs::create_directories(leer);
        for (const Datei &datei : Dateien)
            fs::copy(Festplatte / PfadAus(datei.Name), leer / PfadAus(datei.Name));
    }
    EXPECT_EQ(StändeAufräumen(), 1);
    EXPECT_TRUE(fs::exists(mitLeuten));
}

TEST_F(StändeTest, AufräumenLöschtNurStände)
{
    fs::create_directories(Stände() / "Fotos");
    fs::create_directories(Stände() / "2001-01-01");
    DateiSchreiben(Stände() / "Notiz.txt", "x");
    for (int i = 0; i < 15; ++i)
        fs::create_directories(
            Stände() / Standname({Heute - (i < 10 ? 0 : 4000), i, 1}, Standart::Gewöhnlich));
    EXPECT_EQ(StändeAufräumen(), 5);
    EXPECT_EQ(Namen().size(), 13U);
    EXPECT_TRUE(fs::exists(Stände() / "Fotos"));
    EXPECT_TRUE(fs::exists(Stände() / "2001-01-01"));
    EXPECT_TRUE(fs::exists(Stände() / "Notiz.txt"));
}

} // namespace
} // namespace altardienst
