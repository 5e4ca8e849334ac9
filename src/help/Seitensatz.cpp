// How a page of the handbook is set: headings, tables, links and pictures.
#include "help/Seitensatz.h"

#include "help/Handbuch.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <vector>

namespace altardienst {
namespace {

constexpr int BuchstabenJeZeile = 105;
constexpr int Seitenrand = 20;     // pixels
constexpr double Zeilenhöhe = 125; // per cent
constexpr double Lesbar = 4.5;     // the contrast of letters

double Helligkeit(const QColor &farbe)
{
    const auto anteil = [](double wert) {
        return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) +
           0.0722 * anteil(farbe.blueF());
}

QColor Mischung(const QColor &grund, const QColor &schrift, double anteil)
{
    const auto mischen = [anteil](float a, float b) {
        return static_cast<float>(a + (b - a) * anteil);
    };
    return QColor::fromRgbF(mischen(grund.redF(), schrift.redF()),
                            mischen(grund.greenF(), schrift.greenF()),
                            mischen(grund.blueF(), schrift.blueF()));
}

/// A part of the text with one format.
struct Textstück {
    int Ab;
    int Länge;
    QTextCharFormat Format;
};

/// They are gathered first, since a change of one moves the others.
std::vector<Textstück> Textstücke(const QTextDocument &dokument)
{
    std::vector<Textstück> alle;
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next())
        for (auto stück = block.begin(); !stück.atEnd(); ++stück) {
            const QTextFragment teil = stück.fragment();
            alle.push_back({teil.position(), teil.length(), teil.charFormat()});
        }
    return alle;
}

/// While it lives, the changes count as one, after which the document is laid out once.
class EineÄnderung {
  public:
    explicit EineÄnderung(QTextDocument &dokument) : stelle(&dokument) { stelle.beginEditBlock(); }
    ~EineÄnderung() { stelle.endEditBlock(); }
    EineÄnderung(const EineÄnderung &) = delete;
    EineÄnderung &operator=(const EineÄnderung &) = delete;

  private:
    QTextCursor stelle;
};

void Formatieren(QTextDocument &dokument, const Textstück &stück, const QTextCharFormat &format)
{
    QTextCursor stelle(&dokument);
    stelle.setPosition(stück.Ab);
    stelle.setPosition(stück.Ab + stück.Länge, QTextCursor::KeepAnchor);
    stelle.setCharFormat(format);
}

bool HatBild(const QTextBlock &block)
{
    return block.text().contains(QChar::ObjectReplacementCharacter);
}

/// `zeile` is the height of a line.
void BlockSetzen(const QTextBlock &block, double zeile)
{
    QTextCursor stelle(block);
    QTextBlockFormat format = block.blockFormat();
    const int stufe = format.headingLevel();
    if (stufe > 0) {
        format.setTopMargin(stufe == 1 ? 0 : zeile * (stufe == 2 ? 1.4 : 1.0));
        format.setBottomMargin(zeile * 0.5);
        QTextCharFormat schrift;
        schrift.setFontWeight(QFont::Bold);
        schrift.setProperty(QTextFormat::FontSizeAdjustment, 3 - stufe); // 1.5, 1.2, 1
        stelle.select(QTextCursor::BlockUnderCursor);
        stelle.mergeCharFormat(schrift);
    } else if (stelle.currentTable()) {
        format.setLineHeight(Zeilenhöhe - 10, QTextBlockFormat::ProportionalHeight);
    } else {
        format.setTopMargin(HatBild(block) ? zeile * 0.4 : 0);
        const bool gehtWeiter = block.textList() && block.next().textList();
        format.setBottomMargin(zeile * (gehtWeiter ? 0.35 : 0.7));
        if (!HatBild(block)) // it would stretch the picture's line as well
            format.setLineHeight(Zeilenhöhe, QTextBlockFormat::ProportionalHeight);
        if (format.intProperty(QTextFormat::BlockQuoteLevel) > 0) {
            format.setLeftMargin(zeile * 1.5);
            format.setRightMargin(zeile * 1.5);
        }
    }
    QTextCursor(block).setBlockFormat(format);
}

void TafelSetzen(QTextTable &tafel, double zeile, const Seitenfarben &farben)
{
    QTextTableFormat format = tafel.format();
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(farben.Linie);
    format.setCellSpacing(0);
    format.setCellPadding(zeile * 0.3);
    format.setTopMargin(zeile * 0.3);
    format.setBottomMargin(zeile * 0.7);
    tafel.setFormat(format);
    for (int spalte = 0; spalte < tafel.columns(); ++spalte) {
        QTextTableCell zelle = tafel.cellAt(0, spalte);
        QTextCharFormat kopf = zelle.format();
        kopf.setBackground(farben.Tafelkopf);
        zelle.setFormat(kopf);
    }
}

/// A picture in the size in which it is shown, with a thin frame: many windows have the colour of
/// the page.
QImage Gerahmt(const QImage &bild, int breite, qreal dichte, const QColor &rahmen)
{
    const int punkte = static_cast<int>(std::lround(breite * dichte));
    QImage gerahmt =
        bild.width() == punkte ? bild : bild.scaledToWidth(punkte, Qt::SmoothTransformation);
    gerahmt = gerahmt.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter stift(&gerahmt);
    stift.setPen(rahmen);
    stift.drawRect(gerahmt.rect().adjusted(0, 0, -1, -1));
    stift.end();
    gerahmt.setDevicePixelRatio(dichte);
    return gerahmt;
}

} // namespace

double Kontrast(const QColor &eine, const QColor &andere)
{
    const auto [dunkel, hell] = std::minmax({Helligkeit(eine), Helligkeit(andere)});
    return (hell + 0.05) / (dunkel + 0.05);
}

Seitenfarben SeitenfarbenFür(const QPalette &palette)
{
    const QColor grund = palette.color(QPalette::Base);
    const QColor schrift = palette.color(QPalette::Text);
    QColor verweis = palette.color(QPalette::Link);
    if (Kontrast(verweis, grund) < Lesbar) // pure blue on a dark page
        verweis = Helligkeit(grund) < 0.2 ? QColor(0x8a, 0xb4, 0xf8) : QColor(0x0b, 0x57, 0xd0);
    return {verweis,
            Mischung(grund, schrift, 0.3),
            Mischung(grund, schrift, 0.1),
            Mischung(grund, schrift, 0.08),
            QColor(0xff, 0xe0, 0x82),
            QColor(0xff, 0xa0, 0x40),
            Qt::black};
}

void SeiteSetzen(QTextDocument &dokument, const QString &markdown, const QPalette &palette)
{
    const Seitenfarben farben = SeitenfarbenFür(palette);
    const double zeile = QFontMetricsF(dokument.defaultFont()).height();
    dokument.setUndoRedoEnabled(false);
    dokument.setDocumentMargin(Seitenrand);
    dokument.setIndentWidth(zeile * 1.5); // of lists
    {
        const EineÄnderung eine(dokument);
        dokument.setMarkdown(markdown);
    }
    const EineÄnderung eine(dokument);
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next())
        BlockSetzen(block, zeile);
    for (const Textstück &stück : Textstücke(dokument)) {
        QTextCharFormat format = stück.Format;
        if (format.fontFixedPitch()) {
            format.clearProperty(QTextFormat::FontPointSize); // it would stay when the others grow
            format.setFontFamilies(
                {QFontDatabase::systemFont(QFontDatabase::FixedFont).family(), "monospace"});
            format.setBackground(farben.Schreibgrund);
        } else if (format.isAnchor()) {
            format.setForeground(farben.Verweis);
            format.setFontUnderline(true);
        } else {
            continue;
        }
        Formatieren(dokument, stück, format);
    }
    for (QTextFrame *rahmen : dokument.rootFrame()->childFrames())
        if (auto *tafel = qobject_cast<QTextTable *>(rahmen))
            TafelSetzen(*tafel, zeile, farben);
}

void BreiteEinrichten(QTextDocument &dokument, int breite, qreal dichte,
                      QHash<QString, QImage> &bilder, const QColor &rahmen)
{
    const double buchstabe = QFontMetricsF(dokument.defaultFont()).averageCharWidth();
    const double zeile = std::clamp(breite - 2.0 * Seitenrand, 1.0, buchstabe * BuchstabenJeZeile);
    QTextFrameFormat seite = dokument.rootFrame()->frameFormat();
    seite.setRightMargin(std::max<double>(Seitenrand, breite - Seitenrand - zeile));
    const EineÄnderung eine(dokument);
    dokument.rootFrame()->setFrameFormat(seite);

    for (const Textstück &stück : Textstücke(dokument)) {
        if (!stück.Format.isImageFormat())
            continue;
        QTextImageFormat format = stück.Format.toImageFormat();
        QImage &bild = bilder[format.name()];
        if (bild.isNull() && !bild.load(Bilddatei(format.name())))
            continue;
        const int gezeigt = std::min(bild.width(), static_cast<int>(zeile));
        format.setWidth(gezeigt);
        format.setHeight(std::round(gezeigt * static_cast<double>(bild.height()) / bild.width()));
        dokument.addResource(QTextDocument::ImageResource, QUrl(format.name()),
                             Gerahmt(bild, gezeigt, dichte, rahmen));
        Formatieren(dokument, stück, format);
    }
}

} // namespace altardienst
