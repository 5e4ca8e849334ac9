// "Plan ausgleichen" aside from the window's thread, on copies of the tables.
#pragma once

#include "fairness/Ausgleich.h"
#include "history/Tabellenstand.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace altardienst {

class Ausgleichslauf {
  public:
    /// Copies the tables and begins. `Abbruch` and `Fortschritt` of the order are not looked at.
    explicit Ausgleichslauf(const Ausgleichsauftrag &auftrag);
    /// Ends the search and waits for that, a few milliseconds.
    ~Ausgleichslauf();
    Ausgleichslauf(const Ausgleichslauf &) = delete;
    Ausgleichslauf &operator=(const Ausgleichslauf &) = delete;

    struct Zwischenstand {
        Ausgleichszahlen Diener, Helfer;
        bool HatDiener = false; // the search has got so far
        bool HatHelfer = false;
    };
    /// The figures of the best plan so far.
    Zwischenstand Stand() const;

    /// The best plan so far is the result then.
    void Anhalten() { anhalten = true; }
    bool IstFertig() const { return fertig; }

    /// Once, when it has ended. Whatever has failed in the search fails here.
    Ausgleichsergebnis Ergebnis();

    /// The tables as they were at the beginning.
    const Tabellenstand &Tabellen() const { return tabellen; }

  private:
    void Laufen();

    Tabellenstand tabellen;
    Ausgleichsauftrag auftrag;
    mutable std::mutex schloß;
    Zwischenstand stand;
    Ausgleichsergebnis ergebnis;
    std::exception_ptr fehler;
    std::atomic<bool> anhalten{false};
    std::atomic<bool> fertig{false};
    std::thread faden;
};

} // namespace altardienst
