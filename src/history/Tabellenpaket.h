// The values of the tables in a few bytes: what keeping many states of them in memory is made of.
#pragma once

#include "history/Tabellenstand.h"

#include <array>
#include <cstddef>
#include <string>

namespace altardienst {

/// What is packed by itself: the eight tables, and apart from them what is not a matter of the user
/// alone.
enum class Teil {
    Einstellungen,
    Standardmessen,
    Diener,
    Messen,
    Gruppen,
    Messehelfer,
    Etiketten,
    FesteDiener,
    Läufe,       // who counts as taken, and since when: for the next assignment
    Wochentage,  // of the masses: the list may fill them up with blanks when it shows them
    Abgeleitetes // the services of the slots, the servers of the mass of an entry
};

constexpr std::array<Teil, 11> AlleTeile = {
    Teil::Einstellungen, Teil::Standardmessen, Teil::Diener,      Teil::Messen,
    Teil::Gruppen,       Teil::Messehelfer,    Teil::Etiketten,   Teil::FesteDiener,
    Teil::Läufe,         Teil::Wochentage,     Teil::Abgeleitetes};

/// Where the user is in the tables: which record was last shown or is selected.
struct Stellungen {
    Int16 Standardmesse, Diener, Messe, Gruppe, Messehelfer, Etikett, FesterEintrag;
};

/// The tables that the program works with, as they are at any time; nothing is copied.
Tabellenstand DieTabellen();

// Every field of every record is in one of the parts, also beyond the last record in use. The
// stand may lack the tables of other parts.
std::string Packen(Teil teil, const Tabellenstand &stand);
void Auspacken(Teil teil, const std::string &paket, const Tabellenstand &stand);
bool StehtIn(Teil teil, const std::string &paket, const Tabellenstand &stand);

/// How many bytes of the tables the parts and `Stellungen` cover, without their texts' own.
std::size_t GepackteBreite(const Tabellenstand &stand);

Stellungen StellungenJetzt();
void StellungenSetzen(const Stellungen &stellungen);

} // namespace altardienst
