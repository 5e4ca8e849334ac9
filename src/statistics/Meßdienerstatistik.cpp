// The figures about the servers: age, membership, composition, height.
#include "statistics/Meßdienerstatistik.h"

#include "core/Jahre.h"
#include "core/Umwandlung.h"
#include "statistics/Teilen.h"

#include <algorithm>
#include <cmath>

namespace altardienst {

Meßdienerstatistik MeßdienerAuswerten(Datum heute)
{
    Meßdienerstatistik s;
    Single altersmonate = 0;
    Single zugehörigkeitsmonate = 0;
    for (int i = 0; i < Meßdiener.Anzahl; ++i) {
        const int alter = GanzeJahre(Meßdiener.Geburtstag[i], heute);
        ++s.Alter[static_cast<std::size_t>(std::clamp(alter, 9, 20) - 9)];
        const int jahre = GanzeJahre(Meßdiener.Eintrittsdatum[i], heute);
        if (jahre >= 0)
            ++s.Zugehörigkeit[static_cast<std::size_t>(std::min(jahre, 15))];

        s.Zusammensetzung[0] += Meßdiener.Geschlecht[i] == "männlich";
        s.Zusammensetzung[1] += Meßdiener.Geschlecht[i] == "weiblich";
        for (std::size_t k = 0; k < BesondereDienste.size(); ++k)
            s.Zusammensetzung[2 + k] +=
                IstJa(Meßdiener.Qualifikation[i], BesondereDienste[k].Stelle) ? 1 : 0;
        ++s.Zusammensetzung.back();

        altersmonate += static_cast<Single>(Monatsgrenzen(Meßdiener.Geburtstag[i], heute));
        zugehörigkeitsmonate +=
            static_cast<Single>(Monatsgrenzen(Meßdiener.Eintrittsdatum[i], heute));
    }
    const auto monate = static_cast<Single>(Meßdiener.Anzahl * 12);
    s.Durchschnittsalter = Geteilt(altersmonate, monate);
    s.Durchschnittszugehörigkeit = Geteilt(zugehörigkeitsmonate, monate);
    return s;
}

Größenstatistik GrößenAuswerten()
{
    Spalte<int, 150> zähler; // 0: below 101 cm; 150: from 250 cm on
    const auto n = static_cast<Single>(Meßdiener.Anzahl);
    Single summe = 0;
    for (int i = 0; i < Meßdiener.Anzahl; ++i) {
        const int größe = Meßdiener.Größe[i];
        ++zähler[std::clamp(größe, 100, 250) - 100];
        summe += static_cast<Single>(größe);
    }

    Größenstatistik s;
    s.Mittel = Geteilt(summe, n);
    double quadrate = 0;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        quadrate += std::pow(Meßdiener.Größe[i] - s.Mittel, 2);
    // Divided after taking the root, and by one more than the number of servers: the parish's own
    // measure, not the usual deviation.
    s.Abweichung = static_cast<Single>(std::sqrt(quadrate) / (n + 1));

    s.Anzahl[0] = zähler[0];
    for (int k = 1; k < Größenstatistik::Klassen; ++k)
        for (int z = 10 * (k - 1) + 1; z <= 10 * k; ++z)
            s.Anzahl[static_cast<std::size_t>(k)] += zähler[z];
    return s;
}

Text Größenklasse(int klasse)
{
    if (klasse == 0)
        return "bis 100";
    const int von = 91 + 10 * klasse;
    if (klasse == Größenstatistik::Klassen - 1)
        return "ab " + ZahlText(von);
    return ZahlText(von) + " bis " + ZahlText(von + 9);
}

Kreuztabelle AlterGegenZugehörigkeit(Datum heute)
{
    Kreuztabelle tabelle;
    for (int i = 0; i < Meßdiener.Anzahl; ++i) {
        const int z = std::min(GanzeJahre(Meßdiener.Eintrittsdatum[i], heute), 15);
        const int alter = GanzeJahre(Meßdiener.Geburtstag[i], heute);
        ++tabelle[z][std::clamp(alter - 8, 1, 16)];
    }
    return tabelle;
}

} // namespace altardienst
