// One person of a table of services on the screen, with the number box to choose the person.
#include "statistics/Dienstblatt.h"

#include "core/Umwandlung.h"
#include "fenster/Bausteine.h"
#include "fenster/Handler.h"
#include "fenster/Zahlbox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {

Dienstblatt::Dienstblatt(const Dienstblattnamen &namen, int anzahl,
                         std::function<std::vector<Text>(int)> zeile)
    : Nummer(Textfeld(namen.Nummer)), MINUS(Minusknopf("MINUS", "vorige Person")),
      PLUS(Plusknopf("PLUS", "nächste Person")), anzahl(anzahl), zeile(std::move(zeile))
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(16);
    raster->setVerticalSpacing(6);
    for (const auto &[name, text] : namen.Felder) {
        QLabel *feld = Beschriftung(name, "");
        raster->addWidget(Beschriftung("", text), raster->rowCount(), 0);
        raster->addWidget(feld, raster->rowCount() - 1, 1);
        Felder.push_back(feld);
    }
    raster->setColumnStretch(1, 1);

    Nummer->setFixedWidth(60);
    Nummer->setAccessibleName("Nummer der Person");
    auto *wahl = new QHBoxLayout;
    for (QWidget *control : std::initializer_list<QWidget *>{MINUS, Nummer, PLUS})
        wahl->addWidget(control);
    wahl->addStretch();

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(14);
    spalte->addLayout(raster);
    spalte->addStretch();
    spalte->addLayout(wahl);

    connect(Nummer, &QLineEdit::textChanged, this, Abgefangen([this] { NummerGeändert(); }));
    SchritteVerbinden(MINUS, PLUS, nullptr,
                      [this](int richtung) { Abgefangen([&] { Schritt(richtung); })(); });
    ZahlSetzen(Nummer, 0);
}

void Dienstblatt::NummerGeändert()
{
    if (ZahlIn(Nummer) >= anzahl)
        ZahlSetzen(Nummer, 0);
    const std::vector<Text> texte = zeile(ZahlIn(Nummer));
    for (std::size_t k = 0; k < Felder.size(); ++k)
        Setzen(Felder[k], texte[k]);
}

void Dienstblatt::Schritt(int richtung)
{
    const int nummer = ZahlIn(Nummer);
    if (richtung > 0 ? nummer < anzahl - 1 : nummer > 0)
        ZahlSetzen(Nummer, nummer + richtung);
}

} // namespace altardienst
