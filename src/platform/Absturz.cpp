// The bad end of the program.
#include "platform/Absturz.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace altardienst {
namespace {

std::atomic<void (*)()> rettung = nullptr;

void Retten()
{
    if (auto *retten = rettung.exchange(nullptr))
        retten();
}

#ifdef _WIN32

LONG WINAPI BeiAusnahme(EXCEPTION_POINTERS *)
{
    Retten();
    return EXCEPTION_CONTINUE_SEARCH;
}

void BeiAbbruch(int)
{
    Retten();
}

void SignaleFangen()
{
    ULONG platz = ULONG(1) << 16; // for the filter, when the stack is used up
    SetThreadStackGuarantee(&platz);
    SetUnhandledExceptionFilter(BeiAusnahme);
    std::signal(SIGABRT, BeiAbbruch);
}

#else

/// A second fault, in here, takes the default way, as the handler is gone by then. What waits for
/// something that the fault has left locked is ended by the alarm.
void BeiSignal(int signal)
{
    constexpr unsigned Geduld = 10; // seconds
    struct sigaction tödlich {};
    tödlich.sa_handler = SIG_DFL;
    sigaction(SIGALRM, &tödlich, nullptr);
    alarm(Geduld);
    Retten();
    raise(signal);
}

void SignaleFangen()
{
    static std::array<char, std::size_t(1) << 18> stapel; // the process's own may be used up
    stack_t anderer{};
    anderer.ss_sp = stapel.data();
    anderer.ss_size = stapel.size();
    sigaltstack(&anderer, nullptr);
    struct sigaction handler {};
    handler.sa_handler = BeiSignal;
    handler.sa_flags = SA_RESETHAND | SA_NODEFER | SA_ONSTACK;
    for (const int signal :
         {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGSYS, SIGTRAP, SIGQUIT, SIGXCPU})
        sigaction(signal, &handler, nullptr);
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is a failed write
}

#endif

} // namespace

void BeiAbsturz(void (*retten)())
{
    rettung = retten;
    static bool gefangen = false;
    if (!retten || gefangen)
        return;
    gefangen = true;
    SignaleFangen();
    std::atexit(Retten); // the display may go away and take the program with it
}

namespace notschrift {

#ifdef _WIN32

bool VerzeichnisAnlegen(const Zeichen *pfad)
{
    return _wmkdir(pfad) == 0 || errno == EEXIST;
}

bool Umbenennen(const Zeichen *von, const Zeichen *nach)
{
    return _wrename(von, nach) == 0;
}

void Entfernen(const Zeichen *datei)
{
    _wunlink(datei);
}

void Durchschreiben(const Zeichen *) {} // the system flushes names by itself

bool Schreiben(const Zeichen *pfad, std::string_view bytes)
{
    const int datei =
        _wopen(pfad, _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY, _S_IREAD | _S_IWRITE);
    if (datei < 0)
        return false;
    const auto geschrieben = _write(datei, bytes.data(), static_cast<unsigned>(bytes.size()));
    const bool ganz = geschrieben == static_cast<int>(bytes.size()) && _commit(datei) == 0;
    return _close(datei) == 0 && ganz;
}

#else

bool VerzeichnisAnlegen(const Zeichen *pfad)
{
    return mkdir(pfad, S_IRWXU) == 0 || errno == EEXIST;
}

bool Umbenennen(const Zeichen *von, const Zeichen *nach)
{
    return rename(von, nach) == 0;
}

void Entfernen(const Zeichen *datei)
{
    unlink(datei);
}

void Durchschreiben(const Zeichen *verzeichnis)
{
    const int namen = open(verzeichnis, O_RDONLY | O_CLOEXEC);
    if (namen < 0)
        return;
    fsync(namen);
    close(namen);
}

bool Schreiben(const Zeichen *pfad, std::string_view bytes)
{
    const int datei = open(pfad, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (datei < 0)
        return false;
    bool ganz = true;
    while (ganz && !bytes.empty()) {
        const auto geschrieben = write(datei, bytes.data(), bytes.size());
        ganz = geschrieben > 0;
        if (ganz)
            bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    ganz = ganz && fsync(datei) == 0;
    return close(datei) == 0 && ganz;
}

#endif

} // namespace notschrift

} // namespace altardienst
