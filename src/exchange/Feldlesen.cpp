// How a field of a file becomes a value.
#include "exchange/Feldlesen.h"

#include "core/Plätze.h"
#include "core/Tabellentext.h"
#include "core/Umwandlung.h"
#include "platform/Gebietsschema.h"
#include "platform/Uhr.h"
#include "values/Ansi.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <utility>

namespace altardienst {
namespace {

constexpr std::array<const char *, 12> Monate = {"jan", "feb", "mrz", "apr", "mai", "jun",
                                                 "jul", "aug", "sep", "okt", "nov", "dez"};

/// As much of a field as a sentence can bear.
Text Zitat(const Text &feld)
{
    constexpr int Längstes = 30;
    Text eineZeile = feld;
    std::ranges::replace(eineZeile, '\n', ' ');
    std::ranges::replace(eineZeile, '\r', ' ');
    return "„" + (Länge(eineZeile) <= Längstes ? eineZeile : Links(eineZeile, Längstes) + "…") +
           "“";
}

Feldlesung Zweifel(const Text &feld, const char *was)
{
    return {"", Zitat(feld) + " " + was};
}

/// 1 to 12, or 0 if the word names no month.
int Monatsnummer(std::string_view wort)
{
    Text kurz = Vergleichsform(wort).substr(0, 3);
    if (kurz == "mae" || kurz == "mar")
        kurz = "mrz";
    const auto *stelle = std::ranges::find(Monate, kurz);
    return stelle == Monate.end() ? 0 : static_cast<int>(stelle - Monate.begin()) + 1;
}

/// Whether a text is " 00:00", "T10:30:00.000Z", " 10:30 Uhr" or the like to its end.
bool IstUhrzeit(const Text &text)
{
    const char *hier = text.c_str();
    const auto zeichen = [&hier](char eines) { return *hier == eines && ++hier; };
    const auto ziffern = [&hier](int mindestens, int höchstens) {
        int anzahl = 0;
        for (; anzahl < höchstens && *hier >= '0' && *hier <= '9'; ++anzahl)
            ++hier;
        return anzahl >= mindestens;
    };
    if (!zeichen(' ') && !zeichen('T'))
        return false;
    while (zeichen(' ')) {
    }
    if (!ziffern(1, 2) || !zeichen(':') || !ziffern(2, 2))
        return false;
    constexpr int Beliebig = 9; // of a second
    if (zeichen(':') &&
        (!ziffern(2, 2) || ((zeichen('.') || zeichen(',')) && !ziffern(1, Beliebig))))
        return false;
    while (zeichen(' ')) {
    }
    if (zeichen('+') || zeichen('-')) {
        if (!ziffern(2, 2))
            return false;
        static_cast<void>(zeichen(':'));
        return ziffern(2, 2) && *hier == '\0';
    }
    const Text rest = Klein(hier);
    return rest.empty() || rest == "uhr" || rest == "am" || rest == "pm" || rest == "z";
}

/// A day is followed by nothing or by a time.
void NurUhrzeit(const Text &feld, int nachTag)
{
    const Text danach = feld.substr(static_cast<std::size_t>(nachTag));
    if (danach.find_first_not_of(' ') != Text::npos && !IstUhrzeit(danach))
        throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
}

/// "2012-01-06" and the time that may follow.
std::optional<Datum> JahrVornweg(const Text &feld)
{
    Kalendertag tag{};
    int zeichen = 0;
    if (std::sscanf(feld.c_str(), "%4d-%2d-%2d%n", &tag.Jahr, &tag.Monat, &tag.Tag, &zeichen) !=
            3 ||
        tag.Jahr < 100)
        return std::nullopt;
    NurUhrzeit(feld, zeichen);
    return DatumAus(tag);
}

/// As everywhere in the program: 0 to 29 are 20xx, 30 to 99 are 19xx.
int VollesJahr(int jahr)
{
    return jahr < 30 ? jahr + 2000 : jahr < 100 ? jahr + 1900 : jahr;
}

/// "6. Januar 2012".
std::optional<Datum> MitMonatsnamen(const Text &feld)
{
    int tag = 0;
    int jahr = 0;
    int zeichen = 0;
    std::array<char, 32> monat{};
    const auto ist = [&](const char *muster) {
        return std::sscanf(feld.c_str(), muster, &tag, monat.data(), &jahr, &zeichen) == 3;
    };
    if (!ist("%2d. %31[^0-9 .] %4d%n") && !ist("%2d. %31[^0-9 .]. %4d%n") &&
        !ist("%2d %31[^0-9 .] %4d%n"))
        return std::nullopt;
    const int nummer = Monatsnummer(monat.data());
    if (nummer == 0)
        return std::nullopt;
    NurUhrzeit(feld, zeichen);
    return DatumAus({VollesJahr(jahr), nummer, tag});
}

/// "28/02/2010" or "02/28/2010": with strokes the month may come first. Nothing if both would do.
struct Strichdatum {
    bool IstEines = false;
    std::optional<Datum> Tag = {};
};
Strichdatum MitStrichen(const Text &feld)
{
    constexpr int MeisteMonate = 12;
    int erste = 0;
    int zweite = 0;
    int jahr = 0;
    int zeichen = 0;
    if (std::sscanf(feld.c_str(), "%2d /%2d /%4d%n", &erste, &zweite, &jahr, &zeichen) != 3)
        return {};
    NurUhrzeit(feld, zeichen);
    if (erste != zweite && erste <= MeisteMonate && zweite <= MeisteMonate)
        return {.IstEines = true};
    if (zweite > MeisteMonate)
        std::swap(erste, zweite);
    return {.IstEines = true, .Tag = DatumAus({VollesJahr(jahr), zweite, erste})};
}

/// Without a weekday in front.
Text OhneWochentag(const Text &feld)
{
    const std::size_t ziffer = feld.find_first_of("0123456789");
    if (ziffer == 0 || ziffer == Text::npos)
        return feld;
    const Text vorn = Vergleichsform(feld.substr(0, ziffer));
    const bool istTag =
        vorn.size() >= 2 && std::ranges::any_of(Wochentagsnamen, [&](Festtext name) {
            return Vergleichsform(name).starts_with(vorn);
        });
    return istTag ? feld.substr(ziffer) : feld;
}

/// A number with comma or point, and with what may follow it: "1,65 m".
Single MaßLesen(const Text &feld)
{
    Text zahl = feld.substr(0, feld.find_first_not_of("0123456789.,"));
    const Text einheit = Vergleichsform(feld.substr(zahl.size()));
    if (!einheit.empty() && einheit != "cm" && einheit != "m")
        throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
    std::ranges::replace(zahl, '.', Gebietsschema.Dezimaltrenner);
    std::ranges::replace(zahl, ',', Gebietsschema.Dezimaltrenner);
    return SingleLesen(zahl);
}

Feldlesung Geprüft(const Text &feld, bool kommaZerreißt)
{
    if (feld.find_first_of("\r\n") != Text::npos)
        return Zweifel(feld, "hat einen Zeilenumbruch, der die Datei zerreißt.");
    if (kommaZerreißt && feld.find(',') != Text::npos)
        return Zweifel(feld, "hat ein Komma, das die Datei der Meßdiener zerreißt.");
    const std::size_t erstes = std::min(feld.find_first_not_of(' '), feld.size());
    if (kommaZerreißt && feld.substr(erstes).starts_with('"'))
        return Zweifel(feld, "hat ein Anführungszeichen am Anfang, das die Datei zerreißt.");
    if (Länge(feld) > LängsterText)
        return Zweifel(feld, "ist länger als 250 Zeichen.");
    if (feld.find(KeinZeichen) != Text::npos)
        return Zweifel(feld, "hat ein beschädigtes Zeichen.");
    if (InAnsiDarstellbar(feld) != feld)
        return Zweifel(feld, "hat ein Zeichen, das die Dateien nicht halten: Es würde zu „?“.");
    return {feld};
}

/// What the box in the editor takes as well, though it is hardly meant.
Feldlesung Ungewöhnlich(Feldlesung lesung, const Text &feld, const char *was)
{
    if (lesung.Zweifel.empty())
        lesung.Zweifel = Zweifel(feld, was).Zweifel;
    return lesung;
}

} // namespace

Datum TagDesFelds(const Text &feld)
{
    const Text ohne = OhneWochentag(feld);
    if (const auto tag = JahrVornweg(ohne))
        return *tag;
    if (const auto tag = MitMonatsnamen(ohne))
        return *tag;
    if (const Strichdatum tag = MitStrichen(ohne); tag.Tag)
        return *tag.Tag;
    const Datum tag = std::trunc(DatumLesen(ohne));
    if (tag == 0) // a time of day alone
        throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
    return tag;
}

Feldlesung DatumAusFeld(const Text &feld)
{
    if (feld.empty() || feld == "00:00:00")
        return {};
    try {
        if (const Strichdatum tag = MitStrichen(OhneWochentag(feld)); tag.IstEines && !tag.Tag)
            return Zweifel(feld, "ist nicht eindeutig: Kommt erst der Tag oder erst der Monat?");
        return {KurzesDatum(TagDesFelds(feld))};
    } catch (const Laufzeitfehler &) {
        return Zweifel(feld, "ist kein Datum.");
    }
}

Feldlesung GeburtstagAusFeld(const Text &feld)
{
    Feldlesung lesung = DatumAusFeld(feld);
    if (!lesung.Wert.empty() && DatumLesen(lesung.Wert) > Uhr.Heute())
        lesung.Zweifel = Zweifel(feld, "liegt in der Zukunft.").Zweifel;
    return lesung;
}

Feldlesung GrößeAusFeld(const Text &feld)
{
    constexpr Single Kleinste = 5; // cm, as in the editor
    constexpr Single Größte = 250;
    constexpr Single MeterBis = 3;
    if (feld.empty())
        return {"0"};
    try {
        Single größe = MaßLesen(feld);
        if (größe > 0 && größe < MeterBis)
            größe *= 100;
        if (größe != 0 && (größe < Kleinste || größe > Größte))
            return Zweifel(feld, "ist keine Größe: 5 bis 250 cm.");
        return {ZahlText(static_cast<int>(GerundetInt16(größe)))};
    } catch (const Laufzeitfehler &) {
        return Zweifel(feld, "ist keine Größe in cm.");
    }
}

Feldlesung PlzAusFeld(const Text &feld)
{
    constexpr int Stellen = 5;
    const Text zahl = feld.starts_with("D-") ? feld.substr(2) : feld;
    if (zahl.empty() || zahl == "0")
        return {};
    if (zahl.size() > Stellen || zahl.find_first_not_of("0123456789") != Text::npos)
        return Zweifel(feld, "ist keine Postleitzahl.");
    return {Text(Stellen - zahl.size(), '0') + zahl};
}

Feldlesung HäufigkeitAusFeld(const Text &feld)
{
    constexpr int Höchste = 20; // as in the editor
    if (feld.empty())
        return {"0"};
    const Text wort = Vergleichsform(feld);
    if (wort == "normal" || wort == "oft")
        return {wort == "oft" ? "2" : "0"};
    try {
        const int zahl = Int16Lesen(feld);
        if (zahl >= 0 && zahl <= Höchste)
            return {ZahlText(zahl)};
    } catch (const Laufzeitfehler &) {
        // Told below.
    }
    return Zweifel(feld, "ist keine Häufigkeit: „normal“, „oft“ oder 0 bis 20.");
}

Feldlesung JaNeinAusFeld(const Text &feld)
{
    constexpr std::array<std::string_view, 10> Ja = {"ja",   "j",   "x", "1", "wahr",
                                                     "true", "yes", "y", "+", "✓"};
    constexpr std::array<std::string_view, 9> Nein = {"nein", "n", "0", "falsch", "false",
                                                      "no",   "-", "–", ""};
    const Text klein = Klein(feld);
    if (std::ranges::count(Ja, klein) > 0)
        return {"ja"};
    if (std::ranges::count(Nein, klein) > 0)
        return {"nein"};
    return Zweifel(feld, "ist weder „ja“ noch „nein“.");
}

Feldlesung GeschlechtAusFeld(const Text &feld)
{
    constexpr std::array<std::string_view, 6> Er = {"m",    "maennlich", "junge",
                                                    "mann", "male",      "herr"};
    constexpr std::array<std::string_view, 6> Sie = {"w",    "weiblich", "maedchen",
                                                     "frau", "f",        "female"};
    const Text wort = Vergleichsform(feld);
    if (wort.empty() && feld.empty())
        return {};
    if (std::ranges::count(Er, wort) > 0)
        return {"männlich"};
    if (std::ranges::count(Sie, wort) > 0)
        return {"weiblich"};
    return Ungewöhnlich(DienertextAusFeld(feld), feld, "ist weder „männlich“ noch „weiblich“.");
}

Feldlesung HelferdienstAusFeld(const Text &feld)
{
    if (feld.empty())
        return {};
    const Text wort = Vergleichsform(feld);
    for (const Helferart &art : Helferarten) {
        const Text name = Vergleichsform(art.Name);
        if (wort == name || wort == name + "in" || wort == name + "en" ||
            wort == Vergleichsform(art.Aufschrift))
            return {Text(art.Name)};
    }
    if (wort == "kommunion" || wort == "kommunionhelferinnen")
        return {Text(Kommunionhelfer.Name)};
    if (wort == "kollekte")
        return {Text(Kollektant.Name)};
    return Ungewöhnlich(HelfertextAusFeld(feld), feld,
                        "ist kein Dienst der Helfer: Lektor, Kommunionhelfer, Kantor, Kollektant.");
}

Feldlesung HelfertextAusFeld(const Text &feld)
{
    return Geprüft(feld, false);
}

Feldlesung DienertextAusFeld(const Text &feld)
{
    return Geprüft(feld, true);
}

} // namespace altardienst
