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

template <class Tabelle, class F> void AlleAufnehmen(const Tabelle &personen, F aufnehmen)
{
    for (int j = 0; j < personen.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
        aufnehmen(personen.Vorname[j], personen.Nachname[j]);
}

template <class F> void PlätzeAufnehmen(const MesseTabelle &messen, int messe, F aufnehmen)
{
    const auto platz = [&](Planplatz einer) {
        const auto &[vorname, nachname] = NameAm(messen, einer);
        aufnehmen(vorname, nachname);
    };
    for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
        platz(Dienerplatznr(messe, slot));
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
        platz(Helferplatznr(messe, nr));
}

} // namespace

void Kurznamen::Neu(const Plantabellen &tabellen)
{
    Namen namen;
    // Most names come often, and are soon found here.
    struct Nichts {};
    Namenspaare<Nichts> bekannt;
    const auto aufnehmen = [&](const Text &vorname, const Text &nachname) {
        if ((!vorname.empty() || !nachname.empty()) && bekannt.Eintragen(vorname, nachname).second)
            namen[vorname].insert(nachname);
    };
    AlleAufnehmen(tabellen.Diener, aufnehmen);
    AlleAufnehmen(tabellen.Helferinnen, aufnehmen);
    for (int messe = 0; messe < tabellen.Messenzahl(); ++messe)
        PlätzeAufnehmen(tabellen.Messen, messe, aufnehmen);
    kurz.Leeren();
    for (const auto &[vorname, nachnamen] : namen)
        for (auto name = nachnamen.begin(); name != nachnamen.end(); ++name) {
            // In binary order, whoever has most in common with a name stands beside it.
            int zeichen = 0;
            if (name != nachnamen.begin())
                zeichen = Gemeinsam(*name, *std::prev(name));
            if (std::next(name) != nachnamen.end())
                zeichen = std::max(zeichen, Gemeinsam(*name, *std::next(name)));
            const bool ungekürzt = vorname.empty() || IstGruppe(tabellen.Gruppen, {vorname, *name});
            kurz.Eintragen(vorname, *name).first =
                ungekürzt ? VollerName(vorname, *name) : Gekürzt(vorname, *name, zeichen + 1);
        }
}

Text Kurznamen::Von(const Text &vorname, const Text &nachname) const
{
    const Text *gefunden = kurz.Finden(vorname, nachname);
    return gefunden ? *gefunden : Gekürzt(vorname, nachname, 1);
}

} // namespace altardienst
