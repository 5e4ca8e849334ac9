// How a page of the handbook is set: headings, tables, links and pictures.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QTextDocument>

namespace altardienst {

/// What the palette has no colour for, or none that can be read on its ground.
struct Seitenfarben {
    QColor Verweis;
    QColor Linie;        // of tables and pictures
    QColor Tafelkopf;    // the ground of the first row of a table
    QColor Schreibgrund; // that of names of files and the like
    QColor Treffer;      // the ground of what was searched for
    QColor Fundstelle;   // that of the one that is shown
    QColor AufTreffer;   // letters on these two
};

Seitenfarben SeitenfarbenFür(const QPalette &palette);

/// From 1 to 21; letters are read well from 4.5 on.
double Kontrast(const QColor &eine, const QColor &andere);

/// Fills a document with a page. Its distances follow the document's font.
void SeiteSetzen(QTextDocument &dokument, const QString &markdown, const QPalette &palette);

/// A line of text has at most 105 letters, however wide the window is, and a picture the same
/// width: pictures that are larger are shown smaller. `breite` is that of the window in pixels,
/// `dichte` how many dots of the screen make one; `bilder` keeps the pictures that were read.
void BreiteEinrichten(QTextDocument &dokument, int breite, qreal dichte,
                      QHash<QString, QImage> &bilder, const QColor &rahmen);

} // namespace altardienst
