// The yardstick for the start: a Qt program with one empty window, which ends once it is shown.
#include <QApplication>
#include <QTimer>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication anwendung(argc, argv);
    QWidget fenster;
    fenster.show();
    QTimer::singleShot(0, &anwendung, [] { QApplication::exit(0); });
    return QApplication::exec();
}
