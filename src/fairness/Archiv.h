// The services of past plans, one file a period in the directory "Archiv" of the program's own:
// UTF-8 text that a spreadsheet opens. Never needed: without it only less is counted.
#pragma once

#include "overview/Plantabellen.h"
#include "people/Personen.h"
#include "values/Datum.h"

#include <filesystem>
#include <tuple>
#include <vector>

namespace altardienst {

/// From the first to the last date of a plan.
struct Archivzeitraum {
    Datum Von = 0;
    Datum Bis = 0;

    friend bool operator==(const Archivzeitraum &, const Archivzeitraum &) = default;
    friend auto operator<=>(const Archivzeitraum &a, const Archivzeitraum &b)
    {
        return std::tie(a.Von, a.Bis) <=> std::tie(b.Von, b.Bis);
    }
};

/// One service of somebody.
struct Archivdienst {
    Datum Tag = 0;
    Datum Uhrzeit = 0;
    Text Messeart;
    Text Vorname, Nachname;
    Text Dienst; // a name of `Dienstarten` or `Helferarten`

    bool VonHelfer() const;
    friend bool operator==(const Archivdienst &, const Archivdienst &) = default;
};

struct Archivinhalt {
    std::vector<Archivdienst> Dienste;
    int Unlesbar = 0; // lines that are no service
};

/// "Plan 2026-11-28 bis 2026-12-28.csv", and the directory where it lies.
Text Archivname(const Archivzeitraum &zeitraum);
std::filesystem::path Archivverzeichnis();

/// The periods that are kept, the oldest first; files with other names are none of ours.
std::vector<Archivzeitraum> ArchivierteZeiträume();

/// Failure 53 or 75 if the file is not there or cannot be read. A file that a spreadsheet has saved
/// with commas, tabs or in the code page of the eight files is read too.
Archivinhalt ArchivLesen(const Archivzeitraum &zeitraum);

/// The services of a plan: all wanted places with a name, by the services that follow from the
/// counts.
std::vector<Archivdienst> DiensteDesPlans(const Plantabellen &tabellen);

/// Keeps the plan, in place of the file of the same period. Returns false if it has no names.
/// Failure 61, 75, 76: then the old file is as it was.
bool PlanArchivieren(const Plantabellen &tabellen = GemeinsameTabellen());

/// Failure 75 for a directory of this name, which is none of ours.
void ArchivLöschen(const Archivzeitraum &zeitraum);

/// In all files. Lines that cannot be read stay as they are; a file that cannot be read or written
/// stays too. Returns how many files could not be changed.
int ImArchivUmbenennen(const Personenname &alt, const Personenname &neu, bool helfer);

/// The services of the months before a day, by record of the tables. Where the periods of two files
/// overlap, the one that begins later counts. Adds to `unlesbar` the files that cannot be read.
struct Archivzählung {
    std::vector<double> Diener, Helfer; // by record
    int UnlesbareDateien = 0;
};
Archivzählung ArchivZählen(const Plantabellen &tabellen, Datum vor, int monate);

} // namespace altardienst
