// A file of calendar entries (iCalendar, RFC 5545), which phones and calendar programs take in.
#pragma once

#include "exchange/Ortszeit.h"
#include "values/Text.h"

#include <string>
#include <string_view>

namespace altardienst {

struct Kalendereintrag {
    Text Kennung; // by which a calendar knows the entry again, and replaces it
    Datum Tag = 0;
    int Sekunden = 0;
    bool GanzeWoche = false; // seven days from that one on, without a time
    Text Titel;
    Text Beschreibung; // lines with "\n" between them
};

class Kalenderschreiber {
  public:
    /// The name that a calendar program proposes for the whole, and the time at which the file is
    /// written: a later file replaces the entries of an earlier one.
    Kalenderschreiber(const Text &name, Ortszeit stand);

    void Anfügen(const Kalendereintrag &eintrag);

    /// The bytes of the file; nothing can be added then.
    std::string Fertig() &&;

  private:
    std::string bytes;   // up to the last entry
    std::string stempel; // of every entry
};

/// Whether these are bytes of such a file of this program.
bool IstEigenerKalender(std::string_view bytes);

} // namespace altardienst
