// The runs of the program: which one this is, and whether another works in the same directory.
#include "platform/Einzellauf.h"

#ifdef _WIN32
#include <algorithm>
#include <process.h>
#include <windows.h>
#else
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace altardienst {

namespace fs = std::filesystem;

#ifdef _WIN32

int Prozessnummer()
{
    return _getpid();
}

Alleinlauf::Alleinlauf(const fs::path &verzeichnis) : griff(0)
{
    std::wstring name = verzeichnis.wstring();
    std::ranges::replace(name, L'\\', L'/'); // which a name of the system must not contain
    HANDLE sperre = CreateMutexW(nullptr, TRUE, (L"Local\\Altardienst " + name).c_str());
    if (sperre && GetLastError() == ERROR_ALREADY_EXISTS) {
        CloseHandle(sperre);
        sperre = nullptr;
    }
    griff = reinterpret_cast<std::intptr_t>(sperre);
}

Alleinlauf::~Alleinlauf()
{
    if (Gilt())
        CloseHandle(reinterpret_cast<HANDLE>(griff));
}

bool Alleinlauf::Gilt() const
{
    return griff != 0;
}

#else

int Prozessnummer()
{
    return getpid();
}

Alleinlauf::Alleinlauf(const fs::path &verzeichnis)
    : griff(open(verzeichnis.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    // A medium that knows no claims leaves it to the user not to open the program twice.
    if (griff >= 0 && flock(static_cast<int>(griff), LOCK_EX | LOCK_NB) != 0 &&
        errno == EWOULDBLOCK) {
        close(static_cast<int>(griff));
        griff = -1;
    }
}

Alleinlauf::~Alleinlauf()
{
    if (Gilt())
        close(static_cast<int>(griff));
}

bool Alleinlauf::Gilt() const
{
    return griff >= 0;
}

#endif

void ZugangWieZurDatei(const fs::path &verzeichnis, const fs::path &datei)
{
    std::error_code fehler;
    const fs::perms rechte = fs::status(datei, fehler).permissions();
    const auto darfNicht = [&](fs::perms lesen) {
        return fehler || (rechte & lesen) == fs::perms::none;
    };
    fs::perms weg = fs::perms::none;
    if (darfNicht(fs::perms::group_read))
        weg |= fs::perms::group_all;
    if (darfNicht(fs::perms::others_read))
        weg |= fs::perms::others_all;
    std::error_code egal;
    if (weg != fs::perms::none)
        fs::permissions(verzeichnis, weg, fs::perm_options::remove, egal);
}

} // namespace altardienst
