// Undo and redo of whole steps, in memory.
#include "history/Rückgängig.h"

#include "core/SchleifenZähler.h"
#include "history/Aufnahme.h"
#include "history/Änderungsname.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

struct Geschehenes {
    Text Name;
    Text Ziel; // of changes by hand: those of the same record join in; empty: no others do
    Aufnahme Vorher, Nachher;
};

struct Mitschrift {
    Aufnahme Bekannt; // at the last look
    std::vector<Geschehenes> Schritte;
    std::size_t Stelle = 0; // those before it can be taken back, the others repeated
    std::size_t Vergessene = 0;
    std::optional<Text> Ausstehend;
    bool InSchritt = false;
};

std::unique_ptr<Mitschrift> mitschrift; // null while no steps are kept

std::size_t Platz(const std::vector<Geschehenes> &schritte)
{
    std::set<const std::string *> pakete;
    std::size_t platz = 0;
    for (const Geschehenes &schritt : schritte)
        for (const Aufnahme *aufnahme : {&schritt.Vorher, &schritt.Nachher})
            for (const auto &paket : aufnahme->Teile)
                if (pakete.insert(paket.get()).second)
                    platz += paket->size();
    return platz;
}

void Vergessen()
{
    auto &schritte = mitschrift->Schritte;
    while (schritte.size() > MeisteSchritte ||
           (schritte.size() > WenigsteSchritte && Platz(schritte) > PlatzFürSchritte)) {
        schritte.erase(schritte.begin());
        ++mitschrift->Vergessene;
    }
}

void Anfügen(Geschehenes schritt)
{
    auto &schritte = mitschrift->Schritte;
    schritte.resize(mitschrift->Stelle); // what was taken back cannot be repeated any more
    if (!schritt.Ziel.empty() && !schritte.empty() && schritte.back().Ziel == schritt.Ziel)
        schritte.back().Nachher = std::move(schritt.Nachher);
    else
        schritte.push_back(std::move(schritt));
    Vergessen();
    mitschrift->Stelle = schritte.size();
}

void Beobachten()
{
    const Aufnahme damals = mitschrift->Bekannt;
    const Aufnahme jetzt = Jetzt(damals);
    mitschrift->Bekannt = jetzt;
    const std::optional<Text> name = std::exchange(mitschrift->Ausstehend, std::nullopt);
    if (damals.Teile == Aufnahme().Teile)
        return; // there is nothing to compare with
    if (name && jetzt.Teile != damals.Teile) {
        Anfügen({*name, "", damals, jetzt});
    } else if (VonHandGeändert(damals, jetzt)) {
        const Änderung änderung = ÄnderungZwischen(Damalige(damals, jetzt), DieTabellen());
        Anfügen({änderung.Name, änderung.Ziel, damals, jetzt});
    }
}

/// Where the user is: where the step took him, else where he has gone since.
Int16 Stellung(Int16 von, Int16 nach, Int16 jetzt, int höchste)
{
    return von == nach && jetzt <= höchste ? jetzt : nach;
}

void StellungenÜbernehmen(const Stellungen &von, const Stellungen &nach)
{
    constexpr int Beliebig = INT16_MAX;
    const Stellungen jetzt = StellungenJetzt();
    const auto eine = [&](Int16 Stellungen::*welche, int höchste) {
        return Stellung(von.*welche, nach.*welche, jetzt.*welche, höchste);
    };
    StellungenSetzen(
        {eine(&Stellungen::Standardmesse, Beliebig), eine(&Stellungen::Diener, Meßdiener.Anzahl),
         eine(&Stellungen::Messe, Messe.Anzahl), eine(&Stellungen::Gruppe, Gruppe.Anzahl),
         eine(&Stellungen::Messehelfer, Helfer.Anzahl), eine(&Stellungen::Etikett, Beliebig),
         eine(&Stellungen::FesterEintrag, MesseDienerFest.Anzahl)});
}

void Gehen(const Aufnahme &von, const Aufnahme &nach)
{
    const Tabellenstand tabellen = DieTabellen();
    for (const Teil teil : AlleTeile)
        if (von.Paket(teil) != nach.Paket(teil)) {
            Auspacken(teil, *nach.Paket(teil), tabellen);
            mitschrift->Bekannt.Paket(teil) = nach.Paket(teil);
        }
    StellungenÜbernehmen(von.Wo, nach.Wo);
    SchleifenZähler = nach.Schleife;
    mitschrift->Bekannt.Wo = StellungenJetzt();
    mitschrift->Bekannt.Schleife = SchleifenZähler;
}

/// In the middle of a step nothing is taken back.
bool Bereit()
{
    return mitschrift && !mitschrift->InSchritt;
}

/// While it stands, nothing is looked at.
class ImSchritt {
  public:
    ImSchritt() { mitschrift->InSchritt = true; }
    ~ImSchritt()
    {
        if (mitschrift)
            mitschrift->InSchritt = false;
    }
    ImSchritt(const ImSchritt &) = delete;
    ImSchritt &operator=(const ImSchritt &) = delete;
};

} // namespace

std::function<bool()> TabellenUnberührt = [] { return false; };
std::function<void()> SchritteGeändert = [] {};

void SchritteBeginnen()
{
    auto neu = std::make_unique<Mitschrift>();
    neu->Bekannt = Jetzt({});
    mitschrift = std::move(neu);
    SchritteGeändert();
}

void SchritteBeenden()
{
    mitschrift.reset();
    SchritteGeändert();
}

void Schritt(const Text &name, const std::function<void()> &tun)
{
    if (!Bereit())
        return tun();
    if (mitschrift->Ausstehend || !TabellenUnberührt())
        TabellenBeobachten();
    const ImSchritt imSchritt;
    mitschrift->Ausstehend = name;
    tun();
}

/// What is not to be had must not keep the user from working: without memory there is nothing to be
/// taken back.
void TabellenBeobachten()
{
    if (!Bereit())
        return;
    try {
        Beobachten();
    } catch (const std::bad_alloc &) {
        mitschrift->Schritte.clear();
        mitschrift->Stelle = 0;
        mitschrift->Bekannt = {};
    }
    SchritteGeändert();
}

void ÄnderungAbschließen()
{
    TabellenBeobachten();
    if (mitschrift && mitschrift->Stelle > 0)
        mitschrift->Schritte[mitschrift->Stelle - 1].Ziel.clear();
}

bool SchrittAusstehend()
{
    return Bereit() && mitschrift->Ausstehend;
}

Text LetzterSchritt()
{
    return Bereit() && mitschrift->Stelle > 0 ? mitschrift->Schritte[mitschrift->Stelle - 1].Name
                                              : "";
}

Text NächsterSchritt()
{
    return Bereit() && mitschrift->Stelle < mitschrift->Schritte.size()
               ? mitschrift->Schritte[mitschrift->Stelle].Name
               : "";
}

std::size_t Schrittstelle()
{
    return mitschrift ? mitschrift->Vergessene + mitschrift->Stelle : 0;
}

Text SchrittZurücknehmen()
{
    TabellenBeobachten();
    Text name = LetzterSchritt();
    if (name.empty())
        return "";
    const Geschehenes &schritt = mitschrift->Schritte[--mitschrift->Stelle];
    Gehen(schritt.Nachher, schritt.Vorher);
    SchritteGeändert();
    return name;
}

Text SchrittWiederholen()
{
    TabellenBeobachten();
    Text name = NächsterSchritt();
    if (name.empty())
        return "";
    const Geschehenes &schritt = mitschrift->Schritte[mitschrift->Stelle++];
    Gehen(schritt.Vorher, schritt.Nachher);
    SchritteGeändert();
    return name;
}

} // namespace altardienst
