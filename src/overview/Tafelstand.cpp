// Where one is in the grid of the plan.
#include "overview/Tafelstand.h"

namespace altardienst {
namespace {

QString Zeilenname(const Planmodell &modell, int zeile)
{
    return modell.Kopf(zeile, Planmodell::Datumspalte) + modell.Kopf(zeile, Planmodell::Uhrzeit) +
           modell.Kopf(zeile, Planmodell::Art);
}

QStringList Zeilennamen(const Planmodell &modell)
{
    QStringList namen;
    namen.reserve(modell.rowCount());
    for (int zeile = 0; zeile < modell.rowCount(); ++zeile)
        namen.append(Zeilenname(modell, zeile));
    return namen;
}

/// The row of the mass that was in this one; if it is gone, of the next one that is left, if none
/// is, of the last one before it.
int ZeileVon(const QStringList &vorher, int zeile, const Planmodell &modell)
{
    if (zeile < 0 || zeile >= vorher.size())
        return -1;
    const QStringList jetzt = Zeilennamen(modell);
    for (qsizetype nächste = zeile; nächste < vorher.size(); ++nächste)
        if (const qsizetype dort = jetzt.lastIndexOf(vorher[nächste]); dort >= 0)
            return static_cast<int>(dort);
    return static_cast<int>(jetzt.size()) - 1;
}

} // namespace

Tafelstand::Tafelstand(const Planmodell &modell, int obersteZeile, const QModelIndex &zelle,
                       int seitlich)
    : Seitlich(seitlich), zeilen(Zeilennamen(modell)), oberste(obersteZeile), gewählte(zelle.row()),
      spalte(Spaltenname(modell, zelle.column()))
{
}

QModelIndex Tafelstand::Zelle(const Planmodell &modell) const
{
    const int zeile = ZeileVon(zeilen, gewählte, modell);
    for (int nr = 0; zeile >= 0 && nr < modell.columnCount(); ++nr)
        if (Spaltenname(modell, nr) == spalte)
            return modell.index(zeile, nr);
    return {};
}

int Tafelstand::ObersteZeile(const Planmodell &modell) const
{
    return ZeileVon(zeilen, oberste, modell);
}

QString Spaltenname(const Planmodell &modell, int spalte)
{
    if (spalte < Planmodell::Kopfspalten) // some have no caption
        return QString::number(spalte);
    return modell.headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString();
}

} // namespace altardienst
