// Failures that nobody expected.
#include "controls/Unerwartetes.h"

#include "controls/Verlassen.h"
#include "platform/Meldungen.h"
#include "values/Laufzeitfehler.h"
#include "values/Text.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <new>
#include <set>
#include <vector>

namespace altardienst {
namespace {

std::vector<Text> wartend; // the one on the screen stays first
bool geplant = false;      // showing them is already scheduled
std::set<Text> einmalige;  // never to be shown again

/// What to say about the failure that was caught.
Text Wortlaut()
{
    const Text folge = " Was Sie zuletzt begonnen haben, ist nicht zu Ende geführt. Die Daten im "
                       "Programm bleiben erhalten.";
    try {
        throw;
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Meldung();
    } catch (const std::bad_alloc &) {
        return "Der Arbeitsspeicher reicht nicht aus." + folge;
    } catch (const std::exception &fehler) {
        return "Unerwarteter Fehler (" + Text(fehler.what()) + ")." + folge;
    } catch (...) {
        return "Unerwarteter Fehler." + folge;
    }
}

void Planen(int millisekunden)
{
    QTimer::singleShot(millisekunden, qApp, UnerwartetesZeigen);
}

} // namespace

void UnerwartetesMelden(Anlaß anlaß) noexcept
{
    try {
        const Text text = Wortlaut();
        if (anlaß == Anlaß::VonSelbst && !einmalige.insert(text).second)
            return;
        if (std::ranges::find(wartend, text) == wartend.end())
            wartend.push_back(text);
        if (!geplant) {
            Planen(0);
            geplant = true;
        }
    } catch (...) {
        // Not even this can be shown.
    }
}

void UnerwartetesZeigen()
{
    constexpr int BisZurNächstenFrage = 100; // ms
    if (OhneVerlassen::Gilt())               // another message is open
        return Planen(BisZurNächstenFrage);
    while (!wartend.empty()) {
        try {
            Meldungen.Zeigen(wartend.front());
        } catch (...) {
            // As above.
        }
        wartend.erase(wartend.begin());
    }
    geplant = false;
}

} // namespace altardienst
