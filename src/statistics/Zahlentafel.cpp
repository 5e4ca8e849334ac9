// A table of figures in a form, and the row of buttons below it.
#include "statistics/Zahlentafel.h"

#include "fenster/Bausteine.h"

#include <QHBoxLayout>

namespace altardienst {

QLabel *Zahl(const char *name)
{
    QLabel *zahl = Beschriftung(name, "");
    zahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return zahl;
}

Zahlentafel::Zahlentafel(std::initializer_list<const char *> köpfe)
{
    setHorizontalSpacing(10);
    setVerticalSpacing(3);
    int spalte = 0;
    for (const char *kopf : köpfe) {
        QLabel *label = Beschriftung("", kopf);
        label->setWordWrap(true);
        QFont schrift = label->font();
        schrift.setBold(true);
        label->setFont(schrift);
        label->setAlignment((spalte == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignBottom);
        addWidget(label, 0, spalte++);
    }
}

void Zahlentafel::Zeile(QLabel *was, std::initializer_list<QLabel *> zahlen)
{
    const int zeile = rowCount();
    addWidget(was, zeile, 0);
    int spalte = 1;
    for (QLabel *zahl : zahlen) {
        if (zahl)
            addWidget(zahl, zeile, spalte);
        ++spalte;
    }
}

void Zahlentafel::Zeile(const char *was, std::initializer_list<QLabel *> zahlen)
{
    Zeile(Beschriftung("", was), zahlen);
}

QLayout *Satz(std::initializer_list<QWidget *> teile)
{
    auto *reihe = new QHBoxLayout;
    reihe->setSpacing(6);
    for (QWidget *teil : teile)
        reihe->addWidget(teil);
    reihe->addStretch();
    return reihe;
}

} // namespace altardienst
