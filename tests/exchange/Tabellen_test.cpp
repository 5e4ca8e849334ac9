// Lists out, and in again.
#include "exchange/Tabellen.h"

#include "Prüfstand.h"
#include "core/Dateien.h"
#include "core/Tabellentext.h"
#include "exchange/Einlesen.h"
#include "exchange/Feldlesen.h"
#include "fairness/Archiv.h"
#include "overview/Platz.h"

#include <numeric>
#include <random>

namespace altardienst {
namespace {

using TabellenTest = Prüfstand;
using Liste = std::vector<Text>;

std::vector<int> Alle(Tabellenart art)
{
    std::vector<int> spalten(Tabellenspalten(art).size());
    std::iota(spalten.begin(), spalten.end(), 0);
    return spalten;
}

Text OhneMarke(const std::string &bytes)
{
    EXPECT_TRUE(bytes.starts_with(Utf8Marke));
    return bytes.substr(Utf8Marke.size());
}

TEST_F(TabellenTest, DieGewähltenSpaltenMitMarkeUndStrichpunkten)
{
    MeßdienerAnlegen("Änne", "Groß; Weiß");
    Meßdiener.Telefon[0] = "017012345";
    Meßdiener.PLZ[0] = 1067;
    Meßdiener.Geburtstag[0] = DatumAus({2012, 1, 6});
    EXPECT_EQ(OhneMarke(Tabellendatei(Tabellenart::Diener, {0, 1, 3, 5, 7, 9})),
              "Vorname;Nachname;PLZ;Telefon;Geburtstag;Größe\r\n"
              "Änne;\"Groß; Weiß\";\"=\"\"01067\"\"\";\"=\"\"017012345\"\"\";06.01.2012;160\r\n");
    EXPECT_EQ(Tabellenzeilen(Tabellenart::Diener), 1);
}

/// Whatever a file that was written by hand holds, no spreadsheet takes it for a formula.
TEST_F(TabellenTest, KeinTextEinesMenschenIstEineFormel)
{
    const Text formel = "=HYPERLINK(1)";
    MeßdienerAnlegen(formel, formel);
    for (auto feld :
         {&MeßdienerTabelle::Straße, &MeßdienerTabelle::Ort, &MeßdienerTabelle::Telefon,
          &MeßdienerTabelle::EMail, &MeßdienerTabelle::Geschlecht, &MeßdienerTabelle::Gruppe,
          &MeßdienerTabelle::WunschVorname, &MeßdienerTabelle::WunschNachname})
        (Meßdiener.*feld)[0] = formel;
    const std::string bytes = Tabellendatei(Tabellenart::Diener, Alle(Tabellenart::Diener));
    EXPECT_EQ(bytes.find(";=HYPER"), std::string::npos);
    std::size_t texte = 0;
    for (std::size_t k = bytes.find("=HYPER"); k != std::string::npos;
         k = bytes.find("=HYPER", k + 1), ++texte)
        EXPECT_TRUE(bytes.substr(0, k).ends_with("\"=\"\"")) << k;
    EXPECT_EQ(texte, 10U);
}

class PlanTabellenTest : public Prüfstand {
  protected:
    PlanTabellenTest()
    {
        MesseMitDienern(DatumAus({2026, 11, 28}), 3, ZeitAus(18 * 3600 + 1800));
        Messe.Messeart[0] = "Vorabendmesse";
        Messe.Leuchter[0] = 2;
        Messe.LektorZahl[0] = 1;
        Besetzen(Messe, Dienerplatznr(0, 1), "Kim", "Adler");
        Besetzen(Messe, Dienerplatznr(0, 2), "Änne", "Groß");
        Besetzen(Messe, Dienerplatznr(0, 4), "Beyond", "Count");
        Besetzen(Messe, Helferplatznr(0, 0), "Maria", "Linde");
        MesseMitDienern(DatumAus({2026, 11, 29}), 1);
    }
};

TEST_F(PlanTabellenTest, EineZeileJeDienst)
{
    EXPECT_EQ(OhneMarke(Tabellendatei(Tabellenart::Dienste, Alle(Tabellenart::Dienste))),
              "Wochentag;Datum;Uhrzeit;Messe;Vorname;Nachname;Dienst;Art\r\n"
              "Samstag;28.11.2026;18:30;Vorabendmesse;Kim;Adler;Leuchter;Meßdiener\r\n"
              "Samstag;28.11.2026;18:30;Vorabendmesse;Änne;Groß;Leuchter;Meßdiener\r\n"
              "Samstag;28.11.2026;18:30;Vorabendmesse;Maria;Linde;Lektor;Helfer\r\n");
    EXPECT_EQ(Tabellenzeilen(Tabellenart::Dienste), 3);
}

TEST_F(PlanTabellenTest, EineZeileJeMesse)
{
    EXPECT_EQ(OhneMarke(Tabellendatei(Tabellenart::Messen, {1, 2, 3, 5, 9, 10})),
              "Datum;Uhrzeit;Messe;Leuchter;Allgemein;Lektor\r\n"
              "28.11.2026;18:30;Vorabendmesse;\"Kim Adler, Änne Groß\";;Maria Linde\r\n"
              "29.11.2026;10:00;Messe;;;\r\n");
    EXPECT_EQ(Tabellenzeilen(Tabellenart::Messen), 2);
}

TEST_F(PlanTabellenTest, DieDiensteSindDieDesArchivs)
{
    const std::string bytes = Tabellendatei(Tabellenart::Dienste, {1, 2, 3, 4, 5, 6});
    const Tabellenblatt blatt = TabelleLesen(bytes);
    const auto dienste = DiensteDesPlans(GemeinsameTabellen());
    ASSERT_EQ(blatt.Zeilen.size(), dienste.size() + 1);
    for (std::size_t k = 0; k < dienste.size(); ++k) {
        EXPECT_EQ(blatt.Zeilen[k + 1][3], dienste[k].Vorname);
        EXPECT_EQ(blatt.Zeilen[k + 1][4], dienste[k].Nachname);
        EXPECT_EQ(blatt.Zeilen[k + 1][5], dienste[k].Dienst);
    }
}

TEST_F(PlanTabellenTest, OhneDatumStehtKeinesDarin)
{
    Messe.Datum[0] = 0;
    EXPECT_NE(Tabellendatei(Tabellenart::Dienste, {0, 1, 2, 5}).find("\n?;?;?;Adler"),
              std::string::npos);
}

TEST_F(PlanTabellenTest, EinUnmöglichesDatumHältNichtsAuf)
{
    Messe.Datum[0] = 1e9;
    EXPECT_NE(Tabellendatei(Tabellenart::Dienste, {1, 5}).find("?;Adler"), std::string::npos);
}

TEST_F(TabellenTest, DieÜblichenSpaltenGibtEs)
{
    for (const Tabellenart art : Tabellenarten) {
        const Liste alle = Tabellenspalten(art);
        for (const Text &spalte : ÜblicheTabellenspalten(art))
            EXPECT_EQ(std::ranges::count(alle, spalte), 1) << spalte;
        EXPECT_TRUE(Tabellendateiname(art).ends_with(".csv"));
    }
    // Nothing of a person that is not needed to know who is meant.
    EXPECT_EQ(ÜblicheTabellenspalten(Tabellenart::Diener),
              (Liste{"Vorname", "Nachname", "Gruppe"}));
}

/// Random records such as the forms leave behind, and as closing them by the close box does: that
/// asks for no other name.
class Zufallsleute {
  public:
    explicit Zufallsleute(unsigned saat) : zufall(saat) {}

    int Bis(int höchste) { return static_cast<int>(zufall() % static_cast<unsigned>(höchste + 1)); }

    Text Wort(bool diener)
    {
        static const Liste stücke = {"Anna", "Kim",  "ä",  "ß",  "0170",  "7",        " ",  "-",
                                     "+49",  "Mai",  ";",  "\"", "'",     "=",        "@x", "wahr",
                                     ".",    "1.2.", "/5", "€",  "Große", "\xC2\xA0", ":",  ","};
        Text wort;
        do {
            wort.clear();
            for (int k = Bis(4); k > 0; --k)
                wort += stücke[static_cast<std::size_t>(Bis(static_cast<int>(stücke.size()) - 1))];
        } while (diener && !DienertextAusFeld(wort).Zweifel.empty());
        return wort;
    }

    /// Some have one name only, and few are nobody.
    void Name(Text &vorname, Text &nachname, bool diener)
    {
        do {
            vorname = Wort(diener);
            nachname = Wort(diener);
        } while (vorname.empty() && nachname.empty());
    }

    /// From the year 100 on, and long after today.
    Datum Tag() { return Bis(2) == 0 ? 0 : Bis(9) == 0 ? Bis(3'000'000) - 600'000 : Bis(46000); }

    /// One of the usual answers, or what else a box takes.
    Text Antwort(const Liste &übliche, bool diener)
    {
        return Bis(9) == 0 ? Wort(diener)
                           : übliche.at(static_cast<std::size_t>(
                                 Bis(static_cast<int>(übliche.size()) - 1)));
    }

    Text Flaggen(int zahl)
    {
        Text flaggen;
        for (int k = 0; k < zahl; ++k)
            flaggen += Bis(1) == 0 ? 'j' : 'n';
        return flaggen;
    }

  private:
    std::mt19937 zufall;
};

/// Now and then one who has the name of another, the birthday too, or all that the other has.
template <class Tabelle> void Namensvetter(Tabelle &t, int i, Zufallsleute &leute)
{
    if (i == 0 || leute.Bis(7) > 0)
        return;
    const int anderer = leute.Bis(i - 1);
    const int wieSehr = leute.Bis(2);
    if (wieSehr == 2)
        FelderÜbernehmen(t.Felder(), i, anderer);
    t.Vorname[i] = t.Vorname[anderer];
    t.Nachname[i] = t.Nachname[anderer];
    if (wieSehr == 1)
        t.Geburtstag[i] = t.Geburtstag[anderer];
}

template <class Tabelle> void Adresse(Tabelle &t, int i, Zufallsleute &leute, bool diener)
{
    leute.Name(t.Vorname[i], t.Nachname[i], diener);
    t.Straße[i] = leute.Wort(diener);
    t.PLZ[i] = leute.Bis(1) * leute.Bis(99999);
    t.Ort[i] = leute.Wort(diener);
    t.Telefon[i] = leute.Wort(diener);
    t.EMail[i] = leute.Wort(diener);
    t.Geburtstag[i] = leute.Tag();
}

void DienerErfinden(Zufallsleute &leute, int i)
{
    Adresse(Meßdiener, i, leute, true);
    Meßdiener.Geschlecht[i] = leute.Antwort({"", "männlich", "weiblich", "divers"}, true);
    Meßdiener.Größe[i] = leute.Bis(9) == 0 ? 0 : 5 + leute.Bis(245);
    Meßdiener.Eintrittsdatum[i] = leute.Tag();
    Meßdiener.Gruppe[i] = Gruppe.Bezeichnung[leute.Bis(Gruppe.Anzahl)];
    Meßdiener.Qualifikation[i] = leute.Flaggen(6);
    Meßdiener.Wochendienst[i] = leute.Flaggen(6) + "jj";
    for (auto *spalte :
         {&Meßdiener.Von1, &Meßdiener.Bis1, &Meßdiener.Von2, &Meßdiener.Bis2, &Meßdiener.Von3,
          &Meßdiener.Bis3, &Meßdiener.Von4, &Meßdiener.Bis4, &Meßdiener.Von5, &Meßdiener.Bis5})
        (*spalte)[i] = leute.Tag();
    Meßdiener.WunschVorname[i] = leute.Wort(true);
    Meßdiener.WunschNachname[i] = leute.Wort(true);
    Meßdiener.Häufigkeit[i] = leute.Bis(20);
    Namensvetter(Meßdiener, i, leute);
}

void HelferErfinden(Zufallsleute &leute, int i)
{
    Adresse(Helfer, i, leute, false);
    for (auto *dienst : {&Helfer.Dienst1, &Helfer.Dienst2})
        (*dienst)[i] = leute.Antwort(
            {"", "Lektor", "Kommunionhelfer", "Kantor", "Kollektant", "Küster"}, false);
    for (auto *spalte :
         {&Helfer.Von1, &Helfer.Bis1, &Helfer.Von2, &Helfer.Bis2, &Helfer.Von3, &Helfer.Bis3})
        (*spalte)[i] = leute.Tag();
    Namensvetter(Helfer, i, leute);
}

std::string Inhalt()
{
    std::string inhalt;
    for (const Dateinummer nummer : {DateiMeßdiener, DateiHelfer, DateiGruppe})
        DateiMit(nummer).Schreiben(inhalt);
    return inhalt;
}

std::vector<Vorschauzeile> WiederEinlesen(Personenart art, const std::string &bytes)
{
    Tabellenblatt blatt = TabelleLesen(bytes);
    EXPECT_EQ(blatt.Mangel, "");
    EXPECT_EQ(Kopfzeile(blatt.Zeilen, art), 0);
    Einleseauftrag auftrag{.Art = art, .Spalten = ZuordnungNach(blatt.Zeilen.front(), art)};
    auftrag.Zeilen.assign(blatt.Zeilen.begin() + 1, blatt.Zeilen.end());
    auto vorschau = EinlesenPrüfen(auftrag);
    for (const Vorschauzeile &zeile : vorschau)
        EXPECT_FALSE(zeile.Unmöglich) << zeile.Zeile << ": " << zeile.Zweifel.front();
    EXPECT_EQ(KeinPlatzFür(auftrag, vorschau), "");
    Einlesen(auftrag, vorschau);
    return vorschau;
}

TEST_F(TabellenTest, TausendBeständeHinausUndHereinSindGleich)
{
    for (unsigned saat = 1; saat <= 1000; ++saat) {
        TabellenLeeren();
        Zufallsleute leute(saat);
        Gruppe.Anzahl = leute.Bis(5);
        for (int i = 0; i < Gruppe.Anzahl; ++i)
            do
                Gruppe.Bezeichnung[i] = leute.Wort(true);
            while (Gruppe.Bezeichnung[i].empty());
        const int höchste = saat % 50 == 0 ? 200 : 20;
        const int diener = leute.Bis(höchste);
        for (Meßdiener.Anzahl = 0; Meßdiener.Anzahl < diener; ++Meßdiener.Anzahl)
            DienerErfinden(leute, Meßdiener.Anzahl);
        const int helfer = leute.Bis(höchste);
        for (Helfer.Anzahl = 0; Helfer.Anzahl < helfer; ++Helfer.Anzahl)
            HelferErfinden(leute, Helfer.Anzahl);

        const std::string vorher = Inhalt();
        const std::string dienerliste =
            Tabellendatei(Tabellenart::Diener, Alle(Tabellenart::Diener));
        const std::string helferliste =
            Tabellendatei(Tabellenart::Helfer, Alle(Tabellenart::Helfer));
        const GruppeTabelle gruppen = Gruppe;
        TabellenLeeren();
        Gruppe = gruppen;
        WiederEinlesen(Personenart::Diener, dienerliste);
        WiederEinlesen(Personenart::Helfer, helferliste);
        ASSERT_EQ(Inhalt(), vorher) << "seed " << saat;
        for (const auto &[art, liste] : {std::pair(Personenart::Diener, &dienerliste),
                                         std::pair(Personenart::Helfer, &helferliste)})
            for (const Vorschauzeile &zeile : WiederEinlesen(art, *liste))
                ASSERT_EQ(zeile.Was, Vorschauzeile::Stand::Gleich)
                    << "seed " << saat << ", row " << zeile.Zeile << ": "
                    << ÄnderungenText(art, zeile);
    }
}

} // namespace
} // namespace altardienst
