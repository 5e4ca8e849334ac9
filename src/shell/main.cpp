// The program: the start dialog, then the main window.
#include "application/Anwendung.h"
#include "shell/Programm.h"

#include <QIcon>

int main(int argc, char *argv[])
{
    QApplication anwendung(argc, argv);
    altardienst::AnwendungEinrichten(anwendung);
    QApplication::setWindowIcon(QIcon(":/altardienst.png"));
    QApplication::setDesktopFileName("altardienst"); // by which the desktop finds name and symbol
    altardienst::ProgrammStarten();
    return QApplication::exec();
}
