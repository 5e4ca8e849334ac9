// What each row of a table would change.
#include "exchange/Einlesen.h"

#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "people/Personen.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace altardienst {
namespace {

using Stand = Vorschauzeile::Stand;

constexpr const char *ÜblicheGröße = "150"; // cm, as the dialog proposes it

Personenname NameVon(Personenart art, int i)
{
    return {SpalteMit(art, SpalteVorname).Wert(i), SpalteMit(art, SpalteNachname).Wert(i)};
}

/// Who is who, by names alone and by names as a hurried hand writes them.
class Namensverzeichnis {
  public:
    explicit Namensverzeichnis(Personenart art)
    {
        for (int i = 0; i < Vorhandene(art); ++i) {
            const Personenname name = NameVon(art, i);
            genau[{name.Vorname, name.Nachname}].push_back(i);
            ungefähr.try_emplace(Ungefähr(name), name);
        }
    }

    std::vector<int> Finden(const Personenname &name) const
    {
        const auto stelle = genau.find({name.Vorname, name.Nachname});
        return stelle == genau.end() ? std::vector<int>() : stelle->second;
    }

    /// Whose name is nearly the same; nobody's is empty.
    Personenname Ähnlicher(const Personenname &name) const
    {
        const auto stelle = ungefähr.find(Ungefähr(name));
        return stelle == ungefähr.end() ? Personenname() : stelle->second;
    }

  private:
    static Text Ungefähr(const Personenname &name)
    {
        return Vergleichsform(name.Vorname) + " " + Vergleichsform(name.Nachname);
    }

    std::map<std::pair<Text, Text>, std::vector<int>> genau;
    std::map<Text, Personenname> ungefähr;
};

/// One row after the other; what a later one may be depends on those before it.
class Prüfung {
  public:
    explicit Prüfung(const Einleseauftrag &auftrag)
        : auftrag(auftrag), namen(auftrag.Art), geburtstag(SpalteNamens(auftrag.Art, "Geburtstag")),
          größe(SpalteNamens(auftrag.Art, "Größe")), gruppe(SpalteNamens(auftrag.Art, "Gruppe"))
    {
    }

    Vorschauzeile Zeile(const std::vector<Text> &felder, int nummer)
    {
        Vorschauzeile zeile;
        zeile.Zeile = nummer;
        Lesen(felder, zeile);
        if (!Zuweisen(zeile)) {
            zeile.Was = Stand::Zweifelhaft;
            zeile.Unmöglich = true;
            return zeile;
        }
        Vergleichen(zeile);
        if (nachLeeremGeburtstag && !zeile.Felder.empty())
            zeile.Zweifel.push_back(
                "Mehrere heißen so; gemeint ist wohl, wer keinen Geburtstag hat.");
        zeile.Was = !zeile.Zweifel.empty() ? Stand::Zweifelhaft
                    : zeile.IstNeu()       ? Stand::Neu
                    : zeile.Felder.empty() ? Stand::Gleich
                                           : Stand::Geändert;
        return zeile;
    }

  private:
    /// What the row says of each of our columns, as far as it can be read.
    void Lesen(const std::vector<Text> &felder, Vorschauzeile &zeile)
    {
        werte.clear();
        leere.clear();
        for (std::size_t k = 0; k < auftrag.Spalten.size(); ++k) {
            const int spalte = auftrag.Spalten[k];
            const Text feld = k < felder.size() ? TextDesFelds(felder[k]) : Text();
            if (spalte == GanzerName) {
                Text vorname;
                Text nachname;
                NamenTeilen(feld, vorname, nachname);
                FeldLesen(SpalteVorname, vorname, zeile);
                FeldLesen(SpalteNachname, nachname, zeile);
            } else if (spalte != KeineSpalte) {
                FeldLesen(spalte, feld, zeile);
            }
        }
    }

    void FeldLesen(int nr, const Text &feld, Vorschauzeile &zeile)
    {
        const Listenspalte &spalte = SpalteMit(auftrag.Art, nr);
        if (nr == SpalteVorname) // as it stands there, also if it cannot be taken
            zeile.Vorname = feld;
        else if (nr == SpalteNachname)
            zeile.Nachname = feld;
        if (feld.empty() && !spalte.LeerHeißtNein) {
            leere.insert(nr);
            return;
        }
        Feldlesung lesung = spalte.Lesen(feld);
        if (lesung.Zweifel.empty() && nr == gruppe && !auftrag.GruppenAnlegen &&
            !GibtEsGruppe(lesung.Wert))
            lesung.Zweifel = "Die Gruppe „" + lesung.Wert + "“ gibt es nicht.";
        if (lesung.Zweifel.empty())
            werte[nr] = std::move(lesung.Wert);
        else
            zeile.Zweifel.push_back(spalte.Name + ": " + lesung.Zweifel);
    }

    Text Gelesenes(int nr) const
    {
        const auto stelle = werte.find(nr);
        return stelle == werte.end() ? Text() : stelle->second;
    }

    /// Finds the record that is meant; false, with the reason, if the row cannot be taken.
    bool Zuweisen(Vorschauzeile &zeile)
    {
        const auto unmöglich = [&zeile](const Text &warum) {
            zeile.Zweifel.insert(zeile.Zweifel.begin(), warum);
            return false;
        };
        const Personenname name{zeile.Vorname, zeile.Nachname};
        std::vector<int> gleiche = namen.Finden(name);
        const bool halb = name.Vorname.empty() || name.Nachname.empty();
        if (halb && (gleiche.empty() || name.Leer()))
            return unmöglich(name.Leer()            ? "Der Name fehlt."
                             : name.Vorname.empty() ? "Der Vorname fehlt."
                                                    : "Der Nachname fehlt.");
        if (!halb && (!werte.contains(SpalteVorname) || !werte.contains(SpalteNachname)))
            return false; // for the reason that is told already
        nachLeeremGeburtstag = gleiche.size() > 1 && leere.contains(geburtstag);
        if (gleiche.size() > 1) {
            std::erase_if(gleiche, [this](int i) {
                return SpalteMit(auftrag.Art, geburtstag).Wert(i) != Gelesenes(geburtstag);
            });
            const bool sagtEs = nachLeeremGeburtstag || werte.contains(geburtstag);
            if (gleiche.size() != 1 || !sagtEs)
                return unmöglich(
                    "Mehrere heißen so, und der Geburtstag sagt nicht, wer gemeint ist.");
        }
        zeile.Datensatz = gleiche.empty() ? -1 : gleiche.front();
        const auto [früher, erster] =
            vergeben.try_emplace({zeile.Datensatz, name.Vorname, name.Nachname}, zeile.Zeile);
        if (!erster)
            return unmöglich("Steht schon in Zeile " + ZahlText(früher->second) + ".");
        const Personenname ähnlicher = gleiche.empty() ? namen.Ähnlicher(name) : Personenname();
        if (!ähnlicher.Leer())
            zeile.Zweifel.push_back("Im Programm heißt jemand fast so: „" + ähnlicher.Vorname +
                                    " " + ähnlicher.Nachname + "“.");
        return true;
    }

    void Vergleichen(Vorschauzeile &zeile) const
    {
        for (const auto &[nr, wert] : werte) {
            const Text alt =
                zeile.IstNeu() ? Text() : SpalteMit(auftrag.Art, nr).Wert(zeile.Datensatz);
            if (wert != alt)
                zeile.Felder.push_back({nr, alt, wert});
        }
        if (zeile.IstNeu()) {
            if (auftrag.Art == Personenart::Diener && Gelesenes(größe).empty())
                zeile.Felder.push_back({größe, "", ÜblicheGröße});
            return;
        }
        if (!auftrag.LeeresLöscht)
            return;
        for (const int nr : leere) {
            const Listenspalte &spalte = SpalteMit(auftrag.Art, nr);
            const Text alt = spalte.Wert(zeile.Datensatz);
            if (const Text leer = spalte.Lesen("").Wert; alt != leer)
                zeile.Felder.push_back({nr, alt, leer});
        }
    }

    const Einleseauftrag &auftrag;
    Namensverzeichnis namen;
    int geburtstag;
    int größe;
    int gruppe;                        // helpers have none
    bool nachLeeremGeburtstag = false; // of several of one name, the row says of none
    std::map<int, Text> werte;
    std::set<int> leere;                                 // whose field is empty
    std::map<std::tuple<int, Text, Text>, int> vergeben; // in which row
};

bool IstLeer(const std::vector<Text> &felder)
{
    return std::ranges::all_of(felder, [](const Text &feld) { return TextDesFelds(feld).empty(); });
}

/// Headings hold neither numbers nor addresses.
bool IstVielleichtKopf(const std::vector<Text> &felder)
{
    return std::ranges::all_of(
        felder, [](const Text &feld) { return feld.find_first_of("0123456789@") == Text::npos; });
}

/// Who is in the tables already is no heading.
void AlsKopfBezweifeln(Vorschauzeile &zeile)
{
    if (zeile.Unmöglich || !zeile.IstNeu())
        return;
    zeile.Zweifel.insert(zeile.Zweifel.begin(), "Das kann eine Überschrift sein.");
    zeile.Was = Stand::Zweifelhaft;
}

} // namespace

std::vector<Vorschauzeile> EinlesenPrüfen(const Einleseauftrag &auftrag)
{
    Prüfung prüfung(auftrag);
    std::vector<Vorschauzeile> vorschau;
    vorschau.reserve(auftrag.Zeilen.size());
    int nummer = auftrag.ErsteZeile;
    for (const std::vector<Text> &felder : auftrag.Zeilen) {
        if (!IstLeer(felder)) {
            vorschau.push_back(prüfung.Zeile(felder, nummer));
            if (auftrag.KopfFehlt && vorschau.size() == 1 && IstVielleichtKopf(felder))
                AlsKopfBezweifeln(vorschau.front());
        }
        ++nummer;
    }
    return vorschau;
}

} // namespace altardienst
