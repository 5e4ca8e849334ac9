// The plan printed to a PDF, against the same lines drawn straight into one.
#include "Bestand.h"
#include "Messung.h"

#include "assignment/Dienste.h"
#include "controls/Bausteine.h"
#include "core/tables.h"
#include "paper/DruckerQt.h"
#include "printing/PlanZeilen.h"
#include "printing/Plandruck.h"

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdlib>

namespace altardienst {
namespace {

constexpr int Diener = 12;
constexpr int ZeilenProSeite = 60;

QStringList Planzeilen; // what the printed plan says, blank lines left out

void MessenBesetzen()
{
    BestandFürZuweisung();
    Konfig.Schriftart = "Liberation Sans";
    Konfig.Schriftgröße = 10;
    Konfig.Überschriftgröße = 14;
    Konfig.RandLinks = 20;
    Konfig.RandOben = 15;
    Konfig.RandUnten = 15;
    for (int i = 0; i < Messe.Anzahl; ++i)
        for (int slot = 1; slot <= Diener; ++slot) {
            const int j = (i * Diener + slot) % Meßdiener.Anzahl;
            Messe.DienerVor[i][slot] = Meßdiener.Vorname[j];
            Messe.DienerNach[i][slot] = Meßdiener.Nachname[j];
        }
    DiensteVerteilen();
    for (int i = 0; i < Messe.Anzahl; ++i) {
        const PlanZeilen plan = PlanZeilenDer(i);
        Planzeilen.append(Anzeige(plan.Überschrift));
        for (const Text &zeile : plan.Diener)
            Planzeilen.append(Anzeige(zeile));
        for (const Text &zeile : plan.Helfer)
            Planzeilen.append(Anzeige(zeile));
    }
}

void ZeilenZeichnen(const QString &datei)
{
    const std::shared_ptr<QPrinter> drucker = PdfDrucker(datei);
    drucker->setPageSize(QPageSize(QPageSize::A4));
    drucker->setFullPage(true);
    QPainter stift(drucker.get());
    stift.setFont(QFont("Liberation Sans", 10));
    const double mm = drucker->resolution() / 25.4;
    int zeile = 0;
    for (const QString &text : Planzeilen) {
        if (zeile == ZeilenProSeite) {
            drucker->newPage();
            zeile = 0;
        }
        ++zeile;
        stift.drawText(QPointF(20 * mm, (15 + 4 * zeile) * mm), text);
    }
}

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_druck";
    static char *argv[] = {name, nullptr};
    static QApplication anwendung(argc, argv);
    static const QTemporaryDir verzeichnis;
    static DruckerQt drucker([](const Druckanfrage &) {
        return Druckauswahl{0, PdfDrucker(verzeichnis.filePath("Plan.pdf"))};
    });
    Drucker = &drucker;
    MessenBesetzen();
    MessungAnmelden({.Name = "Plan drucken, je Zeile",
                     .Maßstabname = "nur zeichnen",
                     .Gemessen = {nullptr, PlanDrucken},
                     .Maßstab = {nullptr, [] { ZeilenZeichnen(verzeichnis.filePath("Text.pdf")); }},
                     .Ziel = 2,
                     .Durchläufe = 15,
                     .Einheiten = static_cast<double>(Planzeilen.size())});
}

} // namespace altardienst
