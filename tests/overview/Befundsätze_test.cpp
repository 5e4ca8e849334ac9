// The handbook lists the sentence of every finding, with its rule and its grade.
#include "overview/Prüfungsstand.h"

#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace altardienst {
namespace {

/// One plan in which every rule is broken, in each of its wordings.
class BefundsätzeTest : public Prüfungsstand {
  protected:
    BefundsätzeTest()
    {
        for (int j = 0; j < 8; ++j)
            MeßdienerAnlegen("Vor" + std::to_string(j), "Nach" + std::to_string(j));
        HelferAnlegen("Vor20", "Nach20", "Kantor", "Kantor");
        HelferAnlegen("Vor21", "Nach21", "Küster");
        DienerVerstöße();
        MitWunschpartner();
        MitFestenEinträgen();
        MitHelfern();
        MessenUndZeiten();
    }

    /// Days after the one before.
    int NächsteMesse(int diener) { return Hochamt(Tag(22) + 3 * Messe.Anzahl, diener); }

    void DienerVerstöße()
    {
        const int i = NächsteMesse(9);
        MitDienst(i, Messe.Weihrauch, 1);
        Messe.Messeart[i] = "Wochendienst";
        Messe.Wochentag[i] = "Mittwoch"; // as in the handbook
        Meßdiener.Qualifikation[0] = "nnnnnn";
        Meßdiener.Wochendienst[0] = "jnnjnnnn";
        Meßdiener.Von1[0] = Meßdiener.Bis1[0] = Messe.Datum[i];
        Meßdiener.Geschlecht[1] = "weiblich";
        Meßdiener.Größe[1] = 190;
        Meßdiener.Von1[1] = Messe.Datum[i];
        Meßdiener.Bis2[1] = Messe.Datum[i];
        MeßdienerAnlegen("Vor9", "Nach9");
        MeßdienerAnlegen("Vor9", "Nach9");
        Einsetzen(i, 1, 0);
        Einsetzen(i, 2, 1);
        Einsetzen(i, 3, 0);
        Einsetzen(i, 4, 9);
        Besetzen(Messe, Dienerplatznr(i, 5), "Vor10", "Nach10");
        Einsetzen(i, 10, 7);
        const int abend = Hochamt(Messe.Datum[i], 1);
        Messe.Uhrzeit[abend] = ZeitAus(20 * 3600);
        Einsetzen(abend, 1, 0);
        Einsetzen(Hochamt(Messe.Datum[i] + 1, 1), 1, 0);
    }

    void MitWunschpartner()
    {
        Meßdiener.WunschVorname[2] = "Vor3";
        Meßdiener.WunschNachname[2] = "Nach3";
        Meßdiener.Häufigkeit[2] = -3;
        int i = NächsteMesse(2);
        Einsetzen(i, 1, 2);
        Einsetzen(i, 2, 3);
        i = NächsteMesse(1);
        Einsetzen(i, 1, 2);
        i = NächsteMesse(3);
        Einsetzen(i, 1, 2);
        Einsetzen(i, 3, 3);
    }

    void MitFestenEinträgen()
    {
        const int i = NächsteMesse(2);
        MesseDienerFest.Anzahl = 1;
        MesseDienerFest.Datum[0] = Messe.Datum[i];
        MesseDienerFest.Uhrzeit[0] = Messe.Uhrzeit[i];
        for (const int slot : {1, 2}) {
            MesseDienerFest.Vorname[0][slot] = "Vor" + std::to_string(slot);
            MesseDienerFest.Nachname[0][slot] = "Nach" + std::to_string(slot);
        }
        Einsetzen(i, 1, 4);
    }

    void MitHelfern()
    {
        const int i = NächsteMesse(0);
        Messe.LektorZahl[i] = Messe.KantorZahl[i] = 2;
        HelferEinsetzen(i, 0, 1);
        HelferEinsetzen(i, 4, 0);
        HelferEinsetzen(i, 5, 1);
        Besetzen(Messe, Helferplatznr(i, 1), "Vor22", "Nach22");
    }

    void MessenUndZeiten()
    {
        Messe.Dienerzahl[NächsteMesse(1)] = 2;
        const int i = NächsteMesse(0);
        for (int k = 0; k < 2; ++k)
            Hochamt(Messe.Datum[i], 0);
        Messe.Messeart[i] = "";
        Messe.Datum[NächsteMesse(0)] = 0;
        Messe.Datum[NächsteMesse(0)] = Tag(1, 11);
    }

    /// The sentence with anything in place of names, numbers and words that vary.
    static std::regex Muster(const Text &satz)
    {
        const std::vector<std::pair<const char *, const char *>> ersetzungen = {
            {R"([.()])", R"(\$&)"},
            {R"(Vor\d+ Nach\d+)", "[^ ]+ [^ ,;.]+"},
            {R"(\d+)", "[0-9]+"},
            {R"((Diener|Lektor) \[0)", "[^ ]+ [0"},
            {"Uhr, [A-Z][a-z]+", "Uhr, [^ ]+"},
            {"Plan: Hochamt", "Plan: [^ ]+"},
            {"Dienst (Weihrauch|Kantor)", "Dienst [^ ]+"},
            {"als (Lektor|Kantor)", "als [^ ]+"},
            {"unter den (Meßdienern|Helfern)", "unter den [^ ]+"},
            {"weiblich|männlich", "[a-zä]+"}};
        Text muster = satz;
        for (const auto &[was, wodurch] : ersetzungen)
            muster = std::regex_replace(muster, std::regex(was), wodurch);
        return std::regex(muster);
    }

    /// The rows of the table of findings, by the rule in their first column.
    static std::map<Text, Text> Handbuchseite()
    {
        std::ifstream seite(HANDBUCH "/auf-einen-blick.md");
        std::map<Text, Text> zeilen;
        Text regel;
        for (Text zeile; std::getline(seite, zeile);) {
            if (!zeile.starts_with("| "))
                continue;
            if (!zeile.starts_with("| |")) // otherwise another sentence of the same rule
                regel = zeile.substr(2, zeile.find(" |", 2) - 2);
            zeilen[regel] += zeile + "\n";
        }
        return zeilen;
    }
};

TEST_F(BefundsätzeTest, DasHandbuchKenntJedenSatz)
{
    const std::map<Text, Text> seite = Handbuchseite();
    std::set<Regel> regeln;
    for (const Datum beginn : {Tag(22), DatumAus({2030, 1, 1})}) {
        Konfig.StartDatum = beginn;
        const Planprüfung prüfung;
        for (const Befund &befund : prüfung.Alle()) {
            regeln.insert(befund.Gegen);
            const Text satz = Satz(prüfung.Tabellen(), befund);
            const auto zeilen = seite.find(Regelname(befund.Gegen));
            ASSERT_NE(zeilen, seite.end()) << Regelname(befund.Gegen);
            EXPECT_TRUE(std::regex_search(zeilen->second, Muster(satz))) << satz;
            const Text grad = befund.Grad == Stufe::Verstoß ? "Verstoß" : "Hinweis";
            EXPECT_NE(zeilen->second.find(grad), Text::npos) << grad << ": " << satz;
        }
    }
    EXPECT_EQ(regeln.size(), static_cast<std::size_t>(Regelzahl));
}

} // namespace
} // namespace altardienst
