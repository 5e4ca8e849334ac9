// Message boxes: with OK, and with Ja and Nein.
#pragma once

#include "values/Text.h"

#include <functional>

namespace altardienst {

struct MeldungenDienst {
    std::function<void(const Text &text)> Zeigen;
    std::function<bool(const Text &text, const Text &titel)> Fragen; // true: Ja
    /// Where Ja deletes or overwrites something: Nein is then the answer that is proposed.
    std::function<bool(const Text &text, const Text &titel)> FragenVorVerlust;
};

/// The message boxes in use. The program installs real ones when it starts; without a screen a
/// message goes nowhere and a question is answered with Nein.
extern MeldungenDienst Meldungen;

} // namespace altardienst
