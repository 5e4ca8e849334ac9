// Searching the handbook: which paragraphs have the words, and the sentence to show for each.
#pragma once

#include "values/Text.h"

#include <vector>

namespace altardienst {

/// A paragraph, an item of a list, a cell of a table or a heading.
struct Absatz {
    int Seite;
    int Abschnitt; // the number of the heading it stands below on its page, -1 ahead of the first
    int Ort;       // whatever leads the caller back to it
    Text Worte;
};

/// A part of a text, in bytes.
struct Treffer {
    std::size_t Ab;
    std::size_t Bytes;

    bool operator==(const Treffer &) const = default;
};

struct Suchtreffer {
    std::size_t Absatz;      // its number among those that were searched
    Treffer Erster;          // in the paragraph
    Text Satz;               // that of the first one, shortened with "…" where it is long
    std::vector<Treffer> In; // in the sentence
};

/// What is typed, taken apart at blanks.
std::vector<Text> Suchworte(const Text &eingabe);

/// Wherever one of the words stands in the text, also within another word; parts that touch are
/// one. Capitals count as small letters, "ß" as "ss", and all kinds of quotes and dashes as one.
std::vector<Treffer> TrefferIn(const Text &text, const std::vector<Text> &worte);

/// The sentences of a paragraph, without the blanks between them.
std::vector<Treffer> Sätze(const Text &absatz);

/// The paragraphs that have all words, in their order. If there is none, the sections that have
/// all, each with its paragraph that has the most of them.
std::vector<Suchtreffer> Suchen(const std::vector<Absatz> &absätze, const std::vector<Text> &worte);

} // namespace altardienst
