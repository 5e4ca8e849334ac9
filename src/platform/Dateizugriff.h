// The files themselves: read, written, copied and found, whatever drive they are on. What each
// routine does and how it fails is described in `LaufwerkeDienst`, through which everything except
// that service calls it.
#pragma once

#include "platform/Laufwerke.h"

namespace altardienst::dateizugriff {

using std::filesystem::path;

std::optional<Text> Suchen(const path &verzeichnis, const Text &name);
Verzeichnisinhalt Auflisten(const path &verzeichnis);
std::string Lesen(const path &pfad);
std::uintmax_t Größe(const path &pfad);
void Schreiben(const path &pfad, std::string_view inhalt);
void Anhängen(const path &pfad, std::string_view inhalt);
void Kopieren(const path &von, const path &nach);
void AttributeLöschen(const path &pfad);
void VerzeichnisAnlegen(const path &pfad);
void Umbenennen(const path &von, const path &nach);
void Löschen(const path &pfad);
void Durchschreiben(const path &pfad);

} // namespace altardienst::dateizugriff
