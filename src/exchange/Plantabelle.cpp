// The plan as rows of a table.
#include "exchange/Plantabelle.h"

#include "assignment/Dienste.h"
#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "exchange/Planauszug.h"
#include "overview/Platz.h"

#include <array>

namespace altardienst::Plantabelle {
namespace {

// Both begin with when and what, ready as fields.
constexpr std::size_t Terminspalten = 4;
using Termin = std::array<std::string, Terminspalten>;

enum Dienstspalte { SVorname = Terminspalten, SNachname, SDienst, SArt };

Termin TerminVon(int messe)
{
    Termin termin = {"?", "?", "?", ""};
    if (HatTermin(Messe, messe))
        termin = {WochentagName(Messe.Datum[messe]), KurzesDatum(Messe.Datum[messe]),
                  StundenUndMinuten(Messe.Uhrzeit[messe]), ""};
    TextfeldAnhängen(termin.back(), Messe.Messeart[messe]);
    return termin;
}

/// Calls `je` with each service of a mass that somebody has: its number in both tables of kinds,
/// servers first, its name and who has it.
template <class F> void FürJedenDienst(int messe, F je)
{
    const Slotdienste dienste = DiensteNachZahl(Messe, messe);
    for (int slot = 1; slot <= Dienerplätze(Messe, messe); ++slot) {
        const Dienstart &art = *dienste.at(static_cast<std::size_t>(slot - 1));
        const auto nummer = static_cast<std::size_t>(&art - Dienstarten.data());
        je(nummer, art.Name, NameAm(Messe, Dienerplatznr(messe, slot)));
    }
    for (std::size_t nr = 0; nr < Helferplätze.size(); ++nr) {
        const Planplatz platz = Helferplatznr(messe, static_cast<int>(nr));
        if (IstGewünscht(Messe, platz))
            je(Dienstarten.size() + NummerDer(Helferplätze[nr].Art), Helferplätze[nr].Art.Name,
               NameAm(Messe, platz));
    }
}

void DiensteAnhängen(std::string &bytes, int messe, const std::vector<int> &spalten)
{
    const Termin termin = TerminVon(messe);
    FürJedenDienst(messe, [&](std::size_t nummer, Festtext dienst, const Platzname &name) {
        if (name.IstFrei())
            return;
        for (std::size_t k = 0; k < spalten.size(); ++k) {
            if (k > 0)
                bytes += Feldtrenner;
            switch (const int spalte = spalten[k]) {
            case SVorname:
                TextfeldAnhängen(bytes, name.Vorname);
                break;
            case SNachname:
                TextfeldAnhängen(bytes, name.Nachname);
                break;
            case SDienst:
                bytes += dienst;
                break;
            case SArt:
                bytes += nummer < Dienstarten.size() ? "Meßdiener" : "Helfer";
                break;
            default:
                bytes += termin.at(static_cast<std::size_t>(spalte));
            }
        }
        bytes += Zeilenende;
    });
}

void MesseAnhängen(std::string &bytes, int messe, const std::vector<int> &spalten)
{
    const Termin termin = TerminVon(messe);
    std::array<Text, Dienstarten.size() + Helferarten.size()> namen;
    FürJedenDienst(messe, [&](std::size_t nummer, Festtext, const Platzname &name) {
        if (name.IstFrei())
            return;
        Text &alle = namen.at(nummer);
        if (!alle.empty())
            alle += ", ";
        alle += VollerName(name.Vorname, name.Nachname);
    });
    for (std::size_t k = 0; k < spalten.size(); ++k) {
        if (k > 0)
            bytes += Feldtrenner;
        const auto spalte = static_cast<std::size_t>(spalten[k]);
        if (spalte < Terminspalten)
            bytes += termin[spalte];
        else
            TextfeldAnhängen(bytes, namen.at(spalte - Terminspalten));
    }
    bytes += Zeilenende;
}

} // namespace

std::vector<Text> JeDienst()
{
    return {"Wochentag", "Datum", "Uhrzeit", "Messe", "Vorname", "Nachname", "Dienst", "Art"};
}

std::vector<Text> JeMesse()
{
    std::vector<Text> spalten = {"Wochentag", "Datum", "Uhrzeit", "Messe"};
    for (const Dienstart &art : Dienstarten)
        spalten.emplace_back(art.Name);
    for (const Helferart &art : Helferarten)
        spalten.emplace_back(art.Name);
    return spalten;
}

int Zeilen(bool jeDienst)
{
    const int messen = GemeinsameTabellen().Messenzahl();
    int dienste = 0;
    for (int i = 0; jeDienst && i < messen; ++i)
        FürJedenDienst(i, [&dienste](std::size_t, Festtext, const Platzname &name) {
            dienste += name.IstFrei() ? 0 : 1;
        });
    return jeDienst ? dienste : messen;
}

void Anhängen(std::string &bytes, bool jeDienst, const std::vector<int> &spalten)
{
    for (int i = 0; i < GemeinsameTabellen().Messenzahl(); ++i)
        (jeDienst ? DiensteAnhängen : MesseAnhängen)(bytes, i, spalten);
}

} // namespace altardienst::Plantabelle
