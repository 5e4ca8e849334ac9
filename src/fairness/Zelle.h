// Tables to read in: how they look and sort.
#pragma once

#include "values/Text.h"

#include <QStringList>
#include <QTableWidget>

namespace altardienst {

/// A cell that sorts by its number.
class Zahlzelle : public QTableWidgetItem {
  public:
    Zahlzelle(double wert, const QString &text);
    bool operator<(const QTableWidgetItem &andere) const override;

  private:
    double wert;
};

/// A cell of text, in full as its tooltip.
QTableWidgetItem *Textzelle(const Text &text);

/// Rows are chosen whole; nothing is edited.
QTableWidget *Lesetafel(const char *name, const char *gesprochen, const QStringList &köpfe);

} // namespace altardienst
