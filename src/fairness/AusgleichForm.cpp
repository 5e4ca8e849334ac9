// "Plan ausgleichen"
#include "fairness/AusgleichForm.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"
#include "fairness/Archivwahl.h"
#include "fairness/Ausgleichstafeln.h"
#include "history/Rückgängig.h"
#include "platform/Uhr.h"

#include <QHBoxLayout>
#include <QScreen>

#include <utility>

namespace altardienst {
namespace {

constexpr int Nachschaupause = 100; // ms

QCheckBox *Kästchen(const char *name, const char *aufschrift)
{
    auto *kästchen = Benannt(new QCheckBox(QString::fromUtf8(aufschrift)), name);
    kästchen->setChecked(true);
    return kästchen;
}

Text Wechselzahl(std::size_t zahl)
{
    return zahl == 1 ? Text("ein Platz") : ZahlText(static_cast<int>(zahl)) + " Plätze";
}

} // namespace

AusgleichForm::AusgleichForm()
    : Diener(Kästchen("Diener", "&Meßdiener")), Helferinnen(Kästchen("Helferinnen", "He&lfer")),
      AbTag(Datumsbox("AbTag")), Zeitraum(Archivwahl("Zeitraum")),
      Ausgleichen(Knopf("Ausgleichen", "&Ausgleichen")), Anhalten(Knopf("Anhalten", "An&halten")),
      Lage(Beschriftung("Lage", "")), Zahlen(Zahlentafel()),
      Blätter(Benannt(new QTabWidget, "Blätter")), Anteile(Anteiltafel()),
      Änderungen(Änderungstafel()), Offenes(Benannt(new QPlainTextEdit, "Offenes")),
      Übernehmen(Knopf("Übernehmen", "Ü&bernehmen")), Verwerfen(Knopf("Verwerfen", "&Verwerfen")),
      Takt(Benannt(new QTimer(this), "Takt"))
{
    Benannt(this, "Ausgleich");
    setWindowTitle("Plan ausgleichen");
    Anordnen();
    Verbinden();
    Setzen(AbTag, KurzesDatum(Uhr.Heute()));
    Setzen(Lage, Lagetext());
    KnöpfeStellen();
}

void AusgleichForm::Anordnen()
{
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(Diener);
    wahl->addWidget(Helferinnen);
    wahl->addStretch();
    wahl->addWidget(Ausgleichen);
    wahl->addWidget(Anhalten);
    auto *grenzen = new QHBoxLayout;
    grenzen->addWidget(Beschriftung("AbTagText", "Messen ab &dem", AbTag));
    grenzen->addWidget(AbTag);
    grenzen->addSpacing(16);
    grenzen->addWidget(Beschriftung("ZeitraumText", "&Gezählt wird", Zeitraum));
    grenzen->addWidget(Zeitraum);
    grenzen->addStretch();

    Lage->setWordWrap(true);
    Offenes->setReadOnly(true);
    Offenes->setTabChangesFocus(true);
    Offenes->setAccessibleName("Was offen bleibt");
    Blätter->setAccessibleName("Was herauskommt");
    Blätter->addTab(Anteile, "Dienste &je Person");
    Blätter->addTab(Änderungen, "Ä&nderungen");
    Blätter->addTab(Offenes, "&Was offen bleibt");

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(wahl);
    spalte->addLayout(grenzen);
    spalte->addWidget(Lage);
    spalte->addWidget(Zahlen);
    spalte->addWidget(Blätter, 1);
    spalte->addLayout(Knopfreihe({Verwerfen}, {Übernehmen}));
    resize(QSize(900, 640).boundedTo(screen()->availableSize() - Fensterrahmen));
    Ausgleichen->setFocus();
}

void AusgleichForm::Verbinden()
{
    for (QCheckBox *kästchen : {Diener, Helferinnen})
        connect(kästchen, &QCheckBox::toggled, this, Abgefangen([this] { KnöpfeStellen(); }));
    connect(Ausgleichen, &QPushButton::clicked, this, Offen([this] { Beginnen(); }));
    connect(Anhalten, &QPushButton::clicked, this, Abgefangen([this] {
                if (lauf)
                    lauf->Anhalten();
            }));
    connect(Takt, &QTimer::timeout, this, Offen([this] { Nachsehen(); }));
    connect(Übernehmen, &QPushButton::clicked, this, Offen([this] { PlanÜbernehmen(); }));
    connect(Verwerfen, &QPushButton::clicked, this, [this] { close(); });
}

/// Another time, another plan: of those that are equally fair.
void AusgleichForm::Beginnen()
{
    Ausgleichsauftrag auftrag;
    auftrag.Diener = Diener->isChecked();
    auftrag.Helfer = Helferinnen->isChecked();
    auftrag.AbTag = LesenOderFokus(AbTag, DatumLesen);
    Archivzählung archiv = ArchivVorDemPlan(Zeitraum);
    auftrag.DienerBisher = std::move(archiv.Diener);
    auftrag.HelferBisher = std::move(archiv.Helfer);
    unlesbare = archiv.UnlesbareDateien;
    auftrag.Saat = ++saat;
    hatErgebnis = false;
    lauf = std::make_unique<Ausgleichslauf>(auftrag);
    Takt->start(Nachschaupause);
    Setzen(Lage, Lagetext());
    KnöpfeStellen();
    Anhalten->setFocus();
}

void AusgleichForm::Nachsehen()
{
    if (!lauf)
        return Takt->stop();
    if (!lauf->IstFertig()) {
        ZahlenZeigen(Zahlen, lauf->Stand());
        return;
    }
    Takt->stop();
    const std::unique_ptr<Ausgleichslauf> beendet = std::move(lauf);
    KnöpfeStellen();
    Setzen(Lage, Lagetext());
    ergebnis = beendet->Ergebnis();
    hatErgebnis = true;
    FertigZeigen();
}

void AusgleichForm::FertigZeigen()
{
    ZahlenZeigen(Zahlen, ergebnis);
    AnteileZeigen(Anteile, ergebnis);
    ÄnderungenZeigen(Änderungen, ergebnis);
    Offenes->setPlainText(Anzeige(OffenesText(ergebnis)));
    Setzen(Lage, Lagetext());
    KnöpfeStellen();
    (Übernehmen->isEnabled() ? Übernehmen : Verwerfen)->setFocus();
}

Text AusgleichForm::Lagetext() const
{
    if (lauf)
        return "Ein gerechter Plan wird gesucht. Mit „Anhalten“ bleibt der beste, der bis dahin "
               "gefunden ist.";
    if (!hatErgebnis)
        return "Sucht zum Plan, wie er ist, einen, der die Regeln einhält und alle gleich oft "
               "drannimmt. Geschrieben wird erst mit „Übernehmen“.";
    if (ergebnis.Wechsel.empty())
        return "Der Plan bleibt, wie er ist: Ein besserer hat sich nicht gefunden.";
    const std::size_t offen = ergebnis.Diener.Offen.size() + ergebnis.Helfer.Offen.size();
    return Wechselzahl(ergebnis.Wechsel.size()) +
           (ergebnis.Wechsel.size() == 1 ? " bekommt" : " bekommen") + " einen anderen Namen. " +
           (offen == 0 ? "Alle Regeln sind eingehalten."
                       : "Nicht alle Regeln lassen sich einhalten: siehe „Was offen bleibt“.") +
           (unlesbare == 0 ? "" : " " + UnlesbaresText(unlesbare));
}

void AusgleichForm::KnöpfeStellen()
{
    const bool sucht = lauf != nullptr;
    for (QWidget *angabe : {static_cast<QWidget *>(Diener), static_cast<QWidget *>(Helferinnen),
                            static_cast<QWidget *>(AbTag), static_cast<QWidget *>(Zeitraum)})
        angabe->setEnabled(!sucht);
    Ausgleichen->setEnabled(!sucht && (Diener->isChecked() || Helferinnen->isChecked()));
    Anhalten->setEnabled(sucht);
    Übernehmen->setEnabled(!sucht && hatErgebnis && !ergebnis.Wechsel.empty());
}

void AusgleichForm::PlanÜbernehmen()
{
    if (!hatErgebnis)
        return;
    Schritt("Plan ausgleichen", [this] { AusgleichÜbernehmen(ergebnis); });
    close();
    Mitteilen("Plan ausgeglichen, " + Wechselzahl(ergebnis.Wechsel.size()) + " neu besetzt");
}

/// A search that still runs has no say any more.
void AusgleichForm::VorDemSchließen()
{
    Takt->stop();
    lauf.reset();
}

} // namespace altardienst
