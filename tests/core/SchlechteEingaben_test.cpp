// Files that are cut short, hold something other than they should, or cannot be written.
#include "core/Allgemein.h"
#include "core/Umwandlung.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

#include <algorithm>
#include <random>
#include <set>

namespace altardienst {
namespace {

/// Fills a table so that no two lines of its file are alike in the two fillings "alt" and "neu".
struct Füllen {
    bool Neu;
    int Nr = 0;

    void operator()(Text &wert) { wert = (Neu ? "neu " : "alt ") + ZahlText(++Nr); }
    void operator()(Int16 &wert) { wert = Zahl(1000); }
    void operator()(Int32 &wert) { wert = Zahl(99999); }
    void operator()(Single &wert) { wert = static_cast<Single>(Zahl(1000)) + 0.5F; }
    void operator()(Datum &wert) { wert = (Neu ? 40000 : 30000) + ++Nr % 5000; }
    void Zeit(Datum &wert) { wert = ZeitAus((Neu ? 12 : 1) * 3600 + ++Nr % 3600); }

    int Zahl(int bereich) { return (Neu ? 1 : -1) * (++Nr % bereich + 1); }
};

void Fülle(int datei, bool neu)
{
    Füllen füllen{neu};
    KopfFelder(datei, füllen);
    for (int i = 0; i < Dateiformen()[static_cast<std::size_t>(datei)].Datensätze; ++i)
        SatzFelder(datei, i, füllen);
}

/// One file with both fillings, and what the table must hold after a load that ends early.
class Schnitt {
  public:
    explicit Schnitt(int datei) : datei(datei), form(Dateiformen()[static_cast<std::size_t>(datei)])
    {
        Fülle(datei, true);
        Neu = InhaltVon(datei);
        Fülle(datei, false);
        Alt = InhaltVon(datei);
        Anfänge(Neu, AnfängeNeu);
        Anfänge(Alt, AnfängeAlt);
    }

    /// The first `zeilen` lines of the new filling.
    std::string Erste(int zeilen) const { return Neu.substr(0, Von(AnfängeNeu, zeilen)); }

    /// The table's file when the first `zeilen` lines were read and the rest stayed.
    std::string Gemischt(int zeilen, const std::string &dazwischen = {}) const
    {
        int weiter = zeilen + !dazwischen.empty();
        return Erste(zeilen) + dazwischen + Alt.substr(Von(AnfängeAlt, weiter));
    }

    /// Whether a file may end after this many lines.
    bool DarfEnden(int zeilen) const
    {
        if (datei == DateiKonfig)
            return std::set{15, 16, 18, 19, 20, 28, 29}.contains(zeilen);
        if (datei == DateiHelfer)
            return zeilen == form.Zeilen;
        return zeilen >= form.Kopfzeilen() && (zeilen - form.Kopfzeilen()) % form.Satzzeilen() == 0;
    }

    /// Loads `inhalt` over the old filling and expects the failure and the lines that were read.
    void Prüfe(const std::string &inhalt, int fehler, int zeilen,
               const std::string &dazwischen = {}) const
    {
        if (!frisch)
            Fülle(datei, false);
        frisch = zeilen == 0 && dazwischen.empty();
        ASSERT_EQ(Einlesen(datei, inhalt), fehler) << form.Name << " after line " << zeilen;
        ASSERT_TRUE(InhaltVon(datei) == Gemischt(zeilen, dazwischen))
            << form.Name << " after line " << zeilen;
    }

    /// Lines worth trying: all of a small file; in a large one those of the first two records, of
    /// the last, and some in between.
    std::vector<int> Zeilen() const
    {
        std::vector<int> zeilen;
        for (int z = 0; z <= form.Zeilen; ++z)
            if (z < 330 || z > form.Zeilen - 100 || z % 1777 == 0)
                if (form.Zeilen < 11000 || z < form.Kopfzeilen() + 2 * form.Satzzeilen() ||
                    z > form.Zeilen - form.Satzzeilen() - 2 || z % 1777 == 0)
                    zeilen.push_back(z);
        return zeilen;
    }

    /// How a part of line `zeile` (from 0) is read: the failure, or the line as written again.
    int Teil(int zeile, std::string teil, std::string &zeileNeu) const
    {
        if (teil.ends_with('\r'))
            teil.pop_back();
        zeileNeu.clear();
        return NummerDesFehlers([&] {
            Feldschreiber schreiben(zeileNeu);
            switch (form.Art(zeile)) {
            case 'N':
                return schreiben(Int16Lesen(teil));
            case 'L':
                return schreiben(Int32Lesen(teil));
            case 'S':
                return schreiben(SingleLesen(teil));
            case 'D':
            case 'Z':
                return schreiben(DatumLesen(teil));
            default:
                return schreiben(teil);
            }
        });
    }

    int datei;
    const Dateiform &form;
    std::string Neu;
    std::string Alt;
    std::vector<std::size_t> AnfängeNeu;
    std::vector<std::size_t> AnfängeAlt;

  private:
    static void Anfänge(const std::string &inhalt, std::vector<std::size_t> &anfänge)
    {
        anfänge.push_back(0);
        for (std::size_t i = 0; (i = inhalt.find('\n', i)) != std::string::npos;)
            anfänge.push_back(++i);
    }
    static std::size_t Von(const std::vector<std::size_t> &anfänge, int zeile)
    {
        return anfänge[static_cast<std::size_t>(zeile)];
    }

    mutable bool frisch = true;
};

class SchlechteEingaben : public Prüfstand, public ::testing::WithParamInterface<int> {
  protected:
    Schnitt schnitt{GetParam()};
};

TEST_P(SchlechteEingaben, AmZeilenendeAbgeschnitten)
{
    ASSERT_EQ(static_cast<int>(schnitt.AnfängeNeu.size()), schnitt.form.Zeilen + 1);
    for (int z : schnitt.Zeilen())
        ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(schnitt.Erste(z), schnitt.DarfEnden(z) ? 0 : 62, z));
}

TEST_P(SchlechteEingaben, AnIrgendeinemByteAbgeschnitten)
{
    std::mt19937 zufall(12);
    for (int runde = 0; runde < 500; ++runde) {
        // Half of the cuts are in the first lines, where the kinds of fields change.
        std::size_t bereich =
            runde % 2 == 0 ? schnitt.Neu.size() : std::min<std::size_t>(schnitt.Neu.size(), 3000);
        std::size_t stelle = zufall() % bereich;
        auto hinter = std::ranges::upper_bound(schnitt.AnfängeNeu, stelle);
        int zeile = static_cast<int>(hinter - schnitt.AnfängeNeu.begin()) - 1;
        std::string teil = schnitt.Neu.substr(*(hinter - 1), stelle - *(hinter - 1));
        std::string inhalt = schnitt.Neu.substr(0, stelle);
        if (teil.empty()) {
            schnitt.Prüfe(inhalt, schnitt.DarfEnden(zeile) ? 0 : 62, zeile);
            continue;
        }
        std::string zeileNeu;
        int fehler = schnitt.Teil(zeile, teil, zeileNeu);
        if (fehler != 0) {
            ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(inhalt, fehler, zeile)) << teil;
        } else {
            ASSERT_NO_FATAL_FAILURE(
                schnitt.Prüfe(inhalt, schnitt.DarfEnden(zeile + 1) ? 0 : 62, zeile, zeileNeu))
                << teil;
        }
    }
}

/// What replaces a value, and the failure it causes for each kind of field.
struct Ersatz {
    std::string Text;
    int FürInt16, FürInt32, FürSingle, FürDatum;
};

TEST_P(SchlechteEingaben, FalscheWerteHaltenDasLadenAnIhrerZeileAn)
{
    const std::vector<Ersatz> ersatze = {
        {"abc", 13, 13, 13, 13},      {"", 13, 13, 13, 13},     {" ", 13, 13, 13, 13},
        {" 32768 ", 6, 0, 0, 13},     {"-32769 ", 6, 0, 0, 13}, {" 2147483648 ", 6, 6, 0, 13},
        {" 1E39 ", 6, 6, 6, 13},      {" 5x ", 13, 13, 13, 13}, {"31.02.2026", 13, 13, 13, 13},
        {"24:00:00", 13, 13, 13, 13},
    };
    int versuch = 0;
    for (int z : schnitt.Zeilen()) {
        if (z == schnitt.form.Zeilen)
            continue;
        char art = schnitt.form.Art(z);
        if (std::string("NLSDZ").find(art) == std::string::npos)
            continue;
        const Ersatz &ersatz = ersatze[static_cast<std::size_t>(versuch++) % ersatze.size()];
        int fehler = art == 'N'   ? ersatz.FürInt16
                     : art == 'L' ? ersatz.FürInt32
                     : art == 'S' ? ersatz.FürSingle
                                  : ersatz.FürDatum;
        if (fehler == 0)
            continue;
        std::string inhalt =
            schnitt.Erste(z) + ersatz.Text + "\r\n" +
            schnitt.Neu.substr(schnitt.AnfängeNeu[static_cast<std::size_t>(z) + 1]);
        ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(inhalt, fehler, z)) << ersatz.Text;
    }
}

TEST_P(SchlechteEingaben, ZeilenVonEinemMegabyte)
{
    constexpr std::size_t megabyte = 1 << 20;
    for (int z : schnitt.Zeilen()) {
        if (z > schnitt.form.Kopfzeilen() + 30 || z == schnitt.form.Zeilen)
            break;
        std::string rest = schnitt.Neu.substr(schnitt.AnfängeNeu[static_cast<std::size_t>(z) + 1]);
        bool text = std::string("T68A").find(schnitt.form.Art(z)) != std::string::npos;
        std::string xe = std::string(megabyte, 'x') + "\r\n";
        if (text) {
            Einlesen(schnitt.datei, schnitt.Erste(z) + xe + rest);
            ASSERT_TRUE(InhaltVon(schnitt.datei) == schnitt.Erste(z) + xe + rest) << z;
            Fülle(schnitt.datei, false);
            continue;
        }
        ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(schnitt.Erste(z) + xe + rest, 13, z));
        std::string neunen = std::string(megabyte, '9') + "\r\n";
        bool datum = std::string("DZ").find(schnitt.form.Art(z)) != std::string::npos;
        ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(schnitt.Erste(z) + neunen + rest, datum ? 13 : 6, z));
        std::string blanks = std::string(megabyte, ' ') + "\r\n";
        ASSERT_NO_FATAL_FAILURE(schnitt.Prüfe(schnitt.Erste(z) + blanks + rest, 13, z));
    }
}

TEST_P(SchlechteEingaben, BeliebigeBytes)
{
    std::mt19937 zufall(13);
    for (int runde = 0; runde < 200; ++runde) {
        std::string inhalt(zufall() % 2000, ' ');
        for (char &byte : inhalt)
            byte = zufall() % 4 == 0 ? "\r\n,\"  5"[zufall() % 7] : static_cast<char>(zufall());
        int fehler = Einlesen(schnitt.datei, inhalt);
        EXPECT_TRUE(fehler == 0 || fehler == 6 || fehler == 13 || fehler == 62) << fehler;
        EXPECT_EQ(std::ranges::count(InhaltVon(schnitt.datei), '\n') >= schnitt.form.Zeilen, true);
    }
}

TEST_P(SchlechteEingaben, EinVerzeichnisAnStelleDerDatei)
{
    const Datei &datei = Dateien[static_cast<std::size_t>(GetParam())];
    TabellenLeeren();
    AufFestplatteSpeichern();
    std::filesystem::remove(Festplatte / PfadAus(datei.Name));
    std::filesystem::create_directory(Festplatte / PfadAus(datei.Name));
    EXPECT_FALSE(Laufwerke.Suchen(Festplatte, datei.Suche)) << "a search for files finds files";
    VonFestplatteLaden();
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "the file is missing";
    EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 75);
}

TEST_P(SchlechteEingaben, DieLeereDateiHältDasLadenOhneEinWortAn)
{
    schnitt.Prüfe("", 62, 0);
    const Datei &datei = Dateien[static_cast<std::size_t>(GetParam())];
    TabellenLeeren();
    AufFestplatteSpeichern();
    DateiSchreiben(Festplatte / PfadAus(datei.Name), "");
    VonFestplatteLaden();
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

INSTANTIATE_TEST_SUITE_P(AlleDateien, SchlechteEingaben, ::testing::Range(0, 8),
                         [](const auto &info) { return "Datei" + std::to_string(info.param + 1); });

} // namespace
} // namespace altardienst
