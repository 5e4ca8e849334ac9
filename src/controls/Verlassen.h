// When a box that loses the focus has not been left.
#pragma once

namespace altardienst {

/// While one of these lives, no box counts as left, whatever happens to the focus: a message box
/// has taken it for a while, or the program has moved it to the box at which a save failed. Neither
/// was the user's doing, and rules that ran now would cause further messages or change what he
/// typed.
class OhneVerlassen {
  public:
    OhneVerlassen()
    {
        ++zahl;
        ++insgesamt;
    }
    ~OhneVerlassen() { --zahl; }
    OhneVerlassen(const OhneVerlassen &) = delete;
    OhneVerlassen &operator=(const OhneVerlassen &) = delete;

    static bool Gilt() { return zahl > 0; }

    /// How many there have been: has one come in the course of a step, the step was interrupted.
    static int Wievielte() { return insgesamt; }

  private:
    static inline int zahl = 0;
    static inline int insgesamt = 0;
};

} // namespace altardienst
