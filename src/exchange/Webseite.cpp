// The plan as a web page in one file.
#include "exchange/Webseite.h"

#include "assignment/Gründe.h"
#include "core/Umwandlung.h"
#include "exchange/Blattmaß.h"
#include "exchange/Planauszug.h"
#include "exchange/Webseitenstil.h"
#include "overview/Planwoche.h"
#include "overview/Platz.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>
#include <deque>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace altardienst {
namespace {

// Bytes of a page, about.
constexpr std::size_t Grundgröße = 10000;
constexpr std::size_t GrößeEinerMesse = 700;

constexpr std::size_t Dienstspalten = 2; // after date and kind

struct Spalte {
    std::string_view Dienst;
    Text Kopf;
};

/// Each service that somebody has.
std::vector<Spalte> SpaltenFür(const std::vector<Auszugsmesse> &auszug, bool mitHelfern)
{
    std::vector<Spalte> spalten;
    const auto aufnehmen = [&](std::string_view dienst, const char *kopf) {
        const bool vorhanden = std::ranges::any_of(auszug, [&](const Auszugsmesse &eine) {
            return std::ranges::find(eine.Dienste, dienst, &Auszugsdienst::Dienst) !=
                   eine.Dienste.end();
        });
        if (vorhanden)
            spalten.push_back({dienst, kopf});
    };
    for (const Dienstart &art : Dienstarten)
        aufnehmen(art.Name, art.Name.c_str());
    if (mitHelfern)
        for (const Helferart &art : Helferarten)
            aufnehmen(art.Name, art.Aufschrift.c_str());
    return spalten;
}

Text Tagestext(const MesseTabelle &messen, const Auszugsmesse &eine)
{
    if (!eine.HatTermin)
        return "?";
    const Datum tag = messen.Datum[eine.Messe];
    const Text text = Links(WochentagName(tag), 2) + " " + TagImSatz(tag);
    return IstWochendienst(messen, eine.Messe) ? "ab " + text : text;
}

Text Zeittext(const MesseTabelle &messen, const Auszugsmesse &eine)
{
    if (!eine.HatTermin || IstWochendienst(messen, eine.Messe))
        return "";
    return StundenUndMinuten(messen.Uhrzeit[eine.Messe]);
}

Stücke Wörter(std::string_view text)
{
    Stücke wörter;
    while (!text.empty()) {
        const std::size_t ende = std::min(text.find(' '), text.size());
        if (ende > 0)
            wörter.emplace_back(text.substr(0, ende));
        text.remove_prefix(std::min(ende + 1, text.size()));
    }
    return wörter;
}

class Tafelmacher {
  public:
    Tafelmacher(const Plantabellen &tabellen, const Webseitenwunsch &wunsch)
        : messen(tabellen.Messen), namen(wunsch.Namen, tabellen), mitHelfern(wunsch.MitHelfern)
    {
    }

    /// Its texts are those of the tables and of this object.
    Blatttafel Machen(const std::vector<Auszugsmesse> &auszug)
    {
        spalten = SpaltenFür(auszug, mitHelfern);
        Blatttafel tafel{{"Termin", "Messe"}, Dienstspalten, {}};
        for (const Spalte &spalte : spalten)
            tafel.Köpfe.push_back(spalte.Kopf);
        tafel.Zeilen.reserve(auszug.size());
        for (const Auszugsmesse &eine : auszug)
            tafel.Zeilen.push_back(Zeile(eine));
        return tafel;
    }

  private:
    std::vector<Stücke> Zeile(const Auszugsmesse &eine)
    {
        std::vector<Stücke> zeile(Dienstspalten + spalten.size());
        zeile[0] = {termine.emplace_back(Tagestext(messen, eine))};
        if (const Text zeit = Zeittext(messen, eine); !zeit.empty())
            zeile[0].push_back(termine.emplace_back(zeit));
        zeile[1] = Wörter(messen.Messeart[eine.Messe]);
        for (auto von = eine.Dienste.begin(); von != eine.Dienste.end();) {
            const auto bis = std::find_if(von, eine.Dienste.end(), [&](const auto &einer) {
                return !von->IstSelberDienst(einer);
            });
            const auto spalte = std::ranges::find(spalten, von->Dienst, &Spalte::Dienst);
            if (spalte == spalten.end()) {
                von = bis;
                continue;
            }
            Stücke &zelle =
                zeile[Dienstspalten + static_cast<std::size_t>(spalte - spalten.begin())];
            zelle.reserve(zelle.size() + static_cast<std::size_t>(bis - von));
            for (; von != bis; ++von)
                zelle.push_back(namen.Von(*von->Vorname, *von->Nachname));
        }
        return zeile;
    }

    const MesseTabelle &messen;
    const Namengeber namen;
    const bool mitHelfern;
    std::vector<Spalte> spalten;
    std::deque<Text> termine;
};

/// Where the long names of services may break, in a head as narrow as the names below it.
constexpr std::array<std::string_view, 3> Trennstellen = {"bereitung", "helfer", "träger"};

Text MitTrennstelle(Text kopf)
{
    for (const std::string_view teil : Trennstellen)
        if (const auto ort = kopf.find(teil); ort != Text::npos && ort > 0)
            kopf.insert(ort, "&shy;");
    return kopf;
}

/// What the page writes for a character; nullptr for the character itself.
const char *Ersatz(char zeichen)
{
    switch (zeichen) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    default:
        return static_cast<unsigned char>(zeichen) < ' ' || zeichen == '\x7f' ? "" : nullptr;
    }
}

/// Characters that may be written otherwise, by their number.
const std::array<bool, 256> Besondere = [] {
    std::array<bool, 256> besondere{};
    for (std::size_t i = 0; i < besondere.size(); ++i)
        besondere[i] = i == ' ' || Ersatz(static_cast<char>(i));
    return besondere;
}();

/// Appends a text as the page writes it: nothing in it is taken for a sign of the language.
void Anhängen(std::string &seite, std::string_view text, const char *leerzeichen = " ")
{
    std::size_t von = 0; // of what is written as it is
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!Besondere[static_cast<unsigned char>(text[i])])
            continue;
        if (const char *ersatz = text[i] == ' ' ? leerzeichen : Ersatz(text[i])) {
            seite.append(text, von, i - von).append(ersatz);
            von = i + 1;
        }
    }
    seite.append(text, von);
}

/// The same without a place where the line may break.
void AmStückAnhängen(std::string &seite, std::string_view text)
{
    Anhängen(seite, text, "\u00a0");
}

/// Names come often, and are written the same each time.
class Namenschrift {
  public:
    /// The name without a place where the line may break. Known again by where it stands.
    const std::string &Von(std::string_view name)
    {
        const auto [ort, neu] = geschriebene.try_emplace(name.data());
        if (neu)
            AmStückAnhängen(ort->second, name);
        return ort->second;
    }

  private:
    std::unordered_map<const char *, std::string> geschriebene;
};

/// "2026-11-28T18:30", for machines.
Text Maschinenzeit(const MesseTabelle &messen, int messe)
{
    const Kalendertag tag = KalendertagVon(messen.Datum[messe]);
    return FesteStellen(tag.Jahr, 4, 0) + "-" + FesteStellen(tag.Monat, 2, 0) + "-" +
           FesteStellen(tag.Tag, 2, 0) + "T" + StundenUndMinuten(messen.Uhrzeit[messe]);
}

/// None for a mass without a date.
std::optional<int> Woche(const Plantabellen &tabellen, const Auszugsmesse &eine)
{
    if (!eine.HatTermin)
        return std::nullopt;
    return Planwoche(tabellen.Einstellungen, tabellen.Messen.Datum[eine.Messe]);
}

void ZeilenAnhängen(std::string &seite, const Plantabellen &tabellen,
                    const std::vector<Auszugsmesse> &auszug, const Blatttafel &tafel)
{
    const MesseTabelle &messen = tabellen.Messen;
    Namenschrift namen;
    for (std::size_t i = 0; i < auszug.size(); ++i) {
        const bool neueWoche =
            i > 0 && Woche(tabellen, auszug[i]) != Woche(tabellen, auszug[i - 1]);
        seite += neueWoche ? "<tr class=\"w\"><th scope=\"row\">" : "<tr><th scope=\"row\">";
        const auto &zeile = tafel.Zeilen[i];
        if (auszug[i].HatTermin)
            seite += "<time datetime=\"" + Maschinenzeit(messen, auszug[i].Messe) + "\">";
        for (const std::string_view &stück : zeile[0]) {
            seite += &stück == &zeile[0].front() ? "" : " ";
            AmStückAnhängen(seite, stück);
        }
        seite += auszug[i].HatTermin ? "</time></th><td>" : "</th><td>";
        Anhängen(seite, messen.Messeart[auszug[i].Messe]);
        seite += "</td>";
        for (std::size_t k = Dienstspalten; k < zeile.size(); ++k) {
            seite += "<td>";
            for (const std::string_view &name : zeile[k]) {
                seite += &name == &zeile[k].front() ? "" : ", ";
                seite += namen.Von(name);
            }
            seite += "</td>";
        }
        seite += "</tr>\n";
    }
}

/// "28.11.2026 bis 23.12.2026 · Stand 21.11.2026".
Text Zeitraum(const MesseTabelle &messen, const std::vector<Auszugsmesse> &auszug)
{
    const auto letzte = std::ranges::find(auszug, false, &Auszugsmesse::HatTermin);
    Text stand = "Stand " + KurzesDatum(Uhr.Heute());
    if (letzte == auszug.begin())
        return stand;
    return KurzesDatum(messen.Datum[auszug.front().Messe]) + " bis " +
           KurzesDatum(messen.Datum[std::prev(letzte)->Messe]) + " · " + stand;
}

/// A page that search engines leave out, and that fetches nothing.
constexpr const char *Anfang = R"(<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width,initial-scale=1">
<meta name="robots" content="noindex,nofollow">
<meta name="referrer" content="no-referrer">
<meta http-equiv="Content-Security-Policy" content="default-src 'none';style-src 'unsafe-inline';script-src 'unsafe-inline';base-uri 'none';form-action 'none'">
<title>)";

} // namespace

Webseite PlanAlsWebseite(const Plantabellen &tabellen, const Webseitenwunsch &wunsch)
{
    const std::vector<Auszugsmesse> auszug = PlanAusziehen(tabellen);
    Tafelmacher macher(tabellen, wunsch);
    const Blatttafel tafel = macher.Machen(auszug);
    const Blattmaß maß = BlattmaßFür(tafel);
    std::string seite;
    seite.reserve(Grundgröße + auszug.size() * GrößeEinerMesse);
    seite += Anfang;
    Anhängen(seite, wunsch.Titel);
    seite +=
        "</title>\n<style>" + Webseitenstil(tafel.Köpfe, maß) + "</style>\n</head>\n<body>\n<h1>";
    Anhängen(seite, wunsch.Titel);
    seite += "</h1>\n<p>" + Zeitraum(tabellen.Messen, auszug) +
             "</p>\n<p class=\"suche\" hidden><label for=\"name\">Nur Messen mit dem Namen</label>"
             "<input id=\"name\" type=\"search\" autocomplete=\"off\" spellcheck=\"false\">"
             "<output id=\"zahl\" for=\"name\"></output></p>\n<table>\n<thead><tr>";
    for (const Text &kopf : tafel.Köpfe)
        seite += "<th scope=\"col\">" + MitTrennstelle(kopf) + "</th>";
    seite += "</tr></thead>\n<tbody>\n";
    ZeilenAnhängen(seite, tabellen, auszug, tafel);
    seite += "</tbody>\n</table>\n<script>";
    seite += Webseitenskript;
    seite += "</script>\n</body>\n</html>\n";
    return {std::move(seite), static_cast<int>(auszug.size()), maß.Seiten};
}

} // namespace altardienst
