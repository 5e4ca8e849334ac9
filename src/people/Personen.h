// What the forms of the people do to the tables: renames that reach every place which names the
// person or group, deletes, and new groups. People refer to each other by name, so a rename that
// missed a place would leave a stranger there.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// Both names of a person, compared exactly.
struct Personenname {
    Text Vorname;
    Text Nachname;

    bool Leer() const { return Vorname.empty() && Nachname.empty(); }
    bool operator==(const Personenname &) const = default;
};

// Whether a record other than `i` bears the name. The blank slot past the last record counts, and
// as a rule it bears none: an empty name is taken there, except by the blank slot itself.
bool IstAndererMeßdiener(int i, const Personenname &name);
bool IstAndererHelfer(int i, const Personenname &name);
bool IstAndereGruppe(int i, const Text &bezeichnung);

// Pushes a new name of record `i`, which still bears the old one, into all places that name it.
// The record itself keeps its name. Empty names of a person are found nowhere: a name typed into
// the blank slot must not fill every empty place of every mass. The empty name of a group is found
// at every server who has none.
void MeßdienerUmbenennen(int i, const Personenname &neu); // wish partners, masses, fixed entries
void HelferUmbenennen(int i, const Personenname &neu);    // the helpers' places of all masses
void GruppeUmbenennen(int i, const Text &neu);            // servers

/// Takes server `i` out of the table and out of the wishes of the others. Masses and fixed entries
/// go on naming him.
void MeßdienerLöschen(int i);

/// Takes helper `i` out of the table. Masses go on naming him.
void HelferLöschen(int i);

/// Empties group `i` at its servers, then takes it out of the table unless that would leave fewer
/// than two: the servers lose their group even where the group stays.
void GruppeLöschen(int i);

/// A name that stands in the blank slot becomes a group first.
void GruppeAnlegen(const Text &bezeichnung);

/// The dialogs take postal code and town of new people from that of the parish, and need one that
/// is long enough for both.
void PlzOrtErgänzen();
Text PlzDerGemeinde();
Text OrtDerGemeinde();

} // namespace altardienst
