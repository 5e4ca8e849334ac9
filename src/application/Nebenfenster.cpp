// Forms that stay open next to the main window, whose actions may change what they show.
#include "application/Nebenfenster.h"

#include "application/Anwendung.h"
#include "application/Datensatzliste.h"
#include "controls/Handler.h"
#include "controls/Vordergrund.h"

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

struct Nebenfenster {
    QPointer<QWidget> Form;
    std::function<void()> Ablegen;
    std::function<void()> Erneuern;
    std::function<void()> Belassen;
};

std::vector<Nebenfenster> alle;
bool handelt = false; // the main window does

void InAllenAusführen(std::function<void()> Nebenfenster::*tun)
{
    std::erase_if(alle, [](const Nebenfenster &fenster) { return !fenster.Form; });
    for (const Nebenfenster &fenster : alle)
        (fenster.*tun)();
}

/// A form that is closed lives on for a moment.
std::function<void()> SolangeOffen(QWidget *form, std::function<void()> tun)
{
    return Abgefangen([form, tun = std::move(tun)] {
        if (AufDemSchirm(form))
            tun();
    });
}

} // namespace

void NebenDemHauptfenster(QWidget *form, std::function<void()> ablegen,
                          std::function<void()> erneuern, std::function<void()> belassen)
{
    const Nebenfenster neues{form, SolangeOffen(form, std::move(ablegen)),
                             SolangeOffen(form, std::move(erneuern)),
                             SolangeOffen(form, std::move(belassen))};
    BeiRückkehr(form, neues.Erneuern, Abgefangen([form, ablegen = neues.Ablegen] {
                    QTimer::singleShot(0, form, ablegen); // once the box is left
                }));
    alle.push_back(neues);
}

QStringList Gezeigt::Texte(const QWidget *form)
{
    QStringList texte;
    for (const auto *feld : form->findChildren<QLineEdit *>())
        if (!GehörtZurListe(feld))
            texte.append(feld->text());
    return texte;
}

bool IstNebenfenster(const QWidget *fenster)
{
    return fenster && std::ranges::find(alle, fenster, &Nebenfenster::Form) != alle.end();
}

bool SindMehrereOffen()
{
    return std::ranges::count_if(alle, [](const Nebenfenster &fenster) {
               return fenster.Form && AufDemSchirm(fenster.Form);
           }) > 1;
}

void HauptfensterHandelt(const std::function<void()> &aktion)
{
    InAllenAusführen(&Nebenfenster::Ablegen);
    const bool zuvor = std::exchange(handelt, true);
    Offen(aktion)();
    handelt = zuvor;
    InAllenAusführen(&Nebenfenster::Erneuern);
}

void OffeneFormenBelassen()
{
    if (!handelt)
        InAllenAusführen(&Nebenfenster::Belassen);
}

} // namespace altardienst
