// The weekday, date and time of a mass.
#include "planning/Terminfelder.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"

#include <QHBoxLayout>

#include <array>

namespace altardienst {

Terminfelder::Terminfelder()
    : tagelang(Textfeld("tagelang")), Taga(Knopf("Taga", "Wochentag bestimmen")),
      datendaten(Datumsbox("datendaten")), Änderung1(new SpinButton("Änderung1", "Tag ändern")),
      Änderung2(new SpinButton("Änderung2", "Monat ändern")),
      Änderung4(new SpinButton("Änderung4", "Jahr ändern")), Uhrwerk(Zeitbox("Uhrwerk")),
      Änderung5(new SpinButton("Änderung5", "Stunde ändern")),
      Änderung6(new SpinButton("Änderung6", "Minuten ändern"))
{
}

void Terminfelder::Anordnen(QGridLayout *raster, int zeile, const Knöpfe &knöpfe) const
{
    raster->setVerticalSpacing(6);
    raster->setHorizontalSpacing(10);
    tagelang->setFixedWidth(datendaten->maximumWidth());
    struct Einheit {
        const char *Name;
        SpinButton *Spin;
        Knopfpaar Paar;
    };
    const auto reihe = [&](const char *text, QLineEdit *feld,
                           std::initializer_list<Einheit> einheiten) {
        auto *schritte = new QHBoxLayout;
        schritte->setSpacing(Schrittabstand);
        schritte->addWidget(feld);
        for (const Einheit &e : einheiten)
            SchrittAnfügen(schritte, e.Name, e.Spin, e.Paar.Minus, e.Paar.Plus);
        schritte->addStretch();
        raster->addWidget(Beschriftung("", text, feld), ++zeile, 0);
        raster->addLayout(schritte, zeile, 1, 1, 2);
    };
    raster->addWidget(Beschriftung("", "Wochentag:", tagelang), zeile, 0);
    raster->addWidget(tagelang, zeile, 1);
    raster->addWidget(Taga, zeile, 2, Qt::AlignLeft);
    reihe("Datum:", datendaten,
          {{"Tag", Änderung1, knöpfe.Tag},
           {"Monat", Änderung2, knöpfe.Monat},
           {"Jahr", Änderung4, knöpfe.Jahr}});
    reihe("Uhrzeit:", Uhrwerk,
          {{"Stunde", Änderung5, knöpfe.Stunde}, {"Minuten", Änderung6, knöpfe.Minute}});
}

void Terminfelder::Verbinden(const Knöpfe &knöpfe,
                             const std::function<void()> &beiDatumsschritt) const
{
    QObject::connect(Taga, &QPushButton::clicked, Taga,
                     Abgefangen([this] { WochentagBestimmen(); }));
    QObject::connect(Uhrwerk, &QLineEdit::textChanged, Uhrwerk,
                     Abgefangen([this] { AlsLangeZeit(Uhrwerk); }));
    const auto schritt = [](const Knopfpaar &paar, SpinButton *spin, QLineEdit *feld,
                            void (*weiter)(QLineEdit *, int), int weite,
                            const std::function<void()> &danach) {
        SchritteVerbinden(paar.Minus, paar.Plus, spin, [=](int richtung) {
            Abgefangen([&] {
                weiter(feld, richtung * weite);
                danach();
            })();
        });
    };
    const std::array<SpinButton *, 3> amDatum = {Änderung1, Änderung2, Änderung4};
    for (std::size_t k = 0; k < amDatum.size(); ++k)
        PfeiltastenVerbinden(datendaten, amDatum[k], Pfeilstufen[k]);
    PfeiltastenVerbinden(Uhrwerk, Änderung5, Pfeilstufen[0]);
    PfeiltastenVerbinden(Uhrwerk, Änderung6, Pfeilstufen[1]);
    const std::function<void()> nichts = [] {};
    schritt(knöpfe.Tag, Änderung1, datendaten, TageWeiter, 1, beiDatumsschritt);
    schritt(knöpfe.Monat, Änderung2, datendaten, MonateWeiter, 1, beiDatumsschritt);
    schritt(knöpfe.Jahr, Änderung4, datendaten, JahreWeiter, 1, beiDatumsschritt);
    schritt(knöpfe.Stunde, Änderung5, Uhrwerk, StundenWeiter, 1, nichts);
    schritt(knöpfe.Minute, Änderung6, Uhrwerk, MinutenWeiter, 5, nichts);
}

void Terminfelder::WochentagBestimmen() const
{
    Setzen(tagelang, WochentagNameGefüllt(DatumLesen(TextVon(datendaten))));
}

} // namespace altardienst
