// The lines of an archive file: fields by semicolons, quoted where they hold one.
#include "fairness/Archivzeilen.h"

#include "core/Umwandlung.h"
#include "values/Ansi.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>

namespace altardienst {

const std::string_view Archivkopf = "Datum;Uhrzeit;Messe;Vorname;Nachname;Dienst";

namespace {

constexpr std::string_view Zeichenmarke = "\xEF\xBB\xBF"; // UTF-8
constexpr std::string_view Zeilenende = "\r\n";
constexpr std::size_t Felder = 6;

bool IstUtf8(std::string_view bytes)
{
    std::size_t folgen = 0;
    for (const char zeichen : bytes) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (folgen > 0) {
            if (byte >> 6 != 2)
                return false;
            --folgen;
        } else if (byte >= 0x80) {
            folgen = byte >> 5 == 6 ? 1 : byte >> 4 == 14 ? 2 : byte >> 3 == 30 ? 3 : 0;
            if (folgen == 0)
                return false;
        }
    }
    return folgen == 0;
}

std::string InFeld(const Text &text)
{
    if (text.find_first_of(";\"\r\n") == Text::npos)
        return text;
    std::string feld = "\"";
    for (const char zeichen : text) {
        feld += zeichen;
        if (zeichen == '"')
            feld += '"';
    }
    return feld + '"';
}

/// The fields of a line; a quoted one may hold the separator.
std::vector<Text> FelderDerZeile(std::string_view zeile, char trenner)
{
    std::vector<Text> felder(1);
    bool inZitat = false;
    for (std::size_t k = 0; k < zeile.size(); ++k) {
        if (inZitat && zeile.substr(k).starts_with("\"\"")) {
            felder.back() += '"';
            ++k;
        } else if (zeile[k] == '"' && (inZitat || felder.back().empty())) {
            inZitat = !inZitat;
        } else if (zeile[k] == trenner && !inZitat) {
            felder.emplace_back();
        } else {
            felder.back() += zeile[k];
        }
    }
    return felder;
}

Archivzeile DienstAus(std::string_view zeile, char trenner)
{
    const std::vector<Text> felder = FelderDerZeile(zeile, trenner);
    if (felder.size() < Felder || felder[3].empty() || felder[4].empty())
        return std::nullopt;
    try {
        return Archivdienst{DatumLesen(felder[0]),
                            DatumLesen(felder[1]),
                            felder[2],
                            felder[3],
                            felder[4],
                            felder[5]};
    } catch (const Laufzeitfehler &) {
        return std::nullopt;
    }
}

} // namespace

std::string AlsArchivzeile(const Archivdienst &dienst)
{
    return KurzesDatum(dienst.Tag) + ";" + StundenUndMinuten(dienst.Uhrzeit) + ";" +
           InFeld(dienst.Messeart) + ";" + InFeld(dienst.Vorname) + ";" + InFeld(dienst.Nachname) +
           ";" + InFeld(dienst.Dienst);
}

std::string Archivdatei(const std::vector<Archivdienst> &dienste)
{
    std::string datei = std::string(Zeichenmarke).append(Archivkopf).append(Zeilenende);
    for (const Archivdienst &dienst : dienste)
        datei += AlsArchivzeile(dienst).append(Zeilenende);
    return datei;
}

std::vector<std::pair<std::string, Archivzeile>> ArchivzeilenLesen(std::string_view bytes)
{
    Text text(bytes);
    if (!IstUtf8(bytes))
        AusAnsi(bytes, text);
    std::string_view rest = text;
    if (rest.starts_with(Zeichenmarke))
        rest.remove_prefix(Zeichenmarke.size());
    std::vector<std::pair<std::string, Archivzeile>> zeilen;
    char trenner = ';';
    for (bool kopf = true; !rest.empty(); kopf = false) {
        const std::size_t ende = std::min(rest.find('\n'), rest.size());
        std::string_view zeile = rest.substr(0, ende);
        rest.remove_prefix(std::min(ende + 1, rest.size()));
        while (zeile.ends_with('\r'))
            zeile.remove_suffix(1);
        if (kopf && zeile.starts_with("Datum")) {
            for (const char zeichen : {'\t', ',', ';'})
                if (zeile.find(zeichen) != std::string_view::npos)
                    trenner = zeichen;
        } else if (!zeile.empty()) {
            zeilen.emplace_back(zeile, DienstAus(zeile, trenner));
        }
    }
    return zeilen;
}

} // namespace altardienst
