// The platform's system information tool.
#include "platform/Systeminfo.h"

#include "platform/Laufwerke.h"

#include <array>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t Doppelwort = 4;

#ifdef _WIN32

Text AusWeit(std::wstring_view weit)
{
    const auto länge = static_cast<int>(weit.size());
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, weit.data(), länge, nullptr, 0, nullptr, nullptr);
    Text text(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, weit.data(), länge, text.data(), bytes, nullptr, nullptr);
    return text;
}

/// With full access as far as the user has it: most may only read there.
HKEY Geöffnet(const char *schlüssel)
{
    HKEY offen = nullptr;
    const std::wstring name = fs::path(schlüssel).wstring();
    for (const REGSAM zugriff : {REGSAM(KEY_ALL_ACCESS), REGSAM(KEY_READ)})
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, zugriff, &offen) == ERROR_SUCCESS)
            return offen;
    return nullptr;
}

std::optional<Text> Registrierung(const char *schlüssel, const char *wert)
{
    HKEY offen = Geöffnet(schlüssel);
    if (!offen)
        return std::nullopt;
    wchar_t puffer[1024];
    DWORD art = 0;
    DWORD bytes = sizeof puffer;
    const LSTATUS ergebnis = RegQueryValueExW(offen, fs::path(wert).c_str(), nullptr, &art,
                                              reinterpret_cast<BYTE *>(puffer), &bytes);
    RegCloseKey(offen);
    if (ergebnis != ERROR_SUCCESS)
        return std::nullopt;
    if (art == REG_SZ || art == REG_EXPAND_SZ)
        return RegistrierterText(art, AusWeit({puffer, bytes / sizeof(wchar_t)}));
    return RegistrierterText(art, {reinterpret_cast<const char *>(puffer), bytes});
}

Text Suchpfad()
{
    const wchar_t *suchpfad = _wgetenv(L"PATH");
    return suchpfad ? AusWeit(suchpfad) : Text();
}

constexpr const char *Trenner = ";";
constexpr std::array Werkzeuge = {"msinfo32.exe", "taskmgr.exe"};

#else

std::optional<Text> Registrierung(const char *, const char *)
{
    return std::nullopt;
}

Text Suchpfad()
{
    const char *suchpfad = std::getenv("PATH");
    return suchpfad ? suchpfad : "";
}

constexpr const char *Trenner = ":";
constexpr std::array Werkzeuge = {
    "hardinfo2",           "hardinfo",
    "kinfocenter",         "lshw-gtk",
    "mate-system-monitor", "gnome-system-monitor",
    "xfce4-taskmanager",
};

#endif

std::optional<fs::path> ImSuchpfad(const char *name)
{
    const Text suchpfad = Suchpfad();
    std::string_view rest = suchpfad;
    while (!rest.empty()) {
        const auto ende = rest.find(Trenner);
        const fs::path datei = PfadAus(rest.substr(0, ende)) / name;
        std::error_code fehler;
        const auto stand = fs::status(datei, fehler);
        if (fs::is_regular_file(stand) &&
            (stand.permissions() & fs::perms::others_exec) != fs::perms::none)
            return datei;
        rest = ende == std::string_view::npos ? "" : rest.substr(ende + 1);
    }
    return std::nullopt;
}

} // namespace

SysteminfoDienst Systeminfo{Registrierung, ImSuchpfad, [](const fs::path &) {}};

std::optional<fs::path> SysteminfoProgramm()
{
    if (const auto programm =
            Systeminfo.Registrierung("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"))
        return PfadAus(*programm);
    if (const auto ort =
            Systeminfo.Registrierung("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO")) {
        if (Laufwerke.Suchen(PfadAus(*ort), "MSINFO32.EXE"))
            return PfadAus(*ort + "\\MSINFO32.EXE");
    }
    for (const char *name : Werkzeuge)
        if (auto programm = Systeminfo.ImSuchpfad(name))
            return programm;
    return std::nullopt;
}

Text RegistrierterText(std::uint32_t art, std::string_view bytes)
{
    if (art == Doppelwort) {
        constexpr std::string_view Ziffern = "0123456789ABCDEF";
        Text text = "&h";
        for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
            const auto wert = static_cast<unsigned char>(*byte);
            text += Ziffern[wert / 16];
            text += Ziffern[wert % 16];
        }
        return text;
    }
    if (bytes.ends_with('\0'))
        bytes.remove_suffix(1);
    return Text(bytes);
}

} // namespace altardienst
