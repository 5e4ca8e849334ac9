// Random parishes of all degrees of difficulty.
#include "Zufallsgemeinde.h"

#include "core/tables.h"

#include <algorithm>
#include <random>
#include <string>

namespace altardienst {
namespace {

class Würfel {
  public:
    explicit Würfel(std::uint32_t saat) : generator(saat) {}

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

/// Returns the places of the busiest two days in a row.
int MessenErfinden(Würfel &w, Datum beginn)
{
    const int tage = w.Zahl(6, 28);
    int größterDoppeltag = 0;
    int zuvor = 0;
    Messe.Anzahl = 0;
    for (int tag = 0; tag < tage; ++tag) {
        int heute = 0;
        const Datum datum = beginn + tag;
        const int wochentag = Wochentag(datum);
        const int messen = wochentag == 1 ? w.Zahl(1, 2) : wochentag == 7 ? 1 : w.Prozent(30);
        for (int k = 0; k < messen; ++k) {
            const int i = Messe.Anzahl;
            Messe.Datum[i] = datum;
            Messe.Uhrzeit[i] = ZeitAus((9 + 2 * k) * 3600);
            Messe.Wochentag[i] = WochentagName(datum);
            Messe.Messeart[i] =
                wochentag > 1 && wochentag < 7 && w.Prozent(30) ? "Wochendienst" : "Messe";
            Messe.Kennung[i] = w.Prozent(85) ? "s" : "";
            const int diener = wochentag == 1 ? w.Zahl(3, 8) : w.Zahl(1, 4);
            Messe.Dienerzahl[i] = diener;
            Messe.Gabenbereitung[i] = std::min(2, diener);
            Messe.Leuchter[i] = diener > 2 ? w.Zahl(0, 2) : 0;
            Messe.Flambeau[i] = diener > 5 ? 2 : 0;
            Messe.Weihrauch[i] = diener > 4 ? w.Zahl(0, 2) : 0;
            Messe.Kreuzträger[i] = diener > 4 ? 1 : 0;
            ++Messe.Anzahl;
            heute += diener;
        }
        größterDoppeltag = std::max(größterDoppeltag, heute + zuvor);
        zuvor = heute;
    }
    return größterDoppeltag;
}

void DienerErfinden(Würfel &w, Datum beginn, int anzahl, int enge)
{
    Meßdiener.Anzahl = anzahl;
    for (int j = 0; j < anzahl; ++j) {
        Meßdiener.Vorname[j] = "V" + std::to_string(j);
        Meßdiener.Nachname[j] = "N" + std::to_string(j);
        Meßdiener.Geschlecht[j] = w.Prozent(50) ? "männlich" : "weiblich";
        Meßdiener.Größe[j] = w.Zahl(130, 185);
        Meßdiener.Qualifikation[j] = w.Flags(6, 95 - 8 * enge);
        Meßdiener.Wochendienst[j] = w.Flags(8, 5 + 6 * enge);
        Meßdiener.Häufigkeit[j] = w.Prozent(20) ? 2 : 0;
        if (w.Prozent(15 + 10 * enge)) {
            Meßdiener.Von1[j] = beginn + w.Zahl(-5, 20);
            Meßdiener.Bis1[j] = Meßdiener.Von1[j] + w.Zahl(0, 14);
        }
        if (w.Prozent(25)) {
            const std::string partner = std::to_string(w.Zahl(0, anzahl - 1));
            Meßdiener.WunschVorname[j] = "V" + partner;
            Meßdiener.WunschNachname[j] = "N" + partner;
        }
    }
}

} // namespace

void GemeindeErfinden(std::uint32_t saat)
{
    constexpr std::uint32_t Grade = 5;
    TabellenLeeren();
    Würfel w(saat);
    const int enge = static_cast<int>(saat % Grade);
    const Datum beginn = DatumAus({2026, 11, 28});
    const int doppeltag = MessenErfinden(w, beginn);
    Konfig.DiffGröße = 45 - 7 * enge;
    DienerErfinden(w, beginn, std::max(4, doppeltag * (220 - 30 * enge) / 100), enge);
}

} // namespace altardienst
