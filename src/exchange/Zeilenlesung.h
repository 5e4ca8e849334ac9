// What one row of a table says of each of our columns.
#pragma once

#include "exchange/Einlesen.h"
#include "people/Personen.h"

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace altardienst {

class Zeilenlesung {
  public:
    explicit Zeilenlesung(const Einleseauftrag &auftrag);

    /// As it stands in a row, also if it cannot be taken.
    Personenname NameIn(const std::vector<Text> &felder) const;

    /// Of the row alone; returns why fields of it cannot be taken.
    std::vector<Text> Lesen(const std::vector<Text> &felder);

    /// What was read, by column.
    const std::map<int, Text> &Werte() const { return werte; }
    Text Wert(int spalte) const; // empty if the row has none
    bool IstLeer(int spalte) const { return leere.contains(spalte); }

    /// What would change in a record, or make up that of somebody new (-1).
    std::vector<Feldänderung> Änderungen(int datensatz) const;

    /// Why a value that can be read is a doubt all the same where it changes something.
    struct Bedenken {
        Text Satz;
        bool Schreiben; // if the row is taken
    };
    const Bedenken *Gegen(int spalte) const; // nullptr: nothing

  private:
    void Verteilen(const std::vector<Text> &felder,
                   const std::function<void(int spalte, const Text &feld)> &nimm) const;
    Text FeldLesen(int spalte, const Text &feld);

    const Einleseauftrag &auftrag;
    int größe;
    int gruppe; // helpers have none
    std::map<int, Text> werte;
    std::set<int> leere; // whose field is empty
    std::map<int, Bedenken> bedenken;
};

} // namespace altardienst
