// The plan at a glance.
#include "overview/Planansicht.h"

#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Kurztasten.h"
#include "core/Umwandlung.h"
#include "overview/Personenblick.h"
#include "overview/Planwege.h"
#include "overview/Platzschreiben.h"
#include "overview/Regelauswahl.h"
#include "overview/WerKannHierForm.h"
#include "search/Hingehen.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr const char *Teilerschlüssel = "Plan/Teiler";
constexpr const char *Abschnittsname = "Befunde";

/// What may have changed the tables in another window.
bool IstBedienung(QEvent::Type art)
{
    return art == QEvent::KeyRelease || art == QEvent::MouseButtonRelease || art == QEvent::Close ||
           art == QEvent::FocusOut;
}

/// "28.11. Leuchter · nach 7 Tagen 05.12. Allgemein".
Text Dienstfolge(const Personenblick &blick)
{
    Text folge;
    for (const Personendienst &dienst : blick.Dienste) {
        if (!folge.empty())
            folge += " · ";
        if (dienst.Pause == 0)
            folge += "am selben Tag " + dienst.Dienst;
        else
            folge += (dienst.Pause ? Text("nach ") + ZahlText(*dienst.Pause) +
                                         (*dienst.Pause == 1 ? " Tag " : " Tagen ")
                                   : Text()) +
                     TagImSatz(dienst.Tag) + " " + dienst.Dienst;
    }
    return folge;
}

} // namespace

Planansicht::Planansicht()
    : NurAuffälliges(Benannt(new QCheckBox("nur Au&ffälliges"), "NurAuffälliges")),
      WerKannHier(Knopf("WerKannHierKnopf", "&Wer kann hier?")),
      Regeln(Knopf("Regelwahl", "&Regeln")), Person(new Kurztext("PlanPerson")),
      Abstände(new Kurztext("PlanAbstände")),
      Teiler(Benannt(new QSplitter(Qt::Vertical), "PlanTeiler")), modell(new Planmodell(this)),
      später(new QTimer(this))
{
    Benannt(this, "Planansicht");
    modell->Nachziehen();
    Regelmenü = new Regelauswahl(this, modell->Prüfung(),
                                 Abgefangen([this](const Regelwahl &regeln) { Beachten(regeln); }));
    Tafel = new Plantafel(modell);
    Liste = new Befundliste(modell->Prüfung());
    Anordnen();
    Verbinden();
    Beachten(Regelauswahl::Gemerkte());
    Gewählt();
}

void Planansicht::Anordnen()
{
    später->setSingleShot(true);
    NurAuffälliges->setToolTip("Zeigt nur die Messen, bei denen etwas auffällt");
    Regeln->setToolTip("Worauf geachtet wird");
    TasteNennen(WerKannHier, "Eingabe auf einem Platz");
    auto *kopf = new QHBoxLayout;
    kopf->setSpacing(4); // all of it fits the smallest screen
    kopf->addWidget(WerKannHier);
    kopf->addStretch();
    kopf->addWidget(NurAuffälliges);
    kopf->addWidget(Regeln);
    QFont fett = Person->font();
    fett.setBold(true);
    Person->setFont(fett);
    auto *oben = new QWidget;
    auto *spalte = new QVBoxLayout(oben);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(6);
    spalte->addLayout(kopf);
    spalte->addWidget(Tafel, 1);
    spalte->addWidget(Person);
    spalte->addWidget(Abstände);
    Teiler->addWidget(oben);
    Teiler->addWidget(Liste);
    Teiler->setStretchFactor(0, 3);
    Teiler->setStretchFactor(1, 1);
    Teiler->setChildrenCollapsible(true);
    Teiler->setCollapsible(0, false);
    if (!Teiler->restoreState(Gemerktes().value(Teilerschlüssel).toByteArray()))
        Teiler->setSizes({300, 100});
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(0, 0, 0, 0);
    alles->addWidget(Teiler);
}

void Planansicht::Verbinden()
{
    connect(später, &QTimer::timeout, this, Nebenbei([this] { Nachziehen(); }));
    connect(NurAuffälliges, &QCheckBox::toggled, this,
            Abgefangen([this](bool nur) { modell->NurAuffälliges(nur); }));
    connect(WerKannHier, &QPushButton::clicked, this, Offen([this] { Fragen(); }));
    connect(Regeln, &QPushButton::clicked, this, Abgefangen([this] {
                Regelmenü->popup(Regeln->mapToGlobal(QPoint(0, Regeln->height())));
            }));
    connect(Teiler, &QSplitter::splitterMoved, this,
            Abgefangen([this] { Gemerktes().setValue(Teilerschlüssel, Teiler->saveState()); }));
    Tafel->BeiWahl = Abgefangen([this] { Gewählt(); });
    Tafel->BeiEingabe = Offen([this] { Fragen(); });
    Tafel->BeiEntfernen = Offen([this] { PlatzLeeren(); });
    Tafel->BeiHingehen = Offen([this] { Hingehen(); });
    Tafel->BeiMenü = Offen([this](QPoint ort) { MenüZeigen(ort); });
    Liste->BeiWahl = Abgefangen([this](const Planplatz &ort) { Tafel->Wählen(ort); });
}

void Planansicht::Nachziehen()
{
    if (modell->Nachziehen())
        Liste->Nachziehen();
    BefundeZählen();
}

void Planansicht::BefundeZählen() const
{
    DauerndMitteilen(Abschnittsname, isVisible() ? Liste->Gezählt() : Text());
}

void Planansicht::Beachten(const Regelwahl &regeln)
{
    modell->Beachten(regeln);
    Liste->Beachten(regeln);
    BefundeZählen();
}

/// Whose name stands there is marked in the whole plan; nobody at a place without a name.
void Planansicht::Gewählt()
{
    const auto ort = Tafel->Gewählter();
    const bool platz = ort && ort->Was != Planplatz::Art::Messe;
    WerKannHier->setEnabled(platz && IstGewünscht(Messe, *ort));
    if (!platz)
        return PersonAngeben("", "");
    const auto name = NameAm(Messe, *ort);
    PersonAngeben(name.Vorname, name.Nachname);
}

void Planansicht::PersonAngeben(const Text &vorname, const Text &nachname)
{
    const Plantabellen tabellen = GemeinsameTabellen();
    modell->Markieren(vorname, nachname);
    if (vorname.empty() && nachname.empty()) {
        Setzen(Person, "");
        Setzen(Abstände, "Ein Klick auf einen Namen zeigt hier alle Dienste der Person.");
        return;
    }
    const Personenblick blick = PersonImPlan(tabellen, vorname, nachname);
    Setzen(Person, blick.Zusammenfassung);
    Setzen(Abstände, Dienstfolge(blick));
}

void Planansicht::PersonZeigen(const Text &vorname, const Text &nachname)
{
    Nachziehen();
    const Personenblick blick = PersonImPlan(GemeinsameTabellen(), vorname, nachname);
    if (blick.Dienste.empty()) {
        Tafel->selectionModel()->clear();
    } else {
        NurAuffälliges->setChecked(false); // the place might be hidden
        Tafel->Wählen(blick.Dienste.front().Wo);
    }
    PersonAngeben(vorname, nachname);
    Tafel->setFocus();
}

void Planansicht::Fragen()
{
    const auto ort = Tafel->Gewählter();
    if (ort && ort->Was != Planplatz::Art::Messe && IstGewünscht(Messe, *ort))
        (new WerKannHierForm(window(), *ort))->show();
}

void Planansicht::PlatzLeeren()
{
    const auto ort = Tafel->Gewählter();
    if (ort && ort->Was != Planplatz::Art::Messe && !NameAm(Messe, *ort).IstFrei())
        PlätzeSchreiben({{*ort}});
    Nachziehen();
}

void Planansicht::Hingehen()
{
    const auto ort = Tafel->Gewählter();
    if (!ort)
        return;
    const bool fest = Tafel->currentIndex().column() == Planmodell::Fest;
    altardienst::Hingehen(fest ? FesterEintragVon(*ort) : StelleVon(*ort), window());
}

void Planansicht::MenüZeigen(QPoint wo)
{
    const auto ort = Tafel->Gewählter();
    if (!ort)
        return;
    QMenu menü(this);
    const auto eintrag = [&](const QString &text, bool geht, const std::function<void()> &aktion) {
        QAction *neu = menü.addAction(text);
        neu->setEnabled(geht);
        connect(neu, &QAction::triggered, this, Offen(aktion));
    };
    const bool platz = ort->Was != Planplatz::Art::Messe;
    const bool besetzt = platz && !NameAm(Messe, *ort).IstFrei();
    if (platz) {
        eintrag("Wer kann hier?\tEingabe", WerKannHier->isEnabled(), [this] { Fragen(); });
        eintrag("Leeren\tEntf", besetzt, [this] { PlatzLeeren(); });
        menü.addSeparator();
    }
    for (const Planweg &weg : WegeVon(*ort, modell->Prüfung()))
        eintrag(Anzeige(weg.Beschriftung), true,
                [this, ziel = weg.Ziel] { altardienst::Hingehen(ziel, window()); });
    menü.addSeparator();
    if (AnMesseSchreiben)
        eintrag("E-Mail an diese Messe...", true,
                [this, messe = ort->Messe] { AnMesseSchreiben(messe); });
    eintrag("Kopieren\tStrg+C", true, [this] { Tafel->Kopieren(); });
    menü.exec(wo);
}

/// Forms beside the main window write when they are used; the tables are compared once the event is
/// over.
bool Planansicht::eventFilter(QObject *, QEvent *ereignis)
{
    if (IstBedienung(ereignis->type()))
        später->start();
    return false;
}

void Planansicht::showEvent(QShowEvent *ereignis)
{
    QWidget::showEvent(ereignis);
    qApp->installEventFilter(this);
    Abgefangen([this] { Nachziehen(); })();
}

void Planansicht::hideEvent(QHideEvent *ereignis)
{
    QWidget::hideEvent(ereignis);
    qApp->removeEventFilter(this);
    Abgefangen([this] { BefundeZählen(); })();
}

} // namespace altardienst
