// What is the same in every window: the margins, the record row at the top, the buttons at the
// bottom.
#include "controls/Fensteraufbau.h"

#include "controls/Hinweise.h"

#include <QHBoxLayout>

#include <algorithm>

namespace altardienst {

QVBoxLayout *Fensterspalte(QWidget *fenster, Luft luft, QWidget *links)
{
    struct Maße {
        int Rand;
        int Abstand;
    };
    const Maße maße = luft == Luft::Viel     ? Maße{20, 18}
                      : luft == Luft::Mittel ? Maße{16, 12}
                                             : Maße{12, 8};
    HinweiseAnbringen(fenster);
    auto *spalte = new QVBoxLayout;
    QLayout *ganz = spalte;
    int linkerRand = maße.Rand;
    if (links) { // stands in the margin as far as it can
        auto *reihe = new QHBoxLayout;
        reihe->setSpacing(2);
        reihe->addWidget(links);
        reihe->addLayout(spalte, 1);
        ganz = reihe;
        linkerRand -= std::min(linkerRand, links->minimumSizeHint().width() + reihe->spacing());
    }
    ganz->setContentsMargins(linkerRand, maße.Rand, maße.Rand, maße.Rand);
    spalte->setSpacing(maße.Abstand);
    fenster->setLayout(ganz);
    return spalte;
}

QLayout *Datensatzkopf(Datensatzwahl *wahl, QLabel *beschriftung, QLabel *anzahl)
{
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(wahl);
    if (anzahl) {
        kopf->addSpacing(24);
        kopf->addWidget(beschriftung);
        kopf->addWidget(anzahl);
    }
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
