// "Suchen": one box, and what is found while one types.
#pragma once

#include "search/Suche.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>

#include <set>
#include <vector>

namespace altardienst {

/// The arrow keys move through the hits while the box keeps the focus; Enter goes to the one
/// marked, Escape back to where one was. Deletes itself when closed.
class SuchenForm : public QDialog {
  public:
    /// `vorn` is the window in which one is.
    explicit SuchenForm(QWidget *vorn);

    QLineEdit *Suchtext;
    QListWidget *Fundstellen; // headings and hits
    QLabel *Hinweis;          // what Enter would do

  protected:
    bool eventFilter(QObject *wer, QEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void Finden();
    void Hinweisen();
    void Gehen();
    void Überschriftzeile(const Treffergruppe &gruppe);
    void Trefferzeile(const Fund &eine);
    void Restzeile(const Treffergruppe &gruppe);
    void Ausbreiten(const QString &gruppe);
    void Markieren(int richtung, int weite);
    const Fund *Markierter() const;
    QString Gruppe() const;

    QPointer<QWidget> vorn;
    std::vector<Fund> treffer; // in the order of their rows
    std::set<Text> ganze;      // the groups that are shown to their ends
};

/// From now on Ctrl+F opens "Suchen" in every window, as long as `eigner` lives, unless a message
/// or another window that must be answered first is open.
void SuchenBeiStrgF(QObject *eigner);

} // namespace altardienst
