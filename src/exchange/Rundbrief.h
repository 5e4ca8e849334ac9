// A mail to many, as far as the program makes it: a link that the mail program opens, and the plan
// as its text. Nothing is sent from here.
#pragma once

#include "exchange/Namenform.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace altardienst {

/// The longest link that is passed on: some platforms cut longer ones off in the middle.
constexpr std::size_t LängsterVerweis = 2000;

struct Rundbrief {
    std::vector<Text> Adressen;
    Text Betreff;
    Text Inhalt; // lines end with a line feed
};

/// "mailto:?bcc=...&subject=...&body=...": every address as a blind copy; empty parts are left out.
Text MailVerweis(const Rundbrief &brief);

/// What the mail program gets, and what is left for the clipboard because the link would be too
/// long. The addresses are worth more than the text.
struct Briefweg {
    Text Verweis;
    bool MitAdressen = true;
    bool MitInhalt = true;
};
Briefweg WegDes(const Rundbrief &brief);

/// The addresses as a line to paste.
Text AlsAdresszeile(const std::vector<Text> &adressen);

/// The plan, or one mass of it, as text: a heading for each mass, then a line for each service.
Text PlanAlsBrieftext(const Plantabellen &tabellen, Namenform form,
                      std::optional<int> messe = std::nullopt);

} // namespace altardienst
