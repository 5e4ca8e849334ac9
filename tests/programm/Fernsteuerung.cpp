// Loaded into the real program by a test: takes one command per line from standard input and
// answers each with one line on standard output.
//
//   fenster              the names of the visible windows, the message box as "Meldung"
//   meldungen            how many message boxes there have been
//   text NAME            what the control shows ("-" while it cannot be seen)
//   klick NAME           presses a button or option
//   laufwerk NAME TEXT   chooses an entry of a drop-down list
//   öffne NAME TEXT      opens an entry of a list, as a double click does
//   schließe FENSTER     closes a window
//   scheitere            makes an event fail unexpectedly
//   sitzungsende         what the desktop does when its session ends
//   bild FENSTER DATEI   saves a picture of a window
//
// The answer to a command that cannot be carried out begins with "Fehler".
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace {

/// Two messages in a row may have the same text; only their number tells them apart.
class Meldungszähler : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject *wer, QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::Show && qobject_cast<QMessageBox *>(wer))
            ++Anzahl;
        return false;
    }

    static inline int Anzahl = 0;
};

QList<QWidget *> SichtbareFenster()
{
    QList<QWidget *> sichtbare;
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() && fenster->isWindow() && !fenster->objectName().isEmpty())
            sichtbare.append(fenster);
    return sichtbare;
}

QWidget *Fenster(const QString &name)
{
    for (QWidget *fenster : SichtbareFenster())
        if (fenster->objectName() == name)
            return fenster;
    return nullptr;
}

/// What can be reached: only the message box while one is open.
QWidget *Control(const QString &name)
{
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        if (name == "Meldung")
            return box;
        for (QAbstractButton *knopf : box->buttons())
            if (knopf->text().remove('&') == name)
                return knopf;
        return nullptr;
    }
    for (QWidget *fenster : SichtbareFenster())
        if (auto *control = fenster->findChild<QWidget *>(name))
            return control;
    return nullptr;
}

QString Zeigt(const QWidget *control)
{
    if (auto *box = qobject_cast<const QMessageBox *>(control))
        return box->text();
    if (!control->isVisible())
        return "-";
    return control->property("text").toString();
}

QString Ausführen(const QString &zeile)
{
    const QString befehl = zeile.section(' ', 0, 0);
    const QString name = zeile.section(' ', 1, 1);
    const QString rest = zeile.section(' ', 2);
    if (befehl == "fenster") {
        QStringList namen;
        for (const QWidget *fenster : SichtbareFenster())
            namen.append(fenster->objectName());
        namen.sort();
        return namen.join(' ');
    }
    if (befehl == "meldungen")
        return QString::number(Meldungszähler::Anzahl);
    if (befehl == "schließe" || befehl == "bild") {
        QWidget *fenster = Fenster(name);
        if (!fenster)
            return "Fehler: kein Fenster " + name;
        if (befehl == "bild")
            return fenster->grab().save(rest) ? "ok" : "Fehler: kein Bild";
        QTimer::singleShot(0, fenster, &QWidget::close);
        return "ok";
    }
    if (befehl == "scheitere") {
        QTimer::singleShot(0, qApp, [] { throw std::logic_error("probe"); });
        return "ok";
    }
    if (befehl == "sitzungsende") {
        auto *sitzung = qApp->findChild<QSessionManager *>();
        if (!sitzung)
            return "Fehler: keine Sitzung";
        QTimer::singleShot(0, qApp, [sitzung] { Q_EMIT qApp->commitDataRequest(*sitzung); });
        return "ok";
    }
    QWidget *control = Control(name);
    if (!control)
        return "Fehler: nicht erreichbar " + name;
    if (befehl == "text")
        return Zeigt(control);
    if (!control->isVisible() || !control->isEnabled())
        return "Fehler: gesperrt " + name;
    if (auto *knopf = qobject_cast<QAbstractButton *>(control); knopf && befehl == "klick") {
        // Answers first: the click may open a message that waits for the next command.
        QTimer::singleShot(0, knopf, &QAbstractButton::click);
        return "ok";
    }
    if (auto *box = qobject_cast<QComboBox *>(control); box && befehl == "laufwerk") {
        const int eintrag = box->findText(rest);
        if (eintrag < 0)
            return "Fehler: kein Eintrag " + rest;
        box->setCurrentIndex(eintrag);
        Q_EMIT box->activated(eintrag);
        return "ok";
    }
    if (auto *liste = qobject_cast<QListWidget *>(control); liste && befehl == "öffne") {
        const auto einträge = liste->findItems(rest, Qt::MatchExactly);
        if (einträge.isEmpty())
            return "Fehler: kein Eintrag " + rest;
        liste->setCurrentItem(einträge.front());
        Q_EMIT liste->itemActivated(einträge.front());
        return "ok";
    }
    return "Fehler: " + zeile;
}

void Einrichten()
{
    qApp->installEventFilter(new Meldungszähler(qApp));
    auto *eingang = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, qApp);
    QObject::connect(eingang, &QSocketNotifier::activated, qApp, [] {
        static std::string offen;
        char stück[4096];
        const auto gelesen = read(STDIN_FILENO, stück, sizeof stück);
        if (gelesen <= 0) { // the test is gone
            QApplication::exit(1);
            return;
        }
        offen.append(stück, static_cast<std::size_t>(gelesen));
        for (auto ende = offen.find('\n'); ende != std::string::npos; ende = offen.find('\n')) {
            const QString zeile = QString::fromStdString(offen.substr(0, ende));
            offen.erase(0, ende + 1);
            std::printf("%s\n", Ausführen(zeile).toUtf8().constData());
            std::fflush(stdout);
        }
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Einrichten)
