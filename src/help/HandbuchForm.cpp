// The window of the handbook: contents and search at the left, the page at the right.
#include "help/HandbuchForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Vordergrund.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace altardienst {
namespace {

constexpr QSize Fenstergröße(1060, 740);
constexpr int WenigsteBreite = 760;
constexpr int Knopfspalte = 350; // of the main window
constexpr int BreiteLinks = 280;
constexpr std::array Schriftgrade = {70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

/// Of an entry of the contents: its page, and the number of its heading.
constexpr int SeiteDesEintrags = Qt::UserRole;
constexpr int AbschnittDesEintrags = Qt::UserRole + 1;

QPushButton *Navigationsknopf(const char *name, const char *wort, const char *tip)
{
    QPushButton *knopf = Knopf(name, wort);
    knopf->setToolTip(tip);
    return knopf;
}

/// A button with a sign on it, which screen readers call by its word.
QPushButton *Zeichenknopf(const char *name, const char *zeichen, const char *wort, const char *tip)
{
    QPushButton *knopf = Navigationsknopf(name, zeichen, tip);
    knopf->setAccessibleName(wort);
    return knopf;
}

} // namespace

std::function<void(const QString &)> HandbuchForm::AdresseÖffnen = [](const QString &adresse) {
    QDesktopServices::openUrl(QUrl(adresse));
};

HandbuchForm::HandbuchForm()
    : Suchwort(Benannt(new QLineEdit, "Suchwort")), Links(Benannt(new QStackedWidget, "Links")),
      Inhalt(Benannt(new QTreeWidget, "Inhalt")), Fundzahl(Beschriftung("Fundzahl", "")),
      Fundliste(Benannt(new QListWidget, "Fundliste")),
      Zurück(Navigationsknopf("Zurück", "Zurück",
                              "Zurück zu dem, was vorher gezeigt wurde (Alt+Pfeil links)")),
      Vor(Navigationsknopf("Vor", "Vor", "Wieder vor (Alt+Pfeil rechts)")),
      Anfang(Navigationsknopf("Anfang", "Anfang", "Zur ersten Seite (Alt+Pos1)")),
      Kleiner(Zeichenknopf("Kleiner", "A−", "Schrift kleiner", "Schrift kleiner (Strg+-)")),
      Normal(Navigationsknopf("Normal", "100 %", "Schrift in gewöhnlicher Größe (Strg+0)")),
      Größer(Zeichenknopf("Größer", "A+", "Schrift größer", "Schrift größer (Strg++)")),
      Seite(new Seitenansicht("Seite")), seiten(HandbuchLesen())
{
    Benannt(this, "Handbuch");
    setWindowTitle("Handbuch");
    setAttribute(Qt::WA_DeleteOnClose);
    Anordnen();
    Verbinden();
    TastenVerbinden();
    InhaltFüllen();
    ZumNachlesen(this);
}

QLayout *HandbuchForm::LinkeSpalte()
{
    Suchwort->setClearButtonEnabled(true);
    Suchwort->setToolTip("Wörter, die in einem Absatz stehen (Strg+F).\n"
                         "Eingabetaste oder F3: nächste Fundstelle, Umschalt+F3: vorige");
    auto *suche = new QHBoxLayout;
    suche->addWidget(Beschriftung("Suchen", "&Suchen:", Suchwort));
    suche->addWidget(Suchwort, 1);
    Suchwort->setAccessibleName("Suchen");

    Inhalt->setAccessibleName("Inhalt");
    Inhalt->setHeaderHidden(true);
    Inhalt->setIndentation(16);

    Fundliste->setAccessibleName("Fundstellen");
    Fundliste->setItemDelegate(new Fundzeile(Fundliste));
    Fundliste->setResizeMode(QListView::Adjust); // the rows follow the width
    Fundliste->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    Fundliste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Fundliste->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Fundzahl->setWordWrap(true);
    auto *fundstellenseite = new QWidget;
    auto *fundspalte = new QVBoxLayout(fundstellenseite);
    fundspalte->setContentsMargins(0, 0, 0, 0);
    fundspalte->addWidget(Fundzahl);
    fundspalte->addWidget(Fundliste, 1);

    Links->addWidget(Inhalt);
    Links->addWidget(fundstellenseite);

    auto *spalte = new QVBoxLayout;
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addLayout(suche);
    spalte->addWidget(Links, 1);
    return spalte;
}

QLayout *HandbuchForm::RechteSpalte()
{
    auto *knöpfe = new QHBoxLayout;
    for (QPushButton *knopf : {Zurück, Vor, Anfang})
        knöpfe->addWidget(knopf);
    knöpfe->addStretch();
    for (QPushButton *knopf : {Kleiner, Normal, Größer})
        knöpfe->addWidget(knopf);

    auto *spalte = new QVBoxLayout;
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addLayout(knöpfe);
    spalte->addWidget(Seite, 1);
    return spalte;
}

void HandbuchForm::Anordnen()
{
    auto *teiler = Benannt(new QSplitter, "Teiler");
    for (QLayout *spalte : {LinkeSpalte(), RechteSpalte()}) {
        auto *hälfte = new QWidget;
        hälfte->setLayout(spalte);
        teiler->addWidget(hälfte);
    }
    teiler->setChildrenCollapsible(false);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({BreiteLinks, Fenstergröße.width() - BreiteLinks});

    Fensterspalte(this, Luft::Wenig)->addWidget(teiler);
    const QRect schirm = screen()->availableGeometry();
    // The buttons one reads about stand at the left, and stay free where the screen has the room.
    const int frei = schirm.width() - Knopfspalte;
    const QSize größe(std::clamp(frei, WenigsteBreite, Fenstergröße.width()),
                      Fenstergröße.height());
    resize(größe.boundedTo(schirm.size() - Fensterrahmen));
    const QSize mitRahmen = size() + Fensterrahmen;
    move(schirm.right() + 1 - mitRahmen.width(), schirm.bottom() + 1 - mitRahmen.height());
    Seite->setFocus();
}

void HandbuchForm::Verbinden()
{
    connect(Suchwort, &QLineEdit::textChanged, this, Abgefangen([this] { SuchwortGeändert(); }));
    connect(Suchwort, &QLineEdit::returnPressed, this, Abgefangen([this] { Weitersuchen(+1); }));
    const auto aufschlagen = Abgefangen([this](const QTreeWidgetItem *eintrag, int) {
        Gehen({eintrag->data(0, SeiteDesEintrags).toInt(),
               eintrag->data(0, AbschnittDesEintrags).toInt()});
    });
    connect(Inhalt, &QTreeWidget::itemClicked, this, aufschlagen);
    connect(Inhalt, &QTreeWidget::itemActivated, this, aufschlagen);
    connect(Fundliste, &QListWidget::currentRowChanged, this,
            Abgefangen([this](int zeile) { FundstelleZeigen(zeile); }));
    connect(Fundliste, &QListWidget::itemClicked, this,
            Abgefangen([this] { FundstelleZeigen(Fundliste->currentRow()); }));
    connect(Fundliste, &QListWidget::itemActivated, this,
            Abgefangen([this] { Seite->setFocus(); }));

    connect(Zurück, &QPushButton::clicked, this, Abgefangen([this] { Blättern(true); }));
    connect(Vor, &QPushButton::clicked, this, Abgefangen([this] { Blättern(false); }));
    connect(Anfang, &QPushButton::clicked, this, Abgefangen([this] { Gehen({}); }));
    connect(Kleiner, &QPushButton::clicked, this, Abgefangen([this] { SchriftÄndern(-1); }));
    connect(Normal, &QPushButton::clicked, this, Abgefangen([this] { SchriftÄndern(0); }));
    connect(Größer, &QPushButton::clicked, this, Abgefangen([this] { SchriftÄndern(+1); }));

    Seite->BeiVerweis = [this](const Text &verweis) { VerweisFolgen(verweis); };
    Seite->BeiVergrößern = [this](int schritte) { SchriftÄndern(schritte); };
    Seite->BeiRollen = [this] { ImInhaltZeigen(Seite->ObersterAbschnitt()); };
}

void HandbuchForm::TastenVerbinden()
{
    const auto taste = [this](const QKeySequence &folge, const std::function<void()> &tun,
                              QWidget *nurIn = nullptr) {
        auto *kürzel = new QShortcut(folge, nurIn ? nurIn : this);
        kürzel->setContext(nurIn ? Qt::WidgetShortcut : Qt::WindowShortcut);
        connect(kürzel, &QShortcut::activated, this, Abgefangen(tun));
    };
    taste(Qt::Key_Escape, [this] { close(); });
    taste(Qt::ALT | Qt::Key_Left, [this] { Blättern(true); });
    taste(Qt::Key_Back, [this] { Blättern(true); });
    taste(Qt::ALT | Qt::Key_Right, [this] { Blättern(false); });
    taste(Qt::Key_Forward, [this] { Blättern(false); });
    taste(Qt::ALT | Qt::Key_Home, [this] { Gehen({}); });
    taste(Qt::CTRL | Qt::Key_F, [this] {
        Suchwort->setFocus(Qt::ShortcutFocusReason);
        Suchwort->selectAll();
    });
    taste(Qt::Key_F3, [this] { Weitersuchen(+1); });
    taste(Qt::SHIFT | Qt::Key_F3, [this] { Weitersuchen(-1); });
    taste(
        Qt::SHIFT | Qt::Key_Return, [this] { Weitersuchen(-1); }, Suchwort);
    taste(
        Qt::Key_Down, [this] { DarunterWeiter(); }, Suchwort);
    for (const auto plus : {Qt::Key_Plus, Qt::Key_Equal})
        taste(Qt::CTRL | plus, [this] { SchriftÄndern(+1); });
    taste(Qt::CTRL | Qt::Key_Minus, [this] { SchriftÄndern(-1); });
    taste(Qt::CTRL | Qt::Key_0, [this] { SchriftÄndern(0); });
}

/// From the box into what stands below it.
void HandbuchForm::DarunterWeiter()
{
    if (Fundliste->isVisible())
        Fundliste->setFocus();
    else
        Inhalt->setFocus();
}

void HandbuchForm::InhaltFüllen()
{
    for (std::size_t seite = 0; seite < seiten.size(); ++seite) {
        const auto eintrag = [&](const Text &worte, std::size_t abschnitt) {
            auto *neuer = new QTreeWidgetItem({Anzeige(worte)});
            neuer->setToolTip(0, Anzeige(worte)); // where the column is too narrow
            neuer->setSizeHint(0, QSize(0, fontMetrics().height() * 3 / 2));
            neuer->setData(0, SeiteDesEintrags, static_cast<int>(seite));
            neuer->setData(0, AbschnittDesEintrags, static_cast<int>(abschnitt));
            return neuer;
        };
        // Each heading hangs below the last one of a higher rank.
        std::vector<std::pair<int, QTreeWidgetItem *>> darüber;
        QTreeWidgetItem *titel = eintrag(seiten[seite].Titel(), 0);
        Inhalt->addTopLevelItem(titel);
        const auto &überschriften = seiten[seite].Überschriften;
        for (std::size_t i = 1; i < überschriften.size(); ++i) {
            const int stufe = überschriften[i].Stufe;
            while (!darüber.empty() && darüber.back().first >= stufe)
                darüber.pop_back();
            QTreeWidgetItem *neuer = eintrag(überschriften[i].Worte, i);
            (darüber.empty() ? titel : darüber.back().second)->addChild(neuer);
            darüber.emplace_back(stufe, neuer);
        }
    }
}

void HandbuchForm::Aufschlagen(const Handbuchstelle &stelle)
{
    Suchwort->clear();
    const auto seite = std::ranges::find(seiten, stelle.Seite, &Handbuchseite::Name);
    if (seite == seiten.end())
        Gehen({});
    else
        Gehen({static_cast<int>(seite - seiten.begin()), seite->Abschnitt(stelle.Anker)});
}

/// A window that is blocked stays so until it is shown anew.
void HandbuchForm::NachVorn(QWidget *vonWo, QWidget *sperrend)
{
    if (vonWo != this)
        woher = vonWo;
    QWindow *eigenes = windowHandle();
    QWindow *davor = sperrend && sperrend != this ? sperrend->windowHandle() : nullptr;
    if (davor != eigenes->transientParent()) {
        const QRect platz = geometry();
        const bool warOffen = isVisible();
        hide();
        eigenes->setTransientParent(davor);
        if (warOffen)
            setGeometry(platz);
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

/// One goes back to where one came from, and not to whatever window lies below.
void HandbuchForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    if (isActiveWindow() && woher && woher->isVisible() && woher->isEnabled())
        woher->activateWindow();
}

/// To another place; what is shown now can be gone back to.
void HandbuchForm::Gehen(const Ort &ort)
{
    if (!verlauf.IstLeer()) {
        Ort &jetzt = verlauf.Jetzt();
        if (jetzt.IstFundstelle && ort.IstFundstelle) { // the hits of a search are one step
            jetzt = ort;
            Zeigen(ort);
            return;
        }
        Merken();
        if (!ort.IstFundstelle && jetzt.Seite == ort.Seite && jetzt.Abschnitt == ort.Abschnitt) {
            Zeigen(ort);
            return;
        }
    }
    verlauf.Gehen(ort);
    Zeigen(ort);
}

/// How far what is shown has been read.
void HandbuchForm::Merken()
{
    verlauf.Jetzt().Gelesen = Seite->Oberste();
    verlauf.Jetzt().Gewählt = Inhalt->currentItem()->data(0, AbschnittDesEintrags).toInt();
}

void HandbuchForm::Blättern(bool zurück)
{
    if (zurück ? !verlauf.KannZurück() : !verlauf.KannVor())
        return;
    Merken();
    if (zurück)
        verlauf.Zurück();
    else
        verlauf.Vor();
    Zeigen(verlauf.Jetzt());
}

void HandbuchForm::SeiteZeigen(int seite)
{
    if (std::exchange(gezeigteSeite, seite) == seite)
        return;
    const Handbuchseite &neue = seiten[static_cast<std::size_t>(seite)];
    Seite->Zeigen(neue);
    const QString titel = Anzeige(neue.Titel());
    Seite->setAccessibleName(titel);
    setWindowTitle(seite == 0 ? titel : "Handbuch: " + titel);
}

void HandbuchForm::Zeigen(const Ort &ort)
{
    SeiteZeigen(ort.Seite);
    if (ort.Gelesen)
        Seite->ZuTextstelle(*ort.Gelesen);
    else if (!ort.IstFundstelle)
        Seite->ZuAbschnitt(ort.Abschnitt);
    ImInhaltZeigen(ort.Gelesen ? ort.Gewählt : ort.Abschnitt);
    Zurück->setEnabled(verlauf.KannZurück());
    Vor->setEnabled(verlauf.KannVor());
}

/// The entry of this heading, or of the page, becomes the current one.
void HandbuchForm::ImInhaltZeigen(int abschnitt)
{
    QTreeWidgetItem *eintrag = Inhalt->topLevelItem(gezeigteSeite);
    for (QTreeWidgetItemIterator einer(eintrag); *einer; ++einer) {
        if ((*einer)->data(0, SeiteDesEintrags).toInt() != gezeigteSeite)
            break;
        if ((*einer)->data(0, AbschnittDesEintrags).toInt() == std::max(abschnitt, 0))
            eintrag = *einer;
    }
    Inhalt->setCurrentItem(eintrag);
    Inhalt->expandItem(Inhalt->topLevelItem(gezeigteSeite));
    Inhalt->scrollToItem(eintrag);
}

void HandbuchForm::VerweisFolgen(const Text &verweis)
{
    if (FührtHinaus(verweis)) {
        AdresseÖffnen(Anzeige(verweis));
        return;
    }
    const Text hier = seiten[static_cast<std::size_t>(gezeigteSeite)].Name;
    const Handbuchstelle stelle = StelleVon(verweis, hier);
    const auto seite = std::ranges::find(seiten, stelle.Seite, &Handbuchseite::Name);
    if (seite != seiten.end())
        Gehen({static_cast<int>(seite - seiten.begin()), seite->Abschnitt(stelle.Anker)});
}

void HandbuchForm::SuchwortGeändert()
{
    const std::vector<Text> worte = Suchworte(TextVon(Suchwort));
    if (!worte.empty() && absätze.empty())
        absätze = AbsätzeVon(seiten);
    fundstellen = Suchen(absätze, worte);
    {
        const QSignalBlocker still(Fundliste);
        Fundliste->clear();
        for (const Suchtreffer &fundstelle : fundstellen) {
            const Absatz &absatz = absätze[fundstelle.Absatz];
            const Handbuchseite &seite = seiten[static_cast<std::size_t>(absatz.Seite)];
            const QString titel = Anzeige(seite.Titel());
            const QString überschrift =
                absatz.Abschnitt > 0
                    ? Anzeige(seite.Überschriften[static_cast<std::size_t>(absatz.Abschnitt)].Worte)
                    : titel;
            QListWidgetItem *zeile = Fundzeile::Für(fundstelle, überschrift);
            if (überschrift != titel)
                zeile->setToolTip(titel + " › " + überschrift);
            Fundliste->addItem(zeile);
        }
    }
    const auto anzahl = fundstellen.size();
    Fundzahl->setText(anzahl == 0 ? "Nichts gefunden. Vielleicht mit weniger oder kürzeren Wörtern?"
                      : anzahl == 1 ? "1 Fundstelle"
                                    : QString("%1 Fundstellen").arg(anzahl));
    Fundliste->setVisible(anzahl > 0);
    Links->setCurrentIndex(worte.empty() ? 0 : 1);
    Seite->Markieren(worte);
}

void HandbuchForm::Weitersuchen(int richtung)
{
    const int anzahl = Fundliste->count();
    if (anzahl == 0) {
        Suchwort->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    const int jetzt = Fundliste->currentRow(); // -1 ahead of the first
    const int nächste = jetzt < 0 ? (richtung > 0 ? 0 : anzahl - 1) : jetzt + richtung;
    Fundliste->setCurrentRow((nächste + anzahl) % anzahl);
}

void HandbuchForm::FundstelleZeigen(int nummer)
{
    if (nummer < 0)
        return;
    const Suchtreffer &fundstelle = fundstellen[static_cast<std::size_t>(nummer)];
    const Absatz &absatz = absätze[fundstelle.Absatz];
    Ort ort{absatz.Seite, absatz.Abschnitt};
    ort.IstFundstelle = true;
    Gehen(ort);
    const auto zeichen = [&](std::size_t bytes) {
        return static_cast<int>(Anzeige(absatz.Worte.substr(0, bytes)).size());
    };
    const int ab = zeichen(fundstelle.Erster.Ab);
    Seite->Hinweisen(
        {absatz.Ort, ab, zeichen(fundstelle.Erster.Ab + fundstelle.Erster.Bytes) - ab});
    Fundzahl->setText(QString("Fundstelle %1 von %2").arg(nummer + 1).arg(fundstellen.size()));
}

void HandbuchForm::SchriftÄndern(int schritte)
{
    const auto jetzt = std::ranges::find(Schriftgrade, prozent) - Schriftgrade.begin();
    const auto letzter = static_cast<std::ptrdiff_t>(Schriftgrade.size()) - 1;
    prozent = schritte == 0 ? 100
                            : Schriftgrade[static_cast<std::size_t>(
                                  std::clamp<std::ptrdiff_t>(jetzt + schritte, 0, letzter))];
    Normal->setText(QString("%1 %").arg(prozent));
    Kleiner->setEnabled(prozent > Schriftgrade.front());
    Größer->setEnabled(prozent < Schriftgrade.back());
    Seite->Schriftgrad(prozent);
}

} // namespace altardienst
