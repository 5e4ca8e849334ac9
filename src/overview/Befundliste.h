// The list of findings below the grid: counts, groups, a click goes to the place.
#pragma once

#include "controls/Kurztext.h"
#include "overview/Befundmodell.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSet>
#include <QTreeView>
#include <QWidget>

#include <functional>

namespace altardienst {

class Befundliste : public QWidget {
  public:
    explicit Befundliste(const Planprüfung &prüfung);

    Kurztext *Zahlen; // "3 Verstöße, 5 Hinweise"
    QCheckBox *NachPerson;
    QPushButton *Drucken;
    QTreeView *Befunde;

    /// Runs with the place of the finding that was clicked. The handler comes wrapped in its kind.
    std::function<void(const Planplatz &)> BeiWahl;

    /// Shows what the check has found by now; what was folded stays so, and one stays where one
    /// was.
    void Nachziehen();

    /// Only findings of these rules are listed, counted and printed.
    void Beachten(const Regelwahl &welche);
    Text Gezählt() const { return Befundzahlen(prüfung, regeln); }

  protected:
    void resizeEvent(QResizeEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Aufklappen();
    void Wählen(const QModelIndex &zeile);

    const Planprüfung &prüfung;
    Befundmodell *modell;
    Regelwahl regeln = AlleRegeln;
    QSet<QString> zugeklappte; // titles
};

} // namespace altardienst
