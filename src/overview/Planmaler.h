// How a cell of the grid is drawn.
#pragma once

#include "overview/Planmodell.h"

#include <QStyledItemDelegate>

namespace altardienst {

/// Sign, short name and, in a second line or none, the service in a calm colour. Rows of one week
/// stand together; who is marked stands out.
class Planmaler : public QStyledItemDelegate {
  public:
    Planmaler(QObject *eigner, const Planmodell *modell);

    void paint(QPainter *stift, const QStyleOptionViewItem &option,
               const QModelIndex &zelle) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &zelle) const override;

    /// What a font needs for a row, and for the columns.
    struct Maße {
        QFont Haupt;
        QFont Neben; // of the services
        int Hauptzeile = 0;
        int Nebenzeile = 0;
        int Rand = 0;
        int Zeichen = 0; // side of a sign

        int Reihe(bool mitDienst) const
        {
            return Hauptzeile + (mitDienst ? Nebenzeile : 0) + 2 * Rand;
        }
    };
    void SchriftSetzen(const QFont &schrift);
    const Maße &Größen() const { return maße; }

    /// The widest a column has to be.
    int Breite(int spalte) const;

  private:
    struct Farben {
        qint64 Schlüssel = 0; // of the palette
        QColor Text, Neben, Linie, Woche, Leer, Gewählt, Markiert, Rand;
    };
    const Farben &FarbenFür(const QPalette &palette) const;
    void GrundMalen(QPainter &stift, const QStyleOptionViewItem &option,
                    const QModelIndex &zelle) const;
    void KopfMalen(QPainter &stift, const QStyleOptionViewItem &option,
                   const QModelIndex &zelle) const;
    void PlatzMalen(QPainter &stift, const QStyleOptionViewItem &option,
                    const Planzelle &was) const;

    const Planmodell *modell;
    Maße maße;
    mutable Farben farben;
};

} // namespace altardienst
