// What is in a state, and in words what differs between two.
#include "history/Unterschiede.h"

#include "core/Umwandlung.h"

#include <algorithm>
#include <map>
#include <utility>

namespace altardienst {
namespace {

/// The fields of a record as a reader would write them, in file order.
class Feldtexte {
  public:
    explicit Feldtexte(std::vector<Text> &texte) : texte(texte) {}

    void operator()(const Text &wert) { texte.push_back(wert); }
    void operator()(Int16 wert) { texte.push_back(ZahlText(wert)); }
    void operator()(Int32 wert) { texte.push_back(ZahlText(wert)); }
    void operator()(Single wert) { texte.push_back(ZahlText(wert)); }
    void operator()(Datum wert) { texte.push_back(wert == 0 ? "" : DatumText(wert)); }
    void operator()(Flagfeld feld) { texte.push_back(feld.Wert); }

  private:
    std::vector<Text> &texte;
};

template <class Tabelle> std::vector<Text> FelderVon(Tabelle &tabelle, int i)
{
    std::vector<Text> texte;
    FürJedesFeld(tabelle.Felder(), i, Feldtexte(texte));
    return texte;
}

/// A file may claim more records than there can be.
template <class Tabelle> int Zahl(const Tabelle &tabelle)
{
    return std::clamp<int>(tabelle.Anzahl, 0, Tabelle::HöchsterIndex + 1);
}

Text Reihe(const std::vector<Text> &teile, const char *trenner)
{
    Text text;
    for (const Text &teil : teile)
        text += (text.empty() ? "" : trenner) + teil;
    return text;
}

/// How one kind of records is compared and told.
template <class Tabelle> struct Vergleich {
    const char *Wort; // in front of the name, such as "Meßdiener"
    Text (*Name)(const Tabelle &, int);
    Text (*Änderung)(const std::vector<Text> &damals, const std::vector<Text> &jetzt);
};

Text Zitat(const Text &wert)
{
    return wert.empty() ? "nichts" : "„" + wert + "“";
}

Text GeänderteFelder(const std::vector<const char *> &namen, const std::vector<Text> &damals,
                     const std::vector<Text> &jetzt)
{
    std::vector<Text> teile;
    for (std::size_t k = 0; k < namen.size(); ++k)
        if (damals[k] != jetzt[k])
            teile.push_back(Text(namen[k]) + " damals " + Zitat(damals[k]) + ", jetzt " +
                            Zitat(jetzt[k]));
    return Reihe(teile, "; ");
}

Text DienerÄnderung(const std::vector<Text> &damals, const std::vector<Text> &jetzt)
{
    static const std::vector<const char *> namen = {
        "Vorname",        "Nachname",     "Straße",       "PLZ",          "Ort",
        "Telefon",        "E-Mail",       "Geburtstag",   "Geschlecht",   "Größe",
        "Eintrittsdatum", "Gruppe",       "Dienste",      "Tage",         "abwesend von",
        "abwesend bis",   "abwesend von", "abwesend bis", "abwesend von", "abwesend bis",
        "abwesend von",   "abwesend bis", "abwesend von", "abwesend bis", "Wunschpartner",
        "Wunschpartner",  "Häufigkeit"};
    return GeänderteFelder(namen, damals, jetzt);
}

Text HelferÄnderung(const std::vector<Text> &damals, const std::vector<Text> &jetzt)
{
    static const std::vector<const char *> namen = {
        "Vorname",      "Nachname",       "Straße",       "PLZ",
        "Ort",          "Telefon",        "E-Mail",       "Geburtstag",
        "Dienst",       "zweiter Dienst", "abwesend von", "abwesend bis",
        "abwesend von", "abwesend bis",   "abwesend von", "abwesend bis"};
    return GeänderteFelder(namen, damals, jetzt);
}

/// Places of a mass are told as a whole: there are sixty-three of servers alone.
Text MessenÄnderung(const std::vector<Text> &damals, const std::vector<Text> &jetzt)
{
    constexpr std::size_t Wochentag = 0; // lines of the file, from 0
    constexpr std::size_t Zahlen = 4;
    constexpr std::size_t Diener = 11;
    constexpr std::size_t Kennung = 74;
    const auto gleich = [&](std::size_t von, std::size_t bis) {
        return std::equal(damals.begin() + static_cast<long>(von),
                          damals.begin() + static_cast<long>(bis),
                          jetzt.begin() + static_cast<long>(von));
    };
    std::vector<Text> teile;
    if (damals[Wochentag] != jetzt[Wochentag])
        teile.emplace_back("anderer Wochentag");
    if (!gleich(Zahlen, Diener))
        teile.emplace_back("andere Zahlen der Dienste");
    if (!gleich(Diener, Kennung))
        teile.emplace_back("andere Meßdiener");
    if (!gleich(Kennung, damals.size()))
        teile.emplace_back("andere Helfer");
    if (teile.empty()) // what its name does not show, such as the seconds
        teile.emplace_back("andere Zeit");
    return Reihe(teile, ", ");
}

Text OderOhneNamen(const Text &name)
{
    return name.empty() ? "ohne Namen" : name;
}

template <class Tabelle> Text Personenname(const Tabelle &tabelle, int i)
{
    const Text &nach = tabelle.Nachname[i];
    const Text &vor = tabelle.Vorname[i];
    return OderOhneNamen(nach + (nach.empty() || vor.empty() ? "" : ", ") + vor);
}

Text GruppenName(const GruppeTabelle &tabelle, int i)
{
    return OderOhneNamen(tabelle.Bezeichnung[i]);
}

Text MessenName(const MesseTabelle &tabelle, int i)
{
    return KurzesDatum(tabelle.Datum[i]) + ", " + StundenUndMinuten(tabelle.Uhrzeit[i]) + ", " +
           tabelle.Messeart[i];
}

Text FestName(const MesseDienerFestTabelle &tabelle, int i)
{
    return KurzesDatum(tabelle.Datum[i]) + ", " + StundenUndMinuten(tabelle.Uhrzeit[i]);
}

template <class Tabelle>
std::map<Text, std::vector<int>> NachNamen(const Vergleich<Tabelle> &art, const Tabelle &tabelle)
{
    std::map<Text, std::vector<int>> nummern;
    for (int i = 0; i < Zahl(tabelle); ++i)
        nummern[art.Name(tabelle, i)].push_back(i);
    return nummern;
}

struct Zählung {
    int Gekommen = 0;
    int Gegangen = 0;
    int Geändert = 0;
};

Text InWorten(const char *mehrzahl, const Zählung &zählung)
{
    std::vector<Text> teile;
    for (const auto &[zahl, wort] :
         {std::pair(zählung.Gekommen, "gekommen"), std::pair(zählung.Gegangen, "gegangen"),
          std::pair(zählung.Geändert, "geändert")})
        if (zahl > 0)
            teile.push_back(ZahlText(zahl) + " " + wort);
    return teile.empty() ? "" : Text(mehrzahl) + ": " + Reihe(teile, ", ");
}

class Bericht {
  public:
    /// Compares all records of one kind.
    template <class Tabelle>
    void Aufnehmen(const char *mehrzahl, const Vergleich<Tabelle> &art, Tabelle &damals,
                   Tabelle &jetzt)
    {
        Zählung zählung;
        auto alte = NachNamen(art, damals);
        for (auto &[name, neue] : NachNamen(art, jetzt)) {
            const std::vector<int> &zuvor = alte[name];
            for (std::size_t k = 0; k < std::min(neue.size(), zuvor.size()); ++k) {
                const auto a = FelderVon(damals, zuvor[k]);
                const auto b = FelderVon(jetzt, neue[k]);
                if (a == b)
                    continue;
                ++zählung.Geändert;
                Zeile(art.Wort, name, art.Änderung(a, b));
            }
            if (neue.size() > zuvor.size())
                Zählen(zählung.Gekommen, neue.size() - zuvor.size(), art.Wort, name, "gekommen");
            if (neue.size() < zuvor.size())
                Zählen(zählung.Gegangen, zuvor.size() - neue.size(), art.Wort, name, "gegangen");
            alte.erase(name);
        }
        for (const auto &[name, zuvor] : alte)
            Zählen(zählung.Gegangen, zuvor.size(), art.Wort, name, "gegangen");
        Kurz(InWorten(mehrzahl, zählung));
    }

    /// Tables whose records have no names are told as a whole.
    void Ganzes(const char *wort, bool anders)
    {
        if (!anders)
            return;
        Kurz(Text(wort) + " geändert");
        ergebnis.Zeilen.push_back(Text(wort) + " geändert");
    }

    void Einstellungen(KonfigDatensatz &damals, KonfigDatensatz &jetzt)
    {
        const auto texte = [](KonfigDatensatz &konfig) {
            std::vector<Text> alle;
            Feldtexte schreiben(alle);
            std::apply([&](auto &&...felder) { (schreiben(felder), ...); }, konfig.Felder());
            return alle;
        };
        Ganzes("Einstellungen", texte(damals) != texte(jetzt));
    }

    Unterschiede Ergebnis()
    {
        ergebnis.Kurz = kurz.empty() ? "wie jetzt" : Reihe(kurz, "; ");
        return std::move(ergebnis);
    }

  private:
    void Zeile(const char *wort, const Text &name, const Text &was)
    {
        ergebnis.Zeilen.push_back(Text(wort) + " " + name + ": " + was);
    }

    void Zählen(int &zähler, std::size_t wieviele, const char *wort, const Text &name, Text was)
    {
        zähler += static_cast<int>(wieviele);
        if (wieviele > 1)
            was += " (" + std::to_string(wieviele) + "mal)";
        Zeile(wort, name, was);
    }

    void Kurz(const Text &teil)
    {
        if (!teil.empty())
            kurz.push_back(teil);
    }

    std::vector<Text> kurz;
    Unterschiede ergebnis;
};

template <class Tabelle> bool Anders(Tabelle &damals, Tabelle &jetzt)
{
    for (int i = 0; i <= Tabelle::HöchsterInDatei; ++i)
        if (FelderVon(damals, i) != FelderVon(jetzt, i))
            return true;
    return false;
}

Text NichtNäher(const std::vector<Text> &, const std::vector<Text> &)
{
    return "geändert";
}

} // namespace

Standübersicht ÜbersichtVon(const Tabellenstand &stand)
{
    const MesseTabelle &messen = *stand.Messen;
    Standübersicht übersicht;
    übersicht.Diener = Zahl(*stand.Diener);
    übersicht.Messehelfer = Zahl(*stand.Messehelfer);
    übersicht.Messen = Zahl(messen);
    if (übersicht.Messen == 0)
        return übersicht;
    Datum erste = messen.Datum[0];
    Datum letzte = erste;
    for (int i = 1; i < übersicht.Messen; ++i) {
        erste = std::min(erste, messen.Datum[i]);
        letzte = std::max(letzte, messen.Datum[i]);
    }
    übersicht.Zeitraum = KurzesDatum(erste) + " bis " + KurzesDatum(letzte);
    return übersicht;
}

Unterschiede UnterschiedeZwischen(const Tabellenstand &damals, const Tabellenstand &jetzt)
{
    Bericht bericht;
    bericht.Aufnehmen<MeßdienerTabelle>(
        "Meßdiener", {"Meßdiener", Personenname<MeßdienerTabelle>, DienerÄnderung}, *damals.Diener,
        *jetzt.Diener);
    bericht.Aufnehmen<HelferTabelle>("Helfer",
                                     {"Helfer", Personenname<HelferTabelle>, HelferÄnderung},
                                     *damals.Messehelfer, *jetzt.Messehelfer);
    bericht.Aufnehmen<GruppeTabelle>("Gruppen", {"Gruppe", GruppenName, NichtNäher},
                                     *damals.Gruppen, *jetzt.Gruppen);
    bericht.Aufnehmen<MesseTabelle>("Messen", {"Messe", MessenName, MessenÄnderung}, *damals.Messen,
                                    *jetzt.Messen);
    bericht.Aufnehmen<MesseDienerFestTabelle>("Feste Zuordnungen",
                                              {"Feste Zuordnung", FestName, NichtNäher},
                                              *damals.FesteDiener, *jetzt.FesteDiener);
    bericht.Ganzes("Standardmessen", Anders(*damals.Standardmessen, *jetzt.Standardmessen));
    bericht.Ganzes("Etiketten", Anders(*damals.Etiketten, *jetzt.Etiketten));
    bericht.Einstellungen(*damals.Einstellungen, *jetzt.Einstellungen);
    return bericht.Ergebnis();
}

} // namespace altardienst
