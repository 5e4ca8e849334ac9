// Something for each name, found by first name and surname.
#pragma once

#include "overview/Namenszahlen.h"
#include "values/Text.h"

#include <bit>
#include <cstddef>
#include <deque>
#include <utility>
#include <vector>

namespace altardienst {

/// Looked up for each place of a plan, many thousand times for a few hundred names. What is entered
/// stays where it is until the object is emptied.
template <class Wert> class Namenspaare {
  public:
    Namenspaare() = default;
    Namenspaare(const Namenspaare &) = delete; // the compartments point to the entries
    Namenspaare &operator=(const Namenspaare &) = delete;

    void Leeren()
    {
        einträge.clear();
        fächer.clear();
    }

    /// nullptr for a name that is not entered.
    const Wert *Finden(const Text &vorname, const Text &nachname) const
    {
        if (fächer.empty())
            return nullptr;
        const Eintrag *eintrag = fächer[Fach({vorname, nachname}, vorname, nachname)];
        return eintrag ? &eintrag->Inhalt : nullptr;
    }

    /// What is entered for a name, and whether it was new and is therefore empty.
    std::pair<Wert &, bool> Eintragen(const Text &vorname, const Text &nachname)
    {
        const Namenszahlen zahlen(vorname, nachname);
        if (!fächer.empty())
            if (Eintrag *eintrag = fächer[Fach(zahlen, vorname, nachname)])
                return {eintrag->Inhalt, false};
        if (fächer.size() < 2 * (einträge.size() + 1))
            Wachsen();
        Eintrag *&fach = fächer[Fach(zahlen, vorname, nachname)];
        fach = &einträge.emplace_back(Eintrag{zahlen, vorname, nachname, {}});
        return {fach->Inhalt, true};
    }

  private:
    /// The numbers lie in one cache line.
    struct alignas(64) Eintrag {
        Namenszahlen Zahlen;
        Text Vorname;
        Text Nachname;
        Wert Inhalt;
    };

    static constexpr std::size_t Anfangsfächer = 1024;

    std::size_t FachFür(const Namenszahlen &zahlen) const
    {
        return zahlen.Prüfzahl() >> (64 - std::bit_width(fächer.size() - 1));
    }

    /// The compartment of a name, or the empty one where it belongs.
    std::size_t Fach(const Namenszahlen &zahlen, const Text &vorname, const Text &nachname) const
    {
        std::size_t fach = FachFür(zahlen);
        while (fächer[fach] && !(fächer[fach]->Zahlen == zahlen &&
                                 (zahlen.SagtAlles() || (fächer[fach]->Nachname == nachname &&
                                                         fächer[fach]->Vorname == vorname))))
            fach = (fach + 1) % fächer.size();
        return fach;
    }

    /// Twice as many compartments, at least twice as many as names.
    void Wachsen()
    {
        fächer.assign(fächer.empty() ? Anfangsfächer : 2 * fächer.size(), nullptr);
        for (Eintrag &eintrag : einträge)
            fächer[Fach(eintrag.Zahlen, eintrag.Vorname, eintrag.Nachname)] = &eintrag;
    }

    std::deque<Eintrag> einträge;
    std::vector<Eintrag *> fächer; // a power of two; nullptr is empty
};

} // namespace altardienst
