// Print scales and table sizes.
#include "settings/SkalierungForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "values/Laufzeitfehler.h"

#include <QGroupBox>
#include <QHBoxLayout>

namespace altardienst {
namespace {

/// What a box may hold, and what replaces a value outside that range: never the nearest limit.
struct Bereich {
    Single Von;
    Single Bis;
    std::function<Single()> Sonst;
    Single Schritt; // of its spin button
};

/// Accepts any number, however large; failure 13 if the text is not one.
bool IstAußerhalb(const Text &text, const Bereich &bereich)
{
    try {
        const Single wert = SingleLesen(text);
        return wert < bereich.Von || wert > bereich.Bis;
    } catch (const Laufzeitfehler &fehler) {
        if (fehler.Nummer() != Laufzeitfehler::Überlauf)
            throw;
        return true;
    }
}

void Begrenzen(QLineEdit *feld, const Bereich &bereich)
{
    if (IstAußerhalb(TextVon(feld), bereich))
        Setzen(feld, ZahlText(bereich.Sonst()));
}

void BoxVerbinden(const Zahlbox &box, const Bereich &bereich,
                  const std::function<void()> &schreiben)
{
    QLineEdit *feld = box.Feld;
    QObject::connect(feld, &QLineEdit::textChanged, feld, Abgefangen([=] {
                         Begrenzen(feld, bereich);
                         schreiben();
                     }));
    SchritteVerbinden(nullptr, nullptr, box.Spin, [=](int richtung) {
        feld->setFocus();
        Abgefangen([&] {
            const Single schritt = static_cast<Single>(richtung) * bereich.Schritt;
            Setzen(feld, ZahlText(SingleLesen(TextVon(feld)) + schritt));
        })();
    });
}

void SkalaVerbinden(const Zahlbox &box, Single &skala)
{
    BoxVerbinden(box, {49.9999F, 60.0001F, [] { return KonfigDatensatz::SkalaVorgabe; }, 0.0001F},
                 [=, &skala] { skala = SingleLesen(TextVon(box.Feld)); });
    Setzen(box.Feld, ZahlText(skala));
}

void GrößeVerbinden(const Zahlbox &box, Int16 &größe, const std::function<int()> &vorgabe)
{
    BoxVerbinden(box, {10, 10000, [=] { return static_cast<Single>(vorgabe()); }, 1},
                 [=, &größe] { größe = Int16Lesen(TextVon(box.Feld)); });
    ZahlSetzen(box.Feld, größe);
}

} // namespace

SkalierungForm::SkalierungForm()
    : XSKALA(ZahlboxAnlegen("XSKALA", "XX", "X-Achse")),
      YSKALA(ZahlboxAnlegen("YSKALA", "YY", "Y-Achse")),
      MDS(ZahlboxAnlegen("MDS", "MDSS", "maximale Meßdienerzahl")),
      MHS(ZahlboxAnlegen("MHS", "MHSS", "maximale Meßhelferzahl")),
      MS(ZahlboxAnlegen("MS", "MSS", "maximale Messenzahl")),
      MGS(ZahlboxAnlegen("MGS", "MGSS", "maximale Gruppen")),
      MJS(ZahlboxAnlegen("MJS", "MJSS", "maximale Jubiläen")),
      MVS(ZahlboxAnlegen("MVS", "MVSS", "maximale Vorbelegung Messen mit Meßdiener")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Skalierung");
    setWindowTitle("Skalierung");
    Anordnen();
    Verbinden();
}

void SkalierungForm::Anordnen()
{
    struct Reihe {
        const char *Text;
        const Zahlbox &Box;
    };
    const auto gruppe = [](const char *titel, std::initializer_list<Reihe> reihen) {
        auto *rahmen = new QGroupBox(QString::fromUtf8(titel));
        auto *raster = new QGridLayout(rahmen);
        for (const auto &[text, box] : reihen) {
            box.Feld->setFixedWidth(90);
            ZahlboxAnordnen(raster, raster->rowCount(), 0, text, box);
        }
        raster->setColumnStretch(0, 1);
        return rahmen;
    };
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addWidget(gruppe("Druckskalierung für beide Achsen (Punkte zu mm)",
                             {{"X-Achse", XSKALA}, {"Y-Achse", YSKALA}}));
    spalte->addWidget(
        gruppe("Weitere Skalierungen", {{"maximale Meßdienerzahl", MDS},
                                        {"maximale Meßhelferzahl", MHS},
                                        {"maximale Messenzahl", MS},
                                        {"maximale Gruppen", MGS},
                                        {"maximale Jubiläen", MJS},
                                        {"maximale Vorbelegung Messen mit Meßdiener", MVS}}));
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Ende}));
    XSKALA.Feld->setFocus();
}

/// Each box shows its field as soon as its events are connected, in the order of the screen.
void SkalierungForm::Verbinden()
{
    SkalaVerbinden(XSKALA, Konfig.XSkala);
    SkalaVerbinden(YSKALA, Konfig.YSkala);
    const auto fest = [](int wert) { return [wert] { return wert; }; };
    GrößeVerbinden(MDS, Konfig.Skal2, fest(302));
    GrößeVerbinden(MHS, Konfig.Skal1, fest(302));
    GrößeVerbinden(MS, Konfig.Skal3, fest(602));
    GrößeVerbinden(MGS, Konfig.Skal4, fest(102));
    GrößeVerbinden(MJS, Konfig.Skal5, [] { return Konfig.Skal1 + Konfig.Skal2; });
    GrößeVerbinden(MVS, Konfig.Skal6, fest(202));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

} // namespace altardienst
