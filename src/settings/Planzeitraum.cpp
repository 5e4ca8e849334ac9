// The period of the plan among the settings.
#include "settings/Planzeitraum.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "settings/Einstellungen.h"

#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteTageBeimVerlassen = 120; // fewer than on Enter; both limits apply

QLayout *Reihe(std::initializer_list<QWidget *> controls)
{
    auto *reihe = new QHBoxLayout;
    reihe->setSpacing(8);
    for (QWidget *control : controls)
        reihe->addWidget(control);
    reihe->addStretch();
    return reihe;
}

} // namespace

Planzeitraum::Planzeitraum()
    : Datumsen(Datumsbox("Datumsen")),
      SpinButton1(new SpinButton("SpinButton1", "Startdatum um einen Tag ändern")),
      tagi(Beschriftung("tagi", "")), tagilein(ZahlboxAnlegen("tagilein", "Änderung1", "Tage")),
      Endet(Beschriftung("Endet", "")), Dayig(Beschriftung("Dayig", ""))
{
}

QLayout *Planzeitraum::Anordnen() const
{
    auto *raster = new QGridLayout;
    raster->addWidget(Beschriftung("", "Startberechnungsdatum für den Meßdienerplan:", Datumsen), 0,
                      0, 1, 5);
    raster->addLayout(Reihe({Datumsen, SpinButton1, tagi}), 1, 0, 1, 5);
    ZahlboxAnordnen(raster, 2, 0, "Anzahl Tage: ", tagilein);
    raster->addLayout(Reihe({Beschriftung("", "bis zum:"), Endet, Dayig}), 3, 0, 1, 5);
    raster->setColumnStretch(4, 1);
    return raster;
}

void Planzeitraum::Verbinden()
{
    BeiEingabetaste(Datumsen, Abgefangen([this] { Berechnen(); }));
    SchritteVerbinden(nullptr, nullptr, SpinButton1, [this](int tage) { DatumGedreht(tage); });
    PfeiltastenVerbinden(Datumsen, SpinButton1);
    SchritteVerbinden(nullptr, nullptr, tagilein.Spin, [this](int tage) { TageGedreht(tage); });
    BeiEingabetaste(tagilein.Feld, Abgefangen([this] { TageBegrenzen(MeisteTage); }));
}

void Planzeitraum::TageVerlassen()
{
    TageBegrenzen(MeisteTageBeimVerlassen);
}

void Planzeitraum::Zeigen() const
{
    Setzen(Datumsen, KurzesDatum(Konfig.StartDatum));
    ZahlSetzen(tagilein.Feld, Konfig.Tage);
}

void Planzeitraum::DatumGedreht(int tage)
{
    Schrittweise([&] { TageWeiter(Datumsen, tage); }, [&] { Berechnen(); },
                 [&] { Datumsen->setFocus(); })();
}

/// Not clipped here: that happens when the box is left.
void Planzeitraum::TageGedreht(int tage)
{
    QLineEdit *feld = tagilein.Feld;
    Schrittweise([&] { Weiterzählen(feld, tage); }, [&] { Konfig.Tage = ZahlIn(feld); },
                 [&] { Berechnen(); }, [&] { feld->setFocus(); })();
}

void Planzeitraum::TageBegrenzen(int bis)
{
    Konfig.Tage = Begrenzen(tagilein.Feld, WenigsteTage, bis);
    EndeZeigen();
}

void Planzeitraum::Berechnen()
{
    const auto datum = [this] { return DatumLesen(TextVon(Datumsen)); };
    Schrittweise([&] { AlsKurzesDatum(Datumsen); },
                 [&] {
                     StartDatumSetzen(datum());
                     Setzen(Datumsen, KurzesDatum(Konfig.StartDatum));
                 },
                 [&] { Setzen(tagi, WochentagName(datum())); }, [&] { EndeZeigen(); })();
}

void Planzeitraum::EndeZeigen()
{
    const Datum ende = DatumLesen(TextVon(Datumsen)) + ZahlIn(tagilein.Feld);
    Setzen(Endet, KurzesDatum(ende));
    Setzen(Dayig, WochentagName(ende));
}

} // namespace altardienst
