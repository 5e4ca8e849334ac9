// "Einlesen": servers or helpers from a table that another program has saved.
#pragma once

#include "application/Dialogfenster.h"
#include "core/Tabellentext.h"
#include "exchange/Einlesen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <filesystem>
#include <map>

namespace altardienst {

class EinlesenForm : public Dialogfenster {
  public:
    EinlesenForm();

    QComboBox *Wer; // servers or helpers
    QPushButton *Datei;
    QLabel *Lage;              // which file, what is wrong with it, what was done
    QTableWidget *Spalten;     // one row per column of the file, with what it means
    QCheckBox *LeeresLöscht;   // an empty field empties
    QCheckBox *GruppenAnlegen; // servers alone have groups
    QTableWidget *Zeilen;      // what becomes of each row, to tick
    QCheckBox *Gleiche;        // shows also rows that change nothing
    QLabel *Zahlen;            // how many are what
    QPushButton *Übernehmen;
    QPushButton *Ende;

  private:
    void Anordnen();
    QLayout *Dateiteil();
    QLayout *Vorschauteil();
    void Verbinden();

    void DateiWählen();
    void Lesen(const std::filesystem::path &pfad);
    void Zuordnen(); // by the headings
    void SpaltenZeigen();
    void BedeutungGeändert(int spalte);
    void Prüfen();
    void ZeilenZeigen();
    void Angekreuzt(const QTableWidgetItem *zelle);
    void ZahlenZeigen();
    void LeuteÜbernehmen();

    Personenart Art() const;
    bool IstGewählt(const Vorschauzeile &zeile) const;
    std::vector<Vorschauzeile> Gewählte() const;

    Text dateiname;
    Tabellenblatt blatt;
    int kopf = -1; // the row of the headings
    Einleseauftrag auftrag;
    std::vector<Vorschauzeile> vorschau;
    std::vector<bool> gewählt; // of `vorschau`

    /// What somebody has said of a row of this file, and how it was then.
    struct Handwahl {
        bool Nehmen;
        Vorschauzeile Wovon;
    };
    std::map<int, Handwahl> vonHand; // by its number
};

} // namespace altardienst
