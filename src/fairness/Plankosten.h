// What is wrong with a plan.
#pragma once

#include <compare>
#include <cstdint>
#include <tuple>

namespace altardienst {

/// What is wrong with a plan, the gravest first. All whole numbers, so that a move forth and back
/// leaves no trace.
struct Plankosten {
    std::int64_t Verstöße = 0;
    std::int64_t Schwere = 0;  // an empty place weighs more than a name against a rule
    std::int64_t Hinweise = 0; // what the check calls worth a look
    std::int64_t Ungleich = 0; // squared deviations from the due shares, in millionths
    std::int64_t Getrennt = 0; // services whose wish partner does not stand beside
    std::int64_t Unruhe = 0;   // uneven gaps, always the same service
    std::int64_t Wechsel = 0;  // places with another name than before

    // How much a breach weighs among those of the same number: if one cannot be avoided, then
    // rather a pair that does not match than a place that stays empty.
    static constexpr int Leichter = 10;
    static constexpr int Schwerer = 11;

    /// All that comes before the names that change.
    auto OhneWechsel() const
    {
        return std::tie(Verstöße, Schwere, Hinweise, Ungleich, Getrennt, Unruhe);
    }
    auto Rang() const { return std::tuple_cat(OhneWechsel(), std::tie(Wechsel)); }

    friend bool operator==(const Plankosten &, const Plankosten &) = default;
    friend auto operator<=>(const Plankosten &a, const Plankosten &b)
    {
        return a.Rang() <=> b.Rang();
    }
    Plankosten &operator+=(const Plankosten &b);
    Plankosten &operator-=(const Plankosten &b);
};

/// How steeply each kind of cost counts while the plan may still become worse. With less strictness
/// the way from one plan without a breach to another leads over plans with some.
inline double Energie(const Plankosten &kosten, double strenge)
{
    return strenge *
               (static_cast<double>(kosten.Verstöße) + 0.01 * static_cast<double>(kosten.Schwere) +
                0.14 * static_cast<double>(kosten.Hinweise)) +
           1e-6 * static_cast<double>(kosten.Ungleich) +
           0.15 * static_cast<double>(kosten.Getrennt) + 2e-5 * static_cast<double>(kosten.Unruhe) +
           6e-4 * static_cast<double>(kosten.Wechsel);
}

} // namespace altardienst
