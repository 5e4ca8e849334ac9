// How large a table of names can be printed on one sheet.
#include "exchange/Blattmaß.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <span>

namespace altardienst {
namespace {

// Millimetres within the margins, with some to spare since the widths are estimates.
constexpr double KurzeSeite = 210 - 2 * 9;
constexpr double LangeSeite = 297 - 2 * 12;
constexpr double MillimeterJePunkt = 25.4 / 72;

// In sizes of the type.
constexpr double Zeilenhöhe = 1.2;
constexpr double Zellenrand = 0.5; // above and below a row, with its rule
constexpr double Spaltenrand = 0.6;
constexpr double Titelhöhe = 5;
constexpr double Fett = 1.1;
constexpr double Kopfanteil = 0.75; // in bold, the longest part of one that breaks
constexpr double Trenner = 0.55;    // ", " between two pieces

constexpr double MeisteLuft = 0.8; // of a row
constexpr double Spielraum = 0.03; // of the sheet, since all this is estimated

constexpr double Kleinste = 5;
constexpr double Größte = 11;
constexpr double Stufe = 0.25;
constexpr double AufMehreren = 7;

using Breiten = std::span<const double>;

/// The widths of all pieces, row by row and column by column, and how many each cell has.
struct Gemessen {
    std::vector<double> Stücke;
    std::vector<std::size_t> Zahlen;
    std::vector<double> Mindestens; // of each column: its widest piece
    std::vector<double> Gern;       // its widest cell on one line
};

double Ganz(Breiten stücke)
{
    return std::accumulate(stücke.begin(), stücke.end(), 0.0) +
           Trenner * static_cast<double>(std::max<std::size_t>(stücke.size(), 1) - 1);
}

Gemessen Messen(const Blatttafel &tafel)
{
    Gemessen gemessen;
    gemessen.Zahlen.reserve(tafel.Zeilen.size() * tafel.Köpfe.size());
    std::size_t stücke = 0;
    for (const auto &zeile : tafel.Zeilen)
        for (const Stücke &zelle : zeile)
            stücke += zelle.size();
    gemessen.Stücke.reserve(stücke);
    for (const Text &kopf : tafel.Köpfe)
        gemessen.Mindestens.push_back(Textbreite(kopf) * Kopfanteil);
    gemessen.Gern = gemessen.Mindestens;
    for (const auto &zeile : tafel.Zeilen)
        for (std::size_t k = 0; k < zeile.size(); ++k) {
            for (const std::string_view stück : zeile[k])
                gemessen.Stücke.push_back(Textbreite(stück) * (k < tafel.Fette ? Fett : 1));
            const Breiten zelle = Breiten(gemessen.Stücke).last(zeile[k].size());
            for (const double breite : zelle)
                gemessen.Mindestens[k] = std::max(gemessen.Mindestens[k], breite);
            gemessen.Gern[k] = std::max(gemessen.Gern[k], Ganz(zelle));
            gemessen.Zahlen.push_back(zelle.size());
        }
    return gemessen;
}

int ZeilenIn(Breiten stücke, double breite)
{
    int zeilen = 1;
    double rest = breite;
    for (const double stück : stücke) {
        if (stück > rest && rest < breite) {
            ++zeilen;
            rest = breite;
        }
        rest -= stück + Trenner;
    }
    return zeilen;
}

/// The columns of a sheet so many sizes wide; none if the widest pieces do not fit beside each
/// other.
std::optional<std::vector<double>> Spalten(const Gemessen &gemessen, double breite)
{
    std::vector<double> spalten = gemessen.Mindestens;
    const double summe = std::accumulate(spalten.begin(), spalten.end(), 0.0);
    const double frei = breite - summe - Spaltenrand * static_cast<double>(spalten.size());
    if (frei < 0)
        return std::nullopt;
    const double wünsche = std::accumulate(gemessen.Gern.begin(), gemessen.Gern.end(), 0.0) - summe;
    for (std::size_t k = 0; k < spalten.size(); ++k) {
        const double wunsch = gemessen.Gern[k] - gemessen.Mindestens[k];
        spalten[k] += wünsche > frei ? frei * wunsch / wünsche : wunsch;
    }
    return spalten;
}

double Höhe(const Gemessen &gemessen, const std::vector<double> &spalten)
{
    double höhe = Titelhöhe + 2 * Zeilenhöhe + Zellenrand;
    const double *stück = gemessen.Stücke.data();
    for (auto zahl = gemessen.Zahlen.begin(); zahl != gemessen.Zahlen.end();) {
        int zeilen = 1;
        for (const double spalte : spalten) {
            zeilen = std::max(zeilen, ZeilenIn({stück, *zahl}, spalte));
            stück += *zahl++;
        }
        höhe += zeilen * Zeilenhöhe + Zellenrand;
    }
    return höhe;
}

struct Versuch {
    std::vector<double> Spalten;
    double Seiten = 0; // how many sheets the table fills
};

Versuch Versuchen(const Gemessen &gemessen, double punkt, bool quer)
{
    const double größe = punkt * MillimeterJePunkt;
    const auto spalten = Spalten(gemessen, (quer ? LangeSeite : KurzeSeite) / größe);
    if (!spalten)
        return {};
    return {*spalten, Höhe(gemessen, *spalten) * größe / (quer ? KurzeSeite : LangeSeite)};
}

/// The largest size that fits, in steps; 0 if none does.
double GrößtePassende(const Gemessen &gemessen, bool quer)
{
    int von = -1; // fits, but for the first
    int bis = static_cast<int>((Größte - Kleinste) / Stufe) + 1;
    while (bis - von > 1) {
        const int mitte = (von + bis) / 2;
        const double seiten = Versuchen(gemessen, Kleinste + mitte * Stufe, quer).Seiten;
        (seiten > 0 && seiten <= 1 ? von : bis) = mitte;
    }
    return von < 0 ? 0 : Kleinste + von * Stufe;
}

/// What is left of the sheet, shared among the rows.
double LuftJeZeile(double seiten, double punkt, bool quer, std::size_t zeilen)
{
    const double höhe = (quer ? KurzeSeite : LangeSeite) / (punkt * MillimeterJePunkt);
    const double rest = (1 - Spielraum - seiten) * höhe;
    return std::clamp(rest / static_cast<double>(zeilen + 1), 0.0, MeisteLuft);
}

/// As parts of the whole, for a table as wide as the sheet.
std::vector<double> Prozente(std::vector<double> spalten)
{
    for (double &spalte : spalten)
        spalte += Spaltenrand;
    const double summe = std::accumulate(spalten.begin(), spalten.end(), 0.0);
    for (double &spalte : spalten)
        spalte *= 100 / summe;
    return spalten;
}

} // namespace

double Textbreite(std::string_view text)
{
    static constexpr std::array<int, 256> Hundertstel = [] {
        std::array<int, 256> breiten{};
        for (std::size_t zeichen = 0; zeichen < breiten.size(); ++zeichen)
            if ((zeichen & 0xC0) != 0x80) // not the rest of a letter
                breiten[zeichen] = 57;
        for (std::size_t groß = 'A'; groß <= 'Z'; ++groß)
            breiten[groß] = 70;
        for (const char schmal : std::string_view("ijltfrI.,;:'()[]/ -!|"))
            breiten[static_cast<unsigned char>(schmal)] = 32;
        for (const char breit : std::string_view("mwMWGOQ@%"))
            breiten[static_cast<unsigned char>(breit)] = 84;
        return breiten;
    }();
    int breite = 0;
    for (const char zeichen : text)
        breite += Hundertstel[static_cast<unsigned char>(zeichen)];
    return breite / 100.0;
}

Blattmaß BlattmaßFür(const Blatttafel &tafel)
{
    const Gemessen gemessen = Messen(tafel);
    const double hoch = GrößtePassende(gemessen, false);
    const double quer = GrößtePassende(gemessen, true);
    Blattmaß maß{
        .Quer = quer > hoch, .Punkt = std::max(hoch, quer), .Breiten = {}, .Luft = 0, .Seiten = 1};
    if (maß.Punkt == 0) {
        maß.Quer = true;
        maß.Punkt = AufMehreren;
    }
    const Versuch versuch = Versuchen(gemessen, maß.Punkt, maß.Quer);
    maß.Breiten = Prozente(versuch.Spalten.empty() ? gemessen.Mindestens : versuch.Spalten);
    maß.Luft = LuftJeZeile(versuch.Seiten, maß.Punkt, maß.Quer, tafel.Zeilen.size());
    maß.Seiten = std::max(1, static_cast<int>(std::ceil(versuch.Seiten)));
    return maß;
}

} // namespace altardienst
