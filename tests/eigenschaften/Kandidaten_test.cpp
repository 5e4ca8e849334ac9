// What is true of "Wer kann hier?" in thousands of random parishes: whom the draw refuses, it
// refuses for the same reason, and whoever has nothing against him breaks nothing.
#include "Zweitprüfung.h"

#include "assignment/Dienste.h"
#include "assignment/Gründe.h"
#include "assignment/MEßdienerzuweiseung.h"
#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "assignment/ZweiMeßdienerzuweisen.h"
#include "core/Sortierbefehle.h"
#include "overview/Kandidaten.h"

#include <optional>

namespace altardienst {
namespace {

constexpr unsigned Gemeinden = 2000;

/// What the draw calls a reason; taken means all services on the same or the neighbouring days.
Grund GrundAus(Regel regel)
{
    switch (regel) {
    case Regel::Doppelt:
    case Regel::SelberTag:
    case Regel::Nachbartag:
        return Grund::Vergeben;
    case Regel::Größe:
        return Grund::FalscheGröße;
    case Regel::Qualifikation:
        return Grund::OhneQualifikation;
    case Regel::Abwesend:
        return Grund::Abwesend;
    case Regel::Geschlecht:
        return Grund::AnderesGeschlecht;
    case Regel::Wochendienst:
        return Grund::GegenWochendienst;
    case Regel::Wochentag:
        return Grund::GegenWochentag;
    case Regel::Häufigkeit:
        return Grund::ZuVielePaare;
    case Regel::Wunschpartner:
        return Grund::PartnerOhnePlatz;
    default:
        return Grund::Keiner;
    }
}

/// The first of the asked reasons that a way tests, in the order of its tests.
Grund ErsterNach(const std::vector<Grund> &reihenfolge, const std::vector<Befund> &befunde)
{
    for (const Grund grund : reihenfolge)
        for (const Befund &befund : befunde)
            if (GrundAus(befund.Gegen) == grund)
                return grund;
    return Grund::Keiner;
}

const std::vector<Grund> VolleReihenfolge = {
    Grund::Vergeben,          Grund::FalscheGröße,      Grund::OhneQualifikation, Grund::Abwesend,
    Grund::AnderesGeschlecht, Grund::GegenWochendienst, Grund::GegenWochentag};
const std::vector<Grund> Partnerreihenfolge = {Grund::Vergeben,          Grund::ZuVielePaare,
                                               Grund::OhneQualifikation, Grund::Abwesend,
                                               Grund::GegenWochendienst, Grund::GegenWochentag,
                                               Grund::AnderesGeschlecht, Grund::PartnerOhnePlatz};

/// Who serves too often in too short a time is told of one other service only: the nearest. Once
/// that one is gone, the next one shows.
Urteile OhneArtDerNähe(const Urteile &urteile)
{
    Urteile ähnliche;
    for (const auto &[regel, grad, wo] : urteile)
        ähnliche.insert({GrundAus(regel) == Grund::Vergeben ? Regel::Doppelt : regel, grad, wo});
    return ähnliche;
}

class KandidatenEigenschaftenTest : public Gemeindestand {
  protected:
    static int Slots(int i) { return std::min<int>(Messe.Dienerzahl[i], MeisteSlots); }

    /// Free places, no fixed entries, nothing set by hand, and no service that the plain way writes
    /// twice.
    void NeueGemeinde(unsigned saat)
    {
        GemeindeErwürfeln(saat);
        Konfig.ManuellKreuzträger = Konfig.ManuellWeihrauch = 0;
        for (int r = 0; r < FesteZeilen; ++r)
            MesseDienerFest.Datum[r] = 0;
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (auto *dienst : {&Messe.Weihrauch, &Messe.Kreuzträger})
                (*dienst)[i] = (*dienst)[i] > 0 ? 2 : 0;
            for (int slot = 1; slot <= MeisteSlots; ++slot)
                Leeren(Messe, Dienerplatznr(i, slot));
            for (int nr = 0; nr < 8; ++nr)
                Leeren(Messe, Helferplatznr(i, nr));
        }
        MessenSortieren();
    }

    /// The first free slot: a draw fills them in this order.
    static std::optional<Planplatz> NächsterFreier()
    {
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= Slots(i); ++slot)
                if (Messe.DienerVor[i][slot].empty() && Messe.DienerNach[i][slot].empty())
                    return Dienerplatznr(i, slot);
        return std::nullopt;
    }

    /// Looks at each draw of a run once it is decided: `f` gets the place and the server drawn, and
    /// the check as it was then.
    template <class F> void ZiehungenVerfolgen(F f)
    {
        prüfung.Neu();
        platz = NächsterFreier();
        gezogen = false;
        Zufall.Nächste = [this, f, nächste = Zufall.Nächste] {
            Entschieden(f);
            gezogen = true;
            stand = {.MittelGröße = MittelGröße, .LetztesGeschlecht = {}};
            geschlecht = LetztesGeschlecht;
            belegt.clear();
            for (int j = 0; j <= Meßdiener.Anzahl; ++j)
                belegt.push_back(IstVergeben(Meßdiener, j));
            return nächste();
        };
    }

    template <class F> void Entschieden(F f)
    {
        if (!gezogen || !platz || ::testing::Test::HasFailure())
            return;
        gezogen = false;
        const int j = Kandidat;
        stand.Vergeben = belegt[static_cast<std::size_t>(j)];
        stand.LetztesGeschlecht = geschlecht;
        if (!Meßdiener.Vorname[j].empty() && !Meßdiener.Nachname[j].empty())
            f(*platz, j);
        const std::optional<Planplatz> danach = NächsterFreier();
        if (danach != platz) {
            prüfung.MesseGeändert(platz->Messe);
            platz = danach;
        }
    }

    Planprüfung prüfung;
    std::optional<Planplatz> platz;
    bool gezogen = false;
    Laufstand stand;
    Text geschlecht;
    std::vector<bool> belegt;
};

TEST_F(KandidatenEigenschaftenTest, DerVolleWegLehntAusDemselbenGrundAb)
{
    std::map<Grund, int> gründe;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        LaufDiensteVerteilen();
        UhrStehtFür(2000);
        ZiehungenVerfolgen([&](Planplatz wo, int j) {
            if (UhrBewegt)
                return;
            const Grund grund =
                VollePrüfungen::Erster({Meßdiener, j}, {Messe, Konfig, wo.Messe, wo.Nr}, stand);
            const Grund gefragt = ErsterNach(VolleReihenfolge, prüfung.GegenPerson(wo, j));
            ++gründe[grund];
            // Who has served in this cycle is taken too.
            if (grund == Grund::Vergeben && gefragt != Grund::Vergeben)
                EXPECT_FALSE(prüfung.Dienste(Planplatz::Art::Diener, j).empty());
            else
                EXPECT_EQ(grund, gefragt) << "mass " << wo.Messe << ", slot " << wo.Nr << ", " << j;
        });
        MeßdienerVollZuweisen();
    }
    for (const Grund grund : VolleReihenfolge)
        EXPECT_GE(gründe[grund], 1000) << static_cast<int>(grund);
    EXPECT_GE(gründe[Grund::Keiner], 10000);
}

TEST_F(KandidatenEigenschaftenTest, DerPartnerwegLehntAusDemselbenGrundAb)
{
    std::map<Grund, int> gründe;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        for (int j = 0; j < Meßdiener.Anzahl; ++j)
            Meßdiener.Häufigkeit[j] = -(j % 2); // so that the pairs run out
        DienstProDienerRechnen();
        DiensteVerteilen();
        UhrStehtFür(2000);
        ZiehungenVerfolgen([&](Planplatz wo, int j) {
            if (UhrBewegt)
                return;
            stand.Paare = prüfung.Paare(j);
            stand.DienstProDiener = DienstProDiener;
            const Grund grund =
                Partnerprüfungen::Erster({Meßdiener, j}, {Messe, Konfig, wo.Messe, wo.Nr}, stand);
            std::vector<Befund> befunde = prüfung.GegenPerson(wo, j);
            // Of wish partners the draw only knows whether the next place exists.
            if (wo.Nr != Messe.Dienerzahl[wo.Messe])
                std::erase_if(befunde,
                              [](const Befund &b) { return b.Gegen == Regel::Wunschpartner; });
            const Grund gefragt = ErsterNach(Partnerreihenfolge, befunde);
            ++gründe[grund];
            const int vorher =
                wo.Nr > 1 ? prüfung.WerSteht(Dienerplatznr(wo.Messe, wo.Nr - 1)) : -1;
            if (grund == Grund::Vergeben && gefragt != Grund::Vergeben) {
                EXPECT_FALSE(prüfung.Dienste(Planplatz::Art::Diener, j).empty());
            } else if (grund == Grund::PartnerOhnePlatz && gefragt == Grund::Keiner) {
                EXPECT_EQ(prüfung.Wunschpartner(j), vorher); // stands beside already
            } else if (grund != gefragt &&
                       (grund == Grund::AnderesGeschlecht || gefragt == Grund::AnderesGeschlecht)) {
                // After a pair the draw compares with the first of it.
                EXPECT_TRUE(vorher < 0 || Meßdiener.Geschlecht[vorher] != geschlecht);
            } else {
                EXPECT_EQ(grund, gefragt) << "mass " << wo.Messe << ", slot " << wo.Nr << ", " << j;
            }
        });
        WunschpartnerZuweisen();
    }
    for (const Grund grund : Partnerreihenfolge)
        EXPECT_GE(gründe[grund], 100) << static_cast<int>(grund);
    EXPECT_GE(gründe[Grund::Keiner], 10000);
}

TEST_F(KandidatenEigenschaftenTest, WerOhneGrundEingesetztWirdVerstößtGegenNichts)
{
    int eingesetzt = 0;
    int trotzdem = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        Würfel w(saat);
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= MeisteSlots; ++slot) {
                const int j = w.Zahl(0, Meßdiener.Anzahl - 1);
                Besetzen(Messe, Dienerplatznr(i, slot), w.Prozent(90) ? Meßdiener.Vorname[j] : "",
                         Meßdiener.Nachname[j]);
            }
            for (int nr = 0; nr < 8; ++nr) {
                const int h = w.Zahl(0, Helfer.Anzahl - 1);
                Besetzen(Messe, Helferplatznr(i, nr), Helfer.Vorname[h], Helfer.Nachname[h]);
            }
        }
        prüfung.Neu();
        for (int versuch = 0; versuch < 3; ++versuch) {
            const int i = w.Zahl(0, Messe.Anzahl - 1);
            const Planplatz wo = w.Prozent(70) && Slots(i) > 0
                                     ? Dienerplatznr(i, w.Zahl(1, Slots(i)))
                                     : Helferplatznr(i, w.Zahl(0, 7));
            if (!IstGewünscht(Messe, wo))
                continue;
            const Urteile vorher = UrteileAus(prüfung.Alle());
            const Urteile ähnliche = OhneArtDerNähe(vorher);
            const int verstöße = prüfung.Verstöße();
            const Text vorname = NameAm(Messe, wo).Vorname;
            const Text nachname = NameAm(Messe, wo).Nachname;
            const std::vector<Platzkandidat> alle = WerKannHier(prüfung, wo);
            for (std::size_t k = 1; k < alle.size(); ++k)
                ASSERT_LE(std::tuple(alle[k - 1].Rang(), alle[k - 1].Dienste, alle[k - 1].Zuletzt),
                          std::tuple(alle[k].Rang(), alle[k].Dienste, alle[k].Zuletzt));
            for (const Platzkandidat &kandidat : alle) {
                Besetzen(Messe, wo, kandidat.Vorname, kandidat.Nachname);
                prüfung.MesseGeändert(i);
                const Urteile nachher = UrteileAus(prüfung.Alle());
                if (kandidat.Rang() < 2) {
                    ++eingesetzt;
                    ASSERT_LE(prüfung.Verstöße(), verstöße);
                    for (const Urteil &urteil : OhneArtDerNähe(nachher))
                        ASSERT_TRUE(std::get<Stufe>(urteil) == Stufe::Hinweis ||
                                    ähnliche.contains(urteil))
                            << Urteilszeile(urteil) << ", " << kandidat.Vorname;
                }
                for (const Gegengrund &grund : kandidat.Gegengründe)
                    if (grund.Was.Grad == Stufe::Verstoß && grund.Was.Wo == wo &&
                        grund.Was.Gegen != Regel::Doppelt && grund.Was.Gegen != Regel::SelberTag &&
                        grund.Was.Gegen != Regel::Nachbartag &&
                        grund.Was.Bezug.Nr <= wo.Nr) { // the others may show in the other place
                        ++trotzdem;
                        ASSERT_TRUE(
                            nachher.contains({grund.Was.Gegen, grund.Was.Grad, grund.Was.Wo}))
                            << grund.Satz;
                    }
            }
            Besetzen(Messe, wo, vorname, nachname);
            prüfung.MesseGeändert(i);
            ASSERT_EQ(UrteileAus(prüfung.Alle()), vorher);
        }
    }
    EXPECT_GE(eingesetzt, 10000);
    EXPECT_GE(trotzdem, 10000);
}

/// "mit Partner": the two of them in two places.
TEST_F(KandidatenEigenschaftenTest, WerMitPartnerEingesetztWirdVerstößtGegenNichts)
{
    int eingesetzt = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        Würfel w(saat);
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= MeisteSlots; ++slot) {
                const int j = w.Zahl(0, Meßdiener.Anzahl - 1);
                const bool frei = w.Prozent(50);
                Besetzen(Messe, Dienerplatznr(i, slot), frei ? "" : Meßdiener.Vorname[j],
                         frei ? "" : Meßdiener.Nachname[j]);
            }
        prüfung.Neu();
        const int i = w.Zahl(0, Messe.Anzahl - 1);
        if (Slots(i) == 0)
            continue;
        const Planplatz wo = Dienerplatznr(i, w.Zahl(1, Slots(i)));
        const int verstöße = prüfung.Verstöße();
        const MesseTabelle::JeSlot vornamen = Messe.DienerVor[i];
        const MesseTabelle::JeSlot nachnamen = Messe.DienerNach[i];
        for (const Platzkandidat &kandidat : WerKannHier(prüfung, wo)) {
            if (kandidat.Rang() == 2 || kandidat.Partnerplatz == 0)
                continue;
            Besetzen(Messe, wo, kandidat.Vorname, kandidat.Nachname);
            Besetzen(Messe, Dienerplatznr(i, kandidat.Partnerplatz),
                     Meßdiener.Vorname[kandidat.Partner], Meßdiener.Nachname[kandidat.Partner]);
            prüfung.MesseGeändert(i);
            ++eingesetzt;
            ASSERT_LE(prüfung.Verstöße(), verstöße)
                << kandidat.Vorname << " in mass " << i << ", slot " << wo.Nr << ", partner in "
                << kandidat.Partnerplatz;
            Messe.DienerVor[i] = vornamen;
            Messe.DienerNach[i] = nachnamen;
            prüfung.MesseGeändert(i);
        }
    }
    EXPECT_GE(eingesetzt, 1000);
}

} // namespace
} // namespace altardienst
