// What stands at the same place in every dialog: the row of the records above, the buttons below.
#include "controls/Fensteraufbau.h"

#include <QHBoxLayout>

namespace altardienst {

QLayout *Datensatzkopf(Datensatzwahl *wahl, QLabel *beschriftung, QLabel *anzahl)
{
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(wahl);
    kopf->addSpacing(24);
    kopf->addWidget(beschriftung);
    kopf->addWidget(anzahl);
    kopf->addStretch();
    return kopf;
}

QLayout *Knopfreihe(std::initializer_list<QPushButton *> rechts,
                    std::initializer_list<QWidget *> links)
{
    auto *reihe = new QHBoxLayout;
    for (QWidget *control : links)
        reihe->addWidget(control);
    reihe->addStretch();
    for (QPushButton *knopf : rechts) {
        knopf->setMinimumWidth(110);
        reihe->addWidget(knopf);
    }
    return reihe;
}

} // namespace altardienst
