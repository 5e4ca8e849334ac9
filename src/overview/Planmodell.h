// The plan as rows of masses and columns of places, for the grid.
#pragma once

#include "overview/Abdruck.h"
#include "overview/Kurznamen.h"
#include "overview/Prüfliste.h"

#include <QAbstractTableModel>
#include <QString>

#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

namespace altardienst {

/// What stands in a place, ready to be drawn.
struct Planzelle {
    QString Name;                 // shortened; empty: nobody
    QString Dienst;               // the service as a short word; empty: none of its own
    int Person = -1;              // the same number for the same name; -1: nobody
    bool Gewollt = false;         // the mass has this place
    std::optional<Stufe> Zeichen; // of the gravest finding

    bool operator==(const Planzelle &) const = default;
};

/// Cells are made once for each change of their mass, so that drawing and scrolling only show what
/// is ready.
class Planmodell : public QAbstractTableModel {
  public:
    /// The first columns say which mass it is; then come the places.
    enum Kopfspalte { Zeichenspalte, Tag, Datumspalte, Uhrzeit, Art, Fest, Kopfspalten };

    explicit Planmodell(QObject *eigner);

    /// Shows what the tables hold by now; true if that is something else than before. Rows that are
    /// the same stay untouched, and only what can be affected is checked again.
    bool Nachziehen();

    const Planprüfung &Prüfung() const { return prüfung; }

    /// The place of a cell, or the mass of a cell that says which mass it is.
    Planplatz Ort(const QModelIndex &zelle) const;
    /// The cell of a place; that of the kind for a mass. Invalid if it is not in the grid.
    QModelIndex Stelle(const Planplatz &ort) const;

    const Planzelle &Zelle(int zeile, int spalte) const;
    const QString &Kopf(int zeile, Kopfspalte spalte) const;
    std::optional<Stufe> Gravierendstes(int zeile) const; // of all findings of the mass
    bool BeginntWoche(int zeile) const;                   // and is not the first row
    bool HatFesteEinträge() const { return hatFeste; }
    bool HatDienstwörter() const { return hatDienste; } // any place shows a service

    /// Which rules have signs.
    void Beachten(const Regelwahl &welche);
    const Regelwahl &Beachtete() const { return regeln; }

    /// Hides the masses without any finding.
    void NurAuffälliges(bool nur);
    bool ZeigtNurAuffälliges() const { return nurAuffällige; }

    int Personenzahl() const { return static_cast<int>(personen.size()); }
    const QString &Kurzname(int person) const;
    /// Whose places are marked; -1: nobody's.
    int Markierter() const { return markiert; }
    void Markieren(int person);
    /// The number of a name that stands in the plan, -1 if it does not.
    int PersonVon(const Text &vorname, const Text &nachname) const;
    struct Name {
        Text Vor;
        Text Nach;
    };
    const Name &NameVon(int person) const;

    /// The text of a cell with names in full, as it is copied.
    QString Ganz(const QModelIndex &zelle) const;

    int rowCount(const QModelIndex &über = {}) const override;
    int columnCount(const QModelIndex &über = {}) const override;
    QVariant data(const QModelIndex &zelle, int rolle) const override;
    QVariant headerData(int nr, Qt::Orientation richtung, int rolle) const override;

  private:
    struct Reihe {
        std::array<QString, Kopfspalten> Kopf;
        std::vector<Planzelle> Zellen;
        std::optional<Stufe> Gravierendstes;
        int Woche = 0;

        bool operator==(const Reihe &) const = default;
    };
    struct Person {
        Name Ganz;
        QString Kurz;
    };
    struct Spalte {
        Planplatz::Art Was;
        int Nr;

        bool operator==(const Spalte &) const = default;
    };

    static std::vector<Spalte> NötigeSpalten();
    Reihe ReiheBauen(int messe);
    Planzelle ZelleBauen(const Planplatz &platz);
    void ZeichenSetzen(Reihe &reihe, int messe) const;
    int Personennummer(const Text &vorname, const Text &nachname);
    void NamenLesen();
    bool KenntAlleNamen(int messe) const;
    std::vector<Reihe> NeueReihen(const Planabdruck &neuer);
    void Übernehmen(std::vector<Reihe> neue, std::vector<Spalte> neueSpalten);
    void ÄnderungenMelden(const std::vector<Reihe> &alte);
    std::vector<int> Sichtbare(const std::vector<Reihe> &von) const;
    const Reihe &ReiheIn(int zeile) const;
    QString Hinweis(const QModelIndex &zelle) const;

    Planprüfung prüfung;
    Kurznamen namen;
    Planabdruck abdruck;
    bool leer = true; // has not read the tables yet
    std::vector<Spalte> spalten;
    std::vector<Reihe> reihen;  // of all masses
    std::vector<int> sichtbare; // the mass of each row
    std::vector<Person> personen;
    std::unordered_map<Text, int> nummern; // of the persons, by both names
    int markiert = -1;
    Regelwahl regeln = AlleRegeln;
    bool nurAuffällige = false;
    bool hatFeste = false;
    bool hatDienste = false;
};

} // namespace altardienst
