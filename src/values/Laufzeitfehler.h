// The one exception type of the program: a numbered run-time failure with its German text.
#pragma once

#include <exception>
#include <string>

namespace altardienst {

/// A failure of an operation on values, tables or files. Carries the number by which users and
/// error paths know it.
class Laufzeitfehler : public std::exception {
  public:
    /// The failures that the program itself raises.
    enum Art {
        UngültigerAufruf = 5,
        Überlauf = 6,
        IndexAußerhalb = 9,
        DivisionDurchNull = 11,
        TypenUnverträglich = 13,
        DateiNichtGefunden = 53,
        DateiVorhanden = 58,
        DatenträgerVoll = 61,
        HinterDateiende = 62,
        ZugriffVerweigert = 75,
        PfadNichtGefunden = 76,
        Druckerfehler = 482,
    };

    explicit Laufzeitfehler(Art art) : art(art) {}

    int Nummer() const { return art; }

    /// The platform's German text, such as "Typen unverträglich".
    const char *what() const noexcept override;

    /// What a message box shows: "Laufzeitfehler '13': Typen unverträglich".
    std::string Meldung() const;

  private:
    Art art;
};

} // namespace altardienst
