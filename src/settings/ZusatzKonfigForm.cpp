// The settings for the proposed start date and for the services that are set by hand.
#include "settings/ZusatzKonfigForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Plätze.h"

#include <QGroupBox>
#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr int WenigsteWochen = 1;
constexpr int MeisteWochen = 20;

QLabel *Absatz(const char *text, QWidget *zu = nullptr)
{
    QLabel *label = Beschriftung("", text, zu);
    label->setWordWrap(true);
    return label;
}

} // namespace

ZusatzKonfigForm::ZusatzKonfigForm()
    : Wer(Benannt(new QCheckBox(Weihrauch.Name.c_str()), "Wer")),
      Kr(Benannt(new QCheckBox(Kreuzträger.Name.c_str()), "Kr")),
      WOBO(ZahlboxAnlegen("WOBO", "UI1", "Wochen")), Ende(Knopf("Ende", "Ende"))
{
    for (std::size_t n = 0; n < OO.size(); ++n)
        OO[n] = Benannt(new QRadioButton(Wochentagsnamen[n].c_str()),
                        ("OO" + std::to_string(n + 1)).c_str());
    Benannt(this, "ZusatzKonfig");
    setWindowTitle("Zusätzliche Konfiguration");
    Anordnen();
    Verbinden();
    Füllen();
}

void ZusatzKonfigForm::Anordnen()
{
    auto *dienste = new QHBoxLayout;
    for (QCheckBox *box : {Wer, Kr})
        dienste->addWidget(box);
    dienste->addStretch();

    auto *tage = new QGroupBox("Mit welchem Wochentag bei Aufruf des Programmes beginnen?");
    auto *raster = new QGridLayout(tage);
    for (int n = 0; n < static_cast<int>(OO.size()); ++n)
        raster->addWidget(OO[static_cast<std::size_t>(n)], n / 4, n % 4);

    auto *wochen = new QHBoxLayout;
    wochen->addWidget(WOBO.Feld);
    wochen->addWidget(WOBO.Spin);
    wochen->addWidget(Beschriftung("", "Wochen"));
    wochen->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addWidget(Absatz("Folgende Dienste können beim angehackelten Kästchen manuell im "
                             "Altardienst gesetzt werden."));
    spalte->addLayout(dienste);
    spalte->addWidget(tage);
    spalte->addWidget(Absatz("Wieviel Wochen im voraus soll Anfangsdatum beim Programmstart "
                             "gesetzt werden?",
                             WOBO.Feld));
    spalte->addLayout(wochen);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Ende}));
    resize(520, sizeHint().height());
    Wer->setFocus();
}

void ZusatzKonfigForm::Verbinden()
{
    for (const auto &[box, wert] :
         {std::pair{Wer, &Konfig.ManuellWeihrauch}, {Kr, &Konfig.ManuellKreuzträger}})
        connect(box, &QCheckBox::clicked, this,
                Abgefangen([wert = wert](bool ja) { *wert = ja ? 1 : 0; }));
    for (int n = 0; n < static_cast<int>(OO.size()); ++n)
        connect(OO[static_cast<std::size_t>(n)], &QRadioButton::clicked, this,
                Abgefangen([n] { Konfig.StartWochentag = n + 1; }));
    BegrenztVerbinden(WOBO.Feld, Konfig.VorlaufWochen, WenigsteWochen, MeisteWochen);
    DrehenMitFokus(WOBO);
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void ZusatzKonfigForm::Füllen()
{
    Wer->setChecked(Konfig.ManuellWeihrauch == 1);
    Kr->setChecked(Konfig.ManuellKreuzträger == 1);
    for (int n = 0; n < static_cast<int>(OO.size()); ++n)
        OO[static_cast<std::size_t>(n)]->setChecked(n + 1 == Konfig.StartWochentag);
    ZahlSetzen(WOBO.Feld, Konfig.VorlaufWochen);
}

} // namespace altardienst
