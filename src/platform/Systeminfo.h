// The platform's system information tool: finding and starting it.
#pragma once

#include "values/Text.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

namespace altardienst {

struct SysteminfoDienst {
    /// A value of the machine's registry as text; nothing if it is not there, or if there is no
    /// registry.
    std::function<std::optional<Text>(const char *schlüssel, const char *wert)> Registrierung;

    /// The program with that name on the search path; nothing if there is none.
    std::function<std::optional<std::filesystem::path>(const char *name)> ImSuchpfad;

    /// Starts a program in a window of its own. A failed start is ignored.
    std::function<void(const std::filesystem::path &)> Starten;
};

/// The service in use: the registry and the search path of the machine. Starting does nothing until
/// there are windows.
extern SysteminfoDienst Systeminfo;

/// The program to start: the one that the registry names, even if the name is empty; otherwise the
/// one in the directory that the registry names, if it exists; otherwise, if there is no registry,
/// the first common tool that is installed.
std::optional<std::filesystem::path> SysteminfoProgramm();

/// A value of the registry as text: type 4, a double word, as "&h" and two hexadecimal digits for
/// each byte, the highest byte first; any other without its ending zero byte.
Text RegistrierterText(std::uint32_t art, std::string_view bytes);

} // namespace altardienst
