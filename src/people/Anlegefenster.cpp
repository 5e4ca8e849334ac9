// What the dialogs that add a group, a server or a helper have in common.
#include "people/Anlegefenster.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"

#include <QCloseEvent>

namespace altardienst {

Anlegefenster::Anlegefenster(std::function<void(bool)> danach)
    : OKButton(Knopf("OKButton", "OK")), CancelButton(Knopf("CancelButton", "Abbrechen")),
      danach(std::move(danach))
{
}

void Anlegefenster::KnöpfeVerbinden(std::function<void()> anlegen)
{
    connect(OKButton, &QPushButton::clicked, this, Offen(std::move(anlegen)));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

void Anlegefenster::RahmenAnordnen(QLayout *angaben)
{
    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addWidget(Rollbar(angaben), 1);
    spalte->addLayout(Schlußknöpfe());
    setMinimumWidth(460);
    GrößeAnpassen(this);
}

QLayout *Anlegefenster::Schlußknöpfe()
{
    return Knopfreihe({OKButton, CancelButton});
}

void Anlegefenster::Fertig()
{
    angelegt = true;
    close();
}

void Anlegefenster::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    Offen([this] { danach(angelegt); })();
}

} // namespace altardienst
