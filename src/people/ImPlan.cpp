// The way from a record to its services in the plan.
#include "people/ImPlan.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"

#include <QPointer>

namespace altardienst {

std::function<void(const Text &vorname, const Text &nachname)> ImPlanZeigen;

QPushButton *ImPlanKnopf(QWidget *form, QPushButton *ende, const std::function<Personenname()> &wer)
{
    QPushButton *knopf = Knopf("ImPlan", "Im Plan zeigen");
    if (!ImPlanZeigen)
        knopf->hide();
    QObject::connect(knopf, &QPushButton::clicked, form, Offen([form, ende, wer] {
                         const QPointer<QWidget> noch = form;
                         const Personenname name = wer();
                         ende->click();
                         if (noch && noch->isVisible())
                             return; // it has said why
                         if (ImPlanZeigen)
                             ImPlanZeigen(name.Vorname, name.Nachname);
                     }));
    return knopf;
}

} // namespace altardienst
