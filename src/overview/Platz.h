// A place of the plan: who stands there, what it is for, and what it is called.
#pragma once

#include "core/Plätze.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <compare>
#include <string_view>
#include <tuple>

namespace altardienst {

struct Planplatz {
    enum class Art { Messe, Diener, Helfer }; // the mass itself, or one of its places

    int Messe = 0;
    Art Was = Art::Messe;
    int Nr = 0; // slot 1 to 20, or the index in `Helferplätze`

    friend bool operator==(const Planplatz &, const Planplatz &) = default;
    friend auto operator<=>(const Planplatz &a, const Planplatz &b)
    {
        return std::tie(a.Messe, a.Was, a.Nr) <=> std::tie(b.Messe, b.Was, b.Nr);
    }
};

constexpr Planplatz Dienerplatznr(int messe, int slot)
{
    return {messe, Planplatz::Art::Diener, slot};
}
constexpr Planplatz Helferplatznr(int messe, int nr)
{
    return {messe, Planplatz::Art::Helfer, nr};
}
constexpr Planplatz GanzeMesse(int messe)
{
    return {messe, Planplatz::Art::Messe, 0};
}

/// The two names in a place, empty if nobody stands there.
struct Platzname {
    const Text &Vorname;
    const Text &Nachname;

    bool IstFrei() const { return Vorname.empty() && Nachname.empty(); }
};

/// Only for a place of a server or helper. Slots and helpers' places beyond the count of the mass
/// have names too: those that stood there when the count was higher.
Platzname NameAm(const MesseTabelle &messen, Planplatz platz);

/// Whether the count of the mass reaches the place.
bool IstGewünscht(const MesseTabelle &messen, Planplatz platz);

/// The slots of a mass that its count reaches.
int Dienerplätze(const MesseTabelle &messen, int messe);

/// "Weihrauch", "Allgemein", "Kommunionhelfer": what the plan prints the place under, which for a
/// server follows from the counts of the mass.
Text DienstAm(const MesseTabelle &messen, Planplatz platz);

/// The same where there is little room, as the mass list labels its rows: "Kreuztr.", and "" for a
/// server without a service of his own.
Text KurzdienstAm(const MesseTabelle &messen, Planplatz platz);

/// "Diener 3", "Lektor 1"; empty for the mass itself.
Text Platzaufschrift(Planplatz platz);

/// "Vorname Nachname", or the one name there is.
Text VollerName(std::string_view vorname, std::string_view nachname);

/// "29.11."; "?" for a date that no calendar has.
Text TagImSatz(Datum tag);

/// "29.11., 10:00 Uhr, Hochamt": how a sentence names a mass.
Text MesseImSatz(const MesseTabelle &messen, int messe);

/// Writes a name into a place, or empties it, as the windows of the masses do: these two columns
/// and nothing else.
void Besetzen(MesseTabelle &messen, Planplatz platz, const Text &vorname, const Text &nachname);
void Leeren(MesseTabelle &messen, Planplatz platz);

} // namespace altardienst
