// A printer that records what it is told, and the record expected from a report.
#pragma once

#include "platform/Drucker.h"

#include <vector>

namespace altardienst {

/// Every line of a page has the same height; nothing is laid out. Where a report measures its
/// texts, every character is half as wide as the type is high.
class Druckprotokoll : public DruckerDienst {
  public:
    /// One operation per line, in the order received: `CurrentX 1000`, `Print "Text"`. Reading the
    /// cursor and the page height leaves no line.
    std::vector<Text> Zeilen;

    std::optional<int> Antwort = 0; // of the print dialog; none: cancelled
    std::vector<Text> Schriftarten; // the fonts of the printer
    Single Zeilenhöhe = 240;        // twips
    Single Seitenhöhe = 16838;      // twips
    Single Seitenbreite = 11906;    // twips
    int FehlerBei = 0;              // the line of the log that fails, from 1; 0: none

    /// What the dialog was asked for last.
    Druckanfrage Anfrage;

    int WieOft(const Text &zeile) const;

    /// Starts a new log at the top of a page; the settings above stay.
    void Leeren();

    std::optional<int> Dialog(const Druckanfrage &anfrage) override;
    std::vector<Text> Schriften() const override { return Schriftarten; }
    void FontName(const Text &name) override;
    void FontSize(int punkte) override;
    void FontSizeFein(Single punkte) override;
    void FontBold(bool an) override;
    void FontItalic(bool an) override;
    void FontStrikethru(bool an) override;
    void FontUnderline(bool an) override;
    void CurrentX(Single x) override;
    void CurrentY(Single neu) override;
    Single CurrentY() const override { return y; }
    Single Height() const override { return Seitenhöhe; }
    Single Width() const override { return Seitenbreite; }
    Single TextWidth(const Text &text) const override;
    Single TextHeight() const override { return 1.2F * 20 * größe; }
    void Orientation(int richtung) override;
    void Print(const Text &text) override;
    void Line(const Druckstrich &strich) override;
    void Picture(const Druckbild &bild) override;
    void NewPage() override;
    void EndDoc() override;
    void Verwerfen() override;

  private:
    void Schreiben(const Text &zeile);

    Single y = 0;
    Single größe = 10; // of the current font, points
};

/// Builds the log expected from a report, piece by piece, with the settings of `Druckstand`.
class Ablauf {
  public:
    std::vector<Text> Zeilen;

    Ablauf &Tut(const Text &operation);
    Ablauf &Zeile(const Text &text); // at the left margin
    Ablauf &Leerzeile();             // wherever the cursor is
    Ablauf &Eröffnung(const std::vector<Text> &titel);
    Ablauf &Mehrere(const std::vector<Text> &zeilen);
};

} // namespace altardienst
