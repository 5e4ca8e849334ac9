// A place of the plan.
#include "overview/Platz.h"

#include "assignment/Dienste.h"
#include "core/Umwandlung.h"

#include <algorithm>

namespace altardienst {
namespace {

const Helferplatz &HelferplatzNr(int nr)
{
    return Helferplätze.at(static_cast<std::size_t>(nr));
}

Text ZweiZiffern(int zahl)
{
    return zahl < 10 ? "0" + ZahlText(zahl) : ZahlText(zahl);
}

} // namespace

int Plantabellen::Messenzahl() const
{
    return std::clamp<int>(Messen.Anzahl, 0, MesseTabelle::HöchsterIndex + 1);
}

Platzname NameAm(const MesseTabelle &messen, Planplatz platz)
{
    if (platz.Was == Planplatz::Art::Diener)
        return {messen.DienerVor[platz.Messe][platz.Nr], messen.DienerNach[platz.Messe][platz.Nr]};
    const Helferplatz &stelle = HelferplatzNr(platz.Nr);
    return {(messen.*stelle.Vor)[platz.Messe], (messen.*stelle.Nach)[platz.Messe]};
}

bool IstGewünscht(const MesseTabelle &messen, Planplatz platz)
{
    if (platz.Was == Planplatz::Art::Diener)
        return platz.Nr <= Dienerplätze(messen, platz.Messe);
    return HelferplatzNr(platz.Nr).Nötig(messen, platz.Messe);
}

int Dienerplätze(const MesseTabelle &messen, int messe)
{
    return std::clamp<int>(messen.Dienerzahl[messe], 0, MesseTabelle::HöchsterSlot);
}

Text DienstAm(const MesseTabelle &messen, Planplatz platz)
{
    if (platz.Was == Planplatz::Art::Diener)
        return Text(DienstNachZahl(messen, platz.Messe, platz.Nr).Name);
    return Text(HelferplatzNr(platz.Nr).Art.Name);
}

Text KurzdienstAm(const MesseTabelle &messen, Planplatz platz)
{
    if (platz.Was != Planplatz::Art::Diener)
        return Text(HelferplatzNr(platz.Nr).Art.Name);
    const Dienstart &art = DienstNachZahl(messen, platz.Messe, platz.Nr);
    return &art == &Allgemein ? Text() : Text(art.Kurz);
}

Text Platzaufschrift(Planplatz platz)
{
    switch (platz.Was) {
    case Planplatz::Art::Diener:
        return "Diener " + ZahlText(platz.Nr);
    case Planplatz::Art::Helfer:
        return HelferplatzNr(platz.Nr).Aufschrift();
    case Planplatz::Art::Messe:
        break;
    }
    return "";
}

Text VollerName(std::string_view vorname, std::string_view nachname)
{
    Text name(vorname);
    if (!vorname.empty() && !nachname.empty())
        name += ' ';
    return name.append(nachname);
}

Text TagImSatz(Datum tag)
{
    try {
        const Kalendertag datum = KalendertagVon(tag);
        return ZweiZiffern(datum.Tag) + "." + ZweiZiffern(datum.Monat) + ".";
    } catch (const Laufzeitfehler &) {
        return "?";
    }
}

Text MesseImSatz(const MesseTabelle &messen, int messe)
{
    const Text &art = messen.Messeart[messe];
    return TagImSatz(messen.Datum[messe]) + ", " + StundenUndMinuten(messen.Uhrzeit[messe]) +
           " Uhr" + (art.empty() ? "" : ", " + art);
}

void Besetzen(MesseTabelle &messen, Planplatz platz, const Text &vorname, const Text &nachname)
{
    if (platz.Was == Planplatz::Art::Diener) {
        messen.DienerVor[platz.Messe][platz.Nr] = vorname;
        messen.DienerNach[platz.Messe][platz.Nr] = nachname;
        return;
    }
    const Helferplatz &stelle = HelferplatzNr(platz.Nr);
    (messen.*stelle.Vor)[platz.Messe] = vorname;
    (messen.*stelle.Nach)[platz.Messe] = nachname;
}

void Leeren(MesseTabelle &messen, Planplatz platz)
{
    Besetzen(messen, platz, "", "");
}

} // namespace altardienst
