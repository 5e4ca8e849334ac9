// Random numbers of the search.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace altardienst {

/// Small random numbers, the same on every machine.
class Los {
  public:
    explicit Los(std::uint32_t saat) : stand(saat * 0x9E3779B97F4A7C15ULL + 1) {}

    std::uint32_t Bits()
    {
        stand += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = stand;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ z >> 27) * 0x94D049BB133111EBULL;
        return static_cast<std::uint32_t>(z >> 32);
    }
    /// From 0 up to but not including `n`.
    int Unter(int n)
    {
        return static_cast<int>(std::uint64_t{Bits()} * static_cast<std::uint64_t>(n) >> 32);
    }
    int Unter(std::size_t n) { return Unter(static_cast<int>(n)); }
    template <class T> const T &Aus(const std::vector<T> &liste)
    {
        return liste[static_cast<std::size_t>(Unter(liste.size()))];
    }

  private:
    std::uint64_t stand;
};

} // namespace altardienst
