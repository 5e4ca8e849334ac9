// The rows of the servers of a mass: what each serves, first name, surname.
#pragma once

#include "planning/Messenbearbeitung.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace altardienst {

/// One row for each slot from 1 on.
class Slotzeilen {
  public:
    Slotzeilen();

    static constexpr std::size_t Zahl = MesseTabelle::HöchsterSlot;
    std::array<QLabel *, Zahl> MDR;    // MDR[0] to MDR[19]
    std::array<QLineEdit *, Zahl> vor; // vor1 to vor20
    std::array<QLineEdit *, Zahl> nach;

    QLayout *Anordnen() const;

    /// The rows beyond this number of servers are hidden, so that they leave no hole.
    void Sichtbar(int diener) const;
    void Beschriften(const Slottexte &texte) const;

    /// The names of mass `i`.
    void Zeigen(int i) const;
    void Schreiben(int i) const;
};

} // namespace altardienst
