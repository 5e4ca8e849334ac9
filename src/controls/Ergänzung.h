// Proposals while a name is typed.
#pragma once

#include <QAbstractItemModel>
#include <QLineEdit>

#include <functional>

namespace altardienst {

/// Where the proposals of a box come from and what becomes of the one that is chosen.
struct Ergänzungsquelle {
    /// The list, asked for when the first key is typed, so that opening a window costs nothing;
    /// many boxes may give the same one.
    std::function<QAbstractItemModel *()> Liste;

    /// Runs with the row that was chosen.
    std::function<void(int zeile)> Gewählt;
};

/// Shows, a moment after a key was typed, the entries of a list that contain the text anywhere,
/// whatever the case. What is typed stays as it is until an entry is chosen, with the mouse or with
/// the arrow keys and Enter: nothing is completed in the box, Enter does what it always does while
/// nothing is chosen, and Escape closes the proposals only. A text that is already the only
/// proposal shows none. In a list to choose from, the box is that of the list.
void Ergänzen(QLineEdit *feld, Ergänzungsquelle quelle);

/// The proposals of a box while they are on the screen, or null.
QWidget *OffeneErgänzung(const QLineEdit *feld);

} // namespace altardienst
