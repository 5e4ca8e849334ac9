// From process start to the usable start dialog, against an empty Qt program with one window, and
// with a hundred earlier states on the disk against none: once where nothing has changed since the
// last start, and once where the start keeps a new state and has old ones to remove; and the peak
// memory of the program with its window open. They run in turns.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
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

/// A copy of the sample parish in which the program has been once.
fs::path Gemeinde(const fs::path &ort)
{
    fs::copy(BEISPIELDATEN, ort, fs::copy_options::recursive);
    setenv("ALTARDIENST_DATEN", ort.c_str(), 1);
    Ausführen(BIS_ZUM_START);
    return ort;
}

/// One more state beside those of a parish; it takes no time to write.
void StandDazu(const fs::path &ort, const std::string &name)
{
    const fs::path neu = ort / "Stände" / name;
    fs::create_directory(neu);
    for (const auto &datei : fs::directory_iterator(ort.parent_path() / "vorlage"))
        fs::create_hard_link(datei, neu / datei.path().filename());
}

/// So many states of today, none of which may go.
void StändeDazu(const fs::path &ort, int zahl)
{
    const auto jetzt = std::time(nullptr);
    char tag[16];
    std::strftime(tag, sizeof tag, "%Y-%m-%d", std::localtime(&jetzt));
    for (int i = 0; i < zahl; ++i) {
        char zeit[16];
        std::snprintf(zeit, sizeof zeit, " 00-%02d-%02d", i / 60, i % 60);
        StandDazu(ort, tag + std::string(zeit));
    }
}

/// The next start keeps a state. In the one parish it is the only one, in the other two old ones
/// may go for it.
void Verändern(const fs::path &ohne, const fs::path &mit, int lauf)
{
    for (const fs::path &ort : {ohne, mit}) {
        std::ofstream datei(ort / "Gruppen.dat", std::ios::app | std::ios::binary);
        datei << lauf << "\r\n"; // beyond what is read
    }
    fs::remove_all(ohne / "Stände");
    StandDazu(mit, "2001-01-01 10-00-0" + std::to_string(lauf % 10));
    StandDazu(mit, "2001-01-02 10-00-0" + std::to_string(lauf % 10));
}

double Start(const fs::path &ort)
{
    setenv("ALTARDIENST_DATEN", ort.c_str(), 1);
    return Ausführen(BIS_ZUM_START).Millisekunden;
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
    fs::copy(BEISPIELDATEN, wurzel / "vorlage");
    const fs::path ohne = Gemeinde(wurzel / "ohne");
    const fs::path mit = Gemeinde(wurzel / "mit");
    const fs::path erster = Gemeinde(wurzel / "erster");
    const fs::path nächster = Gemeinde(wurzel / "nächster");
    StändeDazu(mit, Stände - 1);
    StändeDazu(nächster, Stände - 1);
    std::vector<double> mitStänden;
    std::vector<double> aufhebend;
    std::vector<double> aufhebendZeiten;
    std::vector<double> zeiten;
    std::vector<double> leer;
    std::vector<double> verhältnisse;
    double speicher = 0;
    for (int i = 0; i < Durchläufe; ++i) {
        const double volles = Start(mit);
        setenv("ALTARDIENST_DATEN", ohne.c_str(), 1);
        const Lauf programm = Ausführen(BIS_ZUM_START);
        mitStänden.push_back(volles / programm.Millisekunden);
        Verändern(erster, nächster, i);
        aufhebendZeiten.push_back(Start(nächster));
        aufhebend.push_back(aufhebendZeiten.back() / Start(erster));
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
    const double neue = Median(aufhebend);
    std::printf("Start, der einen Stand aufhebt und zwei entfernt: %.1f ms, gegen einen ohne "
                "frühere: ratio %.2f, target %g\n",
                Median(aufhebendZeiten), neue, HöchstesMitStänden);
    fs::remove_all(wurzel);
    return verhältnis <= HöchstesVerhältnis && speicher < MeisteMebibyte &&
                   stände <= HöchstesMitStänden && neue <= HöchstesMitStänden
               ? 0
               : 1;
}
