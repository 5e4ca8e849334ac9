// What there is to balance: the places of a plan and who may stand there, as numbers.
#pragma once

#include "overview/Platz.h"

#include <cstdint>
#include <vector>

namespace altardienst {

/// The services of servers or those of helpers; no rule connects the two.
struct Besetzungsaufgabe {
    // Who stands in a place: the record of a person, or one of these.
    static constexpr int Niemand = -1;
    static constexpr int Fremd = -2; // a name without a record, with several, or of a group

    struct Termin {
        int Satz; // of the mass in its table
        Datum Tag;
        int Von;               // its places
        int Bis;               // not included
        std::vector<char> Weg; // servers, by record: 1 whoever is absent
    };
    struct Platz {
        Planplatz Wo;
        int Termin;  // in `Termine`
        int Dienst;  // index in `Dienstarten` or `Helferarten`
        int Kreis;   // in `Kreise`: who may stand there
        bool Frei;   // to be filled; others stay as they are
        int Anfangs; // who stands there
    };
    /// Those whom no rule keeps from a place, whoever else stands in the plan.
    struct Personenkreis {
        std::vector<int> Personen; // in the order of the table
        std::vector<char> Kann;    // by record: 1 whoever is in the circle
        std::vector<char> Nennt;   // by record: 1 whoever is there for this service

        friend bool operator==(const Personenkreis &, const Personenkreis &) = default;
    };
    struct Person {
        double Gewicht = 1;    // services for one of somebody with normal frequency
        double Bisher = 0;     // services in the time before the plan
        int Partner = Niemand; // record of the wish partner
        int Höchstens = 0;     // services that the days between them allow
        bool Kann = false;     // serve in some place of the plan
        std::int64_t Soll = 0; // due share of the places, in thousandths
    };

    Plantabellen Tabellen; // their services are those that follow from the counts of a mass
    Planplatz::Art Art;
    std::vector<Termin> Termine; // in the order of time
    std::vector<Platz> Plätze;   // in the order of the masses
    std::vector<Personenkreis> Kreise;
    std::vector<Person> Personen;             // by record
    std::vector<std::vector<char>> Paarweise; // servers, by record: 1 where two may form a pair
    bool GrößeZählt = false; // whether a server could be too tall or too small for his mass

    bool FürDiener() const { return Art == Planplatz::Art::Diener; }
    const Platz &PlatzNr(int platz) const { return Plätze[static_cast<std::size_t>(platz)]; }
    const Personenkreis &KreisVon(int platz) const
    {
        return Kreise[static_cast<std::size_t>(PlatzNr(platz).Kreis)];
    }
    /// Whether one of two persons wishes the other.
    bool SindWunschpartner(int a, int b) const
    {
        return Personen[static_cast<std::size_t>(a)].Partner == b ||
               Personen[static_cast<std::size_t>(b)].Partner == a;
    }
    bool Kann(int platz, int person) const
    {
        return person < 0 || KreisVon(platz).Kann[static_cast<std::size_t>(person)] != 0;
    }
};

/// Reads the tables. Masses before `abTag`, fixed entries and services set by hand stay as they
/// are. `bisher` holds services by record and may be empty.
Besetzungsaufgabe AufgabeLesen(const Plantabellen &tabellen, Planplatz::Art art, Datum abTag,
                               const std::vector<double> &bisher);

/// Sets the due shares: all places that somebody fills or could fill, divided over those who could
/// serve there, so that the services come out as even as can be, weighted by frequency and counted
/// with those of the time before. Fractions of places are shared.
void AnteileRechnen(Besetzungsaufgabe &aufgabe);

} // namespace altardienst
