// What one row of a table says.
#include "exchange/Zeilenlesung.h"

#include "core/Tabellentext.h"

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr const char *ÜblicheGröße = "150"; // cm, as the dialog proposes it

} // namespace

Zeilenlesung::Zeilenlesung(const Einleseauftrag &auftrag)
    : auftrag(auftrag), größe(SpalteNamens(auftrag.Art, "Größe")),
      gruppe(SpalteNamens(auftrag.Art, "Gruppe"))
{
}

/// Calls for each of our columns of which the row says something.
void Zeilenlesung::Verteilen(const std::vector<Text> &felder,
                             const std::function<void(int spalte, const Text &feld)> &nimm) const
{
    for (std::size_t k = 0; k < auftrag.Spalten.size(); ++k) {
        const int spalte = auftrag.Spalten[k];
        if (spalte == KeineSpalte)
            continue;
        const Text feld = k < felder.size() ? TextDesFelds(felder[k]) : Text();
        const auto *const doppelte =
            std::ranges::find(Doppelspalten, spalte, &Doppelspalte::Nummer);
        if (doppelte == Doppelspalten.end()) {
            nimm(spalte, feld);
            continue;
        }
        Text eine;
        Text andere;
        doppelte->Teilen(feld, eine, andere);
        nimm(doppelte->Eine, eine);
        nimm(doppelte->Andere, andere);
    }
}

Personenname Zeilenlesung::NameIn(const std::vector<Text> &felder) const
{
    Personenname name;
    Verteilen(felder, [&name](int spalte, const Text &feld) {
        if (spalte == SpalteVorname)
            name.Vorname = feld;
        else if (spalte == SpalteNachname)
            name.Nachname = feld;
    });
    return name;
}

std::vector<Text> Zeilenlesung::Lesen(const std::vector<Text> &felder)
{
    werte.clear();
    leere.clear();
    bedenken.clear();
    std::vector<Text> zweifel;
    Verteilen(felder, [&](int spalte, const Text &feld) {
        if (Text warum = FeldLesen(spalte, feld); !warum.empty())
            zweifel.push_back(std::move(warum));
    });
    return zweifel;
}

/// Returns why the field cannot be taken.
Text Zeilenlesung::FeldLesen(int spalte, const Text &feld)
{
    const Listenspalte &unsere = SpalteMit(auftrag.Art, spalte);
    if (feld.empty() && !unsere.LeerHeißtNein) {
        leere.insert(spalte);
        return "";
    }
    Feldlesung lesung = unsere.Lesen(feld);
    Text zweifel = lesung.Zweifel.empty() ? Text() : unsere.Name + ": " + lesung.Zweifel;
    if (!zweifel.empty() && lesung.Wert.empty())
        return zweifel;
    if (!zweifel.empty())
        bedenken[spalte] = {zweifel, true};
    else if (spalte == gruppe && !auftrag.GruppenAnlegen && !GibtEsGruppe(lesung.Wert))
        bedenken[spalte] = {"Gruppe: Die Gruppe „" + lesung.Wert + "“ gibt es nicht.", false};
    werte[spalte] = std::move(lesung.Wert);
    return "";
}

Text Zeilenlesung::Wert(int spalte) const
{
    const auto stelle = werte.find(spalte);
    return stelle == werte.end() ? Text() : stelle->second;
}

std::vector<Feldänderung> Zeilenlesung::Änderungen(int datensatz) const
{
    std::vector<Feldänderung> änderungen;
    for (const auto &[spalte, wert] : werte) {
        const Text alt = datensatz < 0 ? Text() : SpalteMit(auftrag.Art, spalte).Wert(datensatz);
        if (wert != alt)
            änderungen.push_back({spalte, alt, wert});
    }
    if (datensatz < 0 && auftrag.Art == Personenart::Diener && Wert(größe).empty())
        änderungen.push_back({größe, "", ÜblicheGröße});
    if (datensatz < 0 || !auftrag.LeeresLöscht)
        return änderungen;
    for (const int spalte : leere) {
        const Listenspalte &unsere = SpalteMit(auftrag.Art, spalte);
        const Text alt = unsere.Wert(datensatz);
        if (const Text leer = unsere.Lesen("").Wert; alt != leer)
            änderungen.push_back({spalte, alt, leer});
    }
    return änderungen;
}

const Zeilenlesung::Bedenken *Zeilenlesung::Gegen(int spalte) const
{
    const auto stelle = bedenken.find(spalte);
    return stelle == bedenken.end() ? nullptr : &stelle->second;
}

} // namespace altardienst
