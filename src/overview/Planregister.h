// Who stands where in the plan: records in place of names, and the services of each person in the
// order of time.
#pragma once

#include "overview/Namensregister.h"
#include "overview/Platz.h"

#include <array>
#include <cstdint>
#include <vector>

namespace altardienst {

/// A place as one number, so that the chains are short lists of numbers: masses in the order of the
/// table, in each its slots and then its helpers' places.
using Stelle = int;

class Planregister {
  public:
    static constexpr Stelle Keine = -1;

    explicit Planregister(const Plantabellen &tabellen) : tabellen(tabellen) {}
    Planregister(const Planregister &) = delete;
    Planregister &operator=(const Planregister &) = delete;

    /// Reads the plan.
    void Neu();

    /// Reads the names of one mass again and appends to `berührt` all masses that this can have
    /// changed something for. Returns false if more than names has changed: then `Neu` is needed.
    bool Nachlesen(int messe, std::vector<int> &berührt);

    int Messenzahl() const { return static_cast<int>(merkmale.size()); }
    /// The masses in the order of date, time and table.
    const std::vector<int> &Folge() const { return folge; }

    /// Records of servers as they are, those of helpers after them, or what `Namensregister` says
    /// of names without a record. Free for a place that the mass does not want.
    int Wer(Stelle stelle) const { return wer[Nr(stelle)]; }
    Datum Tag(int messe) const { return tage[Nr(messe)]; }
    /// The same person's services.
    Stelle Davor(Stelle stelle) const { return davor[Nr(stelle)]; }
    Stelle Letzte(int person) const { return letzte[Nr(person)]; }

    /// Whether other records of servers, or of helpers, have the same name: then none of them is
    /// known to stand anywhere.
    bool IstNamensgleich(int person) const;

    /// The record of a server's wish partner, or why there is none.
    int Partner(int diener) const { return partner[Nr(diener)]; }
    /// How often a server stands beside his wish partner as the partner way counts it, and where
    /// he does so last.
    int Paare(int diener) const { return paare[Nr(diener)]; }
    Stelle LetztesPaar(int diener) const { return letztesPaar[Nr(diener)]; }

    static constexpr int ErsterHelfer = MeßdienerTabelle::HöchsterIndex + 1;
    static constexpr int Personen = ErsterHelfer + HelferTabelle::HöchsterIndex + 1;

    static constexpr int JeMesse =
        MesseTabelle::HöchsterSlot + static_cast<int>(Helferplätze.size());
    static constexpr Stelle StelleVon(Planplatz platz)
    {
        return platz.Messe * JeMesse + (platz.Was == Planplatz::Art::Diener
                                            ? platz.Nr - 1
                                            : MesseTabelle::HöchsterSlot + platz.Nr);
    }
    static constexpr Planplatz PlatzVon(Stelle stelle)
    {
        const int nr = stelle % JeMesse;
        return nr < MesseTabelle::HöchsterSlot
                   ? Dienerplatznr(stelle / JeMesse, nr + 1)
                   : Helferplatznr(stelle / JeMesse, nr - MesseTabelle::HöchsterSlot);
    }
    static constexpr int MesseVon(Stelle stelle) { return stelle / JeMesse; }

  private:
    /// What the order of the places depends on besides names.
    struct Merkmale {
        Datum Tag;
        Datum Uhrzeit;
        int Dienerplätze;
        Int16 Dienerzahl; // which need not be a number of places
        std::array<int, Helferarten.size()> Helfer;

        friend bool operator==(const Merkmale &, const Merkmale &) = default;
    };

    static constexpr std::size_t Nr(int stelle) { return static_cast<std::size_t>(stelle); }

    Merkmale MerkmaleVon(int messe) const;
    void FolgeBestimmen();
    void WünscheLesen();
    template <class F> void FürJedenGewünschten(int messe, F f) const;
    template <class F> void FürJedesPaar(int messe, F f) const;
    bool StehtDerGewünschteNach(int messe, int slot) const;
    bool IstSpäter(Stelle a, Stelle b) const;
    void Anhängen(Stelle stelle, int person);
    void Lösen(Stelle stelle, std::vector<int> &berührt);
    void Einfügen(Stelle stelle, int person, std::vector<int> &berührt);
    Stelle &Anschluss(Stelle stelle, int person, std::vector<int> &berührt);
    Stelle LetztesPaarSuchen(int diener) const;

    const Plantabellen &tabellen;
    Namensregister diener;
    Namensregister helfer;
    std::vector<Merkmale> merkmale;
    std::vector<Datum> tage; // again, close together
    std::vector<int> folge;
    std::vector<int> rang; // of a mass in `folge`
    std::vector<std::int16_t> wer;
    std::vector<std::uint8_t> imPaar;
    std::vector<Stelle> davor;
    std::array<Stelle, Personen> letzte{};
    std::array<int, ErsterHelfer> partner{};
    std::array<int, ErsterHelfer> paare{};
    std::array<Stelle, ErsterHelfer> letztesPaar{};
};

} // namespace altardienst
