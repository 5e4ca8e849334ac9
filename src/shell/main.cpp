// The program: the start dialog, then the main window.
#include "fenster/Anwendung.h"
#include "shell/Programm.h"

int main(int argc, char *argv[])
{
    QApplication anwendung(argc, argv);
    altardienst::AnwendungEinrichten(anwendung);
    altardienst::ProgrammStarten();
    return QApplication::exec();
}
