// The services and places of a mass, and the bounds of a plan, each in one place. Whatever lists
// them walks these tables; what only one list needs is kept with that list. The weekday names are
// with the dates (values/Datum.h).
#pragma once

#include "core/tables.h"

#include <algorithm>
#include <array>
#include <span>
#include <type_traits>

namespace altardienst {

// Days of the plan period after the first.
constexpr int WenigsteTage = 7;
constexpr int MeisteTage = 180;

/// A count that both a mass and the week pattern have.
struct Zahlspalte {
    MesseTabelle::Spalte<Int16> MesseTabelle::*InMesse;
    StandardmesseTabelle::Spalte<Int16> StandardmesseTabelle::*InStandardmesse;

    /// The column in one of these two tables.
    template <class Tabelle> auto &In(Tabelle &tabelle) const
    {
        if constexpr (std::is_same_v<std::remove_const_t<Tabelle>, StandardmesseTabelle>)
            return tabelle.*InStandardmesse;
        else
            return tabelle.*InMesse;
    }
};

/// A service of servers.
struct Dienstart {
    Festtext Name; // in `Messe.DienerDienst` and on paper
    Festtext Kurz; // where there is little room
    Zahlspalte Zahl;
    int Höchstens; // most places in a mass; a larger count gives no more
    int Stelle;    // in `Meßdiener.Qualifikation`; 0: everybody may do it
};

/// In the order in which the slots of a mass are assigned to them. A slot that no other service
/// takes is "Allgemein".
inline constexpr std::array<Dienstart, 6> Dienstarten = [] {
    using M = MesseTabelle;
    using S = StandardmesseTabelle;
    return std::array<Dienstart, 6>{{
        {"Gabenbereitung", "Gabenber.", {&M::Gabenbereitung, &S::Gabenbereitung}, 2, 1},
        {"Leuchter", "Leuchter", {&M::Leuchter, &S::Leuchter}, 2, 2},
        {"Flambeau", "Flambeau", {&M::Flambeau, &S::Flambeau}, 8, 3},
        {"Weihrauch", "Weihrauch", {&M::Weihrauch, &S::Weihrauch}, 2, 4},
        {"Kreuzträger", "Kreuztr.", {&M::Kreuzträger, &S::Kreuzträger}, 2, 5},
        {"Allgemein", "Allgemein", {&M::Allgemein, &S::Allgemein}, M::HöchsterSlot, 0},
    }};
}();

inline constexpr const Dienstart &Flambeau = Dienstarten[2];
inline constexpr const Dienstart &Weihrauch = Dienstarten[3];
inline constexpr const Dienstart &Kreuzträger = Dienstarten[4];
inline constexpr const Dienstart &Allgemein = Dienstarten[5];

/// The services that have slots of their own.
inline constexpr std::span<const Dienstart, 5> BesondereDienste = std::span(Dienstarten).first<5>();

/// Slots above this one are always "Allgemein".
inline constexpr int HöchsterDienstSlot = [] {
    int slots = 0;
    for (const Dienstart &art : BesondereDienste)
        slots += art.Höchstens;
    return slots;
}();

/// The service of slot `n` (1 to 20), which is stored one index lower than the names of the slot.
inline Text &DienstDesSlots(int messe, int n)
{
    return Messe.DienerDienst[messe][n - 1];
}
inline const Text &DienstDesSlots(const MesseTabelle &messen, int messe, int n)
{
    return messen.DienerDienst[messe][n - 1];
}

/// A service of helpers.
struct Helferart {
    Festtext Name;       // in `Helfer.Dienst1` and `Dienst2`
    Festtext Aufschrift; // of the box of its count and in the plan
    Zahlspalte Zahl;
};

inline constexpr std::array<Helferart, 4> Helferarten = [] {
    using M = MesseTabelle;
    using S = StandardmesseTabelle;
    return std::array<Helferart, 4>{{
        {"Lektor", "Lektor", {&M::LektorZahl, &S::Lektor}},
        {"Kommunionhelfer", "Kommunionhelfer", {&M::KommZahl, &S::Kommunion}},
        {"Kantor", "Kantor/in", {&M::KantorZahl, &S::Kantor}},
        {"Kollektant", "Kollektant", {&M::KollektZahl, &S::Kollektant}},
    }};
}();

inline constexpr const Helferart &Lektor = Helferarten[0];
inline constexpr const Helferart &Kommunionhelfer = Helferarten[1];
inline constexpr const Helferart &Kantor = Helferarten[2];
inline constexpr const Helferart &Kollektant = Helferarten[3];

/// A place of a helper in a mass.
struct Helferplatz {
    const Helferart &Art;
    int Nummer; // among the places of its kind, from 1; wanted if their count reaches it
    MesseTabelle::Spalte<Text> MesseTabelle::*Vor;
    MesseTabelle::Spalte<Text> MesseTabelle::*Nach;

    bool Nötig(const MesseTabelle &messen, int messe) const
    {
        return Art.Zahl.In(messen)[messe] >= Nummer;
    }

    /// "Lektor 1".
    Text Aufschrift() const { return Text(Art.Name) + " " + std::to_string(Nummer); }
};

/// In the order in which they are filled and shown.
inline constexpr std::array<Helferplatz, 8> Helferplätze = {{
    {Lektor, 1, &MesseTabelle::Lektor1Vor, &MesseTabelle::Lektor1Nach},
    {Lektor, 2, &MesseTabelle::Lektor2Vor, &MesseTabelle::Lektor2Nach},
    {Kommunionhelfer, 1, &MesseTabelle::Komm1Vor, &MesseTabelle::Komm1Nach},
    {Kommunionhelfer, 2, &MesseTabelle::Komm2Vor, &MesseTabelle::Komm2Nach},
    {Kantor, 1, &MesseTabelle::Kantor1Vor, &MesseTabelle::Kantor1Nach},
    {Kantor, 2, &MesseTabelle::Kantor2Vor, &MesseTabelle::Kantor2Nach},
    {Kollektant, 1, &MesseTabelle::Kollekt1Vor, &MesseTabelle::Kollekt1Nach},
    {Kollektant, 2, &MesseTabelle::Kollekt2Vor, &MesseTabelle::Kollekt2Nach},
}};

/// The index of a kind in `Helferarten`.
constexpr std::size_t NummerDer(const Helferart &art)
{
    return static_cast<std::size_t>(&art - Helferarten.data());
}

/// The count columns of all these kinds, in their order.
template <class Art, std::size_t n, class Tabelle>
auto Zahlspalten(const std::array<Art, n> &arten, Tabelle &tabelle)
{
    using Spalte = std::remove_reference_t<decltype(arten[0].Zahl.In(tabelle))>;
    std::array<Spalte *, n> spalten;
    for (std::size_t k = 0; k < n; ++k)
        spalten[k] = &arten[k].Zahl.In(tabelle);
    return spalten;
}

/// How many places a mass has for helpers of a kind.
constexpr int PlätzeFür(const Helferart &art)
{
    return static_cast<int>(std::ranges::count(
        Helferplätze, &art, [](const Helferplatz &platz) { return &platz.Art; }));
}

} // namespace altardienst
