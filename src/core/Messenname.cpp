// How a mass or a person is called where the user looks for one.
#include "core/Messenname.h"

#include "core/Umwandlung.h"

namespace altardienst {
namespace {

template <class Teile> Text OderFragezeichen(Teile teile)
{
    try {
        return teile();
    } catch (const Laufzeitfehler &) {
        return "?";
    }
}

} // namespace

Text Terminzeile(Datum datum, Datum uhrzeit)
{
    return OderFragezeichen([&] {
        return Links(WochentagName(datum), 2) + " " + KurzesDatum(datum) + " " +
               StundenUndMinuten(uhrzeit);
    });
}

Text Messenzeile(const MesseTabelle &messen, int messe)
{
    const Datum datum = messen.Datum[messe];
    const Datum uhrzeit = messen.Uhrzeit[messe];
    const Text &art = messen.Messeart[messe];
    if (datum == 0 && uhrzeit == 0 && art.empty())
        return "(leer)";
    return Terminzeile(datum, uhrzeit) + (art.empty() ? "" : " " + art);
}

Text Messenüberschrift(const MesseTabelle &messen, int messe)
{
    const Datum datum = messen.Datum[messe];
    const Text &art = messen.Messeart[messe];
    return OderFragezeichen([&] {
               return WochentagName(datum) + ", " + KurzesDatum(datum) + ", " +
                      StundenUndMinuten(messen.Uhrzeit[messe]) + " Uhr";
           }) +
           (art.empty() ? "" : ", " + art);
}

Text Personenzeile(const Text &vorname, const Text &nachname)
{
    if (vorname.empty() && nachname.empty())
        return "(ohne Namen)";
    if (vorname.empty() || nachname.empty())
        return nachname + vorname;
    return nachname + ", " + vorname;
}

} // namespace altardienst
