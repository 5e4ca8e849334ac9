// A flag string and the check boxes that stand for it.
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>

#include <vector>

namespace altardienst {

/// A check box and the label next to it; the boxes have no captions of their own.
struct Flagname {
    const char *Box;
    const char *Text;
};

/// The text box holds the string and is not shown; positions without a check box pass through it
/// unchanged.
class Flagboxen {
  public:
    Flagboxen(const char *feld, const char *wovon, const std::vector<Flagname> &namen);

    QLineEdit *Feld;
    std::vector<QCheckBox *> Boxen; // box k stands for position k + 1

    /// In rows of `jeZeile` boxes.
    QLayout *Anordnen(QWidget *fenster, int jeZeile) const;
    void Verbinden() const;

  private:
    std::vector<Flagname> namen;
};

} // namespace altardienst
