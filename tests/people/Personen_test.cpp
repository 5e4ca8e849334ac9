// Renaming reaches every place that names the person or group, and deleting removes exactly one
// record: every column of every record against a model.
#include "people/Personen.h"

#include "Prüfstand.h"

#include <array>

namespace altardienst {
namespace {

/// Writes something different into each field of record `i`.
template <class Tabelle> void Füllen(Tabelle &t, int i)
{
    int feld = 0;
    FürJedeSpalte(t.Felder(), [&](auto &spalte) {
        using Wert = typename std::remove_reference_t<decltype(spalte)>::Wert;
        ++feld;
        if constexpr (std::is_same_v<Wert, Text>)
            spalte[i] = std::to_string(feld) + "/" + std::to_string(i);
        else
            spalte[i] = Wert(1000 * feld % 20000 + i);
    });
}

/// One line per field, over all records up to the scratch record.
template <class Tabelle> std::vector<std::vector<Text>> Inhalt(Tabelle &t)
{
    std::vector<std::vector<Text>> alle;
    for (int i = 0; i <= Tabelle::HöchsterIndex; ++i) {
        alle.emplace_back();
        FürJedeSpalte(t.Felder(), [&](auto &spalte) {
            using Wert = typename std::remove_reference_t<decltype(spalte)>::Wert;
            if constexpr (std::is_same_v<Wert, Text>)
                alle.back().push_back(spalte[i]);
            else
                alle.back().push_back(std::to_string(double(spalte[i])));
        });
    }
    return alle;
}

class PersonenTest : public Prüfstand {};

TEST_F(PersonenTest, LöschenEinesMeßdienersRücktJedesFeldVor)
{
    Meßdiener.Anzahl = 6;
    for (int weg = 0; weg < 6; ++weg) {
        Meßdiener.Anzahl = 6;
        for (int i = 0; i <= 8; ++i)
            Füllen(Meßdiener, i);
        auto soll = Inhalt(Meßdiener);
        for (int i = weg; i < 6; ++i)
            soll[static_cast<std::size_t>(i)] = soll[static_cast<std::size_t>(i) + 1];
        soll[6][0] = soll[6][1] = "";
        MeßdienerLöschen(weg);
        EXPECT_EQ(Meßdiener.Anzahl, 5);
        EXPECT_EQ(Inhalt(Meßdiener), soll) << weg;
    }
}

TEST_F(PersonenTest, LöschenDesEinzigenMeßdienersLäßtDieAnzahl)
{
    MeßdienerAnlegen("Anna", "Adler");
    Meßdiener.Vorname[1] = "Leer";
    MeßdienerLöschen(0);
    EXPECT_EQ(Meßdiener.Anzahl, 1);
    EXPECT_EQ(Meßdiener.Vorname[0], "Leer") << "the blank slot, moved up";
    EXPECT_EQ(Meßdiener.Vorname[1], "");
    MeßdienerAnlegen("Bea", "Berg");
    MeßdienerLöschen(0);
    EXPECT_EQ(Meßdiener.Anzahl, 1);
}

TEST_F(PersonenTest, LöschenEinesMeßdienersLeertDieWünscheNachIhm)
{
    for (const char *name : {"Anna", "Bea", "Cem"})
        MeßdienerAnlegen(name, "Adler");
    Meßdiener.WunschVorname[0] = Meßdiener.WunschVorname[3] = "Bea";
    Meßdiener.WunschNachname[0] = Meßdiener.WunschNachname[3] = "Adler";
    Meßdiener.WunschVorname[2] = "Bea";
    Meßdiener.WunschNachname[2] = "adler"; // someone else: case matters
    MesseMitDienern(Heute, 2);
    Messe.DienerVor[0][1] = "Bea";
    Messe.DienerNach[0][1] = "Adler";
    MeßdienerLöschen(1);
    EXPECT_EQ(Meßdiener.WunschVorname[0], "");
    EXPECT_EQ(Meßdiener.WunschNachname[0], "");
    EXPECT_EQ(Meßdiener.WunschVorname[2], ""); // the blank slot, moved up
    EXPECT_EQ(Meßdiener.WunschNachname[1], "adler");
    EXPECT_EQ(Messe.DienerVor[0][1], "Bea") << "the mass goes on naming her";
}

TEST_F(PersonenTest, LöschenEinesHelfersRücktJedesFeldVor)
{
    for (int weg = 0; weg <= 6; ++weg) {
        Helfer.Anzahl = 6;
        for (int i = 0; i <= 9; ++i)
            Füllen(Helfer, i);
        auto soll = Inhalt(Helfer);
        for (int i = weg; i <= 6; ++i)
            soll[static_cast<std::size_t>(i)] = soll[static_cast<std::size_t>(i) + 1];
        HelferLöschen(weg);
        EXPECT_EQ(Helfer.Anzahl, 5);
        EXPECT_EQ(Inhalt(Helfer), soll) << weg;
    }
}

TEST_F(PersonenTest, LöschenEinerGruppeLäßtMindestensZweiUndNimmtSieDenMeßdienern)
{
    for (int anzahl : {1, 2, 3, 5}) {
        TabellenLeeren();
        Gruppe.Anzahl = anzahl;
        for (int i = 0; i <= anzahl + 2; ++i)
            Füllen(Gruppe, i);
        MeßdienerAnlegen("Anna", "Adler");
        Meßdiener.Gruppe[0] = Gruppe.Bezeichnung[0];
        Meßdiener.Gruppe[1] = Gruppe.Bezeichnung[1]; // the blank slot
        auto soll = Inhalt(Gruppe);
        if (anzahl > 2)
            for (int i = 0; i <= anzahl; ++i)
                soll[static_cast<std::size_t>(i)] = soll[static_cast<std::size_t>(i) + 1];
        GruppeLöschen(0);
        EXPECT_EQ(Gruppe.Anzahl, anzahl > 2 ? anzahl - 1 : anzahl);
        EXPECT_EQ(Inhalt(Gruppe), soll);
        EXPECT_EQ(Meßdiener.Gruppe[0], "");
        EXPECT_EQ(Meßdiener.Gruppe[1], "1/1");
    }
}

TEST_F(PersonenTest, UmbenennenEinesMeßdienersErreichtWünscheMessenUndFesteEinträge)
{
    MeßdienerAnlegen("Anna", "Adler");
    MeßdienerAnlegen("Bea", "Berg");
    Meßdiener.WunschVorname[1] = Meßdiener.WunschVorname[2] = "Anna"; // 2 is the blank slot
    Meßdiener.WunschNachname[1] = Meßdiener.WunschNachname[2] = "Adler";
    for (int m = 0; m < 3; ++m)
        MesseMitDienern(Heute + m, 20);
    MesseDienerFest.Anzahl = 2;
    for (int m = 0; m <= 3; ++m)
        for (int s = 0; s <= 20; ++s) {
            Messe.DienerVor[m][s] = MesseDienerFest.Vorname[m][s] = "Anna";
            Messe.DienerNach[m][s] = MesseDienerFest.Nachname[m][s] = s == 7 ? "adler" : "Adler";
        }
    Messe.DienerVor[4][1] = "Anna"; // after the blank slot
    Messe.DienerNach[4][1] = "Adler";
    MeßdienerUmbenennen(0, {"Änne", "Öhler"});
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna") << "the record itself is written by the save";
    for (int i : {1, 2}) {
        EXPECT_EQ(Meßdiener.WunschVorname[i], "Änne");
        EXPECT_EQ(Meßdiener.WunschNachname[i], "Öhler");
    }
    for (int m = 0; m <= 3; ++m)
        for (int s = 0; s <= 20; ++s) {
            EXPECT_EQ(Messe.DienerVor[m][s], s == 7 ? "Anna" : "Änne");
            EXPECT_EQ(Messe.DienerNach[m][s], s == 7 ? "adler" : "Öhler");
            EXPECT_EQ(MesseDienerFest.Vorname[m][s], s == 7 || m == 3 ? "Anna" : "Änne");
        }
    EXPECT_EQ(Messe.DienerVor[4][1], "Anna");
}

TEST_F(PersonenTest, UmbenennenEinesHelfersErreichtAlleAchtPlätze)
{
    HelferAnlegen("Anna", "Adler", "Lektor");
    MesseMitDienern(Heute, 1);
    MesseMitDienern(Heute + 1, 1);
    const std::array vor = {&Messe.Lektor1Vor,  &Messe.Lektor2Vor, &Messe.Komm1Vor,
                            &Messe.Komm2Vor,    &Messe.Kantor1Vor, &Messe.Kantor2Vor,
                            &Messe.Kollekt1Vor, &Messe.Kollekt2Vor};
    const std::array nach = {&Messe.Lektor1Nach,  &Messe.Lektor2Nach, &Messe.Komm1Nach,
                             &Messe.Komm2Nach,    &Messe.Kantor1Nach, &Messe.Kantor2Nach,
                             &Messe.Kollekt1Nach, &Messe.Kollekt2Nach};
    for (std::size_t p = 0; p < vor.size(); ++p)
        for (int m = 0; m <= 3; ++m) {
            (*vor[p])[m] = "Anna";
            (*nach[p])[m] = m == 1 && p == 3 ? "Adlers" : "Adler";
        }
    HelferUmbenennen(0, {"Bea", "Berg"});
    for (std::size_t p = 0; p < vor.size(); ++p)
        for (int m = 0; m <= 3; ++m) {
            const bool bleibt = m == 3 || (m == 1 && p == 3); // 2 is the blank slot
            EXPECT_EQ((*vor[p])[m], bleibt ? "Anna" : "Bea") << p << " " << m;
            EXPECT_EQ((*nach[p])[m], m == 1 && p == 3 ? "Adlers" : bleibt ? "Adler" : "Berg");
        }
}

TEST_F(PersonenTest, WerKeinenNamenHatteWirdNirgendsUmbenannt)
{
    MeßdienerAnlegen("Anna", "Adler");
    HelferAnlegen("Anna", "Adler", "Lektor");
    MesseMitDienern(Heute, 3);
    MeßdienerUmbenennen(1, {"Neu", "Neuer"});
    HelferUmbenennen(1, {"Neu", "Neuer"});
    EXPECT_EQ(Messe.DienerVor[0][1], "");
    EXPECT_EQ(Messe.Lektor1Vor[0], "");
    EXPECT_EQ(Meßdiener.WunschVorname[0], "");
}

TEST_F(PersonenTest, DerLeerePlatzTrägtDenLeerenNamen)
{
    MeßdienerAnlegen("Anna", "Adler");
    HelferAnlegen("Anna", "Adler", "Lektor");
    EXPECT_TRUE(IstAndererMeßdiener(0, {}));
    EXPECT_TRUE(IstAndererHelfer(0, {}));
    EXPECT_FALSE(IstAndererMeßdiener(1, {})) << "the blank slot itself";
    EXPECT_FALSE(IstAndererHelfer(1, {}));
    Meßdiener.Nachname[1] = Helfer.Nachname[1] = "Dorn";
    EXPECT_FALSE(IstAndererMeßdiener(0, {}));
    EXPECT_FALSE(IstAndererHelfer(0, {}));
}

TEST_F(PersonenTest, LeererGruppennameTrifftAlleOhneGruppe)
{
    MeßdienerAnlegen("Anna", "Adler");
    MeßdienerAnlegen("Bea", "Berg");
    Meßdiener.Gruppe[1] = "Rot";
    Gruppe.Bezeichnung[0] = "Rot";
    Gruppe.Anzahl = 1;
    GruppeUmbenennen(1, "Blau");
    EXPECT_EQ(Meßdiener.Gruppe[0], "Blau");
    EXPECT_EQ(Meßdiener.Gruppe[1], "Rot");
    EXPECT_EQ(Meßdiener.Gruppe[2], "Blau");
    EXPECT_TRUE(IstAndereGruppe(0, "")) << "the blank slot";
}

TEST_F(PersonenTest, EinNameBrauchtBeideTeileZumTreffen)
{
    MeßdienerAnlegen("Anna", "Adler");
    MeßdienerAnlegen("Bea", "Berg");
    EXPECT_TRUE(IstAndererMeßdiener(1, {"Anna", "Adler"}));
    EXPECT_FALSE(IstAndererMeßdiener(0, {"Anna", "Adler"})) << "the record itself";
    EXPECT_FALSE(IstAndererMeßdiener(1, {"anna", "Adler"}));
    EXPECT_FALSE(IstAndererMeßdiener(1, {"Anna", "Berg"}));
    Meßdiener.Nachname[2] = "Blanko"; // the blank slot counts
    EXPECT_TRUE(IstAndererMeßdiener(0, {"", "Blanko"}));
}

TEST_F(PersonenTest, HinterDemLeerenPlatzZähltNichts)
{
    MeßdienerAnlegen("Anna", "Adler");
    HelferAnlegen("Anna", "Adler", "Lektor");
    Gruppe.Anzahl = 3;
    for (const int i : {1, 2}) { // 1 is the blank slot
        Meßdiener.Vorname[i] = Helfer.Vorname[i] = "Bea" + std::to_string(i);
        Gruppe.Bezeichnung[2 + i] = "Blau" + std::to_string(i);
    }
    EXPECT_TRUE(IstAndererMeßdiener(0, {"Bea1", ""}));
    EXPECT_FALSE(IstAndererMeßdiener(0, {"Bea2", ""}));
    EXPECT_TRUE(IstAndererHelfer(0, {"Bea1", ""}));
    EXPECT_FALSE(IstAndererHelfer(0, {"Bea2", ""}));
    EXPECT_TRUE(IstAndereGruppe(0, "Blau1"));
    EXPECT_FALSE(IstAndereGruppe(0, "Blau2"));
    Meßdiener.WunschVorname[2] = "Anna";
    Meßdiener.WunschNachname[2] = "Adler";
    MeßdienerUmbenennen(0, {"Änne", "Öhler"});
    EXPECT_EQ(Meßdiener.WunschVorname[2], "Anna");
    Gruppe.Bezeichnung[0] = "Rot";
    for (const int i : {0, 1, 2})
        Meßdiener.Gruppe[i] = "Rot";
    GruppeUmbenennen(0, "Grün");
    EXPECT_EQ(Meßdiener.Gruppe[0] + Meßdiener.Gruppe[1], "GrünGrün");
    EXPECT_EQ(Meßdiener.Gruppe[2], "Rot");
    for (const int i : {0, 1})
        Meßdiener.Gruppe[i] = "Rot";
    GruppeLöschen(0);
    EXPECT_EQ(Meßdiener.Gruppe[0] + Meßdiener.Gruppe[1], "");
    EXPECT_EQ(Meßdiener.Gruppe[2], "Rot");
}

TEST_F(PersonenTest, NeueGruppeLäßtEinenNamenImLeerenPlatzStehen)
{
    Gruppe.Bezeichnung[0] = "Rot";
    Gruppe.Bezeichnung[1] = "Getippt";
    Gruppe.Anzahl = 1;
    GruppeAnlegen("Neu");
    EXPECT_EQ(Gruppe.Anzahl, 3);
    EXPECT_EQ(Gruppe.Bezeichnung[1], "Getippt");
    EXPECT_EQ(Gruppe.Bezeichnung[2], "Neu");
}

TEST_F(PersonenTest, ZuKurzerOrtDerGemeindeWirdErgänzt)
{
    Konfig.PlzOrt = "4321 Ort"; // eight characters are enough
    PlzOrtErgänzen();
    EXPECT_EQ(Konfig.PlzOrt, "4321 Ort");
    Konfig.PlzOrt = "äöü Ort"; // characters, not bytes
    PlzOrtErgänzen();
    EXPECT_EQ(PlzDerGemeinde(), "48999");
    EXPECT_EQ(OrtDerGemeinde(), "Beispielort");
}

} // namespace
} // namespace altardienst
