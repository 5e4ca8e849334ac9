// Signals of the system, brought into the event loop.
#include "shell/Signale.h"

#include "controls/Handler.h"

#include <QApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <map>
#include <set>

#include <fcntl.h>
#include <unistd.h>

namespace altardienst {
namespace {

std::array<int, 2> röhre = {-1, -1}; // a signal writes its number into it, the event loop reads
std::map<int, std::function<void()>> handlungen;

void BeiSignal(int signal)
{
    const int fehler = errno; // of what was interrupted
    const auto nummer = static_cast<char>(signal);
    [[maybe_unused]] const auto geschrieben = write(röhre[1], &nummer, 1);
    errno = fehler;
}

void Abholen()
{
    std::set<int> gekommen;
    char nummer = 0;
    while (read(röhre[0], &nummer, 1) > 0)
        gekommen.insert(nummer);
    for (const int signal : gekommen)
        handlungen[signal]();
}

bool RöhreOffen()
{
    if (röhre[0] >= 0)
        return true;
    if (pipe2(röhre.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    auto *lauscher = new QSocketNotifier(röhre[0], QSocketNotifier::Read, qApp);
    QObject::connect(lauscher, &QSocketNotifier::activated, qApp, Offen(Abholen));
    return true;
}

} // namespace

void BeiSignalen(const std::vector<int> &signale, const std::function<void()> &f)
{
    if (!RöhreOffen())
        return;
    struct sigaction handler {};
    handler.sa_handler = BeiSignal;
    handler.sa_flags = SA_RESTART;
    for (const int signal : signale) {
        struct sigaction bisher {};
        if (sigaction(signal, nullptr, &bisher) == 0 && bisher.sa_handler == SIG_IGN)
            continue; // whoever started the program wants it to live on
        handlungen[signal] = f;
        sigaction(signal, &handler, nullptr);
    }
}

} // namespace altardienst
