// Whether the tables have changed since one last looked.
#include "overview/Abdruck.h"

#include "overview/Plantabellen.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <tuple>

namespace altardienst {
namespace {

class Mischung {
  public:
    template <class Wert> void operator()(const Wert &wert) { Mischen(wert); }

    std::size_t Zahl() const { return zahl; }

  private:
    void Mischen(const Text &text) { Dazu(std::hash<std::string_view>()(text)); }
    void Mischen(const Flagfeld &feld) { Mischen(feld.Wert); }
    void Mischen(Int16 wert) { Dazu(static_cast<std::size_t>(int{wert})); }
    void Mischen(Int32 wert) { Dazu(static_cast<std::size_t>(wert)); }
    void Mischen(Single wert) { Dazu(std::hash<Single>()(wert)); }
    void Mischen(Datum wert) { Dazu(std::hash<Datum>()(wert)); }

    /// The order counts, too.
    void Dazu(std::size_t wert)
    {
        constexpr std::size_t Faktor = 0x9e3779b97f4a7c15;
        zahl = (zahl ^ wert) * Faktor;
        zahl ^= zahl >> 29U;
    }

    std::size_t zahl = 0;
};

template <class Tabelle> void TabelleMischen(Mischung &mischung, Tabelle &tabelle)
{
    const int anzahl = std::clamp<int>(tabelle.Anzahl, 0, Tabelle::HöchsterIndex + 1);
    mischung(Int16(anzahl));
    for (int i = 0; i < anzahl; ++i)
        FürJedesFeld(tabelle.Felder(), i, [&](const auto &feld) { mischung(feld); });
}

} // namespace

Planabdruck AbdruckNehmen()
{
    Planabdruck abdruck;
    const int messen = GemeinsameTabellen().Messenzahl();
    abdruck.Messen.reserve(static_cast<std::size_t>(messen));
    for (int i = 0; i < messen; ++i) {
        Mischung messe;
        FürJedesFeld(Messe.Felder(), i, [&](const auto &feld) { messe(feld); });
        abdruck.Messen.push_back(messe.Zahl());
    }
    Mischung übriges;
    TabelleMischen(übriges, Meßdiener);
    TabelleMischen(übriges, Helfer);
    TabelleMischen(übriges, MesseDienerFest);
    TabelleMischen(übriges, Gruppe);
    std::apply([&](const auto &...felder) { (übriges(felder), ...); }, Konfig.Felder());
    übriges(Konfig.StartDatum);
    abdruck.Übriges = übriges.Zahl();
    return abdruck;
}

} // namespace altardienst
