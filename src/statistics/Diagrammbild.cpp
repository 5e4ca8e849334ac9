// A chart: bars of categories, or two directions of classes against each other.
#include "statistics/Diagrammbild.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "statistics/QCustomPlot.h"

#include <QPalette>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace altardienst {
namespace {

/// Shades of one blue: they differ in lightness, so they also work for the colour-blind and on
/// paper.
struct Diagrammfarben {
    QColor Grund;
    QColor Schrift;
    QColor Blaß;   // the figure of nobody
    QColor Linien; // of the grid
    QColor Balken;
    QColor Wenigstes; // nearest to the ground
    QColor Meistes;
};

Diagrammfarben FarbenFür(const QPalette &palette)
{
    const QColor grund = palette.color(QPalette::Base);
    const QColor schrift = palette.color(QPalette::Text);
    if (grund.lightness() < 128)
        return {grund, schrift, 0x9a9a9a, 0x606060, 0x4da6e0, 0x084594, 0xc6e0f5};
    return {grund, schrift, 0x767676, 0xc8c8c8, 0x0072b2, 0xdeebf7, 0x084594};
}

int Höchste(const std::vector<int> &anzahl)
{
    return std::max(1, *std::ranges::max_element(anzahl));
}

/// Short enough to stand upright.
bool SindKurz(const std::vector<Text> &klassen)
{
    constexpr std::size_t Stellen = 3;
    return std::ranges::all_of(klassen, [](const Text &eine) { return eine.size() <= Stellen; });
}

/// From the shade for one to that for the most: 0 to 1.
double Stärke(int wert, int höchste)
{
    return höchste > 1 ? (wert - 1.0) / (höchste - 1.0) : 1;
}

QColor Mischung(const Diagrammfarben &farben, double stärke)
{
    const auto anteil = [&](int wenig, int viel) {
        return static_cast<int>(wenig + stärke * (viel - wenig));
    };
    const QColor &wenig = farben.Wenigstes;
    const QColor &viel = farben.Meistes;
    return {anteil(wenig.red(), viel.red()), anteil(wenig.green(), viel.green()),
            anteil(wenig.blue(), viel.blue())};
}

/// Black or white, whichever stands out more.
QColor SchriftAuf(const QColor &feld)
{
    const auto linear = [](double teil) {
        return teil <= 0.04045 ? teil / 12.92 : std::pow((teil + 0.055) / 1.055, 2.4);
    };
    const double leuchtdichte = 0.2126 * linear(feld.redF()) + 0.7152 * linear(feld.greenF()) +
                                0.0722 * linear(feld.blueF());
    constexpr double GleichWeit = 0.179; // from black as from white
    return leuchtdichte < GleichWeit ? Qt::white : Qt::black;
}

} // namespace

class Diagrammbild::Zeichnung : public QCustomPlot {
  public:
    explicit Zeichnung(const QString &titel)
    {
        setFocusPolicy(Qt::NoFocus);
        setLocale(QLocale(QLocale::German, QLocale::Germany));
        plotLayout()->insertRow(0);
        QFont schrift = font();
        schrift.setBold(true);
        schrift.setPointSizeF(schrift.pointSizeF() + 2);
        überschrift = new QCPTextElement(this, titel, schrift);
        plotLayout()->addElement(0, 0, überschrift);
    }

    /// Empty, in these colours.
    void Leeren(const Diagrammfarben &farben)
    {
        clearPlottables(); // of an earlier time
        clearItems();
        grund = farben.Grund;
        überschrift->setTextColor(farben.Schrift);
        for (QCPAxis *achse : {xAxis, yAxis}) {
            const QPen stift(farben.Schrift);
            achse->setBasePen(stift);
            achse->setTickPen(stift);
            achse->setSubTickPen(stift);
            achse->setTickLabelColor(farben.Schrift);
            achse->setLabelColor(farben.Schrift);
            const QPen linie(farben.Linien, 0, Qt::DotLine);
            achse->grid()->setPen(linie);
            achse->grid()->setZeroLinePen(linie);
        }
    }

    void KlassenAnschreiben(QCPAxis *achse, const Achse &klassen)
    {
        const QSharedPointer<QCPAxisTickerText> striche(new QCPAxisTickerText);
        int stelle = 0;
        for (const Text &klasse : klassen.Klassen)
            striche->addTick(++stelle, Anzeige(klasse));
        achse->setTicker(striche);
        achse->setTickLength(0);
        achse->setSubTicks(false);
        achse->setRange(0.5, stelle + 0.5);
        achse->setLabel(QString::fromUtf8(klassen.Titel));
        achse->grid()->setVisible(false);
    }

    /// Fills the field around a point.
    void Füllen(int x, int y, const QColor &farbe)
    {
        auto *feld = new QCPItemRect(this);
        feld->topLeft->setCoords(x - 0.5, y + 0.5);
        feld->bottomRight->setCoords(x + 0.5, y - 0.5);
        feld->setBrush(farbe);
        feld->setPen(Qt::NoPen);
    }

    void Schreiben(double x, double y, int zahl, const QColor &farbe, Qt::Alignment lage)
    {
        auto *text = new QCPItemText(this);
        text->position->setCoords(x, y);
        text->setPositionAlignment(lage);
        text->setText(locale().toString(zahl));
        text->setColor(farbe);
        text->setClipToAxisRect(false);
    }

  protected:
    /// Drawn straight from the figures: what the base class caches for the screen would look coarse
    /// on paper.
    void paintEvent(QPaintEvent *) override
    {
        QCPPainter stift(this);
        stift.setMode(QCPPainter::pmNoCaching); // otherwise the labels are bitmaps
        stift.setRenderHint(QPainter::Antialiasing);
        stift.fillRect(viewport(), grund);
        draw(&stift);
    }

  private:
    QCPTextElement *überschrift;
    QColor grund;
};

Diagrammbild::Diagrammbild(const char *name, const char *titel)
    : zeichnung(new Zeichnung(QString::fromUtf8(titel)))
{
    Benannt(this, name);
    setAccessibleName(QString::fromUtf8(titel));
    setMinimumSize(320, 220);
    auto *fläche = new QVBoxLayout(this);
    fläche->setContentsMargins(0, 0, 0, 0);
    fläche->addWidget(zeichnung);
}

void Diagrammbild::BalkenZeigen(const Achse &klassen, const char *anzahltitel,
                                const std::vector<int> &anzahl)
{
    Zeichnen([=, this] { BalkenZeichnen(klassen, anzahltitel, anzahl); });
}

void Diagrammbild::KreuztafelZeigen(const Achse &quer, const Achse &hoch,
                                    const std::vector<int> &anzahl)
{
    Zeichnen([=, this] { KreuztafelZeichnen(quer, hoch, anzahl); });
}

void Diagrammbild::Zeichnen(std::function<void()> neu)
{
    zeichnen = std::move(neu);
    zeichnen();
}

void Diagrammbild::changeEvent(QEvent *ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        Nebenbei(zeichnen)();
}

void Diagrammbild::BalkenZeichnen(const Achse &klassen, const char *anzahltitel,
                                  const std::vector<int> &anzahl)
{
    const Diagrammfarben farben = FarbenFür(palette());
    zeichnung->Leeren(farben);
    QCPAxis *xAxis = zeichnung->xAxis;
    QCPAxis *yAxis = zeichnung->yAxis;
    zeichnung->KlassenAnschreiben(xAxis, klassen);
    xAxis->setTickLabelRotation(SindKurz(klassen.Klassen) ? 0 : -60);

    const QSharedPointer<QCPAxisTickerFixed> ganze(new QCPAxisTickerFixed);
    ganze->setTickStep(1);
    ganze->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
    yAxis->setTicker(ganze);
    yAxis->setSubTicks(false);
    yAxis->setNumberFormat("f");
    yAxis->setNumberPrecision(0);
    yAxis->setRange(0, Höchste(anzahl) * 1.1 + 0.2); // room for the figure above each bar
    yAxis->setLabel(QString::fromUtf8(anzahltitel));

    auto *balken = new QCPBars(xAxis, yAxis);
    balken->setWidth(0.7);
    balken->setBrush(farben.Balken);
    balken->setPen(QPen(farben.Balken));
    int stelle = 0;
    for (const int wert : anzahl) {
        balken->addData(++stelle, wert);
        zeichnung->Schreiben(stelle, wert, wert, farben.Schrift,
                             Qt::AlignHCenter | Qt::AlignBottom);
    }
    zeichnung->update();
}

void Diagrammbild::KreuztafelZeichnen(const Achse &quer, const Achse &hoch,
                                      const std::vector<int> &anzahl)
{
    const Diagrammfarben farben = FarbenFür(palette());
    zeichnung->Leeren(farben);
    QCPAxis *xAxis = zeichnung->xAxis;
    QCPAxis *yAxis = zeichnung->yAxis;
    zeichnung->KlassenAnschreiben(xAxis, quer);
    xAxis->setTickLabelRotation(-90);
    zeichnung->KlassenAnschreiben(yAxis, hoch);

    const int breite = static_cast<int>(quer.Klassen.size());
    const int höhe = static_cast<int>(hoch.Klassen.size());
    const int höchste = Höchste(anzahl);
    auto wert = anzahl.begin();
    for (int y = 1; y <= höhe; ++y)
        for (int x = 1; x <= breite; ++x, ++wert) {
            QColor schrift = farben.Blaß; // nobody, on the ground itself
            if (*wert > 0) {
                const QColor feld = Mischung(farben, Stärke(*wert, höchste));
                zeichnung->Füllen(x, y, feld);
                schrift = SchriftAuf(feld);
            }
            zeichnung->Schreiben(x, y, *wert, schrift, Qt::AlignCenter);
        }
    zeichnung->update();
}

} // namespace altardienst
