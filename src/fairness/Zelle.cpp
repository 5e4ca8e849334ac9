// Tables to read in.
#include "fairness/Zelle.h"

#include "controls/Bausteine.h"
#include "controls/Lesetafel.h"

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
    LesetafelEinrichten(tafel);
    return tafel;
}

} // namespace altardienst
