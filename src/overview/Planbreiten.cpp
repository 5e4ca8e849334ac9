// The plan in one grid: how wide its columns are, and how large all of it.
#include "overview/Plantafel.h"

#include "application/Gemerktes.h"

#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int KleinsterZoom = 60;
constexpr int GrößterZoom = 200;
constexpr const char *Zoomschlüssel = "Plan/Zoom";

QString Breitenschlüssel(const QString &spalte)
{
    return "Plan/Breite/" + spalte;
}

} // namespace

int Plantafel::GemerkterZoom()
{
    return Gemerktes().value(Zoomschlüssel, 100).toInt();
}

void Plantafel::Zoomen(int prozent)
{
    zoom = std::clamp(prozent, KleinsterZoom, GrößterZoom);
    Gemerktes().setValue(Zoomschlüssel, zoom);
    QFont schrift = parentWidget() ? parentWidget()->font() : QApplication::font();
    schrift.setPointSizeF(schrift.pointSizeF() * zoom / 100);
    setFont(schrift);
    Vorn->setFont(schrift);
    maler->SchriftSetzen(schrift);
    SpaltenEinpassen();
}

/// Rows, too: they are all of one height.
void Plantafel::SpaltenEinpassen()
{
    const QScopedValueRollback merken(paßtEin, true);
    const int höhe = maler->Größen().Reihe(modell->HatDienstwörter());
    for (QTableView *ansicht : {static_cast<QTableView *>(this), Vorn})
        if (ansicht->verticalHeader()->defaultSectionSize() != höhe)
            ansicht->verticalHeader()->setDefaultSectionSize(höhe);
    for (int spalte = 0; spalte < modell->columnCount(); ++spalte) {
        const int gemerkt =
            Gemerktes().value(Breitenschlüssel(Spaltenname(*modell, spalte)), 0).toInt();
        const int breite = gemerkt > 0 ? gemerkt * zoom / 100 : sizeHintForColumn(spalte);
        const bool weg = spalte == Planmodell::Fest && !modell->HatFesteEinträge();
        for (QTableView *ansicht : {static_cast<QTableView *>(this), Vorn}) {
            const bool versteckt = weg || (ansicht == Vorn && spalte >= Planmodell::Kopfspalten);
            if (ansicht->isColumnHidden(spalte) != versteckt)
                ansicht->setColumnHidden(spalte, versteckt);
            if (!versteckt && ansicht->columnWidth(spalte) != breite)
                ansicht->setColumnWidth(spalte, breite);
        }
    }
    VorderesEinpassen();
}

/// One view follows the other; what the user chose is remembered, unless it is what the content
/// needs anyway.
void Plantafel::SpalteGezogen(int spalte, int breite)
{
    if (paßtEin)
        return;
    const QScopedValueRollback merken(paßtEin, true);
    setColumnWidth(spalte, breite);
    if (spalte < Planmodell::Kopfspalten)
        Vorn->setColumnWidth(spalte, breite);
    const QString schlüssel = Breitenschlüssel(Spaltenname(*modell, spalte));
    if (breite == sizeHintForColumn(spalte))
        Gemerktes().remove(schlüssel);
    else if (breite > 0)
        Gemerktes().setValue(schlüssel, breite * 100 / zoom);
    VorderesEinpassen();
}

/// Where they would leave less than half of the width to the places, all columns scroll.
void Plantafel::VorderesEinpassen()
{
    int breite = 0;
    for (int spalte = 0; spalte < Planmodell::Kopfspalten; ++spalte)
        breite += columnWidth(spalte);
    Vorn->setVisible(2 * breite <= viewport()->width());
    Vorn->setGeometry(frameWidth(), frameWidth(), breite,
                      viewport()->height() + horizontalHeader()->height());
}

int Plantafel::sizeHintForColumn(int spalte) const
{
    return std::max(maler->Breite(spalte), horizontalHeader()->sectionSizeHint(spalte));
}

} // namespace altardienst
