// The style of the web page; a browser lays it out in another test.
#include "exchange/Webseitenstil.h"

#include "Prüfstand.h"

#include <algorithm>

namespace altardienst {
namespace {

using WebseitenstilTest = Prüfstand;

std::vector<Text> Köpfe(std::size_t zahl)
{
    std::vector<Text> köpfe;
    for (std::size_t k = 1; k <= zahl; ++k)
        köpfe.push_back("Kopf" + std::to_string(k));
    return köpfe;
}

const Blattmaß Maß{.Quer = true, .Punkt = 7.25, .Breiten = {60, 30.5, 9.5}, .Luft = 0.3};

bool Enthält(const std::string &stil, const std::string &teil)
{
    return stil.find(teil) != std::string::npos;
}

TEST_F(WebseitenstilTest, NachDemMaßDesBlattes)
{
    std::string stil = Webseitenstil(Köpfe(3), Maß);
    EXPECT_TRUE(Enthält(stil, "}\n@page{size:A4 landscape;margin:9mm}\n@media print{\n"));
    EXPECT_TRUE(stil.ends_with("}\nbody{font-size:7.25pt}\n"
                               "tbody>tr>:nth-child(n){padding-top:0.35em;padding-bottom:0.35em}\n"
                               "thead th:nth-child(1){width:60.00%}\n"
                               "thead th:nth-child(2){width:30.50%}\n"
                               "thead th:nth-child(3){width:9.50%}\n}\n"));
    Blattmaß hoch = Maß;
    hoch.Quer = false;
    EXPECT_TRUE(Enthält(Webseitenstil(Köpfe(3), hoch), "{size:A4 portrait;margin:9mm}"));
}

TEST_F(WebseitenstilTest, AufSchmalenSchirmenStehtDerDienstDavor)
{
    const std::string stil = Webseitenstil(Köpfe(4), Maß);
    const auto schmal = stil.find("@media screen and (max-width:37rem){body{");
    ASSERT_NE(schmal, std::string::npos);
    const std::string teil = stil.substr(schmal, stil.find("@page") - schmal);
    EXPECT_TRUE(teil.ends_with("td:nth-child(3)::before{content:\"Kopf3: \"}\n"
                               "td:nth-child(4)::before{content:\"Kopf4: \"}\n}\n"));
    EXPECT_FALSE(Enthält(teil, "Kopf2"));
    EXPECT_TRUE(Enthält(teil, "table,tbody,tr,th,td{display:block}"));
    EXPECT_TRUE(Enthält(Webseitenstil(Köpfe(8), Maß), "(max-width:60rem){body{"));
}

TEST_F(WebseitenstilTest, VieleSpaltenInKleinererSchrift)
{
    const std::string kleiner = "@media screen and (max-width:90rem){table{font-size:.9em}}\n";
    EXPECT_FALSE(Enthält(Webseitenstil(Köpfe(9), Maß), kleiner));
    EXPECT_TRUE(Enthält(Webseitenstil(Köpfe(10), Maß), kleiner));
}

/// A brace too many, and a browser reads the rest otherwise.
TEST_F(WebseitenstilTest, AlleKlammernSchließen)
{
    for (const std::size_t zahl : {2U, 9U, 12U}) {
        const std::string stil = Webseitenstil(Köpfe(zahl), Maß);
        int offen = 0;
        for (const char zeichen : stil) {
            offen += zeichen == '{' ? 1 : zeichen == '}' ? -1 : 0;
            ASSERT_TRUE(offen >= 0 && offen <= 2);
        }
        EXPECT_EQ(offen, 0);
    }
}

} // namespace
} // namespace altardienst
