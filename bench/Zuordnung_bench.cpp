// Opening the dialogs of the fixed entries until they are on the screen, in a large parish against
// an empty one.
#include "Bestand.h"
#include "Messung.h"

#include "application/Anwendung.h"
#include "core/tables.h"
#include "fixed/MesseDienerFestForm.h"
#include "fixed/NeuMesseDienerFestForm.h"

#include <cstdlib>
#include <string>

namespace altardienst {
namespace {

constexpr int Durchläufe = 60;

/// 400 servers, 100 groups, 300 masses of 12 servers, 200 entries.
void GroßePfarrei()
{
    TabellenLeeren();
    BestandFürZuweisung();
    Meßdiener.Anzahl = 400;
    for (int j = 0; j < Meßdiener.Anzahl; ++j) {
        Meßdiener.Vorname[j] = "Maximilian" + std::to_string(j);
        Meßdiener.Nachname[j] = "Oberhauser" + std::to_string(j);
    }
    Gruppe.Anzahl = 100;
    for (int g = 0; g < Gruppe.Anzahl; ++g)
        Gruppe.Bezeichnung[g] = "Gruppe der Jüngeren " + std::to_string(g);
    MesseDienerFest.Anzahl = 200;
    for (int k = 0; k < MesseDienerFest.Anzahl; ++k) {
        MesseDienerFest.Datum[k] = Messe.Datum[k];
        MesseDienerFest.Uhrzeit[k] = Messe.Uhrzeit[k];
        for (int slot = 1; slot <= Messe.Dienerzahl[k]; ++slot) {
            MesseDienerFest.Vorname[k][slot] = Meßdiener.Vorname[slot];
            MesseDienerFest.Nachname[k][slot] = Meßdiener.Nachname[slot];
        }
    }
}

QWidget *offen = nullptr; // the last one is never deleted

void Öffnen(QWidget *dialog)
{
    offen = dialog;
    dialog->show();
    QApplication::processEvents();
}

void ÖffnenMessen(const char *name, QWidget *(*dialog)())
{
    const auto arbeit = [dialog](void (*pfarrei)()) {
        return Arbeit{[pfarrei] {
                          delete offen;
                          pfarrei();
                      },
                      [dialog] { Öffnen(dialog()); }};
    };
    MessungAnmelden({.Name = name,
                     .Maßstabname = "mit leerer Pfarrei",
                     .Gemessen = arbeit(GroßePfarrei),
                     .Maßstab = arbeit(TabellenLeeren),
                     .Ziel = 3,
                     .Durchläufe = Durchläufe});
}

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_zuordnung";
    static char *argv[] = {name, nullptr};
    // Never deleted either: at exit Qt has already torn down things that a shown window still
    // refers to.
    AnwendungEinrichten(*new QApplication(argc, argv));
    ÖffnenMessen("Feste Einträge öffnen", []() -> QWidget * { return new MesseDienerFestForm; });
    ÖffnenMessen("Neuen festen Eintrag öffnen",
                 []() -> QWidget * { return new NeuMesseDienerFestForm; });
}

} // namespace altardienst
