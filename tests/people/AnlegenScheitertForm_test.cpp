// The editors of the people when the dialog that adds a record cannot be created: the failure is
// shown, and the editor stays in front and usable.
#include "people/Personenfenster.h"
#include "platform/Uhr.h"

namespace altardienst {
namespace {

class AnlegenScheitertForm : public Personenfenster {};

TEST_F(AnlegenScheitertForm, AbHundertdreiGruppenGibtEsKeinenNeuenMeßdiener)
{
    const std::vector<Text> fehler = {"Laufzeitfehler '9': Index außerhalb des gültigen Bereichs"};
    for (const int gruppen : {103, 400}) { // the file may claim any number
        Gruppe.Anzahl = gruppen;
        Meßdiener.Cursor = 0;
        GezeigteMeldungen.clear();
        Öffnen("Meßdiener");
        EXPECT_EQ(GezeigteMeldungen, fehler);
        GezeigteMeldungen.clear();
        Auslösen("NeuDiener");
        EXPECT_EQ(GezeigteMeldungen, fehler);
        EXPECT_FALSE(IstOffen("NeuMeßdiener"));
        EXPECT_TRUE(form->isVisible());
        Auslösen("PLUS");
        EXPECT_EQ(Zeigt("Vornamen"), "Bea");
    }
    Gruppe.Anzahl = 102;
    Öffnen("NeuMeßdiener");
    EXPECT_EQ(Finden<QComboBox>("Dieenst")->count(), 103);
}

TEST_F(AnlegenScheitertForm, WasNiemandErwartetLäßtDenEditorStehen)
{
    const auto heute = Uhr.Heute;
    for (const auto &[fenster, knopf, dialog] :
         {std::array{"Meßdiener", "NeuDiener", "NeuMeßdiener"},
          {"Helfer", "NeuHelfer", "NeuerHelfer"}}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        Uhr.Heute = []() -> Datum { throw std::bad_alloc(); }; // needed for the proposals
        Auslösen(knopf);
        Uhr.Heute = heute;
        EXPECT_TRUE(Warten([&] { return GezeigteMeldungen.size() == 1; }));
        EXPECT_TRUE(GezeigteMeldungen.at(0).starts_with("Der Arbeitsspeicher reicht nicht aus."));
        GezeigteMeldungen.clear();
        EXPECT_FALSE(IstOffen(dialog));
        EXPECT_TRUE(form->isVisible());
        Auslösen(knopf);
        EXPECT_TRUE(IstOffen(dialog));
    }
}

} // namespace
} // namespace altardienst
