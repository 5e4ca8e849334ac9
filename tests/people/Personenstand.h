// The fixture of the tests of the people's forms.
#pragma once

#include "Fensterstand.h"
#include "people/Modellschirm.h"
#include "platform/Drucker.h"
#include "printing/Druckprotokoll.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

#include <utility>

namespace altardienst {

/// Boxes are set directly; what typing and focus do to them is left to the tests about that.
class Personenstand : public Fensterstand {
  protected:
    Personenstand() : zuvor(std::exchange(Drucker, &Papier)) {}
    ~Personenstand() override { Drucker = zuvor; }

    QWidget *C(const char *name) { return Finden(form.data(), name); }
    Text Gezeigt(const char *name) { return Wanderer::Lesen(C(name)); }
    void Schreiben(const char *box, const Text &text) { Wanderer::Schreiben(C(box), text); }
    void Drücken(const char *knopf) { Finden<QAbstractButton>(form, knopf)->click(); }
    void Drehen(const char *spin, int richtung) { Wanderer::Drehen(C(spin), richtung); }
    void Verlassen(const char *box) { Wanderer::Verlassen(C(box)); }
    std::vector<Text> Liste(const char *box)
    {
        std::vector<Text> einträge;
        auto *wahl = Finden<QComboBox>(form, box);
        for (int i = 0; i < wahl->count(); ++i)
            einträge.push_back(wahl->itemText(i).toStdString());
        return einträge;
    }

    QPointer<QWidget> form;
    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
