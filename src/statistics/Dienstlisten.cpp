// The services of each person on paper.
#include "statistics/Dienstlisten.h"

#include "printing/Druckrahmen.h"
#include "printing/Druckwerte.h"

#include <functional>
#include <vector>

namespace altardienst {
namespace {

struct Dienstliste {
    Text Name;
    Text Titel;
    int Anzahl;
    std::function<Text(int)> Zeile;
    std::vector<Text> Legende;
};

/// Plain, unlike the headings of the other lists, and without a left margin on its empty line.
void KopfDrucken(const Text &titel)
{
    Grundschrift();
    Drucker->FontSize(Konfig.Überschriftgröße);
    Drucker->CurrentY(ObererRand());
    ZeileDrucken(titel);
    Leerzeile();
    Drucker->FontSize(Konfig.Schriftgröße);
}

void DienstlisteDrucken(const Dienstliste &liste)
{
    BerichtDrucken(Druckanfrage::Für(liste.Name), [&](int) {
        Drucker->Orientation(Konfig.DiffJahr);
        Int16 Zeilen; // on the page
        for (int i = 0; i < liste.Anzahl; ++i) {
            if (Zeilen == 0) {
                KopfDrucken(liste.Titel);
                Zeilen = 2;
            } else {
                ++Zeilen;
            }
            ZeileDrucken(liste.Zeile(i));
            SeitePrüfen(Zeilen, 4);
        }
        Leerzeile();
        for (const Text &zeile : liste.Legende)
            ZeileDrucken(zeile);
        Drucker->NewPage();
        Drucker->EndDoc();
        Drucker->Orientation(DruckerDienst::Hochformat);
    });
}

template <std::size_t arten>
Text Personenzeile(const Dienstzeile<arten> &person, const std::array<const char *, arten> &vor)
{
    Text zeile = person.Vorname + " " + person.Nachname;
    for (std::size_t k = 0; k < arten; ++k)
        zeile += vor[k] + Druckzahl(person.Dienste[k]);
    return zeile;
}

} // namespace

void MeßdienerdiensteDrucken(Meßdienerzählung &zählung)
{
    DienstlisteDrucken({
        .Name = "Dienste der Meßdiener",
        .Titel = "Statistik Meßdiener mit Anzahl Dienste",
        .Anzahl = Meßdiener.Anzahl,
        .Zeile =
            [&](int i) {
                return Personenzeile(zählung[i], {" , G.: ", " , L.:", " , F.:", " , W.:", " , K.:",
                                                  " , A.:"}) +
                       " , I.:" + Druckzahl(zählung[i].Insgesamt());
            },
        .Legende = {"G: Gabenbereitung, L: Leuchter, F: Flambeau, W: Weihrauch",
                    "K: Kreuzträger, A: Allgemein, I: Insgesamt"},
    });
}

void HelferdiensteDrucken(Helferzählung &zählung)
{
    DienstlisteDrucken({
        .Name = "Dienste der Helfer",
        .Titel = "Statistik Helfer mit Anzahl Dienste",
        .Anzahl = Helfer.Anzahl,
        .Zeile =
            [&](int i) {
                return Personenzeile(zählung[i],
                                     {" , Lektor:", ", Kommunion:", ", Kantor:", ", Kollek.:"});
            },
        .Legende = {},
    });
}

} // namespace altardienst
