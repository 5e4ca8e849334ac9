// What each row of a table would change.
#include "exchange/Einlesen.h"

#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "exchange/Namensverzeichnis.h"
#include "overview/Platz.h"
#include "people/Personen.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace altardienst {
namespace {

using Stand = Vorschauzeile::Stand;

constexpr const char *ÜblicheGröße = "150"; // cm, as the dialog proposes it

/// One row after the other; what a later one may be depends on those before it.
class Prüfung {
  public:
    explicit Prüfung(const Einleseauftrag &auftrag)
        : auftrag(auftrag), namen(auftrag.Art), geburtstag(SpalteNamens(auftrag.Art, "Geburtstag")),
          größe(SpalteNamens(auftrag.Art, "Größe")), gruppe(SpalteNamens(auftrag.Art, "Gruppe"))
    {
        for (const std::vector<Text> &felder : auftrag.Zeilen)
            imBlatt.Eintragen(NameIn(felder), 0);
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
    /// Why a value that can be read is a doubt all the same where it changes something.
    struct Bedenken {
        Text Satz;
        bool Schreiben; // if the row is taken
    };

    /// A row of whose record or name a later one may be, too.
    struct Frühere {
        int Zeile;
        bool Ändert;
        std::map<int, Text> Werte;
    };

    /// Calls for each of our columns of which the row says something.
    void Verteilen(const std::vector<Text> &felder,
                   const std::function<void(int nr, const Text &feld)> &nimm) const
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

    Personenname NameIn(const std::vector<Text> &felder) const
    {
        Personenname name;
        Verteilen(felder, [&name](int nr, const Text &feld) {
            if (nr == SpalteVorname)
                name.Vorname = feld;
            else if (nr == SpalteNachname)
                name.Nachname = feld;
        });
        return name;
    }

    /// What the row says of each of our columns, as far as it can be read.
    void Lesen(const std::vector<Text> &felder, Vorschauzeile &zeile)
    {
        werte.clear();
        leere.clear();
        bedenken.clear();
        const Personenname name = NameIn(felder); // as it stands there, also if it cannot be taken
        zeile.Vorname = name.Vorname;
        zeile.Nachname = name.Nachname;
        Verteilen(felder, [&](int nr, const Text &feld) { FeldLesen(nr, feld, zeile); });
    }

    void FeldLesen(int nr, const Text &feld, Vorschauzeile &zeile)
    {
        const Listenspalte &spalte = SpalteMit(auftrag.Art, nr);
        if (feld.empty() && !spalte.LeerHeißtNein) {
            leere.insert(nr);
            return;
        }
        Feldlesung lesung = spalte.Lesen(feld);
        if (!lesung.Zweifel.empty() && lesung.Wert.empty()) {
            zeile.Zweifel.push_back(spalte.Name + ": " + lesung.Zweifel);
            return;
        }
        if (!lesung.Zweifel.empty())
            bedenken[nr] = {spalte.Name + ": " + lesung.Zweifel, true};
        else if (nr == gruppe && !auftrag.GruppenAnlegen && !GibtEsGruppe(lesung.Wert))
            bedenken[nr] = {"Gruppe: Die Gruppe „" + lesung.Wert + "“ gibt es nicht.", false};
        werte[nr] = std::move(lesung.Wert);
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
        if (name.Leer())
            return unmöglich("Der Name fehlt.");
        if ((!name.Vorname.empty() && !werte.contains(SpalteVorname)) ||
            (!name.Nachname.empty() && !werte.contains(SpalteNachname)))
            return false; // for the reason that is told already
        const std::vector<int> &gleiche = namen.Finden(name);
        const std::optional<int> gemeinter = Gemeinter(gleiche, name);
        if (!gemeinter)
            return unmöglich("Mehrere heißen so, und der Geburtstag sagt nicht, wer gemeint ist.");
        zeile.Datensatz = *gemeinter;
        if (zeile.IstNeu()) {
            NeuenBezweifeln(name, !gleiche.empty(), zeile);
            return true;
        }
        const bool ändert = !Änderungen(zeile.Datensatz).empty();
        const auto [früher, erster] =
            vergeben.try_emplace(zeile.Datensatz, Frühere{zeile.Zeile, ändert, {}});
        if (!erster && (ändert || früher->second.Ändert))
            return unmöglich("Steht schon in Zeile " + ZahlText(früher->second.Zeile) + ".");
        return true;
    }

    /// The record of a person with this name, -1 if it is somebody new; nothing if the row does not
    /// say which. A row of a name that is in the file once and in the tables once means that one;
    /// otherwise the birthday decides, unless there is one in whom nothing changes.
    std::optional<int> Gemeinter(const std::vector<int> &gleiche, const Personenname &name)
    {
        nachLeeremGeburtstag = false;
        if (gleiche.empty())
            return -1;
        if (gleiche.size() == 1 && imBlatt.Finden(name).size() == 1)
            return gleiche.front();
        const auto selber =
            std::ranges::find_if(gleiche, [this](int i) { return Änderungen(i).empty(); });
        if (selber != gleiche.end())
            return *selber;
        const Text tag = Gelesenes(geburtstag);
        const auto tagVon = [this](int i) { return SpalteMit(auftrag.Art, geburtstag).Wert(i); };
        if (!tag.empty() && std::ranges::all_of(gleiche, [&](int i) {
                return !tagVon(i).empty() && tagVon(i) != tag;
            }))
            return -1;
        if (gleiche.size() == 1)
            return gleiche.front();
        const bool istLeer = leere.contains(geburtstag);
        if ((!istLeer && tag.empty()) ||
            std::ranges::count(gleiche, tag, [&](int i) { return tagVon(i); }) != 1)
            return std::nullopt;
        nachLeeremGeburtstag = istLeer;
        return *std::ranges::find(gleiche, tag, [&](int i) { return tagVon(i); });
    }

    void NeuenBezweifeln(const Personenname &name, bool heißtSchonJemandSo, Vorschauzeile &zeile)
    {
        if (name.Vorname.empty() || name.Nachname.empty()) // a gap, in most lists
            zeile.Zweifel.push_back(name.Vorname.empty() ? "Der Vorname fehlt."
                                                         : "Der Nachname fehlt.");
        if (heißtSchonJemandSo)
            zeile.Zweifel.push_back("So heißt schon jemand mit einem anderen Geburtstag.");
        const auto [früher, erster] =
            neue.try_emplace({name.Vorname, name.Nachname}, Frühere{zeile.Zeile, true, werte});
        const auto fastSo = [&](const Text &wo, const Personenname &anderer) {
            zeile.Zweifel.push_back(wo + " heißt jemand fast so: „" +
                                    VollerName(anderer.Vorname, anderer.Nachname) + "“.");
        };
        if (!erster)
            zeile.Zweifel.push_back((früher->second.Werte == werte
                                         ? "Steht genauso schon in Zeile "
                                         : "So heißt schon jemand in Zeile ") +
                                    ZahlText(früher->second.Zeile) + ".");
        else if (const auto imProgramm = namen.Ähnlicher(name);
                 !imProgramm.Name.Leer() && !heißtSchonJemandSo)
            fastSo("Im Programm", imProgramm.Name);
        else if (const auto inDatei = ähnliche.Ähnlicher(name); !inDatei.Name.Leer())
            fastSo("In Zeile " + ZahlText(inDatei.Nummer), inDatei.Name);
        ähnliche.Eintragen(name, zeile.Zeile);
    }

    /// What would be written into a record, that of nobody yet included.
    std::vector<Feldänderung> Änderungen(int datensatz) const
    {
        std::vector<Feldänderung> änderungen;
        for (const auto &[nr, wert] : werte) {
            const Text alt = datensatz < 0 ? Text() : SpalteMit(auftrag.Art, nr).Wert(datensatz);
            if (wert != alt)
                änderungen.push_back({nr, alt, wert});
        }
        if (datensatz < 0 && auftrag.Art == Personenart::Diener && Gelesenes(größe).empty())
            änderungen.push_back({größe, "", ÜblicheGröße});
        if (datensatz < 0 || !auftrag.LeeresLöscht)
            return änderungen;
        for (const int nr : leere) {
            const Listenspalte &spalte = SpalteMit(auftrag.Art, nr);
            const Text alt = spalte.Wert(datensatz);
            if (const Text leer = spalte.Lesen("").Wert; alt != leer)
                änderungen.push_back({nr, alt, leer});
        }
        return änderungen;
    }

    void Vergleichen(Vorschauzeile &zeile) const
    {
        for (Feldänderung &änderung : Änderungen(zeile.Datensatz)) {
            const auto dagegen = bedenken.find(änderung.Spalte);
            if (dagegen != bedenken.end())
                zeile.Zweifel.push_back(dagegen->second.Satz);
            if (dagegen == bedenken.end() || dagegen->second.Schreiben)
                zeile.Felder.push_back(std::move(änderung));
        }
    }

    const Einleseauftrag &auftrag;
    Namensverzeichnis namen;    // of the tables
    Namensverzeichnis imBlatt;  // of all rows
    Namensverzeichnis ähnliche; // of the new ones so far, by row
    int geburtstag;
    int größe;
    int gruppe;                        // helpers have none
    bool nachLeeremGeburtstag = false; // of several of one name, the row says of none
    std::map<int, Text> werte;
    std::set<int> leere; // whose field is empty
    std::map<int, Bedenken> bedenken;
    std::map<int, Frühere> vergeben;               // by record
    std::map<std::pair<Text, Text>, Frühere> neue; // by name
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
    for (std::size_t k = 0; k < auftrag.Zeilen.size(); ++k) {
        const std::vector<Text> &felder = auftrag.Zeilen[k];
        if (IstLeer(felder))
            continue;
        const int nummer =
            k < auftrag.Nummern.size() ? auftrag.Nummern[k] : static_cast<int>(k) + 1;
        vorschau.push_back(prüfung.Zeile(felder, nummer));
        if (auftrag.KopfFehlt && vorschau.size() == 1 && IstVielleichtKopf(felder))
            AlsKopfBezweifeln(vorschau.front());
    }
    return vorschau;
}

} // namespace altardienst
