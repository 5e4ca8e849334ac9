// How much of a name leaves the house. Servers are minors, so only as much as the user chooses.
#pragma once

#include "overview/Kurznamen.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <array>

namespace altardienst {

/// In the order in which they are offered, the fullest first.
enum class Namenform { Ganz, VornameUndBuchstabe, NurVorname, Anfangsbuchstaben };

/// What is proposed wherever names are given away.
inline constexpr Namenform Namenvorschlag = Namenform::VornameUndBuchstabe;

/// As a list to choose from shows them, with an example.
inline constexpr std::array<Festtext, 4> Namenformtexte = {
    "ganzer Name (Anna Adler)", "Vorname und erster Buchstabe (Anna A.)", "nur Vorname (Anna)",
    "nur Anfangsbuchstaben (A. A.)"};

/// Names in one form.
class Namengeber {
  public:
    /// Reads all names, from which `VornameUndBuchstabe` tells each one apart as `Kurznamen` does.
    explicit Namengeber(Namenform form, const Plantabellen &tabellen = GemeinsameTabellen());

    /// Whoever has a surname only is shortened to its initial, except in the whole form; a first
    /// name is shortened in the form of initials only: a whole name that was typed into its field
    /// stays whole in the others. A place that is kept for a group is named as it is. Nobody has no
    /// name.
    /// The text stays where it is as long as this object lives.
    const Text &Von(const Text &vorname, const Text &nachname) const;

  private:
    Text Formen(const Text &vorname, const Text &nachname) const;

    Namenform form;
    const GruppeTabelle &gruppen;
    Kurznamen kurz;
    mutable Namenspaare<Text> geformt; // those that were asked for, which come often
};

} // namespace altardienst
