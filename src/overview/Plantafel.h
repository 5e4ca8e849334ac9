// The plan in one grid: a row a mass, a column a place.
#pragma once

#include "overview/Planmaler.h"
#include "overview/Planmodell.h"
#include "overview/Tafelstand.h"

#include <QTableView>

#include <functional>
#include <optional>

namespace altardienst {

/// The columns that say which mass it is stay where they are when the others scroll sideways.
/// Ctrl with the wheel, "+", "-" or "0" zooms; Ctrl+C copies what is selected as a table. The
/// digits stay with the seven steps of the main window.
class Plantafel : public QTableView {
  public:
    explicit Plantafel(Planmodell *modell);

    // What the user does on a cell. The handlers come wrapped in their kind.
    std::function<void()> BeiWahl;       // another cell, or another name in it
    std::function<void()> BeiEingabe;    // Enter
    std::function<void()> BeiEntfernen;  // Del
    std::function<void()> BeiHingehen;   // a double click
    std::function<void(QPoint)> BeiMenü; // the context menu, at a point of the screen

    /// The place or the mass of the current cell; nothing if there is none.
    std::optional<Planplatz> Gewählter() const;
    /// Makes the cell of a place the current one, in sight; that of its mass if there is none.
    void Wählen(const Planplatz &ort);

    int Zoom() const { return zoom; } // per cent
    void Zoomen(int prozent);
    static int GemerkterZoom();
    /// Copies the smallest rectangle around the selection, tab-separated, as spreadsheets take it.
    void Kopieren() const;

    void scrollTo(const QModelIndex &zelle, ScrollHint wie = EnsureVisible) override;

    QTableView *Vorn; // the columns that stay

  protected:
    bool eventFilter(QObject *wer, QEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    void contextMenuEvent(QContextMenuEvent *ereignis) override;
    void currentChanged(const QModelIndex &jetzt, const QModelIndex &zuvor) override;
    void focusInEvent(QFocusEvent *ereignis) override;
    void focusOutEvent(QFocusEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *taste) override;
    QModelIndex moveCursor(CursorAction wohin, Qt::KeyboardModifiers tasten) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    int sizeHintForColumn(int spalte) const override;
    void updateGeometries() override;
    void wheelEvent(QWheelEvent *rad) override;

  private:
    void Anordnen();
    void Verbinden();
    void SpaltenEinpassen();
    void StandZurück();
    void SpalteGezogen(int spalte, int breite);
    void VorderesEinpassen();
    bool TasteMitStrg(int taste);
    bool IstFest(const QModelIndex &zelle) const;

    Planmodell *modell;
    Planmaler *maler;
    Tafelstand stand;
    int zoom = 100;
    bool paßtEin = false; // widths are set by the program, not by the user
};

} // namespace altardienst
