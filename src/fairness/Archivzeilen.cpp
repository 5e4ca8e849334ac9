// The lines of an archive file.
#include "fairness/Archivzeilen.h"

#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "values/Laufzeitfehler.h"

namespace altardienst {

const std::string_view Archivkopf = "Datum;Uhrzeit;Messe;Vorname;Nachname;Dienst";

namespace {

constexpr std::size_t Felderzahl = 6;

Archivzeile DienstAus(const std::vector<Text> &felder)
{
    if (felder.size() < Felderzahl || felder[3].empty() || felder[4].empty())
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
    std::string zeile = KurzesDatum(dienst.Tag) + ";" + StundenUndMinuten(dienst.Uhrzeit);
    for (const Text &text : {dienst.Messeart, dienst.Vorname, dienst.Nachname, dienst.Dienst}) {
        zeile += Feldtrenner;
        FeldAnhängen(zeile, text);
    }
    return zeile;
}

std::string Archivdatei(const std::vector<Archivdienst> &dienste)
{
    std::string datei = std::string(Utf8Marke).append(Archivkopf).append(Zeilenende);
    for (const Archivdienst &dienst : dienste)
        datei += AlsArchivzeile(dienst).append(Zeilenende);
    return datei;
}

std::vector<std::pair<std::string, Archivzeile>> ArchivzeilenLesen(std::string_view bytes)
{
    const Text text = TextDerDatei(bytes);
    std::vector<std::pair<std::string, Archivzeile>> zeilen;
    Tabellenleser leser(text, TrennerIn(text));
    for (bool kopf = true; leser.Weiter(); kopf = false)
        if (!kopf || !leser.Roh().starts_with("Datum"))
            zeilen.emplace_back(leser.Roh(), DienstAus(leser.Felder()));
    return zeilen;
}

} // namespace altardienst
