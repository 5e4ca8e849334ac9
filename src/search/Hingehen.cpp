// The way from a hit to the place where it stands.
#include "search/Hingehen.h"

#include "application/Anwendung.h"
#include "application/Nebenfenster.h"
#include "controls/Bausteine.h"
#include "core/tables.h"
#include "fixed/MesseDienerFestForm.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "planning/LektorrenuswForm.h"
#include "planning/MessenlisteForm.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>

namespace altardienst {
namespace {

QAbstractButton *MitAufschrift(const QWidget *fenster, const char *text)
{
    const auto knöpfe = fenster->findChildren<QAbstractButton *>();
    const auto knopf = std::ranges::find_if(
        knöpfe, [text](const QAbstractButton *einer) { return einer->text() == text; });
    return knopf == knöpfe.end() ? nullptr : *knopf;
}

/// Where a kind of hit stands: the form, the cursor on which it opens, the step to a record.
template <class Form> struct Ziel {
    Int16 &Cursor;
    void (*Aufschlagen)(Form *, int satz);

    QWidget *Offenes() const { return OffeneForm<Form>(); }

    /// The form at the record; null if it stayed at another one.
    Form *Zeigen(int satz) const
    {
        if (auto *form = OffeneForm<Form>()) {
            DialogDanebenÖffnen(form);
            Aufschlagen(form, satz);
        } else {
            HauptfensterHandelt([&] {
                Cursor = satz;
                DialogÖffnen<Form>();
            });
        }
        auto *form = OffeneForm<Form>();
        return form && form->Wahl->Nummer->text() == QString::number(satz) ? form : nullptr;
    }
};

const Ziel<MeßdienerForm> ZuMeßdiener = {
    Meßdiener.Cursor, [](MeßdienerForm *form, int satz) { form->Liste->Wählen(satz); }};
const Ziel<HelferForm> ZuHelfer = {Helfer.Cursor,
                                   [](HelferForm *form, int satz) { form->Liste->Wählen(satz); }};
const Ziel<MessenlisteForm> ZuMesse = {
    Messe.Cursor, [](MessenlisteForm *form, int satz) { form->Liste->Wählen(satz); }};
const Ziel<MesseDienerFestForm> ZuFestem = {
    MesseDienerFest.Cursor, [](MesseDienerFestForm *form, int satz) { form->Springen(satz); }};

QWidget *OffenesZiel(Fundort wo)
{
    switch (wo) {
    case Fundort::Meßdiener:
    case Fundort::Wunschpartner:
        return ZuMeßdiener.Offenes();
    case Fundort::Helfer:
        return ZuHelfer.Offenes();
    case Fundort::Messe:
    case Fundort::Meßdienerplatz:
    case Fundort::Helferplatz:
        return ZuMesse.Offenes();
    case Fundort::FesterEintrag:
        return ZuFestem.Offenes();
    }
    return nullptr;
}

void FokusIn(QWidget *control)
{
    control->setFocus();
    InSicht(control);
}

void HelferplatzZeigen(MessenlisteForm *liste, int platz)
{
    liste->Lektoren->setFocus();
    liste->Lektoren->click();
    if (auto *form = OffeneForm<LektorrenuswForm>())
        FokusIn(form->Plätze[static_cast<std::size_t>(platz)].LH);
}

void Zeigen(const Fund &treffer)
{
    const auto slot = static_cast<std::size_t>(std::max(treffer.Platz - 1, 0));
    switch (treffer.Wo) {
    case Fundort::Meßdiener:
        if (auto *form = ZuMeßdiener.Zeigen(treffer.Satz))
            FokusIn(form->Angaben.Person.Vorname);
        break;
    case Fundort::Wunschpartner:
        if (auto *form = ZuMeßdiener.Zeigen(treffer.Satz))
            FokusIn(form->Wunsch.Partner);
        break;
    case Fundort::Helfer:
        if (auto *form = ZuHelfer.Zeigen(treffer.Satz))
            FokusIn(form->Person.Vorname);
        break;
    case Fundort::Messe:
        ZuMesse.Zeigen(treffer.Satz);
        break;
    case Fundort::Meßdienerplatz:
        if (auto *form = ZuMesse.Zeigen(treffer.Satz))
            FokusIn(form->Slots.vor[slot]);
        break;
    case Fundort::Helferplatz:
        if (auto *form = ZuMesse.Zeigen(treffer.Satz))
            HelferplatzZeigen(form, treffer.Platz);
        break;
    case Fundort::FesterEintrag:
        if (auto *form = ZuFestem.Zeigen(treffer.Satz))
            FokusIn(form->Felder.Slots[slot].MDiener);
        break;
    }
}

/// The window that came forward when another one was left.
QWidget *WasJetztVornIst(QWidget *vorn)
{
    if (vorn && vorn->isVisible())
        return vorn;
    const QWidgetList alle = QApplication::topLevelWidgets();
    const auto offen = std::ranges::find_if(alle, [](const QWidget *fenster) {
        return fenster->isVisible() && fenster->isEnabled() && Endeknopf(fenster);
    });
    return offen == alle.end() ? nullptr : *offen;
}

} // namespace

QWidget *Hindernis(const Fund &treffer, QWidget *vorn)
{
    QWidget *form = OffenesZiel(treffer.Wo);
    if (!form)
        return HauptfensterBereit() ? nullptr : vorn;
    QWidget *anSeinerStelle = AufDemSchirm(form);
    if (anSeinerStelle != form)
        return anSeinerStelle;
    return form->isEnabled() ? nullptr : vorn;
}

QAbstractButton *Endeknopf(const QWidget *fenster)
{
    QAbstractButton *ende = MitAufschrift(fenster, "Ende");
    if (!ende && !MitAufschrift(fenster, "Abbrechen"))
        ende = MitAufschrift(fenster, "OK");
    return ende && ende->isEnabled() ? ende : nullptr;
}

void Hingehen(const Fund &treffer, QWidget *vorn)
{
    constexpr int MeisteFenster = 4; // that stand one in the place of the other
    for (int n = 0; n < MeisteFenster; ++n) {
        const QPointer<QWidget> hindernis = Hindernis(treffer, WasJetztVornIst(vorn));
        if (!hindernis)
            return Zeigen(treffer);
        QAbstractButton *ende = Endeknopf(hindernis);
        if (!ende)
            return;
        ende->setFocus();
        ende->click();
        if (hindernis && hindernis->isVisible())
            return; // it has said why
    }
}

} // namespace altardienst
