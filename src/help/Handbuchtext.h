// The handbook as text: the headings of a page, the places that links lead to, the order of pages.
#pragma once

#include "values/Text.h"

#include <vector>

namespace altardienst {

constexpr const char *ErsteSeite = "README.md";

/// Where a page or a link leads to. Without an anchor it is the beginning of the page.
struct Handbuchstelle {
    Text Seite; // the name of the file, such as "plan.md"
    Text Anker; // of the heading, such as "die-sieben-schritte"

    bool operator==(const Handbuchstelle &) const = default;
};

struct Titelzeile {
    int Stufe; // from 1, the title of the page
    Text Worte;
    Text Anker;

    bool operator==(const Titelzeile &) const = default;
};

/// The headings of a page in their order. Each has an anchor of its own: the second of the same
/// words gets "-1" added, as on the web pages on which the handbook can be read too.
std::vector<Titelzeile> Überschriften(const Text &markdown);

/// The name of a heading in links: in small letters, without punctuation, blanks as hyphens.
Text AnkerVon(const Text &worte);

/// What a link on a page leads to in the handbook: "seite.md", "seite.md#anker" or "#anker".
Handbuchstelle StelleVon(const Text &verweis, const Text &aufSeite);

/// Whether a link leads to the network or into a letter.
bool FührtHinaus(const Text &verweis);

/// The targets of all links and pictures of a page, in their order.
std::vector<Text> Verweise(const Text &markdown);

/// The names of the pages in the order in which the first page, whose Markdown this is, links to
/// them; itself ahead of all, and those to which it has no link at the end.
std::vector<Text> Seitenfolge(const Text &ersteSeite, const std::vector<Text> &namen);

} // namespace altardienst
