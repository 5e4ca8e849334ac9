// Forms that stand open beside the main window, whose actions may change what they show.
#include "application/Nebenfenster.h"

#include "controls/Handler.h"
#include "controls/Vordergrund.h"

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <vector>

namespace altardienst {
namespace {

struct Nebenfenster {
    QPointer<QWidget> Form;
    std::function<void()> Ablegen;
    std::function<void()> Erneuern;
};

std::vector<Nebenfenster> alle;

void Alle(std::function<void()> Nebenfenster::*tun)
{
    std::erase_if(alle, [](const Nebenfenster &fenster) { return !fenster.Form; });
    for (const Nebenfenster &fenster : alle)
        Abgefangen(fenster.*tun)();
}

} // namespace

void NebenDemHauptfenster(QWidget *form, std::function<void()> ablegen,
                          std::function<void()> erneuern)
{
    BeiRückkehr(form, Abgefangen(erneuern), Abgefangen([form, ablegen] {
                    QTimer::singleShot(0, form, Abgefangen(ablegen)); // behind the box that is left
                }));
    alle.push_back({form, std::move(ablegen), std::move(erneuern)});
}

QStringList Gezeigt::Texte(const QWidget *form)
{
    QStringList texte;
    for (const auto *feld : form->findChildren<QLineEdit *>())
        texte.append(feld->text());
    return texte;
}

void HauptfensterHandelt(const std::function<void()> &aktion)
{
    Alle(&Nebenfenster::Ablegen);
    Offen(aktion)();
    Alle(&Nebenfenster::Erneuern);
}

} // namespace altardienst
