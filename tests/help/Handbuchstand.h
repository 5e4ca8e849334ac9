// The fixture of the tests of the handbook's window.
#pragma once

#include "Fensterstand.h"
#include "help/HandbuchForm.h"

#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>

namespace altardienst {

class Handbuchstand : public Fensterstand {
  protected:
    HandbuchForm &Aufschlagen(const Text &seite, const Text &anker = "")
    {
        form = new HandbuchForm;
        Zeigen(form);
        form->Aufschlagen({seite, anker});
        return *form;
    }

    /// What stands at the top of the page, and what the title says of it.
    Text Oben() const
    {
        return form->windowTitle().toStdString() + " | " +
               form->Seite->document()
                   ->findBlockByNumber(form->Seite->Oberste().Block)
                   .text()
                   .toStdString();
    }

    /// The words that the contents show as the current ones.
    Text Gewählt() const { return form->Inhalt->currentItem()->text(0).toStdString(); }

    QTextBlock Block(const Text &anfang) const
    {
        for (QTextBlock block = form->Seite->document()->begin(); block.isValid();
             block = block.next())
            if (block.text().startsWith(QString::fromStdString(anfang)))
                return block;
        throw std::runtime_error("no paragraph begins with " + anfang);
    }

    bool IstZuSehen(const QTextBlock &block) const
    {
        const QRect zeile = form->Seite->cursorRect(QTextCursor(block));
        return form->Seite->viewport()->rect().contains(zeile.center());
    }

    void Taste(int taste, Qt::KeyboardModifiers dazu = Qt::NoModifier) const
    {
        QTest::keyClick(form->windowHandle(), Qt::Key(taste), dazu);
    }

    void Suchen(const char *wort) const { Tippen(form->Suchwort, wort); }

    /// The parts of the page that are marked, in their order; the one that is shown in brackets.
    std::vector<Text> Marken() const
    {
        std::vector<Text> marken;
        const auto alle = form->Seite->extraSelections();
        for (const auto &eine : alle) {
            const Text wort = eine.cursor.selectedText().toStdString();
            const bool gezeigt = eine.format.background().color() == QColor(0xff, 0xa0, 0x40);
            marken.push_back(gezeigt ? "[" + wort + "]" : wort);
        }
        return marken;
    }

    QPointer<HandbuchForm> form;
};

} // namespace altardienst
