// A date box with its steps.
#include "controls/Datumsfeld.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"

#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr std::array<const char *, 3> Einheiten = {"Tag", "Monat", "Jahr"};
constexpr std::array<const char *, 3> Früher = {"einen Tag früher", "einen Monat früher",
                                                "ein Jahr früher"};
constexpr std::array<const char *, 3> Später = {"einen Tag später", "einen Monat später",
                                                "ein Jahr später"};
constexpr std::array<void (*)(QLineEdit *, int), 3> Weiter = {TageWeiter, MonateWeiter,
                                                              JahreWeiter};

QByteArray Gesprochen(const QString &wovon, const char *was)
{
    return (wovon + " " + QString::fromUtf8(was)).toUtf8();
}

} // namespace

Datumsfeld::Datumsfeld(const char *feld, const std::array<const char *, 3> &spins,
                       const char *gesprochen)
    : Feld(Datumsbox(feld)), gesprochen(QString::fromUtf8(gesprochen))
{
    Feld->setAccessibleName(this->gesprochen);
    for (std::size_t k = 0; k < Spins.size(); ++k) {
        const QByteArray was = QByteArray(Einheiten[k]) + " ändern";
        Spins[k] = new SpinButton(spins[k], Gesprochen(this->gesprochen, was.constData()));
    }
}

void Datumsfeld::KnöpfeAnlegen(const std::array<std::array<const char *, 2>, 3> &namen)
{
    for (std::size_t k = 0; k < Knöpfe.size(); ++k)
        Knöpfe[k] = {Minusknopf(namen[k][0], Gesprochen(gesprochen, Früher[k]).constData()),
                     Plusknopf(namen[k][1], Gesprochen(gesprochen, Später[k]).constData())};
}

void Datumsfeld::Anordnen(QGridLayout *raster, int zeile, const char *text) const
{
    raster->addWidget(Beschriftung("", text, Feld), zeile, 0);
    auto *reihe = new QHBoxLayout;
    reihe->setSpacing(Schrittabstand);
    reihe->addWidget(Feld);
    for (std::size_t k = 0; k < Spins.size(); ++k)
        SchrittAnfügen(reihe, Einheiten[k], Spins[k], Knöpfe[k].Minus, Knöpfe[k].Plus);
    reihe->addStretch();
    raster->addLayout(reihe, zeile, 1, 1, -1);
}

void Datumsfeld::SchritteVerbinden(const std::function<void()> &danach) const
{
    QLineEdit *feld = Feld;
    const std::function<void()> schluß = danach ? danach : [feld] { feld->setFocus(); };
    for (std::size_t k = 0; k < Spins.size(); ++k) {
        const auto weiter = Weiter[k];
        const auto schritt = [=](int richtung) { Abgefangen([&] { weiter(feld, richtung); })(); };
        altardienst::SchritteVerbinden(Knöpfe[k].Minus, Knöpfe[k].Plus, nullptr, schritt);
        PfeiltastenVerbinden(feld, Pfeilstufen[k], schritt); // the focus stays in the box
        altardienst::SchritteVerbinden(nullptr, nullptr, Spins[k], [=](int richtung) {
            Schrittweise([&] { weiter(feld, richtung); }, schluß)();
        });
    }
}

void Datumsfeld::BeiÄnderungUmschreiben() const
{
    QObject::connect(Feld, &QLineEdit::textChanged, Feld,
                     Abgefangen([feld = Feld] { AlsKurzesDatum(feld); }));
}

void Datumsfeld::BeiKlickUmschreiben() const
{
    const std::function<void()> umschreiben = Abgefangen([feld = Feld] { AlsKurzesDatum(feld); });
    BeiKlick(Feld, umschreiben);
    BeiEingabetaste(Feld, umschreiben);
}

void Datumsfeld::Zeigen(double datum) const
{
    Setzen(Feld, KurzesDatum(datum));
}

double Datumsfeld::Wert() const
{
    return LesenOderFokus(Feld, DatumLesen);
}

int JahreBisHeute(const QLineEdit *feld)
{
    return KalendertagVon(Uhr.Heute()).Jahr - KalendertagVon(DatumLesen(TextVon(feld))).Jahr;
}

void HeuteZeigen(QLineEdit *feld)
{
    Setzen(feld, KurzesDatum(Uhr.Heute()));
}

const std::array<const char *, 3> &Einheitennamen()
{
    return Einheiten;
}

} // namespace altardienst
