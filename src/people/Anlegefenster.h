// What the dialogs that add a group, a server or a helper have in common.
#pragma once

#include <QLayout>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace altardienst {

class Anlegefenster : public QWidget {
  public:
    /// `danach` runs once the dialog has closed and is passed whether a record was added.
    explicit Anlegefenster(std::function<void(bool angelegt)> danach);

    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    /// OK runs `anlegen`, Abbrechen closes the dialog.
    void KnöpfeVerbinden(std::function<void()> anlegen);

    /// The boxes of a person, which scroll on a small screen, above the buttons.
    void RahmenAnordnen(QLayout *angaben);

    /// OK and Abbrechen in the lower right corner.
    QLayout *Schlußknöpfe();

    /// Closes the dialog after a record was added.
    void Fertig();

    void closeEvent(QCloseEvent *ereignis) override;

  private:
    std::function<void(bool angelegt)> danach;
    bool angelegt = false;
};

} // namespace altardienst
