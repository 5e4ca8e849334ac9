// The two blank forms, operation by operation.
#include "printing/Erfassungsbogen.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class ErfassungsbogenTest : public Druckstand {};

constexpr const char *VonBis = "von ____________ bis ___________";

TEST_F(ErfassungsbogenTest, FürMeßdiener)
{
    ErfassungsbogenMeßdienerDrucken("28.11.2026", "26.12.2026");
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Erfassungsbogen für den Altardienst (Meßdiener)"})
        .Mehrere({"",
                  "Vorname:_______________________  Nachname:____________________",
                  "",
                  "Straße:______________________  Hausnummer:____",
                  "",
                  "PLZ:________   Wohnort:________________________",
                  "",
                  "Geburtsdatum:___.___.______   Größe:_______cm",
                  "",
                  "Telefon:(0_____)_________   EMail:__________________",
                  "",
                  "",
                  "Ich möchte   [ ]normal häufig   [ ]oft   dienen.",
                  "",
                  "Wann kann ich nicht dienen?",
                  "",
                  "[ ]Montag   [ ]Dienstag   [ ]Mittwoch   [ ]Donnerstag   [ ]Freitag",
                  "",
                  "Wann bin ich für den Dienst in der Messe nicht verfügbar?",
                  ""})
        .Mehrere({VonBis, "", VonBis, "", VonBis, "", VonBis, "", VonBis, ""})
        .Mehrere({"Der Wunschpartner:_________________________________________", "", "",
                  "Rückgeben bis zum 28.11.2026",
                  "Der nächste Altardienst ist voraussichtlich gültig bis zum 26.12.2026", "",
                  "Der Altardienst ist auch als Textdatei erhältlich.", "", "", "", "", "",
                  "___________________________________________________________________",
                  "  Ort, Datum              Unterschrift des Erziehungsberechtigten"})
        .Tut("NewPage")
        .Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(ErfassungsbogenTest, FürHelfer)
{
    ErfassungsbogenHelferDrucken("28.11.2026", "26.12.2026");
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Erfassungsbogen für den Altardienst (Meßhelfer)"})
        .Mehrere({"", "Vorname:_______________________  Nachname:____________________", "",
                  "Straße:______________________  Hausnummer:____", "",
                  "PLZ:________   Wohnort:________________________", "",
                  "Geburtsdatum:___.___.______", "",
                  "Telefon:(0_____)_________   EMail:__________________", "", "",
                  "Dienst 1: [ ]Lektor  [ ]Kommunionhelfer [ ]Kollektant  [ ]Kantor", "",
                  "Dienst 2: [ ]Lektor  [ ]Kommunionhelfer [ ]Kollektant  [ ]Kantor", "", "",
                  "Wann kann ich den Dienst in der Messe nicht ausüben?", ""})
        .Mehrere({VonBis, "", VonBis, "", VonBis, "", ""})
        .Mehrere({"Rückgeben bis zum 28.11.2026",
                  "Der nächste Altardienst ist voraussichtlich gültig bis zum 26.12.2026", "",
                  "Der Altardienst ist auch als Textdatei erhältlich.", "", "", "", "", "", "",
                  "___________________________________________________________________",
                  "  Ort, Datum                Unterschrift"})
        .Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(ErfassungsbogenTest, DieTageStehenWieSieImFeldStehen)
{
    for (const auto bogen : {ErfassungsbogenMeßdienerDrucken, ErfassungsbogenHelferDrucken}) {
        Papier.Leeren();
        bogen("am Fest", "");
        EXPECT_EQ(Papier.WieOft("Print \"Rückgeben bis zum am Fest\""), 1);
        EXPECT_EQ(
            Papier.WieOft("Print \"Der nächste Altardienst ist voraussichtlich gültig bis zum \""),
            1);
        EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
    }
}

} // namespace
} // namespace altardienst
