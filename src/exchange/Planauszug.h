// The plan as the outputs give it away: the masses in the order of time, with the services of each.
#pragma once

#include "overview/Plantabellen.h"
#include "values/Datum.h"
#include "values/Text.h"

#include <string_view>
#include <vector>

namespace altardienst {

/// A wanted place with a name.
struct Auszugsdienst {
    std::string_view Dienst; // a name of `Dienstarten` or `Helferarten`
    const Text *Vorname;     // in the tables, until they change
    const Text *Nachname;
    bool VonHelfer;

    /// Known by where the name of the kind stands.
    bool IstSelberDienst(const Auszugsdienst &anderer) const
    {
        return Dienst.data() == anderer.Dienst.data();
    }
    bool Hat(const Text &vorname, const Text &nachname) const
    {
        return *Nachname == nachname && *Vorname == vorname;
    }
};

struct Auszugsmesse {
    int Messe;   // in the table
    int Gleiche; // how many masses before it in the table have the same date, time and kind
    bool HatTermin;
    std::vector<Auszugsdienst> Dienste; // in the order of the slots, helpers last
};

/// Whether a mass has a date and time that a calendar has. The field may hold any number that
/// stands in the file; nothing in it is nothing, not a day of the year 1899.
bool HatTermin(const MesseTabelle &messen, int messe);

/// Masses with a date and time that a calendar has in the order of time; after them the others, in
/// that of the table.
std::vector<Auszugsmesse> PlanAusziehen(const Plantabellen &tabellen);

/// "Messen der Pfarrei ...": what the plan is called elsewhere.
Text Messentitel(const KonfigDatensatz &einstellungen);

} // namespace altardienst
