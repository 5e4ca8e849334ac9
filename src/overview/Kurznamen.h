// Names where there is little room.
#pragma once

#include "overview/Namenspaare.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

namespace altardienst {

/// "Anna M.": the first name and so much of the surname that nobody else is shortened to the same.
/// Servers, helpers and whoever else stands in a mass are told apart; who is server and helper is
/// one person.
class Kurznamen {
  public:
    /// Reads all names.
    void Neu(const Plantabellen &tabellen = GemeinsameTabellen());

    bool Kennt(const Text &vorname, const Text &nachname) const
    {
        return kurz.Finden(vorname, nachname) != nullptr;
    }

    /// A name that was in no table is shortened to one letter of the surname.
    Text Von(const Text &vorname, const Text &nachname) const;

  private:
    Namenspaare<Text> kurz;
};

} // namespace altardienst
