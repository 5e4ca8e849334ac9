// The services of each server in the plan.
#include "statistics/StatDienstForm.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "statistics/Dienstlisten.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

StatDienstForm::StatDienstForm() : zählung(MeßdienerdiensteZählen())
{
    Blatt = new Dienstblatt(
        {"INDEXLEIN", Dienstfelder(Dienstarten, {"V", "N", "G", "L", "F", "W", "K", "A", "I"})},
        Meßdiener.Anzahl, [this](int i) { return TexteDer(zählung[i]); });
    Druckern = Knopf("Druckern", "Drucken");
    Ende = Knopf("Ende", "Ende");
    Benannt(this, "StatDienst");
    setWindowTitle("Statistik Dienste Meßdiener");
    Anordnen();
    Verbinden();
}

void StatDienstForm::Anordnen()
{
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addWidget(Blatt);
    spalte->addLayout(Knopfreihe({Druckern, Ende}));
    setMinimumWidth(380);
    Blatt->Wahl->Nummer->setFocus();
}

void StatDienstForm::Verbinden()
{
    connect(Druckern, &QPushButton::clicked, this,
            Offen([this] { MeßdienerdiensteDrucken(zählung); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

} // namespace altardienst
