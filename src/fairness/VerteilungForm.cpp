// "Verteilung"
#include "fairness/VerteilungForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Lesetafel.h"
#include "core/Umwandlung.h"
#include "fairness/Archiv.h"
#include "fairness/Archivwahl.h"
#include "fairness/Zelle.h"
#include "platform/Uhr.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>

#include <algorithm>

namespace altardienst {
namespace {

QComboBox *Werwahl()
{
    auto *wahl = Benannt(new QComboBox, "Wer");
    wahl->addItems({"Meßdiener", "Helfer"});
    return wahl;
}

} // namespace

VerteilungForm::VerteilungForm()
    : Wer(Werwahl()), Zeitraum(Archivwahl("Zeitraum")),
      Tafel(Lesetafel("Tafel", "Dienste je Person", {})),
      Bild(new Diagrammbild("Bild", "Wie viele wie oft dienen")),
      Hinweis(Beschriftung("Hinweis", "")), Kopieren(Knopf("Kopieren", "&Kopieren")),
      Drucken(Knopf("Drucken", "&Drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Verteilung");
    setWindowTitle("Verteilung der Dienste");
    Anordnen();
    Verbinden();
    Zählen();
}

void VerteilungForm::Anordnen()
{
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(Beschriftung("WerText", "&Wer", Wer));
    wahl->addWidget(Wer);
    wahl->addSpacing(16);
    wahl->addWidget(Beschriftung("ZeitraumText", "&Gezählt wird", Zeitraum));
    wahl->addWidget(Zeitraum);
    wahl->addStretch();
    Hinweis->setWordWrap(true);
    Bild->setMinimumHeight(120);
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(wahl);
    spalte->addWidget(Tafel, 3);
    spalte->addWidget(Bild, 2);
    spalte->addWidget(Hinweis);
    spalte->addLayout(Knopfreihe({Ende}, {Kopieren, Drucken}));
    resize(QSize(960, 640).boundedTo(screen()->availableSize() - Fensterrahmen));
    Tafel->setFocus();
}

void VerteilungForm::Verbinden()
{
    for (QComboBox *wahl : {Wer, Zeitraum})
        connect(wahl, &QComboBox::currentIndexChanged, this, Offen([this] { Zählen(); }));
    connect(Kopieren, &QPushButton::clicked, this, Abgefangen([this] {
                QApplication::clipboard()->setText(
                    Anzeige(VerteilungAlsTabelle(GemeinsameTabellen(), Art(), verteilung)));
                Sagen("Die Tabelle liegt in der Zwischenablage.");
            }));
    connect(Drucken, &QPushButton::clicked, this,
            Offen([this] { VerteilungDrucken(GemeinsameTabellen(), Art(), verteilung); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void VerteilungForm::Sagen(const Text &text)
{
    Setzen(Hinweis, text);
    Hinweis->setVisible(!text.empty());
}

Planplatz::Art VerteilungForm::Art() const
{
    return Wer->currentIndex() == 0 ? Planplatz::Art::Diener : Planplatz::Art::Helfer;
}

void VerteilungForm::Zählen()
{
    const Archivzählung archiv = ArchivVorDemPlan(Zeitraum);
    verteilung = DiensteVerteilt(GemeinsameTabellen(), Art(),
                                 Art() == Planplatz::Art::Diener ? archiv.Diener : archiv.Helfer,
                                 Uhr.Heute());
    Sagen(UnlesbaresText(archiv.UnlesbareDateien));
    TafelFüllen();
    BildZeichnen();
}

void VerteilungForm::TafelFüllen()
{
    QStringList köpfe;
    for (const Text &kopf : Verteilungsköpfe(Art()))
        köpfe << Anzeige(kopf);
    Tafel->setSortingEnabled(false);
    Tafel->clear();
    Tafel->setColumnCount(static_cast<int>(köpfe.size()));
    Tafel->setHorizontalHeaderLabels(köpfe);
    Tafel->setRowCount(static_cast<int>(verteilung.size()));
    for (int zeile = 0; zeile < Tafel->rowCount(); ++zeile) {
        const Dienstverteilung &person = verteilung[static_cast<std::size_t>(zeile)];
        const std::vector<Text> texte = Verteilungszeile(GemeinsameTabellen(), Art(), person);
        const std::vector<double> werte = Verteilungswerte(Art(), person);
        for (int spalte = 0; spalte < Tafel->columnCount(); ++spalte) {
            const auto k = static_cast<std::size_t>(spalte);
            Tafel->setItem(zeile, spalte,
                           spalte == 0 ? Textzelle(texte[k])
                                       : new Zahlzelle(werte[k], Anzeige(texte[k])));
        }
    }
    Tafel->setSortingEnabled(true);
    Tafel->sortByColumn(0, Qt::AscendingOrder);
    SpaltenEinpassen(Tafel); // with room for the arrow of the order
}

/// How many people serve not at all, once, twice and so on.
void VerteilungForm::BildZeichnen()
{
    int meiste = 0;
    for (const Dienstverteilung &person : verteilung)
        meiste = std::max(meiste, person.Dienste);
    std::vector<int> anzahl(static_cast<std::size_t>(meiste) + 1);
    std::vector<Text> klassen;
    klassen.reserve(anzahl.size());
    for (const Dienstverteilung &person : verteilung)
        ++anzahl[static_cast<std::size_t>(person.Dienste)];
    for (int dienste = 0; dienste <= meiste; ++dienste)
        klassen.push_back(ZahlText(dienste));
    Bild->BalkenZeigen({"Dienste im Plan", klassen}, "Personen", anzahl);
}

} // namespace altardienst
