// A table of figures in a form, and the buttons below it.
#include "statistics/Zahlentafel.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "printing/Fensterdruck.h"

#include <QGroupBox>
#include <QHBoxLayout>

namespace altardienst {

QLabel *Zahlfeld(const char *name)
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
        QLabel *label = Überschrift(kopf);
        label->setWordWrap(true);
        label->setAlignment((spalte == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignBottom);
        setColumnStretch(spalte, 1); // the same width for all, whatever the headings are
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

void Zahlentafel::ZweizeiligerKopf()
{
    const QWidget *kopf = itemAtPosition(0, 0)->widget();
    setRowMinimumHeight(0, 2 * kopf->fontMetrics().lineSpacing());
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

void TafelAnordnen(QWidget *fenster, const char *titel, Zahlentafel *tafel, QPushButton *druck,
                   QPushButton *ende)
{
    auto *rahmen = new QGroupBox(QString::fromUtf8(titel));
    rahmen->setLayout(tafel);
    auto *spalte = Fensterspalte(fenster, Luft::Mittel);
    spalte->addWidget(rahmen);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({druck, ende}));
    fenster->setMinimumWidth(420);
    ende->setFocus();
}

void DruckUndEndeVerbinden(QWidget *fenster, QPushButton *druck, QPushButton *ende)
{
    QObject::connect(druck, &QPushButton::clicked, fenster,
                     Offen([fenster] { FensterDrucken(fenster); }));
    QObject::connect(ende, &QPushButton::clicked, fenster, [fenster] { fenster->close(); });
}

} // namespace altardienst
