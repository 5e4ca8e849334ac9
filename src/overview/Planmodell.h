// The plan as a table for the grid.
#pragma once

#include "overview/Planinhalt.h"

#include <QAbstractTableModel>

namespace altardienst {

class Planmodell : public QAbstractTableModel {
  public:
    using Kopfspalte = Planreihe::Kopfspalte;
    using enum Planreihe::Kopfspalte;

    explicit Planmodell(QObject *eigner);

    /// Shows what the tables hold by now; true if that is something else than before.
    bool Nachziehen();

    const Planprüfung &Prüfung() const { return inhalt.Prüfung(); }

    /// The place of a cell, or the mass of a cell that says which mass it is.
    Planplatz Ort(const QModelIndex &zelle) const;
    /// The cell of a place; that of the kind for a mass. Invalid if it is not in the grid.
    QModelIndex Stelle(const Planplatz &ort) const;

    const Planzelle &Zelle(int zeile, int spalte) const;
    const QString &Kopf(int zeile, Kopfspalte spalte) const;
    std::optional<Stufe> Gravierendstes(int zeile) const;
    bool BeginntWoche(int zeile) const; // and is not the first row
    bool HatFesteEinträge() const { return hatFeste; }
    bool HatDienstwörter() const { return hatDienste; } // any place shows a service

    /// Which rules have signs.
    void Beachten(const Regelwahl &welche);

    /// Hides the masses without any finding.
    void NurAuffälliges(bool nur);

    /// Whose places are marked; -1: nobody's.
    int Markierter() const { return markiert; }
    void Markieren(const Text &vorname, const Text &nachname);

    /// The text of a cell with names in full, as it is copied.
    QString Ganz(const QModelIndex &zelle) const;

    int rowCount(const QModelIndex &über = {}) const override;
    int columnCount(const QModelIndex &über = {}) const override;
    QVariant data(const QModelIndex &zelle, int rolle) const override;
    QVariant headerData(int nr, Qt::Orientation richtung, int rolle) const override;

  private:
    std::vector<int> Sichtbare(const std::vector<Planreihe> &von) const;
    const Planreihe &ReiheIn(int zeile) const;
    void Übernehmen(Planbild neues);
    void ÄnderungenMelden(const std::vector<Planreihe> &alte);
    QString Hinweis(const QModelIndex &zelle) const;
    Text Wer(const Planzelle &zelle) const;

    Planinhalt inhalt;
    Planbild bild;
    std::vector<int> sichtbare; // the mass of each row
    int markiert = -1;
    bool nurAuffällige = false;
    bool hatFeste = false;
    bool hatDienste = false;
};

} // namespace altardienst
