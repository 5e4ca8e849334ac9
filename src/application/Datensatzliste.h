// The list of all records at the left of an editor, with a box that filters it.
#pragma once

#include "controls/Datensatzwahl.h"
#include "controls/Fensteraufbau.h"
#include "values/Text.h"

#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScrollArea>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidget>

#include <functional>

namespace altardienst {

class Datensatzzeilen;

/// Marks the record that the editor shows. Choosing a row (a click, Enter on it, Enter in the
/// filter for the first one) is a step of the editor like PLUS; where that does not succeed, the
/// mark goes back to the record shown. In a window too narrow for it the list folds by itself; once
/// folded by the user it stays so, in later runs too. Ctrl+L opens it and goes to the filter, or
/// folds it when it has the focus.
class Datensatzliste : public QWidget {
  public:
    /// What is listed. Texts are read when they are drawn or filtered, and none while it is folded.
    struct Quelle {
        const char *Wer;                       // for screen readers
        const char *Muster;                    // a long row, for which there is to be room
        std::function<int()> Anzahl;           // of records, from 0 on
        std::function<Text(int satz)> Zeile;   // what a row shows, and where the filter looks
        std::function<void(int satz)> BeiWahl; // wrapped in its kind
    };

    /// The number box of `wahl` tells which record is shown.
    Datensatzliste(Datensatzwahl *wahl, Quelle quelle);

    QLineEdit *Filter;
    QListView *Liste;
    QToolButton *Griff; // folds and opens it

    /// The column that holds everything else in the window, with the list at its left. Tab reaches
    /// the list after all other controls.
    QVBoxLayout *Fensterspalte(QWidget *form, Luft luft);

    /// Reads the tables anew once the event is over. The number box is followed without this.
    void Folgen() { später->start(); }

    /// The editor goes to this record as if its row had been chosen.
    void Wählen(int satz);

    bool IstOffen() const { return breite > 0; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject *wer, QEvent *ereignis) override;
    void showEvent(QShowEvent *ereignis) override;

  private:
    bool TasteImFilter(int taste);
    bool TasteInDerListe(int taste);
    void InDieListe();
    void Rufen();
    void Klappen(bool offen);
    void Einpassen();
    void Umschalten();
    void Nachziehen();
    int Bedarf() const;
    int Gezeigter() const;
    QString Schlüssel() const;

    Quelle quelle;
    QLineEdit *nummer;
    Datensatzzeilen *zeilen;
    QTimer *später;
    QWidget *inhalt;
    QWidget *fenster = nullptr;
    QVBoxLayout *rest = nullptr;
    QList<QScrollArea *> rollbare;
    QPointer<QWidget> zuletzt; // had the focus before the list was called
    bool auf = true;           // as the user wants it
    bool trotzdem = false;     // opened where there is no room, until the next choice
    int wunschbreite = 0;      // of the list, where there is the room
    int breite = 0;            // of the list; 0 while it is folded
};

/// Whether a control of a form belongs to its list and not to its record.
bool GehörtZurListe(const QWidget *control);

} // namespace altardienst
