// The window of the handbook: contents and search at the left, the page at the right.
#pragma once

#include "help/Fundzeile.h"
#include "help/Handbuch.h"
#include "help/Seitenansicht.h"
#include "help/Verlauf.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QWidget>

#include <functional>

namespace altardienst {

/// Stands beside whatever is open and changes nothing there; whoever goes to it has not left the
/// form he is in, nor the box.
class HandbuchForm : public QWidget {
  public:
    HandbuchForm();

    QLineEdit *Suchwort;
    QStackedWidget *Links; // Inhalt, or while something is searched for Fundstellen
    QTreeWidget *Inhalt;
    QLabel *Fundzahl;
    QListWidget *Fundliste;
    QPushButton *Zurück;
    QPushButton *Vor;
    QPushButton *Anfang;
    QPushButton *Kleiner;
    QPushButton *Normal; // shows the size of the letters in per cent
    QPushButton *Größer;
    Seitenansicht *Seite;

    /// Opens an address of the network in the program that the platform has for it.
    static std::function<void(const QString &adresse)> AdresseÖffnen;

    /// Shows a place; one that does not exist is its page, or the first page. A search is over.
    void Aufschlagen(const Handbuchstelle &stelle);

    /// Brings the window to the front. While a dialog blocks all other windows it is shown as
    /// belonging to that dialog, and can be used. Closing it leads back to `woher`.
    void NachVorn(QWidget *woher, QWidget *sperrend);

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    /// What is shown, and how far one has read it.
    struct Ort {
        int Seite = 0;
        int Abschnitt = -1;
        std::optional<Textstelle> Gelesen = std::nullopt; // left there
        int Gewählt = -1;                                 // in the contents, when it was left
        bool IstFundstelle = false;
    };

    QLayout *LinkeSpalte();
    QLayout *RechteSpalte();
    void Anordnen();
    void Verbinden();
    void TastenVerbinden();
    void InhaltFüllen();

    void Gehen(const Ort &ort);
    void Merken();
    void SeiteZeigen(int seite);
    void Zeigen(const Ort &ort);
    void ImInhaltZeigen(int abschnitt);
    void Blättern(bool zurück);
    void VerweisFolgen(const Text &verweis);

    void SuchwortGeändert();
    void Weitersuchen(int richtung);
    void DarunterWeiter();
    void FundstelleZeigen(int nummer);

    void SchriftÄndern(int schritte);

    std::vector<Handbuchseite> seiten;
    std::vector<Absatz> absätze; // once something is searched for
    std::vector<Suchtreffer> fundstellen;
    Verlauf<Ort> verlauf;
    int gezeigteSeite = -1;
    int prozent = 100;
    QPointer<QWidget> woher;
};

} // namespace altardienst
