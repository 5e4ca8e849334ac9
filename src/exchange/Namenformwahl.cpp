// The choice of how much of a name leaves the house.
#include "exchange/Namenformwahl.h"

#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"

namespace altardienst {

QComboBox *Namenformwahl(const char *name, const char *fenster, Namenform vorschlag)
{
    auto *wahl = Benannt(new QComboBox, name);
    for (const Festtext &text : Namenformtexte)
        wahl->addItem(QString::fromUtf8(text.c_str()));
    const QString schlüssel = QString::fromUtf8(fenster) + "/Namenform";
    const int vorgabe = static_cast<int>(vorschlag);
    const int gemerkt = Gemerktes().value(schlüssel, vorgabe).toInt();
    wahl->setCurrentIndex(gemerkt >= 0 && gemerkt < wahl->count() ? gemerkt : vorgabe);
    QObject::connect(wahl, &QComboBox::currentIndexChanged, wahl,
                     Abgefangen([schlüssel](int neu) { Gemerktes().setValue(schlüssel, neu); }));
    return wahl;
}

Namenform GewählteNamenform(const QComboBox *wahl)
{
    return static_cast<Namenform>(wahl->currentIndex());
}

} // namespace altardienst
