// The wait cursor.
#include "application/Wartezeiger.h"

#include "controls/Handler.h"
#include "platform/Lebenszeichen.h"
#include "platform/Uhr.h"

#include <QApplication>
#include <QScopeGuard>
#include <QTimer>

#include <cstdint>
#include <utility>

namespace altardienst {
namespace {

constexpr std::int64_t Geduld = 500; // ms

/// An event that is busy with files; it began when its first sign of life came.
class Dateizugriffe {
  public:
    void Lebenszeichen()
    {
        if (!beginn)
            Beginnen();
        else if (Uhr.Stoppuhr() - *beginn >= Geduld)
            Zeigen();
    }

    /// Nothing can be shown any more while the step runs.
    void VorLangemSchritt()
    {
        if (!beginn)
            Beginnen();
        Zeigen();
    }

    void Vorbei()
    {
        beginn.reset();
        if (std::exchange(zeiger, false))
            QGuiApplication::restoreOverrideCursor();
    }

  private:
    void Beginnen()
    {
        beginn = Uhr.Stoppuhr();
        QTimer::singleShot(0, qApp, Nebenbei([this] { Vorbei(); })); // after this event
    }

    void Zeigen()
    {
        if (!std::exchange(zeiger, true))
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }

    std::optional<std::int64_t> beginn;
    bool zeiger = false;
};

Dateizugriffe zugriffe;

} // namespace

void DateiwartezeigerEinrichten()
{
    Lebenszeichen = [] { zugriffe.Lebenszeichen(); };
    VorLangemSchritt = [] { zugriffe.VorLangemSchritt(); };
}

void UnterWartezeiger(const std::function<void()> &aktion)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto zurück = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    aktion();
}

OhneWartezeiger::OhneWartezeiger()
{
    zugriffe.Vorbei();
    if (const QCursor *zeiger = QGuiApplication::overrideCursor()) {
        zuvor = *zeiger;
        QGuiApplication::restoreOverrideCursor();
    }
}

OhneWartezeiger::~OhneWartezeiger()
{
    if (zuvor)
        QGuiApplication::setOverrideCursor(*zuvor);
}

} // namespace altardienst
