// Odd input pasted into every box of the six windows: what the box shows, what is stored, and which
// saves it stops.
#include "people/Personenfenster.h"

#include "core/Allgemein.h"
#include "people/HelferModell.h"
#include "people/MeßdienerModell.h"

#include <optional>

namespace altardienst {
namespace {

const Text Stop = "Laufzeitfehler '13': Typen unverträglich";
const Text UnbekannteGruppe = "Die Gruppe ist unbekannt!!";

struct Eingabe {
    Text Getippt;
    Text AlsText; // what a text box makes of it
};

const std::vector<Eingabe> Eingaben = {
    {"Hof 5, links, oben", "Hof 5, links, oben"},
    {"der \"Hof\" 'am' Weg", "der \"Hof\" 'am' Weg"},
    {Text(300, 'x'), Text(300, 'x')},
    {"Łódź 日本", "?ód? ??"},
    {"eins\r\nzwei\ndrei\rvier", "eins zwei drei vier"},
    {"froh 😀", "froh ?"},
    {"abc", "abc"},
    {"", ""},
    {"40000", "40000"},
    {"-1", "-1"},
    {"3000000000", "3000000000"},
    {"31.02.2027", "31.02.2027"},
};

/// What a box of this kind holds once it has been left; nothing if it stops the save. Kinds: T
/// text, B name of a group, G group of a server, L postal code, N height, D date, d date that may
/// not be empty, K record number.
std::optional<Text> Danach(char art, const Eingabe &eingabe)
{
    static const std::map<char, std::map<Text, Text>> Zahlen = {
        {'L', {{"40000", "40000"}, {"-1", "0"}, {"3000000000", "48999"}}},
        {'N', {{"40000", "250"}, {"-1", "5"}, {"3000000000", "250"}}},
        {'K', {{"40000", "3"}, {"-1", "0"}, {"3000000000", "3"}}},
        {'D', {}},
        {'d', {{"", "21.11.2026"}}}};
    if (art == 'T' || art == 'B')
        return eingabe.AlsText;
    if (art == 'G')
        return eingabe.Getippt.empty() ? "" : "Rot";
    const auto &zahlen = Zahlen.at(art);
    const auto zahl = zahlen.find(eingabe.Getippt);
    return zahl == zahlen.end() ? std::nullopt : std::optional(zahl->second);
}

/// A window, the button that saves, the kinds of its boxes in the order of the record's fields
/// ("-": no box to type into), and the record that it writes.
struct Fensterfall {
    const char *Fenster;
    const char *Knopf;
    Text Arten;
    std::vector<const char *> Boxen;
    std::function<std::vector<Text>()> Satz;
};

std::vector<const char *> MeßdienerBoxen()
{
    return {Boxen.begin(), Boxen.end()};
}

std::vector<const char *> HelferBoxen()
{
    return {HelferModell::Boxen.begin(), HelferModell::Boxen.end()};
}

const std::vector<Fensterfall> Fensterfälle = {
    {"Meßdiener", "Ende", "TTTLTTTDTNDG--DDdddddddd---", MeßdienerBoxen(),
     [] { return Datensatz(Meßdiener, 0); }},
    {"NeuMeßdiener", "OKButton", "TTTLTTTDTNDT", MeßdienerBoxen(),
     [] { return Datensatz(Meßdiener, 3); }},
    {"Gruppe", "Ende", "B", {"GBezeichnung"}, [] { return Datensatz(Gruppe, 0); }},
    {"NeuGruppe", "OKButton", "T", {"GBezeichnung"}, [] { return Datensatz(Gruppe, 3); }},
    {"Helfer", "Ende", "TTTLTTTDTTDDdddd", HelferBoxen(), [] { return Datensatz(Helfer, 0); }},
    {"NeuerHelfer", "OKButton", "TTTLTTTDTT", HelferBoxen(), [] { return Datensatz(Helfer, 3); }},
};

// For the test names, which are plain letters.
constexpr std::array<const char *, 6> Fensternamen = {"Diener",    "NeuDiener", "Gruppe",
                                                      "NeuGruppe", "Helfer",    "NeuHelfer"};

class SchlechteEingabenForm : public Personenfenster,
                              public ::testing::WithParamInterface<std::size_t> {
  protected:
    void Prüfen(const Fensterfall &fall, std::size_t k, const Eingabe &eingabe);
};

void SchlechteEingabenForm::Prüfen(const Fensterfall &fall, std::size_t k, const Eingabe &eingabe)
{
    const char *box = fall.Boxen[k];
    SCOPED_TRACE(Text(box) + " <- " + eingabe.Getippt);
    Öffnen(fall.Fenster);
    GezeigteMeldungen.clear();
    auto soll = fall.Satz();
    if (fall.Knopf == Text("OKButton")) // a dialog stores what it shows
        for (std::size_t f = 0; f < fall.Arten.size(); ++f)
            soll[f] = Zeigt(fall.Boxen[f]);
    const std::optional<Text> danach = Danach(fall.Arten[k], eingabe);
    EinfügenAuslösen(box, eingabe.Getippt);
    FokusWeg(box);
    EXPECT_EQ(Zeigt(box), danach.value_or(eingabe.AlsText));
    Auslösen(fall.Knopf);
    std::vector<Text> meldungen;
    if (fall.Arten[k] == 'G' && !eingabe.Getippt.empty())
        meldungen.push_back(UnbekannteGruppe);
    if (!danach)
        meldungen.push_back(Stop);
    EXPECT_EQ(GezeigteMeldungen, meldungen);
    EXPECT_EQ(!form.isNull() && form->isVisible(), !danach);
    if (danach) {
        // The blank slot has no name either, so the save undoes an emptied group name.
        if (fall.Arten[k] != 'B' || !danach->empty())
            soll[k] = *danach;
        EXPECT_EQ(fall.Satz(), soll);
    } else if (fall.Knopf == Text("Ende")) {
        EXPECT_EQ(fall.Satz(), soll);
    }
}

TEST_P(SchlechteEingabenForm, InJedemFeld)
{
    const Fensterfall &fall = Fensterfälle[GetParam()];
    const auto diener = Meßdiener;
    const auto gruppen = Gruppe;
    const auto helfer = Helfer;
    for (std::size_t k = 0; k < fall.Arten.size() && !HasFailure(); ++k)
        for (const Eingabe &eingabe : Eingaben) {
            if (fall.Arten[k] == '-')
                continue;
            Prüfen(fall, k, eingabe);
            Meßdiener = diener; // as before for the next input
            Gruppe = gruppen;
            Helfer = helfer;
        }
}

INSTANTIATE_TEST_SUITE_P(Fenster, SchlechteEingabenForm,
                         ::testing::Range<std::size_t>(0, Fensterfälle.size()),
                         [](const auto &fall) { return Text(Fensternamen[fall.param]); });

class SchlechteNummernForm : public Personenfenster {};

TEST_F(SchlechteNummernForm, ImFeldDerNummer)
{
    for (const auto &[fenster, nummer] : std::map<Text, const char *>{
             {"Meßdiener", "Datensätze"}, {"Gruppe", "Indexi"}, {"Helfer", "Indexen"}})
        for (const Eingabe &eingabe : Eingaben) {
            SCOPED_TRACE(fenster + " <- " + eingabe.Getippt);
            Öffnen(fenster);
            GezeigteMeldungen.clear();
            EinfügenAuslösen(nummer, eingabe.Getippt);
            const auto danach = Danach('K', eingabe);
            EXPECT_EQ(Zeigt(nummer), danach.value_or(eingabe.AlsText));
            Auslösen("Ende");
            EXPECT_EQ(GezeigteMeldungen, std::vector<Text>(danach ? 0 : 1, Stop));
            EXPECT_EQ(form->isVisible(), !danach);
            EXPECT_EQ(Meßdiener.Anzahl + Gruppe.Anzahl + Helfer.Anzahl, 9);
        }
}

TEST_F(SchlechteNummernForm, AlsWunschpartner)
{
    Meßdiener.WunschVorname[0] = "Bea";
    Meßdiener.WunschNachname[0] = "Berg";
    for (const Eingabe &eingabe : Eingaben) {
        SCOPED_TRACE(eingabe.Getippt);
        Öffnen("Meßdiener");
        GezeigteMeldungen.clear();
        EinfügenAuslösen("Partner", eingabe.Getippt);
        FokusWeg("Partner");
        const bool leer = eingabe.Getippt.empty();
        EXPECT_EQ(Zeigt("Partner"), leer ? "" : "Berg,Bea");
        Auslösen("Ende");
        EXPECT_EQ(GezeigteMeldungen.size(), leer ? 0U : 1U);
        EXPECT_EQ(Meßdiener.WunschVorname[0], leer ? "" : "Bea");
        EXPECT_EQ(Meßdiener.WunschNachname[0], leer ? "" : "Berg");
        Meßdiener.WunschVorname[0] = "Bea";
        Meßdiener.WunschNachname[0] = "Berg";
    }
}

/// When the servers' file is read, a comma ends a value.
TEST_F(SchlechteNummernForm, EinKommaInDerStraßeHältDasNächsteLadenAn)
{
    Meßdiener.Cursor = 1;
    Öffnen("Meßdiener");
    Tippen("Straßen", "Hof 5, links");
    Klick("Ende");
    Meßdiener.PLZ[1] = 48143;
    Konfig.Gemeinde = "St. Ägid";
    AufFestplatteSpeichern();
    TabellenLeeren();
    VonFestplatteLaden();
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid") << "in a file before";
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Datensatz(Meßdiener, 0)[11], "Rot");
    EXPECT_EQ(Meßdiener.Nachname[1], "Berg");
    EXPECT_EQ(Meßdiener.Straße[1], "Hof 5");
    EXPECT_EQ(Meßdiener.PLZ[1], 0) << "\"links\" is no number";
    EXPECT_EQ(Meßdiener.Vorname[2], "");
    EXPECT_EQ(Gruppe.Anzahl, 0) << "in a later file";
    EXPECT_EQ(Helfer.Anzahl, 0);
}

} // namespace
} // namespace altardienst
