// The fixtures of the tests of what a report produces: PDF files, or paper.
#pragma once

#include "Prüfstand.h"
#include "controls/Bausteine.h"
#include "paper/DruckerQt.h"
#include "printing/Etikettendruck.h"
#include "printing/PdfLesen.h"

#include <QDir>

#include <utility>

namespace altardienst {

/// Three servers, a sheet of two by two labels, and a printer that writes `datei`.
class DruckzielTest : public Prüfstand {
  protected:
    DruckzielTest() : zuvor(std::exchange(Drucker, &drucker))
    {
        Konfig.Schriftart = "Liberation Sans";
        Konfig.Schriftgröße = 10;
        Konfig.Überschriftgröße = 14;
        Konfig.RandLinks = 20;
        Konfig.RandOben = 15;
        Konfig.RandUnten = 15;
        Konfig.DiffJahr = 1;
        for (const char *vorname : {"Anna", "Jörg", "Zoë"})
            MeßdienerAnlegen(vorname, "Groß");
        Etikett.Reihen[0] = 2;
        Etikett.Spalten[0] = 2;
    }
    ~DruckzielTest() override { Drucker = zuvor; }

    /// Names of the files in the directory of the reports.
    QStringList Dateien() const
    {
        return QDir(Anzeige(Festplatte.string())).entryList(QDir::Files | QDir::Hidden);
    }

    static void Etikettenlauf()
    {
        EtikettenDrucken(EtikettenAllerMeßdiener(), [] { return Etikettenplatz{1, 1}; });
    }

    QString datei = Anzeige(Festplatte.string()) + "/Bericht.pdf";
    std::shared_ptr<QPrinter> ziel; // null: the PDF
    int modus = 0;
    DruckerQt drucker{[this](const Druckanfrage &) {
        return Druckauswahl{modus, ziel ? ziel : PdfDrucker(datei)};
    }};

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
