// What becomes known of a report that was printed, and what the print dialog remembers.
#include "application/Druckmitteilung.h"

#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "paper/Druckdialog.h"
#include "platform/Betrachter.h"
#include "platform/Laufwerke.h"

namespace altardienst {
namespace {

constexpr const char *Verzeichnis = "Drucken/Verzeichnis";
constexpr const char *Öffnen = "Drucken/DanachÖffnen";

void GedrucktMitteilen(const Druckausgang &ausgang)
{
    const Text datei = ausgang.Pdf.toStdString();
    if (datei.empty())
        return Mitteilen(ausgang.Drucker.isEmpty()
                             ? "gedruckt"
                             : "gedruckt auf " + ausgang.Drucker.toStdString());
    Mitteilen("PDF geschrieben: " + datei);
    if (ausgang.DanachÖffnen && !Betrachter.Öffnen(PfadAus(datei)))
        Mitteilen("PDF geschrieben, aber kein Programm zeigt es: " + datei);
}

} // namespace

void DruckMitteilen(const Druckausgang &ausgang)
{
    const Text datei = ausgang.Pdf.toStdString();
    switch (ausgang.Ende) {
    case Druckausgang::Gedruckt:
        return GedrucktMitteilen(ausgang);
    case Druckausgang::OhneInhalt:
        return Mitteilen("nichts gedruckt: der Bericht ist leer");
    case Druckausgang::Gescheitert:
        if (!datei.empty()) // a report that fails on paper ends without a word
            Mitteilen("PDF nicht geschrieben: " + datei);
    }
}

void DruckgewohnheitenMerken()
{
    Druckgewohnheiten.Lesen = [] {
        const Druckgewohnheit vorgabe;
        return Druckgewohnheit{Gemerktes().value(Verzeichnis).toString(),
                               Gemerktes().value(Öffnen, vorgabe.DanachÖffnen).toBool()};
    };
    Druckgewohnheiten.Merken = [](const Druckgewohnheit &neu) {
        Gemerktes().setValue(Verzeichnis, neu.Verzeichnis);
        Gemerktes().setValue(Öffnen, neu.DanachÖffnen);
    };
}

} // namespace altardienst
