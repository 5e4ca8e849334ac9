// "Tabellen"
#include "exchange/TabellenForm.h"

#include "application/Dateiwahl.h"
#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QSignalBlocker>

namespace altardienst {
namespace {

QComboBox *Listenwahl()
{
    auto *wahl = Benannt(new QComboBox, "Welche");
    for (const Tabellenart art : Tabellenarten)
        wahl->addItem(Anzeige(Tabellenname(art)));
    return wahl;
}

QString Schlüssel(Tabellenart art)
{
    return QString("Tabellen/Spalten%1").arg(static_cast<int>(art));
}

QStringList AlsListe(const std::vector<Text> &namen)
{
    QStringList liste;
    for (const Text &name : namen)
        liste << Anzeige(name);
    return liste;
}

Text Zeilentext(int zeilen)
{
    return zeilen == 1 ? Text("eine Zeile") : ZahlText(zeilen) + " Zeilen";
}

} // namespace

TabellenForm::TabellenForm()
    : Welche(Listenwahl()), Spalten(Benannt(new QListWidget, "Spalten")),
      Alle(Knopf("Alle", "&Alle")), Übliche(Knopf("Übliche", "&Übliche")),
      Lage(Beschriftung("Lage", "")), Speichern(Knopf("Speichern", "&Speichern...")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Tabellen");
    setWindowTitle("Tabellen");
    Anordnen();
    Verbinden();
    ListeZeigen();
}

void TabellenForm::Anordnen()
{
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(Beschriftung("WelcheText", "&Welche Liste", Welche));
    wahl->addWidget(Welche, 1);
    auto *knöpfe = new QVBoxLayout;
    knöpfe->addWidget(Alle);
    knöpfe->addWidget(Übliche);
    knöpfe->addStretch();
    auto *mitte = new QHBoxLayout;
    mitte->addWidget(Spalten, 1);
    mitte->addLayout(knöpfe);
    Lage->setWordWrap(true);
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(wahl);
    spalte->addWidget(Beschriftung("SpaltenText", "S&palten", Spalten));
    spalte->addLayout(mitte, 1);
    spalte->addWidget(Lage);
    spalte->addLayout(Knopfreihe({Ende}, {Speichern}));
    resize(QSize(560, 620).boundedTo(screen()->availableSize() - Fensterrahmen));
    Welche->setFocus();
}

void TabellenForm::Verbinden()
{
    connect(Welche, &QComboBox::currentIndexChanged, this, Offen([this] { ListeZeigen(); }));
    connect(Spalten, &QListWidget::itemChanged, this, Offen([this] {
                Merken();
                LageZeigen();
            }));
    connect(Alle, &QPushButton::clicked, this,
            Offen([this] { Ankreuzen(AlsListe(Tabellenspalten(Art()))); }));
    connect(Übliche, &QPushButton::clicked, this,
            Offen([this] { Ankreuzen(AlsListe(ÜblicheTabellenspalten(Art()))); }));
    connect(Speichern, &QPushButton::clicked, this, Offen([this] { TabelleSpeichern(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

Tabellenart TabellenForm::Art() const
{
    return Tabellenarten.at(static_cast<std::size_t>(Welche->currentIndex()));
}

void TabellenForm::ListeZeigen()
{
    {
        const QSignalBlocker still(Spalten);
        Spalten->clear();
        Spalten->addItems(AlsListe(Tabellenspalten(Art())));
    }
    const QStringList übliche = AlsListe(ÜblicheTabellenspalten(Art()));
    Ankreuzen(Gemerktes().value(Schlüssel(Art()), übliche).toStringList());
}

void TabellenForm::Ankreuzen(const QStringList &namen)
{
    {
        const QSignalBlocker still(Spalten);
        for (int k = 0; k < Spalten->count(); ++k) {
            QListWidgetItem *eine = Spalten->item(k);
            eine->setCheckState(namen.contains(eine->text()) ? Qt::Checked : Qt::Unchecked);
        }
    }
    Merken();
    LageZeigen();
}

std::vector<int> TabellenForm::Gewählte() const
{
    std::vector<int> gewählte;
    for (int k = 0; k < Spalten->count(); ++k)
        if (Spalten->item(k)->checkState() == Qt::Checked)
            gewählte.push_back(k);
    return gewählte;
}

void TabellenForm::Merken()
{
    QStringList namen;
    for (const int k : Gewählte())
        namen << Spalten->item(k)->text();
    Gemerktes().setValue(Schlüssel(Art()), namen);
}

void TabellenForm::LageZeigen()
{
    const std::size_t spalten = Gewählte().size();
    const int zeilen = Tabellenzeilen(Art());
    Speichern->setEnabled(spalten > 0 && zeilen > 0);
    if (zeilen == 0)
        return Setzen(Lage, "Diese Liste ist leer.");
    Setzen(Lage, spalten == 0
                     ? Text("Keine Spalte ist angekreuzt.")
                     : (zeilen == 1 ? Text("Eine Zeile") : Zeilentext(zeilen)) + ", " +
                           (spalten == 1 ? Text("eine Spalte")
                                         : ZahlText(static_cast<int>(spalten)) + " Spalten") +
                           ". Geben Sie nur weiter, was der Empfänger braucht.");
}

void TabellenForm::TabelleSpeichern()
{
    const auto pfad = Dateiwahl.Speichern(
        this, {"Tabelle speichern", Tabellendateiname(Art()), "Tabelle (CSV)", {"csv"}});
    if (!pfad)
        return;
    try {
        UnterWartezeiger([&] { GanzSchreiben(*pfad, Tabellendatei(Art(), Gewählte())); });
    } catch (const Laufzeitfehler &fehler) {
        return Setzen(Lage, Text("Nicht gespeichert: ") + fehler.what() + ".");
    }
    const Text getan =
        TextVon(pfad->filename()) + " gespeichert, " + Zeilentext(Tabellenzeilen(Art()));
    Setzen(Lage, getan + ".");
    Mitteilen(getan);
}

} // namespace altardienst
