// "Einlesen"
#include "exchange/EinlesenForm.h"

#include "application/Dateiwahl.h"
#include "application/Mitteilung.h"
#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Lesetafel.h"
#include "exchange/Einlesetafeln.h"
#include "exchange/Einlesetexte.h"
#include "fairness/Zelle.h"
#include "history/Rückgängig.h"
#include "history/Rücknahme.h"
#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace altardienst {
namespace {

QCheckBox *Kästchen(const char *name, const char *aufschrift)
{
    return Benannt(new QCheckBox(QString::fromUtf8(aufschrift)), name);
}

QComboBox *Werwahl()
{
    auto *wahl = Benannt(new QComboBox, "Wer");
    wahl->addItems({"Meßdiener", "Helfer"});
    return wahl;
}

} // namespace

EinlesenForm::EinlesenForm()
    : Wer(Werwahl()), Datei(Knopf("Datei", "&Datei wählen...")), Lage(Beschriftung("Lage", "")),
      Spalten(Lesetafel("Spalten", "Spalten der Datei", {"Spalte", "Beispiel", "wird zu"})),
      LeeresLöscht(Kästchen("LeeresLöscht", "&Leere Felder löschen, was im Programm steht")),
      GruppenAnlegen(Kästchen("GruppenAnlegen", "&Neue Gruppen anlegen")),
      Zeilen(Lesetafel("Zeilen", "Was aus den Zeilen wird", {"", "Was", "Name", "Inhalt"})),
      Gleiche(Kästchen("Gleiche", "auch &gleiche zeigen")), Zahlen(Beschriftung("Zahlen", "")),
      Übernehmen(Knopf("Übernehmen", "Ü&bernehmen")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Einlesen");
    setWindowTitle("Einlesen");
    Anordnen();
    Verbinden();
    SchritteZurückIn(this, {[] { return QString(); }, [] {}, Abgefangen([this] { Prüfen(); })});
    Setzen(Lage, Einlesesatz);
    ZahlenZeigen();
}

void EinlesenForm::Anordnen()
{
    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(16);
    mitte->addLayout(Dateiteil(), 2);
    mitte->addLayout(Vorschauteil(), 3);
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addWidget(Lage);
    spalte->addLayout(mitte, 1);
    spalte->addLayout(Knopfreihe({Ende}, {Übernehmen}));
    Lage->setWordWrap(true);
    for (QTableWidget *tafel : {Spalten, Zeilen})
        SpaltenEinpassen(tafel);
    resize(QSize(1100, 680).boundedTo(screen()->availableSize() - Fensterrahmen));
    Datei->setFocus();
}

QLayout *EinlesenForm::Dateiteil()
{
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(Beschriftung("WerText", "&Wer", Wer));
    wahl->addWidget(Wer);
    wahl->addStretch();
    wahl->addWidget(Datei);
    Spalten->setSelectionMode(QAbstractItemView::NoSelection);
    Spalten->setMinimumWidth(200);
    auto *teil = new QVBoxLayout;
    teil->addLayout(wahl);
    teil->addWidget(Spalten, 1);
    teil->addWidget(LeeresLöscht);
    teil->addWidget(GruppenAnlegen);
    return teil;
}

QLayout *EinlesenForm::Vorschauteil()
{
    Zahlen->setWordWrap(true);
    Zeilen->setMinimumWidth(240);
    auto *teil = new QVBoxLayout;
    teil->addWidget(Gleiche, 0, Qt::AlignRight);
    teil->addWidget(Zeilen, 1);
    teil->addWidget(Zahlen);
    return teil;
}

void EinlesenForm::Verbinden()
{
    connect(Wer, &QComboBox::currentIndexChanged, this,
            Offen([this] { UnterWartezeiger([this] { Zuordnen(); }); }));
    connect(Datei, &QPushButton::clicked, this, Offen([this] { DateiWählen(); }));
    for (QCheckBox *kästchen : {LeeresLöscht, GruppenAnlegen})
        connect(kästchen, &QCheckBox::toggled, this, Offen([this] { Prüfen(); }));
    connect(Gleiche, &QCheckBox::toggled, this, Offen([this] { ZeilenZeigen(); }));
    connect(Zeilen, &QTableWidget::itemChanged, this,
            Offen([this](const QTableWidgetItem *zelle) { Angekreuzt(zelle); }));
    connect(Übernehmen, &QPushButton::clicked, this, Offen([this] { LeuteÜbernehmen(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

Personenart EinlesenForm::Art() const
{
    return Wer->currentIndex() == 0 ? Personenart::Diener : Personenart::Helfer;
}

void EinlesenForm::DateiWählen()
{
    const auto pfad = Dateiwahl.Öffnen(
        this, {"Tabelle einlesen", "", "Tabellen als Text", {"csv", "txt", "tsv"}});
    if (pfad)
        UnterWartezeiger([&] { Lesen(*pfad); });
}

void EinlesenForm::Lesen(const std::filesystem::path &pfad)
{
    dateiname = TextVon(pfad.filename());
    blatt = {};
    try {
        if (Laufwerke.Größe(pfad) > GrößteTabelle)
            blatt.Mangel = ZuGroßeTabelle();
        else
            blatt = TabelleLesen(Laufwerke.Lesen(pfad));
    } catch (const Laufzeitfehler &fehler) {
        blatt.Mangel = Text("Die Datei ist nicht lesbar: ") + fehler.what() + ".";
    }
    Zuordnen();
}

void EinlesenForm::Zuordnen()
{
    auftrag = {.Art = Art()};
    kopf = Kopfzeile(blatt.Zeilen, Art());
    auftrag.KopfFehlt = kopf < 0;
    auftrag.Zeilen.assign(blatt.Zeilen.begin() + (kopf + 1), blatt.Zeilen.end());
    auftrag.Nummern.assign(blatt.Nummern.begin() + (kopf + 1), blatt.Nummern.end());
    vonHand.clear();
    std::size_t breite = 0;
    for (const auto &zeile : blatt.Zeilen)
        breite = std::max(breite, zeile.size());
    if (kopf >= 0)
        auftrag.Spalten = ZuordnungNach(blatt.Zeilen[static_cast<std::size_t>(kopf)], Art());
    auftrag.Spalten.resize(breite, KeineSpalte);
    GruppenAnlegen->setEnabled(Art() == Personenart::Diener);
    SpaltenZeigen();
    Prüfen();
}

void EinlesenForm::SpaltenZeigen()
{
    Spalten->setRowCount(0);
    Spalten->setRowCount(static_cast<int>(auftrag.Spalten.size()));
    for (int k = 0; k < Spalten->rowCount(); ++k) {
        const auto spalte = static_cast<std::size_t>(k);
        Spalten->setItem(k, 0, Textzelle(Spaltenname(blatt, kopf, spalte)));
        Spalten->setItem(k, 1, Textzelle(Beispiel(auftrag.Zeilen, spalte)));
        QComboBox *wahl = Bedeutungswahl(Art(), k, auftrag.Spalten[spalte]);
        connect(wahl, &QComboBox::currentIndexChanged, this,
                Offen([this, k] { BedeutungGeändert(k); }));
        Spalten->setCellWidget(k, 2, wahl);
    }
    SpaltenEinpassen(Spalten);
}

/// What two columns cannot both mean goes from the other one.
void EinlesenForm::BedeutungGeändert(int spalte)
{
    const auto wahl = [this](int k) {
        return static_cast<QComboBox *>(Spalten->cellWidget(k, 2)); // set by us
    };
    const int bedeutung = wahl(spalte)->currentData().toInt();
    for (int k = 0; k < Spalten->rowCount(); ++k) {
        int &andere = auftrag.Spalten[static_cast<std::size_t>(k)];
        if (k == spalte) {
            andere = bedeutung;
        } else if (SchließenSichAus(andere, bedeutung)) {
            andere = KeineSpalte;
            const QSignalBlocker still(wahl(k));
            wahl(k)->setCurrentIndex(0);
        }
    }
    Prüfen();
}

void EinlesenForm::Prüfen()
{
    UnterWartezeiger([this] {
        auftrag.LeeresLöscht = LeeresLöscht->isChecked();
        auftrag.GruppenAnlegen = GruppenAnlegen->isChecked() && GruppenAnlegen->isEnabled();
        vorschau = EinlesenPrüfen(auftrag);
        gewählt.clear();
        gewählt.reserve(vorschau.size());
        for (const Vorschauzeile &zeile : vorschau)
            gewählt.push_back(IstGewählt(zeile));
        if (!dateiname.empty())
            Setzen(Lage, Lagesatz(dateiname, blatt, auftrag));
        ZeilenZeigen();
    });
}

/// What is sure is ticked. Whom somebody has left out stays out; what somebody has ticked stays so
/// as long as the row does the same.
bool EinlesenForm::IstGewählt(const Vorschauzeile &zeile) const
{
    const bool kannGewählt = !zeile.Unmöglich && !zeile.Felder.empty();
    if (const auto hand = vonHand.find(zeile.Zeile); kannGewählt && hand != vonHand.end()) {
        const auto &[nehmen, wovon] = hand->second;
        if (nehmen ? wovon == zeile
                   : wovon.Vorname == zeile.Vorname && wovon.Nachname == zeile.Nachname)
            return nehmen;
    }
    return zeile.Was == Vorschauzeile::Stand::Neu || zeile.Was == Vorschauzeile::Stand::Geändert;
}

void EinlesenForm::ZeilenZeigen()
{
    {
        const QSignalBlocker still(Zeilen);
        Zeilen->setRowCount(0);
        std::vector<std::size_t> gezeigte;
        gezeigte.reserve(vorschau.size());
        for (std::size_t k = 0; k < vorschau.size(); ++k)
            if (Gleiche->isChecked() || vorschau[k].Was != Vorschauzeile::Stand::Gleich)
                gezeigte.push_back(k);
        Zeilen->setRowCount(static_cast<int>(gezeigte.size()));
        for (int zeile = 0; zeile < Zeilen->rowCount(); ++zeile) {
            const std::size_t nr = gezeigte[static_cast<std::size_t>(zeile)];
            VorschauzeileZeigen(Zeilen, zeile, Art(), vorschau[nr], gewählt[nr]);
            Zeilen->item(zeile, SNimm)->setData(Qt::UserRole, static_cast<int>(nr));
        }
    }
    SpaltenEinpassen(Zeilen);
    ZahlenZeigen();
}

void EinlesenForm::Angekreuzt(const QTableWidgetItem *zelle)
{
    if (zelle->column() != SNimm)
        return;
    const auto nr = static_cast<std::size_t>(zelle->data(Qt::UserRole).toInt());
    gewählt[nr] = zelle->checkState() == Qt::Checked;
    vonHand.insert_or_assign(vorschau[nr].Zeile, Handwahl{gewählt[nr], vorschau[nr]});
    ZahlenZeigen();
}

std::vector<Vorschauzeile> EinlesenForm::Gewählte() const
{
    std::vector<Vorschauzeile> gewählte;
    gewählte.reserve(vorschau.size());
    for (std::size_t k = 0; k < vorschau.size(); ++k)
        if (gewählt[k])
            gewählte.push_back(vorschau[k]);
    return gewählte;
}

void EinlesenForm::ZahlenZeigen()
{
    const auto gewählte = Gewählte();
    const Text keinPlatz = KeinPlatzFür(auftrag, gewählte);
    Setzen(Zahlen, vorschau.empty() ? Text() : Zahlensatz(vorschau, gewählte.size(), keinPlatz));
    Übernehmen->setEnabled(!gewählte.empty() && keinPlatz.empty());
}

void EinlesenForm::LeuteÜbernehmen()
{
    const auto gewählte = Gewählte();
    if (gewählte.empty() || !KeinPlatzFür(auftrag, gewählte).empty())
        return;
    Eingelesen ergebnis;
    Schritt(Wer->currentText().toStdString() + " einlesen",
            [&] { ergebnis = Einlesen(auftrag, gewählte); });
    const Text getan = Wer->currentText().toStdString() + " eingelesen: " + Ergebnistext(ergebnis);
    Prüfen();
    Setzen(Lage, getan + ". Strg+Z nimmt alles zurück.");
    Mitteilen(getan);
    Ende->setFocus();
}

} // namespace altardienst
