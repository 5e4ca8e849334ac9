// "Plan ausgleichen" aside from the window's thread.
#include "fairness/Ausgleichslauf.h"

#include <utility>

namespace altardienst {

Ausgleichslauf::Ausgleichslauf(const Ausgleichsauftrag &auftrag)
    : tabellen(TabellenAufnehmen()), auftrag(auftrag), faden([this] { Laufen(); })
{
}

Ausgleichslauf::~Ausgleichslauf()
{
    anhalten = true;
    faden.join();
}

void Ausgleichslauf::Laufen()
{
    try {
        auftrag.Abbruch = [this] { return anhalten.load(); };
        auftrag.Fortschritt = [this](Planplatz::Art art, const Ausgleichszahlen &zahlen) {
            const std::scoped_lock halten(schloß);
            (art == Planplatz::Art::Diener ? stand.Diener : stand.Helfer) = zahlen;
            (art == Planplatz::Art::Diener ? stand.HatDiener : stand.HatHelfer) = true;
        };
        ergebnis =
            PlanAusgleichen({*tabellen.Messen, *tabellen.Diener, *tabellen.Messehelfer,
                             *tabellen.Gruppen, *tabellen.FesteDiener, *tabellen.Einstellungen},
                            auftrag);
    } catch (...) {
        fehler = std::current_exception();
    }
    fertig = true;
}

Ausgleichslauf::Zwischenstand Ausgleichslauf::Stand() const
{
    const std::scoped_lock halten(schloß);
    return stand;
}

Ausgleichsergebnis Ausgleichslauf::Ergebnis()
{
    if (fehler)
        std::rethrow_exception(fehler);
    return std::move(ergebnis);
}

} // namespace altardienst
