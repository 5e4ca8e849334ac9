// The wall sheet on paper.
#include "exchange/Aushangdruck.h"

#include "core/Umwandlung.h"
#include "platform/Drucker.h"

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

constexpr double Rand = 567; // twips, 10 mm on all sides: the sheet is pinned up, not filed
constexpr double TwipsProPunkt = 20;
constexpr double Titelgröße = 16;
constexpr double Zeitraumgröße = 12;
constexpr double Titelhöhe = 540; // twips

// Twips.
constexpr Single Haarlinie = 6;
constexpr Single Wochenlinie = 24;

Single S(double wert)
{
    return static_cast<Single>(wert);
}

/// One sheet after the other.
class Blattdruck {
  public:
    Blattdruck(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße)
        : tafel(tafel), form(form), maße(maße), platz(Aushangplatz()),
          breiten(BreitenDer(tafel, form, maße)), größe(form.Größe)
    {
        Anpassen();
    }

    void Drucken()
    {
        for (int blatt = 0; blatt < form.Blätter(); ++blatt) {
            if (blatt > 0)
                Drucker->NewPage();
            Titel(blatt);
            for (int block = 0; block < form.Blöcke; ++block)
                Block(blatt * form.Blöcke + block,
                      Rand + block * (blockbreite + Blockabstand * maße.Geviert * größe));
        }
    }

  private:
    /// The widths in twips; what is left of the sheet is shared among the names, and between the
    /// rows up to a limit beyond which they would fall apart.
    void Anpassen()
    {
        for (double *breite : {&breiten.Tag, &breiten.Uhrzeit, &breiten.Art})
            *breite *= größe;
        for (double &breite : breiten.Spalten)
            breite *= größe;
        blockbreite =
            (platz.Breite - (form.Blöcke - 1) * Blockabstand * maße.Geviert * größe) / form.Blöcke;
        double namen = 1; // the kind takes its share too
        for (const int nebeneinander : breiten.Nebeneinander)
            namen += nebeneinander;
        const double mehr = (blockbreite - breiten.Gesamt()) / namen;
        breiten.Art += mehr;
        for (double &breite : breiten.Spalten)
            breite += mehr;

        zeile = maße.Zeile * größe;
        luft = Zeilenluft * maße.Geviert * größe;
        for (std::size_t block = 0; block < form.Anfänge.size(); ++block) {
            double höhe = zeile + luft;
            int reihen = 1;
            for (int i = Von(block); i < Bis(block); ++i, ++reihen)
                höhe += Höhe(i);
            const double frei = (platz.Höhe - höhe) / reihen;
            mehrluft = block == 0 ? frei : std::min(mehrluft, frei);
        }
        mehrluft = std::clamp(mehrluft, 0.0, zeile);
        luft += mehrluft;
        for (std::size_t k = 0; k < breiten.Spalten.size(); ++k) {
            const Aushangspalte &spalte = tafel.Spalten[k];
            const bool passt = maße.Breite(spalte.Kopf, true) * größe + 2 * Rücken() <=
                               breiten.Spalten[k] * breiten.Nebeneinander[k];
            köpfe.push_back(passt ? spalte.Kopf : spalte.Kurzkopf);
        }
    }

    int Von(std::size_t block) const { return form.Anfänge[block]; }
    int Bis(std::size_t block) const
    {
        return block + 1 < form.Anfänge.size() ? form.Anfänge[block + 1]
                                               : static_cast<int>(tafel.Reihen.size());
    }
    const Aushangreihe &Reihe(int i) const { return tafel.Reihen[static_cast<std::size_t>(i)]; }
    double Höhe(int i) const
    {
        return zeile * ZeilenDer(Reihe(i), form, breiten.Nebeneinander, maße) + luft;
    }

    static void Schreiben(double x, double y, const Text &text)
    {
        Drucker->CurrentX(S(x));
        Drucker->CurrentY(S(y));
        Drucker->Print(text);
    }

    static void Waagerecht(double x, double y, double breite, Single stärke)
    {
        Drucker->Line({S(x), S(y), S(x + breite), S(y), stärke});
    }

    /// As large as it fits beside the other part, at most as large as proposed.
    static double TitelTeil(const Text &text, double vorschlag, double platz)
    {
        Drucker->FontSizeFein(S(vorschlag));
        const auto breite = static_cast<double>(Drucker->TextWidth(text));
        if (breite > platz)
            Drucker->FontSizeFein(S(std::max(1.0, std::floor(vorschlag * platz / breite))));
        return static_cast<double>(Drucker->TextWidth(text));
    }

    void Titel(int blatt) const
    {
        Text rechts = tafel.Zeitraum;
        if (form.Blätter() > 1)
            rechts += ", Blatt " + ZahlText(blatt + 1) + " von " + ZahlText(form.Blätter());
        Drucker->FontBold(true);
        TitelTeil(tafel.Titel, Titelgröße, platz.Breite * 0.6);
        Schreiben(Rand, Rand, tafel.Titel);
        Drucker->FontBold(false);
        const double breite = TitelTeil(rechts, Zeitraumgröße, platz.Breite * 0.38);
        // Both stand on one line.
        const double tiefer = (Titelgröße - Zeitraumgröße) * TwipsProPunkt * 0.9;
        Schreiben(Rand + platz.Breite - breite, Rand + tiefer, rechts);
    }

    void Block(int block, double x)
    {
        if (block >= static_cast<int>(form.Anfänge.size()))
            return;
        const auto nr = static_cast<std::size_t>(block);
        const double oben = Rand + Titelhöhe;
        double y = oben;
        Drucker->FontSizeFein(S(größe));
        Kopf(x, y);
        y += zeile + luft;
        for (int i = Von(nr); i < Bis(nr); ++i) {
            const bool neueWoche = i == Von(nr) || Reihe(i).Woche != Reihe(i - 1).Woche;
            Waagerecht(x, y, blockbreite, neueWoche ? Wochenlinie : Haarlinie);
            Zeile(Reihe(i), x, y);
            y += Höhe(i);
        }
        Waagerecht(x, oben, blockbreite, Wochenlinie);
        Waagerecht(x, y, blockbreite, Wochenlinie);
        Senkrechte(x, oben, y);
    }

    void Senkrechte(double x, double oben, double unten) const
    {
        const auto strich = [&](double wo, Single stärke) {
            Drucker->Line({S(wo), S(oben), S(wo), S(unten), stärke});
        };
        strich(x, Haarlinie);
        strich(x + blockbreite, Haarlinie);
        double wo = x + breiten.Tag + breiten.Uhrzeit + breiten.Art;
        for (std::size_t k = 0; k < breiten.Spalten.size(); ++k) {
            strich(wo, Haarlinie);
            wo += breiten.Spalten[k] * breiten.Nebeneinander[k];
        }
    }

    double Rücken() const { return Zellenluft / 2 * maße.Geviert * größe; }

    void Kopf(double x, double y) const
    {
        Drucker->FontBold(true);
        double wo = x + breiten.Tag + breiten.Uhrzeit + breiten.Art + Rücken();
        for (std::size_t k = 0; k < tafel.Spalten.size(); ++k) {
            Schreiben(wo, y + luft / 2, köpfe[k]);
            wo += breiten.Spalten[k] * breiten.Nebeneinander[k];
        }
        Drucker->FontBold(false);
    }

    void Zeile(const Aushangreihe &reihe, double x, double oben) const
    {
        const double y = oben + luft / 2;
        double wo = x + Rücken();
        Drucker->FontBold(true);
        Schreiben(wo, y, reihe.Tag);
        Drucker->FontBold(false);
        wo += breiten.Tag;
        Schreiben(wo, y, reihe.Uhrzeit);
        wo += breiten.Uhrzeit;
        double artY = y;
        for (const Text &teil : Artzeilen(reihe.Art, form.ArtGeteilt, maße)) {
            Schreiben(wo, artY, teil);
            artY += zeile;
        }
        wo += breiten.Art;
        for (std::size_t k = 0; k < reihe.Namen.size(); ++k) {
            Namen(reihe.Namen[k], k, wo, y);
            wo += breiten.Spalten[k] * breiten.Nebeneinander[k];
        }
    }

    /// A free place gets a line to write on.
    void Namen(const std::vector<Text> &namen, std::size_t k, double x, double y) const
    {
        const auto nebeneinander = static_cast<std::size_t>(breiten.Nebeneinander[k]);
        for (std::size_t n = 0; n < namen.size(); ++n) {
            const std::size_t tiefe = n / nebeneinander;
            const double wo = x + breiten.Spalten[k] * static_cast<double>(n % nebeneinander);
            const double höhe = y + zeile * static_cast<double>(tiefe);
            if (namen[n].empty())
                Waagerecht(wo, höhe + zeile * 0.85, breiten.Spalten[k] - 2 * Rücken(), Haarlinie);
            else
                Schreiben(wo, höhe, namen[n]);
        }
    }

    const Aushangtafel &tafel;
    const Satzform &form;
    const Satzmaße &maße;
    Satzplatz platz;
    Satzbreiten breiten; // twips, once adapted
    std::vector<Text> köpfe;
    double größe;
    double blockbreite = 0;
    double zeile = 0;
    double luft = 0;
    double mehrluft = 0;
};

} // namespace

Satzplatz Aushangplatz()
{
    return {static_cast<double>(Drucker->Width()) - 2 * Rand,
            static_cast<double>(Drucker->Height()) - 2 * Rand - Titelhöhe};
}

void AushangZeichnen(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße)
{
    Blattdruck(tafel, form, maße).Drucken();
}

} // namespace altardienst
