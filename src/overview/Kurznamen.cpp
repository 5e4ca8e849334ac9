// Names where there is little room.
#include "overview/Kurznamen.h"

#include "overview/Gruppenplatz.h"
#include "overview/Platz.h"

#include <map>
#include <set>

namespace altardienst {
namespace {

/// First names with all surnames that occur with them.
using Namen = std::map<Text, std::set<Text>>;

Text Schlüssel(const Text &vorname, const Text &nachname)
{
    return vorname + '\n' + nachname;
}

/// The surname shortened to so many characters.
Text Gekürzt(const Text &vorname, const Text &nachname, int zeichen)
{
    const bool ganz = zeichen >= Länge(nachname);
    return VollerName(vorname, ganz ? nachname : Links(nachname, zeichen) + ".");
}

/// How many characters two texts have in common at their beginning.
int Gemeinsam(const Text &a, const Text &b)
{
    int zeichen = 0;
    while (zeichen < Länge(a) && Links(a, zeichen + 1) == Links(b, zeichen + 1))
        ++zeichen;
    return zeichen;
}

void Aufnehmen(Namen &namen, const Text &vorname, const Text &nachname)
{
    if (!vorname.empty() || !nachname.empty())
        namen[vorname].insert(nachname);
}

template <class Tabelle> void AlleAufnehmen(Namen &namen, const Tabelle &personen)
{
    for (int j = 0; j < personen.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
        Aufnehmen(namen, personen.Vorname[j], personen.Nachname[j]);
}

void PlätzeAufnehmen(Namen &namen, const MesseTabelle &messen, int messe)
{
    const auto aufnehmen = [&](Planplatz platz) {
        const auto &[vorname, nachname] = NameAm(messen, platz);
        Aufnehmen(namen, vorname, nachname);
    };
    for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
        aufnehmen(Dienerplatznr(messe, slot));
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
        aufnehmen(Helferplatznr(messe, nr));
}

} // namespace

void Kurznamen::Neu(const Plantabellen &tabellen)
{
    Namen namen;
    AlleAufnehmen(namen, tabellen.Diener);
    AlleAufnehmen(namen, tabellen.Helferinnen);
    for (int messe = 0; messe < tabellen.Messenzahl(); ++messe)
        PlätzeAufnehmen(namen, tabellen.Messen, messe);
    kurz.clear();
    for (const auto &[vorname, nachnamen] : namen)
        for (auto name = nachnamen.begin(); name != nachnamen.end(); ++name) {
            // In binary order, whoever has most in common with a name stands beside it.
            int zeichen = 0;
            if (name != nachnamen.begin())
                zeichen = Gemeinsam(*name, *std::prev(name));
            if (std::next(name) != nachnamen.end())
                zeichen = std::max(zeichen, Gemeinsam(*name, *std::next(name)));
            const bool ungekürzt = vorname.empty() || IstGruppe(tabellen.Gruppen, {vorname, *name});
            kurz[Schlüssel(vorname, *name)] =
                ungekürzt ? VollerName(vorname, *name) : Gekürzt(vorname, *name, zeichen + 1);
        }
}

Text Kurznamen::Von(const Text &vorname, const Text &nachname) const
{
    const auto gefunden = kurz.find(Schlüssel(vorname, nachname));
    return gefunden != kurz.end() ? gefunden->second : Gekürzt(vorname, nachname, 1);
}

} // namespace altardienst
