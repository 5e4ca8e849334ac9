// Runs a tool of the system and takes what it writes.
#pragma once

#include "values/Text.h"

#include <QProcess>

#include <stdexcept>

#ifdef _WIN32
#include <QFile>
#include <QTemporaryFile>

#include <memory>
#include <vector>

#include <windows.h>
#endif

namespace altardienst {

#ifdef _WIN32

/// Where a path of Windows lies on the system below; null outside of Wine.
using Pfadumsetzung = char *(*)(const wchar_t *);
/// Runs a program of the system below and waits for it.
using Unterlauf = LONG(WINAPI *)(char *const *angaben, int warten);

template <class F> F Einsprung(const wchar_t *bibliothek, const char *name)
{
    return reinterpret_cast<F>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(bibliothek), name)));
}

/// Under Wine the tools are those of the system that it runs on: what they write goes by a file.
inline Text Aufruf(const char *werkzeug, const QStringList &angaben)
{
    static const auto umsetzen =
        Einsprung<Pfadumsetzung>(L"kernel32.dll", "wine_get_unix_file_name");
    static const auto starten = Einsprung<Unterlauf>(L"ntdll.dll", "__wine_unix_spawnvp");
    if (!umsetzen || !starten)
        throw std::runtime_error("not under Wine");
    QTemporaryFile ausgabe;
    ausgabe.open();
    ausgabe.close();
    const auto unten = [](const QString &angabe) {
        if (angabe.size() < 3 || angabe[1] != ':')
            return angabe.toStdString();
        char *pfad = umsetzen(QString(angabe).replace('/', '\\').toStdWString().c_str());
        const Text text(pfad ? pfad : "");
        HeapFree(GetProcessHeap(), 0, pfad);
        return text;
    };
    std::vector<Text> worte = {"sh",
                               "-c",
                               R"(ziel=$1; shift; exec "$@" >"$ziel" 2>&1)",
                               "sh",
                               unten(ausgabe.fileName()),
                               werkzeug};
    for (const QString &angabe : angaben)
        worte.push_back(unten(angabe));
    std::vector<char *> zeiger;
    for (Text &wort : worte)
        zeiger.push_back(wort.data());
    zeiger.push_back(nullptr);
    const LONG ergebnis = starten(zeiger.data(), 1);
    ausgabe.open();
    const Text geschrieben = ausgabe.readAll().toStdString();
    if (ergebnis != 0)
        throw std::runtime_error(Text(werkzeug) + ": " + geschrieben);
    return geschrieben;
}

#else

inline Text Aufruf(const char *werkzeug, const QStringList &angaben)
{
    QProcess lauf;
    lauf.start(werkzeug, angaben);
    if (!lauf.waitForFinished() || lauf.exitCode() != 0)
        throw std::runtime_error(Text(werkzeug) + ": " + lauf.readAllStandardError().toStdString());
    return lauf.readAllStandardOutput().toStdString();
}

#endif

} // namespace altardienst
