// Small pieces of every form.
#include "controls/Bausteine.h"

#include "controls/Handler.h"
#include "controls/Kurztasten.h"
#include "controls/Textwahl.h"
#include "controls/Tippgedächtnis.h"
#include "controls/Verlassen.h"
#include "controls/Vordergrund.h"
#include "values/Ansi.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include <algorithm>
#include <limits>
#include <utility>

namespace altardienst {
namespace {

/// Calls a handler before the control sees an event, and lets the event through.
class Ereignisfilter : public QObject {
  public:
    using Erkennung = std::function<bool(QEvent *)>;

    Ereignisfilter(QObject *control, Erkennung meint, std::function<void()> handler)
        : QObject(control), klasse(control->metaObject()), meint(std::move(meint)),
          handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject *control, QEvent *ereignis) override
    {
        // One that is being deleted loses the focus when it is no longer what it was.
        if (control->metaObject() == klasse && meint(ereignis))
            handler();
        return false;
    }

  private:
    const QMetaObject *klasse;
    Erkennung meint;
    std::function<void()> handler;
};

/// Wants as much room as its content, unlike its base.
class Rollfläche : public QScrollArea {
  public:
    /// The parts side by side, if the content has such: the whole of it, or some of its rows.
    explicit Rollfläche(QHBoxLayout *teile) : teile(teile) {}

    QSize sizeHint() const override
    {
        constexpr QSize Rundung(4, 4); // some controls grow by a pixel or two when they are drawn
        return (teile ? Ganz(&QLayoutItem::sizeHint) : widget()->sizeHint()) + Rundung;
    }

  protected:
    void resizeEvent(QResizeEvent *ereignis) override
    {
        Umbrechen();
        QScrollArea::resizeEvent(ereignis);
    }

    bool eventFilter(QObject *woher, QEvent *ereignis) override
    {
        if (woher == widget() && ereignis->type() == QEvent::LayoutRequest && isVisible())
            Umbrechen();
        return QScrollArea::eventFilter(woher, ereignis);
    }

  private:
    /// The parts stand one below the other where they do not fit side by side, since nobody scrolls
    /// sideways.
    void Umbrechen()
    {
        if (!teile)
            return;
        QSize platz = maximumViewportSize();
        if (Ganz(&QLayoutItem::minimumSize).height() > platz.height())
            platz.rwidth() -= style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const int nötig = Nebeneinander(&QLayoutItem::minimumSize).width();
        teile->setDirection(nötig <= platz.width() ? QBoxLayout::LeftToRight
                                                   : QBoxLayout::TopToBottom);
    }

    /// The room that the content takes with its parts side by side, however they stand.
    QSize Ganz(QSize (QLayoutItem::*maß)() const) const
    {
        const QSize nebeneinander = Nebeneinander(maß);
        const QLayout *inhalt = widget()->layout();
        if (inhalt == teile)
            return nebeneinander;
        const QSize jetzt = (inhalt->*maß)();
        return {std::max(jetzt.width(), nebeneinander.width()),
                jetzt.height() - (teile->*maß)().height() + nebeneinander.height()};
    }

    /// The room of the parts alone.
    QSize Nebeneinander(QSize (QLayoutItem::*maß)() const) const
    {
        QSize größe(0, 0);
        for (int i = 0; i < teile->count(); ++i) {
            const QSize teil = (teile->itemAt(i)->*maß)();
            größe.rwidth() += teil.width() + (i > 0 ? teile->spacing() : 0);
            größe.setHeight(std::max(größe.height(), teil.height()));
        }
        return größe;
    }

    QHBoxLayout *teile;
};

/// The text as a file gives it back: one line of Windows-1252. A pasted line break would shift all
/// lines after it.
QString Speicherbar(QString text)
{
    text.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    return Anzeige(InAnsiDarstellbar(text.toStdString()));
}

} // namespace

QString Anzeige(const Text &text)
{
    return QString::fromStdString(text);
}

Text TextVon(const QLineEdit *feld)
{
    return feld->text().toStdString();
}

QPushButton *Knopf(const char *name, const char *beschriftung)
{
    auto *knopf = Benannt(new QPushButton(QString::fromUtf8(beschriftung)), name);
    knopf->setAutoDefault(true); // Enter presses the button that has the focus
    KurztasteGeben(knopf);
    return knopf;
}

QLabel *Beschriftung(const char *name, const char *text, QWidget *zu)
{
    auto *label = Benannt(new QLabel(QString::fromUtf8(text)), name);
    label->setTextFormat(Qt::PlainText);
    if (zu) {
        label->setBuddy(zu);
        zu->setAccessibleName(QString::fromUtf8(text).remove(':').trimmed());
    }
    return label;
}

QLabel *Überschrift(const char *text, QWidget *zu)
{
    auto *label = Beschriftung("", text);
    label->setBuddy(zu);
    QFont schrift = label->font();
    schrift.setBold(true);
    label->setFont(schrift);
    return label;
}

QLineEdit *Textfeld(const char *name)
{
    auto *feld = Benannt(new QLineEdit, name);
    feld->setMaxLength(
        std::numeric_limits<int>::max()); // a long text from a file is stored again in full
    QObject::connect(feld, &QLineEdit::textChanged, feld, Abgefangen([feld](const QString &text) {
                         QString darstellbar = Speicherbar(text);
                         if (darstellbar == text)
                             return;
                         // One "?" may stand for a character that Qt counts as two.
                         const auto stelle = Speicherbar(text.left(feld->cursorPosition())).size();
                         feld->setText(darstellbar);
                         feld->setCursorPosition(static_cast<int>(stelle));
                     }));
    new Tippgedächtnis(feld);
    return feld;
}

void BeiFokusVerlust(QWidget *control, std::function<void()> handler)
{
    new Ereignisfilter(
        control,
        [](QEvent *ereignis) {
            if (ereignis->type() != QEvent::FocusOut || OhneVerlassen::Gilt())
                return false;
            const Qt::FocusReason grund = static_cast<QFocusEvent *>(ereignis)->reason();
            const QWidget *jetzt = QApplication::activeWindow();
            const bool anderesProgramm =
                grund == Qt::ActiveWindowFocusReason && (!jetzt || IstZumNachlesen(jetzt));
            return grund != Qt::PopupFocusReason && !anderesProgramm;
        },
        std::move(handler));
}

void BeiEingabetaste(QLineEdit *feld, std::function<void()> handler)
{
    QObject::connect(feld, &QLineEdit::returnPressed, feld, std::move(handler));
}

void BeiKlick(QWidget *control, std::function<void()> handler)
{
    new Ereignisfilter(
        control,
        [](QEvent *ereignis) {
            return ereignis->type() == QEvent::MouseButtonRelease &&
                   static_cast<QMouseEvent *>(ereignis)->button() == Qt::LeftButton;
        },
        std::move(handler));
}

void BeiMausdruck(QPushButton *knopf, std::function<void()> handler)
{
    new Ereignisfilter(
        knopf,
        [knopf](QEvent *ereignis) {
            return knopf->isEnabled() &&
                   (ereignis->type() == QEvent::MouseButtonPress ||
                    ereignis->type() == QEvent::MouseButtonDblClick) &&
                   static_cast<QMouseEvent *>(ereignis)->button() == Qt::LeftButton;
        },
        std::move(handler));
}

void BeiTastendruck(QPushButton *knopf, std::function<void()> handler)
{
    new Ereignisfilter(
        knopf,
        [](QEvent *ereignis) {
            if (ereignis->type() != QEvent::KeyPress)
                return false;
            auto *taste = static_cast<QKeyEvent *>(ereignis);
            return !taste->text().isEmpty() && taste->key() != Qt::Key_Tab &&
                   !(taste->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        },
        std::move(handler));
}

void SchritteVerbinden(QPushButton *minus, QPushButton *plus, SpinButton *spin,
                       const std::function<void(int)> &schritt)
{
    const auto knopf = [&](QPushButton *k, Qt::Key taste, int richtung) {
        if (!k)
            return;
        const auto auslösen = [schritt, richtung] { schritt(richtung); };
        QObject::connect(k, &QPushButton::clicked, k, auslösen);
        new Ereignisfilter(
            k,
            [taste](QEvent *ereignis) {
                return ereignis->type() == QEvent::KeyPress &&
                       static_cast<QKeyEvent *>(ereignis)->key() == taste;
            },
            auslösen);
    };
    knopf(minus, Qt::Key_Minus, -1);
    knopf(plus, Qt::Key_Plus, +1);
    if (spin) {
        spin->BeiAb([schritt] { schritt(-1); });
        spin->BeiAuf([schritt] { schritt(+1); });
    }
}

namespace {

QPushButton *Schrittknopf(const char *name, const char *zeichen, const char *gesprochen)
{
    QPushButton *knopf = Knopf(name, zeichen);
    knopf->setAccessibleName(QString::fromUtf8(gesprochen));
    knopf->setFixedWidth(Schrittknopfbreite);
    knopf->setFocusPolicy(Qt::ClickFocus);
    return knopf;
}

} // namespace

void SchrittAnfügen(QHBoxLayout *reihe, const char *einheit, SpinButton *spin, QPushButton *minus,
                    QPushButton *plus)
{
    constexpr int Vorher = 2;
    reihe->addSpacing(Vorher);
    reihe->addWidget(Beschriftung("", einheit));
    for (QWidget *control : std::initializer_list<QWidget *>{spin, minus, plus})
        if (control)
            reihe->addWidget(control);
}

QPushButton *Minusknopf(const char *name, const char *gesprochen)
{
    return Schrittknopf(name, "-", gesprochen);
}

QPushButton *Plusknopf(const char *name, const char *gesprochen)
{
    return Schrittknopf(name, "+", gesprochen);
}

void Setzen(QLineEdit *feld, const Text &text)
{
    const QString neu = Anzeige(text);
    if (feld->text() != neu) // records are filled in twice; the second time then costs nothing
        feld->setText(neu);
}

void Setzen(QLabel *label, const Text &text)
{
    label->setText(Anzeige(text));
}

QWidget *Rollbar(QLayout *inhalt)
{
    inhalt->setContentsMargins(0, 0, 0, 0);
    auto *fläche = new QWidget;
    fläche->setLayout(inhalt);
    for (auto *wahl : fläche->findChildren<QComboBox *>())
        RadSperren(wahl);
    auto *teile = qobject_cast<QHBoxLayout *>(inhalt);
    auto *rollbar = new Rollfläche(teile ? teile : inhalt->findChild<QHBoxLayout *>("Teile"));
    rollbar->setWidgetResizable(true);
    rollbar->setFrameShape(QFrame::NoFrame);
    rollbar->setFocusPolicy(Qt::NoFocus);
    rollbar->setWidget(fläche);
    return rollbar;
}

void InSicht(QWidget *control)
{
    for (QWidget *um = control->parentWidget(); um; um = um->parentWidget())
        if (auto *fläche = qobject_cast<QScrollArea *>(um))
            fläche->ensureWidgetVisible(control);
}

void GrößeAnpassen(QWidget *fenster)
{
    const auto anpassen = [fenster] {
        for (QScrollArea *fläche : fenster->findChildren<QScrollArea *>())
            fläche->updateGeometry(); // it doesn't follow its content on its own
        const QSize platz = fenster->screen()->availableSize() - Fensterrahmen;
        const int balken = fenster->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
        QSize größe = fenster->sizeHint();
        // A scroll bar for one direction takes up room in the other.
        if (größe.height() > platz.height())
            größe.rwidth() += balken;
        else if (größe.width() > platz.width())
            größe.rheight() += balken;
        fenster->resize(größe.boundedTo(platz));
    };
    anpassen();
    // Some controls only know their size once they are shown.
    new Ereignisfilter(
        fenster,
        [fenster, erstes = true](QEvent *ereignis) mutable {
            return ereignis->type() == QEvent::Show && std::exchange(erstes, false) &&
                   !fenster->property(EigeneGröße).toBool();
        },
        anpassen);
}

} // namespace altardienst
