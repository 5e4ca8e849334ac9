// The plan as a plain text file: where it goes and what it holds.
#pragma once

#include "values/Text.h"

#include <filesystem>

namespace altardienst {

/// The parts of the target of an export.
struct Exportziel {
    Text Ordner;     // directory with its trailing separator
    Text NurName;    // name with extension
    Text VollerPfad; // both
};

/// The target for a directory and the text of the name box. An empty name stands for "Datei"; the
/// extension ".txt" is always added.
Exportziel PfadBilden(const std::filesystem::path &verzeichnis, const Text &name);

/// Whether the target exists, ignoring the case of its name.
bool ZielVorhanden(const Exportziel &ziel);

/// The file to write: an existing one is found under its stored name, even on a case-sensitive file
/// system; a new one is named as typed.
std::filesystem::path ZielDatei(const Exportziel &ziel);

/// What there is to say once it is written or appended.
Text ExportSatz(const std::filesystem::path &datei, bool angehängt);

/// The whole plan in Windows-1252 with CR LF, based on the services as they are.
std::string PlanAlsText();

} // namespace altardienst
