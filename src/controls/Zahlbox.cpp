// The number box of the record editors.
#include "controls/Zahlbox.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"

namespace altardienst {

QLineEdit *Zahleneingabe(const char *name, Text (*prüfung)(const Text &))
{
    QLineEdit *feld = Textfeld(name);
    FeldPrüfen(feld, prüfung);
    return feld;
}

Zahlbox ZahlboxAnlegen(const char *name, const char *spinName, const char *text)
{
    QLineEdit *feld = Zahleneingabe(name);
    feld->setFixedWidth(56);
    const QByteArray gesprochen = QString::fromUtf8(text).remove(':').toUtf8() + " ändern";
    auto *spin = new SpinButton(spinName, gesprochen.constData());
    PfeiltastenVerbinden(feld, spin);
    return {feld, spin};
}

void ZahlboxAnordnen(QGridLayout *raster, int zeile, int spalte, const char *text,
                     const Zahlbox &box)
{
    // A grid within a layout would inherit the wide spacing between the layout's parts.
    raster->setVerticalSpacing(6);
    raster->setHorizontalSpacing(8);
    raster->addWidget(Beschriftung("", text, box.Feld), zeile, spalte);
    raster->addWidget(box.Feld, zeile, spalte + 1);
    raster->addWidget(box.Spin, zeile, spalte + 2);
}

void DrehenVerbinden(const Zahlbox &box)
{
    SchritteVerbinden(nullptr, nullptr, box.Spin, [feld = box.Feld](int richtung) {
        Abgefangen([&] { Weiterzählen(feld, richtung); })();
    });
}

void DrehenMitFokus(const Zahlbox &box)
{
    SchritteVerbinden(nullptr, nullptr, box.Spin, [feld = box.Feld](int richtung) {
        Schrittweise([&] { Weiterzählen(feld, richtung); }, [&] { feld->setFocus(); })();
    });
}

void BegrenztVerbinden(QLineEdit *feld, Int16 &wert, int von, int bis)
{
    QObject::connect(feld, &QLineEdit::textChanged, feld,
                     Abgefangen([feld, &wert, von, bis] { wert = Begrenzen(feld, von, bis); }));
}

int ZahlIn(const QLineEdit *feld)
{
    return Int16Lesen(TextVon(feld));
}

void ZahlSetzen(QLineEdit *feld, int zahl)
{
    Setzen(feld, ZahlText(zahl));
}

void Weiterzählen(QLineEdit *feld, int um)
{
    Setzen(feld, ZahlText(SingleLesen(TextVon(feld)) + static_cast<Single>(um)));
}

int Begrenzen(QLineEdit *feld, int von, int bis)
{
    const Single zahl = SingleLesen(TextVon(feld)); // any number, however large
    if (zahl < von)
        ZahlSetzen(feld, von);
    else if (zahl > bis)
        ZahlSetzen(feld, bis);
    return ZahlIn(feld);
}

} // namespace altardienst
