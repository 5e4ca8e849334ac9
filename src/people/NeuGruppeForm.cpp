// The dialog that adds a group.
#include "people/NeuGruppeForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/tables.h"
#include "people/Personen.h"
#include "people/Personenboxen.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>

namespace altardienst {

NeuGruppeForm::NeuGruppeForm(std::function<void(bool)> danach)
    : Anlegefenster(std::move(danach)), GBezeichnung(Gruppenfeld())
{
    Benannt(this, "NeuGruppe");
    setWindowTitle("Neue Gruppe");
    Anordnen();
    KnöpfeVerbinden([this] { Anlegen(); });
    BeiEingabetaste(GBezeichnung, Offen([this] { Anlegen(); }));
    GBezeichnung->setText("Neue Gruppe");
    GBezeichnung->selectAll();
}

void NeuGruppeForm::Anordnen()
{
    auto *name = new QHBoxLayout;
    name->addWidget(Beschriftung("", "Gruppe:", GBezeichnung));
    name->addWidget(GBezeichnung, 1);
    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(name);
    spalte->addLayout(Schlußknöpfe());
    spalte->addStretch();
    setMinimumWidth(420);
    GBezeichnung->setFocus();
}

void NeuGruppeForm::Anlegen()
{
    if (Gruppe.Anzahl >= MeisteGruppen)
        return Meldungen.Zeigen("Maximale Anzahl Datensätze für Gruppen erreicht!!");
    if (GibtEsGruppe(TextVon(GBezeichnung)))
        return Meldungen.Zeigen("Doppelt eingeben! Nicht mit mir!!!!!");
    GruppeAnlegen(TextVon(GBezeichnung));
    Fertig();
}

} // namespace altardienst
