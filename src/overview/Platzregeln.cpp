// The rules of the plan: what applies to a server or helper in a place.
#include "assignment/Gründe.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Messenprüfung.h"

#include <algorithm>

namespace altardienst {
/// Somebody's service before this one: in the same mass, on the same or on the previous day.
void Messenprüfung::FrüherenDienstMelden(Stelle stelle, Stufe nachbarn, Befunde &befunde) const
{
    const Stelle vorige = plan.Davor(stelle);
    const Datum zuletzt = plan.Tag(Planregister::MesseVon(vorige));
    const Datum tag = plan.Tag(Planregister::MesseVon(stelle));
    const Planplatz platz = Planregister::PlatzVon(stelle);
    const Planplatz bezug = Planregister::PlatzVon(vorige);
    if (bezug.Messe == platz.Messe) // that place is asked for the days before
        Melden(befunde, {Stufe::Verstoß, Regel::Doppelt, platz, bezug});
    else
        Melden(befunde,
               {nachbarn, zuletzt == tag ? Regel::SelberTag : Regel::Nachbartag, platz, bezug});
}

/// The same when somebody might come to stand here: all other services count, also those after it.
void Messenprüfung::AndereDienstePrüfen(Planplatz platz, int person, Stufe nachbarn,
                                        Befunde &befunde) const
{
    const Datum tag = tabellen.Messen.Datum[platz.Messe];
    enum Lage { InDerMesse, AmTag, AmVortag, AmFolgetag };
    std::array<std::optional<Planplatz>, 4> gefunden;
    for (Stelle stelle = plan.Letzte(person); stelle != Planregister::Keine;
         stelle = plan.Davor(stelle)) {
        const Planplatz dort = Planregister::PlatzVon(stelle);
        const Datum anderer = tabellen.Messen.Datum[dort.Messe];
        if (dort == platz)
            continue;
        if (dort.Messe == platz.Messe)
            gefunden[InDerMesse] = dort;
        else if (IstGesperrt(anderer, tag))
            gefunden[anderer == tag ? AmTag : AmVortag] = dort;
        else if (IstGesperrt(tag, anderer))
            gefunden[AmFolgetag] = dort;
    }
    constexpr std::array Regeln = {Regel::Doppelt, Regel::SelberTag, Regel::Nachbartag,
                                   Regel::Nachbartag};
    for (std::size_t lage = 0; lage < gefunden.size(); ++lage)
        if (gefunden[lage])
            Melden(befunde, {lage == InDerMesse ? Stufe::Verstoß : nachbarn, Regeln[lage], platz,
                             *gefunden[lage]});
}

void Messenprüfung::DienerPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const
{
    const int j = blick.Am(slot);
    const Dienerkenntnis &kenntnis = diener[static_cast<std::size_t>(j)];
    const Planplatz platz = Dienerplatznr(blick.Messe, slot);
    const Dienerperson person = {tabellen.Diener, j};
    const Dienerplatz stelle = {tabellen.Messen, tabellen.Einstellungen, blick.Messe, slot};
    const std::optional<Int16> bezug =
        blick.Bezugsgröße[static_cast<std::size_t>(std::min(slot, 4))];
    if (bezug && IstFalscheGröße(person, stelle, *bezug))
        Melden(befunde, {Stufe::Hinweis, Regel::Größe, platz, {}, *bezug});
    if (!kenntnis.Darf[static_cast<std::size_t>(&blick.Dienst(slot) - Dienstarten.data())])
        Melden(befunde, {Stufe::Verstoß, Regel::Qualifikation, platz});
    if (kenntnis.IstAbwesend(blick.Tag))
        Melden(befunde, {Stufe::Verstoß, Regel::Abwesend, platz});
    if (const std::optional<Stufe> grad = GeschlechtGrad(blick, slot))
        Melden(befunde, {*grad, Regel::Geschlecht, platz, Dienerplatznr(blick.Messe, slot - 1)});
    if (blick.IstWochendienst && kenntnis.Ungern[1])
        Melden(befunde, {Stufe::Verstoß, Regel::Wochendienst, platz});
    if (blick.Wunschstelle != 0 && kenntnis.Ungern[static_cast<std::size_t>(blick.Wunschstelle)])
        Melden(befunde, {Stufe::Verstoß, Regel::Wochentag, platz});
    PartnerPrüfen(blick, slot, befunde);
}

bool Messenprüfung::IstFalscheGröße(const Dienerperson &person, const Dienerplatz &platz,
                                    Int16 bezug)
{
    try {
        return GrößePrüfen(person, platz, {.MittelGröße = bezug}) != Grund::Keiner;
    } catch (const Laufzeitfehler &) { // a tolerance without limits
        return false;
    }
}

/// Of the pair that the slot closes. Where the program itself puts the two sexes together, it is
/// only worth a look: wish partners, services set by hand, and the server after a pair of wish
/// partners that does not begin at an odd slot, who is compared with the first of them.
std::optional<Stufe> Messenprüfung::GeschlechtGrad(const Messenblick &blick, int slot) const
{
    const int j = blick.Am(slot);
    const int nachbar = blick.Am(slot - 1);
    if (j < 0 || nachbar < 0)
        return std::nullopt;
    if (diener[static_cast<std::size_t>(j)].Geschlecht ==
        diener[static_cast<std::size_t>(nachbar)].Geschlecht)
        return std::nullopt; // fits in any slot
    const auto passtZu = [&](int anderer) {
        return GeschlechtPrüfen({tabellen.Diener, j},
                                {tabellen.Messen, tabellen.Einstellungen, blick.Messe, slot},
                                {.LetztesGeschlecht = tabellen.Diener.Geschlecht[anderer]}) ==
               Grund::Keiner;
    };
    if (passtZu(nachbar))
        return std::nullopt;
    const int vorNachbar = slot > 2 ? blick.Am(slot - 2) : Namensregister::Frei;
    const bool gewollt =
        plan.Partner(j) == nachbar || plan.Partner(nachbar) == j || IstSlotVonHand(blick, slot) ||
        IstSlotVonHand(blick, slot - 1) ||
        (vorNachbar >= 0 && plan.Partner(vorNachbar) == nachbar && passtZu(vorNachbar));
    return gewollt ? Stufe::Hinweis : Stufe::Verstoß;
}

/// Not if the partner is away on this day, or is nobody.
void Messenprüfung::PartnerPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const
{
    const int partner = plan.Partner(blick.Am(slot));
    if (partner < 0 || blick.Am(slot - 1) == partner || blick.Am(slot + 1) == partner)
        return;
    const Planplatz platz = Dienerplatznr(blick.Messe, slot);
    const auto dort = std::ranges::find(blick.Wer, partner);
    if (dort != blick.Wer.end())
        Melden(befunde, {Stufe::Hinweis, Regel::Wunschpartner, platz,
                         Dienerplatznr(blick.Messe, static_cast<int>(dort - blick.Wer.begin()))});
    else if (!diener[static_cast<std::size_t>(partner)].IstAbwesend(blick.Tag))
        Melden(befunde, {Stufe::Hinweis, Regel::Wunschpartner, platz, platz});
}

void Messenprüfung::HelferplätzePrüfen(int messe, Befunde &befunde) const
{
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr) {
        const Planplatz platz = Helferplatznr(messe, nr);
        const Helferplatz &art = Helferplätze[static_cast<std::size_t>(nr)];
        if (!art.Nötig(tabellen.Messen, messe))
            continue;
        const Stelle stelle = Planregister::StelleVon(platz);
        const int wer = plan.Wer(stelle);
        if (wer >= 0) {
            if (IstKurzNachDienst(stelle, plan.Tag(messe)))
                FrüherenDienstMelden(stelle, Stufe::Hinweis, befunde);
            HelferPrüfen(platz, wer - Planregister::ErsterHelfer, befunde);
        } else if (wer != Namensregister::Frei) {
            NamenlosenPrüfen(platz, wer, befunde);
        } else {
            Melden(befunde, {Stufe::Verstoß, Regel::Frei, platz});
        }
    }
}

/// The draw puts any helper in the place of any service but the Lektor's, unless he has entered it
/// twice: whoever has not entered it is only worth a look there.
void Messenprüfung::HelferPrüfen(Planplatz platz, int nr, Befunde &befunde) const
{
    const Helferkenntnis &kenntnis = helfer[static_cast<std::size_t>(nr)];
    const std::size_t art = NummerDer(Helferplätze[static_cast<std::size_t>(platz.Nr)].Art);
    if (kenntnis.IstAbwesend(plan.Tag(platz.Messe)))
        Melden(befunde, {Stufe::Verstoß, Regel::Abwesend, platz});
    if (kenntnis.Gegen[art] != Grund::Keiner || !kenntnis.Hat[art])
        Melden(befunde, {kenntnis.Gegen[art] == Grund::OhneDienst ? Stufe::Verstoß : Stufe::Hinweis,
                         Regel::Helferdienst, platz});
}

void Messenprüfung::GegenPersonPrüfen(Planplatz platz, int nr, Befunde &befunde) const
{
    const bool helfend = platz.Was == Planplatz::Art::Helfer;
    const int person = helfend ? Planregister::ErsterHelfer + nr : nr;
    if (helfend) {
        AndereDienstePrüfen(platz, person, Stufe::Hinweis, befunde);
        HelferPrüfen(platz, nr, befunde);
    } else {
        DienergründePrüfen(platz, nr, befunde);
    }
    if (plan.IstNamensgleich(person))
        Melden(befunde, {Stufe::Hinweis, Regel::Mehrdeutig, platz});
}

void Messenprüfung::DienergründePrüfen(Planplatz platz, int nr, Befunde &befunde) const
{
    const Messenblick jetzt = Ansehen(platz.Messe);
    Messenblick dann = jetzt;
    dann.Am(platz.Nr) = nr;
    BezugsgrößenRechnen(dann);
    AndereDienstePrüfen(platz, nr, Stufe::Verstoß, befunde);
    const std::size_t vorher = befunde.size();
    DienerPrüfen(dann, platz.Nr, befunde);
    const bool partnerGemeldet =
        std::any_of(befunde.begin() + static_cast<std::ptrdiff_t>(vorher), befunde.end(),
                    [](const Befund &b) { return b.Gegen == Regel::Wunschpartner; });
    // The draw keeps the last place for somebody without a partner, even if the partner is away.
    if (!partnerGemeldet && platz.Nr == dann.Plätze && HatWunschpartner(tabellen.Diener, nr) &&
        dann.Am(platz.Nr - 1) != plan.Partner(nr))
        Melden(befunde, {Stufe::Hinweis, Regel::Wunschpartner, platz, GanzeMesse(platz.Messe)});
    const int paare = plan.Paare(nr);
    if (SindZuVielePaare(platz, nr, paare))
        Melden(befunde, {Stufe::Hinweis, Regel::Häufigkeit, platz, {}, paare});
    const FesteSlots *fest = FesteDer(platz.Messe);
    const int eintrag = fest ? (*fest)[static_cast<std::size_t>(platz.Nr)] : -1;
    if (eintrag >= 0 && platz.Nr <= dann.Plätze &&
        !IstFestErfüllt(eintrag, platz.Nr, nr,
                        {tabellen.Diener.Vorname[nr], tabellen.Diener.Nachname[nr]}))
        Melden(befunde, {Stufe::Verstoß, Regel::FesterEintrag, platz, {}, eintrag});
    GeschlechterDanachPrüfen(jetzt, dann, platz.Nr, befunde);
}

/// Pairs that another server in a slot would break: the one that it begins, and the next one, if
/// that was compared with this slot.
void Messenprüfung::GeschlechterDanachPrüfen(const Messenblick &jetzt, const Messenblick &dann,
                                             int slot, Befunde &befunde) const
{
    const int geschlossen = slot % 2 == 1 ? slot + 1 : slot + 2; // the even slot
    if (geschlossen > dann.Plätze || GeschlechtGrad(dann, geschlossen) != Stufe::Verstoß ||
        (slot % 2 == 0 && GeschlechtGrad(jetzt, geschlossen) == Stufe::Verstoß))
        return;
    const Planplatz platz = Dienerplatznr(dann.Messe, slot);
    const Planplatz bezug = Dienerplatznr(dann.Messe, geschlossen);
    if (slot % 2 == 1)
        Melden(befunde, {Stufe::Verstoß, Regel::Geschlecht, platz, bezug});
    else
        Melden(befunde, {Stufe::Verstoß, Regel::Geschlecht, bezug,
                         Dienerplatznr(dann.Messe, geschlossen - 1)});
}

} // namespace altardienst
