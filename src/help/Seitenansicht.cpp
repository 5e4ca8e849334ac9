// The page of the handbook that is open.
#include "help/Seitenansicht.h"

#include "controls/Handler.h"
#include "help/Seitensatz.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QWheelEvent>

#include <utility>

namespace altardienst {
namespace {

constexpr int ÜberDerÜberschrift = 10; // pixels that stay free

/// The headings of the page, as blocks of its document.
std::vector<QTextBlock> Überschriftblöcke(const QTextDocument *dokument)
{
    std::vector<QTextBlock> blöcke;
    for (QTextBlock block = dokument->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0)
            blöcke.push_back(block);
    return blöcke;
}

/// Bytes of UTF-8 as Qt counts characters.
int Zeichen(const Text &text, std::size_t bytes)
{
    return static_cast<int>(QString::fromUtf8(text.data(), static_cast<qsizetype>(bytes)).size());
}

} // namespace

Seitenansicht::Seitenansicht(const char *name)
{
    setObjectName(QString::fromUtf8(name));
    setOpenLinks(false);
    setFrameShape(QFrame::StyledPanel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that no page is narrower for its length
    connect(this, &QTextBrowser::anchorClicked, this,
            Abgefangen([this](const QUrl &ziel) { BeiVerweis(ziel.toString().toStdString()); }));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, Abgefangen([this] {
                if (!rolltSelbst)
                    BeiRollen();
            }));
}

void Seitenansicht::Zeigen(const Handbuchseite &neue)
{
    markdown = neue.Markdown;
    bilder.clear();
    hinweis.reset();
    Setzen();
    ZuAbschnitt(-1);
}

void Seitenansicht::Setzen()
{
    const QScopedValueRollback selbst(rolltSelbst, true);
    QFont schrift = font();
    schrift.setPointSizeF(QFontInfo(schrift).pointSizeF() * prozent / 100);
    document()->setDefaultFont(schrift);
    SeiteSetzen(*document(), markdown, palette());
    eingerichtet = 0;
    BreiteAnpassen();
    MarkenZeichnen();
}

void Seitenansicht::BreiteAnpassen()
{
    if (std::exchange(eingerichtet, viewport()->width()) == viewport()->width())
        return;
    BreiteEinrichten(*document(), viewport()->width(), devicePixelRatioF(), bilder,
                     SeitenfarbenFür(palette()).Linie);
}

QTextCursor Seitenansicht::Stelle(const Textstelle &stelle) const
{
    const QTextBlock block = document()->findBlockByNumber(stelle.Block);
    QTextCursor cursor(block.isValid() ? block : document()->begin());
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, stelle.Zeichen);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, stelle.Anzahl);
    return cursor;
}

/// So that the place stands this far below the upper edge.
void Seitenansicht::Rollen(const QTextCursor &ziel, int abstand)
{
    const QScopedValueRollback selbst(rolltSelbst, true);
    document()->documentLayout()->documentSize(); // it is laid out as far as one looks otherwise
    QTextCursor anfang(ziel);
    anfang.setPosition(ziel.selectionStart());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(anfang).top() -
                                  abstand);
}

void Seitenansicht::ZuAbschnitt(int abschnitt)
{
    const auto blöcke = Überschriftblöcke(document());
    if (abschnitt > 0 && abschnitt < static_cast<int>(blöcke.size())) {
        Rollen(QTextCursor(blöcke[static_cast<std::size_t>(abschnitt)]), ÜberDerÜberschrift);
    } else { // the title, with the edge of the page above it
        const QScopedValueRollback selbst(rolltSelbst, true);
        verticalScrollBar()->setValue(0);
    }
}

void Seitenansicht::ZuTextstelle(const Textstelle &stelle)
{
    Rollen(Stelle(stelle), 0);
}

void Seitenansicht::Hinweisen(const Textstelle &stelle)
{
    hinweis = stelle;
    Rollen(Stelle(stelle), viewport()->height() / 3);
    MarkenZeichnen();
}

Textstelle Seitenansicht::Oberste() const
{
    const QTextCursor cursor = cursorForPosition(QPoint(0, 0));
    return {cursor.blockNumber(), cursor.positionInBlock(), 0};
}

int Seitenansicht::ObersterAbschnitt() const
{
    const QScrollBar *balken = verticalScrollBar();
    if (balken->value() == 0)
        return 0; // the title, though more headings may stand near it
    const bool amEnde = balken->value() == balken->maximum(); // the last one cannot come further up
    const int nahe = amEnde ? viewport()->height() : viewport()->height() / 4;
    int abschnitt = -1;
    for (const QTextBlock &block : Überschriftblöcke(document())) {
        if (cursorRect(QTextCursor(block)).top() > nahe)
            break;
        ++abschnitt;
    }
    return abschnitt;
}

void Seitenansicht::Markieren(std::vector<Text> neue)
{
    worte = std::move(neue);
    hinweis.reset();
    MarkenZeichnen();
}

void Seitenansicht::MarkenZeichnen()
{
    const Seitenfarben farben = SeitenfarbenFür(palette());
    QList<ExtraSelection> marken;
    const auto marke = [&](const Textstelle &stelle, const QColor &grund) {
        ExtraSelection neue;
        neue.cursor = Stelle(stelle);
        neue.format.setBackground(grund);
        neue.format.setForeground(farben.AufTreffer);
        marken.append(neue);
    };
    if (!worte.empty())
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            const Text text = block.text().toStdString();
            for (const Treffer &treffer : TrefferIn(text, worte)) {
                const int ab = Zeichen(text, treffer.Ab);
                marke({block.blockNumber(), ab, Zeichen(text, treffer.Ab + treffer.Bytes) - ab},
                      farben.Treffer);
            }
        }
    if (hinweis)
        marke(*hinweis, farben.Fundstelle); // the last one covers the others
    setExtraSelections(marken);
}

void Seitenansicht::Schriftgrad(int neu)
{
    prozent = neu;
    OhneZuRollen([this] { Setzen(); });
}

void Seitenansicht::OhneZuRollen(const std::function<void()> &tun)
{
    const QScopedValueRollback selbst(rolltSelbst, true);
    const bool amAnfang = verticalScrollBar()->value() == 0; // with the edge of the page
    const Textstelle oben = Oberste();
    tun();
    if (!amAnfang)
        ZuTextstelle(oben);
}

void Seitenansicht::resizeEvent(QResizeEvent *ereignis)
{
    OhneZuRollen([&] {
        QTextBrowser::resizeEvent(ereignis);
        BreiteAnpassen();
    });
}

void Seitenansicht::changeEvent(QEvent *ereignis)
{
    QTextBrowser::changeEvent(ereignis);
    const bool anders =
        ereignis->type() == QEvent::PaletteChange || ereignis->type() == QEvent::FontChange;
    if (anders && !markdown.isEmpty())
        OhneZuRollen([this] { Setzen(); });
}

void Seitenansicht::wheelEvent(QWheelEvent *ereignis)
{
    if (ereignis->modifiers() != Qt::ControlModifier) {
        QTextBrowser::wheelEvent(ereignis);
        return;
    }
    if (const int drehung = ereignis->angleDelta().y(); drehung != 0)
        BeiVergrößern(drehung > 0 ? 1 : -1);
    ereignis->accept();
}

} // namespace altardienst
