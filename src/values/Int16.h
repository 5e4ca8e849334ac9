// The 16-bit whole number of the tables: leaving its range is a run-time failure.
#pragma once

#include "values/Laufzeitfehler.h"

#include <concepts>
#include <cstdint>

namespace altardienst {

using Int32 = std::int32_t;
using Single = float;

/// A signed whole number from -32768 to 32767. Every sum, difference and product with an Int16 is
/// an Int16 again and raises failure 6 (Überlauf) if it leaves the range; comparisons and divisions
/// use the plain value.
class Int16 {
  public:
    constexpr Int16() = default;
    constexpr Int16(int wert) : wert(static_cast<std::int16_t>(wert)) // implicit on purpose
    {
        if (wert < INT16_MIN || wert > INT16_MAX)
            throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    }

    template <std::floating_point F> Int16(F) = delete; // rounding is a conversion of its own

    constexpr operator int() const { return wert; }

    constexpr Int16 &operator+=(int b) { return *this = Int16(wert + b); }
    constexpr Int16 &operator-=(int b) { return *this = Int16(wert - b); }
    constexpr Int16 &operator++() { return *this += 1; }
    constexpr Int16 &operator--() { return *this -= 1; }

    friend constexpr Int16 operator+(Int16 a, Int16 b) { return {a.wert + b.wert}; }
    friend constexpr Int16 operator+(Int16 a, int b) { return {a.wert + b}; }
    friend constexpr Int16 operator+(int a, Int16 b) { return {a + b.wert}; }
    friend constexpr Int16 operator-(Int16 a, Int16 b) { return {a.wert - b.wert}; }
    friend constexpr Int16 operator-(Int16 a, int b) { return {a.wert - b}; }
    friend constexpr Int16 operator-(int a, Int16 b) { return {a - b.wert}; }
    friend constexpr Int16 operator*(Int16 a, Int16 b) { return {a.wert * b.wert}; }
    friend constexpr Int16 operator*(Int16 a, int b) { return {a.wert * b}; }
    friend constexpr Int16 operator*(int a, Int16 b) { return {a * b.wert}; }

    // With a floating-point operand the result is floating-point.
    template <std::floating_point F> friend constexpr F operator+(F a, Int16 b)
    {
        return a + b.wert;
    }
    template <std::floating_point F> friend constexpr F operator-(F a, Int16 b)
    {
        return a - b.wert;
    }
    template <std::floating_point F> friend constexpr F operator*(F a, Int16 b)
    {
        return a * b.wert;
    }
    template <std::floating_point F> friend constexpr F operator+(Int16 a, F b)
    {
        return a.wert + b;
    }
    template <std::floating_point F> friend constexpr F operator-(Int16 a, F b)
    {
        return a.wert - b;
    }
    template <std::floating_point F> friend constexpr F operator*(Int16 a, F b)
    {
        return a.wert * b;
    }

  private:
    std::int16_t wert = 0;
};

} // namespace altardienst
