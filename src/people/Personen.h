// What the forms for people do to the tables: renaming in every place that names the person or
// group, deleting, and adding groups. People refer to each other by name, so a rename that missed a
// place would leave a stranger there.
#pragma once

#include "values/Text.h"

namespace altardienst {

// What is added as a record of its own is added up to these numbers; the editors take more.
constexpr int MeisteMeßdiener = 200;
constexpr int MeisteHelfer = 200;
constexpr int MeisteGruppen = 60;

/// Both names of a person, compared exactly.
struct Personenname {
    Text Vorname;
    Text Nachname;

    bool Leer() const { return Vorname.empty() && Nachname.empty(); }
    bool operator==(const Personenname &) const = default;
};

// Whether a record other than `i` has the name. The blank slot past the last record counts and
// usually has no name: an empty name therefore counts as taken, except for the blank slot itself.
bool IstAndererMeßdiener(int i, const Personenname &name);
bool IstAndererHelfer(int i, const Personenname &name);
bool IstAndereGruppe(int i, const Text &bezeichnung);

/// Whether a group has this name.
bool GibtEsGruppe(const Text &bezeichnung);

// Writes a new name for record `i`, which still has the old one, to all places that name it. The
// record itself keeps its name. Empty names of a person match nowhere: a name typed into the blank
// slot must not fill every empty place of every mass. The empty name of a group matches every
// server without a group.
void MeßdienerUmbenennen(int i, const Personenname &neu); // wish partners, masses, fixed entries
void HelferUmbenennen(int i, const Personenname &neu);    // the helpers' places of all masses
void GruppeUmbenennen(int i, const Text &neu);            // servers

/// Removes server `i` from the table and from the wishes of the others. Masses and fixed entries
/// still name him.
void MeßdienerLöschen(int i);

/// Removes helper `i` from the table. Masses still name him.
void HelferLöschen(int i);

/// Clears the group of all servers in group `i`, then removes it from the table unless that would
/// leave fewer than two: the servers lose their group even if the group stays.
void GruppeLöschen(int i);

/// If the blank slot holds a name, that becomes a group first.
void GruppeAnlegen(const Text &bezeichnung);

/// The dialogs take the postal code and town of new people from those of the parish, and need a
/// text that is long enough for both.
void PlzOrtErgänzen();
Text PlzDerGemeinde();
Text OrtDerGemeinde();

} // namespace altardienst
