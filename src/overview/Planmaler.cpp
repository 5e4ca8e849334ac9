// How a cell of the grid is drawn.
#include "overview/Planmaler.h"

#include "overview/Zeichen.h"

#include <QFontMetrics>
#include <QHash>
#include <QPainter>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int Wochenlinie = 2;
constexpr const char *Niemand = "offen";

QColor Durchscheinend(QColor farbe, qreal deckung)
{
    farbe.setAlphaF(static_cast<float>(deckung));
    return farbe;
}

QRect Mitte(const QRect &platz, int breite, int höhe)
{
    return {platz.left() + (platz.width() - breite) / 2, platz.top() + (platz.height() - höhe) / 2,
            breite, höhe};
}

} // namespace

Planmaler::Planmaler(QObject *eigner, const Planmodell *modell)
    : QStyledItemDelegate(eigner), modell(modell)
{
    SchriftSetzen({});
}

void Planmaler::SchriftSetzen(const QFont &schrift)
{
    constexpr qreal Kleiner = 0.84;
    maße.Haupt = maße.Neben = schrift;
    if (schrift.pointSizeF() > 0)
        maße.Neben.setPointSizeF(schrift.pointSizeF() * Kleiner);
    maße.Hauptzeile = QFontMetrics(maße.Haupt).height();
    maße.Nebenzeile = QFontMetrics(maße.Neben).height() - 1;
    maße.Rand = std::max(3, maße.Hauptzeile / 5);
    maße.Zeichen = std::max(9, maße.Hauptzeile * 3 / 4);
}

const Planmaler::Farben &Planmaler::FarbenFür(const QPalette &palette) const
{
    if (farben.Schlüssel == palette.cacheKey())
        return farben;
    const QColor hervor = palette.color(QPalette::Highlight);
    farben.Schlüssel = palette.cacheKey();
    farben.Text = palette.color(QPalette::Text);
    farben.Neben = Nebenfarbe(palette);
    farben.Linie = Linienfarbe(palette);
    farben.Woche = Durchscheinend(farben.Text, 0.45);
    farben.Leer = Durchscheinend(farben.Text, 0.045);
    farben.Gewählt = Durchscheinend(hervor, 0.30);
    farben.Markiert = Durchscheinend(hervor, 0.16);
    farben.Rand = hervor;
    return farben;
}

void Planmaler::paint(QPainter *stift, const QStyleOptionViewItem &option,
                      const QModelIndex &zelle) const
{
    GrundMalen(*stift, option, zelle);
    if (zelle.column() < Planmodell::Kopfspalten)
        KopfMalen(*stift, option, zelle);
    else
        PlatzMalen(*stift, option, modell->Zelle(zelle.row(), zelle.column()));
    if (option.state & QStyle::State_HasFocus) {
        stift->setPen(QPen(FarbenFür(option.palette).Rand, 2));
        stift->setBrush(Qt::NoBrush);
        stift->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
}

void Planmaler::GrundMalen(QPainter &stift, const QStyleOptionViewItem &option,
                           const QModelIndex &zelle) const
{
    const Farben &f = FarbenFür(option.palette);
    const QRect &platz = option.rect;
    if (option.state & QStyle::State_Selected) {
        stift.fillRect(platz, option.palette.base()); // the view has filled it with its own colour
        stift.fillRect(platz, f.Gewählt);
    }
    if (zelle.column() >= Planmodell::Kopfspalten &&
        !modell->Zelle(zelle.row(), zelle.column()).Gewollt)
        stift.fillRect(platz, f.Leer);
    stift.fillRect(platz.left(), platz.bottom(), platz.width(), 1, f.Linie);
    if (modell->BeginntWoche(zelle.row()))
        stift.fillRect(platz.left(), platz.top(), platz.width(), Wochenlinie, f.Woche);
}

void Planmaler::KopfMalen(QPainter &stift, const QStyleOptionViewItem &option,
                          const QModelIndex &zelle) const
{
    const auto spalte = static_cast<Planmodell::Kopfspalte>(zelle.column());
    const qreal dichte = stift.device()->devicePixelRatioF();
    const QRect zeichen = Mitte(option.rect, maße.Zeichen, maße.Zeichen);
    if (spalte == Planmodell::Zeichenspalte) {
        if (const auto stufe = modell->Gravierendstes(zelle.row()))
            stift.drawPixmap(zeichen.topLeft(),
                             Stufenzeichen(*stufe, option.palette, maße.Zeichen, dichte));
        return;
    }
    const QString &text = modell->Kopf(zelle.row(), spalte);
    if (spalte == Planmodell::Fest) {
        if (!text.isEmpty())
            stift.drawPixmap(zeichen.topLeft(), Nadelzeichen(option.palette, maße.Zeichen, dichte));
        return;
    }
    const QRect platz = option.rect.adjusted(maße.Rand, 0, -maße.Rand, 0);
    stift.setFont(maße.Haupt);
    stift.setPen(FarbenFür(option.palette).Text);
    stift.drawText(platz, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                   QFontMetrics(maße.Haupt).elidedText(text, Qt::ElideRight, platz.width()));
}

void Planmaler::PlatzMalen(QPainter &stift, const QStyleOptionViewItem &option,
                           const Planzelle &was) const
{
    if (!was.Gewollt && was.Name.isEmpty())
        return;
    const Farben &f = FarbenFür(option.palette);
    const bool markiert = was.Person >= 0 && was.Person == modell->Markierter();
    const int texthöhe = maße.Hauptzeile + (was.Dienst.isEmpty() ? 0 : maße.Nebenzeile);
    const int oben = option.rect.top() + (option.rect.height() - texthöhe) / 2;
    const int links = option.rect.left() + maße.Rand + maße.Zeichen + maße.Rand;
    const int breite = option.rect.right() - links;
    if (markiert) {
        stift.setRenderHint(QPainter::Antialiasing);
        stift.setPen(QPen(f.Rand, 1));
        stift.setBrush(f.Markiert);
        stift.drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -2.5), 4, 4);
        stift.setRenderHint(QPainter::Antialiasing, false);
    }
    if (was.Zeichen)
        stift.drawPixmap(option.rect.left() + maße.Rand,
                         oben + (maße.Hauptzeile - maße.Zeichen) / 2,
                         Stufenzeichen(*was.Zeichen, option.palette, maße.Zeichen,
                                       stift.device()->devicePixelRatioF()));
    constexpr int Art = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    stift.setFont(maße.Haupt);
    stift.setPen(was.Name.isEmpty() || !was.Gewollt ? f.Neben : f.Text);
    stift.drawText(QRect(links, oben, breite, maße.Hauptzeile), Art,
                   was.Name.isEmpty() ? QString(Niemand) : was.Name);
    if (was.Dienst.isEmpty())
        return;
    stift.setFont(maße.Neben);
    stift.setPen(f.Neben);
    stift.drawText(QRect(links, oben + maße.Hauptzeile, breite, maße.Nebenzeile), Art, was.Dienst);
}

QSize Planmaler::sizeHint(const QStyleOptionViewItem &, const QModelIndex &zelle) const
{
    return {Breite(zelle.column()), maße.Reihe(modell->HatDienstwörter())};
}

/// Each name and each word is measured once, however often it stands there.
int Planmaler::Breite(int spalte) const
{
    const QFontMetrics haupt(maße.Haupt);
    const QFontMetrics neben(maße.Neben);
    if (spalte == Planmodell::Zeichenspalte || spalte == Planmodell::Fest)
        return maße.Zeichen + 2 * maße.Rand;
    QHash<QString, int> gemessen;
    int breiteste = 0;
    const auto messen = [&](const QFontMetrics &schrift, const QString &text) {
        const auto stelle = gemessen.constFind(text);
        const int breite = stelle != gemessen.cend() ? *stelle : schrift.horizontalAdvance(text);
        if (stelle == gemessen.cend())
            gemessen.insert(text, breite);
        breiteste = std::max(breiteste, breite);
    };
    if (spalte < Planmodell::Kopfspalten) {
        constexpr int Höchstens = 22; // letters of a kind of mass
        for (int zeile = 0; zeile < modell->rowCount(); ++zeile)
            messen(haupt, modell->Kopf(zeile, static_cast<Planmodell::Kopfspalte>(spalte)));
        return std::min(breiteste, Höchstens * haupt.averageCharWidth()) + 2 * maße.Rand + 2;
    }
    messen(haupt, Niemand);
    for (int zeile = 0; zeile < modell->rowCount(); ++zeile) {
        const Planzelle &zelle = modell->Zelle(zeile, spalte);
        if (!zelle.Name.isEmpty())
            messen(haupt, zelle.Name);
        if (!zelle.Dienst.isEmpty())
            messen(neben, zelle.Dienst);
    }
    return breiteste + maße.Zeichen + 3 * maße.Rand + 2;
}

} // namespace altardienst
