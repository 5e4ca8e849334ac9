// The plan in one grid.
#include "overview/Plantafel.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "overview/Tafelteile.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace altardienst {
namespace {

constexpr int Zoomschritt = 10;

bool MitStrg(Qt::KeyboardModifiers tasten)
{
    return (tasten & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::ControlModifier;
}

} // namespace

Plantafel::Plantafel(Planmodell *modell)
    : Vorn(Benannt(new QTableView(this), "PlanVorn")), modell(modell),
      maler(new Planmaler(this, modell))
{
    Benannt(this, "Plan");
    setAccessibleName("Plan: eine Zeile je Messe");
    Anordnen();
    Verbinden();
    Zoomen(GemerkterZoom());
}

void Plantafel::Anordnen()
{
    for (QTableView *ansicht : {static_cast<QTableView *>(this), Vorn}) {
        ansicht->setModel(modell);
        ansicht->setItemDelegate(maler);
        TafelEinrichten(ansicht);
    }
    Vorn->setSelectionModel(selectionModel());
    Vorn->setFocusPolicy(Qt::ClickFocus);
    Vorn->setFocusProxy(this);
    Vorn->setFrameShape(NoFrame);
    Vorn->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Vorn->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Vorn->setAccessibleName("Plan: Tag und Art der Messen");
    Vorn->viewport()->installEventFilter(this);
    setCornerButtonEnabled(false);
}

void Plantafel::Verbinden()
{
    connect(verticalScrollBar(), &QScrollBar::valueChanged, Vorn->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(Vorn->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    const auto gezogen = [this](int spalte, int, int breite) { SpalteGezogen(spalte, breite); };
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, Abgefangen(gezogen));
    connect(Vorn->horizontalHeader(), &QHeaderView::sectionResized, this, Abgefangen(gezogen));
    const auto hin = [this] {
        if (BeiHingehen)
            BeiHingehen();
    };
    connect(this, &QTableView::doubleClicked, this, Abgefangen(hin));
    connect(Vorn, &QTableView::doubleClicked, this, Abgefangen(hin));
    connect(modell, &QAbstractItemModel::modelAboutToBeReset, this, Abgefangen([this] {
                stand =
                    Tafelstand(*modell, rowAt(0), currentIndex(), horizontalScrollBar()->value());
            }));
    connect(modell, &QAbstractItemModel::modelReset, this, Abgefangen([this] {
                SpaltenEinpassen();
                StandZurück();
            }));
    connect(
        modell, &QAbstractItemModel::dataChanged, this,
        Abgefangen([this](const QModelIndex &von, const QModelIndex &bis, const QList<int> &was) {
            if (was == QList<int>{Qt::BackgroundRole})
                return; // only somebody marked: the texts are the same
            SpaltenEinpassen();
            const QModelIndex wo = currentIndex();
            if (BeiWahl && wo.row() >= von.row() && wo.row() <= bis.row())
                BeiWahl();
        }));
}

std::optional<Planplatz> Plantafel::Gewählter() const
{
    if (!currentIndex().isValid())
        return std::nullopt;
    return modell->Ort(currentIndex());
}

void Plantafel::Wählen(const Planplatz &ort)
{
    QModelIndex zelle = modell->Stelle(ort);
    if (!zelle.isValid())
        zelle = modell->Stelle({ort.Messe, Planplatz::Art::Messe, 0});
    if (zelle.isValid()) {
        setCurrentIndex(zelle);
        scrollTo(zelle);
    }
}

bool Plantafel::IstFest(const QModelIndex &zelle) const
{
    return Vorn->isVisible() && zelle.column() < Planmodell::Kopfspalten;
}

/// A cell below the columns that stay is not in sight.
void Plantafel::scrollTo(const QModelIndex &zelle, ScrollHint wie)
{
    const int seitlich = horizontalScrollBar()->value();
    QTableView::scrollTo(zelle, wie);
    if (IstFest(zelle)) {
        horizontalScrollBar()->setValue(seitlich);
        return;
    }
    const int verdeckt = Vorn->isVisible() ? Vorn->width() - visualRect(zelle).left() : 0;
    if (verdeckt > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - verdeckt);
}

QModelIndex Plantafel::moveCursor(CursorAction wohin, Qt::KeyboardModifiers tasten)
{
    const QModelIndex jetzt = currentIndex();
    const bool leer = !jetzt.isValid() && modell->rowCount() > 0;
    return leer ? modell->index(0, Planmodell::Tag) : QTableView::moveCursor(wohin, tasten);
}

void Plantafel::currentChanged(const QModelIndex &jetzt, const QModelIndex &zuvor)
{
    QTableView::currentChanged(jetzt, zuvor);
    if (BeiWahl)
        BeiWahl();
}

void Plantafel::focusInEvent(QFocusEvent *ereignis)
{
    QTableView::focusInEvent(ereignis);
    Vorn->viewport()->update();
}

void Plantafel::focusOutEvent(QFocusEvent *ereignis)
{
    QTableView::focusOutEvent(ereignis);
    Vorn->viewport()->update();
}

void Plantafel::resizeEvent(QResizeEvent *ereignis)
{
    QTableView::resizeEvent(ereignis);
    VorderesEinpassen();
}

void Plantafel::updateGeometries()
{
    QTableView::updateGeometries();
    VorderesEinpassen();
}

void Plantafel::changeEvent(QEvent *ereignis)
{
    QTableView::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        viewport()->update();
}

void Plantafel::keyPressEvent(QKeyEvent *taste)
{
    const bool allein = (taste->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool eingabe = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
    if (taste->matches(QKeySequence::Copy))
        Kopieren();
    else if (allein && eingabe && BeiEingabe)
        BeiEingabe();
    else if (allein && taste->key() == Qt::Key_Delete && BeiEntfernen)
        BeiEntfernen();
    else if (MitStrg(taste->modifiers()) && TasteMitStrg(taste->key()))
        taste->accept();
    else if (!taste->text().isEmpty() && taste->text().front().isPrint())
        taste->ignore(); // nothing is looked for by typing
    else
        QTableView::keyPressEvent(taste);
}

bool Plantafel::TasteMitStrg(int taste)
{
    switch (taste) {
    case Qt::Key_Plus:
        Zoomen(zoom + Zoomschritt);
        return true;
    case Qt::Key_Minus:
        Zoomen(zoom - Zoomschritt);
        return true;
    case Qt::Key_0:
        Zoomen(100);
        return true;
    default:
        return false;
    }
}

void Plantafel::wheelEvent(QWheelEvent *rad)
{
    if (rad->modifiers() != Qt::ControlModifier)
        return QTableView::wheelEvent(rad);
    if (rad->angleDelta().y() != 0)
        Zoomen(zoom + (rad->angleDelta().y() > 0 ? Zoomschritt : -Zoomschritt));
    rad->accept();
}

void Plantafel::contextMenuEvent(QContextMenuEvent *ereignis)
{
    QPoint ort = ereignis->globalPos();
    if (ereignis->reason() == QContextMenuEvent::Keyboard) {
        const QTableView *ansicht = IstFest(currentIndex()) ? Vorn : this;
        ort = ansicht->viewport()->mapToGlobal(visualRect(currentIndex()).center());
    }
    if (currentIndex().isValid() && BeiMenü)
        BeiMenü(ort);
}

/// What happens on the columns that stay belongs to the whole grid.
bool Plantafel::eventFilter(QObject *wer, QEvent *ereignis)
{
    if (wer == Vorn->viewport() && ereignis->type() == QEvent::ContextMenu) {
        contextMenuEvent(static_cast<QContextMenuEvent *>(ereignis));
        return true;
    }
    if (wer == Vorn->viewport() && ereignis->type() == QEvent::Wheel) {
        QApplication::sendEvent(viewport(), ereignis);
        return true;
    }
    return QTableView::eventFilter(wer, ereignis);
}

void Plantafel::Kopieren() const
{
    const QModelIndexList gewählte = selectionModel()->selectedIndexes();
    if (!gewählte.isEmpty())
        QApplication::clipboard()->setText(AlsTabelle(gewählte, *this, *modell));
}

void Plantafel::StandZurück()
{
    updateGeometries();
    if (const QModelIndex zelle = stand.Zelle(*modell); zelle.isValid())
        setCurrentIndex(zelle);
    if (const int zeile = stand.ObersteZeile(*modell); zeile >= 0)
        QTableView::scrollTo(modell->index(zeile, Planmodell::Tag), PositionAtTop);
    horizontalScrollBar()->setValue(stand.Seitlich);
    if (BeiWahl)
        BeiWahl();
}

} // namespace altardienst
