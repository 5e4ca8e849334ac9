// "Frühere Stände": the list of earlier states, what differs from now, and bringing one back.
#include "history/StändeForm.h"

#include "application/Nebenfenster.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Lesetafel.h"
#include "core/Umwandlung.h"
#include "history/Netz.h"
#include "history/Rückgängig.h"
#include "history/Unterschiede.h"
#include "platform/Meldungen.h"

#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

enum Spaltennummer { StandSpalte, Diener, Helferspalte, Messen, Zeitraum, Seither, Spaltenzahl };

QTableWidgetItem *Zelle(const Text &text, bool zahl = false)
{
    auto *zelle = new QTableWidgetItem(Anzeige(text));
    zelle->setToolTip(Anzeige(text));
    if (zahl)
        zelle->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return zelle;
}

Text ZeitText(const Stand &stand)
{
    Text text = KurzesDatum(stand.Zeit.Tag) + ", " + LangeZeit(ZeitAus(stand.Zeit.Sekunde));
    if (stand.Zeit.Nummer > 1)
        text += " (" + ZahlText(stand.Zeit.Nummer) + ")";
    return text;
}

QTableWidget *Ständeliste()
{
    auto *liste = Benannt(new QTableWidget(0, Spaltenzahl), "Liste");
    liste->setHorizontalHeaderLabels(
        {"Stand", "Meßdiener", "Helfer", "Messen", "Zeitraum", "Seither"});
    liste->setAccessibleName("Frühere Stände");
    LesetafelEinrichten(liste);
    liste->setShowGrid(true);
    return liste;
}

} // namespace

Text StandText(const Stand &stand)
{
    switch (stand.Art) {
    case Standart::Gewöhnlich:
        break;
    case Standart::Notfall:
    case Standart::NotfallErledigt:
        return ZeitText(stand) + " Notfall";
    case Standart::VorAbbruch:
        return ZeitText(stand) + " vor dem Abbruch";
    case Standart::OhneKomma:
        return ZeitText(stand) + " ohne Komma";
    }
    return ZeitText(stand);
}

StändeForm::StändeForm(std::function<void()> zurückgeholt)
    : Liste(Ständeliste()), Ansicht(Benannt(new QPlainTextEdit, "Ansicht")),
      Hinweis(Beschriftung("Hinweis", "")), Ansehen(Knopf("Ansehen", "&Ansehen")),
      Zurückholen(Knopf("Zurückholen", "&Zurückholen")), Ende(Knopf("Ende", "Ende")),
      zurückgeholt(std::move(zurückgeholt)), stände(AlleStände()), jetzt(TabellenAufnehmen())
{
    Benannt(this, "Stände");
    setWindowTitle("Frühere Stände");
    std::ranges::reverse(stände);
    Anordnen();
    Verbinden();
    Gewählt();
}

void StändeForm::Anordnen()
{
    Liste->setRowCount(static_cast<int>(stände.size()));
    for (int zeile = 0; zeile < Liste->rowCount(); ++zeile)
        Liste->setItem(zeile, StandSpalte,
                       Zelle(StandText(stände[static_cast<std::size_t>(zeile)])));
    Liste->resizeColumnToContents(StandSpalte);
    const int ziffer = Liste->fontMetrics().horizontalAdvance('0'); // the rows are filled later
    SpaltenEinpassen(Liste, {Liste->columnWidth(StandSpalte), 10 * ziffer, 8 * ziffer, 8 * ziffer,
                             26 * ziffer, 60 * ziffer});
    Ansicht->setReadOnly(true);
    Ansicht->setTabChangesFocus(true);
    Ansicht->setAccessibleName("Was sich seit dem gewählten Stand geändert hat");
    Ansicht->hide();
    Hinweis->setWordWrap(true);
    if (stände.empty())
        Setzen(Hinweis, "Es gibt noch keine früheren Stände. Bei jedem Start hebt das Programm die "
                        "acht Dateien auf, wenn sie sich geändert haben.");

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addWidget(Liste, 3);
    spalte->addWidget(Ansicht, 2);
    spalte->addWidget(Hinweis);
    spalte->addLayout(Knopfreihe({Ende}, {Ansehen, Zurückholen}));
    resize(QSize(900, 520).boundedTo(screen()->availableSize() - Fensterrahmen));
    Liste->setFocus();
}

void StändeForm::Verbinden()
{
    connect(Liste, &QTableWidget::itemSelectionChanged, this, Offen([this] { Gewählt(); }));
    connect(Liste, &QTableWidget::itemActivated, this, Offen([this] { AnsichtZeigen(); }));
    connect(Ansehen, &QPushButton::clicked, this, Offen([this] { AnsichtZeigen(); }));
    connect(Zurückholen, &QPushButton::clicked, this, Offen([this] { StandHolen(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
    QTimer::singleShot(0, this, Nebenbei([this] { NächsteZeile(); }));
}

/// The last column has seldom room for it.
Text StändeForm::SeitherIn(int zeile) const
{
    const QTableWidgetItem *zelle = Liste->item(zeile, Seither);
    return zelle ? "Seither: " + zelle->text().toStdString() : "";
}

int StändeForm::Zeile() const
{
    const auto gewählte = Liste->selectionModel()->selectedRows();
    return gewählte.isEmpty() ? -1 : gewählte.front().row();
}

/// What is to be said of a state in one line: first that it is not whole.
Text StändeForm::Satz(const Gelesenes &gelesenes) const
{
    const Text befund = gelesenes.Befund.Satz();
    return befund.empty() ? UnterschiedeZwischen(gelesenes.Tabellen, jetzt).Kurz
                          : "unvollständig: " + befund;
}

/// A row that cannot be filled does not keep the later ones from it.
void StändeForm::NächsteZeile()
{
    if (gefüllt >= Liste->rowCount())
        return Vorwählen(ersatz);
    QTimer::singleShot(0, this, Nebenbei([this] { NächsteZeile(); }));
    const int zeile = gefüllt++;
    const Stand &stand = stände[static_cast<std::size_t>(zeile)];
    const Gelesenes gelesenes = InhaltLesen(InhaltVon(stand.Ort));
    const Standübersicht übersicht = ÜbersichtVon(gelesenes.Tabellen);
    Liste->setItem(zeile, Diener, Zelle(ZahlText(übersicht.Diener), true));
    Liste->setItem(zeile, Helferspalte, Zelle(ZahlText(übersicht.Messehelfer), true));
    Liste->setItem(zeile, Messen, Zelle(ZahlText(übersicht.Messen), true));
    Liste->setItem(zeile, Zeitraum, Zelle(übersicht.Zeitraum));
    Liste->setItem(zeile, Seither, Zelle(Satz(gelesenes)));
    if (zeile == Zeile())
        Setzen(Hinweis, SeitherIn(zeile));
    Beurteilen(zeile, gelesenes.Befund.Was == Ladebefund::Vollständig, übersicht.Leer());
}

/// Looks for the one that whoever comes here from a warning needs: the emergency that waits, else
/// the newest whose files load whole and are not those of an emptied parish.
void StändeForm::Beurteilen(int zeile, bool ganz, bool leer)
{
    if (const auto &notfall = Netz().Notfall) {
        if (stände[static_cast<std::size_t>(zeile)].Ort == notfall->Ort)
            return Vorwählen(zeile);
    } else if (ganz && !leer) {
        return Vorwählen(zeile);
    }
    if (ganz && ersatz < 0)
        ersatz = zeile;
}

void StändeForm::Vorwählen(int zeile)
{
    if (vorgewählt || zeile < 0)
        return;
    Liste->selectRow(zeile);
    Liste->setCurrentCell(zeile, StandSpalte);
}

void StändeForm::Gewählt()
{
    vorgewählt = vorgewählt || Zeile() >= 0;
    Ansehen->setEnabled(Zeile() >= 0);
    Zurückholen->setEnabled(Zeile() >= 0);
    if (Zeile() >= 0)
        Setzen(Hinweis, SeitherIn(Zeile()));
    if (Ansicht->isVisible())
        AnsichtZeigen();
}

void StändeForm::AnsichtZeigen()
{
    if (Zeile() < 0)
        return;
    const Stand &stand = stände[static_cast<std::size_t>(Zeile())];
    const Gelesenes gelesenes = InhaltLesen(InhaltVon(stand.Ort));
    const Unterschiede unterschiede = UnterschiedeZwischen(gelesenes.Tabellen, jetzt);
    Text text = StandText(stand) + "\n";
    if (const Text befund = gelesenes.Befund.Satz(); !befund.empty())
        text += befund + "\n";
    if (unterschiede.Zeilen.empty())
        text += "Nichts hat sich seither geändert.";
    for (const Text &zeile : unterschiede.Zeilen)
        text += zeile + "\n";
    Ansicht->setPlainText(Anzeige(text));
    Ansicht->show();
}

void StändeForm::StandHolen()
{
    if (Zeile() < 0)
        return;
    const Stand stand = stände[static_cast<std::size_t>(Zeile())];
    const Standinhalt inhalt = InhaltVon(stand.Ort);
    if (!inhalt.Vollzählig())
        return Setzen(Hinweis, "Dieser Stand lässt sich nicht zurückholen: " +
                                   InhaltLesen(inhalt).Befund.Satz());
    if (!Meldungen.FragenVorVerlust(
            (stand.Art == Standart::Gewöhnlich ? "Den Stand vom " : "Den Notfall vom ") +
                ZeitText(stand) +
                " zurückholen? Was das Programm jetzt weiß, wird vorher als eigener "
                "Stand aufgehoben.",
            "Zurückholen"))
        return;
    if (!Geholt(stand))
        return;
    close();
    zurückgeholt();
}

/// What stands typed in other windows belongs to what is kept; then they show what came back.
bool StändeForm::Geholt(const Stand &stand)
{
    bool geholt = false;
    HauptfensterHandelt([&] {
        try {
            Schritt("Stand vom " + StandText(stand) + " zurückholen",
                    [&] { StandZurückholen(stand); });
            geholt = true;
        } catch (const Laufzeitfehler &fehler) {
            Text satz = Text("Dieser Stand lässt sich nicht zurückholen: ") + fehler.what() + ".";
            if (Netz().SpeichernAbgebrochen)
                satz += " Die acht Dateien können aus zwei Speicherungen stammen; was das Programm "
                        "jetzt weiß, ist aufgehoben.";
            Setzen(Hinweis, satz);
        }
    });
    return geholt;
}

} // namespace altardienst
