// The program itself, run as a process of its own on the offscreen platform and driven from
// outside.
#pragma once

#include "controls/Bausteine.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <filesystem>
#include <functional>
#include <stdexcept>

namespace altardienst {

class Programmlauf {
  public:
    /// Starts the program on a directory; `programm` may be another place than that of the build.
    explicit Programmlauf(const std::filesystem::path &daten,
                          const std::filesystem::path &programm = PROGRAMM)
    {
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert("LD_PRELOAD", FERNSTEUERUNG);
        umgebung.insert("QT_QPA_PLATFORM", "offscreen");
        umgebung.insert("HOME", Anzeige(daten.parent_path().string()));
        umgebung.insert("ALTARDIENST_DATEN", Anzeige(daten.string()));
        umgebung.remove("ALTARDIENST_DISKETTE");
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

    /// Repeats a question until it has this answer; the last answer.
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

    /// The windows that are open, once these are.
    Text Fenster(const Text &erwartet) { return Warten("fenster", erwartet); }

    /// The result of a program that ends; -1 if it doesn't.
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
