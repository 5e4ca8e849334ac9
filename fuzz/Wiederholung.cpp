// Replays a corpus without a fuzzer: each file in the directories named on the command line.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe);

int main(int argc, char **argv)
{
    int anzahl = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto &eintrag : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream datei(eintrag.path(), std::ios::binary);
            std::string bytes(std::istreambuf_iterator<char>(datei), {});
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()),
                                   bytes.size());
            ++anzahl;
        }
    std::printf("%d inputs\n", anzahl);
    return anzahl == 0; // an empty corpus tests nothing
}
