// The building blocks of a table: a column with checked bounds, the special columns of a file
// order, and the operations on a list of columns.
#pragma once

#include "values/Laufzeitfehler.h"
#include "values/Text.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>
#include <vector>

namespace altardienst {

/// One field of all records, indices 0 to `höchster`. An index outside is failure 9.
template <class T, int höchster> class Spalte {
  public:
    using Wert = T;

    Spalte() = default;
    explicit Spalte(const T &anfang) { werte.fill(anfang); }

    T &operator[](int i) { return werte[Geprüft(i)]; }
    const T &operator[](int i) const { return werte[Geprüft(i)]; }

  private:
    static std::size_t Geprüft(int i)
    {
        if (static_cast<unsigned>(i) > static_cast<unsigned>(höchster)) [[unlikely]]
            throw Laufzeitfehler(Laufzeitfehler::IndexAußerhalb);
        return static_cast<std::size_t>(i);
    }

    std::array<T, static_cast<std::size_t>(höchster) + 1> werte{};
};

/// A flag string and its default, used when a file holds none.
struct Flagfeld {
    Text &Wert;
    const char *Vorgabe;
};

/// A column of flag strings in a list of columns.
template <int höchster> struct Flagspalte {
    Spalte<Text, höchster> &Werte;
    const char *Vorgabe;
};

/// Columns with one entry per slot that are interleaved in the file: slot `von` of each column,
/// then slot `von` + 1 of each, up to slot `bis`. When a record moves, all its slots move with it.
template <int höchster, int slots, std::size_t anzahl> struct Slotspalten {
    std::array<Spalte<Spalte<Text, slots>, höchster> *, anzahl> Spalten;
    int von;
    int bis;
};

/// A column that is part of the record but not of its file.
template <class T, int höchster> struct NurImSpeicher {
    Spalte<T, höchster> &Werte;
};

// Code that walks a file visits the fields of one record in file order.

template <class T, int höchster, class F> void FelderDer(Spalte<T, höchster> &s, int i, F &f)
{
    f(s[i]);
}

template <int höchster, class F> void FelderDer(Flagspalte<höchster> &s, int i, F &f)
{
    f(Flagfeld{s.Werte[i], s.Vorgabe});
}

template <int höchster, int slots, std::size_t anzahl, class F>
void FelderDer(Slotspalten<höchster, slots, anzahl> &s, int i, F &f)
{
    for (int slot = s.von; slot <= s.bis; ++slot)
        for (auto *spalte : s.Spalten)
            f((*spalte)[i][slot]);
}

template <class T, int höchster, class F> void FelderDer(NurImSpeicher<T, höchster> &, int, F &) {}

// Code that moves records visits whole columns.

template <class T, int höchster, class F> void SpaltenDer(Spalte<T, höchster> &s, F &f)
{
    f(s);
}

template <int höchster, class F> void SpaltenDer(Flagspalte<höchster> &s, F &f)
{
    f(s.Werte);
}

template <int höchster, int slots, std::size_t anzahl, class F>
void SpaltenDer(Slotspalten<höchster, slots, anzahl> &s, F &f)
{
    for (auto *spalte : s.Spalten)
        f(*spalte);
}

template <class T, int höchster, class F> void SpaltenDer(NurImSpeicher<T, höchster> &s, F &f)
{
    f(s.Werte);
}

/// Calls `f` with each field of record `i` that is in the file, in file order.
template <class Liste, class F> void FürJedesFeld(Liste liste, int i, F f)
{
    std::apply([&](auto &...spalten) { (FelderDer(spalten, i, f), ...); }, liste);
}

/// Calls `f` with each column of the list.
template <class Liste, class F> void FürJedeSpalte(Liste liste, F f)
{
    std::apply([&](auto &...spalten) { (SpaltenDer(spalten, f), ...); }, liste);
}

/// Columns to be left out, by address.
using Auslassung = std::vector<const void *>;

/// Calls `f` with each column of the list except those left out.
template <class Liste, class F> void FürJedeSpalteAußer(Liste liste, const Auslassung &außer, F f)
{
    FürJedeSpalte(liste, [&](auto &spalte) {
        if (std::ranges::find(außer, &spalte) == außer.end())
            f(spalte);
    });
}

/// Record `ziel` takes the fields of record `quelle`, except those left out.
template <class Liste>
void FelderÜbernehmen(Liste liste, int ziel, int quelle, const Auslassung &außer = {})
{
    FürJedeSpalteAußer(liste, außer, [&](auto &spalte) { spalte[ziel] = spalte[quelle]; });
}

/// Swaps records `a` and `b`.
template <class Liste> void FelderTauschen(Liste liste, int a, int b)
{
    FürJedeSpalte(liste, [&](auto &spalte) { std::swap(spalte[a], spalte[b]); });
}

} // namespace altardienst
