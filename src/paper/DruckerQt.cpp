// The printer on Qt.
#include "paper/DruckerQt.h"

#include "controls/Bausteine.h"
#include "platform/Lebenszeichen.h"
#include "values/Laufzeitfehler.h"

#include <QFile>
#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

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

/// Whether a PDF was written to its end: a full disk cuts it off silently.
bool IstVollständig(const QString &pdf)
{
    QFile datei(pdf);
    return datei.open(QIODevice::ReadOnly) && datei.seek(std::max<qint64>(datei.size() - 8, 0)) &&
           datei.readAll().trimmed().endsWith("%%EOF");
}

/// Replaces one file by another; the old one stays if that fails.
bool Ersetzen(const QString &alt, const QString &neu)
{
    std::error_code fehler;
    std::filesystem::rename(neu.toStdU16String(), alt.toStdU16String(), fehler);
    return !fehler;
}

/// The size of a twip in dots of the device.
double PunkteProTwip(const QPainter &stift)
{
    return stift.device()->logicalDpiX() / TwipsProZoll;
}

} // namespace

std::shared_ptr<QPrinter> PdfDrucker(const QString &datei)
{
    auto drucker = std::make_shared<QPrinter>(QPrinter::HighResolution);
    drucker->setOutputFileName(datei);
    // After the file name: an empty one would switch back to the system's printer.
    drucker->setOutputFormat(QPrinter::PdfFormat);
    return drucker;
}

DruckerQt::DruckerQt(Dialogablauf dialog, Nachricht nachricht)
    : dialog(std::move(dialog)), nachricht(std::move(nachricht))
{
}

DruckerQt::~DruckerQt()
{
    ausgang.reset();
    Verwerfen();
}

std::optional<int> DruckerQt::Dialog(const Druckanfrage &anfrage)
{
    const std::optional<Druckauswahl> auswahl = dialog(anfrage);
    if (!auswahl)
        return std::nullopt;
    drucker = auswahl->Ziel;
    ausgang.emplace();
    ausgang->DanachÖffnen = auswahl->DanachÖffnen;
    if (drucker) {
        ausgang->Pdf = drucker->outputFileName();
        if (ausgang->Pdf.isEmpty())
            ausgang->Drucker = drucker->printerName();
    }
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

void DruckerQt::FontSizeFein(Single punkte)
{
    if (!(punkte >= 1 && punkte <= 2160))
        Druckerfehler();
    schrift.setPointSizeF(static_cast<double>(punkte));
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

Single DruckerQt::Width() const
{
    return richtung == Querformat ? LangeSeite : KurzeSeite;
}

QFontMetricsF DruckerQt::Maße() const
{
    if (!drucker)
        Druckerfehler();
    return {schrift, drucker.get()};
}

double DruckerQt::TwipsProPunkt() const
{
    return TwipsProZoll / drucker->resolution();
}

Single DruckerQt::TextWidth(const Text &text) const
{
    return static_cast<Single>(Maße().horizontalAdvance(Anzeige(text)) * TwipsProPunkt());
}

Single DruckerQt::TextHeight() const
{
    return static_cast<Single>(Maße().lineSpacing() * TwipsProPunkt());
}

void DruckerQt::Orientation(int neu)
{
    if (neu != Hochformat && neu != Querformat)
        Druckerfehler();
    richtung = neu;
}

/// Opens the printer. A report that fails must not leave half a document in its queue, and not
/// every printer takes back what it was given; so nothing is sent before the report has ended.
void DruckerQt::Beginnen()
{
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
}

/// Draws on the page once the printer is open.
void DruckerQt::Zeichnen(Zeichnung zeichnung)
{
    if (!drucker)
        Druckerfehler();
    if (seiten.empty() || neueSeite)
        seiten.emplace_back();
    neueSeite = false;
    seiten.back().push_back(std::move(zeichnung));
}

void DruckerQt::SchriftSetzen()
{
    if (!schriftGeändert)
        return;
    Zeichnen([schrift = schrift](QPainter &stift) { stift.setFont(schrift); });
    const QFontMetricsF maße = Maße();
    zeilenhöhe = maße.lineSpacing() * TwipsProPunkt();
    oberlänge = maße.ascent() * TwipsProPunkt();
    schriftGeändert = false;
}

void DruckerQt::Print(const Text &text)
{
    SchriftSetzen();
    Zeichnen([ort = QPointF(x, y + oberlänge), text = Anzeige(text)](QPainter &stift) {
        if (!text.isEmpty())
            stift.drawText(ort * PunkteProTwip(stift), text);
    });
    y += static_cast<Single>(zeilenhöhe);
    x = 0;
}

void DruckerQt::Line(const Druckstrich &strich)
{
    Zeichnen([strich](QPainter &stift) {
        const double punkte = PunkteProTwip(stift);
        stift.save();
        stift.setPen(QPen(Qt::black, strich.Breite * punkte,
                          strich.Gestrichelt ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
        stift.drawLine(QPointF(strich.VonX, strich.VonY) * punkte,
                       QPointF(strich.BisX, strich.BisY) * punkte);
        stift.restore();
    });
}

void DruckerQt::Picture(const Druckbild &bild)
{
    QSizeF platz(KurzeSeite - 2 * Bildrand, LangeSeite - 2 * Bildrand);
    if (richtung == Querformat)
        platz.transpose();
    const QSizeF größe = QSizeF(bild.Größe).scaled(platz, Qt::KeepAspectRatio);
    Zeichnen([bild, größe](QPainter &stift) {
        const double punkte = PunkteProTwip(stift);
        // A picture being played is already scaled to the resolution of the printer.
        const double gespielt =
            stift.device()->logicalDpiX() / static_cast<double>(bild.Bild.logicalDpiX());
        const double maßstab = größe.width() * punkte / bild.Größe.width() / gespielt;
        stift.save();
        stift.translate(Bildrand * punkte, Bildrand * punkte);
        stift.scale(maßstab, maßstab);
        stift.drawPicture(0, 0, bild.Bild);
        stift.restore();
    });
}

void DruckerQt::NewPage()
{
    neueSeite = !seiten.empty();
    x = 0;
    y = 0;
}

void DruckerQt::SeitenAusgeben()
{
    Beginnen();
    bool erste = true;
    for (const Seite &seite : seiten) {
        Lebenszeichen();
        if (!std::exchange(erste, false) && !drucker->newPage())
            Druckerfehler();
        for (const Zeichnung &zeichnung : seite)
            zeichnung(*stift);
        if (drucker->printerState() == QPrinter::Error)
            Druckerfehler();
    }
    if (!stift->end())
        Druckerfehler();
    if (!pdf.isEmpty() && !(IstVollständig(Teildatei()) && Ersetzen(pdf, Teildatei())))
        Druckerfehler();
}

void DruckerQt::EndDoc()
{
    const bool leer = seiten.empty();
    if (!leer)
        SeitenAusgeben();
    Vergessen();
    Beenden(leer ? Druckausgang::OhneInhalt : Druckausgang::Gedruckt);
}

void DruckerQt::Verwerfen()
{
    if (stift && stift->isActive()) { // the printer itself failed
        drucker->abort();
        stift->end();
    }
    if (!pdf.isEmpty())
        QFile::remove(Teildatei());
    Vergessen();
    richtung = Hochformat; // a report that turned the page has no chance to turn it back
    Beenden(Druckausgang::Gescheitert);
}

/// Last, since what runs then may look at the file.
void DruckerQt::Beenden(Druckausgang::Art ende)
{
    if (!ausgang)
        return;
    Druckausgang dieser = *std::exchange(ausgang, std::nullopt);
    dieser.Ende = ende;
    nachricht(dieser);
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
    seiten.clear();
    neueSeite = false;
    schriftGeändert = true; // each document sets its font again
    x = 0;
    y = 0;
}

} // namespace altardienst
