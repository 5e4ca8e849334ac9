// The editor of the ten label formats.
#include "printing/EtikettenForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "core/Umwandlung.h"
#include "core/tables.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int LetztesFormat = 9;

/// Lengths in mm.
void LängeBegrenzen(QLineEdit *feld, Single schritt = 0)
{
    const Single länge = SingleLesen(TextVon(feld)) + schritt;
    Setzen(feld, ZahlText(std::clamp(länge, 0.1F, 330.1F)));
}

/// Rows or columns; the box may hold any number, however large.
void ZahlBegrenzen(QLineEdit *feld, int schritt = 0)
{
    const int zahl = GerundetInt16(std::clamp(SingleLesen(TextVon(feld)), 0.0F, 21.0F));
    ZahlSetzen(feld, std::clamp(zahl + schritt, 1, 20));
}

} // namespace

EtikettenForm::EtikettenForm()
    : Wahl(new Datensatzwahl({"Ind", "Plus", "Minus", "DPM"})), N(Textfeld("N")),
      OU(Zahleneingabe("OU", KeinMaß)), LR(Zahleneingabe("LR", KeinMaß)),
      H(Zahleneingabe("H", KeinMaß)), B(Zahleneingabe("B", KeinMaß)),
      ST(Zahleneingabe("ST", KeinMaß)), R(Zahleneingabe("R", KeinMaß)),
      S(Zahleneingabe("S", KeinMaß)), Ende(Knopf("Ende", "Ende"))
{
    constexpr std::array<const char *, 7> gesprochen = {"Rand oben und unten ändern",
                                                        "Rand links und rechts ändern",
                                                        "Höhe ändern",
                                                        "Breite ändern",
                                                        "Steg ändern",
                                                        "Reihen ändern",
                                                        "Spalten ändern"};
    for (std::size_t k = 0; k < Ä.size(); ++k)
        Ä[k] = new SpinButton(("Ä" + std::to_string(k + 1)).c_str(), gesprochen[k]);
    Benannt(this, "Etiketten");
    setWindowTitle("Etikettengrößen");
    Anordnen();
    Verbinden();
    ZahlSetzen(Wahl->Nummer, Etikett.Anzahl);
}

void EtikettenForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(8);
    raster->addWidget(Beschriftung("NText", "Etikettenname :", N), 0, 0);
    raster->addWidget(N, 0, 1, 1, 4);
    int zeile = 1;
    const auto zahl = [&](const char *text, QLineEdit *feld, bool istLänge) {
        feld->setFixedWidth(90);
        raster->addWidget(Beschriftung("", text, feld), zeile, 0);
        raster->addWidget(feld, zeile, 1);
        SpinButton *spin = Ä[static_cast<std::size_t>(zeile - 1)];
        PfeiltastenVerbinden(feld, spin);
        raster->addWidget(spin, zeile, 2);
        if (istLänge)
            raster->addWidget(Beschriftung("", "mm"), zeile, 3);
        ++zeile;
    };
    zahl("Rand oben/ unten :", OU, true);
    zahl("Rand links / rechts :", LR, true);
    zahl("Höhe :", H, true);
    zahl("Breite :", B, true);
    zahl("Steg :", ST, true);
    zahl("Reihen :", R, false);
    zahl("Spalten :", S, false);
    raster->setColumnStretch(4, 1);

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(Datensatzkopf(Wahl));
    spalte->addLayout(raster);
    spalte->addLayout(Knopfreihe({Ende}));
    spalte->addStretch();
    setMinimumWidth(460);
    N->setFocus();
}

void EtikettenForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { IndGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Offen([&] { Schritt(richtung); })(); });
    std::size_t spin = 0;
    for (QLineEdit *feld : Längen()) {
        BeiFokusVerlust(feld, Abgefangen([feld] { LängeBegrenzen(feld); }));
        SchritteVerbinden(nullptr, nullptr, Ä[spin++], [feld](int richtung) {
            Abgefangen([&] { LängeBegrenzen(feld, 0.1F * static_cast<Single>(richtung)); })();
        });
    }
    for (QLineEdit *feld : Zahlen()) {
        BeiFokusVerlust(feld, Abgefangen([feld] { ZahlBegrenzen(feld); }));
        SchritteVerbinden(nullptr, nullptr, Ä[spin++], [feld](int richtung) {
            Abgefangen([&] { ZahlBegrenzen(feld, richtung); })();
        });
    }
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

/// Typing a number shows that format without saving what is on the screen.
void EtikettenForm::IndGeändert()
{
    Etikett.Anzahl = Begrenzen(Wahl->Nummer, 0, LetztesFormat);
    Zeigen();
}

void EtikettenForm::Schritt(int richtung)
{
    Schreiben();
    const int nächstes = Etikett.Anzahl + richtung;
    if (nächstes >= 0 && nächstes <= LetztesFormat)
        ZahlSetzen(Wahl->Nummer, nächstes);
}

void EtikettenForm::Zeigen()
{
    const int i = Etikett.Anzahl;
    Setzen(N, Etikett.Name[i]);
    Setzen(OU, ZahlText(Etikett.RandOU[i]));
    Setzen(LR, ZahlText(Etikett.RandLR[i]));
    Setzen(H, ZahlText(Etikett.Höhe[i]));
    Setzen(B, ZahlText(Etikett.Breite[i]));
    Setzen(ST, ZahlText(Etikett.Steg[i]));
    Setzen(R, ZahlText(Etikett.Reihen[i]));
    Setzen(S, ZahlText(Etikett.Spalten[i]));
}

void EtikettenForm::Schreiben()
{
    // The window's close box and the page keys do not move the focus, but the box that has it must
    // not stay out of bounds.
    const QWidget *mitFokus = focusWidget();
    for (QLineEdit *feld : Längen())
        if (feld == mitFokus)
            Abgefangen([=] { LängeBegrenzen(feld); })();
    for (QLineEdit *feld : Zahlen())
        if (feld == mitFokus)
            Abgefangen([=] { ZahlBegrenzen(feld); })();
    const int i = Etikett.Anzahl; // the format shown, even if its number is only half typed
    Etikett.Name[i] = TextVon(N);
    Etikett.RandOU[i] = SingleLesen(TextVon(OU));
    Etikett.RandLR[i] = SingleLesen(TextVon(LR));
    Etikett.Höhe[i] = SingleLesen(TextVon(H));
    Etikett.Breite[i] = SingleLesen(TextVon(B));
    Etikett.Steg[i] = SingleLesen(TextVon(ST));
    Etikett.Reihen[i] = Int16Lesen(TextVon(R));
    Etikett.Spalten[i] = Int16Lesen(TextVon(S));
}

/// A box that does not hold a number keeps the form open, with the failure shown.
void EtikettenForm::VorDemSchließen()
{
    Schreiben();
}

} // namespace altardienst
