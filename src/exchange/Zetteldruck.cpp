// The slips on paper.
#include "exchange/Zetteldruck.h"

#include "printing/Druckrahmen.h"

#include <algorithm>

namespace altardienst {
namespace {

// Twips.
constexpr double Rand = 567;  // 10 mm on all sides, whatever the margins of other reports
constexpr double Luft = 170;  // 3 mm between a cut and what is printed
constexpr double Absatz = 50; // between the head of a slip and its services
constexpr Single Schnitt = 6; // the width of the lines to cut along
constexpr int Spalten = 2;
constexpr double Einzug = 170; // of a line that goes on

Single S(double wert)
{
    return static_cast<Single>(wert);
}

double BreiteVon(const Text &text)
{
    return static_cast<double>(Drucker->TextWidth(text));
}

/// A line of a slip: its parts, each at its place.
struct Zettelzeilensatz {
    struct Teil {
        double X;
        Text Inhalt;
    };
    enum Art { Name, Kopf, Dienst } Schrift = Dienst;
    std::vector<Teil> Teile;
};

class Zettelbogen {
  public:
    explicit Zettelbogen(const Text &kopfzeile)
        : kopfzeile(kopfzeile), größe(std::clamp<int>(Konfig.Schriftgröße, 8, 14)),
          spaltenbreite((static_cast<double>(Drucker->Width()) - 2 * Rand) / Spalten),
          unten(static_cast<double>(Drucker->Height()) - Rand)
    {
    }

    void Drucken(const std::vector<Dienstzettel> &zettel)
    {
        SpaltenMessen(zettel);
        for (const Dienstzettel &einer : zettel)
            Setzen(einer);
        SenkrechtSchneiden();
    }

  private:
    void Schrift(Zettelzeilensatz::Art art) const
    {
        Drucker->FontSize(art == Zettelzeilensatz::Name   ? größe + 2
                          : art == Zettelzeilensatz::Kopf ? größe - 2
                                                          : größe);
        Drucker->FontBold(art == Zettelzeilensatz::Name);
    }

    /// Days and times stand below each other on all slips.
    void SpaltenMessen(const std::vector<Dienstzettel> &zettel)
    {
        Schrift(Zettelzeilensatz::Dienst);
        const double abstand = BreiteVon("nn");
        for (const Dienstzettel &einer : zettel)
            for (const Zetteldienst &dienst : einer.Dienste) {
                tagbreite = std::max(tagbreite, BreiteVon(dienst.Termin.Tag) + abstand);
                zeitbreite = std::max(zeitbreite, BreiteVon(dienst.Termin.Uhrzeit) + abstand);
            }
    }

    double Innenbreite() const { return spaltenbreite - 2 * Luft; }

    /// Broken between its words; a word that is wider than the slip goes on after the letters that
    /// fit. The first line begins at `x`, the others at `weiter`.
    void Umbrechen(std::vector<Zettelzeilensatz> &zeilen, Zettelzeilensatz erste, Text rest,
                   double x, double weiter) const
    {
        Schrift(erste.Schrift);
        while (true) {
            const double platz = Innenbreite() - x;
            int zeichen = Länge(rest);
            while (zeichen > 1 && BreiteVon(Links(rest, zeichen)) > platz)
                --zeichen;
            Text zeile = Links(rest, zeichen);
            const std::size_t lücke = zeile.rfind(' ');
            const bool ganz = zeile.size() == rest.size();
            if (!ganz && rest[zeile.size()] != ' ' && lücke != Text::npos && lücke > 0)
                zeile.resize(lücke);
            erste.Teile.push_back({x, zeile});
            zeilen.push_back(erste);
            if (ganz)
                return;
            rest.erase(0, zeile.size());
            rest.erase(0, rest.find_first_not_of(' '));
            if (rest.empty())
                return;
            erste.Teile.clear();
            x = weiter;
        }
    }

    std::vector<Zettelzeilensatz> Kopfzeilen(const Dienstzettel &zettel, bool weiter) const
    {
        std::vector<Zettelzeilensatz> zeilen;
        Umbrechen(zeilen, {Zettelzeilensatz::Name, {}},
                  zettel.Name + (weiter ? " (Fortsetzung)" : ""), 0, Einzug);
        Umbrechen(zeilen, {Zettelzeilensatz::Kopf, {}},
                  kopfzeile + (zettel.Gruppe.empty() ? "" : ", " + zettel.Gruppe), 0, 0);
        return zeilen;
    }

    std::vector<Zettelzeilensatz> Dienstzeilen(const Zetteldienst &dienst) const
    {
        std::vector<Zettelzeilensatz> zeilen;
        Zettelzeilensatz zeile{Zettelzeilensatz::Dienst, {{0, dienst.Termin.Tag}}};
        if (!dienst.Termin.Uhrzeit.empty())
            zeile.Teile.push_back({tagbreite, dienst.Termin.Uhrzeit});
        const Text was =
            dienst.Messeart.empty() ? dienst.Dienst : dienst.Messeart + ": " + dienst.Dienst;
        Umbrechen(zeilen, zeile, was, tagbreite + zeitbreite, tagbreite + zeitbreite);
        return zeilen;
    }

    double HöheVon(const std::vector<Zettelzeilensatz> &zeilen) const
    {
        double höhe = 0;
        for (const Zettelzeilensatz &zeile : zeilen) {
            Schrift(zeile.Schrift);
            höhe += static_cast<double>(Drucker->TextHeight());
        }
        return höhe;
    }

    void Setzen(const Dienstzettel &zettel)
    {
        std::vector<std::vector<Zettelzeilensatz>> dienste;
        dienste.reserve(zettel.Dienste.size() + 1);
        for (const Zetteldienst &dienst : zettel.Dienste)
            dienste.push_back(Dienstzeilen(dienst));
        if (dienste.empty()) {
            dienste.emplace_back();
            Umbrechen(dienste.back(), {Zettelzeilensatz::Dienst, {}}, "kein Dienst in diesem Plan",
                      0, 0);
        }
        std::vector<Zettelzeilensatz> kopf = Kopfzeilen(zettel, false);
        double höhe = 2 * Luft + HöheVon(kopf) + Absatz;
        for (const auto &dienst : dienste)
            höhe += HöheVon(dienst);
        if (y > Rand && y + höhe > unten)
            NächsteSpalte();
        Beginnen(kopf);
        for (const auto &dienst : dienste) {
            if (y + HöheVon(dienst) + Luft > unten) { // longer than a column
                NächsteSpalte();
                Beginnen(Kopfzeilen(zettel, true));
            }
            Ausgeben(dienst);
        }
        y += Luft;
        if (y < unten)
            Drucker->Line(
                {S(LinkeKante()), S(y), S(LinkeKante() + spaltenbreite), S(y), Schnitt, true});
    }

    void Beginnen(const std::vector<Zettelzeilensatz> &kopf)
    {
        y += Luft;
        Ausgeben(kopf);
        y += Absatz;
    }

    void Ausgeben(const std::vector<Zettelzeilensatz> &zeilen)
    {
        for (const Zettelzeilensatz &zeile : zeilen) {
            Schrift(zeile.Schrift);
            for (const Zettelzeilensatz::Teil &teil : zeile.Teile) {
                Drucker->CurrentX(S(LinkeKante() + Luft + teil.X));
                Drucker->CurrentY(S(y));
                Drucker->Print(teil.Inhalt);
            }
            y += static_cast<double>(Drucker->TextHeight());
        }
    }

    double LinkeKante() const { return Rand + spalte * spaltenbreite; }

    void NächsteSpalte()
    {
        y = Rand;
        if (++spalte < Spalten)
            return;
        SenkrechtSchneiden();
        Drucker->NewPage();
        spalte = 0;
    }

    void SenkrechtSchneiden() const
    {
        const double x = Rand + spaltenbreite;
        Drucker->Line({S(x), S(Rand), S(x), S(unten), Schnitt, true});
    }

    const Text &kopfzeile;
    int größe;
    double spaltenbreite;
    double unten;
    double tagbreite = 0;
    double zeitbreite = 0;
    int spalte = 0;
    double y = Rand;
};

} // namespace

void ZettelDrucken(const std::vector<Dienstzettel> &zettel, const Text &kopfzeile)
{
    BerichtDrucken(Druckanfrage::Für("Dienstzettel"), [&](int) {
        Grundschrift();
        if (!zettel.empty())
            Zettelbogen(kopfzeile).Drucken(zettel);
        Drucker->EndDoc();
    });
}

} // namespace altardienst
