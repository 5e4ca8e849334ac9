// The content of a window on paper.
#include "printing/Fensterdruck.h"

#include "paper/DruckerQt.h"
#include "printing/Druckrahmen.h"

#include <QFont>
#include <QLayout>
#include <QPainter>
#include <QPushButton>

#include <utility>

namespace altardienst {
namespace {

/// While it lives, a window is ready for paper: black on white, without command buttons, its
/// letters as wide as on paper. On the screen each may be as wide as whole dots, which would be
/// gaps within the words.
class Druckansicht {
  public:
    explicit Druckansicht(QWidget *fenster)
        : fenster(fenster), fokus(fenster->focusWidget()), schrift(fenster->font())
    {
        QFont gedruckte = schrift;
        gedruckte.setHintingPreference(QFont::PreferNoHinting); // the parts inherit it
        fenster->setFont(gedruckte);
        for (auto *knopf : fenster->findChildren<QPushButton *>())
            if (!knopf->isHidden()) {
                knöpfe.append(knopf);
                knopf->hide();
            }
        // Parts with colours of their own don't inherit those of the window.
        Umfärben(fenster);
        for (auto *teil : fenster->findChildren<QWidget *>())
            Umfärben(teil);
        fenster->layout()->activate();
    }
    Druckansicht(const Druckansicht &) = delete;
    Druckansicht &operator=(const Druckansicht &) = delete;
    ~Druckansicht()
    {
        fenster->setFont(schrift);
        for (const auto &[teil, palette] : farben)
            teil->setPalette(palette);
        for (QPushButton *knopf : knöpfe)
            knopf->show();
        fenster->layout()->activate();
        if (fokus)
            fokus->setFocus();
    }

  private:
    void Umfärben(QWidget *teil)
    {
        farben.append({teil, teil->palette()});
        QPalette papier = teil->palette();
        for (const auto rolle : {QPalette::Window, QPalette::Base})
            papier.setColor(rolle, Qt::white);
        for (const auto rolle : {QPalette::WindowText, QPalette::Text})
            papier.setColor(rolle, Qt::black);
        teil->setPalette(papier);
    }

    QWidget *fenster;
    QWidget *fokus;
    QFont schrift;
    QList<QPushButton *> knöpfe;
    QList<std::pair<QWidget *, QPalette>> farben;
};

/// Rendering straight to a printer would give an enlarged screen picture; a QPicture keeps the
/// strokes.
Druckbild Aufnahme(QWidget *fenster)
{
    const Druckansicht ansicht(fenster);
    Druckbild bild = {QPicture(), fenster->size()};
    QPainter stift(&bild.Bild);
    fenster->render(&stift);
    return bild;
}

} // namespace

void FensterDrucken(QWidget *fenster)
{
    BerichtDrucken(Druckanfrage::Für(fenster->windowTitle().toStdString()), [&](int) {
        Drucker->Picture(Aufnahme(fenster));
        Drucker->EndDoc();
    });
}

} // namespace altardienst
