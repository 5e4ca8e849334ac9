// The number of servers of a mass and the boxes of its services, which add up to it.
#pragma once

#include "controls/Zahlbox.h"
#include "core/Plätze.h"
#include "planning/Messenbearbeitung.h"

#include <algorithm>
#include <array>
#include <functional>

namespace altardienst {

/// What a form calls the boxes: the number of servers, then the services in the order of
/// `Dienstarten`.
struct Dienstnamen {
    static constexpr std::size_t Boxzahl = 1 + Dienstarten.size();

    std::array<const char *, Boxzahl> Felder;
    std::array<const char *, Boxzahl> Spins;
    const char *Dienerzahl; // what the form calls the number of servers
    const char *Ende;       // of each label: ":" or nothing
};

/// Changing a service clips it, cuts `Allgemein` down to what is left of 20, and sets the number of
/// servers to the sum of all six.
class Dienstboxen {
  public:
    explicit Dienstboxen(const Dienstnamen &namen);
    Dienstboxen(const Dienstboxen &) = delete; // its handlers refer to it
    Dienstboxen &operator=(const Dienstboxen &) = delete;

    Zahlbox Dienerzahl;
    std::array<Zahlbox, BesondereDienste.size()> Dienste;
    Zahlbox Allgemein;

    /// From row `zeile` on, in columns of `reihen` rows.
    void Anordnen(QGridLayout *raster, int zeile,
                  int reihen = static_cast<int>(Dienstnamen::Boxzahl)) const;

    /// `beiDienerzahl` is the form's own handler for a change of the number of servers.
    /// `nachDienst` runs after a change of one of the five services, unless a box held no number.
    void Verbinden(
        const std::function<void()> &beiDienerzahl,
        const std::function<void()> &nachDienst = [] {}) const;

    /// Clips it to 0 to 20 and returns it. Failure 13 if the box holds no number.
    int DienerzahlBegrenzen() const;

    /// Shows or writes the seven numbers of record `i` of `Standardmesse` or `Messe`.
    template <class Tabelle> void Zeigen(Tabelle &tabelle, int i) const
    {
        ZahlenZeigen(Felder(), Spalten(tabelle), i);
    }
    template <class Tabelle> void Schreiben(Tabelle &tabelle, int i) const
    {
        ZahlenSchreiben(Felder(), Spalten(tabelle), i);
    }

    /// All seven boxes, in the order of the screen.
    std::array<QLineEdit *, Dienstnamen::Boxzahl> Felder() const;

    /// Reads in the order of the screen up to the first box that holds no number; failure 13 then.
    void Lesen(Dienstwünsche &wünsche) const;

  private:
    template <class Tabelle> static auto Spalten(Tabelle &t)
    {
        std::array<decltype(&t.Dienerzahl), Dienstnamen::Boxzahl> spalten = {&t.Dienerzahl};
        std::ranges::copy(Zahlspalten(Dienstarten, t), spalten.begin() + 1);
        return spalten;
    }

    int SummeDerDienste() const;
    void DienstGeändert(std::size_t k) const;
    void AllgemeinGeändert() const;

    std::array<Text, Dienstnamen::Boxzahl> texte;
};

/// The numbers of helpers that a mass wants, in the order of `Helferarten`.
class Helferzahlboxen {
  public:
    static constexpr std::size_t Boxzahl = Helferarten.size();

    struct Namen {
        std::array<const char *, Boxzahl> Felder;
        std::array<const char *, Boxzahl> Spins;
        const char *Ende; // of each label: ":" or nothing
    };

    explicit Helferzahlboxen(const Namen &namen);

    std::array<Zahlbox, Boxzahl> Boxen;

    void Anordnen(QGridLayout *raster, int zeile) const;

    /// On change, each number is clipped to the places that a mass has for its kind.
    void Verbinden() const;

    /// Shows or writes the numbers of record `i` of `Standardmesse` or `Messe`.
    template <class Tabelle> void Zeigen(Tabelle &tabelle, int i) const
    {
        ZahlenZeigen(Felder(), Zahlspalten(Helferarten, tabelle), i);
    }
    template <class Tabelle> void Schreiben(Tabelle &tabelle, int i) const
    {
        ZahlenSchreiben(Felder(), Zahlspalten(Helferarten, tabelle), i);
    }

    std::array<QLineEdit *, Boxzahl> Felder() const;

  private:
    std::array<Text, Boxzahl> texte;
};

/// The counts of servers, with those of helpers to their right.
QLayout *Nebeneinander(const Dienstboxen &dienste, const Helferzahlboxen &helfer);

} // namespace altardienst
