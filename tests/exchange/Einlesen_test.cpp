// People from a table: the preview, and what is then written.
#include "exchange/Einlesen.h"

#include "Prüfstand.h"
#include "history/Rückgängig.h"
#include "people/Personen.h"

#include <algorithm>
#include <numeric>

namespace altardienst {
namespace {

using Stand = Vorschauzeile::Stand;
using Liste = std::vector<Text>;

class EinlesenTest : public Prüfstand {
  protected:
    EinlesenTest()
    {
        Gruppe.Anzahl = 1;
        Gruppe.Bezeichnung[0] = "Große";
        MeßdienerAnlegen("Anna", "Adler");
        Meßdiener.Telefon[0] = "0251 1";
        Meßdiener.Geburtstag[0] = DatumAus({2012, 1, 6});
        MeßdienerAnlegen("Kim", "Busch");
    }

    Einleseauftrag Auftrag(const Liste &köpfe, const std::vector<Liste> &zeilen)
    {
        std::vector<int> nummern(zeilen.size());
        std::iota(nummern.begin(), nummern.end(), 2); // after the headings
        return {.Art = Art,
                .Zeilen = zeilen,
                .Nummern = nummern,
                .Spalten = ZuordnungNach(köpfe, Art),
                .LeeresLöscht = LeeresLöscht,
                .GruppenAnlegen = GruppenAnlegen};
    }

    Personenart Art = Personenart::Diener;
    bool LeeresLöscht = false;
    bool GruppenAnlegen = false;
};

TEST_F(EinlesenTest, JedeZeileIstNeuGeändertGleichOderZweifelhaft)
{
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Telefon", "Geburtstag"},
                                 {{"Anna", "Adler", "0251 2", "6.1.12"},
                                  {" Kim ", "Busch", "", ""},
                                  {"Lars", "Clausen", "0171", "1.2.2013"},
                                  {"", "", "", ""},
                                  {"Mia", "Dorn", "", "gestern"}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    ASSERT_EQ(vorschau.size(), 4U);
    EXPECT_EQ(vorschau[0].Was, Stand::Geändert);
    EXPECT_EQ(ÄnderungenText(Art, vorschau[0]), "Telefon: 0251 1 → 0251 2");
    EXPECT_EQ(vorschau[1].Was, Stand::Gleich);
    EXPECT_EQ(vorschau[2].Was, Stand::Neu);
    EXPECT_EQ(ÄnderungenText(Art, vorschau[2]),
              "Telefon: 0171; Geburtstag: 01.02.2013; Größe: 150");
    EXPECT_EQ(vorschau[3].Was, Stand::Zweifelhaft);
    EXPECT_EQ(vorschau[3].Zeile, 6);
    EXPECT_FALSE(vorschau[3].Unmöglich);
    EXPECT_EQ(vorschau[3].Zweifel, (Liste{"Geburtstag: „gestern“ ist kein Datum."}));
    // Nothing is written yet.
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Telefon[0], "0251 1");
}

TEST_F(EinlesenTest, GeschriebenWirdNurWasGewähltIst)
{
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Telefon", "Geburtstag"},
                                 {{"Anna", "Adler", "0251 2", ""},
                                  {"Kim", "Busch", "0251 3", ""},
                                  {"Mia", "Dorn", "0251 4", "gestern"}});
    auto vorschau = EinlesenPrüfen(auftrag);
    vorschau.erase(vorschau.begin() + 1);
    const Eingelesen ergebnis = Einlesen(auftrag, vorschau);
    EXPECT_EQ(ergebnis.Neu, 1);
    EXPECT_EQ(ergebnis.Geändert, 1);
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Meßdiener.Telefon[0], "0251 2");
    EXPECT_EQ(Meßdiener.Geburtstag[0], DatumAus({2012, 1, 6}));
    EXPECT_EQ(Meßdiener.Telefon[1], "");
    EXPECT_EQ(Meßdiener.Nachname[2], "Dorn");
    EXPECT_EQ(Meßdiener.Telefon[2], "0251 4");
    EXPECT_EQ(Meßdiener.Geburtstag[2], 0); // the field in doubt
    EXPECT_EQ(Meßdiener.Größe[2], 150);
    // Once more, and it is all the same.
    for (const Vorschauzeile &zeile : EinlesenPrüfen(auftrag))
        EXPECT_EQ(zeile.Was, zeile.Vorname == "Kim"   ? Stand::Geändert
                             : zeile.Vorname == "Mia" ? Stand::Zweifelhaft
                                                      : Stand::Gleich);
}

TEST_F(EinlesenTest, EinNeuerBeginntOhneResteEinesGelöschten)
{
    Meßdiener.Wochendienst[2] = "nnnnnnnn";
    Meßdiener.Qualifikation[2] = "nnnnnn";
    Meßdiener.Straße[2] = "Altweg";
    Meßdiener.Von1[2] = 40000;
    Meßdiener.Häufigkeit[2] = 2;
    const auto auftrag = Auftrag({"Vorname", "Nachname"}, {{"Mia", "Dorn"}});
    Einlesen(auftrag, EinlesenPrüfen(auftrag));
    EXPECT_EQ(Meßdiener.Wochendienst[2], MeßdienerTabelle::WochendienstVorgabe);
    EXPECT_EQ(Meßdiener.Qualifikation[2], MeßdienerTabelle::QualifikationVorgabe);
    EXPECT_EQ(Meßdiener.Straße[2], "");
    EXPECT_EQ(Meßdiener.Von1[2], 0);
    EXPECT_EQ(Meßdiener.Häufigkeit[2], 0);
}

TEST_F(EinlesenTest, EinLeeresFeldÄndertNichtsOderLeert)
{
    const Liste köpfe = {"Vorname", "Nachname", "Telefon", "Geburtstag", "Leuchter"};
    const std::vector<Liste> zeilen = {{"Anna", "Adler", "", "", "ja"}, {"Kim", "Busch"}};
    const auto vorschau = EinlesenPrüfen(Auftrag(köpfe, zeilen));
    EXPECT_EQ(vorschau[0].Was, Stand::Gleich);
    // A row of ticks: where there is none, the answer is no.
    EXPECT_EQ(ÄnderungenText(Art, vorschau[1]), "Leuchter: ja → nein");
    LeeresLöscht = true;
    const auto auftrag = Auftrag(köpfe, zeilen);
    EXPECT_EQ(ÄnderungenText(Art, EinlesenPrüfen(auftrag)[0]),
              "Telefon: 0251 1 → (leer); Geburtstag: 06.01.2012 → (leer)");
    Einlesen(auftrag, EinlesenPrüfen(auftrag));
    EXPECT_EQ(Meßdiener.Telefon[0], "");
    EXPECT_EQ(Meßdiener.Geburtstag[0], 0);
    EXPECT_EQ(Meßdiener.Qualifikation[1], "jnjjjj");
    EXPECT_EQ(EinlesenPrüfen(auftrag)[0].Was, Stand::Gleich);
}

TEST_F(EinlesenTest, OhneNamenUndDoppeltGehtNicht)
{
    const auto vorschau =
        EinlesenPrüfen(Auftrag({"Vorname", "Nachname", "Ort"}, {{"", "", "Ort"},
                                                                {"Kim", "Busch", "A"},
                                                                {"Kim", "Busch", "B"},
                                                                {"Kim", "Busch", ""},
                                                                {"Anna", "Adler", ""},
                                                                {"Anna", "Adler", "C"}}));
    EXPECT_EQ(vorschau[0].Zweifel, (Liste{"Der Name fehlt."}));
    EXPECT_EQ(vorschau[1].Was, Stand::Geändert);
    EXPECT_EQ(vorschau[2].Zweifel, (Liste{"Steht schon in Zeile 3."}));
    EXPECT_EQ(vorschau[3].Zweifel, (Liste{"Steht schon in Zeile 3."})); // and says otherwise
    EXPECT_EQ(vorschau[4].Was, Stand::Gleich);
    EXPECT_EQ(vorschau[5].Zweifel, (Liste{"Steht schon in Zeile 6."}));
    for (const std::size_t k : {0U, 2U, 3U, 5U}) {
        EXPECT_TRUE(vorschau[k].Unmöglich) << k;
        EXPECT_EQ(vorschau[k].Was, Stand::Zweifelhaft) << k;
    }
    Einlesen(Auftrag({}, {}), vorschau);
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Ort[1], "A");
}

/// Lists have gaps and repetitions, and the tables may hold such people: whoever wants them ticks
/// them.
TEST_F(EinlesenTest, HalbeNamenUndNamensvetternSindEinZweifel)
{
    const auto auftrag =
        Auftrag({"Vorname", "Nachname", "Geburtstag", "Ort"}, {{"", "Eich", "", ""},
                                                               {"Lea", "", "", ""},
                                                               {"Neu", "Ling", "1.2.2010", "A"},
                                                               {"Neu", "Ling", "1.2.2010", "A"},
                                                               {"Neu", "Ling", "3.4.2012", "A"},
                                                               {"NEU", "Ling", "", ""}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(vorschau[0].Zweifel, (Liste{"Der Vorname fehlt."}));
    EXPECT_EQ(vorschau[1].Zweifel, (Liste{"Der Nachname fehlt."}));
    EXPECT_EQ(vorschau[2].Was, Stand::Neu);
    EXPECT_EQ(vorschau[3].Zweifel, (Liste{"Steht genauso schon in Zeile 4."}));
    EXPECT_EQ(vorschau[4].Zweifel, (Liste{"So heißt schon jemand in Zeile 4."}));
    EXPECT_EQ(vorschau[5].Zweifel, (Liste{"In Zeile 4 heißt jemand fast so: „Neu Ling“."}));
    for (const std::size_t k : {0U, 1U, 3U, 4U, 5U}) {
        EXPECT_FALSE(vorschau[k].Unmöglich) << k;
        EXPECT_EQ(vorschau[k].Was, Stand::Zweifelhaft) << k;
    }
    EXPECT_EQ(Einlesen(auftrag, vorschau).Neu, 6);
    EXPECT_EQ(Meßdiener.Vorname[2] + "|" + Meßdiener.Nachname[2], "|Eich");
    // Once more, and it is all the same, though two of them are one to the hair.
    for (const Vorschauzeile &zeile : EinlesenPrüfen(auftrag))
        EXPECT_EQ(zeile.Was, Stand::Gleich) << zeile.Zeile;
}

/// Of two rows of one name, the one with the other birthday is somebody else, in whatever order.
TEST_F(EinlesenTest, EinZweiterMitAnderemGeburtstagÜberschreibtNiemanden)
{
    const Liste köpfe = {"Vorname", "Nachname", "Geb.", "Ort"};
    const Liste andere = {"Anna", "Adler", "5.5.2014", "A"};
    const Liste selbe = {"Anna", "Adler", "6.1.2012", "B"};
    for (const bool andereZuerst : {false, true}) {
        const auto auftrag = Auftrag(köpfe, andereZuerst ? std::vector<Liste>{andere, selbe}
                                                         : std::vector<Liste>{selbe, andere});
        auto vorschau = EinlesenPrüfen(auftrag);
        if (!andereZuerst)
            std::swap(vorschau[0], vorschau[1]);
        EXPECT_EQ(vorschau[0].Datensatz, -1);
        EXPECT_EQ(vorschau[0].Zweifel,
                  (Liste{"So heißt schon jemand mit einem anderen Geburtstag."}));
        EXPECT_FALSE(vorschau[0].Unmöglich);
        EXPECT_EQ(vorschau[1].Datensatz, 0);
        EXPECT_EQ(vorschau[1].Was, Stand::Geändert);
    }
    // Alone it is a correction.
    EXPECT_EQ(EinlesenPrüfen(Auftrag(köpfe, {andere}))[0].Was, Stand::Geändert);
    // Where one of several has no birthday, it may be his.
    MeßdienerAnlegen("Anna", "Adler");
    const auto unklar = EinlesenPrüfen(Auftrag(köpfe, {andere}));
    EXPECT_TRUE(unklar[0].Unmöglich);
    Meßdiener.Geburtstag[2] = DatumAus({2013, 3, 3});
    EXPECT_FALSE(EinlesenPrüfen(Auftrag(köpfe, {andere}))[0].Unmöglich);
}

/// What the boxes of the editor take comes in again, if somebody has looked at it.
TEST_F(EinlesenTest, UngewöhnlichesKommtHereinWennEsJemandAnkreuzt)
{
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Geburtstag", "Geschlecht"},
                                 {{"Mia", "Dorn", "1.1.2027", "divers"}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(vorschau[0].Was, Stand::Zweifelhaft);
    EXPECT_EQ(vorschau[0].Zweifel,
              (Liste{"Geburtstag: „1.1.2027“ liegt in der Zukunft.",
                     "Geschlecht: „divers“ ist weder „männlich“ noch „weiblich“."}));
    EXPECT_EQ(ÄnderungenText(Art, vorschau[0]),
              "Geburtstag: 01.01.2027; Geschlecht: divers; Größe: 150");
    Einlesen(auftrag, vorschau);
    EXPECT_EQ(Meßdiener.Geburtstag[2], DatumAus({2027, 1, 1}));
    EXPECT_EQ(EinlesenPrüfen(auftrag)[0].Was, Stand::Gleich); // and is no doubt any more
    Meßdiener.Gruppe[2] = "Keine";
    EXPECT_EQ(EinlesenPrüfen(Auftrag({"Vorname", "Nachname", "Gruppe"}, {{"Mia", "Dorn", "Keine"}}))
                  .front()
                  .Was,
              Stand::Gleich);
}

TEST_F(EinlesenTest, PlzUndOrtInEinerSpalteWerdenGeteilt)
{
    const auto auftrag =
        Auftrag({"Vorname", "Nachname", "PLZ/Ort"},
                {{"Anna", "Adler", "48999 Beispielort am See"}, {"Kim", "Busch", "A-1010 Wien"}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(ÄnderungenText(Art, vorschau[0]),
              "PLZ: (leer) → 48999; Ort: (leer) → Beispielort am See");
    EXPECT_EQ(vorschau[1].Zweifel, (Liste{"PLZ: „A-1010“ ist keine Postleitzahl."}));
    EXPECT_EQ(ÄnderungenText(Art, vorschau[1]), "Ort: (leer) → Wien");
}

TEST_F(EinlesenTest, EinNameDenDieDateienNichtHaltenGehtNicht)
{
    const auto vorschau =
        EinlesenPrüfen(Auftrag({"Vorname", "Nachname"}, {{"Elif", "Yıldız"}, {"A, B", "Eich"}}));
    EXPECT_EQ(
        vorschau[0].Zweifel,
        (Liste{"Nachname: „Yıldız“ hat ein Zeichen, das die Dateien nicht halten: Es würde zu "
               "„?“."}));
    EXPECT_EQ(vorschau[0].Nachname, "Yıldız");
    EXPECT_TRUE(vorschau[0].Unmöglich);
    EXPECT_EQ(vorschau[1].Zweifel.size(), 1U);
    EXPECT_TRUE(vorschau[1].Unmöglich);
}

TEST_F(EinlesenTest, ZweiEinesNamensUnterscheidetDerGeburtstag)
{
    MeßdienerAnlegen("Anna", "Adler");
    Meßdiener.Geburtstag[2] = DatumAus({2014, 5, 5});
    const auto vorschau =
        EinlesenPrüfen(Auftrag({"Name", "Geb.", "Ort"}, {{"Adler, Anna", "5.5.2014", "A"},
                                                         {"Anna Adler", "6.1.2012", "B"},
                                                         {"Anna Adler", "", "C"}}));
    EXPECT_EQ(vorschau[0].Datensatz, 2);
    EXPECT_EQ(vorschau[1].Datensatz, 0);
    EXPECT_TRUE(vorschau[2].Unmöglich);
    EXPECT_EQ(vorschau[2].Zweifel,
              (Liste{"Mehrere heißen so, und der Geburtstag sagt nicht, wer gemeint ist."}));
}

/// Nobody's address overwrites another's because his birthday is not known.
TEST_F(EinlesenTest, OhneGeburtstagIstKeinerVonMehrerenGemeint)
{
    MeßdienerAnlegen("Anna", "Adler"); // without a birthday
    const Text unklar = "Mehrere heißen so, und der Geburtstag sagt nicht, wer gemeint ist.";
    const auto ohne =
        EinlesenPrüfen(Auftrag({"Vorname", "Nachname", "Ort"}, {{"Anna", "Adler", "A"}}));
    EXPECT_TRUE(ohne[0].Unmöglich);
    EXPECT_EQ(ohne[0].Zweifel, Liste{unklar});
    const Liste köpfe = {"Vorname", "Nachname", "Geb.", "Ort"};
    const auto unlesbar = EinlesenPrüfen(Auftrag(köpfe, {{"Anna", "Adler", "gestern", "A"}}));
    EXPECT_TRUE(unlesbar[0].Unmöglich);
    EXPECT_EQ(unlesbar[0].Zweifel.front(), unklar);
    // As it goes out it comes in; what would change is a doubt.
    const auto leer = EinlesenPrüfen(Auftrag(köpfe, {{"Anna", "Adler", "", ""}}));
    EXPECT_EQ(leer[0].Was, Stand::Gleich);
    const auto anders = EinlesenPrüfen(Auftrag(köpfe, {{"Anna", "Adler", "", "A"}}));
    EXPECT_EQ(anders[0].Was, Stand::Zweifelhaft);
    EXPECT_EQ(anders[0].Datensatz, 2);
    EXPECT_EQ(anders[0].Zweifel,
              (Liste{"Mehrere heißen so; gemeint ist wohl, wer keinen Geburtstag hat."}));
}

TEST_F(EinlesenTest, FastDerselbeNameIstEinZweifel)
{
    const auto vorschau =
        EinlesenPrüfen(Auftrag({"Vorname", "Nachname"}, {{"ANNA", "Adler"}, {"Anne", "Adler"}}));
    EXPECT_EQ(vorschau[0].Zweifel, (Liste{"Im Programm heißt jemand fast so: „Anna Adler“."}));
    EXPECT_FALSE(vorschau[0].Unmöglich);
    EXPECT_EQ(vorschau[1].Was, Stand::Neu);
}

TEST_F(EinlesenTest, UnbekannteGruppenSindEinZweifelOderWerdenAngelegt)
{
    const Liste köpfe = {"Vorname", "Nachname", "Gruppe"};
    const std::vector<Liste> zeilen = {
        {"Anna", "Adler", "Große"}, {"Kim", "Busch", "Kleine"}, {"Mia", "Dorn", "Kleine"}};
    const auto vorschau = EinlesenPrüfen(Auftrag(köpfe, zeilen));
    EXPECT_EQ(vorschau[0].Was, Stand::Geändert);
    EXPECT_EQ(vorschau[1].Zweifel, (Liste{"Gruppe: Die Gruppe „Kleine“ gibt es nicht."}));
    EXPECT_TRUE(vorschau[1].Felder.empty());
    GruppenAnlegen = true;
    const auto auftrag = Auftrag(köpfe, zeilen);
    EXPECT_EQ(Einlesen(auftrag, EinlesenPrüfen(auftrag)).Gruppen, 1);
    EXPECT_EQ(Gruppe.Anzahl, 2);
    EXPECT_EQ(Gruppe.Bezeichnung[1], "Kleine");
    EXPECT_EQ(Meßdiener.Gruppe[2], "Kleine");
}

TEST_F(EinlesenTest, MehrAlsDasProgrammAnlegtKommtNichtHinein)
{
    std::vector<Liste> zeilen;
    for (int i = 0; i < 199; ++i)
        zeilen.push_back({"Kind", "Nr" + std::to_string(i)});
    const auto auftrag = Auftrag({"Vorname", "Nachname"}, zeilen);
    auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(KeinPlatzFür(auftrag, vorschau), "199 neue Meßdiener sind angekreuzt, Platz ist nur "
                                               "noch für 198: Das Programm legt höchstens "
                                               "200 Meßdiener an.");
    EXPECT_EQ(Einlesen(auftrag, vorschau).Neu, 198);
    EXPECT_EQ(Meßdiener.Anzahl, MeisteMeßdiener);
    vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(KeinPlatzFür(auftrag, vorschau),
              "Ein neuer Meßdiener ist angekreuzt, Platz ist keiner mehr: Das Programm legt "
              "höchstens 200 Meßdiener an.");
    vorschau.pop_back();
    EXPECT_EQ(KeinPlatzFür(auftrag, vorschau), "");
}

TEST_F(EinlesenTest, MehrGruppenAlsDasProgrammAnlegtKommenNichtHinein)
{
    GruppenAnlegen = true;
    std::vector<Liste> zeilen;
    for (int i = 0; i < 60; ++i)
        zeilen.push_back({"Kind", "Nr" + std::to_string(i), "Gruppe " + std::to_string(i)});
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Gruppe"}, zeilen);
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(KeinPlatzFür(auftrag, vorschau),
              "60 neue Gruppen wären nötig, Platz ist nur noch für 59: Das Programm legt höchstens "
              "60 Gruppen an.");
    EXPECT_EQ(KeinPlatzFür(auftrag, {vorschau.begin() + 1, vorschau.end()}), "");
    Einlesen(auftrag, vorschau);
    EXPECT_EQ(Gruppe.Anzahl, MeisteGruppen);
    const auto eine = Auftrag({"Vorname", "Nachname", "Gruppe"}, {{"Kim", "Busch", "Neue"}});
    EXPECT_EQ(KeinPlatzFür(eine, EinlesenPrüfen(eine)),
              "Eine neue Gruppe wäre nötig, Platz ist keiner mehr: Das Programm legt höchstens 60 "
              "Gruppen an.");
}

/// A file may have names past its count of groups: none of them becomes one.
TEST_F(EinlesenTest, EinNameNachDerLetztenGruppeWirdKeine)
{
    GruppenAnlegen = true;
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Gruppe"}, {{"Kim", "Busch", "Neue"}});
    for (const int anzahl : {1, MeisteGruppen - 1}) {
        Gruppe.Anzahl = static_cast<Int16>(anzahl);
        Gruppe.Bezeichnung[anzahl] = "Rest";
        Einlesen(auftrag, EinlesenPrüfen(auftrag));
        EXPECT_EQ(Gruppe.Anzahl, anzahl + 1);
        EXPECT_EQ(Gruppe.Bezeichnung[anzahl], "Neue");
        Gruppe.Bezeichnung[anzahl].clear();
        Meßdiener.Gruppe[1].clear();
    }
}

TEST_F(EinlesenTest, OhneÜberschriftenKannDieErsteZeileEineSein)
{
    const auto stand = [this](const std::vector<Liste> &zeilen, bool kopfFehlt) {
        Einleseauftrag auftrag = Auftrag({"Vorname", "Nachname", "Telefon"}, zeilen);
        auftrag.KopfFehlt = kopfFehlt;
        return EinlesenPrüfen(auftrag);
    };
    const auto vorschau = stand({{"Wie", "Wer", "Wo"}, {"Mia", "Dorn", ""}}, true);
    EXPECT_EQ(vorschau[0].Was, Stand::Zweifelhaft);
    EXPECT_EQ(vorschau[0].Zweifel, (Liste{"Das kann eine Überschrift sein."}));
    EXPECT_FALSE(vorschau[0].Unmöglich);
    EXPECT_EQ(vorschau[1].Was, Stand::Neu);
    EXPECT_EQ(stand({{"Wie", "Wer", "Wo"}}, false)[0].Was, Stand::Neu);
    EXPECT_EQ(stand({{"Mia", "Dorn", "0251"}}, true)[0].Was, Stand::Neu);
    EXPECT_EQ(stand({{"Mia", "Dorn", "m@x"}}, true)[0].Was, Stand::Neu);
    EXPECT_EQ(stand({{"Kim", "Busch", "Wo"}}, true)[0].Was, Stand::Geändert); // no heading
}

TEST_F(EinlesenTest, WerNurEinenNamenHatKommtZuSichZurück)
{
    MeßdienerAnlegen("", "Cetin");
    MeßdienerAnlegen("", "");
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Ort"},
                                 {{"", "Cetin", "A"}, {"Cetin", "", "B"}, {"", "", "C"}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(vorschau[0].Was, Stand::Geändert);
    EXPECT_EQ(vorschau[0].Datensatz, 2);
    EXPECT_TRUE(vorschau[1].IstNeu());
    EXPECT_EQ(vorschau[1].Zweifel, (Liste{"Der Nachname fehlt."}));
    EXPECT_EQ(vorschau[2].Zweifel, (Liste{"Der Name fehlt."}));
    EXPECT_TRUE(vorschau[2].Unmöglich);
    Einlesen(auftrag, {vorschau[0]});
    EXPECT_EQ(Meßdiener.Ort[2], "A");
    EXPECT_EQ(Meßdiener.Vorname[2], "");
    EXPECT_EQ(Meßdiener.Anzahl, 4);
}

TEST_F(EinlesenTest, AuchHelferKommenHinein)
{
    Art = Personenart::Helfer;
    HelferAnlegen("Maria", "Linde", "Lektor");
    const auto auftrag = Auftrag({"Name", "Dienst", "Zweiter Dienst", "Straße"},
                                 {{"Linde, Maria", "Lektorin", "Kantor", "Weg 5, Haus B"},
                                  {"Quast, Paul", "Kollekte", "", ""},
                                  {"Rau, Ute", "Küsterin", "", ""}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_EQ(ÄnderungenText(Art, vorschau[0]), "Straße: (leer) → Weg 5, Haus B; "
                                                "Dienst 2: (leer) → Kantor");
    EXPECT_EQ(vorschau[2].Was, Stand::Zweifelhaft);
    Einlesen(auftrag, vorschau);
    EXPECT_EQ(Helfer.Anzahl, 3);
    EXPECT_EQ(Helfer.Dienst1[1], "Kollektant");
    EXPECT_EQ(Helfer.Dienst2[0], "Kantor");
}

TEST_F(EinlesenTest, EinSchrittNimmtAllesZurück)
{
    GruppenAnlegen = true;
    const auto auftrag = Auftrag({"Vorname", "Nachname", "Telefon", "Gruppe"},
                                 {{"Anna", "Adler", "7", "Kleine"}, {"Mia", "Dorn", "8", "Neue"}});
    SchritteBeginnen();
    Schritt("Meßdiener einlesen", [&] { Einlesen(auftrag, EinlesenPrüfen(auftrag)); });
    TabellenBeobachten();
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Gruppe.Anzahl, 3);
    EXPECT_EQ(SchrittZurücknehmen(), "Meßdiener einlesen");
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Telefon[0], "0251 1");
    EXPECT_EQ(Gruppe.Anzahl, 1);
    SchritteBeenden();
}

/// A file may claim any number of records; whoever reads in walks none that is not there.
TEST_F(EinlesenTest, EineUnsinnigeAnzahlSchadetNicht)
{
    Meßdiener.Anzahl = 30000;
    const auto auftrag = Auftrag({"Vorname", "Nachname"}, {{"Mia", "Dorn"}});
    const auto vorschau = EinlesenPrüfen(auftrag);
    EXPECT_NE(KeinPlatzFür(auftrag, vorschau), "");
    EXPECT_EQ(Einlesen(auftrag, vorschau).Neu, 0);
    EXPECT_EQ(Meßdiener.Anzahl, 30000);
}

} // namespace
} // namespace altardienst
