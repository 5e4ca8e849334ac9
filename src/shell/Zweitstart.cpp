// A second start on the same files.
#include "shell/Zweitstart.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "platform/Laufwerke.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <algorithm>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include "shell/Signale.h"

#include <csignal>
#endif

namespace altardienst {
namespace {

/// In the place for what lasts as long as a session, and not beside the files: those may lie where
/// nothing else can be written.
QString Platzdatei(const std::filesystem::path &verzeichnis)
{
    std::error_code fehler;
    const auto ganz = std::filesystem::weakly_canonical(verzeichnis, fehler);
    const Text name = TextVon(fehler ? verzeichnis : ganz / "");
    const QByteArray kürzel =
        QCryptographicHash::hash(QByteArray::fromStdString(name), QCryptographicHash::Sha1).toHex();
    const QString sitzung = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return (sitzung.isEmpty() ? QDir::tempPath() : sitzung) + "/altardienst-" +
           QString::fromLatin1(kürzel.left(16)) + ".lock";
}

#ifdef Q_OS_WIN

void Wecken(qint64 prozess)
{
    EnumWindows(
        [](HWND fenster, LPARAM gesucht) -> BOOL {
            DWORD besitzer = 0;
            GetWindowThreadProcessId(fenster, &besitzer);
            if (besitzer != static_cast<DWORD>(gesucht) || !IsWindowVisible(fenster) ||
                !IsWindowEnabled(fenster) || GetWindow(fenster, GW_OWNER) != nullptr)
                return TRUE;
            if (IsIconic(fenster))
                ShowWindow(fenster, SW_RESTORE);
            BringWindowToTop(fenster);
            SetForegroundWindow(fenster);
            return FALSE; // the first is the one in front
        },
        static_cast<LPARAM>(prozess));
}

void AufWeckenHören() {}

#else

void Wecken(qint64 prozess)
{
    kill(static_cast<pid_t>(prozess), SIGUSR1);
}

void AufWeckenHören()
{
    BeiSignalen({SIGUSR1}, NachVornHolen);
}

#endif

} // namespace

AlleinigerLauf::AlleinigerLauf(const std::filesystem::path &verzeichnis)
    : platz(Platzdatei(verzeichnis)), istErster(true)
{
    AufWeckenHören(); // before anybody can know of this process: an unheard signal would end it
    platz.setStaleLockTime(0);
    if (platz.tryLock(0) || platz.error() != QLockFile::LockFailedError)
        return;
    qint64 prozess = 0;
    QString rechner;
    QString programm;
    const bool bekannt = platz.getLockInfo(&prozess, &rechner, &programm) && prozess > 0;
    // Left behind by a run that came to a bad end and had by chance the number that is now our own.
    if (bekannt && prozess == QCoreApplication::applicationPid() &&
        QFile::remove(Platzdatei(verzeichnis)) && platz.tryLock(0))
        return;
    istErster = false;
    if (bekannt)
        Wecken(prozess);
}

void NachVornHolen()
{
    QWidget *vorn = QApplication::activeModalWidget();
    if (!vorn)
        vorn = QApplication::activeWindow();
    const QWidgetList alle = QApplication::topLevelWidgets();
    for (const bool auchVerkleinerte : {false, true})
        if (!vorn) {
            const auto offen = std::ranges::find_if(alle, [&](const QWidget *fenster) {
                return fenster->isWindow() && fenster->isVisible() && fenster->isEnabled() &&
                       (auchVerkleinerte || !fenster->isMinimized());
            });
            vorn = offen == alle.end() ? nullptr : *offen;
        }
    if (!vorn)
        return;
    vorn->setWindowState(vorn->windowState() & ~Qt::WindowMinimized);
    vorn->raise();
    vorn->activateWindow();
}

} // namespace altardienst
