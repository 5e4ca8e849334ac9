// The check of the whole plan.
#include "overview/Planprüfung.h"

#include <algorithm>

namespace altardienst {

Planprüfung::Planprüfung(const Plantabellen &tabellen)
    : tabellen(tabellen), plan(this->tabellen), prüfung(this->tabellen, plan)
{
    Neu();
}

void Planprüfung::Neu()
{
    plan.Neu();
    prüfung.Neu();
    zahlen = {};
    befunde.resize(static_cast<std::size_t>(plan.Messenzahl()));
    for (int messe = 0; messe < plan.Messenzahl(); ++messe) {
        std::vector<Befund> &liste = befunde[static_cast<std::size_t>(messe)];
        liste.clear(); // and keeps its memory
        prüfung.Prüfen(messe, liste);
        Zählen(messe, 1);
    }
}

void Planprüfung::MesseGeändert(int messe)
{
    std::vector<int> berührt;
    if (!plan.Nachlesen(messe, berührt)) {
        Neu();
        return;
    }
    std::ranges::sort(berührt);
    berührt.erase(std::unique(berührt.begin(), berührt.end()), berührt.end());
    for (const int i : berührt) {
        Zählen(i, -1);
        std::vector<Befund> &liste = befunde[static_cast<std::size_t>(i)];
        liste.clear();
        prüfung.Prüfen(i, liste);
        Zählen(i, 1);
    }
}

const std::vector<Befund> &Planprüfung::Von(int messe) const
{
    static const std::vector<Befund> Keine;
    return messe >= 0 && messe < plan.Messenzahl() ? befunde[static_cast<std::size_t>(messe)]
                                                   : Keine;
}

std::vector<Befund> Planprüfung::Alle() const
{
    std::vector<Befund> alle;
    alle.reserve(static_cast<std::size_t>(Verstöße() + Hinweise()));
    for (const std::vector<Befund> &liste : befunde)
        alle.insert(alle.end(), liste.begin(), liste.end());
    return alle;
}

int Planprüfung::WerSteht(Planplatz platz) const
{
    const int wer = plan.Wer(Planregister::StelleVon(platz));
    return wer >= Planregister::ErsterHelfer ? wer - Planregister::ErsterHelfer : wer;
}

std::vector<Planplatz> Planprüfung::Dienste(Planplatz::Art was, int nr) const
{
    const int person = was == Planplatz::Art::Helfer ? Planregister::ErsterHelfer + nr : nr;
    std::vector<Planplatz> dienste;
    for (Stelle stelle = plan.Letzte(person); stelle != Planregister::Keine;
         stelle = plan.Davor(stelle))
        dienste.push_back(Planregister::PlatzVon(stelle));
    std::ranges::reverse(dienste);
    return dienste;
}

std::vector<Befund> Planprüfung::GegenPerson(Planplatz platz, int nr) const
{
    std::vector<Befund> gründe;
    prüfung.GegenPersonPrüfen(platz, nr, gründe);
    return gründe;
}

void Planprüfung::Zählen(int messe, int vorzeichen)
{
    for (const Befund &befund : befunde[static_cast<std::size_t>(messe)])
        zahlen[static_cast<std::size_t>(befund.Grad)] += vorzeichen;
}

} // namespace altardienst
