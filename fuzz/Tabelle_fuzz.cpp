// Reads any bytes as a table. What was read must be written and read back unchanged; taken for a
// list of servers or helpers, it may leave nothing in the tables that their files do not give back.
#include "core/Dateien.h"
#include "core/Tabellentext.h"
#include "core/tables.h"
#include "exchange/Einlesen.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace altardienst {
namespace {

void Erwarte(bool bedingung, const char *was)
{
    if (bedingung)
        return;
    std::fprintf(stderr, "table: %s\n", was);
    std::abort();
}

using Zeilen = std::vector<std::vector<Text>>;

Zeilen Zurück(const Zeilen &zeilen)
{
    std::string bytes(Utf8Marke);
    for (const auto &zeile : zeilen) {
        for (std::size_t k = 0; k < zeile.size(); ++k) {
            if (k > 0)
                bytes += Feldtrenner;
            TextfeldAnhängen(bytes, zeile[k]);
        }
        bytes += Zeilenende;
    }
    Zeilen zurück = TabelleLesen(bytes).Zeilen;
    for (auto &zeile : zurück)
        for (Text &feld : zeile)
            feld = TextDesFelds(feld);
    return zurück;
}

std::string Geschrieben(Dateinummer nummer)
{
    std::string inhalt;
    DateiMit(nummer).Schreiben(inhalt);
    return inhalt;
}

void AlsListe(const Zeilen &zeilen, Personenart art, bool gruppenAnlegen)
{
    TabellenLeeren();
    const Dateinummer nummer = art == Personenart::Diener ? DateiMeßdiener : DateiHelfer;
    const auto kopf = static_cast<std::size_t>(std::max(0, Kopfzeile(zeilen, art)));
    Einleseauftrag auftrag{.Art = art, .GruppenAnlegen = gruppenAnlegen};
    auftrag.Zeilen.assign(zeilen.begin() + static_cast<std::ptrdiff_t>(kopf), zeilen.end());
    auftrag.Spalten = ZuordnungNach(zeilen[kopf], art);
    if (std::ranges::count(auftrag.Spalten, KeineSpalte) == std::ssize(auftrag.Spalten))
        for (std::size_t k = 0; k < auftrag.Spalten.size(); ++k)
            auftrag.Spalten[k] = k < SpaltenFür(art).size() ? static_cast<int>(k) : KeineSpalte;
    Einlesen(auftrag, EinlesenPrüfen(auftrag));
    const std::string erstes = Geschrieben(nummer);
    Zeilenleser leser(erstes);
    DateiMit(nummer).Lesen(leser); // a failure ends the run
    Erwarte(leser.AmEnde(), "the file has more lines than records");
    const std::string zweites = Geschrieben(nummer);
    Erwarte(erstes == zweites, "a text tears or changes the file");
    for (const Vorschauzeile &zeile : EinlesenPrüfen(auftrag))
        Erwarte(zeile.Was != Vorschauzeile::Stand::Neu || Vorhandene(art) >= 200,
                "who was taken is new again");
}

void Versuchen(std::string_view bytes)
{
    Tabellenblatt blatt = TabelleLesen(bytes);
    Erwarte(blatt.Mangel.empty() != blatt.Zeilen.empty(), "neither rows nor a sentence, or both");
    std::erase_if(blatt.Zeilen, [](const auto &zeile) { // an empty line is no row
        return zeile.size() == 1 && zeile.front().empty();
    });
    if (blatt.Zeilen.empty())
        return;
    Erwarte(Zurück(blatt.Zeilen) == blatt.Zeilen, "what was written does not read back");
    const bool gruppen = bytes.size() % 2 == 0;
    AlsListe(blatt.Zeilen, Personenart::Diener, gruppen);
    AlsListe(blatt.Zeilen, Personenart::Helfer, gruppen);
}

} // namespace
} // namespace altardienst

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe)
{
    altardienst::Versuchen({reinterpret_cast<const char *>(daten), größe});
    return 0;
}
