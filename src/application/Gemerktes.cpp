// What the program remembers of its windows from one run to the next.
#include "application/Gemerktes.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStandardPaths>

namespace altardienst {
namespace {

QPointer<QSettings> gemerktes;

QString DateiDesBenutzers()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/Fenster.ini";
}

} // namespace

QSettings &Gemerktes()
{
    if (!gemerktes)
        GemerktesIn({});
    return *gemerktes;
}

void GemerktesIn(const QString &datei)
{
    delete gemerktes; // writes what it still holds
    gemerktes = new QSettings(datei.isEmpty() ? DateiDesBenutzers() : datei, QSettings::IniFormat,
                              QCoreApplication::instance());
}

} // namespace altardienst
