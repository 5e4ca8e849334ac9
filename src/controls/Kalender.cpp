// The calendar of a date box.
#include "controls/Kalender.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Tippgedächtnis.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"
#include "values/Laufzeitfehler.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFrame>
#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

/// A sheet of a calendar in the colour of the text, so that it also shows on a dark screen.
class Kalenderzeichen : public QIconEngine {
  public:
    void paint(QPainter *stift, const QRect &platz, QIcon::Mode, QIcon::State) override
    {
        constexpr int Spalten = 3;
        const qreal maß = std::min(platz.width(), platz.height());
        QRectF blatt(0, 0, maß * 0.8, maß * 0.8);
        blatt.moveCenter(QRectF(platz).center());
        QColor farbe = QGuiApplication::palette().color(QPalette::Text);
        farbe.setAlphaF(0.7F);
        stift->setRenderHint(QPainter::Antialiasing);
        stift->setPen(QPen(farbe, maß / 14));
        stift->drawRoundedRect(blatt, 1.5, 1.5);
        const qreal feld = blatt.width() / Spalten;
        stift->fillRect(QRectF(blatt.topLeft(), QSizeF(blatt.width(), feld * 0.8)), farbe);
        for (int k = 0; k < 2 * Spalten; ++k) {
            const int spalte = k % Spalten;
            const int zeile = k / Spalten;
            const QPointF mitte =
                blatt.topLeft() + QPointF((spalte + 0.5) * feld, (zeile + 1.35) * feld * 0.95);
            stift->fillRect(QRectF(mitte.x() - maß / 16, mitte.y() - maß / 16, maß / 8, maß / 8),
                            farbe);
        }
    }

    QPixmap pixmap(const QSize &größe, QIcon::Mode art, QIcon::State zustand) override
    {
        QPixmap bild(größe);
        bild.fill(Qt::transparent);
        QPainter stift(&bild);
        paint(&stift, {{}, größe}, art, zustand);
        return bild;
    }

    QIconEngine *clone() const override { return new Kalenderzeichen; }
};

/// Today, where no day stands: "00:00:00" is none, nor is a time.
QDate TagIn(const QLineEdit *feld)
{
    Datum datum = Uhr.Heute();
    try {
        if (const Datum getippt = DatumLesen(TextVon(feld)); std::abs(getippt) >= 1)
            datum = getippt;
    } catch (const Laufzeitfehler &) {
        // Whoever has typed something else starts with today.
    }
    const Kalendertag tag = KalendertagVon(datum);
    return {tag.Jahr, tag.Monat, tag.Tag};
}

/// The red that the platform gives to the weekend does not hold on a dark ground.
void WochenendeFärben(QCalendarWidget &kalender)
{
    if (kalender.palette().color(QPalette::Base).lightness() >= 128)
        return;
    QTextCharFormat frei;
    frei.setForeground(QColor(0xff, 0x8a, 0x80));
    for (const Qt::DayOfWeek tag : {Qt::Saturday, Qt::Sunday})
        kalender.setWeekdayTextFormat(tag, frei);
}

class Kalenderfenster : public QFrame {
  public:
    explicit Kalenderfenster(QLineEdit *feld) : QFrame(feld, Qt::Popup), feld(feld)
    {
        Benannt(this, "Kalender");
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(QFrame::StyledPanel);
        auto *kalender = Benannt(new QCalendarWidget, "Tage");
        kalender->setAccessibleName("Kalender");
        kalender->setLocale(QLocale(QLocale::German, QLocale::Germany));
        kalender->setFirstDayOfWeek(Qt::Monday);
        kalender->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        kalender->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31)); // those of a `Datum`
        kalender->setDateEditEnabled(false);                           // digits belong into the box
        kalender->setSelectedDate(TagIn(feld));
        WochenendeFärben(*kalender);
        connect(kalender, &QCalendarWidget::clicked, this,
                Abgefangen([this](QDate tag) { Wählen(tag); }));
        connect(kalender, &QCalendarWidget::activated, this,
                Abgefangen([this](QDate tag) { Wählen(tag); }));
        auto *spalte = new QVBoxLayout(this);
        spalte->setContentsMargins(1, 1, 1, 1);
        spalte->addWidget(kalender);
        kalender->setFocus();
    }

    /// Below the box, or above it where there is no room.
    void Öffnen()
    {
        adjustSize();
        const QRect schirm = feld->screen()->availableGeometry();
        QPoint ort = feld->mapToGlobal(QPoint(0, feld->height()));
        if (ort.y() + height() > schirm.bottom())
            ort.setY(feld->mapToGlobal(QPoint(0, 0)).y() - height());
        ort.setX(std::max(schirm.left(), std::min(ort.x(), schirm.right() - width())));
        ort.setY(std::max(schirm.top(), ort.y()));
        move(ort);
        show();
    }

  private:
    void Wählen(QDate tag)
    {
        if (gewählt) // a double click is also a click
            return;
        gewählt = true;
        const QPointer<QLineEdit> ziel = feld;
        close();
        if (ziel)
            Eintippen(ziel, KurzesDatum(DatumAus({tag.year(), tag.month(), tag.day()})));
    }

    QLineEdit *feld;
    bool gewählt = false;
};

class Kalender : public QObject {
  public:
    explicit Kalender(QLineEdit *feld) : QObject(feld), feld(feld)
    {
        static const QIcon zeichen(new Kalenderzeichen);
        QAction *knopf = feld->addAction(zeichen, QLineEdit::TrailingPosition);
        knopf->setToolTip("Kalender (Alt+Pfeil ab)");
        feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly)
            ->setAccessibleName("Kalender öffnen");
        connect(knopf, &QAction::triggered, this, Abgefangen([this] { Öffnen(); }));
        feld->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress)
            return false;
        const auto *taste = static_cast<QKeyEvent *>(ereignis);
        const auto mit = taste->modifiers() & ~Qt::KeypadModifier;
        if (taste->key() != Qt::Key_Down || mit != Qt::AltModifier)
            return false;
        Abgefangen([this] { Öffnen(); })();
        return true;
    }

  private:
    void Öffnen()
    {
        if (feld->isReadOnly() || !feld->isEnabled())
            return;
        feld->setFocus(Qt::MouseFocusReason);
        (new Kalenderfenster(feld))->Öffnen();
    }

    QLineEdit *feld;
};

} // namespace

void KalenderAnfügen(QLineEdit *feld)
{
    new Kalender(feld);
}

} // namespace altardienst
