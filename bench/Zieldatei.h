// A file that measurements write again and again.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace altardienst {

/// Beside the sources rather than in the directory of temporary files, which may lie in memory;
/// gone at the end of the process.
class Zieldatei {
  public:
    explicit Zieldatei(const std::string &name)
        : pfad(std::filesystem::current_path() /
               (name + "." + std::to_string(std::random_device()())))
    {
    }
    ~Zieldatei()
    {
        std::error_code fehler;
        std::filesystem::remove(pfad, fehler);
    }
    Zieldatei(const Zieldatei &) = delete;
    Zieldatei &operator=(const Zieldatei &) = delete;

    const std::filesystem::path &Pfad() const { return pfad; }

  private:
    std::filesystem::path pfad;
};

} // namespace altardienst
