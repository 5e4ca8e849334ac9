// Keys that press the command buttons.
#include "controls/Kurztasten.h"

#include "controls/Handler.h"
#include "controls/Verlassen.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

constexpr auto Fertig = Qt::CTRL | Qt::Key_Return;
constexpr auto Abbruch = QKeyCombination(Qt::Key_Escape);
constexpr auto Neu = Qt::CTRL | Qt::Key_N;
constexpr auto Löschen = QKeyCombination(Qt::Key_F8); // text boxes delete words by Ctrl and Del
constexpr auto Drucken = Qt::CTRL | Qt::Key_P;

constexpr std::array<Kurztaste, 38> Kurztasten = {{
    {"OK", Fertig},
    {"Ende", Fertig},
    {"Starten", Fertig},
    {"Anfügen", Fertig},
    {"Abbrechen", Abbruch},

    {"neue Messe", Neu},
    {"neue Gruppe", Neu},
    {"Neuer Meßdiener", Neu},
    {"neuer Helfer", Neu},
    {"Datensatz hinzufügen", Neu},
    {"Datensatz löschen", Löschen},
    {"Gruppe löschen", Löschen},
    {"Löschen", Löschen},

    {"Drucken", Drucken},
    {"Druck des Altardienstes", Drucken},
    {"Aufnahmebestätigung drucken", Drucken},

    {"Verzeichnis erstellen", Qt::CTRL | Qt::SHIFT | Qt::Key_N},
    {"Namen berichtigen", Qt::ALT | Qt::Key_N},
    {"Wochentag bestimmen", Qt::ALT | Qt::Key_W},
    {"Lektoren und ...", Qt::ALT | Qt::Key_L},
    {"Im Plan zeigen", Qt::ALT | Qt::Key_I},
    {"Diagramm", Qt::ALT | Qt::Key_D},
    {"Einstellungen...", Qt::ALT | Qt::Key_E},
    {"Durchsuchen...", Qt::ALT | Qt::Key_D},

    {"Drucken der Standardmessen", Qt::ALT | Qt::Key_S},
    {"Druck der Meßdienerdaten (alle)", Qt::ALT | Qt::Key_M},
    {"Druck Meßdienerdaten (Gruppe)", Qt::ALT | Qt::Key_G},
    {"Druck der Wunschpartner", Qt::ALT | Qt::Key_W},
    {"Druck der Helfer", Qt::ALT | Qt::Key_H},
    {"Drucken des Erfassungsbogens für Meßdiener", Qt::ALT | Qt::Key_E},
    {"Druck des Erfassungsbogens für Meßhelfer", Qt::ALT | Qt::Key_F},
    {"Druck von Adressetiketten", Qt::ALT | Qt::Key_A},
    {"Druck der Etikettengröße", Qt::ALT | Qt::Key_T},

    {"Ansicht Geburtstage", Qt::ALT | Qt::Key_G},
    {"Druck der Geburtstage", Qt::ALT | Qt::Key_D},
    {"Ansicht Jubiläum Meßdiener", Qt::ALT | Qt::Key_J},
    {"Druck Jubiläum Meßdiener", Qt::ALT | Qt::Key_M},
    {"Adressetiketten drucken", Qt::ALT | Qt::Key_A},
}};

/// Keeps the key at the end of a tooltip.
class Tastenhinweis : public QObject {
  public:
    Tastenhinweis(QAbstractButton *knopf, const QString &taste)
        : QObject(knopf), knopf(knopf), taste(taste)
    {
        knopf->installEventFilter(this);
        Ergänzen();
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::ToolTipChange)
            Ergänzen();
        return false;
    }

  private:
    void Ergänzen() const
    {
        QString tip = knopf->toolTip();
        if (tip.endsWith("\n" + taste)) // a text was put in front of the key
            tip.chop(taste.size() + 1);
        const QString amEnde = " (" + taste + ")";
        if (tip.isEmpty())
            knopf->setToolTip(taste);
        else if (tip != taste && !tip.endsWith(amEnde))
            knopf->setToolTip(tip + amEnde);
    }

    QAbstractButton *knopf;
    QString taste;
};

/// Like a click, which brings the focus to the button first.
void Drücken(QAbstractButton *knopf)
{
    const int zuvor = OhneVerlassen::Wievielte();
    knopf->setFocus(Qt::ShortcutFocusReason);
    if (OhneVerlassen::Wievielte() == zuvor) // no message, and no box took the focus back
        knopf->click();
}

/// As it is printed on German keyboards.
QString Tastenname(const QKeySequence &taste)
{
    return taste.toString(QKeySequence::NativeText).replace("Return", "Eingabe");
}

/// Escape belongs to the list or calendar that hangs open, and not to the window below it, whose
/// shortcuts are asked first: what was typed there would be gone with it.
class Aufklappwache : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::ShortcutOverride || !QApplication::activePopupWidget() ||
            static_cast<QKeyEvent *>(ereignis)->key() != Qt::Key_Escape)
            return false;
        ereignis->accept();
        return true;
    }
};

void AufgeklapptesGehtVor()
{
    static QPointer<Aufklappwache> wache;
    if (!wache)
        qApp->installEventFilter(wache = new Aufklappwache(qApp));
}

} // namespace

std::span<const Kurztaste> AlleKurztasten()
{
    return Kurztasten;
}

void TasteDrückt(const QKeySequence &taste, QAbstractButton *knopf)
{
    auto *kürzel = new QShortcut(knopf);
    QList<QKeySequence> tasten = {taste};
    if (taste == QKeySequence(Fertig))
        tasten.append(Qt::CTRL | Qt::Key_Enter); // on the keypad
    kürzel->setKeys(tasten);
    kürzel->setAutoRepeat(false);
    const bool sofort = taste == QKeySequence(Abbruch);
    if (sofort)
        AufgeklapptesGehtVor();
    QObject::connect(kürzel, &QShortcut::activated, knopf, Abgefangen([knopf, sofort] {
                         if (sofort)
                             knopf->click();
                         else
                             Drücken(knopf);
                     }));
}

void TasteNennen(QAbstractButton *knopf, const QString &taste)
{
    new Tastenhinweis(knopf, taste);
}

void KurztasteGeben(QAbstractButton *knopf)
{
    const QString beschriftung = knopf->text();
    const auto eine = std::ranges::find_if(Kurztasten, [&](const Kurztaste &taste) {
        return beschriftung == QString::fromUtf8(taste.Beschriftung);
    });
    if (eine == Kurztasten.end())
        return;
    TasteDrückt(eine->Taste, knopf);
    TasteNennen(knopf, Tastenname(eine->Taste));
}

} // namespace altardienst
