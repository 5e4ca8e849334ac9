// How far back services count.
#include "fairness/Archivwahl.h"

#include "controls/Bausteine.h"
#include "core/Umwandlung.h"

#include <algorithm>

namespace altardienst {
namespace {

/// The first day of the plan; 0 without masses.
Datum Planbeginn()
{
    Datum beginn = 0;
    for (int i = 0; i < GemeinsameTabellen().Messenzahl(); ++i)
        beginn = i == 0 ? Messe.Datum[i] : std::min(beginn, Messe.Datum[i]);
    return beginn;
}

} // namespace

QComboBox *Archivwahl(const char *name)
{
    auto *wahl = Benannt(new QComboBox, name);
    wahl->addItem("nur dieser Plan", 0);
    for (const int monate : {3, 6, 12})
        wahl->addItem(QString("mit den letzten %1 Monaten").arg(monate), monate);
    return wahl;
}

Archivzählung ArchivVorDemPlan(const QComboBox *wahl)
{
    const int monate = wahl->currentData().toInt();
    if (monate == 0 || GemeinsameTabellen().Messenzahl() == 0)
        return {};
    return ArchivZählen(GemeinsameTabellen(), Planbeginn(), monate);
}

Text UnlesbaresText(int dateien)
{
    if (dateien == 0)
        return "";
    return dateien == 1
               ? Text("Eine Datei im Archiv ist nicht lesbar und zählt nicht mit.")
               : ZahlText(dateien) + " Dateien im Archiv sind nicht lesbar und zählen nicht mit.";
}

} // namespace altardienst
