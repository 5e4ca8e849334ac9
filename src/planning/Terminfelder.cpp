// The weekday, date and time of a mass.
#include "planning/Terminfelder.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "core/Umwandlung.h"

#include <QHBoxLayout>

namespace altardienst {

Terminfelder::Terminfelder()
    : tagelang(Textfeld("tagelang")), Taga(Knopf("Taga", "Wochentag bestimmen")),
      datendaten(Textfeld("datendaten")), Änderung1(new SpinButton("Änderung1", "Tag ändern")),
      Änderung2(new SpinButton("Änderung2", "Monat ändern")),
      Änderung4(new SpinButton("Änderung4", "Jahr ändern")), Uhrwerk(Textfeld("Uhrwerk")),
      Änderung5(new SpinButton("Änderung5", "Stunde ändern")),
      Änderung6(new SpinButton("Änderung6", "Minuten ändern"))
{
}

void Terminfelder::Anordnen(QGridLayout *raster, int zeile, const Knöpfe &knöpfe) const
{
    raster->setVerticalSpacing(6);
    raster->setHorizontalSpacing(10);
    for (QLineEdit *feld : {tagelang, datendaten, Uhrwerk})
        feld->setFixedWidth(100);
    const auto schritt = [](const char *text, SpinButton *spin, const Knopfpaar &paar) {
        auto *reihe = new QHBoxLayout;
        reihe->setSpacing(4);
        QLabel *label = Beschriftung("", text);
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance("Minuten") + 8);
        reihe->addWidget(label);
        reihe->addWidget(spin);
        if (paar.Minus)
            reihe->addWidget(paar.Minus);
        if (paar.Plus)
            reihe->addWidget(paar.Plus);
        reihe->addStretch();
        return reihe;
    };
    raster->addWidget(Beschriftung("", "Wochentag:", tagelang), zeile, 0);
    raster->addWidget(tagelang, zeile, 1);
    raster->addWidget(Taga, zeile, 2, Qt::AlignLeft);
    raster->addWidget(Beschriftung("", "Datum:", datendaten), zeile + 1, 0);
    raster->addWidget(datendaten, zeile + 1, 1);
    raster->addLayout(schritt("Tag", Änderung1, knöpfe.Tag), zeile + 1, 2);
    raster->addLayout(schritt("Monat", Änderung2, knöpfe.Monat), zeile + 2, 2);
    raster->addLayout(schritt("Jahr", Änderung4, knöpfe.Jahr), zeile + 3, 2);
    raster->addWidget(Beschriftung("", "Uhrzeit:", Uhrwerk), zeile + 4, 0);
    raster->addWidget(Uhrwerk, zeile + 4, 1);
    raster->addLayout(schritt("Stunde", Änderung5, knöpfe.Stunde), zeile + 4, 2);
    raster->addLayout(schritt("Minuten", Änderung6, knöpfe.Minute), zeile + 5, 2);
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
