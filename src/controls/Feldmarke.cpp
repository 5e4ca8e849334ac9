// A box is marked as long as the program could not read what stands in it.
#include "controls/Feldmarke.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "core/Zeilen.h"
#include "values/Laufzeitfehler.h"

#include <QComboBox>
#include <QEvent>
#include <QVariant>

#include <utility>

namespace altardienst {
namespace {

constexpr const char *Markiert = "altardienst_markiert";
constexpr const char *Hinweis = "altardienst_hinweis";
constexpr int Zeichenbreite = 16; // room for the sign at the end of the text

/// A tooltip that looks like mark-up would be drawn as such.
QString AlsText(const QString &satz)
{
    return Qt::mightBeRichText(satz) ? satz.toHtmlEscaped() : satz;
}

class Feldmarke : public QObject {
  public:
    Feldmarke(QLineEdit *feld, Feldprüfung prüfung)
        : QObject(feld), feld(feld), prüfung(std::move(prüfung))
    {
        feld->installEventFilter(this);
        if (QWidget *wahl = Sprecher(); wahl != feld)
            wahl->installEventFilter(this);
        connect(feld, &QLineEdit::textChanged, this, Abgefangen([this] { Prüfen(); }));
    }

    bool eventFilter(QObject *control, QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::Show && control == feld)
            Prüfen(); // a box that was empty from the beginning has never changed
        if (ereignis->type() == QEvent::ToolTipChange && control == Sprecher() &&
            IstMarkiert(feld) && !setzt) {
            Sprecher()->setProperty(Hinweis, Sprecher()->toolTip()); // for later
            SatzZeigen(satz);
        }
        return false;
    }

  private:
    /// What the mouse and screen readers ask: the list, if the box is part of one.
    QWidget *Sprecher() const
    {
        auto *wahl = qobject_cast<QComboBox *>(feld->parentWidget());
        return wahl ? static_cast<QWidget *>(wahl) : feld;
    }

    void Prüfen()
    {
        const QString neu = AlsText(Anzeige(prüfung(TextVon(feld))));
        if (neu == satz)
            return;
        if (satz.isEmpty())
            Beginnen();
        satz = neu;
        if (satz.isEmpty())
            Beenden();
        else
            SatzZeigen(satz);
    }

    void Beginnen()
    {
        Sprecher()->setProperty(Hinweis, Sprecher()->toolTip());
        beschreibung = Sprecher()->accessibleDescription();
        ränder = feld->textMargins();
        feld->setProperty(Markiert, true);
        feld->setTextMargins(ränder + QMargins(0, 0, Zeichenbreite, 0));
        feld->update();
    }

    void Beenden()
    {
        feld->setProperty(Markiert, {});
        feld->setTextMargins(ränder);
        feld->update();
        const QString hinweis = Sprecher()->property(Hinweis).toString();
        Sprecher()->setProperty(Hinweis, {});
        Sprecher()->setToolTip(hinweis);
        Sprecher()->setAccessibleDescription(beschreibung);
    }

    void SatzZeigen(const QString &text)
    {
        setzt = true;
        Sprecher()->setToolTip(text);
        Sprecher()->setAccessibleDescription(text);
        setzt = false;
    }

    QLineEdit *feld;
    Feldprüfung prüfung;
    QString satz; // empty while there is no mark
    QString beschreibung;
    QMargins ränder;
    bool setzt = false;
};

/// As much of a text as a sentence can bear, without the blanks around it.
Text Zitat(const Text &text)
{
    constexpr int Längstes = 40;
    const QString ohneBlanks = Anzeige(text).trimmed();
    return ohneBlanks.size() <= Längstes ? ohneBlanks.toStdString()
                                         : (ohneBlanks.left(Längstes) + "…").toStdString();
}

/// What a box should hold, as the end of a sentence and as that which is missing.
struct Erwartet {
    const char *Keines;
    const char *Eines;
};

template <class Wert>
Text Unlesbar(const Text &text, Wert (*lesen)(std::string_view), const Erwartet &erwartet)
{
    try {
        lesen(text);
        return {};
    } catch (const Laufzeitfehler &fehler) {
        const Text was = Zitat(text);
        if (was.empty())
            return Text("Hier fehlt ") + erwartet.Eines + ".";
        if (fehler.Nummer() == Laufzeitfehler::Überlauf)
            return was + (was.starts_with('-') ? " ist zu klein." : " ist zu groß.");
        return was + " ist " + erwartet.Keines + ".";
    }
}

/// Whether the value after a text is still found where it is looked for.
bool BleibtGanz(const Text &text)
{
    const Text danach = "danach";
    const Text zeilen = text + "\r\n" + danach + "\r\n";
    try {
        Zeilenleser leser(zeilen);
        leser.Abgegrenzt();
        return leser.Abgegrenzt() == danach && leser.AmEnde();
    } catch (const Laufzeitfehler &) {
        return false;
    }
}

} // namespace

void FeldPrüfen(QLineEdit *feld, Feldprüfung prüfung)
{
    new Feldmarke(feld, std::move(prüfung));
}

bool IstMarkiert(const QWidget *feld)
{
    return feld->property(Markiert).toBool();
}

QString EigenerHinweis(const QWidget *control)
{
    const QVariant verdeckt = control->property(Hinweis);
    return verdeckt.isValid() ? verdeckt.toString() : control->toolTip();
}

Text KeinDatum(const Text &text)
{
    return Unlesbar(text, DatumLesen, {"kein Datum", "ein Datum"});
}

Text KeineUhrzeit(const Text &text)
{
    return Unlesbar(text, DatumLesen, {"keine Uhrzeit", "eine Uhrzeit"});
}

Text KeineZahl(const Text &text)
{
    return Unlesbar(text, Int16Lesen, {"keine Zahl", "eine Zahl"});
}

Text KeinePostleitzahl(const Text &text)
{
    return Unlesbar(text, Int32Lesen, {"keine Zahl", "eine Zahl"});
}

Text KeinMaß(const Text &text)
{
    return Unlesbar(text, SingleLesen, {"keine Zahl", "eine Zahl"});
}

Feldprüfung ZerreißtDieDatei(const char *folge)
{
    return [folge](const Text &text) -> Text {
        if (BleibtGanz(text))
            return {};
        const char *was = text.find_first_of("\r\n") != Text::npos ? "Ein Zeilenumbruch"
                          : text.find(',') != Text::npos           ? "Ein Komma"
                                                         : "Ein Anführungszeichen am Anfang";
        return was + Text(" zerreißt die Datei: beim nächsten Start ") + folge + ".";
    };
}

} // namespace altardienst
