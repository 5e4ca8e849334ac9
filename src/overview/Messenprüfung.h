// The rules of the plan, mass by mass.
#pragma once

#include "assignment/Dienste.h"
#include "assignment/Gründe.h"
#include "overview/Abwesenheiten.h"
#include "overview/Befund.h"
#include "overview/Planregister.h"

#include <array>
#include <optional>
#include <vector>

namespace altardienst {

/// Every condition is the one that the draw tests (assignment/Gründe.h). What a test has to know
/// about the run is read from the finished plan: the height reference and the sex of the server
/// before from the slots before, who is taken from the services of the same and the day before.
class Messenprüfung {
  public:
    Messenprüfung(const Plantabellen &tabellen, const Planregister &plan)
        : tabellen(tabellen), plan(plan)
    {
    }

    /// Reads what is the same for all masses. Needed after `Planregister::Neu`.
    void Neu();

    /// Appends the findings of a mass: its own, then those of its places in their order.
    void Prüfen(int messe, std::vector<Befund> &befunde) const;

    /// Appends what would be wrong if this record stood in the place, in the order of the rules,
    /// then what would only then be wrong with others.
    void GegenPersonPrüfen(Planplatz platz, int nr, std::vector<Befund> &befunde) const;

  private:
    static constexpr int Slots = MesseTabelle::HöchsterSlot;

    /// What the slots of a mass share.
    struct Messenblick {
        int Messe;
        Datum Tag;
        int Plätze;
        std::array<int, Slots + 2>
            Wer; // by slot; nobody stands before the first and after the last
        Slotdienste Dienste;
        bool IstWochendienst;
        int Wunschstelle;
        bool HatVonHand;                                   // a service that is set by hand
        std::array<std::optional<Int16>, 5> Bezugsgröße{}; // by slot, from 4 on the same

        const Dienstart &Dienst(int slot) const
        {
            return *Dienste[static_cast<std::size_t>(slot - 1)];
        }
        int &Am(int slot) { return Wer[static_cast<std::size_t>(slot)]; }
        int Am(int slot) const { return Wer[static_cast<std::size_t>(slot)]; }
    };

    /// What the tables say of a person, ready to be looked up for each place: two cache lines.
    struct alignas(64) Kenntnis {
        std::array<Fehlzeit, 5> Abwesenheiten{}; // the first ones are set, by their beginning
        int Abwesend = 0;                        // how many

        /// A mass without a date is on no day.
        bool IstAbwesend(Datum tag) const
        {
            for (int k = 0; k < Abwesend; ++k) {
                const Fehlzeit &a = Abwesenheiten[static_cast<std::size_t>(k)];
                if (tag < a.Von)
                    return false; // so do all later ones begin after it
                if (LiegtIn(tag, a.Von, a.Bis))
                    return tag != 0;
            }
            return false;
        }
    };
    struct Dienerkenntnis : Kenntnis {
        std::array<bool, Dienstarten.size()> Darf{};
        std::array<bool, 7> Ungern{}; // by the position of the weekly wish
        int Geschlecht = 0;           // the same number for the same text
    };
    struct Helferkenntnis : Kenntnis {
        std::array<bool, Helferarten.size()> Hat{};
        std::array<Grund, Helferarten.size()> Gegen{};
    };

    using Befunde = std::vector<Befund>;
    using FesteSlots = std::array<int, Slots + 1>; // entry by slot, -1 none

    /// Kept out of the checks, where it would take the room of what runs for each place.
    [[gnu::noinline]] static void Melden(Befunde &befunde, const Befund &befund)
    {
        befunde.push_back(befund);
    }

    void DienerLesen();
    void HelferLesen();
    void FesteLesen();
    Messenblick Ansehen(int messe) const;
    void BezugsgrößenRechnen(Messenblick &blick) const;
    bool IstSlotVonHand(const Messenblick &blick, int slot) const;
    const FesteSlots *FesteDer(int messe) const;

    void MessePrüfen(const Messenblick &blick, Befunde &befunde) const;
    void SlotPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const;
    void NamenlosenPrüfen(Planplatz platz, int wer, Befunde &befunde) const;
    /// Whether a service of the same person comes so shortly before this one that it blocks it.
    bool IstKurzNachDienst(Stelle stelle, Datum tag) const
    {
        const Stelle vorige = plan.Davor(stelle);
        return vorige != Planregister::Keine &&
               IstGesperrt(plan.Tag(Planregister::MesseVon(vorige)), tag);
    }
    void FrüherenDienstMelden(Stelle stelle, Stufe nachbarn, Befunde &befunde) const;
    void AndereDienstePrüfen(Planplatz platz, int person, Stufe nachbarn, Befunde &befunde) const;
    void DienerPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const;
    static bool IstFalscheGröße(const Dienerperson &person, const Dienerplatz &platz, Int16 bezug);
    std::optional<Stufe> GeschlechtGrad(const Messenblick &blick, int slot) const;
    void PartnerPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const;
    void HäufigkeitPrüfen(Planplatz platz, int nr, Befunde &befunde) const;
    bool SindZuVielePaare(Planplatz platz, int diener, int paare) const;
    bool IstFestErfüllt(int eintrag, int slot, int diener, Platzname name) const;
    void DienergründePrüfen(Planplatz platz, int nr, Befunde &befunde) const;
    void HelferplätzePrüfen(int messe, Befunde &befunde) const;
    void HelferPrüfen(Planplatz platz, int nr, Befunde &befunde) const;
    void GeschlechterDanachPrüfen(const Messenblick &jetzt, const Messenblick &dann, int slot,
                                  Befunde &befunde) const;

    const Plantabellen &tabellen;
    const Planregister &plan;
    std::array<Dienerkenntnis, MeßdienerTabelle::HöchsterIndex + 1> diener;
    std::array<Helferkenntnis, HelferTabelle::HöchsterIndex + 1> helfer;
    std::vector<int> zurSelbenZeit; // another mass before it in the order of time, -1 none
    std::vector<int> festeDer;      // index in `feste`, -1 none
    std::vector<FesteSlots> feste;
    std::optional<Int16> anteil; // pairs for a server with normal frequency
    bool allesAußerhalb = false; // no mass is in the period
};

} // namespace altardienst
