// First name and surname as a key that is found without a copy of them.
#pragma once

#include "values/Text.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace altardienst {

using Namenspaar = std::pair<std::string_view, std::string_view>;

struct Namenspaarhash {
    using is_transparent = void;

    /// Names are short, so that this is faster than the library's.
    template <class Paar> std::size_t operator()(const Paar &paar) const
    {
        std::size_t summe = 0;
        for (const std::string_view name :
             {std::string_view(paar.first), std::string_view(paar.second)})
            for (const char zeichen : name)
                summe = summe * 31 + static_cast<unsigned char>(zeichen);
        return summe;
    }
};

struct Namenspaargleichheit {
    using is_transparent = void;

    template <class Eines, class Anderes>
    bool operator()(const Eines &eines, const Anderes &anderes) const
    {
        return eines.second == anderes.second && eines.first == anderes.first;
    }
};

/// By both names; found by a `Namenspaar`.
template <class Wert>
using Namenspaare =
    std::unordered_map<std::pair<Text, Text>, Wert, Namenspaarhash, Namenspaargleichheit>;

} // namespace altardienst
