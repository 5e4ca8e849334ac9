// Proposals while a name is typed.
#include "controls/Ergänzung.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QCompleter>
#include <QFontMetrics>
#include <QListView>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr const char *Listenname = "Vorschläge";

/// What has the focus while the box is typed into: the list, if the box is part of one.
QWidget *Träger(const QLineEdit *feld)
{
    auto *wahl = qobject_cast<QComboBox *>(feld->parentWidget());
    return wahl ? static_cast<QWidget *>(wahl) : const_cast<QLineEdit *>(feld);
}

class Ergänzung : public QObject {
  public:
    Ergänzung(QLineEdit *feld, Ergänzungsquelle quelle)
        : QObject(feld), feld(feld), quelle(std::move(quelle))
    {
        setObjectName("Ergänzung");
        connect(feld, &QLineEdit::textEdited, this, Abgefangen([this] { Getippt(); }));
    }

  private:
    /// Waits until the change rules of the box have run, and longer than the next key takes.
    void Getippt()
    {
        constexpr int Wartezeit = 120; // ms
        if (!uhr) {
            uhr = new QTimer(this);
            uhr->setSingleShot(true);
            connect(uhr, &QTimer::timeout, this, Abgefangen([this] { Vorschlagen(); }));
        }
        uhr->start(ergänzer && ergänzer->popup()->isVisible() ? 0 : Wartezeit);
    }

    void Vorschlagen()
    {
        if (!feld->hasFocus()) // left, or a message is in front
            return;
        const QString text = feld->text();
        if (text.trimmed().isEmpty())
            return Schließen();
        if (!ergänzer)
            Anlegen();
        ergänzer->setModel(quelle.Liste());
        if (!ergänzer->popup()->parentWidget()) // goes with the window, in front of which it is
            ergänzer->popup()->setParent(Träger(feld), Qt::Popup);
        ergänzer->setCompletionPrefix(text);
        if (ergänzer->completionCount() == 0 || StehtSchonDa(text))
            return Schließen();
        ergänzer->complete({0, 0, Breite(), Träger(feld)->height()});
        ergänzer->popup()->setCurrentIndex({}); // so that Enter chooses nothing unasked
    }

    void Anlegen()
    {
        ergänzer = new QCompleter(this);
        ergänzer->setCompletionMode(QCompleter::PopupCompletion);
        ergänzer->setFilterMode(Qt::MatchContains);
        ergänzer->setCaseSensitivity(Qt::CaseInsensitive);
        ergänzer->setMaxVisibleItems(10);
        auto *liste = Benannt(new QListView, Listenname);
        liste->setUniformItemSizes(true);
        liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        liste->setAccessibleName("Vorschläge");
        ergänzer->setWidget(Träger(feld));
        ergänzer->setPopup(liste);
        connect(ergänzer, qOverload<const QModelIndex &>(&QCompleter::activated), this,
                Abgefangen([this](const QModelIndex &index) { Wählen(index); }));
    }

    /// That of the box, or more where its proposals are longer.
    int Breite() const
    {
        const auto *liste = static_cast<const QListView *>(ergänzer->popup());
        const QStyle *stil = liste->style();
        constexpr int Ränder = 12;
        const QAbstractItemModel *zeilen = ergänzer->completionModel();
        const QFontMetrics maß = liste->fontMetrics();
        int breite = Träger(feld)->width();
        for (int zeile = 0; zeile < zeilen->rowCount(); ++zeile)
            breite =
                std::max(breite, maß.horizontalAdvance(zeilen->index(zeile, 0).data().toString()) +
                                     stil->pixelMetric(QStyle::PM_ScrollBarExtent) + Ränder);
        return breite;
    }

    bool StehtSchonDa(const QString &text) const
    {
        return ergänzer->completionCount() == 1 &&
               ergänzer->completionModel()->index(0, 0).data(Qt::EditRole).toString() == text;
    }

    void Schließen()
    {
        if (ergänzer)
            ergänzer->popup()->hide();
    }

    void Wählen(const QModelIndex &index)
    {
        const auto *vorschläge =
            static_cast<const QAbstractProxyModel *>(ergänzer->completionModel());
        const QModelIndex eintrag = vorschläge->mapToSource(index);
        Schließen();
        if (eintrag.isValid())
            quelle.Gewählt(eintrag.row());
        uhr->stop(); // what was chosen needs no proposals
    }

    QLineEdit *feld;
    Ergänzungsquelle quelle;
    QTimer *uhr = nullptr;
    QCompleter *ergänzer = nullptr;
};

} // namespace

void Ergänzen(QLineEdit *feld, Ergänzungsquelle quelle)
{
    new Ergänzung(feld, std::move(quelle));
}

QWidget *OffeneErgänzung(const QLineEdit *feld)
{
    auto *liste = Träger(feld)->findChild<QWidget *>(Listenname, Qt::FindDirectChildrenOnly);
    return liste && liste->isVisible() ? liste : nullptr;
}

} // namespace altardienst
