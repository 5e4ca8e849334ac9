// Numbers formatted by the patterns of the figures on the screen.
#include "core/Zahlenmuster.h"

#include "platform/Gebietsschema.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace altardienst {
namespace {

constexpr int StellenDouble = 15;
constexpr int StellenSingle = 7;

struct Muster {
    std::size_t Ganze = 0;   // digits before the decimal separator, at least
    std::size_t Stellen = 0; // digits after it
    bool Tausender = false;
    bool Prozent = false;
};

Muster MusterLesen(std::string_view text)
{
    const std::string_view ganze = text.substr(0, text.find('.'));
    const std::string_view bruch = text.substr(ganze.size());
    return {.Ganze = static_cast<std::size_t>(std::ranges::count(ganze, '0')),
            .Stellen = static_cast<std::size_t>(std::ranges::count(bruch, '0')),
            .Tausender = ganze.find(',') != std::string_view::npos,
            .Prozent = text.ends_with('%')};
}

/// A number of at least 0 as its digits, `Komma` of which come before the decimal separator.
struct Ziffernfolge {
    std::string Ziffern;
    int Komma;
};

Ziffernfolge ZiffernVon(double zahl, int stellen)
{
    char puffer[32]; // d.ddde+dd
    char *ende = std::to_chars(std::begin(puffer), std::end(puffer), zahl,
                               std::chars_format::scientific, stellen - 1)
                     .ptr;
    const char *e = std::find(puffer, ende, 'e');
    Ziffernfolge folge = {std::string(static_cast<const char *>(puffer), e), 0};
    folge.Ziffern.erase(1, 1);
    // from_chars takes no "+"
    std::from_chars(e + (e[1] == '+' ? 2 : 1), ende, folge.Komma);
    ++folge.Komma;
    return folge;
}

/// The digits rounded to `stellen` places after the decimal separator, without the separator.
std::string Gerundet(const Ziffernfolge &folge, int stellen)
{
    const int bleiben = folge.Komma + stellen;
    if (bleiben < 0)
        return "0";
    const auto anzahl = static_cast<std::size_t>(bleiben);
    std::string ziffern = "0" + folge.Ziffern; // room for a carry
    const bool auf = anzahl + 1 < ziffern.size() && ziffern[anzahl + 1] >= '5';
    ziffern.resize(anzahl + 1, '0');
    if (auf) {
        std::size_t stelle = anzahl;
        for (; ziffern[stelle] == '9'; --stelle)
            ziffern[stelle] = '0';
        ++ziffern[stelle];
    }
    return ziffern;
}

Text Gemustert(double zahl, std::string_view text, int genauigkeit)
{
    const Muster muster = MusterLesen(text);
    if (!(std::fabs(zahl) < 1e15))
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    Ziffernfolge folge = ZiffernVon(std::fabs(zahl), genauigkeit);
    if (muster.Prozent)
        folge.Komma += 2;
    std::string ziffern = Gerundet(folge, static_cast<int>(muster.Stellen));
    ziffern.erase(0, std::min(ziffern.find_first_not_of('0'), ziffern.size()));
    const bool negativ = zahl < 0 && !ziffern.empty();
    const std::size_t mindestens = muster.Ganze + muster.Stellen;
    if (ziffern.size() < mindestens)
        ziffern.insert(0, mindestens - ziffern.size(), '0');
    const std::size_t komma = ziffern.size() - muster.Stellen;
    if (muster.Stellen > 0)
        ziffern.insert(komma, 1, Gebietsschema.Dezimaltrenner);
    if (muster.Tausender)
        for (std::size_t stelle = komma; stelle > 3; stelle -= 3)
            ziffern.insert(stelle - 3, 1, Gebietsschema.Tausendertrenner);
    return (negativ ? "-" : "") + ziffern + (muster.Prozent ? "%" : "");
}

} // namespace

Text Format(double zahl, std::string_view muster)
{
    return Gemustert(zahl, muster, StellenDouble);
}

Text Format(Single zahl, std::string_view muster)
{
    return Gemustert(zahl, muster, StellenSingle);
}

Text Format(int zahl, std::string_view muster)
{
    return Format(static_cast<double>(zahl), muster);
}

} // namespace altardienst
