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
    constexpr int Zeichen = 84;
    constexpr const char *Einzug = "      ";
    std::vector<Text> zeilen;
    Text rest = text;
    while (Länge(rest) > Zeichen) {
        const Text anfang = Links(rest, Zeichen);
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

std::vector<Befundgruppe> Befundgruppen(const Planprüfung &prüfung, Gliederung gliederung)
{
    return gliederung == Gliederung::NachMesse ? NachMessen(prüfung) : NachPersonen(prüfung);
}

void PrüflisteDrucken(const Planprüfung &prüfung, Gliederung gliederung)
{
    BerichtDrucken(Druckanfrage::Für("Prüfliste"), [&](int) {
        BerichtEröffnen({"Prüfliste der Pfarrei " + Konfig.Gemeinde,
                         Befundzahl(prüfung.Verstöße(), prüfung.Hinweise())});
        Int16 Zeilen = 4;
        for (const Befundgruppe &gruppe : Befundgruppen(prüfung, gliederung)) {
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
