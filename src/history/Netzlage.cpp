// What the net has to say, in words.
#include "core/Umwandlung.h"
#include "history/Netz.h"

namespace altardienst {
namespace {

Text ZeitText(const Stand &stand)
{
    return KurzesDatum(stand.Zeit.Tag) + ", " + StundenUndMinuten(ZeitAus(stand.Zeit.Sekunde)) +
           " Uhr";
}

void Anfügen(Text &text, const Text &teil, const char *trenner)
{
    if (!teil.empty())
        text += (text.empty() ? "" : trenner) + teil;
}

Text LadeSatz(const Ladebefund &befund)
{
    const Text satz = befund.Satz();
    if (satz.empty())
        return "";
    return satz +
           (befund.Abgebrochen ? " Was danach kommt, fehlt" : " Was in ihr fehlt, fehlt auch") +
           " im Programm, und das Beenden speichert es so.";
}

Text AbbruchSatz(const Netzlage &lage)
{
    if (!lage.SpeichernAbgebrochen)
        return "";
    Text satz = "Das letzte Speichern oder Holen ist nicht zu Ende gekommen: Die acht Dateien "
                "können aus zwei Speicherungen stammen.";
    if (lage.DavorAufgehoben)
        satz += " Der Stand davor ist aufgehoben.";
    return satz;
}

Text NotfallSatz(const Netzlage &lage)
{
    return lage.Notfall
               ? "Das Programm hat ein schlechtes Ende genommen. Was es am " +
                     ZeitText(*lage.Notfall) + ", im Speicher hatte, ist als Notfall aufgehoben."
               : "";
}

} // namespace

Text Starthinweis()
{
    const Netzlage &lage = Netz();
    Text hinweis;
    Anfügen(hinweis, LadeSatz(lage.Befund), "\n");
    if (lage.OhneKomma)
        Anfügen(
            hinweis,
            "Ein Stand mit Semikolon an Stelle des Kommas, in dem nichts fehlt, ist aufgehoben.",
            "\n");
    Anfügen(hinweis, AbbruchSatz(lage), "\n");
    Anfügen(hinweis, NotfallSatz(lage), "\n");
    return hinweis;
}

Text Dauerhinweis()
{
    const Netzlage &lage = Netz();
    Text hinweis;
    if (lage.Befund.Was != Ladebefund::Vollständig)
        hinweis = "Nicht alles geladen: " + lage.Befund.Datei;
    else if (lage.SpeichernAbgebrochen)
        hinweis = "Letztes Speichern unvollständig";
    Anfügen(hinweis, lage.Gescheitert, ". ");
    return hinweis;
}

} // namespace altardienst
