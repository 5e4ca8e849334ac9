// A bad end on Windows: what the program knew is kept, and the process ends none the less.
#include "history/Netzstand.h"

#ifdef _WIN32

#include <cstdlib>
#include <exception>
#include <map>

#include <windows.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t *Verzeichnisname = L"ALTARDIENST_PROBE";
constexpr const wchar_t *Endename = L"ALTARDIENST_PROBEENDE";

/// Uses up the stack long before `tiefe` gets there.
int Endlos(const volatile int &ende, int tiefe = 0) // NOLINT(misc-no-recursion)
{
    volatile char platz[4096];
    platz[tiefe % 4096] = static_cast<char>(tiefe);
    return tiefe == ende ? 0 : Endlos(ende, tiefe + 1) + platz[0];
}

const std::map<std::wstring, void (*)()> Enden = {
    {L"null", [] { *static_cast<volatile int *>(nullptr) = 1; }},
    {L"stapel",
     [] {
         const volatile int nie = -1;
         Endlos(nie);
     }},
    {L"abbruch", [] { std::abort(); }},
    {L"ungefangen", [] { std::terminate(); }},
    {L"ausgang", [] { std::exit(1); }},
    {L"gut",
     [] {
         NetzEinholen();
         std::exit(0);
     }},
};

class NotwehrWindowsTest : public Netzstand {
  protected:
    NotwehrWindowsTest() { GemeindeSpeichern(1); }

    /// The exit code of a run in a process of its own that has changed the tables.
    DWORD Ausgang(const std::wstring &ende) const
    {
        std::wstring programm(MAX_PATH, L'\0');
        programm.resize(GetModuleFileNameW(nullptr, programm.data(), MAX_PATH));
        std::wstring zeile = L"\"" + programm + L"\" --gtest_filter=NotwehrWindowsTest.Lauf";
        SetEnvironmentVariableW(Verzeichnisname, Festplatte.c_str());
        SetEnvironmentVariableW(Endename, ende.c_str());
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION lauf{};
        DWORD ausgang = 0;
        EXPECT_NE(CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                                 nullptr, nullptr, &start, &lauf),
                  0);
        EXPECT_EQ(WaitForSingleObject(lauf.hProcess, 60000), WAIT_OBJECT_0);
        GetExitCodeProcess(lauf.hProcess, &ausgang);
        CloseHandle(lauf.hProcess);
        CloseHandle(lauf.hThread);
        SetEnvironmentVariableW(Verzeichnisname, nullptr);
        return ausgang;
    }
};

/// The other process: not a test of its own.
TEST_F(NotwehrWindowsTest, Lauf)
{
    std::wstring verzeichnis(MAX_PATH, L'\0');
    verzeichnis.resize(GetEnvironmentVariableW(Verzeichnisname, verzeichnis.data(), MAX_PATH));
    if (verzeichnis.empty())
        GTEST_SKIP() << "runs in the processes that the other tests start";
    fs::remove_all(Festplatte.parent_path()); // nobody tidies up after this process
    SetErrorMode(SEM_NOGPFAULTERRORBOX);
    wchar_t ende[32];
    ASSERT_NE(GetEnvironmentVariableW(Endename, ende, std::size(ende)), 0U);
    Laufwerke.Programmverzeichnis = [verzeichnis] { return fs::path(verzeichnis); };
    NetzSpannen();
    ArbeitBeginnt();
    Gemeinde(2);
    Enden.at(ende)();
}

TEST_F(NotwehrWindowsTest, JedesSchlechteEndeLäßtDieTabellenZurück)
{
    for (const wchar_t *ende : {L"null", L"stapel", L"abbruch", L"ungefangen", L"ausgang"}) {
        SCOPED_TRACE(TextVon(fs::path(ende)));
        EXPECT_NE(Ausgang(ende), 0U);
        Neustart();
        ASSERT_TRUE(Netz().Notfall);
        EXPECT_TRUE(InhaltVon(Netz().Notfall->Ort) == InhaltDerGemeinde(2));
        EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1)) << "the eight files are not touched";
        NetzEinholen();
        fs::remove_all(Stände());
    }
}

TEST_F(NotwehrWindowsTest, EinGutesNichts)
{
    EXPECT_EQ(Ausgang(L"gut"), 0U);
    Neustart();
    EXPECT_FALSE(Netz().Notfall);
}

} // namespace
} // namespace altardienst

#endif
