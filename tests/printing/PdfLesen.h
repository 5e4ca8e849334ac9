// Reads a PDF back with the poppler tools: its text, the positions of the words, fonts, pictures.
#pragma once

#include "printing/Werkzeuglauf.h"

#include <QImage>
#include <QRegularExpression>

#include <stdexcept>
#include <vector>

namespace altardienst {

/// Positions in points from the upper left corner of the page.
struct PdfWort {
    int Seite; // from 1
    double Links, Oben, Rechts, Unten;
    Text Inhalt;
};

struct PdfSeite {
    double Breite, Höhe; // points
};

struct PdfInhalt {
    std::vector<PdfSeite> Seiten;
    std::vector<PdfWort> Wörter; // in reading order, not in the order printed

    const PdfWort &Wort(const Text &inhalt) const
    {
        for (const PdfWort &wort : Wörter)
            if (wort.Inhalt == inhalt)
                return wort;
        throw std::runtime_error("not on the paper: " + inhalt);
    }
};

inline PdfInhalt PdfLesen(const QString &datei)
{
    PdfInhalt inhalt;
    const QString html = QString::fromStdString(Aufruf("pdftotext", {"-bbox", datei, "-"}));
    static const QRegularExpression muster(
        "<page width=\"([\\d.]+)\" height=\"([\\d.]+)\">|<word xMin=\"([-\\d.]+)\" "
        "yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">(.*)</word>");
    for (auto treffer = muster.globalMatch(html); treffer.hasNext();) {
        const auto t = treffer.next();
        const auto zahl = [&](int n) { return t.captured(n).toDouble(); };
        if (!t.captured(1).isEmpty())
            inhalt.Seiten.push_back({zahl(1), zahl(2)});
        else
            inhalt.Wörter.push_back({static_cast<int>(inhalt.Seiten.size()), zahl(3), zahl(4),
                                     zahl(5), zahl(6), t.captured(7).toStdString()});
    }
    return inhalt;
}

/// The text as it is laid out on the page.
inline Text PdfText(const QString &datei)
{
    return Aufruf("pdftotext", {"-layout", datei, "-"});
}

/// The first page, at 4 pixels per millimetre.
inline QImage PdfBild(const QString &datei)
{
    Aufruf("pdftoppm", {"-png", "-r", "101.6", "-singlefile", datei, datei});
    return QImage(datei + ".png");
}

} // namespace altardienst
