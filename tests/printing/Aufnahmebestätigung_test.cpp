// The admission confirmation, operation by operation.
#include "printing/Aufnahmebestätigung.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class AufnahmebestätigungTest : public Druckstand {
  protected:
    const Aufnahme aufnahme = {"Anna", "Adler", "Weg 1", "48999", "Ort", "01.02.2026", "Rot"};
};

TEST_F(AufnahmebestätigungTest, EineSeiteInWahrenMillimetern)
{
    Konfig.Straße = "Domplatz 1";
    Konfig.PlzOrt = "48999 Beispielort";
    AufnahmebestätigungDrucken(aufnahme);
    // 20 and 15 mm at 56.6857 twips, whatever the scales of the settings say.
    std::vector<Text> texte;
    int links = 0;
    for (const Text &zeile : Papier.Zeilen) {
        if (zeile.starts_with("Print"))
            texte.push_back(zeile);
        if (zeile.starts_with("CurrentX 1133."))
            ++links;
    }
    EXPECT_EQ(links, 16);
    EXPECT_EQ(texte,
              (std::vector<Text>{"Print \"St. Ägid\"", "Print \"Domplatz 1\"",
                                 "Print \"48999 Beispielort\"", "Print \"\"", "Print \"\"",
                                 "Print \"Anna Adler\"", "Print \"Weg 1\"", "Print \"48999 Ort\"",
                                 "Print \"\"", "Print \"Aufgenommen am: 01.02.2026\"",
                                 "Print \"In Gruppe: Rot\"", "Print \"\"", "Print \"\"",
                                 "Print \"\"", "Print \"_________________________________\"",
                                 "Print \"  Datum         Unterschrift\""}));
    EXPECT_EQ(Papier.WieOft("NewPage"), 1);
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
    EXPECT_EQ(Papier.WieOft("FontUnderline True") + Papier.WieOft("FontBold True"), 0);
}

TEST_F(AufnahmebestätigungTest, AbgebrochenerDialogDrucktNichts)
{
    Papier.Antwort.reset();
    AufnahmebestätigungDrucken(aufnahme);
    EXPECT_EQ(Papier.WieOft("EndDoc") + Papier.WieOft("NewPage"), 0);
}

} // namespace
} // namespace altardienst
