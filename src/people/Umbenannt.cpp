// Who wants to know of a new name besides the tables.
#include "people/Umbenannt.h"

#include "core/tables.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

using Namen = std::vector<Personenname>; // by record

struct Umbenennung {
    Personenname Alt, Neu;
    bool Helfer;
};

std::vector<Umbenennung> gemeldete;

bool IstGanz(const Personenname &name)
{
    return !name.Vorname.empty() && !name.Nachname.empty();
}

template <class Tabelle> Namen NamenIn(const Tabelle &personen)
{
    Namen namen;
    for (int j = 0; j < personen.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
        namen.push_back({personen.Vorname[j], personen.Nachname[j]});
    return namen;
}

bool Enthält(const Namen &namen, const Personenname &name)
{
    return std::ranges::find(namen, name) != namen.end();
}

/// Whether one name has become the other, in either direction and over any number of names between
/// them.
bool IstDieselbePerson(const Personenname &eine, const Personenname &andere, bool helfer)
{
    Namen bekannte = {eine};
    for (std::size_t k = 0; k < bekannte.size(); ++k)
        for (const Umbenennung &umbenennung : gemeldete) {
            if (umbenennung.Helfer != helfer)
                continue;
            for (const auto &[von, nach] : {std::pair(&umbenennung.Alt, &umbenennung.Neu),
                                            std::pair(&umbenennung.Neu, &umbenennung.Alt)})
                if (*von == bekannte[k] && !Enthält(bekannte, *nach))
                    bekannte.push_back(*nach);
        }
    return Enthält(bekannte, andere);
}

/// A name that somebody has before and after belongs to him: the record has only moved.
void Vergleichen(const Namen &vorher, const Namen &nachher, bool helfer)
{
    for (std::size_t j = 0; j < std::min(vorher.size(), nachher.size()); ++j)
        if (vorher[j] != nachher[j] && !Enthält(nachher, vorher[j]) &&
            !Enthält(vorher, nachher[j]) && IstDieselbePerson(vorher[j], nachher[j], helfer))
            PersonUmbenannt(vorher[j], nachher[j], helfer);
}

} // namespace

std::function<void(const Personenname &alt, const Personenname &neu, bool helfer)> PersonUmbenannt;

void UmbenennungMelden(const Personenname &alt, const Personenname &neu, bool helfer)
{
    if (!PersonUmbenannt || alt == neu || !IstGanz(alt) || !IstGanz(neu))
        return;
    gemeldete.push_back({alt, neu, helfer});
    PersonUmbenannt(alt, neu, helfer);
}

std::function<void()> UmbenennungenVerfolgen()
{
    if (!PersonUmbenannt || gemeldete.empty())
        return {};
    return [diener = NamenIn(Meßdiener), helfer = NamenIn(Helfer)] {
        if (!PersonUmbenannt)
            return;
        Vergleichen(diener, NamenIn(Meßdiener), false);
        Vergleichen(helfer, NamenIn(Helfer), true);
    };
}

} // namespace altardienst
