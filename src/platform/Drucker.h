// The printer: a text cursor on a page, and the dialog that comes before each report.
#pragma once

#include "values/Int16.h"
#include "values/Text.h"

#include <optional>
#include <vector>

namespace altardienst {

/// What a report passes to the print dialog: the names of its two layouts, if it has two, and its
/// own.
struct Druckanfrage {
    Text ErsteForm;
    Text ZweiteForm;
    Text Name = {};      // of the report, for people
    Text Dateiname = {}; // of a PDF file, without extension; empty: like the report

    bool HatZweiFormen() const { return !ZweiteForm.empty(); }

    /// A report with one layout.
    static Druckanfrage Für(const Text &name) { return {{}, {}, name}; }
};

/// A picture that fills a page; how it is drawn concerns only the code that makes and prints it.
struct Druckbild;

/// A straight line from one point to another, in twips.
struct Druckstrich {
    Single VonX;
    Single VonY;
    Single BisX;
    Single BisY;
    Single Breite;
    bool Gestrichelt = false;
};

/// All lengths in twips (1440 to the inch) from the upper left corner of the paper. A document
/// begins with the first page operation and ends with `EndDoc`. Every operation may raise failure
/// 482 (Druckerfehler).
class DruckerDienst {
  public:
    static constexpr int Hochformat = 1;
    static constexpr int Querformat = 2;

    /// The mode that the dialog returns for the second of two layouts.
    static constexpr int ZweiteForm = 1;

    DruckerDienst() = default;
    DruckerDienst(const DruckerDienst &) = delete;
    DruckerDienst &operator=(const DruckerDienst &) = delete;
    virtual ~DruckerDienst() = default;

    /// Shows the print dialog; returns its numeric mode, or nothing if it was cancelled.
    virtual std::optional<int> Dialog(const Druckanfrage &anfrage) = 0;

    /// Names of the fonts to print in, in the platform's order.
    virtual std::vector<Text> Schriften() const = 0;

    // Attributes of the current font. A size outside 1 to 2160 points is a printer error; a missing
    // font is replaced by a similar one.
    virtual void FontName(const Text &name) = 0;
    virtual void FontSize(int punkte) = 0;
    /// The same in fractions of a point, for type that is to fill its place.
    virtual void FontSizeFein(Single punkte) = 0;
    virtual void FontBold(bool an) = 0;
    virtual void FontItalic(bool an) = 0;
    virtual void FontStrikethru(bool an) = 0;
    virtual void FontUnderline(bool an) = 0;

    // The cursor, at the upper left corner of the next character.
    virtual void CurrentX(Single x) = 0;
    virtual void CurrentY(Single y) = 0;
    virtual Single CurrentY() const = 0;

    /// The height of the page in its current orientation.
    virtual Single Height() const = 0;
    virtual Single Width() const = 0;

    // How wide a text and how high a line is in the current font, between the dialog and the end of
    // the document. Measuring puts nothing on the page.
    virtual Single TextWidth(const Text &text) const = 0;
    virtual Single TextHeight() const = 0;

    /// 1 portrait, 2 landscape; anything else is a printer error. Kept from report to report.
    virtual void Orientation(int richtung) = 0;

    /// Writes the text at the cursor and ends the line: the cursor goes down by the height of a
    /// line and to the left edge of the paper.
    virtual void Print(const Text &text) = 0;

    /// Draws in black; the cursor stays where it is.
    virtual void Line(const Druckstrich &strich) = 0;

    /// Puts the picture on the page, as large as it fits with the same margin on all sides.
    virtual void Picture(const Druckbild &bild) = 0;

    /// A page with nothing on it produces no empty sheet.
    virtual void NewPage() = 0;
    virtual void EndDoc() = 0;

    /// Discards a document that has not ended; none of it is printed. The page is portrait again.
    virtual void Verwerfen() = 0;
};

/// The printer in use. The program installs a real one when it starts; without one every dialog
/// acts as if cancelled.
extern DruckerDienst *Drucker;

} // namespace altardienst
