// What each row of a table would change.
#include "exchange/Einlesen.h"

#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "exchange/Namensverzeichnis.h"
#include "exchange/Zeilenlesung.h"
#include "overview/Platz.h"
#include "people/Personen.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace altardienst {
namespace {

using Stand = Vorschauzeile::Stand;

/// One row after the other; what a later one may be depends on those before it.
class Prüfung {
  public:
    explicit Prüfung(const Einleseauftrag &auftrag)
        : auftrag(auftrag), lesung(auftrag), namen(auftrag.Art),
          geburtstag(SpalteNamens(auftrag.Art, "Geburtstag"))
    {
        for (const std::vector<Text> &felder : auftrag.Zeilen)
            imBlatt.Eintragen(lesung.NameIn(felder), 0);
    }

    Vorschauzeile Zeile(const std::vector<Text> &felder, int nummer)
    {
        Vorschauzeile zeile;
        zeile.Zeile = nummer;
        zeile.Zweifel = lesung.Lesen(felder);
        const Personenname name = lesung.NameIn(felder);
        zeile.Vorname = name.Vorname;
        zeile.Nachname = name.Nachname;
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
    /// A row of whose record or name a later one may be, too.
    struct Frühere {
        int Zeile;
        bool Ändert;
        std::map<int, Text> Werte;
    };

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
        if ((!name.Vorname.empty() && !lesung.Werte().contains(SpalteVorname)) ||
            (!name.Nachname.empty() && !lesung.Werte().contains(SpalteNachname)))
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
        const bool ändert = !lesung.Änderungen(zeile.Datensatz).empty();
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
            std::ranges::find_if(gleiche, [this](int i) { return lesung.Änderungen(i).empty(); });
        if (selber != gleiche.end())
            return *selber;
        const Text tag = lesung.Wert(geburtstag);
        const auto tagVon = [this](int i) { return SpalteMit(auftrag.Art, geburtstag).Wert(i); };
        if (!tag.empty() && std::ranges::all_of(gleiche, [&](int i) {
                return !tagVon(i).empty() && tagVon(i) != tag;
            }))
            return -1;
        if (gleiche.size() == 1)
            return gleiche.front();
        const bool istLeer = lesung.IstLeer(geburtstag);
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
        const auto [früher, erster] = neue.try_emplace({name.Vorname, name.Nachname},
                                                       Frühere{zeile.Zeile, true, lesung.Werte()});
        const auto fastSo = [&](const Text &wo, const Personenname &anderer) {
            zeile.Zweifel.push_back(wo + " heißt jemand fast so: „" +
                                    VollerName(anderer.Vorname, anderer.Nachname) + "“.");
        };
        if (!erster)
            zeile.Zweifel.push_back((früher->second.Werte == lesung.Werte()
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

    void Vergleichen(Vorschauzeile &zeile) const
    {
        for (Feldänderung &änderung : lesung.Änderungen(zeile.Datensatz)) {
            const auto *const dagegen = lesung.Gegen(änderung.Spalte);
            if (dagegen)
                zeile.Zweifel.push_back(dagegen->Satz);
            if (!dagegen || dagegen->Schreiben)
                zeile.Felder.push_back(std::move(änderung));
        }
    }

    const Einleseauftrag &auftrag;
    Zeilenlesung lesung;        // of this row
    Namensverzeichnis namen;    // of the tables
    Namensverzeichnis imBlatt;  // of all rows
    Namensverzeichnis ähnliche; // of the new ones so far, by row
    int geburtstag;
    bool nachLeeremGeburtstag = false;             // of several of one name, the row says of none
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
