// Who could stand in a place, as rows that filter and sort.
#pragma once

#include "overview/Kandidaten.h"

#include <QAbstractTableModel>

#include <vector>

namespace altardienst {

class Kandidatenmodell : public QAbstractTableModel {
  public:
    enum Spalte { Name, Gruppe, Zuletzt, Danach, Dienste, Häufigkeit, Partner, Dagegen, Spalten };

    explicit Kandidatenmodell(QObject *eigner);

    /// The best first.
    void Zeigen(std::vector<Platzkandidat> neue);
    /// Only rows in whose name, group or wish partner every word stands.
    void Filtern(std::vector<Text> wörter);

    const Platzkandidat &In(int zeile) const;
    /// The row of a record; -1 if the filter hides it.
    int ZeileVon(int nr) const;
    /// Everything against somebody, sentence by sentence; empty if nothing is.
    QStringList Gründe(int zeile) const;

    int rowCount(const QModelIndex &über = {}) const override;
    int columnCount(const QModelIndex &über = {}) const override;
    QVariant data(const QModelIndex &zelle, int rolle) const override;
    QVariant headerData(int nr, Qt::Orientation richtung, int rolle) const override;
    void sort(int spalte, Qt::SortOrder wie) override;

  private:
    void Ordnen();
    bool Früher(const Platzkandidat &a, const Platzkandidat &b) const;

    std::vector<Platzkandidat> alle;
    std::vector<std::size_t> reihen;
    std::vector<Text> filter;
    int sortiert = -1; // the column; -1: best first
    Qt::SortOrder folge = Qt::AscendingOrder;
};

} // namespace altardienst
