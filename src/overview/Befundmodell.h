// The findings in groups, for the list below the grid.
#pragma once

#include "overview/Prüfliste.h"

#include <QAbstractItemModel>

#include <optional>
#include <vector>

namespace altardienst {

/// Two levels: a mass or a person, and what was found there. Sentences are made when they are
/// shown.
class Befundmodell : public QAbstractItemModel {
  public:
    enum Spalte { Satzspalte, Platz, Bei, Spalten };

    Befundmodell(QObject *eigner, const Planprüfung &prüfung);

    /// Takes over what the check has found by now; true if that is something else.
    bool Nachziehen();
    void Gliedern(Gliederung wie);
    void Beachten(const Regelwahl &welche) { regeln = welche; } // with the next `Nachziehen`
    Gliederung Gegliedert() const { return gliederung; }

    /// Null for a heading.
    const Befund *BefundIn(const QModelIndex &zeile) const;
    /// The first finding at a place; invalid if there is none.
    QModelIndex ZeileVon(const Planplatz &ort) const;
    QString Titel(int gruppe) const;

    QModelIndex index(int zeile, int spalte, const QModelIndex &über = {}) const override;
    QModelIndex parent(const QModelIndex &zeile) const override;
    int rowCount(const QModelIndex &über = {}) const override;
    int columnCount(const QModelIndex &über = {}) const override;
    QVariant data(const QModelIndex &zeile, int rolle) const override;
    QVariant headerData(int nr, Qt::Orientation richtung, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex &zeile) const override;
    void sort(int spalte, Qt::SortOrder folge) override;

  private:
    struct Gruppe {
        Text Titel;
        std::vector<Befund> Befunde;
        int Verstöße = 0;
        int Nr = 0; // in the order as they come

        friend bool operator==(const Gruppe &, const Gruppe &) = default;
    };

    std::vector<Gruppe> Lesen() const;
    void Ordnen(std::vector<Gruppe> &welche) const;
    QString Zelltext(const Befund &befund, int spalte) const;
    static QVariant Überschrift(const Gruppe &gruppe, int spalte, int rolle);

    const Planprüfung &prüfung;
    Gliederung gliederung = Gliederung::NachMesse;
    Regelwahl regeln = AlleRegeln;
    int sortiert = -1; // the column; -1: as they come
    Qt::SortOrder folge = Qt::AscendingOrder;
    std::vector<Gruppe> gruppen;
};

} // namespace altardienst
