// A file of calendar entries.
#include "exchange/Kalenderschreiber.h"

#include "exchange/Kalenderzeile.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <utility>

#include <libical/ical.h>

namespace altardienst {
namespace {

constexpr const char *Zone = "Europe/Berlin";
constexpr const char *Hersteller = "-//Altardienst//Altardienst//DE";
constexpr std::string_view Ende = "END:VCALENDAR\r\n";
constexpr int Dauer = 3600; // of a mass; the plan knows only its beginning
constexpr int Woche = 7;

struct Freigeben {
    void operator()(icalcomponent *teil) const { icalcomponent_free(teil); }
    void operator()(icalproperty *eigenschaft) const { icalproperty_free(eigenschaft); }
    void operator()(char *text) const { std::free(text); } // the library allocates it so
};
using Teil = std::unique_ptr<icalcomponent, Freigeben>;

Teil NeuerTeil(icalcomponent_kind art)
{
    Teil teil(icalcomponent_new(art));
    if (!teil)
        throw std::bad_alloc();
    return teil;
}

void Hinzu(const Teil &teil, icalproperty *eigenschaft)
{
    icalcomponent_add_property(teil.get(), eigenschaft);
}

std::string AlsText(const Teil &teil)
{
    const std::unique_ptr<char, Freigeben> text(icalcomponent_as_ical_string_r(teil.get()));
    if (!text)
        throw std::bad_alloc();
    return text.get();
}

/// The library writes a whole calendar in a time that grows with the square of its entries, and an
/// entry in twice the time of its properties one by one.
void Anhängen(std::string &bytes, icalproperty *neue)
{
    const std::unique_ptr<icalproperty, Freigeben> eigenschaft(neue);
    const std::unique_ptr<char, Freigeben> text(icalproperty_as_ical_string_r(neue));
    if (!text)
        throw std::bad_alloc();
    bytes += text.get();
}

icaltimetype Zeitpunkt(Ortszeit zeit)
{
    const Kalendertag tag = KalendertagVon(zeit.Tag);
    icaltimetype punkt = icaltime_null_time();
    punkt.year = tag.Jahr;
    punkt.month = tag.Monat;
    punkt.day = tag.Tag;
    punkt.hour = zeit.Sekunden / 3600;
    punkt.minute = zeit.Sekunden / 60 % 60;
    punkt.second = zeit.Sekunden % 60;
    return punkt;
}

icaltimetype Tag(Datum tag)
{
    icaltimetype punkt = Zeitpunkt({tag, 0});
    punkt.is_date = 1;
    return punkt;
}

icaltimetype Weltzeitpunkt(Ortszeit zeit)
{
    icaltimetype punkt = Zeitpunkt(Weltzeit(zeit));
    punkt.zone = icaltimezone_get_utc_timezone();
    return punkt;
}

/// A property of a time takes the library ten times as long as the time in it.
void ZeitAnhängen(std::string &bytes, const char *name, icaltimetype zeit)
{
    const std::unique_ptr<char, Freigeben> text(icaltime_as_ical_string_r(zeit));
    if (!text)
        throw std::bad_alloc();
    bytes += name;
    if (zeit.is_date)
        bytes += ";VALUE=DATE:";
    else
        bytes.append(";TZID=").append(Zone).append(":");
    bytes.append(text.get()).append("\r\n");
}

icalproperty *Erweiterung(const char *name, const char *wert)
{
    icalproperty *eigenschaft = icalproperty_new_x(wert);
    icalproperty_set_x_name(eigenschaft, name);
    return eigenschaft;
}

struct Uhrumstellung {
    icalcomponent_kind Art;
    const char *Name;
    icaltimetype Erste;
    int VonStunden, NachStunden; // ahead of universal time
    const char *Regel;
};

Teil Halbjahr(const Uhrumstellung &um)
{
    Teil teil = NeuerTeil(um.Art);
    Hinzu(teil, icalproperty_new_tzname(um.Name));
    Hinzu(teil, icalproperty_new_dtstart(um.Erste));
    Hinzu(teil, icalproperty_new_tzoffsetfrom(um.VonStunden * 3600));
    Hinzu(teil, icalproperty_new_tzoffsetto(um.NachStunden * 3600));
    Hinzu(teil, icalproperty_new_rrule(icalrecurrencetype_from_string(um.Regel)));
    return teil;
}

/// With its rules since both changes were made as today, so that no calendar needs a table.
Teil Zeitzone()
{
    Teil zone = NeuerTeil(ICAL_VTIMEZONE_COMPONENT);
    Hinzu(zone, icalproperty_new_tzid(Zone));
    Hinzu(zone, Erweiterung("X-LIC-LOCATION", Zone));
    const Teil sommer =
        Halbjahr({ICAL_XDAYLIGHT_COMPONENT, "CEST", Zeitpunkt({DatumAus({1996, 3, 31}), 2 * 3600}),
                  1, 2, "FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU"});
    const Teil winter =
        Halbjahr({ICAL_XSTANDARD_COMPONENT, "CET", Zeitpunkt({DatumAus({1996, 10, 27}), 3 * 3600}),
                  2, 1, "FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU"});
    icalcomponent_add_component(zone.get(), icalcomponent_new_clone(sommer.get()));
    icalcomponent_add_component(zone.get(), icalcomponent_new_clone(winter.get()));
    return zone;
}

const std::string &ZeitzoneAlsText()
{
    static const std::string text = AlsText(Zeitzone());
    return text;
}

} // namespace

Kalenderschreiber::Kalenderschreiber(const Text &name, Ortszeit stand)
{
    const Teil kopf = NeuerTeil(ICAL_VCALENDAR_COMPONENT);
    Hinzu(kopf, icalproperty_new_version("2.0"));
    Hinzu(kopf, icalproperty_new_prodid(Hersteller));
    Hinzu(kopf, icalproperty_new_calscale("GREGORIAN"));
    bytes = AlsText(kopf);
    bytes.resize(bytes.size() - Ende.size());
    TextzeileAnhängen(bytes, "X-WR-CALNAME", name);
    TextzeileAnhängen(bytes, "X-WR-TIMEZONE", Zone);
    bytes += ZeitzoneAlsText();
    Anhängen(stempel, icalproperty_new_dtstamp(Weltzeitpunkt(stand)));
    Anhängen(stempel, icalproperty_new_lastmodified(Weltzeitpunkt(stand)));
    Anhängen(stempel, icalproperty_new_sequence(SekundenSeit2020(stand)));
}

void Kalenderschreiber::Anfügen(const Kalendereintrag &eintrag)
{
    bytes += "BEGIN:VEVENT\r\n";
    TextzeileAnhängen(bytes, "UID", eintrag.Kennung);
    bytes += stempel;
    if (eintrag.GanzeWoche) {
        ZeitAnhängen(bytes, "DTSTART", Tag(eintrag.Tag));
        ZeitAnhängen(bytes, "DTEND", Tag(eintrag.Tag + Woche));
        Anhängen(bytes, icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT)); // takes up no time
    } else {
        const Ortszeit beginn = AufDerUhr({eintrag.Tag, eintrag.Sekunden});
        const Ortszeit ende = AufDerUhr(Später(beginn, Dauer));
        ZeitAnhängen(bytes, "DTSTART", Zeitpunkt(beginn));
        ZeitAnhängen(bytes, "DTEND", Zeitpunkt(ende));
    }
    TextzeileAnhängen(bytes, "SUMMARY", eintrag.Titel);
    if (!eintrag.Beschreibung.empty())
        TextzeileAnhängen(bytes, "DESCRIPTION", eintrag.Beschreibung);
    bytes += "END:VEVENT\r\n";
}

std::string Kalenderschreiber::Fertig() &&
{
    bytes += Ende;
    return std::move(bytes);
}

bool IstEigenerKalender(std::string_view anfang)
{
    return anfang.starts_with("BEGIN:VCALENDAR") &&
           anfang.substr(0, 1000).find(Hersteller) != std::string_view::npos;
}

} // namespace altardienst
