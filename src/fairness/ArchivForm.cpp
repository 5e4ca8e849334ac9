// "Archiv"
#include "fairness/ArchivForm.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Lesetafel.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "fairness/Zelle.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace altardienst {
namespace {

Text ZeitraumText(const Archivzeitraum &zeitraum)
{
    return KurzesDatum(zeitraum.Von) + " bis " + KurzesDatum(zeitraum.Bis);
}

Text Befundsatz(const Archivinhalt &inhalt)
{
    const int dienste = static_cast<int>(inhalt.Dienste.size());
    Text satz = dienste == 1 ? Text("Ein Dienst.") : ZahlText(dienste) + " Dienste.";
    if (inhalt.Unlesbar > 0)
        satz += inhalt.Unlesbar == 1
                    ? Text(" Eine Zeile der Datei ist kein Dienst.")
                    : " " + ZahlText(inhalt.Unlesbar) + " Zeilen der Datei sind keine Dienste.";
    return satz;
}

} // namespace

ArchivForm::ArchivForm()
    : Zeiträume(Lesetafel("Zeiträume", "Zeiträume im Archiv", {"Zeitraum"})),
      Dienste(Lesetafel("Dienste", "Dienste des gewählten Zeitraums",
                        {"Termin", "Messe", "Name", "Dienst"})),
      Hinweis(Beschriftung("Hinweis", "")), Löschen(Knopf("Löschen", "&Löschen")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Archiv");
    setWindowTitle("Archiv");
    Anordnen();
    Verbinden();
    Auflisten();
}

void ArchivForm::Anordnen()
{
    Hinweis->setWordWrap(true);
    const QString breiteste = " 28.12.2026 bis 28.12.2026 ";
    Zeiträume->setMinimumWidth(Zeiträume->fontMetrics().horizontalAdvance(breiteste) +
                               style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
                               2 * Zeiträume->frameWidth());
    SpaltenEinpassen(Dienste);
    auto *nebeneinander = new QHBoxLayout;
    nebeneinander->addWidget(Zeiträume, 1);
    nebeneinander->addWidget(Dienste, 3);
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(nebeneinander, 1);
    spalte->addWidget(Hinweis);
    spalte->addLayout(Knopfreihe({Ende}, {Löschen}));
    resize(QSize(860, 520).boundedTo(screen()->availableSize() - Fensterrahmen));
    Zeiträume->setFocus();
}

void ArchivForm::Verbinden()
{
    connect(Zeiträume, &QTableWidget::itemSelectionChanged, this,
            Offen([this] { InhaltZeigen(); }));
    connect(Löschen, &QPushButton::clicked, this, Offen([this] { ZeitraumLöschen(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

int ArchivForm::Zeile() const
{
    const auto gewählte = Zeiträume->selectionModel()->selectedRows();
    return gewählte.isEmpty() ? -1 : gewählte.front().row();
}

void ArchivForm::Auflisten()
{
    zeiträume = ArchivierteZeiträume();
    std::ranges::reverse(zeiträume);
    Zeiträume->setRowCount(static_cast<int>(zeiträume.size()));
    for (int zeile = 0; zeile < Zeiträume->rowCount(); ++zeile)
        Zeiträume->setItem(zeile, 0,
                           Textzelle(ZeitraumText(zeiträume[static_cast<std::size_t>(zeile)])));
    if (!zeiträume.empty())
        Zeiträume->selectRow(0);
    InhaltZeigen();
}

void ArchivForm::InhaltZeigen()
{
    Dienste->setRowCount(0);
    Löschen->setEnabled(Zeile() >= 0);
    if (Zeile() < 0)
        return Setzen(Hinweis,
                      "Das Archiv ist leer. Ein Plan kommt hinein, bevor (1) ihn wegwirft oder er "
                      "gedruckt wird.");
    Archivinhalt inhalt;
    try {
        inhalt = ArchivLesen(zeiträume[static_cast<std::size_t>(Zeile())]);
    } catch (const Laufzeitfehler &fehler) {
        return Setzen(Hinweis, Text("Die Datei ist nicht lesbar: ") + fehler.what() + ".");
    }
    Dienste->setRowCount(static_cast<int>(inhalt.Dienste.size()));
    for (int zeile = 0; zeile < Dienste->rowCount(); ++zeile) {
        const Archivdienst &dienst = inhalt.Dienste[static_cast<std::size_t>(zeile)];
        Dienste->setItem(zeile, 0, Textzelle(Terminzeile(dienst.Tag, dienst.Uhrzeit)));
        Dienste->setItem(zeile, 1, Textzelle(dienst.Messeart));
        Dienste->setItem(zeile, 2, Textzelle(Personenzeile(dienst.Vorname, dienst.Nachname)));
        Dienste->setItem(zeile, 3, Textzelle(dienst.Dienst));
    }
    SpaltenEinpassen(Dienste);
    Setzen(Hinweis, Befundsatz(inhalt));
}

void ArchivForm::ZeitraumLöschen()
{
    if (Zeile() < 0)
        return;
    const Archivzeitraum zeitraum = zeiträume[static_cast<std::size_t>(Zeile())];
    if (!Meldungen.FragenVorVerlust("Die Dienste vom " + ZeitraumText(zeitraum) +
                                        " aus dem Archiv löschen? Sie zählen dann nicht mehr mit.",
                                    "Archiv löschen"))
        return;
    try {
        ArchivLöschen(zeitraum);
        Mitteilen("aus dem Archiv gelöscht: " + ZeitraumText(zeitraum));
    } catch (const Laufzeitfehler &fehler) {
        return Setzen(Hinweis, Text("Die Datei lässt sich nicht löschen: ") + fehler.what() + ".");
    }
    Auflisten();
}

} // namespace altardienst
