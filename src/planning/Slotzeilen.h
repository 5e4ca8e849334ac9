// The rows of a mass's servers: service, first name, surname.
#pragma once

#include "planning/Messenbearbeitung.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace altardienst {

/// The slots from slot 1 on, two in a row.
class Slotzeilen {
  public:
    Slotzeilen();

    static constexpr std::size_t Zeilenzahl = MesseTabelle::HöchsterSlot;
    std::array<QLabel *, Zeilenzahl> MDR;    // MDR[0] to MDR[19]
    std::array<QLineEdit *, Zeilenzahl> vor; // vor1 to vor20
    std::array<QLineEdit *, Zeilenzahl> nach;

    QLayout *Anordnen() const;

    /// Hides the rows beyond this number of servers, so that they leave no gap.
    void Sichtbar(int diener) const;
    void Beschriften(const Slottexte &texte) const;

    /// Proposes the servers while a name is typed; choosing one fills in both boxes of the row.
    void Ergänzen() const;

    /// The names of mass `i`.
    void Zeigen(int i) const;
    void Schreiben(int i) const;
};

} // namespace altardienst
