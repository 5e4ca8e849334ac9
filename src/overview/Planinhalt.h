// What the grid of the plan shows, ready to be drawn: rows of masses, columns of places.
#pragma once

#include "overview/Abdruck.h"
#include "overview/Kurznamen.h"
#include "overview/Namenspaare.h"
#include "overview/Prüfliste.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace altardienst {

struct Planzelle {
    QString Name;                 // shortened; empty: nobody
    QString Dienst;               // the service as a short word; empty: none of its own
    int Person = -1;              // the same number for the same name; -1: nobody
    bool Gewollt = false;         // the mass has this place
    std::optional<Stufe> Zeichen; // of the gravest finding

    bool operator==(const Planzelle &) const = default;
};

struct Planspalte {
    Planplatz::Art Was;
    int Nr;

    bool operator==(const Planspalte &) const = default;
};

struct Planreihe {
    /// The first columns say which mass it is; then come the places.
    enum Kopfspalte { Zeichenspalte, Tag, Datumspalte, Uhrzeit, Art, Fest, Kopfspalten };

    std::array<QString, Kopfspalten> Kopf;
    std::vector<Planzelle> Zellen;       // one for each column of places
    std::optional<Stufe> Gravierendstes; // of all findings of the mass
    int Woche = 0;                       // the same number in the same week

    bool operator==(const Planreihe &) const = default;
};

struct Planbild {
    std::vector<Planspalte> Spalten;
    std::vector<Planreihe> Reihen;
};

/// Cells are made once for each change of their mass, so that drawing and scrolling only show what
/// is ready.
class Planinhalt {
  public:
    /// What is to be shown by now, if the tables have changed since the last time. Rows that are
    /// the same are taken over from `altes`, and only what can be affected is checked again.
    std::optional<Planbild> Neues(const Planbild &altes);

    /// Only findings of these rules have signs; the same rows with others.
    Planbild Beachten(const Regelwahl &welche, Planbild bild);

    const Planprüfung &Prüfung() const { return prüfung; }
    const Regelwahl &Regeln() const { return regeln; }

    struct Name {
        Text Vor;
        Text Nach;
    };
    const Name &NameVon(int person) const;
    /// The number of a name that stands in the plan or stood there, otherwise -1.
    int PersonVon(const Text &vorname, const Text &nachname) const;

  private:
    struct Person {
        Name Ganz;
        QString Kurz;
    };

    std::vector<Planreihe> Reihen(const Planabdruck &neuer, const Planbild &altes,
                                  const std::vector<Planspalte> &spalten);
    Planreihe ReiheBauen(int messe, const std::vector<Planspalte> &spalten);
    Planzelle ZelleBauen(const Planplatz &platz);
    void ZeichenSetzen(Planreihe &reihe, int messe, const std::vector<Planspalte> &spalten) const;
    int Personennummer(const Text &vorname, const Text &nachname);
    void NamenLesen();
    bool KenntAlleNamen(int messe, const std::vector<Planspalte> &spalten) const;

    Planprüfung prüfung;
    Regelwahl regeln = AlleRegeln;
    Kurznamen namen;
    std::optional<Planabdruck> abdruck; // of what was shown last
    std::vector<Person> personen;
    Namenspaare<int> nummern; // of the persons
};

} // namespace altardienst
