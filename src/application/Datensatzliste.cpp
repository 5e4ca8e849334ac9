// The list of all records at the left of an editor, with a box that filters it.
#include "application/Datensatzliste.h"

#include "application/Datensatzzeilen.h"
#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Suchwörter.h"
#include "core/Umwandlung.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr int Abstand = 8; // between the edge of the window and the list

/// The parts of a horizontal box side by side, even if they stand one below the other just now: the
/// list gives way before they do.
int Mindestbreite(const QWidget *inhalt)
{
    const auto *teile = qobject_cast<const QHBoxLayout *>(inhalt->layout());
    if (!teile)
        return inhalt->minimumSizeHint().width();
    int breite = 0;
    for (int i = 0; i < teile->count(); ++i)
        breite += teile->itemAt(i)->minimumSize().width() + (i > 0 ? teile->spacing() : 0);
    return breite;
}

} // namespace

Datensatzliste::Datensatzliste(Datensatzwahl *wahl, Quelle woraus)
    : Filter(Benannt(new QLineEdit, "Listenfilter")), Liste(Benannt(new QListView, "Liste")),
      Griff(Benannt(new Klappgriff, "Listengriff")), quelle(std::move(woraus)),
      nummer(wahl->Nummer), zeilen(new Datensatzzeilen(this, quelle.Anzahl, quelle.Zeile)),
      später(new QTimer(this)), inhalt(new QWidget)
{
    Benannt(this, "Datensatzliste");
    später->setSingleShot(true);
    Filter->setPlaceholderText("Filtern");
    Filter->setAccessibleName(QString("%1 filtern").arg(quelle.Wer));
    Filter->setToolTip("Zeigt nur die Zeilen, in denen das Getippte steht");
    Filter->installEventFilter(this);
    Liste->setAccessibleName(QString("Liste: %1").arg(quelle.Wer));
    Liste->setModel(zeilen);
    Liste->setItemDelegate(new Zeilenzeichner(Liste));
    Liste->setUniformItemSizes(true);
    Liste->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Liste->installEventFilter(this);
    Liste->viewport()->installEventFilter(this);

    auto *spalte = new QVBoxLayout(inhalt);
    spalte->setContentsMargins(Abstand, 0, 0, 0);
    spalte->addWidget(Filter);
    spalte->addWidget(Liste, 1);
    auto *reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(0);
    reihe->addWidget(inhalt, 1);
    reihe->addWidget(Griff);

    connect(später, &QTimer::timeout, this, Nebenbei([this] { Nachziehen(); }));
    connect(Filter, &QLineEdit::textChanged, this, Abgefangen([this] {
                Filter->setClearButtonEnabled(true); // now that there is something to clear
                Nachziehen();
            }));
    connect(Liste, &QListView::clicked, this,
            Abgefangen([this](const QModelIndex &zeile) { Wählen(zeilen->Satz(zeile.row())); }));
    connect(Griff, &QToolButton::clicked, this, Abgefangen([this] { Klappen(!IstOffen()); }));
}

QVBoxLayout *Datensatzliste::Fensterspalte(QWidget *form, Luft luft)
{
    fenster = form;
    rest = altardienst::Fensterspalte(form, luft, this);
    QFont schrift = Liste->font();
    schrift.setBold(true); // as the record shown
    wunschbreite = QFontMetrics(schrift).horizontalAdvance(quelle.Muster) +
                   style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 12 + Abstand;
    auf = Gemerktes().value(Schlüssel(), true).toBool();
    breite = auf ? wunschbreite : 0;
    Umschalten();
    form->installEventFilter(this);
    connect(nummer, &QLineEdit::textChanged, this, Abgefangen([this] { Folgen(); }));
    connect(new QShortcut(QKeySequence("Ctrl+L"), form), &QShortcut::activated, this,
            Abgefangen([this] { Rufen(); }));
    return rest;
}

void Datensatzliste::Wählen(int satz)
{
    quelle.BeiWahl(satz);
    trotzdem = false;
    Einpassen();
    Folgen();
}

void Datensatzliste::Nachziehen()
{
    if (!Liste->isVisible())
        return;     // it reads the tables when it is opened
    später->stop(); // or all rows would be drawn twice
    const int gezeigter = Gezeigter();
    zeilen->Erneuern(Suchwörter(Filter->text().toStdString()), gezeigter);
    const QModelIndex zeile = zeilen->ZeileVon(gezeigter);
    if (zeile.isValid())
        Liste->setCurrentIndex(zeile);
    else
        Liste->selectionModel()->clear();
}

/// The filter asks for the first row, so an empty one asks for nothing.
bool Datensatzliste::TasteImFilter(int taste)
{
    switch (taste) {
    case Qt::Key_Down:
        InDieListe();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!Filter->text().trimmed().isEmpty() && zeilen->rowCount({}) > 0)
            Wählen(zeilen->Satz(0));
        return true;
    case Qt::Key_Escape:
        if (Filter->text().isEmpty())
            return false;
        Filter->clear();
        return true;
    default:
        return false;
    }
}

bool Datensatzliste::TasteInDerListe(int taste)
{
    const QModelIndex zeile = Liste->currentIndex();
    if (taste == Qt::Key_Up && zeile.row() <= 0) {
        Filter->setFocus();
        return true;
    }
    if (taste != Qt::Key_Return && taste != Qt::Key_Enter)
        return false;
    if (zeile.isValid())
        Wählen(zeilen->Satz(zeile.row()));
    return true;
}

void Datensatzliste::InDieListe()
{
    if (zeilen->rowCount({}) == 0)
        return;
    Liste->setFocus();
    if (!Liste->currentIndex().isValid())
        Liste->setCurrentIndex(zeilen->index(0));
}

void Datensatzliste::Rufen()
{
    QWidget *fokus = fenster->focusWidget();
    const bool hierSchon = fokus && isAncestorOf(fokus);
    if (IstOffen() && hierSchon)
        return Klappen(false);
    if (!hierSchon)
        zuletzt = fokus;
    if (!IstOffen())
        Klappen(true);
    Filter->setFocus(Qt::ShortcutFocusReason);
    Filter->selectAll();
}

/// Opened, the window grows by the list if the screen has the room; folded, it shrinks again.
void Datensatzliste::Klappen(bool offen)
{
    constexpr int Rahmen = 16;
    const int jetzt = breite;
    auf = trotzdem = offen;
    Gemerktes().setValue(Schlüssel(), auf);
    if (!fenster->isMaximized()) {
        const int platz = fenster->screen()->availableSize().width() - Rahmen;
        const int ziel =
            offen ? std::max(fenster->width(), Bedarf() + wunschbreite) : fenster->width() - jetzt;
        if (ziel <= platz)
            fenster->resize(ziel, fenster->height());
    }
    Einpassen();
}

/// The list takes what the rest of the window leaves it, so that nothing has to roll sideways.
void Datensatzliste::Einpassen()
{
    const int mindestens = wunschbreite * 2 / 3;
    int neu = auf ? wunschbreite : 0;
    if (auf && fenster->isVisible()) {
        neu = std::min(wunschbreite, fenster->width() - Bedarf());
        if (neu < mindestens)
            neu = trotzdem ? mindestens : 0;
    }
    if (neu == breite)
        return;
    const bool umschalten = (neu > 0) != IstOffen();
    breite = neu;
    if (umschalten)
        Umschalten();
    updateGeometry();
}

void Datensatzliste::Umschalten()
{
    if (!IstOffen() && fenster->focusWidget() && isAncestorOf(fenster->focusWidget()))
        (zuletzt ? zuletzt.data() : nummer)->setFocus();
    inhalt->setVisible(IstOffen());
    Griff->setArrowType(IstOffen() ? Qt::LeftArrow : Qt::RightArrow);
    const char *was = IstOffen() ? "Liste zuklappen" : "Liste aufklappen";
    Griff->setAccessibleName(was);
    Griff->setToolTip(QString("%1 (Strg+L)").arg(was));
    Nachziehen();
}

/// The width of the window without the list in which all the rest is seen.
int Datensatzliste::Bedarf() const
{
    const int balken = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    int braucht = rest->minimumSize().width();
    for (const QScrollArea *fläche : rollbare)
        braucht = std::max(braucht, Mindestbreite(fläche->widget()) + balken);
    const QMargins ränder = fenster->layout()->contentsMargins();
    return braucht + ränder.left() + ränder.right() + fenster->layout()->spacing() +
           minimumSizeHint().width();
}

/// No record for a number that cannot be read.
int Datensatzliste::Gezeigter() const
{
    try {
        return std::max<int>(Int16Lesen(TextVon(nummer)), 0);
    } catch (const Laufzeitfehler &) {
        return -1;
    }
}

QString Datensatzliste::Schlüssel() const
{
    return "Liste/" + fenster->objectName();
}

QSize Datensatzliste::sizeHint() const
{
    constexpr int Zeilen = 14;
    return {minimumSizeHint().width() + breite, Zeilen * Liste->fontMetrics().height()};
}

/// It gives way to everything else.
QSize Datensatzliste::minimumSizeHint() const
{
    return {Griff->minimumWidth(), 0};
}

bool Datensatzliste::eventFilter(QObject *wer, QEvent *ereignis)
{
    switch (ereignis->type()) {
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        if (wer == fenster)
            Einpassen();
        return false;
    case QEvent::KeyPress: {
        const int taste = static_cast<QKeyEvent *>(ereignis)->key();
        return wer == Filter ? TasteImFilter(taste) : wer == Liste && TasteInDerListe(taste);
    }
    // Rows that were only walked over or dragged across leave no mark.
    case QEvent::MouseButtonRelease:
        if (wer == Liste->viewport())
            Folgen();
        return false;
    case QEvent::FocusOut:
        if (wer == Liste)
            Folgen();
        return false;
    default:
        return false;
    }
}

void Datensatzliste::showEvent(QShowEvent *ereignis)
{
    QWidget::showEvent(ereignis);
    rollbare = fenster->findChildren<QScrollArea *>();
    Einpassen();
    Nachziehen(); // or the list would be drawn empty first
}

bool GehörtZurListe(const QWidget *control)
{
    for (; control; control = control->parentWidget())
        if (dynamic_cast<const Datensatzliste *>(control))
            return true;
    return false;
}

} // namespace altardienst
