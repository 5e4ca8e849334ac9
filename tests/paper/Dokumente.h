// Where the system keeps the user's documents, moved into a directory of the test.
#pragma once

#include <QByteArray>

#include <filesystem>
#include <utility>

#ifdef _WIN32
#include <string>

#include <windows.h>
#endif

namespace altardienst {

/// At first the directory itself, as on a system without a desktop.
class Dokumente {
  public:
    explicit Dokumente(std::filesystem::path verzeichnis) : heim(std::move(verzeichnis))
    {
#ifdef _WIN32
        wchar_t pfad[MAX_PATH] = L"";
        DWORD größe = sizeof pfad;
        RegGetValueW(HKEY_CURRENT_USER, Ordner, Name, RRF_RT_REG_SZ, nullptr, pfad, &größe);
        früher = pfad;
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
    // Where the system looks it up; its own call for a change is one that Wine does not have.
    static constexpr const wchar_t *Ordner =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    static constexpr const wchar_t *Name = L"Personal";

    static void Setzen(std::filesystem::path verzeichnis)
    {
        const std::wstring pfad = verzeichnis.make_preferred().wstring();
        RegSetKeyValueW(HKEY_CURRENT_USER, Ordner, Name, REG_SZ, pfad.c_str(),
                        static_cast<DWORD>((pfad.size() + 1) * sizeof(wchar_t)));
    }
    std::filesystem::path früher;
#else
    QByteArray früher;
#endif
};

} // namespace altardienst
