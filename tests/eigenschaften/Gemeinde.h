// Random parishes: tables of random size and content from a seed, and a clock that ends endless
// searches.
#pragma once

#include "Prüfstand.h"

#include "core/Plätze.h"

#include <algorithm>
#include <random>

namespace altardienst {

/// Random whole numbers from a seed, the same on every machine.
class Würfel {
  public:
    explicit Würfel(unsigned saat) : generator(saat) {}

    /// From `von` to `bis`, both included.
    int Zahl(int von, int bis)
    {
        return von + static_cast<int>(generator() % static_cast<unsigned>(bis - von + 1));
    }
    bool Prozent(int prozent) { return Zahl(1, 100) <= prozent; }

    Text Flags(int stellen, int prozentJa)
    {
        Text flags;
        for (int k = 0; k < stellen; ++k)
            flags += Prozent(prozentJa) ? 'j' : 'n';
        return flags;
    }

  private:
    std::mt19937 generator;
};

/// What is in every slot before a run; it is nobody's name.
inline const Text Unberührt = "unberührt";

class Gemeindestand : public Prüfstand {
  protected:
    static constexpr int MeisteMessen = 24;
    static constexpr int MeisteSlots = 20;
    static constexpr int FesteZeilen = 4;

    const Datum Beginn = DatumAus({2026, 11, 22});
    int Ablesungen = 0; // of the clock in this run
    bool UhrBewegt = false;

    /// A clock that stands still for this many readings and then advances by one second with each:
    /// a dead end is given up after a few dozen more.
    void UhrStehtFür(int ablesungen)
    {
        Ablesungen = 0;
        UhrBewegt = false;
        Uhr.Sekunden = [this, ablesungen] {
            if (++Ablesungen <= ablesungen)
                return 1000;
            UhrBewegt = true;
            return 1000 + Ablesungen - ablesungen;
        };
    }

    /// A clock that advances by one second every `ablesungen` readings.
    void UhrTickt(int ablesungen)
    {
        Ablesungen = 0;
        UhrBewegt = true;
        Uhr.Sekunden = [this, ablesungen] { return 1000 + ++Ablesungen / ablesungen; };
    }

    /// Refills all tables. There are named servers for more than two full days, so that the simple
    /// ways terminate.
    void GemeindeErwürfeln(unsigned saat)
    {
        Würfel w(saat);
        MessenErwürfeln(w);
        Konfig.DiffGröße = w.Zahl(8, 40);
        Konfig.GrenzeAuslöse = w.Zahl(0, 70);
        Konfig.ManuellKreuzträger = w.Prozent(25);
        Konfig.ManuellWeihrauch = w.Prozent(25);
        MeßdienerErwürfeln(w, 2 * GrößterTagDerGemeinde() + 1 + w.Zahl(0, 30));
        HelferErwürfeln(w);
        FesteErwürfeln(w);
        SlotsZurücksetzen();
        Zufall = ZufallMitSaat(saat + 1);
    }

    /// Puts nobody's name into every slot and every helper's place.
    static void SlotsZurücksetzen()
    {
        for (int i = 0; i <= MeisteMessen + 2; ++i) {
            for (int s = 0; s <= MeisteSlots; ++s)
                Messe.DienerVor[i][s] = Messe.DienerNach[i][s] = Unberührt;
            for (const Helferplatz &platz : Helferplätze)
                (Messe.*platz.Vor)[i] = (Messe.*platz.Nach)[i] = Unberührt;
        }
    }

    /// The most places on one date, grouped by date, not by adjacent masses.
    static int GrößterTagDerGemeinde()
    {
        int größter = 0;
        for (int i = 0; i < Messe.Anzahl; ++i) {
            int summe = 0;
            for (int k = 0; k < Messe.Anzahl; ++k)
                if (Messe.Datum[k] == Messe.Datum[i])
                    summe += Messe.Dienerzahl[k];
            größter = std::max(größter, summe);
        }
        return größter;
    }

  private:
    static void ZeiträumeErwürfeln(
        Würfel &w, int j, Datum beginn,
        std::initializer_list<std::pair<Spalte<Datum, MeßdienerTabelle::HöchsterIndex> *,
                                        Spalte<Datum, MeßdienerTabelle::HöchsterIndex> *>>
            zeiträume)
    {
        for (const auto &[von, bis] : zeiträume) {
            const bool hat = w.Prozent(8);
            (*von)[j] = hat ? beginn + w.Zahl(-5, 30) : 0;
            (*bis)[j] = hat ? (*von)[j] + w.Zahl(-2, 12) : 0;
        }
    }

    void MessenErwürfeln(Würfel &w)
    {
        const int anzahl = w.Zahl(1, MeisteMessen);
        const int tage = w.Zahl(3, 40);
        Messe.Anzahl = anzahl;
        for (int i = 0; i <= MeisteMessen + 2; ++i) {
            const bool leer = i >= anzahl;
            Messe.Datum[i] = leer ? 0 : Beginn + w.Zahl(0, tage);
            Messe.Uhrzeit[i] = leer ? 0 : ZeitAus(3600 * w.Zahl(8, 19));
            Messe.Wochentag[i] = leer ? "" : WochentagName(Messe.Datum[i]);
            Messe.Messeart[i] = leer ? "" : w.Prozent(10) ? "Wochendienst" : "Messe";
            Messe.Kennung[i] = !leer && w.Prozent(80) ? "s" : "";
            const int diener = w.Prozent(5) ? w.Zahl(9, 20) : w.Zahl(0, 8);
            Messe.Dienerzahl[i] = leer ? 0 : diener;
            Messe.Gabenbereitung[i] = leer ? 0 : w.Zahl(0, 3);
            Messe.Leuchter[i] = leer ? 0 : w.Zahl(0, 2);
            Messe.Flambeau[i] = !leer && w.Prozent(20) ? w.Zahl(1, 9) : 0;
            Messe.Weihrauch[i] = !leer && w.Prozent(30) ? w.Zahl(1, 2) : 0;
            Messe.Kreuzträger[i] = !leer && w.Prozent(30) ? w.Zahl(1, 2) : 0;
            Messe.LektorZahl[i] = leer ? 0 : w.Zahl(0, 2);
            Messe.KommZahl[i] = leer ? 0 : w.Zahl(0, 3);
            Messe.KantorZahl[i] = leer ? 0 : w.Zahl(0, 1);
            Messe.KollektZahl[i] = leer ? 0 : w.Zahl(0, 2);
            for (int k = 0; k <= MeisteSlots; ++k)
                Messe.DienerDienst[i][k] = "Allgemein";
        }
    }

    void MeßdienerErwürfeln(Würfel &w, int anzahl)
    {
        Meßdiener.Anzahl = anzahl;
        for (int j = 0; j <= anzahl + 1; ++j) {
            const bool leer = j >= anzahl;
            // A name that nobody else has; in a few big tables the last ones have none.
            Meßdiener.Vorname[j] = leer ? "" : "V" + std::to_string(j);
            Meßdiener.Nachname[j] = leer ? "" : "N" + std::to_string(j);
            Meßdiener.Geschlecht[j] = leer ? "" : w.Prozent(50) ? "männlich" : "weiblich";
            Meßdiener.Größe[j] = leer ? 0 : w.Zahl(130, 185);
            Meßdiener.Qualifikation[j] = w.Flags(6, 85);
            Meßdiener.Wochendienst[j] = w.Flags(8, 10);
            ZeiträumeErwürfeln(w, j, Beginn,
                               {{&Meßdiener.Von1, &Meßdiener.Bis1},
                                {&Meßdiener.Von2, &Meßdiener.Bis2},
                                {&Meßdiener.Von3, &Meßdiener.Bis3},
                                {&Meßdiener.Von4, &Meßdiener.Bis4},
                                {&Meßdiener.Von5, &Meßdiener.Bis5}});
            const bool wunsch = !leer && w.Prozent(30);
            const int partner = w.Zahl(0, anzahl + 3); // sometimes a stranger
            Meßdiener.WunschVorname[j] = wunsch ? "V" + std::to_string(partner) : "";
            Meßdiener.WunschNachname[j] =
                wunsch && !w.Prozent(5) ? "N" + std::to_string(partner) : "";
            Meßdiener.Häufigkeit[j] = w.Prozent(30) ? 2 : 0;
            Meßdiener.Belegt[j] = 0;
            Meßdiener.LetzterDienst[j] = 0;
            Meßdiener.DienstZähler[j] = w.Zahl(0, 9);
        }
        const int entbehrlich = anzahl - 2 * GrößterTagDerGemeinde() - 1;
        for (int k = 0; k < std::min(entbehrlich, 3); ++k)
            if (w.Prozent(30))
                (k % 2 == 0 ? Meßdiener.Vorname : Meßdiener.Nachname)[anzahl - 1 - k] = "";
    }

    void HelferErwürfeln(Würfel &w)
    {
        const char *dienste[] = {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant", "", "Küster"};
        Helfer.Anzahl = w.Zahl(5, 70);
        for (int h = 0; h <= Helfer.Anzahl + 1; ++h) {
            const bool leer = h >= Helfer.Anzahl;
            Helfer.Vorname[h] = leer || (h > 0 && w.Prozent(2)) ? "" : "V" + std::to_string(h);
            Helfer.Nachname[h] = leer || (h > 0 && w.Prozent(2)) ? "" : "N" + std::to_string(h);
            Helfer.Dienst1[h] = leer ? "" : dienste[w.Zahl(0, 9) % 5];
            Helfer.Dienst2[h] = leer ? "" : dienste[w.Zahl(0, 5)];
            for (const auto &[von, bis] :
                 {std::pair(&Helfer.Von1, &Helfer.Bis1), std::pair(&Helfer.Von2, &Helfer.Bis2),
                  std::pair(&Helfer.Von3, &Helfer.Bis3)}) {
                const bool hat = w.Prozent(10);
                (*von)[h] = hat ? Beginn + w.Zahl(-5, 30) : 0;
                (*bis)[h] = hat ? (*von)[h] + w.Zahl(-2, 12) : 0;
            }
            Helfer.Belegt[h] = w.Zahl(0, 1);
            Helfer.LetzterDienst[h] = 0;
        }
    }

    static void FesteErwürfeln(Würfel &w)
    {
        for (int r = 0; r < FesteZeilen; ++r) {
            const int i = w.Zahl(0, Messe.Anzahl - 1);
            MesseDienerFest.Datum[r] = Messe.Datum[i];
            MesseDienerFest.Uhrzeit[r] = Messe.Uhrzeit[i] + (w.Prozent(20) ? 0.5 : 0.0);
            for (int s = 1; s <= MeisteSlots; ++s) {
                const bool fest = w.Prozent(8);
                const int j = w.Zahl(0, Meßdiener.Anzahl - 1);
                MesseDienerFest.Vorname[r][s] = fest ? Meßdiener.Vorname[j] : "";
                MesseDienerFest.Nachname[r][s] = fest ? Meßdiener.Nachname[j] : "";
            }
        }
        MesseDienerFest.Anzahl = FesteZeilen;
    }
};

} // namespace altardienst
