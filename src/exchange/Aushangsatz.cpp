// How the table of the wall sheet is set.
#include "exchange/Aushangsatz.h"

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

constexpr int MeisteBlöcke = 6;
constexpr double Stufe = 0.25;      // points, between two sizes that are tried
constexpr double Nennenswert = 0.5; // points, that a less simple form must gain

double Ganze(int zahl, int durch)
{
    return std::ceil(static_cast<double>(zahl) / durch);
}

std::vector<int> NebeneinanderIn(const Aushangtafel &tafel, const Satzform &form)
{
    std::vector<int> zahlen;
    zahlen.reserve(tafel.Spalten.size());
    for (const Aushangspalte &spalte : tafel.Spalten)
        zahlen.push_back(static_cast<int>(std::max(Ganze(spalte.Übliche, form.Untereinander),
                                                   Ganze(spalte.Meiste, form.ImFest))));
    return zahlen;
}

} // namespace

double Satzbreiten::Gesamt() const
{
    double summe = Tag + Uhrzeit + Art;
    for (std::size_t k = 0; k < Spalten.size(); ++k)
        summe += Spalten[k] * Nebeneinander[k];
    return summe;
}

std::vector<Text> Artzeilen(const Text &art, bool geteilt, const Satzmaße &maße)
{
    std::vector<Text> zeilen{art};
    if (!geteilt)
        return zeilen;
    double schmalste = maße.Breite(art, false);
    for (std::size_t lücke = art.find(' '); lücke != Text::npos; lücke = art.find(' ', lücke + 1)) {
        const Text oben = art.substr(0, lücke);
        const Text unten = art.substr(lücke + 1);
        const double breite = std::max(maße.Breite(oben, false), maße.Breite(unten, false));
        if (breite >= schmalste)
            continue;
        schmalste = breite;
        zeilen = {oben, unten};
    }
    return zeilen;
}

Satzbreiten BreitenDer(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße)
{
    constexpr double Freie = 4; // a free place leaves room for a name, in parts of the type size
    const double luft = Zellenluft * maße.Geviert;
    Satzbreiten breiten;
    breiten.Nebeneinander = NebeneinanderIn(tafel, form);
    for (const Aushangspalte &spalte : tafel.Spalten)
        breiten.Spalten.push_back(std::max(Freie * maße.Geviert + luft,
                                           (maße.Breite(spalte.Kurzkopf, true) + luft) /
                                               breiten.Nebeneinander[breiten.Spalten.size()]));
    for (const Aushangreihe &reihe : tafel.Reihen) {
        breiten.Tag = std::max(breiten.Tag, maße.Breite(reihe.Tag, true) + luft);
        breiten.Uhrzeit = std::max(breiten.Uhrzeit, maße.Breite(reihe.Uhrzeit, false) + luft);
        for (const Text &zeile : Artzeilen(reihe.Art, form.ArtGeteilt, maße))
            breiten.Art = std::max(breiten.Art, maße.Breite(zeile, false) + luft);
        for (std::size_t k = 0; k < reihe.Namen.size(); ++k)
            for (const Text &name : reihe.Namen[k])
                breiten.Spalten[k] = std::max(breiten.Spalten[k], maße.Breite(name, false) + luft);
    }
    return breiten;
}

int ZeilenDer(const Aushangreihe &reihe, const Satzform &form,
              const std::vector<int> &nebeneinander, const Satzmaße &maße)
{
    int zeilen = static_cast<int>(Artzeilen(reihe.Art, form.ArtGeteilt, maße).size());
    for (std::size_t k = 0; k < reihe.Namen.size(); ++k)
        if (!reihe.Namen[k].empty())
            zeilen = std::max(
                zeilen,
                static_cast<int>(Ganze(static_cast<int>(reihe.Namen[k].size()), nebeneinander[k])));
    return zeilen;
}

/// A form without its size: how wide a block is and how high its rows are, per point.
struct Satzsuche::Entwurf {
    Satzform Form;
    double Block = 0;
    double Abstand = 0;
    double Kopf = 0;
    std::vector<double> Reihen;

    Entwurf(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße)
        : Form(form), Abstand(Blockabstand * maße.Geviert),
          Kopf(maße.Zeile + Zeilenluft * maße.Geviert)
    {
        const Satzbreiten breiten = BreitenDer(tafel, form, maße);
        Block = breiten.Gesamt();
        Reihen.reserve(tafel.Reihen.size());
        for (const Aushangreihe &reihe : tafel.Reihen)
            Reihen.push_back(maße.Zeile * ZeilenDer(reihe, form, breiten.Nebeneinander, maße) +
                             Zeilenluft * maße.Geviert);
    }

    /// The first rows of the blocks, if each is so high at most; nothing if a row is higher.
    std::optional<std::vector<int>> Teilen(double höhe) const
    {
        std::vector<int> anfänge;
        double rest = 0;
        for (std::size_t i = 0; i < Reihen.size(); ++i) {
            if (Reihen[i] > höhe)
                return std::nullopt;
            if (anfänge.empty() || Reihen[i] > rest) {
                anfänge.push_back(static_cast<int>(i));
                rest = höhe;
            }
            rest -= Reihen[i];
        }
        return anfänge;
    }

    bool Passt(double größe, const Satzplatz &platz, int blätter) const
    {
        if ((Form.Blöcke * Block + (Form.Blöcke - 1) * Abstand) * größe > platz.Breite)
            return false;
        const auto anfänge = Teilen(platz.Höhe / größe - Kopf);
        return anfänge && static_cast<int>(anfänge->size()) <= blätter * Form.Blöcke;
    }

    /// The blocks as equally high as they can be.
    std::vector<int> Ausgewogen(double größe, const Satzplatz &platz, int blätter) const
    {
        double zuNiedrig = 0;
        double genug = platz.Höhe / größe - Kopf;
        for (int schritt = 0; schritt < 30; ++schritt) {
            const double mitte = (zuNiedrig + genug) / 2;
            const auto anfänge = Teilen(mitte);
            const bool passt =
                anfänge && static_cast<int>(anfänge->size()) <= blätter * Form.Blöcke;
            (passt ? genug : zuNiedrig) = mitte;
        }
        return Teilen(genug).value_or(std::vector<int>{});
    }
};

/// In quarters of a point; 0 if not even the smallest type fits.
int Satzsuche::GrößteStufe(const Entwurf &entwurf, const Satzplatz &platz, int blätter,
                           double kleinste)
{
    int passt = static_cast<int>(std::ceil(kleinste / Stufe)) - 1;
    int zuGroß = static_cast<int>(GrößterAushang / Stufe) + 1;
    const int keine = passt;
    while (zuGroß - passt > 1) {
        const int mitte = (passt + zuGroß) / 2;
        (entwurf.Passt(mitte * Stufe, platz, blätter) ? passt : zuGroß) = mitte;
    }
    return passt == keine ? 0 : passt;
}

Satzsuche::Satzsuche(const Aushangtafel &tafel, const Satzmaße &maße)
{
    int meiste = 1;
    for (const Aushangspalte &spalte : tafel.Spalten)
        meiste = std::max(meiste, spalte.Meiste);
    std::vector<int> mengen;
    for (const int menge : {1, 2, 3, 4, 6, 8, 12, MesseTabelle::HöchsterSlot})
        if (mengen.empty() || mengen.back() < meiste)
            mengen.push_back(menge);
    entwürfe.reserve(2 * mengen.size() * mengen.size());
    for (const int untereinander : mengen)
        for (const int imFest : mengen)
            for (const bool geteilt : {false, true})
                if (untereinander <= imFest)
                    entwürfe.emplace_back(tafel,
                                          Satzform{.Untereinander = untereinander,
                                                   .ImFest = imFest,
                                                   .ArtGeteilt = geteilt},
                                          maße);
}

Satzsuche::~Satzsuche() = default;

std::optional<Satzform> Satzsuche::Größter(const Satzplatz &platz, int blätter, double kleinste)
{
    std::optional<Satzform> beste;
    for (int blöcke = 1; blöcke <= MeisteBlöcke; ++blöcke)
        for (Entwurf &entwurf : entwürfe) {
            entwurf.Form.Blöcke = blöcke;
            const double mindestens = beste ? beste->Größe + Nennenswert : kleinste;
            const int stufe = GrößteStufe(entwurf, platz, blätter, mindestens);
            if (stufe == 0)
                continue;
            beste = entwurf.Form;
            beste->Größe = stufe * Stufe;
            beste->Anfänge = entwurf.Ausgewogen(beste->Größe, platz, blätter);
        }
    return beste;
}

} // namespace altardienst
