// The platform's system information tool.
#include "platform/Systeminfo.h"

#include "platform/Laufwerke.h"

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t Doppelwort = 4;

#ifdef _WIN32

std::optional<Text> Registrierung(const char *schlüssel, const char *wert)
{
    HKEY offen = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, schlüssel, 0, KEY_ALL_ACCESS, &offen) != ERROR_SUCCESS)
        return std::nullopt;
    char puffer[1024];
    DWORD art = 0;
    DWORD länge = sizeof puffer;
    const LSTATUS ergebnis =
        RegQueryValueExA(offen, wert, nullptr, &art, reinterpret_cast<BYTE *>(puffer), &länge);
    RegCloseKey(offen);
    if (ergebnis != ERROR_SUCCESS)
        return std::nullopt;
    return RegistrierterText(art, {puffer, länge});
}

constexpr const char *Trenner = ";";

#else

std::optional<Text> Registrierung(const char *, const char *)
{
    return std::nullopt;
}

constexpr const char *Trenner = ":";

#endif

std::optional<fs::path> ImSuchpfad(const char *name)
{
    const char *suchpfad = std::getenv("PATH");
    std::string_view rest = suchpfad ? suchpfad : "";
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
    for (const char *name : {"hardinfo2", "hardinfo", "kinfocenter", "lshw-gtk",
                             "mate-system-monitor", "gnome-system-monitor", "xfce4-taskmanager"})
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
