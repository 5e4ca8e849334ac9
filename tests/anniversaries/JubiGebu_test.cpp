// Who is listed for a month and for a number of years, and in which order.
#include "anniversaries/JubiGebu.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

/// Today is 21.11.2026.
class JubiGebuTest : public Prüfstand {
  protected:
    static int Diener(const Text &vorname, Kalendertag geboren,
                      Kalendertag eingetreten = {2026, 1, 1})
    {
        const int i = MeßdienerAnlegen(vorname, "Berg");
        Meßdiener.Geburtstag[i] = DatumAus(geboren);
        Meßdiener.Eintrittsdatum[i] = DatumAus(eingetreten);
        return i;
    }
    static int NeuerHelfer(const Text &vorname, Kalendertag geboren)
    {
        const int i = HelferAnlegen(vorname, "Lang", "Lektor");
        Helfer.Geburtstag[i] = DatumAus(geboren);
        return i;
    }
    static int Eingetreten(const Text &vorname, Kalendertag tag)
    {
        return Diener(vorname, {2010, 6, 1}, tag);
    }

    /// The first names of a list, as many as it counts.
    template <class Tabelle> static Text Namen(Tabelle &liste)
    {
        Text namen;
        for (int i = 0; i < liste.Anzahl; ++i)
            namen += (i > 0 ? " " : "") + liste.Vorname[i];
        return namen;
    }
    static Text Geburtstage(Gruppende gruppe, int monat)
    {
        GeburtstageSuchen(gruppe, monat);
        return Namen(Geburtstagsliste);
    }
    static Text Jubiläen(int jahre)
    {
        JubiläenSuchen(jahre);
        return Namen(Jubiläumsliste);
    }
};

TEST_F(JubiGebuTest, JedeGruppeHatIhreLeuteDesMonats)
{
    Diener("Anna", {2010, 3, 9});
    Diener("Ben", {2012, 4, 9});
    NeuerHelfer("Lea", {1980, 3, 4});
    NeuerHelfer("Max", {1970, 4, 1});
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 3), "Lea Anna");
    EXPECT_EQ(Geburtstage(Gruppende::Messdien, 3), "Anna");
    EXPECT_EQ(Geburtstage(Gruppende::Meßhelfer, 3), "Lea");
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 4), "Max Ben");
}

TEST_F(JubiGebuTest, JederMonatHatSeineLeute)
{
    for (int monat = 1; monat <= 12; ++monat) {
        Diener("D" + std::to_string(monat), {2010, monat, 28});
        NeuerHelfer("H" + std::to_string(monat), {1990, monat, 1});
    }
    for (int monat = 1; monat <= 12; ++monat)
        EXPECT_EQ(Geburtstage(Gruppende::Alle, monat),
                  "H" + std::to_string(monat) + " D" + std::to_string(monat));
}

TEST_F(JubiGebuTest, EineZeileTrägtAlleAngaben)
{
    const int j = Diener("Anna", {2010, 3, 9});
    Meßdiener.Telefon[j] = "02541/77";
    Meßdiener.Straße[j] = "Hauptstraße 5";
    Meßdiener.PLZ[j] = 7;
    Meßdiener.Ort[j] = "Quellersheim";
    const int h = NeuerHelfer("Lea", {1980, 3, 4});
    Helfer.Telefon[h] = "02541/88";
    Helfer.Straße[h] = "Am Bach 1";
    Helfer.PLZ[h] = 43217;
    Helfer.Ort[h] = "Oberquell";
    GeburtstageSuchen(Gruppende::Alle, 3);
    GeburtstagslisteTabelle &liste = Geburtstagsliste;
    ASSERT_EQ(liste.Anzahl, 2);
    EXPECT_EQ(liste.Vorname[0] + " " + liste.Nachname[0], "Lea Lang");
    EXPECT_EQ(liste.Geburtstag[0], DatumAus({1980, 3, 4}));
    EXPECT_EQ(liste.Alter[0], 46); // 46 years and 8 months
    EXPECT_EQ(liste.Telefon[0], "02541/88");
    EXPECT_EQ(liste.Straße[0], "Am Bach 1");
    EXPECT_EQ(liste.Ort[0], "43217 Oberquell");
    EXPECT_EQ(liste.Vorname[1] + " " + liste.Nachname[1], "Anna Berg");
    EXPECT_EQ(liste.Geburtstag[1], DatumAus({2010, 3, 9}));
    EXPECT_EQ(liste.Alter[1], 16);
    EXPECT_EQ(liste.Telefon[1], "02541/77");
    EXPECT_EQ(liste.Straße[1], "Hauptstraße 5");
    EXPECT_EQ(liste.Ort[1], "7 Quellersheim");
}

TEST_F(JubiGebuTest, SortiertWirdNachDemTagDesMonatsAllein)
{
    Diener("Alt", {1990, 5, 20});
    Diener("Jung", {2015, 5, 3});
    Diener("Erste", {2012, 5, 20});
    NeuerHelfer("Zweite", {1950, 5, 20});
    Diener("Letzte", {2011, 5, 31});
    NeuerHelfer("Früh", {1988, 5, 1});
    // People born on the same day keep the order of their tables.
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 5), "Früh Jung Alt Erste Zweite Letzte");
}

TEST_F(JubiGebuTest, WerBeidesIstStehtZweimal)
{
    Diener("Anna", {2000, 2, 29});
    const int h = NeuerHelfer("Anna", {2000, 2, 29});
    Helfer.Nachname[h] = "Berg";
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 2), "Anna Anna");
    EXPECT_EQ(Geburtstage(Gruppende::Messdien, 2), "Anna");
}

TEST_F(JubiGebuTest, DasAlterHängtNurAmMonatVonHeute)
{
    Diener("Anna", {2010, 1, 31});
    for (int tag = 1; tag <= 31; ++tag) {
        Heute = DatumAus({2027, 1, tag});
        Geburtstage(Gruppende::Alle, 1);
        EXPECT_EQ(Geburtstagsliste.Alter[0], 17) << tag;
    }
    Heute = DatumAus({2026, 12, 31});
    Geburtstage(Gruppende::Alle, 1);
    EXPECT_EQ(Geburtstagsliste.Alter[0], 16);
}

TEST_F(JubiGebuTest, OhneLeuteBleibtEineLeereZeile)
{
    Diener("Anna", {2010, 3, 9});
    Geburtstage(Gruppende::Alle, 3);
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 4), "");
    GeburtstagslisteTabelle &liste = Geburtstagsliste;
    EXPECT_EQ(liste.Anzahl, 1);
    for (int i : {0, 1, 600}) { // every row is reset
        EXPECT_EQ(liste.Vorname[i] + liste.Nachname[i] + liste.Telefon[i] + liste.Straße[i] +
                      liste.Ort[i],
                  "");
        EXPECT_EQ(liste.Geburtstag[i], Heute);
        EXPECT_EQ(liste.Alter[i], 0);
    }
}

TEST_F(JubiGebuTest, NurDieDatensätzeDerAnzahlZählen)
{
    Diener("Anna", {2010, 3, 9});
    Diener("Gelöscht", {2010, 3, 9});
    NeuerHelfer("Lea", {1980, 3, 4});
    NeuerHelfer("Fort", {1980, 3, 4});
    Meßdiener.Anzahl = 1;
    Helfer.Anzahl = 1;
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 3), "Lea Anna");
    EXPECT_EQ(Jubiläen(0), "Anna");
}

TEST_F(JubiGebuTest, EinLeeresDatumLiegtImDezember)
{
    MeßdienerAnlegen("Neu", "Berg");
    EXPECT_EQ(Geburtstage(Gruppende::Alle, 12), "Neu"); // the 30th, in 1899
    EXPECT_EQ(Geburtstagsliste.Alter[0], 126);
    EXPECT_EQ(Jubiläen(15), "Neu");
}

TEST_F(JubiGebuTest, EinVollesHausPaßtInDieListe)
{
    for (int i = 0; i < 400; ++i)
        Diener("D", {2010, 3, 1 + i % 31});
    for (int i = 0; i < 200; ++i)
        NeuerHelfer("H", {1980, 3, 31 - i % 31});
    Geburtstage(Gruppende::Alle, 3);
    ASSERT_EQ(Geburtstagsliste.Anzahl, 600);
    for (int i = 1; i < 600; ++i)
        ASSERT_LE(KalendertagVon(Geburtstagsliste.Geburtstag[i - 1]).Tag,
                  KalendertagVon(Geburtstagsliste.Geburtstag[i]).Tag);
    Meßdiener.Anzahl = 402; // the two places after the last record
    Meßdiener.Geburtstag[400] = Meßdiener.Geburtstag[401] = DatumAus({2010, 3, 1});
    EXPECT_EQ(NummerDesFehlers([] { Geburtstage(Gruppende::Alle, 3); }), 9);
}

// Month boundaries up to November 2026: 12 n to 12 n + 11 are n years.
TEST_F(JubiGebuTest, UnterFünfzehnZähltGenauDieseZahlVonJahren)
{
    for (int n = 0; n <= 16; ++n) {
        Eingetreten(std::to_string(n) + "a", {2025 - n, 12, 31}); // 12 n + 11 months ago
        Eingetreten(std::to_string(n) + "b", {2026 - n, 11, 1});  // 12 n
    }
    for (int n = 0; n < 15; ++n)
        EXPECT_EQ(Jubiläen(n), std::to_string(n) + "a " + std::to_string(n) + "b");
    EXPECT_EQ(Jubiläen(15), "16a 16b 15a 15b");
}

TEST_F(JubiGebuTest, NullJahreSindDieLetztenZwölfMonateUndElfVoraus)
{
    Eingetreten("zu alt", {2025, 11, 30});
    Eingetreten("gerade", {2025, 12, 1});
    Eingetreten("bald", {2027, 10, 31});
    Eingetreten("später", {2027, 11, 1}); // year -1
    EXPECT_EQ(Jubiläen(0), "gerade bald");
}

TEST_F(JubiGebuTest, EineJubiläumszeileTrägtAlleAngaben)
{
    const int j = Eingetreten("Anna", {2009, 5, 17});
    Meßdiener.Telefon[j] = "02541/77";
    Meßdiener.Straße[j] = "Hauptstraße 5";
    Meßdiener.PLZ[j] = 43217;
    Meßdiener.Ort[j] = "Quellersheim";
    EXPECT_EQ(Jubiläen(15), "Anna");
    JubiläumslisteTabelle &liste = Jubiläumsliste;
    EXPECT_EQ(liste.Nachname[0], "Berg");
    EXPECT_EQ(liste.Eintrittsdatum[0], DatumAus({2009, 5, 17}));
    EXPECT_EQ(liste.Jahre[0], 17); // not the 15 that were asked for
    EXPECT_EQ(liste.Telefon[0], "02541/77");
    EXPECT_EQ(liste.Straße[0], "Hauptstraße 5");
    EXPECT_EQ(liste.Ort[0], "43217 Quellersheim");
}

TEST_F(JubiGebuTest, WerZuerstKamStehtVorn)
{
    Eingetreten("C", {2021, 9, 1});
    Eingetreten("A", {2020, 12, 1});
    Eingetreten("B", {2021, 8, 31});
    EXPECT_EQ(Jubiläen(5), "A B C");
}

TEST_F(JubiGebuTest, BeimSortierenGehtJedeAngabeMit)
{
    struct Person {
        Text Vorname, Nachname;
        Kalendertag Eintritt;
        int Jahre;
        Text Telefon, Straße;
        int Plz;
        Text Ort;
    };
    const std::array<Person, 2> leute = {{
        {"Spät", "Sommer", {2011, 5, 17}, 15, "0254/1", "Hauptstraße 5", 43217, "Quellersheim"},
        {"Früh", "Frost", {2009, 3, 2}, 17, "0254/2", "Am Bach 1", 43299, "Oberquell"},
    }};
    for (const Person &p : leute) {
        const int i = Eingetreten(p.Vorname, p.Eintritt);
        Meßdiener.Nachname[i] = p.Nachname;
        Meßdiener.Telefon[i] = p.Telefon;
        Meßdiener.Straße[i] = p.Straße;
        Meßdiener.PLZ[i] = p.Plz;
        Meßdiener.Ort[i] = p.Ort;
    }
    JubiläenSuchen(15);
    JubiläumslisteTabelle &liste = Jubiläumsliste;
    ASSERT_EQ(liste.Anzahl, 2);
    for (int i = 0; i < 2; ++i) {
        const Person &p = leute[static_cast<std::size_t>(1 - i)];
        EXPECT_EQ(liste.Vorname[i], p.Vorname);
        EXPECT_EQ(liste.Nachname[i], p.Nachname);
        EXPECT_EQ(liste.Eintrittsdatum[i], DatumAus(p.Eintritt));
        EXPECT_EQ(liste.Jahre[i], p.Jahre);
        EXPECT_EQ(liste.Telefon[i], p.Telefon);
        EXPECT_EQ(liste.Straße[i], p.Straße);
        EXPECT_EQ(liste.Ort[i], std::to_string(p.Plz) + " " + p.Ort);
    }
}

// Two rows: one pass. Three: two passes, ABC -> BCA -> CAB.
TEST_F(JubiGebuTest, GleicheDatenTauschenBeiJedemDurchgang)
{
    for (const auto &[name, folge] : {std::pair{"A", "A"}, {"B", "B A"}, {"C", "C A B"}}) {
        Eingetreten(name, {2020, 5, 17});
        EXPECT_EQ(Jubiläen(6), folge);
    }
    // Four: three passes, ABCD -> BCDA -> CDAB -> DABC.
    Eingetreten("D", {2020, 5, 17});
    EXPECT_EQ(Jubiläen(6), "D A B C");
}

TEST_F(JubiGebuTest, OhneJubiläumBleibtEineLeereZeile)
{
    Eingetreten("Anna", {2020, 5, 17});
    Jubiläen(6);
    EXPECT_EQ(Jubiläen(7), "");
    JubiläumslisteTabelle &liste = Jubiläumsliste;
    EXPECT_EQ(liste.Anzahl, 1);
    for (int i : {0, 1, 600}) {
        EXPECT_EQ(liste.Vorname[i] + liste.Nachname[i] + liste.Telefon[i] + liste.Straße[i] +
                      liste.Ort[i],
                  "");
        EXPECT_EQ(liste.Eintrittsdatum[i], Heute);
        EXPECT_EQ(liste.Jahre[i], 0);
    }
}

TEST_F(JubiGebuTest, HelferHabenKeinJubiläum)
{
    NeuerHelfer("Lea", {1980, 3, 4});
    EXPECT_EQ(Jubiläen(15), "");
}

} // namespace
} // namespace altardienst
