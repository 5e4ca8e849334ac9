// Each field of each file by the number of its line, and the shape of the files.
#include "core/Dateien.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"
#include "core/Umwandlung.h"

#include <algorithm>
#include <cstdio>

namespace altardienst {
namespace {

class DateienTest : public Prüfstand {};

/// The value of field number `nr` (from 1) of a record, and how it looks on its line. No two fields
/// of a record have the same value.
struct Feldwert {
    int Nr = 0;
    int Satz = 0;

    Text AlsText() const { return "S" + ZahlText(Satz) + "F" + ZahlText(Nr); }
    int AlsZahl() const { return Satz * 30 + Nr; }
    Single AlsSingle() const { return static_cast<Single>(AlsZahl()) + 0.5F; }
    Datum AlsDatum() const { return DatumAus({1900 + Nr, 1 + Satz % 12, 1 + Satz % 28}); }
    Datum AlsZeit() const { return ZeitAus(Satz * 60 + Nr); }

    std::string Zeile(char art) const
    {
        char zeile[32] = "";
        switch (art) {
        case 'N':
        case 'L':
            return " " + std::to_string(AlsZahl()) + " ";
        case 'S':
            return " " + std::to_string(AlsZahl()) + ",5 ";
        case 'D':
            std::snprintf(zeile, sizeof zeile, "%02d.%02d.%04d", 1 + Satz % 28, 1 + Satz % 12,
                          1900 + Nr);
            return zeile;
        case 'Z':
            std::snprintf(zeile, sizeof zeile, "%02d:%02d:%02d", Satz / 60, Satz % 60, Nr);
            return zeile;
        default:
            return AlsText();
        }
    }
};

struct Setzen : Feldwert {
    void operator()(Text &wert) { ++Nr, wert = AlsText(); }
    void operator()(Int16 &wert) { ++Nr, wert = AlsZahl(); }
    void operator()(Int32 &wert) { ++Nr, wert = AlsZahl(); }
    void operator()(Single &wert) { ++Nr, wert = AlsSingle(); }
    void operator()(Datum &wert) { ++Nr, wert = AlsDatum(); }
    void Zeit(Datum &wert) { ++Nr, wert = AlsZeit(); }
};

struct Vergleichen : Feldwert {
    template <class T, class S> void Gleich(const T &wert, const S &soll)
    {
        EXPECT_EQ(wert, soll) << "field " << Nr << " of record " << Satz;
    }
    void operator()(Text &wert) { ++Nr, Gleich(wert, AlsText()); }
    void operator()(Int16 &wert) { ++Nr, Gleich(wert, AlsZahl()); }
    void operator()(Int32 &wert) { ++Nr, Gleich(wert, AlsZahl()); }
    void operator()(Single &wert) { ++Nr, Gleich(wert, AlsSingle()); }
    void operator()(Datum &wert) { ++Nr, Gleich(wert, AlsDatum()); }
    void Zeit(Datum &wert) { ++Nr, Gleich(wert, AlsZeit()); }
};

template <class Besuch> Besuch Für(int satz)
{
    Besuch besuch;
    besuch.Satz = satz;
    return besuch;
}

/// What is on a line of a record that was never used.
std::string LeereZeile(char art)
{
    switch (art) {
    case 'N':
    case 'L':
    case 'S':
        return " 0 ";
    case 'D':
    case 'Z':
        return "00:00:00";
    case '6':
        return "jjjjjj";
    case '8':
        return "jjjjjjjj";
    case 'A':
        return "jjjjjjjjjjj";
    default:
        return "";
    }
}

TEST_F(DateienTest, StehenInDerFolgeVonLadenUndSpeichern)
{
    for (std::size_t i = 0; i < Dateien.size(); ++i)
        EXPECT_EQ(Dateien[i].Name, Text(Dateiformen()[i].Name));
    const char *gesucht[] = {"konfig.cfg",  "standard.dat", "meßdiener.dat", "messen.dat",
                             "gruppen.dat", "helfer.dat",   "etiketten.dat", "meßdienermesse.dat"};
    for (std::size_t i = 0; i < Dateien.size(); ++i)
        EXPECT_EQ(Dateien[i].Suche, Text(gesucht[i]));
}

TEST_F(DateienTest, DieFormIstVonAnzahlUnabhängig)
{
    for (int datei = DateiKonfig; datei <= DateiMesseDienerFest; ++datei) {
        const Dateiform &form = Dateiformen()[static_cast<std::size_t>(datei)];
        ASSERT_EQ(form.Kopfzeilen() + form.Datensätze * form.Satzzeilen(), form.Zeilen);
        std::string inhalt = InhaltVon(datei);
        EXPECT_TRUE(inhalt.ends_with("\r\n"));
        EXPECT_EQ(std::ranges::count(inhalt, '\n'), form.Zeilen) << form.Name;
        EXPECT_EQ(std::ranges::count(inhalt, '\r'), form.Zeilen) << form.Name;
        Meßdiener.Anzahl = Messe.Anzahl = Helfer.Anzahl = 150;
        Gruppe.Anzahl = MesseDienerFest.Anzahl = 50;
        inhalt = InhaltVon(datei);
        EXPECT_EQ(std::ranges::count(inhalt, '\n'), form.Zeilen) << form.Name;
    }
}

TEST_F(DateienTest, NieBenutzteSätzeStehenAlsLeereZeilenNullenUndUhrNull)
{
    for (int datei = DateiStandardmesse; datei <= DateiMesseDienerFest; ++datei) {
        const Dateiform &form = Dateiformen()[static_cast<std::size_t>(datei)];
        std::vector<std::string> zeilen = ZeilenVon(InhaltVon(datei));
        ASSERT_EQ(static_cast<int>(zeilen.size()), form.Zeilen);
        for (int z = 0; z < form.Zeilen; ++z)
            ASSERT_EQ(zeilen[static_cast<std::size_t>(z)], LeereZeile(form.Art(z)))
                << form.Name << " line " << z + 1;
    }
}

/// Sets one record of a table, expects each of its fields on its own line and none of it elsewhere,
/// and expects to read the record back from there.
void PrüfeSatz(int datei, int satz)
{
    const Dateiform &form = Dateiformen()[static_cast<std::size_t>(datei)];
    SCOPED_TRACE(std::string(form.Name) + " record " + std::to_string(satz));
    TabellenLeeren();
    auto leer = ZeilenVon(InhaltVon(datei));
    SatzFelder(datei, satz, Für<Setzen>(satz));
    std::string inhalt = InhaltVon(datei);
    auto zeilen = ZeilenVon(inhalt);
    ASSERT_EQ(static_cast<int>(zeilen.size()), form.Zeilen);
    int anfang = form.Kopfzeilen() + satz * form.Satzzeilen();
    auto wert = Für<Feldwert>(satz);
    for (int z = 0; z < form.Zeilen; ++z) {
        auto stelle = static_cast<std::size_t>(z);
        if (z < anfang || z >= anfang + form.Satzzeilen()) {
            ASSERT_EQ(zeilen[stelle], leer[stelle]) << "line " << z + 1;
            continue;
        }
        ++wert.Nr;
        EXPECT_EQ(zeilen[stelle], wert.Zeile(form.Art(z))) << "line " << z + 1;
    }
    TabellenLeeren();
    EXPECT_EQ(Einlesen(datei, inhalt), 0);
    auto vergleichen = Für<Vergleichen>(satz);
    SatzFelder(datei, satz, vergleichen);
    EXPECT_EQ(vergleichen.Nr, form.Satzzeilen());
    EXPECT_EQ(InhaltVon(datei), inhalt);
}

TEST_F(DateienTest, JedesFeldStehtAufSeinerZeile)
{
    PrüfeSatz(DateiKonfig, 0);
    for (int datei = DateiStandardmesse; datei <= DateiMesseDienerFest; ++datei)
        for (int satz : {0, 1, 7, Dateiformen()[static_cast<std::size_t>(datei)].Datensätze - 1})
            PrüfeSatz(datei, satz);
}

TEST_F(DateienTest, DerKopfIstCursorUndAnzahl)
{
    Meßdiener.Cursor = 1, Meßdiener.Anzahl = 2;
    Messe.Cursor = 3, Messe.Anzahl = 4;
    Gruppe.Cursor = 5, Gruppe.Anzahl = 6;
    Helfer.Cursor = 7, Helfer.Anzahl = 8;
    MesseDienerFest.Cursor = 9, MesseDienerFest.Anzahl = 10;
    Standardmesse.Anzahl = 11;
    Etikett.Anzahl = 12;
    std::vector<std::string> köpfe;
    std::vector<std::string> inhalte;
    for (int datei = DateiStandardmesse; datei <= DateiMesseDienerFest; ++datei) {
        inhalte.push_back(InhaltVon(datei));
        auto zeilen = ZeilenVon(inhalte.back());
        for (int z = 0; z < Dateiformen()[static_cast<std::size_t>(datei)].Kopfzeilen(); ++z)
            köpfe.push_back(zeilen[static_cast<std::size_t>(z)]);
    }
    EXPECT_EQ(köpfe, (std::vector<std::string>{" 11 ", " 1 ", " 2 ", " 3 ", " 4 ", " 5 ", " 6 ",
                                               " 7 ", " 8 ", " 12 ", " 9 ", " 10 "}));
    TabellenLeeren();
    for (int datei = DateiStandardmesse; datei <= DateiMesseDienerFest; ++datei)
        EXPECT_EQ(Einlesen(datei, inhalte[static_cast<std::size_t>(datei - 1)]), 0);
    EXPECT_EQ(Meßdiener.Cursor * 100 + Meßdiener.Anzahl, 102);
    EXPECT_EQ(Messe.Cursor * 100 + Messe.Anzahl, 304);
    EXPECT_EQ(Gruppe.Cursor * 100 + Gruppe.Anzahl, 506);
    EXPECT_EQ(Helfer.Cursor * 100 + Helfer.Anzahl, 708);
    EXPECT_EQ(MesseDienerFest.Cursor * 100 + MesseDienerFest.Anzahl, 910);
    EXPECT_EQ(Standardmesse.Anzahl, 11);
    EXPECT_EQ(Etikett.Anzahl, 12);
}

TEST_F(DateienTest, DieObersten2PlätzeVonVierTabellenSindNichtInDerDatei)
{
    std::array<std::string, 8> leer;
    for (int datei = 0; datei < 8; ++datei)
        leer[static_cast<std::size_t>(datei)] = InhaltVon(datei);
    for (int i : {401, 402})
        MeßdienerFelder(i, Für<Setzen>(i));
    for (int i : {21, 22}) {
        StandardmesseFelder(i, Für<Setzen>(i));
        EtikettFelder(i, Für<Setzen>(i));
    }
    for (int i : {201, 202})
        HelferFelder(i, Für<Setzen>(i));
    for (int i = 401; i <= 602; ++i)
        MesseDienerFestFelder(i, Für<Setzen>(i % 100));
    for (int datei = 0; datei < 8; ++datei) {
        EXPECT_EQ(InhaltVon(datei), leer[static_cast<std::size_t>(datei)]);
        EXPECT_EQ(Einlesen(datei, leer[static_cast<std::size_t>(datei)]), 0);
    }
    for (int i : {401, 402})
        MeßdienerFelder(i, Für<Vergleichen>(i));
    for (int i : {201, 202})
        HelferFelder(i, Für<Vergleichen>(i));
    MesseDienerFestFelder(401, Für<Vergleichen>(1));
}

TEST_F(DateienTest, SpaltenNurImSpeicherStehenNichtInDerDatei)
{
    std::string meßdiener = InhaltVon(DateiMeßdiener);
    std::string fest = InhaltVon(DateiMesseDienerFest);
    std::string helfer = InhaltVon(DateiHelfer);
    std::string konfig = InhaltVon(DateiKonfig);
    Meßdiener.Belegt[0] = Meßdiener.DienstZähler[0] = 1;
    Meßdiener.LetzterDienst[0] = Heute;
    Helfer.Belegt[0] = 1;
    Helfer.LetzterDienst[0] = Heute;
    MesseDienerFest.Index[0] = 4;
    MesseDienerFest.Vorname[0][0] = MesseDienerFest.Nachname[0][0] = "Anna";
    MesseDienerFest.Dienst[0][0] = "Leuchter";
    Konfig.StartDatum = Heute;
    EXPECT_EQ(InhaltVon(DateiMeßdiener), meßdiener);
    EXPECT_EQ(InhaltVon(DateiMesseDienerFest), fest);
    EXPECT_EQ(InhaltVon(DateiHelfer), helfer);
    EXPECT_EQ(InhaltVon(DateiKonfig), konfig);
    for (int datei : {DateiMeßdiener, DateiMesseDienerFest, DateiHelfer, DateiKonfig})
        EXPECT_EQ(Einlesen(datei, InhaltVon(datei)), 0);
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(MesseDienerFest.Index[0], 4);
    EXPECT_EQ(MesseDienerFest.Vorname[0][0], "Anna");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(DateienTest, ResteÜberAnzahlWerdenMitgeschriebenUndGelesen)
{
    Meßdiener.Anzahl = 1;
    Meßdiener.Vorname[0] = "Anna";
    Meßdiener.Vorname[1] = "Rest";
    std::string inhalt = InhaltVon(DateiMeßdiener);
    EXPECT_EQ(ZeilenVon(inhalt)[2 + 27], "Rest");
    TabellenLeeren();
    EXPECT_EQ(Einlesen(DateiMeßdiener, inhalt), 0);
    EXPECT_EQ(Meßdiener.Anzahl, 1);
    EXPECT_EQ(Meßdiener.Vorname[1], "Rest");
}

TEST_F(DateienTest, DerDienstVonSlotEinsStehtInDerDrittenZeileDerSlots)
{
    Messe.DienerDienst[0][0] = "Gabenbereitung";
    Messe.DienerVor[0][1] = "Anna";
    auto zeilen = ZeilenVon(InhaltVon(DateiMesse));
    EXPECT_EQ(zeilen[2 + 11], "");
    EXPECT_EQ(zeilen[2 + 12], "");
    EXPECT_EQ(zeilen[2 + 13], "Gabenbereitung");
    EXPECT_EQ(zeilen[2 + 14], "Anna");
}

} // namespace
} // namespace altardienst
