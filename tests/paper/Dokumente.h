// Where the system keeps the user's documents, moved into a directory of the test.
#pragma once

#include <QByteArray>

#include <filesystem>
#include <utility>

#ifdef _WIN32
#include <shlobj.h>
#endif

namespace altardienst {

/// At first the directory itself, as on a system without a desktop.
class Dokumente {
  public:
    explicit Dokumente(std::filesystem::path verzeichnis) : heim(std::move(verzeichnis))
    {
#ifdef _WIN32
        wchar_t *pfad = nullptr;
        if (SHGetKnownFolderPath(FOLDERID_Documents, KF_FLAG_DONT_VERIFY, nullptr, &pfad) == S_OK)
            früher = pfad;
        CoTaskMemFree(pfad);
        Setzen(heim);
#else
        früher = qgetenv("HOME");
        qputenv("HOME", heim.string().c_str());
#endif
    }
    ~Dokumente()
    {
#ifdef _WIN32
        Setzen(früher);
#else
        qputenv("HOME", früher);
#endif
    }
    Dokumente(const Dokumente &) = delete;
    Dokumente &operator=(const Dokumente &) = delete;

    /// As the desktop makes it.
    void EigenesVerzeichnis() const
    {
        std::filesystem::create_directory(heim / "Documents");
#ifdef _WIN32
        Setzen(heim / "Documents");
#endif
    }

  private:
    std::filesystem::path heim;
#ifdef _WIN32
    static void Setzen(std::filesystem::path verzeichnis)
    {
        SHSetKnownFolderPath(FOLDERID_Documents, 0, nullptr, verzeichnis.make_preferred().c_str());
    }
    std::filesystem::path früher;
#else
    QByteArray früher;
#endif
};

} // namespace altardienst
