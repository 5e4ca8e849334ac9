// From process start to the usable start dialog, against an empty Qt program with one window, and
// with a hundred earlier states on the disk against none but the newest; and the peak memory of the
// program with its window open. They run in turns.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

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

namespace fs = std::filesystem;

/// A copy of the sample parish in which the program has been once, with so many earlier states.
fs::path Gemeinde(const fs::path &ort, int stände)
{
    fs::copy(BEISPIELDATEN, ort, fs::copy_options::recursive);
    setenv("ALTARDIENST_DATEN", ort.c_str(), 1);
    Ausführen(BIS_ZUM_START);
    const fs::path verzeichnis = ort / "Stände";
    const fs::path neuester = fs::directory_iterator(verzeichnis)->path();
    const std::string heute = neuester.filename().string().substr(0, 10); // so that none may go
    for (int i = 1; i < stände; ++i) {
        char zeit[16];
        std::snprintf(zeit, sizeof zeit, " 00-%02d-%02d", i / 60, i % 60);
        fs::copy(neuester, verzeichnis / (heute + zeit));
    }
    return ort;
}

} // namespace

int main()
{
    constexpr int Durchläufe = 25;
    constexpr double HöchstesVerhältnis = 3;
    constexpr double MeisteMebibyte = 120;
    constexpr double HöchstesMitStänden = 1.15;
    constexpr int Stände = 100;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const fs::path wurzel =
        fs::temp_directory_path() / ("altardienst-start-" + std::to_string(getpid()));
    fs::create_directory(wurzel);
    const fs::path ohne = Gemeinde(wurzel / "ohne", 1);
    const fs::path mit = Gemeinde(wurzel / "mit", Stände);
    std::vector<double> mitStänden;
    std::vector<double> zeiten;
    std::vector<double> leer;
    std::vector<double> verhältnisse;
    double speicher = 0;
    for (int i = 0; i < Durchläufe; ++i) {
        setenv("ALTARDIENST_DATEN", mit.c_str(), 1);
        const Lauf volles = Ausführen(BIS_ZUM_START);
        setenv("ALTARDIENST_DATEN", ohne.c_str(), 1);
        const Lauf programm = Ausführen(BIS_ZUM_START);
        mitStänden.push_back(volles.Millisekunden / programm.Millisekunden);
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
    const double stände = Median(mitStänden);
    std::printf("Start mit %d früheren Ständen gegen einen: ratio %.2f, target %g\n", Stände,
                stände, HöchstesMitStänden);
    fs::remove_all(wurzel);
    return verhältnis <= HöchstesVerhältnis && speicher < MeisteMebibyte &&
                   stände <= HöchstesMitStänden
               ? 0
               : 1;
}
