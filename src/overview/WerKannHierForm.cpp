// "Wer kann hier?"
#include "overview/WerKannHierForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Lesetafel.h"
#include "core/Messenname.h"
#include "core/Suchwörter.h"
#include "overview/Platzschreiben.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace altardienst {
namespace {

QTableView *Kandidatentafel(QAbstractItemModel *modell)
{
    auto *tafel = Benannt(new QTableView, "Kandidaten");
    tafel->setModel(modell);
    tafel->setAccessibleName("Wer hier stehen könnte");
    LesetafelEinrichten(tafel);
    QHeaderView *kopf = tafel->horizontalHeader();
    kopf->setSortIndicatorClearable(true);
    kopf->setSortIndicator(-1, Qt::AscendingOrder);
    tafel->setSortingEnabled(true);
    return tafel;
}

QString Name(const Platzkandidat &wer)
{
    return Anzeige(VollerName(wer.Vorname, wer.Nachname));
}

Text Ortsangabe(const Planplatz &platz)
{
    const Text aufschrift = Platzaufschrift(platz);
    const Text dienst = DienstAm(Messe, platz);
    return Messenüberschrift(platz.Messe) + ": " + aufschrift +
           (aufschrift.starts_with(dienst) ? "" : ", " + dienst);
}

} // namespace

WerKannHierForm::WerKannHierForm(QWidget *über, Planplatz platz)
    : QDialog(über), Platzname(new Kurztext("Platzname")), Jetzt(new Kurztext("Jetzt")),
      Namenfilter(Benannt(new QLineEdit, "Namenfilter")), Gründe(Beschriftung("Gründe", "")),
      Einsetzen(Knopf("Einsetzen", "&Einsetzen")), MitPartner(Knopf("MitPartner", "mit &Partner")),
      Leeren(Knopf("Leeren", "&Leeren")), Schließen(Knopf("Schließen", "&Schließen")), platz(platz),
      modell(new Kandidatenmodell(this))
{
    Kandidaten = Kandidatentafel(modell);
    Benannt(this, "WerKannHier");
    setWindowTitle("Wer kann hier?");
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    Anordnen();
    Verbinden();
    NeuLesen();
    SpaltenEinpassen(Kandidaten);
}

void WerKannHierForm::Anordnen()
{
    QFont fett = Platzname->font();
    fett.setBold(true);
    Platzname->setFont(fett);
    Namenfilter->setAccessibleName("Namen filtern");
    Namenfilter->setPlaceholderText("Filtern: Name, Gruppe oder Wunschpartner");
    Namenfilter->setClearButtonEnabled(true);
    Gründe->setWordWrap(true);
    Gründe->setTextFormat(Qt::PlainText);
    Gründe->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    constexpr int Zeilen = 3;
    Gründe->setMinimumHeight(Zeilen * fontMetrics().lineSpacing());
    Einsetzen->setDefault(true);
    const bool diener = platz.Was == Planplatz::Art::Diener;
    for (const int spalte :
         {Kandidatenmodell::Gruppe, Kandidatenmodell::Häufigkeit, Kandidatenmodell::Partner})
        Kandidaten->setColumnHidden(spalte, !diener);
    MitPartner->setVisible(diener);
    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(Platzname);
    spalte->addWidget(Jetzt);
    spalte->addWidget(Namenfilter);
    spalte->addWidget(Kandidaten, 1);
    spalte->addWidget(Gründe);
    spalte->addLayout(Knopfreihe({Schließen}, {Einsetzen, MitPartner, Leeren}));
    resize(QSize(880, 560).boundedTo(screen()->availableSize() - Fensterrahmen));
    Namenfilter->setFocus();
}

void WerKannHierForm::Verbinden()
{
    Namenfilter->installEventFilter(this);
    Kandidaten->installEventFilter(this);
    connect(Namenfilter, &QLineEdit::textChanged, this, Abgefangen([this] { Filtern(); }));
    connect(Kandidaten->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            Abgefangen([this] { Markiert(); }));
    connect(modell, &QAbstractItemModel::modelReset, this, Abgefangen([this] { ZeileWählen(0); }));
    connect(Kandidaten, &QTableView::doubleClicked, this, Offen([this] { Besetzen(false); }));
    connect(Einsetzen, &QPushButton::clicked, this, Offen([this] { Besetzen(false); }));
    connect(MitPartner, &QPushButton::clicked, this, Offen([this] { Besetzen(true); }));
    connect(Leeren, &QPushButton::clicked, this, Offen([this] { PlatzLeeren(); }));
    connect(Schließen, &QPushButton::clicked, this, [this] { close(); });
}

void WerKannHierForm::NeuLesen()
{
    prüfung.Neu();
    const auto name = NameAm(Messe, platz);
    Setzen(Platzname, Ortsangabe(platz));
    Setzen(Jetzt, name.IstFrei()
                      ? Text("Der Platz ist frei.")
                      : "Jetzt steht hier " + VollerName(name.Vorname, name.Nachname) + ".");
    Leeren->setEnabled(!name.IstFrei());
    modell->Zeigen(WerKannHier(prüfung, platz));
}

void WerKannHierForm::Filtern()
{
    const int nr = Zeile() < 0 ? -1 : modell->In(Zeile()).Nr;
    modell->Filtern(Suchwörter(Namenfilter->text().toStdString()));
    if (const int zeile = modell->ZeileVon(nr); zeile >= 0 && Namenfilter->text().isEmpty())
        ZeileWählen(zeile);
}

int WerKannHierForm::Zeile() const
{
    return Kandidaten->currentIndex().isValid() ? Kandidaten->currentIndex().row() : -1;
}

void WerKannHierForm::ZeileWählen(int zeile)
{
    if (modell->rowCount() > 0)
        Kandidaten->setCurrentIndex(
            modell->index(std::clamp(zeile, 0, modell->rowCount() - 1), Kandidatenmodell::Name));
    Markiert();
}

void WerKannHierForm::Markiert()
{
    const bool einer = Zeile() >= 0;
    Einsetzen->setEnabled(einer);
    MitPartner->setEnabled(einer && modell->In(Zeile()).Partnerplatz > 0);
    if (!einer)
        return Gründe->setText(modell->rowCount() == 0 && Namenfilter->text().isEmpty()
                                   ? "Es gibt niemanden, der hier stehen könnte."
                                   : "Das trifft auf niemanden zu.");
    const QStringList gründe = modell->Gründe(Zeile());
    Gründe->setText(gründe.isEmpty() ? "Nichts spricht gegen " + Name(modell->In(Zeile())) + "."
                                     : gründe.join(' '));
}

void WerKannHierForm::Besetzen(bool mitPartner)
{
    if (Zeile() < 0)
        return;
    const Platzkandidat &wer = modell->In(Zeile());
    std::vector<Platzwechsel> wechsel{{platz, wer.Vorname, wer.Nachname}};
    if (mitPartner && wer.Partnerplatz > 0)
        wechsel.push_back({Dienerplatznr(platz.Messe, wer.Partnerplatz),
                           Meßdiener.Vorname[wer.Partner], Meßdiener.Nachname[wer.Partner]});
    PlätzeSchreiben(wechsel);
    accept();
}

/// The window stays open: most empty a place to put somebody else in.
void WerKannHierForm::PlatzLeeren()
{
    PlätzeSchreiben({{platz}});
    NeuLesen();
    Namenfilter->setFocus();
}

/// The rows can be walked from the filter, too.
bool WerKannHierForm::eventFilter(QObject *wer, QEvent *ereignis)
{
    if (ereignis->type() != QEvent::KeyPress)
        return QDialog::eventFilter(wer, ereignis);
    switch (static_cast<QKeyEvent *>(ereignis)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Einsetzen->click();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        if (wer != Namenfilter)
            return false;
        QCoreApplication::sendEvent(Kandidaten, ereignis);
        return true;
    default:
        return false;
    }
}

} // namespace altardienst
