// The handbook as it is built into the program.
#pragma once

#include "help/Handbuchsuche.h"
#include "help/Handbuchtext.h"

#include <QString>

#include <vector>

namespace altardienst {

struct Handbuchseite {
    Text Name; // of the file
    QString Markdown;
    std::vector<Titelzeile> Überschriften;

    Text Titel() const;                     // the first heading, or else the name
    int Abschnitt(const Text &anker) const; // the number of the heading, -1 if there is none
};

/// Reads the pages, in the order of the contents.
std::vector<Handbuchseite> HandbuchLesen();

/// The file of a picture by the name that a page gives it.
QString Bilddatei(const QString &aufDerSeite);

/// All that can be searched, paragraph by paragraph; `Ort` is the number of the block in the
/// document of the page.
std::vector<Absatz> AbsätzeVon(const std::vector<Handbuchseite> &seiten);

} // namespace altardienst
