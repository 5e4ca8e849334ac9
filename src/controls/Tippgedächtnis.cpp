// Continuing to type in a box that has rewritten the text so far.
#include "controls/Tippgedächtnis.h"

#include "controls/Bausteine.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace altardienst {
namespace {

/// A letter, a digit, a sign, or the key that deletes one.
bool Schreibt(const QKeyEvent *taste)
{
    if (taste->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    return taste->key() == Qt::Key_Backspace ||
           (!taste->text().isEmpty() && taste->text().front().isPrint());
}

} // namespace

Tippgedächtnis::Tippgedächtnis(QLineEdit *feld) : QObject(feld), feld(feld)
{
    feld->installEventFilter(this);
    // Comes before `textChanged`, whose handlers may rewrite the box.
    connect(feld, &QLineEdit::textEdited, this, [this](const QString &text) { getippt = text; });
}

bool Tippgedächtnis::eventFilter(QObject *, QEvent *ereignis)
{
    if (ereignis->type() == QEvent::FocusOut)
        gezeigt.clear();
    if (ereignis->type() != QEvent::KeyPress || läuft || feld->isReadOnly() ||
        !Schreibt(static_cast<QKeyEvent *>(ereignis)))
        return false;
    if (!gezeigt.isEmpty() && feld->text() == gezeigt && AmEnde()) {
        const QSignalBlocker still(feld);
        feld->setText(getippt);
    }
    getippt = feld->text();
    läuft = true;
    QCoreApplication::sendEvent(feld, ereignis);
    läuft = false;
    gezeigt = feld && AmEnde() && feld->text() != getippt ? feld->text() : QString();
    return true;
}

bool Tippgedächtnis::AmEnde() const
{
    return !feld->hasSelectedText() && feld->cursorPosition() == feld->text().size();
}

void Eintippen(QLineEdit *feld, const Text &text)
{
    feld->selectAll();
    if (text.empty())
        feld->del();
    else
        feld->insert(Anzeige(text));
}

} // namespace altardienst
