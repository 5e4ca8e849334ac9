// The boxes for the periods in which a server or helper is away.
#include "people/Abwesenheitsboxen.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"

#include <QPalette>

#include <cmath>
#include <string>

namespace altardienst {
namespace {

constexpr int MeisteJahreZurück = 2;
constexpr const char *KeineAbwesenheit = "keine";

Datumsfeld Feld(const char *stamm, int nummer, int ersterSpin, const char *gesprochen)
{
    const std::string zahl = std::to_string(nummer);
    const std::array<std::string, 3> spins = {"ä" + std::to_string(ersterSpin),
                                              "ä" + std::to_string(ersterSpin + 1),
                                              "ä" + std::to_string(ersterSpin + 2)};
    return {(nummer == 1 ? stamm : stamm + zahl).c_str(),
            {spins[0].c_str(), spins[1].c_str(), spins[2].c_str()},
            (gesprochen + (" " + zahl)).c_str()};
}

/// Only days count, not times of day.
void SchlußNachStart(QLineEdit *start, QLineEdit *schluß)
{
    if (std::trunc(DatumLesen(TextVon(schluß))) < std::trunc(DatumLesen(TextVon(start))))
        schluß->setText(start->text());
}

void LeeresWirdHeute(QLineEdit *feld)
{
    if (feld->text().isEmpty())
        HeuteZeigen(feld);
}

} // namespace

Abwesenheit::Abwesenheit(int nummer)
    : Start(Feld("Start", nummer, 6 * nummer - 5, "Nicht dienstbereit vom")),
      Schluß(Feld("Schluß", nummer, 6 * nummer - 2, "Nicht dienstbereit bis")),
      Keine(Beschriftung(("Keine" + std::to_string(nummer)).c_str(), "")), nummer(nummer)
{
    Keine->setForegroundRole(QPalette::PlaceholderText); // grey, on a dark screen too
    Keine->setMinimumWidth(Keine->fontMetrics().horizontalAdvance(KeineAbwesenheit));
}

void Abwesenheit::Anordnen(QGridLayout *raster, int zeile) const
{
    int spalte = 0;
    for (const Datumsfeld *datum : {&Start, &Schluß}) {
        raster->addWidget(datum->Feld, zeile, spalte++);
        for (SpinButton *spin : datum->Spins)
            raster->addWidget(spin, zeile, spalte++, Qt::AlignHCenter);
        ++spalte; // a gap before `Schluß`
    }
    raster->addWidget(Keine, zeile, spalte);
}

void Abwesenheit::Verbinden() const
{
    QLineEdit *start = Start.Feld;
    QLineEdit *schluß = Schluß.Feld;
    // The first period may stay empty.
    const std::function<void(QLineEdit *)> beiLeerem =
        nummer == 1 ? [](QLineEdit *) {} : LeeresWirdHeute;
    QObject::connect(start, &QLineEdit::textChanged, start,
                     Schrittweise([=] { AlsKurzesDatum(start); },
                                  [=] {
                                      if (JahreBisHeute(start) > MeisteJahreZurück)
                                          HeuteZeigen(start);
                                  },
                                  [=] { SchlußNachStart(start, schluß); },
                                  [=] { beiLeerem(start); }));
    QObject::connect(schluß, &QLineEdit::textChanged, schluß,
                     Schrittweise([=] { AlsKurzesDatum(schluß); },
                                  [=] { SchlußNachStart(start, schluß); },
                                  [=] { beiLeerem(schluß); }));
    const auto sagen = [start, schluß, keine = Keine] {
        const QString heute = Anzeige(KurzesDatum(Uhr.Heute()));
        const bool beide = start->text() == heute && schluß->text() == heute;
        keine->setText(beide ? KeineAbwesenheit : "");
    };
    for (QLineEdit *feld : {start, schluß})
        QObject::connect(feld, &QLineEdit::textChanged, Keine, Abgefangen(sagen));
    Start.SchritteVerbinden([=] {
        start->setFocus();
        schluß->setFocus();
    });
    Schluß.SchritteVerbinden();
}

Abwesenheitsboxen::Abwesenheitsboxen(int anzahl)
{
    for (int nummer = 1; nummer <= anzahl; ++nummer)
        Zeiten.emplace_back(nummer);
}

QLayout *Abwesenheitsboxen::Anordnen() const
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(3);
    raster->setVerticalSpacing(3);
    raster->setColumnMinimumWidth(4, 8);
    const auto kopf = [raster](const char *text, QLineEdit *feld, int spalte) {
        auto *label = Beschriftung("", text);
        label->setBuddy(feld);
        raster->addWidget(label, 0, spalte, 1, 4);
        for (const char *einheit : Einheitennamen())
            raster->addWidget(Beschriftung("", einheit), 1, ++spalte, Qt::AlignHCenter);
    };
    kopf("Nicht Dienstbereit vom", Zeiten.front().Start.Feld, 0);
    kopf("bis", Zeiten.front().Schluß.Feld, 5);
    for (std::size_t k = 0; k < Zeiten.size(); ++k)
        Zeiten[k].Anordnen(raster, static_cast<int>(k) + 2);
    raster->setColumnStretch(11, 1);
    return raster;
}

void Abwesenheitsboxen::Verbinden() const
{
    for (const Abwesenheit &zeit : Zeiten)
        zeit.Verbinden();
}

} // namespace altardienst
