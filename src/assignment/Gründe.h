// Why somebody is refused for a place. Each rule of the draw is here once, as a function of the
// person and the place that returns its reason. The ways of assignment use the first reason in
// their list; whoever wants to know why somebody cannot serve somewhere asks for all of them.
#pragma once

#include "core/Plätze.h"
#include "core/tables.h"

#include <string_view>
#include <utility>
#include <vector>

namespace altardienst {

enum class Grund {
    Keiner,
    OhneNamen,            // a name is missing, as in the blank row
    Vergeben,             // counts as taken
    ZuVielePaare,         // has been in as many pairs as his frequency allows
    FalscheGröße,         // too far from the height reference of the mass
    OhneQualifikation,    // may not do the service
    VonHand,              // no fault of the person: the service of the place is set by hand
    Abwesend,             // on the date of the mass
    AnderesGeschlecht,    // than the server placed before, with whom he would form a pair
    GegenWochendienst,    // does not want masses of the kind "Wochendienst"
    GegenWochentag,       // does not want to serve on this weekday
    PartnerOhnePlatz,     // has a wish partner, for whom there is no place after the last one
    OhneDienst,           // the helper does not do the service
    DienstInBeidenFeldern // the helper has named the service twice
};

// The tables are arguments: the shared ones, or copies to work on separately.

template <class Tabelle> struct Person {
    const Tabelle &Personen;
    int Nr;
};
using Dienerperson = Person<MeßdienerTabelle>;
using Helferperson = Person<HelferTabelle>;

/// A slot of a mass, from 1.
struct Dienerplatz {
    const MesseTabelle &Messen;
    const KonfigDatensatz &Einstellungen;
    int Messe;
    int Slot;

    bool IstLetzter() const { return Slot == Messen.Dienerzahl[Messe]; }
};

struct Helferstelle {
    const MesseTabelle &Messen;
    int Messe;
    const Helferplatz &Platz;
};

/// What the tests have to know about the run besides the tables.
struct Laufstand {
    bool Vergeben = false;                   // the person counts as taken
    Int16 MittelGröße = 0;                   // height reference of the mass, cm
    std::string_view LetztesGeschlecht = {}; // of the server placed last
    Int16 Paare = 0;                         // that the server has been part of
    Int16 DienstProDiener = 0;               // pairs for a server with normal frequency
};

// Building blocks of the rules.

/// Whether the run counts the person as taken.
template <class Tabelle> bool IstVergeben(const Tabelle &personen, int j)
{
    return personen.Belegt[j] == 1;
}

/// Whether `tag` is in a period of absence, which includes its first and last day.
constexpr bool LiegtIn(Datum tag, Datum von, Datum bis)
{
    return !(tag < von || tag > bis);
}

/// Whether somebody placed on the date `zuletzt` is blocked on `tag`: on the same date and on the
/// next one.
constexpr bool IstGesperrt(Datum zuletzt, Datum tag)
{
    return zuletzt == tag || zuletzt + 1 == tag;
}

inline bool IstAbwesend(const MeßdienerTabelle &t, int j, Datum tag)
{
    return LiegtIn(tag, t.Von1[j], t.Bis1[j]) || LiegtIn(tag, t.Von2[j], t.Bis2[j]) ||
           LiegtIn(tag, t.Von3[j], t.Bis3[j]) || LiegtIn(tag, t.Von4[j], t.Bis4[j]) ||
           LiegtIn(tag, t.Von5[j], t.Bis5[j]);
}

inline bool IstAbwesend(const HelferTabelle &t, int j, Datum tag)
{
    return LiegtIn(tag, t.Von1[j], t.Bis1[j]) || LiegtIn(tag, t.Von2[j], t.Bis2[j]) ||
           LiegtIn(tag, t.Von3[j], t.Bis3[j]);
}

/// A wish with only one of the two names is no wish.
inline bool HatWunschpartner(const MeßdienerTabelle &t, int j)
{
    return !t.WunschVorname[j].empty() && !t.WunschNachname[j].empty();
}

/// A service that has no position among the qualifications is open to everybody.
inline bool DarfDienst(const MeßdienerTabelle &t, int j, const Dienstart &art)
{
    return art.Stelle == 0 || IstJa(t.Qualifikation[j], art.Stelle);
}

// In the weekly wishes a "j" is the wish to be left out.

inline bool LehntWochendienstAb(const MeßdienerTabelle &t, int j)
{
    return IstJa(t.Wochendienst[j], 1);
}

inline bool IstWochendienst(const MesseTabelle &messen, int messe)
{
    return messen.Messeart[messe] == "Wochendienst";
}

/// The position among the weekly wishes that applies to a mass because of its weekday, 0 if none
/// does. The wishes by weekday apply only to masses that come from the week pattern, and not on
/// Saturday and Sunday. A padded weekday name matches none of them.
inline int Wunschstelle(const MesseTabelle &messen, int messe)
{
    constexpr int Montag = 2; // weekday, and its position among the wishes
    constexpr int Freitag = 6;
    if (messen.Kennung[messe] != "s")
        return 0;
    for (int tag = Montag; tag <= Freitag; ++tag)
        if (messen.Wochentag[messe] == Wochentagsnamen[static_cast<std::size_t>(tag - 1)])
            return tag;
    return 0;
}

inline bool IstVonHand(const KonfigDatensatz &einstellungen, std::string_view dienst)
{
    return (dienst == Weihrauch.Name && einstellungen.ManuellWeihrauch == 1) ||
           (dienst == Kreuzträger.Name && einstellungen.ManuellKreuzträger == 1);
}

constexpr Grund Falls(bool trifftZu, Grund grund)
{
    return trifftZu ? grund : Grund::Keiner;
}

// The tests that servers and helpers share.

template <class P, class Platz> Grund NamenPrüfen(const P &person, const Platz &, const Laufstand &)
{
    const auto &[personen, j] = person;
    return Falls(personen.Nachname[j].empty() || personen.Vorname[j].empty(), Grund::OhneNamen);
}

template <class P, class Platz>
Grund FreiseinPrüfen(const P &, const Platz &, const Laufstand &stand)
{
    return Falls(stand.Vergeben, Grund::Vergeben);
}

template <class P, class Platz>
Grund AnwesenheitPrüfen(const P &person, const Platz &platz, const Laufstand &)
{
    const Datum tag = platz.Messen.Datum[platz.Messe];
    return Falls(IstAbwesend(person.Personen, person.Nr, tag), Grund::Abwesend);
}

// The tests for servers.

/// The first slot sets the reference. Failure 6 if the tolerance goes beyond an Int16.
inline Grund GrößePrüfen(const Dienerperson &person, const Dienerplatz &platz,
                         const Laufstand &stand)
{
    if (platz.Slot < 2)
        return Grund::Keiner;
    const Int16 größe = person.Personen.Größe[person.Nr];
    const Int16 spielraum = platz.Einstellungen.DiffGröße;
    const bool passt =
        stand.MittelGröße - spielraum <= größe && größe <= stand.MittelGröße + spielraum;
    return Falls(!passt, Grund::FalscheGröße);
}

inline Grund QualifikationPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                                 const Laufstand &)
{
    const Text &dienst = DienstDesSlots(platz.Messen, platz.Messe, platz.Slot);
    for (const Dienstart &art : BesondereDienste)
        if (dienst == art.Name)
            return Falls(!DarfDienst(person.Personen, person.Nr, art), Grund::OhneQualifikation);
    return Grund::Keiner;
}

/// The same, ignoring whatever a file has left in the slots that never have a service of their own.
inline Grund QualifikationDerDienstslotsPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                                               const Laufstand &stand)
{
    return platz.Slot <= HöchsterDienstSlot ? QualifikationPrüfen(person, platz, stand)
                                            : Grund::Keiner;
}

inline Grund VonHandPrüfen(const Dienerperson &, const Dienerplatz &platz, const Laufstand &)
{
    return Falls(
        IstVonHand(platz.Einstellungen, DienstDesSlots(platz.Messen, platz.Messe, platz.Slot)),
        Grund::VonHand);
}

/// Servers form pairs of the same sex: slots 1 and 2, 3 and 4, and so on.
inline Grund GeschlechtPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                              const Laufstand &stand)
{
    return Falls(platz.Slot % 2 == 0 &&
                     person.Personen.Geschlecht[person.Nr] != stand.LetztesGeschlecht,
                 Grund::AnderesGeschlecht);
}

inline Grund WochendienstPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                                const Laufstand &)
{
    return Falls(LehntWochendienstAb(person.Personen, person.Nr) &&
                     IstWochendienst(platz.Messen, platz.Messe),
                 Grund::GegenWochendienst);
}

inline Grund WochentagPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                             const Laufstand &)
{
    const int stelle = Wunschstelle(platz.Messen, platz.Messe);
    return Falls(stelle != 0 && IstJa(person.Personen.Wochendienst[person.Nr], stelle),
                 Grund::GegenWochentag);
}

/// Failure 6 if the sum of frequency and share does not fit into an Int16.
inline Grund PaarePrüfen(const Dienerperson &person, const Dienerplatz &, const Laufstand &stand)
{
    return Falls(stand.Paare >= person.Personen.Häufigkeit[person.Nr] + stand.DienstProDiener,
                 Grund::ZuVielePaare);
}

/// The last place stays free for someone without a partner.
inline Grund LetztenPlatzPrüfen(const Dienerperson &person, const Dienerplatz &platz,
                                const Laufstand &)
{
    return Falls(HatWunschpartner(person.Personen, person.Nr) && platz.IstLetzter(),
                 Grund::PartnerOhnePlatz);
}

// The test for helpers.

/// Whether one of the two fields of a helper names the service.
inline bool HatDienst(const HelferTabelle &t, int j, const Helferart &art)
{
    return t.Dienst1[j] == art.Name || t.Dienst2[j] == art.Name;
}

/// A Lektor needs the service in one of the two fields. For all other places it is the other way
/// round: only helpers who have the service in both fields are refused.
inline Grund HelferdienstPrüfen(const Helferperson &person, const Helferstelle &stelle,
                                const Laufstand &)
{
    const Helferart &art = stelle.Platz.Art;
    if (&art == &Lektor)
        return Falls(!HatDienst(person.Personen, person.Nr, art), Grund::OhneDienst);
    return Falls(person.Personen.Dienst1[person.Nr] == art.Name &&
                     person.Personen.Dienst2[person.Nr] == art.Name,
                 Grund::DienstInBeidenFeldern);
}

// The lists.

template <class P, class Platz>
using Prüfung = Grund (*)(const P &, const Platz &, const Laufstand &);

/// Tests in the order in which a way runs them.
template <class P, class Platz, Prüfung<P, Platz>... prüfungen> struct Prüfliste {
    /// The first reason; the tests after it are not run.
    static Grund Erster(const P &person, const Platz &platz, const Laufstand &stand)
    {
        Grund grund = Grund::Keiner;
        static_cast<void>(
            ((grund = prüfungen(person, platz, stand), grund == Grund::Keiner) && ...));
        return grund;
    }

    /// All reasons, in the order of the tests.
    static std::vector<Grund> Alle(const P &person, const Platz &platz, const Laufstand &stand)
    {
        std::vector<Grund> gründe = {prüfungen(person, platz, stand)...};
        std::erase(gründe, Grund::Keiner);
        return gründe;
    }
};

/// The two simple ways for servers.
using EinfachePrüfungen = Prüfliste<Dienerperson, Dienerplatz, NamenPrüfen, FreiseinPrüfen>;

/// The full way for servers.
using VollePrüfungen = Prüfliste<Dienerperson, Dienerplatz, NamenPrüfen, FreiseinPrüfen,
                                 GrößePrüfen, QualifikationDerDienstslotsPrüfen, AnwesenheitPrüfen,
                                 GeschlechtPrüfen, WochendienstPrüfen, WochentagPrüfen>;

/// The partner way for servers. A service set by hand is only noticed after the tests before it:
/// some server must have the qualification, although nobody is placed.
using Partnerprüfungen =
    Prüfliste<Dienerperson, Dienerplatz, NamenPrüfen, FreiseinPrüfen, PaarePrüfen,
              QualifikationPrüfen, VonHandPrüfen, AnwesenheitPrüfen, WochendienstPrüfen,
              WochentagPrüfen, GeschlechtPrüfen, LetztenPlatzPrüfen>;

/// Helpers, if there are enough.
using Helferprüfungen = Prüfliste<Helferperson, Helferstelle, NamenPrüfen, FreiseinPrüfen,
                                  AnwesenheitPrüfen, HelferdienstPrüfen>;

/// Helpers, if one service has too few.
using FreieHelferprüfungen = Prüfliste<Helferperson, Helferstelle, NamenPrüfen>;

} // namespace altardienst
