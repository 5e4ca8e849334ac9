// The run-time failures and their texts.
#include "values/Laufzeitfehler.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

TEST(Laufzeitfehler, NenntNummerUndText)
{
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::TypenUnverträglich).Meldung(),
              "Laufzeitfehler '13': Typen unverträglich");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::UngültigerAufruf).Meldung(),
              "Laufzeitfehler '5': Ungültiger Prozeduraufruf");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::Überlauf).Meldung(), "Laufzeitfehler '6': Überlauf");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::IndexAußerhalb).Meldung(),
              "Laufzeitfehler '9': Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::DivisionDurchNull).Meldung(),
              "Laufzeitfehler '11': Division durch Null");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden).Meldung(),
              "Laufzeitfehler '53': Datei nicht gefunden");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::DateiVorhanden).Meldung(),
              "Laufzeitfehler '58': Datei existiert bereits");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::DatenträgerVoll).Meldung(),
              "Laufzeitfehler '61': Datenträger voll");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::HinterDateiende).Meldung(),
              "Laufzeitfehler '62': Eingabe hinter Dateiende");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert).Meldung(),
              "Laufzeitfehler '75': Zugriff verweigert");
    EXPECT_EQ(Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden).Meldung(),
              "Laufzeitfehler '76': Pfad nicht gefunden");
}

} // namespace
} // namespace altardienst
