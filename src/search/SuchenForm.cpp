// "Suchen": one box, and what is found while one types.
#include "search/SuchenForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "search/Hingehen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int Trefferrolle = Qt::UserRole;  // the number of the hit of a row
constexpr int Restrolle = Qt::UserRole + 1; // the group of which a row would show the rest

QString Genannt(const QWidget *fenster)
{
    return "„" + fenster->windowTitle().trimmed() + "“";
}

} // namespace

SuchenForm::SuchenForm(QWidget *vorn)
    : QDialog(vorn), Suchtext(Benannt(new QLineEdit, "Suchtext")),
      Fundstellen(Benannt(new QListWidget, "Fundstellen")), Hinweis(Beschriftung("Hinweis", "")),
      vorn(vorn)
{
    Benannt(this, "Suchen");
    setWindowTitle("Suchen");
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    Anordnen();
    Verbinden();
    Finden();
}

void SuchenForm::Anordnen()
{
    Suchtext->setAccessibleName("Name, Datum oder Art der Messe");
    Suchtext->setPlaceholderText("Name, Datum (8.12.) oder Art der Messe");
    Suchtext->setClearButtonEnabled(true);
    Fundstellen->setAccessibleName("Fundstellen");
    Fundstellen->setUniformItemSizes(true);
    Fundstellen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Fundstellen->setFocusPolicy(Qt::NoFocus); // the arrow keys reach it from the box
    Hinweis->setWordWrap(true);
    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(Suchtext);
    spalte->addWidget(Fundstellen, 1);
    spalte->addWidget(Hinweis);
    resize(520, 400);
    Suchtext->setFocus();
}

void SuchenForm::Verbinden()
{
    Suchtext->installEventFilter(this);
    connect(Suchtext, &QLineEdit::textChanged, this, Abgefangen([this] {
                ganze.clear();
                Finden();
            }));
    connect(Fundstellen, &QListWidget::currentRowChanged, this,
            Abgefangen([this] { Hinweisen(); }));
    connect(Fundstellen, &QListWidget::itemClicked, this,
            Abgefangen([this](const QListWidgetItem *zeile) {
                if (zeile == Fundstellen->currentItem()) // a heading cannot be marked
                    Gehen();
            }));
}

void SuchenForm::Finden()
{
    Fundstellen->clear();
    treffer.clear();
    for (const Treffergruppe &gruppe : Suchen(Suchtext->text().toStdString(), ganze)) {
        Überschriftzeile(gruppe);
        for (const Fund &eine : gruppe.Zeilen)
            Trefferzeile(eine);
        if (gruppe.Weitere > 0)
            Restzeile(gruppe);
    }
    Markieren(+1, 1);
    Hinweisen();
}

void SuchenForm::Überschriftzeile(const Treffergruppe &gruppe)
{
    QString titel = Anzeige(gruppe.Titel);
    if (gruppe.Weitere > 0)
        titel += QString(" (die ersten %1 von %2)")
                     .arg(gruppe.Zeilen.size())
                     .arg(static_cast<int>(gruppe.Zeilen.size()) + gruppe.Weitere);
    auto *zeile = new QListWidgetItem(titel, Fundstellen);
    QFont schrift = zeile->font();
    schrift.setBold(true);
    zeile->setFont(schrift);
    zeile->setFlags(Qt::NoItemFlags);
    zeile->setForeground(palette().text());
}

/// A hit that cannot be reached from here is shown all the same, and says when it can be.
void SuchenForm::Trefferzeile(const Fund &eine)
{
    auto *zeile = new QListWidgetItem("   " + Anzeige(eine.Zeile), Fundstellen);
    zeile->setToolTip(Anzeige(eine.Zeile));
    zeile->setData(Trefferrolle, static_cast<int>(treffer.size()));
    treffer.push_back(eine);
    const QWidget *davor = Hindernis(eine, vorn);
    if (davor && !Endeknopf(davor)) {
        zeile->setText(zeile->text() + " – erst nach Beenden von " + Genannt(davor));
        zeile->setFlags(Qt::NoItemFlags);
    }
}

void SuchenForm::Restzeile(const Treffergruppe &gruppe)
{
    auto *zeile =
        new QListWidgetItem(QString("   %1 weitere zeigen").arg(gruppe.Weitere), Fundstellen);
    zeile->setData(Restrolle, Anzeige(gruppe.Titel));
}

void SuchenForm::Hinweisen()
{
    if (!Gruppe().isEmpty()) {
        Hinweis->setText("Eingabe zeigt auch die übrigen, Esc geht zurück.");
        return;
    }
    const Fund *ziel = Markierter();
    if (!ziel) {
        const bool leer = Suchtext->text().trimmed().size() < 2;
        Hinweis->setText(leer              ? "Esc geht zurück."
                         : treffer.empty() ? "Nichts gefunden. Esc geht zurück."
                                           : "Von hier aus ist nichts davon zu erreichen.");
        return;
    }
    const QWidget *davor = Hindernis(*ziel, vorn);
    const QAbstractButton *ende = davor ? Endeknopf(davor) : nullptr;
    Hinweis->setText(ende ? "Eingabe geht hin; " + Genannt(davor) + " wird dabei wie mit „" +
                                ende->text() + "“ verlassen."
                          : QString("Eingabe geht hin, Esc zurück."));
}

/// The first of those that come is marked then.
void SuchenForm::Ausbreiten(const QString &gruppe)
{
    const int zeile = Fundstellen->currentRow();
    ganze.insert(gruppe.toStdString());
    Finden();
    Fundstellen->setCurrentRow(zeile);
}

/// Once this window is gone, so that the other ones are as the user knows them.
void SuchenForm::Gehen()
{
    if (const QString gruppe = Gruppe(); !gruppe.isEmpty())
        return Ausbreiten(gruppe);
    const Fund *ziel = Markierter();
    if (!ziel)
        return;
    QTimer::singleShot(
        0, qApp, [wohin = *ziel, vorn = vorn] { Abgefangen([&] { Hingehen(wohin, vorn); })(); });
    accept();
}

/// Moves the mark over headings and hits that cannot be reached, at most to the last one that can.
void SuchenForm::Markieren(int richtung, int weite)
{
    const int anzahl = Fundstellen->count();
    int ziel = Fundstellen->currentRow();
    for (int zeile = ziel + richtung; zeile >= 0 && zeile < anzahl && weite > 0; zeile += richtung)
        if (Fundstellen->item(zeile)->flags() & Qt::ItemIsEnabled) {
            ziel = zeile;
            --weite;
        }
    Fundstellen->setCurrentRow(ziel);
    if (richtung < 0 && weite > 0)
        Fundstellen->scrollToTop(); // the first heading
}

const Fund *SuchenForm::Markierter() const
{
    const QListWidgetItem *zeile = Fundstellen->currentItem();
    if (!zeile || !(zeile->flags() & Qt::ItemIsEnabled) || !Gruppe().isEmpty())
        return nullptr;
    return &treffer[static_cast<std::size_t>(zeile->data(Trefferrolle).toInt())];
}

/// The group whose rest the marked row would show; empty for a hit.
QString SuchenForm::Gruppe() const
{
    const QListWidgetItem *zeile = Fundstellen->currentItem();
    return zeile ? zeile->data(Restrolle).toString() : QString();
}

bool SuchenForm::eventFilter(QObject *, QEvent *ereignis)
{
    constexpr int Seite = 10;
    if (ereignis->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent *>(ereignis)->key()) {
    case Qt::Key_Down:
        Markieren(+1, 1);
        return true;
    case Qt::Key_Up:
        Markieren(-1, 1);
        return true;
    case Qt::Key_PageDown:
        Markieren(+1, Seite);
        return true;
    case Qt::Key_PageUp:
        Markieren(-1, Seite);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Gehen();
        return true;
    default:
        return false;
    }
}

namespace {

class Suchtaste : public QObject {
  public:
    explicit Suchtaste(QObject *eigner) : QObject(eigner) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent *>(ereignis)->matches(QKeySequence::Find))
            return false;
        QWidget *vorn = QApplication::activeWindow();
        if (!vorn || QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return false;
        Abgefangen([vorn] { (new SuchenForm(vorn))->show(); })();
        return true;
    }
};

} // namespace

void SuchenBeiStrgF(QObject *eigner)
{
    new Suchtaste(eigner);
}

} // namespace altardienst
