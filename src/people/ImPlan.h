// The way from a record to its services in the plan, which the main window shows.
#pragma once

#include "people/Personen.h"

#include <QPushButton>

#include <functional>

namespace altardienst {

/// Marks somebody's places in the plan; set by the main window, empty without one.
extern std::function<void(const Text &vorname, const Text &nachname)> ImPlanZeigen;

/// The button "Im Plan zeigen": leaves the form as `ende` does, which writes what was typed, and
/// shows whoever `wer` returned before. Hidden where there is no plan to go to.
QPushButton *ImPlanKnopf(QWidget *form, QPushButton *ende,
                         const std::function<Personenname()> &wer);

} // namespace altardienst
