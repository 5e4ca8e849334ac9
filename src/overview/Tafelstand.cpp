// Where one is in the grid of the plan.
#include "overview/Tafelstand.h"

namespace altardienst {
namespace {

QString Zeilenname(const Planmodell &modell, int zeile)
{
    if (zeile < 0 || zeile >= modell.rowCount())
        return {};
    return modell.Kopf(zeile, Planmodell::Datumspalte) + modell.Kopf(zeile, Planmodell::Uhrzeit) +
           modell.Kopf(zeile, Planmodell::Art);
}

int ZeileVon(const Planmodell &modell, const QString &name)
{
    int zeile = name.isEmpty() ? -1 : modell.rowCount() - 1;
    while (zeile >= 0 && Zeilenname(modell, zeile) != name)
        --zeile;
    return zeile;
}

} // namespace

Tafelstand::Tafelstand(const Planmodell &modell, int obersteZeile, const QModelIndex &zelle,
                       int seitlich)
    : Seitlich(seitlich), oberste(Zeilenname(modell, obersteZeile)),
      messe(Zeilenname(modell, zelle.row())), spalte(Spaltenname(modell, zelle.column()))
{
}

QModelIndex Tafelstand::Zelle(const Planmodell &modell) const
{
    const int zeile = ZeileVon(modell, messe);
    for (int nr = 0; zeile >= 0 && nr < modell.columnCount(); ++nr)
        if (Spaltenname(modell, nr) == spalte)
            return modell.index(zeile, nr);
    return {};
}

int Tafelstand::ObersteZeile(const Planmodell &modell) const
{
    return ZeileVon(modell, oberste);
}

QString Spaltenname(const Planmodell &modell, int spalte)
{
    if (spalte < Planmodell::Kopfspalten) // some have no caption
        return QString::number(spalte);
    return modell.headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString();
}

} // namespace altardienst
