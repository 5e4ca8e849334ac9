// A flag string and the check boxes that stand for it.
#include "controls/Flagboxen.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "values/Text.h"

namespace altardienst {

Flagboxen::Flagboxen(const char *feld, const char *wovon, const std::vector<Flagname> &namen)
    : Feld(Textfeld(feld)), namen(namen)
{
    for (const Flagname &name : namen) {
        Boxen.push_back(Benannt(new QCheckBox, name.Box));
        Boxen.back()->setAccessibleName(QString::fromUtf8(wovon) + " " +
                                        QString::fromUtf8(name.Text));
    }
}

QLayout *Flagboxen::Anordnen(QWidget *fenster, int jeZeile) const
{
    Feld->setParent(fenster);
    Feld->hide();
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(4);
    raster->setVerticalSpacing(4);
    for (std::size_t k = 0; k < Boxen.size(); ++k) {
        const int zeile = static_cast<int>(k) / jeZeile;
        const int spalte = 3 * (static_cast<int>(k) % jeZeile);
        QCheckBox *box = Boxen[k];
        auto *label = Beschriftung("", namen[k].Text);
        label->setBuddy(box);
        BeiKlick(label, Abgefangen([box] { box->click(); }));
        raster->addWidget(box, zeile, spalte);
        raster->addWidget(label, zeile, spalte + 1);
        raster->setColumnMinimumWidth(spalte + 2, 14);
    }
    raster->setColumnStretch(3 * jeZeile, 1);
    return raster;
}

void Flagboxen::Verbinden() const
{
    for (std::size_t k = 0; k < Boxen.size(); ++k)
        QObject::connect(Boxen[k], &QCheckBox::clicked, Feld, Abgefangen([feld = Feld, k](bool ja) {
                             Setzen(feld, MitFlag(TextVon(feld), static_cast<int>(k) + 1, ja));
                         }));
    QObject::connect(Feld, &QLineEdit::textChanged, Feld, Abgefangen([feld = Feld, boxen = Boxen] {
                         for (std::size_t k = 0; k < boxen.size(); ++k)
                             boxen[k]->setChecked(IstJa(TextVon(feld), static_cast<int>(k) + 1));
                     }));
}

} // namespace altardienst
