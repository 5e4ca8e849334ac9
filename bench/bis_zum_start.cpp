// The program up to its start dialog, including loading; it ends once the dialog is shown.
#include "application/Anwendung.h"
#include "history/Netz.h"
#include "shell/Programm.h"

#include <QTimer>

int main(int argc, char *argv[])
{
    QApplication anwendung(argc, argv);
    altardienst::AnwendungEinrichten(anwendung);
    altardienst::NetzSpannen();
    altardienst::ProgrammStarten();
    QTimer::singleShot(0, &anwendung, [] { QApplication::exit(0); });
    return QApplication::exec();
}
