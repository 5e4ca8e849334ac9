// Many files into one directory, each whole or not at all.
#pragma once

#include "values/Text.h"

#include <filesystem>
#include <string>
#include <vector>

namespace altardienst {

struct AbzulegendeDatei {
    Text Name;
    std::string Bytes;
};

struct Ablage {
    int Geschrieben = 0;
    int Misslungen = 0;
    Text Woran; // the first file that could not be written
    Text Warum;

    bool IstGanz() const { return Misslungen == 0; }
};

/// One that cannot be written does not keep the others back.
Ablage Ablegen(const std::filesystem::path &verzeichnis,
               const std::vector<AbzulegendeDatei> &dateien);

/// Those names that stand for a file there which `eigene` does not accept, from its bytes, as one
/// of the program's own; what cannot be read is none.
std::vector<Text> FremdeDateien(const std::filesystem::path &verzeichnis,
                                const std::vector<AbzulegendeDatei> &dateien,
                                bool (*eigene)(std::string_view));

} // namespace altardienst
