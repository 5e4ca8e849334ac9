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
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace altardienst {
namespace {

/// While it stands, messages are not shown and questions are answered by no.
class Stille {
  public:
    Stille() : zuvor(Meldungen)
    {
        Meldungen.Zeigen = [](const Text &) {};
        Meldungen.Fragen =
            Meldungen.FragenVorVerlust = [](const Text &, const Text &) { return false; };
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
    const char zeichen = 0;
    [[maybe_unused]] const auto geschrieben = write(röhre[1], &zeichen, 1);
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
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        sigaction(signal, &handler, nullptr);
}

#endif

} // namespace

void BeiEndeVonAußen(const std::function<void()> &verlassen)
{
    const auto still = [verlassen] {
        const Stille stille;
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
