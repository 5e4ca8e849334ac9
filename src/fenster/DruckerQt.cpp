// The printer on Qt.
#include "fenster/DruckerQt.h"

#include "core/Laufzeitfehler.h"
#include "fenster/Bausteine.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace altardienst {
namespace {

constexpr double TwipsProZoll = 1440;
constexpr Single KurzeSeite = 11906; // A4, 210 mm
constexpr Single LangeSeite = 16838; // A4, 297 mm
constexpr double Bildrand = 850;     // 15 mm

[[noreturn]] void Druckerfehler()
{
    throw Laufzeitfehler(Laufzeitfehler::Druckerfehler);
}

/// Whether a PDF was written to its end: a full disk cuts it off without a word.
bool IstVollständig(const QString &pdf)
{
    QFile datei(pdf);
    return datei.open(QIODevice::ReadOnly) && datei.seek(std::max<qint64>(datei.size() - 8, 0)) &&
           datei.readAll().trimmed().endsWith("%%EOF");
}

/// Puts a file in the place of another one, which stays if that fails.
bool Ersetzen(const QString &alt, const QString &neu)
{
    std::error_code fehler;
    std::filesystem::rename(neu.toStdU16String(), alt.toStdU16String(), fehler);
    return !fehler;
}

} // namespace

std::shared_ptr<QPrinter> PdfDrucker(const QString &datei)
{
    auto drucker = std::make_shared<QPrinter>(QPrinter::HighResolution);
    drucker->setOutputFileName(datei);
    // After the name: an empty one would choose the system's printer.
    drucker->setOutputFormat(QPrinter::PdfFormat);
    return drucker;
}

DruckerQt::DruckerQt(Dialogablauf dialog) : dialog(std::move(dialog)) {}

DruckerQt::~DruckerQt()
{
    Verwerfen();
}

std::optional<int> DruckerQt::Dialog(const Druckanfrage &anfrage)
{
    const std::optional<Druckauswahl> auswahl = dialog(anfrage);
    if (!auswahl)
        return std::nullopt;
    drucker = auswahl->Ziel;
    return auswahl->Modus;
}

std::vector<Text> DruckerQt::Schriften() const
{
    std::vector<Text> namen;
    for (const QString &name : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(name))
            namen.push_back(name.toStdString());
    return namen;
}

void DruckerQt::FontName(const Text &name)
{
    schrift.setFamily(Anzeige(name));
    schriftGeändert = true;
}

void DruckerQt::FontSize(int punkte)
{
    if (punkte < 1 || punkte > 2160)
        Druckerfehler();
    schrift.setPointSize(punkte);
    schriftGeändert = true;
}

void DruckerQt::FontBold(bool an)
{
    schrift.setBold(an);
    schriftGeändert = true;
}

void DruckerQt::FontItalic(bool an)
{
    schrift.setItalic(an);
    schriftGeändert = true;
}

void DruckerQt::FontStrikethru(bool an)
{
    schrift.setStrikeOut(an);
    schriftGeändert = true;
}

void DruckerQt::FontUnderline(bool an)
{
    schrift.setUnderline(an);
    schriftGeändert = true;
}

void DruckerQt::CurrentX(Single neu)
{
    x = neu;
}

void DruckerQt::CurrentY(Single neu)
{
    y = neu;
}

Single DruckerQt::CurrentY() const
{
    return y;
}

Single DruckerQt::Height() const
{
    return richtung == Querformat ? KurzeSeite : LangeSeite;
}

void DruckerQt::Orientation(int neu)
{
    if (neu != Hochformat && neu != Querformat)
        Druckerfehler();
    richtung = neu;
}

void DruckerQt::Beginnen()
{
    if (!drucker)
        Druckerfehler();
    drucker->setDocName("Altardienst");
    drucker->setCreator("Altardienst");
    drucker->setPageSize(QPageSize(QPageSize::A4));
    drucker->setPageOrientation(richtung == Querformat ? QPageLayout::Landscape
                                                       : QPageLayout::Portrait);
    drucker->setFullPage(true); // coordinates count from the paper's edge
    pdf = drucker->outputFileName();
    if (!pdf.isEmpty())
        drucker->setOutputFileName(Teildatei());
    stift = std::make_unique<QPainter>();
    if (!stift->begin(drucker.get())) {
        stift.reset();
        Druckerfehler();
    }
    schriftGeändert = true;
}

void DruckerQt::SchriftSetzen()
{
    if (!schriftGeändert)
        return;
    stift->setFont(schrift);
    const QFontMetricsF maße(schrift, drucker.get());
    const double twips = TwipsProZoll / drucker->resolution();
    zeilenhöhe = maße.lineSpacing() * twips;
    oberlänge = maße.ascent() * twips;
    schriftGeändert = false;
}

/// The paper for what comes next: of a new document, or of a page that was turned.
void DruckerQt::SeiteBereitstellen()
{
    if (!stift)
        Beginnen();
    if (neueSeite && !drucker->newPage())
        Druckerfehler();
    neueSeite = false;
}

void DruckerQt::FehlerPrüfen() const
{
    if (drucker->printerState() == QPrinter::Error)
        Druckerfehler();
}

void DruckerQt::Print(const Text &text)
{
    SeiteBereitstellen();
    SchriftSetzen();
    if (!text.empty()) {
        const double punkte = drucker->resolution() / TwipsProZoll;
        stift->drawText(QPointF(x * punkte, (y + oberlänge) * punkte), Anzeige(text));
    }
    FehlerPrüfen();
    y += static_cast<Single>(zeilenhöhe);
    x = 0;
}

void DruckerQt::Picture(const Druckbild &bild)
{
    SeiteBereitstellen();
    const double punkte = drucker->resolution() / TwipsProZoll;
    const QSizeF platz((KurzeSeite - 2 * Bildrand) * punkte, (LangeSeite - 2 * Bildrand) * punkte);
    const QSizeF größe =
        QSizeF(bild.Größe)
            .scaled(richtung == Querformat ? platz.transposed() : platz, Qt::KeepAspectRatio);
    stift->save();
    stift->translate(Bildrand * punkte, Bildrand * punkte);
    // A picture that is played is brought to the resolution of the printer already.
    const double gespielt = drucker->logicalDpiX() / static_cast<double>(bild.Bild.logicalDpiX());
    const double maßstab = größe.width() / bild.Größe.width() / gespielt;
    stift->scale(maßstab, maßstab);
    stift->drawPicture(0, 0, bild.Bild);
    stift->restore();
    FehlerPrüfen();
}

void DruckerQt::NewPage()
{
    neueSeite = stift != nullptr;
    x = 0;
    y = 0;
}

void DruckerQt::EndDoc()
{
    if (stift) {
        if (!stift->end())
            Druckerfehler();
        if (!pdf.isEmpty() && !(IstVollständig(Teildatei()) && Ersetzen(pdf, Teildatei())))
            Druckerfehler();
    }
    Vergessen();
}

void DruckerQt::Verwerfen()
{
    if (stift && stift->isActive()) {
        drucker->abort();
        stift->end();
    }
    if (!pdf.isEmpty())
        QFile::remove(Teildatei());
    Vergessen();
}

QString DruckerQt::Teildatei() const
{
    return pdf + ".teil";
}

void DruckerQt::Vergessen()
{
    stift.reset();
    drucker.reset();
    pdf.clear();
    neueSeite = false;
    x = 0;
    y = 0;
}

} // namespace altardienst
