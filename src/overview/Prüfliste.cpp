// The findings as a list: in groups, and on paper.
#include "overview/Prüfliste.h"

#include "core/Messenname.h"
#include "printing/Druckrahmen.h"

#include <algorithm>
#include <map>

namespace altardienst {
namespace {

/// The last word of a full name comes first where people are sorted.
Text Sortiername(const Text &name)
{
    const std::size_t ende = name.rfind(' ');
    return ende == Text::npos ? name : name.substr(ende + 1) + ' ' + name;
}

std::vector<Befundgruppe> NachMessen(const Planprüfung &prüfung)
{
    std::vector<Befundgruppe> gruppen;
    for (int messe = 0; messe < prüfung.Tabellen().Messenzahl(); ++messe)
        if (const std::vector<Befund> &befunde = prüfung.Von(messe); !befunde.empty())
            gruppen.push_back({Messenüberschrift(prüfung.Tabellen().Messen, messe), befunde});
    return gruppen;
}

std::vector<Befundgruppe> NachPersonen(const Planprüfung &prüfung)
{
    std::map<Text, Befundgruppe> nachName;
    Befundgruppe ohne{"Ohne Namen", {}};
    for (const Befund &befund : prüfung.Alle()) {
        const Text name = Betroffener(prüfung.Tabellen(), befund);
        Befundgruppe &gruppe = name.empty() ? ohne : nachName[Sortiername(name)];
        if (!name.empty())
            gruppe.Titel = name;
        gruppe.Befunde.push_back(befund);
    }
    std::vector<Befundgruppe> gruppen;
    gruppen.reserve(nachName.size() + 1);
    for (auto &[_, gruppe] : nachName)
        gruppen.push_back(std::move(gruppe));
    if (!ohne.Befunde.empty())
        gruppen.push_back(std::move(ohne));
    return gruppen;
}

/// A line on paper goes on beyond the margin; a sentence is broken between its words.
std::vector<Text> Umbrochen(const Text &text)
{
    constexpr int ZeichenMalPunkte = 1000; // on portrait paper, with room to spare
    const int zeichen = ZeichenMalPunkte / std::clamp<int>(Konfig.Schriftgröße, 6, 24);
    constexpr const char *Einzug = "      ";
    std::vector<Text> zeilen;
    Text rest = text;
    while (Länge(rest) > zeichen) {
        const Text anfang = Links(rest, zeichen);
        const std::size_t lücke = anfang.rfind(' ');
        if (lücke == Text::npos || anfang.find_first_not_of(' ') > lücke)
            break; // one endless word
        zeilen.push_back(rest.substr(0, lücke));
        rest = Einzug + rest.substr(lücke + 1);
    }
    zeilen.push_back(rest);
    return zeilen;
}

Text Druckzeile(const Planprüfung &prüfung, const Befund &befund, Gliederung gliederung)
{
    const Text grad = befund.Grad == Stufe::Verstoß ? "Verstoß" : "Hinweis";
    const Text satz = Satz(prüfung.Tabellen(), befund);
    if (gliederung == Gliederung::NachMesse)
        return grad + ": " + satz;
    return grad + ", " + Messenzeile(prüfung.Tabellen().Messen, befund.Wo.Messe) + ": " + satz;
}

} // namespace

Text Befundzahlen(const Planprüfung &prüfung, const Regelwahl &regeln)
{
    int verstöße = 0;
    int hinweise = 0;
    for (int messe = 0; messe < prüfung.Tabellen().Messenzahl(); ++messe)
        for (const Befund &befund : prüfung.Von(messe))
            if (Gilt(regeln, befund))
                ++(befund.Grad == Stufe::Verstoß ? verstöße : hinweise);
    Text text = Befundzahl(verstöße, hinweise);
    const char *davor = " (nicht beachtet: ";
    for (std::size_t nr = 0; nr < regeln.size(); ++nr)
        if (!regeln[nr]) {
            text += davor + Regelname(static_cast<Regel>(nr));
            davor = ", ";
        }
    if (regeln != AlleRegeln)
        text += ")";
    return text;
}

std::vector<Befundgruppe> Befundgruppen(const Planprüfung &prüfung, Gliederung gliederung,
                                        const Regelwahl &regeln)
{
    std::vector<Befundgruppe> gruppen =
        gliederung == Gliederung::NachMesse ? NachMessen(prüfung) : NachPersonen(prüfung);
    for (Befundgruppe &gruppe : gruppen)
        std::erase_if(gruppe.Befunde, [&](const Befund &b) { return !Gilt(regeln, b); });
    std::erase_if(gruppen, [](const Befundgruppe &gruppe) { return gruppe.Befunde.empty(); });
    return gruppen;
}

void PrüflisteDrucken(const Planprüfung &prüfung, Gliederung gliederung, const Regelwahl &regeln)
{
    BerichtDrucken(Druckanfrage::Für("Prüfliste"), [&](int) {
        BerichtEröffnen(
            {"Prüfliste der Pfarrei " + Konfig.Gemeinde, Befundzahlen(prüfung, regeln)});
        Int16 Zeilen = 4;
        for (const Befundgruppe &gruppe : Befundgruppen(prüfung, gliederung, regeln)) {
            Drucker->FontBold(true);
            ZeileDrucken(gruppe.Titel);
            Drucker->FontBold(false);
            Zeilen += 1;
            for (const Befund &befund : gruppe.Befunde) {
                const std::vector<Text> zeilen = Umbrochen(Druckzeile(prüfung, befund, gliederung));
                for (const Text &zeile : zeilen)
                    ZeileDrucken(zeile);
                Zeilen += static_cast<int>(zeilen.size());
                if (&befund != &gruppe.Befunde.back())
                    SeitePrüfen(Zeilen, 3);
            }
            Leerzeile();
            Zeilen += 1;
            SeitePrüfen(Zeilen, 4);
        }
        Drucker->NewPage();
        Drucker->EndDoc();
    });
}

} // namespace altardienst
