// What holds for all forms and their parts, read from the sources: every event goes through a
// handler of one of the kinds, what handlers refer to is not copied, windows have one kind of
// edges.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string Inhalt(const fs::path &datei)
{
    std::ostringstream text;
    text << std::ifstream(datei).rdbuf();
    return text.str();
}

/// The calls of this function, up to the parenthesis that closes each.
std::vector<std::string> Aufrufe(const std::string &text, const std::regex &name)
{
    std::vector<std::string> aufrufe;
    for (std::sregex_iterator i(text.begin(), text.end(), name), ende; i != ende; ++i) {
        const auto anfang = static_cast<std::size_t>(i->position());
        std::size_t bis = anfang + static_cast<std::size_t>(i->length());
        for (int tiefe = 1; tiefe > 0 && bis < text.size(); ++bis)
            tiefe += text[bis] == '(' ? 1 : text[bis] == ')' ? -1 : 0;
        aufrufe.push_back(text.substr(anfang, bis - anfang));
    }
    return aufrufe;
}

bool Enthält(const std::string &text, const char *muster)
{
    return std::regex_search(text, std::regex(muster));
}

constexpr auto Arten =
    R"(\b(Abgefangen|Schrittweise|Offen|Nebenbei|HauptfensterHandelt|beimVerlassen)\()";

/// Closing a window runs its `closeEvent`; Qt's own routines and plain assignments cannot fail.
constexpr auto Harmlos = R"(\{ (close|reject|fenster->close)\(\); \}|&Q\w+::\w+\)$|)"
                         R"(\{ (gewählt = (-1|zeile)|getippt = text); \})";

/// The pieces that pass on a handler that is already wrapped.
constexpr auto Weitergereicht = R"((std::move\(handler\)|\{ handler\(\); \}|auslösen)\)$|)"
                                R"(\[(handler|schritt)\] \{ \w+\([+-]1\); \})";

bool IstEinName(const std::string &aufruf, std::string &name)
{
    std::smatch treffer;
    if (!std::regex_search(aufruf, treffer, std::regex(R"(,\s*([^\s,(){}]+)\)$)")))
        return false;
    name = treffer[1];
    return true;
}

TEST(Verbindungen, JedesEreignisGehtDurchEinenUmhülltenHandler)
{
    int verbindungen = 0;
    for (const auto &eintrag : fs::recursive_directory_iterator(QUELLEN)) {
        if (eintrag.path().extension() != ".cpp" && eintrag.path().extension() != ".h")
            continue;
        const std::string text = Inhalt(eintrag.path());
        for (const std::string &aufruf : Aufrufe(
                 text,
                 std::regex(R"(\bconnect\(|\bBei(FokusVerlust|Verlassen|Auswahl|Klick|)"
                            R"(Eingabetaste|Mausdruck|Tastendruck|Ab|Auf|Schritt|Wechsel)\()"))) {
            if (Enthält(aufruf, "std::function") || Enthält(aufruf, R"(^\w+\(\))"))
                continue; // a declaration
            ++verbindungen;
            std::string name;
            const bool umhüllt =
                Enthält(aufruf, Arten) || Enthält(aufruf, Harmlos) ||
                Enthält(aufruf, Weitergereicht) ||
                (IstEinName(aufruf, name) &&
                 Enthält(text, ("\\b" + name + R"( =\s+(Abgefangen|Schrittweise|Offen|Nebenbei)\()")
                                   .c_str()));
            EXPECT_TRUE(umhüllt) << eintrag.path() << ": " << aufruf;
        }
    }
    EXPECT_GT(verbindungen, 150);
}

/// The routines of a class in this source.
std::vector<std::string> Routinen(const std::string &text, const std::string &klasse)
{
    std::vector<std::string> routinen;
    const std::regex kopf("\\n(\\w[^\\n]* \\**)?" + klasse + "::[^\\n]*\\(");
    for (std::sregex_iterator i(text.begin(), text.end(), kopf), ende; i != ende; ++i) {
        const auto anfang = static_cast<std::size_t>(i->position());
        routinen.push_back(text.substr(anfang, text.find("\n}\n", anfang) - anfang));
    }
    return routinen;
}

/// A copy would be shown and changed by the handlers of the first.
TEST(Verbindungen, WorinHandlerGreifenWirdNichtKopiert)
{
    int klassen = 0;
    for (const auto &eintrag : fs::recursive_directory_iterator(QUELLEN)) {
        if (eintrag.path().extension() != ".h")
            continue;
        const std::string kopf = Inhalt(eintrag.path());
        const std::string quelle = Inhalt(fs::path(eintrag.path()).replace_extension(".cpp"));
        // Those with a base are windows and controls, which Qt keeps from being copied.
        const std::regex ohneBasis(R"(\n(?:class|struct) ([^\s:]+)(?: final)? \{)");
        for (std::sregex_iterator i(kopf.begin(), kopf.end(), ohneBasis), ende; i != ende; ++i) {
            const std::string klasse = (*i)[1];
            bool greift = false;
            for (const std::string &routine : Routinen(quelle, klasse))
                greift = greift || Enthält(routine, R"(\[(this|[^\]\n]*, this)\b)");
            if (!greift)
                continue;
            ++klassen;
            for (const std::string &gelöscht :
                 {klasse + "(const " + klasse + " &) = delete;",
                  klasse + " &operator=(const " + klasse + " &) = delete;"})
                EXPECT_NE(kopf.find(gelöscht), std::string::npos) << eintrag.path() << gelöscht;
        }
    }
    EXPECT_GE(klassen, 5);
}

/// Frames and parts of a window set small ones at the most.
TEST(Fensterränder, StehenAnEinemOrt)
{
    int gesetzt = 0;
    for (const auto &eintrag : fs::recursive_directory_iterator(QUELLEN)) {
        if (eintrag.path().extension() != ".cpp")
            continue;
        for (const std::string &aufruf :
             Aufrufe(Inhalt(eintrag.path()), std::regex(R"(\bsetContentsMargins\()"))) {
            ++gesetzt;
            const bool derOrt = eintrag.path().filename() == "Fensteraufbau.cpp";
            EXPECT_TRUE(derOrt || !Enthält(aufruf, R"(\d\d)")) << eintrag.path() << ": " << aufruf;
        }
    }
    EXPECT_GT(gesetzt, 1);
}

} // namespace
