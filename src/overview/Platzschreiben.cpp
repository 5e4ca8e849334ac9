// Writing places of the plan from the grid.
#include "overview/Platzschreiben.h"

#include "application/Mitteilung.h"
#include "application/Nebenfenster.h"
#include "history/Rückgängig.h"

namespace altardienst {
namespace {

/// "Anna Adler eingesetzt als Diener 3", "Diener 3 geleert: Anna Adler".
Text Getan(const Platzwechsel &wechsel, const Text &zuvor)
{
    const Text neu = VollerName(wechsel.Vorname, wechsel.Nachname);
    const Text platz = Platzaufschrift(wechsel.Wo);
    if (neu.empty())
        return platz + " geleert" + (zuvor.empty() ? "" : ": " + zuvor);
    return neu + " eingesetzt als " + platz +
           (zuvor.empty() || zuvor == neu ? "" : " statt " + zuvor);
}

} // namespace

void PlätzeSchreiben(const std::vector<Platzwechsel> &wechsel)
{
    if (wechsel.empty())
        return;
    Text getan;
    HauptfensterHandelt([&] {
        for (const Platzwechsel &einer : wechsel) {
            const Platzname zuvor = NameAm(Messe, einer.Wo);
            getan += (getan.empty() ? "" : "; ") +
                     Getan(einer, VollerName(zuvor.Vorname, zuvor.Nachname));
        }
        getan += " (" + MesseImSatz(Messe, wechsel.front().Wo.Messe) + ")";
        Schritt(getan, [&] {
            for (const Platzwechsel &einer : wechsel)
                Besetzen(Messe, einer.Wo, einer.Vorname, einer.Nachname);
        });
    });
    Mitteilen(getan);
}

} // namespace altardienst
