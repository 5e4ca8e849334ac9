// The record mover of the one-record editors.
#include "controls/Datensatzwahl.h"

#include "controls/Bausteine.h"
#include "controls/Kurztasten.h"
#include "controls/Zahlbox.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace altardienst {

Datensatzwahl::Datensatzwahl(const Datensatznamen &namen)
    : Nummer(Zahleneingabe(namen.Nummer)), Minus(Minusknopf(namen.Minus, "voriger Datensatz")),
      Plus(Plusknopf(namen.Plus, "nächster Datensatz")),
      DPM(namen.DPM ? new SpinButton(namen.DPM, "Datensatz wechseln") : nullptr)
{
    Nummer->setAccessibleName("Nummer des Datensatzes");
    Nummer->setFixedWidth(64);
    TasteNennen(Plus, "Bild auf");
    TasteNennen(Minus, "Bild ab");
    if (DPM)
        PfeiltastenVerbinden(Nummer, DPM);
    auto *reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(0, 0, 0, 0);
    for (QWidget *control : std::initializer_list<QWidget *>{Nummer, DPM, Minus, Plus})
        if (control)
            reihe->addWidget(control);
    reihe->addStretch();
}

void Datensatzwahl::BeiSchritt(const std::function<void(int)> &handler)
{
    SchritteVerbinden(Minus, Plus, DPM, handler);
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this,
            [handler] { handler(+1); });
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this,
            [handler] { handler(-1); });
}

void Datensatzwahl::BeiWechsel(std::function<void()> handler)
{
    connect(Nummer, &QLineEdit::textChanged, this, std::move(handler));
}

} // namespace altardienst
