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
    std::vector<Text> Misslungene; // the names of those that could not be written
    Text Warum;                    // the first of them could not

    bool IstGanz() const { return Misslungene.empty(); }
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
