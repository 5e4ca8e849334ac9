// What the program tells beside its windows.
#include "application/Mitteilung.h"

#include "application/Statuszeile.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"

#include <QApplication>

#include <algorithm>

namespace altardienst {
namespace {

/// There is one at most, in the main window.
void InDerStatuszeile(void (Statuszeile::*tun)())
{
    const QWidgetList fenster = QApplication::topLevelWidgets();
    for (const QWidget *eines : fenster)
        for (QObject *kind : eines->children())
            if (auto *zeile = dynamic_cast<Statuszeile *>(kind))
                (zeile->*tun)();
}

} // namespace

Mitteilungsstand &Mitteilungen()
{
    static Mitteilungsstand stand;
    return stand;
}

void Mitteilen(const Text &was)
{
    Mitteilungen().Letzte = StundenUndMinuten(ZeitAus(Uhr.Sekunden())) + " " + was;
    InDerStatuszeile(&Statuszeile::MitteilungZeigen);
}

void DauerndMitteilen(const Text &abschnitt, const Text &text)
{
    auto &alle = Mitteilungen().Dauernd;
    const auto stelle = std::ranges::find(alle, abschnitt, &std::pair<Text, Text>::first);
    if (stelle != alle.end())
        stelle->second = text;
    else
        alle.emplace_back(abschnitt, text);
    std::erase_if(alle, [](const auto &einer) { return einer.second.empty(); });
    InDerStatuszeile(&Statuszeile::DauerndesZeigen);
}

} // namespace altardienst
