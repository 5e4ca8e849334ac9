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
        const Eintrag *eintrag = fächer[Ort({vorname, nachname}, vorname, nachname)].Inhalt;
        return eintrag ? &eintrag->Inhalt : nullptr;
    }

    /// What is entered for a name, and whether it was new and is therefore empty.
    std::pair<Wert &, bool> Eintragen(const Text &vorname, const Text &nachname)
    {
        const Namenszahlen zahlen(vorname, nachname);
        if (!fächer.empty())
            if (Eintrag *eintrag = fächer[Ort(zahlen, vorname, nachname)].Inhalt)
                return {eintrag->Inhalt, false};
        if (fächer.size() < 2 * (einträge.size() + 1))
            Wachsen();
        Eintrag &neuer = einträge.emplace_back(Eintrag{vorname, nachname, {}});
        fächer[Ort(zahlen, vorname, nachname)] = {zahlen, &neuer};
        return {neuer.Inhalt, true};
    }

  private:
    struct Eintrag {
        Text Vorname;
        Text Nachname;
        Wert Inhalt;
    };
    /// As long as a cache line: whoever looks for a name reads one, as a rule.
    struct alignas(64) Fach {
        Namenszahlen Zahlen;
        Eintrag *Inhalt = nullptr; // null: the compartment is empty
    };

    static constexpr std::size_t Anfangsfächer = 1024;

    /// The compartment of a name, or the empty one where it belongs.
    std::size_t Ort(const Namenszahlen &zahlen, const Text &vorname, const Text &nachname) const
    {
        std::size_t ort = zahlen.Prüfzahl() >> (64 - std::bit_width(fächer.size() - 1));
        while (fächer[ort].Inhalt &&
               !(fächer[ort].Zahlen == zahlen &&
                 (zahlen.SagtAlles() || (fächer[ort].Inhalt->Nachname == nachname &&
                                         fächer[ort].Inhalt->Vorname == vorname))))
            ort = (ort + 1) % fächer.size();
        return ort;
    }

    /// Twice as many compartments, at least twice as many as names.
    void Wachsen()
    {
        fächer.assign(fächer.empty() ? Anfangsfächer : 2 * fächer.size(), {});
        for (Eintrag &eintrag : einträge) {
            const Namenszahlen zahlen(eintrag.Vorname, eintrag.Nachname);
            fächer[Ort(zahlen, eintrag.Vorname, eintrag.Nachname)] = {zahlen, &eintrag};
        }
    }

    std::deque<Eintrag> einträge;
    std::vector<Fach> fächer; // a power of two
};

} // namespace altardienst
