// A table of figures in a form, and the buttons below it.
#pragma once

#include "controls/Fensteraufbau.h"
#include "core/Umwandlung.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

namespace altardienst {

/// A label for a figure, named `name`.
QLabel *Zahlfeld(const char *name);

/// Labels for figures with a number in their name, such as `a9` to `a20`.
template <std::size_t n> std::array<QLabel *, n> Zahlfelder(const char *name, int erste = 0)
{
    std::array<QLabel *, n> zahlen;
    for (std::size_t k = 0; k < n; ++k)
        zahlen[k] = Zahlfeld((name + std::to_string(erste + static_cast<int>(k))).c_str());
    return zahlen;
}

/// What such labels show.
template <std::size_t n> std::vector<int> ZahlenIn(const std::array<QLabel *, n> &labels)
{
    std::vector<int> zahlen;
    zahlen.reserve(n);
    for (const QLabel *label : labels)
        zahlen.push_back(Int32Lesen(label->text().toStdString()));
    return zahlen;
}

/// Column headings, and below them rows of a label and its figures.
class Zahlentafel : public QGridLayout {
  public:
    explicit Zahlentafel(std::initializer_list<const char *> köpfe);

    /// A null pointer among the figures leaves its place empty.
    void Zeile(QLabel *was, std::initializer_list<QLabel *> zahlen);
    void Zeile(const char *was, std::initializer_list<QLabel *> zahlen);

    /// Room for headings of two lines, so that the rows of tables side by side are level.
    void ZweizeiligerKopf();
};

/// Text and figures side by side, such as "Durchschnitt", a figure, "Jahre".
QLayout *Satz(std::initializer_list<QWidget *> teile);

/// Lays out a window with a single table: in a frame with this title, the buttons below it.
void TafelAnordnen(QWidget *fenster, const char *titel, Zahlentafel *tafel, QPushButton *druck,
                   QPushButton *ende);

/// One button prints what the window shows, the other closes it.
void DruckUndEndeVerbinden(QWidget *fenster, QPushButton *druck, QPushButton *ende);

} // namespace altardienst
