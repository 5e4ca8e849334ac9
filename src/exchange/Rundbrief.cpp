// A mail to many.
#include "exchange/Rundbrief.h"

#include "core/Plätze.h"
#include "exchange/Messtermin.h"
#include "exchange/Planauszug.h"

namespace altardienst {
namespace {

/// Every byte that is neither a letter or digit nor listed becomes its number, also those that
/// links allow: not every mail program reads them alike. A line feed becomes CR LF.
void Anhängen(Text &verweis, std::string_view text, std::string_view erlaubt)
{
    constexpr const char *Ziffern = "0123456789ABCDEF";
    for (const char zeichen : text) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
            (byte >= '0' && byte <= '9') || erlaubt.find(zeichen) != std::string_view::npos) {
            verweis += zeichen;
            continue;
        }
        if (zeichen == '\n')
            verweis += "%0D";
        verweis += '%';
        verweis += Ziffern[byte / 16];
        verweis += Ziffern[byte % 16];
    }
}

constexpr std::string_view Unbedenklich = "-._~";
constexpr std::string_view InAdressen = "-._~@";

void Zeile(Text &text, const Text &dienst, const Text &namen)
{
    if (!namen.empty())
        text += "  " + dienst + ": " + namen + "\n";
}

void MesseAnhängen(Text &text, const Plantabellen &tabellen, const Auszugsmesse &messe,
                   const Namengeber &namen)
{
    text += MesseMitJahr(tabellen.Messen, messe.Messe) + "\n";
    const auto dienst = [&](std::string_view name) {
        Text alle;
        for (const Auszugsdienst &einer : messe.Dienste)
            if (einer.Dienst == name)
                alle += (alle.empty() ? "" : ", ") + namen.Von(*einer.Vorname, *einer.Nachname);
        Zeile(text, Text(name), alle);
    };
    for (const Dienstart &art : Dienstarten)
        dienst(art.Name);
    for (const Helferart &art : Helferarten)
        dienst(art.Name);
}

} // namespace

Text MailVerweis(const Rundbrief &brief)
{
    Text verweis = "mailto:";
    char trenner = '?';
    const auto feld = [&](const char *name) -> Text & {
        verweis += trenner;
        trenner = '&';
        return verweis += Text(name) + '=';
    };
    if (!brief.Adressen.empty()) {
        feld("bcc");
        for (const Text &adresse : brief.Adressen) {
            if (&adresse != &brief.Adressen.front())
                verweis += ',';
            Anhängen(verweis, adresse, InAdressen);
        }
    }
    if (!brief.Betreff.empty())
        Anhängen(feld("subject"), brief.Betreff, Unbedenklich);
    if (!brief.Inhalt.empty())
        Anhängen(feld("body"), brief.Inhalt, Unbedenklich);
    return verweis;
}

Briefweg WegDes(const Rundbrief &brief)
{
    const auto passt = [](const Text &verweis) { return verweis.size() <= LängsterVerweis; };
    if (const Text alles = MailVerweis(brief); passt(alles))
        return {alles, true, true};
    if (const Text ohneInhalt = MailVerweis({brief.Adressen, brief.Betreff, {}}); passt(ohneInhalt))
        return {ohneInhalt, true, false};
    if (const Text ohneAdressen = MailVerweis({{}, brief.Betreff, brief.Inhalt});
        passt(ohneAdressen))
        return {ohneAdressen, false, true};
    if (const Text betreff = MailVerweis({{}, brief.Betreff, {}}); passt(betreff))
        return {betreff, false, false};
    return {"mailto:", false, false};
}

Text AlsAdresszeile(const std::vector<Text> &adressen)
{
    Text zeile;
    for (const Text &adresse : adressen)
        zeile += (zeile.empty() ? "" : "; ") + adresse;
    return zeile;
}

Text PlanAlsBrieftext(const Plantabellen &tabellen, Namenform form, std::optional<int> messe)
{
    const Namengeber namen(form, tabellen);
    Text text;
    for (const Auszugsmesse &eine : PlanAusziehen(tabellen)) {
        if (messe && *messe != eine.Messe)
            continue;
        if (!text.empty())
            text += "\n";
        MesseAnhängen(text, tabellen, eine, namen);
    }
    return text;
}

} // namespace altardienst
