// A text box with a list to choose from.
#include "controls/Textwahl.h"

#include "controls/Bausteine.h"
#include "controls/Ergänzung.h"
#include "controls/Handler.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStringListModel>

namespace altardienst {
namespace {

/// Makes the entry with this text the current one, so that Qt does not announce it as picked when
/// editing ends.
void EintragAngleichen(QComboBox *wahl)
{
    const QString text = wahl->currentText();
    const int jetzt = wahl->currentIndex();
    if (jetzt >= 0 && wahl->itemText(jetzt) == text)
        return; // among entries with the same text, the one picked stays current
    const QSignalBlocker still(wahl);
    wahl->setCurrentIndex(wahl->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    wahl->setEditText(text);
}

/// The keys and the opened list start at the entry that the box shows, however its text got there.
/// A refused pick empties the box: the keys continue from that pick, or they would never get past
/// it.
class Listenbedienung : public QObject {
  public:
    explicit Listenbedienung(QComboBox *wahl) : QObject(wahl), wahl(wahl)
    {
        wahl->installEventFilter(this);
        connect(wahl, &QComboBox::activated, this, [this](int zeile) { gewählt = zeile; });
        connect(wahl->lineEdit(), &QLineEdit::textEdited, this, [this] { gewählt = -1; });
        connect(wahl->model(), &QAbstractItemModel::rowsRemoved, this, [this] { gewählt = -1; });
    }

    bool eventFilter(QObject *wer, QEvent *ereignis) override
    {
        if (!qobject_cast<QComboBox *>(wer))
            return false; // it is being deleted, and its opened list gives the focus back
        if (ereignis->type() == QEvent::FocusIn || Blättert(ereignis))
            EintragAngleichen(wahl);
        if (Verläßt(ereignis) || AndereTaste(ereignis))
            gewählt = -1;
        if (Blättert(ereignis) && wahl->currentText().isEmpty() && wahl->currentIndex() < 0)
            OhneText(gewählt);
        return false;
    }

  private:
    void OhneText(int zeile)
    {
        const QSignalBlocker still(wahl);
        wahl->setCurrentIndex(zeile);
        wahl->setEditText({});
    }

    /// A message box or the opened list has the focus only for a while.
    static bool Verläßt(QEvent *ereignis)
    {
        if (ereignis->type() != QEvent::FocusOut)
            return false;
        const Qt::FocusReason grund = static_cast<QFocusEvent *>(ereignis)->reason();
        return grund != Qt::ActiveWindowFocusReason && grund != Qt::PopupFocusReason;
    }

    static bool Pfeiltaste(QEvent *ereignis)
    {
        const int taste = static_cast<QKeyEvent *>(ereignis)->key();
        return taste == Qt::Key_Up || taste == Qt::Key_Down;
    }

    static bool Blättert(QEvent *ereignis)
    {
        return ereignis->type() == QEvent::KeyPress && Pfeiltaste(ereignis);
    }

    /// True also for a key that shows another record while the box keeps the focus.
    static bool AndereTaste(QEvent *ereignis)
    {
        return ereignis->type() == QEvent::ShortcutOverride && !Pfeiltaste(ereignis);
    }

    QComboBox *wahl;
    int gewählt = -1; // the entry picked last, until anything else happens to the box
};

/// Passes the wheel on to what the box lies on: scrolling across a box would choose another entry.
class Radsperre : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::Wheel)
            return false;
        ereignis->ignore();
        return true;
    }
};

/// A name too long for its box is seen from its beginning, unless it is just being typed.
void VonVornZeigen(QComboBox *wahl)
{
    if (wahl->window()->focusWidget() != wahl)
        wahl->lineEdit()->setCursorPosition(0);
}

/// Does what picking the entry from the list does.
void Auswählen(QComboBox *wahl, int zeile)
{
    if (zeile == wahl->currentIndex())
        wahl->setEditText(wahl->itemText(zeile));
    else
        wahl->setCurrentIndex(zeile);
    wahl->activated(zeile);
    wahl->textActivated(wahl->itemText(zeile));
}

} // namespace

QComboBox *Textwahl(const char *name, const char *gesprochen)
{
    auto *wahl = Benannt(new QComboBox, name);
    wahl->setEditable(true);
    wahl->setLineEdit(Textfeld(""));
    wahl->setCompleter(nullptr);
    for (QWidget *control : std::initializer_list<QWidget *>{wahl, wahl->lineEdit()})
        control->setAccessibleName(QString::fromUtf8(gesprochen));
    wahl->setInsertPolicy(QComboBox::NoInsert);
    new Listenbedienung(wahl);
    RadSperren(wahl);
    Ergänzen(wahl->lineEdit(),
             {[wahl] { return wahl->model(); }, [wahl](int zeile) { Auswählen(wahl, zeile); }});
    return wahl;
}

void RadSperren(QComboBox *wahl)
{
    wahl->setFocusPolicy(Qt::StrongFocus); // the wheel does not give it the focus either
    wahl->installEventFilter(new Radsperre(wahl));
}

void ListeSetzen(QComboBox *wahl, const QStringList &liste)
{
    const QString text = wahl->currentText();
    const QSignalBlocker still(wahl);
    wahl->clear();
    wahl->addItems(liste);
    wahl->setCurrentIndex(-1);
    wahl->setEditText(text);
    VonVornZeigen(wahl);
}

void ListeTeilen(const std::vector<QComboBox *> &wahlen, const QStringList &liste)
{
    auto *modell = new QStringListModel(liste, wahlen.front()->window());
    for (QComboBox *wahl : wahlen) {
        const QString text = wahl->currentText();
        const QSignalBlocker still(wahl);
        wahl->setModel(modell);
        wahl->setCurrentIndex(-1);
        wahl->setEditText(text);
        VonVornZeigen(wahl);
    }
}

Text TextVon(const QComboBox *wahl)
{
    return wahl->currentText().toStdString();
}

void Setzen(QComboBox *wahl, const Text &text)
{
    wahl->setEditText(Anzeige(text));
    VonVornZeigen(wahl);
}

void BeiAuswahl(QComboBox *wahl, std::function<void()> handler)
{
    QObject::connect(wahl, &QComboBox::activated, wahl, std::move(handler));
}

void BeiVerlassen(QComboBox *wahl, std::function<void()> handler)
{
    BeiFokusVerlust(wahl, Abgefangen([wahl, handler = std::move(handler)] {
                        EintragAngleichen(wahl);
                        handler();
                        EintragAngleichen(wahl);
                    }));
}

} // namespace altardienst
