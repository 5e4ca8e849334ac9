// The check of wish partners, of frequency, of fixed entries, and of names after the last place.
#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class WunschregelnTest : public Prüfungsstand {
  protected:
    /// A wish of server `j`.
    static void Wünschen(int j, int partner)
    {
        Meßdiener.WunschVorname[j] = Meßdiener.Vorname[partner];
        Meßdiener.WunschNachname[j] = Meßdiener.Nachname[partner];
    }

    /// The entry for slot `slot` of a mass.
    static int Festlegen(int messe, int slot, const Text &vorname, const Text &nachname)
    {
        const int r = MesseDienerFest.Anzahl;
        MesseDienerFest.Datum[r] = Messe.Datum[messe];
        MesseDienerFest.Uhrzeit[r] = Messe.Uhrzeit[messe];
        MesseDienerFest.Vorname[r][slot] = vorname;
        MesseDienerFest.Nachname[r][slot] = nachname;
        ++MesseDienerFest.Anzahl;
        return r;
    }
};

TEST_F(WunschregelnTest, DerWunschpartnerStehtDaneben)
{
    const int i = Hochamt(Tag(22), 4);
    Füllen(i);
    Wünschen(1, 0);
    EXPECT_EQ(Befunde(), Zeilen());
    Wünschen(1, 2);
    EXPECT_EQ(Befunde(), Zeilen());
    Wünschen(1, 3);
    EXPECT_EQ(Befunde(), Zeilen{"H 2 Vor1 Nach steht nicht neben dem Wunschpartner Vor3 Nach "
                                "(Diener 4)."});
    Leeren(Messe, Dienerplatznr(i, 4));
    EXPECT_EQ(Befunde(), (Zeilen{"H 2 Vor1 Nach dient ohne den Wunschpartner Vor3 Nach.",
                                 "V 4 Diener 4 ist frei."}));
}

TEST_F(WunschregelnTest, EinAbwesenderOderUnbekannterPartnerFehltNicht)
{
    Füllen(Hochamt(Tag(22), 2));
    const int partner = MeßdienerAnlegen("Anna", "Berg");
    Wünschen(0, partner);
    EXPECT_EQ(Befunde(), Zeilen{"H 1 Vor0 Nach dient ohne den Wunschpartner Anna Berg."});
    Meßdiener.Von3[partner] = Tag(20);
    Meßdiener.Bis3[partner] = Tag(21);
    EXPECT_EQ(Befunde().size(), 1U);
    Meßdiener.Bis3[partner] = Tag(22);
    EXPECT_EQ(Befunde(), Zeilen());
    Meßdiener.Bis3[partner] = 0;
    Meßdiener.Nachname[partner] = "Bergmann";
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(WunschregelnTest, EinPlatzNachDemLetztenIstKeinPlatzDaneben)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    const int partner = MeßdienerAnlegen("Anna", "Berg");
    Wünschen(1, partner);
    Einsetzen(i, 3, partner);
    EXPECT_EQ(Befunde(),
              (Zeilen{"H 2 Vor1 Nach dient ohne den Wunschpartner Anna Berg.",
                      "H 3 Anna Berg steht auf Diener 3, die Messe hat aber nur 2 Meßdiener; "
                      "der Name wird trotzdem gedruckt."}));
}

TEST_F(WunschregelnTest, MehrPaareAlsDieHäufigkeitErlaubt)
{
    // Six places and two servers: 3 + 1 pairs each; three masses give three.
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Emma", "Fuchs");
    Wünschen(0, 1);
    for (int k = 0; k < 5; ++k) {
        const int i = Hochamt(Tag(22) + 2 * k, 2);
        Einsetzen(i, 1, 0);
        Einsetzen(i, 2, 1);
    }
    // Ten places: 5 + 1.
    EXPECT_EQ(Befunde(), Zeilen());
    for (int j = 0; j < 5; ++j)
        MeßdienerAnlegen("Vor" + std::to_string(j), "Nach"); // seven servers: 1 + 1
    Meßdiener.Häufigkeit[0] = 3;
    EXPECT_EQ(Befunde(), Zeilen{"H 2 Emma Fuchs steht 5-mal mit Wunschpartner im Plan; nach der "
                                "Diensthäufigkeit sind es höchstens 2."});
    Meßdiener.Häufigkeit[0] = 2;
    Meßdiener.Häufigkeit[1] = 3;
    const Planprüfung prüfung;
    ASSERT_EQ(prüfung.Alle().size(), 1U);
    EXPECT_EQ(prüfung.Alle()[0].Wo, Dienerplatznr(4, 1)); // where they stand together last
    EXPECT_EQ(Satz(prüfung.Tabellen(), prüfung.Alle()[0]),
              "Anna Berg steht 5-mal mit Wunschpartner im Plan; nach der Diensthäufigkeit sind es "
              "höchstens 4.");
}

TEST_F(WunschregelnTest, OhneMeßdienerOderMitZuVielenPlätzenGibtEsKeineGrenze)
{
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Emma", "Fuchs");
    Wünschen(0, 1);
    const int i = Hochamt(Tag(22), 2);
    Einsetzen(i, 1, 0);
    Einsetzen(i, 2, 1);
    Meßdiener.Häufigkeit[0] = Meßdiener.Häufigkeit[1] = -2;
    EXPECT_EQ(Befunde().size(), 2U); // 1 + 1 - 2
    Messe.Dienerzahl[Hochamt(Tag(24), 0)] = 32767;
    Messe.Allgemein[1] = 32767;
    EXPECT_EQ(Befunde().size(), 20U); // only the free places
}

TEST_F(WunschregelnTest, EinFesterEintragWillSeinenPlatz)
{
    const int i = Hochamt(Tag(22), 20);
    Füllen(i);
    Festlegen(i, 1, "Vor0", "Nach");
    Festlegen(i, 20, "Vor19", "Nach");
    EXPECT_EQ(Befunde(), Zeilen());
    Einsetzen(i, 1, MeßdienerAnlegen("Anna", "Berg"));
    Leeren(Messe, Dienerplatznr(i, 20));
    EXPECT_EQ(Befunde(), (Zeilen{"V 1 Für Diener 1 ist Vor0 Nach fest zugeordnet, nicht Anna Berg.",
                                 "V 20 Für Diener 20 ist Vor19 Nach fest zugeordnet; der Platz ist "
                                 "frei."}));
    const Planprüfung prüfung;
    EXPECT_EQ(Betroffener(prüfung.Tabellen(), prüfung.Alle()[0]), "Vor0 Nach");
}

TEST_F(WunschregelnTest, DerSpätereEintragGiltUndNurBisZumZweihundertsten)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    Festlegen(i, 1, "Anna", "Berg");
    EXPECT_EQ(Befunde().size(), 1U);
    MesseDienerFest.Anzahl = 200;
    Festlegen(i, 1, "Vor0", "Nach"); // the last one that is carried over
    EXPECT_EQ(Befunde(), Zeilen());
    Festlegen(i, 1, "Anna", "Berg");
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(WunschregelnTest, EinEintragGiltNurFürSeinenTerminUndMitBeidenNamen)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    const int r = Festlegen(i, 1, "Anna", "Berg");
    MesseDienerFest.Uhrzeit[r] = ZeitAus(11 * 3600);
    EXPECT_EQ(Befunde(), Zeilen());
    MesseDienerFest.Uhrzeit[r] = Messe.Uhrzeit[i];
    MesseDienerFest.Datum[r] = Tag(23);
    EXPECT_EQ(Befunde(), Zeilen());
    MesseDienerFest.Datum[r] = Tag(22);
    EXPECT_EQ(Befunde().size(), 1U);
    MesseDienerFest.Nachname[r][1] = "";
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(WunschregelnTest, EineFesteGruppeIstMitEinemIhrerLeuteZufrieden)
{
    const int i = Hochamt(Tag(22), 1);
    Füllen(i);
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Die Großen";
    Festlegen(i, 1, "Gruppe", "Die Großen");
    EXPECT_EQ(Befunde(), Zeilen{"V 1 Für Diener 1 ist Gruppe Die Großen fest zugeordnet, "
                                "nicht Vor0 Nach."});
    Meßdiener.Gruppe[0] = "Die Großen";
    EXPECT_EQ(Befunde(), Zeilen());
    Besetzen(Messe, Dienerplatznr(i, 1), "Gruppe", "Die Großen");
    EXPECT_EQ(Befunde(), Zeilen());
}

TEST_F(WunschregelnTest, NamenNachDemLetztenPlatzWerdenGenannt)
{
    const int i = Hochamt(Tag(22), 2);
    Füllen(i);
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    Einsetzen(i, 3, anna);
    Einsetzen(i, 20, anna);
    const Text ende = ", die Messe hat aber nur 2 Meßdiener; der Name wird trotzdem gedruckt.";
    EXPECT_EQ(Befunde(), (Zeilen{"H 3 Anna Berg steht auf Diener 3" + ende,
                                 "H 20 Anna Berg steht auf Diener 20" + ende}));
    // They serve nowhere: not here twice, and not on the day before.
    Einsetzen(Hochamt(Tag(23), 1), 1, anna);
    EXPECT_EQ(Befunde().size(), 2U);
}

} // namespace
} // namespace altardienst
