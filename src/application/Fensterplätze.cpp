// Every window opens where and as large as it was last time.
#include "application/Fensterplätze.h"

#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <string_view>

namespace altardienst {
namespace {

QString Schlüssel(const QWidget *fenster, const char *was)
{
    return "Fenster/" + fenster->objectName() + "/" + was;
}

/// A form of the program: Qt's own dialogs are of classes of their own.
bool WirdGemerkt(const QWidget *fenster)
{
    const std::string_view klasse = fenster->metaObject()->className();
    return fenster->isWindow() && (klasse == "QWidget" || klasse == "QDialog") &&
           (fenster->windowType() == Qt::Window || fenster->windowType() == Qt::Dialog) &&
           !fenster->objectName().isEmpty();
}

QList<QRect> Bildschirme()
{
    QList<QRect> alle;
    const auto schirme = QGuiApplication::screens();
    for (const QScreen *schirm : schirme)
        alle.append(schirm->availableGeometry());
    return alle;
}

/// What is stored is the window without its frame, since desktops take a place for that of the
/// window itself; and the frame, which is not known before the window is shown again.
void Merken(const QWidget *fenster)
{
    if (fenster->isMinimized())
        return;
    QSettings &gemerktes = Gemerktes();
    gemerktes.setValue(Schlüssel(fenster, "Maximiert"), fenster->isMaximized());
    if (fenster->isMaximized()) // the place to which it returns stays as it was
        return;
    gemerktes.setValue(Schlüssel(fenster, "Platz"), fenster->geometry());
    gemerktes.setValue(Schlüssel(fenster, "Rahmen"), fenster->frameGeometry());
}

/// Also when a window comes back that was hidden: a desktop that is not told its place chooses a
/// new one.
void Hinstellen(QWidget *fenster)
{
    const QSettings &gemerktes = Gemerktes();
    const QRect platz = gemerktes.value(Schlüssel(fenster, "Platz")).toRect();
    if (platz.isValid()) {
        const QRect rahmen = gemerktes.value(Schlüssel(fenster, "Rahmen")).toRect() | platz;
        const QRect neu =
            AufEinenBildschirm(rahmen, Bildschirme())
                .adjusted(platz.left() - rahmen.left(), platz.top() - rahmen.top(),
                          platz.right() - rahmen.right(), platz.bottom() - rahmen.bottom());
        fenster->setProperty(EigeneGröße, true);
        fenster->setGeometry(neu);
        if (QWindow *eigenes = fenster->windowHandle())
            eigenes->setGeometry(fenster->geometry()); // tells the desktop, though it is the same
    }
    if (gemerktes.value(Schlüssel(fenster, "Maximiert")).toBool())
        fenster->setWindowState(fenster->windowState() | Qt::WindowMaximized);
}

class Fensterplätze : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject *wer, QEvent *ereignis) override
    {
        const bool kommt = ereignis->type() == QEvent::Show;
        if ((!kommt && ereignis->type() != QEvent::Hide) || ereignis->spontaneous() ||
            !wer->isWidgetType())
            return false;
        auto *fenster = static_cast<QWidget *>(wer);
        if (WirdGemerkt(fenster))
            Nebenbei([&] { kommt ? Hinstellen(fenster) : Merken(fenster); })();
        return false;
    }
};

} // namespace

QObject *FensterplätzeMerken(QApplication &anwendung)
{
    auto *plätze = new Fensterplätze(&anwendung);
    anwendung.installEventFilter(plätze);
    return plätze;
}

QRect AufEinenBildschirm(const QRect &rahmen, const QList<QRect> &bildschirme)
{
    if (bildschirme.empty())
        return rahmen;
    const auto gemeinsam = [&](const QRect &schirm) {
        const QRect teil = schirm & rahmen;
        return qint64(teil.width()) * teil.height();
    };
    const QRect schirm = *std::ranges::max_element(bildschirme, {}, gemeinsam);
    QRect platz(rahmen.topLeft(), rahmen.size().boundedTo(schirm.size()));
    platz.moveLeft(std::clamp(platz.left(), schirm.left(), schirm.right() + 1 - platz.width()));
    platz.moveTop(std::clamp(platz.top(), schirm.top(), schirm.bottom() + 1 - platz.height()));
    return platz;
}

} // namespace altardienst
