// Choosing a file that is none of the eight: where something is written to or read from.
#pragma once

#include "values/Text.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace altardienst {

struct Dateiwunsch {
    Text Titel;                 // of the dialog
    Text Name;                  // proposed, with its extension; empty where a file is to be read
    Text Art;                   // "Kalender", as the list of kinds shows it
    std::vector<Text> Endungen; // "ics"; the first one is added to a name without any
};

struct DateiwahlDienst {
    /// A file to be written, or nothing; whether one that exists is to be replaced was asked.
    std::function<std::optional<std::filesystem::path>(QWidget *, const Dateiwunsch &)> Speichern;
    /// A file to be read, or nothing.
    std::function<std::optional<std::filesystem::path>(QWidget *, const Dateiwunsch &)> Öffnen;
    /// A directory that many files are written to, or nothing; only the title of the wish counts.
    std::function<std::optional<std::filesystem::path>(QWidget *, const Dateiwunsch &)> Verzeichnis;
};

/// The service in use. Without an application nothing is chosen.
extern DateiwahlDienst Dateiwahl;

/// The platform's own dialogs, which open in the directory used last.
void DateiwahlEinrichten();

} // namespace altardienst
