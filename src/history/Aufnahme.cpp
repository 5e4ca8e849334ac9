// All tables at one moment, in a few bytes, and what the user has changed since.
#include "history/Aufnahme.h"

#include "core/SchleifenZähler.h"

#include <algorithm>
#include <type_traits>

namespace altardienst {
namespace {

Text OhneLeerzeichen(const Text &text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// The masses as they were, to be compared with those of now: what makes no difference is as now.
std::shared_ptr<MesseTabelle> DamaligeMessen(const Aufnahme &damals)
{
    Tabellenstand stand;
    stand.Messen = std::make_shared<MesseTabelle>();
    Auspacken(Teil::Messen, *damals.Paket(Teil::Messen), stand);
    Auspacken(Teil::Wochentage, *damals.Paket(Teil::Wochentage), stand);
    MesseTabelle &messen = *stand.Messen;
    for (int i = 0; i <= MesseTabelle::HöchsterIndex; ++i)
        if (OhneLeerzeichen(messen.Wochentag[i]) == OhneLeerzeichen(Messe.Wochentag[i]))
            messen.Wochentag[i] = Messe.Wochentag[i];
    messen.DienerDienst = Messe.DienerDienst;
    return stand.Messen;
}

bool Verschieden(const Aufnahme &damals, const Aufnahme &jetzt, Teil teil)
{
    return damals.Paket(teil) != jetzt.Paket(teil);
}

bool AndererWochentag(const Aufnahme &damals, const Aufnahme &jetzt)
{
    if (!Verschieden(damals, jetzt, Teil::Wochentage))
        return false;
    const auto messen = DamaligeMessen(damals);
    for (int i = 0; i <= MesseTabelle::HöchsterIndex; ++i)
        if (messen->Wochentag[i] != Messe.Wochentag[i])
            return true;
    return false;
}

} // namespace

Aufnahme Jetzt(const Aufnahme &zuvor)
{
    const Tabellenstand tabellen = DieTabellen();
    Aufnahme jetzt = zuvor;
    for (const Teil teil : AlleTeile) {
        auto &paket = jetzt.Paket(teil);
        if (!paket || !StehtIn(teil, *paket, tabellen))
            paket = std::make_shared<const std::string>(Packen(teil, tabellen));
    }
    jetzt.Wo = StellungenJetzt();
    jetzt.Schleife = SchleifenZähler;
    return jetzt;
}

bool VonHandGeändert(const Aufnahme &damals, const Aufnahme &jetzt)
{
    return std::ranges::any_of(AlleTeile,
                               [&](Teil teil) {
                                   return teil != Teil::Wochentage && teil != Teil::Abgeleitetes &&
                                          Verschieden(damals, jetzt, teil);
                               }) ||
           AndererWochentag(damals, jetzt);
}

Tabellenstand Damalige(const Aufnahme &damals, const Aufnahme &jetzt)
{
    Tabellenstand stand;
    const auto auspacken = [&](Teil teil, auto &tabelle) {
        using Tabelle = typename std::remove_reference_t<decltype(tabelle)>::element_type;
        if (!Verschieden(damals, jetzt, teil))
            return;
        tabelle = std::make_shared<Tabelle>();
        Auspacken(teil, *damals.Paket(teil), stand);
    };
    auspacken(Teil::Einstellungen, stand.Einstellungen);
    auspacken(Teil::Standardmessen, stand.Standardmessen);
    auspacken(Teil::Diener, stand.Diener);
    auspacken(Teil::Gruppen, stand.Gruppen);
    auspacken(Teil::Messehelfer, stand.Messehelfer);
    auspacken(Teil::Etiketten, stand.Etiketten);
    auspacken(Teil::FesteDiener, stand.FesteDiener);
    if (Verschieden(damals, jetzt, Teil::Messen) || AndererWochentag(damals, jetzt))
        stand.Messen = DamaligeMessen(damals);
    return stand;
}

} // namespace altardienst
