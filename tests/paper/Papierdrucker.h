// A paper printer that takes every job at once and gives nothing back, as a queue does.
#pragma once

#include "values/Text.h"

#include <QPaintEngine>
#include <QPrintEngine>
#include <QPrinter>

#include <map>
#include <vector>

namespace altardienst {

/// Counts what arrives. A job once begun is printed, whether it is aborted or not.
class Papierwerk : public QPaintEngine, public QPrintEngine {
  public:
    Papierwerk() : QPaintEngine(QPaintEngine::AllFeatures) {}

    int Aufträge = 0;
    int Seiten = 0;
    std::vector<Text> Zeilen;
    bool Gestört = false;

    // Drawing the page.
    bool begin(QPaintDevice *) override
    {
        ++Aufträge;
        ++Seiten;
        zustand = QPrinter::Active;
        return true;
    }
    bool end() override
    {
        zustand = QPrinter::Idle;
        return true;
    }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    using QPaintEngine::drawPolygon;
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF &, const QTextItem &text) override
    {
        Zeilen.push_back(text.text().toStdString());
    }
    Type type() const override { return User; }

    // The printer side.
    void setProperty(PrintEnginePropertyKey welche, const QVariant &wert) override
    {
        eigenschaften[welche] = wert;
    }
    QVariant property(PrintEnginePropertyKey welche) const override
    {
        const auto eine = eigenschaften.find(welche);
        if (welche == PPK_Resolution)
            return Auflösung;
        return eine == eigenschaften.end() ? QVariant() : eine->second;
    }
    bool newPage() override
    {
        ++Seiten;
        return true;
    }
    bool abort() override { return false; }
    int metric(QPaintDevice::PaintDeviceMetric welches) const override
    {
        switch (welches) {
        case QPaintDevice::PdmWidth:
            return 210 * Auflösung * 10 / 254;
        case QPaintDevice::PdmHeight:
            return 297 * Auflösung * 10 / 254;
        case QPaintDevice::PdmWidthMM:
            return 210;
        case QPaintDevice::PdmHeightMM:
            return 297;
        case QPaintDevice::PdmDevicePixelRatio:
            return 1;
        default:
            return Auflösung;
        }
    }
    QPrinter::PrinterState printerState() const override
    {
        return Gestört ? QPrinter::Error : zustand;
    }

  private:
    static constexpr int Auflösung = 600; // dots to the inch

    QPrinter::PrinterState zustand = QPrinter::Idle;
    std::map<PrintEnginePropertyKey, QVariant> eigenschaften;
};

class Papierdrucker : public QPrinter {
  public:
    Papierdrucker() : QPrinter(HighResolution) { setEngines(&Werk, &Werk); }

    Papierwerk Werk;
};

} // namespace altardienst
