// One person of a table of services on the screen, with a number box to choose the person.
#pragma once

#include "controls/Datensatzwahl.h"
#include "core/Umwandlung.h"
#include "statistics/Dienstzählung.h"

#include <QLabel>
#include <QWidget>

#include <functional>
#include <vector>

namespace altardienst {

/// What is shown about a person: names, counts, their sum.
template <std::size_t arten> std::vector<Text> TexteDer(const Dienstzeile<arten> &zeile)
{
    std::vector<Text> texte = {zeile.Vorname, zeile.Nachname};
    for (const int anzahl : zeile.Dienste)
        texte.push_back(ZahlText(anzahl));
    texte.push_back(ZahlText(zeile.Insgesamt()));
    return texte;
}

struct Dienstblattnamen {
    const char *Nummer; // of the number box
    struct Feld {
        const char *Name;
        const char *Text;
    };
    std::vector<Feld> Felder; // what is shown about a person
};

/// The fields of a person's services, with their names on the screen: both names, a count for each
/// kind, the sum.
template <class Art, std::size_t n>
std::vector<Dienstblattnamen::Feld> Dienstfelder(const std::array<Art, n> &arten,
                                                 const std::array<const char *, n + 3> &namen)
{
    std::vector<Dienstblattnamen::Feld> felder = {{namen[0], "Vorname"}, {namen[1], "Nachname"}};
    for (std::size_t k = 0; k < n; ++k)
        felder.push_back({namen[2 + k], arten[k].Name.c_str()});
    felder.push_back({namen[2 + n], "Insgesamt"});
    return felder;
}

/// Starts with person number 0; a number of `anzahl` or more falls back to 0.
class Dienstblatt : public QWidget {
  public:
    /// `zeile` gives the texts of the fields of a person.
    Dienstblatt(const Dienstblattnamen &namen, int anzahl,
                std::function<std::vector<Text>(int)> zeile);

    Datensatzwahl *Wahl; // the number box, PLUS, MINUS
    std::vector<QLabel *> Felder;

  private:
    void NummerGeändert();
    void Schritt(int richtung);

    int anzahl;
    std::function<std::vector<Text>(int)> zeile;
};

} // namespace altardienst
