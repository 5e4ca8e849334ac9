// The dialog that adds a group.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace altardienst {

class NeuGruppeForm : public QWidget {
  public:
    /// `danach` runs when the dialog has closed, with whether a group was added.
    explicit NeuGruppeForm(std::function<void(bool angelegt)> danach);

    QLineEdit *GBezeichnung;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Anlegen();

    std::function<void(bool angelegt)> danach;
    bool angelegt = false;
};

} // namespace altardienst
