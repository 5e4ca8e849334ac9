// One person of a table of services on the screen, with the number box to choose the person.
#include "statistics/Dienstblatt.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "core/Umwandlung.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace altardienst {

Dienstblatt::Dienstblatt(const Dienstblattnamen &namen, int anzahl,
                         std::function<std::vector<Text>(int)> zeile)
    : Wahl(new Datensatzwahl({namen.Nummer, "PLUS", "MINUS"})), anzahl(anzahl),
      zeile(std::move(zeile))
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(16);
    raster->setVerticalSpacing(6);
    int reihe = 0;
    for (const auto &[name, text] : namen.Felder) {
        QLabel *feld = Beschriftung(name, "");
        raster->addWidget(Beschriftung("", text), reihe, 0);
        raster->addWidget(feld, reihe++, 1);
        Felder.push_back(feld);
    }
    raster->setColumnStretch(1, 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(14);
    spalte->addWidget(Wahl);
    spalte->addLayout(raster);
    spalte->addStretch();

    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Abgefangen([&] { Schritt(richtung); })(); });
    ZahlSetzen(Wahl->Nummer, 0);
}

void Dienstblatt::NummerGeändert()
{
    // The number may be too large for a record number, and one with a fraction is rounded to a
    // record.
    if (SingleLesen(TextVon(Wahl->Nummer)) >= static_cast<Single>(anzahl) ||
        ZahlIn(Wahl->Nummer) >= anzahl)
        ZahlSetzen(Wahl->Nummer, 0);
    const std::vector<Text> texte = zeile(ZahlIn(Wahl->Nummer));
    for (std::size_t k = 0; k < Felder.size(); ++k)
        Setzen(Felder[k], texte[k]);
}

void Dienstblatt::Schritt(int richtung)
{
    const int nummer = ZahlIn(Wahl->Nummer);
    if (richtung > 0 ? nummer < anzahl - 1 : nummer > 0)
        ZahlSetzen(Wahl->Nummer, nummer + richtung);
}

} // namespace altardienst
