// The ways from the plan to the windows in which its records stand.
#include "overview/Planwege.h"

#include "fixed/FesteMeßdienerÜbertragen.h"

#include <algorithm>
#include <optional>

namespace altardienst {
namespace {

/// Of several the last one counts, as it is the last to be transferred: for a place the last that
/// names somebody for it.
std::optional<int> FesterEintrag(const Planplatz &ort)
{
    const int anzahl =
        std::clamp<int>(MesseDienerFest.Anzahl, 0, MesseDienerFestTabelle::HöchsterIndex + 1);
    std::optional<int> letzter;
    for (int k = anzahl - 1; k >= 0; --k) {
        if (!Meint(MesseDienerFest, k, Messe, ort.Messe))
            continue;
        if (ort.Was == Planplatz::Art::Diener && IstBelegt(MesseDienerFest, k, ort.Nr))
            return k;
        if (!letzter)
            letzter = k;
    }
    return letzter;
}

} // namespace

Fund StelleVon(const Planplatz &ort)
{
    if (ort.Was == Planplatz::Art::Helfer)
        return {Fundort::Helferplatz, ort.Messe, ort.Nr, ""};
    if (ort.Was == Planplatz::Art::Diener && IstGewünscht(Messe, ort))
        return {Fundort::Meßdienerplatz, ort.Messe, ort.Nr, ""};
    return {Fundort::Messe, ort.Messe, 0, ""};
}

Fund FesterEintragVon(const Planplatz &ort)
{
    const auto eintrag = FesterEintrag(ort);
    return eintrag ? Fund{Fundort::FesterEintrag, *eintrag, 1, ""}
                   : Fund{Fundort::Messe, ort.Messe, 0, ""};
}

bool HatFestenEintrag(int messe)
{
    return FesterEintrag({messe, Planplatz::Art::Messe, 0}).has_value();
}

std::vector<Planweg> WegeVon(const Planplatz &ort, const Planprüfung &prüfung)
{
    std::vector<Planweg> wege;
    if (ort.Was == Planplatz::Art::Helfer)
        wege.push_back({"Zu \"Lektoren und ...\"", StelleVon(ort)});
    wege.push_back({"Zur Messenliste", ort.Was == Planplatz::Art::Helfer
                                           ? Fund{Fundort::Messe, ort.Messe, 0, ""}
                                           : StelleVon(ort)});
    if (HatFestenEintrag(ort.Messe))
        wege.push_back({"Zur festen Zuordnung", FesterEintragVon(ort)});
    if (ort.Was == Planplatz::Art::Messe)
        return wege;
    const int nr = prüfung.WerSteht(ort);
    const auto name = NameAm(Messe, ort);
    if (nr >= 0)
        wege.push_back({"Zu " + VollerName(name.Vorname, name.Nachname),
                        {ort.Was == Planplatz::Art::Helfer ? Fundort::Helfer : Fundort::Meßdiener,
                         nr, 0, ""}});
    return wege;
}

} // namespace altardienst
