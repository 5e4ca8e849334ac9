// The ends of the program that come from outside.
#include "shell/Abschied.h"

#include "controls/Handler.h"
#include "platform/Meldungen.h"

#include <QApplication>
#include <QPointer>
#include <QSessionManager>

#include <vector>

#ifndef Q_OS_WIN
#include "shell/Signale.h"

#include <csignal>
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
        Meldungen.Fragen =
            Meldungen.FragenVorVerlust = [](const Text &, const Text &) { return false; };
    }
    ~Stille() { Meldungen = zuvor; }
    Stille(const Stille &) = delete;
    Stille &operator=(const Stille &) = delete;

  private:
    MeldungenDienst zuvor;
};

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
    BeiSignalen({SIGTERM, SIGHUP, SIGINT}, still);
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
