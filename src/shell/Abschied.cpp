// The ends of the program that come from outside.
#include "shell/Abschied.h"

#include "controls/Handler.h"
#include "platform/Meldungen.h"

#include <QApplication>
#include <QPointer>
#include <QSessionManager>

#include <vector>

#ifndef Q_OS_WIN
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace altardienst {
namespace {

bool ende = false;

/// While it stands, messages are not shown and questions are answered by no.
class Stille {
  public:
    Stille() : zuvor(Meldungen)
    {
        Meldungen.Zeigen = [](const Text &) {};
        Meldungen.Fragen = [](const Text &, const Text &) { return false; };
    }
    ~Stille() { Meldungen = zuvor; }
    Stille(const Stille &) = delete;
    Stille &operator=(const Stille &) = delete;

  private:
    MeldungenDienst zuvor;
};

#ifndef Q_OS_WIN

std::array<int, 2> röhre = {-1, -1}; // a signal writes into it, the event loop reads

void BeiSignal(int)
{
    const int fehler = errno; // of what was interrupted
    const char zeichen = 0;
    [[maybe_unused]] const auto geschrieben = write(röhre[1], &zeichen, 1);
    errno = fehler;
}

void SignaleFangen(const std::function<void()> &verlassen)
{
    if (röhre[0] < 0 && pipe2(röhre.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *lauscher = new QSocketNotifier(röhre[0], QSocketNotifier::Read, qApp);
    QObject::connect(lauscher, &QSocketNotifier::activated, qApp, Offen([verlassen] {
                         char zeichen = 0;
                         while (read(röhre[0], &zeichen, 1) > 0) {
                         }
                         verlassen();
                     }));
    struct sigaction handler {};
    handler.sa_handler = BeiSignal;
    handler.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        struct sigaction bisher {};
        if (sigaction(signal, nullptr, &bisher) == 0 && bisher.sa_handler == SIG_IGN)
            continue; // whoever started the program wants it to live on
        sigaction(signal, &handler, nullptr);
    }
}

#endif

} // namespace

void BeiEndeVonAußen(const std::function<void()> &verlassen)
{
    const auto still = [verlassen] {
        const Stille stille;
        ende = true;
        verlassen();
    };
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                     Offen([still](QSessionManager &sitzung) {
                         sitzung.setRestartHint(QSessionManager::RestartNever);
                         still();
                     }),
                     Qt::DirectConnection);
#ifndef Q_OS_WIN
    SignaleFangen(still);
#endif
}

bool EndeVonAußen()
{
    return ende;
}

void AndereFensterSchließen(const QWidget *außer)
{
    constexpr int Runden = 10; // a window that closes may bring back another
    for (int runde = 0; runde < Runden; ++runde) {
        bool geschlossen = false;
        const QWidgetList fenster = QApplication::topLevelWidgets();
        const std::vector<QPointer<QWidget>> alle(fenster.begin(), fenster.end());
        for (const auto &eines : alle)
            if (eines && eines != außer && eines->isWindow() && eines->isVisible())
                geschlossen = eines->close() || geschlossen;
        if (!geschlossen)
            return;
    }
}

} // namespace altardienst
