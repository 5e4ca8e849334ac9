// How often each server and each helper serves in the plan.
#include "statistics/Dienstzählung.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

/// Tells names apart by their first and last eight bytes, which takes a fraction of the time needed
/// to hash them whole.
std::uint64_t Kennzahl(const Text &name)
{
    std::array<std::uint64_t, 2> enden{};
    if (name.size() >= sizeof enden[0]) {
        std::memcpy(&enden[0], name.data(), sizeof enden[0]);
        std::memcpy(&enden[1], name.data() + name.size() - sizeof enden[1], sizeof enden[1]);
    } else {
        for (const char zeichen : name)
            enden[0] = enden[0] << 8 | static_cast<unsigned char>(zeichen);
    }
    return enden[0] * 31 + enden[1];
}

/// Finds the row of a name at once: a full plan has more than five million pairs of a server and a
/// slot. Rows with the same name share their counts, since each would find the same slots.
template <class Zählung> class Namensverzeichnis {
  public:
    /// Puts the names of records 0 to `Anzahl` into the rows.
    template <class Tabelle>
    Namensverzeichnis(Zählung &zählung, Tabelle &tabelle) : zählung(zählung)
    {
        fächer.fill(Frei);
        for (int i = 0; i <= tabelle.Anzahl; ++i) {
            auto &zeile = zählung[i];
            zeile.Vorname = tabelle.Vorname[i];
            zeile.Nachname = tabelle.Nachname[i];
            int &fach = FachFür(zeile.Vorname, zeile.Nachname);
            if (fach == Frei)
                fach = i;
            else
                weitere.emplace_back(i, fach);
        }
    }

    void Zählen(const Text &vorname, const Text &nachname, std::size_t art)
    {
        const int zeile = FachFür(vorname, nachname);
        if (zeile != Frei)
            ++zählung[zeile].Dienste[art];
    }

    void Abschließen()
    {
        for (const auto &[zeile, erste] : weitere)
            zählung[zeile].Dienste = zählung[erste].Dienste;
    }

  private:
    static constexpr int Frei = -1;

    /// The bucket with the row of the name, or the free one where it belongs.
    int &FachFür(const Text &vorname, const Text &nachname)
    {
        constexpr std::uint64_t Streuung = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio
        std::size_t nr = (Kennzahl(vorname) * Streuung + Kennzahl(nachname)) * Streuung >> 32;
        for (;; ++nr) {
            int &fach = fächer[nr % fächer.size()];
            if (fach == Frei ||
                (zählung[fach].Nachname == nachname && zählung[fach].Vorname == vorname))
                return fach;
        }
    }

    Zählung &zählung;
    std::array<int, 2048> fächer;             // enough for most names to hit
    std::vector<std::pair<int, int>> weitere; // a row, and the first row with its name
};

} // namespace

Meßdienerzählung MeßdienerdiensteZählen()
{
    Meßdienerzählung zählung;
    Namensverzeichnis verzeichnis(zählung, Meßdiener);
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        // Slot 0 has no service and is never counted.
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            const Text &dienst = DienstDesSlots(i, slot);
            const auto art = std::ranges::find_if(
                Dienstarten, [&](const Dienstart &eine) { return dienst == eine.Name; });
            if (art != Dienstarten.end())
                verzeichnis.Zählen(Messe.DienerVor[i][slot], Messe.DienerNach[i][slot],
                                   static_cast<std::size_t>(art - Dienstarten.begin()));
        }
    }
    verzeichnis.Abschließen();
    return zählung;
}

Helferzählung HelferdiensteZählen()
{
    Helferzählung zählung;
    Namensverzeichnis verzeichnis(zählung, Helfer);
    for (int i = 0; i <= Messe.Anzahl; ++i)
        for (const Helferplatz &platz : Helferplätze)
            verzeichnis.Zählen((Messe.*platz.Vor)[i], (Messe.*platz.Nach)[i], NummerDer(platz.Art));
    verzeichnis.Abschließen();
    return zählung;
}

} // namespace altardienst
