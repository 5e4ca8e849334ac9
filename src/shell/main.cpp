// The program: the start dialog, then the main window.
#include "application/Anwendung.h"
#include "application/Fangnetz.h"
#include "application/Fensterplätze.h"
#include "controls/Handler.h"
#include "controls/Unerwartetes.h"
#include "history/Netz.h"
#include "platform/Laufwerke.h"
#include "shell/Abschied.h"
#include "shell/Programm.h"
#include "shell/Zweitstart.h"

#include <QIcon>

#include <cstdlib>

int main(int argc, char *argv[])
{
    altardienst::Fangnetz anwendung(argc, argv);
    altardienst::AnwendungEinrichten(anwendung);
    altardienst::FensterplätzeMerken(anwendung);
    QApplication::setWindowIcon(QIcon(":/altardienst.png"));
    QApplication::setDesktopFileName("altardienst"); // by which the desktop finds name and icon
    const altardienst::AlleinigerLauf lauf(altardienst::Laufwerke.Programmverzeichnis());
    if (!lauf.IstErster())
        return EXIT_SUCCESS;
    altardienst::NetzSpannen();
    altardienst::BeiEndeVonAußen(altardienst::ProgrammVerlassen);
    bool gestartet = false;
    altardienst::Offen([&] {
        altardienst::ProgrammStarten();
        gestartet = true;
    })();
    if (gestartet) {
        const int ergebnis = altardienst::EndeVonAußen() ? 0 : QApplication::exec();
        altardienst::NetzEinholen();
        return ergebnis;
    }
    altardienst::UnerwartetesZeigen();
    return EXIT_FAILURE;
}
