// First name and surname as numbers, which are compared and spread faster than letters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace altardienst {

class Namenszahlen {
  public:
    Namenszahlen() = default;
    Namenszahlen(std::string_view vorname, std::string_view nachname) : vor(vorname), nach(nachname)
    {
    }

    bool IstLeer() const { return vor.Länge == 0 && nach.Länge == 0; }

    /// Whether this is all of both names, so that equal numbers are equal names. Otherwise it is
    /// their beginnings, ends and lengths.
    bool SagtAlles() const { return vor.Länge <= 2 * Wort && nach.Länge <= 2 * Wort; }

    /// Its highest bits are the best spread. The parts are multiplied side by side.
    std::uint64_t Prüfzahl() const
    {
        return vor.Anfang * 0x9E3779B97F4A7C15U + vor.Ende * 0xBF58476D1CE4E5B9U +
               nach.Anfang * 0x94D049BB133111EBU + nach.Ende * 0xD6E8FEB86659FD93U;
    }

    friend bool operator==(const Namenszahlen &, const Namenszahlen &) = default;

  private:
    static constexpr std::size_t Wort = sizeof(std::uint64_t);

    /// The first and the last bytes of a name, which are the same ones in part if it is short.
    struct Teil {
        std::uint64_t Anfang = 0;
        std::uint64_t Ende = 0;
        std::uint32_t Länge = 0;

        Teil() = default;
        explicit Teil(std::string_view name) : Länge(static_cast<std::uint32_t>(name.size()))
        {
            constexpr std::size_t Halb = sizeof(std::uint32_t);
            const char *text = name.data();
            if (Länge >= Wort) {
                Anfang = Bytes<std::uint64_t>(text);
                Ende = Bytes<std::uint64_t>(text + Länge - Wort);
            } else if (Länge >= Halb) {
                Anfang = Bytes<std::uint32_t>(text);
                Ende = Bytes<std::uint32_t>(text + Länge - Halb);
            } else if (Länge > 0) {
                Anfang = Bytes<std::uint8_t>(text) | Bytes<std::uint8_t>(text + Länge / 2) << 8;
                Ende = Bytes<std::uint8_t>(text + Länge - 1);
            }
        }
        friend bool operator==(const Teil &, const Teil &) = default;
    };

    template <class Zahl> static std::uint64_t Bytes(const char *von)
    {
        Zahl zahl;
        std::memcpy(&zahl, von, sizeof zahl);
        return zahl;
    }

    Teil vor;
    Teil nach;
};

} // namespace altardienst
