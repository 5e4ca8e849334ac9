// The services of each helper in the plan.
#include "statistics/StatHelferForm.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "statistics/Dienstlisten.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

StatHelferForm::StatHelferForm() : zählung(HelferdiensteZählen())
{
    Blatt = new Dienstblatt(
        {"Indexchen", Dienstfelder(Helferarten, {"V1", "N1", "LE1", "KM1", "KN1", "KL1", "IN1"})},
        Helfer.Anzahl, [this](int i) { return TexteDer(zählung[i]); });
    Dluckeln = Knopf("Dluckeln", "Drucken");
    Ende = Knopf("Ende", "Ende");
    Benannt(this, "StatHelfer");
    setWindowTitle("Statistik Dienste Helfer");
    Anordnen();
    Verbinden();
}

void StatHelferForm::Anordnen()
{
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addWidget(Blatt);
    spalte->addLayout(Knopfreihe({Dluckeln, Ende}));
    setMinimumWidth(380);
    Blatt->Wahl->Nummer->setFocus();
}

void StatHelferForm::Verbinden()
{
    connect(Dluckeln, &QPushButton::clicked, this,
            Offen([this] { HelferdiensteDrucken(zählung); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

} // namespace altardienst
