// A second start on the same files: two programs on them would overwrite each other's work, so the
// one that runs comes to the front instead.
#pragma once

#include <QLockFile>

#include <filesystem>

namespace altardienst {

/// Holds the place of the one program on these files. Whoever comes second brings the first one to
/// the front. What a program that died has left behind does not count.
class AlleinigerLauf {
  public:
    explicit AlleinigerLauf(const std::filesystem::path &verzeichnis);

    /// Also true where nothing can be told, as there is no place to write to.
    bool IstErster() const { return istErster; }

  private:
    QLockFile platz;
    bool istErster;
};

/// Brings to the front what the user was last in.
void NachVornHolen();

} // namespace altardienst
