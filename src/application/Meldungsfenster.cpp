// Messages and questions as message boxes on the screen.
#include "application/Meldungsfenster.h"

#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Verlassen.h"
#include "platform/Meldungen.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>

#include <utility>

namespace altardienst {
namespace {

class Mausschlucker : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        return ereignis->type() == QEvent::MouseButtonPress;
    }
};

/// Leaving a box with a mouse press may bring up a message. The press then reaches its button only
/// after the message, and its release never does: the button would stay down, or a spin button keep
/// running.
void DruckVerwerfen()
{
    auto *schlucker = new Mausschlucker(qApp);
    qApp->installEventFilter(schlucker);
    QTimer::singleShot(0, schlucker, &QObject::deleteLater);
}

/// A box is as wide as its text, and the window manager cuts a title that is longer. Comes last:
/// the box lays itself out anew with each button.
void FürDenTitelVerbreitern(QMessageBox &box)
{
    constexpr int SymbolUndKnopf = 110; // pixels
    QFont titelschrift = QApplication::font("QMdiSubWindowTitleBar");
    titelschrift.setBold(true);
    const int breite = QFontMetrics(titelschrift).horizontalAdvance(box.windowTitle());
    if (auto *raster = qobject_cast<QGridLayout *>(box.layout()))
        raster->addItem(new QSpacerItem(breite + SymbolUndKnopf, 0, QSizePolicy::Minimum),
                        raster->rowCount(), 0, 1, raster->columnCount());
}

struct Meldungsart {
    QMessageBox::Icon Bild;
    QMessageBox::StandardButtons Knöpfe;
    QMessageBox::StandardButton Vorgabe; // pressed by the Enter key
    QMessageBox::StandardButton Ausgang; // by Escape and by the close box
};

constexpr Meldungsart Mitteilung{QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok,
                                 QMessageBox::Ok};
constexpr Meldungsart Fehler{QMessageBox::Critical, QMessageBox::Ok, QMessageBox::Ok,
                             QMessageBox::Ok};
constexpr Meldungsart Frage{QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                            QMessageBox::Yes, QMessageBox::No};
constexpr Meldungsart FrageVorVerlust{QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No,
                                      QMessageBox::No, QMessageBox::No};

QMessageBox::StandardButton MeldungZeigen(const Meldungsart &art, const Text &text,
                                          const Text &titel)
{
    const OhneWartezeiger ohne;
    const OhneVerlassen ruhe; // the box that loses the focus to the message has it again after it
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName("Meldung");
    // Without the buttons to minimise and maximise it, which some desktops give every window.
    box.setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint |
                       Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    box.setWindowTitle(Anzeige(titel));
    box.setTextFormat(Qt::PlainText);
    box.setText(Anzeige(text));
    box.setIcon(art.Bild);
    box.setStandardButtons(art.Knöpfe);
    for (const auto &[knopf, wort] :
         {std::pair(QMessageBox::Ok, "OK"), {QMessageBox::Yes, "&Ja"}, {QMessageBox::No, "&Nein"}})
        if (QAbstractButton *einer = box.button(knopf))
            einer->setText(wort);
    box.setDefaultButton(art.Vorgabe);
    box.setEscapeButton(art.Ausgang);
    FürDenTitelVerbreitern(box);
    const bool beiMausdruck = QGuiApplication::mouseButtons() != Qt::NoButton;
    const auto antwort = static_cast<QMessageBox::StandardButton>(box.exec());
    if (beiMausdruck)
        DruckVerwerfen();
    return antwort;
}

bool IstFehler(const Text &text)
{
    return text.starts_with("Laufzeitfehler ") || text.starts_with("Unerwarteter Fehler") ||
           text.starts_with("Der Arbeitsspeicher reicht nicht aus.");
}

} // namespace

void MeldungsfensterEinrichten()
{
    Meldungen.Zeigen = [](const Text &text) {
        MeldungZeigen(IstFehler(text) ? Fehler : Mitteilung, text, "Altardienst");
    };
    Meldungen.Fragen = [](const Text &text, const Text &titel) {
        return MeldungZeigen(Frage, text, titel) == QMessageBox::Yes;
    };
    Meldungen.FragenVorVerlust = [](const Text &text, const Text &titel) {
        return MeldungZeigen(FrageVorVerlust, text, titel) == QMessageBox::Yes;
    };
}

} // namespace altardienst
