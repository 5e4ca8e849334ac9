// The blank forms on which servers and helpers report their data.
#include "printing/Erfassungsbogen.h"

#include "printing/Druckrahmen.h"

namespace altardienst {
namespace {

void ZeilenDrucken(std::initializer_list<Text> zeilen)
{
    for (const Text &zeile : zeilen)
        ZeileDrucken(zeile);
}

void Wiederholt(int mal, std::initializer_list<Text> zeilen)
{
    for (int i = 0; i < mal; ++i)
        ZeilenDrucken(zeilen);
}

constexpr const char *Zeitraum = "von ____________ bis ___________";
constexpr const char *Unterschriftslinie =
    "___________________________________________________________________";

void NameUndAdresse()
{
    ZeilenDrucken({"Vorname:_______________________  Nachname:____________________", "",
                   "Straße:______________________  Hausnummer:____", "",
                   "PLZ:________   Wohnort:________________________", ""});
}

void Fristen(const Text &rückgabe, const Text &dauer)
{
    ZeilenDrucken({"Rückgeben bis zum " + rückgabe,
                   "Der nächste Altardienst ist voraussichtlich gültig bis zum " + dauer, "",
                   "Der Altardienst ist auch als Textdatei erhältlich."});
}

constexpr const char *Verbindung = "Telefon:(0_____)_________   EMail:__________________";

} // namespace

void ErfassungsbogenMeßdienerDrucken(const Text &rückgabe, const Text &dauer)
{
    BerichtDrucken(Druckanfrage::Für("Erfassungsbogen Meßdiener"), [&](int) {
        // Of the two blank lines after the title, one belongs to the opening of every report.
        BerichtEröffnen({"Erfassungsbogen für den Altardienst (Meßdiener)"});
        ZeileDrucken("");
        NameUndAdresse();
        ZeilenDrucken({"Geburtsdatum:___.___.______   Größe:_______cm", "", Verbindung, "", "",
                       "Ich möchte   [ ]normal häufig   [ ]oft   dienen.", "",
                       "Wann kann ich nicht dienen?", "",
                       "[ ]Montag   [ ]Dienstag   [ ]Mittwoch   [ ]Donnerstag   [ ]Freitag", "",
                       "Wann bin ich für den Dienst in der Messe nicht verfügbar?", ""});
        Wiederholt(5, {Zeitraum, ""});
        ZeilenDrucken({"Der Wunschpartner:_________________________________________", "", ""});
        Fristen(rückgabe, dauer);
        Wiederholt(5, {""});
        ZeilenDrucken({Unterschriftslinie,
                       "  Ort, Datum              Unterschrift des Erziehungsberechtigten"});
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

void ErfassungsbogenHelferDrucken(const Text &rückgabe, const Text &dauer)
{
    BerichtDrucken(Druckanfrage::Für("Erfassungsbogen Helfer"), [&](int) {
        BerichtEröffnen({"Erfassungsbogen für den Altardienst (Meßhelfer)"});
        ZeileDrucken("");
        NameUndAdresse();
        ZeilenDrucken({"Geburtsdatum:___.___.______", "", Verbindung, "", "",
                       "Dienst 1: [ ]Lektor  [ ]Kommunionhelfer [ ]Kollektant  [ ]Kantor", "",
                       "Dienst 2: [ ]Lektor  [ ]Kommunionhelfer [ ]Kollektant  [ ]Kantor", "", "",
                       "Wann kann ich den Dienst in der Messe nicht ausüben?", ""});
        Wiederholt(3, {Zeitraum, ""});
        ZeileDrucken("");
        Fristen(rückgabe, dauer);
        Wiederholt(6, {""});
        ZeilenDrucken({Unterschriftslinie, "  Ort, Datum                Unterschrift"});
        Drucker->EndDoc();
    });
}

} // namespace altardienst
