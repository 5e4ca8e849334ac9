// A line of text that never widens its window: where there is too little room it is shortened, and
// its tooltip says the whole.
#pragma once

#include <QLabel>

namespace altardienst {

/// Shortened in the middle for paths, whose end says as much as their beginning, otherwise at the
/// end. `text()` and screen readers have the whole.
class Kurztext : public QLabel {
  public:
    explicit Kurztext(const char *name, Qt::TextElideMode kürzung = Qt::ElideRight);

    QSize minimumSizeHint() const override;

    /// What is on the screen: the text, or its parts with an ellipsis.
    QString Sichtbar() const;

  protected:
    bool event(QEvent *ereignis) override;
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    Qt::TextElideMode kürzung;
};

} // namespace altardienst
