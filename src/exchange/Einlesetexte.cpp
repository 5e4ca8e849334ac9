// What the window that reads people in says.
#include "exchange/Einlesetexte.h"

#include "core/Umwandlung.h"

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

using Stand = Vorschauzeile::Stand;

Text Zahl(std::size_t zahl)
{
    return ZahlText(static_cast<int>(zahl));
}

bool Hat(const Zuordnung &zuordnung, int spalte)
{
    return std::ranges::count(zuordnung, spalte) > 0;
}

/// As much of it as a cell and its tip can bear: a file may have anything in one field.
Text Gekürzt(const Text &text)
{
    constexpr int Längstes = 200;
    return Länge(text) <= Längstes ? text : Links(text, Längstes) + "…";
}

} // namespace

const char *const Einlesesatz =
    "Liest Meßdiener oder Helfer aus einer Tabelle, die ein anderes Programm als Text (CSV) "
    "gespeichert hat. Geschrieben wird erst mit „Übernehmen“.";

Text Lagesatz(const Text &dateiname, const Tabellenblatt &blatt, const Einleseauftrag &auftrag)
{
    if (!blatt.Mangel.empty())
        return dateiname + ": " + blatt.Mangel;
    const Zuordnung &spalten = auftrag.Spalten;
    if (!Hat(spalten, GanzerName) &&
        (!Hat(spalten, SpalteVorname) || !Hat(spalten, SpalteNachname)))
        return dateiname + ": Wo Vor- und Nachname stehen, ist nicht zu erkennen. Wählen Sie es "
                           "links unter „wird zu“.";
    const auto ungenutzt = static_cast<std::size_t>(std::ranges::count(spalten, KeineSpalte));
    return dateiname + ": " +
           (auftrag.Zeilen.size() == 1 ? Text("eine Zeile")
                                       : Zahl(auftrag.Zeilen.size()) + " Zeilen") +
           ", " +
           (spalten.size() == 1
                ? Text("die einzige Spalte")
                : Zahl(spalten.size() - ungenutzt) + " von " + Zahl(spalten.size()) + " Spalten") +
           " erkannt. Jemand ist derselbe, wenn Vor- und Nachname gleich sind.";
}

Text Spaltenname(const Tabellenblatt &blatt, int kopf, std::size_t spalte)
{
    if (kopf >= 0) {
        const auto &köpfe = blatt.Zeilen[static_cast<std::size_t>(kopf)];
        if (spalte < köpfe.size() && !TextDesFelds(köpfe[spalte]).empty())
            return Gekürzt(TextDesFelds(köpfe[spalte]));
    }
    return "Spalte " + Zahl(spalte + 1);
}

Text Beispiel(const std::vector<std::vector<Text>> &zeilen, std::size_t spalte)
{
    for (const auto &zeile : zeilen)
        if (spalte < zeile.size())
            if (const Text feld = TextDesFelds(zeile[spalte]); !feld.empty())
                return Gekürzt(feld);
    return "";
}

Text Standwort(Stand stand)
{
    constexpr std::array<const char *, 4> Wörter = {"+ neu", "~ geändert", "= gleich",
                                                    "! zweifelhaft"};
    return Wörter.at(static_cast<std::size_t>(stand));
}

Text Zeilenname(const Vorschauzeile &zeile)
{
    if (zeile.Vorname.empty() && zeile.Nachname.empty())
        return "Zeile " + ZahlText(zeile.Zeile);
    return Gekürzt(zeile.Nachname + (zeile.Vorname.empty() || zeile.Nachname.empty() ? "" : ", ") +
                   zeile.Vorname);
}

Text Zeileninhalt(Personenart art, const Vorschauzeile &zeile)
{
    Text text;
    for (const Text &satz : zeile.Zweifel)
        text += (text.empty() ? "" : " ") + satz;
    if (zeile.Unmöglich)
        return text;
    const Text änderungen = ÄnderungenText(art, zeile);
    if (!text.empty() && !änderungen.empty())
        text += " ";
    return text + änderungen;
}

Text Zahlensatz(const std::vector<Vorschauzeile> &vorschau, std::size_t gewählte,
                const Text &keinPlatz)
{
    const auto zahl = [&vorschau](Stand stand) {
        return Zahl(
            static_cast<std::size_t>(std::ranges::count(vorschau, stand, &Vorschauzeile::Was)));
    };
    return zahl(Stand::Neu) + " neu, " + zahl(Stand::Geändert) + " geändert, " +
           zahl(Stand::Gleich) + " gleich, " + zahl(Stand::Zweifelhaft) +
           " zweifelhaft; angekreuzt: " + Zahl(gewählte) + "." +
           (keinPlatz.empty() ? "" : "\n" + keinPlatz);
}

Text Ergebnistext(const Eingelesen &ergebnis)
{
    Text text = ZahlText(ergebnis.Neu) + " neu, " + ZahlText(ergebnis.Geändert) + " geändert";
    if (ergebnis.Gruppen > 0)
        text += ergebnis.Gruppen == 1 ? Text(", eine neue Gruppe")
                                      : ", " + ZahlText(ergebnis.Gruppen) + " neue Gruppen";
    return text;
}

} // namespace altardienst
