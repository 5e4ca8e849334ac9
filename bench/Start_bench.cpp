// From process start to the usable start dialog, against an empty Qt program with one window, and
// the peak memory of the program with its window open. The two run in turns.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

namespace {

struct Lauf {
    double Millisekunden = 0;
    double Mebibyte = 0;
};

Lauf Ausführen(const char *programm)
{
    const auto beginn = std::chrono::steady_clock::now();
    char *argumente[] = {const_cast<char *>(programm), nullptr};
    pid_t kind = 0;
    int status = 0;
    rusage verbrauch{};
    if (posix_spawn(&kind, programm, nullptr, nullptr, argumente, environ) != 0 ||
        wait4(kind, &status, 0, &verbrauch) != kind || status != 0) {
        std::fprintf(stderr, "%s did not run\n", programm);
        std::exit(2);
    }
    const std::chrono::duration<double, std::milli> dauer =
        std::chrono::steady_clock::now() - beginn;
    return {dauer.count(), static_cast<double>(verbrauch.ru_maxrss) / 1024};
}

double Median(std::vector<double> werte)
{
    std::nth_element(werte.begin(), werte.begin() + static_cast<long>(werte.size() / 2),
                     werte.end());
    return werte[werte.size() / 2];
}

} // namespace

int main()
{
    constexpr int Durchläufe = 25;
    constexpr double HöchstesVerhältnis = 3;
    constexpr double MeisteMebibyte = 120;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("ALTARDIENST_DATEN", BEISPIELDATEN, 1);
    std::vector<double> zeiten;
    std::vector<double> leer;
    std::vector<double> verhältnisse;
    double speicher = 0;
    for (int i = 0; i < Durchläufe; ++i) {
        const Lauf programm = Ausführen(BIS_ZUM_START);
        const Lauf maßstab = Ausführen(LEERES_FENSTER);
        zeiten.push_back(programm.Millisekunden);
        leer.push_back(maßstab.Millisekunden);
        verhältnisse.push_back(programm.Millisekunden / maßstab.Millisekunden);
        speicher = std::max(speicher, programm.Mebibyte);
    }
    const double verhältnis = Median(verhältnisse);
    std::printf(
        "Start bis zum Startdialog: %.1f ms, leeres Fenster %.1f ms, ratio %.2f, target %g\n",
        Median(zeiten), Median(leer), verhältnis, HöchstesVerhältnis);
    std::printf("Speicher mit offenem Fenster: %.1f MiB, target %g\n", speicher, MeisteMebibyte);
    return verhältnis <= HöchstesVerhältnis && speicher < MeisteMebibyte ? 0 : 1;
}
