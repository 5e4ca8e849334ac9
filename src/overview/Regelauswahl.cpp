// Which rules the plan is looked at by.
#include "overview/Regelauswahl.h"

#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <array>
#include <utility>

namespace altardienst {
namespace {

/// By name, since rules may come to stand in another order.
QString Schlüssel(std::size_t regel)
{
    return "Plan/Regel/" + Anzeige(Regelname(static_cast<Regel>(regel)));
}

std::array<int, Regelzahl> Zahlen(const Planprüfung &prüfung)
{
    std::array<int, Regelzahl> zahlen{};
    for (const Befund &befund : prüfung.Alle())
        ++zahlen[static_cast<std::size_t>(befund.Gegen)];
    return zahlen;
}

} // namespace

Regelauswahl::Regelauswahl(QWidget *über, const Planprüfung &prüfung,
                           std::function<void(const Regelwahl &)> beiWahl)
    : QMenu(über), prüfung(prüfung), beiWahl(std::move(beiWahl)), alle(addAction("alle"))
{
    Benannt(this, "Regeln");
    addSeparator();
    const Regelwahl gemerkte = Gemerkte();
    for (std::size_t nr = 0; nr < Regelzahl; ++nr) {
        QAction *regel = addAction(Anzeige(Regelname(static_cast<Regel>(nr))));
        regel->setCheckable(true);
        regel->setChecked(gemerkte[nr]);
        regel->setData(static_cast<int>(nr));
        connect(regel, &QAction::triggered, this, Abgefangen([this] { Wählen(); }));
    }
    connect(alle, &QAction::triggered, this, Abgefangen([this] {
                for (QAction *eintrag : actions())
                    if (eintrag->isCheckable())
                        eintrag->setChecked(true);
                Wählen();
            }));
    connect(this, &QMenu::aboutToShow, this, Abgefangen([this] { Anbieten(); }));
}

Regelwahl Regelauswahl::Gemerkte()
{
    Regelwahl regeln;
    for (std::size_t nr = 0; nr < regeln.size(); ++nr)
        regeln[nr] = Gemerktes().value(Schlüssel(nr), true).toBool();
    return regeln;
}

void Regelauswahl::Anbieten()
{
    const auto zahlen = Zahlen(prüfung);
    for (QAction *eintrag : actions()) {
        if (!eintrag->isCheckable())
            continue;
        const auto nr = static_cast<std::size_t>(eintrag->data().toInt());
        const QString name = Anzeige(Regelname(static_cast<Regel>(nr)));
        eintrag->setText(zahlen[nr] > 0 ? name + QString("\t%1").arg(zahlen[nr]) : name);
    }
}

void Regelauswahl::Wählen()
{
    Regelwahl regeln;
    for (const QAction *eintrag : actions()) {
        if (!eintrag->isCheckable())
            continue;
        const auto nr = static_cast<std::size_t>(eintrag->data().toInt());
        regeln[nr] = eintrag->isChecked();
        Gemerktes().setValue(Schlüssel(nr), eintrag->isChecked());
    }
    beiWahl(regeln);
}

/// Space marks and Enter, as everywhere, takes what is marked and closes.
void Regelauswahl::keyPressEvent(QKeyEvent *taste)
{
    if (taste->key() == Qt::Key_Space && activeAction())
        activeAction()->trigger();
    else
        QMenu::keyPressEvent(taste);
}

void Regelauswahl::mouseReleaseEvent(QMouseEvent *maus)
{
    QAction *eintrag = actionAt(maus->pos());
    if (eintrag && eintrag->isEnabled() && !eintrag->isSeparator())
        eintrag->trigger();
    else
        QMenu::mouseReleaseEvent(maus);
}

} // namespace altardienst
