// Two parts of a window side by side, or one below the other.
#include "controls/Umbruch.h"

#include <algorithm>

namespace altardienst {

Umbruch::Umbruch(QLayout *links, QLayout *rechts, int abstand)
    : links(links), rechts(rechts), abstand(abstand)
{
    for (QLayout *teil : {links, rechts}) {
        addChildLayout(teil);
        addItem(teil);
    }
}

bool Umbruch::Nebeneinander(int breite) const
{
    return links->minimumSize().width() + abstand + rechts->minimumSize().width() <= breite;
}

int Umbruch::heightForWidth(int breite) const
{
    const int oben = links->sizeHint().height();
    const int unten = rechts->sizeHint().height();
    return Nebeneinander(breite) ? std::max(oben, unten) : oben + abstand + unten;
}

QSize Umbruch::sizeHint() const
{
    const QSize l = links->sizeHint();
    const QSize r = rechts->sizeHint();
    return {l.width() + abstand + r.width(), std::max(l.height(), r.height())};
}

/// How high it must be follows from its width.
QSize Umbruch::minimumSize() const
{
    return links->minimumSize().expandedTo(rechts->minimumSize());
}

void Umbruch::setGeometry(const QRect &platz)
{
    QLayout::setGeometry(platz);
    if (Nebeneinander(platz.width())) {
        const int frei = platz.width() - links->minimumSize().width() - abstand;
        const int breite = std::min(frei, rechts->sizeHint().width());
        links->setGeometry(platz.adjusted(0, 0, -breite - abstand, 0));
        rechts->setGeometry(platz.adjusted(platz.width() - breite, 0, 0, 0));
    } else {
        const int hoch = links->sizeHint().height();
        links->setGeometry({platz.x(), platz.y(), platz.width(), hoch});
        rechts->setGeometry(platz.adjusted(0, hoch + abstand, 0, 0));
    }
}

QLayoutItem *Umbruch::takeAt(int n)
{
    return n >= 0 && n < count() ? teile.takeAt(n) : nullptr;
}

} // namespace altardienst
