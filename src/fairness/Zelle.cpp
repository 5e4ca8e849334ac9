// Tables to read in.
#include "fairness/Zelle.h"

#include "controls/Bausteine.h"

#include <QHeaderView>

namespace altardienst {

Zahlzelle::Zahlzelle(double wert, const QString &text) : QTableWidgetItem(text), wert(wert)
{
    setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

bool Zahlzelle::operator<(const QTableWidgetItem &andere) const
{
    const auto *zahl = dynamic_cast<const Zahlzelle *>(&andere);
    return zahl ? wert < zahl->wert : QTableWidgetItem::operator<(andere);
}

QTableWidgetItem *Textzelle(const Text &text)
{
    auto *zelle = new QTableWidgetItem(Anzeige(text));
    zelle->setToolTip(Anzeige(text));
    return zelle;
}

QTableWidget *Lesetafel(const char *name, const char *gesprochen, const QStringList &köpfe)
{
    auto *tafel = Benannt(new QTableWidget(0, static_cast<int>(köpfe.size())), name);
    tafel->setHorizontalHeaderLabels(köpfe);
    tafel->setAccessibleName(QString::fromUtf8(gesprochen));
    tafel->setSelectionBehavior(QAbstractItemView::SelectRows);
    tafel->setSelectionMode(QAbstractItemView::SingleSelection);
    tafel->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tafel->setTabKeyNavigation(false);
    tafel->setShowGrid(false);
    tafel->setWordWrap(false);
    tafel->verticalHeader()->hide();
    tafel->verticalHeader()->setDefaultSectionSize(tafel->fontMetrics().height() + 8);
    QHeaderView *kopf = tafel->horizontalHeader();
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf->setHighlightSections(false);
    kopf->setStretchLastSection(true);
    return tafel;
}

} // namespace altardienst
