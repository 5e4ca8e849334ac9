// The eight files as bytes, and how far a load gets with them.
#include "history/Standinhalt.h"

#include "core/SchleifenZähler.h"
#include "core/Umwandlung.h"
#include "platform/Laufwerke.h"
#include "values/Ansi.h"

#include <algorithm>
#include <string_view>

namespace altardienst {
namespace {

Standdatei DateiVon(const std::filesystem::path &verzeichnis, const Datei &datei)
{
    Standdatei diese;
    const auto name = Laufwerke.Suchen(verzeichnis, datei.Name);
    if (!name)
        return diese;
    diese.Name = *name;
    try {
        diese.Bytes = Laufwerke.Lesen(verzeichnis / PfadAus(*name));
    } catch (const Laufzeitfehler &) {
        // It counts as one that cannot be read.
    }
    return diese;
}

int Zeilenzahl(std::string_view bytes)
{
    const auto enden = std::ranges::count(bytes, '\n');
    return static_cast<int>(enden) + (bytes.empty() || bytes.ends_with('\n') ? 0 : 1);
}

/// The text of a line (from 1), without its end.
Text ZeileVon(std::string_view bytes, int nummer)
{
    for (; nummer > 1; --nummer)
        bytes.remove_prefix(std::min(bytes.find('\n'), bytes.size() - 1) + 1);
    bytes = bytes.substr(0, bytes.find('\n'));
    if (bytes.ends_with('\r'))
        bytes.remove_suffix(1);
    Text text;
    AusAnsi(bytes, text);
    return text;
}

template <class Tabelle> int ZeilenJeDatensatz(Tabelle &tabelle)
{
    int zahl = 0;
    FürJedesFeld(tabelle.Felder(), 0, [&](auto &&) { ++zahl; });
    return zahl;
}

/// Whether a file reaches as far as `benutzt` records after its header. The program always writes
/// all of them; what lies beyond the last one in use may be missing, as in a file of an older
/// version.
template <class Tabelle>
bool ReichtFür(Tabelle &tabelle, int kopfzeilen, int benutzt, std::string_view bytes)
{
    benutzt = std::min(benutzt, Tabelle::HöchsterInDatei + 1);
    return Zeilenzahl(bytes) >= kopfzeilen + benutzt * ZeilenJeDatensatz(tabelle);
}

/// Judged by the tables that were just read from it.
bool IstGanz(Dateinummer nummer, std::string_view bytes)
{
    switch (nummer) {
    case DateiStandardmesse: // has no count of its records
        return ReichtFür(Standardmesse, 1, StandardmesseTabelle::HöchsterInDatei + 1, bytes);
    case DateiEtikett: // nor has this
        return ReichtFür(Etikett, 1, EtikettTabelle::HöchsterInDatei + 1, bytes);
    case DateiMeßdiener:
        return ReichtFür(Meßdiener, 2, Meßdiener.Anzahl, bytes);
    case DateiMesse:
        return ReichtFür(Messe, 2, Messe.Anzahl, bytes);
    case DateiGruppe:
        return ReichtFür(Gruppe, 2, Gruppe.Anzahl, bytes);
    case DateiMesseDienerFest:
        return ReichtFür(MesseDienerFest, 2, MesseDienerFest.Anzahl, bytes);
    case DateiKonfig: // those of older versions are shorter
    case DateiHelfer: // its reader does not let it end early
        break;
    }
    return true;
}

Ladebefund EndetNach(const Standdatei &datei, bool abgebrochen)
{
    Ladebefund befund;
    befund.Was = Ladebefund::EndetVorher;
    befund.Abgebrochen = abgebrochen;
    befund.Datei = datei.Name;
    befund.Zeile = Zeilenzahl(*datei.Bytes);
    return befund;
}

/// The servers' file is torn by a comma, which splits a value in two: at the latest in the next
/// record a number or a date does not convert.
void KommaSuchen(Ladebefund &befund, const std::string &bytes)
{
    const int früheste = std::max(1, befund.Zeile - 2 * ZeilenJeDatensatz(Meßdiener));
    for (int nummer = befund.Zeile; nummer >= früheste; --nummer) {
        Text zeile = ZeileVon(bytes, nummer);
        if (zeile.find(',') != Text::npos) {
            befund.Komma = nummer;
            befund.MitKomma = std::move(zeile);
            return;
        }
    }
}

Ladebefund DateiLesen(Dateinummer nummer, const Standdatei &datei)
{
    const Datei &diese = DateiMit(nummer);
    Ladebefund befund;
    befund.Abgebrochen = true;
    befund.Datei = datei.Name.empty() ? diese.Name : datei.Name;
    if (!datei.Bytes) {
        befund.Was = datei.Name.empty() ? Ladebefund::Fehlt : Ladebefund::Unlesbar;
        return befund;
    }
    Zeilenleser zeilen(*datei.Bytes);
    try {
        diese.Lesen(zeilen);
    } catch (const Laufzeitfehler &fehler) {
        if (fehler.Nummer() == Laufzeitfehler::HinterDateiende)
            return EndetNach(datei, true);
        const std::string_view gelesen =
            std::string_view(*datei.Bytes).substr(0, datei.Bytes->size() - zeilen.Übrig());
        befund.Was = Ladebefund::Unpassend;
        befund.Zeile = Zeilenzahl(gelesen);
        befund.Inhalt = ZeileVon(*datei.Bytes, befund.Zeile);
        if (nummer == DateiMeßdiener)
            KommaSuchen(befund, *datei.Bytes);
        return befund;
    }
    return IstGanz(nummer, *datei.Bytes) ? Ladebefund() : EndetNach(datei, false);
}

/// In quotation marks, and no longer than a line on the screen can show.
Text Zitat(const Text &text)
{
    constexpr int Längstes = 60;
    if (text.empty())
        return "nichts";
    return "„" + (Länge(text) > Längstes ? Links(text, Längstes) + " …" : text) + "“";
}

} // namespace

bool Standinhalt::Leer() const
{
    return std::ranges::none_of(Dateien, [](const Standdatei &d) { return d.Bytes.has_value(); });
}

bool Standinhalt::Vollzählig() const
{
    return std::ranges::all_of(Dateien, [](const Standdatei &d) { return d.Bytes.has_value(); });
}

bool operator==(const Standinhalt &a, const Standinhalt &b)
{
    return std::ranges::equal(a.Dateien, b.Dateien, {}, &Standdatei::Bytes, &Standdatei::Bytes);
}

Standinhalt InhaltVon(const std::filesystem::path &verzeichnis)
{
    Standinhalt inhalt;
    std::ranges::transform(Dateien, inhalt.Dateien.begin(),
                           [&](const Datei &datei) { return DateiVon(verzeichnis, datei); });
    return inhalt;
}

Standinhalt InhaltDerTabellen()
{
    const Int16 zähler = SchleifenZähler;
    Standinhalt inhalt;
    std::ranges::transform(Dateien, inhalt.Dateien.begin(), [](const Datei &datei) {
        Standdatei diese{datei.Name, std::string()};
        try {
            datei.Schreiben(*diese.Bytes);
        } catch (const Laufzeitfehler &) {
            diese.Bytes.reset();
        }
        return diese;
    });
    SchleifenZähler = zähler;
    return inhalt;
}

Text Ladebefund::Satz() const
{
    switch (Was) {
    case Vollständig:
        return "";
    case Fehlt:
        return Datei + " fehlt.";
    case Unlesbar:
        return Datei + " lässt sich nicht lesen.";
    case EndetVorher:
        return Datei + " endet zu früh, nach Zeile " + ZahlText(Zeile) + ".";
    case Unpassend:
        break;
    }
    Text satz = Datei + " ist nur bis Zeile " + ZahlText(Zeile) + " gelesen; dort steht " +
                Zitat(Inhalt) + ".";
    if (Komma == Zeile)
        satz += " Das Komma zerreißt die Datei.";
    else if (Komma > 0)
        satz += " Zerrissen hat sie das Komma in Zeile " + ZahlText(Komma) + ": " +
                Zitat(MitKomma) + ".";
    return satz;
}

Standinhalt OhneKommas(Standinhalt inhalt)
{
    if (auto &bytes = inhalt.Dateien[DateiMeßdiener].Bytes)
        std::ranges::replace(*bytes, ',', ';');
    return inhalt;
}

Gelesenes InhaltLesen(const Standinhalt &inhalt)
{
    const TabellenBeiseite beiseite;
    Gelesenes gelesenes;
    for (std::size_t i = 0; i < inhalt.Dateien.size(); ++i) {
        const auto nummer = static_cast<Dateinummer>(i);
        const Ladebefund befund = DateiLesen(nummer, inhalt.Dateien[i]);
        if (gelesenes.Befund.Was == Ladebefund::Vollständig)
            gelesenes.Befund = befund;
        if (befund.Abgebrochen)
            break;
        if (nummer == DateiKonfig)
            SkalenBegrenzen();
    }
    gelesenes.Tabellen = TabellenBeiseite::Herausnehmen();
    return gelesenes;
}

} // namespace altardienst
