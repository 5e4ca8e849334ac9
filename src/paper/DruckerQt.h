// The printer on Qt: paper through the system's printers, or a PDF file.
#pragma once

#include "platform/Drucker.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPicture>
#include <QPrinter>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QPainter;

namespace altardienst {

/// What the print dialog gives: the printer with all its settings, and the layout.
struct Druckauswahl {
    int Modus = 0; // 1: the second layout
    std::shared_ptr<QPrinter> Ziel;
    bool DanachÖffnen = false; // the PDF, for looking at it
};

/// How a report ended.
struct Druckausgang {
    enum Art { Gedruckt, OhneInhalt, Gescheitert };

    Art Ende = Gescheitert;
    QString Pdf;     // its file; empty on paper
    QString Drucker; // the name of the printer; empty for a PDF
    bool DanachÖffnen = false;
};

/// A picture made of strokes and letters, so that it prints as sharply as the printer can.
struct Druckbild {
    QPicture Bild;
    QSize Größe; // of the window it shows, in its pixels
};

/// A printer that writes a PDF file.
std::shared_ptr<QPrinter> PdfDrucker(const QString &datei);

/// A4, measured from the paper's edge. Pages are held back until the document ends, so that a
/// report that fails leaves nothing in the printer's queue; a report without output leaves no file.
/// A PDF is written under its name plus ".teil" in the same directory and replaces an older file
/// once it is complete.
class DruckerQt : public DruckerDienst {
  public:
    /// What runs before each report; returns nothing if it was cancelled.
    using Dialogablauf = std::function<std::optional<Druckauswahl>(const Druckanfrage &)>;

    /// What runs after each report that was not cancelled, once the printer is free again.
    using Nachricht = std::function<void(const Druckausgang &)>;

    explicit DruckerQt(
        Dialogablauf dialog, Nachricht nachricht = [](const Druckausgang &) {});
    ~DruckerQt() override;

    std::optional<int> Dialog(const Druckanfrage &anfrage) override;
    std::vector<Text> Schriften() const override;
    void FontName(const Text &name) override;
    void FontSize(int punkte) override;
    void FontSizeFein(Single punkte) override;
    void FontBold(bool an) override;
    void FontItalic(bool an) override;
    void FontStrikethru(bool an) override;
    void FontUnderline(bool an) override;
    void CurrentX(Single x) override;
    void CurrentY(Single y) override;
    Single CurrentY() const override;
    Single Height() const override;
    Single Width() const override;
    Single TextWidth(const Text &text) const override;
    Single TextHeight() const override;
    void Orientation(int richtung) override;
    void Print(const Text &text) override;
    void Line(const Druckstrich &strich) override;
    void Picture(const Druckbild &bild) override;
    void NewPage() override;
    void EndDoc() override;
    void Verwerfen() override;

  private:
    using Zeichnung = std::function<void(QPainter &)>;
    using Seite = std::vector<Zeichnung>;

    void Zeichnen(Zeichnung zeichnung);
    void SchriftSetzen();
    QFontMetricsF Maße() const;
    double TwipsProPunkt() const;
    void Beginnen();
    void SeitenAusgeben();
    void Beenden(Druckausgang::Art ende);
    void Vergessen();
    QString Teildatei() const;

    Dialogablauf dialog;
    Nachricht nachricht;
    int richtung = Hochformat;
    QFont schrift;
    bool schriftGeändert = true;
    Single x = 0;
    Single y = 0;
    double zeilenhöhe = 0; // twips, of the current font
    double oberlänge = 0;  // twips from the top of a line to its baseline
    std::vector<Seite> seiten;
    bool neueSeite = false; // a new page that nothing was written on yet

    std::shared_ptr<QPrinter> drucker;
    QString pdf; // the file of the current document, empty when printing on paper
    std::unique_ptr<QPainter> stift;
    std::optional<Druckausgang> ausgang; // of the report that is being printed
};

} // namespace altardienst
