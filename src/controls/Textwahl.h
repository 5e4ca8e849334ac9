// A text box with a list to choose from; any other text may be typed.
#pragma once

#include "values/Text.h"

#include <QComboBox>

#include <functional>
#include <vector>

namespace altardienst {

/// Entries that contain what is typed are proposed (controls/Ergänzung.h); choosing one is picking
/// it from the list. In the box itself nothing is completed: a text that starts like an entry of
/// the list is not yet that entry. `gesprochen` is the name of the box for screen readers.
QComboBox *Textwahl(const char *name, const char *gesprochen);

/// The wheel scrolls the window instead of choosing another entry unseen.
void RadSperren(QComboBox *wahl);

/// Replaces the list; the text stays.
void ListeSetzen(QComboBox *wahl, const QStringList &liste);

/// Gives several boxes of a window one long list in common; their texts stay.
void ListeTeilen(const std::vector<QComboBox *> &wahlen, const QStringList &liste);

Text TextVon(const QComboBox *wahl);
void Setzen(QComboBox *wahl, const Text &text);

/// Runs when an entry of the list is picked.
void BeiAuswahl(QComboBox *wahl, std::function<void()> handler);

/// Runs when the focus leaves the box. A typed text that is also an entry of the list does not
/// count as picked then.
void BeiVerlassen(QComboBox *wahl, std::function<void()> handler);

} // namespace altardienst
