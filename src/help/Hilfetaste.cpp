// F1 in every window of the program, and what opens the handbook otherwise.
#include "help/Hilfetaste.h"

#include "controls/Handler.h"
#include "help/Fensterseiten.h"
#include "help/HandbuchForm.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace altardienst {
namespace {

QPointer<HandbuchForm> Handbuch;

/// The part of a window in which one is, if it has a place of its own in the handbook.
std::vector<Text> TeilMitFokus(const QWidget *fenster)
{
    const Text davor = fenster ? fenster->objectName().toStdString() + "/" : Text();
    for (const QWidget *teil = QApplication::focusWidget(); teil && !teil->isWindow();
         teil = teil->parentWidget())
        if (const Text name = teil->objectName().toStdString();
            Fensterseiten().contains(davor + name))
            return {name};
    return {};
}

/// The names of a window and of those over which it stands.
std::vector<Text> Namen(const QWidget *fenster)
{
    std::vector<Text> namen = TeilMitFokus(fenster);
    for (; fenster; fenster = fenster->parentWidget())
        if (fenster->isWindow())
            namen.push_back(fenster->objectName().toStdString());
    return namen;
}

class Hilfetaste : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject *wer, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress || !wer->isWidgetType())
            return false;
        const auto *taste = static_cast<QKeyEvent *>(ereignis);
        if (taste->key() != Qt::Key_F1 || taste->modifiers() != Qt::NoModifier)
            return false;
        if (!taste->isAutoRepeat())
            Offen(HandbuchÖffnen)();
        return true;
    }
};

} // namespace

void HilfetasteEinrichten(QCoreApplication &anwendung)
{
    static QPointer<Hilfetaste> taste;
    if (!taste)
        taste = new Hilfetaste(&anwendung);
    taste->setObjectName("Hilfetaste");
    anwendung.installEventFilter(taste);
}

void HandbuchÖffnen()
{
    // A menu or a list that hangs open would keep mouse and keyboard to itself.
    while (QWidget *aufgeklappt = QApplication::activePopupWidget())
        if (!aufgeklappt->close())
            return;
    QWidget *fenster = QApplication::activeWindow();
    if (!Handbuch || !Handbuch->isVisible()) // one that is closed lives on for a moment
        Handbuch = new HandbuchForm;
    Handbuch->NachVorn(fenster, QApplication::activeModalWidget());
    Handbuch->Aufschlagen(SeiteZumFenster(Namen(fenster)));
}

} // namespace altardienst
