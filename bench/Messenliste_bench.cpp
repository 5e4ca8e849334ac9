// A step through the mass list, until the next mass is on the screen, against a full repaint of the
// same window.
#include "Bestand.h"
#include "Messung.h"

#include "application/Anwendung.h"
#include "core/tables.h"
#include "planning/MessenlisteForm.h"

#include <QImage>

#include <cstdlib>

namespace altardienst {
namespace {

constexpr int Schritte = 299; // from the first of 300 masses to the last

void MessenBesetzen()
{
    BestandFürZuweisung();
    for (int i = 0; i < Messe.Anzahl; ++i) {
        Messe.Dienerzahl[i] = 4 + i % 9; // each step shows or hides rows of slots
        for (int slot = 1; slot <= Messe.Dienerzahl[i]; ++slot) {
            const int j = (i * 12 + slot) % Meßdiener.Anzahl;
            Messe.DienerVor[i][slot] = Meßdiener.Vorname[j];
            Messe.DienerNach[i][slot] = Meßdiener.Nachname[j];
        }
    }
    Messe.Cursor = 0;
}

/// Draws every control once; `repaint` would leave out those with a background of their own.
void AllesNeuZeichnen(QWidget &fenster)
{
    static QImage bild(fenster.size(), QImage::Format_ARGB32_Premultiplied);
    fenster.render(&bild);
}

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_messenliste";
    static char *argv[] = {name, nullptr};
    // Never deleted: at exit Qt has already torn down things that a shown window still refers to.
    AnwendungEinrichten(*new QApplication(argc, argv));
    MessenBesetzen();
    static MessenlisteForm &form = *new MessenlisteForm;
    form.show();
    QApplication::processEvents();
    MessungAnmelden({.Name = "Schritt in der Messenliste",
                     .Maßstabname = "Fenster neu zeichnen",
                     .Gemessen = {nullptr,
                                  [] {
                                      form.Wahl->Plus->click();
                                      QApplication::processEvents();
                                  }},
                     .Maßstab = {nullptr, [] { AllesNeuZeichnen(form); }},
                     .Ziel = 3,
                     .Durchläufe = Schritte});
}

} // namespace altardienst
