// Where one has been, to go back there and forward again.
#pragma once

#include <utility>
#include <vector>

namespace altardienst {

/// Begins at its first place; from then on there is always one that is shown.
template <class Ort> class Verlauf {
  public:
    /// A step to another place: what lay ahead is forgotten.
    void Gehen(Ort ort)
    {
        if (!orte.empty())
            orte.resize(jetzt + 1);
        orte.push_back(std::move(ort));
        jetzt = orte.size() - 1;
    }

    bool IstLeer() const { return orte.empty(); }
    bool KannZurück() const { return jetzt > 0; }
    bool KannVor() const { return jetzt + 1 < orte.size(); }

    void Zurück()
    {
        if (KannZurück())
            --jetzt;
    }

    void Vor()
    {
        if (KannVor())
            ++jetzt;
    }

    Ort &Jetzt() { return orte[jetzt]; }
    const Ort &Jetzt() const { return orte[jetzt]; }

  private:
    std::vector<Ort> orte;
    std::size_t jetzt = 0;
};

} // namespace altardienst
