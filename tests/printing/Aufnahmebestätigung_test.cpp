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
    // 15 mm down and 20 mm in at 56.6857 twips per mm, whatever scales are set.
    Ablauf ablauf;
    for (const char *operation :
         {"Dialog", "FontSize 10", "FontName Liberation Sans", "FontBold aus", "FontItalic aus",
          "FontStrikethru aus", "FontUnderline aus", "CurrentY 850.285522"})
        ablauf.Tut(operation);
    for (const char *zeile :
         {"St. Ägid", "Domplatz 1", "48999 Beispielort", "", "", "Anna Adler", "Weg 1", "48999 Ort",
          "", "Aufgenommen am: 01.02.2026", "In Gruppe: Rot", "", "", "",
          "_________________________________", "  Datum         Unterschrift"})
        ablauf.Tut("CurrentX 1133.71399").Tut("Print \"" + Text(zeile) + "\"");
    ablauf.Tut("NewPage").Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(AufnahmebestätigungTest, AbgebrochenerDialogDrucktNichts)
{
    Papier.Antwort.reset();
    AufnahmebestätigungDrucken(aufnahme);
    EXPECT_EQ(Papier.WieOft("EndDoc") + Papier.WieOft("NewPage"), 0);
}

} // namespace
} // namespace altardienst
