// "Wer kann hier?": everybody who could stand in a place, and what is against the others.
#pragma once

#include "overview/Planprüfung.h"

#include <vector>

namespace altardienst {

struct Gegengrund {
    Befund Was;
    Text Satz;
};

struct Platzkandidat {
    int Nr; // record of `Meßdiener` or `Helfer`
    Text Vorname, Nachname;
    Text Gruppe = {};                         // of a server
    std::vector<Gegengrund> Gegengründe = {}; // in the order of the rules
    Datum Zuletzt = 0;                        // date of the last service before this mass, 0 none
    Datum Danach = 0;                         // of the next one after it
    int Dienste = 0;                          // in the plan, without this place
    int Häufigkeit = 0;                       // of a server
    Text Wunschpartner = {};                  // "Vorname Nachname"
    int Partner = -1;                         // the wish partner's record, below 0 if there is none
    bool PartnerDaneben = false;              // stands beside already
    int Partnerplatz = 0; // the slot beside in which the partner could stand, 0 none; a free one if
                          // there is one, otherwise somebody stands there now

    /// 0 nothing is against him, 1 only things worth a look, 2 a rule.
    int Rang() const;
};

/// All servers, or for a helper's place all helpers, who have a name: those with nothing against
/// them first, then by number of services, then by how long ago the last one was.
std::vector<Platzkandidat> WerKannHier(const Planprüfung &prüfung, Planplatz platz);

} // namespace altardienst
