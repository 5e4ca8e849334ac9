// The plan as a plain text file: where it goes and what it holds.
#pragma once

#include "values/Text.h"

#include <filesystem>

namespace altardienst {

/// The parts of the target of an export.
struct Exportziel {
    Text Ordner;     // directory with its closing separator
    Text NurName;    // name with extension
    Text VollerPfad; // both
};

/// The target for a directory and the text of the name box. An empty name stands for "Datei"; the
/// extension ".txt" is always added.
Exportziel PfadBilden(const std::filesystem::path &verzeichnis, const Text &name);

/// Whether the target exists, the case of its name aside.
bool ZielVorhanden(const Exportziel &ziel);

/// The file that is written: one that exists is found under its stored name, also where the machine
/// tells capitals from small letters; a new one is named as typed.
std::filesystem::path ZielDatei(const Exportziel &ziel);

/// The whole plan in Windows-1252 with CR LF, from the services as they stand.
std::string PlanAlsText();

} // namespace altardienst
