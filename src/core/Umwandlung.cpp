// Parsing and formatting by the locale.
#include "core/Umwandlung.h"

#include "platform/Gebietsschema.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace altardienst {
namespace {

[[noreturn]] void TypenUnverträglich()
{
    throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
}

std::string_view OhneBlanks(std::string_view text)
{
    std::size_t von = text.find_first_not_of(' ');
    if (von == std::string_view::npos)
        return {};
    return text.substr(von, text.find_last_not_of(' ') - von + 1);
}

bool IstZiffer(char c)
{
    return c >= '0' && c <= '9';
}

double ZahlLesen(std::string_view text)
{
    text = OhneBlanks(text);
    std::string zahl(text.substr(text.starts_with('+') && !text.starts_with("+-") ? 1 : 0));
    // "inf", "nan" and a point in place of the comma do not count as numbers here.
    if (std::ranges::any_of(zahl, [](char c) {
            return !IstZiffer(c) && c != '-' && c != '+' && c != 'E' && c != 'e' &&
                   c != Gebietsschema.Dezimaltrenner;
        }))
        TypenUnverträglich();
    std::ranges::replace(zahl, Gebietsschema.Dezimaltrenner, '.');
    double wert = 0;
    const char *ende = zahl.data() + zahl.size();
    auto [stelle, fehler] = std::from_chars(zahl.data(), ende, wert);
    if (stelle != ende || fehler == std::errc::invalid_argument)
        TypenUnverträglich();
    if (fehler == std::errc::result_out_of_range)
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    return wert;
}

template <class Ganz> Ganz GanzzahlLesen(std::string_view text)
{
    // Most lines in the files are plain digits between two blanks.
    std::string_view kern = OhneBlanks(text);
    std::int64_t ganz = 0;
    auto [stelle, fehler] = std::from_chars(kern.data(), kern.data() + kern.size(), ganz);
    if (fehler != std::errc() || stelle != kern.data() + kern.size()) {
        double gerundet = std::nearbyint(ZahlLesen(text));
        if (std::fabs(gerundet) > 1e15)
            throw Laufzeitfehler(Laufzeitfehler::Überlauf);
        ganz = static_cast<std::int64_t>(gerundet);
    }
    if (ganz < std::numeric_limits<Ganz>::min() || ganz > std::numeric_limits<Ganz>::max())
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    return static_cast<Ganz>(ganz);
}

/// Three numbers, or two if the third may be missing, of one to four digits each.
struct Zahlengruppe {
    int Zahlen[3] = {0, 0, 0};
    int Ziffern[3] = {0, 0, 0};
    int Anzahl = 0;
    char Trenner = 0;
};

std::optional<Zahlengruppe> GruppeLesen(std::string_view text)
{
    Zahlengruppe gruppe;
    std::size_t i = 0;
    while (true) {
        std::size_t von = i;
        while (i < text.size() && IstZiffer(text[i]) && i - von < 4)
            ++i;
        if (i == von)
            return std::nullopt;
        std::from_chars(text.data() + von, text.data() + i, gruppe.Zahlen[gruppe.Anzahl]);
        gruppe.Ziffern[gruppe.Anzahl] = static_cast<int>(i - von);
        ++gruppe.Anzahl;
        if (i == text.size())
            return gruppe;
        if (gruppe.Anzahl == 3 || (gruppe.Trenner != 0 && text[i] != gruppe.Trenner))
            return std::nullopt;
        gruppe.Trenner = text[i++];
    }
}

Datum TagLesen(const Zahlengruppe &gruppe)
{
    if (gruppe.Anzahl != 3)
        TypenUnverträglich();
    int jahrStelle = 2;
    int monatStelle = 1;
    int tagStelle = 0;
    if (Gebietsschema.Datumsfolge == GebietsschemaDienst::MonatTagJahr)
        std::swap(monatStelle, tagStelle);
    else if (Gebietsschema.Datumsfolge == GebietsschemaDienst::JahrMonatTag)
        std::swap(jahrStelle, tagStelle);
    int jahr = gruppe.Zahlen[jahrStelle];
    if (gruppe.Ziffern[jahrStelle] <= 2)
        jahr += jahr < 30 ? 2000 : 1900;
    return DatumAus({jahr, gruppe.Zahlen[monatStelle], gruppe.Zahlen[tagStelle]});
}

Datum ZeitLesen(const Zahlengruppe &gruppe)
{
    int stunde = gruppe.Zahlen[0];
    int minute = gruppe.Zahlen[1];
    int sekunde = gruppe.Zahlen[2];
    if (gruppe.Anzahl < 2 || stunde > 23 || minute > 59 || sekunde > 59)
        TypenUnverträglich();
    return ZeitAus((stunde * 60 + minute) * 60 + sekunde);
}

void ZiffernAnhängen(std::string &puffer, int zahl, int stellen)
{
    char ziffern[8];
    for (int i = stellen - 1; i >= 0; --i) {
        ziffern[i] = static_cast<char>('0' + zahl % 10);
        zahl /= 10;
    }
    puffer.append(ziffern, static_cast<std::size_t>(stellen));
}

void KurzesDatumAnhängen(std::string &puffer, Datum datum)
{
    Kalendertag tag = KalendertagVon(datum);
    char trenner = Gebietsschema.Datumstrenner;
    auto jahr = [&] { ZiffernAnhängen(puffer, tag.Jahr, 4); };
    auto monat = [&] { ZiffernAnhängen(puffer, tag.Monat, 2); };
    auto tagImMonat = [&] { ZiffernAnhängen(puffer, tag.Tag, 2); };
    auto inFolge = [&](auto erstes, auto zweites, auto drittes) {
        erstes();
        puffer += trenner;
        zweites();
        puffer += trenner;
        drittes();
    };
    switch (Gebietsschema.Datumsfolge) {
    case GebietsschemaDienst::TagMonatJahr:
        return inFolge(tagImMonat, monat, jahr);
    case GebietsschemaDienst::MonatTagJahr:
        return inFolge(monat, tagImMonat, jahr);
    case GebietsschemaDienst::JahrMonatTag:
        return inFolge(jahr, monat, tagImMonat);
    }
}

void LangeZeitAnhängen(std::string &puffer, Datum datum)
{
    int sekunden = SekundenVon(datum);
    ZiffernAnhängen(puffer, sekunden / 3600, 2);
    puffer += Gebietsschema.Zeittrenner;
    ZiffernAnhängen(puffer, sekunden / 60 % 60, 2);
    puffer += Gebietsschema.Zeittrenner;
    ZiffernAnhängen(puffer, sekunden % 60, 2);
}

/// The text that an appending routine makes from a value.
template <class F> Text AlsText(F anhängen)
{
    Text text;
    anhängen(text);
    return text;
}

} // namespace

Int16 GerundetInt16(double wert)
{
    double gerundet = std::nearbyint(wert);
    if (!(std::fabs(gerundet) < 1e9))
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    return static_cast<int>(gerundet);
}

Int16 Int16Lesen(std::string_view text)
{
    return GanzzahlLesen<std::int16_t>(text);
}

Int32 Int32Lesen(std::string_view text)
{
    return GanzzahlLesen<Int32>(text);
}

Single SingleLesen(std::string_view text)
{
    double wert = ZahlLesen(text);
    if (std::fabs(wert) > std::numeric_limits<Single>::max())
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    return static_cast<Single>(wert);
}

Datum DatumLesen(std::string_view text)
{
    text = OhneBlanks(text);
    if (text == "00:00:00")
        return 0;
    std::size_t blank = text.find(' ');
    auto ersterTeil = GruppeLesen(text.substr(0, blank));
    if (!ersterTeil)
        TypenUnverträglich();
    auto istZeit = [](const Zahlengruppe &gruppe) {
        return gruppe.Trenner == Gebietsschema.Zeittrenner;
    };
    auto istTag = [](const Zahlengruppe &gruppe) {
        return gruppe.Trenner == '.' || gruppe.Trenner == '/' || gruppe.Trenner == '-';
    };
    if (blank == std::string_view::npos) {
        if (istZeit(*ersterTeil))
            return ZeitLesen(*ersterTeil);
        if (istTag(*ersterTeil))
            return TagLesen(*ersterTeil);
        TypenUnverträglich();
    }
    auto zweiterTeil = GruppeLesen(OhneBlanks(text.substr(blank)));
    if (!zweiterTeil || !istTag(*ersterTeil) || !istZeit(*zweiterTeil))
        TypenUnverträglich();
    Datum tag = TagLesen(*ersterTeil);
    Datum zeit = ZeitLesen(*zweiterTeil);
    return tag < 0 ? tag - zeit : tag + zeit;
}

Text DatumText(Datum datum)
{
    return AlsText([&](Text &text) { DatumAnhängen(text, datum); });
}

Text KurzesDatum(Datum datum)
{
    return AlsText([&](Text &text) { KurzesDatumAnhängen(text, datum); });
}

Text LangeZeit(Datum datum)
{
    return AlsText([&](Text &text) { LangeZeitAnhängen(text, datum); });
}

Text StundenUndMinuten(Datum datum)
{
    const int minuten = SekundenVon(datum) / 60;
    return AlsText([&](Text &text) {
        ZiffernAnhängen(text, minuten / 60, 2);
        text += ':'; // on paper, whatever the locale
        ZiffernAnhängen(text, minuten % 60, 2);
    });
}

Text ZahlText(int zahl)
{
    return AlsText([&](Text &text) { ZahlAnhängen(text, zahl); });
}

Text ZahlText(Single zahl)
{
    return AlsText([&](Text &text) { ZahlAnhängen(text, zahl); });
}

Text FesteStellen(double zahl, int ganze, int stellen)
{
    double faktor = std::pow(10.0, stellen);
    double gerundet = std::round(std::fabs(zahl) * faktor);
    if (!(gerundet < 1e15))
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    Text ziffern = std::to_string(static_cast<std::int64_t>(gerundet));
    auto mindestens = static_cast<std::size_t>(ganze + stellen);
    if (ziffern.size() < mindestens)
        ziffern.insert(0, mindestens - ziffern.size(), '0');
    if (stellen > 0)
        ziffern.insert(ziffern.size() - static_cast<std::size_t>(stellen), 1,
                       Gebietsschema.Dezimaltrenner);
    return zahl < 0 && gerundet > 0 ? "-" + ziffern : ziffern;
}

void DatumAnhängen(std::string &puffer, Datum datum)
{
    bool hatTag = std::trunc(datum) != 0;
    bool hatZeit = SekundenVon(datum) != 0;
    if (hatTag)
        KurzesDatumAnhängen(puffer, datum);
    if (hatTag && hatZeit)
        puffer += ' ';
    if (hatZeit || !hatTag)
        LangeZeitAnhängen(puffer, datum);
}

void ZahlAnhängen(std::string &puffer, int zahl)
{
    char ziffern[16];
    auto ende = std::to_chars(std::begin(ziffern), std::end(ziffern), zahl).ptr;
    puffer.append(ziffern, ende);
}

void ZahlAnhängen(std::string &puffer, Single zahl)
{
    char ziffern[32];
    zahl += 0.0F; // zero has no sign
    auto ende =
        std::to_chars(std::begin(ziffern), std::end(ziffern), zahl, std::chars_format::general, 7)
            .ptr;
    std::replace(ziffern, ende, '.', Gebietsschema.Dezimaltrenner);
    std::replace(ziffern, ende, 'e', 'E');
    puffer.append(ziffern, ende);
}

} // namespace altardienst
