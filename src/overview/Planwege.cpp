// The ways from the plan to the windows in which its records stand.
#include "overview/Planwege.h"

#include <algorithm>
#include <optional>

namespace altardienst {
namespace {

std::optional<int> FesterEintrag(int messe)
{
    const int anzahl =
        std::clamp<int>(MesseDienerFest.Anzahl, 0, MesseDienerFestTabelle::HöchsterIndex + 1);
    for (int k = 0; k < anzahl; ++k)
        if (MesseDienerFest.Datum[k] == Messe.Datum[messe] &&
            MesseDienerFest.Uhrzeit[k] == Messe.Uhrzeit[messe])
            return k;
    return std::nullopt;
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

Fund FesterEintragVon(int messe)
{
    const auto eintrag = FesterEintrag(messe);
    return eintrag ? Fund{Fundort::FesterEintrag, *eintrag, 1, ""}
                   : Fund{Fundort::Messe, messe, 0, ""};
}

bool HatFestenEintrag(int messe)
{
    return FesterEintrag(messe).has_value();
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
        wege.push_back({"Zur festen Zuordnung", FesterEintragVon(ort.Messe)});
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
