// The list of findings below the grid.
#include "overview/Befundliste.h"

#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "overview/Zeichen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <optional>

namespace altardienst {
namespace {

constexpr const char *Personenschlüssel = "Plan/BefundeNachPerson";
constexpr int Mindestzeichen = 130; // for all three columns

/// Digits and letters belong to the main window; nothing is looked for by typing.
class Befundbaum : public QTreeView {
  protected:
    void keyPressEvent(QKeyEvent *taste) override
    {
        const bool klappt = taste->key() == Qt::Key_Plus || taste->key() == Qt::Key_Minus ||
                            taste->key() == Qt::Key_Asterisk;
        if (!klappt && !taste->text().isEmpty() && taste->text().front().isPrint())
            taste->ignore();
        else
            QTreeView::keyPressEvent(taste);
    }
};

/// The sign of a finding stands before its sentence, in the colours of the palette of the moment.
class Befundmaler : public QStyledItemDelegate {
  public:
    Befundmaler(QObject *eigner, const Befundmodell *modell)
        : QStyledItemDelegate(eigner), modell(modell)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &zeile) const override
    {
        constexpr int Luft = 6;
        return QStyledItemDelegate::sizeHint(option, zeile) + QSize(0, Luft);
    }

  protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &zeile) const override
    {
        QStyledItemDelegate::initStyleOption(option, zeile);
        const Befund *befund = modell->BefundIn(zeile);
        if (!befund || zeile.column() != Befundmodell::Satzspalte)
            return;
        const int maß = option->fontMetrics.height() * 3 / 4;
        const qreal dichte = option->widget ? option->widget->devicePixelRatioF() : 1;
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = QIcon(Stufenzeichen(befund->Grad, option->palette, maß, dichte));
        option->decorationSize = {maß, maß};
    }

  private:
    const Befundmodell *modell;
};

QTreeView *Baum(QAbstractItemModel *modell)
{
    QTreeView *baum = Benannt(new Befundbaum, "Befunde");
    baum->setModel(modell);
    baum->setAccessibleName("Befunde");
    baum->setUniformRowHeights(true);
    baum->setEditTriggers(QAbstractItemView::NoEditTriggers);
    baum->setAllColumnsShowFocus(true);
    baum->setTabKeyNavigation(false);
    baum->setIndentation(16);
    baum->header()->setStretchLastSection(false);
    baum->header()->setSectionResizeMode(Befundmodell::Satzspalte, QHeaderView::Stretch);
    baum->header()->setHighlightSections(false);
    baum->header()->setSectionsMovable(false);
    baum->header()->setSortIndicatorShown(true);
    baum->header()->setSortIndicatorClearable(true);
    baum->header()->setSortIndicator(-1, Qt::AscendingOrder);
    baum->setSortingEnabled(true);
    return baum;
}

} // namespace

Befundliste::Befundliste(const Planprüfung &prüfung)
    : Zahlen(new Kurztext("Befundzahlen")),
      NachPerson(Benannt(new QCheckBox("nach &Person"), "BefundeNachPerson")),
      Drucken(Knopf("Prüflistendruck", "Prüf&liste drucken")), prüfung(prüfung),
      modell(new Befundmodell(this, prüfung))
{
    Befunde = Baum(modell);
    Anordnen();
    Verbinden();
    NachPerson->setChecked(Gemerktes().value(Personenschlüssel, false).toBool());
    Aufklappen();
}

void Befundliste::Anordnen()
{
    const int ziffer = fontMetrics().averageCharWidth();
    Befunde->setColumnWidth(Befundmodell::Platz, 20 * ziffer);
    Befunde->setColumnWidth(Befundmodell::Bei, 30 * ziffer);
    Befunde->setItemDelegate(new Befundmaler(this, modell));
    QFont fett = Zahlen->font();
    fett.setBold(true);
    Zahlen->setFont(fett);
    Zahlen->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    NachPerson->setToolTip("Gliedert die Befunde nach Personen statt nach Messen");
    auto *kopf = new QHBoxLayout;
    kopf->setSpacing(4);
    kopf->addWidget(Zahlen, 1);
    kopf->addWidget(NachPerson);
    kopf->addWidget(Drucken);
    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 6, 0, 0);
    spalte->setSpacing(6);
    spalte->addLayout(kopf);
    spalte->addWidget(Befunde, 1);
}

/// Where there is little room the sentence has it: it names the person, and the place is a click
/// away.
void Befundliste::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    const bool schmal = width() < Mindestzeichen * fontMetrics().averageCharWidth();
    for (const int spalte : {Befundmodell::Platz, Befundmodell::Bei})
        Befunde->setColumnHidden(spalte, schmal);
}

void Befundliste::Verbinden()
{
    connect(NachPerson, &QCheckBox::toggled, this, Abgefangen([this](bool person) {
                Gemerktes().setValue(Personenschlüssel, person);
                modell->Gliedern(person ? Gliederung::NachPerson : Gliederung::NachMesse);
            }));
    connect(Drucken, &QPushButton::clicked, this,
            Offen([this] { PrüflisteDrucken(prüfung, modell->Gegliedert(), regeln); }));
    connect(modell, &QAbstractItemModel::modelReset, this, Abgefangen([this] { Aufklappen(); }));
    connect(Befunde, &QTreeView::collapsed, this, Abgefangen([this](const QModelIndex &gruppe) {
                zugeklappte.insert(modell->Titel(gruppe.row()));
            }));
    connect(Befunde, &QTreeView::expanded, this, Abgefangen([this](const QModelIndex &gruppe) {
                zugeklappte.remove(modell->Titel(gruppe.row()));
            }));
    connect(Befunde, &QTreeView::clicked, this,
            Abgefangen([this](const QModelIndex &zeile) { Wählen(zeile); }));
    connect(Befunde, &QTreeView::activated, this,
            Abgefangen([this](const QModelIndex &zeile) { Wählen(zeile); }));
}

void Befundliste::Nachziehen()
{
    Setzen(Zahlen, Gezählt());
    const int oben = Befunde->verticalScrollBar()->value();
    const Befund *gewählter = modell->BefundIn(Befunde->currentIndex());
    const std::optional<Planplatz> ort = gewählter ? std::optional(gewählter->Wo) : std::nullopt;
    if (!modell->Nachziehen())
        return Befunde->viewport()->update(); // a sentence may name another date
    if (ort)
        Befunde->selectionModel()->setCurrentIndex(modell->ZeileVon(*ort),
                                                   QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
    Befunde->verticalScrollBar()->setValue(oben);
}

void Befundliste::Beachten(const Regelwahl &welche)
{
    regeln = welche;
    modell->Beachten(welche);
    Nachziehen();
}

/// Open unless the user folded it.
void Befundliste::Aufklappen()
{
    for (int gruppe = 0; gruppe < modell->rowCount(); ++gruppe) {
        const QModelIndex zeile = modell->index(gruppe, 0);
        Befunde->setFirstColumnSpanned(gruppe, {}, true);
        if (!zugeklappte.contains(modell->Titel(gruppe)))
            Befunde->setExpanded(zeile, true);
    }
}

void Befundliste::Wählen(const QModelIndex &zeile)
{
    if (const Befund *befund = modell->BefundIn(zeile); befund && BeiWahl)
        BeiWahl(befund->Wo);
}

} // namespace altardienst
