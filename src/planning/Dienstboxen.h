// The number of servers of a mass and the boxes of its services, which add up to it.
#pragma once

#include "controls/Zahlbox.h"
#include "planning/Messenbearbeitung.h"

#include <array>
#include <functional>

namespace altardienst {

/// The names that a form gives to the boxes: the number of servers, Gabenbereitung, Leuchter,
/// Flambeau, Weihrauch, Kreuzträger, Allgemein.
struct Dienstnamen {
    std::array<const char *, 7> Felder;
    std::array<const char *, 7> Spins;
    std::array<const char *, 7> Texte;
};

/// A change of a service clips it, cuts `Allgemein` to what is left of 20, and sets the number of
/// servers to the sum of all six.
class Dienstboxen {
  public:
    explicit Dienstboxen(const Dienstnamen &namen);

    Zahlbox Dienerzahl;
    std::array<Zahlbox, 5> Dienste; // Gabenbereitung to Kreuzträger
    Zahlbox Allgemein;

    void Anordnen(QGridLayout *raster, int zeile) const;

    /// `beiDienerzahl` is the form's own handler for a change of the number of servers.
    /// `nachDienst` runs after a change of one of the five services, unless a box held no number.
    void Verbinden(
        const std::function<void()> &beiDienerzahl,
        const std::function<void()> &nachDienst = [] {}) const;

    /// 0 to 20; returns it. Failure 13 if the box holds no number.
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
    std::array<QLineEdit *, 7> Felder() const;

    /// In the order of the screen up to the first box that holds no number; failure 13 then.
    void Lesen(Dienstwünsche &wünsche) const;

  private:
    template <class Tabelle> static auto Spalten(Tabelle &t)
    {
        return std::array{&t.Dienerzahl, &t.Gabenbereitung, &t.Leuchter, &t.Flambeau,
                          &t.Weihrauch,  &t.Kreuzträger,    &t.Allgemein};
    }

    int SummeDerDienste() const;
    void DienstGeändert(std::size_t k) const;
    void AllgemeinGeändert() const;

    std::array<const char *, 7> texte;
};

/// The numbers of helpers that a mass wants: Lektor, Kommunionhelfer, Kantor, Kollektant.
class Helferzahlboxen {
  public:
    struct Namen {
        std::array<const char *, 4> Felder;
        std::array<const char *, 4> Spins;
        std::array<const char *, 4> Texte;
    };

    explicit Helferzahlboxen(const Namen &namen);

    std::array<Zahlbox, 4> Boxen;

    void Anordnen(QGridLayout *raster, int zeile) const;

    /// Each number is clipped to 0 to 2 on change.
    void Verbinden() const;

    std::array<QLineEdit *, 4> Felder() const;

  private:
    std::array<const char *, 4> texte;
};

} // namespace altardienst
