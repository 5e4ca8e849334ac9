// How often each server and each helper serves in the plan.
#include "statistics/Dienstzählung.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

struct Name {
    std::string_view Vorname;
    std::string_view Nachname;

    bool operator==(const Name &) const = default;
};

struct Namenshash {
    std::size_t operator()(const Name &name) const
    {
        const std::hash<std::string_view> hash;
        return hash(name.Vorname) * 31 + hash(name.Nachname);
    }
};

/// Finds the row of a name at once: a full plan has more than five million pairs of a server and a
/// slot. Rows of one name share their counts, since each of them would find the same slots.
template <class Zählung> class Namensverzeichnis {
  public:
    /// Takes the names of records 0 to `Anzahl` into the rows.
    template <class Tabelle>
    Namensverzeichnis(Zählung &zählung, Tabelle &tabelle) : zählung(zählung)
    {
        const int anzahl = tabelle.Anzahl;
        zeilen.reserve(static_cast<std::size_t>(anzahl) + 1);
        for (int i = 0; i <= anzahl; ++i) {
            auto &zeile = zählung[i];
            zeile.Vorname = tabelle.Vorname[i];
            zeile.Nachname = tabelle.Nachname[i];
            const auto [platz, neu] = zeilen.emplace(Name{zeile.Vorname, zeile.Nachname}, i);
            if (!neu)
                weitere.emplace_back(i, platz->second);
        }
    }

    void Zählen(const Text &vorname, const Text &nachname, std::size_t art)
    {
        const auto platz = zeilen.find({vorname, nachname});
        if (platz != zeilen.end())
            ++zählung[platz->second].Dienste[art];
    }

    void Abschließen()
    {
        for (const auto &[zeile, erste] : weitere)
            zählung[zeile].Dienste = zählung[erste].Dienste;
    }

  private:
    Zählung &zählung;
    std::unordered_map<Name, int, Namenshash> zeilen;
    std::vector<std::pair<int, int>> weitere; // a row, and the first one of its name
};

constexpr std::array<std::string_view, 6> Dienste = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                                     "Weihrauch",      "Kreuzträger", "Allgemein"};

} // namespace

Meßdienerzählung MeßdienerdiensteZählen()
{
    Meßdienerzählung zählung;
    Namensverzeichnis verzeichnis(zählung, Meßdiener);
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        auto &dienste = Messe.DienerDienst[i];
        // Slot 0 has no service and counts nowhere.
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            const auto dienst = std::find(Dienste.begin(), Dienste.end(), dienste[slot - 1]);
            if (dienst != Dienste.end())
                verzeichnis.Zählen(Messe.DienerVor[i][slot], Messe.DienerNach[i][slot],
                                   static_cast<std::size_t>(dienst - Dienste.begin()));
        }
    }
    verzeichnis.Abschließen();
    return zählung;
}

Helferzählung HelferdiensteZählen()
{
    struct Platz {
        MesseTabelle::Spalte<Text> &Vor, &Nach;
        std::size_t Art;
    };
    const std::array<Platz, 8> plätze = {{
        {Messe.Lektor1Vor, Messe.Lektor1Nach, 0},
        {Messe.Lektor2Vor, Messe.Lektor2Nach, 0},
        {Messe.Komm1Vor, Messe.Komm1Nach, 1},
        {Messe.Komm2Vor, Messe.Komm2Nach, 1},
        {Messe.Kantor1Vor, Messe.Kantor1Nach, 2},
        {Messe.Kantor2Vor, Messe.Kantor2Nach, 2},
        {Messe.Kollekt1Vor, Messe.Kollekt1Nach, 3},
        {Messe.Kollekt2Vor, Messe.Kollekt2Nach, 3},
    }};
    Helferzählung zählung;
    Namensverzeichnis verzeichnis(zählung, Helfer);
    for (int i = 0; i <= Messe.Anzahl; ++i)
        for (const Platz &platz : plätze)
            verzeichnis.Zählen(platz.Vor[i], platz.Nach[i], platz.Art);
    verzeichnis.Abschließen();
    return zählung;
}

} // namespace altardienst
