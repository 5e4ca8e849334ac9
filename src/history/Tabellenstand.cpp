// All tables as they were at one moment, aside from those that the program works with.
#include "history/Tabellenstand.h"

#include "core/SchleifenZähler.h"

#include <type_traits>
#include <utility>

namespace altardienst {
namespace {

/// Calls `f` with each part of a state and its table.
template <class F> void FürJedeTabelle(Tabellenstand &stand, F f)
{
    f(stand.Einstellungen, Konfig);
    f(stand.Standardmessen, Standardmesse);
    f(stand.Diener, Meßdiener);
    f(stand.Messen, Messe);
    f(stand.Gruppen, Gruppe);
    f(stand.Messehelfer, Helfer);
    f(stand.Etiketten, Etikett);
    f(stand.FesteDiener, MesseDienerFest);
}

template <class T> std::shared_ptr<T> Verschoben(T &tabelle)
{
    return std::make_shared<T>(std::move(tabelle)); // a table is too large for the stack
}

TabellenBeiseite *innerste = nullptr;

} // namespace

Tabellenstand TabellenAufnehmen()
{
    Tabellenstand stand;
    FürJedeTabelle(stand, [](auto &teil, auto &tabelle) {
        teil = std::make_shared<std::remove_reference_t<decltype(tabelle)>>(tabelle);
    });
    return stand;
}

TabellenBeiseite::TabellenBeiseite() : zähler(SchleifenZähler), darüber(innerste)
{
    // All the memory first: from then on nothing can fail.
    FürJedeTabelle(beiseite, [](auto &teil, auto &tabelle) {
        teil = std::make_shared<std::remove_reference_t<decltype(tabelle)>>();
    });
    FürJedeTabelle(beiseite, [](auto &teil, auto &tabelle) { *teil = std::move(tabelle); });
    innerste = this;
    TabellenLeeren();
}

TabellenBeiseite::~TabellenBeiseite()
{
    Zurück();
}

void TabellenBeiseite::Zurück() noexcept
{
    FürJedeTabelle(beiseite, [](auto &teil, auto &tabelle) { tabelle = std::move(*teil); });
    SchleifenZähler = zähler;
    innerste = darüber;
}

void TabellenBeiseite::AlleZurück() noexcept
{
    while (innerste)
        innerste->Zurück();
}

Tabellenstand TabellenBeiseite::Herausnehmen()
{
    Tabellenstand stand;
    FürJedeTabelle(stand, [](auto &teil, auto &tabelle) { teil = Verschoben(tabelle); });
    return stand;
}

} // namespace altardienst
