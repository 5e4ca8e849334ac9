// What the two dialogs of the fixed entries have in common: a mass, and who is fixed to its slots.
#pragma once

#include "core/tables.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include <array>
#include <functional>

namespace altardienst {

/// All event handlers are trapped: a date or time that cannot be read ends them silently and stays
/// as typed.
class Zuordnungsfelder {
  public:
    static constexpr std::size_t Slotzahl = MesseDienerFestTabelle::HöchsterSlot;
    using Dienstnamen = MesseDienerFestTabelle::JeSlot; // of slots 1 to 20

    /// Where the dialogs differ: one shows an entry of the table, the other one that does not exist
    /// yet.
    struct Unterschiede {
        bool Leereintrag;                             // the lists of names begin with a blank
        std::function<int()> Dienerzahl;              // how many slots the entry on the screen has
        std::function<void(Int16)> DienerzahlAblegen; // takes that of the mass chosen for it
        std::function<Dienstnamen &()> Dienste;       // of the entry on the screen
    };

    explicit Zuordnungsfelder(Unterschiede unterschiede);
    Zuordnungsfelder(const Zuordnungsfelder &) = delete; // its handlers refer to it
    Zuordnungsfelder &operator=(const Zuordnungsfelder &) = delete;

    struct Slot {
        QLabel *ME;         // its service
        QComboBox *MDiener; // "Nachname,Vorname", or a group
        QLineEdit *MDV;
        QLineEdit *MDN;
    };

    QComboBox *Messen;
    QLineEdit *DatumD;
    QLineEdit *Zeitd;
    std::array<Slot, Slotzahl> Slots; // ME1, MDiener1, MDV1, MDN1 and so on

    QLayout *Messenzeile() const;
    QLayout *SlotsAnordnen() const;
    void Verbinden();

    /// Fills the lists of masses, and of servers and groups, from the tables; the texts stay.
    void ListenFüllen() const;

    // Between the entry in the table and the screen.
    void Zeigen(int i) const;        // date, time and names
    void NamenZeigen() const;        // in the combos, from the names
    void Schreiben(int i) const;     // date, time and names
    void MesseZeigen() const;        // date and time in `Messen`
    void ZeilenLeeren(int ab) const; // of the names after the first `ab` slots

    // The individual operations, each used by many events. Failure 13 if date or time cannot be
    // read.
    void DatumUhrzeitAngleichen() const;
    void MesseDatumHolen() const;
    void MeßdienerAufteilen() const;
    void MesseDiensteHolen() const;
    void DienstBeschriftungSetzen() const;
    void MeßdienerZeilenEinblenden() const;

    /// Takes names, date and time from the boxes in which they are chosen, and the services from
    /// the mass: three of the above, in their order.
    void Übernehmen() const;

    /// From now on, leaving a box does nothing: the dialog is closing.
    void Stilllegen() { still = true; }

  private:
    static void NameZeigen(const Slot &slot);
    void ZuordnungenPrüfen() const;
    void SlotVerlassen(const Slot &slot) const;
    void MesseVerlassen() const;

    Unterschiede unterschiede;
    bool still = false;
};

} // namespace altardienst
