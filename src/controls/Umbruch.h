// Two parts of a window side by side, or one below the other where the width does not suffice.
#pragma once

#include <QLayout>
#include <QList>

namespace altardienst {

/// On a small or strongly enlarged screen a window then only has to scroll down, never sideways.
class Umbruch : public QLayout {
  public:
    /// `abstand` is the room between the parts; the left one gets what is left of the width.
    Umbruch(QLayout *links, QLayout *rechts, int abstand);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &platz) override;

    void addItem(QLayoutItem *teil) override { teile.append(teil); }
    int count() const override { return static_cast<int>(teile.size()); }
    QLayoutItem *itemAt(int n) const override { return teile.value(n); }
    QLayoutItem *takeAt(int n) override;

  private:
    bool Nebeneinander(int breite) const;

    QLayout *links;
    QLayout *rechts;
    QList<QLayoutItem *> teile;
    int abstand;
};

} // namespace altardienst
