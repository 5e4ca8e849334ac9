// A chart: bars of categories, or two directions of classes against each other.
#pragma once

#include "values/Text.h"

#include <QEvent>
#include <QWidget>

#include <functional>
#include <vector>

namespace altardienst {

/// The initial size of a window with a chart; it fits the smallest screen.
constexpr QSize Diagrammfenster(680, 484);

/// In the colours of the screen; a print, which sets them to black on white, has those of paper.
class Diagrammbild : public QWidget {
  public:
    Diagrammbild(const char *name, const char *titel);

    struct Achse {
        const char *Titel;
        std::vector<Text> Klassen;
    };

    /// A bar for each class with its count above it, in place of those shown before; the axis of
    /// the counts shows only whole numbers.
    void BalkenZeigen(const Achse &klassen, const char *anzahltitel,
                      const std::vector<int> &anzahl);

    /// A field for each pair of classes, the darker the higher its count, with the count written
    /// in. `anzahl` holds the rows of `hoch` one after the other.
    void KreuztafelZeigen(const Achse &quer, const Achse &hoch, const std::vector<int> &anzahl);

  protected:
    void changeEvent(QEvent *ereignis) override;

  private:
    class Zeichnung;

    void Zeichnen(std::function<void()> neu);
    void BalkenZeichnen(const Achse &klassen, const char *anzahltitel,
                        const std::vector<int> &anzahl);
    void KreuztafelZeichnen(const Achse &quer, const Achse &hoch, const std::vector<int> &anzahl);

    Zeichnung *zeichnung;
    std::function<void()> zeichnen = [] {}; // what is shown, in the colours of the moment
};

} // namespace altardienst
