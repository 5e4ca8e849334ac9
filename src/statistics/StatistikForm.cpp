// Age, years of membership and composition of the servers.
#include "statistics/StatistikForm.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "core/Zahlenmuster.h"
#include "core/tables.h"
#include "platform/Uhr.h"
#include "statistics/DiagrammeForm.h"
#include "statistics/Meßdienerstatistik.h"
#include "statistics/Teilen.h"
#include "statistics/Zahlentafel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {
namespace {

/// Counts, and next to each its share of all servers.
template <std::size_t n>
void AnzahlenZeigen(const std::array<QLabel *, n> &absolut, const std::array<QLabel *, n> &relativ,
                    const std::array<int, n> &anzahl)
{
    for (std::size_t k = 0; k < n; ++k) {
        Setzen(absolut[k], Format(anzahl[k], "###0"));
        Setzen(relativ[k], Format(Geteilt(anzahl[k], Meßdiener.Anzahl), "##,##0.00%"));
    }
}

} // namespace

StatistikForm::StatistikForm()
    : Tagchen(Beschriftung("Tagchen", "")), a(Zahlfelder<12>("a", 9)), aa(Zahlfelder<12>("aa", 9)),
      b0(Zahlfeld("b0")), d(Zahlfelder<16>("d")), dd(Zahlfelder<16>("dd")), c20(Zahlfeld("c20")),
      e(Zahlfelder<8>("e")), ee(Zahlfelder<8>("ee")), Diagramm(Knopf("Diagramm", "Diagramm")),
      Druck(Knopf("Druck", "Drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(aa[1], "AA10");
    Benannt(this, "Statistik");
    setWindowTitle("Statistik");
    Anordnen();
    Verbinden();
    Füllen();
}

QLayout *StatistikForm::Alterstafel()
{
    auto *tafel = new Zahlentafel({"Alter (Jahre)", "Anzahl absolut", "Anzahl relativ"});
    tafel->ZweizeiligerKopf();
    for (std::size_t k = 0; k < a.size(); ++k) {
        const Text jahre = std::to_string(k + 9);
        const bool inDerMitte = k > 0 && k + 1 < a.size();
        QLabel *klasse = inDerMitte ? Beschriftung(("b" + jahre).c_str(), jahre.c_str())
                                    : Beschriftung("", k == 0 ? "bis 9" : "ab 20");
        tafel->Zeile(klasse, {a[k], aa[k]});
    }
    return tafel;
}

QLayout *StatistikForm::Zugehörigkeitstafel()
{
    auto *tafel = new Zahlentafel({"Zugehörigkeit (Jahre)", "Anzahl absolut", "Anzahl relativ"});
    tafel->ZweizeiligerKopf();
    for (std::size_t k = 0; k < d.size(); ++k) {
        const Text jahre = std::to_string(k);
        const bool letzte = k + 1 == d.size();
        tafel->Zeile(Beschriftung(("c" + jahre).c_str(), letzte ? "15 und mehr" : jahre.c_str()),
                     {d[k], dd[k]});
    }
    return tafel;
}

QLayout *StatistikForm::Zusammensetzungstafel()
{
    constexpr std::array<const char *, 8> Zeilen = {
        "männlich",  "weiblich",  "Gaben- bereitung", "Leuchter",
        "Flammbeau", "Weihrauch", "Kreuzträger",      "Meßdiener insgesamt"};
    auto *tafel = new Zahlentafel({"Meßdiener", "absolut", "relativ"});
    tafel->ZweizeiligerKopf();
    for (std::size_t k = 0; k < e.size(); ++k) {
        QLabel *was = Beschriftung("", Zeilen[k]);
        was->setWordWrap(true);
        tafel->Zeile(was, {e[k], ee[k]});
    }
    return tafel;
}

void StatistikForm::Anordnen()
{
    auto *rechts = new QVBoxLayout;
    rechts->setSpacing(8);
    rechts->addLayout(Zusammensetzungstafel());
    rechts->addSpacing(10);
    rechts->addLayout(
        Satz({Beschriftung("", "Durchschnittsalter"), b0, Beschriftung("", "Jahre")}));
    rechts->addLayout(Satz({Beschriftung("", "Durchschnitt "), c20, Beschriftung("", "Jahre")}));
    rechts->addStretch();

    auto *tafeln = new QHBoxLayout;
    tafeln->setSpacing(18);
    for (QLayout *tafel : {Alterstafel(), Zugehörigkeitstafel()}) {
        auto *oben = new QVBoxLayout;
        oben->addLayout(tafel);
        oben->addStretch();
        tafeln->addLayout(oben);
    }
    tafeln->addLayout(rechts);

    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addLayout(Satz({Beschriftung("", "am"), Tagchen}));
    spalte->addLayout(tafeln, 1);
    spalte->addLayout(Knopfreihe({Diagramm, Druck, Ende}));
    Ende->setFocus();
}

void StatistikForm::Verbinden()
{
    connect(Diagramm, &QPushButton::clicked, this,
            Offen([this] { DialogAnStelleÖffnen<DiagrammeForm>(this, this); }));
    DruckUndEndeVerbinden(this, Druck, Ende);
}

void StatistikForm::Füllen()
{
    const Meßdienerstatistik s = MeßdienerAuswerten(Uhr.Heute());
    Setzen(Tagchen, KurzesDatum(Uhr.Heute()));
    AnzahlenZeigen(a, aa, s.Alter);
    AnzahlenZeigen(d, dd, s.Zugehörigkeit);
    AnzahlenZeigen(e, ee, s.Zusammensetzung);
    Setzen(b0, Format(s.Durchschnittsalter, "##,####0.000"));
    Setzen(c20, Format(s.Durchschnittszugehörigkeit, "##,###0.000"));
}

} // namespace altardienst
