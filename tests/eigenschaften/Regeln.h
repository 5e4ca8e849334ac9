// The rules of a plan, written a second time for the random parishes: a finished plan is checked
// against them slot by slot. Shares no code with the assignment.
#pragma once

#include "Gemeinde.h"

#include <cmath>
#include <map>
#include <set>

namespace altardienst {

/// What has happened up to a slot.
struct Verlauf {
    std::map<int, Datum> Zuletzt; // date of the last placement
    std::set<int> Vergeben;       // taken servers
    std::map<int, int> Paare;

    void Setzen(int j, Datum tag)
    {
        Vergeben.insert(j);
        Zuletzt[j] = tag;
    }

    /// Frees everybody except those placed on this date or the day before.
    void Freigeben(Datum tag)
    {
        std::erase_if(Vergeben, [&](int j) {
            auto letzter = Zuletzt.find(j);
            Datum d = letzter == Zuletzt.end() ? 0 : letzter->second;
            return d != tag && d != tag - 1;
        });
    }

    /// The end of a mass in the ways with a rotation.
    void Abschließen(Datum tag)
    {
        const double anteil = static_cast<double>(Vergeben.size()) / Meßdiener.Anzahl * 100;
        if (static_cast<int>(std::lrint(anteil)) >= Konfig.GrenzeAuslöse)
            Freigeben(tag);
    }
};

/// The server whose name is in a slot, -1 for none. All names differ.
inline int WerSteht(int i, int slot)
{
    const Text &vor = Messe.DienerVor[i][slot];
    if (vor.size() < 2 || vor[0] != 'V')
        return -1;
    const int j = std::stoi(vor.substr(1));
    const bool er = j < Meßdiener.Anzahl && Meßdiener.Vorname[j] == vor &&
                    Meßdiener.Nachname[j] == Messe.DienerNach[i][slot] &&
                    !Messe.DienerNach[i][slot].empty();
    return er ? j : -1;
}

inline bool StehtUnberührt(int i, int slot)
{
    return Messe.DienerVor[i][slot] == Unberührt && Messe.DienerNach[i][slot] == Unberührt;
}

inline bool IstWeg(Datum tag, Datum von, Datum bis)
{
    return von <= tag && tag <= bis;
}

/// Absences, week wishes, qualification for the service of the slot: what applies to each drawn
/// server whatever else is in the plan.
inline Text VerstoßFürSich(int i, int slot, int j, bool dienstZählt)
{
    const Datum tag = Messe.Datum[i];
    if (IstWeg(tag, Meßdiener.Von1[j], Meßdiener.Bis1[j]) ||
        IstWeg(tag, Meßdiener.Von2[j], Meßdiener.Bis2[j]) ||
        IstWeg(tag, Meßdiener.Von3[j], Meßdiener.Bis3[j]) ||
        IstWeg(tag, Meßdiener.Von4[j], Meßdiener.Bis4[j]) ||
        IstWeg(tag, Meßdiener.Von5[j], Meßdiener.Bis5[j]))
        return "absent";
    const Text &wunsch = Meßdiener.Wochendienst[j];
    if (Messe.Messeart[i] == "Wochendienst" && wunsch[0] == 'j')
        return "weekday service";
    const std::map<Text, std::size_t> tage = {
        {"Montag", 1}, {"Dienstag", 2}, {"Mittwoch", 3}, {"Donnerstag", 4}, {"Freitag", 5}};
    auto wochentag = tage.find(Messe.Wochentag[i]);
    if (Messe.Kennung[i] == "s" && wochentag != tage.end() && wunsch[wochentag->second] == 'j')
        return "week wish";
    const std::map<Text, std::size_t> stellen = {{"Gabenbereitung", 0},
                                                 {"Leuchter", 1},
                                                 {"Flambeau", 2},
                                                 {"Weihrauch", 3},
                                                 {"Kreuzträger", 4}};
    auto stelle = stellen.find(Messe.DienerDienst[i][slot - 1]);
    if (dienstZählt && stelle != stellen.end() && Meßdiener.Qualifikation[j][stelle->second] != 'j')
        return "qualification";
    return "";
}

/// The height reference after a slot, in whole numbers.
inline int NeueMittelgröße(int slot, int mittel, int größe)
{
    if (slot == 1)
        return größe;
    if (slot == 2) {
        const int summe = größe + mittel;
        const int halb = summe / 2;
        return summe % 2 == 0 || halb % 2 == 0 ? halb : halb + 1;
    }
    if (slot == 3)
        return (2 * (größe + 2 * mittel) + 3) / 6; // a third is never a half
    return mittel;
}

/// No server is in the mass twice.
inline Text VerstoßDoppelt(int i)
{
    std::set<int> gesehen;
    for (int slot = 1; slot <= 20; ++slot)
        if (int j = WerSteht(i, slot); j >= 0 && !gesehen.insert(j).second)
            return "twice";
    return "";
}

/// Nobody serves on a date and again in another mass on that date or on the next day.
inline Text VerstoßGegenSperre()
{
    std::map<int, std::set<std::pair<Datum, int>>> dienste;
    for (int i = 0; i < Messe.Anzahl; ++i)
        for (int slot = 1; slot <= 20; ++slot)
            if (int j = WerSteht(i, slot); j >= 0)
                dienste[j].insert({Messe.Datum[i], i});
    for (const auto &[j, tage] : dienste) {
        const std::pair<Datum, int> *zuvor = nullptr;
        for (const auto &tag : tage) {
            if (zuvor && tag.first - zuvor->first < 2)
                return "block by date: V" + std::to_string(j);
            zuvor = &tag;
        }
    }
    return "";
}

} // namespace altardienst
