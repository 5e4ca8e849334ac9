// The program itself, run as a separate process on the offscreen platform and driven from outside.
#pragma once

#include "controls/Bausteine.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <filesystem>
#include <functional>
#include <stdexcept>

#include <csignal>

namespace altardienst {

class Programmlauf {
  public:
    /// Starts the program on a directory; `programm` may be elsewhere than in the build directory.
    /// Of the signals from outside it starts with `überhört` ignored and no other.
    explicit Programmlauf(const std::filesystem::path &daten,
                          const std::filesystem::path &programm = PROGRAMM, int überhört = 0)
    {
        prozess.setChildProcessModifier([überhört] {
            for (const int signal : {SIGTERM, SIGHUP, SIGINT})
                std::signal(signal, signal == überhört ? SIG_IGN : SIG_DFL);
        });
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert("LD_PRELOAD", FERNSTEUERUNG);
        umgebung.insert("QT_QPA_PLATFORM", "offscreen");
        umgebung.insert("HOME", Anzeige(daten.parent_path().string()));
        umgebung.insert("ALTARDIENST_DATEN", Anzeige(daten.string()));
        umgebung.remove("ALTARDIENST_DISKETTE");
        umgebung.remove("XDG_CONFIG_HOME"); // what is remembered of the windows stays in that home
        prozess.setProcessEnvironment(umgebung);
        prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        prozess.start(Anzeige(programm.string()), QStringList{});
        if (!prozess.waitForStarted(Geduld))
            throw std::runtime_error("the program did not start");
    }

    ~Programmlauf()
    {
        if (prozess.state() == QProcess::NotRunning)
            return;
        prozess.kill();
        prozess.waitForFinished(Geduld);
    }

    /// Carries out one command of the remote control; "" if the program has ended.
    Text Befehl(const Text &zeile)
    {
        prozess.write(QByteArray::fromStdString(zeile + "\n"));
        while (!prozess.canReadLine())
            if (!prozess.waitForReadyRead(Geduld))
                return "";
        return prozess.readLine().trimmed().toStdString();
    }

    /// Repeats a query until it has this answer; returns the last answer.
    Text Warten(const Text &zeile, const Text &antwort)
    {
        QElapsedTimer uhr;
        uhr.start();
        Text letzte = Befehl(zeile);
        while (letzte != antwort && uhr.elapsed() < Geduld) {
            QThread::msleep(20);
            letzte = Befehl(zeile);
        }
        return letzte;
    }

    /// Waits until these windows are open; returns the open ones.
    Text Fenster(const Text &erwartet) { return Warten("fenster", erwartet); }

    /// Sends it a signal.
    void Signal(int signal) const { kill(static_cast<pid_t>(prozess.processId()), signal); }

    /// The exit code of the program; -1 if it doesn't end.
    int Ende()
    {
        return prozess.waitForFinished(Geduld) && prozess.exitStatus() == QProcess::NormalExit
                   ? prozess.exitCode()
                   : -1;
    }

  private:
    static constexpr int Geduld = 20000; // ms
    QProcess prozess;
};

} // namespace altardienst
