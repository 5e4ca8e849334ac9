// Tables to read in: how they look, and columns that fit.
#pragma once

#include <QTableView>

#include <vector>

namespace altardienst {

/// A table to read in: rows are chosen whole, nothing is edited, the last column takes what is
/// left.
void LesetafelEinrichten(QTableView *tafel);

/// From now on each column is as wide as what it holds, as long as all have room. Where they have
/// not, the widest give way, down to their headings: nobody scrolls sideways, and the tooltip of a
/// cell holds its text whole. A column that the user has dragged ends this. Called anew once other
/// rows stand there; unless `breiten` says how wide each wants to be.
void SpaltenEinpassen(QTableView *tafel, const std::vector<int> &breiten = {});

/// The widths of columns in so much room: `gewünscht`, or less for the widest, but no less than
/// `mindestens`; where even these have no room, what they want.
std::vector<int> EingepaßteBreiten(const std::vector<int> &gewünscht,
                                   const std::vector<int> &mindestens, int platz);

} // namespace altardienst
