// The fixture of the tests of the people's forms.
#pragma once

#include "Formstand.h"
#include "people/Modellschirm.h"
#include "platform/Drucker.h"
#include "printing/Druckprotokoll.h"

#include <QApplication>
#include <QComboBox>

#include <utility>

namespace altardienst {

/// Boxes are set directly; what typing and focus do to them is left to the tests about that.
class Personenstand : public Formstand<> {
  protected:
    Personenstand() : zuvor(std::exchange(Drucker, &Papier)) {}
    ~Personenstand() override { Drucker = zuvor; }

    std::vector<Text> Liste(const char *box)
    {
        std::vector<Text> einträge;
        auto *wahl = Finden<QComboBox>(box);
        for (int i = 0; i < wahl->count(); ++i)
            einträge.push_back(wahl->itemText(i).toStdString());
        return einträge;
    }

    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
