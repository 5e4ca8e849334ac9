// The runs of the program: which one this is, and whether another works in the same directory.
#pragma once

#include <cstdint>
#include <filesystem>

namespace altardienst {

/// Tells this run from every other that lives now.
int Prozessnummer();

/// The claim to be the only run that works in a directory. The system gives it back when the
/// process ends, however it ends.
class Alleinlauf {
  public:
    explicit Alleinlauf(const std::filesystem::path &verzeichnis);
    ~Alleinlauf();
    Alleinlauf(const Alleinlauf &) = delete;
    Alleinlauf &operator=(const Alleinlauf &) = delete;

    bool Gilt() const; // false: another run has it, or there is no such directory

  private:
    std::intptr_t griff;
};

/// Whoever may not read the file loses what the system lets him do in the directory; without the
/// file, everybody but the owner does. A medium without permissions stays as it is.
void ZugangWieZurDatei(const std::filesystem::path &verzeichnis,
                       const std::filesystem::path &datei);

} // namespace altardienst
