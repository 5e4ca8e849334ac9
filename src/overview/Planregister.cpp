// Who stands where in the plan.
#include "overview/Planregister.h"

#include "assignment/Gründe.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace altardienst {

void Planregister::Neu()
{
    diener.Neu(tabellen.Diener);
    helfer.Neu(tabellen.Helferinnen);
    WünscheLesen();
    FolgeBestimmen();
    const std::size_t stellen = folge.size() * JeMesse;
    wer.assign(stellen, Namensregister::Frei);
    imPaar.assign(stellen, false);
    davor.resize(stellen);
    letzte.fill(Keine);
    paare.fill(0);
    letztesPaar.fill(Keine);
    for (const int messe : folge) {
        FürJedenGewünschten(messe, [this](Stelle stelle, int person) {
            wer[Nr(stelle)] = static_cast<std::int16_t>(person);
            if (person >= 0)
                Anhängen(stelle, person);
        });
        FürJedesPaar(messe, [this](Stelle stelle) {
            imPaar[Nr(stelle)] = true;
            ++paare[Nr(Wer(stelle))];
            letztesPaar[Nr(Wer(stelle))] = stelle;
        });
    }
}

bool Planregister::Nachlesen(int messe, std::vector<int> &berührt)
{
    if (tabellen.Messenzahl() != Messenzahl() || MerkmaleVon(messe) != merkmale[Nr(messe)])
        return false;
    struct Paarstand {
        int Diener;
        int Paare;
        Stelle Letztes;
    };
    std::vector<Paarstand> vorher; // of everybody in a pair of this mass, then or now
    const auto merken = [&](int j) {
        if (std::ranges::find(vorher, j, &Paarstand::Diener) == vorher.end())
            vorher.push_back({j, Paare(j), LetztesPaar(j)});
    };
    const Stelle erste = StelleVon(Dienerplatznr(messe, 1));
    for (Stelle stelle = erste; stelle < erste + MesseTabelle::HöchsterSlot; ++stelle)
        if (imPaar[Nr(stelle)]) {
            merken(Wer(stelle));
            --paare[Nr(Wer(stelle))];
            imPaar[Nr(stelle)] = false;
        }
    FürJedenGewünschten(messe, [&](Stelle stelle, int person) {
        if (person == Wer(stelle))
            return;
        if (Wer(stelle) >= 0)
            Lösen(stelle, berührt);
        wer[Nr(stelle)] = static_cast<std::int16_t>(person);
        if (person >= 0)
            Einfügen(stelle, person, berührt);
    });
    FürJedesPaar(messe, [&](Stelle stelle) {
        merken(Wer(stelle));
        ++paare[Nr(Wer(stelle))];
        imPaar[Nr(stelle)] = true;
    });
    for (const Paarstand &stand : vorher) {
        const Stelle letztes = LetztesPaarSuchen(stand.Diener);
        letztesPaar[Nr(stand.Diener)] = letztes;
        if (stand.Letztes == letztes && stand.Paare == Paare(stand.Diener))
            continue;
        for (const Stelle stelle : {stand.Letztes, letztes})
            if (stelle != Keine)
                berührt.push_back(MesseVon(stelle));
    }
    berührt.push_back(messe);
    return true;
}

Planregister::Merkmale Planregister::MerkmaleVon(int messe) const
{
    const MesseTabelle &messen = tabellen.Messen;
    Merkmale m = {messen.Datum[messe],
                  messen.Uhrzeit[messe],
                  Dienerplätze(messen, messe),
                  messen.Dienerzahl[messe],
                  {}};
    for (const Helferart &art : Helferarten)
        m.Helfer[NummerDer(art)] = art.Zahl.In(messen)[messe];
    return m;
}

void Planregister::FolgeBestimmen()
{
    const int messen = tabellen.Messenzahl();
    merkmale.clear();
    merkmale.reserve(Nr(messen));
    for (int i = 0; i < messen; ++i)
        merkmale.push_back(MerkmaleVon(i));
    tage.resize(Nr(messen));
    std::ranges::transform(merkmale, tage.begin(), &Merkmale::Tag);
    folge.resize(Nr(messen));
    std::iota(folge.begin(), folge.end(), 0);
    const auto früher = [this](int a, int b) {
        const Merkmale &x = merkmale[Nr(a)];
        const Merkmale &y = merkmale[Nr(b)];
        return std::tie(x.Tag, x.Uhrzeit) < std::tie(y.Tag, y.Uhrzeit);
    };
    if (!std::is_sorted(folge.begin(), folge.end(), früher)) // the draws sort the table
        std::stable_sort(folge.begin(), folge.end(), früher);
    rang.resize(Nr(messen));
    for (int i = 0; i < messen; ++i)
        rang[Nr(folge[Nr(i)])] = i;
}

void Planregister::WünscheLesen()
{
    const MeßdienerTabelle &t = tabellen.Diener;
    partner.fill(Namensregister::Frei);
    for (int j = 0; j < std::min<int>(t.Anzahl, ErsterHelfer); ++j)
        if (HatWunschpartner(t, j))
            partner[Nr(j)] = diener.Finden(t.WunschVorname[j], t.WunschNachname[j]);
}

/// Calls `f` with each wanted place of a mass and the person whose name stands there.
template <class F> void Planregister::FürJedenGewünschten(int messe, F f) const
{
    const MesseTabelle &messen = tabellen.Messen;
    const Merkmale &m = merkmale[Nr(messe)];
    const MesseTabelle::JeSlot &vornamen = messen.DienerVor[messe];
    const MesseTabelle::JeSlot &nachnamen = messen.DienerNach[messe];
    Stelle stelle = StelleVon(Dienerplatznr(messe, 1));
    for (int slot = 1; slot <= m.Dienerplätze; ++slot)
        f(stelle++, diener.Finden(vornamen[slot], nachnamen[slot]));
    stelle = StelleVon(Helferplatznr(messe, 0));
    for (const Helferplatz &platz : Helferplätze) {
        if (platz.Nummer <= m.Helfer[NummerDer(platz.Art)]) {
            const int nr = helfer.Finden((messen.*platz.Vor)[messe], (messen.*platz.Nach)[messe]);
            f(stelle, nr < 0 ? nr : ErsterHelfer + nr);
        }
        ++stelle;
    }
}

/// As the partner way places them: a server, and in the next slot the one he wishes for, whose own
/// wish then does not count. Calls `f` with both slots, or with the first if the second holds the
/// name of nobody.
template <class F> void Planregister::FürJedesPaar(int messe, F f) const
{
    const int letzterSlot = merkmale[Nr(messe)].Dienerplätze;
    for (int slot = 1; slot < letzterSlot; ++slot) {
        if (!StehtDerGewünschteNach(messe, slot))
            continue;
        const Stelle stelle = StelleVon(Dienerplatznr(messe, slot));
        f(stelle);
        ++slot;
        if (Wer(stelle + 1) >= 0)
            f(stelle + 1);
    }
}

bool Planregister::StehtDerGewünschteNach(int messe, int slot) const
{
    const Stelle stelle = StelleVon(Dienerplatznr(messe, slot));
    const int j = Wer(stelle);
    if (j < 0 || Partner(j) == Namensregister::Frei || Wer(stelle + 1) != Partner(j))
        return false;
    return Partner(j) >= 0 ||
           (tabellen.Messen.DienerNach[messe][slot + 1] == tabellen.Diener.WunschNachname[j] &&
            tabellen.Messen.DienerVor[messe][slot + 1] == tabellen.Diener.WunschVorname[j]);
}

bool Planregister::IstNamensgleich(int person) const
{
    const auto gilt = [](const Namensregister &namen, const auto &personen, int nr) {
        return namen.Finden(personen.Vorname[nr], personen.Nachname[nr]) ==
               Namensregister::Mehrdeutig;
    };
    return person < ErsterHelfer ? gilt(diener, tabellen.Diener, person)
                                 : gilt(helfer, tabellen.Helferinnen, person - ErsterHelfer);
}

bool Planregister::IstSpäter(Stelle a, Stelle b) const
{
    const int rangA = rang[Nr(MesseVon(a))];
    const int rangB = rang[Nr(MesseVon(b))];
    return rangA != rangB ? rangA > rangB : a > b;
}

void Planregister::Anhängen(Stelle stelle, int person)
{
    davor[Nr(stelle)] = letzte[Nr(person)];
    letzte[Nr(person)] = stelle;
}

void Planregister::Lösen(Stelle stelle, std::vector<int> &berührt)
{
    Anschluss(stelle, Wer(stelle), berührt) = davor[Nr(stelle)];
}

void Planregister::Einfügen(Stelle stelle, int person, std::vector<int> &berührt)
{
    Stelle &anschluss = Anschluss(stelle, person, berührt);
    davor[Nr(stelle)] = anschluss;
    anschluss = stelle;
}

/// Where it says, or is to say, that the place comes next in the person's chain. Touches the
/// person's next service in another mass: what comes before it changes.
Stelle &Planregister::Anschluss(Stelle stelle, int person, std::vector<int> &berührt)
{
    Stelle *anschluss = &letzte[Nr(person)];
    int nächste = Keine;
    for (; *anschluss != Keine && IstSpäter(*anschluss, stelle); anschluss = &davor[Nr(*anschluss)])
        if (MesseVon(*anschluss) != MesseVon(stelle))
            nächste = MesseVon(*anschluss);
    if (nächste != Keine)
        berührt.push_back(nächste);
    return *anschluss;
}

Stelle Planregister::LetztesPaarSuchen(int diener) const
{
    Stelle stelle = Letzte(diener);
    while (stelle != Keine && !imPaar[Nr(stelle)])
        stelle = Davor(stelle);
    return stelle;
}

} // namespace altardienst
