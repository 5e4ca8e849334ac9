// What has been changed by hand, in the words of the menu.
#include "history/Änderungsname.h"

#include "core/Messenname.h"
#include "core/Umwandlung.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace altardienst {
namespace {

/// How the records of a table are called.
template <class Tabelle> struct Art {
    const char *Einzahl;
    const char *Mehrzahl;
    Text (*Name)(const Tabelle &, int);
    bool NameBleibt; // a record of another name is another record, as long as none is renamed
};

struct Satznamen {
    std::vector<Text> Gegangen, Gekommen;
};

template <class Tabelle> int Zahl(const Tabelle &tabelle)
{
    return std::clamp<int>(tabelle.Anzahl, 0, Tabelle::HöchsterIndex + 1);
}

template <class Tabelle> std::vector<Text> Namen(const Art<Tabelle> &art, const Tabelle &tabelle)
{
    std::vector<Text> namen;
    namen.reserve(static_cast<std::size_t>(Zahl(tabelle)));
    for (int i = 0; i < Zahl(tabelle); ++i)
        namen.push_back(art.Name(tabelle, i));
    std::ranges::sort(namen);
    return namen;
}

template <class Tabelle>
Satznamen Wechsel(const Art<Tabelle> &art, const Tabelle &damals, const Tabelle &jetzt)
{
    const auto alte = Namen(art, damals);
    const auto neue = Namen(art, jetzt);
    Satznamen namen;
    std::ranges::set_difference(alte, neue, std::back_inserter(namen.Gegangen));
    std::ranges::set_difference(neue, alte, std::back_inserter(namen.Gekommen));
    return namen;
}

/// The fields of a record, to be compared.
template <class Tabelle> bool Anders(Tabelle &damals, Tabelle &jetzt, int i)
{
    std::vector<Text> texte;
    std::vector<double> zahlen;
    const auto merken = [&](const auto &feld) {
        using Feld = std::decay_t<decltype(feld)>;
        if constexpr (std::is_same_v<Feld, Flagfeld>)
            texte.push_back(feld.Wert);
        else if constexpr (std::is_same_v<Feld, Text>)
            texte.push_back(feld);
        else
            zahlen.push_back(feld);
    };
    FürJedesFeld(damals.Felder(), i, merken);
    const auto alteTexte = std::exchange(texte, {});
    const auto alteZahlen = std::exchange(zahlen, {});
    FürJedesFeld(jetzt.Felder(), i, merken);
    return texte != alteTexte || zahlen != alteZahlen;
}

/// The one record that differs.
template <class Tabelle> std::optional<int> Einziger(Tabelle &damals, Tabelle &jetzt)
{
    std::optional<int> einziger;
    for (int i = 0; i <= Tabelle::HöchsterIndex; ++i) {
        if (!Anders(damals, jetzt, i))
            continue;
        if (einziger)
            return std::nullopt;
        einziger = i;
    }
    return einziger;
}

Text Vorgang(const char *wort, const Text &name, const char *was)
{
    return wort + Text(" ") + name + " " + was;
}

const Text OhneNamen = Personenzeile("", "");

template <class Tabelle>
std::optional<Änderung> Bestimmte(const Art<Tabelle> &art, Tabelle &damals, Tabelle &jetzt)
{
    const Satznamen namen = Wechsel(art, damals, jetzt);
    const std::size_t gegangen = namen.Gegangen.size();
    const std::size_t gekommen = namen.Gekommen.size();
    if (gekommen == 1 && (gegangen == 0 || (gegangen == 1 && namen.Gegangen[0] == OhneNamen)))
        return Änderung{Vorgang(art.Einzahl, namen.Gekommen[0], "anlegen"), ""};
    if (gekommen == 0 && gegangen == 1)
        return Änderung{Vorgang(art.Einzahl, namen.Gegangen[0], "löschen"), ""};
    if (gekommen == 1 && gegangen == 1 && art.NameBleibt)
        return Änderung{Vorgang(art.Einzahl, namen.Gegangen[0], "umbenennen"), ""};
    const auto satz = Einziger(damals, jetzt);
    if (!satz)
        return std::nullopt;
    return Änderung{Vorgang(art.Einzahl, art.Name(jetzt, *satz), "ändern"),
                    art.Einzahl + ZahlText(*satz)};
}

/// Of all tables; the first that tells of one record gives the name.
class Namensuche {
  public:
    template <class Tabelle>
    void Sehen(const Art<Tabelle> &art, const std::shared_ptr<Tabelle> &damals,
               const std::shared_ptr<Tabelle> &jetzt)
    {
        if (!damals)
            return;
        if (!bestimmte)
            bestimmte = Bestimmte(art, *damals, *jetzt);
        Ganze(art.Mehrzahl);
    }

    void Ganze(const Text &wort, const Text &ziel = "")
    {
        ganze.push_back({wort + " ändern", ziel});
    }

    Änderung Gefunden() const
    {
        if (bestimmte)
            return *bestimmte;
        return ganze.size() == 1 ? ganze.front() : Änderung{"Daten ändern", ""};
    }

  private:
    std::optional<Änderung> bestimmte;
    std::vector<Änderung> ganze;
};

template <class Tabelle> Text PersonIn(const Tabelle &tabelle, int i)
{
    return Personenzeile(tabelle.Vorname[i], tabelle.Nachname[i]);
}

Text GruppeIn(const GruppeTabelle &tabelle, int i)
{
    return Personenzeile("", tabelle.Bezeichnung[i]);
}

Text MesseIn(const MesseTabelle &tabelle, int i)
{
    const Text &art = tabelle.Messeart[i];
    return Terminzeile(tabelle.Datum[i], tabelle.Uhrzeit[i]) + (art.empty() ? "" : " " + art);
}

Text ZuordnungIn(const MesseDienerFestTabelle &tabelle, int i)
{
    return Terminzeile(tabelle.Datum[i], tabelle.Uhrzeit[i]);
}

Text StandardmesseIn(const StandardmesseTabelle &tabelle, int i)
{
    const Text &tag = tabelle.Wochentag[i];
    return tag.empty() ? ZahlText(i) : tag + " " + StundenUndMinuten(tabelle.Uhrzeit[i]);
}

Text EtikettIn(const EtikettTabelle &tabelle, int i)
{
    return tabelle.Name[i].empty() ? ZahlText(i) : tabelle.Name[i];
}

/// A table without a count: all its records are always there.
template <class Tabelle>
void Feste(Namensuche &suche, const char *einzahl, const char *mehrzahl,
           const std::shared_ptr<Tabelle> &damals, const std::shared_ptr<Tabelle> &jetzt,
           Text (*name)(const Tabelle &, int))
{
    if (!damals)
        return;
    if (const auto satz = Einziger(*damals, *jetzt))
        suche.Ganze(einzahl + Text(" ") + name(*jetzt, *satz), einzahl + ZahlText(*satz));
    else
        suche.Ganze(mehrzahl);
}

} // namespace

Änderung ÄnderungZwischen(const Tabellenstand &damals, const Tabellenstand &jetzt)
{
    Namensuche suche;
    // A group before its servers, a server before the masses that name him.
    suche.Sehen<GruppeTabelle>({"Gruppe", "Gruppen", GruppeIn, true}, damals.Gruppen,
                               jetzt.Gruppen);
    suche.Sehen<MeßdienerTabelle>({"Meßdiener", "Meßdiener", PersonIn, true}, damals.Diener,
                                  jetzt.Diener);
    suche.Sehen<HelferTabelle>({"Helfer", "Helfer", PersonIn, true}, damals.Messehelfer,
                               jetzt.Messehelfer);
    suche.Sehen<MesseTabelle>({"Messe", "Messen", MesseIn, false}, damals.Messen, jetzt.Messen);
    suche.Sehen<MesseDienerFestTabelle>({"Zuordnung", "Zuordnungen", ZuordnungIn, false},
                                        damals.FesteDiener, jetzt.FesteDiener);
    Feste(suche, "Standardmesse", "Standardmessen", damals.Standardmessen, jetzt.Standardmessen,
          StandardmesseIn);
    Feste(suche, "Etikettengröße", "Etikettengrößen", damals.Etiketten, jetzt.Etiketten, EtikettIn);
    if (damals.Einstellungen)
        suche.Ganze("Einstellungen", "Einstellungen");
    return suche.Gefunden();
}

} // namespace altardienst
