// The helpers of one mass, shown and set by hand.
#pragma once

#include "application/Nebenfenster.h"
#include "controls/Zahlbox.h"
#include "core/Plätze.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <functional>

namespace altardienst {

/// Works on the mass at `Messe.Cursor`. There is no cancel: what is on the screen when the dialog
/// closes is what the mass holds.
class LektorrenuswForm : public QWidget {
  public:
    /// `danach` runs once the dialog has closed.
    explicit LektorrenuswForm(std::function<void()> danach);

    /// A place of a helper.
    struct Platz {
        QLabel *Beschriftung;
        QComboBox *LH; // LH1 to LH8
        QLineEdit *Vor;
        QLineEdit *Nach;
    };

    QLabel *Messenname;                             // which mass it is
    std::array<Zahlbox, Helferarten.size()> Zahlen; // Lecki, Kommi, Kanto, Kolt, Änderung1 to 4
    std::array<Platz, Helferplätze.size()> Plätze;
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void Füllen();
    void ZahlGeändert(std::size_t art);
    void KomboVerlassen(std::size_t p);
    void KomboZurück(const Platz &platz);
    void NamenTeilen();
    void Schreiben();
    void Merken();

    std::function<void()> danach;
    Gezeigt gezeigt;
};

} // namespace altardienst
