// A chart: bars of categories, or two directions of classes against each other.
#include "statistics/Diagrammbild.h"

#include "controls/Bausteine.h"
#include "statistics/QCustomPlot.h"

#include <QVBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

// Shades of one blue: they differ in lightness, so they also work for the colour-blind and on
// paper.
const QColor Balkenfarbe(0x00, 0x72, 0xb2);
const QColor Hellstes(0xde, 0xeb, 0xf7);
const QColor Dunkelstes(0x08, 0x45, 0x94);
const QColor Blaß(0x76, 0x76, 0x76);

int Höchste(const std::vector<int> &anzahl)
{
    return std::max(1, *std::ranges::max_element(anzahl));
}

/// From the lightest shade for one to the darkest for the most: 0 to 1.
double Dunkelheit(int wert, int höchste)
{
    return höchste > 1 ? (wert - 1.0) / (höchste - 1.0) : 1;
}

QColor Mischung(double dunkelheit)
{
    const auto anteil = [&](int hell, int dunkel) {
        return static_cast<int>(hell + dunkelheit * (dunkel - hell));
    };
    return {anteil(Hellstes.red(), Dunkelstes.red()), anteil(Hellstes.green(), Dunkelstes.green()),
            anteil(Hellstes.blue(), Dunkelstes.blue())};
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
        plotLayout()->addElement(0, 0, new QCPTextElement(this, titel, schrift));
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
        stift.fillRect(viewport(), Qt::white);
        draw(&stift);
    }
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
    zeichnung->clearPlottables(); // of an earlier time
    zeichnung->clearItems();
    QCPAxis *xAxis = zeichnung->xAxis;
    QCPAxis *yAxis = zeichnung->yAxis;
    zeichnung->KlassenAnschreiben(xAxis, klassen);
    xAxis->setTickLabelRotation(-60);

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
    balken->setBrush(Balkenfarbe);
    balken->setPen(QPen(Balkenfarbe));
    int stelle = 0;
    for (const int wert : anzahl) {
        balken->addData(++stelle, wert);
        zeichnung->Schreiben(stelle, wert, wert, Qt::black, Qt::AlignHCenter | Qt::AlignBottom);
    }
    zeichnung->replot(QCustomPlot::rpQueuedReplot);
}

void Diagrammbild::KreuztafelZeigen(const Achse &quer, const Achse &hoch,
                                    const std::vector<int> &anzahl)
{
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
            QColor schrift = Blaß; // nobody, on white
            if (*wert > 0) {
                const double dunkelheit = Dunkelheit(*wert, höchste);
                zeichnung->Füllen(x, y, Mischung(dunkelheit));
                schrift = dunkelheit > 0.7 ? Qt::white : Qt::black; // the better contrast
            }
            zeichnung->Schreiben(x, y, *wert, schrift, Qt::AlignCenter);
        }
}

} // namespace altardienst
